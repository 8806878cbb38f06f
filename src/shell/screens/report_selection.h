// What is selected on the reports: kept in the game's screens, read by the reports.
#pragma once

#include <QString>
#include <array>

#include "play/reports.h"

class QColor;

namespace tessaryn {

// Options of the report screens, in ScreenState::ReportViewOption: bits, and above them two colours.
enum ReportOption : int {
  kNoSeparators = 1,
  kBoldFigures = 2,
  kItalicFigures = 4,
  kEachBetInARow = 8,
};

bool HasOption(const Game& game, ReportOption option);
void SetOption(Game& game, ReportOption option, bool on);

// The colours that the graph of the rolls may have; 0 is that of the desktop.
enum class TotalsPart { kBars, kBackground };
inline constexpr int kGraphColours = 11;
struct GraphColour {
  const char* name;
  unsigned rgb;
};
extern const std::array<GraphColour, kGraphColours> kGraphColourRows;
int GraphColourOf(const Game& game, TotalsPart part);
void SetGraphColour(Game& game, TotalsPart part, int colour);

// In range, whatever the file held that it comes from.
ReportSelection SelectionShown(const Game& game);
// All of the table's bets, or these.
void SelectBets(Game& game, const BetSet& bets);

// Summary and Roll Totals are English in every language.
bool SpeaksEnglish(std::string_view report);
// A label or heading of a report in the user's language.
QString ReportText(const ReportTable& report, const std::string& text);
// "2 players selected"
QString PlayersSelectedWords(const Game& game, const ReportSelection& selection);

}  // namespace tessaryn
