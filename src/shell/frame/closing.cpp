#include "shell/frame/closing.h"

#include <filesystem>

#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "play/hot_keys.h"
#include "play/script_session.h"
#include "play/table_files.h"
#include "shell/frame/desk.h"
#include "shell/frame/game_files.h"
#include "shell/frame/places.h"
#include "shell/screens/bankroll_graph_screen.h"
#include "shell/screens/file_chooser.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

bool SaveScriptsFirst(Desk& desk) {
  Game& game = desk.game;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    SeatScript& script = game.autobet.Scripts[seat];
    if (!IsOccupied(game.table, seat) || !script.Unsaved) continue;
    const int answer =
        ShowMessage<Msg::kAskSaveScript>(game, With<"player">(game.table.seats[seat].SeatName));
    if (answer == kResultCancel) return false;
    if (answer != kResultYes) continue;
    const std::string path = ChooseFile(game, desk.window, kSaveAutoBet, script.ScriptFileName);
    if (path.empty()) return false;
    std::string error;
    if (!SaveScript(game, seat, path, error)) {
      ShowMessage<Msg::kFileProblem>(game, With<"title">(FileTitleText(kSaveAutoBet)),
                                     With<"problem">(error));
      return false;
    }
  }
  return true;
}

}  // namespace

bool SaveProbabilitiesFirst(Desk& desk) {
  Game& game = desk.game;
  if (!game.percentage.ProbDirty) return true;
  const int answer = ShowMessage<Msg::kAskSaveProbabilities>(game);
  if (answer != kResultYes) return answer == kResultNo;
  const std::string path = ChooseFile(game, desk.window, kSaveProbabilities, game.percentage.ProbFileName);
  std::string error;
  if (path.empty()) return false;
  if (SaveProbabilityFile(game.percentage, path, error)) return true;
  ShowMessage<Msg::kFileProblem>(game, With<"title">(FileTitleText(kSaveProbabilities)),
                                 With<"problem">(error));
  return false;
}

bool StopRunFirst(Desk& desk) {
  const Game& game = desk.game;
  return AskBeforeCommand(desk.game) || !(game.table.AutoRollActive || game.autobet.ScriptRunning);
}

bool SaveOwnFilesFirst(Desk& desk) { return SaveScriptsFirst(desk) && SaveProbabilitiesFirst(desk); }

bool MayClose(Desk& desk) {
  return SaveOwnFilesFirst(desk) && SaveSessionFirst(desk, Leaving::kToTheDefault);
}

namespace {

// Those that another window has added since are kept.
bool WriteChangedHotKeys(const Game& game, std::string& error) {
  const std::string path = game.dataFolder + kHotKeysFile;
  std::vector<HotKey> filed;
  if (!ReadHotKeys(path, filed, error)) return false;
  const std::vector<HotKey> before = filed;
  for (const HotKey& key : game.screen.HotKeys)
    if (!AddHotKey(filed, key, error)) return false;
  return filed == before || WriteHotKeys(path, filed, error);
}

std::string WriteGame(Desk& desk) {
  KeepScreen(desk);
  // If the program goes on after all, the table still belongs to its own file.
  const GameFileState file = desk.game.file;
  std::string error;
  const bool written = SaveDefaultGame(desk.game, error);
  desk.game.file = file;
  if (!written) return error;
  return WriteChangedHotKeys(desk.game, error) ? std::string() : error;
}

}  // namespace

std::string KeepGameUnasked(Desk& desk) { return desk.keeps ? WriteGame(desk) : std::string(); }

bool KeepGame(Desk& desk) {
  // A sheet of graphs that was begun goes to the printer.
  if (desk.tools[kBankrollWindow] != nullptr)
    static_cast<BankrollGraphScreen&>(*desk.tools[kBankrollWindow]).FinishPrinting();
  const std::string problem = KeepGameUnasked(desk);
  return problem.empty() || Confirms<Msg::kAskCloseUnkept>(desk.game, With<"problem">(problem));
}

std::string CloseFiles(Desk& desk) {
  const std::string problem = EndGame(desk.game);
  std::error_code gone;
  std::filesystem::remove(desk.game.ownFolder + kRollCopyFile, gone);
  return problem;
}

}  // namespace tessaryn
