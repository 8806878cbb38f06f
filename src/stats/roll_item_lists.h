// The roll items that each pair of faces counts, and the words that selectors use for an item.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/roll_items.h"
#include "state/statistics_state.h"

namespace tessaryn {

// The items 2 to 89 that come with one pair of faces.
struct PairItems {
  std::uint8_t items[15] = {};
  int count = 0;
};

inline constexpr auto kItemPairs = [] {
  std::array<std::uint64_t, kRollItems> pairs{};
  for (int item = 2; item < kRollItems - 1; ++item) pairs[item] = RollItemMask(item);
  return pairs;
}();

inline constexpr auto kPairItems = [] {
  std::array<PairItems, kDicePairs> lists{};
  for (int item = 2; item < kRollItems - 1; ++item)
    for (int pair = 0; pair < kDicePairs; ++pair)
      if ((kItemPairs[item] >> pair & 1) != 0)
        lists[pair].items[lists[pair].count++] = static_cast<std::uint8_t>(item);
  return lists;
}();

// Whether an item counts the pair of faces.
bool ItemHasPair(int item, int die1, int die2);
// "Number 2 (1.1)", "Any 7", "Die 1, face 3" ...; empty for an item that is never counted.
std::string RollItemText(int item);

}  // namespace tessaryn
