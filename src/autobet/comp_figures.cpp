#include "autobet/comp_figures.h"

#include "config/advantage.h"
#include "config/comps.h"
#include "engine/table_types.h"

namespace tessaryn {

double ExpectedPercent(const Game& game, int bet) { return 100 * FigureAdvantage(game, bet).evPerDecision; }

Currency FigureCompsOf(const Game& game, int scope, int seat) {
  return seat >= 1 && seat <= kSeats ? FigureComps(game, scope, seat).compAmount : kZero;
}

}  // namespace tessaryn
