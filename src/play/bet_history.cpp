#include "play/bet_history.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

#include "play/script_session.h"
#include "rules/consistency.h"
#include "state/game.h"

namespace tessaryn {
namespace {

template <typename T>
bool Same(const T& a, const T& b) {
  return FirstDifference(a, b).empty();
}

void KeepSeat(const TableState& table, SeatId seat, SeatBetsKept& kept) {
  const SeatState& state = table.seats[seat];
  kept.SeatName = state.SeatName;
  for (BetId bet = 0; bet < kBetRows; ++bet) kept.Amounts[bet] = table.BetAmount(seat, bet);
  kept.SeatBets = state.SeatBets;
  kept.TouchedSinceBefore = state.TouchedSinceBefore;
  kept.TouchedSinceAfter = state.TouchedSinceAfter;
  kept.StacksSinceBefore = state.StacksSinceBefore;
  kept.StacksSinceAfter = state.StacksSinceAfter;
  kept.SinceBefore = (table.SeatsSinceBefore >> seat & 1u) != 0;
  kept.SinceAfter = (table.SeatsSinceAfter >> seat & 1u) != 0;
  kept.BetWorking = state.BetWorking;
  std::copy(std::begin(state.LayVigHeld), std::end(state.LayVigHeld), kept.LayVigHeld);
  std::copy(std::begin(state.BuyVigHeld), std::end(state.BuyVigHeld), kept.BuyVigHeld);
  kept.OnTableAmount = state.OnTableAmount;
}

void SetBit(std::uint32_t& mask, int bit, bool on) { mask = on ? mask | 1u << bit : mask & ~(1u << bit); }

void GiveBack(TableState& table, SeatId seat, const SeatBetsKept& kept) {
  SeatState& state = table.seats[seat];
  for (BetId bet = 0; bet < kBetRows; ++bet) table.BetAmount(seat, bet) = kept.Amounts[bet];
  state.SeatBets = kept.SeatBets;
  state.TouchedSinceBefore = kept.TouchedSinceBefore;
  state.TouchedSinceAfter = kept.TouchedSinceAfter;
  state.StacksSinceBefore = kept.StacksSinceBefore;
  state.StacksSinceAfter = kept.StacksSinceAfter;
  SetBit(table.SeatsSinceBefore, seat, kept.SinceBefore);
  SetBit(table.SeatsSinceAfter, seat, kept.SinceAfter);
  state.BetWorking = kept.BetWorking;
  std::copy(std::begin(kept.LayVigHeld), std::end(kept.LayVigHeld), state.LayVigHeld);
  std::copy(std::begin(kept.BuyVigHeld), std::end(kept.BuyVigHeld), state.BuyVigHeld);
  state.OnTableAmount = kept.OnTableAmount;
}

// Who has each bet up is kept by place in the pay order.
void ListBetsUp(TableState& table) {
  for (std::uint8_t& seats : table.SeatsUp) seats = 0;
  table.AnyBets.Clear();
  for (int place = 0; place < kSeats; ++place)
    table.seats[kPayOrder[place]].SeatBets.ForEach([&](BetId bet) {
      table.SeatsUp[bet] |= static_cast<std::uint8_t>(1u << place);
      table.AnyBets.Add(bet);
    });
}

// A call that the log hasn't told of at any seat.
bool AnyCallUntold(const TableState& table) {
  return std::any_of(std::begin(table.seats), std::end(table.seats), [](const SeatState& seat) {
    const WorkingState& told = seat.BetWorkingBeforeRoll;
    return !Same(seat.BetWorking.calledOn, told.calledOn) || !Same(seat.BetWorking.calledOff, told.calledOff);
  });
}

// The settings up to the checks are what bets are made by; those behind them say how rolls and screens go.
bool SameRules(const Settings& a, const Settings& b) {
  bool same = true;
  bool rules = true;
  ForEachMember(std::type_identity<Settings>{}, [&](const char* name, auto member) {
    if (rules && !Same(a.*member, b.*member)) same = false;
    if (std::string_view(name) == "CheckValue") rules = false;
  });
  return same;
}

bool SameFrame(const BetsKept& a, const BetsKept& b) {
  return a.Throws == b.Throws && SameRules(a.settings, b.settings) && Same(a.payoffs, b.payoffs);
}

// Whether what the steps touched is as the last of them left it.
bool StandsAsLeft(const BetHistory& history, const BetsKept& now) {
  if (history.Steps.empty() || !SameFrame(history.Now, now)) return false;
  for (const BetStep& step : history.Steps)
    for (const BetStep::OfSeat& of : step.seats)
      if (!Same(now.seats[of.seat], history.Now.seats[of.seat])) return false;
  return true;
}

// What lies on the table must still be the player's; money may have gone meanwhile.
bool Covered(const TableState& table, SeatId seat, const SeatBetsKept& kept) {
  const SeatState& state = table.seats[seat];
  return state.AllowNegativeBankroll || kept.OnTableAmount <= table.BankrollCurrent[seat] ||
         kept.OnTableAmount <= state.OnTableAmount;
}

bool CanTake(const BetHistory& history, const Game& game, bool back) {
  if (back ? history.Standing == 0 : history.Standing == history.Steps.size()) return false;
  if (game.autobet.ScriptRunning || game.table.TurboRollActive) return false;
  if (!StandsAsLeft(history, KeepBets(game))) return false;
  const BetStep& step = history.Steps[back ? history.Standing - 1 : history.Standing];
  return std::all_of(step.seats.begin(), step.seats.end(), [&](const BetStep::OfSeat& of) {
    return Covered(game.table, of.seat, back ? of.before : of.after);
  });
}

bool TakeStep(Game& game, BetHistory& history, bool back) {
  if (!CanTake(history, game, back)) return false;
  TableState& table = game.table;
  const BetStep& step = history.Steps[back ? --history.Standing : history.Standing++];
  for (const BetStep::OfSeat& of : step.seats) GiveBack(table, of.seat, back ? of.before : of.after);
  ListBetsUp(table);
  table.CallsTouched = (back ? step.callsBefore : step.callsAfter) || AnyCallUntold(table);
  for (const BetStep::OfSeat& of : step.seats)
    for (BetId bet = 1; bet < kBetRows; ++bet)
      if (of.before.Amounts[bet] != of.after.Amounts[bet]) LogBet(game, of.seat, bet);
  history.Now = KeepBets(game);
  game.host->Changed(game, Change::kLayout);
  RequireConsistency(game);
  return true;
}

BetStep StepBetween(const BetsKept& before, const BetsKept& after) {
  BetStep step;
  step.callsBefore = before.CallsTouched;
  step.callsAfter = after.CallsTouched;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (!Same(before.seats[seat], after.seats[seat]))
      step.seats.push_back({seat, before.seats[seat], after.seats[seat]});
  return step;
}

void NoteCalls(BetHistory& history, bool touched) {
  if (history.Standing > 0) history.Steps[history.Standing - 1].callsAfter = touched;
  if (history.Standing < history.Steps.size()) history.Steps[history.Standing].callsBefore = touched;
}

bool SamePlayers(const BetStep& step) {
  return std::all_of(step.seats.begin(), step.seats.end(),
                     [](const BetStep::OfSeat& of) { return of.before.SeatName == of.after.SeatName; });
}

}  // namespace

BetsKept KeepBets(const Game& game) {
  BetsKept kept;
  for (SeatId seat = 1; seat <= kSeats; ++seat) KeepSeat(game.table, seat, kept.seats[seat]);
  kept.CallsTouched = game.table.CallsTouched;
  kept.Throws = Throws(game.stats);
  kept.settings = game.settings;
  kept.payoffs = game.payoffs;
  return kept;
}

void NoteBetStep(BetHistory& history, const Game& game, const BetsKept& before) {
  BetsKept now = KeepBets(game);
  if (!SameFrame(before, now)) {
    history = {};
    return;
  }
  BetStep step = StepBetween(before, now);
  if (!StandsAsLeft(history, before)) history = {};
  // A call made twice changes nothing but that it is to be looked at.
  if (step.seats.empty()) return NoteCalls(history, now.CallsTouched);
  // Where somebody came, left or moved, that is no change of bets.
  if (!SamePlayers(step)) return;
  history.Steps.resize(history.Standing);
  if (history.Steps.size() == kMostBetSteps) history.Steps.erase(history.Steps.begin());
  history.Steps.push_back(std::move(step));
  history.Standing = history.Steps.size();
  history.Now = std::move(now);
}

bool CanUndoBets(const BetHistory& history, const Game& game) { return CanTake(history, game, true); }

bool CanRedoBets(const BetHistory& history, const Game& game) { return CanTake(history, game, false); }

bool UndoBets(Game& game, BetHistory& history) { return TakeStep(game, history, true); }

bool RedoBets(Game& game, BetHistory& history) { return TakeStep(game, history, false); }

}  // namespace tessaryn
