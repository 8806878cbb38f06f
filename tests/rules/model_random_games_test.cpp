// Random games on the engine and on the plain statement of the rules side by side; whatever differs is told
// with the seed of the game, the step and the last commands. TESSARYN_MODEL_ROLLS makes the games longer,
// TESSARYN_MODEL_SEED plays the one game of that seed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <memory>
#include <random>
#include <sstream>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/payoffs.h"
#include "rules/rules_model.h"
#include "rules/shooter.h"
#include "state/game.h"
#include "stats/statistics.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using model::RulesModel;

// Shows boxes to nobody, and keeps none of them.
struct SilentHost : test::TestHost {
  void ShowMessage(Game&, MessageBox& box) override {
    box.MsgResult = (box.MsgFlags & kMsgNo) != 0       ? kResultNo
                    : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel
                                                       : kResultOk;
  }
  SettleAnswer AskSettlement(Game&, const SettleQuestion&) override { return {}; }
  void PlaySound(Game&, Sound) override {}
};

// What a kind of game does more often than others.
struct Profile {
  const char* name;
  std::uint64_t firstSeed;
  bool randomPayoffs = false;
  bool oddUnits = false;      // betting units other than a dollar
  bool changesRules = false;  // limits and rules change while bets are up
  bool playersComeAndGo = false;
  bool shortMoney = false;  // bankrolls that run out
  int rollPercent = 40;     // of the commands
};

struct Pair {
  SilentHost host;
  std::unique_ptr<Game> game;
  std::unique_ptr<RulesModel> m = std::make_unique<RulesModel>();
  std::mt19937_64 random;
  std::deque<std::string> commands;  // the last few
  std::ostringstream differences;
  int differenceCount = 0;
  int differentSeat = 0;  // of the first difference, where it is a seat's
  int step = 0;

  int Pick(int first, int last) {
    const std::uint64_t range = static_cast<std::uint64_t>(last - first + 1);
    return first + static_cast<int>((random() >> 32) * range >> 32);
  }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }
  template <typename T, std::size_t n>
  T OneOf(const T (&values)[n]) {
    return values[Pick(0, static_cast<int>(n) - 1)];
  }

  void Note(const std::string& command) {
    commands.push_back(command);
    if (commands.size() > 12) commands.pop_front();
  }

  template <typename T, typename U>
  void Same(const char* what, int seat, int index, const T& expected, const U& actual) {
    if (static_cast<std::int64_t>(expected) == static_cast<std::int64_t>(actual)) return;
    if (differentSeat == 0) differentSeat = seat % kSeatRows;
    if (++differenceCount > 12) return;
    differences << "  " << what << " seat " << seat << " [" << index << "]: rules "
                << static_cast<std::int64_t>(expected) << ", table " << static_cast<std::int64_t>(actual)
                << "\n";
  }
  void Same(const char* what, int seat, int index, Currency expected, Currency actual) {
    if (expected == actual) return;
    if (differentSeat == 0) differentSeat = seat % kSeatRows;
    if (++differenceCount > 12) return;
    differences << "  " << what << " seat " << seat << " [" << index << "]: rules " << PlainMoney(expected)
                << ", table " << PlainMoney(actual) << "\n";
  }
};

// ---------------------------------------------------------------- settings on both sides

void CopyPayoffs(const Game& game, RulesModel& m) {
  const auto copy = [](const PayoffRecord* from, model::Payoff* to, int rows) {
    for (int i = 0; i < rows; ++i) to[i] = {to[i].BetUnit, from[i].PayTo, from[i].ForFlag, from[i].PayPer};
  };
  const PayoffTables& p = game.payoffs;
  copy(p.PayoffTable + 1, m.PayoffTable + 1, 100);
  copy(p.FieldPayoffs + 1, m.FieldPayoffs + 1, kFieldRows);
  copy(p.SevenPointSevenPayoffs + 1, m.SevenPointSevenPayoffs + 1, kSevenPointSevenRows);
  copy(p.MidwayPayoffs + 1, m.MidwayPayoffs + 1, kMidwayRows);
  copy(p.SharpShooterPayoffs + 1, m.SharpShooterPayoffs + 1, kSharpShooterRows);
  copy(p.RideTheLinePayoffs + 1, m.RideTheLinePayoffs + 1, kRideTheLineRows);
  copy(p.FirePayoffs, m.FirePayoffs, kFireRows + 1);
  model::RefreshBetUnits(m);
}

void CopySettings(const Game& game, RulesModel& m) {
  const Settings& s = game.settings;
  for (int i = 0; i < 6; ++i) m.CheckValue[i] = s.CheckValue[i];
#define COPY(field) m.field = s.field;
  TESSARYN_FOR_EACH(COPY, MinBetMain, MinBetProp, MaxBet, MaxPropBetPayoff, MaxOddsBet, MaxFireBet,
                    OddsCalcMethod, LayVigRound, BuyVigRound, LayVigUpFront, BuyVigUpFront, AllowPutBets,
                    SmallTallEnabled, BarNumber, ShooterBetRule)
#undef COPY
#define COPY(field) m.field = s.field.Number();
  TESSARYN_FOR_EACH(COPY, OddsAllowed410, OddsAllowed59, OddsAllowed68, LayVigRate, BuyVigRate)
#undef COPY
}

Currency Units(const Pair& pair, int count) {
  return Currency::FromRaw(pair.game->settings.Unit().raw * count);
}

void ChooseLimits(Pair& pair) {
  Settings& s = pair.game->settings;
  static const int minimums[] = {1, 1, 1, 2, 5, 10};
  static const int maximums[] = {20, 50, 97, 200, 1000, 1003};
  static const int multiples[] = {10'000, 20'000, 30'000, 40'000, 50'000, 100'000, 15'000, 25'000, 200'000};
  s.MinBetMain = Units(pair, pair.OneOf(minimums));
  s.MinBetProp = Units(pair, pair.OneOf(minimums));
  s.MaxBet = Units(pair, pair.OneOf(maximums));
  s.MaxPropBetPayoff = Units(pair, pair.OneOf(maximums) * 3);
  s.MaxOddsBet = Units(pair, pair.OneOf(maximums) * 3);
  s.MaxFireBet = Units(pair, pair.OneOf(minimums));
  s.OddsAllowed410 = Multiple::FromRaw(pair.OneOf(multiples));
  s.OddsAllowed59 = Multiple::FromRaw(pair.OneOf(multiples));
  s.OddsAllowed68 = Multiple::FromRaw(pair.OneOf(multiples));
  s.OddsCalcMethod = pair.Pick(0, 5);
}

void ChooseRules(Pair& pair) {
  Settings& s = pair.game->settings;
  s.BarNumber = pair.Chance(50) ? 12 : 2;
  s.AllowPutBets = pair.Chance(50);
  s.ShooterBetRule = pair.Chance(70) ? 0 : pair.Pick(1, 2);
}

void ChooseVig(Pair& pair) {
  Settings& s = pair.game->settings;
  static const int rates[] = {500, 500, 400, 333, 100, 0};
  s.LayVigRate = Fraction::FromRaw(pair.OneOf(rates));
  s.BuyVigRate = Fraction::FromRaw(pair.OneOf(rates));
  s.LayVigRound = pair.Pick(0, 2);
  s.BuyVigRound = pair.Pick(0, 2);
  s.LayVigUpFront = pair.Chance(50);
  s.BuyVigUpFront = pair.Chance(50);
}

void ChooseChecks(Pair& pair) {
  static const int units[] = {2'500, 5'000, 10'000, 20'000, 50'000, 100};
  static const int steps[] = {1, 5, 25, 100, 500};
  const int unit = pair.OneOf(units);
  for (int i = 1; i <= 5; ++i)
    pair.game->settings.CheckValue[i] = Currency::FromRaw(std::int64_t{unit} * steps[i - 1]);
}

void ChoosePayoffs(Pair& pair) {
  PayoffTables& p = pair.game->payoffs;
  for (int bet = 1; bet <= kBets; ++bet) {
    if (!pair.Chance(30)) continue;
    p.PayoffTable[bet].PayTo = Currency::Dollars(pair.Pick(1, 12));
    p.PayoffTable[bet].PayPer = Currency::Dollars(pair.Pick(1, 7));
  }
  for (int row = 1; row <= kFieldRows; ++row)
    if (pair.Chance(30)) p.FieldPayoffs[row].PayTo = Currency::Dollars(pair.Pick(-1, 3));
}

void SetUp(Pair& pair, const Profile& profile) {
  pair.game = StartGame(pair.host, test::kBinFolder, ::testing::TempDir());
  model::ResetModel(*pair.m);
  Settings& s = pair.game->settings;
  s.MessageMask = pair.Chance(50) ? 0 : 15;
  if (profile.oddUnits) ChooseChecks(pair);
  ChooseLimits(pair);
  ChooseRules(pair);
  ChooseVig(pair);
  s.SmallTallEnabled = pair.Chance(80);
  if (pair.Chance(60)) SetFieldPreset(pair.game->payoffs, pair.Pick(0, kFieldPresets - 1), s.Unit());
  if (profile.randomPayoffs) ChoosePayoffs(pair);
  RebuildBetUnits(pair.game->payoffs, s.Unit());
  CopySettings(*pair.game, *pair.m);
  CopyPayoffs(*pair.game, *pair.m);
}

// ---------------------------------------------------------------- comparing

void CompareSeat(Pair& pair, int seat) {
  const TableState& t = pair.game->table;
  const RulesModel& m = *pair.m;
  pair.Same("occupied", seat, 0, m.Occupied[seat], IsOccupied(t, seat));
  pair.Same("BankrollCurrent", seat, 0, m.BankrollCurrent[seat], t.BankrollCurrent[seat]);
  pair.Same("OnTableAmount", seat, 0, m.OnTableAmount[seat], t.seats[seat].OnTableAmount);
  for (int i = 0; i < 6; ++i) {
    pair.Same("LayVigHeld", seat, i, m.LayVigHeld[seat][i], t.seats[seat].LayVigHeld[i]);
    pair.Same("BuyVigHeld", seat, i, m.BuyVigHeld[seat][i], t.seats[seat].BuyVigHeld[i]);
    pair.Same("ComeTravelAmount", seat, i, m.ComeTravelAmount[seat][i], t.seats[seat].ComeTravelAmount[i]);
  }
  for (int bet = 1; bet <= kBets; ++bet) {
    pair.Same("BetAmount", seat, bet, m.BetAmount[seat][bet], t.BetAmount(seat, bet));
    pair.Same("BetCommitted", seat, bet, m.BetCommitted[seat][bet], t.BetCommitted(seat, bet));
    pair.Same("BetStreak", seat, bet, m.BetStreak[seat][bet], t.BetStreak(seat, bet));
    if (m.Occupied[seat])
      pair.Same("BetWorking", seat, bet, m.BetWorking[seat][bet], BetWorkingOf(*pair.game, seat, bet));
  }
}

void CompareTable(Pair& pair) {
  const TableState& t = pair.game->table;
  const RulesModel& m = *pair.m;
#define SAME(field) pair.Same(#field, 0, 0, m.field, t.field);
  TESSARYN_FOR_EACH(SAME, Point, PointBeforeRoll, PointTwoRollsAgo, LastPoint, ShooterSeat, HandSeat,
                    PreviousHandSeat, NumberMarks, FourRollCount, FireMarks, FireCount, SharpShooterCount,
                    RideTheLineCount)
#undef SAME
  for (int seat = 1; seat <= kSeats; ++seat) CompareSeat(pair, seat);
  const std::string fault = CheckConsistency(*pair.game);
  if (!fault.empty()) {
    ++pair.differenceCount;
    pair.differences << "  table contradicts itself: " << fault << "\n";
  }
}

void CompareSlot(Pair& pair, int scope, int seat) {
  const Statistics& s = pair.game->stats;
  const RulesModel& m = *pair.m;
  const int slot = Slot(scope, seat);
#define SAME(field) pair.Same(#field, slot, 0, m.field[slot], s.field[slot]);
  TESSARYN_FOR_EACH(SAME, MostComeoutRollsInHand, MostPassesInHand, MostMissesInHand)
  if (seat == 0) return;
  TESSARYN_FOR_EACH(SAME, BankrollBeginning, BankrollHigh, BankrollLow)
#undef SAME
  pair.Same("BankrollCurrent", slot, 0, m.BankrollCurrent[slot], BankrollOf(*pair.game, scope, seat));
}

void CompareStatistics(Pair& pair) {
  const Statistics& s = pair.game->stats;
  const RulesModel& m = *pair.m;
  for (int scope : {kCurrentHand, kLastHand, kCurrentSession, kAllSessions})
    for (int seat = 0; seat <= kSeats; ++seat) CompareSlot(pair, scope, seat);
  pair.Same("HandComeoutRolls", 0, 0, m.HandComeoutRolls, s.HandComeoutRolls);
  pair.Same("HandPasses", 0, 0, m.HandPasses, s.HandPasses);
  pair.Same("HandMisses", 0, 0, m.HandMisses, s.HandMisses);
}

// ---------------------------------------------------------------- commands on both sides

void ChooseHandling(Pair& pair, int seat) {
  Handling& h = pair.game->table.seats[seat].handling;
  RulesModel& m = *pair.m;
  static const int values[] = {1, 2, 3, 5, 10, 25, 50, 150};
  m.WinHandling[seat] = h.WinHandling = pair.Pick(0, 7);
  m.LoseHandling[seat] = h.LoseHandling = pair.Pick(0, 7);
  m.ProperOddsMode[seat] = h.ProperOddsMode = pair.Chance(75) ? 0 : pair.Pick(1, 2);
  m.AutoTakeOdds[seat] = h.AutoTakeOdds = pair.Chance(40);
  m.AutoLayOdds[seat] = h.AutoLayOdds = pair.Chance(40);
  m.AutoDownPlace[seat] = h.AutoDownPlace = pair.Chance(30);
  m.AutoPassDice[seat] = h.AutoPassDice = pair.Chance(20);
  for (int slot = 4; slot <= 7; ++slot) {
    m.AdjustKind[seat][slot] = h.AdjustKind[slot] = pair.Pick(0, 3);
    m.AdjustUnit[seat][slot] = h.AdjustUnit[slot] = pair.Pick(0, 4);
    m.AdjustValue[seat][slot] = h.AdjustValue[slot] = Currency::Dollars(pair.OneOf(values));
  }
  const int flips = pair.Chance(50) ? 0 : pair.Pick(1, 20);
  for (int i = 0; i < flips; ++i) {
    const int bet = pair.Pick(1, kBets);
    const bool works = pair.Chance(50);
    pair.game->table.seats[seat].BetDefaultWorking.Set(bet, works);
    m.BetDefaultWorking[seat][bet] = works ? 1 : 0;
  }
  pair.Note("handling of seat " + std::to_string(seat) + ": win " + std::to_string(h.WinHandling) +
            ", loss " + std::to_string(h.LoseHandling) + ", proper " + std::to_string(h.ProperOddsMode));
}

int PickSeat(Pair& pair) {
  int seats[kSeats];
  int count = 0;
  for (int seat = 1; seat <= kSeats; ++seat)
    if (pair.m->Occupied[seat]) seats[count++] = seat;
  return count == 0 ? 0 : seats[pair.Pick(0, count - 1)];
}

void Join(Pair& pair, int seat, const Profile& profile) {
  const Currency bankroll = Units(pair, profile.shortMoney ? pair.Pick(0, 300) : pair.Pick(500, 20'000));
  const bool negative = !profile.shortMoney && pair.Chance(30);
  pair.Note("seat " + std::to_string(seat) + " joins with " + PlainMoney(bankroll));
  std::string error;
  ASSERT_TRUE(JoinPlayer(*pair.game, seat, "Zebedee" + std::string(1, static_cast<char>('A' + seat)),
                         bankroll, error))
      << error;
  model::AddPlayer(*pair.m, seat, bankroll);
  pair.game->table.seats[seat].AllowNegativeBankroll = negative;
  pair.m->AllowNegativeBankroll[seat] = negative;
  ChooseHandling(pair, seat);
}

// Bets that a player at the rail makes often, among all the others.
int PickBet(Pair& pair, int seat) {
  if (pair.Chance(15)) {
    static const int odds[] = {13, 14, 15, 16, 17, 18, 25, 26, 27, 28, 29, 30};
    const int bet = pair.OneOf(odds);
    if (pair.m->BetAmount[seat][FlatBetOf(bet)] > kZero) return bet;
  }
  if (pair.Chance(60)) return pair.Pick(1, kBets);
  static const int often[] = {43, 43, 45, 45, 46, 48, 48, 48, 44, 47, 33,
                              34, 39, 1,  6,  84, 85, 86, 87, 91, 92, 93};
  return pair.OneOf(often);
}

Currency PickRequest(Pair& pair, int seat, int bet) {
  const Currency amount = pair.m->BetAmount[seat][bet];
  const int kind = pair.Pick(0, 9);
  if (kind == 0) return -amount;
  if (kind == 1) return -Units(pair, pair.Pick(1, 20));
  if (kind == 2) return Units(pair, pair.Pick(0, 3000));
  if (kind == 3) return Currency::FromRaw(pair.Pick(-200'000, 400'000));  // no whole units
  return kind == 4 ? kZero : Units(pair, pair.Pick(1, 30));
}

void Bet(Pair& pair, int seat) {
  const int bet = PickBet(pair, seat);
  const Currency request = PickRequest(pair, seat, bet);
  const bool plain = pair.Chance(20);
  pair.Note((plain ? "change seat " : "place seat ") + std::to_string(seat) + " bet " + std::to_string(bet) +
            " by " + PlainMoney(request) + " on " + PlainMoney(pair.m->BetAmount[seat][bet]));
  const Currency actual =
      plain ? ChangeBet(*pair.game, seat, bet, request) : PlaceBet(*pair.game, seat, bet, request);
  const Currency expected =
      plain ? model::ChangeBet(*pair.m, seat, bet, request) : model::PlaceBet(*pair.m, seat, bet, request);
  pair.Same("change allowed", seat, bet, expected, actual);
}

void Call(Pair& pair, int seat) {
  const int bet = pair.Pick(1, kBets);
  const bool on = pair.Chance(50);
  pair.Note("call seat " + std::to_string(seat) + " bet " + std::to_string(bet) + (on ? " on" : " off"));
  const bool actual = CallBet(*pair.game, seat, bet, on);
  pair.Same("call allowed", seat, bet, model::CallBet(*pair.m, seat, bet, on), actual);
}

void Uncall(Pair& pair, int seat) {
  const int bet = pair.Pick(1, kBets);
  pair.Note("button off seat " + std::to_string(seat) + " bet " + std::to_string(bet));
  RemoveCall(*pair.game, seat, bet);
  model::RemoveCall(*pair.m, seat, bet);
}

void Buy(Pair& pair, int seat) {
  const int bet = pair.Pick(31, 36);
  pair.Note("buy seat " + std::to_string(seat) + " bet " + std::to_string(bet));
  BuyPlaceBet(*pair.game, seat, bet);
  model::BuyPlaceBet(*pair.m, seat, bet);
}

void FullOdds(Pair& pair, int seat) {
  static const int odds[] = {44, 47, 13, 14, 15, 16, 17, 18, 25, 26, 27, 28, 29, 30};
  const int bet = pair.OneOf(odds);
  pair.Note("full odds seat " + std::to_string(seat) + " bet " + std::to_string(bet));
  TakeFullOdds(*pair.game, seat, bet);
  model::TakeFullOdds(*pair.m, seat, bet);
}

void UseAtm(Pair& pair, int seat) {
  const bool deposit = pair.Chance(30);
  const Currency amount = Units(pair, pair.Pick(0, 1000));
  pair.Note("atm seat " + std::to_string(seat) + (deposit ? " deposit " : " withdraw ") + PlainMoney(amount));
  const Currency actual = AtmTransaction(*pair.game, seat, deposit, amount);
  pair.Same("atm allowed", seat, 0, model::AtmTransaction(*pair.m, seat, deposit, amount), actual);
}

void ComeOrGo(Pair& pair, const Profile& profile) {
  const int seat = pair.Pick(1, kSeats);
  if (!pair.m->Occupied[seat]) return Join(pair, seat, profile);
  pair.Note("seat " + std::to_string(seat) + " leaves");
  LeaveTable(*pair.game, seat);
  model::RemovePlayer(*pair.m, seat);
}

void ChangeVig(Pair& pair) {
  pair.Note("the vig's rules change");
  ChooseVig(pair);
  RecomputeVig(*pair.game);
  const Settings& s = pair.game->settings;
  model::ChangeVigRules(*pair.m, {s.LayVigRate.Number(), s.BuyVigRate.Number(), s.LayVigRound, s.BuyVigRound,
                                  s.LayVigUpFront, s.BuyVigUpFront});
}

void ChangeRules(Pair& pair) {
  pair.Note("limits and rules change");
  ChooseLimits(pair);
  ChooseRules(pair);
  CopySettings(*pair.game, *pair.m);
}

void RollBoth(Pair& pair) {
  const int die1 = pair.Pick(1, 6);
  const int die2 = pair.Pick(1, 6);
  pair.Note("roll " + std::to_string(die1) + " " + std::to_string(die2) + " on point " +
            std::to_string(pair.m->Point));
  TableState& t = pair.game->table;
  t.ManualDie1 = die1;
  t.ManualDie2 = die2;
  t.ManualRollPending = true;
  const std::int64_t before = SessionRolls(pair.game->stats);
  RollDice(*pair.game);
  t.ManualRollPending = false;
  const bool rolled = model::Roll(*pair.m, die1, die2);
  pair.Same("rolls made", 0, 0, rolled ? 1 : 0, SessionRolls(pair.game->stats) - before);
}

void PassTheDice(Pair& pair) {
  pair.Note("the dice are passed");
  PassDice(*pair.game, kPassByUser);
  model::PassDice(*pair.m, 1);
}

struct Command {
  int upTo;  // of a thousand
  void (*run)(Pair& pair, int seat, const Profile& profile);
  bool Profile::*allowed = nullptr;
};
const Command kCommands[] = {
    {700, [](Pair& pair, int seat, const Profile&) { Bet(pair, seat); }},
    {780, [](Pair& pair, int seat, const Profile&) { Call(pair, seat); }},
    {800, [](Pair& pair, int seat, const Profile&) { Uncall(pair, seat); }},
    {850, [](Pair& pair, int seat, const Profile&) { Buy(pair, seat); }},
    {920, [](Pair& pair, int seat, const Profile&) { FullOdds(pair, seat); }},
    {940, [](Pair& pair, int, const Profile&) { PassTheDice(pair); }},
    {960, [](Pair& pair, int seat, const Profile&) { UseAtm(pair, seat); }},
    {980, [](Pair& pair, int seat, const Profile&) { ChooseHandling(pair, seat); }},
    {988, [](Pair& pair, int, const Profile& profile) { ComeOrGo(pair, profile); },
     &Profile::playersComeAndGo},
    {995, [](Pair& pair, int, const Profile&) { ChangeRules(pair); }, &Profile::changesRules},
    {1000, [](Pair& pair, int, const Profile&) { ChangeVig(pair); }, &Profile::changesRules},
};

// One command, chosen by the profile. Returns whether the dice were rolled.
bool Step(Pair& pair, const Profile& profile) {
  const int seat = PickSeat(pair);
  if (seat == 0) {
    Join(pair, pair.Pick(1, kSeats), profile);
    return false;
  }
  if (pair.Chance(profile.rollPercent)) {
    RollBoth(pair);
    return true;
  }
  const int choice = pair.Pick(1, 1000);
  for (const Command& command : kCommands) {
    if (choice > command.upTo) continue;
    if (command.allowed == nullptr || profile.*command.allowed) command.run(pair, seat, profile);
    break;
  }
  return false;
}

// What was decided for the seat of a difference.
std::string Decided(const Pair& pair) {
  const int seat = pair.differentSeat;
  std::ostringstream text;
  for (const model::Decision& decision : pair.m->Decisions)
    if (decision.seat == seat)
      text << "  decided: bet " << decision.bet << " net " << PlainMoney(decision.net) << " from "
           << PlainMoney(pair.m->BetBeforeRoll[seat][decision.bet]) << "\n";
  return text.str();
}

constexpr int kStepsPerGame = 3000;
constexpr long kEnoughRolls = 150'000;

// How often each bet was won and lost.
struct Tally {
  long won[kBets + 1] = {};
  long lost[kBets + 1] = {};
};

// Plays the game of a seed; returns the rolls made, or -1 at a difference.
int PlayGame(const Profile& profile, std::uint64_t seed, Tally& tally) {
  Pair pair;
  pair.random.seed(seed);
  SetUp(pair, profile);
  const int players = pair.Pick(1, kSeats);
  for (int i = 0; i < players; ++i) {
    const int seat = pair.Pick(1, kSeats);
    if (!pair.m->Occupied[seat]) Join(pair, seat, profile);
  }
  int rolls = 0;
  for (pair.step = 0; pair.step < kStepsPerGame && pair.differenceCount == 0; ++pair.step) {
    const bool rolled = Step(pair, profile);
    rolls += rolled ? 1 : 0;
    if (rolled)
      for (const model::Decision& decision : pair.m->Decisions)
        ++(decision.net > kZero ? tally.won : tally.lost)[decision.bet];
    CompareTable(pair);
    if (pair.step % 250 == 249) CompareStatistics(pair);
  }
  if (pair.differenceCount == 0) return rolls;
  std::ostringstream last;
  for (const std::string& command : pair.commands) last << "  " << command << "\n";
  ADD_FAILURE() << profile.name << ", game of seed " << seed << ", step " << pair.step - 1 << ", "
                << pair.differenceCount << " differences:\n"
                << pair.differences.str() << Decided(pair) << "last commands:\n"
                << last.str();
  return -1;
}

class ModelRandomGames : public testing::TestWithParam<Profile> {};

TEST_P(ModelRandomGames, AgreeWithTheTable) {
  const Profile& profile = GetParam();
  Tally tally;
  const std::int64_t wanted = test::LengthOf("TESSARYN_MODEL_ROLLS", kEnoughRolls, 600);
  if (const char* seedText = std::getenv("TESSARYN_MODEL_SEED")) {
    PlayGame(profile, std::strtoull(seedText, nullptr, 10), tally);
    return;
  }
  long rolls = 0;
  for (std::uint64_t seed = profile.firstSeed; rolls < wanted; ++seed) {
    const int played = PlayGame(profile, seed, tally);
    if (played < 0) return;
    rolls += played;
  }
  // Games that never decide a bet would compare nothing; a shortened run can't decide the rarest.
  if (wanted < kEnoughRolls) return;
  for (int bet = 1; bet <= kBets; ++bet) {
    EXPECT_GT(tally.lost[bet], 0) << BetName(bet);
    EXPECT_GT(tally.won[bet], 0) << BetName(bet);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Profiles, ModelRandomGames,
    testing::Values(
        Profile{.name = "TableByTheBook", .firstSeed = 1'000'000},
        Profile{
            .name = "OddUnitsAndPayoffs", .firstSeed = 2'000'000, .randomPayoffs = true, .oddUnits = true},
        Profile{.name = "RulesThatChangeUnderBets",
                .firstSeed = 3'000'000,
                .randomPayoffs = true,
                .changesRules = true,
                .playersComeAndGo = true},
        Profile{.name = "ShortMoney",
                .firstSeed = 4'000'000,
                .oddUnits = true,
                .changesRules = true,
                .playersComeAndGo = true,
                .shortMoney = true},
        Profile{.name = "LongHands", .firstSeed = 5'000'000, .playersComeAndGo = true, .rollPercent = 90}),
    [](const auto& profile) { return std::string(profile.param.name); });

}  // namespace
}  // namespace tessaryn
