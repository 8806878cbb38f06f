// Bet Results and Bet Trends: what became of the bets.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "base/bet_catalogue.h"
#include "base/number_text.h"
#include "play/reports.h"
#include "rules/advantage.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

using Seats = std::vector<SeatId>;

// Of the selected bets of the selected seats, in one of the three tables.
struct Figures {
  Currency count;
  Currency total;
  Currency high;
  Currency low;  // 0 without any
  Currency lastAmount;
  Currency latest;  // the latest StatLastRoll, 0 never
  Currency onLatestRoll;
  Currency onLatestRollAmount;
};
// Wagers, wins, losses.
using Three = std::array<Figures, kStatTables>;
using ThreeCells = std::array<ReportCell, kStatTables>;

void AddFigures(const Statistics& stats, StatTable table, ScopeId scope, SeatId seat, BetId bet,
                Figures& sum) {
  const auto stat = [&](StatKind kind) { return BetStat(stats, table, scope, seat, bet, kind); };
  const Currency count = stat(kStatCount);
  if (count == kZero) return;
  sum.count += count;
  sum.total += stat(kStatTotal);
  sum.high = std::max(sum.high, stat(kStatHigh));
  const Currency low = stat(kStatLow);
  if (low != kZero && (sum.low == kZero || low < sum.low)) sum.low = low;
  sum.lastAmount += stat(kStatLastAmount);
  const Currency lastRoll = stat(kStatLastRoll);
  sum.latest = std::max(sum.latest, lastRoll);
  if (RollsSince(stats, scope, lastRoll) != 0) return;
  sum.onLatestRoll += Currency::Dollars(1);
  sum.onLatestRollAmount += stat(kStatLastAmount);
}

Three FiguresOf(const Game& game, const ReportSelection& selection, const Seats& seats) {
  Three sums;
  for (const SeatId seat : seats)
    selection.bets.ForEach([&](BetId bet) {
      for (int table = 0; table < kStatTables; ++table)
        AddFigures(game.stats, static_cast<StatTable>(table), selection.scope, seat, bet,
                   sums[static_cast<std::size_t>(table)]);
    });
  return sums;
}

constexpr const char* kResolved = "Resolved";
constexpr const char* kTendered = "Tendered";

ReportCell NetPercentCell(double net, double wagers) {
  return wagers == 0 ? TextCell("") : NumberCell(100 * net / wagers);
}

ReportCell Balance(ReportCell cell) {
  cell.balance = true;
  return cell;
}

// Rows of sums, money or counts, with what they leave.
void AddSums(ReportTable& report, const char* label, const Three& sums, Currency Figures::*field,
             bool money) {
  const auto cell = [money](Currency amount) {
    ReportCell shown = MoneyCell(amount);
    if (!money) shown.tone = Tone::kPlain;
    return shown;
  };
  const Currency wagers = sums[kWagerStats].*field;
  const Currency net = sums[kWinStats].*field - sums[kLossStats].*field;
  const bool fits = !wagers.IsError() && !net.IsError();
  report.Add(kResolved, label,
             {cell(wagers), cell(sums[kWinStats].*field), cell(sums[kLossStats].*field), Balance(cell(net)),
              fits ? NetPercentCell(net.ToDouble(), wagers.ToDouble()) : TextCell(kNoValueText)});
}

// Rows that have nothing to take from each other.
void AddWithoutNet(ReportTable& report, const char* label, ThreeCells cells) {
  report.Add(kResolved, label,
             {std::move(cells[0]), std::move(cells[1]), std::move(cells[2]), TextCell(kNoValueText),
              TextCell(kNoValueText)});
}

// Ratios; not a number where there is nothing to divide by, which shows as no value.
using Ratios = std::array<double, kStatTables>;
constexpr double kNoRatio = std::numeric_limits<double>::quiet_NaN();

double OrNothing(double ratio) { return std::isnan(ratio) ? 0 : ratio; }

// A side without a value takes nothing from the other.
void AddRatios(ReportTable& report, const char* label, const Ratios& ratios, bool money) {
  const auto cell = [money](double ratio) {
    ReportCell shown = NumberCell(ratio);
    if (money && shown.value != 0) shown.tone = ratio < 0 ? Tone::kLoss : Tone::kGain;
    return shown;
  };
  const double wins = ratios[kWinStats];
  const double losses = ratios[kLossStats];
  const bool any = !std::isnan(wins) || !std::isnan(losses);
  const double net = any ? OrNothing(wins) - OrNothing(losses) : kNoRatio;
  report.Add(kResolved, label,
             {cell(ratios[kWagerStats]), cell(wins), cell(losses), Balance(cell(net)),
              any ? NetPercentCell(net, OrNothing(ratios[kWagerStats])) : TextCell("")});
}

// Money divided comes back as money.
double Quotient(Currency amount, double divisor) {
  if (divisor == 0 || amount.IsError()) return kNoRatio;
  return Currency::FromDouble(amount.ToDouble() / divisor).ToDouble();
}

void AddAverages(const Three& sums, ReportTable& report) {
  Ratios averages;
  for (std::size_t i = 0; i < averages.size(); ++i)
    averages[i] = Quotient(sums[i].total, sums[i].count.ToDouble());
  AddRatios(report, "Average $", averages, true);
}

void AddHourly(const Game& game, ScopeId scope, const Three& sums, ReportTable& report) {
  const double rate = game.settings.SimRollRate.ToDouble();
  if (!(rate > 0)) {
    for (const char* label : {"Avg # / hour", "Avg $ / hour"})
      report.Add(kResolved, label, std::vector<ReportCell>(report.columns.size()));
    return;
  }
  const double hours = static_cast<double>(RollCount(game.stats, scope, 0, 0)) / rate;
  const bool any = hours > 0 && sums[kWagerStats].count != kZero;
  Ratios counts;
  Ratios amounts;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    counts[i] = any ? sums[i].count.ToDouble() / hours : kNoRatio;
    amounts[i] = any ? Quotient(sums[i].total, hours) : kNoRatio;
  }
  AddRatios(report, "Avg # / hour", counts, false);
  AddRatios(report, "Avg $ / hour", amounts, true);
}

void AddResolved(const Game& game, ScopeId scope, const Three& sums, ReportTable& report) {
  const auto cells = [&sums](auto cellOf) {
    return ThreeCells{cellOf(sums[0]), cellOf(sums[1]), cellOf(sums[2])};
  };
  const RollNumber latest = LatestRoll(game.stats, scope);
  AddSums(report, "Total #", sums, &Figures::count, false);
  AddSums(report, "Total $", sums, &Figures::total, true);
  AddWithoutNet(report, "High $", cells([](const Figures& of) { return MoneyCell(of.high); }));
  AddWithoutNet(report, "Low $", cells([](const Figures& of) { return MoneyCell(of.low); }));
  AddAverages(sums, report);
  AddSums(report, "Last $", sums, &Figures::lastAmount, true);
  AddWithoutNet(report, "# rolls since last", cells([latest](const Figures& of) {
                  return CountCell(latest - of.latest.raw / Currency::kPerDollar);
                }));
  AddSums(report, "Last roll #", sums, &Figures::onLatestRoll, false);
  AddSums(report, "Last roll $", sums, &Figures::onLatestRollAmount, true);
  AddHourly(game, scope, sums, report);
}

// The bets that are up now, or were as the last dice were thrown.
void AddTendered(const ReportSelection& selection, const Seats& seats, const SeatBetTable<Currency>& amounts,
                 const std::string& when, ReportTable& report) {
  std::int64_t count = 0;
  Currency sum;
  for (const SeatId seat : seats)
    selection.bets.ForEach([&](BetId bet) {
      const Currency amount = amounts(seat, bet);
      if (amount > kZero) ++count;
      sum += amount;
    });
  report.Add(kTendered, when + " #", {seats.empty() ? TextCell("") : CountCell(count)});
  report.Add(kTendered, when + " $", {seats.empty() ? TextCell("") : MoneyCell(sum)});
}

Currency ExpectedValue(const Game& game, const ReportSelection& selection, const Seats& seats) {
  double expected = 0;
  selection.bets.ForEach([&](BetId bet) {
    Currency wagered;
    for (const SeatId seat : seats)
      wagered += BetStat(game.stats, kWagerStats, selection.scope, seat, bet, kStatTotal);
    if (wagered > kZero) expected += wagered.ToDouble() * FigureAdvantage(game, bet).evPerDecision;
  });
  return Currency::FromDouble(expected);
}

std::string NamesOfBets(const BetSet& bets) {
  if (bets == kAllTableBets) return "";
  if (bets.Empty()) return "No bets selected";
  std::string names;
  bets.ForEach([&names](BetId bet) { names += (names.empty() ? "" : ", ") + BetName(bet); });
  return names;
}

// Nobody is selected: there is no money to tell of.
void BlankMoney(ReportTable& report) {
  for (ReportRow& row : report.rows)
    if (row.label.find('$') != std::string::npos)
      for (ReportCell& cell : row.cells) cell = TextCell("");
}

void AddEachBet(const Game& game, const ReportSelection& selection, const Seats& seats, ReportTable& report) {
  report.columns = {"Wagers #", "Wagers $", "Wins #", "Losses #", "Net $", "Net %"};
  for (const SeatId seat : seats)
    selection.bets.ForEach([&](BetId bet) {
      Three sums;
      for (const StatTable table : {kWagerStats, kWinStats, kLossStats}) {
        Figures& of = sums[table];
        of.count = BetStat(game.stats, table, selection.scope, seat, bet, kStatCount);
        of.total = BetStat(game.stats, table, selection.scope, seat, bet, kStatTotal);
        if (sums[kWagerStats].count == kZero) return;
      }
      const Currency net = sums[kWinStats].total - sums[kLossStats].total;
      const Currency wagered = sums[kWagerStats].total;
      const bool fits = !net.IsError() && !wagered.IsError();
      const auto count = [&sums](StatTable table) {
        return CountCell(sums[table].count.raw / Currency::kPerDollar);
      };
      report.Add("", (seats.size() > 1 ? game.table.seats[seat].SeatName + ": " : "") + BetName(bet),
                 {count(kWagerStats), MoneyCell(wagered), count(kWinStats), count(kLossStats),
                  Balance(MoneyCell(net)),
                  fits ? NetPercentCell(net.ToDouble(), wagered.ToDouble()) : TextCell(kNoValueText)});
    });
}

void AddAllBets(const Game& game, const ReportSelection& selection, const Seats& seats, ReportTable& report) {
  report.columns = {"Wagers", "Wins", "Losses", "Net", "Net %"};
  AddResolved(game, selection.scope, FiguresOf(game, selection, seats), report);
  AddTendered(selection, seats, game.table.BetAmount, "Current", report);
  AddTendered(selection, seats, game.table.BetBeforeRoll, "Prior roll", report);
  report.Add("", "Expected value $", {Balance(MoneyCell(ExpectedValue(game, selection, seats)))});
  if (seats.empty()) BlankMoney(report);
}

}  // namespace

ReportTable BetResultsReport(const Game& game, const ReportSelection& selection) {
  const Seats seats = SelectedPlayers(game, selection);
  ReportTable report;
  report.selectedBets = NamesOfBets(selection.bets);
  selection.eachBet ? AddEachBet(game, selection, seats, report) : AddAllBets(game, selection, seats, report);
  if (!selection.separator)
    for (ReportRow& row : report.rows)
      for (ReportCell& cell : row.cells) std::erase(cell.text, ',');
  return report;
}

ReportTable BetTrendsReport(const Game& game, const ReportSelection& selection) {
  ReportTable report;
  report.columns = {"in a row"};
  const bool anybody = IsOccupied(game.table, selection.seat);
  report.selected =
      anybody ? game.table.seats[selection.seat].SeatName : PlayersSelectedText(game, ReportSelection{});
  for (BetId bet = 1; bet <= kBets; ++bet) {
    const std::int32_t streak = anybody ? game.table.BetStreak(selection.seat, bet) : 0;
    ReportCell cell;
    if (streak != 0) {
      cell = Balance(MoneyCell(Currency::Dollars(streak)));
      if (streak > 0) cell.text.insert(0, 1, ' ');  // under the minus of the losses
    }
    report.Add("", BetName(bet), {cell});
  }
  constexpr std::size_t kLinesOnPaper = 31;
  report.gridRows = kLinesOnPaper;
  return report;
}

}  // namespace tessaryn
