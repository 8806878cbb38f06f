#include "rules/luck_dice.h"

#include <span>

#include "base/table_types.h"

namespace tessaryn {
namespace {

constexpr int kEvery[] = {2, 3, 4, 5, 6, 8, 9, 10, 11, 12};
constexpr std::size_t kSide = 5;

// Over the sets of numbers marked, from all of them backwards.
void FillMarks(const LuckDice& dice, std::span<const int> numbers, std::span<double> chances) {
  const auto marked = [](std::size_t set, std::size_t number) { return (set >> number & 1) != 0; };
  chances.back() = 1;
  for (std::size_t set = chances.size() - 1; set-- > 0;) {
    double change = dice.Chance(7);
    double win = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      if (marked(set, i)) continue;
      change += dice.Chance(numbers[i]);
      win += dice.Chance(numbers[i]) * chances[set | std::size_t{1} << i];
    }
    chances[set] = change > 0 ? win / change : 0;
  }
}

}  // namespace

LuckDice LuckDiceOf(const PercentageDice& dice) {
  LuckDice result;
  std::array<std::int32_t, 36> chances{};
  result.percentage = dice.PercentageDiceActive;
  if (result.percentage) {
    result.cells = dice.ProbMatrix[1];
    chances = DrawChances(dice);
    result.whole = 0;
    for (const std::int32_t chance : chances) result.whole += chance;
  }
  // A matrix of nothing but zeros rolls fair dice.
  if (!result.percentage || result.whole == 0) {
    chances.fill(1);
    result.whole = 36;
  }
  for (std::size_t pair = 0; pair < chances.size(); ++pair) {
    result.weight[kOutcomeOf[pair]] += chances[pair];
    result.total[kOutcomeDice[kOutcomeOf[pair]].Total()] += chances[pair];
  }
  return result;
}

bool StillTheDice(const LuckDice& dice, const PercentageDice& inForce) {
  if (dice.percentage != inForce.PercentageDiceActive) return false;
  return !dice.percentage || dice.cells == inForce.ProbMatrix[1];
}

LuckChances LuckChancesOf(const LuckDice& dice) {
  LuckChances chances;
  FillMarks(dice, kEvery, chances.all);
  FillMarks(dice, std::span(kEvery).first(kSide), chances.small);
  FillMarks(dice, std::span(kEvery).last(kSide), chances.tall);
  chances.seven = dice.Chance(7);
  chances.natural = dice.Chance(7) + dice.Chance(11);
  for (std::size_t i = 0; i < 6; ++i) {
    const std::int64_t ways = dice.total[kBoxNumbers[i]];
    const std::int64_t both = ways + dice.total[7];
    chances.set[i] = dice.Chance(kBoxNumbers[i]);
    chances.made[i] = both > 0 ? static_cast<double>(ways) / static_cast<double>(both) : 0;
    chances.anySet += chances.set[i];
    chances.anyMade += chances.set[i] * chances.made[i];
  }
  if (chances.anySet > 0) chances.anyMade /= chances.anySet;
  return chances;
}

}  // namespace tessaryn
