// Luck against the table itself: the money of every roll must be what luck, expectation and values say, to
// the last part of a cent, and over all outcomes of a roll luck must come to nothing.
#include "rules/luck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <random>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/advantage.h"
#include "rules/bet_rules.h"
#include "rules/payoffs.h"
#include "rules/seed_rng.h"
#include "state/vig.h"
#include "stats/statistics.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

constexpr int kPlayers = 3;

struct House {
  const char* name;
  bool percentageDice = false;
  std::int32_t cellsOver = 0;  // what the cells have beyond the whole
  bool oddPayoffs = false;
  bool changesRules = false;
  std::vector<SettingChange> rules = {};
};
const House kHouses[] = {
    {"ByTheBook"},
    {.name = "OddUnitsOddPayoffs",
     .oddPayoffs = true,
     .rules = {{"CheckValue.1", 0, "2.5"},
               {"MinBetMain", 0, "2.5"},
               {"MinBetProp", 0, "2.5"},
               {"BarNumber", 0, "2"}}},
    {.name = "VigOnWinNoPutBets",
     .rules = {{"BuyVigUpFront", 0, "off"}, {"LayVigUpFront", 0, "off"}, {"AllowPutBets", 0, "off"}}},
    {.name = "LoadedDiceShort",
     .percentageDice = true,
     .cellsOver = -40,
     .rules = {{"BuyVigUpFront", 0, "off"}, {"BarNumber", 0, "2"}}},
    {.name = "LoadedDiceOverOddPayoffs", .percentageDice = true, .cellsOver = 40, .oddPayoffs = true},
    {.name = "RulesAndDiceThatChange", .changesRules = true, .rules = {{"AllowPutBets", 0, "off"}}},
};
void PrintTo(const House& house, std::ostream* out) { *out << house.name; }

// TESSARYN_LUCK_ROLLS sets the length of each game.
std::int64_t RollsWanted() {
  return test::LengthOf("TESSARYN_LUCK_ROLLS", 100'000, 2'000);
}

struct SilentHost : test::TestHost {
  void ShowMessage(Game&, MessageBox& box) override { box.MsgResult = kResultOk; }
  SettleAnswer AskSettlement(Game&, const SettleQuestion&) override { return {}; }
  void PlaySound(Game&, Sound) override {}
};

struct LuckTable {
  test::TempFolder folder;
  SilentHost host;
  std::unique_ptr<Game> game = StartGame(host, test::kBinFolder, folder.Path());
  LuckMeter meter;
  std::mt19937 random{20261123};

  int Pick(int first, int last) {
    return first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1));
  }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }
  TableState& State() { return game->table; }

  void Set(std::vector<SettingChange> rules) {
    std::string error;
    ASSERT_TRUE(SetSettings(*game, rules, error)) << error;
  }

  void Load(std::int32_t over) {
    ProbabilityPlane& cells = game->percentage.ProbMatrix[1];
    cells = {};
    std::int32_t left = kProbabilityWhole + over;
    for (int pair = 35; pair >= 0; --pair) {
      const int die1 = pair / 6 + 1;
      const int die2 = pair % 6 + 1;
      const std::int32_t value = pair == 0 ? left : pair == 21 ? 0 : Pick(1'000, 3'600);
      left -= value;
      cells[ProbabilityRow(die1, die2)][ProbabilityColumn(die1, die2)] = value;
    }
    ASSERT_GT(left + cells[2][1], 0);
    ProbabilitiesChanged(game->percentage);
    ASSERT_TRUE(ActivatePercentageDice(game->percentage, true));
  }

  void Open(const House& house) {
    std::string error;
    for (int seat = 1; seat <= kPlayers; ++seat)
      ASSERT_TRUE(JoinPlayer(*game, seat, "Player" + std::string(1, static_cast<char>('A' + seat)),
                             Currency::Dollars(5000), error));
    std::vector<SettingChange> rules{{"ShooterBetRule", 0, "0"},
                                     {"AllowNegativeBankroll", 0, "on"},
                                     {"MessageMask", 0, "0"},
                                     {"MaxFireBet", 0, "100"}};
    rules.insert(rules.end(), house.rules.begin(), house.rules.end());
    if (house.oddPayoffs)
      for (const auto& [name, value] : {std::pair{"FieldPayoffs.21", "3 to 1"},
                                        {"FieldPayoffs.12", "-1 to 2"},
                                        {"PayoffTable.45", "3 to 2"},
                                        {"PayoffTable.48", "6 to 5"},
                                        {"PayoffTable.19", "5 to 4"},
                                        {"PayoffTable.9", "4 to 5"},
                                        {"FirePayoffs.0", "-1 to 2"},
                                        {"SharpShooterPayoffs.1", "-4 to 5"},
                                        {"RideTheLinePayoffs.3", "7 to 3"},
                                        {"SevenPointSevenPayoffs.2", "4 to 1"}})
        rules.push_back({name, 0, value});
    Set(rules);
    if (house.percentageDice) Load(house.cellsOver);
    ASSERT_TRUE(SelectGenerator(*game, 1));
    bool seeded = true;
    SeedRng(*game, seeded, Currency::Dollars(4711));
    for (int seat = 1; seat <= kPlayers; ++seat) ChooseHandling(seat, seat == kPlayers);
    LuckBeginSession(meter, *game);
  }

  void ChooseHandling(int seat, bool any) {
    Handling& handling = State().seats[seat].handling;
    handling = {};
    handling.WinHandling = any ? Pick(1, 5) : 1;
    handling.LoseHandling = any ? Pick(1, 5) : 1;
    handling.AutoTakeOdds = any && Chance(40);
    handling.AutoDownPlace = any && Chance(40);
    for (int bet = 1; bet <= kBets && any; ++bet)
      if (Chance(5)) State().seats[seat].BetDefaultWorking.Set(bet, Chance(50));
  }

  void PlaySome() {
    const int seat = Pick(1, kPlayers);
    static constexpr int kOften[] = {43, 43, 44, 45, 45, 46, 47, 48, 48, 33, 1,
                                     37, 84, 85, 86, 87, 88, 89, 91, 92, 93};
    int bet = Chance(50) ? Pick(1, kBets) : kOften[random() % std::size(kOften)];
    if (const int flat = Pick(0, 1) == 0 ? Pick(kDontCome4, kDontCome4 + 5) : Pick(kCome4, kCome4 + 5);
        Chance(50) && State().BetAmount(seat, flat) > kZero)
      bet = OddsBetOf(flat);
    const Currency amount = State().BetAmount(seat, bet);
    if (amount > Currency::Dollars(300) || Chance(25))
      PlaceBet(*game, seat, bet, -amount);
    else
      PlaceBet(*game, seat, bet, Currency::FromRaw(game->settings.Unit().raw * Pick(1, 12)));
    if (Chance(10)) CallBet(*game, seat, Pick(1, kBets), Chance(60));
    if (Chance(1)) ChooseHandling(kPlayers, true);
  }

  // With bets up.
  void ChangeRules() {
    const char* const rates[] = {"0.05", "0.0333", "0.1"};
    const char* const pays[] = {"1 to 1", "6 to 5", "2 to 3", "3 to 2"};
    Set({{"BarNumber", 0, Chance(50) ? "12" : "2"}, {"LayVigUpFront", 0, Chance(50) ? "on" : "off"}});
    if (Chance(50)) Set({{"BuyVigRate", 0, rates[Pick(0, 2)]}, {"LayVigRate", 0, rates[Pick(0, 2)]}});
    if (Chance(50))
      Set({{"PayoffTable." + std::to_string(Pick(1, kHop13)), 0, pays[Pick(0, 3)]},
           {"FieldPayoffs." + std::to_string(Pick(1, 21)), 0, pays[Pick(0, 3)]},
           {"SharpShooterPayoffs." + std::to_string(Pick(1, 11)), 0, pays[Pick(0, 3)]}});
    if (Chance(30)) Load(Pick(-40, 40));
    if (Chance(30)) ActivatePercentageDice(game->percentage, false);
  }

  void Roll() {
    LuckBeforeRoll(meter, *game);
    RollDice(*game);
    LuckAfterRoll(meter, *game);
  }
  void Roll(int die1, int die2) {
    State().ManualDie1 = die1;
    State().ManualDie2 = die2;
    State().ManualRollPending = true;
    RollDice(*game);
    LuckAfterRoll(meter, *game);
  }

  // What the sums say that the dice have brought since the money stood at start; in the meter's unit.
  bool MoneyAgrees(int seat, Currency start, std::int64_t valueAtStart) {
    const SeatLuck& luck = meter.seats[seat];
    const WideInt values = WideInt{luck.value - valueAtStart} * (meter.unit / kValueUnit);
    const WideInt money = WideInt{(State().BankrollCurrent[seat] - start).raw} * meter.unit;
    return luck.luck + luck.expected + luck.shifted - values == money;
  }

  void ExpectEveryOutcomeToBalance();
};

// All 36 outcomes on the table as it stands: luck adds up to nothing, and where handling only takes down what
// was decided, what stays up is worth what the roll left it worth.
void LuckTable::ExpectEveryOutcomeToBalance() {
  LuckBeforeRoll(meter, *game);
  const TableState saved = State();
  const LuckMeter before = meter;
  const LuckDice dice = LuckDiceOf(game->percentage);
  WideInt sums[kPlayers + 1] = {};
  const auto weight = [&](int die1, int die2) -> std::int64_t {
    return dice.percentage ? DrawChances(game->percentage)[CombinationIndex(die1, die2)] : 1;
  };
  for (int pair = 0; pair < kDicePairs; ++pair) {
    const int die1 = pair / 6 + 1;
    const int die2 = pair % 6 + 1;
    LuckBeginSession(meter, *game);
    LuckBeforeRoll(meter, *game);
    Roll(die1, die2);
    LuckBeforeRoll(meter, *game);
    for (int seat = 1; seat <= kPlayers; ++seat) {
      SCOPED_TRACE("seat " + std::to_string(seat) + ", dice " + std::to_string(die1) + " " +
                   std::to_string(die2));
      const SeatLuck& luck = meter.seats[seat];
      sums[seat] += weight(die1, die2) * luck.luck;
      ASSERT_TRUE(MoneyAgrees(seat, saved.BankrollCurrent[seat], before.seats[seat].value));
      const BetSet& bets = saved.seats[seat].SeatBets;
      const bool twoOnNumber = (bets.Has(kCome) && bets.Meets(BetRange(kCome4, kCome4 + 5))) ||
                               (bets.Has(kDontCome) && bets.Meets(BetRange(kDontCome4, kDontCome4 + 5)));
      const bool stands = luck.shifted == 0;
      ASSERT_TRUE(stands || seat == kPlayers || twoOnNumber) << static_cast<double>(luck.shifted);
    }
    State() = saved;
  }
  for (int seat = 1; seat <= kPlayers; ++seat) ASSERT_TRUE(sums[seat] == 0) << "seat " << seat;
  meter = before;
}

class LuckOfHouses : public testing::TestWithParam<House> {};

TEST_P(LuckOfHouses, IsWhatTheDiceBroughtBeyondTheirMean) {
  const House& house = GetParam();
  LuckTable table;
  table.Open(house);
  const std::int64_t rolls = RollsWanted();
  for (std::int64_t roll = 0; roll < rolls; ++roll) {
    const int changes = table.Pick(0, 4);
    for (int i = 0; i < changes; ++i) table.PlaySome();
    if (house.changesRules && roll % 300 == 150) table.ChangeRules();
    if (roll % 200 == 199) table.ExpectEveryOutcomeToBalance();
    ASSERT_FALSE(HasFatalFailure()) << "roll " << roll;
    if (table.Chance(5)) {  // a roll that didn't come
      LuckBeforeRoll(table.meter, *table.game);
      LuckAfterRoll(table.meter, *table.game);
    }
    table.Roll();
    for (int seat = 1; seat <= kPlayers; ++seat)
      ASSERT_TRUE(table.MoneyAgrees(seat, Currency::Dollars(5000), 0))
          << "seat " << seat << ", roll " << roll;
  }
  // Games that never decide a bet would compare nothing; a shortened one can't decide the rarest, nor dice
  // that change under it.
  const bool all = rolls >= 100'000 && !house.changesRules;
  for (int bet = 1; bet <= kBets && all; ++bet)
    for (const StatTable decided : {kWinStats, kLossStats}) {
      Currency times;
      for (int seat = 1; seat <= kPlayers; ++seat)
        times += BetStat(table.game->stats, decided, kCurrentSession, seat, bet, kStatCount);
      EXPECT_GT(times, kZero) << BetName(bet) << (decided == kWinStats ? " won" : " lost");
    }
  for (int seat = 1; seat <= kPlayers; ++seat) {
    const LuckReport report = LuckOf(table.meter, seat);
    EXPECT_LT(std::abs(report.deviations), 4) << "seat " << seat << ": " << report.luck;
    EXPECT_GT(report.standardDeviation, 100);
    EXPECT_NEAR(report.actual, report.expected + report.luck, 1e-6 * std::abs(report.actual) + 1e-6);
  }
}

INSTANTIATE_TEST_SUITE_P(Houses, LuckOfHouses, testing::ValuesIn(kHouses),
                         [](const auto& house) { return std::string(house.param.name); });

// Every draw there is: none may come more or less often than it is reckoned with.
TEST(Luck, PercentageDiceAreReckonedAsTheyAreDrawn) {
  for (const int over : {-40, 0, 40}) {
    LuckTable table;
    table.Load(over);
    std::array<std::int32_t, 36> drawn{};
    for (int draw = 1; draw <= kProbabilityWhole; ++draw) {
      int die1 = 0;
      int die2 = 0;
      DrawFromMatrix(table.game->percentage, table.game->generators, draw, die1, die2);
      ++drawn[CombinationIndex(die1, die2)];
    }
    EXPECT_EQ(drawn, DrawChances(table.game->percentage)) << over;
  }
}

// --- What bets are expected to bring, against the analysis.

struct OneBet : LuckTable {
  explicit OneBet(bool loaded) {
    Open({"", loaded});
    State().seats[1].BetDefaultWorking = kAllTableBets;
    State().seats[1].handling.WinHandling = State().seats[1].handling.LoseHandling = 1;
  }
  // Straight on the felt: rules of placing are no part of this.
  void Put(int bet, Currency amount) {
    SetBetAmount(*game, 1, bet, amount);
    State().seats[1].BetWorking.byDefault = kAllTableBets;
    RecomputeVig(*game);
    LuckBeginSession(meter, *game);
  }
  // What the next roll is expected to bring, in dollars; the dice fall as they like.
  double RollAndTell(int die1, int die2) {
    LuckBegin();
    Roll(die1, die2);
    return LuckOf(meter, 1).expected;
  }
  void LuckBegin() {
    LuckBeginSession(meter, *game);
    LuckBeforeRoll(meter, *game);
  }
};

TEST(Luck, ARollIsExpectedToBringWhatTheAnalysisSays) {
  const Currency stake = Currency::Dollars(120);
  for (const bool loaded : {false, true})
    for (int bet = 1; bet <= kBets; ++bet) {
      if (FamilyRowOf(bet).decidedBy == DecidedBy::kLine || kHandBets.Has(bet)) continue;
      SCOPED_TRACE(BetName(bet) + (loaded ? ", loaded" : ", fair"));
      OneBet table(loaded);
      table.Put(bet, stake);
      const Currency vig = HasVig(bet) ? VigHeld(*table.game, 1, bet) : kZero;
      const double laidOut = (stake + vig).ToDouble();
      const double mean = FigureAdvantage(*table.game, bet).evPerRoll * laidOut;
      // A contract is priced as it is made: on its number it brings what it is worth.
      const bool contract = IsComeNumber(bet) || IsDontComeNumber(bet);
      EXPECT_NEAR(table.RollAndTell(1, 2), contract ? 0 : mean, 3e-4);
    }
}

// A bet that has begun is worth what it will bring, so no further roll of it has a price; until then each
// roll bears the part of the price that belongs to its chance to begin.
TEST(Luck, ABetOnItsWayIsWorthWhatItWillBring) {
  const Currency stake = Currency::Dollars(60);
  for (const bool loaded : {false, true})
    for (int bet = kAllSmall; bet <= kFire; ++bet) {
      if (bet == kMidway) continue;
      SCOPED_TRACE(BetName(bet) + (loaded ? ", loaded" : ", fair"));
      OneBet table(loaded);
      const LuckChances chances = LuckChancesOf(table.meter.dice);
      double begins = 1;
      const auto beginsWith = [&](std::initializer_list<int> numbers) {
        begins = chances.seven;
        for (const int number : numbers) begins += table.meter.dice.Chance(number);
      };
      if (bet == kAllSmall) beginsWith({2, 3, 4, 5, 6});
      if (bet == kAllTall) beginsWith({8, 9, 10, 11, 12});
      if (bet == kSharpShooter || bet == kFire) begins = chances.anySet;
      if (bet == kRideTheLine) begins = chances.anySet + chances.natural;
      const double price = FigureAdvantage(*table.game, bet).evPerDecision * stake.ToDouble() * begins;
      int onItsWay = 0;
      for (int games = 0; games < 40; ++games) {
        while (table.State().Point != 0) table.Roll(3, 4);
        table.Put(bet, stake);
        while (table.State().BetAmount(1, bet) > kZero) {
          table.LuckBegin();
          const bool begun = table.meter.seats[1].value != 0;
          onItsWay += begun ? 1 : 0;
          table.Roll(table.Pick(1, 6), table.Pick(1, 6));
          ASSERT_NEAR(LuckOf(table.meter, 1).expected, begun ? 0 : price, 3e-4);
        }
      }
      EXPECT_GT(onItsWay, 10);
    }
}

// The line pays its whole price on the come-out, to the last part: 7/495 of a Pass Line bet, 3/220 of a Don't
// Pass bet.
TEST(Luck, TheLinePaysItsEdgeOnTheComeOut) {
  const Currency stake = Currency::Dollars(7);
  for (const auto& [bet, cost] :
       {std::pair{int{kPassLine}, 84}, {int{kCome}, 84}, {int{kDontPass}, 81}, {int{kDontCome}, 81}}) {
    OneBet table(false);
    const bool onLine = bet == kPassLine || bet == kDontPass;
    for (int roll = 0; roll < 1000; ++roll) {
      if (!onLine || table.State().Point == 0)
        PlaceBet(*table.game, 1, bet, stake - table.State().BetAmount(1, bet));
      const bool waits = table.State().BetAmount(1, bet) > kZero && (!onLine || table.State().Point == 0);
      table.LuckBegin();
      table.Roll(table.Pick(1, 6), table.Pick(1, 6));
      const SeatLuck& luck = table.meter.seats[1];
      ASSERT_TRUE(luck.expected == (waits ? -cost * stake.raw : 0)) << BetName(bet) << ", roll " << roll;
      ASSERT_TRUE(luck.shifted == 0);
    }
  }
}

// Bets that stand alike for long, so that what was figured for them once is at hand when it no longer holds.
TEST(Luck, WhatWasFiguredUnderOtherRulesIsForgotten) {
  OneBet table(false);
  const int bets[] = {kPassLine, kDontPass, kPlace4 + 2, kBuy4,        kLay4 + 5,
                      kField,    kHard8,    kHorn,       kSharpShooter};
  const Currency start = table.State().BankrollCurrent[1];
  LuckBeginSession(table.meter, *table.game);
  for (int roll = 0; roll < 5000; ++roll) {
    if (roll % 20 == 0) table.ChangeRules();
    for (const int bet : bets)
      if (table.State().BetAmount(1, bet) == kZero) PlaceBet(*table.game, 1, bet, Currency::Dollars(40));
    table.LuckTable::Roll();
    ASSERT_TRUE(table.MoneyAgrees(1, start, 0)) << "roll " << roll;
  }
}

// What luck is for: results less their luck lie many times closer together, around the same mean.
TEST(Luck, ResultsLessLuckLieCloseTogether) {
  constexpr int kSessions = 400;
  constexpr int kRolls = 100;
  OneBet table(false);
  const Currency stake = Currency::Dollars(10);
  double squares[2] = {};
  double luckVariance = 0;
  double luckSum = 0;
  for (int session = 0; session < kSessions; ++session) {
    while (table.State().Point != 0) table.Roll(3, 4);
    const Currency start = table.State().BankrollCurrent[1];
    LuckBeginSession(table.meter, *table.game);
    for (int roll = 0; roll < kRolls; ++roll) {
      if (table.State().BetAmount(1, kPassLine) == kZero) PlaceBet(*table.game, 1, kPassLine, stake);
      table.LuckTable::Roll();
    }
    const double net = (table.State().BankrollCurrent[1] - start).ToDouble();
    const LuckReport report = LuckOf(table.meter, 1);
    squares[0] += net * net;
    squares[1] += (net - report.luck) * (net - report.luck);
    luckVariance += report.standardDeviation * report.standardDeviation;
    luckSum += report.luck;
  }
  EXPECT_GT(squares[0], 100 * squares[1]);  // a mean of some four dollars lost is in both
  EXPECT_LT(std::abs(luckSum), 4 * std::sqrt(luckVariance));
}

}  // namespace
}  // namespace tessaryn
