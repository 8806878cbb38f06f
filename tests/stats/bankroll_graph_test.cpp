#include "stats/bankroll_graph.h"

#include <gtest/gtest.h>

#include <random>

#include "play/players.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// The graph kept the plain way: every cell in its place, moved one by one.
struct PlainGraph {
  std::vector<std::array<std::int64_t, kSeatRows>> cells{kPlotRows + 1};
  int count = 0;
  int behind = 0;  // cells 1050 downwards that hold something
  std::int64_t sessionRolls = 0;

  void Add(bool scroll, const std::array<std::int64_t, kSeatRows>& row) {
    if (count == kPlotCells && scroll) {
      for (std::size_t cell = kPlotCells + 1; cell < kPlotRows; ++cell) cells[cell] = cells[cell + 1];
      cells[kPlotRows] = cells[1];
      for (std::size_t cell = 1; cell < kPlotCells; ++cell) cells[cell] = cells[cell + 1];
      behind = std::min(behind + 1, kPlotCells);
      count = kPlotCells - 1;
    } else if (count == kPlotCells) {
      for (std::size_t cell = 1; cell <= kPlotCells; ++cell) cells[cell + kPlotCells] = cells[cell];
      behind = kPlotCells;
      count = 0;
    }
    ++sessionRolls;
    cells[static_cast<std::size_t>(++count)] = row;
    cells[static_cast<std::size_t>(count)][0] = sessionRolls * Currency::kPerDollar;
  }

  double Average(int seat, int cell, int rolls) const {
    double sum = 0;
    int used = 0;
    for (int at = cell; used < rolls; ++used, --at) {
      if (at == 0 && sessionRolls < kPlotCells + 1) break;
      if (at == 0) at = kPlotRows;
      if (at > kPlotCells && at <= kPlotRows - behind) break;
      sum += static_cast<double>(cells[static_cast<std::size_t>(at)][static_cast<std::size_t>(seat)]);
    }
    return sum / used;
  }
};

// A roll as the graph sees it.
struct Plotter : TestTable {
  PlainGraph plain;

  Plotter() { Join(1, "Ann", "0"); }

  void Plot(std::int64_t dollars) {
    game->table.BankrollCurrent[1] = Currency::Dollars(dollars);
    game->table.BankrollCurrent[3] = Currency::Dollars(-2 * dollars);
    ++game->stats.RollTotals[Slot(kCurrentSession, 0)];
    game->stats.BankrollRollSum[1] += Currency::Dollars(dollars);
    std::array<std::int64_t, kSeatRows> row{};
    row[1] = dollars * Currency::kPerDollar;
    row[3] = -2 * row[1];
    plain.Add(game->graph.PlotType == kPlotScroll, row);
    PlotRoll(*game);
  }
};

TEST(BankrollGraphTest, CellsAveragesAndExtremesAreThoseOfAPlainGraph) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    std::mt19937 random(seed);
    Plotter table;
    BankrollGraph& graph = table.game->graph;
    graph.PlotType = static_cast<int>(seed % 2);
    std::int64_t dollars = 0;
    for (int roll = 1; roll <= 3000; ++roll) {
      // Straight lines too: there the extreme is always the cell that leaves.
      dollars += roll % 1000 < 700 ? static_cast<std::int64_t>(random() % 21) - 10 : (seed < 3 ? 3 : -3);
      if (seed >= 3 && roll % 640 == 0) graph.PlotType ^= 1;
      table.Plot(dollars);
      ASSERT_EQ(graph.PlotCount, table.plain.count);
      const auto cell = static_cast<int>(random() % (kPlotRows + 1));
      const auto plainCell = static_cast<std::size_t>(cell);
      if (HasPlotCell(*table.game, cell)) {
        for (const int seat : {0, 1, 3})
          ASSERT_EQ(BankrollPlot(*table.game, seat, cell).raw,
                    table.plain.cells[plainCell][static_cast<std::size_t>(seat)])
              << "seed " << seed << " roll " << roll << " cell " << cell;
      }
      const int shown = 1 + static_cast<int>(random() % static_cast<unsigned>(graph.PlotCount));
      const int rolls = 1 + static_cast<int>(random() % kPlotCells);
      ASSERT_NEAR(static_cast<double>(MovingAverage(*table.game, 1, shown, rolls).raw),
                  table.plain.Average(1, shown, rolls), 1)
          << "seed " << seed << " roll " << roll << " cell " << shown << " over " << rolls;
      for (const std::size_t seat : {1u, 3u}) {
        std::int64_t high = table.plain.cells[1][seat];
        std::int64_t low = high;
        for (int i = 1; i <= table.plain.count; ++i) {
          high = std::max(high, table.plain.cells[static_cast<std::size_t>(i)][seat]);
          low = std::min(low, table.plain.cells[static_cast<std::size_t>(i)][seat]);
        }
        const PlotExtremes extremes = ExtremesOf(*table.game, static_cast<int>(seat));
        ASSERT_EQ(extremes.PlotHigh.raw, high) << "seed " << seed << " roll " << roll;
        ASSERT_EQ(extremes.PlotLow.raw, low) << "seed " << seed << " roll " << roll;
      }
    }
  }
}

TEST(BankrollGraphTest, TheSessionsAverageIsThatOfEveryRoll) {
  Plotter table;
  EXPECT_EQ(BankrollAverage(*table.game, 1, 0), kZero);
  double sum = 0;
  std::vector<double> means{0};
  for (int roll = 1; roll <= 700; ++roll) {
    table.Plot(roll * 3 % 101);
    sum += roll * 3 % 101;
    means.push_back(sum / (roll + 1));  // the bankroll that the session began with counts too
  }
  PlotAverages averages;
  RecomputeAverages(*table.game, 1, averages);
  for (int cell = 1; cell <= table.game->graph.PlotCount; ++cell) {
    const std::size_t roll = 700 - static_cast<std::size_t>(table.game->graph.PlotCount - cell);
    ASSERT_NEAR(BankrollAverage(*table.game, 1, cell).ToDouble(), means[roll], 0.0001) << cell;
    ASSERT_EQ(averages[static_cast<std::size_t>(cell)], BankrollAverage(*table.game, 1, cell)) << cell;
  }
}

TEST(BankrollGraphTest, TheUnitStepsByOneTwoFour) {
  const char* const steps[] = {"0.01", "0.02", "0.04", "0.1", "0.2", "0.4", "1",
                               "2",    "4",    "10",   "20",  "40",  "100"};
  for (std::size_t i = 0; i + 1 < std::size(steps); ++i) {
    EXPECT_EQ(NextScaleUnit(Money(steps[i]), true), Money(steps[i + 1]));
    EXPECT_EQ(NextScaleUnit(Money(steps[i + 1]), false), Money(steps[i]));
  }
  EXPECT_EQ(NextScaleUnit(Money("5"), true), Money("10"));
  EXPECT_EQ(NextScaleUnit(Money("5"), false), Money("4"));
  EXPECT_EQ(NextScaleUnit(Money("0.01"), false), Money("0.01"));
  EXPECT_EQ(NextScaleUnit(Money("1000000"), true), Money("1000000"));
}

TEST(BankrollGraphTest, TheScaleFollowsAsItsModeSays) {
  for (int mode = kScaleManual; mode <= kScaleSnapBack; ++mode)
    for (const int type : {kPlotPage, kPlotScroll}) {
      SCOPED_TRACE(std::string(kScaleModeCaptions[mode]) + kPlotTypeCaptions[type]);
      Plotter table;
      BankrollGraph& graph = table.game->graph;
      graph.ScaleMode = mode;
      graph.PlotType = type;
      std::mt19937 random(static_cast<unsigned>(mode * 2 + type));
      std::int64_t dollars = 1000;
      for (int roll = 0; roll < 4000; ++roll) {
        const Currency unitBefore = graph.ScaleUnit;
        const std::int64_t reach = roll % 1200 < 600 ? 5 : 90;
        dollars += static_cast<std::int64_t>(random() % static_cast<unsigned>(2 * reach + 1)) - reach;
        table.Plot(dollars);
        const std::int64_t unit = graph.ScaleUnit.raw;
        ASSERT_EQ(graph.ScaleBottom.raw, graph.ScaleTop.raw - kGraphUnits * unit);
        if (mode == kScaleManual) {
          ASSERT_EQ(graph.ScaleTop, Money("150"));
          continue;
        }
        const Currency value = table.game->table.BankrollCurrent[1];
        ASSERT_EQ(graph.ScaleTop.raw % (kGraphStep * unit), 0);
        ASSERT_GE(value, graph.ScaleBottom);
        if (mode == kScaleShift) {
          ASSERT_EQ(graph.ScaleUnit, Money("1"));
          continue;
        }
        ASSERT_LE(value, graph.ScaleTop);
        if (mode == kScaleExpanding) {
          ASSERT_GE(graph.ScaleUnit, unitBefore);
        }
      }
      if (mode == kScaleSnapBack) {
        EXPECT_GT(graph.ScaleUnit, graph.ScaleBase);
        ClearBankrollGraph(*table.game);
        ResetBankrollGraph(*table.game, true);
        EXPECT_EQ(graph.ScaleUnit, graph.ScaleBase);
      }
    }
}

TEST(BankrollGraphTest, RecentringGoesToWhatTheLinesMark) {
  Plotter table;
  BankrollGraph& graph = table.game->graph;
  graph.ScaleMode = kScaleManual;
  for (const int dollars : {100, 300, 1000}) table.Plot(dollars);
  ResetBankrollGraph(*table.game, true);
  EXPECT_EQ(graph.ScaleTop, Money("1150"));
  SetReferenceRoll(*table.game, 1, 1);
  SetReferenceRoll(*table.game, 2, 2);
  ResetBankrollGraph(*table.game, true);
  EXPECT_EQ(graph.ScaleTop, Money("1150")) << "lines that are not displayed mark nothing";
  graph.DisplayRefLines = true;
  ResetBankrollGraph(*table.game, true);
  EXPECT_EQ(graph.ScaleTop, Money("350")) << "between 100 and 300";
  ReferenceFigures lines = ReferencesOf(*table.game);
  EXPECT_EQ(lines.rollsDif, 1);
  EXPECT_EQ(lines.bankrollDif, Money("200"));
  SetReferenceRoll(*table.game, 1, 400);  // beyond the points
  ResetBankrollGraph(*table.game, true);
  EXPECT_EQ(graph.ScaleTop, Money("450"));
  EXPECT_FALSE(ReferencesOf(*table.game).shown1);
  SetReferenceRoll(*table.game, 2, 9999);
  EXPECT_EQ(graph.RefRoll2, kPlotCells);
}

TEST(BankrollGraphTest, ASavedGraphComesBackAsItWas) {
  Plotter table;
  for (int roll = 0; roll < 800; ++roll) table.Plot(roll * 7 % 97);
  std::vector<PlotRow> rows;
  const int count = table.game->graph.PlotCount;
  for (int cell = kPlotCells + 1; cell <= kPlotRows; ++cell)
    if (HasPlotCell(*table.game, cell)) {
      rows.emplace_back();
      for (int seat = 0; seat <= kSeats; ++seat)
        rows.back().cells[seat] = BankrollPlot(*table.game, seat, cell);
    }
  for (int cell = 1; cell <= count; ++cell) {
    rows.emplace_back();
    for (int seat = 0; seat <= kSeats; ++seat)
      rows.back().cells[seat] = BankrollPlot(*table.game, seat, cell);
  }
  const PlotExtremes extremes = ExtremesOf(*table.game, 1);
  const Currency average = MovingAverage(*table.game, 1, 3, 50);
  LoadBankrollPlot(*table.game, rows, count);
  EXPECT_EQ(table.game->graph.PlotCount, 275);
  EXPECT_EQ(ExtremesOf(*table.game, 1).PlotHigh, extremes.PlotHigh);
  EXPECT_EQ(ExtremesOf(*table.game, 1).PlotLow, extremes.PlotLow);
  EXPECT_EQ(MovingAverage(*table.game, 1, 3, 50), average);
  for (int roll = 0; roll < 1200; ++roll) table.Plot(roll);
  EXPECT_EQ(BankrollPlot(*table.game, 1, table.game->graph.PlotCount), Money("1199"));
}

TEST(BankrollGraphTest, APlayersCurveMovesWithThePlayer) {
  TestTable table;
  table.Join(1, "Ann");
  table.Set("ShooterBetRule", "0");
  table.Bet(1, kPlace4, "5");
  for (const auto& [die1, die2] : {std::pair{2, 2}, {1, 3}, {3, 4}}) table.Roll(die1, die2);
  const Currency last = BankrollPlot(*table.game, 1, 3);
  std::string error;
  ASSERT_TRUE(MovePlayer(*table.game, 1, 6, error)) << error;
  EXPECT_EQ(BankrollPlot(*table.game, 6, 3), last);
  EXPECT_EQ(ExtremesOf(*table.game, 1).PlotHigh, kZero);
  SelectPlotSeat(*table.game, 6);
  EXPECT_EQ(ExtremesOf(*table.game, 6).PlotLow, std::min(last, BankrollPlot(*table.game, 6, 1)));
}

TEST(BankrollGraphTest, TheAverageIsAskedForInWholeRolls) {
  TestTable table;
  const std::pair<const char*, int> cases[] = {
      {"40.7", 40}, {"-3", 0}, {"9999", 525}, {"cancel", 525}, {"0", 0}};
  for (const auto& [answer, rolls] : cases) {
    table.host.answers = {answer};
    SetMovingAverage(*table.game);
    EXPECT_EQ(table.game->graph.MovingAverageRolls, rolls) << answer;
  }
  EXPECT_TRUE(table.host.Said(Msg::kAskMovingAverage));
}

}  // namespace
}  // namespace tessaryn
