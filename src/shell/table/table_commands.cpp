#include "shell/table/table_commands.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/script_session.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/payoffs.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

QString Translated(const char* text) { return QCoreApplication::translate("TableCommands", text); }

// A bet of the selected seat made by hand; the log of such bets has it, if it is kept.
void PlaceByHand(Game& game, int bet, Currency request) {
  const int seat = game.table.SelectedSeat;
  if (PlaceBet(game, seat, bet, request) != kZero) LogBet(game, seat, bet);
}

// Takes the bet up for the next click. A contract stays where it is.
void CarryBet(Game& game, TableCommands& commands, int bet) {
  const int seat = game.table.SelectedSeat;
  const Currency amount = game.table.BetAmount(seat, bet);
  if (amount == kZero || IsContractBet(game, seat, bet)) return;
  const Currency taken = -RemoveBet(game, seat, bet);
  if (taken > kZero) commands.CarriedAmount = taken;
}

// Where a bet's payoffs stand: in its record, or in a table of its own.
struct PayoffRows {
  int bet;
  const PayoffRecord* first;
  int count;
};

PayoffRows RowsOf(const PayoffTables& payoffs, int bet) {
  switch (bet) {
    case kField:
      return {bet, payoffs.FieldPayoffs + 1, kFieldRows};
    case kSevenPoint7:
      return {bet, payoffs.SevenPointSevenPayoffs + 1, kSevenPointSevenRows};
    case kMidway:
      return {bet, payoffs.MidwayPayoffs + 1, kMidwayRows};
    case kSharpShooter:
      return {bet, payoffs.SharpShooterPayoffs + 1, kSharpShooterRows};
    case kRideTheLine:
      return {bet, payoffs.RideTheLinePayoffs + 1, kRideTheLineRows};
    case kFire:
      return {bet, payoffs.FirePayoffs, kFireRows + 1};
    default:
      return {bet, payoffs.PayoffTable + bet, 1};
  }
}

}  // namespace

void SetPendingAction(TableCommands& commands, int action) {
  commands.PendingAction = commands.PendingAction == action ? kPendingNone : action;
}

bool IsContractBet(const Game& game, int seat, int bet) {
  const bool contract = bet == kPassLine ? game.table.Point != 0 : IsComeNumber(bet) || bet == kSevenPoint7;
  return contract && bet < 100 && game.table.BetCommitted(seat, bet) > kZero;
}

void RemoveClickedBet(Game& game, int bet) {
  const int seat = game.table.SelectedSeat;
  if (game.table.BetAmount(seat, bet) == kZero && IsOdds(bet)) bet = FlatBetOf(bet);
  PlaceByHand(game, bet, -game.table.BetAmount(seat, bet));
}

void RemoveAllBets(Game& game) {
  const int seat = game.table.SelectedSeat;
  // A contract that can't come down is left without a word for each.
  ++game.table.QuietChanges;
  game.table.SeatBets[seat].ForEach(
      [&](int bet) { PlaceBet(game, seat, bet, -game.table.BetAmount(seat, bet)); });
  --game.table.QuietChanges;
  game.host->Changed(game, Change::kLayout);
}

bool ClickBet(Game& game, TableCommands& commands, int bet, bool alt) {
  const int seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return false;
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

void TakeEnteredAmount(Game& game, int bet, Currency amount) {
  const int seat = game.table.SelectedSeat;
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

void RightClick(Game& game, TableCommands& commands) {
  commands.PendingAction = kPendingNone;
  commands.CarriedAmount = kZero;
  if (!AskBeforeCommand(game) || game.table.RollInProgress) return;
  RollDice(game);
}

QString BetAmountText(const Game& game, int seat, int bet) {
  QString text = FromCore(BetName(bet)) + ":  " + MoneyText(game.table.BetAmount(seat, bet));
  if (IsTableBet(bet) && HasVig(bet) && game.table.BetAmount(seat, bet) > kZero)
    text += "   vig:  " + MoneyText(VigFor(game, bet, game.table.BetAmount(seat, bet)));
  return text;
}

QString PayoffSummary(const Game& game, int bet) {
  if (!IsTableBet(bet)) return {};
  // Odds on the line pay by the point; before one is set there is nothing to tell.
  if ((bet == kPassLineOdds || bet == kDontPassOdds) && game.table.Point == 0) return {};
  if (bet == kCAndE) return Translated("half each as Any Craps and Eleven");
  if (bet == kHorn) return Translated("a quarter each as Two, Three, Eleven and Twelve");
  if (bet == kWorld) return Translated("a fifth each as Two, Three, Seven, Eleven and Twelve");
  const PayoffRows rows = RowsOf(game.payoffs, bet);
  QStringList texts;
  for (int n = 0; n < rows.count; ++n) {
    if (rows.first[n].PayTo <= kZero) continue;
    const QString text = FromCore(PayoffText(rows.first[n]));
    if (!texts.contains(text)) texts.push_back(text);
  }
  if (texts.size() > 3) return texts.front() + " ... " + texts.back();
  return texts.join(", ");
}

QString PointerText(const Game& game, int seat, int bet) {
  if (bet == 0) return {};
  QString text = BetAmountText(game, seat, bet);
  const QString pays = PayoffSummary(game, bet);
  if (!pays.isEmpty()) text += "   " + Translated("pays") + " " + pays;
  if (!IsTableBet(bet) || !IsOccupied(game.table, seat)) return text;
  const Currency rail = game.table.AllowNegativeBankroll[seat]
                            ? kBankrollLimit
                            : game.table.BankrollCurrent[seat] - game.table.OnTableAmount[seat];
  const Currency room =
      std::min(MaxBetFor(game, seat, bet) - game.table.BetAmount(seat, bet), std::max(rail, kZero));
  text += "   " + Translated("minimum") + " " + MoneyText(MinBetFor(game, bet));
  text += "   " + Translated("may still be bet") + ": " + MoneyText(std::max(room, kZero));
  return text;
}

QString InfoTip(const Game& game, int seat, int bet) {
  if (bet == 0) return {};
  const Currency amount = game.table.BetAmount(seat, bet);
  switch (game.settings.InfoTipLevel) {
    case 1:
      return amount == kZero ? QString() : MoneyText(amount);
    case 2:
      return FromCore(BetName(bet));
    case 3:
      return BetAmountText(game, seat, bet);
    case 4:
      return PointerText(game, seat, bet).replace("   ", "\n");
    default:
      return {};
  }
}

int NextSeat(const Game& game, int direction) {
  int seat = game.table.SelectedSeat;
  for (int step = 0; step < kSeats; ++step) {
    seat += direction;
    if (seat < 1) seat = kSeats;
    if (seat > kSeats) seat = 1;
    if (IsOccupied(game.table, seat)) return seat;
  }
  return game.table.SelectedSeat;
}

}  // namespace tessaryn
