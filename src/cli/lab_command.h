// What the command "lab" does, in its steps: also for who asks for an experiment in another way.
#pragma once

#include "cli/lab_options.h"
#include "lab/laboratory.h"

namespace tessaryn::cli {

// Each returns the exit code, with the reason told.

// The experiment of the options, new or resumed; its systems, and the files that it is to write, are found
// good.
int PrepareLab(const CLI::App& command, const LabOptions& options, LabState& state);
// Where its rows and its file are, and the threads that play it.
int PrepareRun(LabState& state, const LabOptions& options, SessionRows& rows, LabRun& run);
// What is known, to the files of the options.
int WriteOutputs(LabState& state, SessionRows& rows, const LabOptions& options);

}  // namespace tessaryn::cli
