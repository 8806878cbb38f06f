#include "stats/roll_item_lists.h"

namespace tessaryn {
namespace {

std::string Faces(int die1, int die2) {
  return "(" + std::to_string(die1) + "." + std::to_string(die2) + ")";
}

std::string TotalText(int total) {
  switch (total) {
    case 2:
      return "Number 2 (1.1)";
    case 3:
      return "Number 3 (1.2) or (2.1)";
    case 11:
      return "Number 11 (5.6) or (6.5)";
    case 12:
      return "Number 12 (6.6)";
    default:
      return "Any " + std::to_string(total);
  }
}

std::string GroupText(std::uint32_t totals) {
  std::string text = "Numbers ";
  bool first = true;
  for (int total = 2; total <= 12; ++total) {
    if ((totals >> total & 1) == 0) continue;
    if (!first) text += ',';
    text += std::to_string(total);
    first = false;
  }
  return text;
}

// An exact combination, or the two orders of one.
std::string CombinationText(int item) {
  std::string text;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      if (!ItemHasPair(item, die1, die2)) continue;
      text = text.empty() ? "Number " + std::to_string(die1 + die2) + " " : text + " or ";
      text += Faces(die1, die2);
    }
  return text;
}

}  // namespace

bool ItemHasPair(int item, int die1, int die2) {
  return item >= 0 && item < kRollItems && (kItemPairs[item] >> PairIndex(die1, die2) & 1) != 0;
}

std::string RollItemText(int item) {
  if (item < 2 || item >= kRollItems - 1) return "";
  if (item <= 12) return TotalText(item);
  if (item <= 16) {
    const int face = item - 11;
    return "Hard " + std::to_string(2 * face) + " " + "(" + std::to_string(face) + "." +
           std::to_string(face) + ")";
  }
  if (item >= 78)
    return "Die " + std::to_string(item < 84 ? 1 : 2) + ", face " + std::to_string((item - 78) % 6 + 1);
  if (const std::uint32_t totals = RollItemTotals(item); totals != 0) return GroupText(totals);
  return CombinationText(item);
}

}  // namespace tessaryn
