#include "lab/html_report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "lab/html_figures.h"
#include "lab/html_parts.h"
#include "lab/html_style.h"
#include "lab/html_sweeps.h"
#include "lab/lab_words.h"

namespace tessaryn {
namespace {

constexpr std::int64_t kFewSessions = 30;  // bounds of fewer are rough

// --- Figures in words.

std::string Whole(std::int64_t number) { return FormatMoney(Currency::Dollars(number)); }
std::string Dollars(std::int64_t raw) { return Number(static_cast<double>(raw) / kDollar, 2); }

constexpr std::size_t kMostOfName = 64;  // characters; all of it stands above its own section

std::string NameOf(const LabState& state, std::size_t system) {
  return Escaped(Shortened(LabelOf(state.experiment.systems[system]), kMostOfName));
}
// With its letter where there are several.
std::string Keyed(const LabState& state, std::size_t system, const std::string& name) {
  if (state.systems.size() == 1) return name;
  return Tag("span", KeyOf(system, state.systems.size()), "class=\"key\"") + "&nbsp;" + name;
}
std::string KeyedName(const LabState& state, std::size_t system) {
  return Keyed(state, system, NameOf(state, system));
}

MeanFigure NetOf(const SystemSums& sums) { return FigureMean(sums.net, sums.sessions, kDollar); }
// Parts in which luck and price are told, to the dollar.
double PartsOf(const SystemSums& sums) {
  return kDollar * static_cast<double>(std::max<std::int64_t>(sums.luckUnit, 1));
}
MeanFigure AdjustedOf(const SystemSums& sums) {
  return FigureMean(sums.adjusted, sums.sessions, PartsOf(sums));
}
double MeanOf(Int128 sum, std::int64_t count, double unit) {
  return FigureMean({sum, 0, 0}, count, unit).mean;
}

std::string Between(const Bounds& bounds, std::string (*show)(double, int), int decimals) {
  return Tag("small", show(bounds.low, decimals) + " to " + show(bounds.high, decimals));
}

// A figure and its bounds, a cell each. One session has no spread to tell bounds from.
using Cells = std::vector<std::string>;
Cells MeanCells(const MeanFigure& figure, std::int64_t sessions) {
  const int decimals = DecimalsFor(figure.ci95);
  return {Signed(figure.mean, decimals), sessions < 2 ? "" : Between(figure.ci95, Signed, decimals)};
}
Cells ShareCells(std::int64_t count, std::int64_t of) {
  const ShareFigure share = FigureShare(count, of);
  return {PercentText(share.p, 2), Between(share.ci95, PercentText, 2)};
}

std::string PlainShare(std::int64_t count, std::int64_t of) {
  return PercentText(FigureShare(count, of).p, 1);
}

// With a full stop, whether it came with one or not.
std::string Ended(const std::string& sentence) { return sentence.ends_with('.') ? sentence : sentence + "."; }

bool NeverRolled(const SystemSums& sums) { return sums.unrolled == sums.sessions; }

// --- The summary.

std::string SystemInWords(const LabState& state, std::size_t system) {
  const SystemSums& sums = state.systems[system];
  const std::string name = Tag("b", KeyedName(state, system));
  if (NeverRolled(sums))
    return Tag("p", name + " never rolled the dice: " +
                        (sums.stopReason.empty() ? "every session stopped at once."
                                                 : Ended(Escaped(sums.stopReason)))) +
           "\n";
  const MeanFigure net = NetOf(sums);
  const int decimals = DecimalsFor(net.ci95);
  if (sums.handle == 0 && net.mean == 0 && net.stdDev == 0)
    return Tag("p", name + " neither won nor lost anything: none of its bets was decided.") + "\n";
  if (sums.sessions == 1)
    return Tag("p", name + (net.mean < 0 ? " lost " : " won ") + Number(std::fabs(net.mean), 2) +
                        " dollars in its one session, of " + Whole(sums.rolls) + " rolls" +
                        (sums.ruined > 0 ? ", and was ruined." : ".")) +
           "\n";
  std::string text = name + (net.mean < 0 ? " loses " : " wins ") + Number(std::fabs(net.mean), decimals) +
                     " dollars a session on average, 95% sure between " + Signed(net.ci95.low, decimals) +
                     " and " + Signed(net.ci95.high, decimals);
  text += ". " + PlainShare(sums.won, sums.sessions) + " of the sessions end ahead, " +
          PlainShare(sums.lost, sums.sessions) + " behind; " + PlainShare(sums.ruined, sums.sessions) +
          " are ruined";
  if (state.experiment.winGoal > kZero)
    text += "; " + PlainShare(sums.goal, sums.sessions) + " reach the goal";
  return Tag("p", text + ". The middle half of them end between " +
                      Signed(static_cast<double>(Quantile(sums.nets, 25)) / kDollar, 2) + " and " +
                      Signed(static_cast<double>(Quantile(sums.nets, 75)) / kDollar, 2) + ".") +
         "\n";
}

MeanFigure DifferenceOf(const LabState& state, std::size_t a, std::size_t b) {
  const std::size_t first = std::min(a, b);
  const std::size_t count = state.systems.size();
  const std::size_t pair = first * (2 * count - first - 1) / 2 + std::max(a, b) - first - 1;
  const MeanFigure figure = FigureMean(state.pairs[pair], SessionsDone(state), kDollar);
  if (a < b) return figure;
  return {-figure.mean, figure.stdDev, {-figure.ci95.high, -figure.ci95.low}};
}

// The two best by their means.
std::string Verdict(const LabState& state) {
  if (state.systems.size() < 2 || SessionsDone(state) < 2) return {};
  const std::vector<Ranked> ranking = RankSystems(state, RankBy::kMean);
  const std::size_t best = ranking[0].system;
  const std::size_t next = ranking[1].system;
  const MeanFigure difference = DifferenceOf(state, best, next);
  const int decimals = DecimalsFor(difference.ci95);
  const std::string between = ": " + std::string(difference.ci95.low > 0 ? "between " : "it is between ") +
                              Signed(difference.ci95.low, decimals) + " and " +
                              Signed(difference.ci95.high, decimals) + ", 95% sure.";
  if (difference.mean == 0 && difference.stdDev == 0)
    return Tag("p",
               Tag("b", KeyedName(state, best)) + " and " + Tag("b", KeyedName(state, next)) +
                   " end every session alike.",
               "class=\"verdict\"") +
           "\n";
  if (difference.ci95.low > 0)
    return Tag("p",
               Tag("b", KeyedName(state, best)) + " ends a session " +
                   Tag("b", Number(difference.mean, decimals) + " better") + " than " +
                   Tag("b", KeyedName(state, next)) + " on the same dice" + between,
               "class=\"verdict\"") +
           "\n";
  return Tag("p",
             "Which does best isn't sure yet. " + Tag("b", KeyedName(state, best)) + " less " +
                 Tag("b", KeyedName(state, next)) + " is " + Signed(difference.mean, decimals) +
                 " a session on the same dice" + between,
             "class=\"verdict\"") +
         "\n";
}

std::string Notes(const LabState& state) {
  std::string text;
  const auto add = [&](const std::string& note) { text += Tag("p", note, "class=\"note\"") + "\n"; };
  const std::int64_t done = SessionsDone(state);
  const SessionRange range = SessionsOf(state.experiment);
  if (!state.finished)
    add("Not finished: " + Whole(done) + " of " + Whole(range.last - range.first) +
        " sessions had been played.");
  if (state.experiment.shards > 1)
    add("A part of the whole: shard " + std::to_string(state.experiment.shard) + " of " +
        std::to_string(state.experiment.shards) + ", sessions " + Whole(range.first + 1) + " to " +
        Whole(range.last) + ".");
  if (done == 1)
    add("A single session tells nothing about the next: means have no bounds here.");
  else if (done < kFewSessions)
    add("So few sessions make rough bounds: those of means are too narrow.");
  if (state.experiment.precision > kZero)
    add("The bounds were looked at again and again until they were narrow enough, which makes them a little "
        "too narrow.");
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    if (const SystemSums& sums = state.systems[i]; !sums.errors.empty())
      add("The script of " + NameOf(state, i) + " has run-time errors" +
          (sums.acted ? "." : ", and could never act.") + " They are listed below.");
  return text;
}

constexpr std::size_t kMostInWords = 8;  // systems

std::string Summary(const LabState& state) {
  std::string text = Verdict(state) + Notes(state);
  if (state.systems.size() <= kMostInWords) {
    for (std::size_t i = 0; i < state.systems.size(); ++i) text += SystemInWords(state, i);
  } else {
    const std::vector<Ranked> ranking = RankSystems(state, RankBy::kMean);
    text += "<p class=\"soft\">The best and the worst by their means:</p>\n" +
            SystemInWords(state, ranking.front().system) + SystemInWords(state, ranking.back().system);
  }
  return Tag("div", "\n" + text, "class=\"words\"") + "\n";
}

// --- All systems.

std::string Ranking(const LabState& state, RankBy by) {
  const bool goal = state.experiment.winGoal > kZero;
  std::vector<std::string> heads = {"",
                                    "system",
                                    "mean result <small>95% bounds</small>",
                                    "the same less luck <small>95% bounds</small>",
                                    "median",
                                    "ahead",
                                    "ruined"};
  if (goal) heads.push_back("goal");
  std::string rows;
  int place = 0;
  for (const Ranked& ranked : RankSystems(state, by)) {
    const SystemSums& sums = state.systems[ranked.system];
    const Cells net = MeanCells(NetOf(sums), sums.sessions);
    const Cells adjusted = MeanCells(AdjustedOf(sums), sums.sessions);
    Cells cells = {net[0] + net[1], adjusted[0] + adjusted[1], Dollars(Quantile(sums.nets, 50)),
                   PlainShare(sums.won, sums.sessions), PlainShare(sums.ruined, sums.sessions)};
    if (goal) cells.push_back(PlainShare(sums.goal, sums.sessions));
    std::string row = Tag("td", std::to_string(++place) + ".") +
                      Tag("th", KeyedName(state, ranked.system), "scope=\"row\" class=\"name\"");
    for (const std::string& cell : cells) row += Tag("td", cell);
    rows += Tag("tr", row) + "\n";
  }
  return Tag("div", Tag("table", HeadRow(heads) + Tag("tbody", rows), "class=\"ranking\""),
             "class=\"wide\"") +
         "\n";
}

constexpr std::size_t kMostBeside = 40;  // systems in one drawing of spreads
constexpr std::size_t kMostLines = 8;    // in one drawing of lines

std::string AllSystems(const LabState& state, RankBy by) {
  const std::size_t count = state.systems.size();
  if (count < 2) return {};
  std::string text =
      std::string("<section><h2>All systems, by ") + RankName(by) + "</h2>\n" + Ranking(state, by);
  if (count <= kMostBeside) text += SpreadFigure(state);
  if (count <= kMostLines) text += RuinFigure(state, 0, count);
  return text + "</section>\n";
}

// --- Comparison.

constexpr std::size_t kMostPaired = 24;  // systems; of more each is compared with the best

std::string DifferenceRow(const LabState& state, std::size_t a, std::size_t b) {
  const MeanFigure difference = DifferenceOf(state, a, b);
  const int decimals = DecimalsFor(difference.ci95);
  const bool known = SessionsDone(state) > 1;
  const char* sure = !known                     ? "unknown"
                     : difference.ci95.low > 0  ? "yes"
                     : difference.ci95.high < 0 ? "yes, the other way"
                     : difference.stdDev == 0   ? "no difference"
                                                : "no";
  return Row(KeyedName(state, a) + " less " + KeyedName(state, b),
             {Signed(difference.mean, decimals),
              known ? Signed(difference.ci95.low, decimals) + " to " + Signed(difference.ci95.high, decimals)
                    : "unknown",
              sure});
}

std::string Comparisons(const LabState& state) {
  const std::size_t count = state.systems.size();
  if (count < 2) return {};
  std::string rows;
  if (count <= kMostPaired) {
    ForEachPair(count,
                [&](std::size_t, std::size_t a, std::size_t b) { rows += DifferenceRow(state, a, b); });
  } else {
    const std::vector<Ranked> ranking = RankSystems(state, RankBy::kMean);
    for (std::size_t i = 1; i < count; ++i)
      rows += DifferenceRow(state, ranking[0].system, ranking[i].system);
  }
  return std::string("<section><h2>Differences on the same dice</h2>\n<div class=\"wide\"><table>") +
         HeadRow({count <= kMostPaired ? "systems" : "the best by its mean, and each other",
                  "mean difference, $", "95% bounds", "sure to be better"}) +
         Tag("tbody", rows) + "</table></div></section>\n";
}

// --- One system.

std::string QuantileTable(const SystemSums& sums) {
  std::vector<std::string> heads = {"share of sessions at or below"};
  for (const int percent : kQuantilePercents) heads.push_back(std::to_string(percent) + "%");
  std::string rows;
  const auto add = [&](const char* name, const ValueCounts& counts, std::string (*show)(std::int64_t)) {
    std::vector<std::string> cells;
    for (const int percent : kQuantilePercents) cells.push_back(show(Quantile(counts, percent)));
    rows += Row(name, cells);
  };
  add("result, $", sums.nets, Dollars);
  add("deepest fall, $", sums.drawdowns, Dollars);
  add("rolls", sums.lengths, Whole);
  add("longest losing streak, rolls", sums.streaks, Whole);
  return Tag("div", Tag("table", HeadRow(heads) + Tag("tbody", rows), "class=\"quantiles\""),
             "class=\"wide\"") +
         "\n";
}

std::string Measures(const Experiment& experiment, const SystemSums& sums) {
  const MeanFigure net = NetOf(sums);
  const std::int64_t of = sums.sessions;
  const double handle = MeanOf(sums.handle, of, kDollar);
  std::string rows = Row("mean result, $", MeanCells(net, of), "class=\"mean\"");
  const auto add = [&](const char* name, const Cells& cells) { rows += Row(name, cells); };
  add("the same less luck, $", MeanCells(AdjustedOf(sums), of));
  if (of > 1) add("standard deviation, $", {Number(net.stdDev, 2), ""});
  add("decided in a session, $", {Number(handle, 2), ""});
  add("price of its bets by the odds, $", {Number(MeanOf(sums.price, of, PartsOf(sums)), 2), ""});
  add("result of what was decided", {handle > 0 ? PercentText(net.mean / handle, 3) : "none", ""});
  add("deepest fall on average, $", {Number(MeanOf(sums.drawdown, of, kDollar), 2), ""});
  add("rolls on average", {Number(MeanOf(sums.rolls, of, 1), 1), ""});
  add("ended ahead", ShareCells(sums.won, of));
  add("broke even", ShareCells(sums.brokeEven, of));
  add("ended behind", ShareCells(sums.lost, of));
  add("ruined", ShareCells(sums.ruined, of));
  if (experiment.winGoal > kZero) add("reached the goal", ShareCells(sums.goal, of));
  if (experiment.lossLimit > kZero) add("met the loss limit", ShareCells(sums.limit, of));
  if (sums.stopped > 0) add("stopped by itself", ShareCells(sums.stopped, of));
  return Tag("div", Tag("table", HeadRow({"", "", of > 1 ? "95% bounds" : ""}) + Tag("tbody", rows)),
             "class=\"wide\"") +
         "\n";
}

std::string SystemSection(const LabState& state, std::size_t system) {
  const Experiment& experiment = state.experiment;
  const SystemSums& sums = state.systems[system];
  std::string text = "<section class=\"system\"><h2>" +
                     Keyed(state, system, Escaped(LabelOf(experiment.systems[system]))) + "</h2>\n" +
                     Measures(experiment, sums);
  if (!sums.stopReason.empty())
    text += Tag("p", "The first session that stopped by itself: " + Escaped(sums.stopReason)) + "\n";
  for (const ScriptErrorKind& kind : sums.errors)
    text += Tag("p", "Run-time error, " + Whole(kind.count) + (kind.count == 1 ? " time" : " times") +
                         ": line " + std::to_string(kind.line) + ", " + Escaped(kind.text)) +
            "\n";
  if (NeverRolled(sums)) return text + "</section>\n";
  if (sums.nets.rows.size() == 1)
    text += Tag("p", "Every session ended at " + Dollars(sums.nets.rows.front().amount) + ".") + "\n";
  else
    text += ResultsFigure(experiment, sums);
  text += WayFigure(experiment, sums);
  if (state.systems.size() == 1 || state.systems.size() > kMostLines)
    text += RuinFigure(state, system, system + 1);
  return text + QuantileTable(sums) + "</section>\n";
}

// --- What was asked for.

// FNV-1a of the lines, each with a line feed.
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
  return ends + (experiment.endWithHand ? ", then when no contract bet is up" : ", at once");
}

// The chances of the 36 combinations, die 1 down.
std::string DiceTable(const Experiment& experiment) {
  if (!experiment.percentageDice) return {};
  std::string rows;
  for (int die1 = 1; die1 <= 6; ++die1) {
    std::vector<std::string> cells;
    for (int die2 = 1; die2 <= 6; ++die2)
      cells.push_back(Number(experiment.probabilities[1][static_cast<std::size_t>(ProbabilityRow(
                                 die1, die2))][static_cast<std::size_t>(ProbabilityColumn(die1, die2))] /
                                 1000.0,
                             3));
    rows += Row(std::to_string(die1), cells);
  }
  return "<h3>Percentage dice, in percent: die 1 down, die 2 across</h3>\n" +
         Tag("div", Tag("table", HeadRow({"", "1", "2", "3", "4", "5", "6"}) + Tag("tbody", rows)),
             "class=\"wide\"") +
         "\n";
}

// A sweep plays one script again and again: each text once.
std::string Scripts(const Experiment& experiment) {
  std::string text;
  std::vector<const LabSystem*> told;
  for (const LabSystem& system : experiment.systems) {
    const bool known = std::any_of(told.begin(), told.end(), [&](const LabSystem* one) {
      return one->name == system.name && one->lines == system.lines;
    });
    if (known) continue;
    told.push_back(&system);
    std::string script;
    for (const std::string& line : system.lines) script += Escaped(line) + "\n";
    text += "<h3>" + Escaped(system.name) +
            "</h3>\n<p class=\"soft\">FNV-1a of these lines: " + HashText(system.lines) + "</p>\n<pre>" +
            script + "</pre>\n";
  }
  return text;
}

std::string Inputs(const LabState& state) {
  const Experiment& experiment = state.experiment;
  std::string rows = Row("program", {std::string("Tessaryn ") + TESSARYN_VERSION}) +
                     Row("sessions played", {Whole(SessionsDone(state))}) +
                     Row("seed", {std::to_string(experiment.seed)}) +
                     Row("generator", {kGeneratorNames[std::max(experiment.generator, 1) - 1]}) +
                     Row("dice", {experiment.percentageDice ? "percentage dice" : "fair"}) +
                     Row("a session starts with, $", {FormatMoney(experiment.bankroll)}) +
                     Row("and ends at", {Ends(experiment)});
  if (experiment.precision > kZero)
    rows += Row("until means are known to, $", {"\xC2\xB1" + FormatMoney(experiment.precision)});
  for (const LabSetting& setting : experiment.settings)
    rows += Row(
        "setting " + Escaped(setting.name) + (setting.seat == 0 ? "" : "@" + std::to_string(setting.seat)),
        {Escaped(setting.text)});
  std::string text =
      "<section><h2>To repeat it</h2>\n" + Tag("table", Tag("tbody", rows), "class=\"facts\"") + "\n";
  if (const std::string command = LabCommand(experiment); !command.empty())
    text += "<p>This command gives the same figures to the last digit, on any machine:</p>\n<pre>" +
            Escaped(command) + "</pre>\n";
  return text + DiceTable(experiment) + Scripts(experiment) + "</section>\n";
}

constexpr std::size_t kMostSections = 40;  // of systems

std::string Head(const LabState& state) {
  const Experiment& experiment = state.experiment;
  const std::int64_t done = SessionsDone(state);
  const std::string systems =
      state.systems.size() == 1 ? NameOf(state, 0) : Whole(std::ssize(state.systems)) + " systems";
  const std::string title = Whole(done) + (done == 1 ? " session of " : " sessions of ") + systems;
  return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">\n"
         "<meta name=\"color-scheme\" content=\"light dark\">\n<title>" +
         title + " - Tessaryn laboratory</title>\n<style>" + kReportStyle + "</style></head>\n<body>\n" +
         Tag("h1", title) + "\n" +
         Tag("p",
             "A session starts with " + FormatMoney(experiment.bankroll) + " and ends at " +
                 Ends(experiment) + ". Seed " + std::to_string(experiment.seed) + ".",
             "class=\"soft\"") +
         "\n";
}

}  // namespace

std::string HtmlReport(LabState& state, RankBy by) {
  SettleState(state);
  std::string page =
      Head(state) + Summary(state) + SweepSections(state, by) + AllSystems(state, by) + Comparisons(state);
  const std::size_t shown = std::min(state.systems.size(), kMostSections);
  for (std::size_t i = 0; i < shown; ++i) page += SystemSection(state, i);
  if (shown < state.systems.size())
    page += Tag("p", "Drawings are of the first " + Whole(static_cast<std::int64_t>(shown)) + " systems.",
                "class=\"soft\"") +
            "\n";
  return page + Inputs(state) + "</body></html>\n";
}

}  // namespace tessaryn
