// What every bet is worth: the house edge under the table's own payoffs, vig, bar number and dice.
#pragma once

#include <string>
#include <vector>

#include "dice/percentage_dice.h"
#include "engine/table_types.h"

namespace tessaryn {

struct Game;

// All per unit of the bet, vig up front being part of what is laid out. Rounded as the Advantage tab shows
// them: six decimals, rollsPerDecision two. All 0 for a bet that these dice never decide.
struct Advantage {
  double evPerRoll = 0;         // per roll of the dice while the bet is up, rolls without a decision included
  double evPerDecision = 0;     // a barred number decides nothing; a one-roll bet is decided on every roll
  double rollsPerDecision = 0;  // mean number of rolls to the decision
  double stdevPerRoll = 0;
  double stdevPerDecision = 0;
};

// The figures of bet 1 to 93 with the dice in force; all 0 for any other number. A bet on a number or a hand
// counts from where it may be made: odds once their point is set, All Small, All Tall, Make All and 4 Rolls
// No 7 with nothing marked, bets 88 and 89 before a come-out roll, bets 91 to 93 before a hand. With
// IncludeZeroOutcomes every roll counts as a decision.
Advantage FigureAdvantage(const Game& game, int bet);
// With percentage dice or fair ones, whichever are in force.
Advantage FigureAdvantage(const Game& game, int bet, bool usePercentageDice);

// The rows of the Advantage tab in their order, each bet once.
struct AdvantageRow {
  int bet;
  std::string caption;  // "Pass/Come 4", "DP/DC 10 Odds", "Passline/Come (c.o.)", "Lay 4" ...
};
const std::vector<AdvantageRow>& AdvantageRows();

// What the bet is expected to make in an hour of SimRollRate rolls, in dollars.
double EvPerHour(const Game& game, const Advantage& advantage, Currency amount);
// The mean time to a decision at SimRollRate rolls an hour, as minutes and seconds: "01:41.4".
std::string TimePerDecisionText(const Game& game, const Advantage& advantage);
// A number of the tab, two decimals: "0.00", "-12.50".
std::string AdvantageNumberText(double value);

}  // namespace tessaryn
