// The closing bankrolls, roll by roll: 525 points across, a previous page behind them, a scale that can
// follow the curve. A roll only puts its row down; averages and extremes are worked out when somebody looks.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

inline constexpr int kPlotCells = 525;
inline constexpr int kPlotRows = 2 * kPlotCells;
// The graph is so many units high, in steps of 50.
inline constexpr int kGraphUnits = 300;
inline constexpr int kGraphStep = 50;

enum PlotTypes : int { kPlotPage = 0, kPlotScroll = 1 };
inline constexpr const char* kPlotTypeCaptions[2] = {"Page", "Scroll"};
enum ScaleModes : int { kScaleManual = 0, kScaleShift = 1, kScaleExpanding = 2, kScaleSnapBack = 3 };
inline constexpr const char* kScaleModeCaptions[4] = {
    "&Manual", "Auto-&shift ", "Auto-shift with &expanding scale", "Auto-shift with s&nap-back scale"};

// One roll of the graph. Row cells: seat 0 the session's roll number, in whole dollars; 1 to 8 the bankrolls.
struct PlotRow {
  Currency cells[kSeatRows];
};

struct BankrollGraph {
  // --- The points. Written by PlotRoll, ClearBankrollGraph and LoadBankrollPlot; a change of seats moves
  // them too, and then calls BankrollPlotChanged.
  PlotRow Rows[kPlotRows];  // a ring; the newest stands before Next
  int Next = 0;
  std::int64_t PlotPoints = 0;   // points since the graph was cleared
  int PlotCount = 0;             // points on the graph, 0 to 525
  std::int64_t PagesFilled = 0;  // full pages so far; the last one is the previous page
  // --- Choices of the user. PlotSeat is written by SelectPlotSeat.
  int PlotSeat = 1;
  int PlotType = kPlotPage;
  int ScaleMode = kScaleShift;
  int MovingAverageRolls = 0;  // 0 to 525; 0 all rolls of the session
  int RefRoll1 = 0;            // cell numbers of the reference lines, 0 to 525
  int RefRoll2 = 0;
  bool DisplayGridLines = true;
  bool DisplayRefLines = false;
  bool DisplayAverage = false;
  // --- The scale. Written by the procedures below.
  Currency ScaleUnit = Currency::Dollars(1);   // of the labels -150 to 150; from 0.01 to 1,000,000
  Currency ScaleBase = Currency::Dollars(1);   // the user's, to which snap-back returns
  Currency ScaleTop = Currency::Dollars(150);  // the bankroll at the top of the graph
  Currency ScaleBottom = Currency::Dollars(-150);
  Currency ScaleCentre;  // what the scale was last centred on
  // Extremes of PlotSeat over the plotted cells, and the last point (from 1) at which they were reached.
  Currency ShownHigh;
  Currency ShownLow;
  std::int64_t HighPoint = 0;
  std::int64_t LowPoint = 0;
};

// Takes the roll that just closed.
void PlotRoll(Game& game);
// All points away.
void ClearBankrollGraph(Game& game);
// The points of a saved graph, oldest first: at most 1050, of which the last plotCount (0 to 525) are on the
// graph.
void LoadBankrollPlot(Game& game, std::span<const PlotRow> points, int plotCount);
// To be called when rows were changed by anything but the procedures here.
void BankrollPlotChanged(Game& game);

// The cells. 1 to 525 are the points on the graph, 526 to 1050 those before them, 1050 the latest; seat 0 the
// roll numbers. Zero where no point is.
Currency BankrollPlot(const Game& game, int seat, int cell);
bool HasPlotCell(const Game& game, int cell);
// The highest and lowest bankroll of a seat on the graph; its bankroll when nothing is plotted.
struct PlotExtremes {
  Currency PlotHigh;
  Currency PlotLow;
};
PlotExtremes ExtremesOf(const Game& game, int seat);

// The mean of the last rolls bankrolls up to a cell, as far as there are points; with rolls below 1 the mean
// of the session so far, its beginning included. More than 525 rolls count as 525.
Currency MovingAverage(const Game& game, int seat, int cell, int rolls);
// The average at a cell with MovingAverageRolls, and at all cells 1 to PlotCount in one go.
Currency BankrollAverage(const Game& game, int seat, int cell);
using PlotAverages = std::array<Currency, kPlotCells + 1>;
void RecomputeAverages(const Game& game, int seat, PlotAverages& averages);
// The dialog; 0 to 525 whole rolls. Cancel changes nothing.
void SetMovingAverage(Game& game);
// "40 roll avg", "All rolls avg".
std::string MovingAverageCaption(const BankrollGraph& graph);

// The scale brought to the curve by ScaleMode. recentre: on the seat's bankroll, or on what the reference
// lines mark; a manual scale moves by this alone.
void ResetBankrollGraph(Game& game, bool recentre);
// Requires 1 <= seat <= 8.
void SelectPlotSeat(Game& game, int seat);
// The buttons: the graph up or down by so many steps of 50 units, the unit along 1, 2, 4, 10, 20, 40, 100 ...
void ShiftScale(Game& game, int steps);
void StepScaleUnit(Game& game, int steps);
// The unit that follows, up or down; the same at the ends.
Currency NextScaleUnit(Currency unit, bool up);

// What the reference lines read. A line is on the graph when its cell has a point.
struct ReferenceFigures {
  bool shown1 = false;
  bool shown2 = false;
  Currency bankroll1;
  Currency bankroll2;
  int rollsDif = 0;  // second less first, when both are shown
  Currency bankrollDif;
};
// which: 1 or 2. A cell beyond the graph is brought to its nearest end.
void SetReferenceRoll(Game& game, int which, int cell);
ReferenceFigures ReferencesOf(const Game& game);

}  // namespace tessaryn
