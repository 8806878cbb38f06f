#include "autobet/run/resolve_reference.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "autobet/language/language.h"
#include "autobet/language/roll_item_of.h"
#include "autobet/language/script_text.h"
#include "autobet/run/operands.h"
#include "autobet/run/read_bet.h"
#include "autobet/run/read_variable.h"
#include "autobet/run/script_errors.h"
#include "base/bet_catalogue.h"
#include "state/game.h"

namespace tessaryn {

bool SeatOfOperand(Game& game, const PreparedProgram& program, Operand operand, SeatId& seat) {
  if (!operand.text) {
    const double number = NumberOf(program, operand);
    if (number != std::floor(number) || !(number >= 1 && number <= kSeats))
      return ScriptFails(game, kErrorPlayer);
    seat = static_cast<int>(number);
    return true;
  }
  const std::string name = Lowered(Trimmed(program.texts[static_cast<std::size_t>(operand.place)]));
  for (SeatId other = 1; other <= kSeats && !name.empty(); ++other) {
    if (Lowered(Trimmed(game.table.seats[other].SeatName)) != name) continue;
    seat = other;
    return true;
  }
  return ScriptFails(game, kErrorPlayer);
}

bool PlayerOf(Game& game, const PreparedProgram& program, const Reference& reference, SeatId& seat) {
  const TableState& table = game.table;
  switch (reference.player) {
    case PlayerChoice::kSeat:
      seat = reference.seat;
      return true;
    case PlayerChoice::kAutobettor:
      seat = game.autobet.CurrentAutobettor;
      return true;
    case PlayerChoice::kShooter:
      seat = table.ShooterSeat;
      return true;
    case PlayerChoice::kLastShooter:
      seat = table.PreviousHandSeat;
      return true;
    case PlayerChoice::kOriginalShooter:
      seat = table.HandSeat;
      return true;
    case PlayerChoice::kSelected:
      seat = table.SelectedSeat;
      return true;
    case PlayerChoice::kComputed:
      return SeatOfOperand(game, program, reference.playerOperand, seat);
    default:
      seat = 0;
      return true;
  }
}

namespace {

// --- The numbers of functions.

template <std::size_t N>
int PlaceAmong(const int (&numbers)[N], double number) {
  const int* found = std::find(numbers, numbers + N, number);
  return found == numbers + N ? -1 : static_cast<int>(found - numbers);
}

constexpr int kBoxNumbers[] = {4, 5, 6, 8, 9, 10};
constexpr int kBigNumbers[] = {6, 8};
constexpr int kHardNumbers[] = {4, 6, 8, 10};

int BoxNumber(double number) { return PlaceAmong(kBoxNumbers, number); }
int BigNumber(double number) { return PlaceAmong(kBigNumbers, number); }
int HardNumber(double number) { return PlaceAmong(kHardNumbers, number); }

int Faces(double number) {
  int die1 = 0;
  int die2 = 0;
  const BetId bet = FacesOf(number, die1, die2) ? HopBet(die1, die2) : kNoBet;
  return bet == 0 ? -1 : bet - kHop13;
}

int StackNumber(double number) {
  const bool known = number == std::floor(number) && number >= 0 && number < kCheckStacks;
  return known ? static_cast<int>(number) : -1;
}

struct NumberedRow {
  int function;
  NumberedVariables numbered;
};

constexpr NumberedRow kNumberedRows[] = {
#define BET_FUNCTION(code, phrase, name, first, place, ...) {code, {first, place, code}},
#define STACK_FUNCTION(code, phrase, name, class, type, first, error, ...) \
  {code, {first, StackNumber, error}},
#include "autobet/language/words.inc"
};

// What a count's argument means. False with its error.
bool TakeCountedNumber(ReferenceForm form, double number, Question& question) {
  question.measure = number;
  if (form == ReferenceForm::kPointsByNumber)
    return BoxNumber(number) >= 0 || ScriptFails(question.game, kErrorPoints);
  question.item = RollItemOf(number);
  const bool known =
      question.item >= 0 && (form == ReferenceForm::kDiceByNumber || number == std::floor(number));
  return known || ScriptFails(question.game, kErrorRolls);
}

bool TakeNumber(const Reference& reference, double number, Question& question) {
  return reference.form == ReferenceForm::kNumbered
             ? VariableOfNumber(question.game, *reference.numbered, number, question.code)
             : TakeCountedNumber(reference.form, number, question);
}

double SumOfSeats(VariableReader read, Question question) {
  const TableState& table = question.game.table;
  double sum = 0;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    question.seat = table.Seated[i];
    sum += read(question);
  }
  return sum;
}

}  // namespace

const NumberedVariables* NumberedVariablesOf(int function) {
  for (const NumberedRow& row : kNumberedRows)
    if (row.function == function) return &row.numbered;
  return nullptr;
}

bool VariableOfNumber(Game& game, const NumberedVariables& numbered, double number, int& code) {
  const int place = numbered.place(number);
  code = numbered.first + place;
  return place >= 0 || ScriptFails(game, numbered.error);
}

bool ReadNumberReference(Game& game, const PreparedProgram& program, const Reference& reference,
                         double& value) {
  Question question{.game = game,
                    .code = reference.code,
                    .scope = reference.scope,
                    .metric = reference.metric,
                    .measure = reference.measure,
                    .item = reference.item};
  if (!PlayerOf(game, program, reference, question.seat)) return false;
  if (reference.form != ReferenceForm::kVariable &&
      !TakeNumber(reference, NumberOf(program, reference.argument), question))
    return false;
  if (reference.read == nullptr) return ReadBet(question, value);
  value = reference.player == PlayerChoice::kAll ? SumOfSeats(reference.read, question)
                                                 : reference.read(question);
  return true;
}

bool ReadTextReference(Game& game, const PreparedProgram& program, const Reference& reference,
                       std::string& text) {
  SeatId seat = 0;
  int code = reference.code;
  if (!PlayerOf(game, program, reference, seat)) return false;
  if (reference.form == ReferenceForm::kNumbered &&
      !VariableOfNumber(game, *reference.numbered, NumberOf(program, reference.argument), code))
    return false;
  text = IsCheckStackName(code) ? game.table.seats[seat].CheckStackName[code - kFirstCheckStackName]
                                : std::string();
  return true;
}

}  // namespace tessaryn
