// The layout of the felt in table units: outlines of the bet areas, their lettering, and where each seat's
// checks stand. One list serves the drawing and the hit map.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <vector>

#include "shell/table/table_areas.h"
#include "shell/table/table_lettering.h"

namespace tessaryn {

struct Settings;
struct PayoffTables;
struct TableState;

// In screen units, for so many of them to a table unit; a small table keeps checks, dice and puck readable.
constexpr double CheckDiameter(double scale) { return scale * kCheckUnits < 20 ? 20 : scale * kCheckUnits; }
constexpr double DieSide(double scale) { return scale * 33 < 27 ? 27 : scale * 33; }
constexpr double PuckDiameter(double scale) { return scale * 29 < 23 ? 23 : scale * 29; }

// The layout of a table with these rules: families that the house doesn't offer leave their places empty, and
// the lettering tells the payoffs in force. Its lettering is still to be fitted.
TableLayout BuildTableLayout(const Settings& settings, const PayoffTables& payoffs);
// The end of a seat: 1 or 2.
constexpr int SideOf(SeatId seat) { return seat <= 4 ? 1 : 2; }
// Whether others have up what stands in the area of the bet at the seat's end, all in places of one size with
// a single stack's.
bool SharesArea(const TableLayout& layout, const TableState& table, SeatId seat, BetId bet);
// Where a seat's stack on a bet stands now, with what others have up in its area.
QPointF StackPlace(const TableLayout& layout, const TableState& table, SeatId seat, BetId bet);
// Puts the CheckStacks that a seat shows to their four places at its rail. Stacks not shown have none (0, 0).
void PlaceVisibleStacks(TableLayout& layout, SeatId seat, const int (&stacks)[4]);
QPointF VisibleStackPlace(const SeatPlace& place, int index);
inline constexpr double kStackReach = 10;  // round such a place, in table units, is the stack's
// All four of them, in table units.
QRectF WellsOf(int seat);

// The outline of the table's outer edge, and of the felt within the rail.
QPainterPath RailOutline();
QPainterPath FeltOutline();
// The dark wall between them, from the rail down to the felt.
QPainterPath WallOutline();

// Where the puck lies: at the box of a point, on either end; or OFF.
QPointF PuckPlace(int point, int side);

}  // namespace tessaryn
