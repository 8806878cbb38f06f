#include "shell/screens/laboratory_figures.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

constexpr double kMostBars = 60;
constexpr std::size_t kMostDrawn = 12;   // systems whose pictures are all kept ready
constexpr std::size_t kMostPaired = 60;  // systems all of whose pairs are told
constexpr std::size_t kMostSteps = 200;  // of ruin over time

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

bool IsDrawn(const LabFigures& figures, std::size_t system, std::size_t a, std::size_t b) {
  return figures.systems.size() <= kMostDrawn || system == a || system == b;
}

void LayBars(LabFigures& figures, const LabState& state, std::size_t a, std::size_t b) {
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
    if (!IsDrawn(figures, i, a, b)) continue;
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

void TakeRuin(SystemFigures& figures, const SystemSums& sums) {
  std::int64_t ruined = 0;
  const std::vector<CountedValue>& rows = sums.ruins.rows;
  const std::size_t step = rows.size() / kMostSteps + 1;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ruined += rows[i].count;
    if (i % step == 0 || i + 1 == rows.size())
      figures.ruin.emplace_back(static_cast<double>(rows[i].amount),
                                static_cast<double>(ruined) / static_cast<double>(sums.sessions));
  }
}

SystemFigures FigureSystem(const LabSystem& system, SystemSums& sums) {
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
  return figures;
}

void TakeWay(SystemFigures& figures, const SystemSums& sums, bool withFan) {
  TakeRuin(figures, sums);
  for (int mark = 0; withFan && mark < kFanMarks; ++mark)
    for (int line = 0; line < kFanLines; ++line)
      figures.fan[mark][line] = InDollars(Quantile(sums.fan[mark], kFanBands[line]));
}

void TakePairs(LabFigures& figures, const LabState& state, std::size_t a, std::size_t b) {
  const bool all = state.systems.size() <= kMostPaired;
  const auto compared = std::minmax(a, b);
  ForEachPair(state.systems.size(), [&](std::size_t pair, std::size_t first, std::size_t second) {
    if (all || first == figures.best || second == figures.best ||
        (first == compared.first && second == compared.second))
      figures.pairs.push_back({first, second, FigureMean(state.pairs[pair], figures.sessions, kDollar)});
  });
}

}  // namespace

LabFigures FigureLab(LabState& state, std::size_t a, std::size_t b) {
  SettleState(state);
  LabFigures figures;
  const Experiment& experiment = state.experiment;
  figures.bankroll = experiment.bankroll;
  figures.winGoal = experiment.winGoal;
  figures.lossLimit = experiment.lossLimit;
  figures.mostRolls = experiment.rolls;
  figures.mostHands = experiment.hands;
  figures.mostHours = experiment.hours;
  const SessionRange range = SessionsOf(experiment);
  figures.sessions = SessionsDone(state);
  figures.target = range.last - range.first;
  figures.finished = state.finished;
  for (std::size_t i = 0; i < state.systems.size(); ++i) {
    figures.systems.push_back(FigureSystem(experiment.systems[i], state.systems[i]));
    const ValueCounts& lengths = state.systems[i].lengths;
    if (!lengths.rows.empty())
      figures.longest = std::max(figures.longest, static_cast<double>(lengths.rows.back().amount));
    if (figures.systems[i].net.mean > figures.systems[figures.best].net.mean) figures.best = i;
  }
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    if (IsDrawn(figures, i, a, b)) TakeWay(figures.systems[i], state.systems[i], experiment.rolls > 0);
  TakePairs(figures, state, a, b);
  LayBars(figures, state, a, b);
  return figures;
}

namespace {

const LabPair* FindPair(const LabFigures& figures, std::size_t a, std::size_t b) {
  const auto pair = std::find_if(figures.pairs.begin(), figures.pairs.end(), [&](const LabPair& one) {
    return one.a == std::min(a, b) && one.b == std::max(a, b);
  });
  return pair == figures.pairs.end() ? nullptr : &*pair;
}

}  // namespace

bool HasPair(const LabFigures& figures, std::size_t a, std::size_t b) {
  return FindPair(figures, a, b) != nullptr;
}

MeanFigure DifferenceOf(const LabFigures& figures, std::size_t a, std::size_t b) {
  const LabPair* pair = FindPair(figures, a, b);
  if (pair == nullptr) return {};
  const MeanFigure& difference = pair->difference;
  if (a < b) return difference;
  return {-difference.mean, difference.stdDev, {-difference.ci95.high, -difference.ci95.low}};
}

double RankValue(const SystemFigures& system, RankBy by) {
  constexpr std::size_t kMedianAt = 4;
  if (by == RankBy::kMedian) return system.quantiles[kMedianAt];
  if (by == RankBy::kMean) return system.net.mean;
  return FigureShare(by == RankBy::kRuin ? system.ruined : system.goal, system.sessions).p;
}

bool IsShare(RankBy by) { return by == RankBy::kRuin || by == RankBy::kGoal; }

QColor LabColour(bool second, bool dark) {
  if (second) return dark ? QColor("#F2A35E") : QColor("#B4530F");
  return dark ? QColor("#3CC98A") : QColor("#0B6B45");
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

// A sentence with its holes filled, plain and coloured. What is marked stands out.
struct Filling {
  QString text;
  QString colour;  // of a name; empty: none
  bool marked = false;
};
void Say(LabVerdict& verdict, const QString& sentence, const QList<Filling>& fillings) {
  // Names may hold what looks like a hole.
  for (qsizetype at = 0; at < sentence.size(); ++at) {
    const int hole = sentence[at] == '%' && at + 1 < sentence.size() ? sentence[at + 1].digitValue() : 0;
    if (hole < 1 || hole > fillings.size()) {
      verdict.sentence += sentence[at];
      verdict.coloured += QString(sentence[at]).toHtmlEscaped();
      continue;
    }
    const Filling& filling = fillings[hole - 1];
    const QString colour = filling.colour.isEmpty() ? "" : " style=\"color:" + filling.colour + '"';
    const QString text = filling.text.toHtmlEscaped();
    verdict.sentence += filling.text;
    verdict.coloured += filling.marked || !colour.isEmpty() ? "<b" + colour + ">" + text + "</b>" : text;
    ++at;
  }
}

void SayOnOne(LabVerdict& verdict, const SystemFigures& system, const QString& colour) {
  Say(verdict,
      Words(QT_TRANSLATE_NOOP("Laboratory",
                              "%1 ends a session at %2 on average: between %3 and %4, 95% sure.")),
      {{system.name, colour},
       {SignedMoney(system.net.mean), {}, true},
       {SignedMoney(system.net.ci95.low), {}},
       {SignedMoney(system.net.ci95.high), {}}});
}

void SayOnTwo(LabVerdict& verdict, const LabFigures& figures, std::size_t a, std::size_t b, bool dark) {
  const bool turned = DifferenceOf(figures, a, b).mean < 0;
  if (turned) std::swap(a, b);
  const MeanFigure difference = DifferenceOf(figures, a, b);
  const Filling better{figures.systems[a].name, LabColour(turned, dark).name()};
  const Filling worse{figures.systems[b].name, LabColour(!turned, dark).name()};
  if (difference.ci95.low > 0)
    return Say(verdict,
               Words(QT_TRANSLATE_NOOP(
                   "Laboratory",
                   "%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.")),
               {better,
                {LabMoney(difference.mean), {}, true},
                worse,
                {LabMoney(difference.ci95.low), {}},
                {LabMoney(difference.ci95.high), {}}});
  Say(verdict,
      Words(QT_TRANSLATE_NOOP(
          "Laboratory", "Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.")),
      {better,
       worse,
       {SignedMoney(difference.mean), {}, true},
       {SignedMoney(difference.ci95.low), {}},
       {SignedMoney(difference.ci95.high), {}}});
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
  if (experiment.mostHours > kZero)
    parts << Words(QT_TRANSLATE_NOOP("Laboratory", "at most %1 hours")).arg(MoneyText(experiment.mostHours));
  return parts.join(", ");
}

}  // namespace

LabVerdict JudgeLab(const LabFigures& figures, std::size_t a, std::size_t b, bool dark) {
  if (figures.systems.empty() || figures.sessions == 0) return {};
  const bool two = a != b;
  LabVerdict verdict;
  if (two)
    SayOnTwo(verdict, figures, a, b, dark);
  else
    SayOnOne(verdict, figures.systems[a], LabColour(false, dark).name());
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

QList<QStringList> RankedRows(const LabFigures& figures, RankBy by) {
  const QList<QStringList> plain = SystemRows(figures);
  std::vector<std::size_t> order(figures.systems.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    const double first = RankValue(figures.systems[a], by);
    const double second = RankValue(figures.systems[b], by);
    return by == RankBy::kRuin ? first < second : first > second;
  });
  QList<QStringList> rows = {plain.front()};
  for (const std::size_t system : order) rows.append(plain[static_cast<qsizetype>(system) + 1]);
  return rows;
}

QList<QStringList> PairRows(const LabFigures& figures) {
  QList<QStringList> rows = {{Words(QT_TRANSLATE_NOOP("Laboratory", "First less second")),
                              Words(QT_TRANSLATE_NOOP("Laboratory", "Mean difference")),
                              Words(QT_TRANSLATE_NOOP("Laboratory", "From")),
                              Words(QT_TRANSLATE_NOOP("Laboratory", "To")),
                              Words(QT_TRANSLATE_NOOP("Laboratory", "Better, 95% sure"))}};
  for (const LabPair& pair : figures.pairs) {
    const QString& first = figures.systems[pair.a].name;
    const QString& second = figures.systems[pair.b].name;
    const Bounds& bounds = pair.difference.ci95;
    rows.append({Words(QT_TRANSLATE_NOOP("Laboratory", "%1 less %2")).arg(first, second),
                 SignedMoney(pair.difference.mean), SignedMoney(bounds.low), SignedMoney(bounds.high),
                 bounds.low > 0    ? first
                 : bounds.high < 0 ? second
                                   : Words(QT_TRANSLATE_NOOP("Laboratory", "not known"))});
  }
  return rows;
}

QString RankCaption(RankBy by) {
  constexpr const char* kCaptions[] = {
      QT_TRANSLATE_NOOP("Laboratory", "Mean"), QT_TRANSLATE_NOOP("Laboratory", "Median"),
      QT_TRANSLATE_NOOP("Laboratory", "Ruined"), QT_TRANSLATE_NOOP("Laboratory", "Goal")};
  return Words(kCaptions[static_cast<int>(by)]);
}

QString RankText(double value, RankBy by) {
  return IsShare(by) ? ShownNumber(100 * value, 1) + "%" : SignedMoney(value);
}

// --- What is found.

QList<QStringList> FoundRows(const Experiment& experiment, const LabQuestion& question,
                             const std::vector<LabAnswer>& answers) {
  QList<QStringList> rows = {
      {Words(QT_TRANSLATE_NOOP("Laboratory", "System")),
       question.stack < 0
           ? Words(QT_TRANSLATE_NOOP("Laboratory", "Least bankroll"))
           : Words(QT_TRANSLATE_NOOP("Laboratory", "Largest start of CheckStack %1")).arg(question.stack),
       Words(QT_TRANSLATE_NOOP("Laboratory", "From")), Words(QT_TRANSLATE_NOOP("Laboratory", "To")),
       Words(QT_TRANSLATE_NOOP("Laboratory", "Ruined")),
       Words(QT_TRANSLATE_NOOP("Laboratory", "95% bounds"))}};
  for (std::size_t i = 0; i < answers.size(); ++i) {
    const LabAnswer& answer = answers[i];
    const QString name = FromCore(LabelOf(experiment.systems[i]));
    if (!answer.found) {
      rows.append({name, Words(QT_TRANSLATE_NOOP("Laboratory", "none")), {}, {}, {}, {}});
      continue;
    }
    rows.append({name, MoneyText(answer.value), MoneyText(answer.low), MoneyText(answer.high),
                 ShownNumber(100 * answer.ruined.p, 2) + "%",
                 Words(QT_TRANSLATE_NOOP("Laboratory", "%1 to %2"))
                     .arg(100 * answer.ruined.ci95.low, 0, 'f', 2)
                     .arg(100 * answer.ruined.ci95.high, 0, 'f', 2)});
  }
  return rows;
}

QString FoundSentence(const Experiment& experiment, const LabQuestion& question,
                      const std::vector<LabAnswer>& answers) {
  if (answers.empty()) return {};
  const QString name = FromCore(LabelOf(experiment.systems.front()));
  const QString share = QString::number(100 * question.ruin) + "%";
  const LabAnswer& answer = answers.front();
  if (!answer.found)
    return Words(QT_TRANSLATE_NOOP("Laboratory", "%1: nothing keeps the ruined within %2.")).arg(name, share);
  if (question.stack < 0)
    return Words(
               QT_TRANSLATE_NOOP(
                   "Laboratory",
                   "%1 needs a bankroll of %2, so that at most %3 are ruined: between %4 and %5, 95% sure."))
        .arg(name, MoneyText(answer.value), share, MoneyText(answer.low), MoneyText(answer.high));
  if (answer.any)
    return Words(
               QT_TRANSLATE_NOOP("Laboratory", "%1: any start of the CheckStack keeps the ruined within %2."))
        .arg(name, share);
  return Words(
             QT_TRANSLATE_NOOP("Laboratory",
                               "%1: CheckStack %2 may start at %3, so that at most %4 are ruined: between %5 "
                               "and %6, 95% sure."))
      .arg(name, QString::number(question.stack), MoneyText(answer.value), share, MoneyText(answer.low),
           MoneyText(answer.high));
}

}  // namespace tessaryn
