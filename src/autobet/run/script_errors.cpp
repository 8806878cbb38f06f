#include "autobet/run/script_errors.h"

#include <algorithm>

#include "autobet/language/script_text.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// Those of a function have its code.
struct ErrorEntry {
  int code;
  const char* text;
};

constexpr ErrorEntry kErrors[] = {
    {1, "Reference to Lay bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {2, "Reference to Don't Come bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {3, "Reference to Don't Come Odds bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {4, "Reference to Come bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {5, "Reference to Come Odds bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {6, "Reference to Place bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {7, "Reference to Buy bet out of limits.\rAcceptable values 4,5,6,8,9,10"},
    {8, "Reference to Big bet out of limits.\rAcceptable values 6,8"},
    {9, "Reference to Hard bet out of limits.\rAcceptable values 4,6,8,10"},
    {10, "Reference to Hop bet out of limits.\rAcceptable values 11-66 or 1.1-6.6"},
    {kErrorPlaceReference,
     "Inappropriate reference to Place bet.\rAcceptable values Place4, Place5, Place6, Place8, Place9, "
     "Place10"},
    {kErrorCheckStack, "Reference to checkstack out of limits.\rAcceptable values 0-99"},
    {kErrorPlayer, "Reference to player out of limits.\rAcceptable values 1-8"},
    {kErrorSquareRoot, "Can't take square root of negative number."},
    {kErrorAverageBankroll, "Reference to bankroll average out of limits.\rAcceptable values 0-525"},
    {kErrorDie, "Reference to die out of limits.\rAcceptable values 1-2"},
    {kErrorInstr, "Instr starting point out of limits."},
    {kErrorNoWagers, "No resolved wagers recorded for selected timed period."},
    {kErrorNoWins, "No wins recorded for selected timed period."},
    {kErrorNoLosses, "No losses recorded for selected timed period."},
    {kErrorCheckStackName, "Reference to checkstack name out of limits.\rAcceptable values 0-99"},
    {801, "Reference to Left$ function out of limits."},
    {802, "Reference to Right$ function out of limits."},
    {803, "Reference to RemoveLeft$ function out of limits."},
    {804, "Reference to RemoveRight$ function out of limits."},
    {805, "Reference to Mid$ function out of limits."},
    {806, "Reference to RemoveMid$ function out of limits."},
    {809, "Reference to Insert$ function out of limits."},
    {810, "Reference to Str$ function out of limits."},
    {811, "Reference to Chr$ function out of limits."},
    {812, "Reference to Space$ function out of limits."},
    {kErrorPlayerName, "Reference to player name out of limits.\rAcceptable values 1-8"},
    {kErrorNoPlayer, "No player at designated position."},
    {kErrorOtherPlayers,
     "Player not allowed to perform actions for other players.\rSee Options - Permissions."},
    {kErrorNewSession, "Player not allowed to start new sessions.\rSee Options - Permissions."},
    {kErrorProbabilityPermission,
     "Player not allowed to activate/deactivate probability files.\rSee Options - Permissions."},
    {kErrorPassDice,
     "Player is not the shooter and not allowed to pass the dice for the shooter.  See Options - "
     "Permissions."},
    {kErrorRollFilePermission,
     "Player not allowed to activate/deactivate roll files.\rSee Options - Permissions."},
    {kErrorWinHandling, "Reference to AutoHandle Winning Bets out of limits."},
    {kErrorLoseHandling, "Reference to AutoHandle Losing Bets out of limits."},
    {kErrorBankroll,
     "Bankroll can only be set at the beginning of a session.  To make adjustments later, use ATM deposits "
     "and/or withdrawals."},
    {kErrorRollRate, "Rolls per hour value out of limits."},
    {kErrorSeed, "Seed value out of limits."},
    {kErrorGenerator, "Reference to RNG out of limits."},
    {kErrorCompRate, "Comp rate out of limits."},
    {kErrorMessagesOff, "Display of auto-bet messages turned off.\rSee Options menu."},
    {kErrorSoundsOff, "Playing of sounds turned off.\rSee Configure - Sound."},
    {kErrorExtract, "Error extracting string."},
    {kErrorVig, "Vig not referenced to Lay or Buy bet."},
    {kErrorRolls, "Reference to rolls out of limits.\rAcceptable values 1-12 or 1.1-6.6"},
    {kErrorPoints, "Reference to # of points out of limits."},
    {kErrorRollFileClosed, "Dice roll file not open."},
    {kErrorOutputClosed, "Output file not open."},
    {kErrorFileNotFound, "File not found."},
    {kErrorBadPath, "Bad path and/or filename."},
    {kErrorNotRollFile, "File is not a valid dice roll file."},
    {kErrorNotProbabilityFile, "File not found or file is not a valid probability file."},
    {kErrorNoValue, "No value to assign."},
    {kErrorNoString, "No string to assign."},
    {kErrorDivision, "Division by zero."},
};

}  // namespace

std::string ScriptErrorText(int code, const std::string& fault) {
  if (code == kErrorFault) return fault;
  for (const ErrorEntry& entry : kErrors)
    if (entry.code == code) return entry.text;
  return {};
}

bool ScriptFails(Game& game, int code) {
  game.autobet.ScriptError = code;
  return false;
}

bool ScriptFaults(Game& game, const char* text) {
  game.autobet.ScriptFault = text;
  return ScriptFails(game, kErrorFault);
}

std::string StatementText(const std::vector<std::string>& lines, const StatementSpan& span) {
  if (span.line < 1 || static_cast<std::size_t>(span.line) > lines.size()) return {};
  std::string_view text = lines[static_cast<std::size_t>(span.line) - 1];
  if (span.end >= 0) text = text.substr(0, static_cast<std::size_t>(span.end));
  text.remove_prefix(std::min(static_cast<std::size_t>(span.column), text.size()));
  bool quoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    quoted = quoted != (text[i] == '"');
    if (text[i] == '\'' && !quoted) text = text.substr(0, i);
  }
  text = Trimmed(text);
  if (text.starts_with(':')) text = Trimmed(text.substr(1));
  return std::string(text);
}

void NoteScriptError(Game& game, const StatementSpan& span) {
  const AutoBet& autobet = game.autobet;
  SeatScript& script = game.autobet.Scripts[autobet.HotKeyRun ? kNobody : autobet.CurrentAutobettor];
  for (ScriptErrorKind& kind : script.Errors) {
    if (kind.code != autobet.ScriptError) continue;
    if (kind.code == kErrorFault && kind.text != autobet.ScriptFault) continue;
    ++kind.count;
    return;
  }
  script.Errors.push_back({autobet.ScriptError, ScriptErrorText(autobet.ScriptError, autobet.ScriptFault), 1,
                           span.line, StatementText(script.ScriptLines, span)});
}

}  // namespace tessaryn
