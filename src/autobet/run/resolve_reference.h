// What a reference of a script means at the table as it stands, and what it gives.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

// The seat that a reference means: 0 the table, or nobody. With kAll it is 0. False with error 50 for a
// player(...) that names nobody.
bool PlayerOf(Game& game, const PreparedProgram& program, const Reference& reference, SeatId& seat);
// The seat of a number or a name. False with error 50.
bool SeatOfOperand(Game& game, const PreparedProgram& program, Operand operand, SeatId& seat);
// The variable of a number. False with the error that the row of the function names.
bool VariableOfNumber(Game& game, const NumberedVariables& numbered, double number, int& code);
// What a function's code leads to by a number; null for any other function.
const NumberedVariables* NumberedVariablesOf(int function);

// A variable or a function that reads as one. False with ScriptError set.
bool ReadNumberReference(Game& game, const PreparedProgram& program, const Reference& reference,
                         double& value);
bool ReadTextReference(Game& game, const PreparedProgram& program, const Reference& reference,
                       std::string& text);

}  // namespace tessaryn
