// The closing bankrolls, roll by roll: 525 points across, a previous page behind them, and the choices of
// the user about them.
#pragma once

#include <cstdint>

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

inline constexpr int kPlotCells = 525;
inline constexpr int kPlotRows = 2 * kPlotCells;
// The graph is so many units high, in steps of 50.
inline constexpr int kGraphUnits = 300;
inline constexpr int kGraphStep = 50;

enum PlotTypes : int { kPlotPage = 0, kPlotScroll = 1 };
inline constexpr const char* kPlotTypeCaptions[2] = {"Page", "Scroll"};
enum ScaleModes : int { kScaleManual = 0, kScaleShift = 1, kScaleExpanding = 2, kScaleSnapBack = 3 };
inline constexpr const char* kScaleModeCaptions[4] = {
    "Manual", "Auto-shift ", "Auto-shift with expanding scale", "Auto-shift with snap-back scale"};

// One roll of the graph. Row cells: seat 0 the session's roll number, in whole dollars; 1 to 8 the bankrolls.
struct PlotRow {
  Currency cells[kSeatRows];
};
TESSARYN_FIELDS(PlotRow, cells)

struct BankrollGraph {
  // --- The points. Written by PlotRoll, ClearBankrollGraph and LoadBankrollPlot; a change of seats moves
  // them too, and then calls BankrollPlotChanged.
  PlotRow Rows[kPlotRows];  // a ring; the newest stands before Next
  int Next = 0;
  std::int64_t PlotPoints = 0;   // points since the graph was cleared
  int PlotCount = 0;             // points on the graph, 0 to 525
  std::int64_t PagesFilled = 0;  // full pages so far; the last one is the previous page
  // --- Choices of the user. PlotSeat is written by SelectPlotSeat.
  SeatId PlotSeat = 1;
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
TESSARYN_FIELDS(BankrollGraph, Rows, Next, PlotPoints, PlotCount, PagesFilled, PlotSeat, PlotType, ScaleMode,
                MovingAverageRolls, RefRoll1, RefRoll2, DisplayGridLines, DisplayRefLines, DisplayAverage,
                ScaleUnit, ScaleBase, ScaleTop, ScaleBottom, ScaleCentre, ShownHigh, ShownLow, HighPoint,
                LowPoint)

}  // namespace tessaryn
