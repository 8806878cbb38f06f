// What one roll makes of a bet: the ground on which the worth of a bet and of several bets together stand.
#pragma once

#include "base/table_types.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"

namespace tessaryn {

struct Game;

// The dice as probabilities, by faces and by total.
struct DiceOdds {
  double cell[7][7] = {};
  double total[13] = {};
};

// With percentage dice or fair ones.
DiceOdds OddsInForce(const Game& game, bool percentageDice);
// Brought to a sum of 1: a chain of rolls must end somewhere.
DiceOdds Normalised(const DiceOdds& odds);

double Ratio(const PayoffRecord& record);

struct Case {
  const Game& game;
  const DiceOdds& odds;

  double Pays(BetId bet) const;
  double Total(int total) const { return odds.total[total]; }
};

// Decided by the point, on the line or of their own; line odds among them.
constexpr bool IsLineFamily(BetId bet) { return FamilyRowOf(bet).decidedBy == DecidedBy::kLine; }
constexpr bool IsLineOdds(BetId bet) { return IsLineFamily(bet) && IsOdds(bet); }
// Marks, counts and bets on a hand.
constexpr bool IsLongBet(BetId bet) { return FamilyRowOf(bet).decidedBy == DecidedBy::kHand; }
// Every roll decides it.
constexpr bool IsOneRollBet(BetId bet) { return FamilyRowOf(bet).decidedBy == DecidedBy::kOneRoll; }

// All results are per unit laid out; 0 for a roll that leaves the bet in place.
// Of a bet that is neither of the line family nor long.
double ResultOnRoll(const Case& c, BetId bet, int die1, int die2);
// Of the Pass Line or Come bet, or of the Don't side, with a point of 4 to 10 or 0 before it is set.
double LineResult(const Case& c, bool pass, int point, int total);
// Of the odds behind it; 0 without a point.
double LineOddsResult(const Case& c, bool pass, int point, int total);
using LineResultOf = double (*)(const Case& c, bool pass, int point, int total);

}  // namespace tessaryn
