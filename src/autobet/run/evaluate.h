// Carrying out the instructions of a prepared program.
#pragma once

#include "autobet/run/operands.h"

namespace tessaryn {

struct Game;

// Runs a stretch of the instructions. False, with ScriptError set, at the first that fails.
bool Evaluate(Game& game, PreparedProgram& program, CodeRange code);

// Whether all tests of a condition hold that is nothing but tests.
bool TestsHold(Game& game, const PreparedProgram& program, const PreparedStatement& condition);

}  // namespace tessaryn
