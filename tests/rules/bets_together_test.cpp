// What several bets bring together, against a plain simulation of hours.
#include "rules/bets_together.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "rules/advantage.h"
#include "rules/payoffs.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

// The rules once more, by what happens to a bet: no states, no chances.
struct PlainTable {
  const Game& game;
  int point = 0;
  int come = 0;  // the number of the Come and Don't Come bets

  double Pays(int bet) const {
    const PayoffRecord& record = game.payoffs.PayoffTable[bet];
    return record.PayTo.ToDouble() / record.PayPer.ToDouble();
  }
  static bool IsCraps(int total) { return total == 2 || total == 3 || total == 12; }

  double Line(bool pass, int number, int total, int passOn, int dontOn) const {
    if (number != 0) {
      if (total == number) return pass ? Pays(passOn + BoxPosition(number)) : -1;
      if (total == 7) return pass ? -1 : Pays(dontOn + BoxPosition(number));
      return 0;
    }
    if (total == 7 || total == 11) return pass ? 1 : -1;
    if (IsCraps(total)) return pass ? -1 : total == game.settings.BarNumber ? 0 : 1;
    return 0;
  }
  double Net(int bet, int die1, int die2) const {
    const int total = die1 + die2;
    switch (bet) {
      case kPassLine:
      case kDontPass:
        return Line(bet == kPassLine, point, total, kCome4, kDontCome4);
      case kPassLineOdds:
      case kDontPassOdds:
        return point == 0 ? 0 : Line(bet == kPassLineOdds, point, total, kComeOdds4, kDontComeOdds4);
      case kCome:
      case kDontCome:
        return point == 0 && come == 0 ? 0 : Line(bet == kCome, come, total, kCome4, kDontCome4);
      case kTwo:
      case kTwelve:
        return total == (bet == kTwo ? 2 : 12) ? Pays(bet) : -1;
      case kField:
        return game.payoffs.FieldPayoffs[FieldRow(die1, die2)].PayTo.ToDouble() /
               game.payoffs.FieldPayoffs[FieldRow(die1, die2)].PayPer.ToDouble();
      case kHard4 + 1:
        return total == 6 ? (die1 == 3 ? Pays(bet) : -1) : total == 7 ? -1 : 0;
      case kBig6:
      case kPlace4 + 2:
        return total == 6 ? Pays(bet) : total == 7 ? -1 : 0;
      default:
        ADD_FAILURE() << "no rule for " << BetName(bet);
        return 0;
    }
  }
  void Move(int total) {
    const auto next = [total](int number) {
      if (number != 0) return total == number || total == 7 ? 0 : number;
      return total == 7 || total == 11 || IsCraps(total) ? 0 : total;
    };
    if (point != 0 || come != 0) come = next(come);
    point = next(point);
  }
};

struct Spread {
  double mean = 0;
  double stdev = 0;
};

constexpr int kHours = 12'000;

Spread Simulated(const Game& game, const BetAmounts& amounts, const std::array<double, 36>& weights) {
  PlainTable table{game};
  std::mt19937 random(20'261);
  std::discrete_distribution<int> dice(weights.begin(), weights.end());
  const int rolls = static_cast<int>(game.settings.SimRollRate.ToDouble());
  double sum = 0;
  double squares = 0;
  for (int hour = 0; hour < kHours; ++hour) {
    double net = 0;
    for (int roll = 0; roll < rolls; ++roll) {
      const int pair = dice(random);
      for (const auto& [bet, amount] : amounts) net += amount * table.Net(bet, pair / 6 + 1, pair % 6 + 1);
      table.Move(pair / 6 + pair % 6 + 2);
    }
    sum += net;
    squares += net * net;
  }
  const double mean = sum / kHours;
  return {mean, std::sqrt(squares / kHours - mean * mean)};
}

const BetAmounts kSets[] = {
    {{kPassLine, 10}, {kDontPass, 10}},
    {{kPlace4 + 2, 12}, {kBig6, 6}},
    {{kField, 5}, {kTwo, 1}, {kTwelve, 1}},
    {{kPassLine, 10}, {kPassLineOdds, 20}, {kCome, 10}},
    {{kDontPass, 10}, {kDontPassOdds, 12}, {kDontCome, 10}, {kHard4 + 1, 5}},
    {{kDontPass, 10}, {kPlace4 + 2, 12}, {kField, 5}},
};

TEST(BetsTogether, AnHourStraysAsFarAsItDoesInPlay) {
  test::TestTable table;
  Game& game = *table.game;
  for (const bool loaded : {false, true}) {
    std::array<double, 36> weights{};
    ProbabilityPlane& cells = game.percentage.ProbMatrix[1];
    for (int pair = 0; pair < 36; ++pair) {
      weights[pair] = loaded ? 800 + 2'000 * (pair % 6) / 5 + 1'500 * ((pair * 7) % 11) / 10 : 1;
      if (loaded)
        cells[ProbabilityRow(pair / 6 + 1, pair % 6 + 1)][ProbabilityColumn(pair / 6 + 1, pair % 6 + 1)] =
            static_cast<std::int32_t>(weights[pair]);
    }
    if (loaded) {
      std::int32_t& last = cells[ProbabilityRow(6, 6)][ProbabilityColumn(6, 6)];
      std::int32_t sum = 0;
      for (int pair = 0; pair < 36; ++pair) sum += static_cast<std::int32_t>(weights[pair]);
      last += kProbabilityWhole - sum;  // the analysis reads thousandths of a percent
      weights[35] = last;
      ASSERT_GT(last, 0);
      ProbabilitiesChanged(game.percentage);
      ASSERT_TRUE(ActivatePercentageDice(game.percentage, true));
    }
    for (const BetAmounts& amounts : kSets) {
      const BetsTogether told = FigureBetsTogether(game, amounts);
      const Spread played = Simulated(game, amounts, weights);
      std::string names = loaded ? "loaded" : "fair";
      for (const auto& [bet, amount] : amounts) names += ", " + BetName(bet);
      EXPECT_EQ(told.unknownBet, 0) << names;
      EXPECT_NEAR(told.stdevPerHour / played.stdev, 1, 0.03) << names << ": " << played.stdev;
      EXPECT_NEAR(told.evPerHour, played.mean, 4 * played.stdev / std::sqrt(kHours)) << names;
    }
  }
}

TEST(BetsTogether, OneBetHasItsOwnFiguresAndLongBetsHaveNoSpreadWithOthers) {
  test::TestTable table;
  const Game& game = *table.game;
  const double rolls = game.settings.SimRollRate.ToDouble();
  for (int bet = 1; bet <= kBets; ++bet) {
    const Advantage figures = FigureAdvantage(game, bet);
    const BetsTogether alone = FigureBetsTogether(game, {{bet, 10}});
    EXPECT_DOUBLE_EQ(alone.stdevPerHour, figures.stdevPerRoll * 10 * std::sqrt(rolls)) << BetName(bet);
    EXPECT_DOUBLE_EQ(alone.evPerHour, figures.evPerRoll * 10 * rolls) << BetName(bet);
    const int other = bet == kField ? kCraps : kField;
    const int unknown = FigureBetsTogether(game, {{bet, 10}, {other, 5}}).unknownBet;
    EXPECT_EQ(unknown, bet >= kAllSmall && bet != kMidway ? bet : 0) << BetName(bet);
  }
}

}  // namespace
}  // namespace tessaryn
