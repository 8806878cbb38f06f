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
  SeatId seat = 0;
  VariableWriter write = nullptr;
};

// False with ScriptError set. The tests of the player are those of a click at that seat.
bool ResolveTarget(Game& game, const PreparedProgram& program, const Reference& target,
                   ResolvedTarget& resolved);
bool PlayerMayAct(Game& game, SeatId seat);
// How a variable is set; null for one that is only read. Bets and CheckStacks are set alike.
VariableWriter WriterOfVariable(int code);
bool SetVariable(Game& game, const ResolvedTarget& target, const ScriptValue& value);
// The same for a bet or CheckStack of a seat that the script may act for.
bool SetAmount(Game& game, SeatId seat, BetId bet, double dollars);
// Seeds the generator. False with error 905 for what is no seed.
bool SeedFromScript(Game& game, double number);
// What the target holds now.
bool ReadTarget(Game& game, const PreparedProgram& program, const Reference& target,
                const ResolvedTarget& resolved, ScriptValue& value);

}  // namespace tessaryn
