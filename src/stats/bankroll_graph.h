// The closing bankrolls, roll by roll: 525 points across, a previous page behind them, a scale that can
// follow the curve. A roll only puts its row down; averages and extremes are worked out when somebody looks.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "state/graph_state.h"

namespace tessaryn {

struct Game;

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
Currency BankrollPlot(const Game& game, SeatId seat, int cell);
bool HasPlotCell(const Game& game, int cell);
// The highest and lowest bankroll of a seat on the graph; its bankroll when nothing is plotted.
struct PlotExtremes {
  Currency PlotHigh;
  Currency PlotLow;
};
PlotExtremes ExtremesOf(const Game& game, SeatId seat);

// The mean of the last rolls bankrolls up to a cell, as far as there are points; with rolls below 1 the mean
// of the session so far, its beginning included. More than 525 rolls count as 525.
Currency MovingAverage(const Game& game, SeatId seat, int cell, int rolls);
// The average at a cell with MovingAverageRolls, and at all cells 1 to PlotCount in one go.
Currency BankrollAverage(const Game& game, SeatId seat, int cell);
using PlotAverages = std::array<Currency, kPlotCells + 1>;
void RecomputeAverages(const Game& game, SeatId seat, PlotAverages& averages);
// The dialog; 0 to 525 whole rolls. Cancel changes nothing.
void SetMovingAverage(Game& game);

// The scale brought to the curve by ScaleMode. recentre: on the seat's bankroll, or on what the reference
// lines mark; a manual scale moves by this alone.
void ResetBankrollGraph(Game& game, bool recentre);
// Requires 1 <= seat <= 8.
void SelectPlotSeat(Game& game, SeatId seat);
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
