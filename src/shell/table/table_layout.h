// The layout of the felt in table units: outlines of the bet areas, their lettering, and where each seat's
// checks stand. One list serves the drawing and the hit map.
#pragma once

#include <QFont>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

struct Settings;
struct PayoffTables;

// The inks of the lettering; TableColors gives each its colour.
enum class Ink { kLine, kLetter, kAccent, kSoft };

// Lettering, or two dice, inside an area. Drawn as large as its box allows.
struct TableLabel {
  QString Text;
  QRectF Box;           // before the turn; its centre stays
  double Rotation = 0;  // degrees clockwise
  Ink Colour = Ink::kLetter;
  int Die1 = 0;  // above 0: dice instead of the text
  int Die2 = 0;
  bool Ring = false;     // a ring round the text
  QPainterPath Outline;  // of the lettering; written by BuildTableLayout
};

struct TableArea {
  int Id = 0;    // the bet; 13 to 18 and 31 to 36 serve others too, see HitTest
  int Side = 0;  // 0 the middle, 1 the end of seats 1 to 4, 2 the end of seats 5 to 8
  QPainterPath Outline;
  std::vector<TableLabel> Labels;
};

// Where a seat stands at the rail.
struct SeatPlace {
  QPointF Spot;   // outside of the rail
  QPointF Rail;   // the middle of the rail before the seat
  QPointF Along;  // unit vector along the rail, rightwards as the player sees it
  QPointF Out;    // unit vector away from the table
};

struct TableLayout {
  std::vector<TableArea> Areas;
  SeatBetTable<int> CheckX;  // where each seat's checks stand on each bet; bets 1 to 93 and CheckStacks
  SeatBetTable<int> CheckY;
  SeatPlace Seats[kSeatRows];
};

inline constexpr double kCheckUnits = 15;    // the diameter of a check in table units
inline constexpr double kLeftColumns = 240;  // where the six boxes begin, on either side
inline constexpr double kRightColumns = 683;
inline constexpr double kColumnWidth = 54;
inline constexpr double kTableMiddle = 623.5;  // the mirror line of the two ends

// The layout of a table with these rules: families that the house doesn't offer leave their places empty, and
// the lettering tells the payoffs in force.
TableLayout BuildTableLayout(const Settings& settings, const PayoffTables& payoffs);
// Puts the CheckStacks that a seat shows to their four places at its rail. Stacks not shown have none (0, 0).
void PlaceVisibleStacks(TableLayout& layout, int seat, const int (&stacks)[4]);
QPointF VisibleStackPlace(const SeatPlace& place, int index);

// The outline of the table's outer edge, and of the felt within the rail.
QPainterPath RailOutline();
QPainterPath FeltOutline();

// Where the puck lies: at the box of a point, on either end; or OFF.
QPointF PuckPlace(int point, int side);

// The family of the lettering; "Arial" until another is set, before the first layout is built.
inline constexpr const char* kDefaultTableFont = "Arial";
void SetTableFont(const QString& family);
// The user's own instead of it; empty for none.
void SetLetteringFont(const QString& family);
QFont TableFont(bool bold, double pixels);

// Lettering as an outline, as large as its box allows, turned. The painter and the checks on the layout both
// take it from here.
QPainterPath LabelOutline(const TableLabel& label);
// The square that each of the label's dice fills: its centre (first, second) and side.
struct LabelDice {
  QPointF First;
  QPointF Second;
  double Side = 0;
};
LabelDice PlaceLabelDice(const TableLabel& label);

}  // namespace tessaryn
