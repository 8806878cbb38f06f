#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/tool_windows.h"

namespace tessaryn {
namespace {

// Shows a tool window or hides it; ticked while it is shown.
template <int number>
constexpr CommandRow ToolRow(const char* name, const char* caption) {
  return {.name = name,
          .caption = caption,
          .act = [](Desk& desk) { ToggleTool(desk, number); },
          .ticked = [](const Desk& desk) { return ToolIsShown(desk, number); }};
}

}  // namespace

std::span<const CommandRow> StatisticsCommands() {
  static const CommandRow kCommands[] = {
      ToolRow<kSummaryWindow>("mnuSummary", QT_TRANSLATE_NOOP("Commands", "&Summary")),
      ToolRow<kHandsWindow>("mnuHands", QT_TRANSLATE_NOOP("Commands", "&Hands")),
      ToolRow<kBetResultsWindow>("mnuBetResults", QT_TRANSLATE_NOOP("Commands", "Bet &results")),
      ToolRow<kBetTrendsWindow>("mnuBetTrends", QT_TRANSLATE_NOOP("Commands", "Bet &trends")),
      ToolRow<kRollTotalsWindow>("mnuRollTotals", QT_TRANSLATE_NOOP("Commands", "R&oll totals")),
      ToolRow<kRollFreqsWindow>("mnuRollFreqs", QT_TRANSLATE_NOOP("Commands", "Roll &frequencies")),
      ToolRow<kBankrollWindow>("mnuBankroll", QT_TRANSLATE_NOOP("Commands", "&Bankroll graph")),
      ToolRow<kCheckStacksWindow>("mnuCheckStacks", QT_TRANSLATE_NOOP("Commands", "&CheckStacks")),
      ToolRow<kSessionsWindow>("mnuSessions", QT_TRANSLATE_NOOP("Commands", "Sessions &Log")),
      ToolRow<kEventsLogWindow>("mnuEventsLog", QT_TRANSLATE_NOOP("Commands", "&Events Log")),
      {},
      ToolRow<kLaboratoryWindow>("mnuLaboratory", QT_TRANSLATE_NOOP("Commands", "L&aboratory")),
  };
  return kCommands;
}

}  // namespace tessaryn
