// The bets of the last roll made again.
#pragma once

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// What the seat had up as the dice were last thrown, and hasn't now.
BetSet BetsToRepeat(const Game& game, SeatId seat);
// Asks for each of them as a click does, flat bets before their odds; those that the table doesn't take now
// are left out. Where it takes none of them, the first is asked for all the same, to be told why. Returns how
// many were made.
int RepeatBets(Game& game, SeatId seat);

}  // namespace tessaryn
