// Playing an experiment: blocks of sessions on as many threads as one likes, taken in in the order of
// sessions, so that nothing of a result hangs on who played what when.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>

#include "lab/lab_state.h"
#include "lab/session_rows.h"

namespace tessaryn {

struct LabProgress {
  std::int64_t sessions = 0;  // in by now
  std::int64_t target = 0;    // the most
  std::int64_t rolls = 0;     // of all systems
  double widest = 0;          // dollars: half the width of the widest bounds of a mean
};

// Others who play: processes of the same build, on other machines maybe.
struct LabHelpers {
  int count = 0;
  int threads = 0;      // that each is asked to play on; 0: as it likes
  int threadsHere = 1;  // of the caller of RunLab, where nobody asks for others
  // Before the first session: the experiment that is played.
  std::function<void(const LabState& state, int threads)> begin;
  // Plays the sessions first <= k < last by PlayPiece, as the helper of this number from 0; each has a thread
  // of its own that calls this. When stop is set it may come back with fewer. The error, of a helper that is
  // lost, ends the run at once.
  std::function<std::string(int helper, SessionRange range, const std::atomic<bool>& stop, LabPiece& piece)>
      play;
};

// A table for each system, before its first session.
struct FreshTables {
  std::vector<std::unique_ptr<Game>> games;
  LabHost host;  // of these
};

struct LabRun {
  int threads = 1;
  const LabHelpers* helpers = nullptr;  // null: none
  std::string applicationFolder;
  std::string checkpoint;       // the experiment's file; empty: none
  SessionRows* rows = nullptr;  // null: nothing is kept of single sessions
  // Called several times a second by who called RunLab. False ends the run with what is known.
  std::function<bool(const LabProgress&)> progress;
  // Called as often, while nothing is taken in; it reads what is known, and may settle counts.
  std::function<void(LabState&)> look;
};

// Builds every system's table once, so that what is wrong is known before anything is written.
std::string CheckSystems(const Experiment& experiment, const std::string& applicationFolder,
                         LabProblem& problem);

// Goes on from where state stands, to its end or until it is told to stop: state.finished tells. Returns the
// error, empty for none; state is then what was known before it.
std::string RunLab(LabState& state, const LabRun& run);

// What a helper does: some sessions of the experiment of state, whatever else state knows. fresh is built at
// the first call, and serves the next of the same experiment. Of run threads, applicationFolder and progress
// count.
LabPiece PlayPiece(const LabState& state, SessionRange range, const LabRun& run, FreshTables& fresh);

}  // namespace tessaryn
