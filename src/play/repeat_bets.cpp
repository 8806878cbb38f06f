#include "play/repeat_bets.h"

#include "play/script_session.h"
#include "rules/bet_rules.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

BetSet BetsToRepeat(const Game& game, SeatId seat) {
  const TableState& table = game.table;
  BetSet bets;
  if (!IsOccupied(table, seat)) return bets;
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (table.BetBeforeRoll(seat, bet) > kZero && table.BetAmount(seat, bet) == kZero) bets.Add(bet);
  return bets;
}

int RepeatBets(Game& game, SeatId seat) {
  const TableState& table = game.table;
  const BetSet bets = BetsToRepeat(game, seat);
  int refused = 0;
  int made = 0;
  const auto repeat = [&](BetId bet) {
    // Automatic odds may have come with their flat bet.
    if (table.BetAmount(seat, bet) != kZero) return;
    const Currency amount = table.BetBeforeRoll(seat, bet);
    if (AllowedChange(game, seat, bet, amount, Asking::kQuietly) <= kZero) {
      if (refused == 0) refused = bet;
    } else if (PlaceBet(game, seat, bet, amount) > kZero) {
      ++made;
      LogBet(game, seat, bet);
    }
  };
  for (const bool odds : {false, true})
    bets.ForEach([&](BetId bet) {
      if (IsOdds(bet) == odds) repeat(bet);
    });
  if (made == 0 && refused != 0) PlaceBet(game, seat, refused, table.BetBeforeRoll(seat, refused));
  return made;
}

}  // namespace tessaryn
