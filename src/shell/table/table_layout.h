// The layout of the felt in table units: outlines of the bet areas, their lettering, and where each seat's
// checks stand. One list serves the drawing and the hit map.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <vector>

#include "base/table_types.h"
#include "shell/table/table_lettering.h"

namespace tessaryn {

struct Settings;
struct PayoffTables;
struct TableState;

// What an area is set off from the felt by.
enum class Ground { kFelt, kDark, kMiddle, kHead, kSide, kSideHead, kUnused };

struct TableArea {
  int Id = 0;    // the bet; 13 to 18 and 31 to 36 serve others too, see HitTest
  int Side = 0;  // 0 the middle, 1 the end of seats 1 to 4, 2 the end of seats 5 to 8
  QPainterPath Outline;
  Ground Fill = Ground::kFelt;
  bool Gold = false;  // a gold edge
  bool Edged = true;  // else it is one of two halves within an edge of Lines
  std::vector<TableLabel> Labels;
};

// Lettering over a group of areas, which is no area itself.
struct TableHeading {
  QRectF Box;
  Ground Fill = Ground::kHead;
  std::vector<TableLabel> Labels;
};

// A line of the felt that is no area's edge.
struct FeltLine {
  QPainterPath Path;
  bool Dashed = false;
};

// A place that shows how far a bet on a whole hand has come.
enum class Progress { kNumber, kPoint, kRoll, kCount };
struct TableMark {
  Progress Kind = Progress::kNumber;
  int Bet = 0;
  int Number = 0;  // kNumber the number rolled, kPoint 0 to 5 by point, kRoll which roll, from 0
  QRectF Box;
  TableLabel Label;  // kNumber: as it is written over the gold
};

// Where a seat stands at the rail.
struct SeatPlace {
  QPointF Spot;       // outside of the rail
  QPointF Rail;       // the middle of the rail before the seat
  QPointF Along;      // unit vector along the rail, rightwards as the player sees it
  QPointF Out;        // unit vector away from the table
  QPointF Stacks[4];  // where the visible CheckStacks stand
};

struct TableLayout {
  std::vector<TableArea> Areas;
  std::vector<TableHeading> Headings;
  std::vector<FeltLine> Lines;
  std::vector<TableMark> Marks;
  // Where each seat's checks stand on each bet; bets 1 to 93 and CheckStacks. In the row of seat 0 the place
  // of the bet itself, from which those of the seats are set off.
  SeatBetTable<int> CheckX;
  SeatBetTable<int> CheckY;
  // By side and bet: where a stack stands that has its area to itself. (0, 0): as with others in it.
  QPointF Alone[3][kBets + 1];
  SeatPlace Seats[kSeatRows];
  double FittedFor = 0;  // the scale for which the lettering was fitted; written by FitLettering
};

inline constexpr double kCheckUnits = 26;    // the diameter of a check in table units, see CheckDiameter
inline constexpr double kLeftColumns = 240;  // where the six boxes begin, on either side
inline constexpr double kRightColumns = 683;
inline constexpr double kColumnWidth = 54;
inline constexpr double kTableMiddle = 623.5;  // the mirror line of the two ends

// In screen units, for so many of them to a table unit; a small table keeps checks, dice and puck readable.
constexpr double CheckDiameter(double scale) { return scale * kCheckUnits < 20 ? 20 : scale * kCheckUnits; }
constexpr double DieSide(double scale) { return scale * 33 < 27 ? 27 : scale * 33; }
constexpr double PuckDiameter(double scale) { return scale * 29 < 23 ? 23 : scale * 29; }

// The layout of a table with these rules: families that the house doesn't offer leave their places empty, and
// the lettering tells the payoffs in force. Its lettering is still to be fitted.
TableLayout BuildTableLayout(const Settings& settings, const PayoffTables& payoffs);
// The end of a seat: 1 or 2.
constexpr int SideOf(int seat) { return seat <= 4 ? 1 : 2; }
// Where a seat's stack on a bet stands now, with what others have up in its area.
QPointF StackPlace(const TableLayout& layout, const TableState& table, int seat, int bet);
// Puts the CheckStacks that a seat shows to their four places at its rail. Stacks not shown have none (0, 0).
void PlaceVisibleStacks(TableLayout& layout, int seat, const int (&stacks)[4]);
QPointF VisibleStackPlace(const SeatPlace& place, int index);
inline constexpr double kStackReach = 11;  // round such a place, in table units, is the stack's

// The outline of the table's outer edge, and of the felt within the rail.
QPainterPath RailOutline();
QPainterPath FeltOutline();
// The dark wall between them, from the rail down to the felt.
QPainterPath WallOutline();

// Where the puck lies: at the box of a point, on either end; or OFF.
QPointF PuckPlace(int point, int side);

}  // namespace tessaryn
