#include "cli/script_trace.h"

#include <algorithm>
#include <cstdio>

#include "autobet/language/script_text.h"
#include "autobet/run/script_errors.h"
#include "cli/script_report.h"

namespace tessaryn::cli {
namespace {

constexpr const char* kOutcomes[] = {"done", "true", "false", "error"};

const std::vector<std::string>& LinesOf(const Game& game, SeatId seat) {
  return game.autobet.Scripts[seat].ScriptLines;
}

std::string StatementOf(const Game& game, const TracedStatement& traced) {
  return StatementText(LinesOf(game, traced.seat), {traced.line, traced.column, traced.end});
}

struct ProfiledLine {
  SeatId seat = 0;
  int line = 0;
  LineProfile profile;
};

// The lines that ran, by their time and then by their place.
std::vector<ProfiledLine> ProfiledLines(const ScriptWatch& watch) {
  std::vector<ProfiledLine> lines;
  for (SeatId seat = 0; seat <= kSeats; ++seat)
    for (std::size_t line = 1; line < watch.lines[seat].size(); ++line)
      if (watch.lines[seat][line].count > 0)
        lines.push_back({seat, static_cast<int>(line), watch.lines[seat][line]});
  std::stable_sort(lines.begin(), lines.end(), [](const ProfiledLine& a, const ProfiledLine& b) {
    return a.profile.nanoseconds > b.profile.nanoseconds;
  });
  return lines;
}

std::string TextOf(const Game& game, const ProfiledLine& profiled) {
  const auto at = static_cast<std::size_t>(profiled.line) - 1;
  const std::vector<std::string>& lines = LinesOf(game, profiled.seat);
  return at < lines.size() ? std::string(Trimmed(lines[at])) : std::string();
}

std::string SeatName(const Game& game, SeatId seat) {
  return seat == 0 ? "hot-key" : game.table.seats[seat].SeatName;
}

}  // namespace

Json TraceJson(const Game& game, const ScriptWatch& watch) {
  Json trace = Json::array();
  for (const TracedStatement& traced : TraceInOrder(watch)) {
    trace.push_back({{"roll", traced.roll},
                     {"seat", traced.seat},
                     {"line", traced.line},
                     {"statement", StatementOf(game, traced)},
                     {"outcome", kOutcomes[static_cast<int>(traced.outcome)]}});
    if (traced.outcome == StatementOutcome::kError) trace.back()["error"] = traced.error;
  }
  return trace;
}

void PrintTrace(const Game& game, const ScriptWatch& watch) {
  const std::vector<TracedStatement> trace = TraceInOrder(watch);
  std::printf("\nThe last %zu statements of the scripts:\n%10s  %-12s %5s  %-6s %s\n", trace.size(), "rolls",
              "player", "line", "", "statement");
  for (const TracedStatement& traced : trace) {
    std::string outcome = kOutcomes[static_cast<int>(traced.outcome)];
    if (traced.outcome == StatementOutcome::kError) outcome = std::to_string(traced.error) + "!";
    std::printf("%10lld  %-12s %5d  %-6s %s\n", static_cast<long long>(traced.roll),
                SeatName(game, traced.seat).c_str(), traced.line, outcome.c_str(),
                Shown(StatementOf(game, traced)).c_str());
  }
}

Json ProfileJson(const Game& game, const ScriptWatch& watch) {
  const std::vector<ProfiledLine> lines = ProfiledLines(watch);
  std::int64_t all = 0;
  for (const ProfiledLine& line : lines) all += line.profile.nanoseconds;
  Json profile = Json::array();
  for (const ProfiledLine& line : lines)
    profile.push_back(
        {{"seat", line.seat},
         {"line", line.line},
         {"count", line.profile.count},
         {"share",
          all > 0 ? 100.0 * static_cast<double>(line.profile.nanoseconds) / static_cast<double>(all) : 0},
         {"text", TextOf(game, line)}});
  return profile;
}

void PrintProfile(const Game& game, const ScriptWatch& watch) {
  constexpr std::size_t kMostLines = 20;
  const Json profile = ProfileJson(game, watch);
  std::printf("\nThe lines of the scripts that took longest:\n%7s %14s  %-12s %5s  %s\n", "time",
              "statements", "player", "line", "");
  for (std::size_t i = 0; i < std::min(profile.size(), kMostLines); ++i) {
    const Json& line = profile[i];
    std::printf("%6.1f%% %14s  %-12s %5d  %s\n", line["share"].get<double>(),
                FormatMoney(Currency::Dollars(line["count"].get<std::int64_t>())).c_str(),
                SeatName(game, line["seat"].get<int>()).c_str(), line["line"].get<int>(),
                Shown(line["text"].get<std::string>()).c_str());
  }
  if (profile.size() > kMostLines) std::printf("and %zu lines that took less\n", profile.size() - kMostLines);
}

}  // namespace tessaryn::cli
