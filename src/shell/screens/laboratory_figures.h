// What the laboratory's screen tells of an experiment: read from its sums while they grow, and small whatever
// the sessions.
#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

#include "lab/lab_state.h"
#include "lab/ranking.h"
#include "lab/search.h"

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
  std::vector<std::pair<double, double>> ruin;  // rolls, and the share that was ruined by then
  QString note;                                 // what went otherwise than asked for; mostly empty
};

struct LabPair {
  std::size_t a = 0;
  std::size_t b = 0;      // behind a
  MeanFigure difference;  // a less b
};

struct LabFigures {
  // Of the experiment.
  Currency bankroll;
  Currency winGoal;
  Currency lossLimit;
  std::int64_t mostRolls = 0;
  std::int64_t mostHands = 0;
  Currency mostHours;
  std::int64_t sessions = 0;
  std::int64_t target = 0;
  bool finished = false;
  // All bars are of one width, and 0 is an edge.
  double firstBar = 0;
  double barWidth = 1;
  double longest = 0;  // rolls of a session
  std::vector<SystemFigures> systems;
  std::vector<LabPair> pairs;  // all; of many systems those with the best by its mean, and what is compared
  std::size_t best = 0;
};

// Of many systems pictures' figures are those of a and b alone.
LabFigures FigureLab(LabState& state, std::size_t a = 0, std::size_t b = 1);

// a less b, whichever comes first; nothing for a pair that isn't there.
MeanFigure DifferenceOf(const LabFigures& figures, std::size_t a, std::size_t b);
bool HasPair(const LabFigures& figures, std::size_t a, std::size_t b);
// What a system is ranked by: dollars, or a share.
double RankValue(const SystemFigures& system, RankBy by);
bool IsShare(RankBy by);

// --- In words.

QString SignedMoney(double dollars);  // "+12.50"
QString LabMoney(double dollars);     // "-9.36"
QString LabCount(std::int64_t number);
QString LabShare(std::int64_t count, std::int64_t of);   // "41.0%"
QString LabBounds(std::int64_t count, std::int64_t of);  // "39.7 to 42.4"

// One sentence: which does better, with its bounds; b the same as a: how a does. Without markup.
struct LabVerdict {
  QString sentence;
  QString coloured;  // the same as HTML, with the colours of A and B
  QString below;     // on what it stands, and what more sessions would bring
};
LabVerdict JudgeLab(const LabFigures& figures, std::size_t a, std::size_t b, bool dark = false);

// How sessions end, as the experiment has such ends.
struct LabEnd {
  QString caption;
  std::int64_t SystemFigures::*count;
};
QList<LabEnd> EndsOf(const LabFigures& figures);

// A line each for a and b, a heading first; all systems with a line each.
QList<QStringList> MeasureRows(const LabFigures& figures, std::size_t a, std::size_t b);
QList<QStringList> SystemRows(const LabFigures& figures);
// The best first, its place before its name.
QList<QStringList> RankedRows(const LabFigures& figures, RankBy by);
QList<QStringList> PairRows(const LabFigures& figures);
QString RankCaption(RankBy by);
QString RankText(double value, RankBy by);
// What a search has found, a line for each system.
QList<QStringList> FoundRows(const Experiment& experiment, const LabQuestion& question,
                             const std::vector<LabAnswer>& answers);
QString FoundSentence(const Experiment& experiment, const LabQuestion& question,
                      const std::vector<LabAnswer>& answers);

QColor LabColour(bool second, bool dark);

}  // namespace tessaryn
