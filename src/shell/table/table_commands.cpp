#include "shell/table/table_commands.h"

#include <algorithm>
#include <memory>

#include "play/auto_roll.h"
#include "play/bet_facts.h"
#include "play/script_session.h"
#include "rules/bet_rules.h"
#include "shell/table/plates.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_painter.h"
#include "state/bet_families.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {

// A bet of the selected seat made by hand; the log of such bets has it, if it is kept.
void PlaceByHand(Game& game, BetId bet, Currency request) {
  const SeatId seat = game.table.SelectedSeat;
  if (PlaceBet(game, seat, bet, request) != kZero) LogBet(game, seat, bet);
}

// Takes the bet up for the next click. A contract stays where it is.
void CarryBet(Game& game, TableCommands& commands, BetId bet) {
  const SeatId seat = game.table.SelectedSeat;
  const Currency amount = game.table.BetAmount(seat, bet);
  if (amount == kZero || IsContractBet(game, seat, bet)) return;
  const Currency taken = -RemoveBet(game, seat, bet);
  if (taken > kZero) commands.CarriedAmount = taken;
}

void ReplaceAmount(Game& game, BetId bet, Currency amount) {
  const SeatId seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat) || amount.IsError()) return;
  const Currency up = game.table.BetAmount(seat, bet);
  if (amount == up) return;
  // A contract is raised or kept, never taken down and made anew.
  if (IsContractBet(game, seat, bet) || IsCheckStack(bet) || up == kZero) {
    PlaceByHand(game, bet, amount - up);
    return;
  }
  if (-RemoveBet(game, seat, bet) != up) return;
  PlaceBet(game, seat, bet, amount);
  LogBet(game, seat, bet);
}

// The bet that a click on odds means when they aren't up: the flat bet that shares their place.
BetId OrItsFlatBet(const Game& game, BetId bet) {
  const bool up = game.table.BetAmount(game.table.SelectedSeat, bet) != kZero;
  return !up && IsOdds(bet) ? FlatBetOf(bet) : bet;
}

}  // namespace

void SetPendingAction(TableCommands& commands, int action) {
  commands.Moving = {};
  commands.PendingAction = commands.PendingAction == action ? kPendingNone : action;
}

bool GiveUp(TableCommands& commands) {
  const bool any =
      commands.PendingAction != kPendingNone || commands.CarriedAmount > kZero || commands.Moving.Bet != 0;
  commands.PendingAction = kPendingNone;
  commands.CarriedAmount = kZero;
  commands.Moving = {};
  return any;
}

bool IsContractBet(const Game& game, SeatId seat, BetId bet) {
  const bool contract = bet == kSevenPoint7 || UnderContract(game.table, bet);
  return contract && game.table.BetCommitted(seat, bet) > kZero;
}

void RemoveClickedBet(Game& game, BetId bet) {
  bet = OrItsFlatBet(game, bet);
  PlaceByHand(game, bet, -game.table.BetAmount(game.table.SelectedSeat, bet));
}

bool TakeInHand(Game& game, TableCommands& commands, BetId bet) {
  commands.PendingAction = kPendingNone;
  const SeatId seat = game.table.SelectedSeat;
  bet = OrItsFlatBet(game, bet);
  if (!IsTableBet(bet) || game.table.BetAmount(seat, bet) == kZero) {
    ShowMessage<Msg::kOnlyBetsMove>(game);
    return false;
  }
  commands.Moving = {seat, bet};
  return true;
}

BetId PutDownBet(const Game& game, const BetInHand& hand, int area) {
  if (area == AreaOf(hand.Bet)) return hand.Bet;
  // An area that means the bet in hand while that is up means itself once it has left.
  const BetId bet = MeantBet(game, area);
  return bet == hand.Bet ? BetId(area) : bet;
}

void MoveBet(Game& game, int from, int to) {
  if (from == to) return;
  if (to == 0) return RemoveClickedBet(game, from);
  TableState& table = game.table;
  const SeatId seat = table.SelectedSeat;
  const Currency amount = table.BetAmount(seat, from);
  // Tried without a word first: what the other bet refuses can't always be made anew where it was.
  const auto before = std::make_unique<const TableState>(table);
  const Currency taken = -ChangeBet(game, seat, from, -amount, Asking::kQuietly);
  const bool placed = taken > kZero && ChangeBet(game, seat, to, taken, Asking::kQuietly) > kZero;
  table = *before;
  if (placed) {
    RemoveBet(game, seat, from);
    PlaceBet(game, seat, to, taken);
    LogBet(game, seat, from);
    LogBet(game, seat, to);
  } else if (taken <= kZero) {
    RemoveBet(game, seat, from);  // tells why not
  } else if (IsOdds(to) && FlatBetOf(to) == from) {
    // Allowed as the table stands, but not without the bet that would leave.
    ShowMessage<Msg::kNotToOwnOdds>(game, With<"bet">(BetName(from)));
  } else {
    AllowedChange(game, seat, to, taken);  // tells why not
  }
}

void RemoveAllBets(Game& game) {
  const SeatId seat = game.table.SelectedSeat;
  // A contract that can't come down is left without a word for each.
  game.table.seats[seat].SeatBets.ForEach(
      [&](BetId bet) { PlaceBet(game, seat, bet, -game.table.BetAmount(seat, bet), Asking::kQuietly); });
  game.host->Changed(game, Change::kLayout);
}

namespace {

bool CarryOutClick(Game& game, TableCommands& commands, BetId bet, bool alt) {
  const SeatId seat = game.table.SelectedSeat;
  const int action = commands.PendingAction;
  commands.PendingAction = kPendingNone;
  switch (action) {
    case kPendingCallOn:
    case kPendingCallOff:
      CallBet(game, seat, bet, action == kPendingCallOn);
      return false;
    case kPendingBuy:
      BuyPlaceBet(game, seat, bet);
      return false;
    case kPendingRemove:
      RemoveClickedBet(game, bet);
      return false;
    case kPendingMove:
      TakeInHand(game, commands, bet);
      return false;
    default:
      break;
  }
  if (commands.CarriedAmount > kZero) {
    PlaceByHand(game, bet, std::exchange(commands.CarriedAmount, kZero));
    return false;
  }
  if (alt && IsTableBet(bet)) {
    CarryBet(game, commands, bet);
    return false;
  }
  if (commands.BetAmountMode == kKeyInAmounts) return true;
  PlaceByHand(game, bet, commands.ClickAmount);
  return false;
}

}  // namespace

bool ClickBet(Game& game, TableCommands& commands, BetId bet, bool alt) {
  if (!IsOccupied(game.table, game.table.SelectedSeat)) return false;
  bool asksForAmount = false;
  AsBetStep(commands.History, game, [&] { asksForAmount = CarryOutClick(game, commands, bet, alt); });
  return asksForAmount;
}

void TakeEnteredAmount(Game& game, TableCommands& commands, BetId bet, Currency amount) {
  AsBetStep(commands.History, game, [&] { ReplaceAmount(game, bet, amount); });
}

void RightClick(Game& game, TableCommands& commands) {
  GiveUp(commands);
  if (!AskBeforeCommand(game) || game.table.RollInProgress) return;
  RollDice(game);
}

bool TakesClick(Game& game, const TableCommands& commands, BetId bet) {
  const SeatId seat = game.table.SelectedSeat;
  if (!IsTableBet(bet) || !IsOccupied(game.table, seat)) return true;
  const auto isUp = [&](BetId which) { return game.table.BetAmount(seat, which) != kZero; };
  switch (commands.PendingAction) {
    case kPendingRemove:
    case kPendingMove:
      return isUp(OrItsFlatBet(game, bet));
    case kPendingCallOn:
    case kPendingCallOff:
    case kPendingBuy:
      return isUp(bet);
    default:
      break;
  }
  // Where a bet in hand may go is found out as it is put down.
  if (commands.Moving.Bet != 0) return true;
  return RoomFor(game, seat, bet) > kZero || (commands.BetAmountMode == kKeyInAmounts && isUp(bet));
}

SeatId NextSeat(const Game& game, int direction) {
  SeatId seat = game.table.SelectedSeat;
  for (int step = 0; step < kSeats; ++step) {
    seat = seat + direction;
    if (seat < 1) seat = kSeats;
    if (seat > kSeats) seat = 1;
    if (IsOccupied(game.table, seat)) return seat;
  }
  return game.table.SelectedSeat;
}

}  // namespace tessaryn
