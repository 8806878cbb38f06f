// The functions of the language that are no references: lists, texts, numbers, questions.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct Game;

// Each returns false with ScriptError set.
bool ReadNumberFunction(Game& game, const PreparedProgram& program, const PreparedCall& call, double& value);
bool ReadTextFunction(Game& game, const PreparedProgram& program, const PreparedCall& call,
                      std::string& text);

}  // namespace tessaryn
