#include <sys/ioctl.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>

#include "cli/cli_host.h"
#include "cli/commands.h"
#include "cli/refusals.h"
#include "cli/report_command.h"
#include "cli/script_commands.h"
#include "cli/script_report.h"
#include "cli/script_trace.h"
#include "cli/table_json.h"
#include "cli/table_setup.h"
#include "play/auto_roll.h"
#include "play/script_session.h"
#include "play/table_files.h"
#include "stats/sessions_log.h"

namespace tessaryn::cli {
namespace {

constexpr std::size_t kLongestTrace = 1'000'000;

struct RunOptions {
  TableOptions table;
  std::int64_t rolls = 1'000'000;
  std::vector<std::string> reports;
  bool json = false;
  std::size_t trace = 0;  // of the scripts' statements the last so many are told
  bool profile = false;   // the scripts' lines that ran most are
};

// A bar on a terminal, redrawn ten times a second.
class ProgressBar {
 public:
  explicit ProgressBar(std::int64_t target) : target_(target), shown_(isatty(STDERR_FILENO) != 0) {}
  ~ProgressBar() {
    if (drawn_) std::fprintf(stderr, "\r\033[K");
  }
  void Update(std::int64_t rolls) {
    if (!shown_ || SecondsSince(last_) < 0.1) return;
    last_ = std::chrono::steady_clock::now();
    drawn_ = true;
    const double part = target_ > 0 ? static_cast<double>(rolls) / static_cast<double>(target_) : 0;
    constexpr int kWidth = 40;
    const int filled = static_cast<int>(std::lround(part * kWidth));
    std::string bar(static_cast<std::size_t>(filled), '#');
    bar.resize(kWidth, '.');
    std::fprintf(stderr, "\r[%s] %3.0f%%  %s rolls", bar.c_str(), part * 100,
                 FormatMoney(Currency::Dollars(rolls)).c_str());
  }

 private:
  std::int64_t target_;
  bool shown_;
  bool drawn_ = false;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

// The sessions that scripts began and ended, by player.
Json SessionsJson(const Game& game) {
  Json sessions = Json::array();
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const SessionsTally& tally = game.sessions.Files.Tally[seat];
    if (tally.Sessions == 0) continue;
    const double handle = tally.Handle.ToDouble();
    sessions.push_back({{"seat", seat},
                        {"name", game.table.seats[seat].SeatName},
                        {"sessions", tally.Sessions},
                        {"won", tally.Won},
                        {"brokeEven", tally.BrokeEven},
                        {"lost", tally.Lost},
                        {"net", MoneyJson(tally.Net)},
                        {"advantagePercent", handle > 0 ? 100 * tally.Net.ToDouble() / handle : 0.0}});
  }
  return sessions;
}

void PrintSessions(const Game& game) {
  bool headed = false;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const SessionsTally& tally = game.sessions.Files.Tally[seat];
    if (tally.Sessions == 0) continue;
    if (!headed)
      std::printf("\n%-16s %10s %8s %8s %8s  %s\n", "sessions of", "ended", "won", "even", "lost", "log");
    headed = true;
    std::printf("%-16s %10s %8s %8s %8s  %s\n", game.table.seats[seat].SeatName.c_str(),
                FormatMoney(Currency::Dollars(tally.Sessions)).c_str(),
                ShareText(tally.Won, tally.Sessions).c_str(),
                ShareText(tally.BrokeEven, tally.Sessions).c_str(),
                ShareText(tally.Lost, tally.Sessions).c_str(), SessionsLogPath(game, seat).c_str());
  }
}

void PrintReport(const Game& game, const Json& run) {
  const auto whole = [](const Json& number) {
    return FormatMoney(Currency::Dollars(number.get<std::int64_t>()));
  };
  std::printf(kRollsASecond, whole(run["rolls"]).c_str(), run["seconds"].get<double>(),
              FormatMoney(Currency::FromDouble(std::floor(run["rollsPerSecond"].get<double>()))).c_str());
  if (const std::string reason = run["stopReason"]; !reason.empty()) std::printf("%s\n", reason.c_str());
  const Json& table = run["table"];
  std::printf("Hands %s, come-out rolls %s, passes %s, misses %s\n", whole(table["hands"]).c_str(),
              whole(table["comeoutRolls"]).c_str(), whole(table["passes"]).c_str(),
              whole(table["misses"]).c_str());
  std::printf("\n%8s %14s %9s\n", "total", "rolls", "percent");
  // A game that was opened brings its own rolls along.
  double rolls = 0;
  for (const Json& count : table["totals"]) rolls += count.get<double>();
  for (const auto& [total, count] : table["totals"].items())
    std::printf("%8s %14s %8.3f%%\n", total.c_str(), whole(count).c_str(),
                rolls > 0 ? 100.0 * count.get<double>() / rolls : 0.0);
  if (run["seats"].empty()) return;
  std::printf("\n%-16s %14s %14s %14s %16s %9s\n", "player", "start", "bankroll", "on table", "wagered",
              "result");
  for (const Json& seat : run["seats"]) {
    const double wagered = seat["wagered"].get<double>();
    const double net = seat["won"].get<double>() - seat["lost"].get<double>();
    const auto money = [&seat](const char* name) {
      return FormatMoney(Currency::FromDouble(seat[name].get<double>()));
    };
    std::printf("%-16s %14s %14s %14s %16s %8.3f%%\n", seat["name"].get<std::string>().c_str(),
                money("bankrollStart").c_str(), money("bankroll").c_str(), money("onTable").c_str(),
                money("wagered").c_str(), wagered > 0 ? 100 * net / wagered : 0.0);
  }
  PrintSessions(game);
  PrintErrors(game);
}

// What lets a refused run roll, by the reason that refused it.
constexpr struct {
  const char* reason;
  const char* hint;
} kHints[] = {
    {"Shooter has no line bet.",
     "have a script bet on passline or dontpass, or let the shooter go without: --set ShooterBetRule=0"},
    {"Shooter has no bet.",
     "have a script make a bet, or let the shooter go without: --set ShooterBetRule=0"},
    {"No players are available to bet.",
     "seat a player, --player NAME=BANKROLL, or roll without bets: --set ShooterBetRule=0"},
};

// A run that not one roll came of.
int Refused(const std::string& reason) {
  std::string text = kNothingRolled;
  if (!reason.empty()) text += ": " + AsLines(reason);
  for (const auto& known : kHints)
    if (reason == known.reason) text += std::string("\nHint: ") + known.hint;
  return Fail(text);
}

// Over all sessions: a script may have begun some.
std::map<std::string, ReportTable> ReportsOfRun(const Game& game, const std::vector<std::string>& names) {
  std::map<std::string, ReportTable> reports;
  ReportSelection selection;
  selection.scope = kAllSessions;
  selection.seats = kAllSeatsSelected;
  selection.seat = game.table.SelectedSeat;
  for (const std::string& name : names) reports[name] = MakeReport(game, *FindReport(name), selection);
  return reports;
}

void PrintWatched(const Game& game, const ScriptWatch& watch) {
  if (watch.traceLength > 0) PrintTrace(game, watch);
  if (watch.profile) PrintProfile(game, watch);
}

int Run(const RunOptions& options) {
  CliHost host;
  ScriptWatch watch;
  watch.traceLength = options.trace;
  watch.profile = options.profile;
  const std::unique_ptr<Game> game = SetUpTable(host, options.table);
  if (!game) return kBad;
  if (options.trace > 0 || options.profile) WatchScripts(*game, &watch);
  RunFigures figures;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    figures.bankrollStart[seat] = game->table.BankrollCurrent[seat];
  // Nobody is there to be asked: scripts are initialised, so that they can bet before the first roll.
  // Those of a game file were, when the game began.
  const bool initialise = options.table.game.empty() || !options.table.scripts.empty();
  if (initialise && game->autobet.ScriptActive[0] && !InitialiseScripts(*game))
    return Fail("a script can't be run");
  const std::int64_t before = Throws(game->stats);
  host.rollTarget = before + options.rolls;
  const auto start = std::chrono::steady_clock::now();
  {
    ProgressBar bar(options.rolls);
    host.progress = [&](Game& running) { bar.Update(Throws(running.stats) - before); };
    if (options.rolls > 0 && !Interrupted()) ToggleAutoRoll(*game);
  }
  figures.seconds = SecondsSince(start);
  figures.rolls = Throws(game->stats) - before;
  figures.stopReason = game->table.StopReason;
  const bool written = EndTable(*game, options.table);
  if (options.rolls > 0 && figures.rolls == 0 && !Interrupted()) {
    // What the scripts did ahead of the first roll may tell why.
    if (!options.json) PrintWatched(*game, watch);
    return Refused(figures.stopReason);
  }
  Json run = RunJson(*game, figures);
  if (Json sessions = SessionsJson(*game); !sessions.empty()) run["sessions"] = std::move(sessions);
  const auto reports = ReportsOfRun(*game, options.reports);
  if (const Json errors = ErrorsJson(*game); !errors.empty()) run["scriptErrors"] = errors;
  for (const auto& [name, report] : reports) run["reports"][name] = ReportJson(report);
  if (options.trace > 0) run["trace"] = TraceJson(*game, watch);
  if (options.profile) run["profile"] = ProfileJson(*game, watch);
  if (options.json)
    std::printf("%s\n", run.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
  else
    PrintReport(*game, run);
  for (const auto& [name, report] : reports)
    if (!options.json) std::printf("\n%s", ReportAsText(report, "").c_str());
  if (!options.json) PrintWatched(*game, watch);
  return written && EveryScriptCouldAct(*game) ? kDone : kBad;
}

}  // namespace

void AddRunCommand(CLI::App& program, int& exitCode) {
  auto options = std::make_shared<RunOptions>();
  CLI::App* command = program.add_subcommand("run", "Unattended play at full speed, with a report");
  AddTableOptions(*command, options->table);
  command->add_option("--rolls", options->rolls, "How many rolls (default 1,000,000)")
      ->check(CLI::Range(std::int64_t{0}, kMaxRolls));
  std::vector<std::string> names;
  for (const ReportKind& kind : ReportKinds()) names.emplace_back(kind.name);
  command->add_option("--report", options->reports, "A report over all sessions as well (repeatable)")
      ->check(CLI::IsMember(names));
  command
      ->add_option("--trace", options->trace,
                   "Tell the last N statements of the scripts and what came of them")
      ->type_name("N")
      ->check(CLI::Range(std::size_t{1}, kLongestTrace));
  command->add_flag("--profile", options->profile,
                    "Tell which lines of the scripts ran most and took longest");
  command->add_flag("--json", options->json, kJsonHelp);
  command->footer(
      "Example:\n  tessaryn-cli run --player Ann=5000 --set ShooterBetRule=0 --rolls 10000000 --seed 7");
  command->callback([options, &exitCode] { exitCode = Run(*options); });
}

}  // namespace tessaryn::cli
