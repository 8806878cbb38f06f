// The single place where a decided bet moves money, and the fixed order in which bets are decided.
#pragma once

namespace tessaryn {

struct Game;

// All bets that the dice on the table decide: the losers, then the winners. Requires that Die1, Die2,
// RollTotal and PointBeforeRoll are set and that the point has moved.
void SettleRoll(Game& game);

}  // namespace tessaryn
