// The reports against a ledger kept by hand: it sees the dice, hears each decided bet as it is asked about,
// looks at the bankrolls, and never at the statistics. Every cell of every report is then worked out again.
#include "play/reports.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <random>

#include "base/bet_catalogue.h"
#include "base/number_text.h"
#include "dice/percentage_dice.h"
#include "rules/advantage.h"
#include "rules/bet_rules.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "state/vig.h"
#include "stats/roll_item_lists.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::TestTable;
using Rows = std::map<std::string, std::vector<std::string>>;
using Row = std::vector<std::string>;
using Seats = std::vector<int>;

std::string Fewest(double value) { return FewestDecimals(value); }
std::string Whole(double value) { return NumberText(value, kWholeNumber); }
double Money(double value) { return Currency::FromDouble(value).ToDouble(); }

// --- The ledger.

struct Decision {
  int seat, bet;
  double wagered, net;
};
struct Thrown {
  std::int64_t at;  // of all rolls ever
  int die1, die2, credited, pointBefore;
  bool opensHand;
  std::vector<Decision> decisions;
  std::array<double, kSeatRows> bankroll;  // as it closed
  int Total() const { return die1 + die2; }
};
using Amounts = std::array<double, kSeatRows>;
struct Stretch {
  std::vector<Thrown> rolls;
  Amounts start{}, end{}, high{}, low{};
  void See(const Amounts& bankrolls) {
    end = bankrolls;
    for (std::size_t seat = 1; seat <= kSeats; ++seat) {
      high[seat] = std::max(high[seat], end[seat]);
      low[seat] = std::min(low[seat], end[seat]);
    }
  }
};

struct Ledger : test::TestHost {
  std::mt19937 random{1};
  Stretch scopes[kScopes];
  std::vector<Decision> heard;
  std::array<std::array<int, kBets + 1>, kSeatRows> streaks{};
  std::array<std::array<double, kBets + 1>, kSeatRows> priorBets{};
  std::int64_t rolls = 0;

  int Pick(int first, int last) { return std::uniform_int_distribution(first, last)(random); }

  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override {
    if (!question.offOdds) {
      const double amount = game.table.BetAmount(question.seat, question.bet).ToDouble();
      const bool upFront = HasVig(question.bet) && VigUpFront(game, question.bet);
      heard.push_back({question.seat, question.bet, amount + (upFront ? question.vig.ToDouble() : 0),
                       question.net.ToDouble()});
      int& streak = streaks[question.seat][question.bet];
      streak = question.net > kZero ? std::max(streak, 0) + 1 : std::min(streak, 0) - 1;
    }
    SettleAnswer answer;
    answer.choice = Pick(1, 5);
    return answer;
  }

  static Amounts Bankrolls(const Game& game) {
    Amounts amounts{};
    for (int seat = 1; seat <= kSeats; ++seat) amounts[seat] = game.table.BankrollCurrent[seat].ToDouble();
    return amounts;
  }

  void Begin(const Game& game, std::initializer_list<int> begun) {
    const Amounts now = Bankrolls(game);
    for (const int scope : begun) scopes[scope] = {{}, now, now, now, now};
  }

  void Roll(TestTable& table) {
    const TableState& state = table.State();
    for (int seat = 1; seat <= kSeats; ++seat)
      for (int bet = 1; bet <= kBets; ++bet) priorBets[seat][bet] = state.BetAmount(seat, bet).ToDouble();
    Thrown thrown{++rolls, Pick(1, 6), Pick(1, 6), state.HandSeat, state.Point, false, {}, {}};
    thrown.opensHand = scopes[kCurrentHand].rolls.empty();
    heard.clear();
    table.Roll(thrown.die1, thrown.die2);
    thrown.decisions = heard;
    thrown.bankroll = Bankrolls(*table.game);
    for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions}) {
      scopes[scope].rolls.push_back(thrown);
      scopes[scope].See(thrown.bankroll);
    }
    if (thrown.pointBefore == 0 || thrown.Total() != 7) return;
    scopes[kLastHand] = scopes[kCurrentHand];
    Begin(*table.game, {kCurrentHand});
  }

  void NewSession(Game& game, bool keepPrevious) {
    const bool handRolled = !scopes[kCurrentHand].rolls.empty();
    const bool rolled = !scopes[kCurrentSession].rolls.empty();
    if (handRolled) scopes[kLastHand] = scopes[kCurrentHand];
    if (rolled) scopes[kLastSession] = scopes[kCurrentSession];
    tessaryn::NewSession(game, keepPrevious, false, true, kCloseRollFile);
    // What the session abandoned is gone as it ends, without having been seen at a roll.
    if (handRolled) scopes[kLastHand].end = Bankrolls(game);
    if (rolled) scopes[kLastSession].end = Bankrolls(game);
    Begin(game, {kCurrentHand, kCurrentSession});
    if (!keepPrevious) Begin(game, {kAllSessions});
    scopes[kAllSessions].See(Bankrolls(game));
    streaks = {};
    priorBets = {};
  }
};

// --- The reports, worked out from the ledger.

Seats SeatsOf(std::uint32_t mask) {
  Seats seats;
  for (int seat = 1; seat <= kSeats; ++seat)
    if ((mask >> seat & 1) != 0) seats.push_back(seat);
  return seats;
}
bool Has(const Seats& seats, int seat) { return std::find(seats.begin(), seats.end(), seat) != seats.end(); }
// Nobody stands for the table.
bool CountsFor(const Seats& seats, const Thrown& roll) { return seats.empty() || Has(seats, roll.credited); }

struct Sums {
  double count = 0, total = 0, high = 0, low = 0, last = 0, onLatest = 0, onLatestAmount = 0;
  std::int64_t lastAt = 0;
};
// side: 0 wagers, 1 wins, 2 losses.
Sums SumUp(const Ledger& ledger, int scope, const Seats& seats, const BetSet& bets, int side) {
  struct Last {
    double amount;
    std::int64_t at;
  };
  std::map<std::pair<int, int>, Last> last;
  Sums sums;
  for (const Thrown& roll : ledger.scopes[scope].rolls)
    for (const Decision& decision : roll.decisions) {
      const bool asked = Has(seats, decision.seat) && bets.Has(decision.bet);
      if (!asked || (side == 1 && decision.net < 0) || (side == 2 && decision.net > 0)) continue;
      const double amount = side == 0 ? decision.wagered : std::fabs(decision.net);
      ++sums.count;
      sums.total += amount;
      sums.high = std::max(sums.high, amount);
      if (sums.low == 0 || amount < sums.low) sums.low = amount;
      last[{decision.seat, decision.bet}] = {amount, roll.at};
    }
  for (const auto& [bet, latest] : last) {
    sums.last += latest.amount;
    sums.lastAt = std::max(sums.lastAt, latest.at);
    if (latest.at != ledger.rolls) continue;
    ++sums.onLatest;
    sums.onLatestAmount += latest.amount;
  }
  return sums;
}

double Expected(const Game& game, const Ledger& ledger, int scope, const Seats& seats, const BetSet& bets,
                bool dice) {
  std::map<int, double> wagered;
  for (const Thrown& roll : ledger.scopes[scope].rolls)
    for (const Decision& decision : roll.decisions)
      if (Has(seats, decision.seat) && bets.Has(decision.bet)) wagered[decision.bet] += decision.wagered;
  double expected = 0;
  for (const auto& [bet, amount] : wagered)
    expected += amount * FigureAdvantage(game, bet, dice).evPerDecision;
  return expected;
}

std::string PerCent(double net, double wagers, const char* without) {
  return wagers == 0 ? without : Fewest(100 * net / wagers);
}

Rows Summary(const Game& game, const Ledger& ledger, int scope, const Seats& seats) {
  const Stretch& stretch = ledger.scopes[scope];
  const auto rolls = static_cast<double>(stretch.rolls.size());
  const double rate = game.settings.SimRollRate.ToDouble();
  double shot = 0, tableHands = 0, hands = 0;
  for (const Thrown& roll : stretch.rolls) {
    shot += Has(seats, roll.credited);
    tableHands += roll.opensHand;
    hands += roll.opensHand && Has(seats, roll.credited);
  }
  double high = -1e9, low = 1e9, begin = 0, now = 0, average = 0, averageAction = 0, action = 0, comps = 0,
         decisions = 0, vig = 0, vigInForce = 0;
  const bool over = scope == kLastHand || scope == kLastSession;
  for (const int seat : seats) {
    high = std::max(high, stretch.high[seat]);
    low = std::min(low, stretch.low[seat]);
    begin += stretch.start[seat];
    now += stretch.end[seat];
    const Stretch& session = ledger.scopes[kCurrentSession];
    double sum = session.start[seat];
    for (const Thrown& roll : session.rolls) sum += roll.bankroll[seat];
    average += Money(sum / static_cast<double>(session.rolls.size() + 1));
    const Sums comped = SumUp(ledger, scope, {seat}, kAllTableBets, 0);
    action += comped.total;
    decisions += comped.count;
    const double seatVig = -Expected(game, ledger, scope, {seat}, kAllTableBets, false);
    vig += seatVig;
    vigInForce -= Expected(game, ledger, scope, {seat}, kAllTableBets, game.percentage.PercentageDiceActive);
    comps += Money(seatVig * (30 * 0.01));
    if (comped.count > 0) averageAction += Money(comped.total * (rolls / rate) / comped.count);
  }
  const bool star = Money(vig) != Money(vigInForce);
  const bool nobody = seats.empty();
  const auto money = [nobody](double amount) { return Row{nobody ? "" : Fewest(Money(amount))}; };
  Rows rows{{"Total rolls", {Whole(rolls), Whole(shot)}},
            {"Total hands", {Whole(tableHands), Whole(hands)}},
            {"Sim hours", {Fewest(rolls / rate)}},
            {"Rolls / hour", {Fewest(rate)}},
            {"% of rolls",
             {shot == 0       ? "0%"
              : shot == rolls ? "100%"
                              : NumberText(100 * shot / rolls, kPercentShare)}},
            {"High bankroll", money(high)},
            {"Low bankroll", money(low)},
            {"Beginning bankroll", money(begin)},
            {over ? "Ending bankroll" : "Current bankroll", money(now)},
            {"Average bankroll", money(Money(average) / std::max(1.0, static_cast<double>(seats.size())))},
            {"Total comp action $", money(action)},
            {"Total # comp bets", {Whole(decisions)}},
            {"Avg comp action $", money(decisions > 0 ? action / decisions : 0)},
            {"Avg action x time $", money(averageAction)},
            {star ? "* Theoretical vig $" : "Theoretical vig $", money(vig)},
            {"Comp rate %", {"30"}},
            {"Total comp value $", money(comps)}};
  Sums sums[3];
  for (int side = 0; side < 3; ++side) sums[side] = SumUp(ledger, scope, seats, kAllTableBets, side);
  const char* names[] = {"Wagers", "Wins", "Losses"};
  for (int side = 0; side < 3; ++side) {
    rows[std::string(names[side]) + " Total #"] = {Whole(sums[side].count)};
    rows[std::string(names[side]) + " Total $"] = money(sums[side].total);
  }
  const double net = sums[1].total - sums[2].total;
  rows["Net Total #"] = {Whole(sums[1].count - sums[2].count)};
  rows["Net Total $"] = money(net);
  rows["Net % Total #"] = {PerCent(sums[1].count - sums[2].count, sums[0].count, "---")};
  rows["Net % Total $"] = {PerCent(net, sums[0].total, "---")};
  return rows;
}

struct HandCounts {
  double rolls = 0, kinds[3] = {}, numbers[13][3] = {};
  void Add(const Thrown& roll) {
    const int total = roll.Total();
    ++rolls;
    const auto count = [this](int number, int kind) {
      ++numbers[number][kind];
      ++kinds[kind];
    };
    if (roll.pointBefore == 0) {
      count(total, 0);
      if (total == 7 || total == 11) count(total, 1);
      if (total <= 3 || total == 12) count(total, 2);
    } else if (total == roll.pointBefore) {
      count(total, 1);
    } else if (total == 7) {
      count(roll.pointBefore, 2);
    }
  }
};

Rows Hands(const Ledger& ledger, int scope, const Seats& seats, bool percent) {
  HandCounts all, one;
  double hands = 0, mostRolls = 0, most[3] = {};
  double tableHand = 0;
  for (const Thrown& roll : ledger.scopes[scope].rolls) {
    if (roll.opensHand) tableHand = 0;
    ++tableHand;
    if (roll.opensHand) one = {};
    if (!CountsFor(seats, roll)) continue;
    hands += roll.opensHand;
    all.Add(roll);
    one.Add(roll);
    mostRolls = std::max(mostRolls, tableHand);
    for (int kind = 0; kind < 3; ++kind) most[kind] = std::max(most[kind], one.kinds[kind]);
  }
  // The table keeps no maximum of the hand in play, and so none of the last one.
  if (seats.empty() && (scope == kCurrentHand || scope == kLastHand)) mostRolls = 0;
  Rows rows;
  const auto add = [&](const std::string& label, auto value) {
    for (int kind = 0; kind < 3; ++kind) {
      const double count = value(kind);
      rows[label].push_back(!percent               ? Whole(count)
                            : all.kinds[kind] == 0 ? "0"
                                                   : NumberText(100 * count / all.kinds[kind], kTwoDecimals));
    }
  };
  const auto points = [&all](int kind) {
    double sum = 0;
    for (const int number : kBoxNumbers) sum += all.numbers[number][kind];
    return sum;
  };
  for (int number = 2; number <= 12; ++number)
    add(std::to_string(number), [&](int kind) { return all.numbers[number][kind]; });
  add("Total", [&](int kind) { return all.kinds[kind]; });
  add("Points", points);
  add("Naturals", [&](int kind) { return all.kinds[kind] - points(kind); });
  const auto perHand = [hands](double count) {
    return Row{hands == 0 ? "0" : NumberText(count / hands, kUpToTwoDecimals)};
  };
  rows["Total rolls"] = {Whole(all.rolls)};
  rows["Total hands"] = {Whole(hands)};
  rows["Most rolls in a hand"] = {Whole(mostRolls)};
  rows["Avg rolls per hand"] = perHand(all.rolls);
  const char* names[] = {"c/o rolls", "passes", "misses"};
  for (int kind = 0; kind < 3; ++kind) {
    rows[std::string("Most ") + names[kind] + " in a hand"] = {Whole(most[kind])};
    rows[std::string("Avg ") + names[kind] + " per hand"] = perHand(all.kinds[kind]);
  }
  return rows;
}

// The rolls since a bet's last decision in a scope, were it never decided.
double NeverDecided(const Ledger& ledger, int scope) {
  const auto rolls = [&ledger](int of) { return static_cast<double>(ledger.scopes[of].rolls.size()); };
  const bool fromBefore = rolls(kLastHand) + rolls(kCurrentHand) > rolls(kCurrentSession);
  if (scope == kAllSessions) return rolls(kAllSessions);
  const bool both = scope == kLastSession || (scope == kLastHand && fromBefore);
  return rolls(kCurrentSession) + (both ? rolls(kLastSession) : 0);
}

Rows BetResults(const Game& game, const Ledger& ledger, int scope, const Seats& seats, const BetSet& bets) {
  Sums sums[3];
  for (int side = 0; side < 3; ++side) sums[side] = SumUp(ledger, scope, seats, bets, side);
  Rows rows;
  const auto add = [&](const char* label, auto value, bool net) {
    const double all = std::invoke(value, sums[0]), won = std::invoke(value, sums[1]),
                 lost = std::invoke(value, sums[2]);
    rows[label] = {Fewest(all), Fewest(won), Fewest(lost), net ? Fewest(won - lost) : "---",
                   net ? PerCent(won - lost, all, "") : "---"};
  };
  add("Total #", &Sums::count, true);
  add("Total $", &Sums::total, true);
  add("High $", &Sums::high, false);
  add("Low $", &Sums::low, false);
  add("Last $", &Sums::last, true);
  const auto since = [&](const Sums& of) {
    return of.lastAt == 0 ? NeverDecided(ledger, scope) : static_cast<double>(ledger.rolls - of.lastAt);
  };
  add("# rolls since last", since, false);
  add("Last roll #", &Sums::onLatest, true);
  add("Last roll $", &Sums::onLatestAmount, true);
  const double hours =
      static_cast<double>(ledger.scopes[scope].rolls.size()) / game.settings.SimRollRate.ToDouble();
  add(
      "Average $", [](const Sums& of) { return of.count == 0 ? 0 : Money(of.total / of.count); }, true);
  add(
      "Avg # / hour", [hours](const Sums& of) { return of.count / hours; }, true);
  add(
      "Avg $ / hour", [hours](const Sums& of) { return of.total == 0 ? 0 : Money(of.total / hours); }, true);
  for (std::size_t side = 0; side < 3; ++side)
    if (sums[side].count == 0) rows["Average $"][side] = "---";
  if (sums[0].count == 0)
    rows["Average $"] = rows["Avg # / hour"] = rows["Avg $ / hour"] = {"---", "---", "---", "---", ""};
  double nowCount = 0, now = 0, priorCount = 0, prior = 0;
  for (const int seat : seats)
    bets.ForEach([&](int bet) {
      const double amount = game.table.BetAmount(seat, bet).ToDouble();
      nowCount += amount > 0;
      now += amount;
      priorCount += ledger.priorBets[seat][bet] > 0;
      prior += ledger.priorBets[seat][bet];
    });
  rows["Current #"] = {Whole(nowCount)};
  rows["Current $"] = {Fewest(now)};
  rows["Prior roll #"] = {Whole(priorCount)};
  rows["Prior roll $"] = {Fewest(prior)};
  rows["Expected value $"] = {
      Fewest(Money(Expected(game, ledger, scope, seats, bets, game.percentage.PercentageDiceActive)))};
  if (seats.empty())
    for (auto& [label, texts] : rows)
      if (label.find('$') != std::string::npos || label == "Current #" || label == "Prior roll #")
        for (std::string& text : texts) text.clear();
  return rows;
}

Rows EachBet(const Game& game, const Ledger& ledger, int scope, const Seats& seats, const BetSet& bets) {
  Rows rows;
  for (const int seat : seats)
    bets.ForEach([&](int bet) {
      Sums sums[3];
      for (int side = 0; side < 3; ++side)
        sums[side] = SumUp(ledger, scope, {seat}, BetRange(bet, bet), side);
      if (sums[0].count == 0) return;
      const double net = sums[1].total - sums[2].total;
      rows[(seats.size() > 1 ? game.table.seats[seat].SeatName + ": " : "") + BetName(bet)] = {
          Whole(sums[0].count), Fewest(sums[0].total), Whole(sums[1].count),
          Whole(sums[2].count), Fewest(net),           PerCent(net, sums[0].total, "")};
    });
  return rows;
}

// By the words of an outcome: faces "(1.3) or (3.1)", "Die 2, face 5", or totals "Numbers 2,3,12".
bool Fits(const std::string& outcome, const Thrown& roll) {
  const std::string faces = std::to_string(roll.die1) + "." + std::to_string(roll.die2);
  if (outcome.find('.') != std::string::npos) return outcome.find(faces) != std::string::npos;
  if (outcome.starts_with("Die"))
    return outcome.substr(12) == std::to_string(outcome[4] == '1' ? roll.die1 : roll.die2);
  const auto blank = outcome.find(' ');
  const std::string totals = "," + outcome.substr(blank == std::string::npos ? 0 : blank + 1) + ",";
  return totals.find("," + std::to_string(roll.Total()) + ",") != std::string::npos;
}

Rows RollTotals(const Game& game, const Ledger& ledger, const ReportSelection& selection,
                const Seats& seats) {
  Rows rows;
  const auto add = [&](const std::string& label, const std::string& outcome, double ways, double skewed) {
    double rolls = 0, count = 0;
    for (const Thrown& roll : ledger.scopes[selection.scope].rolls) {
      if (!Has(seats, roll.credited)) continue;
      ++rolls;
      count += Fits(outcome, roll);
    }
    const auto& session = ledger.scopes[kCurrentSession].rolls;
    const auto found =
        std::find_if(session.rbegin(), session.rend(), [&](const Thrown& r) { return Fits(outcome, r); });
    const bool running = selection.scope == kCurrentHand || selection.scope == kCurrentSession;
    rows[label] = {Whole(count), running ? Whole(static_cast<double>(found - session.rbegin())) : "---",
                   rolls == 0 ? "0" : NumberText(100 * count / rolls, kTwoDecimals),
                   selection.skewed ? Fewest(skewed / 1000) : Fewest(std::round(ways * 10000 / 36) / 100)};
  };
  const auto& matrix = game.percentage.ProbMatrix[1];
  const auto text = [](int number) { return std::to_string(number); };
  for (int die1 = 1; die1 <= 6; ++die1) {
    if (selection.grouping == RollGrouping::kFaces) {
      add("Die 1, face " + text(die1), "Die 1, face " + text(die1), 6, matrix[die1 + 1][12]);
      add("Die 2, face " + text(die1), "Die 2, face " + text(die1), 6, matrix[die1 + 1][13]);
    }
    for (int die2 = 1; die2 <= 6; ++die2) {
      const std::string there = text(die1) + "." + text(die2);
      const std::string back = text(die2) + "." + text(die1);
      const int total = die1 + die2;
      const double one = matrix[ProbabilityRow(die1, die2)][total - 1];
      const double two = die1 == die2 ? one : one + matrix[ProbabilityRow(die2, die1)][total - 1];
      if (selection.grouping == RollGrouping::kCombinations) add(there, there, 1, one);
      if (selection.grouping == RollGrouping::kPairs && die1 <= die2)
        add(there, there + " " + back, die1 == die2 ? 1 : 2, two);
      if (selection.grouping == RollGrouping::kTotals)
        add(text(total), text(total), 6 - std::abs(7 - total), matrix[1][total - 1]);
    }
  }
  return rows;
}

Rows RollFrequencies(const Game& game, const Ledger& ledger, int item, bool skewed) {
  const std::string outcome = RollItemText(item);
  const auto& session = ledger.scopes[kCurrentSession].rolls;
  std::map<std::size_t, int> gaps;
  double count = 0;
  std::size_t gap = 0;
  for (const Thrown& roll : session) {
    ++gap;
    if (!Fits(outcome, roll)) continue;
    ++gaps[std::min<std::size_t>(gap, 200)];
    ++count;
    gap = 0;
  }
  const auto rolls = static_cast<double>(session.size());
  Rows rows{{"Total session rolls:", {Whole(rolls)}},
            {"Total rolls this selection:", {Whole(count)}},
            {"# rolls since last rolled:", {Whole(static_cast<double>(gap))}},
            {"Actual % rolled:", {rolls == 0 ? "" : Fewest(100 * count / rolls)}},
            {skewed ? "Skewed probable %:" : "True probable %:",
             {Fewest(ProbabilityOfEvent(game.percentage, item, skewed))}},
            {"Average # of rolls to achieve:", {count == 0 ? "0" : Fewest(rolls / count)}}};
  for (std::size_t g = 1; g <= 200; ++g)
    rows[std::to_string(g)] = {gaps[g] == 0 ? "" : std::to_string(gaps[g])};
  return rows;
}

Rows BetTrends(const Ledger& ledger, int seat) {
  Rows rows;
  for (int bet = 1; bet <= kBets; ++bet) {
    const int streak = seat == 0 ? 0 : ledger.streaks[seat][bet];
    rows[BetName(bet)] = {streak == 0 ? "" : (streak > 0 ? " " : "") + std::to_string(streak)};
  }
  return rows;
}

// --- Side by side.

void ExpectReport(const Game& game, const ReportSelection& selection, const char* name,
                  const Rows& expected) {
  const ReportTable report = MakeReport(game, *FindReport(name), selection);
  Rows actual;
  for (std::size_t i = 0; i < report.rows.size(); ++i) {
    Row& texts = actual[RowName(report, i)];
    EXPECT_TRUE(texts.empty()) << name << " has " << RowName(report, i) << " twice";
    for (const ReportCell& cell : report.rows[i].cells) texts.push_back(cell.text);
  }
  for (const auto& [label, texts] : expected) EXPECT_EQ(texts, actual[label]) << name << ", " << label;
  EXPECT_EQ(actual.size(), expected.size()) << name;
  const auto lines = test::Lines(ReportAsCsv(report));
  EXPECT_EQ(lines.size(), report.rows.size() + 1) << name;
}

void ExpectAllReports(const Game& game, const Ledger& ledger, const ReportSelection& s) {
  const Seats seats = SeatsOf(s.seats);
  SCOPED_TRACE("scope " + std::to_string(s.scope) + " seats " + std::to_string(s.seats) + " after roll " +
               std::to_string(ledger.rolls));
  ExpectReport(game, s, "summary", Summary(game, ledger, s.scope, seats));
  ExpectReport(game, s, "hands", Hands(ledger, s.scope, seats, s.percent));
  ExpectReport(game, s, "bet-results", BetResults(game, ledger, s.scope, seats, s.bets));
  ReportSelection each = s;
  each.eachBet = true;
  ExpectReport(game, each, "bet-results", EachBet(game, ledger, s.scope, seats, s.bets));
  ExpectReport(game, s, "bet-trends", BetTrends(ledger, s.seat));
  ExpectReport(game, s, "roll-totals", RollTotals(game, ledger, s, seats));
  ExpectReport(game, s, "roll-frequencies", RollFrequencies(game, ledger, s.item, s.skewed));
}

struct LedgerTable {
  Ledger ledger;
  TestTable table;
  Game& game = *table.game;
  Seats players;

  LedgerTable(unsigned seed, int count) {
    ledger.random.seed(seed);
    game.host = &ledger;
    table.Set("ShooterBetRule", "0");
    table.Set("MessageMask", "0");
    for (int seat = 1; seat <= count; ++seat) {
      table.Join(seat, std::string(1, static_cast<char>('A' + seat)) + "nn", "50000");
      players.push_back(seat);
      game.table.seats[seat].handling.WinHandling = game.table.seats[seat].handling.LoseHandling = 0;
    }
    ledger.Begin(game, {kCurrentHand, kCurrentSession, kAllSessions});
  }

  void BetSomething(int seat) {
    static const char* const kAmounts[] = {"3", "5", "6", "12.5", "25", "47", "120"};
    for (int bets = ledger.Pick(0, 3); bets > 0; --bets)
      PlaceBet(game, seat, ledger.Pick(1, kBets), ParseMoney(kAmounts[ledger.Pick(0, 6)]));
    if (ledger.Pick(1, 3) == 1) PlaceBet(game, seat, kPassLine, Currency::Dollars(10));
  }

  ReportSelection Selection() {
    ReportSelection selection;
    selection.scope = ledger.Pick(0, kScopes - 1);
    for (const int seat : players)
      if (ledger.Pick(0, 1) == 1) selection.seats |= 1u << seat;
    selection.seat = ledger.Pick(0, static_cast<int>(players.size()));
    if (ledger.Pick(0, 1) == 1) {
      selection.bets.Clear();
      for (int bet = 1; bet <= kBets; ++bet) selection.bets.Set(bet, ledger.Pick(0, 4) == 0);
    }
    selection.percent = ledger.Pick(0, 1) == 1;
    selection.grouping = static_cast<RollGrouping>(ledger.Pick(0, 3));
    selection.skewed = ledger.Pick(0, 1) == 1;
    selection.item = ledger.Pick(2, 89);
    return selection;
  }
};

TEST(Reports, EqualWhatALedgerOfTheGameSays) {
  for (unsigned seed = 1; seed <= 12 && !::testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    LedgerTable play(seed, static_cast<int>(1 + seed % 4));
    if (seed % 3 == 0) play.table.Set("CheckValue.1", "0.25");
    if (seed % 3 == 1) play.table.Set("LayVigUpFront", "off");
    play.table.Set("SimRollRate", seed % 2 == 0 ? "120" : "97.5");
    for (int roll = 0; roll < 300 && !::testing::Test::HasFailure(); ++roll) {
      for (const int seat : play.players) play.BetSomething(seat);
      if (play.ledger.Pick(1, 25) == 1) PassDice(play.game, kPassByUser);
      play.ledger.Roll(play.table);
      if (roll % 20 == 0) ExpectAllReports(play.game, play.ledger, play.Selection());
      if (play.ledger.Pick(1, 90) != 1) continue;
      play.ledger.NewSession(play.game, play.ledger.Pick(0, 2) != 0);
      ExpectAllReports(play.game, play.ledger, play.Selection());
    }
  }
}

// Dice that the percentage dice roll otherwise: the expectation of the bets is theirs, the comps' is that of
// fair dice unless the setting says otherwise, and the mark tells when that makes a difference.
TEST(Reports, TheMarkStandsWhereAnOptionChangesTheFigure) {
  LedgerTable play(7, 2);
  SetProbabilityCell(play.game.percentage, 1, 6, 30'000, true);
  for (int roll = 0; roll < 60; ++roll) {
    for (const int seat : play.players) play.BetSomething(seat);
    play.ledger.Roll(play.table);
  }
  ReportSelection selection;
  selection.seats = kAllSeatsSelected;
  const auto marked = [&] {
    const ReportTable report = SummaryReport(play.game, selection);
    return std::any_of(report.rows.begin(), report.rows.end(),
                       [](const ReportRow& row) { return row.label == "* Theoretical vig $"; });
  };
  EXPECT_FALSE(marked());
  ASSERT_TRUE(ActivatePercentageDice(play.game.percentage, true));
  EXPECT_TRUE(marked());
  selection.seats = 0x6;
  ExpectAllReports(play.game, play.ledger, selection);
  play.table.Set("CompUseTrueProbs", "off");
  EXPECT_FALSE(marked());
  play.table.Set("IncludeZeroOutcomes", "on");
  EXPECT_TRUE(marked());
}

TEST(Reports, NothingIsDividedByNothing) {
  LedgerTable play(1, 2);
  ReportSelection selection;
  for (const std::uint32_t seats : {0u, 2u, 6u})
    for (int scope = 0; scope < kScopes; ++scope) {
      selection.seats = seats;
      selection.scope = scope;
      ExpectAllReports(play.game, play.ledger, selection);
    }
  play.table.Bet(1, kField, "5");
  play.ledger.Roll(play.table);
  selection.scope = kCurrentSession;
  ExpectAllReports(play.game, play.ledger, selection);
  // A rate that only a file can bring.
  play.game.settings.SimRollRate = {};
  for (const ReportKind& kind : ReportKinds())
    for (const ReportRow& row : MakeReport(play.game, kind, selection).rows)
      for (const ReportCell& cell : row.cells) {
        EXPECT_EQ(cell.text.find_first_of("ni"), std::string::npos) << row.label << ": " << cell.text;
        const bool timed = row.label.find("hour") != std::string::npos || row.label == "Avg action x time $";
        EXPECT_TRUE(!timed || cell.text.empty() || row.label == "Rolls / hour") << row.label << cell.text;
      }
}

TEST(NumberText, DecimalsSeparatorsAndRounding) {
  struct Case {
    double value;
    const char *fewest, *two, *upToTwo, *share;
  };
  for (const Case& c :
       {Case{0, "0", "0", "0", "0%"}, Case{-1.41, "-1.41", "-1.41", "-1.41", "-1.41%"},
        Case{1234567, "1,234,567", "1,234,567.00", "1,234,567", "1,234,567.0%"},
        Case{0.5, "0.5", ".50", "0.5", "0.5%"}, Case{-0.5, "-0.5", "-.50", "-0.5", "-0.5%"},
        Case{1e-9, "< 0.0001", ".00", "0", "0.0%"}, Case{-1e-9, "0", ".00", "0", "0.0%"},
        Case{999.99996, "1,000.0", "1,000.00", "1,000", "1,000.0%"},
        Case{3.125, "3.125", "3.13", "3.13", "3.13%"}, Case{1.0 / 0.0, "---", "---", "---", "---"}}) {
    EXPECT_EQ(FewestDecimals(c.value), c.fewest);
    EXPECT_EQ(NumberText(c.value, kTwoDecimals), c.two);
    EXPECT_EQ(NumberText(c.value, kUpToTwoDecimals), c.upToTwo);
    EXPECT_EQ(NumberText(c.value, kPercentShare), c.share);
  }
  EXPECT_EQ(FewestDecimals(Currency::FromRaw(9'223'372'036'854'775'807)), "922,337,203,685,477.5807");
  EXPECT_EQ(FewestDecimals(Currency::Error()), "---");
}

}  // namespace
}  // namespace tessaryn
