#include "rules/advantage.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>

#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/comps.h"
#include "rules/edge_table.h"
#include "state/game.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

class AdvantageTest : public testing::Test {
 protected:
  test::TestHost host_;
  std::unique_ptr<Game> game_ = StartGame(host_, test::kBinFolder, testing::TempDir());

  void Set(const char* name, const char* value) {
    std::string error;
    ASSERT_TRUE(SetSetting(*game_, name, 0, value, error)) << error;
  }
  double PerDecision(int bet) { return FigureAdvantage(*game_, bet).evPerDecision; }
};

TEST_F(AdvantageTest, HouseEdgesAreThoseThatTheLiteratureAgreesOn) {
  struct Row {
    const char* bet;
    double edge;
  };
  for (const Row& row : {Row{"passline", -0.014141}, Row{"come", -0.014141},  Row{"dontpass", -0.014026},
                         Row{"dontcome", -0.014026}, Row{"passlineodds", 0},  Row{"dontpassodds", 0},
                         Row{"come6", -0.090909},    Row{"comeodds4", 0},     Row{"dontcomeodds9", 0},
                         Row{"place4", -0.066667},   Row{"place5", -0.04},    Row{"place6", -0.015152},
                         Row{"big6", -0.090909},     Row{"hard4", -0.111111}, Row{"hard6", -0.090909},
                         Row{"field", -0.055556},    Row{"two", -0.138889},   Row{"three", -0.111111},
                         Row{"seven", -0.166667},    Row{"craps", -0.111111}, Row{"horn", -0.125},
                         Row{"world", -0.133333},    Row{"hop22", -0.138889}, Row{"hop14", -0.111111}})
    EXPECT_NEAR(PerDecision(BetByName(row.bet)), row.edge, 5e-7) << row.bet;
  EXPECT_NEAR(FigureAdvantage(*game_, kPassLine).rollsPerDecision, 3.38, 1e-9);
  EXPECT_NEAR(FigureAdvantage(*game_, kPassLine).evPerRoll, -0.014141414 / 3.3757575, 5e-7);
}

TEST_F(AdvantageTest, EveryBetIsWorthWhatItsRulesSay) {
  for (int bet = 1; bet <= kBets; ++bet) {
    // A Come bet is counted here to its end, there until it moves.
    if (bet == kCome || bet == kDontCome) continue;
    const edges::BetEdge edge = edges::EdgeOf(bet);
    const double laidOut = edge.stake + (HasVig(bet) ? 1 : 0);
    const Advantage figures = FigureAdvantage(*game_, bet);
    // There a push is no decision; the World's seven is one here.
    const double decided = bet == kWorld ? 30.0 / 36.0 : 1;
    EXPECT_NEAR(figures.evPerDecision, decided * edge.mean / laidOut, 1e-6) << BetName(bet);
    if (bet == kWorld) continue;
    EXPECT_NEAR(figures.stdevPerDecision, std::sqrt(edge.variance) / laidOut, 1e-6) << BetName(bet);
  }
}

// Plays a bet by hand, roll by roll, straight from the words of its rules.
struct Played {
  double sum = 0;
  double squares = 0;
  double decisions = 0;
  double rolls = 0;
};

TEST_F(AdvantageTest, HandAndCountBetsAgreeWithPlay) {
  // A skewed matrix, so that no symmetry of fair dice hides a fault.
  for (const auto& [die1, die2, value] : {std::tuple{1, 6, 6000.0}, {3, 3, 9000.0}, {5, 5, 500.0}})
    ASSERT_TRUE(SetProbabilityCell(game_->percentage, ProbabilityRow(die1, die2),
                                   ProbabilityColumn(die1, die2), value, true));
  ASSERT_TRUE(ActivatePercentageDice(game_->percentage, true));
  std::vector<double> weights;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      weights.push_back(
          game_->percentage.ProbMatrix[1][ProbabilityRow(die1, die2)][ProbabilityColumn(die1, die2)]);
  std::mt19937_64 random(20260105);
  std::discrete_distribution<int> pairs(weights.begin(), weights.end());
  Played fire;
  Played shooter;
  Played line;
  Played fourRolls;
  const auto pays = [](const PayoffRecord& record) {
    return record.PayTo.ToDouble() / record.PayPer.ToDouble();
  };
  const auto add = [](Played& played, double result, double rolls) {
    played.sum += result;
    played.squares += result * result;
    played.decisions += 1;
    played.rolls += rolls;
  };
  for (int hand = 0; hand < 400'000; ++hand) {
    int point = 0;
    int rolls = 0;
    int made = 0;
    int lineWins = 0;
    unsigned points = 0;
    int run = 0;
    for (;;) {
      const int pair = pairs(random);
      const int total = pair / 6 + pair % 6 + 2;
      ++rolls;
      run = total == 7 ? 0 : run + 1;
      if (point == 0) {
        if (total == 7 || total == 11) ++lineWins;
        if (IsBoxNumber(total)) point = total;
      } else if (total == point) {
        ++made;
        ++lineWins;
        points |= 1u << point;
        point = 0;
      } else if (total == 7) {
        break;
      }
    }
    add(fire, pays(game_->payoffs.FirePayoffs[std::popcount(points)]), rolls);
    add(shooter, pays(game_->payoffs.SharpShooterPayoffs[std::min(made + 1, 11)]), rolls);
    add(line, pays(game_->payoffs.RideTheLinePayoffs[std::min(lineWins + 1, 12)]), rolls);
    int count = 0;
    while (count < 4 && [&] {
      const int pair = pairs(random);
      return pair / 6 + pair % 6 + 2 != 7;
    }())
      ++count;
    add(fourRolls, count == 4 ? pays(game_->payoffs.PayoffTable[kFourRolls]) : -1, std::min(count + 1, 4));
  }
  for (const auto& [bet, played] : {std::pair{kFire, &fire},
                                    {kSharpShooter, &shooter},
                                    {kRideTheLine, &line},
                                    {kFourRolls, &fourRolls}}) {
    const double mean = played->sum / played->decisions;
    const double error = std::sqrt((played->squares / played->decisions - mean * mean) / played->decisions);
    EXPECT_NEAR(PerDecision(bet), mean, 4 * error) << BetName(bet);
    EXPECT_NEAR(FigureAdvantage(*game_, bet).rollsPerDecision, played->rolls / played->decisions, 0.05)
        << BetName(bet);
  }
}

TEST_F(AdvantageTest, VigBarAndZeroOutcomesAreSeenAtOnce) {
  // 4 and 10 at 5%: up front the bet is what is left of the outlay.
  EXPECT_NEAR(PerDecision(kBuy4), (3 * (2 / 1.05 - (1 - 1 / 1.05)) - 6) / 9, 1e-6);
  EXPECT_NEAR(PerDecision(kLay4), (6 * (0.5 / 1.025 - (1 - 1 / 1.025)) - 3) / 9, 1e-6);
  Set("BuyVigUpFront", "off");
  Set("LayVigUpFront", "off");
  EXPECT_NEAR(PerDecision(kBuy4), (3 * 1.95 - 6) / 9, 1e-6);
  EXPECT_NEAR(PerDecision(kLay4), (6 * 0.475 - 3) / 9, 1e-6);
  Set("BarNumber", "2");
  EXPECT_NEAR(PerDecision(kDontPass), -0.014026, 1e-6);
  const Advantage place = FigureAdvantage(*game_, kPlace4 + 2);
  Set("IncludeZeroOutcomes", "on");
  const Advantage everyRoll = FigureAdvantage(*game_, kPlace4 + 2);
  EXPECT_EQ(everyRoll.evPerDecision, place.evPerRoll);
  EXPECT_EQ(everyRoll.evPerRoll, place.evPerRoll);
  EXPECT_EQ(everyRoll.rollsPerDecision, 1);
}

TEST_F(AdvantageTest, BetsThatTheDiceNeverDecideAreWorthNothing) {
  // Dice that only ever show 1 and 2.
  for (int total : {2, 4, 5, 6, 7, 8, 9, 10, 11, 12})
    SetProbabilityCell(game_->percentage, 1, total - 1, 0, true);
  SetProbabilityCell(game_->percentage, 1, 2, 100'000, true);
  ASSERT_TRUE(ActivatePercentageDice(game_->percentage, true));
  for (const int bet : {kPlace4 + 0, kLay4 + 2, static_cast<int>(kHard6), static_cast<int>(kFire),
                        static_cast<int>(kAllSmall), static_cast<int>(kPassLineOdds)}) {
    const Advantage figures = FigureAdvantage(*game_, bet);
    EXPECT_EQ(figures.evPerRoll, 0) << BetName(bet);
    EXPECT_EQ(figures.rollsPerDecision, 0) << BetName(bet);
  }
  EXPECT_NEAR(PerDecision(kThree), 15, 1e-6);
  EXPECT_NEAR(FigureAdvantage(*game_, kThree, false).evPerDecision, -0.111111, 1e-6);
}

TEST_F(AdvantageTest, TheWholeTableIsThereAtOnce) {
  const auto start = std::chrono::steady_clock::now();
  const std::vector<AdvantageRow> rows = AdvantageTable(*game_);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  if (std::getenv("TESSARYN_SANITIZED") == nullptr) {
    EXPECT_LT(taken.count(), 0.02);
  }
  std::vector<int> listed(kBets + 1, 0);
  for (const AdvantageRow& row : rows)
    if (IsTableBet(row.bet)) ++listed[row.bet];
  for (int bet = 1; bet <= kBets; ++bet)
    EXPECT_EQ(listed[bet], bet == kCome || bet == kDontCome ? 0 : 1) << BetName(bet);
  EXPECT_EQ(rows[0].caption, "Pass/Come 4");
  EXPECT_EQ(rows[28].caption, "Passline/Come (c.o.)");
}

TEST_F(AdvantageTest, CompsFollowTheirBase) {
  Statistics& stats = game_->stats;
  // A hundred Pass Line bets of $10 and some that don't count.
  BetStats& pass = stats.Bets[kPassLine][1][kCurrentSession];
  pass.kinds[kWagerStats][kStatCount - 1] = Currency::Dollars(100);
  pass.kinds[kWagerStats][kStatTotal - 1] = Currency::Dollars(1000);
  BetStats& field = stats.Bets[kField][1][kCurrentSession];
  field.kinds[kWagerStats][kStatCount - 1] = Currency::Dollars(5);
  field.kinds[kWagerStats][kStatTotal - 1] = Currency::Dollars(50);
  stats.RollTotals[Slot(kCurrentSession, 0)] = stats.PairCounts[Slot(kCurrentSession, 0)][0] = 360;
  stats.RollTotals[Slot(kAllSessions, 0)] = 360;
  Set("CompBetFlags.field", "off");
  Comps comps = FigureComps(*game_, kCurrentSession, 1);
  EXPECT_EQ(comps.totalAction, Currency::Dollars(1000));
  EXPECT_EQ(comps.decisions, 100);
  EXPECT_EQ(comps.compAmount, Currency::FromDouble(1000 * 0.014141 * 0.3));
  Set("CompBase", "1");
  EXPECT_EQ(FigureComps(*game_, kCurrentSession, 1).compAmount, Currency::Dollars(300));
  Set("CompBase", "2");
  comps = FigureComps(*game_, kCurrentSession, 1);
  EXPECT_EQ(comps.averageAction, Currency::Dollars(30));  // $10 a decision, three hours
  EXPECT_EQ(comps.compAmount, Currency::Dollars(9));
  Set("CompBetFlags.passline", "off");
  EXPECT_EQ(FigureComps(*game_, kCurrentSession, 1).compAmount, kZero);
}

}  // namespace
}  // namespace tessaryn
