#include <gtest/gtest.h>

#include <filesystem>

#include "autobet/run_helpers.h"
#include "dice/percentage_dice.h"
#include "rules/bankroll.h"
#include "rules/consistency.h"
#include "stats/statistics.h"
#include "support/places.h"

namespace tessaryn {
namespace {

// What ten thousand rolls of a sample bring, as a part of what it wagered: the house's edge on its bets and
// a wide margin for luck.
struct SampleCase {
  int number;
  double leastWagered;
  double least;
  double most;
};

constexpr SampleCase kSamples[] = {
    {1, 50'000, -0.10, 0.10},  {2, 40'000, -0.10, 0.10},  {3, 50'000, -0.10, 0.10},
    {4, 30'000, -0.10, 0.10},  {5, 60'000, -0.10, 0.05},  {6, 50'000, -0.15, 0.10},
    {7, 20'000, -0.12, 0.10},  {8, 20'000, -0.12, 0.08},  {9, 60'000, -0.12, 0.06},
    {10, 20'000, -0.30, 0.15}, {11, 20'000, -0.10, 0.10}, {12, 50'000, -0.10, 0.10},
    {13, 40'000, -0.12, 0.12},
};

TEST(Samples, EachPlaysTenThousandRollsWithAPlausibleOutcome) {
  for (const SampleCase& sample : kSamples) {
    SCOPED_TRACE("Sample" + std::to_string(sample.number));
    script_test::ScriptTable table;
    Game& game = *table.game;
    std::string error;
    PercentageDice setter;
    ApplyShooterEffectiveness(setter, 20, kAxis16, 20, kAxis16);
    ASSERT_TRUE(SaveProbabilityFile(setter, table.folder.path + "setter.prb", error)) << error;
    const std::string path =
        std::string(test::kSourceFolder) + "/data/samples/Sample" + std::to_string(sample.number) + ".bet";
    for (const int seat : {1, 2}) {
      ASSERT_TRUE(OpenScript(game, seat, path, error)) << error;
      const ScriptCheck check = CheckScript(game, seat);
      ASSERT_TRUE(check.ok) << check.title << ": " << check.text;
      SetScriptPermission(game, seat, ScriptPermission::kReset, true);
      SetScriptPermission(game, seat, ScriptPermission::kFiles, true);
      SetBankroll(game, seat, Currency::Dollars(100'000));
      SetScriptActive(game, seat, seat == 1 || sample.number == 11);
    }
    table.Turbo(10'000);
    EXPECT_EQ(RollCount(game.stats, kAllSessions, 0, 0), 10'000);
    double wagered = 0;
    double net = 0;
    for (int bet = 1; bet <= kBets; ++bet) {
      wagered += BetStat(game.stats, kWagerStats, kAllSessions, 1, bet, kStatTotal).ToDouble();
      net += BetStat(game.stats, kWinStats, kAllSessions, 1, bet, kStatTotal).ToDouble() -
             BetStat(game.stats, kLossStats, kAllSessions, 1, bet, kStatTotal).ToDouble();
    }
    EXPECT_GT(wagered, sample.leastWagered);
    EXPECT_GT(net / wagered, sample.least);
    EXPECT_LT(net / wagered, sample.most);
    EXPECT_EQ(CheckConsistency(game), "");
    if (sample.number == 12) {
      EXPECT_GT(table.Bet(101), 5) << "sessions must have been played";
      EXPECT_GT(std::filesystem::file_size(table.folder.path + "output/Sample12 results.txt"), 100u);
    }
    if (sample.number == 13) {
      EXPECT_TRUE(game.percentage.PercentageDiceActive);
      EXPECT_GT(table.Bet(101), table.Bet(102));
    }
  }
}

}  // namespace
}  // namespace tessaryn
