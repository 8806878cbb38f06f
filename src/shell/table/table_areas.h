// What the felt consists of, in table units: areas, headings, lines, lettering, and where checks stand.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

// The inks of the lettering; TableColors gives each its colour.
enum class Ink { kLetter, kAccent, kSoft, kDark };

// One wording of a caption as an outline: capitals 1 high, from the origin to the right.
struct LabelWording {
  QPainterPath Path;
  double Width = 0;
};

// Lettering, or two dice, inside an area.
struct TableLabel {
  QString Text;
  QRectF Box;           // before the turn; its centre stays
  double Rotation = 0;  // degrees clockwise
  Ink Colour = Ink::kLetter;
  double Cap = 0;       // the height of its capitals as it should be; 0: as high as the box
  QStringList Shorter;  // what stands there instead where the text is too wide, the longest first
  bool Left = false;    // at the box's left edge rather than in its middle
  int Die1 = 0;         // above 0: dice instead of the text
  int Die2 = 0;
  bool Ring = false;                   // a ring as high as the box round the text
  double Narrowest = 1;                // the share of its width that the text may shrink to before it goes
  std::vector<LabelWording> Wordings;  // the text and what is shorter; written by BuildTableLayout
  QPainterPath Outline;                // of what stands there, empty for nothing; written by FitLettering
  double FittedCap = 0;                // the height of its capitals in table units; likewise
};

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
  BetId Bet = 0;
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

}  // namespace tessaryn
