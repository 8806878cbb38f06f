#include "rules/shooter.h"

#include <string>

#include "state/game.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr const char* kPassTitle = "Pass the Dice";

// The dice go round downwards.
int NextSeat(int seat) { return seat <= 1 ? kSeats : seat - 1; }

struct ShooterSearch {
  int seat = 0;         // who may take the dice; 0 nobody
  int others = 0;       // other players at the table
  int otherSeat = 0;    // one of them
  int lackLineBet = 0;  // willing, but without the line bet that is needed
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

std::string NobodyText(const Game& game, const ShooterSearch& search) {
  std::string text = "Unable to pass the dice at this time.\r\r";
  if (search.lackLineBet == 0) {
    return text + (search.others == 1
                       ? game.table.seats[search.otherSeat].SeatName + " doesn't want to shoot."
                       : "None of the other players want to shoot.");
  }
  text += search.lackLineBet == 1
              ? "There's one other player who wants to shoot "
              : "There are " + std::to_string(search.lackLineBet) + " other players who want to shoot ";
  return text +
         "but can't because a line bet is required and Put bets are not allowed.\r\rPlease wait for a "
         "come-out roll or check the 'Allow Put bets' option on the 'Bets tab' of the configuration screen.";
}

void GiveDice(Game& game, int seat, int reason) {
  TableState& table = game.table;
  const int oldShooter = table.ShooterSeat;
  const bool byUser = reason == kPassByUser;
  if (byUser && game.events.RecordShooterChanges)
    WriteEventsLogLine(game, "    The dice were passed to " + table.seats[seat].SeatName);
  table.ShooterSeat = seat;
  game.host->Changed(game, Change::kShooter);
  if (HandRolls(game.stats) == 0) {
    table.HandSeat = seat;
    return;
  }
  if (!byUser || table.TurboRollActive || oldShooter == 0) return;
  const std::string& oldName = table.seats[oldShooter].SeatName;
  const std::string& newName = table.seats[seat].SeatName;
  const bool back = seat == table.HandSeat;
  ShowMessage(game, kPassTitle,
              back
                  ? oldName + " is passing the dice back to " + newName + " who originally started this hand."
                  : oldName + " is passing the dice to " + newName +
                        " who may finish the current hand and then roll his/her own hand.");
}

// Who asked for the dice to pass hears why they can't; nobody else does, and no text is formed.
bool MustTell(const Game& game, int reason) {
  return reason == kPassByUser && !game.table.TurboRollActive && !game.autobet.ScriptRunning;
}

}  // namespace

int NextOccupied(const TableState& table, int seat) {
  for (int step = 0, next = NextSeat(seat); step < kSeats - 1; ++step, next = NextSeat(next))
    if (IsOccupied(table, next)) return next;
  return 0;
}

void PassDice(Game& game, int reason) {
  TableState& table = game.table;
  if (table.OccupiedSeats == 0) {
    if (MustTell(game, reason))
      ShowMessage(game, kPassTitle, "Unable to pass the dice.\r\rThere are no players at the table.");
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
  if (!MustTell(game, reason)) return;
  ShowMessage(game, kPassTitle,
              search.others == 0 ? "Unable to pass the dice.\r\rThere are no other players at the table."
                                 : NobodyText(game, search));
}

}  // namespace tessaryn
