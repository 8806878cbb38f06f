// What of the table's state is drawn over the felt, and how.
#pragma once

#include <QPointF>
#include <algorithm>
#include <array>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

struct Game;
class BetPiles;

// Where the dice lie, in table units, and how they are turned.
struct DicePose {
  QPointF Die1{985, 318};
  QPointF Die2{1025, 330};
  double Turn1 = 12;  // degrees
  double Turn2 = -25;
  double Height = 0;  // above the felt, 0 to 1
  int Face1 = 3;
  int Face2 = 4;
};

// A check that fell on the layout as the bank was broken.
struct FallenCheck {
  QPointF Place;  // table units
  int Denomination = 1;
};

// The mark of an open position, in screen units; scale: pixels per table unit.
inline double OpenMarkRadius(double scale) { return std::max(12.0, 11.4 * scale); }

// Checks on their way between the house's bank and a bet, in table units.
struct MovingChecks {
  QPointF From;
  QPointF To;
  std::vector<int> Checks;  // a pile, see check_piles.h
};

// What of the state is shown, and how.
struct TableScene {
  const Game* game = nullptr;
  DicePose dice;
  bool showAmounts = false;  // the amounts of the bets beside the checks
  bool hideBets = false;     // while the bets flash
  bool showDice = true;
  BetId hoverBet = 0;      // the area under the pointer
  bool hoverTakes = true;  // what the next click is meant for may be done there
  BetId refusedBet = 0;    // the area of a bet that was just refused
  BetId focusBet = 0;      // the area with the keyboard's focus
  int focusSide = 0;
  SeatId hoverSeat = 0;  // an open position under the pointer
  // How far the mark of an open position stands off its place, in screen units to the right: where the
  // plate in the corner would cover it. Index by seat.
  std::array<double, kSeatRows> openShift{};
  BetId heldBet = 0;  // a stack of the selected seat that hangs on the pointer
  QPointF heldAt;     // there, on the screen
  bool movingPlayer = false;
  std::vector<FallenCheck> rain;
  std::vector<MovingChecks> moving;
  double movingShare = 1;     // of their way that is behind them, 0 to 1
  int puckFrom = 0;           // the point whose place the puck comes from; 0 its place for OFF
  double puckShare = 1;       // 1: it lies where the state has it
  BetPiles* piles = nullptr;  // not owned; null: checks are always changed for the fewest
};

}  // namespace tessaryn
