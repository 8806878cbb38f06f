// The one gate through which a bet changes: clicks, handling, scripts and automatic odds all come here.
#pragma once

#include <cstdint>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// How a change is asked for. Refusals and notes are shown as boxes when it is asked aloud, or by a move, and
// neither a Turbo-Roll nor a script runs.
enum class Asking : std::uint8_t {
  kAloud,
  kQuietly,
  kAsMove,  // a Come or Don't Come bet goes to its number: no new money, no rule against betting there
};

// Asks for a change of the seat's bet (bets 1 to 93, CheckStacks 100 to 199) and applies what the rules
// allow. Returns the change made.
Currency ChangeBet(Game& game, SeatId seat, BetId bet, Currency request, Asking asking = Asking::kAloud);
// What ChangeBet would make of the request on a bet 1 to 93, with the same texts; nothing changes.
Currency AllowedChange(Game& game, SeatId seat, BetId bet, Currency request, Asking asking = Asking::kAloud);
// ChangeBet with the chip sound, and the odds brought back into line with their flat bet.
Currency PlaceBet(Game& game, SeatId seat, BetId bet, Currency request, Asking asking = Asking::kAloud);
// The bet down, as far as a contract lets it.
Currency RemoveBet(Game& game, SeatId seat, BetId bet);
// Removes the odds and bets the most that is allowed. Shows no texts.
void TakeFullOdds(Game& game, SeatId seat, BetId bet);
// Full odds on every Come number and the Pass Line (take side), or their opposites (lay side).
void TakeAllFullOdds(Game& game, SeatId seat, bool laySide);
// Odds after a change of their flat bet: cut to its maximum, or full odds where the seat has them automatic.
void BringOddsIntoLine(Game& game, SeatId seat, BetId bet);
// Sets an amount without any rule; keeps every set and sum of the table. Requires that the amount is not
// negative for bets 1 to 93. CheckStacks take any amount.
void SetBetAmount(Game& game, SeatId seat, BetId bet, Currency amount);

// Whether a bet that is taken down and asked for again at its amount, as a script's bet is, would come to
// what it was, unseen and unheard: then nothing need be done. May say no where it would.
bool StaysWhenBetAgain(const Game& game, SeatId seat, BetId bet);

// Calls. A first press of the other word only cancels the earlier call. False, with a box, for a bet that
// can't be called.
bool CallBet(Game& game, SeatId seat, BetId bet, bool on);
void CallAllBets(Game& game, SeatId seat, bool on);
// Takes the ON or OFF button away.
void RemoveCall(Game& game, SeatId seat, BetId bet);
// BetWorking as a bet that has come down has it.
void ResetBetWorking(Game& game, SeatId seat, BetId bet);
int BetWorkingOf(const Game& game, SeatId seat, BetId bet);
// The Place bet's amount goes to the Buy bet of its number; a call goes with it. A box where there is no
// Place bet; false for any other bet.
bool BuyPlaceBet(Game& game, SeatId seat, BetId bet);

// All bets of a family down, without contract or questions: the table no longer offers them.
void TakeDownBets(Game& game, SeatId seat, const BetSet& bets);
// The vig of every Buy and Lay bet that is up, by the settings in force.
void RecomputeVig(Game& game);

}  // namespace tessaryn
