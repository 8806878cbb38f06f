#include "rules/advantage.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/comps.h"
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

// Fair dice, the original payoffs, vig up front, by counting the 36 rolls by hand: per unit laid out.
struct Worth {
  double mean;   // of a decision
  double stdev;  // 0: not asked
  const char* bets;
};
constexpr Worth kWorths[] = {
    {-0.024390, 0.689860, "lay4 lay10"},
    {-0.032258, 0.790158, "lay5 lay9"},
    {-0.040000, 0.876356, "lay6 lay8"},
    {0.333333, 0.942809, "dontcome4 dontcome10"},
    {0.200000, 0.979796, "dontcome5 dontcome9"},
    {0.090909, 0.995859, "dontcome6 dontcome8"},
    {0, 0.707107, "dontcomeodds4 dontcomeodds10"},
    {0, 0.816497, "dontcomeodds5 dontcomeodds9"},
    {0, 0.912871, "dontcomeodds6 dontcomeodds8"},
    {-0.333333, 0.942809, "come4 come10"},
    {-0.200000, 0.979796, "come5 come9"},
    {-0.090909, 0.995859, "come6 come8 big6 big8"},
    {0, 1.414214, "comeodds4 comeodds10"},
    {0, 1.224745, "comeodds5 comeodds9 passlineodds"},
    {0, 1.095445, "comeodds6 comeodds8"},
    {-0.066667, 1.319933, "place4 place10"},
    {-0.040000, 1.175755, "place5 place9"},
    {-0.015152, 1.078847, "place6 place8"},
    {-0.047619, 1.346870, "buy4 buy10"},
    {-0.047619, 1.166424, "buy5 buy9"},
    {-0.047619, 1.043281, "buy6 buy8"},
    {-0.014141, 0.999900, "passline come"},
    {-0.014026, 0.999902, "dontpass dontcome"},
    {0, 0.833333, "dontpassodds"},
    {-0.055556, 1.078694, "field midway"},
    {-0.111111, 2.514157, "hard4 hard10 craps point7"},
    {-0.090909, 2.874798, "hard6 hard8"},
    {-0.138889, 5.094402, "two twelve hop22 hop33 hop44 hop55"},
    {-0.111111, 3.664983, "three eleven hop13 hop14 hop15 hop16 hop23 hop24 hop25 hop26 hop34 hop35 hop36"},
    {-0.111111, 3.664983, "hop45 hop46"},
    {-0.166667, 1.863390, "seven"},
    {-0.111111, 2.131481, "cande"},
    {-0.125000, 2.085416, "horn"},
    {-0.133333, 0, "world"},  // its seven, a push, is no decision of the table
    {-0.166667, 0.986013, "over7 under7"},
    {-0.077613, 5.606491, "allsmall alltall"},
    {-0.074644, 12.728172, "makeall"},
    {-0.035494, 0.999370, "4rollsno7"},
    {-0.055556, 1.544604, "7point7"},
    {-0.218744, 5.713749, "sharpshooter"},
    {-0.102127, 4.822020, "ridetheline"},
    {-0.207628, 16.425638, "fire"},
};

TEST_F(AdvantageTest, EveryBetIsWorthWhatItsRulesSay) {
  BetSet told;
  for (const Worth& worth : kWorths) {
    std::istringstream bets(worth.bets);
    for (std::string bet; bets >> bet;) {
      told.Add(BetByName(bet));
      const Advantage figures = FigureAdvantage(*game_, BetByName(bet));
      EXPECT_NEAR(figures.evPerDecision, worth.mean, 1e-6) << bet;
      if (worth.stdev != 0) {
        EXPECT_NEAR(figures.stdevPerDecision, worth.stdev, 1e-6) << bet;
      }
    }
  }
  EXPECT_EQ(told, kAllTableBets);
  EXPECT_NEAR(FigureAdvantage(*game_, kPassLine).rollsPerDecision, 3.38, 1e-9);
  EXPECT_NEAR(FigureAdvantage(*game_, kPassLine).evPerRoll, -0.014141414 / 3.3757575, 5e-7);
}

TEST_F(AdvantageTest, ZeroOutcomesMakeEveryRollADecision) {
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
