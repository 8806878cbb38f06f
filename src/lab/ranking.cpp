#include "lab/ranking.h"

#include <algorithm>

namespace tessaryn {
namespace {

double ValueOf(const SystemSums& sums, RankBy by) {
  switch (by) {
    case RankBy::kMedian:
      return Currency::FromRaw(Quantile(sums.nets, 50)).ToDouble();
    case RankBy::kRuin:
      return FigureShare(sums.ruined, sums.sessions).p;
    case RankBy::kGoal:
      return FigureShare(sums.goal, sums.sessions).p;
    default:
      return FigureMean(sums.net, sums.sessions, Currency::kPerDollar).mean;
  }
}

}  // namespace

std::vector<Ranked> RankSystems(const LabState& state, RankBy by) {
  std::vector<Ranked> ranking;
  for (std::size_t i = 0; i < state.systems.size(); ++i)
    ranking.push_back({i, ValueOf(state.systems[i], by)});
  std::stable_sort(ranking.begin(), ranking.end(), [by](const Ranked& a, const Ranked& b) {
    return by == RankBy::kRuin ? a.value < b.value : a.value > b.value;
  });
  return ranking;
}

}  // namespace tessaryn
