#include "autobet/run/fuse.h"

#include <cmath>

#include "autobet/language/language.h"
#include "autobet/run/read_variable.h"
#include "base/table_types.h"

namespace tessaryn {
namespace {

using Index = std::size_t;

constexpr ScopeId kSessionScope = 2;

// --- Reads.

bool SameSeat(const Reference& a, const Reference& b) {
  return a.player == b.player && a.seat == b.seat && a.player != PlayerChoice::kComputed;
}

// The bets of a group stand side by side, as do the places that they are read into: one step reads them.
Operand ReadBetMoney(ProgramCode& code, const Reference& reference, std::int32_t place, bool inList) {
  const Operand to = code.Emit(Op::kBetMoney, place, reference.code, false);
  if (!inList || code.StretchBegin() + 2 > code.End()) return to;
  Instruction& before = code.Step(code.End() - 2);
  const int count = before.op == Op::kBetsMoney ? before.relation : before.op == Op::kBetMoney ? 1 : 0;
  const bool joins = count > 0 && count < kBets && before.b + count == reference.code &&
                     before.to + count == to.place &&
                     SameSeat(code.Program().references[static_cast<Index>(before.a)], reference);
  if (!joins) return to;
  before.op = Op::kBetsMoney;
  before.relation = static_cast<std::uint8_t>(count + 1);
  code.TakeOut(code.End() - 1);
  return to;
}

struct VariableStep {
  VariableReader read;
  Op op;
};

constexpr VariableStep kVariableSteps[] = {
    {Point, Op::kPoint}, {PointIsOff, Op::kComeOut}, {PointIsOn, Op::kPointOn}};

bool IsBetMoney(const Reference& reference) {
  return reference.metric <= kMetricWagered && reference.measure == kMeasureCurrentMoney;
}

bool IsLastRollMoney(const Reference& reference) {
  return reference.scope == kSessionScope &&
         (reference.metric == kMetricWins || reference.metric == kMetricLosses) &&
         reference.measure == kMeasureLastRollMoney;
}

// --- What was read.

bool ReadsMoney(Op op) {
  return op == Op::kBetMoney || op == Op::kStack || op == Op::kLastRoll || op == Op::kPoint;
}

// Steps that neither fail nor do anything but fill their place.
bool IsPure(const Instruction& step) {
  return ReadsMoney(step.op) || step.op == Op::kCompareMoney || step.op == Op::kCompare ||
         step.op == Op::kComeOut || step.op == Op::kPointOn || step.op == Op::kBetsMoney ||
         step.op == Op::kCountBets || step.op == Op::kTestBets;
}

// The step of the stretch in hand that filled a place, with nothing but pure steps behind it, so that it may
// as well be taken now; -1 for none.
std::int32_t StepInto(const ProgramCode& code, Operand operand) {
  for (std::int32_t i = code.End() - 1; i >= code.StretchBegin(); --i) {
    if (code.Step(i).to == operand.place) return i;
    if (!IsPure(code.Step(i))) return -1;
  }
  return -1;
}

// The step that read money into a place; -1 for none.
std::int32_t MoneyReadInto(const ProgramCode& code, Operand operand) {
  const std::int32_t at = StepInto(code, operand);
  return at >= 0 && ReadsMoney(code.Step(at).op) ? at : -1;
}

// --- Tests of money.

std::int64_t RawAmount(double dollars) { return static_cast<std::int64_t>(dollars * 10'000.0); }

bool IsLiteralAmount(const ProgramCode& code, Operand operand) {
  if (operand.text || !code.IsLiteral(operand)) return false;
  constexpr double kMost = 1e9;
  const double value = code.LiteralValue(operand);
  const double raw = value * 10'000.0;
  return std::fabs(value) < kMost && raw == std::floor(raw) && raw / 10'000.0 == value;
}

// Whether the left side is money and the right side a literal that is an amount.
bool TestsMoney(const ProgramCode& code, Operand left, Operand right) {
  return IsLiteralAmount(code, right) && MoneyReadInto(code, left) >= 0;
}

Operand CompareMoney(ProgramCode& code, int relation, Operand money, double dollars) {
  const Instruction read = code.TakeOut(MoneyReadInto(code, money));
  const Tested tested = read.op == Op::kLastRoll ? Tested::kLastRoll
                        : read.op == Op::kPoint  ? Tested::kPoint
                                                 : Tested::kAmount;
  PreparedProgram& program = code.Program();
  program.moneyTests.push_back({tested, read.a, read.b, RawAmount(dollars)});
  const auto test = static_cast<std::int32_t>(program.moneyTests.size() - 1);
  program.instructions.push_back(
      {Op::kCompareMoney, static_cast<std::uint8_t>(relation - kTokenEqual), read.to, test, 0});
  return {read.to, false};
}

// --- Tests of bets side by side.

// Whether one step reads the list's members and no other bets, to be compared with a literal amount.
bool CountsBets(const ProgramCode& code, const PreparedList& list, Operand literal) {
  if (list.members.empty() || !IsLiteralAmount(code, literal)) return false;
  const std::int32_t at = StepInto(code, list.members[0]);
  if (at < 0 || code.Step(at).op != Op::kBetsMoney || list.members.size() != code.Step(at).relation)
    return false;
  for (Index i = 0; i < list.members.size(); ++i)
    if (list.members[i].text || list.members[i].place != code.Step(at).to + static_cast<std::int32_t>(i))
      return false;
  return true;
}

// Counts the bets that pass instead of reading them all.
Operand CountBets(ProgramCode& code, const PreparedList& list, int relation, Operand literal) {
  const Instruction read = code.TakeOut(StepInto(code, list.members[0]));
  PreparedProgram& program = code.Program();
  program.betCounts.push_back({.reference = read.a,
                               .first = read.b,
                               .bets = read.relation,
                               .range = BetRange(read.b, read.b + read.relation - 1),
                               .relation = static_cast<std::uint8_t>(relation - kTokenEqual),
                               .raw = RawAmount(code.LiteralValue(literal))});
  const auto place = static_cast<std::int32_t>(program.betCounts.size() - 1);
  program.instructions.push_back({Op::kCountBets, 0, read.to, place, 0});
  return {read.to, false};
}

// Whether the left side is a number of bets and the right side a literal.
bool TestsBets(const ProgramCode& code, Operand left, Operand right) {
  const std::int32_t at = StepInto(code, left);
  return at >= 0 && code.Step(at).op == Op::kCountBets && code.IsLiteral(right);
}

// The number and its comparison in one step.
Operand TestBets(ProgramCode& code, int relation, Operand number, double wanted) {
  Instruction counted = code.TakeOut(StepInto(code, number));
  code.Program().betCounts[static_cast<Index>(counted.a)].wanted = wanted;
  counted.op = Op::kTestBets;
  counted.relation = static_cast<std::uint8_t>(relation - kTokenEqual);
  code.Program().instructions.push_back(counted);
  return number;
}

bool IsTest(const PreparedProgram& program, const Instruction& step) {
  if (step.op != Op::kTestBets)
    return step.op == Op::kCompareMoney || step.op == Op::kComeOut || step.op == Op::kPointOn;
  const BetCount& count = program.betCounts[static_cast<Index>(step.a)];
  const PlayerChoice player = program.references[static_cast<Index>(count.reference)].player;
  // A test that is passed over must be one that can't fail.
  return player == PlayerChoice::kAutobettor || player == PlayerChoice::kSeat;
}

}  // namespace

Operand ReadReference(ProgramCode& code, const Reference& reference, bool inList) {
  const std::int32_t place = code.AddReference(reference);
  const int variable = reference.code;
  const bool plain = reference.form == ReferenceForm::kVariable;
  if (plain)
    for (const VariableStep& step : kVariableSteps)
      if (reference.read == step.read) return code.Emit(step.op, 0, 0, false);
  if (plain && reference.player != PlayerChoice::kAll) {
    if (IsTableBet(variable) && IsBetMoney(reference)) return ReadBetMoney(code, reference, place, inList);
    if (IsCheckStack(variable)) return code.Emit(Op::kStack, place, variable, false);
    if (IsTableBet(variable) && IsLastRollMoney(reference))
      return code.Emit(Op::kLastRoll, place, variable, false);
  }
  return code.Emit(reference.text ? Op::kVariableText : Op::kVariable, place, 0, reference.text);
}

Operand CompareValues(ProgramCode& code, int relation, Operand left, Operand right) {
  if (left.text && right.text) return code.Emit(Op::kCompareTexts, left.place, right.place, false, relation);
  if (!left.text && !right.text) {
    if (TestsMoney(code, left, right)) return CompareMoney(code, relation, left, code.LiteralValue(right));
    if (TestsBets(code, left, right)) return TestBets(code, relation, left, code.LiteralValue(right));
  }
  const std::int32_t number = code.AsNumber(left).place;
  return code.Emit(Op::kCompare, number, code.AsNumber(right).place, false, relation);
}

bool CountMembers(ProgramCode& code, const PreparedList& list, Operand& result) {
  if (!list.qualified || !CountsBets(code, list, list.qualifier)) return false;
  result = CountBets(code, list, list.relation, list.qualifier);
  return true;
}

bool CompareMembers(ProgramCode& code, int relation, const PreparedList& list, Operand right,
                    Operand& result) {
  if (list.qualified || !CountsBets(code, list, right)) return false;
  // any: at least one passes; all: every one does.
  const double wanted = list.any ? 1 : static_cast<double>(list.members.size());
  result = TestBets(code, kTokenGreaterEqual, CountBets(code, list, relation, right), wanted);
  return true;
}

// Every test leads into the one result, so tests and one AND fewer are all that is joined.
std::int32_t JoinedTests(const ProgramCode& code, const PreparedStatement& statement) {
  const auto count = code.End() - statement.value.begin;
  if (count % 2 == 0) return 0;
  const std::int32_t tests = (count + 1) / 2;
  for (std::int32_t i = 0; i < count; ++i) {
    const Instruction& step = code.Step(statement.value.begin + i);
    if (i < tests ? !IsTest(code.Program(), step) : step.op != Op::kAnd) return 0;
  }
  return tests;
}

std::int32_t OwnTarget(const ProgramCode& code, const PreparedStatement& statement, SeatId owner) {
  if (statement.operand.text || statement.targets.end - statement.targets.begin != 1) return 0;
  const TargetItem& item = code.Program().targets[static_cast<Index>(statement.targets.begin)];
  const Reference& target = item.target;
  const bool ownPlayer = target.player == PlayerChoice::kAutobettor ||
                         (target.player == PlayerChoice::kSeat && target.seat == owner);
  const bool plain = !item.isQualifier && item.qualifier < 0 && item.code.begin == item.code.end &&
                     target.form == ReferenceForm::kVariable;
  return ownPlayer && plain && (IsTableBet(target.code) || IsCheckStack(target.code)) ? target.code : 0;
}

}  // namespace tessaryn
