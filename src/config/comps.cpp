#include "config/comps.h"

#include "config/advantage.h"
#include "engine/game.h"

namespace tessaryn {
namespace {

Currency Wagers(const Game& game, int scope, int seat, int bet, StatKind kind) {
  if (seat > 0) return BetStat(game.stats, kWagerStats, scope, seat, bet, kind);
  Currency sum;
  for (int player = 1; player <= kSeats; ++player)
    sum += BetStat(game.stats, kWagerStats, scope, player, bet, kind);
  return sum;
}

Currency Percent(double amount, Currency rate) {
  return Currency::FromDouble(amount * rate.ToDouble() * 0.01);
}

}  // namespace

Comps FigureComps(const Game& game, int scope, int seat) {
  const Settings& settings = game.settings;
  const bool percentageDice = game.percentage.PercentageDiceActive && !settings.CompUseTrueProbs;
  Comps comps;
  settings.CompBetFlags.ForEach([&](int bet) {
    const Currency wagered = Wagers(game, scope, seat, bet, kStatTotal);
    if (wagered <= kZero) return;
    comps.totalAction += wagered;
    comps.decisions += Wagers(game, scope, seat, bet, kStatCount).ToDouble();
    comps.expectedResult += wagered.ToDouble() * FigureAdvantage(game, bet, percentageDice).evPerDecision;
  });
  comps.rolls = static_cast<double>(PlayerRolls(game.stats, scope, seat));
  if (comps.decisions > 0) {
    const double hours = comps.rolls / settings.SimRollRate.ToDouble();
    comps.averageAction = Currency::FromDouble(comps.totalAction.ToDouble() * hours / comps.decisions);
  }
  switch (settings.CompBase) {
    case 1:
      comps.compAmount = Percent(comps.totalAction.ToDouble(), settings.CompRate);
      break;
    case 2:
      comps.compAmount = Percent(comps.averageAction.ToDouble(), settings.CompRate);
      break;
    default:
      comps.compAmount = Percent(-comps.expectedResult, settings.CompRate);
      break;
  }
  return comps;
}

}  // namespace tessaryn
