// Summary: rolls, hands, bankrolls, comps and what was won and lost.
#include <algorithm>

#include "base/number_text.h"
#include "play/reports.h"
#include "rules/advantage.h"
#include "rules/comps.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kPlayersColumn = 1;

using Seats = std::vector<SeatId>;

// Blank while nobody is selected: there is no money to tell of.
ReportCell PlayersMoney(const Seats& seats, Currency amount) {
  return seats.empty() ? TextCell("") : MoneyCell(amount);
}

std::string ShareText(std::int64_t part, std::int64_t whole) {
  if (part == 0 || whole == 0) return "0%";
  if (part == whole) return "100%";
  return NumberText(100.0 * static_cast<double>(part) / static_cast<double>(whole), kPercentShare);
}

void AddRolls(const Game& game, ScopeId scope, const Seats& seats, ReportTable& report) {
  const Statistics& stats = game.stats;
  const std::int64_t tableRolls = PlayerRolls(stats, scope, 0);
  std::int64_t rolls = 0;
  std::int64_t hands = 0;
  for (const SeatId seat : seats) {
    rolls += RollCount(stats, scope, seat, 0);
    hands += stats.HandCount[Slot(scope, seat)];
  }
  const double rate = game.settings.SimRollRate.ToDouble();
  report.Add("Rolls", "Total rolls", {CountCell(tableRolls), CountCell(rolls)});
  report.Add("Rolls", "Total hands", {CountCell(stats.HandCount[Slot(scope, 0)]), CountCell(hands)});
  report.Add("Rolls", "Sim hours",
             {rate > 0 ? NumberCell(static_cast<double>(tableRolls) / rate) : TextCell("")});
  report.Add("Rolls", "Rolls / hour", {NumberCell(rate)});
  report.Add("Rolls", "% of rolls", {TextCell(ShareText(rolls, tableRolls))}, kPlayersColumn);
}

// Over the rolls of the session, its beginning counted as one of them.
Currency AverageBankroll(const Game& game, SeatId seat) {
  const Statistics& stats = game.stats;
  const std::int64_t rolls = PlayerRolls(stats, kCurrentSession, seat);
  return Divide(stats.BankrollSessionStart[seat] + stats.BankrollRollSum[seat], Currency::Dollars(rolls + 1));
}

void AddBankrolls(const Game& game, ScopeId scope, const Seats& seats, ReportTable& report) {
  const Statistics& stats = game.stats;
  Currency high;
  Currency low;
  Currency beginning;
  Currency current;
  Currency averages;
  for (const SeatId seat : seats) {
    const int slot = Slot(scope, seat);
    const bool first = seat == seats.front();
    high = first ? stats.BankrollHigh[slot] : std::max(high, stats.BankrollHigh[slot]);
    low = first ? stats.BankrollLow[slot] : std::min(low, stats.BankrollLow[slot]);
    beginning += stats.BankrollBeginning[slot];
    current += BankrollOf(game, scope, seat);
    averages += AverageBankroll(game, seat);
  }
  const auto count = static_cast<std::int64_t>(std::max<std::size_t>(1, seats.size()));
  const bool over = scope == kLastHand || scope == kLastSession;
  const auto add = [&](const char* label, Currency amount) {
    report.Add("Bankroll", label, {PlayersMoney(seats, amount)}, kPlayersColumn);
  };
  add("High bankroll", high);
  add("Low bankroll", low);
  add("Beginning bankroll", beginning);
  add(over ? "Ending bankroll" : "Current bankroll", current);
  add("Average bankroll", Divide(averages, Currency::Dollars(count)));
}

// What the house expects of the bets that count, by the dice in force and the decisions that there were.
double ExpectedInForce(const Game& game, ScopeId scope, SeatId seat) {
  double expected = 0;
  game.settings.CompBetFlags.ForEach([&](BetId bet) {
    const Currency wagered = BetStat(game.stats, kWagerStats, scope, seat, bet, kStatTotal);
    if (wagered <= kZero) return;
    const bool percentageDice = game.percentage.PercentageDiceActive;
    expected += wagered.ToDouble() * FigureAdvantage(game, bet, percentageDice, false).evPerDecision;
  });
  return expected;
}

void AddComps(const Game& game, ScopeId scope, const Seats& seats, ReportTable& report) {
  const Settings& settings = game.settings;
  Comps sum;
  double inForce = 0;
  for (const SeatId seat : seats) {
    const Comps comps = FigureComps(game, scope, seat);
    sum.compAmount += comps.compAmount;
    sum.totalAction += comps.totalAction;
    sum.decisions += comps.decisions;
    sum.expectedResult += comps.expectedResult;
    sum.averageAction += comps.averageAction;
    inForce += ExpectedInForce(game, scope, seat);
  }
  const Currency vig = Currency::FromDouble(-sum.expectedResult);
  // The mark: the setting of true probabilities, or of zero outcomes, makes it another figure.
  const bool marked = !seats.empty() && vig != Currency::FromDouble(-inForce);
  const bool timeless = settings.SimRollRate.ToDouble() <= 0;
  constexpr int kByActionAndTime = 2;
  const auto add = [&](const char* label, ReportCell cell) {
    report.Add("Comps", label, {std::move(cell)}, kPlayersColumn);
  };
  add("Total comp action $", PlayersMoney(seats, sum.totalAction));
  add("Total # comp bets", CountCell(sum.decisions));
  add("Avg comp action $",
      PlayersMoney(seats,
                   sum.decisions > 0 ? Divide(sum.totalAction, Currency::Dollars(sum.decisions)) : kZero));
  add("Avg action x time $", timeless ? TextCell("") : PlayersMoney(seats, sum.averageAction));
  add(marked ? "* Theoretical vig $" : "Theoretical vig $", PlayersMoney(seats, vig));
  add("Comp rate %", NumberCell(settings.CompRate.ToDouble()));
  add("Total comp value $",
      timeless && settings.CompBase == kByActionAndTime ? TextCell("") : PlayersMoney(seats, sum.compAmount));
}

struct Sums {
  Currency count;
  Currency total;
};

Sums SumsOf(const Game& game, StatTable table, ScopeId scope, const Seats& seats) {
  Sums sums;
  for (const SeatId seat : seats) {
    for (BetId bet = 1; bet <= kBets; ++bet) {
      sums.count += BetStat(game.stats, table, scope, seat, bet, kStatCount);
      sums.total += BetStat(game.stats, table, scope, seat, bet, kStatTotal);
    }
  }
  return sums;
}

ReportCell NetPercent(Currency net, Currency wagers) {
  if (wagers == kZero || wagers.IsError() || net.IsError()) return TextCell(kNoValueText);
  return NumberCell(100 * net.ToDouble() / wagers.ToDouble());
}

void AddBets(const Game& game, ScopeId scope, const Seats& seats, ReportTable& report) {
  const Sums wagers = SumsOf(game, kWagerStats, scope, seats);
  const Sums wins = SumsOf(game, kWinStats, scope, seats);
  const Sums losses = SumsOf(game, kLossStats, scope, seats);
  const Sums net{wins.count - losses.count, wins.total - losses.total};
  const auto add = [&](const char* block, ReportCell count, ReportCell total) {
    report.Add(block, "Total #", {std::move(count)}, kPlayersColumn);
    report.Add(block, "Total $", {std::move(total)}, kPlayersColumn);
  };
  const auto addSums = [&](const char* block, const Sums& sums) {
    add(block, {FewestDecimals(sums.count), sums.count.ToDouble()}, PlayersMoney(seats, sums.total));
  };
  addSums("Wagers", wagers);
  addSums("Wins", wins);
  addSums("Losses", losses);
  addSums("Net", net);
  report.rows.back().cells[0].balance = true;
  add("Net %", NetPercent(net.count, wagers.count), NetPercent(net.total, wagers.total));
}

}  // namespace

ReportTable SummaryReport(const Game& game, const ReportSelection& selection) {
  const Seats seats = SelectedPlayers(game, selection);
  ReportTable report;
  report.columns = {"table", "players"};
  AddRolls(game, selection.scope, seats, report);
  AddBankrolls(game, selection.scope, seats, report);
  AddComps(game, selection.scope, seats, report);
  AddBets(game, selection.scope, seats, report);
  return report;
}

}  // namespace tessaryn
