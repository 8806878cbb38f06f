// What the laboratory's screen tells of an experiment: read from its sums while they grow, and small whatever
// the sessions.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

#include "lab/lab_state.h"

namespace tessaryn {

inline constexpr int kFanBands[] = {5, 25, 50, 75, 95};  // percent, at each mark of the way
inline constexpr int kFanLines = 5;

// Money in dollars.
struct SystemFigures {
  QString name;
  std::int64_t sessions = 0;
  std::int64_t rolls = 0;
  std::int64_t won = 0;
  std::int64_t brokeEven = 0;
  std::int64_t lost = 0;
  std::int64_t ruined = 0;
  std::int64_t goal = 0;
  std::int64_t limit = 0;
  std::int64_t stopped = 0;
  MeanFigure net;
  MeanFigure adjusted;
  double lowest = 0;
  double highest = 0;
  double quantiles[std::size(kQuantilePercents)] = {};
  double drawdown = 0;  // mean
  std::vector<std::int64_t> bars;
  double fan[kFanMarks][kFanLines] = {};
  QString note;  // what went otherwise than asked for; mostly empty
};

struct LabFigures {
  // Of the experiment.
  Currency bankroll;
  Currency winGoal;
  Currency lossLimit;
  std::int64_t mostRolls = 0;
  std::int64_t mostHands = 0;
  std::int64_t sessions = 0;
  std::int64_t target = 0;
  bool finished = false;
  // All bars are of one width, and 0 is an edge.
  double firstBar = 0;
  double barWidth = 1;
  std::vector<SystemFigures> systems;
  std::vector<MeanFigure> pairs;  // a less b, in the order of ForEachPair
};

LabFigures FigureLab(LabState& state);

// a less b, whichever comes first.
MeanFigure DifferenceOf(const LabFigures& figures, std::size_t a, std::size_t b);

// --- In words.

QString SignedMoney(double dollars);  // "+12.50"
QString LabMoney(double dollars);     // "-9.36"
QString LabCount(std::int64_t number);
QString LabShare(std::int64_t count, std::int64_t of);   // "41.0%"
QString LabBounds(std::int64_t count, std::int64_t of);  // "39.7 to 42.4"

// One sentence: which does better, with its bounds; b the same as a: how a does. Without markup.
struct LabVerdict {
  QString sentence;
  QString below;  // on what it stands, and what more sessions would bring
};
LabVerdict JudgeLab(const LabFigures& figures, std::size_t a, std::size_t b);

// How sessions end, as the experiment has such ends.
struct LabEnd {
  QString caption;
  std::int64_t SystemFigures::*count;
};
QList<LabEnd> EndsOf(const LabFigures& figures);

// A line each for a and b, a heading first; all systems with a line each.
QList<QStringList> MeasureRows(const LabFigures& figures, std::size_t a, std::size_t b);
QList<QStringList> SystemRows(const LabFigures& figures);

}  // namespace tessaryn
