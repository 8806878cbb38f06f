#include "stats/bankroll_graph.h"

#include <algorithm>
#include <cstring>

#include "state/show_message.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr Currency kLeastUnit = Currency::FromRaw(100);
constexpr Currency kMostUnit = Currency::Dollars(1'000'000);

// The point of a cell, counted from 0 since the graph was cleared; below 0 for none.
std::int64_t PointOf(const BankrollGraph& graph, int cell) {
  const std::int64_t first = graph.PlotPoints - graph.PlotCount;
  if (cell >= 1 && cell <= graph.PlotCount) return first + cell - 1;
  if (cell > kPlotCells && cell <= kPlotRows) return first - kPlotRows + cell - 1;
  return -1;
}

const PlotRow& RowOf(const BankrollGraph& graph, std::int64_t point) { return graph.Rows[point % kPlotRows]; }

// Extremes of the shown seat from the last count rows.
void FindShownExtremes(Game& game, int count) {
  BankrollGraph& graph = game.graph;
  graph.ShownHigh = graph.ShownLow = game.table.BankrollCurrent[graph.PlotSeat];
  graph.HighPoint = graph.LowPoint = graph.PlotPoints + 1;
  for (int back = 0; back < count; ++back) {
    const std::int64_t point = graph.PlotPoints - 1 - back;
    const Currency value = RowOf(graph, point).cells[graph.PlotSeat];
    if (back == 0 || value > graph.ShownHigh) graph.ShownHigh = value, graph.HighPoint = point + 1;
    if (back == 0 || value < graph.ShownLow) graph.ShownLow = value, graph.LowPoint = point + 1;
  }
}

// A full graph makes room for the next point.
void MakeRoom(Game& game) {
  BankrollGraph& graph = game.graph;
  if (graph.PlotType != kPlotScroll) {
    graph.PlotCount = 0;
    ++graph.PagesFilled;
    FindShownExtremes(game, 0);
    return game.host->GraphPageFull(game);
  }
  graph.PlotCount = kPlotCells - 1;
  const std::int64_t leaving = graph.PlotPoints - kPlotCells + 1;
  if (graph.HighPoint <= leaving || graph.LowPoint <= leaving) FindShownExtremes(game, graph.PlotCount);
  ResetBankrollGraph(game, false);
}

std::int64_t FloorQuotient(std::int64_t value, std::int64_t divisor) {
  const std::int64_t quotient = value / divisor;
  return value % divisor < 0 ? quotient - 1 : quotient;
}

void PlaceTop(BankrollGraph& graph, std::int64_t topRaw) {
  graph.ScaleTop = Currency::FromRaw(topRaw);
  graph.ScaleBottom = Currency::FromRaw(topRaw - kGraphUnits * graph.ScaleUnit.raw);
}

// The centre about the middle of the graph, its top on a whole step.
void PlaceAroundCentre(BankrollGraph& graph) {
  const std::int64_t step = kGraphStep * graph.ScaleUnit.raw;
  PlaceTop(graph, (FloorQuotient(graph.ScaleCentre.raw, step) + 3) * step);
}

// So many whole steps that the extremes are seen; when they are too far apart for that, the lower one is.
void ShiftToExtremes(BankrollGraph& graph) {
  const std::int64_t step = kGraphStep * graph.ScaleUnit.raw;
  const std::int64_t above = graph.ShownHigh.raw - graph.ScaleTop.raw;
  if (above > 0) PlaceTop(graph, graph.ScaleTop.raw + (above + step - 1) / step * step);
  const std::int64_t below = graph.ScaleBottom.raw - graph.ShownLow.raw;
  if (below > 0) PlaceTop(graph, graph.ScaleTop.raw - (below + step - 1) / step * step);
}

Currency CentreOf(const Game& game) {
  const BankrollGraph& graph = game.graph;
  const Currency current = game.table.BankrollCurrent[graph.PlotSeat];
  if (!graph.DisplayRefLines) return current;
  const ReferenceFigures lines = ReferencesOf(game);
  if (lines.shown1 && lines.shown2) return Divide(lines.bankroll1 + lines.bankroll2, Currency::Dollars(2));
  if (lines.shown1) return lines.bankroll1;
  return lines.shown2 ? lines.bankroll2 : current;
}

// The mean of the session up to the point before so many later ones. The sum of the later ones comes along.
Currency SessionAverage(const Game& game, SeatId seat, std::int64_t later, Currency laterSum) {
  const Statistics& stats = game.stats;
  const std::int64_t rolls = PlayerRolls(stats, kCurrentSession, seat) - later;
  const Currency start = stats.BankrollSessionStart[seat];
  if (rolls <= 0) return start;
  return Divide(start + stats.BankrollRollSum[seat] - laterSum, Currency::Dollars(rolls + 1));
}

}  // namespace

void PlotRoll(Game& game) {
  BankrollGraph& graph = game.graph;
  if (graph.PlotCount == kPlotCells) [[unlikely]]
    MakeRoom(game);
  PlotRow& row = graph.Rows[graph.Next];
  std::memcpy(row.cells, game.table.BankrollCurrent, sizeof row.cells);
  row.cells[0] = Currency::Dollars(SessionRolls(game.stats));
  graph.Next = graph.Next + 1 == kPlotRows ? 0 : graph.Next + 1;
  ++graph.PlotPoints;
  const Currency value = row.cells[graph.PlotSeat];
  if (++graph.PlotCount == 1) {
    graph.ShownHigh = graph.ShownLow = value;
    graph.HighPoint = graph.LowPoint = graph.PlotPoints;
  }
  if (value >= graph.ShownHigh) graph.ShownHigh = value, graph.HighPoint = graph.PlotPoints;
  if (value <= graph.ShownLow) graph.ShownLow = value, graph.LowPoint = graph.PlotPoints;
  if ((value > graph.ScaleTop || value < graph.ScaleBottom) && graph.ScaleMode != kScaleManual) [[unlikely]]
    ResetBankrollGraph(game, true);
}

void ClearBankrollGraph(Game& game) {
  BankrollGraph& graph = game.graph;
  graph.Next = 0;
  graph.PlotPoints = 0;
  graph.PlotCount = 0;
  graph.PagesFilled = 0;
  FindShownExtremes(game, 0);
}

void LoadBankrollPlot(Game& game, std::span<const PlotRow> points, int plotCount) {
  BankrollGraph& graph = game.graph;
  ClearBankrollGraph(game);
  if (points.size() > kPlotRows) points = points.last(kPlotRows);
  std::copy(points.begin(), points.end(), graph.Rows);
  graph.PlotPoints = static_cast<std::int64_t>(points.size());
  graph.Next = static_cast<int>(points.size() % kPlotRows);
  graph.PlotCount = std::clamp(plotCount, 0, std::min(kPlotCells, static_cast<int>(points.size())));
  BankrollPlotChanged(game);
}

void BankrollPlotChanged(Game& game) { FindShownExtremes(game, game.graph.PlotCount); }

bool HasPlotCell(const Game& game, int cell) { return PointOf(game.graph, cell) >= 0; }

Currency BankrollPlot(const Game& game, SeatId seat, int cell) {
  const std::int64_t point = PointOf(game.graph, cell);
  return point < 0 ? kZero : RowOf(game.graph, point).cells[seat];
}

PlotExtremes ExtremesOf(const Game& game, SeatId seat) {
  const BankrollGraph& graph = game.graph;
  if (graph.PlotCount == 0) return {game.table.BankrollCurrent[seat], game.table.BankrollCurrent[seat]};
  if (seat == graph.PlotSeat) return {graph.ShownHigh, graph.ShownLow};
  const Currency first = BankrollPlot(game, seat, 1);
  PlotExtremes extremes{first, first};
  for (int cell = 2; cell <= graph.PlotCount; ++cell) {
    const Currency value = BankrollPlot(game, seat, cell);
    extremes.PlotHigh = std::max(extremes.PlotHigh, value);
    extremes.PlotLow = std::min(extremes.PlotLow, value);
  }
  return extremes;
}

Currency MovingAverage(const Game& game, SeatId seat, int cell, int rolls) {
  const BankrollGraph& graph = game.graph;
  const std::int64_t point = PointOf(graph, cell);
  if (rolls < 1) {
    if (point < 0) return SessionAverage(game, seat, 0, kZero);
    Currency later;
    for (std::int64_t at = point + 1; at < graph.PlotPoints; ++at) later += RowOf(graph, at).cells[seat];
    return SessionAverage(game, seat, graph.PlotPoints - 1 - point, later);
  }
  if (point < 0) return game.table.BankrollCurrent[seat];
  const std::int64_t kept = std::max<std::int64_t>(graph.PlotPoints - kPlotRows, 0);
  const std::int64_t last = std::max(point + 1 - std::min(rolls, kPlotCells), kept);
  Currency sum;
  for (std::int64_t at = point; at >= last; --at) sum += RowOf(graph, at).cells[seat];
  return Divide(sum, Currency::Dollars(point - last + 1));
}

Currency BankrollAverage(const Game& game, SeatId seat, int cell) {
  return MovingAverage(game, seat, cell, game.graph.MovingAverageRolls);
}

void RecomputeAverages(const Game& game, SeatId seat, PlotAverages& averages) {
  const BankrollGraph& graph = game.graph;
  averages.fill(kZero);
  Currency later;
  for (int cell = graph.PlotCount; cell >= 1; --cell) {
    if (graph.MovingAverageRolls > 0) {
      averages[static_cast<std::size_t>(cell)] = BankrollAverage(game, seat, cell);
      continue;
    }
    averages[static_cast<std::size_t>(cell)] = SessionAverage(game, seat, graph.PlotCount - cell, later);
    later += BankrollPlot(game, seat, cell);
  }
}

void SetMovingAverage(Game& game) {
  game.box.MsgValue1 = Currency::Dollars(game.graph.MovingAverageRolls);
  if (ShowMessage<Msg::kAskMovingAverage>(game, With<"most">(kPlotCells)) != kResultOk) return;
  const Currency wanted = std::clamp(game.box.MsgValue1, kZero, Currency::Dollars(kPlotCells));
  game.graph.MovingAverageRolls = static_cast<int>(wanted.raw / Currency::kPerDollar);
}

Currency NextScaleUnit(Currency unit, bool up) {
  Currency below = kLeastUnit;
  for (std::int64_t decade = kLeastUnit.raw; decade <= kMostUnit.raw; decade *= 10)
    for (const int digit : {1, 2, 4}) {
      const Currency step = Currency::FromRaw(std::min(decade * digit, kMostUnit.raw));
      if (step > unit && up) return step;
      if (step < unit) below = step;
    }
  return up ? std::max(unit, kMostUnit) : below;
}

void ResetBankrollGraph(Game& game, bool recentre) {
  BankrollGraph& graph = game.graph;
  if (graph.ScaleMode == kScaleManual && !recentre) return;
  const bool fresh = graph.PlotType == kPlotScroll || graph.PlotCount == 0;
  if (graph.ScaleMode == kScaleSnapBack && fresh) graph.ScaleUnit = graph.ScaleBase;
  if (recentre) graph.ScaleCentre = CentreOf(game);
  if (graph.PlotCount == 0) FindShownExtremes(game, 0);
  if (graph.ScaleMode >= kScaleExpanding)
    while (graph.ShownHigh.raw - graph.ShownLow.raw > 250 * graph.ScaleUnit.raw &&
           graph.ScaleUnit < kMostUnit)
      graph.ScaleUnit = NextScaleUnit(graph.ScaleUnit, true);
  PlaceAroundCentre(graph);
  if (graph.ScaleMode != kScaleManual) ShiftToExtremes(graph);
}

void SelectPlotSeat(Game& game, SeatId seat) {
  game.graph.PlotSeat = seat;
  BankrollPlotChanged(game);
  ResetBankrollGraph(game, true);
}

void ShiftScale(Game& game, int steps) {
  BankrollGraph& graph = game.graph;
  // Bankrolls end at ten millions; so does what there is to look at.
  const std::int64_t limit = 100 * kBankrollLimit.raw;
  const std::int64_t step = kGraphStep * graph.ScaleUnit.raw;
  PlaceTop(graph, std::clamp(graph.ScaleTop.raw + std::clamp(steps, -1000, 1000) * step, -limit, limit));
}

void StepScaleUnit(Game& game, int steps) {
  BankrollGraph& graph = game.graph;
  const Currency middle = Currency::FromRaw(graph.ScaleTop.raw - kGraphUnits / 2 * graph.ScaleUnit.raw);
  for (int step = 0; step < std::min(std::abs(steps), 100); ++step)
    graph.ScaleUnit = NextScaleUnit(graph.ScaleUnit, steps > 0);
  graph.ScaleBase = graph.ScaleUnit;
  graph.ScaleCentre = middle;
  PlaceAroundCentre(graph);
}

void SetReferenceRoll(Game& game, int which, int cell) {
  (which == 1 ? game.graph.RefRoll1 : game.graph.RefRoll2) = std::clamp(cell, 0, kPlotCells);
}

ReferenceFigures ReferencesOf(const Game& game) {
  const BankrollGraph& graph = game.graph;
  const auto shown = [&graph](int cell) { return cell >= 1 && cell <= graph.PlotCount; };
  ReferenceFigures figures;
  figures.shown1 = shown(graph.RefRoll1);
  figures.shown2 = shown(graph.RefRoll2);
  if (figures.shown1) figures.bankroll1 = BankrollPlot(game, graph.PlotSeat, graph.RefRoll1);
  if (figures.shown2) figures.bankroll2 = BankrollPlot(game, graph.PlotSeat, graph.RefRoll2);
  if (figures.shown1 && figures.shown2) {
    figures.rollsDif = graph.RefRoll2 - graph.RefRoll1;
    figures.bankrollDif = figures.bankroll2 - figures.bankroll1;
  }
  return figures;
}

}  // namespace tessaryn
