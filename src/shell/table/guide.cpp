#include "shell/table/guide.h"

#include <QCoreApplication>

#include "rules/handling.h"
#include "state/game.h"

namespace tessaryn {

GuideStep NextGuideStep(const Game& game) {
  const TableState& table = game.table;
  if (table.OccupiedSeats == 0) return GuideStep::kJoin;
  if (Throws(game.stats) > 0) return GuideStep::kAskWins;
  return table.AnyBets.Has(kPassLine) || table.AnyBets.Has(kDontPass) ? GuideStep::kRoll : GuideStep::kBet;
}

QString GuideText(GuideStep step) {
  switch (step) {
    case GuideStep::kJoin:
      return QCoreApplication::translate("Guide", "Click a + to join");
    case GuideStep::kBet:
      return QCoreApplication::translate("Guide", "Choose a check, click PASS LINE");
    case GuideStep::kRoll:
      return QCoreApplication::translate("Guide", "Roll");
    default:
      return {};
  }
}

bool HasBeenPlayed(const Game& game) { return game.table.OccupiedSeats > 0 || Throws(game.stats) > 0; }

void ChooseWinHandling(Game& game, bool ask) {
  const SeatId seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return;
  game.table.seats[seat].handling.WinHandling = ask ? kWinManual : kWinSame;
  game.host->Changed(game, Change::kPlayers);
}

}  // namespace tessaryn
