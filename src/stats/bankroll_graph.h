// The closing bankrolls, roll by roll: 525 points across, a previous page behind them, a scale that can
// follow the curve.
#pragma once

#include <cstdint>

#include "engine/table_types.h"

namespace tessaryn {

struct Game;

inline constexpr int kPlotCells = 525;
inline constexpr int kPlotRows = 2 * kPlotCells;

// One roll of the graph. Row cells: seat 0 the session's roll number, in whole dollars; 1 to 8 the bankrolls.
struct PlotRow {
  Currency cells[kSeatRows];
};

struct BankrollGraph {
  PlotRow Rows[kPlotRows];         // a ring; the newest stands before Next
  int Next = 0;
  std::int64_t PlotPoints = 0;     // points since the graph was cleared
  int PlotCount = 0;               // points on the graph, 0 to 525
  int PlotSeat = 1;
  int PlotType = 0;                // 0 "Page", 1 "Scroll"
  int ScaleMode = 1;               // 0 manual, 1 auto-shift, 2 expanding, 3 snap-back
  Currency ScaleUnit = Currency::Dollars(1);
  Currency ScaleBase = Currency::Dollars(1);
  Currency ScaleTop = Currency::Dollars(150);
  Currency PlotHigh[kSeatRows];
  Currency PlotLow[kSeatRows];
  int MovingAverageRolls = 0;      // 0 to 525; 0 all rolls of the session
  int RefRoll1 = 0;                // cell numbers of the reference lines
  int RefRoll2 = 0;
  bool DisplayGridLines = true;
  bool DisplayRefLines = false;
  bool DisplayAverage = false;
};

// Takes the roll that just closed.
void PlotRoll(Game& game);
// All points away.
void ClearBankrollGraph(Game& game);

}  // namespace tessaryn
