#include "cli/lab_command.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <thread>

#include "base/interrupts.h"
#include "base/record_file.h"
#include "cli/commands.h"
#include "cli/lab_report.h"
#include "cli/refusals.h"
#include "cli/script_report.h"
#include "cli/table_setup.h"
#include "lab/html_report.h"

namespace tessaryn::cli {
namespace {

int Answer(const std::string& error) { return error.empty() ? kDone : Fail(error); }

// --- What is written.

struct OutputFile {
  const char* option;
  std::string path;
};

std::vector<OutputFile> TargetsOf(const LabOptions& options, std::size_t systems) {
  std::vector<OutputFile> targets = {
      {"--out ", options.out}, {"--csv ", options.csv}, {"--report ", options.report}};
  if (options.resume.empty() && !options.out.empty()) targets.push_back({"--out ", RowsPathOf(options.out)});
  if (!options.slg.empty())
    for (std::size_t i = 0; i < systems; ++i)
      targets.push_back({"--slg ", SessionsLogOf(options.slg, i, systems)});
  std::erase_if(targets, [](const OutputFile& target) { return target.path.empty(); });
  return targets;
}

// Before anything is played: none is written over another, or over what the experiment reads. shards: of a
// merge.
int CheckTargets(const LabOptions& options, std::size_t systems,
                 const std::vector<std::string>& shards = {}) {
  const std::vector<OutputFile> targets = TargetsOf(options, systems);
  std::vector<OutputFile> known;
  for (const std::string& script : options.scripts) known.push_back({"--script ", script});
  for (const std::string& shard : shards)
    for (const std::string& path : {shard, RowsPathOf(shard)}) known.push_back({"merge ", path});
  known.push_back({"--resume ", options.out.empty() ? options.resume : ""});
  known.push_back({"--resume ", RowsPathOf(options.resume)});
  known.push_back({"--settings ", options.settingsFile});
  known.push_back({"--probabilities ", options.probabilities});
  for (const OutputFile& target : targets) {
    for (const OutputFile& other : known)
      if (!other.path.empty() && (other.path == target.path || IsSameFile(other.path, target.path)))
        return Fail(SameFileAs(target.option + target.path, other.option));
    if (const std::string problem = TargetProblem(target.path); !problem.empty())
      return Fail(target.option + target.path + ": " + problem);
    known.push_back(target);
  }
  return kDone;
}

}  // namespace

// One that can't be written keeps none of the others from it.
int WriteOutputs(LabState& state, SessionRows& rows, const LabOptions& options) {
  int code = kDone;
  const auto note = [&](const char* option, const std::string& error) {
    if (!error.empty()) code = Fail(option + error);
  };
  if (!options.csv.empty()) note("--csv: ", WriteRowsAsCsv(rows, state.experiment, options.csv));
  if (!options.slg.empty()) note("--slg: ", WriteRowsAsLogs(rows, options.slg));
  if (!options.report.empty()) note("--report: ", ReplaceFile(options.report, HtmlReport(state, RankByName(options.rank))));
  return code;
}

namespace {

void Print(LabState& state, const LabOptions& options) {
  TellOddities(state);
  if (!options.json) {
    PrintLab(state);
    if (!options.rank.empty()) PrintRanking(state, options.rank);
    return;
  }
  Json json = LabJson(state);
  if (!options.rank.empty()) json["ranking"] = RankingJson(state, RankByName(options.rank));
  std::printf("%s\n", json.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
}

// --- Playing.

std::string Duration(double seconds) {
  char text[32];
  const auto whole = static_cast<long>(std::min(std::lround(seconds), 359'999L));
  std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", whole / 3600, whole / 60 % 60, whole % 60);
  return text;
}

// A line on a terminal, redrawn several times a second.
class ProgressLine {
 public:
  explicit ProgressLine(const LabState& state)
      : shown_(isatty(STDERR_FILENO) != 0),
        before_(SessionsDone(state)),
        precision_(state.experiment.precision) {}
  ~ProgressLine() {
    if (drawn_) std::fprintf(stderr, "\r\033[K");
  }
  void Update(const LabProgress& progress) {
    if (!shown_) return;
    drawn_ = true;
    const auto played = static_cast<double>(progress.sessions - before_);
    auto left = static_cast<double>(progress.target - progress.sessions);
    // Bounds narrow by the root of the sessions.
    if (precision_ > kZero && progress.widest > 0) {
      const double wider = progress.widest / precision_.ToDouble();
      left = std::min(left, static_cast<double>(progress.sessions) * std::max(wider * wider - 1, 0.0));
    }
    const std::string rest =
        played > 0 ? ", " + Duration(left * SecondsSince(start_) / played) + " left" : std::string();
    std::fprintf(stderr, "\r\033[K%s of %s sessions, means within %.4f%s",
                 FormatMoney(Currency::Dollars(progress.sessions)).c_str(),
                 FormatMoney(Currency::Dollars(progress.target)).c_str(), progress.widest, rest.c_str());
  }

 private:
  bool shown_;
  bool drawn_ = false;
  std::int64_t before_;
  Currency precision_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

std::int64_t RollsOf(const LabState& state) {
  std::int64_t rolls = 0;
  for (const SystemSums& sums : state.systems) rolls += sums.rolls;
  return rolls;
}

int ThreadsOf(const LabOptions& options) {
  if (options.threads > 0) return options.threads;
  return static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
}

}  // namespace

int PrepareRun(LabState& state, const LabOptions& options, SessionRows& rows, LabRun& run) {
  run.threads = ThreadsOf(options);
  run.applicationFolder = options.applicationFolder;
  run.checkpoint = options.out.empty() ? options.resume : options.out;
  if (state.rows.Any()) {
    if (const std::string error = OpenRows(rows, RowsPathOf(run.checkpoint), state); !error.empty())
      return Fail(error);
    run.rows = &rows;
    state.rows = rows.kept;
  }
  return kDone;
}

namespace {

int Play(LabState& state, const LabOptions& options, const LabHelpers* helpers) {
  SessionRows rows;
  LabRun run;
  if (const int code = PrepareRun(state, options, rows, run)) return code;
  run.helpers = helpers;
  const auto start = std::chrono::steady_clock::now();
  const std::int64_t before = RollsOf(state);
  std::string error;
  {
    ProgressLine line(state);
    run.progress = [&](const LabProgress& progress) {
      line.Update(progress);
      return !Interrupted();
    };
    error = RunLab(state, run);
  }
  if (!error.empty()) return Fail(error);
  const double seconds = SecondsSince(start);
  const std::int64_t rolls = RollsOf(state) - before;
  std::fprintf(
      stderr, kRollsASecond, FormatMoney(Currency::Dollars(rolls)).c_str(), seconds,
      FormatMoney(Currency::FromDouble(std::floor(static_cast<double>(rolls) / std::max(seconds, 1e-6))))
          .c_str());
  if (SessionsDone(state) == 0 && Interrupted()) return kBad;
  if (const int code = WriteOutputs(state, rows, options)) return code;
  Print(state, options);
  return kDone;
}

int CheckScripts(const Experiment& experiment, const std::string& applicationFolder) {
  LabProblem problem;
  const std::string error = CheckSystems(experiment, applicationFolder, problem);
  if (error.empty()) return kDone;
  if (!problem.script.diagnostic.Failed()) return Fail(error);
  for (const LabSystem& system : experiment.systems)
    if (error.starts_with(system.name + ": ")) {
      // Nobody has written lines of it: what is wrong is a bet that the table doesn't offer.
      if (system.standingBets)
        return Fail("--bets " + system.name + ": " + problem.script.diagnostic.message);
      return FailInLines(CheckReport(system.name, system.lines, problem.script));
    }
  return Fail(error);
}

int Resume(const CLI::App& command, const LabOptions& options, LabState& state) {
  if (const std::string error = ReadLab(options.resume, state); !error.empty())
    return Fail("--resume " + error);
  if (const int code = CheckAgainstResumed(command, options, state.experiment)) return code;
  if (!options.csv.empty() && !state.rows.lines)
    return Fail("--csv: the experiment of " + options.resume + " was made without --csv");
  if (!options.slg.empty() && !state.rows.records)
    return Fail("--slg: the experiment of " + options.resume + " was made without --slg");
  if (const int code = CheckScripts(state.experiment, options.applicationFolder)) return code;
  return CheckTargets(options, state.systems.size());
}

int Find(const CLI::App& command, const LabOptions& options, const LabHelpers* helpers) {
  Experiment experiment;
  LabQuestion question;
  if (const int code = ReadQuestion(command, options, question)) return code;
  if (const int code = ReadExperiment(command, options, experiment)) return code;
  if (const int code = CheckScripts(experiment, options.applicationFolder)) return code;
  const LabSearch search{ThreadsOf(options), options.applicationFolder, [] { return !Interrupted(); },
                         helpers};
  std::vector<LabAnswer> answers(experiment.systems.size());
  for (std::size_t i = 0; i < answers.size(); ++i)
    if (const std::string error = FindForRuin(experiment, i, question, search, answers[i]); !error.empty())
      return Fail("--find: " + error);
  if (options.json)
    std::printf("%s\n", AnswersJson(experiment, question, answers)
                            .dump(-1, ' ', false, Json::error_handler_t::replace)
                            .c_str());
  else
    PrintAnswers(experiment, question, answers);
  return kDone;
}

}  // namespace

int PrepareLab(const CLI::App& command, const LabOptions& options, LabState& state) {
  if (!options.resume.empty()) return Resume(command, options, state);
  Experiment experiment;
  if (const int code = ReadExperiment(command, options, experiment)) return code;
  if (const int code = CheckScripts(experiment, options.applicationFolder)) return code;
  if (const int code = CheckTargets(options, experiment.systems.size())) return code;
  state = BeginLab(experiment, !options.csv.empty(), !options.slg.empty());
  return kDone;
}

namespace {

int Lab(const CLI::App& command, LabOptions& options, LabHelpers* helpers) {
  if (helpers != nullptr) {
    helpers->threads = options.threads;
    if (options.threads == 0) options.threads = helpers->threadsHere;
  }
  if (!options.find.empty()) return Find(command, options, helpers);
  if (!options.ruin.empty()) return Fail("--ruin: it needs --find"), kUsage;
  LabState state;
  if (const int code = PrepareLab(command, options, state)) return code;
  return Play(state, options, helpers);
}

// --- Merging.

// The shards' rows behind each other.
int MergeRows(const std::vector<std::string>& files, const std::vector<LabState>& shards, LabState& whole,
              SessionRows& rows, const std::string& out) {
  if (const std::string error = OpenRows(rows, RowsPathOf(out), whole); !error.empty()) return Fail(error);
  for (std::size_t i = 0; i < shards.size(); ++i) {
    SessionRows part;
    std::string error = OpenRows(part, RowsPathOf(files[i]), shards[i]);
    if (error.empty()) error = AppendRows(rows, part);
    if (!error.empty()) return Fail(error);
  }
  whole.rows = rows.kept;
  return Answer(FlushRows(rows));
}

int Merge(const std::vector<std::string>& files, const LabOptions& options) {
  std::vector<std::string> paths = files;
  std::vector<LabState> shards;
  LabState whole;
  if (const std::string error = MergeLabs(paths, shards, whole); !error.empty())
    return Fail("merge: " + error);
  if (!options.csv.empty() && !whole.rows.lines)
    return Fail("--csv: it needs shards that were made with --csv");
  if (!options.slg.empty() && !whole.rows.records)
    return Fail("--slg: it needs shards that were made with --slg");
  if (const int code = CheckTargets(options, whole.systems.size(), paths)) return code;
  SessionRows rows;
  if (whole.rows.Any())
    if (const int code = MergeRows(paths, shards, whole, rows, options.out)) return code;
  if (!options.out.empty())
    if (const std::string error = WriteLab(options.out, LabBytes(whole)); !error.empty())
      return Fail("--out: " + error);
  if (const int code = WriteOutputs(whole, rows, options)) return code;
  Print(whole, options);
  return kDone;
}

}  // namespace

void AddLabCommand(CLI::App& program, int& exitCode, LabHelpers* helpers) {
  auto options = std::make_shared<LabOptions>();
  auto files = std::make_shared<std::vector<std::string>>();
  CLI::App* command =
      program.add_subcommand("lab", "An experiment: systems over many sessions, each a fresh table");
  AddLabOptions(*command, *options);
  CLI::App* merge = command->add_subcommand("merge", "Join the shards of an experiment, in any order");
  merge->add_option("files", *files, "The files that --out of each shard wrote")->required();
  merge->add_option("--out", options->out, "Keep the whole experiment in this file");
  AddLabOutputs(*merge, *options);
  merge->footer("Example:\n  tessaryn-cli lab merge 1.lab 2.lab 3.lab --json");
  command->footer(
      "Example:\n  tessaryn-cli lab --bets passline=10 --bets field=10 --bankroll 200 --sessions 100000 "
      "--seed 7");
  command->callback([=, &exitCode] {
    exitCode = merge->parsed() ? Merge(*files, *options) : Lab(*command, *options, helpers);
  });
}

}  // namespace tessaryn::cli
