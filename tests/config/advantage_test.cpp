#include "config/advantage.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "engine/bet_catalogue.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::TestTable;

struct KnownEdge {
  int bet;
  double perDecision;
  double rollsPerDecision;
};

TEST(Advantage, HouseEdgesAreThoseOfTheLiterature) {
  TestTable table;
  const KnownEdge edges[] = {
      {kPassLine, -7.0 / 495, 557.0 / 165},
      {kCome, -7.0 / 495, 557.0 / 165},
      {kDontPass, -27.0 / 1925, 557.0 / 165 * 36 / 35},
      {kDontCome, -27.0 / 1925, 557.0 / 165 * 36 / 35},
      {kPassLineOdds, 0, (3 * 4 + 4 * 3.6 + 5 * 36.0 / 11) / 12},
      {kDontPassOdds, 0, (3 * 4 + 4 * 3.6 + 5 * 36.0 / 11) / 12},
      {kCome4, -1.0 / 3, 4},
      {kCome4 + 1, -0.2, 3.6},
      {kCome4 + 2, -1.0 / 11, 36.0 / 11},
      {kDontCome4, 1.0 / 3, 4},
      {kComeOdds4, 0, 4},
      {kComeOdds4 + 3, 0, 36.0 / 11},
      {kDontComeOdds4 + 1, 0, 3.6},
      {kPlace4, -1.0 / 15, 4},
      {kPlace4 + 1, -0.04, 3.6},
      {kPlace4 + 2, -1.0 / 66, 36.0 / 11},
      {kPlace4 + 5, -1.0 / 15, 4},
      {kBig6, -1.0 / 11, 36.0 / 11},
      {kBuy4, -1.0 / 21, 4},  // 5% on the bet, paid up front
      {kBuy4 + 1, -1.0 / 21, 3.6},
      {kLay4, -1.0 / 41, 4},  // 5% of the win
      {kLay4 + 1, -1.0 / 31, 3.6},
      {kLay4 + 2, -1.0 / 25, 36.0 / 11},
      {kField, -1.0 / 18, 1},
      {kHard4, -1.0 / 9, 4},
      {kHard6, -1.0 / 11, 36.0 / 11},
      {kHard8, -1.0 / 11, 36.0 / 11},
      {kHard10, -1.0 / 9, 4},
      {kTwo, -5.0 / 36, 1},
      {kThree, -1.0 / 9, 1},
      {kSeven, -1.0 / 6, 1},
      {kEleven, -1.0 / 9, 1},
      {kTwelve, -5.0 / 36, 1},
      {kCraps, -1.0 / 9, 1},
      {kCAndE, -1.0 / 9, 1},
      {kHorn, -0.125, 1},
      {kWorld, -2.0 / 15, 1},
      {kOver7, -1.0 / 6, 1},
      {kUnder7, -1.0 / 6, 1},
      {kHop13, -1.0 / 9, 1},
      {kHop55, -5.0 / 36, 1},
      {kAllSmall, -0.077613, 0},
      {kAllTall, -0.077613, 0},
      {kMakeAll, -0.074644, 0},
      {kFourRolls, -1 + 2 * std::pow(5.0 / 6, 4), 0},
      {kPoint7, -1.0 / 9, 5.0 / 3},
      {kSevenPoint7, -1.0 / 18, 5.0 / 3},
      {kMidway, -1 + (2 * 8 + 6 * 2 + 2 * 3) / 36.0, 1},
  };
  for (const KnownEdge& edge : edges) {
    const Advantage figure = FigureAdvantage(*table.game, edge.bet);
    EXPECT_NEAR(figure.evPerDecision, edge.perDecision, 0.6e-6) << BetName(edge.bet);
    if (edge.rollsPerDecision > 0) {
      EXPECT_NEAR(figure.rollsPerDecision, edge.rollsPerDecision, 0.006) << BetName(edge.bet);
      EXPECT_NEAR(figure.evPerRoll, edge.perDecision / edge.rollsPerDecision, 0.6e-6) << BetName(edge.bet);
    }
  }
}

}  // namespace
}  // namespace tessaryn
