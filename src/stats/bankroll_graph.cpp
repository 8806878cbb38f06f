#include "stats/bankroll_graph.h"

#include <algorithm>
#include <cstring>

#include "engine/game.h"

namespace tessaryn {

void PlotRoll(Game& game) {
  BankrollGraph& graph = game.graph;
  PlotRow& row = graph.Rows[graph.Next];
  std::memcpy(row.cells, game.table.BankrollCurrent, sizeof row.cells);
  row.cells[0] = Currency::Dollars(SessionRolls(game.stats));
  graph.Next = graph.Next + 1 == kPlotRows ? 0 : graph.Next + 1;
  ++graph.PlotPoints;
}

void ClearBankrollGraph(Game& game) {
  BankrollGraph& graph = game.graph;
  graph.Next = 0;
  graph.PlotPoints = 0;
  graph.PlotCount = 0;
}

}  // namespace tessaryn
