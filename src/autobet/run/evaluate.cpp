#include "autobet/run/evaluate.h"

#include <cmath>

#include "autobet/language/script_text.h"
#include "autobet/run/give_way.h"
#include "autobet/run/read_bet.h"
#include "autobet/run/read_function.h"
#include "autobet/run/resolve_reference.h"
#include "autobet/run/script_errors.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr double kTrue = -1;
// More than this no script needs for its texts at one time.
constexpr std::size_t kMostTextRoom = 256u << 20;

// Visits the members that pass the list's qualifier until visit says that the answer is settled.
template <typename Visit>
bool AnyMember(const PreparedProgram& program, const PreparedList& list, Visit&& visit) {
  for (const Operand member : list.members) {
    if (list.qualified && !OperandsCompare(program, list.relation, member, list.qualifier)) continue;
    if (visit(member)) return true;
  }
  return false;
}

// any: some member does; all: none doesn't.
template <typename Test>
bool ListHolds(const PreparedProgram& program, const PreparedList& list, Test&& test) {
  if (list.any) return AnyMember(program, list, test);
  return !AnyMember(program, list, [&](Operand member) { return !test(member); });
}

// False when the run was stopped in it.
bool ListsCompare(Game& game, const PreparedProgram& program, int relation, const PreparedList& left,
                  const PreparedList& right, bool& holds) {
  bool goesOn = true;
  const auto pairHolds = [&](Operand a, Operand b) {
    if (a.text && goesOn) {
      game.autobet.Work += program.texts[static_cast<std::size_t>(a.place)].size();
      goesOn = GiveWay(game);
    }
    return goesOn && OperandsCompare(program, relation, a, b);
  };
  holds = ListHolds(program, left, [&](Operand a) {
    game.autobet.Work += right.members.size();
    goesOn = goesOn && GiveWay(game);
    return goesOn && ListHolds(program, right, [&](Operand b) { return pairHolds(a, b); });
  });
  return goesOn;
}

bool Finite(Game& game, double value) { return std::isfinite(value) || ScriptFaults(game, kNumberOverflow); }

bool DivideWhole(Game& game, const Instruction& step, double a, double b, double& result) {
  const double divisor = std::nearbyint(b);
  if (divisor == 0) return ScriptFails(game, kErrorDivision);
  const double dividend = std::nearbyint(a);
  result = step.op == Op::kModulo ? std::fmod(dividend, divisor) : std::trunc(dividend / divisor);
  return Finite(game, result);
}

bool AsInteger(Game& game, double value, std::int32_t& result) {
  if (value >= -2147483648.0 && value <= 2147483647.0) {
    result = static_cast<std::int32_t>(value);
    if (result == value) return true;
  }
  const double whole = std::nearbyint(value);
  if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) return ScriptFaults(game, kNumberOverflow);
  result = static_cast<std::int32_t>(whole);
  return true;
}

bool CombineBits(Game& game, const Instruction& step, double left, double right, double& result) {
  std::int32_t a = 0;
  std::int32_t b = 0;
  if (!AsInteger(game, left, a) || !AsInteger(game, right, b)) return false;
  result = step.op == Op::kAnd ? a & b : step.op == Op::kOr ? a | b : a ^ b;
  return true;
}

bool Join(Game& game, PreparedProgram& program, const Instruction& step) {
  const std::string& left = program.texts[static_cast<std::size_t>(step.a)];
  const std::string& right = program.texts[static_cast<std::size_t>(step.b)];
  if (left.size() + right.size() > kLongestText) return ScriptFaults(game, kTextTooLong);
  std::string& to = program.texts[static_cast<std::size_t>(step.to)];
  to.assign(left);
  to.append(right);
  return true;
}

// The steps that begin with a text or end in one: see TextStep.
bool TakeTextStep(Game& game, PreparedProgram& program, const Instruction& step) {
  const auto to = static_cast<std::size_t>(step.to);
  const auto a = static_cast<std::size_t>(step.a);
  switch (step.op) {
    case Op::kNumberOf:
      program.numbers[to] = LeadingNumber(program.texts[a]);
      game.autobet.Work += program.texts[a].size();
      return true;
    case Op::kTextOf:
      program.texts[to] = GeneralNumber(program.numbers[a]);
      return true;
    case Op::kJoin:
      return Join(game, program, step);
    case Op::kCompareTexts: {
      const bool holds = TextsCompare(step.relation + kTokenEqual, program.texts[a],
                                      program.texts[static_cast<std::size_t>(step.b)]);
      program.numbers[to] = holds ? kTrue : 0;
      game.autobet.Work += program.texts[a].size();
      return true;
    }
    case Op::kCompareLists: {
      bool holds = false;
      if (!ListsCompare(game, program, step.relation + kTokenEqual, program.lists[a],
                        program.lists[static_cast<std::size_t>(step.b)], holds))
        return false;
      program.numbers[to] = holds ? kTrue : 0;
      return true;
    }
    case Op::kVariableText:
      return ReadTextReference(game, program, program.references[a], program.texts[to]);
    case Op::kFunctionText:
      return program.calls[a].readText({game, program, program.calls[a]}, program.texts[to]);
    case Op::kDateText:
      program.texts[to] = game.host->DateText();
      return true;
    default:
      program.texts[to] = game.host->TimeText();
      return true;
  }
}

constexpr bool GivesText(Op op) {
  return op == Op::kTextOf || op == Op::kJoin || op == Op::kVariableText || op == Op::kFunctionText;
}

// The same, with the room for texts and the time watched.
bool TextStep(Game& game, PreparedProgram& program, const Instruction& step) {
  if (!GivesText(step.op)) return TakeTextStep(game, program, step) && GiveWay(game);
  std::string& to = program.texts[static_cast<std::size_t>(step.to)];
  const std::size_t room = to.capacity();
  const bool taken = TakeTextStep(game, program, step);
  game.autobet.Work += to.size();
  program.textRoom += to.capacity() - room;
  if (program.textRoom <= kMostTextRoom) return taken && GiveWay(game);
  program.textRoom -= to.capacity();
  std::string().swap(to);  // its room goes as well
  return ScriptFaults(game, kTextTooLong);
}

bool SeatOf(Game& game, const PreparedProgram& program, const Reference& reference, SeatId& seat) {
  if (reference.player == PlayerChoice::kAutobettor) {
    seat = game.autobet.CurrentAutobettor;
    return true;
  }
  seat = reference.seat;
  return reference.player == PlayerChoice::kSeat || PlayerOf(game, program, reference, seat);
}

// What each relation accepts, by its place behind kTokenEqual.
constexpr unsigned kLess = 1;
constexpr unsigned kEqual = 2;
constexpr unsigned kGreater = 4;
constexpr unsigned kAccepted[] = {kEqual,   kLess | kGreater, kLess,
                                  kGreater, kLess | kEqual,   kGreater | kEqual};

// Which of the three it is: without a branch, since the dice decide which and no machine foresees it.
unsigned OrderOf(std::int64_t left, std::int64_t right) {
  return kLess << ((left > right) - (left < right) + 1);
}

int BetsThatPass(const TableState& table, SeatId seat, const BetCount& count) {
  const unsigned accepted = kAccepted[count.relation];
  if (count.raw == 0) {
    // No amount lies below nothing, and the table keeps which bets are up.
    const int up = (table.seats[seat].SeatBets & count.range).Size();
    return ((accepted & kGreater) != 0 ? up : 0) + ((accepted & kEqual) != 0 ? count.bets - up : 0);
  }
  int passing = 0;
  for (int i = 0; i < count.bets; ++i) {
    const std::int64_t amount = table.BetAmount(seat, count.first + i).raw;
    passing += (accepted & OrderOf(amount, count.raw)) != 0 ? 1 : 0;
  }
  return passing;
}

bool CountBets(Game& game, const PreparedProgram& program, const Instruction& step, double& result) {
  const BetCount& count = program.betCounts[static_cast<std::size_t>(step.a)];
  SeatId seat = 0;
  if (!SeatOf(game, program, program.references[static_cast<std::size_t>(count.reference)], seat))
    return false;
  result = BetsThatPass(game.table, seat, count);
  if (step.op == Op::kTestBets)
    result = NumbersCompare(step.relation + kTokenEqual, result, count.wanted) ? kTrue : 0;
  return true;
}

inline bool TestMoney(Game& game, const PreparedProgram& program, const Instruction& step, double& result) {
  const MoneyTest& test = program.moneyTests[static_cast<std::size_t>(step.a)];
  std::int64_t money = game.table.Point * Currency::kPerDollar;
  if (test.tested != Tested::kPoint) {
    const Reference& reference = program.references[static_cast<std::size_t>(test.reference)];
    SeatId seat = 0;
    if (!SeatOf(game, program, reference, seat)) return false;
    money = test.tested == Tested::kAmount ? game.table.BetAmount(seat, test.bet).raw
                                           : SessionLastRoll(game, reference.metric, seat, test.bet).raw;
  }
  result = (kAccepted[step.relation] & OrderOf(money, test.raw)) != 0 ? kTrue : 0;
  return true;
}

// Most bets are not up, and a division costs more than a look.
double Dollars(Currency money) { return money.raw == 0 ? 0 : money.ToDouble(); }

// A bet or CheckStack.
bool ReadMoney(Game& game, const PreparedProgram& program, const Instruction& step, double& result) {
  SeatId seat = 0;
  if (!SeatOf(game, program, program.references[static_cast<std::size_t>(step.a)], seat)) return false;
  result = Dollars(game.table.BetAmount(seat, step.b));
  return true;
}

bool ReadBets(Game& game, PreparedProgram& program, const Instruction& step) {
  SeatId seat = 0;
  if (!SeatOf(game, program, program.references[static_cast<std::size_t>(step.a)], seat)) return false;
  double* to = &program.numbers[static_cast<std::size_t>(step.to)];
  for (int i = 0; i < step.relation; ++i) to[i] = Dollars(game.table.BetAmount(seat, step.b + i));
  return true;
}

// The steps that look at the table.
bool ReadStep(Game& game, PreparedProgram& program, const Instruction& step, double& result) {
  const auto a = static_cast<std::size_t>(step.a);
  if (step.op == Op::kFunction) {
    result = 0;
    return program.calls[a].readNumber({game, program, program.calls[a]}, result) && GiveWay(game);
  }
  const Reference& reference = program.references[a];
  if (step.op == Op::kVariable) return ReadNumberReference(game, program, reference, result);
  SeatId seat = 0;
  if (!SeatOf(game, program, reference, seat)) return false;
  result = Dollars(SessionLastRoll(game, reference.metric, seat, step.b));
  return true;
}

}  // namespace

bool TestsHold(Game& game, const PreparedProgram& program, const PreparedStatement& condition) {
  const Instruction* step = program.instructions.data() + condition.value.begin;
  for (const Instruction* const end = step + condition.tests; step != end; ++step) {
    double holds = 0;
    if (step->op == Op::kCompareMoney) {
      if (!TestMoney(game, program, *step, holds) || holds == 0) return false;
    } else if (step->op == Op::kTestBets) {
      if (!CountBets(game, program, *step, holds) || holds == 0) return false;
    } else if ((game.table.Point == 0) != (step->op == Op::kComeOut)) {
      return false;
    }
  }
  return true;
}

bool Evaluate(Game& game, PreparedProgram& program, CodeRange code) {
  double* numbers = program.numbers.data();
  const Instruction* const end = program.instructions.data() + code.end;
  for (const Instruction* step = program.instructions.data() + code.begin; step != end; ++step) {
    double& to = numbers[step->to];
    switch (step->op) {
      case Op::kNegate:
        to = -numbers[step->a];
        break;
      case Op::kPower:
        to = std::pow(numbers[step->a], numbers[step->b]);
        if (!Finite(game, to)) return false;
        break;
      case Op::kMultiply:
        to = numbers[step->a] * numbers[step->b];
        if (!Finite(game, to)) return false;
        break;
      case Op::kDivide:
        if (numbers[step->b] == 0) return ScriptFails(game, kErrorDivision);
        to = numbers[step->a] / numbers[step->b];
        if (!Finite(game, to)) return false;
        break;
      case Op::kIntegerDivide:
      case Op::kModulo:
        if (!DivideWhole(game, *step, numbers[step->a], numbers[step->b], to)) return false;
        break;
      case Op::kAdd:
        to = numbers[step->a] + numbers[step->b];
        if (!Finite(game, to)) return false;
        break;
      case Op::kSubtract:
        to = numbers[step->a] - numbers[step->b];
        if (!Finite(game, to)) return false;
        break;
      case Op::kNot:
        to = -std::trunc(numbers[step->a]) - 1;
        break;
      case Op::kAnd:
      case Op::kOr:
      case Op::kXor:
        if (!CombineBits(game, *step, numbers[step->a], numbers[step->b], to)) return false;
        break;
      case Op::kCompare:
        to = NumbersCompare(step->relation + kTokenEqual, numbers[step->a], numbers[step->b]) ? kTrue : 0;
        break;
      case Op::kBetsMoney:
        if (!ReadBets(game, program, *step)) return false;
        break;
      case Op::kCompareMoney:
        if (!TestMoney(game, program, *step, to)) return false;
        break;
      case Op::kCountBets:
      case Op::kTestBets:
        if (!CountBets(game, program, *step, to)) return false;
        break;
      case Op::kPoint:
        to = game.table.Point;
        break;
      case Op::kComeOut:
        to = game.table.Point == 0 ? kTrue : 0;
        break;
      case Op::kPointOn:
        to = game.table.Point != 0 ? kTrue : 0;
        break;
      case Op::kBetMoney:
      case Op::kStack:
        if (!ReadMoney(game, program, *step, to)) return false;
        break;
      case Op::kLastRoll:
      case Op::kVariable:
      case Op::kFunction:
        if (!ReadStep(game, program, *step, to)) return false;
        break;
      default:
        if (!TextStep(game, program, *step)) return false;
        break;
    }
  }
  return true;
}

}  // namespace tessaryn
