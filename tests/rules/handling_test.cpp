#include "rules/handling.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/bet_catalogue.h"
#include "dice/roll_file.h"
#include "rules/bet_rules.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// A choice for a decided bet: what is left up, and the note that tells of it.
struct ChoiceCase {
  int bet;
  const char* amount;
  int die1;  // with a point of 10 on
  int die2;
  SettleAnswer answer;
  const char* after;
  const char* title;  // "" no note
  const char* maxBet = "1000";
};

constexpr int kWin6[2] = {2, 4};

SettleAnswer Choice(int choice, int kind = 0, const char* value = "0", int unit = 0) {
  return {choice, kind, Money(value), unit};
}

const ChoiceCase kChoices[] = {
    // Winners: Place 6 of 12 wins 14.
    {kPlace4 + 2, "12", kWin6[0], kWin6[1], Choice(0), "12", ""},
    {kPlace4 + 2, "12", 2, 4, Choice(1), "0", ""},
    {kPlace4 + 2, "12", 2, 4, Choice(2), "12", ""},
    {kPlace4 + 2, "12", 2, 4, Choice(3), "18", "Press 1 Unit"},
    {kPlace4 + 2, "12", 2, 4, Choice(4), "24", "Press Double"},
    {kPlace4 + 2, "12", 2, 4, Choice(5), "26", "Parlay"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 0, "6"), "18", "Same bet plus $6"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 1, "6"), "6", "Same bet minus $6"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 1, "50"), "0", "Same bet minus $50"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 2, "2.5"), "30", "Same bet times 2.50"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 3, "2"), "6", "Same bet divided by 2"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 3, "0"), "12", "Same bet divided by 0"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 2, "9999999.9999"), "1000", "Same bet times 9,999,999.9999"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 0, "50", 1), "18", "Same bet plus 50%"},
    {kPlace4 + 2, "12", 2, 4, Choice(6, 1, "25", 1), "9", "Same bet minus 25%"},
    // Two units of the five-dollar check, each 5 times 6.
    {kPlace4 + 2, "12", 2, 4, Choice(6, 0, "2", 3), "72", "Same bet plus 2 units"},
    {kPlace4 + 2, "12", 2, 4, Choice(7, 0, "30"), "30", "Bet $30"},
    {kPlace4 + 2, "12", 2, 4, Choice(7, 0, "3", 2), "18", "Bet $3 $1 units"},
    {kPlace4 + 2, "12", 2, 4, Choice(7, 0, "0"), "0", "Bet $0"},
    // A press that the maximum cuts.
    {kPlace4 + 2, "12", 2, 4, Choice(4), "20", "Press Double", "20"},
    // Losers: Hard 6 of 10 loses the easy way.
    {kHard6, "10", 2, 4, Choice(0), "0", ""},
    {kHard6, "10", 2, 4, Choice(1), "0", ""},
    {kHard6, "10", 2, 4, Choice(2), "10", ""},
    {kHard6, "10", 2, 4, Choice(3), "0", "Bet remainder"},
    // The unit of 5 is a whole part of 10 and smaller.
    {kHard6, "10", 2, 4, Choice(4), "15", "Press 1 Unit"},
    {kHard6, "10", 2, 4, Choice(5), "20", "Press Double"},
    {kHard6, "10", 2, 4, Choice(6, 2, "1"), "10", "Same bet times 1"},
    {kHard6, "10", 2, 4, Choice(7, 0, "25"), "25", "Bet $25"},
    // A bet that is over comes down whatever was chosen.
    {kPassLineOdds, "10", 4, 6, Choice(5), "0", ""},
    // Out of range is no choice.
    {kPlace4 + 2, "12", 2, 4, Choice(9), "12", ""},
};

void PrepareFor(TestTable& table, const ChoiceCase& c) {
  table.Join(1, "Ann");
  table.Bet(1, kPassLine, "10");
  table.Roll(4, 6);
  table.Bet(1, c.bet, c.amount);
  table.Set("MaxBet", c.maxBet);
  table.host.boxes.clear();
}

void ExpectChoice(TestTable& table, const ChoiceCase& c) {
  EXPECT_EQ(table.State().BetAmount(1, c.bet), Money(c.after));
  std::vector<test::ShownBox> notes;
  for (const test::ShownBox& box : table.host.boxes)
    if ((box.id == Msg::kBetIncreasedBy || box.id == Msg::kBetDecreasedBy || box.id == Msg::kBetRemains) &&
        test::Says(box, box.id, {{"bet", BetName(c.bet)}}))
      notes.push_back(box);
  ASSERT_EQ(notes.size(), *c.title == 0 ? 0u : 1u);
  if (*c.title == 0) return;
  const Currency change = Money(c.after) - Money(c.amount);
  EXPECT_TRUE(
      Says(notes[0],
           change > kZero   ? Msg::kBetIncreasedBy
           : change < kZero ? Msg::kBetDecreasedBy
                            : Msg::kBetRemains,
           {{"title", c.title}, {"player", "Ann"}, {"bet", BetName(c.bet)}, {"amount", Abs(change)}}));
}

TEST(Handling, TheDialogsAnswerIsCarriedOutAndAStoredChoiceDoesTheSame) {
  for (const ChoiceCase& c : kChoices)
    for (const bool stored : {false, true}) {
      if (stored && (c.answer.choice < 1 || c.answer.choice > 7)) continue;
      SCOPED_TRACE(BetName(c.bet) + " choice " + std::to_string(c.answer.choice) + " " + c.title);
      TestTable table;
      PrepareFor(table, c);
      Handling& handling = table.State().seats[1].handling;
      if (stored) handling.WinHandling = handling.LoseHandling = c.answer.choice;
      for (int slot = 4; stored && slot < 8; ++slot) {
        handling.AdjustKind[slot] = c.answer.adjustKind;
        handling.AdjustValue[slot] = c.answer.adjustValue;
        handling.AdjustUnit[slot] = c.answer.adjustUnit;
      }
      // The Pass Line may be asked about too: its answer is the safe one.
      if (c.bet == kPassLineOdds) table.host.settleAnswers.push_back({});
      table.host.settleAnswers.push_back(c.answer);
      table.Roll(c.die1, c.die2);
      ExpectChoice(table, c);
      EXPECT_EQ(std::ranges::count(table.host.settleQuestions, BetId(c.bet), &SettleQuestion::bet),
                stored ? 0 : 1);
    }
}

TEST(Handling, ATurboRollNeitherAsksNorTells) {
  TestTable table;
  table.Join(1, "Ann");
  table.Bet(1, kPassLine, "10");
  test::WriteFile(table.folder.File("r.rol"),
                  std::string{static_cast<char>(RollByte(3, 4)), static_cast<char>(RollByte(5, 6))});
  ASSERT_EQ(OpenRollFile(table.game->rollFile, table.folder.File("r.rol")), "");
  ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderPlayback), "");
  table.host.boxes.clear();
  table.host.settleAnswers = {Choice(4), Choice(4)};
  table.Turbo(2);
  EXPECT_TRUE(table.host.settleQuestions.empty());
  EXPECT_EQ(table.State().BetAmount(1, kPassLine), Money("10"));
  EXPECT_TRUE(table.host.boxes.empty()) << table.host.LastText();
}

TEST(Handling, TheQuestionTellsWhatWasPaid) {
  TestTable table;
  table.Join(1, "Ann", "2000");
  table.Bet(1, kPassLine, "10");
  table.Roll(4, 6);
  table.Bet(1, kBuy4, "50");
  table.Bet(1, kPlace4 + 2, "5");
  table.Roll(2, 2);
  table.Roll(2, 4);
  ASSERT_EQ(table.host.settleQuestions.size(), 2u);
  const SettleQuestion& buy = table.host.settleQuestions[0];
  EXPECT_TRUE(buy.won);
  EXPECT_EQ(buy.gross, Money("97"));
  EXPECT_EQ(buy.net, Money("97"));
  EXPECT_EQ(buy.vig, Money("3"));
  EXPECT_EQ(buy.pressUnit, Money("25"));
  const SettleQuestion& place = table.host.settleQuestions[1];
  EXPECT_EQ(place.gross, Money("5.8333"));
  EXPECT_EQ(place.net, Money("5"));
}

TEST(Handling, AParlayOfAVigBetBetsTheWinningsBeforeVig) {
  TestTable table;
  table.Join(1, "Ann", "2000");
  table.Bet(1, kPassLine, "10");
  table.Roll(4, 6);
  table.Bet(1, kBuy4, "40");
  table.State().seats[1].handling.WinHandling = kWinParlay;
  table.Roll(2, 2);
  EXPECT_EQ(table.State().BetAmount(1, kBuy4), Money("120"));
  EXPECT_EQ(table.State().seats[1].BuyVigHeld[0], Money("6"));
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("2078"));
}

TEST(Handling, AutomaticOddsFollowAFlatBetThatHandlingChanged) {
  // Come 6 with full odds of 50, both paid as they rode; then handling makes each a bet of what it is told.
  struct Case {
    const char* fixed;
    bool automatic;
    const char* odds;
  };
  for (const Case& c : {Case{"30", true, "150"}, Case{"30", false, "30"}, Case{"10", true, "10"}}) {
    SCOPED_TRACE(std::string("to ") + c.fixed + (c.automatic ? " with automatic odds" : ""));
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Set("OddsCalcMethod", "1");
    table.Join(1, "Ann");
    Handling& handling = table.State().seats[1].handling;
    handling.AutoTakeOdds = true;
    handling.WinHandling = kWinFixed;
    handling.AdjustValue[6] = Money(c.fixed);
    table.Roll(4, 6);
    table.Bet(1, kCome, "10");
    table.Roll(2, 4);
    EXPECT_EQ(table.State().BetAmount(1, kComeOdds4 + 2), Money("50"));
    handling.AutoTakeOdds = c.automatic;
    table.Roll(2, 4);
    EXPECT_EQ(table.State().BankrollCurrent[1], Money("1070"));
    EXPECT_EQ(table.State().BetAmount(1, kCome4 + 2), Money(c.fixed));
    EXPECT_EQ(table.State().BetAmount(1, kComeOdds4 + 2), Money(c.odds));
  }
}

TEST(Handling, ALostBetThatMayNotBePressedStaysAsFarAsThereIsMoneyForIt) {
  for (const char* bankroll : {"5", "9", "10"}) {
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Join(1, "Ann", bankroll);
    table.State().seats[1].handling.LoseHandling = kLoseDouble;
    table.Bet(1, kFire, "5");
    table.Roll(2, 2);
    table.host.boxes.clear();
    table.Roll(3, 4);
    EXPECT_EQ(table.State().BetAmount(1, kFire), table.State().BankrollCurrent[1]) << bankroll;
    ASSERT_EQ(table.host.boxes.size(), 2u);
    EXPECT_TRUE(Says(table.host.boxes[0], Msg::kHandHasStarted));
    EXPECT_EQ(table.host.boxes[1].title, MessageText<Msg::kActionPressDouble>())
        << "the refusal, and what became of the bet";
  }
}

TEST(Handling, OddsThatWereOffComeBackWithoutAPayoff) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Roll(4, 6);
  table.Bet(1, kCome, "10");
  table.Roll(2, 4);
  table.Bet(1, kComeOdds4 + 2, "20");
  table.Roll(4, 6);
  table.Roll(3, 4);
  EXPECT_EQ(table.State().BetAmount(1, kComeOdds4 + 2), kZero);
  EXPECT_EQ(table.State().BetAmount(1, kCome4 + 2), kZero);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("990"));
  bool asked = false;
  for (const SettleQuestion& question : table.host.settleQuestions) asked = asked || question.offOdds;
  EXPECT_TRUE(asked);
}

}  // namespace
}  // namespace tessaryn
