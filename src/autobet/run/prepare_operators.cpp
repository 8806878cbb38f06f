#include "autobet/run/prepare_operators.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "autobet/run/fuse.h"

namespace tessaryn {

Operand ValueOf(ProgramCode& code, const Element& element) {
  return element.part == Part::kValue ? element.operand : code.NumberPlace(0);
}

namespace {

using Index = std::size_t;

bool IsOperator(const Element& element, int kind) {
  return element.part == Part::kOperator && element.code == kind;
}

Element Value(Operand operand) { return {Part::kValue, operand, 0, 0}; }

Operand Negated(ProgramCode& code, Operand operand) {
  return code.Emit(Op::kNegate, code.AsNumber(operand).place, 0, false);
}

void Powers(ProgramCode& code, Elements& elements) {
  Elements done;
  for (Index i = 0; i < elements.size(); ++i) {
    if (!IsOperator(elements[i], kTokenPower) || done.empty()) {
      done.push_back(elements[i]);
      continue;
    }
    bool negative = false;
    while (i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenMinus)) {
      negative = !negative;
      ++i;
    }
    if (++i >= elements.size()) break;
    Operand right = code.AsNumber(ValueOf(code, elements[i]));
    if (negative) right = Negated(code, right);
    const Operand left = code.AsNumber(ValueOf(code, done.back()));
    done.back() = Value(code.Emit(Op::kPower, left.place, right.place, false));
  }
  elements = std::move(done);
}

void Signs(ProgramCode& code, Elements& elements) {
  Elements done;
  for (Index i = 0; i < elements.size(); ++i) {
    const bool sign =
        IsOperator(elements[i], kTokenMinus) && (done.empty() || done.back().part != Part::kValue);
    if (!sign) {
      done.push_back(elements[i]);
      continue;
    }
    bool negative = true;
    while (i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenMinus)) {
      negative = !negative;
      ++i;
    }
    if (++i >= elements.size()) break;
    done.push_back(negative ? Value(Negated(code, ValueOf(code, elements[i]))) : elements[i]);
  }
  elements = std::move(done);
}

void Nots(ProgramCode& code, Elements& elements) {
  Elements done;
  for (Index i = 0; i < elements.size(); ++i) {
    if (!IsOperator(elements[i], kTokenNot)) {
      done.push_back(elements[i]);
      continue;
    }
    int count = 1;
    for (; i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenNot); ++i) ++count;
    if (++i >= elements.size()) break;
    Operand operand = code.AsNumber(ValueOf(code, elements[i]));
    for (; count > 0; --count) operand = code.Emit(Op::kNot, operand.place, 0, false);
    done.push_back(Value(operand));
  }
  elements = std::move(done);
}

std::int32_t ListOf(ProgramCode& code, const Element& element) {
  if (element.part == Part::kList) return element.code;
  PreparedList single;
  single.members.push_back(ValueOf(code, element));
  return code.AddList(std::move(single));
}

Operand Compare(ProgramCode& code, int relation, const Element& left, const Element& right) {
  if (left.part == Part::kList && right.part == Part::kValue) {
    const PreparedList& list = code.Program().lists[static_cast<std::size_t>(left.code)];
    if (Operand result; CompareMembers(code, relation, list, right.operand, result)) return result;
  }
  if (left.part == Part::kList || right.part == Part::kList) {
    const std::int32_t a = ListOf(code, left);
    return code.Emit(Op::kCompareLists, a, ListOf(code, right), false, relation);
  }
  const Operand a = ValueOf(code, left);
  return CompareValues(code, relation, a, ValueOf(code, right));
}

struct ArithmeticRow {
  int kind;
  Op op;
};

constexpr ArithmeticRow kArithmetic[] = {
    {kTokenMultiply, Op::kMultiply}, {kTokenDivide, Op::kDivide}, {kTokenIntegerDivide, Op::kIntegerDivide},
    {kTokenModulo, Op::kModulo},     {kTokenPlus, Op::kAdd},      {kTokenMinus, Op::kSubtract},
    {kTokenAnd, Op::kAnd},           {kTokenOr, Op::kOr},         {kTokenXor, Op::kXor},
};

Op ArithmeticOf(int kind) {
  const auto* row = std::find_if(std::begin(kArithmetic), std::end(kArithmetic),
                                 [kind](const ArithmeticRow& one) { return one.kind == kind; });
  return row->op;
}

Operand Combine(ProgramCode& code, int kind, const Element& left, const Element& right) {
  if (IsRelation(kind)) return Compare(code, kind, left, right);
  if (kind == kTokenJoin) {
    const Operand a = code.AsText(ValueOf(code, left));
    const Operand b = code.AsText(ValueOf(code, right));
    return code.Emit(Op::kJoin, a.place, b.place, true);
  }
  const Operand a = code.AsNumber(ValueOf(code, left));
  const Operand b = code.AsNumber(ValueOf(code, right));
  return code.Emit(ArithmeticOf(kind), a.place, b.place, false);
}

void Binary(ProgramCode& code, Elements& elements, int first, int last) {
  const auto belongs = [first, last](const Element& element) {
    return element.part == Part::kOperator && element.code >= first && element.code <= last;
  };
  if (std::none_of(elements.begin(), elements.end(), belongs)) return;
  Elements done;
  for (Index i = 0; i < elements.size(); ++i) {
    if (!belongs(elements[i]) || done.empty() || i + 1 == elements.size()) {
      done.push_back(elements[i]);
      continue;
    }
    done.back() = Value(Combine(code, elements[i].code, done.back(), elements[i + 1]));
    ++i;
  }
  elements = std::move(done);
}

}  // namespace

Element ReduceOperators(ProgramCode& code, Elements elements) {
  Powers(code, elements);
  Signs(code, elements);
  Binary(code, elements, kTokenMultiply, kTokenDivide);
  Binary(code, elements, kTokenIntegerDivide, kTokenModulo);
  Binary(code, elements, kTokenPlus, kTokenMinus);
  Binary(code, elements, kTokenJoin, kTokenJoin);
  Binary(code, elements, kTokenEqual, kTokenGreaterEqual);
  Nots(code, elements);
  Binary(code, elements, kTokenAnd, kTokenXor);
  return elements.empty() ? Value(code.NumberPlace(0)) : elements.front();
}

}  // namespace tessaryn
