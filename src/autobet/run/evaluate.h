// Carrying out the instructions of a prepared program.
#pragma once

#include "autobet/run/operands.h"

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

}  // namespace tessaryn
