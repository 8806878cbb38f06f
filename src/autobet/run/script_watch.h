// What somebody who follows the runs of scripts sees: the last statements that were carried out, and how
// often each line was and how long that took. A game that is not watched runs as if there were no watch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

enum class StatementOutcome : std::uint8_t {
  kDone,   // an action, a jump, the mark of a block
  kTrue,   // a condition that held
  kFalse,  // one that didn't
  kError,  // dropped
};

struct TracedStatement {
  RollNumber roll = 0;  // dice thrown before it
  SeatId seat = 0;      // whose script it is; 0 a hot-key's
  int line = 0;         // 1-based
  int column = 0;       // from 0
  int end = -1;         // the column behind it; -1 the end of the line
  int error = 0;        // with kError its code
  StatementOutcome outcome = StatementOutcome::kDone;
};

struct LineProfile {
  std::int64_t count = 0;  // statements of the line that were carried out
  std::int64_t nanoseconds = 0;
};

struct ScriptWatch {
  // Set by who watches.
  std::size_t traceLength = 0;  // the last so many statements are kept; 0 none
  bool profile = false;
  // Written by the interpreter. The trace is a ring: traced statements were seen, the next goes to
  // traced % traceLength.
  std::vector<TracedStatement> trace;
  std::uint64_t traced = 0;
  std::vector<LineProfile> lines[kSeatRows];  // by line; 0 unused
};

// The runs of the game's scripts are noted in watch from now on; null ends it. The watch is the caller's, and
// outlives the game or is taken off it. Copies of the game are not watched. Requires that no script runs.
void WatchScripts(Game& game, ScriptWatch* watch);

// What the trace holds, the oldest first.
std::vector<TracedStatement> TraceInOrder(const ScriptWatch& watch);

// By the interpreter: a statement was carried out.
void NoteTraced(ScriptWatch& watch, const TracedStatement& statement, std::int64_t nanoseconds);

}  // namespace tessaryn
