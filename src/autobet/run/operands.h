// The operands of a prepared program: their values and their comparison.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

// A comparison by its token kind.
template <typename Number>
bool NumbersCompare(int relation, Number left, Number right) {
  switch (relation) {
    case kTokenEqual:
      return left == right;
    case kTokenNotEqual:
      return left != right;
    case kTokenLess:
      return left < right;
    case kTokenGreater:
      return left > right;
    case kTokenLessEqual:
      return left <= right;
    default:
      return left >= right;
  }
}
bool TextsCompare(int relation, const std::string& left, const std::string& right);
// By the rule of a comparison: two texts as texts, anything else as numbers.
bool MixedOperandsCompare(const PreparedProgram& program, int relation, Operand left, Operand right);
inline bool OperandsCompare(const PreparedProgram& program, int relation, Operand left, Operand right) {
  if (left.text || right.text) return MixedOperandsCompare(program, relation, left, right);
  return NumbersCompare(relation, program.numbers[static_cast<std::size_t>(left.place)],
                        program.numbers[static_cast<std::size_t>(right.place)]);
}

double NumberOf(const PreparedProgram& program, Operand operand);
std::string TextOf(const PreparedProgram& program, Operand operand);

}  // namespace tessaryn
