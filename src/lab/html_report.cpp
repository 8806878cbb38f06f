#include "lab/html_report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "dice/generators.h"

namespace tessaryn {
namespace {

constexpr double kDollar = Currency::kPerDollar;

// --- Text.

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<')
      escaped += "&lt;";
    else if (c == '>')
      escaped += "&gt;";
    else if (c == '&')
      escaped += "&amp;";
    else if (c == '"')
      escaped += "&quot;";
    else if (static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t')
      escaped += c;
  }
  return escaped;
}

std::string Fixed(double number, int decimals) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(number) < 1e-12 ? 0.0 : number);
  return text;
}

std::string Dollars(std::int64_t raw) { return FormatMoney(Currency::FromRaw(raw)); }
std::string Whole(std::int64_t number) { return FormatMoney(Currency::Dollars(number)); }
std::string Money(double dollars) {
  return FormatMoney(Currency::FromDouble(std::round(dollars * 100) / 100));
}
std::string Share(std::int64_t count, std::int64_t of) {
  const ShareFigure share = FigureShare(count, of);
  return Fixed(100 * share.p, 2) + "% <small>" + Fixed(100 * share.ci95.low, 2) + " to " +
         Fixed(100 * share.ci95.high, 2) + "</small>";
}

std::string Tag(const char* name, const std::string& content) {
  return "<" + std::string(name) + ">" + content + "</" + name + ">";
}

constexpr const char* kStyle =
    ":root{--ink:#1f2328;--soft:#59636e;--line:#d1d9e0;--page:#fff;--fill:#2f6f9f;--band:#2f6f9f;--warm:#"
    "b4552d}"
    "@media(prefers-color-scheme:dark){:root{--ink:#e6edf3;--soft:#9198a1;--line:#3d444d;--page:#14181d;"
    "--fill:#6cb1e0;--band:#6cb1e0;--warm:#e08a5f}}"
    "@media print{:root{--ink:#000;--soft:#444;--line:#bbb;--page:#fff;--fill:#2f6f9f;--band:#2f6f9f;"
    "--warm:#b4552d}section{break-inside:avoid}}"
    "body{font:16px/1.5 system-ui,sans-serif;color:var(--ink);background:var(--page);max-width:60rem;"
    "margin:2rem auto;padding:0 1rem}h1{font-size:1.6rem}h2{font-size:1.2rem;margin-top:2.5rem;"
    "border-top:1px solid var(--line);padding-top:1rem}h3{font-size:1rem}small,figcaption{color:var(--soft);"
    "font-size:.8rem}div.wide{overflow-x:auto}table{border-collapse:collapse;font-variant-numeric:tabular-"
    "nums}"
    "th,td{padding:.25rem .75rem .25rem 0;text-align:right;border-bottom:1px solid var(--line)}"
    "th:first-child,td:first-child{text-align:left}th{font-weight:600}figure{margin:1rem 0}svg{width:100%;"
    "height:auto}svg text{fill:var(--soft);font:11px system-ui,sans-serif}pre{overflow-x:auto;padding:1rem;"
    "border:1px solid var(--line);border-radius:4px;font-size:.85rem}.axis{stroke:var(--line)}";

// --- Pictures. 800 by 260, with room for the numbers.

constexpr double kWidth = 800;
constexpr double kHeight = 260;
constexpr double kLeft = 70;
constexpr double kBottom = 225;
constexpr double kTop = 15;

struct Scale {
  double low = 0;
  double high = 1;
  double from = 0;
  double to = 1;
  double At(double value) const { return from + (to - from) * (value - low) / (high > low ? high - low : 1); }
};

std::string Text(double x, double y, const char* anchor, const std::string& text) {
  return "<text x=\"" + Fixed(x, 1) + "\" y=\"" + Fixed(y, 1) + "\" text-anchor=\"" + anchor + "\">" + text +
         "</text>";
}

std::string Line(double x1, double y1, double x2, double y2) {
  return "<line class=\"axis\" x1=\"" + Fixed(x1, 1) + "\" y1=\"" + Fixed(y1, 1) + "\" x2=\"" + Fixed(x2, 1) +
         "\" y2=\"" + Fixed(y2, 1) + "\"/>";
}

std::string Axes(const Scale& across, const Scale& up, const std::string& ofAcross, const std::string& ofUp,
                 bool percent) {
  std::string svg;
  for (int i = 0; i <= 4; ++i) {
    const double x = across.low + (across.high - across.low) * i / 4;
    const double y = up.low + (up.high - up.low) * i / 4;
    svg += Line(kLeft, up.At(y), kWidth - 10, up.At(y));
    svg += Text(across.At(x), kBottom + 16, "middle", Money(x));
    svg += Text(kLeft - 8, up.At(y) + 4, "end", percent ? Fixed(100 * y, 1) + "%" : Money(y));
  }
  return svg + Text(kWidth - 10, kHeight - 3, "end", ofAcross) + Text(kLeft, kTop - 4, "start", ofUp);
}

std::string Figure(const std::string& drawing, const std::string& caption) {
  return "<figure><svg viewBox=\"0 0 800 260\" role=\"img\" aria-label=\"" + caption + "\">" + drawing +
         "</svg><figcaption>" + caption + "</figcaption></figure>\n";
}

std::string HistogramFigure(const SystemSums& sums) {
  const std::vector<Bin> bins = Histogram(sums.nets);
  std::int64_t most = 1;
  for (const Bin& bin : bins) most = std::max(most, bin.count);
  const auto of = static_cast<double>(sums.sessions);
  const Scale across{static_cast<double>(bins.front().low) / kDollar,
                     static_cast<double>(bins.back().high) / kDollar, kLeft, kWidth - 10};
  const Scale up{0, static_cast<double>(most) / of, kBottom, kTop};
  std::string svg = Axes(across, up, "result, dollars", "share of sessions", true);
  for (const Bin& bin : bins) {
    const double x = across.At(static_cast<double>(bin.low) / kDollar);
    const double y = up.At(static_cast<double>(bin.count) / of);
    const double width = across.At(static_cast<double>(bin.high) / kDollar) - x;
    svg += "<rect fill=\"var(--" + std::string(bin.high <= 0 ? "warm" : "fill") + ")\" x=\"" +
           Fixed(x + .5, 1) + "\" y=\"" + Fixed(y, 1) + "\" width=\"" + Fixed(std::max(width - 1, .5), 1) +
           "\" height=\"" + Fixed(kBottom - y, 1) + "\"/>";
  }
  return Figure(svg, "How the sessions ended; losses in the warm colour.");
}

std::string FanFigure(const Experiment& experiment, const SystemSums& sums) {
  if (experiment.rolls == 0) return {};
  Scale up{0, 0, kBottom, kTop};
  for (const ValueCounts& counts : sums.fan) {
    up.low = std::min(up.low, static_cast<double>(Quantile(counts, 5)) / kDollar);
    up.high = std::max(up.high, static_cast<double>(Quantile(counts, 95)) / kDollar);
  }
  const Scale across{0, static_cast<double>(experiment.rolls), kLeft, kWidth - 10};
  const auto points = [&](int percent, bool back) {
    std::string path;
    for (int i = 0; i <= kFanMarks; ++i) {
      const int mark = back ? kFanMarks - i : i;
      const double net = mark == 0 ? 0 : static_cast<double>(Quantile(sums.fan[mark - 1], percent)) / kDollar;
      path += Fixed(across.At(static_cast<double>(experiment.rolls) * mark / kFanMarks), 1) + "," +
              Fixed(up.At(net), 1) + " ";
    }
    return path;
  };
  std::string svg = Axes(across, up, "rolls", "result so far, dollars", false);
  for (const int percent : {5, 10, 25})
    svg += "<polygon fill=\"var(--band)\" fill-opacity=\".2\" points=\"" + points(percent, false) +
           points(100 - percent, true) + "\"/>";
  svg += "<polyline fill=\"none\" stroke=\"var(--fill)\" stroke-width=\"2\" points=\"" + points(50, false) +
         "\"/>";
  return Figure(svg, "The way there: the median, and the middle 50, 80 and 90 percent of the sessions.");
}

std::string RuinFigure(const SystemSums& sums) {
  if (sums.ruined == 0) return {};
  const auto of = static_cast<double>(sums.sessions);
  const Scale across{0, static_cast<double>(sums.lengths.rows.back().amount), kLeft, kWidth - 10};
  const Scale up{0, static_cast<double>(sums.ruined) / of, kBottom, kTop};
  std::string points = Fixed(kLeft, 1) + "," + Fixed(kBottom, 1);
  std::int64_t ruined = 0;
  const std::size_t step = sums.ruins.rows.size() / 400 + 1;
  for (std::size_t i = 0; i < sums.ruins.rows.size(); ++i) {
    ruined += sums.ruins.rows[i].count;
    if (i % step != 0 && i + 1 != sums.ruins.rows.size()) continue;
    points += " " + Fixed(across.At(static_cast<double>(sums.ruins.rows[i].amount)), 1) + "," +
              Fixed(up.At(static_cast<double>(ruined) / of), 1);
  }
  return Figure(Axes(across, up, "rolls", "ruined so far", true) +
                    "<polyline fill=\"none\" stroke=\"var(--warm)\" stroke-width=\"2\" points=\"" + points +
                    "\"/>",
                "Ruin over time.");
}

// --- Sections.

MeanFigure NetOf(const SystemSums& sums) { return FigureMean(sums.net, sums.sessions, kDollar); }
MeanFigure AdjustedOf(const SystemSums& sums) {
  return FigureMean(sums.adjusted, sums.sessions,
                    kDollar * static_cast<double>(std::max<std::int64_t>(sums.luckUnit, 1)));
}

std::string InWords(const LabSystem& system, const SystemSums& sums) {
  const MeanFigure net = NetOf(sums);
  const auto oneIn = [&](std::int64_t count) {
    return Fixed(100 * FigureShare(count, sums.sessions).p, 1) + "%";
  };
  return Tag("p", Tag("b", Escaped(LabelOf(system))) + (net.mean < 0 ? " loses " : " wins ") +
                      Money(std::fabs(net.mean)) + " dollars a session on average (95% sure: " +
                      Money(net.ci95.low) + " to " + Money(net.ci95.high) + "). " + oneIn(sums.won) +
                      " of the sessions end ahead, " + oneIn(sums.lost) + " behind; " + oneIn(sums.ruined) +
                      " are ruined. Half of them end between " + Dollars(Quantile(sums.nets, 25)) + " and " +
                      Dollars(Quantile(sums.nets, 75)) + ".") +
         "\n";
}

std::string Row(const std::string& name, const std::vector<std::string>& cells) {
  std::string row = "<tr><td>" + name + "</td>";
  for (const std::string& cell : cells) row += Tag("td", cell);
  return row + "</tr>\n";
}

std::string QuantileTable(const SystemSums& sums) {
  std::string table = "<div class=\"wide\"><table><tr><th>share of sessions below</th>";
  for (const int percent : kQuantilePercents) table += Tag("th", std::to_string(percent) + "%");
  table += "</tr>\n";
  const auto add = [&](const char* name, const ValueCounts& counts, std::string (*show)(std::int64_t)) {
    std::vector<std::string> cells;
    for (const int percent : kQuantilePercents) cells.push_back(show(Quantile(counts, percent)));
    table += Row(name, cells);
  };
  add("result", sums.nets, Dollars);
  add("deepest fall", sums.drawdowns, Dollars);
  add("rolls", sums.lengths, Whole);
  return table + "</table></div>\n";
}

std::string SystemSection(const Experiment& experiment, const LabSystem& system, const SystemSums& sums) {
  const MeanFigure net = NetOf(sums);
  const MeanFigure adjusted = AdjustedOf(sums);
  const std::int64_t of = sums.sessions;
  const double handle = FigureMean({sums.handle, 0, 0}, of, kDollar).mean;
  std::string text = "<section><h2>" + Escaped(LabelOf(system)) + "</h2>\n<table>\n";
  const auto bounds = [](const MeanFigure& figure) {
    return Fixed(figure.mean, 4) + " <small>" + Fixed(figure.ci95.low, 4) + " to " +
           Fixed(figure.ci95.high, 4) + "</small>";
  };
  text += Row("mean result", {bounds(net)}) + Row("the same less luck", {bounds(adjusted)}) +
          Row("standard deviation", {Fixed(net.stdDev, 2)}) + Row("decided in a session", {Money(handle)}) +
          Row("result of what was decided", {handle > 0 ? Fixed(100 * net.mean / handle, 3) + "%" : "none"}) +
          Row("won", {Share(sums.won, of)}) + Row("broke even", {Share(sums.brokeEven, of)}) +
          Row("lost", {Share(sums.lost, of)}) + Row("ruined", {Share(sums.ruined, of)}) +
          Row("reached the goal", {Share(sums.goal, of)}) +
          Row("reached the loss limit", {Share(sums.limit, of)}) + Row("stopped", {Share(sums.stopped, of)}) +
          "</table>\n";
  for (const ScriptErrorKind& kind : sums.errors)
    text += Tag("p", "Run-time error, " + Whole(kind.count) + " times: line " + std::to_string(kind.line) +
                         ", " + Escaped(kind.text)) +
            "\n";
  return text + HistogramFigure(sums) + FanFigure(experiment, sums) + RuinFigure(sums) + QuantileTable(sums) +
         "</section>\n";
}

constexpr std::size_t kMostCompared = 24;  // systems

std::string Comparisons(const LabState& state) {
  if (state.systems.size() < 2 || state.systems.size() > kMostCompared) return {};
  std::string text =
      "<section><h2>Differences on the same dice</h2>\n<div class=\"wide\"><table>"
      "<tr><th>systems</th><th>mean difference</th><th>95% bounds</th></tr>\n";
  ForEachPair(state.systems.size(), [&](std::size_t pair, std::size_t a, std::size_t b) {
    const MeanFigure difference = FigureMean(state.pairs[pair], SessionsDone(state), kDollar);
    text += Row(
        Escaped(LabelOf(state.experiment.systems[a])) + " less " +
            Escaped(LabelOf(state.experiment.systems[b])),
        {Fixed(difference.mean, 4), Fixed(difference.ci95.low, 4) + " to " + Fixed(difference.ci95.high, 4)});
  });
  return text + "</table></div></section>\n";
}

// Systems by their mean result, best first.
std::string Ranking(const LabState& state) {
  if (state.systems.size() < 2) return {};
  std::vector<std::size_t> order(state.systems.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return state.systems[a].net.sum > state.systems[b].net.sum;
  });
  std::string text =
      "<section><h2>Ranking by mean result</h2>\n<div class=\"wide\"><table><tr><th>system</th>"
      "<th>mean</th><th>less luck</th><th>median</th><th>ruined</th><th>goal</th></tr>\n";
  for (const std::size_t i : order) {
    const SystemSums& sums = state.systems[i];
    text +=
        Row(Escaped(LabelOf(state.experiment.systems[i])),
            {Fixed(NetOf(sums).mean, 4), Fixed(AdjustedOf(sums).mean, 4), Dollars(Quantile(sums.nets, 50)),
             Fixed(100 * FigureShare(sums.ruined, sums.sessions).p, 2) + "%",
             Fixed(100 * FigureShare(sums.goal, sums.sessions).p, 2) + "%"});
  }
  return text + "</table></div></section>\n";
}

// --- What was asked for.

std::string HashText(const std::vector<std::string>& lines) {
  std::uint64_t hash = 0xcbf29ce484222325u;
  for (const std::string& line : lines)
    for (const char c : line + "\n") hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
  char text[24];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

std::string Ends(const Experiment& experiment) {
  std::string ends;
  const auto add = [&](const std::string& end) { ends += (ends.empty() ? "" : ", ") + end; };
  if (experiment.rolls > 0) add(Whole(experiment.rolls) + " rolls");
  if (experiment.hours > kZero) add(PlainMoney(experiment.hours) + " hours of play");
  if (experiment.hands > 0) add(Whole(experiment.hands) + " seven-outs");
  if (experiment.winGoal > kZero) add("a win of " + FormatMoney(experiment.winGoal));
  if (experiment.lossLimit > kZero) add("a loss of " + FormatMoney(experiment.lossLimit));
  add("ruin");
  return ends + (experiment.endWithHand ? "; then no contract bet up" : "; at once");
}

std::string Inputs(const LabState& state) {
  const Experiment& experiment = state.experiment;
  std::string text = "<section><h2>To repeat it</h2>\n<table>\n";
  text += Row("sessions", {Whole(SessionsDone(state))}) + Row("seed", {std::to_string(experiment.seed)}) +
          Row("generator", {kGeneratorNames[std::max(experiment.generator, 1) - 1]}) +
          Row("dice", {experiment.percentageDice ? "percentage dice" : "fair"}) +
          Row("bankroll", {FormatMoney(experiment.bankroll)}) + Row("a session ends at", {Ends(experiment)});
  for (const LabSetting& setting : experiment.settings)
    text += Row(Escaped(setting.name) + (setting.seat == 0 ? "" : "@" + std::to_string(setting.seat)),
                {Escaped(setting.text)});
  text += "</table>\n";
  const std::vector<std::string>* before = nullptr;
  for (const LabSystem& system : experiment.systems) {
    // A sweep plays one script again and again.
    if (before != nullptr && *before == system.lines) continue;
    before = &system.lines;
    std::string script;
    for (const std::string& line : system.lines) script += Escaped(line) + "\n";
    text += "<h3>" + Escaped(system.name) + " <small>" + HashText(system.lines) + "</small></h3>\n<pre>" +
            script + "</pre>\n";
  }
  return text + "</section>\n";
}

// --- Two sweeps as a map.

struct Parameter {
  std::string name;
  std::string value;
};

std::vector<Parameter> ParametersOf(const LabSystem& system) {
  std::vector<Parameter> parameters;
  for (const StackStart& start : system.stacks)
    parameters.push_back({"CheckStack " + std::to_string(start.stack), PlainMoney(start.amount)});
  for (const LabSetting& setting : system.settings) parameters.push_back({setting.name, setting.text});
  return parameters;
}

void AddNew(std::vector<std::string>& values, const std::string& value) {
  if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(value);
}

// The mean results of one script's two sweeps: across the second, down the first.
std::string HeatMap(const LabState& state) {
  const std::vector<LabSystem>& systems = state.experiment.systems;
  const std::vector<Parameter> first = ParametersOf(systems.front());
  if (first.size() != 2 || systems.size() < 4) return {};
  std::vector<std::string> down;
  std::vector<std::string> across;
  double low = 1e300;
  double high = -1e300;
  for (std::size_t i = 0; i < systems.size(); ++i) {
    if (systems[i].lines != systems.front().lines) return {};
    AddNew(down, ParametersOf(systems[i])[0].value);
    AddNew(across, ParametersOf(systems[i])[1].value);
    low = std::min(low, NetOf(state.systems[i]).mean);
    high = std::max(high, NetOf(state.systems[i]).mean);
  }
  if (down.size() * across.size() != systems.size()) return {};
  std::string text = "<section><h2>Mean result by " + Escaped(first[0].name) + " and " +
                     Escaped(first[1].name) + "</h2>\n<div class=\"wide\"><table><tr><th></th>";
  for (const std::string& value : across) text += Tag("th", Escaped(value));
  text += "</tr>\n";
  for (std::size_t row = 0; row < down.size(); ++row) {
    text += "<tr><th>" + Escaped(down[row]) + "</th>";
    for (std::size_t column = 0; column < across.size(); ++column) {
      const double mean = NetOf(state.systems[row * across.size() + column]).mean;
      const double shade = high > low ? (mean - low) / (high - low) : 1;
      text += "<td style=\"background:color-mix(in srgb,var(--fill) " + Fixed(70 * shade, 0) +
              "%,var(--page))\">" + Fixed(mean, 2) + "</td>";
    }
    text += "</tr>\n";
  }
  return text + "</table></div></section>\n";
}

constexpr std::size_t kMostSections = 40;  // of systems

}  // namespace

std::string HtmlReport(LabState& state) {
  SettleState(state);
  const Experiment& experiment = state.experiment;
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
      "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">"
      "<meta name=\"color-scheme\" content=\"light dark\"><title>Laboratory report</title><style>" +
      std::string(kStyle) + "</style></head><body>\n<h1>" + Whole(SessionsDone(state)) + " sessions of " +
      (state.systems.size() == 1 ? Escaped(LabelOf(experiment.systems.front()))
                                 : Whole(std::ssize(state.systems)) + " systems") +
      "</h1>\n";
  const std::size_t shown = std::min(state.systems.size(), kMostSections);
  for (std::size_t i = 0; i < std::min<std::size_t>(shown, 6); ++i)
    page += InWords(experiment.systems[i], state.systems[i]);
  if (experiment.precision > kZero)
    page +=
        "<p><small>The bounds were looked at again and again until they were narrow enough, which makes them "
        "a "
        "little too narrow.</small></p>\n";
  page += Ranking(state) + HeatMap(state) + Comparisons(state);
  for (std::size_t i = 0; i < shown; ++i)
    page += SystemSection(experiment, experiment.systems[i], state.systems[i]);
  if (shown < state.systems.size())
    page +=
        Tag("p", "Pictures are of the first " + Whole(static_cast<std::int64_t>(shown)) + " systems.") + "\n";
  return page + Inputs(state) + "</body></html>\n";
}

}  // namespace tessaryn
