#include "play/reports.h"

#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr ReportKind kKinds[] = {
    {"summary", "Summary", true, ReportPlayers::kSeveral, SummaryReport},
    {"hands", "Hands", true, ReportPlayers::kSeveral, HandsReport},
    {"bet-results", "Bet Results", true, ReportPlayers::kSeveral, BetResultsReport},
    {"bet-trends", "Bet Trends", false, ReportPlayers::kOne, BetTrendsReport},
    {"roll-totals", "Roll Totals", true, ReportPlayers::kSeveral, RollTotalsReport},
    {"roll-frequencies", "Roll Frequencies", false, ReportPlayers::kNone, RollFrequenciesReport},
};

constexpr const char* kScopeNames[kScopes] = {"Current hand", "Last hand", "Current session", "Last session",
                                              "All sessions"};

std::string NamesOf(const Game& game, const std::vector<SeatId>& seats) {
  std::string names;
  for (const SeatId seat : seats) names += (names.empty() ? "" : ", ") + game.table.seats[seat].SeatName;
  return names;
}

}  // namespace

std::span<const ReportKind> ReportKinds() { return kKinds; }

const ReportKind* FindReport(std::string_view name) {
  for (const ReportKind& kind : kKinds)
    if (kind.name == name) return &kind;
  return nullptr;
}

const char* ScopeName(ScopeId scope) { return kScopeNames[scope]; }

std::vector<SeatId> SelectedPlayers(const Game& game, const ReportSelection& selection) {
  std::vector<SeatId> seats;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if ((selection.seats >> seat & 1) != 0 && IsOccupied(game.table, seat)) seats.push_back(seat);
  return seats;
}

std::string PlayersSelectedText(const Game& game, const ReportSelection& selection) {
  const auto selected = static_cast<int>(SelectedPlayers(game, selection).size());
  if (game.table.OccupiedSeats == 0) return "No players present";
  if (selected == 0) return "No players selected";
  if (selected == game.table.OccupiedSeats) return "All players selected";
  return std::to_string(selected) + (selected == 1 ? " player selected" : " players selected");
}

ReportTable MakeReport(const Game& game, const ReportKind& kind, const ReportSelection& selection) {
  ReportTable report = kind.make(game, selection);
  report.name = kind.name;
  report.title = kind.title;
  if (kind.players == ReportPlayers::kSeveral) {
    report.selected = PlayersSelectedText(game, selection);
    report.selectedNames = NamesOf(game, SelectedPlayers(game, selection));
  }
  if (kind.ofScope) {
    report.scope = ScopeName(selection.scope);
    report.note = LastHandNote(game, selection.scope);
  }
  return report;
}

}  // namespace tessaryn
