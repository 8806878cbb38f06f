#include "rules/bet_rules.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <sstream>

#include "autobet/language/language.h"
#include "autobet/run/interpreter.h"
#include "dice/percentage_dice.h"
#include "rules/bet_limits.h"
#include "state/bet_families.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// A table on its way to a question, and what the rules leave of it.
struct RuleCase {
  const char* play = "";  // settings and bets by name, rolls as 2.2
  int bet;
  const char* request;
  const char* change;
  test::Said said = {};  // of a player and a bet; Msg::kNone: no box
  const char* bankroll = "5000";
};

const RuleCase kRuleCases[] = {
    // Contracts.
    {.play = "passline 10 2.2",
     .bet = kPassLine,
     .request = "-10",
     .change = "0",
     .said = {Msg::kPassLineIsContract}},
    {.play = "passline 10 2.2 passline 20",
     .bet = kPassLine,
     .request = "-30",
     .change = "-20",
     .said = {Msg::kPassLineIsContract}},
    {.play = "passline 10 2.2 passline 20", .bet = kPassLine, .request = "-20", .change = "-20"},
    {.play = "passline 10", .bet = kPassLine, .request = "-10", .change = "-10"},
    {.play = "2.2 1.1 come6 10", .bet = kCome4 + 2, .request = "-10", .change = "-10"},
    {.play = "passline 10 2.2 come6 10", .bet = kCome4 + 2, .request = "10", .change = "10"},
    {.play = "7point7 10 2.2",
     .bet = kSevenPoint7,
     .request = "-10",
     .change = "0",
     .said = {Msg::kBetIsContract}},
    {.play = "7point7 10", .bet = kSevenPoint7, .request = "-10", .change = "-10"},
    {.play = "dontpass 10 2.2", .bet = kDontPass, .request = "-10", .change = "-10"},
    // Line bets.
    {.play = "AllowPutBets off passline 10 2.2",
     .bet = kPassLine,
     .request = "5",
     .change = "0",
     .said = {Msg::kPutPassLineRefused}},
    {.play = "AllowPutBets off 2.2",
     .bet = kPassLine,
     .request = "5",
     .change = "0",
     .said = {Msg::kPutPassLineRefused}},
    {.play = "passline 10 2.2", .bet = kPassLine, .request = "5", .change = "5"},
    {.bet = kCome, .request = "5", .change = "0", .said = {Msg::kComeNeedsPoint}},
    {.play = "2.2", .bet = kCome, .request = "5", .change = "5"},
    {.bet = kDontCome, .request = "5", .change = "0", .said = {Msg::kDontComeNeedsPoint}},
    {.play = "dontpass 10 2.2",
     .bet = kDontPass,
     .request = "5",
     .change = "0",
     .said = {Msg::kDontPassRefused}},
    {.play = "dontpass 10 2.2 dontpass -5", .bet = kDontPass, .request = "5", .change = "5"},
    {.play = "passline 10",
     .bet = kPassLineOdds,
     .request = "5",
     .change = "0",
     .said = {Msg::kPassLineOddsRefused}},
    {.play = "2.2", .bet = kPassLineOdds, .request = "5", .change = "0", .said = {Msg::kPassLineOddsRefused}},
    {.play = "2.2", .bet = kDontPassOdds, .request = "5", .change = "0", .said = {Msg::kDontPassOddsRefused}},
    {.play = "passline 10 2.2",
     .bet = kPassLineOdds,
     .request = "100",
     .change = "30",
     .said = {Msg::kMaximumBet, {{"limit", Money("30")}}}},
    // On the numbers.
    {.play = "2.2",
     .bet = kComeOdds4 + 1,
     .request = "5",
     .change = "0",
     .said = {Msg::kOddsNeedFlatBet, {{"flat", "Come 5"}}}},
    {.bet = kDontComeOdds4 + 5,
     .request = "5",
     .change = "0",
     .said = {Msg::kOddsNeedFlatBet, {{"flat", "Don't Come 10"}}}},
    {.play = "AllowPutBets off 2.2",
     .bet = kCome4,
     .request = "5",
     .change = "0",
     .said = {Msg::kPutComeRefused}},
    {.play = "2.2", .bet = kCome4, .request = "5", .change = "5"},
    {.bet = kDontCome4, .request = "5", .change = "0", .said = {Msg::kPutDontComeRefused}},
    // Marks, counts and hands.
    {.play = "allsmall 5 1.1",
     .bet = kAllSmall,
     .request = "5",
     .change = "0",
     .said = {Msg::kSmallNumbersMarked}},
    {.play = "alltall 5 6.6",
     .bet = kAllTall,
     .request = "5",
     .change = "0",
     .said = {Msg::kTallNumbersMarked}},
    {.play = "makeall 5 6.6", .bet = kMakeAll, .request = "5", .change = "0", .said = {Msg::kNumbersMarked}},
    {.play = "alltall 5 6.6", .bet = kAllSmall, .request = "5", .change = "5"},
    {.play = "alltall 5 6.6", .bet = kAllTall, .request = "-5", .change = "-5"},
    {.play = "4rollsno7 5 6.6",
     .bet = kFourRolls,
     .request = "5",
     .change = "0",
     .said = {Msg::kCountInProgress}},
    {.play = "2.2", .bet = kPoint7, .request = "5", .change = "0", .said = {Msg::kNeedsComeOutRoll}},
    {.play = "2.2", .bet = kSevenPoint7, .request = "5", .change = "0", .said = {Msg::kNeedsComeOutRoll}},
    {.play = "6.6", .bet = kSharpShooter, .request = "5", .change = "0", .said = {Msg::kHandHasStarted}},
    {.play = "6.6", .bet = kRideTheLine, .request = "5", .change = "0", .said = {Msg::kHandHasStarted}},
    {.play = "6.6", .bet = kFire, .request = "5", .change = "0", .said = {Msg::kHandHasStarted}},
    {.play = "2.2 3.4", .bet = kFire, .request = "5", .change = "5"},
    // Limits.
    {.play = "MinBetMain 10",
     .bet = kField,
     .request = "3",
     .change = "10",
     .said = {Msg::kMinimumBet, {{"limit", Money("10")}}}},
    {.play = "MinBetProp 4",
     .bet = kHard6,
     .request = "1",
     .change = "4",
     .said = {Msg::kMinimumBet, {{"limit", Money("4")}}}},
    {.play = "MinBetMain 10 field 15", .bet = kField, .request = "-6", .change = "-15"},
    {.bet = kField,
     .request = "1000.0001",
     .change = "1000",
     .said = {Msg::kMaximumBet, {{"limit", Money("1,000")}}}},
    {.play = "field 990",
     .bet = kField,
     .request = "11",
     .change = "10",
     .said = {Msg::kMaximumBet, {{"limit", Money("1,000")}}}},
    {.play = "MessageMask 1",
     .bet = kLay4,
     .request = "5000",
     .change = "2000",
     .said = {Msg::kMaximumBet, {{"limit", Money("2,000")}}}},
    {.bet = kHard6,
     .request = "5000",
     .change = "333",
     .said = {Msg::kMaximumBet, {{"limit", Money("333")}}}},
    {.bet = kTwo, .request = "5000", .change = "100", .said = {Msg::kMaximumBet, {{"limit", Money("100")}}}},
    {.bet = kFire, .request = "9", .change = "5", .said = {Msg::kMaximumBet, {{"limit", Money("5")}}}},
    {.bet = kHorn, .request = "5000", .change = "400", .said = {Msg::kMaximumBet, {{"limit", Money("400")}}}},
    {.bet = kWorld,
     .request = "5000",
     .change = "500",
     .said = {Msg::kMaximumBet, {{"limit", Money("500")}}}},
    {.bet = kCAndE,
     .request = "5000",
     .change = "400",
     .said = {Msg::kMaximumBet, {{"limit", Money("400")}}}},
    // A contract above a maximum that was lowered stays.
    {.play = "passline 500 2.2 MaxBet 100",
     .bet = kPassLine,
     .request = "50",
     .change = "0",
     .said = {Msg::kMaximumBetButContract, {{"limit", Money("100")}, {"contract", Money("500")}}}},
    {.bet = kSharpShooter,
     .request = "5000",
     .change = "10",
     .said = {Msg::kMaximumBet, {{"limit", Money("10")}}}},
    // Whole units: an increase goes up, a decrease away from zero.
    {.bet = kField, .request = "2.1", .change = "3"},
    {.play = "field 10", .bet = kField, .request = "-2.1", .change = "-3"},
    {.play = "field 10", .bet = kField, .request = "-200", .change = "-10"},
    {.play = "field 10", .bet = kField, .request = "0", .change = "0"},
    // Money. 5 percent of 48 is 2.40, which rounds to 2: 48 and 2 are all the money there is.
    {.bet = kField,
     .request = "60",
     .change = "50",
     .said = {Msg::kBankrollTooSmall, {{"others", false}}},
     .bankroll = "50"},
    {.play = "big6 45",
     .bet = kField,
     .request = "60",
     .change = "5",
     .said = {Msg::kBankrollTooSmall, {{"others", true}}},
     .bankroll = "50"},
    {.play = "MessageMask 2",
     .bet = kBuy4,
     .request = "60",
     .change = "48",
     .said = {Msg::kBankrollTooSmall, {{"others", false}}},
     .bankroll = "50"},
};

enum class Loudness { kHeard, kTurbo, kMasked };

// A click is one word about one bet; a Turbo-Roll and a masked note change the same without a box.
TEST(BetRules, EveryRequestHasItsChangeAndItsBox) {
  for (const RuleCase& c : kRuleCases)
    for (const Loudness loudness : {Loudness::kHeard, Loudness::kTurbo, Loudness::kMasked}) {
      SCOPED_TRACE(std::string(c.play) + ": " + BetName(c.bet) + " by " + c.request);
      TestTable table;
      table.Set("ShooterBetRule", "0");
      table.Join(1, "Ann", c.bankroll);
      std::istringstream play(c.play);
      for (std::string word, value; play >> word;) {
        if (word[1] == '.')
          table.Roll(word[0] - '0', word[2] - '0');
        else if (play >> value; BetByName(word) != 0)
          table.Bet(1, BetByName(word), value.c_str());
        else
          table.Set(word, value);
      }
      table.host.boxes.clear();
      table.State().TurboRollActive = loudness == Loudness::kTurbo;
      if (loudness == Loudness::kMasked) table.game->settings.MessageMask = 0;
      const Currency before = table.State().BetAmount(1, c.bet);
      EXPECT_EQ(ChangeBet(*table.game, 1, c.bet, Money(c.request)), Money(c.change));
      EXPECT_EQ(table.State().BetAmount(1, c.bet) - before, Money(c.change));
      table.Check("the change");
      const bool told = c.said.id != Msg::kNone && loudness == Loudness::kHeard;
      ASSERT_EQ(table.host.boxes.size(), told ? 1u : 0u) << table.host.LastText();
      if (!told) continue;
      EXPECT_TRUE(table.host.Said(c.said.id, c.said.arguments));
      EXPECT_TRUE(table.host.Said(c.said.id, {{"player", "Ann"}, {"bet", BetName(c.bet)}}));
    }
}

TEST(BetRules, EachBitOfTheMaskSilencesItsOwnNotes) {
  // Bits 1 refusals, 2 bankroll, 4 adjustments; each event asks for one of them.
  struct Event {
    int bit;
    int bet;
    const char* request;
  };
  const Event events[] = {{1, kCome, "5"}, {1, kFire, "9"}, {2, kField, "400"}, {4, kBuy4, "40"}};
  for (const Event& event : events)
    for (int mask = 0; mask < 8; ++mask) {
      TestTable table;
      table.game->settings.MessageMask = mask;
      table.Join(1, "Ann", "300");
      table.Bet(1, event.bet, event.request);
      EXPECT_EQ(table.host.boxes.size(), (mask & event.bit) != 0 ? 1u : 0u)
          << event.bet << " with mask " << mask;
    }
}

TEST(BetRules, WithMoreOnTheTableThanTheBankrollHoldsContractsStay) {
  // Of the 20 on each contract 10 have ridden; the Hard 8 took all the money there was.
  struct Case {
    int bet;
    const char* request;
    const char* change;
    Msg said = Msg::kNone;
  };
  const Case cases[] = {
      {kPassLine, "5", "-10", Msg::kBankrollTooSmall},
      {kPassLine, "0", "-10", Msg::kBankrollTooSmall},
      {kPassLine, "-10", "-10"},
      {kPassLine, "-20", "-10", Msg::kPassLineIsContract},
      {kCome4 + 2, "5", "-10", Msg::kBankrollTooSmall},
      {kField, "5", "-20", Msg::kBankrollTooSmall},
      {kSevenPoint7, "5", "0", Msg::kNeedsComeOutRoll},
      {kDontPass, "5", "0", Msg::kDontPassRefused},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(BetName(c.bet) + " by " + c.request);
    TestTable table;
    table.Join(1, "Ann", "100");
    table.State().seats[1].AllowNegativeBankroll = true;
    table.Bet(1, kPassLine, "10");
    table.Bet(1, kSevenPoint7, "10");
    table.Roll(2, 2);
    table.Bet(1, kCome4 + 2, "10");
    table.Bet(1, kHard8, "100");
    table.Roll(6, 2);
    table.Bet(1, kPassLine, "10");
    table.Bet(1, kCome4 + 2, "10");
    table.Bet(1, kField, "20");
    table.State().seats[1].AllowNegativeBankroll = false;
    table.host.boxes.clear();
    EXPECT_EQ(PlaceBet(*table.game, 1, c.bet, Money(c.request)), Money(c.change));
    EXPECT_EQ(table.host.boxes.size(), c.said == Msg::kNone ? 0u : 1u);
    EXPECT_TRUE(table.host.Said(c.said));
  }
}

TEST(BetRules, TheVigIsToldAsItIsCharged) {
  for (const bool upFront : {true, false}) {
    TestTable table;
    table.Set("BuyVigUpFront", upFront ? "on" : "off");
    table.Set("LayVigUpFront", upFront ? "on" : "off");
    table.Join(1, "Ann");
    table.Bet(1, kBuy4, "40");
    const Msg told = upFront ? Msg::kVigCharged : Msg::kVigOnWin;
    EXPECT_TRUE(table.host.Said(told, {{"vig", Money("2")}}));
    table.Bet(1, kLay4, "120");
    EXPECT_TRUE(table.host.Said(told, {{"vig", Money("3")}}));
    EXPECT_EQ(table.State().seats[1].OnTableAmount, Money(upFront ? "165" : "160"));
  }
}

TEST(BetRules, VigIsRoundedByItsChoice) {
  struct Case {
    const char* amount;
    const char* rounded[3];  // nearest, down, up
  };
  const Case cases[] = {{"5", {"0", "0", "1"}},  {"10", {"1", "0", "1"}}, {"20", {"1", "1", "1"}},
                        {"25", {"1", "1", "2"}}, {"30", {"2", "1", "2"}}, {"35", {"2", "1", "2"}},
                        {"0", {"0", "0", "0"}}};
  TestTable table;
  Game& game = *table.game;
  for (const Case& c : cases)
    for (int rounding = 0; rounding < 3; ++rounding) {
      game.settings.BuyVigRound = game.settings.LayVigRound = rounding;
      EXPECT_EQ(VigFor(game, kBuy4, Money(c.amount)), Money(c.rounded[rounding]))
          << c.amount << " " << rounding;
      // Lay 4 wins half of what is laid.
      const Currency laid = Money(c.amount) + Money(c.amount);
      EXPECT_EQ(VigFor(game, kLay4, laid), Money(c.rounded[rounding])) << c.amount << " " << rounding;
    }
  game.settings.CheckValue[1] = Money("0.25");
  game.settings.BuyVigRound = 0;
  EXPECT_EQ(VigFor(game, kBuy4, Money("25")), Money("1.25"));
  EXPECT_EQ(VigFor(game, kBuy4, Money("27")), Money("1.25"));
  EXPECT_EQ(VigFor(game, kBuy4, Money("27.5")), Money("1.5")) << "a half goes up";
}

// --- Odds.

TEST(BetRulesOdds, EveryMethodGivesWhatItsRuleGivesByHand) {
  struct Case {
    int method;
    const char* multiple;
    int number;
    const char* flat;
    const char* most;
    bool laid = false;
  };
  // No push; minor push, multiples of what pays whole; colour push, the next amount that pays in one colour;
  // single odds of all, then of the flat bet; the choice by the multiple; the ceiling.
  const Case cases[] = {{1, "3", 4, "10", "30"},
                        {1, "2", 5, "7", "14"},
                        {1, "2.5", 6, "5", "12"},
                        {2, "1", 5, "5", "6"},
                        {2, "1", 6, "3", "5"},
                        {2, "1", 6, "2", "2"},
                        {2, "2", 6, "7", "15"},
                        {2, "2", 6, "10", "20"},
                        {2, "1", 4, "7", "7"},
                        {3, "1", 5, "5", "6"},
                        {3, "2", 5, "5", "10"},
                        {3, "1", 5, "25", "30"},
                        {3, "2", 6, "10", "25"},
                        {3, "2", 4, "10", "20"},
                        {4, "1", 5, "10", "10"},
                        {4, "1", 5, "15", "20"},
                        {4, "1", 6, "3", "5"},
                        {4, "1", 6, "2", "2"},
                        {4, "1", 6, "15", "25"},
                        {4, "1", 6, "25", "25"},
                        {5, "3", 5, "15", "60"},
                        {5, "3", 6, "15", "75"},
                        {5, "3", 4, "15", "45"},
                        {0, "3.5", 6, "10", "35"},
                        {0, "1", 5, "15", "20"},
                        {0, "3", 5, "15", "60"},
                        {0, "2", 6, "10", "25"},
                        {0, "100", 4, "10", "1000"},
                        {1, "5", 6, "1000", "3000"},
                        {3, "1000", 6, "1000", "3000"},
                        // Laid, so that whole checks are laid: 7.50 to win 5, 9 to win 6, 2 a dollar; 22.50
                        // for 15 but 30 for 20; 12 for 10, which is twice five checks, and twice that.
                        {1, "1", 5, "5", "7", true},
                        {2, "1", 5, "5", "9", true},
                        {2, "1", 4, "5", "10", true},
                        {3, "1", 5, "15", "30", true},
                        {4, "1", 6, "6", "12", true},
                        {5, "2", 6, "6", "24", true}};
  for (const Case& c : cases) {
    SCOPED_TRACE("method " + std::to_string(c.method) + ", " + c.multiple + " times " + c.flat + " on " +
                 std::to_string(c.number));
    TestTable table;
    Game& game = *table.game;
    game.settings.OddsCalcMethod = c.method;
    game.settings.OddsAllowed410 = game.settings.OddsAllowed59 = game.settings.OddsAllowed68 =
        Multiple::Of(Money(c.multiple));
    const int flat = BetOn(c.laid ? kDontCome4 : kCome4, c.number);
    SetBetAmount(game, 1, flat, Money(c.flat));
    EXPECT_EQ(MaxBetFor(game, 1, OddsBetOf(flat)), Money(c.most));
  }
}

TEST(BetRulesOdds, LaidOddsAreMeasuredByWhatTheyWin) {
  // 3, 4 and 5 times the flat bet is won on 4 and 10, 5 and 9, 6 and 8: six times is laid on all of them.
  const std::pair<const char*, const char*> cases[] = {{"5", "30"},   {"10", "60"},  {"15", "90"},
                                                       {"20", "120"}, {"25", "150"}, {"50", "300"},
                                                       {"75", "450"}, {"100", "600"}};
  for (const int number : kBoxNumbers) {
    TestTable table;
    table.Join(1, "Ann", "5000");
    table.Bet(1, kDontPass, "10");
    table.Roll(number / 2, number - number / 2);
    const int dontCome = kDontCome4 + BoxPosition(number);
    for (const auto& [flat, laid] : cases) {
      SCOPED_TRACE(std::string(flat) + " on " + std::to_string(number));
      SetBetAmount(*table.game, 1, kDontPass, Money(flat));
      SetBetAmount(*table.game, 1, dontCome, Money(flat));
      for (const int odds : {static_cast<int>(kDontPassOdds), dontCome + 6}) {
        TakeFullOdds(*table.game, 1, odds);
        EXPECT_EQ(table.State().BetAmount(1, odds), Money(laid)) << BetName(odds);
      }
    }
  }
}

TEST(BetRulesOdds, TooMuchOddsComeDownWithTheirFlatBet) {
  TestTable table;
  table.Join(1, "Ann", "5000");
  table.Bet(1, kPassLine, "10");
  table.Roll(2, 2);
  table.Bet(1, kPassLine, "10");
  table.Bet(1, kPassLineOdds, "60");
  EXPECT_EQ(table.State().BetAmount(1, kPassLineOdds), Money("60"));
  table.Bet(1, kPassLine, "-10");
  EXPECT_EQ(table.State().BetAmount(1, kPassLineOdds), Money("30"));
}

TEST(BetRulesProper, AmountsGoToTheNeighbourThatTheBiasNames) {
  struct Case {
    int mode;
    int bias;
    const char* up;
    const char* request;
    const char* amount;
  };
  const Case cases[] = {{0, 0, "0", "10", "10"},  {1, 0, "0", "10", "12"}, {1, 2, "0", "10", "6"},
                        {1, 1, "12", "-1", "12"}, {1, 0, "12", "-1", "6"}, {1, 0, "0", "12", "12"},
                        {2, 0, "0", "31", "60"},  {2, 2, "0", "31", "30"}, {1, 0, "990", "8", "996"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.up) + " and " + c.request + " mode " + std::to_string(c.mode));
    TestTable table;
    table.Join(1, "Ann", "5000");
    table.Bet(1, kPlace4 + 2, c.up);
    table.State().seats[1].handling.ProperOddsMode = c.mode;
    table.State().seats[1].handling.PlaceBias = c.bias;
    table.Bet(1, kPlace4 + 2, c.request);
    EXPECT_EQ(table.State().BetAmount(1, kPlace4 + 2), Money(c.amount));
  }
}

TEST(BetRules, AKeptMaximumFollowsLimitsChecksAndPayoffs) {
  TestTable table;
  table.Join(1, "Ann", "5000");
  Game& game = *table.game;
  std::mt19937 random(5);
  const auto pick = [&random](int first, int last) {
    return Currency::Dollars(first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1)));
  };
  PayoffTables& payoffs = game.payoffs;
  for (int change = 0; change < 3000; ++change) {
    PayoffRecord* const records[] = {&payoffs.PayoffTable[1 + random() % kBets],
                                     &payoffs.PayoffTable[kTwo + random() % 6],
                                     &payoffs.SevenPointSevenPayoffs[1 + random() % kSevenPointSevenRows],
                                     &payoffs.SharpShooterPayoffs[1 + random() % kSharpShooterRows],
                                     &payoffs.RideTheLinePayoffs[1 + random() % kRideTheLineRows]};
    switch (random() % 4) {
      case 0:
        game.settings.MaxPropBetPayoff = pick(1, 3000);
        break;
      case 1:
        game.settings.MaxBet = pick(1, 1000);
        break;
      case 2:
        game.settings.CheckValue[1] = pick(1, 3);
        break;
      default:
        PayoffRecord& record = *records[random() % std::size(records)];
        (random() % 2 == 0 ? record.PayTo : record.PayPer) = pick(1, 40);
        if (random() % 5 == 0) record.PayTo = -record.PayTo;
        break;
    }
    Currency kept[kBets + 1];
    for (int bet = 1; bet <= kBets; ++bet) kept[bet] = MaxBetFor(game, 1, bet);
    game.maximums = KeptMaximums{};
    for (int bet = 1; bet <= kBets; ++bet)
      ASSERT_EQ(kept[bet], MaxBetFor(game, 1, bet)) << BetName(bet) << " after change " << change;
  }
}

// --- CheckStacks.

TEST(BetRulesStacks, AValueStopsAtTheLimitEitherWay) {
  TestTable table;
  table.Join(1, "Ann", "10");
  const int stack = kFirstCheckStack + 3;
  EXPECT_EQ(table.Bet(1, stack, "-0.0001"), Money("-0.0001"));
  EXPECT_EQ(table.Bet(1, stack, "0.0001"), Money("0.0001"));
  EXPECT_EQ(table.Bet(1, stack, "9999999.9999"), Money("9999999.9999"));
  EXPECT_TRUE(table.host.boxes.empty());
  EXPECT_EQ(table.Bet(1, stack, "0.5"), kZero);
  EXPECT_TRUE(table.host.Said(Msg::kStackAtLimit,
                              {{"least", false}, {"limit", Money("9999999.9999")}, {"already", true}}));
  EXPECT_EQ(table.Bet(1, stack, "-20000000"), Money("-19999999.9998"));
  EXPECT_TRUE(table.host.Said(Msg::kStackAtLimit,
                              {{"least", true}, {"limit", Money("-9999999.9999")}, {"already", false}}));
  EXPECT_EQ(table.State().seats[1].OnTableAmount, kZero) << "no money of the table";
}

// --- Calls and bought bets.

TEST(BetRulesCalls, OnlyBetsThatCanBeCalledTakeACall) {
  TestTable table;
  table.Join(1, "Ann");
  for (int bet = 1; bet <= kBets; ++bet) {
    table.host.boxes.clear();
    const bool callable = kCallableBets.Has(bet);
    EXPECT_EQ(CallBet(*table.game, 1, bet, true), callable);
    EXPECT_EQ(BetWorkingOf(*table.game, 1, bet) == 2, callable) << bet;
    EXPECT_TRUE(table.host.Said(callable ? Msg::kNone : Msg::kNotCallable));
  }
}

TEST(BetRulesCalls, ABoughtPlaceBetTakesItsCallAlong) {
  TestTable table;
  table.Join(1, "Ann");
  table.Bet(1, kPlace4 + 1, "30");
  CallBet(*table.game, 1, kPlace4 + 1, true);
  EXPECT_TRUE(BuyPlaceBet(*table.game, 1, kPlace4 + 1));
  EXPECT_EQ(table.State().BetAmount(1, kPlace4 + 1), kZero);
  EXPECT_EQ(table.State().BetAmount(1, kBuy4 + 1), Money("30"));
  EXPECT_EQ(BetWorkingOf(*table.game, 1, kBuy4 + 1), 2);
  EXPECT_EQ(table.State().seats[1].BuyVigHeld[1], Money("2"));
  // Any other place, that of a Place bet which isn't up too.
  for (const int bet : {int(kField), kPlace4 + 1, kBuy4 + 1}) {
    table.host.boxes.clear();
    EXPECT_EQ(BuyPlaceBet(*table.game, 1, bet), IsPlace(bet));
    EXPECT_TRUE(table.host.Said(Msg::kOnlyPlaceBetsBuy)) << bet;
    EXPECT_EQ(table.State().seats[1].OnTableAmount, Money("32")) << bet;
  }
}

TEST(BetRules, AFamilyThatIsOffTakesNoBetAndScriptsHearOfIt) {
  const std::pair<const char*, BetSet> families[] = {{"UseBig68", BetRange(kBig6, kBig8)},
                                                     {"UseFire", BetRange(kFire, kFire)},
                                                     {"UseMidway", BetRange(kMidway, kMidway)},
                                                     {"SmallTallEnabled", BetRange(kAllSmall, kSevenPoint7)}};
  for (const auto& [name, bets] : families) {
    TestTable table;
    table.Join(1, "Ann", "100000");
    table.Set("ShooterBetRule", "0");
    table.Set(name, "off");
    for (int bet = 1; bet <= kBets; ++bet) {
      EXPECT_EQ(BetOffered(table.game->settings, bet), !bets.Has(bet)) << name << " " << bet;
      EXPECT_EQ(MissingBetFamily(bet, SurroundingsOf(*table.game)).empty(), !bets.Has(bet))
          << name << " " << bet;
      if (bets.Has(bet)) {
        EXPECT_EQ(table.Bet(1, bet, "5"), kZero) << name << " " << bet;
        EXPECT_TRUE(table.host.Said(Msg::kBetNotOffered, {{"bet", BetName(bet)}}));
      }
    }
  }
}

TEST(BetRules, BetsThatNothingNamesTakeNoMoney) {
  TestTable table;
  table.Join(1, "Ann");
  for (const int bet : {-1, 0, 94, 95, 99, 200, 201, 100000})
    EXPECT_EQ(ChangeBet(*table.game, 1, bet, Money("5")), kZero);
  EXPECT_EQ(ChangeBet(*table.game, 1, kField, Currency::Error()), kZero);
  table.Check("nothing");
}

}  // namespace
}  // namespace tessaryn
