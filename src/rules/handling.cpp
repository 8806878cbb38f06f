#include "rules/handling.h"

#include "base/bet_catalogue.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
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

Currency AmountUp(const Game& game, int seat, int bet) { return game.table.BetAmount(seat, bet); }

bool NotesShown(const Game& game) {
  return !game.table.TurboRollActive && game.table.QuietChanges == 0 &&
         (game.settings.MessageMask & kAdjustNotes) != 0;
}

// The note of an action, at its last change. action: what it is called; only formed when somebody can read
// it.
template <typename Action>
void ShowActionNote(Game& game, int seat, int bet, Action&& action) {
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

void ShowActionNote(Game& game, int seat, int bet, Msg action) {
  ShowActionNote(game, seat, bet, [action] { return MessageText(action); });
}

// An increase. One that the rules refuse leaves the bet as it is, which the bankroll must cover still.
void Raise(Game& game, int seat, int bet, Currency request) {
  TableState& table = game.table;
  if (ChangeBet(game, seat, bet, request) != kZero || request <= kZero) return;
  if (table.seats[seat].AllowNegativeBankroll ||
      table.seats[seat].OnTableAmount <= table.BankrollCurrent[seat])
    return;
  ++table.QuietChanges;
  ChangeBet(game, seat, bet, kZero);
  --table.QuietChanges;
}

void TakeDown(Game& game, int seat, int bet) {
  ChangeBet(game, seat, bet, -AmountUp(game, seat, bet));
  game.table.BetFinished = false;
}

void SameBet(Game& game, int seat, int bet) {
  ChangeBet(game, seat, bet, kZero);
  if (AmountUp(game, seat, bet) != game.table.BetBeforeRoll(seat, bet))
    ShowActionNote(game, seat, bet, Msg::kActionSame);
}

void BetRemainder(Game& game, int seat, int bet) {
  const Currency remainder = game.table.NetPayoff + game.table.BetBeforeRoll(seat, bet);
  ChangeBet(game, seat, bet, -AmountUp(game, seat, bet));
  ChangeBet(game, seat, bet, remainder);
  ShowActionNote(game, seat, bet, Msg::kActionRemainder);
}

void PressOneUnit(Game& game, int seat, int bet) {
  Raise(game, seat, bet, game.table.PressUnit);
  ShowActionNote(game, seat, bet, Msg::kActionPressUnit);
}

void PressDouble(Game& game, int seat, int bet) {
  Raise(game, seat, bet, AmountUp(game, seat, bet));
  ShowActionNote(game, seat, bet, Msg::kActionPressDouble);
}

void Parlay(Game& game, int seat, int bet) {
  Handling& handling = game.table.seats[seat].handling;
  const Handling before = handling;
  handling.PlaceBias = handling.DoBias = handling.DontBias = handling.LayBias = 2;
  if (game.table.NetPayoff != kZero)
    Raise(game, seat, bet, game.table.NetPayoff);
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

Adjustment SlotOf(const Game& game, int seat, int slot) {
  const Handling& handling = game.table.seats[seat].handling;
  return {handling.AdjustKind[slot], handling.AdjustValue[slot], handling.AdjustUnit[slot]};
}

// The value in dollars when it counts units of a check.
Currency UnitsInDollars(const Game& game, int bet, const Adjustment& adjustment) {
  const int check = adjustment.unit - 1;
  if (check < 1 || check > 5) return adjustment.value;
  const Currency perUnit = Divide(game.payoffs.PayoffTable[bet].BetUnit, game.settings.Unit());
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

void SameBetAdjusted(Game& game, int seat, int bet, const Adjustment& adjustment) {
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

void BetFixed(Game& game, int seat, int bet, const Adjustment& adjustment) {
  const bool units = adjustment.unit > kPercent;
  const Currency wanted = units ? UnitsInDollars(game, bet, adjustment) : adjustment.value;
  ChangeBet(game, seat, bet, -AmountUp(game, seat, bet));
  ChangeBet(game, seat, bet, wanted);
  ShowActionNote(game, seat, bet, [&] { return FixedTitle(game, adjustment, wanted); });
}

// The adjustment of choices 6 and 7: what was typed in the dialog, else the seat's stored slot.
Adjustment AdjustmentOf(const Game& game, int seat, int slot, const SettleAnswer* typed) {
  if (typed == nullptr) return SlotOf(game, seat, slot);
  return {typed->adjustKind, typed->adjustValue, typed->adjustUnit};
}

void DoWinChoice(Game& game, int seat, int bet, int choice, const SettleAnswer* typed) {
  if (game.table.BetFinished || choice == kWinTakeDown) return TakeDown(game, seat, bet);
  switch (choice) {
    case kWinPressUnit:
      return PressOneUnit(game, seat, bet);
    case kWinPressDouble:
      return PressDouble(game, seat, bet);
    case kWinParlay:
      return Parlay(game, seat, bet);
    case kWinAdjusted:
      return SameBetAdjusted(game, seat, bet, AdjustmentOf(game, seat, kWinAdjustSlot, typed));
    case kWinFixed:
      return BetFixed(game, seat, bet, AdjustmentOf(game, seat, kWinFixedSlot, typed));
    default:
      return SameBet(game, seat, bet);
  }
}

void DoLoseChoice(Game& game, int seat, int bet, int choice, const SettleAnswer* typed) {
  if (game.table.BetFinished) return TakeDown(game, seat, bet);
  switch (choice) {
    case kLoseSame:
      return SameBet(game, seat, bet);
    case kLoseRemainder:
      return BetRemainder(game, seat, bet);
    case kLosePlusUnit:
      return PressOneUnit(game, seat, bet);
    case kLoseDouble:
      return PressDouble(game, seat, bet);
    case kLoseAdjusted:
      return SameBetAdjusted(game, seat, bet, AdjustmentOf(game, seat, kLoseAdjustSlot, typed));
    case kLoseFixed:
      return BetFixed(game, seat, bet, AdjustmentOf(game, seat, kLoseFixedSlot, typed));
    default:
      return TakeDown(game, seat, bet);
  }
}

int HandCountOf(const TableState& table, int bet) {
  if (bet == kSharpShooter) return table.SharpShooterCount;
  if (bet == kRideTheLine) return table.RideTheLineCount;
  return bet == kFire ? table.FireCount : 0;
}

// The dialog's answer, where there is somebody to give one.
SettleAnswer Ask(Game& game, int seat, int bet, bool won, bool offOdds, Currency vig) {
  if (game.table.TurboRollActive || game.autobet.ScriptActive[seat]) return {};
  SettleQuestion question;
  question.seat = seat;
  question.bet = bet;
  question.won = won;
  question.offOdds = offOdds;
  question.gross = game.table.GrossPayoff;
  question.net = game.table.NetPayoff;
  question.vig = vig;
  question.pressUnit = game.table.PressUnit;
  question.count = HandCountOf(game.table, bet);
  SettleAnswer answer = game.host->AskSettlement(game, question);
  if (answer.choice < 0 || answer.choice > 7) answer.choice = 0;
  return answer;
}

void ApplyWinChoice(Game& game, int seat, int bet, int choice, const SettleAnswer& answer) {
  if (choice != kWinManual) return DoWinChoice(game, seat, bet, choice, nullptr);
  DoWinChoice(game, seat, bet, answer.choice == 0 ? kWinSame : answer.choice, &answer);
}

void ApplyLoseChoice(Game& game, int seat, int bet, int choice, const SettleAnswer& answer) {
  if (choice != kLoseManual) return DoLoseChoice(game, seat, bet, choice, nullptr);
  DoLoseChoice(game, seat, bet, answer.choice == 0 ? kLoseTakeDown : answer.choice, &answer);
}

// The vig that the decided bet held comes off the table.
Currency CloseVig(Game& game, int seat, int bet) {
  if (!HasVig(bet)) return kZero;
  Currency& held = VigHeld(game, seat, bet);
  const Currency vig = held;
  if (VigUpFront(game, bet)) game.table.seats[seat].OnTableAmount -= vig;
  held = kZero;
  return vig;
}

}  // namespace

void ComputePressOptions(Game& game, int seat, int bet) {
  const Settings& settings = game.settings;
  const Currency amount = AmountUp(game, seat, bet);
  const Currency betUnit = game.payoffs.PayoffTable[bet].BetUnit;
  Currency candidate;
  for (int n = 5; n >= 1; --n) {
    candidate = n == 1 ? betUnit : Divide(Multiply(settings.CheckValue[n], betUnit), settings.Unit());
    if (candidate > kZero && candidate < amount && IsMultiple(amount, candidate)) break;
  }
  game.table.PressUnit = candidate.IsError() ? kZero : candidate;
}

void HandleWin(Game& game, int seat, int bet) {
  TableState& table = game.table;
  const int choice = table.seats[seat].handling.WinHandling;
  // Nothing to ask, nothing to press, no vig to close: what most winners of a system come to.
  if (!HasVig(bet) && choice != kWinManual && choice != kWinPressUnit)
    return DoWinChoice(game, seat, bet, choice, nullptr);
  const bool upFront = VigUpFront(game, bet);
  const bool asks = choice == kWinManual;
  if (asks || choice == kWinPressUnit) ComputePressOptions(game, seat, bet);
  const Currency vigHeld = HasVig(bet) ? VigHeld(game, seat, bet) : kZero;
  const SettleAnswer answer = asks ? Ask(game, seat, bet, true, false, vigHeld) : SettleAnswer{};
  const Currency vig = CloseVig(game, seat, bet);
  if (upFront) table.NetPayoff += vig;  // the handling sees the winnings before vig
  ApplyWinChoice(game, seat, bet, choice, answer);
}

void HandleLoss(Game& game, int seat, int bet) {
  const int choice = game.table.seats[seat].handling.LoseHandling;
  if (!HasVig(bet) && choice != kLoseManual && choice != kLosePlusUnit)
    return DoLoseChoice(game, seat, bet, choice, nullptr);
  const bool asks = choice == kLoseManual;
  if (asks || choice == kLosePlusUnit) ComputePressOptions(game, seat, bet);
  const Currency vigHeld = HasVig(bet) ? VigHeld(game, seat, bet) : kZero;
  const SettleAnswer answer = asks ? Ask(game, seat, bet, false, false, vigHeld) : SettleAnswer{};
  CloseVig(game, seat, bet);
  ApplyLoseChoice(game, seat, bet, choice, answer);
}

void HandleOffOdds(Game& game, int seat, int bet) {
  TableState& table = game.table;
  ComputePressOptions(game, seat, bet);
  const bool asLoser = table.BetStreak(seat, FlatBetOf(bet)) < 2;
  const Handling& handling = table.seats[seat].handling;
  const int choice = asLoser ? handling.LoseHandling : handling.WinHandling;
  const SettleAnswer answer = choice == 0 ? Ask(game, seat, bet, !asLoser, true, kZero) : SettleAnswer{};
  if (asLoser)
    ApplyLoseChoice(game, seat, bet, choice, answer);
  else
    ApplyWinChoice(game, seat, bet, choice, answer);
}

}  // namespace tessaryn
