// How much a bet may be: table maximums, odds, vig and amounts that pay without rounding. Nothing here
// changes the table.
#pragma once

#include "rules/payoffs.h"
#include "base/table_types.h"

namespace tessaryn {

struct Game;

// The amounts that win what may be won, each with what it was figured from: to look whether that still holds
// is cheaper than to figure it again. Written by bet_limits.cpp.
struct KeptMaximum {
  Currency limit = Currency::Error();
  Currency unit;
  Currency payTo;
  Currency payPer;
  Currency amount;
  Currency whole;  // the amount in whole betting units
};
struct KeptMaximums {
  // Bets by their numbers, then rows 1 and up of SevenPoint7, Sharp Shooter and Ride The Line.
  KeptMaximum of[kBets + 1 + kSevenPointSevenRows + kSharpShooterRows + kRideTheLineRows];
};

// The most that the seat may have on the bet, in whole betting units, not below 0.
Currency MaxBetFor(const Game& game, int seat, int bet);
// The most odds on a flat amount, by OddsCalcMethod. payTo, payPer: the odds bet's payoff.
Currency MaxOddsFor(const Game& game, int bet, Currency flatAmount, Currency payTo, Currency payPer);
// c brought to a multiple of q; 0 when c / q is a half or less.
std::int64_t OddsChipCount(std::int64_t c, std::int64_t q);
// The vig on an amount of a Buy bet, or of a Lay bet (on what it can win). In whole units.
Currency BuyVigFor(const Game& game, Currency amount);
Currency LayVigFor(const Game& game, int bet, Currency amount);
// The vig on an amount of any bet; 0 for bets without vig. upFront: only if it is charged up front.
Currency VigFor(const Game& game, int bet, Currency amount);
bool VigUpFront(const Game& game, int bet);
// The vig that the seat's bet holds; a reference so that its writers (bet_rules, settlement) share it.
// Requires a Lay or Buy bet.
Currency& VigHeld(Game& game, int seat, int bet);
inline Currency VigHeld(const Game& game, int seat, int bet) {
  return VigHeld(const_cast<Game&>(game), seat, bet);
}
// The change that brings the seat's bet nearest to a multiple of its BetUnit, by ProperOddsMode.
Currency ProperOddsAmount(const Game& game, int seat, int bet, Currency change);
// The minimum of the bet.
Currency MinBetFor(const Game& game, int bet);

}  // namespace tessaryn
