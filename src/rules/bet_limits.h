// How much a bet may be: table maximums, odds, vig and amounts that pay without rounding. Nothing here
// changes the table.
#pragma once

#include "base/table_types.h"
#include "rules/payoffs.h"
#include "state/vig.h"

namespace tessaryn {

struct Game;

// The most that the seat may have on the bet, in whole betting units, not below 0. Requires bet 1 to 93.
Currency MaxBetFor(const Game& game, SeatId seat, BetId bet);
// The vig on an amount of the bet, in whole units: of a Lay bet on what it can win; 0 for bets without vig.
Currency VigFor(const Game& game, BetId bet, Currency amount);
// The change that brings the seat's bet nearest to a multiple of its BetUnit, by ProperOddsMode.
Currency ProperOddsAmount(const Game& game, SeatId seat, BetId bet, Currency change);
// The minimum of the bet. Requires bet 1 to 93.
Currency MinBetFor(const Game& game, BetId bet);

}  // namespace tessaryn
