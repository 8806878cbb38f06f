// What the actions of the language do, as their rows name it.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct SeatScript;

// An action that has no list of targets, its arguments computed.
struct ActionInHand {
  Game& game;
  const PreparedProgram& program;
  const PreparedStatement& statement;

  SeatId Seat() const;
  const SeatScript& Script() const;
  std::string Text() const;
  double Number() const;
  // False, with ScriptError set.
  bool Fails(int code) const;
};

// What does an action: one of them, or none for a bet and a swap. Each returns false with ScriptError set.
ActionWork WorkOfAction(int code);

}  // namespace tessaryn
