// The functions of the language that are no references: lists, texts, numbers, questions.
#pragma once

#include <string>
#include <vector>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

// A call in hand, with its arguments at their places.
struct CallInHand {
  Game& game;
  const PreparedProgram& program;
  const PreparedCall& call;

  const std::vector<Operand>& Members() const { return call.arguments.members; }
  double Number(std::size_t i) const;
  std::string Text(std::size_t i) const;
  std::string Text(Operand operand) const;
  // False, with ScriptError set.
  bool Fails(int code) const;
};

// How the row of a function reads it: each returns false with ScriptError set. Null for any other function.
NumberFunction NumberFunctionOf(int code);
TextFunction TextFunctionOf(int code);

}  // namespace tessaryn
