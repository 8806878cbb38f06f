// What scripts read of the table's analysis: the worth of a bet, and the comps of a player.
#pragma once

#include "engine/money.h"

namespace tessaryn {

struct Game;

// The expected result of a decided bet in percent of the wager, below 0 where the house has the edge.
double ExpectedPercent(const Game& game, int bet);
// The comps earned in a scope.
Currency FigureCompsOf(const Game& game, int scope, int seat);

}  // namespace tessaryn
