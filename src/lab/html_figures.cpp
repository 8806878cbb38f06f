#include "lab/html_figures.h"

#include <algorithm>
#include <cmath>

#include "lab/html_parts.h"
#include "lab/html_style.h"

namespace tessaryn {
namespace {

double InDollars(std::int64_t raw) { return static_cast<double>(raw) / kDollar; }
double QuantileOf(const ValueCounts& counts, int percent) { return InDollars(Quantile(counts, percent)); }

// A dollar at least, so that numbers on an axis differ.
void Widen(double& low, double& high) {
  if (high - low >= 1) return;
  const double middle = (low + high) / 2;
  low = middle - 1;
  high = middle + 1;
}

std::string Colour(std::size_t system) { return "var(--c" + std::to_string(system % kLineColours) + ")"; }

std::string Dashes(std::size_t system) {
  constexpr const char* kDashes[] = {"", "7 4", "2 3", "9 3 2 3"};
  const std::string dashes = kDashes[system / kLineColours % std::size(kDashes)];
  return dashes.empty() ? "" : " stroke-dasharray=\"" + dashes + "\"";
}

}  // namespace

std::string KeyOf(std::size_t system, std::size_t systems) {
  constexpr std::size_t kLetters = 26;
  return systems <= kLetters ? std::string(1, static_cast<char>('A' + system)) : std::to_string(system + 1);
}

namespace {

// Where the experiment ends sessions.
void AddBorders(Drawing& drawing, const Experiment& experiment) {
  const auto border = [&](double at, const char* name) {
    const double x = drawing.across.At(at);
    if (x < drawing.across.from || x > drawing.across.to) return;
    drawing.AddLine(x, drawing.up.to - 6, x, drawing.up.from, "edge");
    drawing.AddText(std::clamp(x, drawing.across.from + 30, drawing.across.to - 30), drawing.up.to - 10,
                    "middle", name);
  };
  if (experiment.lossLimit > kZero) border(-experiment.lossLimit.ToDouble(), "loss limit");
  if (experiment.winGoal > kZero) border(experiment.winGoal.ToDouble(), "goal");
}

}  // namespace

std::string ResultsFigure(const Experiment& experiment, const SystemSums& sums) {
  const std::vector<Bin> bins = Histogram(sums.nets);
  std::int64_t most = 1;
  for (const Bin& bin : bins) most = std::max(most, bin.count);
  double low = InDollars(bins.front().low);
  double high = InDollars(bins.back().high);
  Widen(low, high);
  const auto of = static_cast<double>(sums.sessions);
  Drawing drawing(low, high, 0, static_cast<double>(most) / of);
  drawing.AddAxes(Shown::kDollars, Shown::kShare, "result of a session, $", "share of sessions");
  for (const Bin& bin : bins) {
    if (bin.count == 0) continue;
    const double x = drawing.across.At(InDollars(bin.low));
    const double y = drawing.up.At(static_cast<double>(bin.count) / of);
    const double width = drawing.across.At(InDollars(bin.high)) - x;
    drawing.svg += "<rect fill=\"var(--" + std::string(bin.high <= 0 ? "loss" : "win") + ")\" x=\"" +
                   Coordinate(x + .5) + "\" y=\"" + Coordinate(y) + "\" width=\"" +
                   Coordinate(std::max(width - 1, 2.0)) + "\" height=\"" + Coordinate(drawing.up.from - y) +
                   "\"/>";
  }
  if (low < 0 && high > 0)
    drawing.AddLine(drawing.across.At(0), drawing.up.to, drawing.across.At(0), drawing.up.from, "zero");
  AddBorders(drawing, experiment);
  return drawing.Finish("What sessions brought. Left of the dashed line, and in orange: losses.");
}

namespace {

// Bankrolls at the marks on the way, the start before them; back: from the last to the first.
std::string WayPoints(const Drawing& drawing, const Experiment& experiment, const SystemSums& sums,
                      int percent, bool back) {
  const double start = experiment.bankroll.ToDouble();
  std::string points;
  for (int i = 0; i <= kFanMarks; ++i) {
    const int mark = back ? kFanMarks - i : i;
    const double net = mark == 0 ? 0 : QuantileOf(sums.fan[mark - 1], percent);
    points += drawing.Point(static_cast<double>(experiment.rolls) * mark / kFanMarks, start + net) + " ";
  }
  return points;
}

}  // namespace

std::string WayFigure(const Experiment& experiment, const SystemSums& sums) {
  if (experiment.rolls == 0) return {};
  const double start = experiment.bankroll.ToDouble();
  double low = start;
  double high = start;
  for (const ValueCounts& counts : sums.fan) {
    low = std::min(low, start + QuantileOf(counts, 5));
    high = std::max(high, start + QuantileOf(counts, 95));
  }
  Widen(low, high);
  Drawing drawing(0, static_cast<double>(experiment.rolls), low, high);
  drawing.AddAxes(Shown::kCount, Shown::kDollars, "rolls", "bankroll, $");
  for (const int percent : {5, 10, 25})
    drawing.AddPath(WayPoints(drawing, experiment, sums, percent, false) +
                        WayPoints(drawing, experiment, sums, 100 - percent, true),
                    "polygon", "fill=\"var(--win)\" fill-opacity=\".22\"");
  drawing.AddLine(drawing.across.from, drawing.up.At(start), drawing.across.to, drawing.up.At(start), "zero");
  drawing.AddPath(WayPoints(drawing, experiment, sums, 50, false), "polyline",
                  "fill=\"none\" stroke=\"var(--win)\" stroke-width=\"2.5\"");
  return drawing.Finish(
      "Bankrolls on the way: the median, and the middle 50, 80 and 90 percent of the sessions. What came of "
      "a session stays behind its end. Dashed: the start.");
}

namespace {

constexpr std::size_t kMostSteps = 300;

// The share that was ruined by each roll, in steps.
std::string RuinPoints(const Drawing& drawing, const SystemSums& sums, double end) {
  std::string points = drawing.Point(0, 0);
  std::int64_t ruined = 0;
  const std::vector<CountedValue>& rows = sums.ruins.rows;
  const std::size_t step = rows.size() / kMostSteps + 1;
  const auto share = [&] { return static_cast<double>(ruined) / static_cast<double>(sums.sessions); };
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double before = share();
    ruined += rows[i].count;
    if (i % step != 0 && i + 1 != rows.size()) continue;
    const auto roll = static_cast<double>(rows[i].amount);
    if (step == 1) points += " " + drawing.Point(roll, before);
    points += " " + drawing.Point(roll, share());
  }
  return points + " " + drawing.Point(end, share());
}

}  // namespace

std::string RuinFigure(const LabState& state, std::size_t first, std::size_t last) {
  double most = 0;
  double end = 1;
  for (std::size_t i = first; i < last; ++i) {
    const SystemSums& sums = state.systems[i];
    most = std::max(most, FigureShare(sums.ruined, sums.sessions).p);
    if (!sums.lengths.rows.empty()) end = std::max(end, static_cast<double>(sums.lengths.rows.back().amount));
  }
  if (most == 0) return {};
  Drawing drawing(0, end, 0, most);
  drawing.across.to -= 24;
  drawing.AddAxes(Shown::kCount, Shown::kShare, "rolls", "ruined by then, share of sessions");
  double above = 1e9;
  std::vector<std::pair<double, std::size_t>> ends;
  for (std::size_t i = first; i < last; ++i) {
    const bool alone = last - first == 1;
    drawing.AddPath(RuinPoints(drawing, state.systems[i], end), "polyline",
                    "fill=\"none\" stroke=\"" + (alone ? std::string("var(--loss)") : Colour(i)) +
                        "\" stroke-width=\"2\"" + (alone ? "" : Dashes(i)));
    const SystemSums& sums = state.systems[i];
    if (!alone) ends.emplace_back(drawing.up.At(FigureShare(sums.ruined, sums.sessions).p), i);
  }
  // Letters at the lines' ends, from below, none over another.
  std::sort(ends.rbegin(), ends.rend());
  for (const auto& [y, system] : ends) {
    above = std::min(y + 4, above - 13);
    drawing.AddText(drawing.across.to + 6, above, "start", KeyOf(system, state.systems.size()), "key");
  }
  return drawing.Finish("Ruin over time.");
}

namespace {

constexpr double kSpreadLine = 28;

void AddSpread(Drawing& drawing, const SystemSums& sums, const std::string& key, double y) {
  const auto x = [&](int percent) { return Coordinate(drawing.across.At(QuantileOf(sums.nets, percent))); };
  const std::string middle = Coordinate(y);
  const auto line = [&](int from, int to, int width) {
    drawing.svg += "<line stroke=\"var(--win)\" stroke-width=\"" + std::to_string(width) + "\" x1=\"" +
                   x(from) + "\" x2=\"" + x(to) + "\" y1=\"" + middle + "\" y2=\"" + middle + "\"/>";
  };
  line(1, 99, 1);
  line(5, 95, 4);
  const double left = drawing.across.At(QuantileOf(sums.nets, 25));
  const double right = drawing.across.At(QuantileOf(sums.nets, 75));
  drawing.svg += "<rect fill=\"var(--page)\" stroke=\"var(--win)\" stroke-width=\"2\" x=\"" +
                 Coordinate(left) + "\" y=\"" + Coordinate(y - 7) + "\" width=\"" +
                 Coordinate(std::max(right - left, 1.0)) + "\" height=\"14\"/>";
  drawing.svg += "<line stroke=\"var(--win)\" stroke-width=\"4\" x1=\"" + x(50) + "\" x2=\"" + x(50) +
                 "\" y1=\"" + Coordinate(y - 7) + "\" y2=\"" + Coordinate(y + 7) + "\"/>";
  const double mean = drawing.across.At(FigureMean(sums.net, sums.sessions, kDollar).mean);
  const auto corner = [&](double dx, double dy) {
    return Coordinate(mean + dx) + "," + Coordinate(y + dy) + " ";
  };
  drawing.AddPath(corner(-5, 0) + corner(0, -5) + corner(5, 0) + corner(0, 5), "polygon",
                  "fill=\"var(--ink)\" stroke=\"var(--page)\"");
  drawing.AddText(drawing.across.from - 12, y + 4, "end", key, "key");
}

}  // namespace

std::string SpreadFigure(const LabState& state) {
  double low = 0;
  double high = 0;
  for (const SystemSums& sums : state.systems) {
    low = std::min(low, QuantileOf(sums.nets, 1));
    high = std::max(high, QuantileOf(sums.nets, 99));
  }
  Widen(low, high);
  const double room = (high - low) / 40;
  Drawing drawing(low - room, high + room, 0, 1,
                  104 + kSpreadLine * static_cast<double>(state.systems.size()));
  const double step = NiceStep(high - low, 8);
  for (double at = std::ceil((low - room) / step); at * step <= high + room; ++at) {
    const double x = drawing.across.At(at * step);
    drawing.AddLine(x, drawing.up.to, x, drawing.up.from, at == 0 ? "zero" : "grid");
    drawing.AddText(x, drawing.up.from + 18, "middle", ShownNumber(at * step, step, Shown::kDollars));
  }
  drawing.AddText(drawing.across.to, drawing.height - 6, "end", "result of a session, $");
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    AddSpread(drawing, state.systems[i], KeyOf(i, state.systems.size()),
              drawing.up.to + kSpreadLine / 2 + 9 + kSpreadLine * static_cast<double>(i));
  return drawing.Finish(
      "What sessions brought. Line: 1% to 99% of them; thick: 5% to 95%; box: the middle half, bar at the "
      "median; diamond: the mean.");
}

}  // namespace tessaryn
