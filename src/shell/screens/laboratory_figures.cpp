#include "shell/screens/laboratory_figures.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

constexpr double kDollar = Currency::kPerDollar;
constexpr double kMostBars = 60;

QString Words(const char* text) { return QCoreApplication::translate("Laboratory", text); }
QString Counted(const char* text, std::int64_t count) {
  return QCoreApplication::translate("Laboratory", text, nullptr, PluralOf(count)).arg(LabCount(count));
}

double InDollars(std::int64_t raw) { return static_cast<double>(raw) / kDollar; }

double MeanOf(Int128 sum, std::int64_t count) {
  return count == 0 ? 0 : static_cast<double>(sum) / static_cast<double>(count) / kDollar;
}

// The least of 1, 2, 5, 10, 20 ... that makes few enough bars.
double WidthOfBars(double span) {
  double width = 1;
  for (int i = 0; span / width > kMostBars - 1; ++i) width *= i % 3 == 1 ? 2.5 : 2;
  return width;
}

void LayBars(LabFigures& figures, const LabState& state) {
  double low = 0;
  double high = 0;
  for (const SystemFigures& system : figures.systems) {
    low = std::min(low, system.lowest);
    high = std::max(high, system.highest);
  }
  figures.barWidth = WidthOfBars(high - low);
  figures.firstBar = std::floor(low / figures.barWidth) * figures.barWidth;
  const auto bars = static_cast<std::size_t>((high - figures.firstBar) / figures.barWidth) + 1;
  for (std::size_t i = 0; i < state.systems.size(); ++i) {
    std::vector<std::int64_t>& counts = figures.systems[i].bars;
    counts.assign(bars, 0);
    for (const CountedValue& row : state.systems[i].nets.rows) {
      const double place = (InDollars(row.amount) - figures.firstBar) / figures.barWidth;
      counts[std::min(static_cast<std::size_t>(std::max(place, 0.0)), bars - 1)] += row.count;
    }
  }
}

QString NoteOn(const LabSystem& system, const SystemSums& sums) {
  if (sums.sessions > 0 && sums.unrolled == sums.sessions)
    return Words(QT_TRANSLATE_NOOP("Laboratory", "%1: no session rolled the dice: %2"))
        .arg(FromCore(system.name), FromCore(sums.stopReason));
  if (sums.errors.empty()) return {};
  return Words(QT_TRANSLATE_NOOP("Laboratory", "%1: its script has errors: %2"))
      .arg(FromCore(system.name), FromCore(sums.errors.front().text));
}

SystemFigures FigureSystem(const LabSystem& system, SystemSums& sums, bool withFan) {
  SystemFigures figures;
  figures.name = FromCore(LabelOf(system));
  figures.sessions = sums.sessions;
  figures.rolls = sums.rolls;
  figures.won = sums.won;
  figures.brokeEven = sums.brokeEven;
  figures.lost = sums.lost;
  figures.ruined = sums.ruined;
  figures.goal = sums.goal;
  figures.limit = sums.limit;
  figures.stopped = sums.stopped;
  figures.net = FigureMean(sums.net, sums.sessions, kDollar);
  const auto unit = static_cast<double>(std::max<std::int64_t>(sums.luckUnit, 1));
  figures.adjusted = FigureMean(sums.adjusted, sums.sessions, kDollar * unit);
  figures.drawdown = MeanOf(sums.drawdown, sums.sessions);
  figures.note = NoteOn(system, sums);
  if (sums.nets.rows.empty()) return figures;
  figures.lowest = InDollars(sums.nets.rows.front().amount);
  figures.highest = InDollars(sums.nets.rows.back().amount);
  for (std::size_t i = 0; i < std::size(kQuantilePercents); ++i)
    figures.quantiles[i] = InDollars(Quantile(sums.nets, kQuantilePercents[i]));
  if (!withFan) return figures;
  for (int mark = 0; mark < kFanMarks; ++mark)
    for (int line = 0; line < kFanLines; ++line)
      figures.fan[mark][line] = InDollars(Quantile(sums.fan[mark], kFanBands[line]));
  return figures;
}

}  // namespace

LabFigures FigureLab(LabState& state) {
  SettleState(state);
  LabFigures figures;
  const Experiment& experiment = state.experiment;
  figures.bankroll = experiment.bankroll;
  figures.winGoal = experiment.winGoal;
  figures.lossLimit = experiment.lossLimit;
  figures.mostRolls = experiment.rolls;
  figures.mostHands = experiment.hands;
  const SessionRange range = SessionsOf(experiment);
  figures.sessions = SessionsDone(state);
  figures.target = range.last - range.first;
  figures.finished = state.finished;
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    figures.systems.push_back(FigureSystem(experiment.systems[i], state.systems[i], experiment.rolls > 0));
  for (const ExactSum& pair : state.pairs)
    figures.pairs.push_back(FigureMean(pair, figures.sessions, kDollar));
  LayBars(figures, state);
  return figures;
}

MeanFigure DifferenceOf(const LabFigures& figures, std::size_t a, std::size_t b) {
  MeanFigure difference;
  ForEachPair(figures.systems.size(), [&](std::size_t pair, std::size_t first, std::size_t second) {
    if (first == std::min(a, b) && second == std::max(a, b)) difference = figures.pairs[pair];
  });
  if (a < b) return difference;
  return {-difference.mean, difference.stdDev, {-difference.ci95.high, -difference.ci95.low}};
}

// --- In words.

QString LabMoney(double dollars) {
  const double cents = std::round(dollars * 100);
  return ShownNumber(cents == 0 ? 0.0 : cents / 100, 2);
}
QString SignedMoney(double dollars) {
  return (std::round(dollars * 100) > 0 ? QStringLiteral("+") : QString()) + LabMoney(dollars);
}
QString LabCount(std::int64_t number) { return MoneyText(Currency::Dollars(number)); }
QString LabShare(std::int64_t count, std::int64_t of) {
  return ShownNumber(100 * FigureShare(count, of).p, 1) + "%";
}
QString LabBounds(std::int64_t count, std::int64_t of) {
  const Bounds bounds = FigureShare(count, of).ci95;
  return Words(QT_TRANSLATE_NOOP("Laboratory", "%1 to %2"))
      .arg(ShownNumber(100 * bounds.low, 1), ShownNumber(100 * bounds.high, 1));
}

namespace {

QString SentenceOnOne(const SystemFigures& system) {
  return Words(QT_TRANSLATE_NOOP("Laboratory",
                                 "%1 ends a session at %2 on average: between %3 and %4, 95% sure."))
      .arg(system.name, SignedMoney(system.net.mean), SignedMoney(system.net.ci95.low),
           SignedMoney(system.net.ci95.high));
}

QString SentenceOnTwo(const LabFigures& figures, std::size_t a, std::size_t b) {
  if (DifferenceOf(figures, a, b).mean < 0) std::swap(a, b);
  const MeanFigure difference = DifferenceOf(figures, a, b);
  const QString& better = figures.systems[a].name;
  const QString& worse = figures.systems[b].name;
  if (difference.ci95.low > 0)
    return Words(QT_TRANSLATE_NOOP(
                     "Laboratory",
                     "%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure."))
        .arg(better, LabMoney(difference.mean), worse, LabMoney(difference.ci95.low),
             LabMoney(difference.ci95.high));
  return Words(QT_TRANSLATE_NOOP(
                   "Laboratory",
                   "Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5."))
      .arg(better, worse, SignedMoney(difference.mean), SignedMoney(difference.ci95.low),
           SignedMoney(difference.ci95.high));
}

QString Conditions(const LabFigures& experiment) {
  QStringList parts = {
      Words(QT_TRANSLATE_NOOP("Laboratory", "start %1")).arg(MoneyText(experiment.bankroll))};
  if (experiment.winGoal > kZero)
    parts << Words(QT_TRANSLATE_NOOP("Laboratory", "goal +%1")).arg(MoneyText(experiment.winGoal));
  if (experiment.lossLimit > kZero)
    parts << Words(QT_TRANSLATE_NOOP("Laboratory", "loss limit -%1")).arg(MoneyText(experiment.lossLimit));
  if (experiment.mostRolls > 0)
    parts << Counted(QT_TRANSLATE_N_NOOP("Laboratory", "at most %1 rolls"), experiment.mostRolls);
  if (experiment.mostHands > 0)
    parts << Counted(QT_TRANSLATE_N_NOOP("Laboratory", "at most %1 hands"), experiment.mostHands);
  return parts.join(", ");
}

}  // namespace

LabVerdict JudgeLab(const LabFigures& figures, std::size_t a, std::size_t b) {
  if (figures.systems.empty() || figures.sessions == 0) return {};
  const bool two = a != b;
  LabVerdict verdict;
  verdict.sentence = two ? SentenceOnTwo(figures, a, b) : SentenceOnOne(figures.systems[a]);
  verdict.below = Counted(QT_TRANSLATE_N_NOOP("Laboratory", "%1 sessions each, %2."), figures.sessions)
                      .arg(Conditions(figures));
  const Bounds bounds = two ? DifferenceOf(figures, a, b).ci95 : figures.systems[a].net.ci95;
  verdict.below += " " + Words(QT_TRANSLATE_NOOP("Laboratory", "%1 would give \u00b1%2."))
                             .arg(LabCount(figures.sessions * 4), LabMoney((bounds.high - bounds.low) / 4));
  for (const std::size_t system : {a, b})
    if (!figures.systems[system].note.isEmpty() && (system == a || two))
      verdict.below += " " + figures.systems[system].note;
  return verdict;
}

QList<LabEnd> EndsOf(const LabFigures& figures) {
  QList<LabEnd> ends;
  if (figures.winGoal > kZero)
    ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Goal reached")), &SystemFigures::goal});
  if (figures.lossLimit > kZero)
    ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Loss limit met")), &SystemFigures::limit});
  ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Ruined")), &SystemFigures::ruined});
  const auto stopped = [](const SystemFigures& system) { return system.stopped > 0; };
  if (std::any_of(figures.systems.begin(), figures.systems.end(), stopped))
    ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Stopped by itself")), &SystemFigures::stopped});
  ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Ended ahead")), &SystemFigures::won});
  ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Ended even")), &SystemFigures::brokeEven});
  ends.append({Words(QT_TRANSLATE_NOOP("Laboratory", "Ended behind")), &SystemFigures::lost});
  return ends;
}

namespace {

QString WithBounds(const MeanFigure& figure) {
  return SignedMoney(figure.mean) + " \u00b1 " + LabMoney((figure.ci95.high - figure.ci95.low) / 2);
}

struct Measure {
  const char* caption;
  QString (*text)(const SystemFigures&);
};
const Measure kMeasures[] = {
    {QT_TRANSLATE_NOOP("Laboratory", "Sessions"),
     [](const SystemFigures& s) { return LabCount(s.sessions); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Mean"), [](const SystemFigures& s) { return WithBounds(s.net); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Mean without luck"),
     [](const SystemFigures& s) { return WithBounds(s.adjusted); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Std Dev"),
     [](const SystemFigures& s) { return LabMoney(s.net.stdDev); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Median"),
     [](const SystemFigures& s) { return SignedMoney(s.quantiles[4]); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Low"), [](const SystemFigures& s) { return SignedMoney(s.lowest); }},
    {QT_TRANSLATE_NOOP("Laboratory", "5% quantile"),
     [](const SystemFigures& s) { return SignedMoney(s.quantiles[1]); }},
    {QT_TRANSLATE_NOOP("Laboratory", "95% quantile"),
     [](const SystemFigures& s) { return SignedMoney(s.quantiles[7]); }},
    {QT_TRANSLATE_NOOP("Laboratory", "High"), [](const SystemFigures& s) { return SignedMoney(s.highest); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Mean drawdown"),
     [](const SystemFigures& s) { return LabMoney(s.drawdown); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Ahead"),
     [](const SystemFigures& s) { return LabShare(s.won, s.sessions); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Goal"),
     [](const SystemFigures& s) { return LabShare(s.goal, s.sessions); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Ruined"),
     [](const SystemFigures& s) { return LabShare(s.ruined, s.sessions); }},
    {QT_TRANSLATE_NOOP("Laboratory", "Mean rolls"),
     [](const SystemFigures& s) {
       return s.sessions == 0
                  ? ShownNumber(0, 1)
                  : ShownNumber(static_cast<double>(s.rolls) / static_cast<double>(s.sessions), 1);
     }},
};

}  // namespace

QList<QStringList> MeasureRows(const LabFigures& figures, std::size_t a, std::size_t b) {
  QList<QStringList> rows = {{Words(QT_TRANSLATE_NOOP("Laboratory", "Measure")), "A"}};
  if (a != b) rows[0] << "B";
  if (figures.systems.empty()) return rows;
  for (const Measure& measure : kMeasures) {
    rows.append({Words(measure.caption), measure.text(figures.systems[a])});
    if (a != b) rows.back() << measure.text(figures.systems[b]);
  }
  return rows;
}

QList<QStringList> SystemRows(const LabFigures& figures) {
  QList<QStringList> rows = {{Words(QT_TRANSLATE_NOOP("Laboratory", "System"))}};
  for (const Measure& measure : kMeasures) rows[0] << Words(measure.caption);
  for (const SystemFigures& system : figures.systems) {
    QStringList row = {system.name};
    for (const Measure& measure : kMeasures) row << measure.text(system);
    rows.append(row);
  }
  return rows;
}

}  // namespace tessaryn
