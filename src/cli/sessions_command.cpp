#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "base/interrupts.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/script_report.h"
#include "cli/table_json.h"
#include "stats/sessions_log.h"

namespace tessaryn::cli {
namespace {

using Clock = std::chrono::steady_clock;

struct SessionsOptions {
  std::string file;
  std::string dataFolder;
  std::string measure = std::string(MeasureName(kSessionNet));
  std::string breakPoint;
  std::string include;
  std::string outliers;
  std::string deleted;
  std::string merged;
  std::string exported;
  bool json = false;
};

// What the options ask for, once they are read.
struct Wanted {
  SessionsQuery query;
  bool deletes = false;
  std::int64_t first = 0;
  std::int64_t last = 0;
};

// "A..B" or "A", both with the ending if they may have one.
bool ReadRange(const std::string& text, Currency& low, Currency& high, std::string_view ending = "") {
  const auto dots = text.find("..");
  const auto read = [&](std::string part, Currency& value) {
    if (!part.ends_with(ending)) return false;
    part.resize(part.size() - ending.size());
    return TryParseMoney(part, value);
  };
  if (dots == std::string::npos) return read(text, low) && read(text, high);
  return read(text.substr(0, dots), low) && read(text.substr(dots + 2), high);
}

void Sort(Currency& low, Currency& high) {
  if (high < low) std::swap(low, high);
}

// Each of these returns the problem, which its caller puts the option in front of.
std::string ReadMeasure(const std::string& text, Wanted& wanted) {
  wanted.query.Measure = FindMeasure(text);
  if (wanted.query.Measure >= 0) return {};
  std::string names = "is no measure. They are";
  for (int measure = 0; measure < kSessionMeasures; ++measure)
    names += "\n  " + std::to_string(measure) + "  " + std::string(MeasureName(measure));
  return names;
}

std::string ReadBreakPoint(const std::string& text, Wanted& wanted) {
  SessionsQuery& query = wanted.query;
  if (!ReadRange(text, query.BreakPointLow, query.BreakPointHigh))
    return "expected an amount or a range such as -50..50";
  Sort(query.BreakPointLow, query.BreakPointHigh);
  return {};
}

std::string ReadClasses(const std::string& text, Wanted& wanted) {
  SessionsQuery& query = wanted.query;
  query.IncludeWon = query.IncludeBrokeEven = query.IncludeLost = false;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t comma = std::min(text.find(',', at), text.size());
    const std::string name = text.substr(at, comma - at);
    at = comma + 1;
    if (name == "won")
      query.IncludeWon = true;
    else if (name == "broke-even")
      query.IncludeBrokeEven = true;
    else if (name == "lost")
      query.IncludeLost = true;
    else
      return "\"" + name + "\" is neither won, broke-even nor lost";
  }
  return {};
}

std::string ReadOutliers(const std::string& text, Wanted& wanted) {
  SessionsQuery& query = wanted.query;
  const bool values = ReadRange(text, query.OutlierLow, query.OutlierHigh);
  if (text.find("..") == std::string::npos ||
      (!values && !ReadRange(text, query.OutlierLow, query.OutlierHigh, "sd")))
    return "expected a range of values such as -500..500, or of standard deviations such as -2sd..2sd";
  query.Outliers = values ? OutlierRule::kByValue : OutlierRule::kByDeviations;
  Sort(query.OutlierLow, query.OutlierHigh);
  return {};
}

std::string ReadDeletion(const std::string& text, Wanted& wanted) {
  Currency first;
  Currency last;
  if (!ReadRange(text, first, last) || !first.IsWhole() || !last.IsWhole())
    return "expected a session number or a range such as 5..9";
  Sort(first, last);
  wanted.deletes = true;
  wanted.first = first.raw / Currency::kPerDollar;
  wanted.last = last.raw / Currency::kPerDollar;
  return {};
}

bool ReadOptions(const SessionsOptions& options, Wanted& wanted) {
  const struct {
    const char* name;
    const std::string& text;
    std::string (*read)(const std::string&, Wanted&);
  } kRows[] = {{"--stat", options.measure, ReadMeasure},
               {"--break-point", options.breakPoint, ReadBreakPoint},
               {"--include", options.include, ReadClasses},
               {"--outliers", options.outliers, ReadOutliers},
               {"--delete", options.deleted, ReadDeletion}};
  for (const auto& row : kRows) {
    if (row.text.empty()) continue;
    const std::string problem = row.read(row.text, wanted);
    if (problem.empty()) continue;
    Fail(std::string(row.name) + " " + row.text + ": " + problem);
    return false;
  }
  return true;
}

// Tells of a wait as soon as it is known to be one.
SessionsGoOn Announcer(std::int64_t sessions) {
  const auto start = Clock::now();
  bool told = isatty(STDERR_FILENO) == 0;
  return [=](std::int64_t done) mutable -> std::string {
    if (Interrupted()) return SignalReason();
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    const double ahead = 3.0 * static_cast<double>(sessions) / static_cast<double>(done);
    if (told || sessions < 30'000 || seconds < 0.02 || seconds * ahead < 0.5) return {};
    told = true;
    std::fputs("Standby ... calculating statistics\n", stderr);
    return {};
  };
}

// --- What is printed.

Json StatisticsJson(const SessionsStatistics& s) {
  Json histogram = Json::array();
  for (const std::int64_t count : s.Histogram) histogram.push_back(count);
  return {{"sessions", s.Total},
          {"won", s.Won},
          {"brokeEven", s.BrokeEven},
          {"lost", s.Lost},
          {"stat", MeasureName(s.Query.Measure)},
          {"n", s.Included},
          {"sum", MoneyJson(s.Sum)},
          {"mean", MoneyJson(s.Mean)},
          {"median", MoneyJson(s.Median)},
          {"mode", MoneyJson(s.Mode)},
          {"high", MoneyJson(s.High)},
          {"mid", MoneyJson(s.Mid)},
          {"low", MoneyJson(s.Low)},
          {"range", MoneyJson(s.Range)},
          {"variance", s.Variance},
          {"stdDev", MoneyJson(s.StdDev)},
          {"skew", s.Skew},
          {"kurtosis", s.Kurtosis},
          {"advantagePercent", MoneyJson(s.AdvantagePercent)},
          {"histogram", histogram}};
}

void PrintHistogram(const SessionsStatistics& s) {
  constexpr int kColumns = 25;  // in a bar
  constexpr std::int64_t kWidth = 40;
  std::vector<HistogramBar> bars;
  for (int first = 0; first < kHistogramColumns; first += kColumns) bars.push_back(BarOf(s, first, kColumns));
  std::int64_t fullest = 0;
  for (const HistogramBar& bar : bars) fullest = std::max(fullest, bar.Sessions);
  std::printf("\n%33s %12s\n", std::string(MeasureName(s.Query.Measure)).c_str(), "sessions");
  for (const HistogramBar& bar : bars) {
    if (s.Range == kZero && bar.Sessions == 0) continue;
    // What is there shows, however little it is.
    const std::int64_t filled = (bar.Sessions * kWidth + fullest - 1) / fullest;
    const std::string blocks(static_cast<std::size_t>(filled), '#');
    std::printf("%15s to %14s %12s %s\n", SessionsNumber(bar.Low).c_str(), SessionsNumber(bar.High).c_str(),
                Whole(bar.Sessions).c_str(), blocks.c_str());
  }
}

void Print(const SessionsStatistics& s) {
  std::printf("%s sessions: %s won (%s), %s broke even (%s), %s lost (%s)\n", Whole(s.Total).c_str(),
              Whole(s.Won).c_str(), ShareText(s.Won, s.Total).c_str(), Whole(s.BrokeEven).c_str(),
              ShareText(s.BrokeEven, s.Total).c_str(), Whole(s.Lost).c_str(),
              ShareText(s.Lost, s.Total).c_str());
  std::printf("%s of %s\n", std::string(MeasureName(s.Query.Measure)).c_str(),
              s.Included == s.Total ? "all sessions" : (Whole(s.Included) + " sessions").c_str());
  if (s.Included == 0) return;
  std::printf("\n");
  for (int label = 0; label < kStatisticLabels; ++label) {
    std::string name(StatisticName(label));
    if (name == "Median" && s.MedianMarked) name += " *";
    std::printf("%-12s %24s\n", name.c_str(), StatisticText(s, label).c_str());
  }
  const std::pair<const char*, Currency> kFixed[] = {
      {"Net $", s.Net}, {"Handle $", s.Handle}, {"Advantage %", s.AdvantagePercent}};
  for (const auto& [name, value] : kFixed) std::printf("%-12s %24s\n", name, SessionsNumber(value).c_str());
  PrintHistogram(s);
}

// --- What is done.

std::string Change(SessionsLogFile& file, const SessionsOptions& options, const Wanted& wanted) {
  std::string problem = wanted.deletes ? DeleteSessionRange(file, wanted.first, wanted.last) : "";
  if (!problem.empty()) return "--delete " + options.deleted + ": " + problem;
  if (options.merged.empty()) return {};
  SessionsLogFile other;
  problem =
      OpenSessionsFile(other, PathInDataFolder(options.merged, options.dataFolder), SessionsAccess::kRead);
  return problem.empty() ? AppendSessionsOf(file, other) : problem;
}

std::string Compute(SessionsLogFile& file, const Wanted& wanted, SessionsStatistics& statistics) {
  std::int64_t sessions = 0;
  std::string problem = CountSessions(file, sessions);
  bool overflow = false;
  if (problem.empty())
    problem = ComputeSessions(file, wanted.query, statistics, overflow, Announcer(sessions));
  return overflow ? MessageText<Msg::kSessionsNotComputed>(With<"name">(FileTitle(file.Path))) : problem;
}

int Sessions(const SessionsOptions& options) {
  Wanted wanted;
  if (!ReadOptions(options, wanted)) return kBad;
  const std::string path = PathInDataFolder(options.file, options.dataFolder);
  const bool changes = wanted.deletes || !options.merged.empty();
  SessionsLogFile file;
  FileReplacement table;
  std::string problem =
      OpenSessionsFile(file, path, changes ? SessionsAccess::kChange : SessionsAccess::kRead);
  if (problem.empty() && !options.exported.empty())
    problem = IsSameFile(path, options.exported) ? "--export " + options.exported + ": is the log itself"
                                                 : BeginReplacement(table, options.exported);
  if (problem.empty()) problem = Change(file, options, wanted);
  SessionsStatistics statistics;
  if (problem.empty()) problem = Compute(file, wanted, statistics);
  if (problem.empty() && !options.exported.empty()) {
    problem = ExportSessions(file, statistics.Query, table);
    if (problem.empty()) problem = CommitReplacement(table);
  }
  if (!problem.empty()) return Fail(AsLines(problem));
  if (options.json)
    std::printf("%s\n", StatisticsJson(statistics).dump().c_str());
  else
    Print(statistics);
  return kDone;
}

}  // namespace

void AddSessionsCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<SessionsOptions>();
  CLI::App* command = program.add_subcommand(
      "sessions", "What a Sessions Log says: statistics and histogram of a measure, deletion, export");
  command->add_option("FILE", options->file, "The Sessions Log (.slg), also by its name in the data folder")
      ->required();
  command->add_option("--stat", options->measure,
                      "The measure, by name or number 0 to 11 (default " + options->measure + ")");
  command->add_option("--break-point", options->breakPoint,
                      "A net of A is broke-even, or one from A to B: A or A..B (default 0)");
  command->add_option("--include", options->include,
                      "The classes that are looked at: won,broke-even,lost (default all)");
  command->add_option("--outliers", options->outliers,
                      "Leave out values outside LOW..HIGH, or outside standard deviations around the mean of "
                      "the included classes: -2sd..2sd");
  command->add_option("--delete", options->deleted, "Delete session A, or sessions A..B, first");
  command->add_option("--merge", options->merged, "Append the sessions of another log first");
  command->add_option("--export", options->exported,
                      "Write the sessions that are looked at to this CSV file");
  command->add_option("--data-folder", options->dataFolder, kDataFolderHelp);
  // What is given empty asks for nothing that could be meant.
  for (CLI::Option* option :
       command->get_options([](const CLI::Option* one) { return !one->get_lnames().empty(); }))
    if (option->get_name() != "--help")
      option->check([](const std::string& text) { return text.empty() ? "needs a value" : ""; });
  command->add_flag("--json", options->json, kJsonHelp);
  command->footer(
      "Example:\n  tessaryn-cli sessions ann.slg --stat \"Ending bankroll\" --include won,lost --export "
      "ann.csv");
  command->callback([options, &exitCode] { exitCode = Sessions(*options); });
}

}  // namespace tessaryn::cli
