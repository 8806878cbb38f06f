// What a casino would give back for the play so far.
#pragma once

#include "base/table_types.h"

namespace tessaryn {

struct Game;

struct Comps {
  Currency compAmount;         // by CompBase; not clamped: play that is ahead in theory gives less than 0
  Currency totalAction;        // wagered on the bets that count
  std::int64_t decisions = 0;  // of those bets
  std::int64_t rolls = 0;      // of the scope
  double expectedResult = 0;   // in dollars, below 0 for the house's advantage
  Currency averageAction;      // action and time
};

// The comps of a seat 1 to 8 in a scope 0 to 4.
Comps FigureComps(const Game& game, ScopeId scope, SeatId seat);

}  // namespace tessaryn
