// The six reports: what the statistics say, as tables. Pure functions of the game and what was selected.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/table_types.h"
#include "play/report_table.h"

namespace tessaryn {

struct Game;

// The bars of Roll Totals.
enum class RollGrouping { kTotals, kPairs, kCombinations, kFaces };

// What a person has selected on the reports; each report reads what concerns it.
struct ReportSelection {
  ScopeId scope = kCurrentSession;
  std::uint32_t seats = 0;      // bit i: seat i. Seats without a player count for nothing
  SeatId seat = 0;              // of Bet Trends; 0 nobody
  BetSet bets = kAllTableBets;  // of Bet Results
  bool eachBet = false;         // Bet Results: instead, a row for each player's bet
  bool percent = false;         // Hands: shares of the column's total
  RollGrouping grouping = RollGrouping::kTotals;
  bool skewed = false;    // probabilities of the percentage dice, in force or not; else of fair dice
  int item = 7;           // of Roll Frequencies, 2 to 89
  bool separator = true;  // Bet Results: thousands separators
};

inline constexpr std::uint32_t kAllSeatsSelected = 0x1FE;

enum class ReportPlayers { kNone, kOne, kSeveral };

struct ReportKind {
  const char* name;       // "roll-totals"
  const char* title;      // "Roll Totals"
  bool ofScope;           // whether scope counts
  ReportPlayers players;  // whether nobody, seat or seats count
  ReportTable (*make)(const Game&, const ReportSelection&);
};

std::span<const ReportKind> ReportKinds();
// By its name; nullptr for none.
const ReportKind* FindReport(std::string_view name);
// Requires a selection in range.
ReportTable MakeReport(const Game& game, const ReportKind& kind, const ReportSelection& selection);

const char* ScopeName(ScopeId scope);  // "Current hand" ...
// The players among the selected seats, ascending.
std::vector<SeatId> SelectedPlayers(const Game& game, const ReportSelection& selection);
// "All players selected", "2 players selected", "No players selected", "No players present".
std::string PlayersSelectedText(const Game& game, const ReportSelection& selection);

// The rows of each; MakeReport adds what stands above them.
ReportTable SummaryReport(const Game& game, const ReportSelection& selection);
ReportTable HandsReport(const Game& game, const ReportSelection& selection);
ReportTable BetResultsReport(const Game& game, const ReportSelection& selection);
ReportTable BetTrendsReport(const Game& game, const ReportSelection& selection);
ReportTable RollTotalsReport(const Game& game, const ReportSelection& selection);
ReportTable RollFrequenciesReport(const Game& game, const ReportSelection& selection);

}  // namespace tessaryn
