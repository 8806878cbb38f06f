// What the dice go on from, beside the bets, as luck follows it: the point, the marks and the counts.
#pragma once

#include <array>
#include <cstdint>

#include "rules/luck_dice.h"
#include "state/bet_families.h"

namespace tessaryn {

struct Game;

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
// With what only these bets ask about left out where none is up.
LuckLayout LuckLayoutOf(const Game& game, const BetSet& bets);
// Whether one of bets 84 to 87 is up at the table.
constexpr bool IsMarkedFor(const LuckLayout& layout, BetId bet) {
  return (layout.marked >> (bet - kAllSmall) & 1) != 0;
}
constexpr bool AllMarked(std::uint32_t marks, std::uint32_t side) { return (marks & side) == side; }

// The layout as a roll leaves it, and the marks and rolls that were counted before winners cleared them.
struct RolledLayout {
  LuckLayout after;
  std::uint32_t marks = 0;
  int fourRolls = 0;
};
using RolledLayouts = std::array<RolledLayout, kOutcomes>;
RolledLayouts LayoutsAfter(const LuckLayout& layout);

}  // namespace tessaryn
