// What came of an experiment as a JSON object. Json: an ordered object of the JSON library that programs
// bring; the core has none.
#pragma once

#include <algorithm>
#include <string>

#include "lab/lab_state.h"

namespace tessaryn {

namespace lab_json {

template <typename Json>
Json BoundsJson(const Bounds& bounds) {
  return {bounds.low, bounds.high};
}

// Keys "0.01" to "0.99".
template <typename Json, typename Show>
Json QuantilesJson(const ValueCounts& counts, Show&& show) {
  Json quantiles = Json::object();
  for (const int percent : kQuantilePercents) {
    std::string key = std::to_string(percent);
    key = key.size() == 1 ? "0.0" + key : "0." + key;
    if (key.back() == '0') key.pop_back();
    quantiles[key] = show(Quantile(counts, percent));
  }
  return quantiles;
}

// Whole dollars without a point.
template <typename Json>
Json AmountJson(Currency value) {
  if (value.IsError()) return nullptr;
  if (value.IsWhole()) return value.raw / Currency::kPerDollar;
  return value.ToDouble();
}
template <typename Json>
Json DollarsJson(std::int64_t raw) {
  return AmountJson<Json>(Currency::FromRaw(raw));
}

template <typename Json>
Json ShareJson(std::int64_t count, std::int64_t of) {
  const ShareFigure share = FigureShare(count, of);
  return {{"p", share.p}, {"ci95", BoundsJson<Json>(share.ci95)}};
}

// A number as one, else the text.
template <typename Json>
Json SettingJson(const std::string& text) {
  const Json number = Json::parse(text, nullptr, false);
  return number.is_number() ? number : Json(text);
}

template <typename Json>
Json ParametersJson(const LabSystem& system) {
  Json parameters = Json::object();
  for (const StackStart& start : system.stacks)
    parameters["CheckStack " + std::to_string(start.stack)] = AmountJson<Json>(start.amount);
  for (const LabSetting& setting : system.settings)
    parameters[setting.seat == 0 ? setting.name : setting.name + "@" + std::to_string(setting.seat)] =
        SettingJson<Json>(setting.text);
  return parameters;
}

inline double MeanOf(Int128 sum, std::int64_t count, double unit) {
  return count == 0 ? 0.0 : FigureMean({sum, 0, 0}, count, unit).mean;
}

// Parts in which luck and price are told, to the dollar.
inline double PartsOf(const SystemSums& sums) {
  return kDollar * static_cast<double>(std::max<std::int64_t>(sums.luckUnit, 1));
}
inline MeanFigure AdjustedOf(const SystemSums& sums) {
  return FigureMean(sums.adjusted, sums.sessions, PartsOf(sums));
}

template <typename Json>
Json HistogramJson(const ValueCounts& counts) {
  Json bins = Json::array();
  for (const Bin& bin : Histogram(counts))
    bins.push_back(
        {{"low", DollarsJson<Json>(bin.low)}, {"high", DollarsJson<Json>(bin.high)}, {"count", bin.count}});
  return bins;
}

template <typename Json>
Json KindsJson(const std::vector<ScriptErrorKind>& kinds) {
  Json errors = Json::array();
  for (const ScriptErrorKind& kind : kinds)
    errors.push_back({{"code", kind.code},
                      {"text", kind.text},
                      {"count", kind.count},
                      {"line", kind.line},
                      {"statement", kind.statement}});
  return errors;
}

template <typename Json>
Json SystemJson(const LabSystem& system, const SystemSums& sums) {
  const MeanFigure net = FigureMean(sums.net, sums.sessions, kDollar);
  const double handle = MeanOf(sums.handle, sums.sessions, kDollar);
  Json json = {{"name", system.name}, {"parameters", ParametersJson<Json>(system)}, {"rolls", sums.rolls}};
  json["net"] = {{"mean", net.mean},
                 {"stdDev", net.stdDev},
                 {"ci95", BoundsJson<Json>(net.ci95)},
                 {"quantiles", QuantilesJson<Json>(sums.nets, DollarsJson<Json>)}};
  const MeanFigure adjusted = AdjustedOf(sums);
  json["adjusted"] = {{"mean", adjusted.mean}, {"ci95", BoundsJson<Json>(adjusted.ci95)}};
  json["handle"] = handle;
  json["price"] = MeanOf(sums.price, sums.sessions, PartsOf(sums));
  json["advantagePercent"] = handle > 0 ? 100 * net.mean / handle : 0.0;
  const std::pair<const char*, std::int64_t> shares[] = {
      {"won", sums.won},   {"brokeEven", sums.brokeEven}, {"lost", sums.lost},      {"ruined", sums.ruined},
      {"goal", sums.goal}, {"limit", sums.limit},         {"stopped", sums.stopped}};
  for (const auto& [name, count] : shares) json[name] = ShareJson<Json>(count, sums.sessions);
  json["maxDrawdown"] = {{"mean", MeanOf(sums.drawdown, sums.sessions, kDollar)},
                         {"quantiles", QuantilesJson<Json>(sums.drawdowns, DollarsJson<Json>)}};
  json["sessionRolls"] = {
      {"mean", MeanOf(sums.rolls, sums.sessions, 1)},
      {"quantiles", QuantilesJson<Json>(sums.lengths, [](std::int64_t number) { return number; })}};
  json["losingStreak"] = {
      {"mean", MeanOf(sums.streak, sums.sessions, 1)},
      {"quantiles", QuantilesJson<Json>(sums.streaks, [](std::int64_t number) { return number; })}};
  json["histogram"] = HistogramJson<Json>(sums.nets);
  if (!sums.errors.empty()) json["scriptErrors"] = KindsJson<Json>(sums.errors);
  return json;
}

}  // namespace lab_json

template <typename Json>
Json LabJson(LabState& state) {
  SettleState(state);
  const Experiment& experiment = state.experiment;
  Json json = {{"sessions", SessionsDone(state)}, {"seed", experiment.seed}};
  Json& systems = json["systems"] = Json::array();
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    systems.push_back(lab_json::SystemJson<Json>(experiment.systems[i], state.systems[i]));
  Json& comparisons = json["comparisons"] = Json::array();
  ForEachPair(state.systems.size(), [&](std::size_t pair, std::size_t a, std::size_t b) {
    const MeanFigure difference = FigureMean(state.pairs[pair], SessionsDone(state), lab_json::kDollar);
    comparisons.push_back({{"a", LabelOf(experiment.systems[a])},
                           {"b", LabelOf(experiment.systems[b])},
                           {"mean", difference.mean},
                           {"ci95", lab_json::BoundsJson<Json>(difference.ci95)}});
  });
  return json;
}

}  // namespace tessaryn
