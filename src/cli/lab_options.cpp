#include "cli/lab_options.h"

#include <cstdio>

#include "autobet/language/script_files.h"
#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/table_setup.h"
#include "dice/percentage_dice.h"
#include "lab/systems.h"
#include "play/settings_file.h"

namespace tessaryn::cli {

namespace {

CLI::Option* AddRepeatable(CLI::App& command, const char* name, std::vector<std::string>& values,
                           const char* help) {
  return command.add_option(name, values, help)->take_all()->allow_extra_args(false);
}

}  // namespace

void AddLabOutputs(CLI::App& command, LabOptions& options) {
  command.add_option("--report", options.report, "Write a report, one page of HTML, to this file");
  command.add_option("--csv", options.csv, "Write a line for each session and system to this file");
  command.add_option("--slg", options.slg,
                     "Write the sessions as a Sessions Log; of several systems each gets a file");
  command.add_option("--rank", options.rank, "Rank the systems by mean, median, ruin (least first) or goal")
      ->check(CLI::IsMember({"mean", "median", "ruin", "goal"}));
  command.add_flag("--json", options.json, kJsonHelp);
}

void AddLabOptions(CLI::App& command, LabOptions& options) {
  constexpr std::uint64_t kMostSeed = (std::uint64_t{1} << 53) - 1;
  command.add_option("--data-folder", options.dataFolder, kNoDataFolderHelp);
  AddRepeatable(command, "--script", options.scripts, "A betting script, a system of its own (repeatable)");
  AddRepeatable(command, "--bets", options.bets,
                "A system of standing bets, BET=AMOUNT,..., put up again when they are down (repeatable)");
  AddRepeatable(command, "--stack", options.stacks,
                "N=VALUE,... or N=LOW..HIGH:STEP: CheckStack N starts at each value in turn (repeatable)");
  AddRepeatable(command, "--vary", options.varied,
                "NAME=VALUE,...: the setting has each value in turn (repeatable)");
  command.add_option("--bankroll", options.bankroll, "What each session starts with (default 500)");
  command.add_option("--sessions", options.sessions, "How many sessions (default 10,000)")
      ->check(CLI::Range(std::int64_t{1}, kMostLabSessions));
  command.add_option("--rolls", options.rolls, "A session ends after so many rolls (default 500)")
      ->check(CLI::Range(std::int64_t{1}, kMaxRolls));
  command.add_option("--hands", options.hands, "A session ends after so many seven-outs")
      ->check(CLI::Range(std::int64_t{1}, kMaxRolls));
  command.add_option("--hours", options.hours,
                     "A session ends after so many hours by the setting SimRollRate");
  command.add_option("--win-goal", options.winGoal, "A session ends when it has won so much");
  command.add_option("--loss-limit", options.lossLimit, "A session ends when it has lost so much");
  command.add_option("--end", options.end, "now, or hand: when no contract bet is up (default now)")
      ->check(CLI::IsMember({"now", "hand"}));
  command.add_option("--settings", options.settingsFile, kSettingsHelp);
  AddRepeatable(command, "--set", options.settings, "A setting, NAME=VALUE (repeatable)");
  command.add_option("--probabilities", options.probabilities, kProbabilitiesHelp);
  command.add_option("--rng", options.rng, "Generator 1, 2 or 8")->check(CLI::Range(1, 8));
  command.add_option("--seed", options.seed, "Seed of all sessions' dice (default 1)")
      ->check(CLI::Range(std::uint64_t{0}, kMostSeed));
  command.add_option("--threads", options.threads, "How many threads play (default all there are)")
      ->check(CLI::Range(1, 1024));
  command.add_option("--shard", options.shard, "K/N: play the K-th of N parts, to be merged");
  command.add_option("--precision", options.precision,
                     "Stop as soon as each mean result is known to this, 95% sure");
  command.add_option(
      "--find", options.find,
      "bankroll, or stack:N: the least bankroll, or the largest start of CheckStack N, in whole "
      "dollars, that keeps the ruined within --ruin");
  command.add_option("--ruin", options.ruin, "The share of sessions that may be ruined, 0.05 say");
  command.add_option("--out", options.out, "Keep the experiment in this file, to be resumed or merged");
  command.add_option("--resume", options.resume, "Go on with the experiment of this file");
  AddLabOutputs(command, options);
}

namespace {

int Wrong(const std::string& what) {
  Fail(what);
  return kUsage;
}

// Ready for the next option when it is not given.
int ReadMoney(const char* option, const std::string& text, Currency least, Currency& amount) {
  if (text.empty()) return kDone;
  if (!TryParseMoney(text, amount)) return Wrong(std::string(option) + " " + text + ": this is no amount");
  if (amount >= least && amount <= kBankrollLimit) return kDone;
  return Wrong(std::string(option) + " " + text + ": must be from " + FormatMoney(least) + " to " +
               FormatMoney(kBankrollLimit));
}

// --- Systems.

int ReadScript(const std::string& path, LabSystem& system) {
  const ScriptFileResult result = ReadScriptFile(path, system.lines);
  system.name = FileTitle(path);
  if (result.Ok()) return kDone;
  return Fail("--script " + (result.problem == ScriptFileProblem::kNotFound
                                 ? MessageText<Msg::kNamedFileNotFound>(With<"path">(path))
                                 : result.message));
}

// In the order of the command line.
int ReadSystems(const CLI::App& command, const LabOptions& options, std::vector<LabSystem>& systems) {
  const CLI::Option* script = command.get_option("--script");
  const CLI::Option* bets = command.get_option("--bets");
  std::size_t scriptsRead = 0;
  std::size_t betsRead = 0;
  for (const CLI::Option* option : command.parse_order()) {
    LabSystem system;
    if (option != script && option != bets) continue;
    if (option == script) {
      if (const int code = ReadScript(options.scripts[scriptsRead++], system)) return code;
    } else {
      const std::string& text = options.bets[betsRead++];
      if (const std::string error = ReadStandingBets(text, system); !error.empty())
        return Wrong("--bets " + text + ": " + error);
    }
    systems.push_back(system);
  }
  if (systems.empty()) return Wrong("lab: nothing to play: give --script FILE or --bets BET=AMOUNT,...");
  return kDone;
}

// --- The table.

int ReadSettings(const LabOptions& options, std::vector<LabSetting>& settings) {
  if (!options.settingsFile.empty()) {
    std::vector<SettingLine> lines;
    if (const std::string error = ReadSettingsFile(options.settingsFile, lines); !error.empty())
      return Fail("--settings: " + error);
    for (const SettingLine& line : lines)
      settings.push_back({line.change.name, line.change.seat, line.change.value});
  }
  for (const std::string& text : options.settings) {
    LabSetting setting;
    if (!ParseAssignment(text, setting.name, setting.seat, setting.text))
      return Wrong("--set " + text + ": expected NAME=VALUE");
    settings.push_back(setting);
  }
  return kDone;
}

int ReadProbabilities(const LabOptions& options, Experiment& experiment) {
  if (options.probabilities.empty()) return kDone;
  PercentageDice dice;
  std::string error;
  if (!OpenProbabilityFile(dice, options.probabilities, "", error))
    return Fail("--probabilities " + options.probabilities + ": " + error);
  experiment.percentageDice = true;
  experiment.probabilities = dice.ProbMatrix;
  return kDone;
}

int ReadEnds(const CLI::App& command, const LabOptions& options, Experiment& experiment) {
  constexpr Currency kLeast = Currency::FromRaw(1);
  experiment.hands = options.hands;
  if (const int code = ReadMoney("--hours", options.hours, kLeast, experiment.hours)) return code;
  if (command.count("--rolls") > 0 || options.hands > 0 || experiment.hours > kZero)
    experiment.rolls = options.rolls;
  experiment.endWithHand = options.end == "hand";
  if (const int code = ReadMoney("--win-goal", options.winGoal, kLeast, experiment.winGoal)) return code;
  return ReadMoney("--loss-limit", options.lossLimit, kLeast, experiment.lossLimit);
}

int ReadShard(const LabOptions& options, Experiment& experiment) {
  if (options.shard.empty()) return kDone;
  int read = 0;
  const bool good =
      std::sscanf(options.shard.c_str(), "%9d/%9d%n", &experiment.shard, &experiment.shards, &read) == 2 &&
      static_cast<std::size_t>(read) == options.shard.size() && experiment.shard >= 1 &&
      experiment.shard <= experiment.shards && experiment.shards <= kMostShards;
  if (!good) return Wrong("--shard " + options.shard + ": expected K/N with K from 1 to N");
  if (!options.precision.empty())
    return Wrong("--shard and --precision can't be used together: a shard doesn't know the others' sessions");
  return kDone;
}

constexpr std::int64_t kMostSessionsForPrecision = 100'000'000;

}  // namespace

int ReadExperiment(const CLI::App& command, const LabOptions& options, Experiment& experiment) {
  constexpr Currency kLeast = Currency::FromRaw(1);
  if (const int code = ReadSystems(command, options, experiment.systems)) return code;
  for (const std::string& text : options.stacks)
    if (const std::string error = SweepStack(text, experiment.systems); !error.empty())
      return Wrong("--stack " + text + ": " + error);
  for (const std::string& text : options.varied)
    if (const std::string error = SweepSetting(text, experiment.systems); !error.empty())
      return Wrong("--vary " + text + ": " + error);
  if (const int code = ReadMoney("--bankroll", options.bankroll, kLeast, experiment.bankroll)) return code;
  if (const int code = ReadMoney("--precision", options.precision, kLeast, experiment.precision)) return code;
  if (const int code = ReadEnds(command, options, experiment)) return code;
  if (const int code = ReadShard(options, experiment)) return code;
  if (const int code = ReadSettings(options, experiment.settings)) return code;
  if (options.sessions > 0)
    experiment.sessions = options.sessions;
  else if (experiment.precision > kZero)
    experiment.sessions = kMostSessionsForPrecision;
  experiment.seed = options.seed;
  experiment.generator = options.rng;
  return ReadProbabilities(options, experiment);
}

int ReadQuestion(const CLI::App& command, const LabOptions& options, LabQuestion& question) {
  for (const char* other :
       {"--resume", "--out", "--shard", "--precision", "--csv", "--slg", "--report", "--rank"})
    if (command.count(other) > 0)
      return Wrong(std::string("--find and ") + other + " can't be used together");
  if (options.find != "bankroll") {
    const bool ofStack = options.find.starts_with("stack:") && options.find.size() > 6;
    const BetId bet = ofStack ? BetByName("cs" + options.find.substr(6)) : kNoBet;
    if (!IsCheckStack(bet))
      return Wrong("--find " + options.find +
                   ": expected bankroll, or stack:N with a CheckStack N from 0 to 99");
    question.stack = bet - kFirstCheckStack;
  }
  int read = 0;
  const bool number = std::sscanf(options.ruin.c_str(), "%lf%n", &question.ruin, &read) == 1 &&
                      static_cast<std::size_t>(read) == options.ruin.size();
  if (number && question.ruin > 0 && question.ruin < 1) return kDone;
  return Wrong("--ruin " + options.ruin + ": expected a share above 0 and below 1");
}

namespace {

template <typename T>
bool Same(const T& a, const T& b) {
  return FirstDifference(a, b).empty();
}

struct Fixed {
  std::vector<const char*> options;
  bool (*same)(const Experiment&, const Experiment&);
};

const Fixed kFixedFields[] = {
    {{"--script", "--bets", "--stack", "--vary"},
     [](const Experiment& a, const Experiment& b) { return Same(a.systems, b.systems); }},
    {{"--bankroll"}, [](const Experiment& a, const Experiment& b) { return a.bankroll == b.bankroll; }},
    {{"--sessions"}, [](const Experiment& a, const Experiment& b) { return a.sessions == b.sessions; }},
    {{"--rolls"}, [](const Experiment& a, const Experiment& b) { return a.rolls == b.rolls; }},
    {{"--hands"}, [](const Experiment& a, const Experiment& b) { return a.hands == b.hands; }},
    {{"--hours"}, [](const Experiment& a, const Experiment& b) { return a.hours == b.hours; }},
    {{"--win-goal"}, [](const Experiment& a, const Experiment& b) { return a.winGoal == b.winGoal; }},
    {{"--loss-limit"}, [](const Experiment& a, const Experiment& b) { return a.lossLimit == b.lossLimit; }},
    {{"--end"}, [](const Experiment& a, const Experiment& b) { return a.endWithHand == b.endWithHand; }},
    {{"--settings", "--set"},
     [](const Experiment& a, const Experiment& b) { return Same(a.settings, b.settings); }},
    {{"--probabilities"},
     [](const Experiment& a, const Experiment& b) {
       return a.percentageDice == b.percentageDice && a.probabilities == b.probabilities;
     }},
    {{"--rng"}, [](const Experiment& a, const Experiment& b) { return a.generator == b.generator; }},
    {{"--seed"}, [](const Experiment& a, const Experiment& b) { return a.seed == b.seed; }},
    {{"--shard"},
     [](const Experiment& a, const Experiment& b) { return a.shard == b.shard && a.shards == b.shards; }},
    {{"--precision"}, [](const Experiment& a, const Experiment& b) { return a.precision == b.precision; }},
};

}  // namespace

int CheckAgainstResumed(const CLI::App& command, const LabOptions& options, const Experiment& resumed) {
  const auto given = [&](const char* option) { return command.count(option) > 0; };
  if (given("--out") && !IsSameFile(options.out, options.resume))
    return Wrong("--out " + options.out + ": an experiment goes on in the file of --resume");
  Experiment wanted;
  // Without systems there is nothing to read; the experiment has its own.
  if (given("--script") || given("--bets")) {
    if (const int code = ReadExperiment(command, options, wanted)) return code;
  } else {
    if (given("--stack") || given("--vary"))
      return Wrong("--stack and --vary need the systems beside them that they multiply");
    LabOptions others = options;
    if (const int code = ReadMoney("--bankroll", others.bankroll, kZero, wanted.bankroll)) return code;
    if (const int code = ReadMoney("--precision", others.precision, kZero, wanted.precision)) return code;
    if (const int code = ReadEnds(command, others, wanted)) return code;
    if (const int code = ReadShard(others, wanted)) return code;
    if (const int code = ReadSettings(others, wanted.settings)) return code;
    if (const int code = ReadProbabilities(others, wanted)) return code;
    wanted.sessions = options.sessions;
    wanted.seed = options.seed;
    wanted.generator = options.rng;
  }
  for (const Fixed& fixed : kFixedFields)
    for (const char* option : fixed.options)
      if (given(option) && !fixed.same(wanted, resumed))
        return Wrong(std::string(option) + ": the experiment of " + options.resume + " has another value");
  return kDone;
}

}  // namespace tessaryn::cli
