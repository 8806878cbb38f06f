// How the stacks on the felt, their totals and their markers stand so that they can be read.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <vector>

#include "shell/table/check_piles.h"
#include "shell/table/table_layout.h"
#include "shell/table/table_scene.h"
#include "shell/table/table_view.h"

namespace tessaryn {

// A stack with what it bears, in screen units. An empty rectangle: it bears none of that.
struct StandingStack {
  SeatId Seat = 0;
  BetId Bet = 0;
  Currency Amount;
  CheckPile Checks;
  QPointF Base;        // the middle of its lowest check
  QPointF Face;        // the middle of its uppermost
  bool Faint = false;  // another stands over its face: at 60%, with nothing on it
  bool Off = false;    // off by default on the come-out: at 60%
  QRectF Badge;        // its total
  QString BadgeText;
  QRectF Tab;  // BUY or LAY; of a CheckStack below zero its minus
  QString TabText;
  QRectF Call;  // round: called ON or OFF
  bool CalledOn = false;
};

// The disc of a check that bears its value, as a share of the check's diameter: nothing stands on it.
inline constexpr double kFaceShare = 0.68;

// The height of the capitals of totals and markers, in screen units.
double MarkCap(double scale);

// From a point to the line from a stack's lowest check up to its uppermost.
double ApartFromStack(QPointF point, const StandingStack& stack);

// All stacks from the back to the front. Of those that stand too close to one another the selected player's
// are in front. Totals of stacks of several checks, or with showAmounts of all.
std::vector<StandingStack> ArrangeStacks(const TableScene& scene, const TableLayout& layout,
                                         const TableView& view);

}  // namespace tessaryn
