#include "play/script_session.h"

#include <algorithm>
#include <utility>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/script_files.h"
#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"
#include "autobet/run/interpreter.h"
#include "base/bet_catalogue.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

void ScriptsChanged(Game& game) {
  game.autobet.ScriptRunning = false;
  game.autobet.ScriptsCompiled = false;
}

// A place outside the script is brought to its nearest line.
void ClampSpan(ScriptDiagnostic& diagnostic, int lines) {
  if (diagnostic.firstLine < 1) diagnostic.firstLine = 1;
  if (diagnostic.lastLine < diagnostic.firstLine) diagnostic.lastLine = diagnostic.firstLine;
  if (diagnostic.firstLine > lines) {
    diagnostic.firstLine = lines;
    diagnostic.firstColumn = 0;
  }
  if (diagnostic.lastLine > lines) {
    diagnostic.lastLine = lines;
    diagnostic.lastColumn = 0;
  }
}

std::string ErrorTitle(const ScriptDiagnostic& diagnostic) {
  if (diagnostic.firstLine == diagnostic.lastLine)
    return MessageText<Msg::kScriptErrorInLine>(With<"line">(diagnostic.firstLine));
  return MessageText<Msg::kScriptErrorInLines>(With<"first">(diagnostic.firstLine),
                                               With<"last">(diagnostic.lastLine));
}

bool IsEmpty(const std::vector<std::string>& lines) {
  return std::all_of(lines.begin(), lines.end(),
                     [](const std::string& line) { return Trimmed(line).empty(); });
}

// compile: whether the lines compile, and what is wrong with them.
template <typename Compile>
ScriptCheck CheckBy(const std::vector<std::string>& lines, Compile&& compile) {
  ScriptCheck check;
  check.title = MessageText<Msg::kTitleAutoBet>();
  if (IsEmpty(lines)) {
    check.text = MessageText<Msg::kScriptIsEmpty>();
    return check;
  }
  check.ok = compile(check.diagnostic);
  if (check.ok) {
    check.text = MessageText<Msg::kScriptIsGood>();
    return check;
  }
  ClampSpan(check.diagnostic, static_cast<int>(lines.size()));
  check.title = ErrorTitle(check.diagnostic);
  check.text = MessageText<Msg::kScriptFault>(With<"fault">(check.diagnostic.message),
                                              With<"offer">(check.diagnostic.offer));
  return check;
}

}  // namespace

ScriptCheck CheckLines(const ScriptSurroundings& surroundings, SeatId seat,
                       const std::vector<std::string>& lines, std::vector<int>* nesting) {
  return CheckBy(lines, [&](ScriptDiagnostic& diagnostic) {
    CompiledScript script;
    return CompileAutobets(seat, lines, surroundings, script, diagnostic, nesting);
  });
}

ScriptCheck CheckScript(Game& game, SeatId seat) {
  ScriptCheck check = CheckBy(game.autobet.Scripts[seat].ScriptLines, [&](ScriptDiagnostic& diagnostic) {
    return CompiledScriptOf(game, seat, SurroundingsOf(game), diagnostic) != nullptr;
  });
  if (check.ok) game.autobet.ScriptsCompiled = false;
  return check;
}

void SetScript(Game& game, SeatId seat, std::vector<std::string> lines, const std::string& fileName) {
  ScriptsChanged(game);
  SeatScript& script = game.autobet.Scripts[seat];
  script.ScriptLines = std::move(lines);
  script.ScriptNesting.clear();
  script.ScriptFileName = fileName;
  script.Unsaved = false;
  script.Errors.clear();
  script.Acted = false;
  // A script that comes in before the first roll has not been told yet.
  if (SessionRolls(game.stats) == 0)
    game.autobet.SessionAhead = static_cast<std::uint16_t>(game.autobet.SessionAhead | 1u << seat);
}

bool OpenScript(Game& game, SeatId seat, const std::string& path, std::string& error) {
  std::vector<std::string> lines;
  const ScriptFileResult result = ReadScriptFile(path, lines);
  if (!result.Ok()) {
    error = result.problem == ScriptFileProblem::kNotFound
                ? MessageText<Msg::kNamedFileNotFound>(With<"path">(path))
                : result.message;
    return false;
  }
  SetScript(game, seat, std::move(lines), path);
  return true;
}

bool SaveScript(Game& game, SeatId seat, const std::string& path, std::string& error) {
  SeatScript& script = game.autobet.Scripts[seat];
  const ScriptFileResult result = WriteScriptFile(path, script.ScriptLines);
  if (!result.Ok()) {
    error = result.message;
    return false;
  }
  script.ScriptFileName = path;
  script.Unsaved = false;
  return true;
}

void SetScriptActive(Game& game, SeatId seat, bool active) {
  AutoBet& autobet = game.autobet;
  ScriptsChanged(game);
  autobet.ScriptActive[seat] = active && IsOccupied(game.table, seat);
  autobet.ScriptActive[0] =
      std::any_of(autobet.ScriptActive + 1, autobet.ScriptActive + kSeatRows, [](bool on) { return on; });
}

void SetAllScriptsActive(Game& game, bool active) {
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    SetScriptActive(game, seat, active && !IsEmpty(game.autobet.Scripts[seat].ScriptLines));
}

void CloseScripts(Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    SetScriptActive(game, seat, false);
    SetScript(game, seat, {}, "");
  }
}

void ActivateScript(Game& game, SeatId seat) {
  if (seat == 0)
    SetAllScriptsActive(game, true);
  else
    SetScriptActive(game, seat, true);
  const bool initialise =
      seat == 0 ? Confirms<Msg::kAskInitialiseAll>(game)
                : Confirms<Msg::kAskInitialise>(game, With<"player">(game.table.seats[seat].SeatName));
  if (initialise) InitialiseScripts(game);
}

bool InitialiseScripts(Game& game) {
  AutoBet& autobet = game.autobet;
  if (!autobet.ScriptsCompiled) CompileActiveScripts(game);
  if (!autobet.ScriptsCompiled) return false;
  autobet.ScriptInitializing = true;
  RunAutoBet(game);
  autobet.ScriptInitializing = false;
  return true;
}

void SetScriptPermission(Game& game, SeatId seat, ScriptPermission permission, bool allowed) {
  SeatScript& script = game.autobet.Scripts[seat];
  bool SeatScript::*const flags[] = {&SeatScript::AllowAct4Others, &SeatScript::AllowReset,
                                     &SeatScript::AllowActProb};
  script.*flags[static_cast<int>(permission)] = allowed;
}

namespace {

std::string BetTarget(BetId bet) {
  return IsTableBet(bet) ? std::string(BetWord(bet)) : "cs" + std::to_string(bet - kFirstCheckStack);
}

}  // namespace

std::string BetStatement(BetId bet, Currency amount) {
  return "bet " + PlainMoney(amount) + " on " + BetTarget(bet);
}

void LogBet(Game& game, SeatId seat, BetId bet) {
  AutoBet& autobet = game.autobet;
  if (!autobet.BetLogging || autobet.ScriptRunning) return;
  const Currency amount = game.table.BetAmount(seat, bet);
  autobet.LoggedBets.push_back(amount == kZero ? "remove " + BetTarget(bet) : BetStatement(bet, amount));
  autobet.LoggedBetsUnsaved = true;
}

bool OfferToSaveLoggedBets(Game& game) {
  return game.autobet.LoggedBetsUnsaved && Confirms<Msg::kAskSaveLoggedBets>(game);
}

}  // namespace tessaryn
