// What one roll may make of a seat's bets: for every outcome of the dice the money and the value of what
// stays up, less what they were expected to come to. Made once for each set of bets, amounts and places of
// the chains.
#pragma once

#include <array>
#include <cstdint>

#include "rules/luck_dice.h"
#include "rules/luck_layout.h"

namespace tessaryn {

struct Game;

// What a seat rides with. Two seats that ride alike share a plan.
struct LuckRide {
  // Amounts in the order of the bets, then vig. What is more than this is planned anew at each roll.
  static constexpr int kFigures = 40;

  BetSet bets;
  BetSet working;
  std::array<std::int64_t, kFigures> figure{};
  int figures = 0;
  LuckLayout layout;

  bool Fits() const { return figures <= kFigures; }
};

struct LuckOutcome {
  WideInt luck = 0;        // what is above the mean, in 1 / unit of $0.0001
  std::int64_t after = 0;  // value of the bets that stay undecided, in kValueUnit
  std::int64_t times = 0;  // it came, and no sum knows of it yet
};

// What a roll asks for mostly stands in the first cache line, and in one of the outcome.
struct alignas(64) LuckPlan {
  bool made = false;
  bool byPoint = false;     // made, and nothing but point, amounts and calls counts
  bool counted = false;     // rolls that rode with it are counted by outcome
  int point = 0;            // the ride's
  std::int64_t before = 0;  // value of the bets, in kValueUnit
  LuckRide ride;
  std::int64_t rides = 0;  // the roll that it was last used for
  WideInt expected = 0;    // the mean of money and change of value, in 1 / unit of $0.0001
  std::int64_t unit = 36 * kValueUnit;
  double variance = 0;  // of the roll's luck, in dollars squared
  alignas(64) std::array<LuckOutcome, kOutcomes> outcomes{};
};
// Fills the plan for the bets of a seat as they are up now. Of the chances nothing is asked without
// kHandBets.
void MakeLuckPlan(LuckPlan& plan, const Game& game, SeatId seat, const LuckLayout& layout,
                  const LuckDice& dice, const LuckChances& chances);

}  // namespace tessaryn
