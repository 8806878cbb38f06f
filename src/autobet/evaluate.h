// Carrying out the instructions of a prepared program.
#pragma once

#include <string>

#include "autobet/prepared_program.h"

namespace tessaryn {

struct Game;

// Runs a stretch of the instructions. False, with ScriptError set, at the first that fails.
bool Evaluate(Game& game, PreparedProgram& program, CodeRange code);

// A comparison by its token kind.
bool NumbersCompare(int relation, double left, double right);
bool TextsCompare(int relation, const std::string& left, const std::string& right);
// By the rule of a comparison: two texts as texts, anything else as numbers.
bool OperandsCompare(const PreparedProgram& program, int relation, Operand left, Operand right);

double NumberOf(const PreparedProgram& program, Operand operand);
std::string TextOf(const PreparedProgram& program, Operand operand);

}  // namespace tessaryn
