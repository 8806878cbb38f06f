#include "autobet/run/read_bet.h"

#include <algorithm>

#include "autobet/language/language.h"
#include "autobet/run/read_variable.h"
#include "autobet/run/script_errors.h"
#include "dice/percentage_dice.h"
#include "rules/advantage.h"
#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

struct BetQuestion {
  Game& game;
  ScopeId scope;
  SeatId seat;
  BetId bet;

  double Stat(StatTable table, StatKind kind) const {
    return BetStat(game.stats, table, scope, seat, bet, kind).ToDouble();
  }
  // Rolls since the bet's last entry in a table; -1 for never.
  double Since(StatTable table) const {
    return static_cast<double>(
        RollsSince(game.stats, scope, BetStat(game.stats, table, scope, seat, bet, kStatLastRoll)));
  }
};

// What the metric's table has of the last roll: 0 when that roll decided nothing.
double OfLastRoll(const BetQuestion& question, StatTable table, StatKind kind) {
  return question.Since(table) == 0 ? question.Stat(table, kind) : 0;
}

double PerHour(const BetQuestion& question, double amount) {
  const double hours = SimulatedHours(question.game, question.scope, question.seat);
  return hours > 0 ? amount / hours : 0;
}

bool TableStatistic(const BetQuestion& question, StatTable table, int measure, double& value) {
  switch (measure) {
    case kMeasureCount:
      value = question.Stat(table, kStatCount);
      return true;
    case kMeasureTotal:
    case kMeasureSum:
      value = question.Stat(table, kStatTotal);
      return true;
    case kMeasureHigh:
      value = question.Stat(table, kStatHigh);
      return true;
    case kMeasureLow:
      value = question.Stat(table, kStatLow);
      return true;
    case kMeasureAverage: {
      const double count = question.Stat(table, kStatCount);
      if (count == 0)
        return ScriptFails(question.game, static_cast<int>(kErrorNoWagers) + static_cast<int>(table));
      value = question.Stat(table, kStatTotal) / count;
      return true;
    }
    case kMeasureLastMoney:
      value = question.Stat(table, kStatLastAmount);
      return true;
    case kMeasureRollsSinceLast:
      value = question.Since(table);
      return value >= 0 ||
             ScriptFails(question.game, static_cast<int>(kErrorNoWagers) + static_cast<int>(table));
    case kMeasureLastRollCount:
      value = question.Since(table) == 0 ? 1 : 0;
      return true;
    case kMeasureLastRollMoney:
      value = OfLastRoll(question, table, kStatLastAmount);
      return true;
    case kMeasureCountPerHour:
      value = PerHour(question, question.Stat(table, kStatCount));
      return true;
    case kMeasureMoneyPerHour:
      value = PerHour(question, question.Stat(table, kStatTotal));
      return true;
    default:
      value = 0;
      return true;
  }
}

// The later of the last win and the last loss, with its sign.
double LastNet(const BetQuestion& question) {
  const double sinceWin = question.Since(kWinStats);
  const double sinceLoss = question.Since(kLossStats);
  if (sinceWin < 0 && sinceLoss < 0) return 0;
  const bool won = sinceLoss < 0 || (sinceWin >= 0 && sinceWin < sinceLoss);
  return won ? question.Stat(kWinStats, kStatLastAmount) : -question.Stat(kLossStats, kStatLastAmount);
}

bool NetStatistic(const BetQuestion& question, int measure, double& value) {
  const auto difference = [&question](StatKind kind) {
    return question.Stat(kWinStats, kind) - question.Stat(kLossStats, kind);
  };
  switch (measure) {
    case kMeasureCount:
      value = difference(kStatCount);
      return true;
    case kMeasureTotal:
    case kMeasureSum:
      value = difference(kStatTotal);
      return true;
    case kMeasureHigh:
      value = question.Stat(kWinStats, kStatHigh);
      return true;
    case kMeasureLow:
      value = -question.Stat(kLossStats, kStatHigh);
      return true;
    case kMeasureAverage: {
      const double count = question.Stat(kWagerStats, kStatCount);
      if (count == 0) return ScriptFails(question.game, kErrorNoWagers);
      value = difference(kStatTotal) / count;
      return true;
    }
    case kMeasureLastMoney:
      value = LastNet(question);
      return true;
    case kMeasureLastRollCount:
      value = question.Since(kWagerStats) == 0 ? 1 : 0;
      return true;
    case kMeasureLastRollMoney:
      value = OfLastRoll(question, kWinStats, kStatLastAmount) -
              OfLastRoll(question, kLossStats, kStatLastAmount);
      return true;
    case kMeasureCountPerHour:
      value = PerHour(question, difference(kStatCount));
      return true;
    case kMeasureMoneyPerHour:
      value = PerHour(question, difference(kStatTotal));
      return true;
    case kMeasureExpectedValue:
      value =
          question.Stat(kWagerStats, kStatTotal) * FigureAdvantage(question.game, question.bet).evPerDecision;
      return true;
    default:
      value = 0;
      return true;
  }
}

// The net in percent of what was wagered.
bool NetPercent(const BetQuestion& question, int measure, double& value) {
  if (measure == kMeasureExpectedValue) {
    value = 100 * FigureAdvantage(question.game, question.bet).evPerDecision;
    return true;
  }
  double net = 0;
  double wagered = 0;
  if (!NetStatistic(question, measure, net) || !TableStatistic(question, kWagerStats, measure, wagered))
    return false;
  value = wagered == 0 ? 0 : 100 * net / wagered;
  return true;
}

double Flag(bool on) { return on ? -1 : 0; }

// What lies on the table now, or lay there as the dice were thrown.
bool Standing(const BetQuestion& question, int measure, double& value) {
  const TableState& table = question.game.table;
  const Currency now = table.BetAmount(question.seat, question.bet);
  const Currency prior = table.BetBeforeRoll(question.seat, question.bet);
  switch (measure) {
    case kMeasureCurrentCount:
      value = now > kZero ? 1 : 0;
      return true;
    case kMeasureCurrentMoney:
      value = now.ToDouble();
      return true;
    case kMeasurePriorCount:
      value = prior > kZero ? 1 : 0;
      return true;
    case kMeasurePriorMoney:
      value = prior.ToDouble();
      return true;
    case kMeasureWorking:
      value = Flag(BetWorkingOf(question.game, question.seat, question.bet) > 0);
      return true;
    case kMeasureCalledOn:
      value = Flag(BetWorkingOf(question.game, question.seat, question.bet) == 2);
      return true;
    case kMeasureCalledOff:
      value = Flag(BetWorkingOf(question.game, question.seat, question.bet) == -1);
      return true;
    default:
      if (!IsLay(question.bet) && !IsBuy(question.bet)) return ScriptFails(question.game, kErrorVig);
      value = VigHeld(question.game, question.seat, question.bet).ToDouble();
      return true;
  }
}

}  // namespace

Currency SessionLastRoll(const Game& game, int metric, SeatId seat, BetId bet) {
  const Currency roll = Currency::Dollars(SessionRolls(game.stats));
  if (roll == kZero) return kZero;
  const int table = metric == kMetricWins ? kWinStats : kLossStats;
  // A hand's figures are its own until it ends, and then the session's.
  for (const ScopeId scope : {kCurrentHand, kCurrentSession}) {
    const auto& kinds = game.stats.Bets[bet][seat][scope].kinds[table];
    if (kinds[kStatLastRoll - 1] == roll) return kinds[kStatLastAmount - 1];
  }
  return kZero;
}

bool ReadBet(const Question& asked, double& value) {
  const BetQuestion question{asked.game, asked.scope, asked.seat, asked.code};
  const int measure = static_cast<int>(asked.measure);
  if (measure >= kMeasureCurrentCount) return Standing(question, measure, value);
  switch (asked.metric) {
    case kMetricTendered:
      // Tendered is what was offered, decided or not.
      if (measure == kMeasureLastRollCount || measure == kMeasureLastRollMoney)
        return Standing(question, measure == kMeasureLastRollCount ? kMeasurePriorCount : kMeasurePriorMoney,
                        value);
      return TableStatistic(question, kWagerStats, measure, value);
    case kMetricWins:
      return TableStatistic(question, kWinStats, measure, value);
    case kMetricLosses:
      return TableStatistic(question, kLossStats, measure, value);
    case kMetricNet:
      return NetStatistic(question, measure, value);
    case kMetricNetPercent:
      return NetPercent(question, measure, value);
    default:
      return TableStatistic(question, kWagerStats, measure, value);
  }
}

}  // namespace tessaryn
