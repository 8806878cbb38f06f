// The reduction of a statement as it is told, on the token array itself: innermost bracket by innermost
// bracket, pass by pass, each result in place of the records that it came from. Slow and plain, to be held
// against the prepared form. It knows the CheckStacks and a handful of functions.
#pragma once

#include <string>
#include <vector>

#include "state/script_types.h"

namespace tessaryn {
struct Game;
}

namespace tessaryn::reduction_model {

// A record of the work array: a script token, or a value or list that records were reduced to.
struct Work {
  std::int32_t kind = 0;
  double value = 0;
  std::string text;           // of a string value
  std::vector<Work> members;  // of a list, with its qualifier's relation and value in front if it has one
  bool any = false;
  bool qualified = false;
};

struct Outcome {
  int error = 0;
  Work value;  // kind kTokenNumber or kTokenString
};

// The records begin to end of the script, which make up one expression.
Outcome Reduce(const Game& game, int seat, const CompiledScript& script, std::size_t begin, std::size_t end);

}  // namespace tessaryn::reduction_model
