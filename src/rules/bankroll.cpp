#include "rules/bankroll.h"

#include <algorithm>

#include "rules/consistency.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr const char* kLimitText = "9,999,999";
constexpr const char* kResetText = "Select \"New\" from the \"Game\" menu to reset the table.";

std::string AllowedText(Currency requested, Currency allowed) {
  return "Requested amount:  $" + FormatMoney(requested) + "\rAllowed amount:  $" + FormatMoney(allowed) +
         "\r\r";
}

std::string NotAllowedBecause(const std::string& name) {
  return "The full amount of this transaction was not allowed because it would've caused " + name + "'s ";
}

std::string CoveredDepositText(const Game& game, int seat, bool fromConfiguration) {
  const TableState& table = game.table;
  const bool wagered = table.seats[seat].OnTableAmount > kZero;
  std::string text =
      "The full amount of this transaction was not allowed because " + table.seats[seat].SeatName + "'s ";
  text += wagered ? "bankroll would've dropped below the amount currently wagered."
                  : "bankroll would've become negative.";
  text += "\r\rYou can deposit more by checking the box marked, \"Allow negative bankroll\"";
  if (!fromConfiguration) text += " on the Configuration screen";
  return text + (wagered ? ", and/or by reducing the amount currently wagered." : ".");
}

void MoveMoney(Game& game, int seat, Currency amount) {
  game.table.BankrollCurrent[seat] += amount;
  for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions})
    game.stats.AtmTotal[Slot(scope, seat)] += amount;
  game.host->Changed(game, Change::kPlayers);
  RequireConsistency(game);
}

}  // namespace

Currency AtmTransaction(Game& game, int seat, bool deposit, Currency amount, bool alwaysTell) {
  TableState& table = game.table;
  if (!game.settings.AtmEnabled || amount.IsError() || amount < kZero) return kZero;
  const Currency bankroll = table.BankrollCurrent[seat];
  const std::string& name = table.seats[seat].SeatName;
  const bool quiet = table.TurboRollActive || game.autobet.ScriptRunning;
  const bool tells = alwaysTell || (!quiet && (game.settings.MessageMask & 1) != 0);
  Currency allowed = amount;
  std::string reason;
  if (deposit) {
    const Currency rail = bankroll - table.seats[seat].OnTableAmount;
    if (!table.seats[seat].AllowNegativeBankroll) {
      if (rail < amount) {
        allowed = std::max(rail, kZero);
        if (tells) reason = CoveredDepositText(game, seat, alwaysTell);
      }
    } else if (bankroll - amount < -kBankrollLimit) {
      allowed = std::max(kBankrollLimit + bankroll, kZero);
      if (tells)
        reason = NotAllowedBecause(name) + "bankroll to drop below the negative bank limit of $" + kLimitText;
    }
  } else if (bankroll + amount > kBankrollLimit) {
    allowed = std::max(kBankrollLimit - bankroll, kZero);
    if (tells) reason = NotAllowedBecause(name) + "bankroll to exceed the max bank limit of $" + kLimitText;
  }
  if (!reason.empty())
    ShowMessage(game, deposit ? "ATM Deposit" : "ATM Withdrawal", AllowedText(amount, allowed) + reason);
  MoveMoney(game, seat, deposit ? -allowed : allowed);
  return allowed;
}

void BankrollLimitReached(Game& game, int seat) {
  TableState& table = game.table;
  const std::string& name = table.seats[seat].SeatName;
  const bool negative = table.BankrollCurrent[seat] < kZero;
  if (table.TurboRollActive) {
    StopRun(game, std::string(negative ? "Stopped by exceeding the negative bankroll limit of -$"
                                       : "Stopped by breaking the max bankroll limit of $") +
                      kLimitText + "\r\r" + kResetText);
    return;
  }
  StopRun(game, "");
  if (!negative) game.host->PlaySound(game, Sound::kWin);
  ShowMessage(game, "Tessaryn",
              negative ? "Sorry ... \r\r" + name + " has exceeded the negative bankroll limit of -$" +
                             kLimitText + "\r\r" + kResetText
                       : "Congratulations!\r\r" + name + " broke the max bankroll limit of $" + kLimitText +
                             "\r\r" + kResetText);
}

void SetBankroll(Game& game, int seat, Currency amount) {
  StartBankroll(game, seat, std::clamp(amount, -kBankrollLimit, kBankrollLimit));
  game.host->Changed(game, Change::kPlayers);
}

}  // namespace tessaryn
