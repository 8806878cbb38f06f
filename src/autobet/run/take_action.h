// The actions of the language that have no list of targets.
#pragma once

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct Game;

// The arguments are computed. False with ScriptError set.
bool TakeAction(Game& game, const PreparedProgram& program, const PreparedStatement& statement);

}  // namespace tessaryn
