#include "cli/lab_report.h"

#include <algorithm>
#include <cstdio>

#include "cli/commands.h"
#include "cli/script_report.h"
#include "lab/lab_json.h"

namespace tessaryn::cli {
namespace {

using lab_json::AdjustedOf;
using lab_json::MeanOf;
using lab_json::PartsOf;

}  // namespace

Json LabJson(LabState& state) { return tessaryn::LabJson<Json>(state); }

namespace {

std::string Dollars(std::int64_t raw) { return FormatMoney(Currency::FromRaw(raw)); }

std::string Percent(std::int64_t count, std::int64_t of) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f%%", 100 * FigureShare(count, of).p);
  return text;
}

void PrintSystem(const LabSystem& system, const SystemSums& sums) {
  const MeanFigure net = FigureMean(sums.net, sums.sessions, kDollar);
  const double handle = MeanOf(sums.handle, sums.sessions, kDollar);
  const std::int64_t of = sums.sessions;
  std::printf("\n%s\n", Shown(LabelOf(system)).c_str());
  std::printf("  mean result %.4f, 95%% within %.4f to %.4f; deviation %.2f\n", net.mean, net.ci95.low,
              net.ci95.high, net.stdDev);
  const MeanFigure adjusted = AdjustedOf(sums);
  std::printf("  less luck   %.4f, 95%% within %.4f to %.4f\n", adjusted.mean, adjusted.ci95.low,
              adjusted.ci95.high);
  std::printf("  handle %.2f, result %.3f%% of it; price %.4f\n", handle,
              handle > 0 ? 100 * net.mean / handle : 0.0, MeanOf(sums.price, sums.sessions, PartsOf(sums)));
  std::printf("  won %s, even %s, lost %s; ruined %s, goal %s, loss limit %s, stopped %s\n",
              Percent(sums.won, of).c_str(), Percent(sums.brokeEven, of).c_str(),
              Percent(sums.lost, of).c_str(), Percent(sums.ruined, of).c_str(),
              Percent(sums.goal, of).c_str(), Percent(sums.limit, of).c_str(),
              Percent(sums.stopped, of).c_str());
  std::printf("  %8s", "");
  for (const int percent : kQuantilePercents) std::printf(" %10d%%", percent);
  const auto row = [](const char* name, const ValueCounts& counts, std::string (*show)(std::int64_t)) {
    std::printf("\n  %-8s", name);
    for (const int percent : kQuantilePercents) std::printf(" %11s", show(Quantile(counts, percent)).c_str());
  };
  row("result", sums.nets, Dollars);
  row("drawdown", sums.drawdowns, Dollars);
  row("rolls", sums.lengths, Whole);
  row("losing", sums.streaks, Whole);
  std::printf("\n");
}

void PrintComparisons(const LabState& state) {
  constexpr std::size_t kMostShown = 20;  // systems; --json has all pairs
  if (state.systems.size() < 2 || state.systems.size() > kMostShown) return;
  std::printf("\nDifferences on the same dice\n");
  ForEachPair(state.systems.size(), [&](std::size_t pair, std::size_t a, std::size_t b) {
    const MeanFigure difference = FigureMean(state.pairs[pair], SessionsDone(state), kDollar);
    std::printf("  %s less %s: %.4f, 95%% within %.4f to %.4f\n",
                Shown(LabelOf(state.experiment.systems[a])).c_str(),
                Shown(LabelOf(state.experiment.systems[b])).c_str(), difference.mean, difference.ci95.low,
                difference.ci95.high);
  });
}

}  // namespace

void PrintLab(LabState& state) {
  SettleState(state);
  std::printf("%s sessions, seed %llu\n", Whole(SessionsDone(state)).c_str(),
              static_cast<unsigned long long>(state.experiment.seed));
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    PrintSystem(state.experiment.systems[i], state.systems[i]);
  PrintComparisons(state);
  if (state.experiment.precision > kZero && state.finished)
    std::printf("\nLooking at the bounds again and again makes them a little too narrow.\n");
}

RankBy RankByName(const std::string& name) {
  return name == "median" ? RankBy::kMedian
         : name == "ruin" ? RankBy::kRuin
         : name == "goal" ? RankBy::kGoal
                          : RankBy::kMean;
}

Json RankingJson(const LabState& state, RankBy by) {
  Json ranking = Json::array();
  for (const Ranked& place : RankSystems(state, by))
    ranking.push_back({{"system", LabelOf(state.experiment.systems[place.system])}, {"value", place.value}});
  return ranking;
}

void PrintRanking(const LabState& state, const std::string& byName) {
  const RankBy by = RankByName(byName);
  const bool share = by == RankBy::kRuin || by == RankBy::kGoal;
  std::printf("\nBy %s\n", byName.c_str());
  int place = 0;
  for (const Ranked& ranked : RankSystems(state, by))
    std::printf("  %4d. %s: %.4f%s\n", ++place,
                Shown(LabelOf(state.experiment.systems[ranked.system])).c_str(),
                share ? 100 * ranked.value : ranked.value, share ? "%" : "");
}

Json AnswersJson(const Experiment& experiment, const LabQuestion& question,
                 const std::vector<LabAnswer>& answers) {
  Json json = {{"sessions", experiment.sessions}, {"seed", experiment.seed}};
  json["find"] = question.stack < 0 ? "bankroll" : "stack:" + std::to_string(question.stack);
  json["ruin"] = question.ruin;
  Json& systems = json["systems"] = Json::array();
  for (std::size_t i = 0; i < answers.size(); ++i) {
    const LabAnswer& answer = answers[i];
    const LabSystem& system = experiment.systems[i];
    systems.push_back({{"name", system.name},
                       {"parameters", lab_json::ParametersJson<Json>(system)},
                       {"found", answer.found}});
    if (!answer.found) continue;
    Json& row = systems.back();
    row["value"] = MoneyJson(answer.value);
    row["ci95"] = {MoneyJson(answer.low), MoneyJson(answer.high)};
    row["ruined"] = {{"p", answer.ruined.p}, {"ci95", lab_json::BoundsJson<Json>(answer.ruined.ci95)}};
  }
  return json;
}

void PrintAnswers(const Experiment& experiment, const LabQuestion& question,
                  const std::vector<LabAnswer>& answers) {
  const std::string what = question.stack < 0
                               ? "the least bankroll"
                               : "the largest start of CheckStack " + std::to_string(question.stack);
  std::printf("%s sessions, seed %llu: %s with at most %g ruined\n", Whole(experiment.sessions).c_str(),
              static_cast<unsigned long long>(experiment.seed), what.c_str(), question.ruin);
  for (std::size_t i = 0; i < answers.size(); ++i) {
    const LabAnswer& answer = answers[i];
    std::printf("\n%s\n  ", Shown(LabelOf(experiment.systems[i])).c_str());
    if (!answer.found)
      std::printf("none keeps to it\n");
    else
      std::printf("%s%s, 95%% within %s to %s; ruined %.4f, 95%% within %.4f to %.4f\n",
                  FormatMoney(answer.value).c_str(), answer.any ? " or more" : "",
                  FormatMoney(answer.low).c_str(), FormatMoney(answer.high).c_str(), answer.ruined.p,
                  answer.ruined.ci95.low, answer.ruined.ci95.high);
  }
}

void TellOddities(const LabState& state) {
  for (std::size_t i = 0; i < state.systems.size(); ++i) {
    const SystemSums& sums = state.systems[i];
    const std::string name = Shown(LabelOf(state.experiment.systems[i]));
    if (sums.sessions > 0 && sums.unrolled == sums.sessions)
      std::fprintf(stderr, "tessaryn-cli: %s: stopped at 0 rolls in every session%s\n", name.c_str(),
                   sums.stopReason.empty() ? "" : (": " + AsLines(sums.stopReason)).c_str());
    if (sums.errors.empty()) continue;
    std::int64_t times = 0;
    for (const ScriptErrorKind& kind : sums.errors) times += kind.count;
    const std::string what = sums.acted
                                 ? "run-time errors of the script, " + Whole(times) + " in all; the first"
                                 : "the script could never act";
    std::fprintf(stderr, "tessaryn-cli: %s: %s: %s\n", name.c_str(), what.c_str(),
                 ErrorReport(sums.errors.front()).c_str());
  }
}

}  // namespace tessaryn::cli
