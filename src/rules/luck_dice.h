// The dice as luck reckons with them: what they may bring, and how often, in whole numbers.
#pragma once

#include <array>
#include <cstdint>

#include "base/roll_items.h"
#include "dice/percentage_dice.h"

namespace tessaryn {

// The 21 pairs of faces whose order doesn't matter, as no bet asks for it.
inline constexpr int kOutcomes = 21;
struct DicePair {
  int low = 0;
  int high = 0;
  constexpr int Total() const { return low + high; }
};
inline constexpr auto kOutcomeDice = [] {
  std::array<DicePair, kOutcomes> pairs{};
  std::size_t at = 0;
  for (int low = 1; low <= 6; ++low)
    for (int high = low; high <= 6; ++high) pairs[at++] = {low, high};
  return pairs;
}();
// By CombinationIndex.
inline constexpr auto kOutcomeOf = [] {
  std::array<std::uint8_t, 36> outcomes{};
  for (std::uint8_t at = 0; at < kOutcomes; ++at) {
    const DicePair pair = kOutcomeDice[at];
    outcomes[CombinationIndex(pair.low, pair.high)] = outcomes[CombinationIndex(pair.high, pair.low)] = at;
  }
  return outcomes;
}();

// Whole numbers: an outcome comes with its weight out of the whole.
struct LuckDice {
  bool percentage = false;
  std::int64_t whole = 36;
  std::array<std::int64_t, kOutcomes> weight{};
  std::array<std::int64_t, 13> total{};  // by total
  ProbabilityPlane cells{};              // of percentage dice: what this was made from

  double Chance(int number) const { return static_cast<double>(total[number]) / static_cast<double>(whole); }
};

// The dice in force: fair ones, 36 to the whole, or the percentage dice as they are drawn (DrawChances).
LuckDice LuckDiceOf(const PercentageDice& dice);
// Whether they still are what the dice were made from.
bool StillTheDice(const LuckDice& dice, const PercentageDice& inForce);

// What the bets on marks, counts and hands win with, by the dice alone.
struct LuckChances {
  std::array<double, 1024> all{};  // of marking all ten before a seven, by those that are: 2 to 6, 8 to 12
  std::array<double, 32> small{};
  std::array<double, 32> tall{};
  double seven = 0;
  double natural = 0;            // a seven or an eleven
  std::array<double, 6> set{};   // of a come-out: each point
  std::array<double, 6> made{};  // each point before a seven
  double anySet = 0;
  double anyMade = 0;  // of a point that has been set, whichever it is
};
LuckChances LuckChancesOf(const LuckDice& dice);

}  // namespace tessaryn
