#include "stats/bankroll_graph.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "support/test_host.h"

namespace tessaryn::test {
namespace {

// A bankroll that wanders, plotted roll by roll, and the plain list of where it has been.
struct Walk {
  TestTable table;
  std::vector<std::int64_t> been;   // dollars, oldest first
  std::mt19937 random{4711};

  explicit Walk(int plotType) {
    table.Join(1, "Ann", "1000");
    table.game->graph.PlotType = plotType;
  }
  Game& game() { return *table.game; }
  void Step() {
    been.push_back((been.empty() ? 1000 : been.back()) + static_cast<int>(random() % 41) - 20);
    TableState& state = game().table;
    state.BankrollCurrent[1] = Currency::Dollars(been.back());
    Statistics& stats = game().stats;
    ++stats.RollTotals[Slot(kCurrentSession, 0)];
    stats.BankrollRollSum[1] += state.BankrollCurrent[1];
    PlotRoll(game());
  }
  // The bankroll so many points before the latest one.
  std::int64_t Ago(std::size_t points) const { return been[been.size() - 1 - points]; }
};

TEST(BankrollGraph, CellsHoldTheLatestPointsInBothTypes) {
  for (const int type : {0, 1}) {
    Walk walk(type);
    for (int roll = 1; roll <= 1700; ++roll) {
      walk.Step();
      const int count = type == 1 ? std::min(roll, kPlotCells) : (roll - 1) % kPlotCells + 1;
      ASSERT_EQ(walk.game().graph.PlotCount, count) << "type " << type << ", roll " << roll;
      if (roll % 97 != 0 && roll != 525 && roll != 526) continue;
      std::int64_t high = walk.Ago(0);
      std::int64_t low = high;
      for (int cell = 1; cell <= count; ++cell) {
        const auto ago = static_cast<std::size_t>(count - cell);
        ASSERT_EQ(BankrollPlot(walk.game(), 1, cell), Currency::Dollars(walk.Ago(ago))) << cell;
        ASSERT_EQ(BankrollPlot(walk.game(), 0, cell), Currency::Dollars(roll - static_cast<int>(ago))) << cell;
        high = std::max(high, walk.Ago(ago));
        low = std::min(low, walk.Ago(ago));
      }
      EXPECT_EQ(ExtremesOf(walk.game(), 1).PlotHigh, Currency::Dollars(high));
      EXPECT_EQ(ExtremesOf(walk.game(), 1).PlotLow, Currency::Dollars(low));
      // The point before the graph's first stands at the back of the page before.
      if (roll > count) {
        EXPECT_EQ(BankrollPlot(walk.game(), 1, kPlotRows), Currency::Dollars(walk.Ago(count)));
      }
    }
  }
}

TEST(BankrollGraph, MovingAveragesReachIntoThePageBefore) {
  Walk walk(0);
  for (int roll = 1; roll <= 1300; ++roll) {
    walk.Step();
    if (roll % 131 != 0) continue;
    for (const int rolls : {1, 7, 40, 525, 900}) {
      const int wanted = std::min(rolls, kPlotCells);
      // Behind the first cell there is a page before only from the 526th roll on.
      const int reach = roll >= 526 ? wanted : std::min(wanted, walk.game().graph.PlotCount);
      double sum = 0;
      for (int i = 0; i < reach; ++i) sum += static_cast<double>(walk.Ago(static_cast<std::size_t>(i)));
      EXPECT_NEAR(MovingAverage(walk.game(), 1, walk.game().graph.PlotCount, rolls).ToDouble(), sum / reach, 1e-4)
          << "roll " << roll << ", of " << rolls;
    }
  }
}

TEST(BankrollGraph, TheScaleFollowsTheCurveAsItsModeSays) {
  Walk walk(1);
  BankrollGraph& graph = walk.game().graph;
  graph.ScaleMode = 2;
  graph.ScaleUnit = graph.ScaleBase = Currency::Dollars(1);
  SelectPlotSeat(walk.game(), 1);
  for (int roll = 0; roll < 3000; ++roll) {
    walk.Step();
    const PlotExtremes extremes = ExtremesOf(walk.game(), 1);
    ResetBankrollGraph(walk.game(), true);
    const double span = 300 * graph.ScaleUnit.ToDouble();
    ASSERT_LE(extremes.PlotHigh.ToDouble(), graph.ScaleTop.ToDouble()) << roll;
    ASSERT_GE(extremes.PlotLow.ToDouble(), graph.ScaleTop.ToDouble() - span) << roll;
    // The unit is of the series 1, 2, 4, 10, 20, 40 ...
    double unit = graph.ScaleUnit.ToDouble();
    while (unit >= 10) unit /= 10;
    ASSERT_TRUE(unit == 1 || unit == 2 || unit == 4) << graph.ScaleUnit.ToDouble();
  }
  EXPECT_EQ(NextScaleUnit(Currency::Dollars(4), true), Currency::Dollars(10));
  EXPECT_EQ(NextScaleUnit(Currency::Dollars(20), true), Currency::Dollars(40));
}

}  // namespace
}  // namespace tessaryn::test
