// The table's edge: rail, felt, the seats round it, and the puck's places.
#include <QTransform>
#include <cmath>

#include "shell/table/layout_builder.h"
#include "shell/table/table_layout.h"

namespace tessaryn {

namespace {

// A rounded shape between two heights: corners towards the dealers about (x, 169), towards the players about
// (192, 344), and their mirrors.
struct Edge {
  double left;
  double top;
  double bottom;
  double upperX;  // the centre of the upper corner
};

QPainterPath EdgePath(const Edge& edge) {
  const double upper = 169 - edge.top;
  const double lower = edge.bottom - 344;
  const auto square = [](double x, double y, double radius) {
    return QRectF(x - radius, y - radius, 2 * radius, 2 * radius);
  };
  const double right = 2 * kTableMiddle - edge.left;
  QPainterPath path;
  path.moveTo(edge.upperX, edge.top);
  path.lineTo(2 * kTableMiddle - edge.upperX, edge.top);
  path.arcTo(square(2 * kTableMiddle - edge.upperX, 169, upper), 90, -90);
  path.lineTo(right, 344);
  path.arcTo(square(right - lower, 344, lower), 0, -90);
  path.lineTo(edge.left + lower, edge.bottom);
  path.arcTo(square(edge.left + lower, 344, lower), 270, -90);
  path.lineTo(edge.left, 169);
  path.arcTo(square(edge.upperX, 169, upper), 180, -90);
  path.closeSubpath();
  return path;
}

// Seats 1 to 4; 8 to 5 are their mirrors. Stacks stand in a row from the first on; those at the lower rail
// between the plates of the players, so that none is covered.
struct Stand {
  QPointF spot;
  QPointF rail;
  QPointF out;
  QPointF firstStack;
  QPointF stackStep;
};
constexpr Stand kStands[4] = {{{26, 76}, {9, 62}, {-0.81, -0.58}, {-16, 190}, {0, -23}},
                              {{-12, 356}, {-16, 340}, {-1, 0}, {-16, 308}, {0, -23}},
                              {{160, 550}, {160, 549}, {-0.17, 0.985}, {294, 552}, {20, 0}},
                              {{425, 550}, {425, 552}, {0, 1}, {548, 552}, {20, 0}}};

}  // namespace

void PlaceSeats(TableLayout& layout) {
  for (int n = 0; n < 4; ++n) {
    const Stand& stand = kStands[n];
    SeatPlace& left = layout.Seats[1 + n];
    left.Spot = stand.spot;
    left.Rail = stand.rail;
    left.Out = stand.out;
    SeatPlace& right = layout.Seats[8 - n];
    right.Spot = QPointF(1248 - left.Spot.x(), left.Spot.y());
    right.Rail = LayoutMirror().map(left.Rail);
    right.Out = QPointF(-left.Out.x(), left.Out.y());
    for (int stack = 0; stack < 4; ++stack) {
      left.Stacks[stack] = stand.firstStack + stand.stackStep * stack;
      right.Stacks[stack] = LayoutMirror().map(left.Stacks[stack]);
    }
  }
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    SeatPlace& place = layout.Seats[seat];
    place.Along = QPointF(place.Out.y(), -place.Out.x());
  }
}

QPointF VisibleStackPlace(const SeatPlace& place, int index) { return place.Stacks[index]; }

void PlaceVisibleStacks(TableLayout& layout, SeatId seat, const int (&stacks)[4]) {
  for (int stack = 0; stack < kCheckStacks; ++stack) {
    layout.CheckX(seat, kFirstCheckStack + stack) = 0;
    layout.CheckY(seat, kFirstCheckStack + stack) = 0;
  }
  for (int n = 0; n < 4; ++n) {
    const QPointF point = VisibleStackPlace(layout.Seats[seat], n);
    layout.CheckX(seat, kFirstCheckStack + stacks[n]) = static_cast<int>(std::lround(point.x()));
    layout.CheckY(seat, kFirstCheckStack + stacks[n]) = static_cast<int>(std::lround(point.y()));
  }
}

QRectF WellsOf(int seat) {
  const Stand& stand = kStands[seat <= 4 ? seat - 1 : 8 - seat];
  const QPointF last = stand.firstStack + stand.stackStep * 3;
  const QRectF wells = QRectF(stand.firstStack, last)
                           .normalized()
                           .adjusted(-kStackReach, -kStackReach, kStackReach, kStackReach);
  return seat <= 4 ? wells : LayoutMirror().mapRect(wells);
}

QPainterPath RailOutline() { return EdgePath({-38, -20, 574, 151}); }

QPainterPath WallOutline() { return EdgePath({-2, 2, 536, 165}); }

QPainterPath FeltOutline() { return EdgePath({4.4, 6, 530, 167.4}); }

QPointF PuckPlace(int point, int side) {
  constexpr double kHeight = 19;
  if (point == 0) return side == 1 ? QPointF(214, kHeight) : QPointF(2 * kTableMiddle - 214, kHeight);
  const double columns = side == 1 ? kLeftColumns : kRightColumns;
  return {columns + (BoxPosition(point) + 0.5) * kColumnWidth, kHeight};
}

}  // namespace tessaryn
