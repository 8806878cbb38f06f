// Carrying out the instructions of a prepared program.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct Game;

// Runs a stretch of the instructions. False, with ScriptError set, at the first that fails.
bool Evaluate(Game& game, PreparedProgram& program, CodeRange code);

// To be called behind what may take long, with AutoBet::Work raised by about a byte of text or a nanosecond:
// now and then the host has its turn. False when the run was stopped in it; what is in hand is then dropped.
inline constexpr std::size_t kWorkPerLook = 1'000'000;
bool GiveWay(Game& game);

// Whether all tests of a condition hold that is nothing but tests.
bool TestsHold(Game& game, const PreparedProgram& program, const PreparedStatement& condition);

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
