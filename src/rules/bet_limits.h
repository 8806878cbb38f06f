// How much a bet may be: table maximums, odds, vig and amounts that pay without rounding. Nothing here
// changes the table.
#pragma once

#include "base/table_types.h"
#include "rules/payoffs.h"
#include "state/vig.h"

namespace tessaryn {

struct Game;

// The most that the seat may have on the bet, in whole betting units, not below 0.
Currency MaxBetFor(const Game& game, int seat, int bet);
// The most odds on a flat amount, by OddsCalcMethod. payTo, payPer: the odds bet's payoff.
Currency MaxOddsFor(const Game& game, int bet, Currency flatAmount, Currency payTo, Currency payPer);
// c brought to a multiple of q; 0 when c / q is a half or less.
std::int64_t OddsChipCount(std::int64_t c, std::int64_t q);
// The vig on an amount of a Buy bet, or of a Lay bet (on what it can win). In whole units.
Currency BuyVigFor(const Game& game, Currency amount);
Currency LayVigFor(const Game& game, int bet, Currency amount);
// The vig on an amount of any bet; 0 for bets without vig.
Currency VigFor(const Game& game, int bet, Currency amount);
// The change that brings the seat's bet nearest to a multiple of its BetUnit, by ProperOddsMode.
Currency ProperOddsAmount(const Game& game, int seat, int bet, Currency change);
// The minimum of the bet.
Currency MinBetFor(const Game& game, int bet);

}  // namespace tessaryn
