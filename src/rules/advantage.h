// What every bet is worth under the rules, payoffs and dice in force.
#pragma once

#include <string>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// Per unit laid out. A decision is a roll, or a stretch of rolls, that ends with a win or a loss; figures
// per roll are per roll of the dice, waiting and point phases included.
struct Advantage {
  double evPerRoll = 0;
  double evPerDecision = 0;
  double rollsPerDecision = 0;
  double stdevPerRoll = 0;
  double stdevPerDecision = 0;
};

// Rows beside the 93 bets: the come-out roll alone of the line and Come bets.
inline constexpr int kPassComeOutRow = 101;
inline constexpr int kDontComeOutRow = 102;

// The figures, rounded as they are shown: six decimals, rolls to two. All 0 for a bet that the dice in
// force can never decide, and for a number that is no bet.
Advantage FigureAdvantage(const Game& game, BetId bet);
// With percentage dice or with fair ones, whatever is in force.
Advantage FigureAdvantage(const Game& game, BetId bet, bool usePercentageDice);
// Likewise, with or without rolls that leave the bet in place counted as decisions.
Advantage FigureAdvantage(const Game& game, BetId bet, bool usePercentageDice, bool includeZeroOutcomes);

struct AdvantageRow {
  BetId bet = 0;        // 1 to 93, or one of the rows above
  std::string caption;  // "Pass/Come 4", "Passline/Come (c.o.)", "Field" ...
  Advantage figures;
};
// Every row, in the order in which they are listed.
std::vector<AdvantageRow> AdvantageTable(const Game& game);

}  // namespace tessaryn
