// What the script screen does: loading, checking, activating and initialising scripts, logged bets, find and
// replace. Every change of a script stops the run in progress and has all scripts compiled again.
#pragma once

#include <string>
#include <vector>

#include "base/money.h"
#include "base/table_types.h"
#include "state/script_types.h"

namespace tessaryn {

struct Game;

// A check as the screen tells it. The span is brought within the script.
struct ScriptCheck {
  bool ok = false;
  std::string title;
  std::string text;  // "\r" between its lines
  ScriptDiagnostic diagnostic;
};

ScriptCheck CheckLines(const ScriptSurroundings& surroundings, SeatId seat,
                       const std::vector<std::string>& lines, std::vector<int>* nesting = nullptr);
// The script of a seat; on success its nesting is kept.
ScriptCheck CheckScript(Game& game, SeatId seat);

// The lines of seat 0 to 8, with the file that they came from; empty: untitled.
void SetScript(Game& game, SeatId seat, std::vector<std::string> lines, const std::string& fileName);
// False, with the reason, when the file can't be read; the script is then unchanged.
bool OpenScript(Game& game, SeatId seat, const std::string& path, std::string& error);
bool SaveScript(Game& game, SeatId seat, const std::string& path, std::string& error);

// Sets the flag and the master switch alone.
void SetScriptActive(Game& game, SeatId seat, bool active);
void SetAllScriptsActive(Game& game, bool active);
// Closes every seat's script and clears its flag.
void CloseScripts(Game& game);
// With the offer to initialise; seat 0 activates all.
void ActivateScript(Game& game, SeatId seat);
// Compiles if need be and runs the active scripts once as an initialisation. False when one is bad.
bool InitialiseScripts(Game& game);

enum class ScriptPermission { kOthers, kReset, kFiles };
void SetScriptPermission(Game& game, SeatId seat, ScriptPermission permission, bool allowed);

// A bet made by hand as a statement: "bet 10 on passline".
std::string BetStatement(BetId bet, Currency amount);

// --- The log of bets made by hand.
// Notes a bet of a seat as it now stands, when logging is on: "bet 15 on field", or "remove field".
void LogBet(Game& game, SeatId seat, BetId bet);
// Asks whether to save a log that is not saved yet. True for yes.
bool OfferToSaveLoggedBets(Game& game);

}  // namespace tessaryn
