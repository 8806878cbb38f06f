// The luck of whole sessions as they are played, through runs at full speed.
#include "play/session_luck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>
#include <random>

#include "dice/percentage_dice.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "rules/session.h"
#include "stats/statistics.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

// The houses that the analysis is tried in: fair dice, faces or cells of unequal weight, vig and bar.
struct House {
  const char* name;
  int loading;  // 0 fair, 1 by faces, 2 by cells
  const char* vigUpFront;
  const char* barNumber;
};
constexpr House kHouses[] = {
    {"FairUpFrontBar12", 0, "on", "12"},       {"FairOnWinBar2", 0, "off", "2"},
    {"LoadedFacesUpFrontBar2", 1, "on", "2"},  {"LoadedFacesOnWinBar12", 1, "off", "12"},
    {"LoadedCellsOnWinBar12", 2, "off", "12"}, {"LoadedCellsUpFrontBar2", 2, "on", "2"}};
void PrintTo(const House& house, std::ostream* out) { *out << house.name; }

// TESSARYN_LUCK_ROLLS sets the length; a million takes two minutes a house in a build with checks.
std::int64_t RollsWanted() { return test::LengthOf("TESSARYN_LUCK_ROLLS", 15'000, 2'000); }

constexpr int kTablePlayers = 3;
const Currency kBankroll = Currency::Dollars(5000);

// Between the rolls its players make, raise, move and take down bets at random.
struct LuckHost : test::TestHost, LuckKeeper {
  bool plays = false;
  std::mt19937 random{1123};

  int Pick(int first, int last) {
    return first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1));
  }
  bool Yield(Game& game) override {
    for (int bets = plays ? Pick(0, 3) : 0; bets > 0; --bets) {
      const int seat = Pick(1, kTablePlayers);
      const int bet = Pick(1, 2) == 1 ? Pick(1, kBets) : Pick(kPassLine, kDontCome);
      const Currency amount = game.table.BetAmount(seat, bet);
      const int what = Pick(1, 4);
      if (what > 2 && amount < Currency::Dollars(200))
        PlaceBet(game, seat, bet, Currency::Dollars(Pick(1, 40)));
      else if (PlaceBet(game, seat, bet, -amount) < kZero && what == 1)
        PlaceBet(game, seat, Pick(1, kBets), amount);
    }
    return TestHost::Yield(game);
  }
  void ShowMessage(Game&, MessageBox& box) override { box.MsgResult = kResultOk; }
};

struct LuckOfSession : testing::TestWithParam<House> {
  test::TempFolder folder;
  LuckHost host;
  std::unique_ptr<Game> game = StartGame(host, test::kBinFolder, folder.Path());

  void SetUp() override {
    const House& house = GetParam();
    std::string error;
    for (int seat = 1; seat <= kTablePlayers; ++seat)
      ASSERT_TRUE(JoinPlayer(*game, seat, std::string("Player") + "XABC"[seat], kBankroll, error)) << error;
    std::vector<SettingChange> rules{{"BuyVigUpFront", 0, house.vigUpFront},
                                     {"LayVigUpFront", 0, house.vigUpFront},
                                     {"BarNumber", 0, house.barNumber}};
    for (const auto& [name, value] : {std::pair{"ShooterBetRule", "0"},
                                      {"AllowNegativeBankroll", "on"},
                                      {"WinHandling", "1"},
                                      {"LoseHandling", "1"},
                                      {"MessageMask", "0"}})
      rules.push_back({name, 0, value});
    ASSERT_TRUE(SetSettings(*game, rules, error)) << error;
    if (house.loading > 0) Load(house.loading == 1);
    SelectGenerator(*game, 1);
    bool seeded = true;
    SeedRng(*game, seeded, Currency::Dollars(2027));
    WatchLuck(*game);
  }
  void Load(bool byFaces) {
    constexpr int kFaces[] = {23, 13, 16, 14, 11, 23};
    ProbabilityPlane& cells = game->percentage.ProbMatrix[1];
    cells = {};
    std::int32_t left = kProbabilityWhole;
    for (int pair = 35; pair >= 0; --pair) {
      const int die1 = pair / 6 + 1;
      const int die2 = pair % 6 + 1;
      const std::int32_t share = byFaces ? kFaces[die1 - 1] * kFaces[die2 - 1] * 10 : host.Pick(900, 2800);
      left -= cells[ProbabilityRow(die1, die2)][ProbabilityColumn(die1, die2)] = pair == 0 ? left : share;
    }
    ProbabilitiesChanged(game->percentage);
    ASSERT_TRUE(ActivatePercentageDice(game->percentage, true));
  }
  void Turbo(std::int64_t rolls) {
    host.rollTarget = Throws(game->stats) + rolls;
    ToggleAutoRoll(*game);
    ASSERT_EQ(Throws(game->stats), host.rollTarget) << game->table.StopReason;
  }
  // What the player has, with what the bets that are up are worth above their face.
  double Worth(int seat) const {
    return game->table.BankrollCurrent[seat].ToDouble() +
           static_cast<double>(host.sessionLuck.meter.seats[seat].value) / kValueUnit / 10'000;
  }
};

TEST_P(LuckOfSession, HasAMeanOfNothing) {
  WatchLuckOfTurboRolls(*game, true);
  host.plays = true;
  Turbo(RollsWanted());
  for (int seat = 1; seat <= kTablePlayers; ++seat) {
    const SessionLuckFigures figures = SessionLuckOf(*game, seat);
    const double brought = Worth(seat) - kBankroll.ToDouble();
    EXPECT_NEAR(figures.report.actual, brought, 1e-6 * (1 + std::abs(brought)));
    EXPECT_NEAR(figures.report.actual, figures.report.expected + figures.report.luck, 1e-4);
    EXPECT_LT(std::abs(figures.report.deviations), 4) << "seat " << seat << ": " << figures.report.luck;
    EXPECT_GT(figures.counted, RollsWanted() / 4);
    EXPECT_EQ(figures.missed, 0);
  }
}
INSTANTIATE_TEST_SUITE_P(Houses, LuckOfSession, testing::ValuesIn(kHouses),
                         [](const auto& house) { return std::string(house.param.name); });

struct SessionLuckByTheBook : LuckOfSession {};
INSTANTIATE_TEST_SUITE_P(One, SessionLuckByTheBook, testing::Values(kHouses[0]));

// Each bet has its price on its come-out: 7/495, and nothing behind it.
TEST_P(SessionLuckByTheBook, AFlatPassLineCostsItsEdge) {
  for (int n = 0; n < 4000 || game->table.BetAmount(1, kPassLine) > kZero; ++n) {
    if (game->table.Point == 0 && n < 4000) PlaceBet(*game, 1, kPassLine, Currency::Dollars(10));
    RollDice(*game);
  }
  const double wagered =
      BetStat(game->stats, kWagerStats, kCurrentSession, 1, kPassLine, kStatTotal).ToDouble();
  EXPECT_GT(wagered, 5000);
  EXPECT_NEAR(SessionLuckOf(*game, 1).report.expected, -wagered * 7 / 495, 1e-6);
}

// What nobody wants counted is told as such, and leaves no trace in what is counted around it; luck goes with
// its player and ends with the session.
TEST_P(SessionLuckByTheBook, FollowsItsPlayerAndTellsWhatItMissed) {
  host.plays = true;
  Turbo(300);
  EXPECT_EQ(SessionLuckOf(*game, 1).counted, 0);
  WatchLuckOfTurboRolls(*game, true);
  LuckRollComes(host.sessionLuck, *game);  // values as they stand
  const double before = Worth(1);
  Turbo(300);
  WatchLuckOfTurboRolls(*game, false);
  const SessionLuckFigures kept = SessionLuckOf(*game, 1);
  EXPECT_NEAR(kept.report.actual, Worth(1) - before, 1e-6);
  Turbo(200);
  std::string error;
  ASSERT_TRUE(MovePlayer(*game, 1, 6, error)) << error;
  EXPECT_EQ(SessionLuckOf(*game, 6).report.luck, kept.report.luck);
  EXPECT_EQ(SessionLuckOf(*game, 6).missed, 500);
  LeaveTable(*game, 2);
  for (const int seat : {1, 2}) EXPECT_EQ(SessionLuckOf(*game, seat).report.luck, 0);
  NewSession(*game, false, false, false, kCloseRollFile);
  host.plays = false;
  PlaceBet(*game, 6, kField, Currency::Dollars(10));
  RollDice(*game);
  EXPECT_EQ(SessionLuckOf(*game, 6).counted, 1);
  EXPECT_EQ(SessionLuckOf(*game, 6).missed, 0);
  EXPECT_NEAR(SessionLuckOf(*game, 6).report.expected, -10.0 / 18, 1e-9);
}

}  // namespace
}  // namespace tessaryn
