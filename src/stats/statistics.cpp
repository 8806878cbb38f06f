#include "stats/statistics.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "base/messages.h"
#include "state/game.h"
#include "state/vig.h"
#include "stats/roll_item_lists.h"

namespace tessaryn {
namespace {

constexpr int kRunningScopes[] = {kCurrentHand, kCurrentSession, kAllSessions};

// --- Bets.

using Kinds = Currency[6];

void CountAmount(Kinds& kinds, std::int64_t amount, RollNumber roll) {
  kinds[kStatCount - 1].raw += Currency::kPerDollar;
  kinds[kStatTotal - 1].raw += amount;
  if (amount > kinds[kStatHigh - 1].raw) kinds[kStatHigh - 1].raw = amount;
  Currency& low = kinds[kStatLow - 1];
  if ((low.raw == 0 || amount < low.raw) && amount > 0) low.raw = amount;
  kinds[kStatLastRoll - 1].raw = roll * Currency::kPerDollar;
  kinds[kStatLastAmount - 1].raw = amount;
}

// Adds a later stretch of play to a longer scope. rollsBefore: what the longer scope's roll numbers are
// ahead of the stretch's.
void MergeKinds(Kinds& longer, const Kinds& stretch, std::int64_t rollsBefore) {
  if (stretch[kStatCount - 1] == kZero) return;
  // The sums were seen to fit as each amount was counted.
  longer[kStatCount - 1].raw += stretch[kStatCount - 1].raw;
  longer[kStatTotal - 1].raw += stretch[kStatTotal - 1].raw;
  longer[kStatHigh - 1] = std::max(longer[kStatHigh - 1], stretch[kStatHigh - 1]);
  Currency& low = longer[kStatLow - 1];
  const Currency stretchLow = stretch[kStatLow - 1];
  if (low == kZero || (stretchLow != kZero && stretchLow < low)) low = stretchLow;
  longer[kStatLastRoll - 1].raw = stretch[kStatLastRoll - 1].raw + rollsBefore * Currency::kPerDollar;
  longer[kStatLastAmount - 1] = stretch[kStatLastAmount - 1];
}

void MergeBet(BetStats& longer, const BetStats& stretch, std::int64_t rollsBefore) {
  for (int table = 0; table < kStatTables; ++table)
    MergeKinds(longer.kinds[table], stretch.kinds[table], rollsBefore);
}

// Whether a further amount would pass what the sum over all sessions can hold.
bool TotalOverflows(const BetStats (&scopes)[kScopes], int table, Currency amount) {
  const auto total = [&](ScopeId scope) { return scopes[scope].kinds[table][kStatTotal - 1].raw; };
  std::int64_t sum = amount.raw;
  bool overflow = amount.IsError();
  for (const ScopeId scope : kRunningScopes) overflow |= __builtin_add_overflow(sum, total(scope), &sum);
  return overflow;
}

// Rolls of all sessions before the current one.
std::int64_t RollsBeforeSession(const Statistics& stats) {
  return stats.RollTotals[Slot(kAllSessions, 0)] - stats.RollTotals[Slot(kCurrentSession, 0)];
}

// --- Slots of the seats that a roll counts for: the table, and who is credited with the hand.

template <typename T>
void CountFor(T& table, SeatId handSeat) {
  for (const ScopeId scope : kRunningScopes) {
    ++table[Slot(scope, 0)];
    if (handSeat > 0) ++table[Slot(scope, handSeat)];
  }
}

void Raise(std::int32_t& most, std::int32_t value) {
  if (value > most) most = value;
}

void RaiseFor(std::int32_t (&most)[kSlots], SeatId handSeat, std::int32_t value, bool tableHand) {
  for (const ScopeId scope : kRunningScopes) {
    if (scope != kCurrentHand || tableHand) Raise(most[Slot(scope, 0)], value);
    if (handSeat > 0) Raise(most[Slot(scope, handSeat)], value);
  }
}

void CountGap(Statistics& stats, int item, std::int32_t roll) {
  const std::int32_t gap = roll - stats.ItemLastRoll[item];
  if (gap < 200) {
    ++stats.RollGapCounts[item][gap];
  } else {
    ++stats.RollGapCounts[item][200];
    stats.RollGapCounts[item][0] += gap;
  }
  stats.ItemLastRoll[item] = roll;
}

void MoveBetsToLastHand(Statistics& stats, SeatId seat) {
  const BetSet ended = stats.HandBets[seat];
  Without(stats.LastHandBets[seat], ended).ForEach([&](BetId bet) {
    stats.Bets[bet][seat][kLastHand] = BetStats{};
  });
  ended.ForEach([&](BetId bet) {
    auto& scopes = stats.Bets[bet][seat];
    MergeBet(scopes[kCurrentSession], scopes[kCurrentHand], 0);
    scopes[kLastHand] = scopes[kCurrentHand];
    scopes[kCurrentHand] = BetStats{};
  });
  stats.LastHandBets[seat] = ended;
  stats.HandBets[seat].Clear();
}

void MovePairsToLastHand(Statistics& stats, SeatId seat) {
  std::int32_t(&hand)[kDicePairs] = stats.PairCounts[Slot(kCurrentHand, seat)];
  std::int32_t(&last)[kDicePairs] = stats.PairCounts[Slot(kLastHand, seat)];
  std::int32_t(&session)[kDicePairs] = stats.PairCounts[Slot(kCurrentSession, seat)];
  for (int pair = 0; pair < kDicePairs; ++pair) {
    session[pair] += hand[pair];
    last[pair] = hand[pair];
    hand[pair] = 0;
  }
}

template <typename T, std::size_t kCount>
void MoveSlot(T (&table)[kCount], SeatId seat, ScopeId fromScope, ScopeId toScope) {
  std::memcpy(&table[Slot(toScope, seat)], &table[Slot(fromScope, seat)], sizeof(T));
  std::memset(static_cast<void*>(&table[Slot(fromScope, seat)]), 0, sizeof(T));
}

// Calls visit(table) for every table of the store that is kept by slot, the bets and bankrolls apart.
template <typename Visit>
void ForEachCountTable(Statistics& stats, Visit&& visit) {
  visit(stats.PairCounts);
  visit(stats.RollTotals);
  visit(stats.NumberCounts);
  visit(stats.HandCount);
  visit(stats.MostRollsInHand);
  visit(stats.MostComeoutRollsInHand);
  visit(stats.MostPassesInHand);
  visit(stats.MostMissesInHand);
  visit(stats.RollsNotSeen);
  visit(stats.ComeTravelTotals);
}

template <typename Visit>
void ForEachBankrollTable(Statistics& stats, Visit&& visit) {
  visit(stats.BankrollBeginning);
  visit(stats.BankrollHigh);
  visit(stats.BankrollLow);
  visit(stats.BankrollClosing);
}

template <typename T, std::size_t kCount>
void ZeroSlot(T (&table)[kCount], int slot) {
  static_assert(kCount == kSlots);
  std::memset(static_cast<void*>(&table[slot]), 0, sizeof(T));
}

void ZeroScope(Statistics& stats, ScopeId scope, bool bankrolls) {
  for (SeatId seat = 0; seat <= kSeats; ++seat) {
    ForEachCountTable(stats, [&](auto& table) { ZeroSlot(table, Slot(scope, seat)); });
    if (bankrolls) {
      ForEachBankrollTable(stats, [&](auto& table) { ZeroSlot(table, Slot(scope, seat)); });
      ZeroSlot(stats.AtmTotal, Slot(scope, seat));
    }
    for (auto& bet : stats.Bets) bet[seat][scope] = BetStats{};
    if (scope == kCurrentHand) stats.HandBets[seat].Clear();
    if (scope == kLastHand) stats.LastHandBets[seat].Clear();
  }
  if (scope == kCurrentHand) stats.HandSlotsUsed = 0;
  if (scope == kLastHand) stats.LastHandSlotsUsed = 0;
}

}  // namespace

// --- Reading.

std::int64_t RollCount(const Statistics& stats, ScopeId scope, SeatId seat, int item) {
  const int slot = Slot(scope, seat);
  if (item == 0) return stats.RollTotals[slot];
  if (item < 0 || item >= kRollItems) return 0;
  std::int64_t count = 0;
  for (std::uint64_t pairs = kItemPairs[item]; pairs != 0; pairs &= pairs - 1) {
    const int pair = std::countr_zero(pairs);
    count += stats.PairCounts[slot][pair];
    if (scope == kAllSessions) count += stats.PairCounts[Slot(kCurrentSession, seat)][pair];
    if (scope == kAllSessions || scope == kCurrentSession)
      count += stats.PairCounts[Slot(kCurrentHand, seat)][pair];
  }
  return count;
}

std::int64_t PlayerRolls(const Statistics& stats, ScopeId scope, SeatId seat) {
  return stats.RollTotals[Slot(scope, 0)] - stats.RollsNotSeen[Slot(scope, seat)];
}

Currency BetStat(const Statistics& stats, StatTable table, ScopeId scope, SeatId seat, BetId bet,
                 StatKind kind) {
  const auto& scopes = stats.Bets[bet][seat];
  if (scope != kCurrentSession && scope != kAllSessions) return scopes[scope].kinds[table][kind - 1];
  Kinds kinds;
  std::copy(std::begin(scopes[kCurrentSession].kinds[table]), std::end(scopes[kCurrentSession].kinds[table]),
            kinds);
  MergeKinds(kinds, scopes[kCurrentHand].kinds[table], 0);
  if (scope == kCurrentSession) return kinds[kind - 1];
  Kinds all;
  std::copy(std::begin(scopes[kAllSessions].kinds[table]), std::end(scopes[kAllSessions].kinds[table]), all);
  MergeKinds(all, kinds, RollsBeforeSession(stats));
  return all[kind - 1];
}

std::int64_t RollsSinceLast(const Statistics& stats, int item) {
  if (item < 0 || item >= kRollItems) return 0;
  return SessionRolls(stats) - stats.ItemLastRoll[item];
}

Currency BankrollOf(const Game& game, ScopeId scope, SeatId seat) {
  const bool running = scope == kCurrentHand || scope == kCurrentSession || scope == kAllSessions;
  return running ? game.table.BankrollCurrent[seat] : game.stats.BankrollClosing[Slot(scope, seat)];
}

RollNumber LatestRoll(const Statistics& stats, ScopeId scope) {
  const std::int64_t session = stats.RollTotals[Slot(kCurrentSession, 0)];
  const std::int64_t lastSession = stats.RollTotals[Slot(kLastSession, 0)];
  if (scope == kLastHand) {
    const std::int64_t hands = stats.RollTotals[Slot(kLastHand, 0)] + stats.RollTotals[Slot(kCurrentHand, 0)];
    return hands > session ? session + lastSession : session;
  }
  if (scope == kLastSession) return session + lastSession;
  return scope == kAllSessions ? std::int64_t{stats.RollTotals[Slot(kAllSessions, 0)]} : session;
}

std::int64_t RollsSince(const Statistics& stats, ScopeId scope, Currency statLastRoll) {
  if (statLastRoll == kZero) return -1;
  return LatestRoll(stats, scope) - statLastRoll.raw / Currency::kPerDollar;
}

std::string RollItemName(int item) { return RollItemText(item); }

void SumBetStats(Statistics& stats, SeatId seat, ScopeId scope, BetId firstBet, BetId lastBet,
                 bool clearRow) {
  BetStats& row = stats.Bets[0][seat][kCurrentHand];
  if (clearRow) row = BetStats{};
  for (BetId bet = firstBet; bet <= lastBet; ++bet) {
    // What was never decided has nothing to add, and that is most bets.
    if (BetStat(stats, kWagerStats, scope, seat, bet, kStatCount) == kZero) continue;
    for (int table = 0; table < kStatTables; ++table)
      for (int kind = 0; kind < 6; ++kind)
        row.kinds[table][kind] +=
            BetStat(stats, static_cast<StatTable>(table), scope, seat, bet, static_cast<StatKind>(kind + 1));
  }
}

std::string LastHandNote(const Game& game, ScopeId scope) {
  const TableState& table = game.table;
  if (scope == kCurrentHand && table.ShooterSeat != table.HandSeat && table.ShooterSeat > 0) {
    const std::string& shooter = table.seats[table.ShooterSeat].SeatName;
    if (table.HandSeat == 0) return MessageText<Msg::kHandOfPlayerGone>(With<"shooter">(shooter));
    return MessageText<Msg::kHandOfOther>(With<"shooter">(shooter),
                                          With<"player">(table.seats[table.HandSeat].SeatName));
  }
  if (scope == kLastHand && game.stats.RollTotals[Slot(kLastHand, 0)] > 0 && table.PreviousHandSeat == 0)
    return MessageText<Msg::kLastHandOfPlayerGone>();
  return "";
}

double SimulatedHours(const Game& game, ScopeId scope, SeatId seat) {
  return static_cast<double>(PlayerRolls(game.stats, scope, seat)) / game.settings.SimRollRate.ToDouble();
}

// --- Writing.

bool UpdateBetStats(Game& game, SeatId seat, BetId bet, Currency wagered, Currency net) {
  if (net == kZero) return true;
  Statistics& stats = game.stats;
  if (HasVig(bet) && VigUpFront(game, bet)) wagered += VigHeld(game, seat, bet);
  auto& scopes = stats.Bets[bet][seat];
  const bool won = net > kZero;
  const StatTable decided = won ? kWinStats : kLossStats;
  const Currency amount = Abs(net);
  if (TotalOverflows(scopes, kWagerStats, wagered) || TotalOverflows(scopes, decided, amount)) return false;
  const RollNumber roll = SessionRolls(stats);
  CountAmount(scopes[kCurrentHand].kinds[kWagerStats], wagered.raw, roll);
  CountAmount(scopes[kCurrentHand].kinds[decided], amount.raw, roll);
  stats.HandBets[seat].Add(bet);
  if (IsComeNumber(bet))
    for (const ScopeId scope : kRunningScopes)
      stats.ComeTravelTotals[Slot(scope, seat)][bet - kCome4] +=
          game.table.seats[seat].ComeTravelAmount[bet - kCome4];
  return true;
}

void CountRoll(Game& game) {
  Statistics& stats = game.stats;
  const TableState& table = game.table;
  const SeatId handSeat = table.HandSeat;
  if (stats.RollTotals[Slot(kCurrentHand, 0)] == 0) {
    CountFor(stats.HandCount, handSeat);
    stats.HandCount[Slot(kCurrentHand, 0)] = 1;
    if (handSeat > 0) stats.HandCount[Slot(kCurrentHand, handSeat)] = 1;
  }
  CountFor(stats.RollTotals, handSeat);
  stats.HandSlotsUsed |= static_cast<std::uint16_t>(1u | 1u << handSeat);
  RaiseFor(stats.MostRollsInHand, handSeat, stats.RollTotals[Slot(kCurrentHand, 0)], false);
  const int pair = PairIndex(table.Die1, table.Die2);
  ++stats.PairCounts[Slot(kCurrentHand, 0)][pair];
  if (handSeat > 0) ++stats.PairCounts[Slot(kCurrentHand, handSeat)][pair];
  const std::int32_t roll = stats.RollTotals[Slot(kCurrentSession, 0)];
  const PairItems& items = kPairItems[pair];
  for (int i = 0; i < items.count; ++i) CountGap(stats, items.items[i], roll);
}

void CountLine(Game& game, NumberKind kind, int number) {
  Statistics& stats = game.stats;
  const SeatId handSeat = game.table.HandSeat;
  for (const ScopeId scope : kRunningScopes) {
    ++stats.NumberCounts[Slot(scope, 0)][number][kind];
    if (handSeat > 0) ++stats.NumberCounts[Slot(scope, handSeat)][number][kind];
  }
  switch (kind) {
    case kComeoutRolls:
      return RaiseFor(stats.MostComeoutRollsInHand, handSeat, ++stats.HandComeoutRolls, true);
    case kPasses:
      return RaiseFor(stats.MostPassesInHand, handSeat, ++stats.HandPasses, true);
    case kMisses:
      return RaiseFor(stats.MostMissesInHand, handSeat, ++stats.HandMisses, true);
  }
}

void CloseRollStatistics(Game& game) {
  Statistics& stats = game.stats;
  const TableState& table = game.table;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const SeatId seat = table.Seated[i];
    const Currency bankroll = table.BankrollCurrent[seat];
    stats.BankrollRollSum[seat] += bankroll;
    // The hand's extremes lie within those of the longer scopes.
    const int hand = Slot(kCurrentHand, seat);
    if (bankroll <= stats.BankrollHigh[hand] && bankroll >= stats.BankrollLow[hand]) continue;
    for (const ScopeId scope : kRunningScopes) {
      Currency& high = stats.BankrollHigh[Slot(scope, seat)];
      Currency& low = stats.BankrollLow[Slot(scope, seat)];
      if (bankroll > high) high = bankroll;
      if (bankroll < low) low = bankroll;
    }
  }
}

void EndHandStatistics(Game& game) {
  Statistics& stats = game.stats;
  const TableState& table = game.table;
  // Only seats that shot in this hand or the last one have rolls to move.
  for (unsigned used = stats.HandSlotsUsed | stats.LastHandSlotsUsed; used != 0; used &= used - 1) {
    const SeatId seat = std::countr_zero(used);
    MovePairsToLastHand(stats, seat);
    MoveSlot(stats.RollTotals, seat, kCurrentHand, kLastHand);
    MoveSlot(stats.NumberCounts, seat, kCurrentHand, kLastHand);
    MoveSlot(stats.HandCount, seat, kCurrentHand, kLastHand);
  }
  std::memcpy(stats.RollsNotSeen + Slot(kLastHand, 0), stats.RollsNotSeen + Slot(kCurrentHand, 0),
              kSeatRows * sizeof *stats.RollsNotSeen);
  std::memset(stats.RollsNotSeen + Slot(kCurrentHand, 0), 0, kSeatRows * sizeof *stats.RollsNotSeen);
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const SeatId seat = table.Seated[i];
    MoveBetsToLastHand(stats, seat);
    MoveSlot(stats.ComeTravelTotals, seat, kCurrentHand, kLastHand);
    const Currency bankroll = table.BankrollCurrent[seat];
    const int hand = Slot(kCurrentHand, seat);
    const int last = Slot(kLastHand, seat);
    for (auto* values : {stats.BankrollBeginning, stats.BankrollHigh, stats.BankrollLow}) {
      values[last] = values[hand];
      values[hand] = bankroll;
    }
    stats.BankrollClosing[last] = bankroll;
  }
  static_assert(kLastHand == kCurrentHand + 1, "the hand slots stand side by side");
  for (auto* most : {stats.MostRollsInHand, stats.MostComeoutRollsInHand, stats.MostPassesInHand,
                     stats.MostMissesInHand}) {
    std::memcpy(most + Slot(kLastHand, 0), most + Slot(kCurrentHand, 0), kSeatRows * sizeof *most);
    std::memset(most + Slot(kCurrentHand, 0), 0, kSeatRows * sizeof *most);
  }
  stats.LastHandSlotsUsed = stats.HandSlotsUsed;
  stats.HandSlotsUsed = 0;
  stats.HandComeoutRolls = stats.HandPasses = stats.HandMisses = 0;
}

void StartSessionStatistics(Game& game) {
  Statistics& stats = game.stats;
  stats.ThrowsBeforeSession += SessionRolls(stats);
  if (HandRolls(stats) > 0) EndHandStatistics(game);
  if (SessionRolls(stats) > 0) {
    for (SeatId seat = 0; seat <= kSeats; ++seat) {
      const int from = Slot(kCurrentSession, seat);
      const int to = Slot(kLastSession, seat);
      const auto copy = [from, to](auto& table) { std::memcpy(&table[to], &table[from], sizeof table[to]); };
      ForEachCountTable(stats, copy);
      for (int pair = 0; pair < kDicePairs; ++pair)
        stats.PairCounts[Slot(kAllSessions, seat)][pair] += stats.PairCounts[from][pair];
      for (auto* values : {stats.BankrollBeginning, stats.BankrollHigh, stats.BankrollLow, stats.AtmTotal})
        values[to] = values[from];
      stats.BankrollClosing[to] = game.table.BankrollCurrent[seat];
      for (BetId bet = 1; bet <= kBets; ++bet) {
        auto& scopes = stats.Bets[bet][seat];
        scopes[kLastSession] = scopes[kCurrentSession];
        MergeBet(scopes[kAllSessions], scopes[kCurrentSession], RollsBeforeSession(stats));
      }
    }
  }
  ZeroScope(stats, kCurrentHand, false);
  ZeroScope(stats, kCurrentSession, false);
  std::memset(stats.ItemLastRoll, 0, sizeof stats.ItemLastRoll);
  std::memset(stats.RollGapCounts, 0, sizeof stats.RollGapCounts);
  for (Currency& sum : stats.BankrollRollSum) sum = kZero;
  stats.HandComeoutRolls = stats.HandPasses = stats.HandMisses = 0;
}

void ClearPreviousSessions(Game& game) { ZeroScope(game.stats, kAllSessions, true); }

void StartBankroll(Game& game, SeatId seat, Currency amount) {
  Statistics& stats = game.stats;
  game.table.BankrollCurrent[seat] = amount;
  game.table.BankrollBeforeRoll[seat] = game.table.BankrollAfterRoll[seat] = amount;
  stats.BankrollSessionStart[seat] = amount;
  for (const ScopeId scope : kRunningScopes) {
    const int slot = Slot(scope, seat);
    stats.BankrollBeginning[slot] = stats.BankrollHigh[slot] = stats.BankrollLow[slot] = amount;
  }
}

}  // namespace tessaryn
