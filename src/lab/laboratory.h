// Playing an experiment: blocks of sessions on as many threads as one likes, taken in in the order of
// sessions, so that nothing of a result hangs on who played what when.
#pragma once

#include <functional>
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

struct LabRun {
  int threads = 1;
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

}  // namespace tessaryn
