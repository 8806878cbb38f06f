#include "lab/html_sweeps.h"

#include <algorithm>
#include <cstdlib>

#include "lab/html_parts.h"
#include "lab/lab_grid.h"

namespace tessaryn {

const char* RankName(RankBy by) {
  constexpr const char* kNames[] = {"mean result", "median result", "share of ruined",
                                    "share that reached the goal"};
  return kNames[static_cast<int>(by)];
}

bool IsShareRank(RankBy by) { return by == RankBy::kRuin || by == RankBy::kGoal; }

namespace {

// A grid by one measure.
struct Sweep {
  const LabState& state;
  const LabGrid& grid;
  RankBy by;
  std::vector<double> values;  // of all systems
  std::size_t best = 0;        // a place in the grid
  double worst = 0;

  double At(std::size_t place) const { return values[grid.systems[place]]; }
};

Sweep ReadSweep(const LabState& state, const LabGrid& grid, RankBy by) {
  Sweep sweep{state, grid, by, std::vector<double>(state.systems.size()), 0, 0};
  for (const Ranked& ranked : RankSystems(state, by)) sweep.values[ranked.system] = ranked.value;
  const auto better = [&](double a, double b) { return by == RankBy::kRuin ? a < b : a > b; };
  sweep.worst = sweep.At(0);
  for (std::size_t place = 1; place < grid.systems.size(); ++place) {
    if (better(sweep.At(place), sweep.At(sweep.best))) sweep.best = place;
    if (better(sweep.worst, sweep.At(place))) sweep.worst = sweep.At(place);
  }
  return sweep;
}

std::string ValueText(double value, RankBy by) {
  return IsShareRank(by) ? PercentText(value, 2) : Number(value, 2);
}

// Whether the dice may have made the difference from the best, as pairs on the same dice tell.
bool MayBeAsGood(const Sweep& sweep, std::size_t place) {
  const std::size_t first = std::min(sweep.grid.systems[place], sweep.grid.systems[sweep.best]);
  const std::size_t second = std::max(sweep.grid.systems[place], sweep.grid.systems[sweep.best]);
  const std::size_t count = sweep.state.systems.size();
  const ExactSum& pair = sweep.state.pairs[first * (2 * count - first - 1) / 2 + second - first - 1];
  const Bounds bounds = FigureMean(pair, SessionsDone(sweep.state), Currency::kPerDollar).ci95;
  return bounds.low <= 0 && bounds.high >= 0;
}

std::string Rgb(const HeatColour& colour) {
  return "rgb(" + std::to_string(colour.red) + "," + std::to_string(colour.green) + "," +
         std::to_string(colour.blue) + ")";
}

std::string Cell(const Sweep& sweep, std::size_t place) {
  const HeatColour colour = HeatColourOf(HeatShare(sweep.At(place), sweep.worst, sweep.At(sweep.best)));
  std::string kind;
  if (place == sweep.best)
    kind = "class=\"best\" ";
  else if (sweep.by == RankBy::kMean && MayBeAsGood(sweep, place))
    kind = "class=\"near\" ";
  return Tag(
      "td", ValueText(sweep.At(place), sweep.by),
      kind + "style=\"background:" + Rgb(colour) + ";color:" + (colour.darkText ? "#000" : "#fff") + "\"");
}

std::string Legend(const Sweep& sweep) {
  std::string stops;
  for (int i = 0; i <= 5; ++i) stops += (i == 0 ? "" : ",") + Rgb(HeatColourOf(i / 5.0));
  std::string text = ValueText(sweep.worst, sweep.by) +
                     "<span class=\"bar\" style=\"background:linear-gradient(to right," + stops +
                     ")\">&nbsp;</span>" + ValueText(sweep.At(sweep.best), sweep.by) + ". Framed: the best.";
  if (sweep.by == RankBy::kMean) text += " Dotted: not sure to be worse than that.";
  return Tag("p", text, "class=\"soft\"");
}

std::string HeatMap(const Sweep& sweep) {
  const LabGrid& grid = sweep.grid;
  const LabAxis& down = grid.axes.front();
  const LabAxis& across = grid.axes.back();
  const bool one = grid.axes.size() == 1;
  const std::string span = "colspan=\"" + std::to_string(across.values.size()) + "\"";
  std::string table =
      "<thead>" + Tag("tr", "<td></td>" + Tag("th", Escaped(across.name), "scope=\"colgroup\" " + span));
  std::string heads = one ? "<td></td>" : Tag("th", Escaped(down.name), "scope=\"col\"");
  for (const std::string& value : across.values) heads += Tag("th", Escaped(value), "scope=\"col\"");
  table += Tag("tr", heads) + "</thead>\n<tbody>";
  for (std::size_t row = 0; row < grid.Rows(); ++row) {
    std::string cells = Tag("th", one ? RankName(sweep.by) : Escaped(down.values[row]), "scope=\"row\"");
    for (std::size_t column = 0; column < grid.Columns(); ++column)
      cells += Cell(sweep, row * grid.Columns() + column);
    table += Tag("tr", cells) + "\n";
  }
  return Tag("div", Tag("table", table + "</tbody>", "class=\"map\""), "class=\"wide\"") + Legend(sweep) +
         "\n";
}

// --- One sweep.

Bounds BoundsOf(const Sweep& sweep, std::size_t place) {
  const SystemSums& sums = sweep.state.systems[sweep.grid.systems[place]];
  const double value = sweep.At(place);
  if (sweep.by == RankBy::kMean) return FigureMean(sums.net, sums.sessions, Currency::kPerDollar).ci95;
  if (sweep.by == RankBy::kMedian) return {value, value};
  return FigureShare(sweep.by == RankBy::kRuin ? sums.ruined : sums.goal, sums.sessions).ci95;
}

// The values as numbers; their places where they are none.
std::vector<double> PlacesOf(const LabAxis& axis) {
  std::vector<double> places;
  for (const std::string& text : axis.values) {
    char* end = nullptr;
    places.push_back(std::strtod(text.c_str(), &end));
    if (text.empty() || *end != '\0') break;
  }
  if (places.size() == axis.values.size() && std::is_sorted(places.begin(), places.end())) return places;
  places.clear();
  for (std::size_t i = 0; i < axis.values.size(); ++i) places.push_back(static_cast<double>(i + 1));
  return places;
}

std::string Curve(const Sweep& sweep) {
  const LabAxis& axis = sweep.grid.axes.front();
  const std::vector<double> places = PlacesOf(axis);
  double low = sweep.At(0);
  double high = low;
  for (std::size_t i = 0; i < places.size(); ++i) {
    low = std::min(low, BoundsOf(sweep, i).low);
    high = std::max(high, BoundsOf(sweep, i).high);
  }
  const double room = high > low ? (high - low) * 0.05 : 0.5;
  const double side = (places.back() - places.front()) * 0.03;
  Drawing drawing(places.front() - side, places.back() + side, low - room, high + room);
  const bool share = IsShareRank(sweep.by);
  if (share)
    drawing.up = {std::max(low - room, 0.0), std::min(high + room, 1.0), drawing.up.from, drawing.up.to};
  drawing.AddAxes(Shown::kCount, share ? Shown::kShare : Shown::kDollars, Escaped(axis.name),
                  RankName(sweep.by) + std::string(share ? "" : ", $"));
  std::string line;
  for (std::size_t i = 0; i < places.size(); ++i) {
    line += drawing.Point(places[i], sweep.At(i)) + " ";
    const Bounds bounds = BoundsOf(sweep, i);
    const double x = drawing.across.At(places[i]);
    drawing.svg += "<path stroke=\"var(--win)\" fill=\"none\" d=\"M" + Coordinate(x - 4) + " " +
                   Coordinate(drawing.up.At(bounds.high)) + "h8m-4 0V" +
                   Coordinate(drawing.up.At(bounds.low)) +
                   "m-4 0h8\"/><circle fill=\"var(--win)\" r=\"3.5\" cx=\"" + Coordinate(x) + "\" cy=\"" +
                   Coordinate(drawing.up.At(sweep.At(i))) + "\"/>";
  }
  drawing.AddPath(line, "polyline", "fill=\"none\" stroke=\"var(--win)\" stroke-width=\"1.5\"");
  return drawing.Finish(sweep.by == RankBy::kMedian ? "By value." : "By value, with 95% bounds.");
}

std::string Body(const LabState& state, const LabGrid& grid, RankBy by) {
  const Sweep sweep = ReadSweep(state, grid, by);
  return HeatMap(sweep) + (grid.axes.size() == 1 ? Curve(sweep) : "");
}

std::string Title(const LabGrid& grid, RankBy by) {
  std::string title = RankName(by);
  title[0] = static_cast<char>(title[0] - 'a' + 'A');
  title += " by " + Escaped(grid.axes.front().name);
  return grid.axes.size() == 1 ? title : title + " and " + Escaped(grid.axes.back().name);
}

}  // namespace

std::string SweepSections(const LabState& state, RankBy by) {
  std::string text;
  for (const LabGrid& grid : GridsOf(state.experiment)) {
    text += "<section><h2>" + Title(grid, by) + "</h2>\n<p class=\"soft\">" + Escaped(grid.name) + "</p>\n" +
            Body(state, grid, by);
    for (const RankBy other : {RankBy::kMean, RankBy::kMedian, RankBy::kRuin, RankBy::kGoal})
      if (other != by && (other != RankBy::kGoal || state.experiment.winGoal > kZero))
        text += Tag("details", Tag("summary", Title(grid, other)) + "\n" + Body(state, grid, other)) + "\n";
    text += "</section>\n";
  }
  return text;
}

}  // namespace tessaryn
