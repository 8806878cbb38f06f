#include "shell/frame/closing.h"

#include <filesystem>

#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/script_session.h"
#include "play/table_files.h"
#include "shell/frame/desk.h"
#include "shell/screens/file_chooser.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr std::uint32_t kAskToSave = kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion;

bool SaveScriptsFirst(Desk& desk) {
  Game& game = desk.game;
  for (int seat = 1; seat <= kSeats; ++seat) {
    SeatScript& script = game.autobet.Scripts[seat];
    if (!IsOccupied(game.table, seat) || !script.Unsaved) continue;
    const int answer = ShowMessage(
        game, "Save Auto-Bets?",
        game.table.SeatName[seat] + "'s Auto-Bet script has not been saved.\r\rDo you want to save it now?",
        kAskToSave);
    if (answer == kResultCancel) return false;
    if (answer != kResultYes) continue;
    const std::string path = ChooseFile(game, desk.window, kSaveAutoBet, script.ScriptFileName);
    if (path.empty()) return false;
    std::string error;
    if (!SaveScript(game, seat, path, error)) {
      ShowMessage(game, kSaveAutoBet.title, error);
      return false;
    }
  }
  return true;
}

}  // namespace

bool SaveProbabilitiesFirst(Desk& desk) {
  Game& game = desk.game;
  if (!game.percentage.ProbDirty) return true;
  const int answer =
      ShowMessage(game, kSaveProbabilitiesTitle,
                  "Your current probabilities (listed on the configuration screen) have not been "
                  "saved.\r\rDo you want to save them now?",
                  kAskToSave);
  if (answer != kResultYes) return answer == kResultNo;
  const std::string path = ChooseFile(game, desk.window, kSaveProbabilities, game.percentage.ProbFileName);
  std::string error;
  if (path.empty()) return false;
  if (SaveProbabilityFile(game.percentage, path, error)) return true;
  ShowMessage(game, kSaveProbabilities.title, error);
  return false;
}

bool MayClose(Desk& desk) {
  const Game& game = desk.game;
  if (!AskBeforeCommand(desk.game) && (game.table.AutoRollActive || game.autobet.ScriptRunning)) return false;
  return SaveScriptsFirst(desk) && SaveProbabilitiesFirst(desk);
}

std::string WriteFinalFiles(Desk& desk) {
  const std::string problem = EndGame(desk.game);
  std::error_code gone;
  std::filesystem::remove(desk.game.ownFolder + kRollCopyFile, gone);
  return problem;
}

}  // namespace tessaryn
