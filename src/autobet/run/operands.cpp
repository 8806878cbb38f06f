#include "autobet/run/operands.h"

#include "autobet/language/script_text.h"

namespace tessaryn {

bool TextsCompare(int relation, const std::string& left, const std::string& right) {
  return NumbersCompare(relation, left.compare(right), 0);
}

double NumberOf(const PreparedProgram& program, Operand operand) {
  const auto place = static_cast<std::size_t>(operand.place);
  return operand.text ? LeadingNumber(program.texts[place]) : program.numbers[place];
}

std::string TextOf(const PreparedProgram& program, Operand operand) {
  const auto place = static_cast<std::size_t>(operand.place);
  return operand.text ? program.texts[place] : GeneralNumber(program.numbers[place]);
}

bool MixedOperandsCompare(const PreparedProgram& program, int relation, Operand left, Operand right) {
  if (left.text && right.text)
    return TextsCompare(relation, program.texts[static_cast<std::size_t>(left.place)],
                        program.texts[static_cast<std::size_t>(right.place)]);
  return NumbersCompare(relation, NumberOf(program, left), NumberOf(program, right));
}

}  // namespace tessaryn
