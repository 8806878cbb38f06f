#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/roll_recorder.h"
#include "rules/shooter.h"
#include "shell/frame/closing.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/run_controls.h"
#include "shell/table/table_widget.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

bool CanPass(const Desk& desk) { return IsFree(desk) && desk.game.table.OccupiedSeats > 0; }
bool CanToggle(const Desk& desk) { return desk.game.table.AutoRollActive || !desk.game.table.RollInProgress; }
bool RollFileOpen(const Desk& desk) { return IsFree(desk) && IsRollFileOpen(desk.game.rollFile); }

bool RecorderWorks(const Desk& desk) {
  return IsFree(desk) && desk.game.rollFile.RecorderState != kRecorderOff;
}

void Roll(Desk& desk) {
  GiveUp(desk.commands);
  RollDice(desk.game);
  desk.table->Refresh();
}

void OpenProbabilities(Desk& desk) {
  if (!SaveProbabilitiesFirst(desk)) return;
  const std::string path = ChooseFile(desk.game, desk.window, kOpenProbabilities);
  if (path.empty()) return;
  std::string error;
  if (!OpenProbabilityFile(desk.game.percentage, path, desk.game.dataFolder, error))
    ShowMessage<Msg::kProbabilitiesNotOpened>(desk.game, With<"problem">(error));
}

void UsePercentageDice(Desk& desk) {
  if (!ActivatePercentageDice(desk.game.percentage, !desk.game.percentage.PercentageDiceActive))
    ShowMessage<Msg::kNothingToRoll>(desk.game);
}

// Opens a file of the user's choice and sets the recorder. What is wrong is shown.
template <int state>
void UseRollFile(Desk& desk) {
  const std::string path = ChooseFile(desk.game, desk.window, kOpenRollFile);
  if (path.empty()) return;
  std::string problem = OpenRollFile(desk.game.rollFile, path);
  if (problem.empty()) problem = SetRecorder(desk.game, state);
  if (!problem.empty()) ShowMessage<Msg::kRollFileNotOpened>(desk.game, With<"problem">(problem));
}

void CloseTheRollFile(Desk& desk) {
  const std::string problem = CloseRollFile(desk.game.rollFile);
  if (!problem.empty()) ShowMessage<Msg::kFileFailed>(desk.game, With<"problem">(problem));
}

}  // namespace

std::span<const CommandRow> DiceCommands() {
  constexpr InRun kAsks = InRun::kAsksFirst;
  static const CommandRow kCommands[] = {
      {"mnuRollDice", QT_TRANSLATE_NOOP("Commands", "&Roll the dice"), "F2", kAsks, Roll, IsFree},
      {"mnuPassDice", QT_TRANSLATE_NOOP("Commands", "&Pass the dice"), "P", kAsks,
       [](Desk& desk) { PassDice(desk.game, kPassByUser); }, CanPass},
      {.name = "mnuRollYourOwnNumbers",
       .caption = QT_TRANSLATE_NOOP("Commands", "Roll your &own numbers"),
       .key = "F12",
       .act = [](Desk& desk) { ToggleTool(desk, kRollPadWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kRollPadWindow); }},
      {},
      {.name = "mnuTurboRoll",
       .caption = QT_TRANSLATE_NOOP("Commands", "Start &Turbo-Roll"),
       .key = "Ctrl+Return",
       .act = [](Desk& desk) { ToggleAutoRoll(desk.game); },
       .can = CanToggle,
       .text = [](const Desk& desk) { return RunCaption(desk.game); }},
      {"mnuSetAutoRollTimeDelay", QT_TRANSLATE_NOOP("Commands", "Set Auto-Roll time &delay ..."), nullptr,
       kAsks, [](Desk& desk) { SetAutoRollDelay(desk.game); }, IsFree},
      {"mnuSetAutoStop", QT_TRANSLATE_NOOP("Commands", "Set Auto-&Stop ..."), nullptr, kAsks,
       [](Desk& desk) { SetAutoStop(desk.game); }, IsFree},
      {},
      {"mnuOpenProbabilities", QT_TRANSLATE_NOOP("Commands", "Open pro&bability file ..."), nullptr, kAsks,
       OpenProbabilities, IsFree},
      {"mnuPercentageDice", QT_TRANSLATE_NOOP("Commands", "Per&centage dice"), nullptr, kAsks,
       UsePercentageDice, IsFree, [](const Desk& desk) { return desk.game.percentage.PercentageDiceActive; }},
      {},
      {"mnuPlayRollFile", QT_TRANSLATE_NOOP("Commands", "Pla&y a dice roll file ..."), nullptr, kAsks,
       UseRollFile<kRecorderPlayback>, IsFree},
      {"mnuRecordRollFile", QT_TRANSLATE_NOOP("Commands", "R&ecord a dice roll file ..."), nullptr, kAsks,
       UseRollFile<kRecorderRecord>, IsFree},
      {"mnuCloseRollFile", QT_TRANSLATE_NOOP("Commands", "C&lose the dice roll file"), nullptr, kAsks,
       CloseTheRollFile, RollFileOpen},
      {},
      {.name = "mnuDiceRollFiles",
       .caption = QT_TRANSLATE_NOOP("Commands", "Dice roll &files"),
       .key = "F8",
       .act = [](Desk& desk) { ToggleTool(desk, kDiceRollFilesWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kDiceRollFilesWindow); }},
      {.name = "mnuPercentageDiceEditor",
       .caption = QT_TRANSLATE_NOOP("Commands", "Percentage dice ed&itor"),
       .act = [](Desk& desk) { ToggleTool(desk, kPercentageDiceWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kPercentageDiceWindow); }},
      {.name = "mnuStopRollFile",
       .caption = QT_TRANSLATE_NOOP("Commands", "Stop t&he dice roll file"),
       .key = "Esc",
       .act = [](Desk& desk) { StopRollFileAndAsk(desk.game); },
       .can = RecorderWorks},
  };
  return kCommands;
}

}  // namespace tessaryn
