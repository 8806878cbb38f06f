#include "rules/comps.h"

#include "rules/advantage.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kBaseAction = 1;
constexpr int kBaseActionAndTime = 2;

Currency AmountByBase(const Settings& settings, const Comps& comps) {
  const double share = settings.CompRate.ToDouble() * 0.01;
  switch (settings.CompBase) {
    case kBaseAction:
      return Currency::FromDouble(comps.totalAction.ToDouble() * share);
    case kBaseActionAndTime:
      return Currency::FromDouble(comps.averageAction.ToDouble() * share);
    default:
      return Currency::FromDouble(-comps.expectedResult * share);
  }
}

}  // namespace

Comps FigureComps(const Game& game, ScopeId scope, SeatId seat) {
  const Settings& settings = game.settings;
  Comps comps;
  settings.CompBetFlags.ForEach([&](BetId bet) {
    const Currency wagered = BetStat(game.stats, kWagerStats, scope, seat, bet, kStatTotal);
    if (wagered <= kZero) return;
    comps.totalAction += wagered;
    comps.decisions +=
        BetStat(game.stats, kWagerStats, scope, seat, bet, kStatCount).raw / Currency::kPerDollar;
    const Advantage advantage =
        settings.CompUseTrueProbs ? FigureAdvantage(game, bet, false) : FigureAdvantage(game, bet);
    comps.expectedResult += wagered.ToDouble() * advantage.evPerDecision;
  });
  comps.rolls = PlayerRolls(game.stats, scope, seat);
  // A table of 0 rolls per hour can come from a file; it plays no time.
  if (comps.decisions > 0 && settings.SimRollRate.ToDouble() > 0) {
    const double hours = static_cast<double>(comps.rolls) / settings.SimRollRate.ToDouble();
    comps.averageAction =
        Currency::FromDouble(comps.totalAction.ToDouble() * hours / static_cast<double>(comps.decisions));
  }
  comps.compAmount = AmountByBase(settings, comps);
  return comps;
}

}  // namespace tessaryn
