// The analysis against the table itself: every bet stands, the dice roll, and what came of it must agree with
// what the analysis says within four standard errors.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>
#include <random>

#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/advantage.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "stats/statistics.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

enum class Loading { kFair, kFaces, kCells };

struct House {
  const char* name;
  Loading loading;
  bool vigUpFront;
  int barNumber;
  bool changedPayoffs;
};
constexpr House kHouses[] = {
    {"FairUpFrontBar12", Loading::kFair, true, 12, false},
    {"FairOnWinBar2", Loading::kFair, false, 2, true},
    {"LoadedFacesUpFrontBar2", Loading::kFaces, true, 2, true},
    {"LoadedFacesOnWinBar12", Loading::kFaces, false, 12, false},
    {"LoadedCellsOnWinBar12", Loading::kCells, false, 12, false},
    {"LoadedCellsUpFrontBar2", Loading::kCells, true, 2, true},
};

void PrintTo(const House& house, std::ostream* out) { *out << house.name; }

// TESSARYN_EDGE_ROLLS sets the length of each run; ten million take a minute and a half a house.
std::int64_t RollsWanted() {
  const char* text = std::getenv("TESSARYN_EDGE_ROLLS");
  return text != nullptr ? std::atoll(text) : 1'000'000;
}

// Cells that add to the whole, so that no draw needs the retry.
void Load(PercentageDice& dice, Loading loading) {
  if (loading == Loading::kFair) return;
  constexpr int kFaces[] = {23, 13, 16, 14, 11, 23};
  std::mt19937 random(4711);
  double weights[36];
  double sum = 0;
  for (int pair = 0; pair < 36; ++pair) {
    weights[pair] = loading == Loading::kFaces ? kFaces[pair / 6] * kFaces[5 - pair % 6]
                                               : 1.0 + static_cast<int>(random() % 9);
    if (loading == Loading::kCells && pair == 21) weights[pair] = 0;  // no hard 8
    sum += weights[pair];
  }
  ProbabilityPlane& cells = dice.ProbMatrix[1];
  cells = {};
  std::int32_t left = kProbabilityWhole;
  for (int pair = 0; pair < 36; ++pair) {
    const int die1 = pair / 6 + 1;
    const int die2 = pair % 6 + 1;
    const auto share = static_cast<std::int32_t>(weights[pair] / sum * kProbabilityWhole);
    const std::int32_t value = pair == 35 ? left : share;
    left -= value;
    cells[ProbabilityRow(die1, die2)][ProbabilityColumn(die1, die2)] = value;
    cells[kTotalRow][die1 + die2 - 1] += value;
    cells[die1 + 1][kDie1Column] += value;
    cells[die2 + 1][kDie2Column] += value;
  }
  ProbabilitiesChanged(dice);
  ASSERT_TRUE(ActivatePercentageDice(dice, true));
}

// Pays whole on every bet, vig included: the table rounds a vig to the dollar, the analysis does not.
constexpr const char* kStake = "120";

// Seats of the table: one with every bet that stands by itself, and one for each of those that travel.
enum Seat : int { kBoxSeat = 1, kPassSeat, kComeSeat, kDontPassSeat, kDontComeSeat };

struct Crowd : test::TestHost {
  std::int64_t rollsUp[kSeatRows][kBets + 1] = {};
  std::int64_t comeRolls[2] = {};  // rolls with a Come, a Don't Come bet up, moved or not

  void Ask(Game& game, int seat, int bet) {
    if (game.table.BetAmount(seat, bet) == kZero) ChangeBet(game, seat, bet, ParseMoney(kStake));
  }

  // One bet at a time, so that its decisions are independent of each other.
  void AskTraveller(Game& game, int seat, int bet, int firstMoved, std::int64_t& rolls) {
    BetSet up = BetRange(bet, bet) | BetRange(firstMoved, firstMoved + 5);
    if (!game.table.seats[seat].SeatBets.Meets(up)) Ask(game, seat, bet);
    if (game.table.seats[seat].SeatBets.Meets(up)) ++rolls;
  }

  void BetEverything(Game& game) {
    for (Currency& bankroll : game.table.BankrollCurrent) bankroll = kZero;
    for (int bet = 1; bet <= kBets; ++bet) {
      if (bet >= kPassLine && bet <= kDontCome) continue;
      // Nobody may put money right behind the line; it gets there by travelling, of which this is no test.
      if (IsDontComeNumber(bet) && game.table.BetAmount(kBoxSeat, bet) == kZero)
        SetBetAmount(game, kBoxSeat, bet, ParseMoney(kStake));
      Ask(game, kBoxSeat, bet);
    }
    for (const int odds : {kDontComeOdds4, kComeOdds4})
      for (int bet = odds; bet < odds + 6; ++bet) Ask(game, kBoxSeat, bet);
    for (const auto& [seat, line] : {std::pair{kPassSeat, kPassLine}, {kDontPassSeat, kDontPass}}) {
      if (game.table.Point == 0) Ask(game, seat, line);
      if (game.table.BetAmount(seat, line) > kZero) Ask(game, seat, line + 1);
    }
    AskTraveller(game, kComeSeat, kCome, kCome4, comeRolls[0]);
    AskTraveller(game, kDontComeSeat, kDontCome, kDontCome4, comeRolls[1]);
    for (int seat = 1; seat <= kSeats; ++seat)
      game.table.seats[seat].SeatBets.ForEach([&](int bet) { ++rollsUp[seat][bet]; });
  }

  bool Yield(Game& game) override {
    BetEverything(game);
    return TestHost::Yield(game);
  }
};

struct Tally {
  double decisions = 0;
  double net = 0;
  double wagered = 0;
  double rolls = 0;

  void Add(const Game& game, int seat, int bet) {
    const auto stat = [&](StatTable table, StatKind kind) {
      return BetStat(game.stats, table, kCurrentSession, seat, bet, kind).ToDouble();
    };
    decisions += stat(kWagerStats, kStatCount);
    wagered += stat(kWagerStats, kStatTotal);
    net += stat(kWinStats, kStatTotal) - stat(kLossStats, kStatTotal);
  }
};

Tally TallyOf(const Game& game, const Crowd& crowd, int bet) {
  Tally tally;
  if (bet == kCome || bet == kDontCome) {
    const bool come = bet == kCome;
    const int seat = come ? kComeSeat : kDontComeSeat;
    tally.Add(game, seat, bet);
    for (int i = 0; i < 6; ++i) tally.Add(game, seat, (come ? kCome4 : kDontCome4) + i);
    tally.rolls = static_cast<double>(crowd.comeRolls[come ? 0 : 1]);
    return tally;
  }
  const int seat = bet == kPassLine || bet == kPassLineOdds   ? kPassSeat
                   : bet == kDontPass || bet == kDontPassOdds ? kDontPassSeat
                                                              : kBoxSeat;
  tally.Add(game, seat, bet);
  tally.rolls = static_cast<double>(crowd.rollsUp[seat][bet]);
  return tally;
}

void ExpectFigures(const Game& game, int bet, const Tally& tally) {
  const Advantage figure = FigureAdvantage(game, bet);
  ASSERT_GT(tally.decisions, 0) << BetName(bet);
  const double unit = tally.wagered / tally.decisions;
  // A push is no decision to the table, but a one-roll bet is over on every roll all the same.
  const double decisions = figure.rollsPerDecision == 1 ? tally.rolls : tally.decisions;
  const double spread = std::sqrt(decisions);
  EXPECT_NEAR(tally.net / unit / decisions, figure.evPerDecision, 4 * figure.stdevPerDecision / spread + 1e-6)
      << BetName(bet) << ", " << decisions << " decisions";
  // The time to a decision scatters by no more than its mean; 0.005 is the rounding of the figure.
  EXPECT_NEAR(tally.rolls / decisions, figure.rollsPerDecision, 4 * figure.rollsPerDecision / spread + 0.0051)
      << BetName(bet);
  EXPECT_NEAR(
      tally.net / unit / tally.rolls, figure.evPerRoll,
      4 * figure.stdevPerRoll / std::sqrt(tally.rolls) + 4 * std::abs(figure.evPerRoll) / spread + 1e-6)
      << BetName(bet);
}

class AdvantageSimulation : public ::testing::TestWithParam<House> {};

TEST_P(AdvantageSimulation, EveryBetIsWorthWhatTheTablePays) {
  const House& house = GetParam();
  test::TempFolder folder;
  Crowd crowd;
  const auto game = StartGame(crowd, test::kBinFolder, folder.Path());
  for (int seat = kBoxSeat; seat <= kDontComeSeat; ++seat) {
    std::string error;
    const std::string name = "Player" + std::string(1, static_cast<char>('A' + seat));
    ASSERT_TRUE(JoinPlayer(*game, seat, name, kZero, error)) << error;
  }
  std::vector<SettingChange> rules{
      {"ShooterBetRule", 0, "0"},         {"MaxBet", 0, "9999999"},     {"MaxPropBetPayoff", 0, "9999999"},
      {"MaxFireBet", 0, "9999999"},       {"MaxOddsBet", 0, "9999999"}, {"OddsAllowed410", 0, "100"},
      {"OddsAllowed59", 0, "100"},        {"OddsAllowed68", 0, "100"},  {"OddsCalcMethod", 0, "5"},
      {"AllowPutBets", 0, "on"},          {"WinHandling", 0, "1"},      {"LoseHandling", 0, "1"},
      {"AllowNegativeBankroll", 0, "on"}, {"MessageMask", 0, "0"}};
  rules.push_back({"BarNumber", 0, std::to_string(house.barNumber)});
  for (const char* name : {"BuyVigUpFront", "LayVigUpFront"})
    rules.push_back({name, 0, house.vigUpFront ? "on" : "off"});
  if (house.changedPayoffs)
    for (const auto& [name, value] : {std::pair{"FieldPayoffs.21", "3 to 1"},
                                      {"FieldPayoffs.5", "0 to 1"},
                                      {"PayoffTable.45", "3 to 2"},
                                      {"PayoffTable.48", "6 to 5"},
                                      {"PayoffTable.19", "5 to 4"},
                                      {"PayoffTable.9", "4 to 5"},
                                      {"PayoffTable.28", "7 to 5"},
                                      {"PayoffTable.33", "1 to 1"},
                                      {"PayoffTable.1", "2 to 3"},
                                      {"FirePayoffs.3", "10 to 1"},
                                      {"FirePayoffs.0", "-1 to 2"},
                                      {"SharpShooterPayoffs.1", "-4 to 5"},
                                      {"RideTheLinePayoffs.12", "500 to 1"},
                                      {"MidwayPayoffs.3", "3 to 2"},
                                      {"SevenPointSevenPayoffs.2", "4 to 1"}})
      rules.push_back({name, 0, value});
  for (int seat = kBoxSeat; seat <= kDontComeSeat; ++seat)
    for (int bet = 1; bet <= kBets; ++bet)
      rules.push_back({"BetDefaultWorking." + std::to_string(bet), seat, "on"});
  std::string error;
  ASSERT_TRUE(SetSettings(*game, rules, error)) << error;
  for (int seat = 1; seat <= kSeats; ++seat) game->table.seats[seat].BetWorking.byDefault = kAllTableBets;
  Load(game->percentage, house.loading);
  ASSERT_TRUE(SelectGenerator(*game, 1));
  bool seeded = true;
  SeedRng(*game, seeded, Currency::Dollars(20'261'122));
  crowd.BetEverything(*game);
  crowd.rollTarget = RollsWanted();
  ToggleAutoRoll(*game);
  ASSERT_EQ(SessionRolls(game->stats), RollsWanted()) << game->table.StopReason;
  // The bets of the roll that was not rolled any more.
  for (int seat = 1; seat <= kSeats; ++seat)
    game->table.seats[seat].SeatBets.ForEach([&](int bet) { --crowd.rollsUp[seat][bet]; });
  for (int bet = 1; bet <= kBets; ++bet) ExpectFigures(*game, bet, TallyOf(*game, crowd, bet));
}

INSTANTIATE_TEST_SUITE_P(Houses, AdvantageSimulation, ::testing::ValuesIn(kHouses),
                         [](const auto& house) { return std::string(house.param.name); });

}  // namespace
}  // namespace tessaryn
