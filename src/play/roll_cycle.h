// One roll of the dice, from the shooter's bet to the next bets on the table. The runs that go round it are
// in auto_roll.h.
#pragma once

namespace tessaryn {

struct Game;
struct SessionLuck;

// Whether rolling may begin: bankrolls within their limit, scripts that compile.
bool ReadyToRoll(Game& game);
// Makes one roll and settles everything that hangs on it. False when nothing was rolled, or when nothing more
// may be. luck: counts what came of it; null for none. Requires ReadyToRoll.
bool MakeRoll(Game& game, SessionLuck* luck = nullptr);
// The two parts of MakeRoll, for who has something to do in between: the dice and all that they decide
// (false: nothing was rolled), then the next bets on the table.
bool RollAndSettle(Game& game);
void FinishRoll(Game& game);
// From the fallen dice to the last of what they decided: the end of RollAndSettle, for a copy that was taken
// when the dice were heard.
void SettleDice(Game& game);
// After the last roll: files are brought up to date, and what is shown.
void CloseRolling(Game& game);

}  // namespace tessaryn
