#include "rules/handling.h"

#include "base/bet_catalogue.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "rules/payoffs.h"
#include "state/bet_families.h"
#include "state/show_message.h"

namespace tessaryn {

const char* const kWinChoiceCaptions[8] = {" Manual",
                                           " Take Bet and Winnings",
                                           " Same Bet/Take Winnings",
                                           " Press 1 Unit",
                                           " Press Double",
                                           " Parlay",
                                           " Same Bet",
                                           " Bet"};
const char* const kLoseChoiceCaptions[8] = {" Manual",
                                            " No Bet/Take Remainder (if any)",
                                            " Same Bet",
                                            " Bet Remainder (if any)",
                                            " Same Bet Plus 1 Unit",
                                            " Double Bet",
                                            " Same Bet",
                                            " Bet"};

namespace {

constexpr int kWinAdjustSlot = 4;
constexpr int kLoseAdjustSlot = 5;
constexpr int kWinFixedSlot = 6;
constexpr int kLoseFixedSlot = 7;
constexpr int kPlus = 0;
constexpr int kMinus = 1;
constexpr int kTimes = 2;
constexpr int kPercent = 1;
constexpr int kAdjustNotes = 4;

Currency AmountUp(const Game& game, SeatId seat, BetId bet) { return game.table.BetAmount(seat, bet); }

bool NotesShown(const Game& game) {
  return !game.table.TurboRollActive && (game.settings.MessageMask & kAdjustNotes) != 0;
}

// The note of an action, at its last change. action: what it is called; only formed when somebody can read
// it.
template <typename Action>
void ShowActionNote(Game& game, SeatId seat, BetId bet, Action&& action) {
  if (!NotesShown(game)) return;
  const Currency difference = AmountUp(game, seat, bet) - game.table.BetBeforeRoll(seat, bet);
  ShowMessage(game,
              difference > kZero   ? Msg::kBetIncreasedBy
              : difference < kZero ? Msg::kBetDecreasedBy
                                   : Msg::kBetRemains,
              {{"title", action()},
               {"player", game.table.seats[seat].SeatName},
               {"bet", BetName(bet)},
               {"amount", Abs(difference)}});
}
static_assert(NeedOnly({Msg::kBetIncreasedBy, Msg::kBetDecreasedBy, Msg::kBetRemains},
                       {"title", "player", "bet", "amount"}));

void ShowActionNote(Game& game, SeatId seat, BetId bet, Msg action) {
  ShowActionNote(game, seat, bet, [action] { return MessageText(action); });
}

// An increase. One that the rules refuse leaves the bet as it is, which the bankroll must cover still.
void Raise(Game& game, SeatId seat, BetId bet, Currency request) {
  const TableState& table = game.table;
  if (ChangeBet(game, seat, bet, request) != kZero || request <= kZero) return;
  if (table.seats[seat].AllowNegativeBankroll ||
      table.seats[seat].OnTableAmount <= table.BankrollCurrent[seat])
    return;
  ChangeBet(game, seat, bet, kZero, Asking::kQuietly);
}

void TakeDown(Game& game, SeatId seat, BetId bet) { ChangeBet(game, seat, bet, -AmountUp(game, seat, bet)); }

void SameBet(Game& game, SeatId seat, BetId bet) {
  ChangeBet(game, seat, bet, kZero);
  if (AmountUp(game, seat, bet) != game.table.BetBeforeRoll(seat, bet))
    ShowActionNote(game, seat, bet, Msg::kActionSame);
}

void BetRemainder(Game& game, SeatId seat, BetId bet, Currency net) {
  const Currency remainder = net + game.table.BetBeforeRoll(seat, bet);
  ChangeBet(game, seat, bet, -AmountUp(game, seat, bet));
  ChangeBet(game, seat, bet, remainder);
  ShowActionNote(game, seat, bet, Msg::kActionRemainder);
}

void PressOneUnit(Game& game, SeatId seat, BetId bet, Currency unit) {
  Raise(game, seat, bet, unit);
  ShowActionNote(game, seat, bet, Msg::kActionPressUnit);
}

void PressDouble(Game& game, SeatId seat, BetId bet) {
  Raise(game, seat, bet, AmountUp(game, seat, bet));
  ShowActionNote(game, seat, bet, Msg::kActionPressDouble);
}

void Parlay(Game& game, SeatId seat, BetId bet, Currency net) {
  Handling& handling = game.table.seats[seat].handling;
  const Handling before = handling;
  handling.PlaceBias = handling.DoBias = handling.DontBias = handling.LayBias = 2;
  if (net != kZero)
    Raise(game, seat, bet, net);
  else
    TakeFullOdds(game, seat, bet);
  handling.PlaceBias = before.PlaceBias;
  handling.DoBias = before.DoBias;
  handling.DontBias = before.DontBias;
  handling.LayBias = before.LayBias;
  ShowActionNote(game, seat, bet, Msg::kActionParlay);
}

// What one adjust slot says.
struct Adjustment {
  int kind;
  Currency value;
  int unit;
};

Adjustment SlotOf(const Game& game, SeatId seat, int slot) {
  const Handling& handling = game.table.seats[seat].handling;
  return {handling.AdjustKind[slot], handling.AdjustValue[slot], handling.AdjustUnit[slot]};
}

// The value in dollars when it counts units of a check.
Currency UnitsInDollars(const Game& game, BetId bet, const Adjustment& adjustment) {
  const int check = adjustment.unit - 1;
  if (check < 1 || check > 5) return adjustment.value;
  const Currency perUnit = Divide(PayoffOf(game, bet).BetUnit, game.settings.Unit());
  return Multiply(Multiply(adjustment.value, game.settings.CheckValue[check]), perUnit);
}

constexpr Msg kAdjustTitles[] = {Msg::kActionPlus, Msg::kActionMinus, Msg::kActionTimes, Msg::kActionDivided};

std::string AdjustTitle(const Adjustment& adjustment) {
  return MessageText(kAdjustTitles[adjustment.kind & 3], {{"value", adjustment.value},
                                                          {"dollars", adjustment.unit == 0},
                                                          {"percent", adjustment.unit == kPercent},
                                                          {"units", adjustment.unit > kPercent}});
}
static_assert(NeedOnly({Msg::kActionPlus, Msg::kActionMinus, Msg::kActionTimes, Msg::kActionDivided},
                       {"value", "dollars", "percent", "units"}));

void SameBetAdjusted(Game& game, SeatId seat, BetId bet, const Adjustment& adjustment) {
  const Currency before = game.table.BetBeforeRoll(seat, bet);
  const Currency hundred = Currency::Dollars(100);
  const bool percent = adjustment.unit == kPercent;
  const Currency factor = percent ? Divide(adjustment.value, hundred) : adjustment.value;
  Currency wanted;
  if (adjustment.kind == kPlus || adjustment.kind == kMinus) {
    const Currency step = percent                      ? Multiply(before, factor)
                          : adjustment.unit > kPercent ? UnitsInDollars(game, bet, adjustment)
                                                       : adjustment.value;
    wanted = adjustment.kind == kPlus ? before + step : before - step;
  } else {
    wanted = adjustment.kind == kTimes ? Multiply(before, factor) : Divide(before, factor);
  }
  if (wanted.IsError()) wanted = before;  // a division by 0 leaves the bet as it was
  Raise(game, seat, bet, wanted - AmountUp(game, seat, bet));
  ShowActionNote(game, seat, bet, [&] { return AdjustTitle(adjustment); });
}

std::string FixedTitle(const Game& game, const Adjustment& adjustment, Currency wanted) {
  if (adjustment.unit <= kPercent) return MessageText<Msg::kActionBet>(With<"amount">(wanted));
  const int check = adjustment.unit - 1;
  return MessageText<Msg::kActionBetUnits>(
      With<"count">(adjustment.value),
      With<"check">(check <= 5 ? FormatMoney(game.settings.CheckValue[check]) : std::string()));
}

void BetFixed(Game& game, SeatId seat, BetId bet, const Adjustment& adjustment) {
  const bool units = adjustment.unit > kPercent;
  const Currency wanted = units ? UnitsInDollars(game, bet, adjustment) : adjustment.value;
  ChangeBet(game, seat, bet, -AmountUp(game, seat, bet));
  ChangeBet(game, seat, bet, wanted);
  ShowActionNote(game, seat, bet, [&] { return FixedTitle(game, adjustment, wanted); });
}

// What is done with a decided bet, and with what.
struct Treatment {
  int choice;
  const SettleAnswer* typed = nullptr;  // the dialog's, where it was asked; else the seat's slots hold
  Currency pressUnit = kZero;           // of the choices that press by it
};

Adjustment AdjustmentOf(const Game& game, SeatId seat, int slot, const SettleAnswer* typed) {
  if (typed == nullptr) return SlotOf(game, seat, slot);
  return {typed->adjustKind, typed->adjustValue, typed->adjustUnit};
}

void DoWinChoice(Game& game, SeatId seat, BetId bet, const Decision& decision, const Treatment& treatment) {
  if (decision.finished || treatment.choice == kWinTakeDown) return TakeDown(game, seat, bet);
  switch (treatment.choice) {
    case kWinPressUnit:
      return PressOneUnit(game, seat, bet, treatment.pressUnit);
    case kWinPressDouble:
      return PressDouble(game, seat, bet);
    case kWinParlay:
      return Parlay(game, seat, bet, decision.net);
    case kWinAdjusted:
      return SameBetAdjusted(game, seat, bet, AdjustmentOf(game, seat, kWinAdjustSlot, treatment.typed));
    case kWinFixed:
      return BetFixed(game, seat, bet, AdjustmentOf(game, seat, kWinFixedSlot, treatment.typed));
    default:
      return SameBet(game, seat, bet);
  }
}

void DoLoseChoice(Game& game, SeatId seat, BetId bet, const Decision& decision, const Treatment& treatment) {
  if (decision.finished) return TakeDown(game, seat, bet);
  switch (treatment.choice) {
    case kLoseSame:
      return SameBet(game, seat, bet);
    case kLoseRemainder:
      return BetRemainder(game, seat, bet, decision.net);
    case kLosePlusUnit:
      return PressOneUnit(game, seat, bet, treatment.pressUnit);
    case kLoseDouble:
      return PressDouble(game, seat, bet);
    case kLoseAdjusted:
      return SameBetAdjusted(game, seat, bet, AdjustmentOf(game, seat, kLoseAdjustSlot, treatment.typed));
    case kLoseFixed:
      return BetFixed(game, seat, bet, AdjustmentOf(game, seat, kLoseFixedSlot, treatment.typed));
    default:
      return TakeDown(game, seat, bet);
  }
}

// The dialog's answer, where there is somebody to give one; else the safe choice.
SettleAnswer Ask(Game& game, SeatId seat, BetId bet, bool won, const Decision& decision, Currency pressUnit) {
  const int safe = won ? int{kWinSame} : int{kLoseTakeDown};
  SettleAnswer answer;
  if (!game.table.TurboRollActive && !game.autobet.ScriptActive[seat]) {
    SettleQuestion question;
    question.seat = seat;
    question.bet = bet;
    question.won = won;
    question.offOdds = decision.paidBy == nullptr;
    question.finished = decision.finished;
    if (decision.paidBy != nullptr) question.paidBy = *decision.paidBy;
    question.gross = decision.gross;
    question.net = decision.net;
    question.vig = HasVig(bet) ? VigHeld(game, seat, bet) : kZero;
    question.pressUnit = pressUnit;
    const auto count = FamilyRowOf(bet).count;
    question.count = count != nullptr ? game.table.*count : 0;
    answer = game.host->AskSettlement(game, question);
  }
  if (answer.choice < 1 || answer.choice > 7) answer.choice = safe;
  return answer;
}

// The vig that the decided bet held comes off the table.
Currency CloseVig(Game& game, SeatId seat, BetId bet) {
  if (!HasVig(bet)) return kZero;
  Currency& held = VigHeld(game, seat, bet);
  const Currency vig = held;
  if (VigUpFront(game, bet)) game.table.seats[seat].OnTableAmount -= vig;
  held = kZero;
  return vig;
}

// What "Press 1 Unit" adds: the largest check that goes into the bet, in units in which the bet is paid
// whole.
Currency PressUnitOf(const Game& game, SeatId seat, BetId bet) {
  const Settings& settings = game.settings;
  const Currency amount = AmountUp(game, seat, bet);
  const Currency betUnit = PayoffOf(game, bet).BetUnit;
  Currency candidate;
  for (int n = 5; n >= 1; --n) {
    candidate = n == 1 ? betUnit : Divide(Multiply(settings.CheckValue[n], betUnit), settings.Unit());
    if (candidate > kZero && candidate < amount && IsMultiple(amount, candidate)) break;
  }
  return candidate.IsError() ? kZero : candidate;
}

}  // namespace

void HandleWin(Game& game, SeatId seat, BetId bet, const Decision& decision) {
  const int choice = game.table.seats[seat].handling.WinHandling;
  // Nothing to ask, nothing to press, no vig to close: what most winners of a system come to.
  if (!HasVig(bet) && choice != kWinManual && choice != kWinPressUnit)
    return DoWinChoice(game, seat, bet, decision, {choice});
  const bool upFront = VigUpFront(game, bet);
  const bool asks = choice == kWinManual;
  const Currency pressUnit = asks || choice == kWinPressUnit ? PressUnitOf(game, seat, bet) : kZero;
  const SettleAnswer answer = asks ? Ask(game, seat, bet, true, decision, pressUnit) : SettleAnswer{};
  Decision beforeVig = decision;
  const Currency vig = CloseVig(game, seat, bet);
  if (upFront) beforeVig.net += vig;  // the handling sees the winnings before vig
  DoWinChoice(game, seat, bet, beforeVig,
              {asks ? answer.choice : choice, asks ? &answer : nullptr, pressUnit});
}

void HandleLoss(Game& game, SeatId seat, BetId bet, const Decision& decision) {
  const int choice = game.table.seats[seat].handling.LoseHandling;
  if (!HasVig(bet) && choice != kLoseManual && choice != kLosePlusUnit)
    return DoLoseChoice(game, seat, bet, decision, {choice});
  const bool asks = choice == kLoseManual;
  const Currency pressUnit = asks || choice == kLosePlusUnit ? PressUnitOf(game, seat, bet) : kZero;
  const SettleAnswer answer = asks ? Ask(game, seat, bet, false, decision, pressUnit) : SettleAnswer{};
  CloseVig(game, seat, bet);
  DoLoseChoice(game, seat, bet, decision,
               {asks ? answer.choice : choice, asks ? &answer : nullptr, pressUnit});
}

void HandleOffOdds(Game& game, SeatId seat, BetId bet, const Decision& decision) {
  const TableState& table = game.table;
  const bool won = table.BetStreak(seat, FlatBetOf(bet)) >= 2;
  const Handling& handling = table.seats[seat].handling;
  const int choice = won ? handling.WinHandling : handling.LoseHandling;
  const bool asks = choice == 0;
  const Currency pressUnit = PressUnitOf(game, seat, bet);
  const SettleAnswer answer = asks ? Ask(game, seat, bet, won, decision, pressUnit) : SettleAnswer{};
  const Treatment treatment{asks ? answer.choice : choice, asks ? &answer : nullptr, pressUnit};
  if (won)
    DoWinChoice(game, seat, bet, decision, treatment);
  else
    DoLoseChoice(game, seat, bet, decision, treatment);
}

}  // namespace tessaryn
