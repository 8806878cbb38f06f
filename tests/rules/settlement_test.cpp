#include "rules/settlement.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/bet_catalogue.h"
#include "dice/roll_file.h"
#include "rules/bet_rules.h"
#include "rules/handling.h"
#include "stats/statistics.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// What one decided bet pays, and what it says of it.
struct PayCase {
  int bet;
  const char* amount;
  bool point;  // a point of 10 on
  int die1;
  int die2;
  const char* net;
};

TEST(Settlement, EveryShapeOfPayoffComesOutToTheCent) {
  const PayCase cases[] = {
      {kPlace4 + 2, "5", true, 2, 4, "5"},  // 7 to 6 of 5 is 5.8333
      {kPlace4 + 2, "6", true, 2, 4, "7"},    {kPlace4 + 2, "12", true, 3, 4, "-12"},
      {kBuy4, "40", true, 2, 2, "78"},   // 80 less a vig of 2
      {kBuy4, "40", true, 3, 4, "-42"},  // with its vig
      {kLay4, "50", true, 3, 4, "24"},   // 25 less 1.25, which is 1
      {kLay4, "50", true, 2, 2, "-51"},       {kHorn, "4", true, 1, 1, "27"},
      {kHorn, "4", true, 5, 6, "12"},         {kHorn, "5", true, 5, 6, "15"},  // 1.25 at 15 less 3.75
      {kWorld, "5", true, 6, 6, "26"},        {kCAndE, "2", true, 5, 6, "14"},
      {kCAndE, "2", true, 1, 2, "6"},         {kField, "10", false, 1, 1, "20"},
      {kField, "10", false, 3, 4, "-10"},     {kHard8, "3", true, 4, 4, "27"},
      {kHard8, "3", true, 2, 6, "-3"},        {kMidway, "4", false, 3, 3, "8"},
      {kMidway, "4", false, 6, 2, "4"},       {kMidway, "4", false, 4, 4, "8"},
      {kSevenPoint7, "5", false, 3, 4, "10"}, {kHop13, "2", false, 3, 1, "30"},
      {kSharpShooter, "5", false, 1, 1, "0"},
  };
  for (const PayCase& c : cases) {
    SCOPED_TRACE("bet " + std::to_string(c.bet) + " of " + c.amount);
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Join(1, "Ann", "2000");
    if (c.point) table.Roll(4, 6);
    table.Bet(1, c.bet, c.amount);
    table.Roll(c.die1, c.die2);
    EXPECT_EQ(table.State().BankrollCurrent[1] - Money("2000"), Money(c.net));
  }
}

TEST(Settlement, AWinBelowTheUnitIsNoDecisionAtAll) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Set("PayoffTable.50", "1 to 4");
  table.Set("RecordEventsActive", "on");
  table.Join(1, "Ann");
  table.Bet(1, kBig6, "2");
  table.Roll(3, 3);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("1000"));
  EXPECT_EQ(table.State().BetAmount(1, kBig6), Money("2"));
  EXPECT_EQ(BetStat(table.game->stats, kWagerStats, kCurrentSession, 1, kBig6, kStatCount), kZero);
  for (const std::string& line : table.Log()) EXPECT_EQ(line.find("won"), std::string::npos);
}

TEST(Settlement, ALossThatIsNoWholeUnitLosesOneMore) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Set("FieldPayoffs.12", "-1 to 2");
  table.Join(1, "Ann");
  table.Bet(1, kField, "5");
  table.Roll(3, 4);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("997"));
}

TEST(Settlement, ABetThatIsOffIsNeitherWonNorLost) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kPlace4, "10");
  table.Roll(3, 4);
  EXPECT_EQ(table.State().BetAmount(1, kPlace4), Money("10"));
  table.Roll(4, 4);
  CallBet(*table.game, 1, kPlace4, false);
  table.Roll(2, 2);
  table.Roll(3, 4);
  EXPECT_EQ(table.State().BetAmount(1, kPlace4), Money("10"));
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("1000"));
}

TEST(Settlement, LineOddsThatWereOffGoBackWithTheirPoint) {
  // The flat bet is made again by handling, so that it is up as the odds are looked at.
  struct Case {
    int flat;
    int die1;
    int die2;
    const char* bankroll;
  };
  const Case cases[] = {{kPassLine, 3, 1, "1010"},
                        {kPassLine, 3, 4, "990"},
                        {kDontPass, 3, 1, "990"},
                        {kDontPass, 3, 4, "1010"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(BetName(c.flat) + " and " + std::to_string(c.die1 + c.die2));
    TestTable table;
    table.Set("RecordEventsActive", "on");
    table.Join(1, "Ann");
    table.State().seats[1].handling.WinHandling = kWinSame;
    table.State().seats[1].handling.LoseHandling = kLoseSame;
    table.Bet(1, c.flat, "10");
    table.Roll(2, 2);
    table.Bet(1, c.flat + 1, "20");
    CallBet(*table.game, 1, c.flat + 1, false);
    table.Roll(c.die1, c.die2);
    EXPECT_EQ(table.State().BetAmount(1, c.flat), Money("10"));
    EXPECT_EQ(table.State().BetAmount(1, c.flat + 1), kZero);
    EXPECT_EQ(table.State().seats[1].OnTableAmount, Money("10"));
    EXPECT_EQ(table.State().BankrollCurrent[1], Money(c.bankroll));
    table.Roll(1, 2);
    const std::vector<std::string> log = table.Log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "      Ann removed $20 bet on " + BetName(c.flat + 1)), 1);
  }
}

// --- Money that doesn't fit.

struct OverflowTable : TestTable {
  OverflowTable() {
    Set("ShooterBetRule", "0");
    game->settings.MessageMask = 0;
    Join(1, "Ann");
    Join(8, "Bob");
    // The change goes around the setting, which would not allow it.
    game->payoffs.PayoffTable[kBig6].PayTo = Currency::FromRaw(Currency::kErrorRaw + 1);
    game->payoffs.PayoffTable[kBig6].PayTo = -game->payoffs.PayoffTable[kBig6].PayTo;
    game->payoffs.PayoffTable[kBig6].PayPer = Currency::FromRaw(1);
    Bet(1, kBig6, "10");
    Bet(1, kField, "5");
    Bet(8, kBig6, "20");
    Bet(8, kHard6, "3");
  }
  void ExpectNothingOfTheBigSix() {
    for (const int seat : {1, 8}) {
      EXPECT_EQ(State().BetAmount(seat, kBig6), Money(seat == 1 ? "10" : "20"));
      EXPECT_EQ(BetStat(game->stats, kWagerStats, kCurrentSession, seat, kBig6, kStatCount), kZero);
      EXPECT_EQ(State().BetStreak(seat, kBig6), 0);
    }
    EXPECT_EQ(State().BankrollCurrent[1], Money("995")) << "the Field lost";
    EXPECT_EQ(State().BankrollCurrent[8], Money("1027")) << "the Hard 6 won";
  }
};

constexpr const char* kOverflowReport = "Overflow, Error #6\r occurred at: SettleBet";

TEST(SettlementOverflow, IsReportedAndNothingOfTheBetIsHalfDone) {
  OverflowTable table;
  table.host.boxes.clear();
  table.Roll(3, 3);
  ASSERT_EQ(table.host.boxes.size(), 2u);
  for (const test::ShownBox& box : table.host.boxes)
    EXPECT_TRUE(Says(box, Msg::kErrorReported, {{"report", kOverflowReport}}));
  table.ExpectNothingOfTheBigSix();
  table.Roll(3, 4);
  EXPECT_EQ(SessionRolls(table.game->stats), 2) << "the table plays on";
}

TEST(SettlementOverflow, StopsATurboRollWithTheReport) {
  OverflowTable table;
  test::WriteFile(table.folder.File("sixes.rol"), std::string(50, static_cast<char>(RollByte(3, 3))));
  ASSERT_EQ(OpenRollFile(table.game->rollFile, table.folder.File("sixes.rol")), "");
  ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderPlayback), "");
  table.host.boxes.clear();
  table.Turbo(40);
  EXPECT_EQ(SessionRolls(table.game->stats), 1);
  EXPECT_EQ(table.State().StopReason, kOverflowReport);
  table.ExpectNothingOfTheBigSix();
}

TEST(SettlementOverflow, ABankrollOrASumAtItsEdgeTakesNoFurtherWin) {
  for (const bool sum : {false, true}) {
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Join(1, "Ann");
    table.Bet(1, kField, "10");
    const Currency most = Currency::FromRaw(std::numeric_limits<std::int64_t>::max() - 50'000);
    Game& game = *table.game;
    Currency& total = game.stats.Bets[kField][1][kAllSessions].kinds[kWinStats][kStatTotal - 1];
    if (sum) total = most;
    if (!sum)
      game.payoffs.FieldPayoffs[1].PayTo = Currency::FromRaw(std::numeric_limits<std::int64_t>::max());
    table.Roll(1, 1);
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(Msg::kErrorReported, {{"report", kOverflowReport}}));
    EXPECT_EQ(table.State().BankrollCurrent[1], Money("1000"));
    EXPECT_EQ(table.State().BetAmount(1, kField), Money("10"));
    EXPECT_EQ(BetStat(game.stats, kWagerStats, kCurrentSession, 1, kField, kStatCount), kZero);
    if (sum) {
      EXPECT_EQ(total, most);
    }
  }
}

}  // namespace
}  // namespace tessaryn
