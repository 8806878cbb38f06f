// Writing a target of a script.
#pragma once

#include <string>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

struct Game;

// A value to be written.
struct ScriptValue {
  bool isText = false;
  double number = 0;
  std::string text;

  double AsNumber() const;
  std::string AsText() const;
};

// A target with its player and its function's number looked up.
struct ResolvedTarget {
  int code = 0;  // a variable's; 0 what can't be set, and is passed over
  int seat = 0;
};

// False with ScriptError set. The tests of the player are those of a click at that seat.
bool ResolveTarget(Game& game, const PreparedProgram& program, const Reference& target,
                   ResolvedTarget& resolved);
bool PlayerMayAct(Game& game, int seat);
bool SetVariable(Game& game, const ResolvedTarget& target, const ScriptValue& value);
// The same for a bet or CheckStack of a seat that the script may act for.
bool SetAmount(Game& game, int seat, int bet, double dollars);
// What the target holds now.
bool ReadTarget(Game& game, const PreparedProgram& program, const Reference& target,
                const ResolvedTarget& resolved, ScriptValue& value);

}  // namespace tessaryn
