// What a click or a key on the table means: the commands of the table window, apart from the window.
#pragma once

#include <QString>

#include "base/table_types.h"
#include "play/bet_history.h"

namespace tessaryn {

struct Game;

// What the next click on a bet means.
enum PendingAction : int {
  kPendingNone = 0,
  kPendingCallOn = 1,
  kPendingCallOff = 2,
  kPendingBuy = 3,
  kPendingRemove = 4,
  kPendingMove = 5,  // takes the bet in hand; the click after it says where it goes
};

// A bet that is being moved. It stays up until it is put down elsewhere.
struct BetInHand {
  SeatId Seat = 0;
  BetId Bet = 0;  // 0 none
};

// How the amount of a click is chosen.
enum BetAmountMode : int {
  kAddClickAmount = 1,  // the selector's amount is added
  kKeyInAmounts = 2,    // an entry box asks for the amount
};

struct TableCommands {
  int PendingAction = kPendingNone;
  int BetAmountMode = kAddClickAmount;
  Currency ClickAmount = Currency::Dollars(5);  // what a click adds
  Currency CarriedAmount;                       // taken up with Alt, to be put down by the next click; 0 none
  BetInHand Moving;
  BetHistory History;  // what Undo takes back
};

// A command of the same kind again, or a right click, gives it up.
void SetPendingAction(TableCommands& commands, int action);
// Drops whatever the next click was meant for. False when it was meant for nothing but a bet.
bool GiveUp(TableCommands& commands);

// The left button on a bet, for the selected seat: carries out the pending action, or adds. alt: the Alt key
// is held. Returns whether the click asks for an amount to be keyed in; the caller then opens the entry box.
bool ClickBet(Game& game, TableCommands& commands, BetId bet, bool alt);
// The amount typed replaces the bet.
void TakeEnteredAmount(Game& game, TableCommands& commands, BetId bet, Currency amount);
// The right button: drops a pending action; then asks to stop an Auto-Roll, or rolls.
void RightClick(Game& game, TableCommands& commands);
// Takes the bet down; odds that share their place with the flat bet take that down when they aren't up.
void RemoveClickedBet(Game& game, BetId bet);
// Takes the selected seat's bet in hand; for odds that aren't up their flat bet. False, with a box, when
// there is nothing to move.
bool TakeInHand(Game& game, TableCommands& commands, BetId bet);
// Which bet the one in hand becomes when it is put down on an area; the same bet on its own.
BetId PutDownBet(const Game& game, const BetInHand& hand, int area);
// The selected seat's money goes from one bet to the other, as far as the rules of both let it; all stays
// where it is when they don't. to 0: off the table.
void MoveBet(Game& game, int from, int to);
// All bets of the selected seat that the rules let go.
void RemoveAllBets(Game& game);

// Whether the bet holds money under contract.
bool IsContractBet(const Game& game, SeatId seat, BetId bet);

// Whether what the next click is meant for may be done on the bet as the table stands.
bool TakesClick(Game& game, const TableCommands& commands, BetId bet);

// --- What the pointer is over (bet_tips.cpp).

// "Place 6: 12".
QString BetAmountText(const Game& game, SeatId seat, BetId bet);
// The whole line for the selected seat: what the next click is meant for if not for a bet, name, amount, vig,
// payoff, and what may still be bet. Over no bet: what the player has.
QString PointerText(Game& game, const TableCommands& commands, BetId bet);
// The tip beside the pointer by InfoTipLevel; empty for none.
QString InfoTip(Game& game, const TableCommands& commands, BetId bet);

// The seat that the arrow keys come to, upwards or downwards; the present one when there is no other.
SeatId NextSeat(const Game& game, int direction);

}  // namespace tessaryn
