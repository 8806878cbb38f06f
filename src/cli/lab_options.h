// The options of an experiment, and the experiment that they ask for.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "base/program_folders.h"
#include "lab/lab_state.h"
#include "lab/search.h"

namespace tessaryn::cli {

struct LabOptions {
  std::string applicationFolder = ApplicationFolder();  // where the generators' support files are
  std::string dataFolder;
  std::vector<std::string> scripts;
  std::vector<std::string> bets;
  std::vector<std::string> stacks;
  std::vector<std::string> varied;
  std::string bankroll;
  std::int64_t sessions = 0;
  std::int64_t rolls = 0;
  std::int64_t hands = 0;
  std::string hours;
  std::string rank;
  std::string find;
  std::string ruin;
  std::string winGoal;
  std::string lossLimit;
  std::string end;
  std::string settingsFile;
  std::vector<std::string> settings;
  std::string probabilities;
  int rng = 0;
  std::uint64_t seed = 1;
  int threads = 0;  // 0: as many as the machine has
  std::string shard;
  std::string precision;
  std::string out;
  std::string resume;
  std::string report;
  std::string csv;
  std::string slg;
  bool json = false;
};

// What the command "lab" takes; outputs alone for its merge.
void AddLabOptions(CLI::App& command, LabOptions& options);
void AddLabOutputs(CLI::App& command, LabOptions& options);

// The experiment of the options. Returns the exit code, with the reason told: kUsage for the wrong text of an
// option, kBad for what it leads to.
int ReadExperiment(const CLI::App& command, const LabOptions& options, Experiment& experiment);
// Of --find and --ruin; likewise.
int ReadQuestion(const CLI::App& command, const LabOptions& options, LabQuestion& question);
// What is given beside --resume must be what the experiment has.
int CheckAgainstResumed(const CLI::App& command, const LabOptions& options, const Experiment& resumed);

}  // namespace tessaryn::cli
