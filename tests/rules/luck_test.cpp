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
  bool changesDice = false;
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
    {.name = "DiceThatChange", .changesDice = true, .rules = {{"AllowPutBets", 0, "off"}}},
};
void PrintTo(const House& house, std::ostream* out) { *out << house.name; }

// TESSARYN_LUCK_ROLLS sets the length of each game.
std::int64_t RollsWanted() {
  const char* text = std::getenv("TESSARYN_LUCK_ROLLS");
  return text != nullptr ? std::atoll(text) : 100'000;
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
      const std::int32_t value = pair == 0 ? left : pair == 21 ? 0 : Pick(1'000, 4'200);
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
    const int bet = Chance(50) ? Pick(1, kBets) : kOften[random() % std::size(kOften)];
    const Currency amount = State().BetAmount(seat, bet);
    if (amount > Currency::Dollars(300) || Chance(25))
      PlaceBet(*game, seat, bet, -amount);
    else
      PlaceBet(*game, seat, bet, Currency::FromRaw(game->settings.Unit().raw * Pick(1, 12)));
    if (Chance(10)) CallBet(*game, seat, Pick(1, kBets), Chance(60));
    if (Chance(1)) ChooseHandling(kPlayers, true);
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
    if (house.changesDice && roll % 1000 == 500) {
      if (roll % 2000 == 500)
        table.Load(0);
      else
        ActivatePercentageDice(table.game->percentage, false);
    }
    if (roll % 200 == 199) table.ExpectEveryOutcomeToBalance();
    ASSERT_FALSE(HasFatalFailure()) << "roll " << roll;
    table.Roll();
    for (int seat = 1; seat <= kPlayers; ++seat)
      ASSERT_TRUE(table.MoneyAgrees(seat, Currency::Dollars(5000), 0))
          << "seat " << seat << ", roll " << roll;
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

}  // namespace
}  // namespace tessaryn
