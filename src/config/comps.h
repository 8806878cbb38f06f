// What a casino would give back for the play so far.
#pragma once

#include "engine/money.h"

namespace tessaryn {

struct Game;

// The bases of CompBase as the Comps tab lists them.
inline constexpr const char* kCompBaseCaptions[3] = {" Theoretical house vig", " Total comp action",
                                                     " Average comp action and time"};

struct Comps {
  Currency compAmount;        // below 0 for a player who is ahead in theory, on the first base
  Currency totalAction;       // wagered on the bets that count
  double decisions = 0;       // of these bets
  double rolls = 0;           // that the seat has seen in the scope
  double expectedResult = 0;  // dollars
  Currency averageAction;     // action at any time of the simulated hours
};

// The comps of a seat (0 the table as a whole) in a scope of the statistics. With CompUseTrueProbs the
// analysis takes fair dice, whatever dice are in force. Money that doesn't fit is the error value.
Comps FigureComps(const Game& game, int scope, int seat);

}  // namespace tessaryn
