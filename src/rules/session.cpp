#include "rules/session.h"

#include <algorithm>

#include "dice/roll_file.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/seed_rng.h"
#include "state/bet_families.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/sessions_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// A contract bet that the session leaves behind is the house's: what has ridden. What was added since is no
// contract yet and goes back with the other bets.
void Abandon(Game& game, SeatId seat, BetId bet) {
  TableState& table = game.table;
  const Currency ridden = std::min(table.BetAmount(seat, bet), table.BetCommitted(seat, bet));
  if (ridden == kZero) return;
  table.BankrollCurrent[seat] -= ridden;
  SetBetAmount(game, seat, bet, table.BetAmount(seat, bet) - ridden);
}

void AbandonContracts(Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    game.table.seats[seat].SeatBets.ForEach([&](BetId bet) {
      if (UnderContract(game.table, bet)) Abandon(game, seat, bet);
    });
  }
}

void ClearBets(Game& game, bool keepCheckstacks) {
  TableState& table = game.table;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    TakeDownBets(game, seat, kAllTableBets);
    if (!keepCheckstacks) {
      for (int stack = 0; stack < kCheckStacks; ++stack) {
        SetBetAmount(game, seat, kFirstCheckStack + stack, kZero);
        table.seats[seat].CheckStackName[stack].clear();
      }
    }
    for (BetId bet = 1; bet < kBetRows; ++bet)
      table.BetBeforeRoll(seat, bet) = table.BetAfterRoll(seat, bet) = table.BetAmount(seat, bet);
    for (BetId bet = 1; bet <= 100; ++bet) {
      if (bet < 100) table.BetCommitted(seat, bet) = kZero;
      table.BetStreak(seat, bet) = table.BetStreakBefore(seat, bet) = 0;
    }
    table.seats[seat].TouchedSinceBefore = table.seats[seat].TouchedSinceAfter = {};
    table.seats[seat].StacksSinceBefore = table.seats[seat].StacksSinceAfter = {};
    for (Currency& travelled : table.seats[seat].ComeTravelAmount) travelled = kZero;
  }
}

Currency AskBankroll(Game& game, SeatId seat) {
  Currency& stored = game.table.seats[seat].BankrollInitAmount;
  game.box.MsgValue1 = stored;
  if (ShowMessage<Msg::kAskBeginningBankroll>(game, With<"player">(game.table.seats[seat].SeatName)) ==
      kResultOk)
    stored = std::clamp(game.box.MsgValue1, -kBankrollLimit, kBankrollLimit);
  return stored;
}

// The session starts with the amount; what all sessions have seen of the bankroll stays if they stay.
void StartSeat(Game& game, SeatId seat, Currency amount, bool keepPrevSessions) {
  Statistics& stats = game.stats;
  const int all = Slot(kAllSessions, seat);
  const Currency beginning = stats.BankrollBeginning[all];
  const Currency high = std::max(stats.BankrollHigh[all], amount);
  const Currency low = std::min(stats.BankrollLow[all], amount);
  StartBankroll(game, seat, amount);
  if (!keepPrevSessions) return;
  stats.BankrollBeginning[all] = beginning;
  stats.BankrollHigh[all] = high;
  stats.BankrollLow[all] = low;
}

void StartBankrolls(Game& game, bool keepPrevSessions) {
  TableState& table = game.table;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(table, seat)) continue;
    Currency amount = table.BankrollCurrent[seat];
    if (table.seats[seat].BankrollInitType == 1) amount = table.seats[seat].BankrollInitAmount;
    if (table.seats[seat].BankrollInitType == 2) amount = AskBankroll(game, seat);
    StartSeat(game, seat, amount, keepPrevSessions);
    table.seats[seat].AtmLogged = game.stats.AtmTotal[Slot(kAllSessions, seat)];
    table.seats[seat].RailAmount = amount;
  }
}

void ResetTable(TableState& table) {
  table.Point = table.PointBeforeRoll = table.PointTwoRollsAgo = table.LastPoint = 0;
  table.NumberMarks = 0;
  table.FourRollCount = 0;
  table.FireMarks = 0;
  table.FireCount = table.SharpShooterCount = table.RideTheLineCount = 0;
  table.ManualRollPending = false;
  table.PreviousHandSeat = 0;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    table.seats[seat].BetWorking = {};
    table.seats[seat].BetWorking.byDefault = table.seats[seat].BetDefaultWorking;
    table.seats[seat].BetWorkingBeforeRoll = table.seats[seat].BetWorking;
  }
  table.CallsTouched = false;
  table.StopReason.clear();
}

void SetRollFile(Game& game, int choice) {
  RollFile& file = game.rollFile;
  std::string problem;
  if (choice == kCloseRollFile && IsRollFileOpen(file)) problem = CloseRollFile(file);
  if (choice == kRewindRollFile && IsRollFileOpen(file)) problem = RewindForPlayback(file);
  if (!problem.empty()) ShowMessage<Msg::kNotRewound>(game, With<"problem">(problem));
}

}  // namespace

void NewSession(Game& game, bool keepPrevSessions, bool keepCheckstacks, bool keepSessionsLogs,
                int rollFileChoice) {
  if (!game.settings.ReturnAbandonedBets) AbandonContracts(game);
  for (SeatId seat = 1; seat <= kSeats; ++seat) AppendSessionRecord(game, seat);
  const std::string undeleted = keepSessionsLogs ? "" : RemoveSessionsLogs(game);
  StartSessionStatistics(game);
  if (!keepPrevSessions) ClearPreviousSessions(game);
  ClearBets(game, keepCheckstacks);
  ClearBankrollGraph(game);
  ResetTable(game.table);
  StartBankrolls(game, keepPrevSessions);
  BankrollPlotChanged(game);
  ResetBankrollGraph(game, true);
  game.table.HandSeat = game.table.ShooterSeat;
  SetRollFile(game, rollFileChoice);
  // A new log holds the seed too, which stands before the heading.
  if (game.events.RecordEventsActive && game.events.ClearLogOnNewSession) ClearEventsLog(game);
  if (game.generators.RngReseedNewSessions) SeedRng(game, false);
  LogSessionStart(game);
  game.autobet.SessionAhead = kEverySeat;
  game.autobet.RollFileEndReached = false;
  game.host->Changed(game, Change::kEverything);
  RequireConsistency(game);
  // The table is whole again and may be looked at.
  TellSessionsLogFault(game);
  if (!undeleted.empty()) ReportError(game, undeleted, kPathAccessError, "NewSession");
}

}  // namespace tessaryn
