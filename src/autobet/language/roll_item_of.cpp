#include "autobet/language/roll_item_of.h"

#include <cmath>

#include "stats/roll_item_lists.h"

namespace tessaryn {

bool FacesOf(double number, int& die1, int& die2) {
  double whole = number;
  if (number >= 1.1 - 1e-9 && number <= 6.6 + 1e-9) {
    whole = std::round(number * 10);
    if (std::fabs(number * 10 - whole) > 1e-9) return false;
  }
  if (!(whole >= 11 && whole <= 66) || whole != std::floor(whole)) return false;
  die1 = static_cast<int>(whole) / 10;
  die2 = static_cast<int>(whole) % 10;
  return die1 <= 6 && die2 >= 1 && die2 <= 6;
}

int RollItemOf(double number) {
  if (number >= 2 && number <= 12 && number == std::floor(number)) return static_cast<int>(number);
  int die1 = 0;
  int die2 = 0;
  if (!(number < 7) || number == std::floor(number) || !FacesOf(number, die1, die2)) return -1;
  for (int item = 2; item < kRollItems; ++item)
    if (kItemPairs[item] == std::uint64_t{1} << PairIndex(die1, die2)) return item;
  return -1;
}

}  // namespace tessaryn
