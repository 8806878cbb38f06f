#include "rules/bankroll.h"

#include <algorithm>

#include "rules/consistency.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// Boxes of a transaction that is not allowed in full; they are all given the same.
static_assert(NeedOnly({Msg::kDepositBelowWagers, Msg::kDepositNegative, Msg::kDepositBelowLimit,
                        Msg::kWithdrawalAboveLimit},
                       {"player", "requested", "allowed", "limit", "elsewhere"}));

void MoveMoney(Game& game, SeatId seat, Currency amount) {
  game.table.BankrollCurrent[seat] += amount;
  for (const ScopeId scope : {kCurrentHand, kCurrentSession, kAllSessions})
    game.stats.AtmTotal[Slot(scope, seat)] += amount;
  game.host->Changed(game, Change::kPlayers);
  RequireConsistency(game);
}

}  // namespace

Currency AtmTransaction(Game& game, SeatId seat, bool deposit, Currency amount, bool alwaysTell) {
  TableState& table = game.table;
  if (!game.settings.AtmEnabled || amount.IsError() || amount < kZero) return kZero;
  const Currency bankroll = table.BankrollCurrent[seat];
  Currency allowed = amount;
  Msg refusal = Msg::kNone;
  if (deposit) {
    const Currency rail = bankroll - table.seats[seat].OnTableAmount;
    if (!table.seats[seat].AllowNegativeBankroll) {
      if (rail < amount) {
        allowed = std::max(rail, kZero);
        refusal = table.seats[seat].OnTableAmount > kZero ? Msg::kDepositBelowWagers : Msg::kDepositNegative;
      }
    } else if (bankroll - amount < -kBankrollLimit) {
      allowed = std::max(kBankrollLimit + bankroll, kZero);
      refusal = Msg::kDepositBelowLimit;
    }
  } else if (bankroll + amount > kBankrollLimit) {
    allowed = std::max(kBankrollLimit - bankroll, kZero);
    refusal = Msg::kWithdrawalAboveLimit;
  }
  const bool quiet = table.TurboRollActive || game.autobet.ScriptRunning;
  const bool tells = alwaysTell || (!quiet && (game.settings.MessageMask & 1) != 0);
  if (tells && refusal != Msg::kNone)
    ShowMessage(game, refusal,
                {{"player", table.seats[seat].SeatName},
                 {"requested", amount},
                 {"allowed", allowed},
                 {"limit", kBankrollLimit},
                 {"elsewhere", !alwaysTell}});
  MoveMoney(game, seat, deposit ? -allowed : allowed);
  return allowed;
}

void BankrollLimitReached(Game& game, SeatId seat) {
  TableState& table = game.table;
  const bool negative = table.BankrollCurrent[seat] < kZero;
  if (table.TurboRollActive)
    return StopRun(game, MessageText(negative ? Msg::kStoppedByNegativeLimit : Msg::kStoppedByBankrollLimit,
                                     {{"limit", kBankrollLimit}}));
  StopRun(game, "");
  if (!negative) game.host->PlaySound(game, Sound::kWin);
  ShowMessage(game, negative ? Msg::kNegativeLimitExceeded : Msg::kBankrollLimitBroken,
              {{"player", table.seats[seat].SeatName}, {"limit", kBankrollLimit}});
}

static_assert(NeedOnly({Msg::kStoppedByNegativeLimit, Msg::kStoppedByBankrollLimit}, {"limit"}) &&
              NeedOnly({Msg::kNegativeLimitExceeded, Msg::kBankrollLimitBroken}, {"player", "limit"}));

void SetBankroll(Game& game, SeatId seat, Currency amount) {
  StartBankroll(game, seat, std::clamp(amount, -kBankrollLimit, kBankrollLimit));
  game.host->Changed(game, Change::kPlayers);
}

}  // namespace tessaryn
