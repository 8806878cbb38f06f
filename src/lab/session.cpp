#include "lab/session.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "lab/dice_streams.h"
#include "play/copy_game.h"
#include "play/roll_cycle.h"
#include "rules/bankroll.h"
#include "rules/handling.h"
#include "state/bet_families.h"
#include "state/run_stop.h"
#include "stats/sessions_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kStatementsOfALook = 64;  // at full speed the interpreter gives way so often

}  // namespace

// --- The outside.

void LabHost::ShowMessage(Game&, MessageBox& box) {
  box.MsgResult = (box.MsgFlags & kMsgNo) != 0       ? kResultNo
                  : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel
                                                     : kResultOk;
}

bool LabHost::YieldByClock(Game& game) {
  if (stop != nullptr && stop->load(std::memory_order_relaxed)) game.autobet.ScriptRunning = false;
  return false;
}

// A script that goes too far is watched for one step more, which tells the line.
bool LabHost::Yield(Game& game) {
  statements += game.table.TurboRollActive ? kStatementsOfALook : 1;
  if (statements > kMostStatements && !endless) {
    endless = true;
    game.autobet.StepsShown = true;
    game.autobet.StepsHold = game.autobet.StepMode = false;
    game.table.TurboRollActive = false;
  }
  // A script of nothing but conditions takes no step.
  if (statements > kMostStatements + 10 * kStatementsOfALook) game.autobet.ScriptRunning = false;
  return (statements & 0xffff) < kStatementsOfALook && YieldByClock(game);
}

void LabHost::ShowStep(Game& game, const ScriptStep& shown) {
  endlessLine = shown.line;
  game.autobet.ScriptRunning = false;
}

// --- A table as before its first session.

namespace {

template <typename T>
struct IsSeatBetTable : std::false_type {};
template <typename T, int kRows>
struct IsSeatBetTable<SeatBetTable<T, kRows>> : std::true_type {};

// The bets' tables are large, and a session touches a few rows of them.
template <typename T, int kRows>
void ResetRows(SeatBetTable<T, kRows>& cells, const SeatBetTable<T, kRows>& fresh,
               const TouchedBets& touched) {
  touched.bets.ForEach([&](BetId bet) { cells(kLabSeat, bet) = fresh(kLabSeat, bet); });
  if constexpr (kRows == kBetRows)
    touched.stacks.ForEach([&](int stack) {
      cells(kLabSeat, kFirstCheckStack + stack) = fresh(kLabSeat, kFirstCheckStack + stack);
    });
}

// Texts and lists mostly are what they were, and names mostly aren't given.
template <typename T>
void ResetPart(T& value, const T& fresh) {
  if constexpr (std::is_trivially_copyable_v<T>) {
    std::memcpy(&value, &fresh, sizeof value);
  } else if constexpr (std::is_same_v<T, std::string[kCheckStacks]>) {
    std::size_t letters = 0;
    for (int i = 0; i < kCheckStacks; ++i) letters |= value[i].size() | fresh[i].size();
    for (int i = 0; letters != 0 && i < kCheckStacks; ++i)
      if (value[i] != fresh[i]) value[i] = fresh[i];
  } else if constexpr (std::is_array_v<T>) {
    for (std::size_t i = 0; i < std::size(value); ++i) ResetPart(value[i], fresh[i]);
  } else if constexpr (HasFields<T>) {
    ForEachMember(std::type_identity<T>{}, [&](const char*, auto member) {
      using Member = std::remove_reference_t<decltype(value.*member)>;
      if constexpr (std::is_copy_assignable_v<Member> || std::is_array_v<Member>)
        ResetPart(value.*member, fresh.*member);
    });
  } else {
    if (!(value == fresh)) value = fresh;
  }
}

void ResetState(TableState& table, const TableState& fresh, const TouchedBets& touched) {
  ForEachMember(std::type_identity<TableState>{}, [&](const char*, auto member) {
    using Member = std::remove_reference_t<decltype(table.*member)>;
    if constexpr (IsSeatBetTable<Member>::value)
      ResetRows(table.*member, fresh.*member, touched);
    else if constexpr (std::is_same_v<Member, SeatState[kSeatRows]>)
      for (SeatId seat = 0; seat <= kLabSeat; ++seat) ResetPart(table.seats[seat], fresh.seats[seat]);
    else
      ResetPart(table.*member, fresh.*member);
  });
}

// Of a table by slot: the house's and the player's.
template <typename T>
void ResetSlots(T (&slots)[kSlots], const T (&fresh)[kSlots]) {
  for (int scope = 0; scope < kScopes; ++scope)
    for (SeatId seat = 0; seat <= kLabSeat; ++seat)
      ResetPart(slots[Slot(scope, seat)], fresh[Slot(scope, seat)]);
}

void ResetStatistics(Statistics& stats, const Statistics& fresh, const TouchedBets& touched) {
  const auto resetBet = [&](BetId bet) {
    std::memcpy(&stats.Bets[bet][kLabSeat], &fresh.Bets[bet][kLabSeat], sizeof stats.Bets[bet][kLabSeat]);
  };
  resetBet(0);
  touched.bets.ForEach(resetBet);
  // On a table that nothing was rolled on all are 0, and no gap is longer than up to the last roll.
  for (int item = 0; item < kRollItems; ++item)
    if (const int last = stats.ItemLastRoll[item]; last != 0)
      std::memset(stats.RollGapCounts[item], 0,
                  static_cast<std::size_t>(std::min(last + 1, kGapCells)) * sizeof(std::int32_t));
  ForEachMember(std::type_identity<Statistics>{}, [&](const char*, auto member) {
    constexpr bool kDone = std::is_same_v<decltype(member), decltype(&Statistics::Bets)> ||
                           std::is_same_v<decltype(member), decltype(&Statistics::RollGapCounts)>;
    using Member = std::remove_reference_t<decltype(stats.*member)>;
    if constexpr (std::extent_v<Member> == kSlots)
      ResetSlots(stats.*member, fresh.*member);
    else if constexpr (!kDone)
      ResetPart(stats.*member, fresh.*member);
  });
}

void ResetGraph(BankrollGraph& graph, const BankrollGraph& fresh, bool alsoUnplotted) {
  if (alsoUnplotted || fresh.PlotPoints != 0) std::copy_n(fresh.Rows, kPlotRows, graph.Rows);
  ForEachMember(std::type_identity<BankrollGraph>{}, [&](const char*, auto member) {
    if constexpr (!std::is_same_v<decltype(member), decltype(&BankrollGraph::Rows)>)
      ResetPart(graph.*member, fresh.*member);
  });
}

// Long, and seldom drawn from but where a session draws its dice from.
void ResetStream(TwisterStream& stream, const TwisterStream& fresh) {
  if (stream.Next != fresh.Next || stream.State[0] != fresh.State[0]) stream = fresh;
}

void ResetGenerators(Generators& generators, const Generators& fresh, bool alsoDrawn) {
  const bool cokus = fresh.GeneratorIndex == kGeneratorCokus;
  if (alsoDrawn || cokus) ResetStream(generators.Mersenne, fresh.Mersenne);
  if (alsoDrawn || !cokus) ResetStream(generators.Cokus, fresh.Cokus);
  ForEachMember(std::type_identity<Generators>{}, [&](const char*, auto member) {
    using Member = std::remove_reference_t<decltype(generators.*member)>;
    if constexpr (!std::is_same_v<Member, TwisterStream>) ResetPart(generators.*member, fresh.*member);
  });
}

// The compiled script stays; what came of running it goes.
void ResetScripts(AutoBet& autobet, const AutoBet& fresh) {
  SeatScript& script = autobet.Scripts[kLabSeat];
  script.Errors.clear();
  script.Acted = false;
  if (script.Output.File != nullptr) script.Output = ScriptOutput();
  if (!autobet.OutputOwners.empty()) autobet.OutputOwners.clear();
  std::copy(std::begin(fresh.ScriptActive), std::end(fresh.ScriptActive), autobet.ScriptActive);
  autobet.ScriptRunning = autobet.ScriptInitializing = false;
  autobet.CurrentAutobettor = fresh.CurrentAutobettor;
  autobet.Work = fresh.Work;
  autobet.ScriptError = fresh.ScriptError;
  if (!autobet.ScriptFault.empty()) autobet.ScriptFault.clear();
  autobet.StepMode = fresh.StepMode;
  autobet.StepsShown = fresh.StepsShown;
  autobet.StepsHold = fresh.StepsHold;
  autobet.Answer = fresh.Answer;
  autobet.SessionAhead = fresh.SessionAhead;
  autobet.BeginningNewSession = fresh.BeginningNewSession;
  autobet.RollFileEndReached = fresh.RollFileEndReached;
}

}  // namespace

std::unique_ptr<LabTable> OpenLabTable(const Game& fresh, const std::atomic<bool>* stop) {
  auto table = std::make_unique<LabTable>();
  table->host.stop = stop;
  table->fresh = &fresh;
  table->game = CopyGame(fresh, table->host);
  return table;
}

namespace {

// whole: also the stream that a session's dice are drawn from, which gets new numbers as one begins, and the
// rows of the graph that nobody reads before they are plotted.
void Reset(LabTable& table, bool whole) {
  Game& game = *table.game;
  const Game& fresh = *table.fresh;
  const SeatState& seat = game.table.seats[kLabSeat];
  table.touched.bets = table.touched.bets | seat.TouchedSinceBefore;
  table.touched.stacks = table.touched.stacks | seat.StacksSinceBefore;
  ResetStatistics(game.stats, fresh.stats, table.touched);
  ResetGraph(game.graph, fresh.graph, whole);
  ResetState(game.table, fresh.table, table.touched);
  ResetGenerators(game.generators, fresh.generators, whole);
  ResetScripts(game.autobet, fresh.autobet);
  ResetPart(game.settings, fresh.settings);
  ResetPart(game.payoffs, fresh.payoffs);
  ResetPart(game.box, fresh.box);
  table.touched = {};
  table.host.statements = 0;
  table.host.endless = false;
  table.host.endlessLine = 0;
}

}  // namespace

void ResetLabTable(LabTable& table) { Reset(table, true); }

// --- A session.

namespace {

// What is looked at as each roll ends.
struct Course {
  Currency start;  // what net counts from
  Currency base;   // with what came from the ATM
  Currency highest;
  Currency net;
  // As last looked at; before the first roll nothing is.
  Currency bankroll = Currency::FromRaw(std::numeric_limits<std::int64_t>::min());
  Currency drawn;             // from the ATM
  std::int64_t streak = 0;    // losing rolls by now
  std::int64_t rolls = 0;     // the most
  std::int64_t hands = 0;     // likewise
  std::int64_t marks = 0;     // of the fan
  std::int64_t nextMark = 0;  // the roll that the next is set at
};
constexpr std::int64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

// The first roll behind a part of the experiment's.
std::int64_t RollOfMark(const Experiment& experiment, std::int64_t mark) {
  if (experiment.rolls == 0 || mark == kFanMarks) return kNoEnd;
  return (experiment.rolls * (mark + 1) + kFanMarks - 1) / kFanMarks;
}

// Until the roll that fills the hours by the roll rate, if not to an end before.
std::int64_t MostRolls(const Experiment& experiment, const Game& game) {
  const std::int64_t most = experiment.rolls > 0 ? experiment.rolls : kNoEnd;
  if (experiment.hours <= kZero) return most;
  constexpr auto kParts = static_cast<WideInt>(Currency::kPerDollar) * Currency::kPerDollar;
  const WideInt parts = WideInt{experiment.hours.raw} * game.settings.SimRollRate.raw;
  return std::min(most,
                  static_cast<std::int64_t>(std::min<WideInt>((parts + kParts - 1) / kParts, kMaxRolls)));
}

// Behind a roll, or what was played out.
void FollowStreak(Course& course, Currency net, SessionResult& result) {
  if (net > course.net) course.streak = 0;
  if (net < course.net && ++course.streak > result.losingStreak) result.losingStreak = course.streak;
  course.net = net;
}

Currency DrawnOf(const Game& game) { return game.stats.AtmTotal[Slot(kCurrentSession, kLabSeat)]; }

Currency NetOf(const Game& game, const Course& course) {
  return game.table.BankrollCurrent[kLabSeat] - course.start - DrawnOf(game);
}

bool BeginSession(LabTable& table, const Experiment& experiment, std::int64_t session) {
  Game& game = *table.game;
  SetDiceStream(game.generators, experiment.seed, static_cast<std::uint64_t>(session));
  table.stopReason.clear();
  const bool ready = InitialiseScripts(game);
  game.table.AutoRollActive = game.table.TurboRollActive = true;
  return ready && ReadyToRoll(game);
}

bool IsRuined(const Game& game) { return game.table.BankrollCurrent[kLabSeat] < game.settings.MinBetMain; }

// Nothing was rolled: for lack of money, or the system wants no more.
std::uint8_t MarkOfRefusal(const Game& game) {
  const Currency rail = game.table.BankrollCurrent[kLabSeat] - game.table.seats[kLabSeat].OnTableAmount;
  return rail < game.settings.MinBetMain ? kMarkRuined : kMarkStopped;
}

// Behind a roll that left other money.
[[gnu::noinline]] void LookAtMoney(const Game& game, const Experiment& experiment, Course& course,
                                   SessionResult& result) {
  course.bankroll = game.table.BankrollCurrent[kLabSeat];
  if (const Currency drawn = DrawnOf(game); drawn != course.drawn) {
    course.drawn = drawn;
    course.base = course.start + drawn;
  }
  const Currency net = course.bankroll - course.base;
  FollowStreak(course, net, result);
  if (net > course.highest) course.highest = net;
  if (course.highest - net > result.maxDrawdown) result.maxDrawdown = course.highest - net;
  if (IsRuined(game)) result.marks |= kMarkRuined;
  if (experiment.winGoal > kZero && net >= experiment.winGoal) result.marks |= kMarkGoal;
  if (experiment.lossLimit > kZero && net <= -experiment.lossLimit) result.marks |= kMarkLimit;
}

// The result as a roll ends. Whether the session is to end here.
[[gnu::always_inline]] inline bool LookAtRoll(LabTable& table, const Experiment& experiment, Course& course,
                                              SessionResult& result) {
  const Game& game = *table.game;
  LuckAfterThrow(table.luck, game);
  ++result.rolls;
  if (game.table.RollTotal == 7 && game.table.PointBeforeRoll > 0) ++result.hands;
  if (game.table.BankrollCurrent[kLabSeat] != course.bankroll || DrawnOf(game) != course.drawn)
    LookAtMoney(game, experiment, course, result);
  for (; result.rolls >= course.nextMark; course.nextMark = RollOfMark(experiment, course.marks))
    table.fan[course.marks++] = course.net;
  return result.marks != 0 || result.rolls >= course.rolls || result.hands >= course.hands;
}

bool ContractIsUp(const Game& game) {
  bool up = false;
  game.table.seats[kLabSeat].SeatBets.ForEach([&](BetId bet) {
    up = up || (UnderContract(game.table, bet) && game.table.BetCommitted(kLabSeat, bet) > kZero);
  });
  return up;
}

// From here on what is decided comes down, and nothing new goes up.
void TakeNoNewBets(Game& game) {
  game.settings.ShooterBetRule = 0;
  game.autobet.ScriptActive[0] = false;
  Handling& handling = game.table.seats[kLabSeat].handling;
  handling.WinHandling = kWinTakeDown;
  handling.LoseHandling = kLoseTakeDown;
  handling.AutoTakeOdds = handling.AutoLayOdds = handling.AutoDownPlace = false;
}

inline void NoteTouched(LabTable& table) {
  if (table.game->table.SeatsSinceBefore == 0) return;
  const SeatState& seat = table.game->table.seats[kLabSeat];
  table.touched.bets = table.touched.bets | seat.TouchedSinceBefore;
  table.touched.stacks = table.touched.stacks | seat.StacksSinceBefore;
}

// What rides is played out.
void PlayOut(LabTable& table, const Experiment& experiment, Course& course, SessionResult& result) {
  Game& game = *table.game;
  if (!ContractIsUp(game)) return;
  TakeNoNewBets(game);
  game.table.AutoRollActive = game.table.TurboRollActive = true;
  do {
    FinishRoll(game);
    NoteTouched(table);
    LuckBeforeRoll(table.luck, game);
    if (!RollAndSettle(game)) return;
    LookAtRoll(table, experiment, course, result);
  } while (ContractIsUp(game));
}

bool GivenUp(const LabTable& table) {
  return table.host.endless ||
         (table.host.stop != nullptr && table.host.stop->load(std::memory_order_relaxed));
}

// Rolls until an end is met. False when the session was given up.
[[gnu::noinline]] bool PlayRolls(LabTable& table, const Experiment& experiment, Course& course,
                                 SessionResult& result) {
  Game& game = *table.game;
  for (;;) {
    NoteTouched(table);
    LuckBeforeRoll(table.luck, game);
    if (!RollAndSettle(game)) {
      result.marks |= MarkOfRefusal(game);
      table.stopReason = game.table.StopReason;
      return true;
    }
    if (LookAtRoll(table, experiment, course, result)) return true;
    table.host.statements = 0;
    FinishRoll(game);
    if (GivenUp(table)) return false;
    if (Abs(game.table.BankrollCurrent[kLabSeat]) > kBankrollLimit) BankrollLimitReached(game, kLabSeat);
    if (game.table.AutoRollActive) continue;
    result.marks |= kMarkStopped;
    table.stopReason = game.table.StopReason;
    return true;
  }
}

// The amounts that were decided, in the hand and before it.
Currency HandleOf(const Statistics& stats, const TouchedBets& touched) {
  Currency handle;
  touched.bets.ForEach([&](BetId bet) {
    const auto& scopes = stats.Bets[bet][kLabSeat];
    handle += scopes[kCurrentSession].kinds[kWagerStats][kStatTotal - 1] +
              scopes[kCurrentHand].kinds[kWagerStats][kStatTotal - 1];
  });
  return handle;
}

}  // namespace

bool PlaySession(LabTable& table, const Experiment& experiment, std::int64_t session, SessionResult& result,
                 Record* record) {
  Reset(table, false);
  result = {};
  Game& game = *table.game;
  Course course;
  const bool begun = BeginSession(table, experiment, session);
  if (GivenUp(table)) return false;
  LuckBeginSession(table.luck, game, LuckRulesMay::kStand);  // nobody is there, and scripts can't
  course.start = course.base = game.stats.BankrollSessionStart[kLabSeat];
  course.nextMark = RollOfMark(experiment, 0);
  course.rolls = MostRolls(experiment, game);
  course.hands = experiment.hands > 0 ? experiment.hands : kNoEnd;
  if (!begun) result.marks |= kMarkStopped;
  if (begun && !PlayRolls(table, experiment, course, result)) return false;
  if (experiment.endWithHand) PlayOut(table, experiment, course, result);
  NoteTouched(table);
  result.net = NetOf(game, course);
  result.highest = course.highest;
  LuckSumUp(table.luck);
  const SeatLuck& luck = table.luck.seats[kLabSeat];
  result.luck = luck.luck;
  result.price = -(luck.expected + luck.shifted);
  result.luckUnit = table.luck.unit;
  result.handle = HandleOf(game.stats, table.touched);
  if (experiment.rolls > 0)
    while (course.marks < kFanMarks) table.fan[course.marks++] = result.net;
  if (record != nullptr) *record = SessionOf(game, kLabSeat);
  return true;
}

}  // namespace tessaryn
