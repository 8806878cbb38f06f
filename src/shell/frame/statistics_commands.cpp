#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/luck_window.h"

namespace tessaryn {
namespace {

// Shows a tool window or hides it; ticked while it is shown.
template <int number>
constexpr CommandRow ToggleRow(const char* name, const char* caption) {
  return {.name = name,
          .caption = caption,
          .act = [](Desk& desk) { ToggleTool(desk, number); },
          .ticked = [](const Desk& desk) { return ToolIsShown(desk, number); }};
}

}  // namespace

std::span<const CommandRow> StatisticsCommands() {
  static const CommandRow kCommands[] = {
      ToggleRow<kSummaryWindow>("mnuSummary", QT_TRANSLATE_NOOP("Commands", "&Summary")),
      ToggleRow<kHandsWindow>("mnuHands", QT_TRANSLATE_NOOP("Commands", "&Hands")),
      ToggleRow<kBetResultsWindow>("mnuBetResults", QT_TRANSLATE_NOOP("Commands", "Bet &results")),
      ToggleRow<kBetTrendsWindow>("mnuBetTrends", QT_TRANSLATE_NOOP("Commands", "Bet &trends")),
      ToggleRow<kRollTotalsWindow>("mnuRollTotals", QT_TRANSLATE_NOOP("Commands", "R&oll totals")),
      ToggleRow<kRollFreqsWindow>("mnuRollFreqs", QT_TRANSLATE_NOOP("Commands", "Roll &frequencies")),
      ToggleRow<kBankrollWindow>("mnuBankroll", QT_TRANSLATE_NOOP("Commands", "&Bankroll graph")),
      ToggleRow<kCheckStacksWindow>("mnuCheckStacks", QT_TRANSLATE_NOOP("Commands", "&CheckStacks")),
      ToggleRow<kSessionsWindow>("mnuSessions", QT_TRANSLATE_NOOP("Commands", "Sessions &Log")),
      ToggleRow<kEventsLogWindow>("mnuEventsLog", QT_TRANSLATE_NOOP("Commands", "&Events Log")),
      ToggleRow<kLuckWindow>("mnuLuck", QT_TRANSLATE_NOOP("Commands", "L&uck")),
      {},
      ToggleRow<kLaboratoryWindow>("mnuLaboratory", QT_TRANSLATE_NOOP("Commands", "L&aboratory")),
  };
  return kCommands;
}

}  // namespace tessaryn
