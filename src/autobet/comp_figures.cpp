#include "autobet/comp_figures.h"

#include "engine/game.h"

namespace tessaryn {

// The analysis of the bets is not part of the table yet: until it is there is nothing to read.
double ExpectedPercent(const Game&, int) { return 0; }

Currency FigureCompsOf(const Game& game, int scope, int seat) {
  Currency action;
  double decisions = 0;
  game.settings.CompBetFlags.ForEach([&](int bet) {
    action += BetStat(game.stats, kWagerStats, scope, seat, bet, kStatTotal);
    decisions += BetStat(game.stats, kWagerStats, scope, seat, bet, kStatCount).ToDouble();
  });
  const double rate = game.settings.CompRate.ToDouble() / 100;
  if (game.settings.CompBase == 1) return Currency::FromDouble(action.ToDouble() * rate);
  return kZero;
}

}  // namespace tessaryn
