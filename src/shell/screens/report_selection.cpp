#include "shell/screens/report_selection.h"

#include <QCoreApplication>

#include "shell/screens/core_words.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kColourBits = 4;
constexpr int kColourMask = (1 << kColourBits) - 1;
constexpr int ColourShift(TotalsPart part) { return part == TotalsPart::kBars ? 8 : 8 + kColourBits; }

constexpr int kLeastItem = 2;
constexpr int kMostItem = 89;

BetSet KeptBets(const ReportsShown& shown) {
  if (shown.AllBets) return kAllTableBets;
  BetSet bets;
  for (const BetId bet : shown.Bets)
    if (IsTableBet(bet)) bets.Set(bet, true);
  return bets;
}

}  // namespace

const std::array<GraphColour, kGraphColours> kGraphColourRows{
    {{QT_TRANSLATE_NOOP("Reports", "&Standard"), 0},
     {QT_TRANSLATE_NOOP("Reports", "&Green"), 0x0B6B45},
     {QT_TRANSLATE_NOOP("Reports", "&Blue"), 0x1A5FD0},
     {QT_TRANSLATE_NOOP("Reports", "&Red"), 0xB3261E},
     {QT_TRANSLATE_NOOP("Reports", "G&old"), 0xE0AC1B},
     {QT_TRANSLATE_NOOP("Reports", "&Purple"), 0x6B3FA0},
     {QT_TRANSLATE_NOOP("Reports", "&Teal"), 0x1B8A8F},
     {QT_TRANSLATE_NOOP("Reports", "Or&ange"), 0xC9650B},
     {QT_TRANSLATE_NOOP("Reports", "Gr&ey"), 0x87929B},
     {QT_TRANSLATE_NOOP("Reports", "&White"), 0xFFFFFF},
     {QT_TRANSLATE_NOOP("Reports", "Blac&k"), 0x101417}}};

bool HasOption(const Game& game, ReportOption option) { return (game.screen.ReportViewOption & option) != 0; }

void SetOption(Game& game, ReportOption option, bool on) {
  int& options = game.screen.ReportViewOption;
  options = on ? options | option : options & ~option;
}

int GraphColourOf(const Game& game, TotalsPart part) {
  const int colour = game.screen.ReportViewOption >> ColourShift(part) & kColourMask;
  return colour < kGraphColours ? colour : 0;
}

void SetGraphColour(Game& game, TotalsPart part, int colour) {
  int& options = game.screen.ReportViewOption;
  options = (options & ~(kColourMask << ColourShift(part))) | colour << ColourShift(part);
}

ReportSelection SelectionShown(const Game& game) {
  const ReportsShown& shown = game.screen.Reports;
  ReportSelection selection;
  if (shown.Scope >= 0 && shown.Scope < kScopes) selection.scope = shown.Scope;
  selection.seats = shown.Seats & kAllSeatsSelected;
  selection.seat = shown.Seat >= 1 && shown.Seat <= kSeats && IsOccupied(game.table, shown.Seat)
                       ? shown.Seat
                       : game.table.SelectedSeat;
  selection.bets = KeptBets(shown);
  selection.eachBet = HasOption(game, kEachBetInARow);
  selection.percent = shown.HandsPercent;
  if (shown.RollGrouping >= 0 && shown.RollGrouping <= static_cast<int>(RollGrouping::kFaces))
    selection.grouping = static_cast<RollGrouping>(shown.RollGrouping);
  selection.skewed = shown.Skewed;
  if (shown.Item >= kLeastItem && shown.Item <= kMostItem) selection.item = shown.Item;
  selection.separator = !HasOption(game, kNoSeparators);
  return selection;
}

void SelectBets(Game& game, const BetSet& bets) {
  ReportsShown& shown = game.screen.Reports;
  shown.AllBets = bets == kAllTableBets;
  shown.Bets.clear();
  if (!shown.AllBets) bets.ForEach([&shown](BetId bet) { shown.Bets.push_back(bet); });
}

bool SpeaksEnglish(std::string_view report) { return report == "summary" || report == "roll-totals"; }

QString ReportText(const ReportTable& report, const std::string& text) {
  return SpeaksEnglish(report.name) ? FromCore(text) : CoreWords(text);
}

QString PlayersSelectedWords(const Game& game, const ReportSelection& selection) {
  const auto selected = static_cast<int>(SelectedPlayers(game, selection).size());
  if (game.table.OccupiedSeats == 0) return QCoreApplication::translate("Reports", "No players present");
  if (selected == 0) return QCoreApplication::translate("Reports", "No players selected");
  if (selected == game.table.OccupiedSeats)
    return QCoreApplication::translate("Reports", "All players selected");
  return QCoreApplication::translate("Reports", "%1 players selected", nullptr, selected).arg(selected);
}

}  // namespace tessaryn
