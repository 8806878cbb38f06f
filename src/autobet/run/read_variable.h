// What a reference of a script gives, read from the table and its statistics.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct Game;

// The seat that a reference means: 0 the table, or nobody. With kAll it is 0. False with error 50 for a
// player(...) that names nobody.
bool PlayerOf(Game& game, const PreparedProgram& program, const Reference& reference, int& seat);
// The seat of a number or a name. False with error 50.
bool SeatOfOperand(Game& game, const PreparedProgram& program, Operand operand, int& seat);

// A variable or a function that reads as one. False with ScriptError set.
bool ReadNumberReference(Game& game, const PreparedProgram& program, const Reference& reference,
                         double& value);
bool ReadTextVariable(Game& game, const PreparedProgram& program, const Reference& reference,
                      std::string& text);

// The bet of a bet function and its number. False with the function's own error.
bool BetOfFunction(Game& game, int function, double number, int& bet);
// What a function as a target means: bet, 100 + n or 800 + n; 0 for a function that can't be set. False with
// its error for a number beyond its limits.
bool VariableOfFunction(Game& game, int function, double number, int& code);

}  // namespace tessaryn
