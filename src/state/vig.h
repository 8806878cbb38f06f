// The vig that Lay and Buy bets hold, and when it is charged.
#pragma once

#include "base/bet_catalogue.h"
#include "state/game.h"

namespace tessaryn {

inline bool VigUpFront(const Game& game, BetId bet) {
  return (IsLay(bet) && game.settings.LayVigUpFront) || (IsBuy(bet) && game.settings.BuyVigUpFront);
}

// The vig that the seat's bet holds; a reference so that its writers (bet_rules, settlement) share it.
// Requires a Lay or Buy bet.
inline Currency& VigHeld(Game& game, SeatId seat, BetId bet) {
  return IsLay(bet) ? game.table.seats[seat].LayVigHeld[bet - kLay4]
                    : game.table.seats[seat].BuyVigHeld[bet - kBuy4];
}
inline Currency VigHeld(const Game& game, SeatId seat, BetId bet) {
  return VigHeld(const_cast<Game&>(game), seat, bet);
}

}  // namespace tessaryn
