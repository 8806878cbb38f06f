// The bankroll graph as a picture: what is on it, taken from the game, and the painting of it, which is the
// same on the screen, on paper and in files.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <vector>

#include "base/table_types.h"
#include "state/graph_state.h"
#include "state/screen_state.h"

class QPainter;

namespace tessaryn {

struct Game;

// The parts that have a colour of their own: ScreenState's GraphColors in this order.
enum GraphPart : int {
  kGraphBackground = 0,
  kGraphText = 1,
  kGraphGrid = 2,
  kGraphStart = 3,  // the bankroll with which the session began
  kGraphBankroll = 4,
  kGraphArea = 5,  // under the bankroll
  kGraphAverage = 6,
  kGraphReference1 = 7,
  kGraphReference2 = 8,
  kGraphPointer = 9,
};
struct GraphColours {
  QColor parts[kGraphColors];
  QColor seats[kSeatRows];  // of those drawn beside the seat of the graph
};
// The user's colours, and the palette's for the rest.
GraphColours GraphColoursOf(const GraphShown& shown, bool dark);

struct GraphCurve {
  SeatId seat = 0;
  QString name;
  std::vector<Currency> points;
};

// One graph, as it was when it was taken. Cells count from 1.
struct GraphPage {
  std::vector<GraphCurve> curves;   // the first is the graph's seat
  std::vector<Currency> averages;   // a value a point; empty when they aren't shown
  std::vector<std::int64_t> rolls;  // the session's roll number of each point
  RollNumber firstRoll = 1;         // that of cell 1
  QString averageCaption;           // "25 roll avg"
  Currency high, current, low;      // of the first curve
  Currency start;                   // what it began the session with
  Currency top = Currency::Dollars(150);
  Currency unit = Currency::Dollars(1);  // the graph is 300 units high
  int references[2] = {0, 0};            // cells 0 to 525
  bool grid = true;
  bool referenceLines = false;
  int style = kGraphSolid;

  int Count() const { return static_cast<int>(rolls.size()); }
  Currency Bottom() const { return Currency::FromRaw(top.raw - kGraphUnits * unit.raw); }
};
enum class WhichPage { kPresent, kPrevious };
GraphPage TakeGraphPage(const Game& game, WhichPage which);

// "1,234.5", as the figures beside the graph are.
QString GraphMoney(Currency value);
// "High:  716  Current:  535  Low:  475"
QString GraphFigures(const GraphPage& page);

// Where everything stands in an area.
struct GraphFrame {
  QRectF plot;      // cells 0 to 525 across, top to bottom
  QRectF legend;    // above it; empty for one curve
  double unit = 1;  // of lines and marks: about a pixel of a screen

  double X(int cell) const { return plot.left() + plot.width() * cell / kPlotCells; }
  double Y(const GraphPage& page, Currency value) const;
  // 0 to 525, the nearest.
  int CellAt(double x) const;
};
GraphFrame FrameOf(const QPainter& painter, const QRectF& area, const GraphPage& page);
// In the painter's font. The painter is left as it was.
void PaintGraph(QPainter& painter, const QRectF& area, const GraphPage& page, const GraphColours& colours);
// Several graphs on one sheet, each with a line of its own above it.
void PaintGraphs(QPainter& painter, const QRectF& area, const std::vector<GraphPage>& pages, int places,
                 const GraphColours& colours);

}  // namespace tessaryn
