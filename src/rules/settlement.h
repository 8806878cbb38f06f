// The single place where a decided bet moves money, and the fixed order in which bets are decided.
#pragma once

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// Codes of a settlement. 1 does not promise a win: some payoff tables hold losses.
inline constexpr int kFlatLoses = -1;
inline constexpr int kOddsLose = -2;
inline constexpr int kFlatWins = 1;
inline constexpr int kOddsWin = 2;

// Decides the seat's bet. A bet that isn't up or isn't working is passed over, odds apart.
void SettleBet(Game& game, int seat, int code, int bet);
// Fills record 0 of PayoffTable, GrossPayoff and NetPayoff. Either is the error value on an overflow.
void ComputePayoff(Game& game, int seat, int bet, int code, Currency amount);
// An odds bet that was not working when its flat bet was decided.
void SettleOffOdds(Game& game, int seat, int bet);
// Carries a Come (45) or Don't Come (48) bet to its number.
void MoveComeBet(Game& game, int seat, int fromBet, int toBet);

// All bets that the dice on the table decide: the losers, then the winners. Requires that Die1, Die2,
// RollTotal and PointBeforeRoll are set and that the point has moved.
void SettleRoll(Game& game);

}  // namespace tessaryn
