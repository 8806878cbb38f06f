#include "autobet/run/set_variable.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "autobet/language/language.h"
#include "autobet/language/script_text.h"
#include "autobet/run/operands.h"
#include "autobet/run/resolve_reference.h"
#include "autobet/run/script_errors.h"
#include "dice/roll_file.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "state/game.h"

namespace tessaryn {

double ScriptValue::AsNumber() const { return isText ? LeadingNumber(text) : number; }
std::string ScriptValue::AsText() const { return isText ? text : GeneralNumber(number); }

namespace {

// A wager set to an amount: what is up comes back first, as far as a contract lets it, and the rest is asked
// for anew. A call outlives that, since the bet is never seen off the table.
bool SetBet(Game& game, SeatId seat, BetId bet, double dollars) {
  const Currency wanted = Currency::FromDouble(dollars);
  if (wanted.IsError()) return ScriptFaults(game, kNumberOverflow);
  TableState& table = game.table;
  if (wanted == table.BetAmount(seat, bet) && StaysWhenBetAgain(game, seat, bet)) return true;
  WorkingState& working = table.seats[seat].BetWorking;
  const bool calledOn = working.calledOn.Has(bet);
  const bool calledOff = working.calledOff.Has(bet);
  if (table.BetAmount(seat, bet) > kZero) ChangeBet(game, seat, bet, -table.BetAmount(seat, bet));
  PlaceBet(game, seat, bet, wanted - table.BetAmount(seat, bet));
  if ((calledOn || calledOff) && table.BetAmount(seat, bet) > kZero) {
    working.calledOn.Set(bet, calledOn);
    working.calledOff.Set(bet, calledOff);
    table.CallsTouched = true;
  }
  return true;
}

bool SetStack(Game& game, SeatId seat, BetId bet, double dollars) {
  // Within what a stack holds there is nothing to refuse.
  if (std::fabs(dollars) < kStackLimit.ToDouble()) {
    SetBetAmount(game, seat, bet, Currency::FromDouble(dollars));
    return true;
  }
  const Currency wanted = Currency::FromDouble(std::clamp(dollars, -1e12, 1e12));
  ChangeBet(game, seat, bet, wanted - game.table.BetAmount(seat, bet));
  return true;
}

// --- Handling by its texts.

struct HandlingText {
  std::string_view text;
  int number;
};

constexpr HandlingText kWinTexts[] = {
    {"manual", 1},
    {"take bet and winnings", 2},
    {"same bet/take winnings", 3},
    {"same bet / take winnings", 3},
    {"same bet", 3},
    {"press 1 unit", 4},
    {"press double", 5},
    {"parlay", 6},
};
constexpr HandlingText kLoseTexts[] = {
    {"manual", 1},
    {"no bet/take remainder (if any)", 2},
    {"no bet / take remainder (if any)", 2},
    {"no bet", 2},
    {"no bet/take remainder", 2},
    {"no bet / take remainder", 2},
    {"same bet", 3},
    {"bet remainder (if any)", 4},
    {"bet remainder", 4},
    {"same bet plus 1 unit", 5},
    {"double bet", 6},
};

// An adjustment as a handling keeps it.
struct Adjustment {
  int kind = 0;
  int unit = 0;
  Currency value;
};

// "+ $5", "x 2", "- 10%": an operator if one is due, an amount, and what it is of.
bool ReadAdjustment(std::string_view text, bool hasOperator, Adjustment& adjustment) {
  text = Trimmed(text);
  if (hasOperator) {
    constexpr std::string_view kOperators = "+-x*/";
    constexpr int kKinds[] = {0, 1, 2, 2, 3};
    const auto at = text.empty() ? std::string_view::npos : kOperators.find(text[0]);
    if (at == std::string_view::npos) return false;
    adjustment.kind = kKinds[at];
    text = Trimmed(text.substr(1));
  }
  if (!text.empty() && text.back() == '%') {
    adjustment.unit = 1;
    text = Trimmed(text.substr(0, text.size() - 1));
  }
  return TryParseMoney(text, adjustment.value) && adjustment.value >= kZero;
}

struct HandlingRule {
  const HandlingText* begin;
  const HandlingText* end;
  int error;
  int Handling::*choice;
  int adjustSlot;
  int fixedSlot;
};

const HandlingRule kWinRule{
    std::begin(kWinTexts), std::end(kWinTexts), kErrorWinHandling, &Handling::WinHandling, 4, 6};
const HandlingRule kLoseRule{
    std::begin(kLoseTexts), std::end(kLoseTexts), kErrorLoseHandling, &Handling::LoseHandling, 5, 7};

void KeepAdjustment(Handling& handling, int slot, const Adjustment& adjustment) {
  handling.AdjustKind[slot] = adjustment.kind;
  handling.AdjustValue[slot] = adjustment.value;
  handling.AdjustUnit[slot] = adjustment.unit;
}

// The number of the setting that the text means, its amounts kept; 0 for none.
int HandlingOfText(Handling& handling, const HandlingRule& rule, const std::string& given) {
  const std::string text = Lowered(Trimmed(given));
  for (const HandlingText* entry = rule.begin; entry != rule.end; ++entry)
    if (entry->text == text) return entry->number;
  constexpr std::string_view kSameBet = "same bet";
  constexpr std::string_view kBet = "bet";
  Adjustment adjustment;
  const std::string_view view = text;
  if (view.substr(0, kSameBet.size()) == kSameBet &&
      ReadAdjustment(view.substr(kSameBet.size()), true, adjustment)) {
    KeepAdjustment(handling, rule.adjustSlot, adjustment);
    return 7;
  }
  if (view.substr(0, kBet.size()) == kBet && ReadAdjustment(view.substr(kBet.size()), false, adjustment)) {
    KeepAdjustment(handling, rule.fixedSlot, adjustment);
    return 8;
  }
  return 0;
}

bool SetHandling(Game& game, SeatId seat, const HandlingRule& rule, const ScriptValue& value) {
  Handling& handling = game.table.seats[seat].handling;
  double number = value.number;
  if (value.isText) number = HandlingOfText(handling, rule, value.text);
  number = std::nearbyint(number);
  if (!(number >= 1 && number <= 8)) return ScriptFails(game, rule.error);
  handling.*rule.choice = static_cast<int>(number) - 1;
  return true;
}

bool SetWinHandling(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  return SetHandling(game, target.seat, kWinRule, value);
}

bool SetLoseHandling(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  return SetHandling(game, target.seat, kLoseRule, value);
}

// --- The seat's switches.

bool SetTakesFullOdds(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  const bool on = value.AsNumber() != 0;
  game.table.seats[target.seat].handling.AutoTakeOdds = on;
  if (on) TakeAllFullOdds(game, target.seat, false);
  return true;
}

bool SetLaysFullOdds(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  const bool on = value.AsNumber() != 0;
  game.table.seats[target.seat].handling.AutoLayOdds = on;
  if (on) TakeAllFullOdds(game, target.seat, true);
  return true;
}

bool SetTakesPlaceDown(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  const bool on = value.AsNumber() != 0;
  game.table.seats[target.seat].handling.AutoDownPlace = on;
  for (BetId bet = kPlace4; on && bet < kPlace4 + 6; ++bet) RemoveBet(game, target.seat, bet);
  return true;
}

bool SetPassesDice(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  game.table.seats[target.seat].handling.AutoPassDice = value.AsNumber() != 0;
  return true;
}

// --- The table.

bool SetBankrollAtStart(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  if (SessionRolls(game.stats) > 0) return ScriptFails(game, kErrorBankroll);
  const Currency amount = Currency::FromDouble(value.AsNumber());
  if (amount.IsError()) return ScriptFaults(game, kNumberOverflow);
  SetBankroll(game, target.seat, amount);
  return true;
}

bool SetNextRollOfFile(Game& game, const ResolvedTarget&, const ScriptValue& value) {
  if (!IsRollFileOpen(game.rollFile)) return ScriptFails(game, kErrorRollFileClosed);
  const double roll = std::clamp(std::nearbyint(value.AsNumber()), 1.0, 2147483647.0);
  SetRollFileCursor(game.rollFile, static_cast<std::int64_t>(roll));
  return true;
}

bool SetSeed(Game& game, const ResolvedTarget&, const ScriptValue& value) {
  return SeedFromScript(game, value.AsNumber());
}

bool SetGenerator(Game& game, const ResolvedTarget&, const ScriptValue& value) {
  const double whole = std::nearbyint(value.AsNumber());
  const bool known = whole >= 1 && whole <= static_cast<int>(kGeneratorCount);
  return (known && SelectGenerator(game, static_cast<int>(whole))) || ScriptFails(game, kErrorGenerator);
}

bool SetCompRate(Game& game, const ResolvedTarget&, const ScriptValue& value) {
  const double part = value.AsNumber();
  const Currency rate = Currency::FromDouble(part * 100);
  if (!(part >= 0) || rate.IsError()) return ScriptFails(game, kErrorCompRate);
  game.settings.CompRate = Percent::Of(rate);
  return true;
}

bool SetAmountOf(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  return SetAmount(game, target.seat, target.code, value.AsNumber());
}

bool SetStackName(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  std::string& name = game.table.seats[target.seat].CheckStackName[target.code - kFirstCheckStackName];
  if (value.isText)
    name = value.text;  // in the room that it has
  else
    name = value.AsText();
  return true;
}

// --- Which row is written how.

struct WriterRow {
  int first;
  int last;
  VariableWriter write;
};

constexpr WriterRow kWriters[] = {
    {1, kBets, SetAmountOf},
#define NUMBERED(code, phrase, name, type, writer, ...) {code, (code) + kCheckStacks - 1, writer},
#define SETTABLE(code, phrase, name, class, whose, reader, writer, ...) {code, code, writer},
#include "autobet/language/words.inc"
};

}  // namespace

VariableWriter WriterOfVariable(int code) {
  for (const WriterRow& row : kWriters)
    if (code >= row.first && code <= row.last) return row.write;
  return nullptr;
}

bool SeedFromScript(Game& game, double number) {
  bool given = true;
  const Currency candidate = Currency::FromDouble(number);
  if (candidate.IsError()) return ScriptFails(game, kErrorSeed);
  SeedRng(game, given, candidate);
  return given || ScriptFails(game, kErrorSeed);
}

bool PlayerMayAct(Game& game, SeatId seat) {
  if (!IsOccupied(game.table, seat)) return ScriptFails(game, kErrorNoPlayer);
  const SeatId bettor = game.autobet.CurrentAutobettor;
  if (seat == bettor || game.autobet.Scripts[bettor].AllowAct4Others) return true;
  return ScriptFails(game, kErrorOtherPlayers);
}

bool ResolveTarget(Game& game, const PreparedProgram& program, const Reference& target,
                   ResolvedTarget& resolved) {
  resolved.code = target.write == nullptr ? 0 : target.code;
  resolved.write = target.write;
  if (!PlayerOf(game, program, target, resolved.seat)) return false;
  if (resolved.code == 0) return true;
  if (target.form == ReferenceForm::kNumbered &&
      !VariableOfNumber(game, *target.numbered, NumberOf(program, target.argument), resolved.code))
    return false;
  return !target.ofSeat || PlayerMayAct(game, resolved.seat);
}

bool SetAmount(Game& game, SeatId seat, BetId bet, double dollars) {
  return IsTableBet(bet) ? SetBet(game, seat, bet, dollars) : SetStack(game, seat, bet, dollars);
}

bool SetVariable(Game& game, const ResolvedTarget& target, const ScriptValue& value) {
  return target.code == 0 || target.write(game, target, value);
}

bool ReadTarget(Game& game, const PreparedProgram& program, const Reference& target,
                const ResolvedTarget& resolved, ScriptValue& value) {
  value.isText = IsCheckStackName(resolved.code);
  if (resolved.code == 0) {
    value.number = 0;
    return true;
  }
  if (value.isText) {
    value.text = game.table.seats[resolved.seat].CheckStackName[resolved.code - kFirstCheckStackName];
    return true;
  }
  if (IsTableBet(resolved.code) || IsCheckStack(resolved.code)) {
    value.number = game.table.BetAmount(resolved.seat, resolved.code).ToDouble();
    return true;
  }
  return ReadNumberReference(game, program, target, value.number);
}

}  // namespace tessaryn
