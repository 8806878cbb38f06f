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

  LuckLayout layout;
  BetSet bets;
  BetSet working;
  int figures = 0;
  std::array<std::int64_t, kFigures> figure{};

  bool Fits() const { return figures <= kFigures; }
};

struct LuckPlan {
  bool made = false;
  bool byPoint = false;    // made, and nothing but point, amounts and calls counts
  std::int64_t rides = 0;  // the roll that it was last used for
  LuckRide ride;
  std::int64_t whole = 36;                      // of the dice
  std::int64_t unit = 36 * kValueUnit;          // in which luck and expected are parts of $0.0001
  std::int64_t before = 0;                      // value of the bets, in kValueUnit
  std::array<std::int64_t, kOutcomes> after{};  // value of those that stay undecided
  WideInt expected = 0;                         // whole times the mean of money and change of value
  std::array<WideInt, kOutcomes> luck{};        // whole times what is above the mean
  double variance = 0;                          // of the roll's luck, in dollars squared
};
// Fills the plan for the bets of a seat as they are up now. Of the chances nothing is asked without
// kHandBets.
void MakeLuckPlan(LuckPlan& plan, const Game& game, int seat, const LuckLayout& layout, const LuckDice& dice,
                  const LuckChances& chances);

}  // namespace tessaryn
