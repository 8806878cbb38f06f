#include "rules/shooter.h"

#include <string>

#include "state/show_message.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// The dice go round downwards.
SeatId NextSeat(SeatId seat) { return seat <= 1 ? kSeats : seat - 1; }

struct ShooterSearch {
  SeatId seat = 0;        // who may take the dice; 0 nobody
  int others = 0;         // other players at the table
  SeatId otherSeat = 0;   // one of them
  BetId lackLineBet = 0;  // willing, but without the line bet that is needed
};

ShooterSearch SearchShooter(const Game& game) {
  const TableState& table = game.table;
  const bool lineNeeded =
      !game.settings.AllowPutBets && game.settings.ShooterBetRule == 1 && table.Point != 0;
  ShooterSearch search;
  for (int step = 0, seat = NextSeat(table.ShooterSeat); step < kSeats - 1; ++step, seat = NextSeat(seat)) {
    if (!IsOccupied(table, seat) || seat == table.ShooterSeat) continue;
    ++search.others;
    search.otherSeat = seat;
    if (table.seats[seat].handling.AutoPassDice) continue;
    const bool hasLine =
        table.seats[seat].SeatBets.Has(kPassLine) || table.seats[seat].SeatBets.Has(kDontPass);
    if (lineNeeded && !hasLine) {
      ++search.lackLineBet;
    } else if (search.seat == 0) {
      search.seat = seat;
    }
  }
  return search;
}

// Why nobody takes the dice.
void TellNobody(Game& game, const ShooterSearch& search) {
  if (search.others == 0)
    ShowMessage<Msg::kNobodyToPassTo>(game, With<"others">(true));
  else if (search.lackLineBet > 0)
    ShowMessage<Msg::kShootersLackLineBet>(game, With<"count">(search.lackLineBet));
  else if (search.others == 1)
    ShowMessage<Msg::kPlayerWontShoot>(game, With<"player">(game.table.seats[search.otherSeat].SeatName));
  else
    ShowMessage<Msg::kNobodyWillShoot>(game);
}

void GiveDice(Game& game, SeatId seat, int reason) {
  TableState& table = game.table;
  const SeatId oldShooter = table.ShooterSeat;
  const bool byUser = reason == kPassByUser;
  if (byUser && game.events.RecordShooterChanges)
    WriteEventsLogLine(game, MessageText<Msg::kLogDicePassed>(With<"player">(table.seats[seat].SeatName)));
  table.ShooterSeat = seat;
  game.host->Changed(game, Change::kShooter);
  if (HandRolls(game.stats) == 0) {
    table.HandSeat = seat;
    return;
  }
  if (!byUser || table.TurboRollActive || oldShooter == 0) return;
  ShowMessage(game, seat == table.HandSeat ? Msg::kDicePassedBack : Msg::kDicePassed,
              {{"from", table.seats[oldShooter].SeatName}, {"to", table.seats[seat].SeatName}});
}
static_assert(NeedOnly({Msg::kDicePassed, Msg::kDicePassedBack}, {"from", "to"}));

// Who asked for the dice to pass hears why they can't; nobody else does, and no text is formed.
bool MustTell(const Game& game, int reason) {
  return reason == kPassByUser && !game.table.TurboRollActive && !game.autobet.ScriptRunning;
}

}  // namespace

SeatId NextOccupied(const TableState& table, SeatId seat) {
  for (int step = 0, next = NextSeat(seat); step < kSeats - 1; ++step, next = NextSeat(next))
    if (IsOccupied(table, next)) return next;
  return 0;
}

void PassDice(Game& game, int reason) {
  TableState& table = game.table;
  if (table.OccupiedSeats == 0) {
    if (MustTell(game, reason)) ShowMessage<Msg::kNobodyToPassTo>(game, With<"others">(false));
    table.ShooterSeat = 0;
    if (reason == kPassShooterLeft) table.HandSeat = 0;
    return;
  }
  // A player alone keeps the dice: the usual case of a system under test.
  if (table.OccupiedSeats == 1 && reason == kPassAfterSevenOut) return;
  const ShooterSearch search = SearchShooter(game);
  if (search.seat > 0) return GiveDice(game, search.seat, reason);
  if (reason == kPassShooterLeft) {
    const int next = NextOccupied(table, table.ShooterSeat);
    if (next > 0) GiveDice(game, next, reason);
    return;
  }
  if (MustTell(game, reason)) TellNobody(game, search);
}

}  // namespace tessaryn
