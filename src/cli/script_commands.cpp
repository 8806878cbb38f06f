#include "cli/script_commands.h"

#include <cstdio>

#include "autobet/run/interpreter.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_permissions.h"
#include "cli/script_report.h"
#include "play/hot_keys.h"
#include "play/script_session.h"

namespace tessaryn::cli {
namespace {

bool Bad(ScriptCommandCall& call, const std::string& what) {
  call.error = what;
  return false;
}

bool Usage(ScriptCommandCall& call, std::size_t words, const char* usage) {
  return call.words.size() == words || Bad(call, std::string("expected: ") + usage);
}

bool SeatWord(ScriptCommandCall& call, SeatId& seat) {
  const std::string problem = ReadSeat(call.game, call.words[1], seat);
  return problem.empty() || Bad(call, problem);
}

bool OnOff(ScriptCommandCall& call, const std::string& word, bool& on) {
  on = word == "on";
  return on || word == "off" || Bad(call, NeitherOnNorOff(word));
}

bool Load(ScriptCommandCall& call) {
  SeatId seat = 0;
  std::string error;
  if (!Usage(call, 3, "script SEAT FILE") || !SeatWord(call, seat)) return false;
  if (!OpenScript(call.game, seat, call.words[2], error)) return Bad(call, error);
  const ScriptCheck check = CheckScript(call.game, seat);
  call.answer["script"] = CheckJson(call.words[2], call.game.autobet.Scripts[seat].ScriptLines, check);
  return true;
}

bool Activate(ScriptCommandCall& call) {
  SeatId seat = 0;
  if (!Usage(call, 2, "activate SEAT") || !SeatWord(call, seat)) return false;
  const ScriptCheck check = CheckScript(call.game, seat);
  if (!check.ok) return Bad(call, check.title + ": " + AsLines(check.text));
  ActivateScript(call.game, seat);
  return true;
}

bool Deactivate(ScriptCommandCall& call) {
  SeatId seat = 0;
  if (!Usage(call, 2, "deactivate SEAT") || !SeatWord(call, seat)) return false;
  SetScriptActive(call.game, seat, false);
  return true;
}

bool Initialise(ScriptCommandCall& call) {
  SeatId seat = 0;
  if (!Usage(call, 2, "initialise SEAT") || !SeatWord(call, seat)) return false;
  SetScriptActive(call.game, seat, true);
  return InitialiseScripts(call.game) || Bad(call, "the scripts can't be compiled");
}

bool HotKeyCommand(ScriptCommandCall& call) {
  if (!Usage(call, 2, "hotkey FILE")) return false;
  return RunHotKeyFile(call.game, call.words[1]) || Bad(call, "the script did not run");
}

bool Steps(ScriptCommandCall& call) {
  bool on = false;
  if (!Usage(call, 2, "steps on|off") || !OnOff(call, call.words[1], on)) return false;
  call.game.autobet.StepsShown = on;
  return true;
}

bool Errors(ScriptCommandCall& call) {
  if (!Usage(call, 1, "errors")) return false;
  call.answer["errors"] = ErrorsJson(call.game);
  return true;
}

bool Permission(ScriptCommandCall& call) {
  SeatId seat = 0;
  bool on = false;
  if (!Usage(call, 4, "permission SEAT others|reset|probabilities on|off") || !SeatWord(call, seat) ||
      !OnOff(call, call.words[3], on))
    return false;
  const std::string problem = Permit(call.game, seat, call.words[2], on);
  return problem.empty() || Bad(call, problem);
}

}  // namespace

const std::vector<ScriptCommand>& ScriptCommands() {
  static const std::vector<ScriptCommand> commands = {
      {{"script", "SEAT FILE", "loads a betting script and checks it"}, Load},
      {{"activate", "SEAT", "has a script run before every roll; asks whether to initialise it"}, Activate},
      {{"deactivate", "SEAT", "lets a script rest"}, Deactivate},
      {{"initialise", "SEAT", "activates a script and runs the active scripts once"}, Initialise},
      {{"hotkey", "FILE", "runs a script once for the selected player"}, HotKeyCommand},
      {{"steps", "on|off", "shows each step of the scripts as a line"}, Steps},
      {{"errors", "", "the run-time errors of the scripts by kind, each with its first place"}, Errors},
      {{"permission", "SEAT others|reset|probabilities on|off", "what a player's script may do"}, Permission},
  };
  return commands;
}

bool DoScriptCommand(Game& game, PlayHost& host, const std::vector<std::string>& words, Json& answer) {
  for (const ScriptCommand& command : ScriptCommands()) {
    if (words[0] != command.info.name) continue;
    ScriptCommandCall call{game, host, words, Json::object(), {}};
    const bool done = command.run(call);
    answer = {{"ok", done}};
    if (done)
      answer.update(call.answer);
    else
      answer["error"] = words[0] + ": " + call.error;
    return true;
  }
  return false;
}

}  // namespace tessaryn::cli
