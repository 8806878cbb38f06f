// What several bets together are expected to bring, and how far an hour of them strays from it.
#pragma once

#include <map>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

using BetAmounts = std::map<BetId, double>;  // dollars by bet 1 to 93

struct BetsTogether {
  double evPerHour = 0;
  double stdevPerHour = 0;
  BetId unknownBet = 0;  // not 0: what this bet has in common with the others can't be told, nor the spread
  bool waitsForPoint = false;  // among them is a bet that needs a point, and counts while there is one
};

// At SimRollRate. A bet alone is up on every roll, and its figures are those of FigureAdvantage. Several are
// played side by side as the table has it: the line from come-out to decision, its odds while a point is on,
// one Come or Don't Come bet at a time made while a point is on, and every other bet up on each roll. What a
// roll makes of all of them is one result, so that what they have in common is in the spread.
BetsTogether FigureBetsTogether(const Game& game, const BetAmounts& amounts);

}  // namespace tessaryn
