// What one roll may make of a seat's bets: for every outcome of the dice the money and the value of what
// stays up, less what they were expected to come to. Made once for each set of bets, amounts and places of
// the chains.
#pragma once

#include <array>
#include <cstdint>

#include "rules/luck_dice.h"
#include "state/bet_families.h"

namespace tessaryn {

struct Game;

__extension__ typedef __int128 WideInt;

// Values of bets between two rolls are whole in this part of $0.0001: with fair dice and usual payoffs a
// contract on a number is worth thirds, fifths and elevenths of its amount.
inline constexpr std::int64_t kValueUnit = 165;

// What the dice go on from, beside the bets: the point, the marks and the counts.
struct LuckLayout {
  int point = 0;
  int pointBefore = 0;  // of the last roll
  std::uint32_t marks = 0;
  int fourRolls = 0;
  std::uint32_t fireMarks = 0;
  int fireCount = 0;
  int sharpShooter = 0;
  int rideTheLine = 0;
  bool specials = false;    // SmallTallEnabled
  std::uint8_t marked = 0;  // which of bets 84 to 87 are up at the table, so that their marks are kept

  friend bool operator==(const LuckLayout&, const LuckLayout&) = default;
};
// The bets that go by more of it than the point.
inline constexpr BetSet kHandBets =
    BetsWhere([](const FamilyRow& row) { return row.decidedBy == DecidedBy::kHand; });
// With what only the bets on marks, counts and hands ask about left out where none is up.
LuckLayout LuckLayoutOf(const Game& game, const BetSet& bets);

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
  std::int64_t rides = 0;  // the roll that it was last used for
  LuckRide ride;
  std::int64_t whole = 36;                      // of the dice
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
