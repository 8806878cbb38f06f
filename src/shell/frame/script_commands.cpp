#include <cctype>
#include <filesystem>

#include "play/hot_keys.h"
#include "play/script_session.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/table_widget.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

bool HasScript(const Desk& desk) {
  return HasPlayer(desk) && !desk.game.autobet.Scripts[desk.game.table.SelectedSeat].ScriptLines.empty();
}
bool ScriptIsActive(const Desk& desk) {
  const SeatId seat = desk.game.table.SelectedSeat;
  return seat > 0 && desk.game.autobet.ScriptActive[seat];
}
bool ScriptsRun(const Desk& desk) {
  return desk.game.autobet.ScriptRunning || desk.game.autobet.ScriptActive[0];
}
bool AnyScript(const Desk& desk) { return IsFree(desk) && desk.game.autobet.ScriptActive[0]; }

void OpenScriptFile(Desk& desk) {
  Game& game = desk.game;
  const std::string path = ChooseFile(game, desk.window, kOpenAutoBet);
  if (path.empty()) return;
  const SeatId seat = game.table.SelectedSeat;
  std::string error;
  if (!OpenScript(game, seat, path, error)) {
    ShowMessage<Msg::kFileProblem>(game, With<"title">(FileTitleText(kOpenAutoBet)), With<"problem">(error));
    return;
  }
  desk.table->update();
  const ScriptCheck check = CheckScript(game, seat);
  if (!check.ok)
    ShowMessage<Msg::kScriptChecked>(game, With<"title">(check.title), With<"result">(check.text));
}

void ActivateSelected(Desk& desk) {
  const SeatId seat = desk.game.table.SelectedSeat;
  if (desk.game.autobet.ScriptActive[seat])
    SetScriptActive(desk.game, seat, false);
  else
    ActivateScript(desk.game, seat);
  desk.table->update();
}

void InitialiseAll(Desk& desk) {
  InitialiseScripts(desk.game);
  desk.table->Refresh();
}

void StopScripts(Desk& desk) {
  desk.game.autobet.ScriptRunning = false;
  SetAllScriptsActive(desk.game, false);
  desk.table->update();
}

void ChooseHotKey(Desk& desk) {
  Game& game = desk.game;
  game.box.MsgEntry.clear();
  if (ShowMessage<Msg::kAskHotKey>(game) != kResultOk) return;
  const std::string typed = game.box.MsgEntry;
  if (typed.size() != 1 || !std::isalnum(static_cast<unsigned char>(typed[0]))) {
    ShowMessage<Msg::kNoHotKey>(game, With<"typed">(typed));
    return;
  }
  const std::string path = ChooseFile(game, desk.window, kHotKeyScript);
  if (path.empty()) return;
  std::string error;
  const HotKey key{static_cast<char>(std::tolower(static_cast<unsigned char>(typed[0]))), path,
                   std::filesystem::path(path).stem().string()};
  // Those that another window has added since are kept.
  const std::string file = game.dataFolder + kHotKeysFile;
  if (!ReadHotKeys(file, game.screen.HotKeys, error) || !AddHotKey(game.screen.HotKeys, key, error) ||
      (desk.keeps && !WriteHotKeys(file, game.screen.HotKeys, error)))
    ShowMessage<Msg::kHotKeysFailed>(game, With<"problem">(error));
}

}  // namespace

std::span<const CommandRow> ScriptCommands() {
  constexpr InRun kAsks = InRun::kAsksFirst;
  static const CommandRow kCommands[] = {
      {"mnuOpenScript", QT_TRANSLATE_NOOP("Commands", "&Open script ..."), nullptr, kAsks, OpenScriptFile,
       HasPlayer},
      {"mnuActivateScript", QT_TRANSLATE_NOOP("Commands", "&Active"), nullptr, kAsks, ActivateSelected,
       HasScript, ScriptIsActive},
      {"mnuInitialiseScripts", QT_TRANSLATE_NOOP("Commands", "&Initialize"), nullptr, kAsks, InitialiseAll,
       AnyScript},
      {.name = "mnuStopAutobetting",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Stop auto-betting"),
       .act = StopScripts,
       .can = ScriptsRun},
      {},
      {"mnuHotKey", QT_TRANSLATE_NOOP("Commands", "Assign a &hot-key ..."), nullptr, kAsks, ChooseHotKey,
       IsFree},
      {},
      {.name = "mnuAutoBet",
       .caption = QT_TRANSLATE_NOOP("Commands", "Auto-Bet &workshop"),
       .key = "F4",
       .act = [](Desk& desk) { ToggleTool(desk, kAutoBetWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kAutoBetWindow); }},
      {.name = "mnuHotKeys",
       .caption = QT_TRANSLATE_NOOP("Commands", "Hot-&keys"),
       .act = [](Desk& desk) { ToggleTool(desk, kHotKeysWindow); },
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kHotKeysWindow); }},
  };
  return kCommands;
}

void ShowScriptStep(Desk& desk, const ScriptStep& step) {
  auto* workshop = dynamic_cast<WorkshopWindow*>(&Tool(desk, kAutoBetWindow));
  if (workshop == nullptr) return;
  if (!ToolIsShown(desk, kAutoBetWindow)) ShowTool(desk, kAutoBetWindow, true);
  workshop->ShowStep(step);
}

}  // namespace tessaryn
