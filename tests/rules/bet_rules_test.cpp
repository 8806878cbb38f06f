#include "rules/bet_rules.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "autobet/language/language.h"
#include "autobet/run/interpreter.h"
#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "rules/bet_limits.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

struct Placed {
  int bet;
  const char* amount;
};

// A table on its way to a question: settings, bets, then rolls, then more bets.
struct RuleCase {
  std::vector<std::pair<const char*, const char*>> settings;
  std::vector<Placed> bets;
  std::vector<std::pair<int, int>> rolls;
  std::vector<Placed> laterBets;
  int bet;
  const char* request;
  const char* change;
  test::Said said = {};  // of a player and a bet; Msg::kNone: no box
  const char* bankroll = "5000";
};

using Rolls = std::vector<std::pair<int, int>>;
const Rolls kPoint4 = {{2, 2}};
const Rolls kNone = {};

const RuleCase kRefusals[] = {
    // Contracts.
    {{}, {{kPassLine, "10"}}, kPoint4, {}, kPassLine, "-10", "0", {Msg::kPassLineIsContract}},
    {{},
     {{kPassLine, "10"}},
     kPoint4,
     {{kPassLine, "20"}},
     kPassLine,
     "-30",
     "-20",
     {Msg::kPassLineIsContract}},
    {{}, {{kPassLine, "10"}}, kPoint4, {{kPassLine, "20"}}, kPassLine, "-20", "-20", {}},
    {{}, {{kPassLine, "10"}}, kNone, {}, kPassLine, "-10", "-10", {}},
    {{}, {}, {{2, 2}, {1, 1}}, {{kCome4 + 2, "10"}}, kCome4 + 2, "-10", "-10", {}},
    {{}, {{kPassLine, "10"}}, {{2, 2}}, {{kCome4 + 2, "10"}}, kCome4 + 2, "10", "10", {}},
    {{}, {{kSevenPoint7, "10"}}, kPoint4, {}, kSevenPoint7, "-10", "0", {Msg::kBetIsContract}},
    {{}, {{kSevenPoint7, "10"}}, kNone, {}, kSevenPoint7, "-10", "-10", {}},
    {{}, {{kDontPass, "10"}}, kPoint4, {}, kDontPass, "-10", "-10", {}},
    // Line bets.
    {{{"AllowPutBets", "off"}},
     {{kPassLine, "10"}},
     kPoint4,
     {},
     kPassLine,
     "5",
     "0",
     {Msg::kPutPassLineRefused}},
    {{{"AllowPutBets", "off"}}, {}, kPoint4, {}, kPassLine, "5", "0", {Msg::kPutPassLineRefused}},
    {{}, {{kPassLine, "10"}}, kPoint4, {}, kPassLine, "5", "5", {}},
    {{}, {}, kNone, {}, kCome, "5", "0", {Msg::kComeNeedsPoint}},
    {{}, {}, kPoint4, {}, kCome, "5", "5", {}},
    {{}, {}, kNone, {}, kDontCome, "5", "0", {Msg::kDontComeNeedsPoint}},
    {{}, {{kDontPass, "10"}}, kPoint4, {}, kDontPass, "5", "0", {Msg::kDontPassRefused}},
    {{}, {{kDontPass, "10"}}, kPoint4, {{kDontPass, "-5"}}, kDontPass, "5", "5", {}},
    {{}, {{kPassLine, "10"}}, kNone, {}, kPassLineOdds, "5", "0", {Msg::kPassLineOddsRefused}},
    {{}, {}, kPoint4, {}, kPassLineOdds, "5", "0", {Msg::kPassLineOddsRefused}},
    {{}, {}, kPoint4, {}, kDontPassOdds, "5", "0", {Msg::kDontPassOddsRefused}},
    {{},
     {{kPassLine, "10"}},
     kPoint4,
     {},
     kPassLineOdds,
     "100",
     "30",
     {Msg::kMaximumBet, {{"limit", Money("30")}}}},
    // On the numbers.
    {{}, {}, kPoint4, {}, kComeOdds4 + 1, "5", "0", {Msg::kOddsNeedFlatBet, {{"flat", "Come 5"}}}},
    {{}, {}, kNone, {}, kDontComeOdds4 + 5, "5", "0", {Msg::kOddsNeedFlatBet, {{"flat", "Don't Come 10"}}}},
    {{{"AllowPutBets", "off"}}, {}, kPoint4, {}, kCome4, "5", "0", {Msg::kPutComeRefused}},
    {{}, {}, kPoint4, {}, kCome4, "5", "5", {}},
    {{}, {}, kNone, {}, kDontCome4, "5", "0", {Msg::kPutDontComeRefused}},
    // Marks, counts and hands.
    {{}, {{kAllSmall, "5"}}, {{1, 1}}, {}, kAllSmall, "5", "0", {Msg::kSmallNumbersMarked}},
    {{}, {{kAllTall, "5"}}, {{6, 6}}, {}, kAllTall, "5", "0", {Msg::kTallNumbersMarked}},
    {{}, {{kMakeAll, "5"}}, {{6, 6}}, {}, kMakeAll, "5", "0", {Msg::kNumbersMarked}},
    {{}, {{kAllTall, "5"}}, {{6, 6}}, {}, kAllSmall, "5", "5", {}},
    {{}, {{kAllTall, "5"}}, {{6, 6}}, {}, kAllTall, "-5", "-5", {}},
    {{}, {{kFourRolls, "5"}}, {{6, 6}}, {}, kFourRolls, "5", "0", {Msg::kCountInProgress}},
    {{}, {}, kPoint4, {}, kPoint7, "5", "0", {Msg::kNeedsComeOutRoll}},
    {{}, {}, kPoint4, {}, kSevenPoint7, "5", "0", {Msg::kNeedsComeOutRoll}},
    {{}, {}, {{6, 6}}, {}, kSharpShooter, "5", "0", {Msg::kHandHasStarted}},
    {{}, {}, {{6, 6}}, {}, kRideTheLine, "5", "0", {Msg::kHandHasStarted}},
    {{}, {}, {{6, 6}}, {}, kFire, "5", "0", {Msg::kHandHasStarted}},
    {{}, {}, {{2, 2}, {3, 4}}, {}, kFire, "5", "5", {}},
    // Limits.
    {{{"MinBetMain", "10"}}, {}, kNone, {}, kField, "3", "10", {Msg::kMinimumBet, {{"limit", Money("10")}}}},
    {{{"MinBetProp", "4"}}, {}, kNone, {}, kHard6, "1", "4", {Msg::kMinimumBet, {{"limit", Money("4")}}}},
    {{{"MinBetMain", "10"}}, {{kField, "15"}}, kNone, {}, kField, "-6", "-15", {}},
    {{}, {}, kNone, {}, kField, "1000.0001", "1000", {Msg::kMaximumBet, {{"limit", Money("1,000")}}}},
    {{}, {{kField, "990"}}, kNone, {}, kField, "11", "10", {Msg::kMaximumBet, {{"limit", Money("1,000")}}}},
    {{{"MessageMask", "1"}},
     {},
     kNone,
     {},
     kLay4,
     "5000",
     "2000",
     {Msg::kMaximumBet, {{"limit", Money("2,000")}}}},
    {{}, {}, kNone, {}, kHard6, "5000", "333", {Msg::kMaximumBet, {{"limit", Money("333")}}}},
    {{}, {}, kNone, {}, kTwo, "5000", "100", {Msg::kMaximumBet, {{"limit", Money("100")}}}},
    {{}, {}, kNone, {}, kFire, "9", "5", {Msg::kMaximumBet, {{"limit", Money("5")}}}},
    {{}, {}, kNone, {}, kHorn, "5000", "400", {Msg::kMaximumBet, {{"limit", Money("400")}}}},
    {{}, {}, kNone, {}, kWorld, "5000", "500", {Msg::kMaximumBet, {{"limit", Money("500")}}}},
    {{}, {}, kNone, {}, kCAndE, "5000", "400", {Msg::kMaximumBet, {{"limit", Money("400")}}}},
    {{}, {}, kNone, {}, kSharpShooter, "5000", "10", {Msg::kMaximumBet, {{"limit", Money("10")}}}},
    // Whole units: an increase goes up, a decrease away from zero.
    {{}, {}, kNone, {}, kField, "2.1", "3", {}},
    {{}, {{kField, "10"}}, kNone, {}, kField, "-2.1", "-3", {}},
    {{}, {{kField, "10"}}, kNone, {}, kField, "-200", "-10", {}},
    {{}, {{kField, "10"}}, kNone, {}, kField, "0", "0", {}},
    // Money.
    {{}, {}, kNone, {}, kField, "60", "50", {Msg::kBankrollTooSmall, {{"others", false}}}, "50"},
    {{}, {{kBig6, "45"}}, kNone, {}, kField, "60", "5", {Msg::kBankrollTooSmall, {{"others", true}}}, "50"},
    // 5 percent of 48 is 2.40, which rounds to 2: 48 and 2 are all the money there is.
    {{{"MessageMask", "2"}},
     {},
     kNone,
     {},
     kBuy4,
     "60",
     "48",
     {Msg::kBankrollTooSmall, {{"others", false}}},
     "50"},
};

TEST(BetRules, EveryRefusalHasItsNoteAndItsChange) {
  for (const RuleCase& c : kRefusals) {
    SCOPED_TRACE(BetName(c.bet) + " " + c.request + ": " + test::NameOf(c.said.id));
    TestTable table;
    table.Set("ShooterBetRule", "0");
    for (const auto& [name, value] : c.settings) table.Set(name, value);
    table.Join(1, "Ann", c.bankroll);
    for (const Placed& placed : c.bets) table.Bet(1, placed.bet, placed.amount);
    for (const auto& [die1, die2] : c.rolls) table.Roll(die1, die2);
    for (const Placed& placed : c.laterBets) table.Bet(1, placed.bet, placed.amount);
    table.host.boxes.clear();
    const Currency before = table.State().BetAmount(1, c.bet);
    EXPECT_EQ(ChangeBet(*table.game, 1, c.bet, Money(c.request)), Money(c.change));
    EXPECT_EQ(table.State().BetAmount(1, c.bet) - before, Money(c.change));
    table.Check("the change");
    ASSERT_EQ(table.host.boxes.size(), c.said.id == Msg::kNone ? 0u : 1u) << table.host.LastText();
    EXPECT_TRUE(table.host.Said(c.said.id, c.said.arguments));
    if (c.said.id == Msg::kNone) continue;
    EXPECT_TRUE(table.host.Said(c.said.id, {{"player", "Ann"}, {"bet", BetName(c.bet)}}));
  }
}

TEST(BetRules, ATurboRollAndAMaskedNoteChangeTheSameWithoutABox) {
  for (const RuleCase& c : kRefusals) {
    for (const bool turbo : {true, false}) {
      SCOPED_TRACE(BetName(c.bet) + " " + c.request + ": " + test::NameOf(c.said.id));
      TestTable table;
      table.Set("ShooterBetRule", "0");
      for (const auto& [name, value] : c.settings) table.Set(name, value);
      table.Join(1, "Ann", c.bankroll);
      for (const Placed& placed : c.bets) table.Bet(1, placed.bet, placed.amount);
      for (const auto& [die1, die2] : c.rolls) table.Roll(die1, die2);
      for (const Placed& placed : c.laterBets) table.Bet(1, placed.bet, placed.amount);
      table.host.boxes.clear();
      if (turbo)
        table.State().TurboRollActive = true;
      else
        table.game->settings.MessageMask = 0;
      EXPECT_EQ(PlaceBet(*table.game, 1, c.bet, Money(c.request)), Money(c.change));
      EXPECT_TRUE(table.host.boxes.empty()) << table.host.LastText();
    }
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

TEST(BetRules, AContractAboveALoweredMaximumStaysAndSaysWhy) {
  TestTable table;
  table.Join(1, "Ann", "5000");
  table.Bet(1, kPassLine, "500");
  table.Roll(2, 2);
  table.Set("MaxBet", "100");
  table.host.boxes.clear();
  EXPECT_EQ(ChangeBet(*table.game, 1, kPassLine, Money("50")), kZero);
  EXPECT_TRUE(
      table.host.Said(Msg::kMaximumBetButContract, {{"limit", Money("100")}, {"contract", Money("500")}}));
  EXPECT_EQ(table.State().BetAmount(1, kPassLine), Money("500"));
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
    for (const int bet : {static_cast<int>(kPassLine), static_cast<int>(kSevenPoint7)})
      table.Bet(1, bet, "10");
    table.Roll(2, 2);
    table.Bet(1, kCome4 + 2, "10");
    table.Bet(1, kHard8, "100");
    table.Roll(6, 2);
    for (const int bet : {static_cast<int>(kPassLine), kCome4 + 2}) table.Bet(1, bet, "10");
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
      EXPECT_EQ(BuyVigFor(game, Money(c.amount)), Money(c.rounded[rounding])) << c.amount << " " << rounding;
      // Lay 4 wins half of what is laid.
      const Currency laid = Money(c.amount) + Money(c.amount);
      EXPECT_EQ(LayVigFor(game, kLay4, laid), Money(c.rounded[rounding])) << c.amount << " " << rounding;
    }
  game.settings.CheckValue[1] = Money("0.25");
  game.settings.BuyVigRound = 0;
  EXPECT_EQ(BuyVigFor(game, Money("25")), Money("1.25"));
  EXPECT_EQ(BuyVigFor(game, Money("27")), Money("1.25"));
  EXPECT_EQ(BuyVigFor(game, Money("27.5")), Money("1.5")) << "a half goes up";
}

// --- Odds.

TEST(BetRulesOdds, EveryMethodGivesWhatItsRuleGivesByHand) {
  struct Case {
    int method;
    const char* multiple;
    int number;
    const char* flat;
    const char* most;
  };
  const Case cases[] = {
      // X Flat - No Push
      {1, "3", 4, "10", "30"},
      {1, "2", 5, "7", "14"},
      {1, "2.5", 6, "5", "12"},
      // X Flat w/ Minor Push: multiples of what pays whole
      {2, "1", 5, "5", "6"},
      {2, "1", 6, "3", "5"},
      {2, "1", 6, "2", "2"},
      {2, "2", 6, "7", "15"},
      {2, "2", 6, "10", "20"},
      {2, "1", 4, "7", "7"},
      // X Flat w/ Color Push: the next amount that pays in one colour
      {3, "1", 5, "5", "6"},
      {3, "2", 5, "5", "10"},
      {3, "1", 5, "25", "30"},
      {3, "2", 6, "10", "25"},
      {3, "2", 4, "10", "20"},
      // X Flat - Single Odds
      {4, "1", 5, "10", "10"},
      {4, "1", 5, "15", "20"},
      {4, "1", 6, "3", "5"},
      {4, "1", 6, "2", "2"},
      {4, "1", 6, "15", "25"},
      {4, "1", 6, "25", "25"},
      // Flat - Single Odds X
      {5, "3", 5, "15", "60"},
      {5, "3", 6, "15", "75"},
      {5, "3", 4, "15", "45"},
      // Auto select
      {0, "3.5", 6, "10", "35"},
      {0, "1", 5, "15", "20"},
      {0, "3", 5, "15", "60"},
      {0, "2", 6, "10", "25"},
      {0, "100", 4, "10", "1000"},
      // The ceiling
      {1, "5", 6, "1000", "3000"},
      {3, "1000", 6, "1000", "3000"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE("method " + std::to_string(c.method) + ", " + c.multiple + " times " + c.flat + " on " +
                 std::to_string(c.number));
    TestTable table;
    Game& game = *table.game;
    game.settings.OddsCalcMethod = c.method;
    game.settings.OddsAllowed410 = game.settings.OddsAllowed59 = game.settings.OddsAllowed68 =
        Multiple::Of(Money(c.multiple));
    const int bet = kComeOdds4 + BoxPosition(c.number);
    const PayoffRecord& record = game.payoffs.PayoffTable[bet];
    EXPECT_EQ(MaxOddsFor(game, bet, Money(c.flat), record.PayTo, record.PayPer), Money(c.most));
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

TEST(BetRulesOdds, LaidOddsAreChosenSoThatWholeChecksAreLaid) {
  struct Case {
    int method;
    const char* multiple;
    int number;
    const char* flat;
    const char* laid;
  };
  const Case cases[] = {
      {1, "1", 5, "5", "7"},    // it takes 7.50 to win 5
      {2, "1", 5, "5", "9"},    // and 9 to win 6, the next that is laid in whole dollars
      {2, "1", 4, "5", "10"},   // every dollar takes 2
      {3, "1", 5, "15", "30"},  // 22.50 for 15, but 30 for 20
      {4, "1", 6, "6", "12"},   // 12 for 10, which is twice five checks
      {5, "2", 6, "6", "24"},   // and twice that
  };
  for (const Case& c : cases) {
    SCOPED_TRACE("method " + std::to_string(c.method) + ", " + c.multiple + " times " + c.flat + " on " +
                 std::to_string(c.number));
    TestTable table;
    Game& game = *table.game;
    game.settings.OddsCalcMethod = c.method;
    game.settings.OddsAllowed410 = game.settings.OddsAllowed59 = game.settings.OddsAllowed68 =
        Multiple::Of(Money(c.multiple));
    table.Join(1, "Ann", "5000");
    const int flat = kDontCome4 + BoxPosition(c.number);
    SetBetAmount(game, 1, flat, Money(c.flat));
    EXPECT_EQ(MaxBetFor(game, 1, flat + 6), Money(c.laid));
  }
}

TEST(BetRulesOdds, AShareIsRaisedToAMultipleOrNothing) {
  const std::int64_t cases[][3] = {{0, 2, 0}, {1, 2, 0}, {2, 2, 2},  {3, 2, 4}, {2, 5, 0},
                                   {3, 5, 5}, {5, 5, 5}, {6, 5, 10}, {1, 1, 1}};
  for (const auto& c : cases) EXPECT_EQ(OddsChipCount(c[0], c[1]), c[2]) << c[0] << " of " << c[1];
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
    const bool callable = FactsOf(bet).callable;
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

TEST(BetRules, AFamilyThatIsOffTakesNoBet) {
  const std::tuple<const char*, int> families[] = {
      {"UseBig68", kBig6},    {"UseBig68", kBig8},           {"UseFire", kFire},
      {"UseMidway", kMidway}, {"SmallTallEnabled", kPoint7}, {"SmallTallEnabled", kAllSmall}};
  for (const auto& [name, bet] : families) {
    TestTable table;
    table.Join(1, "Ann");
    EXPECT_EQ(table.Bet(1, bet, "5"), Money("5"));
    table.Bet(1, bet, "-5");
    table.Set(name, "off");
    EXPECT_EQ(table.Bet(1, bet, "5"), kZero);
    EXPECT_TRUE(table.host.Said(Msg::kBetNotOffered, {{"bet", BetName(bet)}}));
  }
}

TEST(BetRules, WhereTheSpecialPropositionsAreOffClicksAndScriptsMayMakeTheSameBets) {
  TestTable table;
  table.Join(1, "Ann");
  table.Set("SmallTallEnabled", "off");
  for (int bet = 1; bet <= kBets; ++bet) {
    const bool offered = bet < 84 || bet > 89;
    EXPECT_EQ(BetOffered(table.game->settings, bet), offered) << BetName(bet);
    EXPECT_EQ(MissingBetFamily(bet, SurroundingsOf(*table.game)).empty(), offered) << BetName(bet);
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
