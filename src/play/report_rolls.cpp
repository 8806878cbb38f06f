// Hands, Roll Totals and Roll Frequencies: what the dice showed.
#include <algorithm>
#include <bit>
#include <cmath>

#include "base/number_text.h"
#include "dice/percentage_dice.h"
#include "play/reports.h"
#include "state/game.h"
#include "stats/roll_item_lists.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

using Seats = std::vector<SeatId>;

// --- Hands.

constexpr int kHandKinds = 3;  // come-out rolls, passes, misses

struct Hands {
  std::int64_t numbers[13][kHandKinds] = {};
  std::int64_t total[kHandKinds] = {};
  std::int64_t points[kHandKinds] = {};
  std::int64_t rolls = 0;
  std::int64_t hands = 0;
  std::int32_t mostRolls = 0;
  std::int32_t most[kHandKinds] = {};
};

Hands HandsOf(const Statistics& stats, ScopeId scope, const Seats& seats) {
  Hands sum;
  for (const SeatId seat : seats) {
    const int slot = Slot(scope, seat);
    sum.rolls += RollCount(stats, scope, seat, 0);
    sum.hands += stats.HandCount[slot];
    sum.mostRolls = std::max(sum.mostRolls, stats.MostRollsInHand[slot]);
    const std::int32_t most[] = {stats.MostComeoutRollsInHand[slot], stats.MostPassesInHand[slot],
                                 stats.MostMissesInHand[slot]};
    for (int kind = 0; kind < kHandKinds; ++kind) {
      sum.most[kind] = std::max(sum.most[kind], most[kind]);
      for (int number = 2; number <= 12; ++number) {
        const std::int32_t count = stats.NumberCounts[slot][number][kind];
        sum.numbers[number][kind] += count;
        sum.total[kind] += count;
        if (IsBoxNumber(number)) sum.points[kind] += count;
      }
    }
  }
  return sum;
}

ReportCell HandCell(std::int64_t count, std::int64_t total, bool percent) {
  if (!percent) return CountCell(count);
  if (total == 0) return CountCell(0);
  const double share = 100.0 * static_cast<double>(count) / static_cast<double>(total);
  return {NumberText(share, kTwoDecimals), share};
}

void AddNumbers(const Hands& hands, bool percent, ReportTable& report) {
  const auto add = [&](const std::string& label, auto countOf) {
    std::vector<ReportCell> cells;
    for (int kind = 0; kind < kHandKinds; ++kind)
      cells.push_back(HandCell(countOf(kind), hands.total[kind], percent));
    report.Add("", label, std::move(cells));
  };
  for (int number = 2; number <= 12; ++number)
    add(std::to_string(number), [&](int kind) { return hands.numbers[number][kind]; });
  add("Total", [&](int kind) { return hands.total[kind]; });
  add("Points", [&](int kind) { return hands.points[kind]; });
  add("Naturals", [&](int kind) { return hands.total[kind] - hands.points[kind]; });
}

ReportCell PerHand(std::int64_t count, std::int64_t hands) {
  const double average = hands == 0 ? 0 : static_cast<double>(count) / static_cast<double>(hands);
  return {NumberText(average, kUpToTwoDecimals), average};
}

// --- The bars of Roll Totals.

struct Bar {
  int item;
  std::string label;
};

std::string PairLabel(int die1, int die2) { return std::to_string(die1) + "." + std::to_string(die2); }

// The item that counts exactly these pairs of faces.
int ItemOfPairs(std::uint64_t pairs) {
  return static_cast<int>(std::find(kItemPairs.begin(), kItemPairs.end(), pairs) - kItemPairs.begin());
}

// By total, and in each by the first die.
std::vector<Bar> PairBars(bool unordered) {
  std::vector<Bar> bars;
  for (int total = 2; total <= 12; ++total)
    for (int die1 = std::max(1, total - 6); die1 <= std::min(6, total - 1); ++die1) {
      const int die2 = total - die1;
      if (unordered && die1 > die2) continue;
      std::uint64_t pairs = CombinationBit(die1, die2);
      if (unordered) pairs |= CombinationBit(die2, die1);
      bars.push_back({ItemOfPairs(pairs), PairLabel(die1, die2)});
    }
  return bars;
}

std::vector<Bar> BarsOf(RollGrouping grouping) {
  std::vector<Bar> bars;
  switch (grouping) {
    case RollGrouping::kTotals:
      for (int total = 2; total <= 12; ++total) bars.push_back({total, std::to_string(total)});
      return bars;
    case RollGrouping::kPairs:
      return PairBars(true);
    case RollGrouping::kCombinations:
      return PairBars(false);
    case RollGrouping::kFaces:
      break;
  }
  constexpr int kFirstFaceItem = 78;
  constexpr int kLastFaceItem = 89;
  for (int item = kFirstFaceItem; item <= kLastFaceItem; ++item) bars.push_back({item, RollItemText(item)});
  return bars;
}

double ShareOf(std::int64_t count, std::int64_t rolls) {
  return rolls == 0 ? 0 : 100.0 * static_cast<double>(count) / static_cast<double>(rolls);
}

// The chance without the rounding that its text has.
double ExactChance(const Game& game, int item, bool skewed) {
  if (skewed) return static_cast<double>(ProbabilityOfEvent(game.percentage, item, true)) / 100;
  return std::popcount(RollItemMask(item)) / double{kDicePairs};
}

// Whether a count is more than two standard errors from what the chance makes likely.
bool IsFarOff(std::int64_t count, std::int64_t rolls, double chance) {
  const auto n = static_cast<double>(rolls);
  const double error = std::sqrt(std::max(0.0, n * chance * (1 - chance)));
  return std::fabs(static_cast<double>(count) - n * chance) > 2 * error;
}

// The latest roll of an item is counted over the session alone.
bool HasRollsSinceLast(ScopeId scope) { return scope == kCurrentHand || scope == kCurrentSession; }

ReportRow BarRow(const Game& game, const ReportSelection& selection, const Seats& seats, const Bar& bar) {
  std::int64_t rolls = 0;
  std::int64_t count = 0;
  for (const SeatId seat : seats) {
    rolls += RollCount(game.stats, selection.scope, seat, 0);
    count += RollCount(game.stats, selection.scope, seat, bar.item);
  }
  const double share = ShareOf(count, rolls);
  const double chance = ProbabilityOfEvent(game.percentage, bar.item, selection.skewed);
  ReportCell actual{NumberText(share, kTwoDecimals), share};
  actual.marked = IsFarOff(count, rolls, ExactChance(game, bar.item, selection.skewed));
  return {"",
          bar.label,
          {CountCell(count),
           HasRollsSinceLast(selection.scope) ? CountCell(RollsSinceLast(game.stats, bar.item))
                                              : TextCell(kNoValueText),
           actual, NumberCell(chance)}};
}

}  // namespace

ReportTable HandsReport(const Game& game, const ReportSelection& selection) {
  Seats seats = SelectedPlayers(game, selection);
  if (seats.empty()) seats.push_back(0);  // the table
  const Hands hands = HandsOf(game.stats, selection.scope, seats);
  ReportTable report;
  report.columns = {"c/o rolls", "passes", "misses"};
  AddNumbers(hands, selection.percent, report);
  report.Add("Hands", "Total rolls", {CountCell(hands.rolls)});
  report.Add("Hands", "Total hands", {CountCell(hands.hands)});
  report.Add("Hands", "Most rolls in a hand", {CountCell(hands.mostRolls)});
  report.Add("Hands", "Most c/o rolls in a hand", {CountCell(hands.most[kComeoutRolls])});
  report.Add("Hands", "Most passes in a hand", {CountCell(hands.most[kPasses])});
  report.Add("Hands", "Most misses in a hand", {CountCell(hands.most[kMisses])});
  report.Add("Hands", "Avg rolls per hand", {PerHand(hands.rolls, hands.hands)});
  report.Add("Hands", "Avg c/o rolls per hand", {PerHand(hands.total[kComeoutRolls], hands.hands)});
  report.Add("Hands", "Avg passes per hand", {PerHand(hands.total[kPasses], hands.hands)});
  report.Add("Hands", "Avg misses per hand", {PerHand(hands.total[kMisses], hands.hands)});
  return report;
}

ReportTable RollTotalsReport(const Game& game, const ReportSelection& selection) {
  const Seats seats = SelectedPlayers(game, selection);
  ReportTable report;
  report.columns = {"# of rolls", "# of rolls since last", "% rolled", "% prob"};
  for (const Bar& bar : BarsOf(selection.grouping))
    report.rows.push_back(BarRow(game, selection, seats, bar));
  return report;
}

ReportTable RollFrequenciesReport(const Game& game, const ReportSelection& selection) {
  const Statistics& stats = game.stats;
  const int item = selection.item;
  const std::int64_t rolls = RollCount(stats, kCurrentSession, 0, 0);
  const std::int64_t count = RollCount(stats, kCurrentSession, 0, item);
  const double share = ShareOf(count, rolls);
  constexpr double kLeastShare = 0.001;
  ReportTable report;
  report.selected = RollItemText(item);
  report.columns = {"value"};
  report.Add("", "Total session rolls:", {CountCell(rolls)});
  report.Add("Hands", "Total rolls this selection:", {CountCell(count)});
  report.Add("", "# rolls since last rolled:", {CountCell(RollsSinceLast(stats, item))});
  report.Add("", "Actual % rolled:",
             {rolls == 0                         ? TextCell("")
              : share > 0 && share < kLeastShare ? ReportCell{"< 0.001", share}
                                                 : NumberCell(share)});
  report.Add("", selection.skewed ? "Skewed probable %:" : "True probable %:",
             {NumberCell(ProbabilityOfEvent(game.percentage, item, selection.skewed))});
  report.Add(
      "", "Average # of rolls to achieve:",
      {count == 0 ? CountCell(0) : NumberCell(static_cast<double>(rolls) / static_cast<double>(count))});
  constexpr std::size_t kGapsInColumn = 25;
  report.gridFirst = report.rows.size();
  report.gridRows = kGapsInColumn;
  for (int gap = 1; gap < kGapCells; ++gap) {
    const std::int32_t times = stats.RollGapCounts[item][gap];
    report.Add("Rolls to come again, and how often", std::to_string(gap),
               {times == 0 ? TextCell("") : CountCell(times)});
  }
  return report;
}

}  // namespace tessaryn
