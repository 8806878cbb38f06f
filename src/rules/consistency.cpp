#include "rules/consistency.h"

#include <cstdio>
#include <cstdlib>

#include "rules/bet_limits.h"
#include "state/bet_families.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

std::string Where(const Game& game, SeatId seat, BetId bet) {
  return "seat " + std::to_string(seat) + " (" + game.table.seats[seat].SeatName + "), " + BetName(bet);
}

std::string CheckBet(const Game& game, SeatId seat, BetId bet) {
  const TableState& table = game.table;
  const Currency amount = table.BetAmount(seat, bet);
  const bool up = amount > kZero;
  if (amount < kZero) return "negative bet: " + Where(game, seat, bet);
  if (up != table.seats[seat].SeatBets.Has(bet)) return "set of bets up: " + Where(game, seat, bet);
  for (int place = 0; place < kSeats; ++place)
    if (kPayOrder[place] == seat && up != ((table.SeatsUp[bet] >> place & 1) != 0))
      return "seats that have the bet: " + Where(game, seat, bet);
  if (up && !table.AnyBets.Has(bet)) return "set of all bets: " + Where(game, seat, bet);
  const bool touchedBefore = table.seats[seat].TouchedSinceBefore.Has(bet);
  if (!touchedBefore &&
      (table.BetBeforeRoll(seat, bet) != amount || table.BetCommitted(seat, bet) != amount ||
       table.BetStreakBefore(seat, bet) != table.BetStreak(seat, bet)))
    return "copy before the roll: " + Where(game, seat, bet);
  if (!table.seats[seat].TouchedSinceAfter.Has(bet) && table.BetAfterRoll(seat, bet) != amount)
    return "copy after the roll: " + Where(game, seat, bet);
  const WorkingState& working = table.seats[seat].BetWorking;
  if (working.calledOn.Has(bet) && working.calledOff.Has(bet))
    return "called both ways: " + Where(game, seat, bet);
  if ((working.calledOn.Has(bet) || working.calledOff.Has(bet)) && !kCallableBets.Has(bet))
    return "a call on a bet that takes none: " + Where(game, seat, bet);
  return "";
}

std::string CheckSeat(const Game& game, SeatId seat) {
  const TableState& table = game.table;
  Currency onTable;
  for (BetId bet = 1; bet <= kBets; ++bet) {
    if (std::string problem = CheckBet(game, seat, bet); !problem.empty()) return problem;
    onTable += table.BetAmount(seat, bet);
  }
  for (int i = 0; i < 6; ++i) {
    for (const BetId bet : {kLay4 + i, kBuy4 + i}) {
      const Currency held = IsLay(bet) ? table.seats[seat].LayVigHeld[i] : table.seats[seat].BuyVigHeld[i];
      if (table.BetAmount(seat, bet) == kZero && held != kZero)
        return "vig without a bet: " + Where(game, seat, bet);
      if (VigUpFront(game, bet)) onTable += held;
    }
  }
  if (onTable != table.seats[seat].OnTableAmount)
    return "on-table sum of seat " + std::to_string(seat) + ": " +
           PlainMoney(table.seats[seat].OnTableAmount) + " instead of " + PlainMoney(onTable);
  if (table.seats[seat].SeatName.empty() && (onTable != kZero || table.BankrollCurrent[seat] != kZero))
    return "money at the open seat " + std::to_string(seat);
  return "";
}

std::string CheckTableSets(const Game& game) {
  const TableState& table = game.table;
  int occupied = 0;
  for (SeatId seat = 1; seat <= kSeats; ++seat) occupied += table.seats[seat].SeatName.empty() ? 0 : 1;
  if (occupied != table.OccupiedSeats) return "count of occupied seats";
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (table.AnyBets.Has(bet) != (table.SeatsUp[bet] != 0)) return "set of all bets: " + BetName(bet);
  for (const SeatId seat : {table.ShooterSeat, table.SelectedSeat, table.HandSeat})
    if (seat != 0 && table.seats[seat].SeatName.empty())
      return "an open seat " + std::to_string(seat) + " acts";
  if (table.OccupiedSeats > 0 && table.ShooterSeat == 0) return "players without a shooter";
  if (table.Point != 0 && !IsBoxNumber(table.Point)) return "point " + std::to_string(table.Point);
  if (!table.RollInProgress)
    for (SeatId seat = 1; seat <= kSeats; ++seat) {
      const BetSet& now = table.seats[seat].BetWorking.byDefault;
      if (table.Point != 0 && now != kAllTableBets)
        return "bets off with a point on, seat " + std::to_string(seat);
    }
  return "";
}

std::string CheckStatistics(const Game& game) {
  const Statistics& stats = game.stats;
  for (ScopeId scope = 0; scope < kScopes; ++scope)
    for (SeatId seat = 0; seat <= kSeats; ++seat) {
      std::int64_t pairs = 0;
      for (int total = 2; total <= 12; ++total) pairs += RollCount(stats, scope, seat, total);
      if (pairs != stats.RollTotals[Slot(scope, seat)])
        return "rolls of scope " + std::to_string(scope) + ", seat " + std::to_string(seat);
      if (PlayerRolls(stats, scope, seat) < 0)
        return "rolls seen in scope " + std::to_string(scope) + ", seat " + std::to_string(seat);
      if (scope != kCurrentHand && scope != kLastHand) continue;
      const BetSet& used = scope == kCurrentHand ? stats.HandBets[seat] : stats.LastHandBets[seat];
      for (BetId bet = 1; bet <= kBets; ++bet)
        if (!used.Has(bet) && BetStat(stats, kWagerStats, scope, seat, bet, kStatCount) != kZero)
          return "statistics of a bet outside its set: " + Where(game, seat, bet);
    }
  return "";
}

}  // namespace

std::string CheckConsistency(const Game& game) {
  std::string problem = CheckTableSets(game);
  for (SeatId seat = 1; seat <= kSeats && problem.empty(); ++seat) problem = CheckSeat(game, seat);
  return problem.empty() ? CheckStatistics(game) : problem;
}

#ifndef NDEBUG
void RequireConsistency(const Game& game) {
  const std::string problem = CheckConsistency(game);
  if (problem.empty()) return;
  std::fprintf(stderr, "The table contradicts itself: %s\n", problem.c_str());
  std::abort();
}
#endif

}  // namespace tessaryn
