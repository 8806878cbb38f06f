// The outcomes of a roll that are counted, looked up and asked about by number: roll items 2 to 89.
#pragma once

#include <array>
#include <cstdint>

namespace tessaryn {

inline constexpr int kRollItemCount = 91;  // items 0 to 90; 0 is every roll, 1 and 90 stand for nothing

// The 36 ordered combinations as numbers 0 to 35.
constexpr int CombinationIndex(int die1, int die2) { return (die1 - 1) * 6 + die2 - 1; }
constexpr std::uint64_t CombinationBit(int die1, int die2) {
  return std::uint64_t{1} << CombinationIndex(die1, die2);
}

namespace roll_items {

using Masks = std::array<std::uint64_t, kRollItemCount>;

constexpr std::uint64_t TotalMask(int total) {
  std::uint64_t mask = 0;
  for (int die1 = 1; die1 <= 6; ++die1)
    if (total - die1 >= 1 && total - die1 <= 6) mask |= CombinationBit(die1, total - die1);
  return mask;
}

// Items that are several totals: bit n stands for total n.
struct TotalGroup {
  int item;
  std::uint32_t totals;
};
constexpr std::uint32_t T(int total) { return 1u << total; }
inline constexpr TotalGroup kTotalGroups[] = {
    {17, T(4) | T(5) | T(6) | T(8) | T(9) | T(10)},
    {18, T(5) | T(6) | T(8) | T(9)},
    {19, T(4) | T(5) | T(9) | T(10)},
    {20, T(2) | T(3) | T(12)},
    {21, T(2) | T(3) | T(4) | T(9) | T(10) | T(11) | T(12)},
    {65, T(2) | T(3) | T(7) | T(11) | T(12)},
    {66, T(2) | T(3) | T(11) | T(12)},
    {67, T(4) | T(5) | T(6)},
    {68, T(8) | T(9) | T(10)},
    {69, T(2) | T(12)},
    {70, T(3) | T(11)},
    {71, T(4) | T(10)},
    {72, T(5) | T(9)},
    {73, T(6) | T(8)},
    {74, T(2) | T(3)},
    {75, T(3) | T(12)},
    {76, T(7) | T(11)},
    {77, T(11) | T(12)},
};

// Items 22 to 64 in order: each ordered combination by total, then the unordered pairs of that total.
// {low, high, 0}: the combination itself; {low, high, 1}: with its reverse.
struct Pair {
  int die1, die2;
  bool both;
};
inline constexpr Pair kPairs[] = {
    {1, 2, false}, {2, 1, false},                                               // 22
    {1, 3, false}, {3, 1, false}, {1, 3, true},                                 // 24
    {1, 4, false}, {4, 1, false}, {2, 3, false}, {3, 2, false}, {1, 4, true},   // 27
    {2, 3, true},                                                               // 32
    {1, 5, false}, {5, 1, false}, {2, 4, false}, {4, 2, false}, {1, 5, true},   // 33
    {2, 4, true},                                                               // 38
    {1, 6, false}, {6, 1, false}, {2, 5, false}, {5, 2, false}, {3, 4, false},  // 39
    {4, 3, false}, {1, 6, true},  {2, 5, true},  {3, 4, true},                  // 44
    {2, 6, false}, {6, 2, false}, {3, 5, false}, {5, 3, false}, {2, 6, true},   // 48
    {3, 5, true},                                                               // 53
    {3, 6, false}, {6, 3, false}, {4, 5, false}, {5, 4, false}, {3, 6, true},   // 54
    {4, 5, true},                                                               // 59
    {4, 6, false}, {6, 4, false}, {4, 6, true},                                 // 60
    {5, 6, false}, {6, 5, false},                                               // 63
};
static_assert(sizeof(kPairs) / sizeof(kPairs[0]) == 64 - 22 + 1);

constexpr Masks MakeMasks() {
  Masks masks{};
  for (int total = 2; total <= 12; ++total) masks[static_cast<std::size_t>(total)] = TotalMask(total);
  for (int hard = 2; hard <= 5; ++hard)
    masks[static_cast<std::size_t>(11 + hard)] = CombinationBit(hard, hard);
  for (const TotalGroup& group : kTotalGroups)
    for (int total = 2; total <= 12; ++total)
      if ((group.totals & T(total)) != 0) masks[static_cast<std::size_t>(group.item)] |= TotalMask(total);
  std::size_t item = 22;
  for (const Pair& pair : kPairs)
    masks[item++] = CombinationBit(pair.die1, pair.die2) |
                    (pair.both ? CombinationBit(pair.die2, pair.die1) : std::uint64_t{0});
  for (int face = 1; face <= 6; ++face)
    for (int other = 1; other <= 6; ++other) {
      masks[static_cast<std::size_t>(77 + face)] |= CombinationBit(face, other);
      masks[static_cast<std::size_t>(83 + face)] |= CombinationBit(other, face);
    }
  return masks;
}
inline constexpr Masks kMasks = MakeMasks();

}  // namespace roll_items

// The combinations that make the item come, bit CombinationIndex for each; 0 for an item that never does.
constexpr std::uint64_t RollItemMask(int item) {
  return item < 2 || item >= kRollItemCount ? 0 : roll_items::kMasks[static_cast<std::size_t>(item)];
}

// The totals of an item that is made of whole totals, bit n for total n; 0 for any other item.
constexpr std::uint32_t RollItemTotals(int item) {
  if (item >= 2 && item <= 12) return roll_items::T(item);
  for (const roll_items::TotalGroup& group : roll_items::kTotalGroups)
    if (group.item == item) return group.totals;
  return 0;
}

}  // namespace tessaryn
