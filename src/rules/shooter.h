// Whose the dice are, and to whom they go.
#pragma once

#include "base/table_types.h"

namespace tessaryn {

struct Game;
struct TableState;

enum PassReason : int { kPassAfterSevenOut = 0, kPassByUser = 1, kPassShooterLeft = 2 };

// The dice go on, downwards. A user's call says why they can't.
void PassDice(Game& game, int reason);
// The next occupied seat from a seat on, downwards; 0 when there is none but itself.
SeatId NextOccupied(const TableState& table, SeatId seat);

}  // namespace tessaryn
