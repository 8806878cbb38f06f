#include "play/roll_pad.h"

#include <gtest/gtest.h>

#include "base/roll_items.h"

namespace tessaryn {
namespace {

TEST(RollPad, EachLayoutReachesEveryCombinationAndNothingElse) {
  Generators generators;
  for (int layout : {kPadTotals, kPadTriangle, kPadBox}) {
    std::uint64_t seen = 0;
    for (int round = 0; round < 400; ++round)
      for (int row = -1; row <= 6; ++row)
        for (int column = -1; column <= 11; ++column) {
          const PadRoll roll = PadCellRoll(layout, row, column, generators);
          if (!roll.IsComplete()) continue;
          ASSERT_TRUE(roll.Die1 >= 1 && roll.Die1 <= 6 && roll.Die2 >= 1 && roll.Die2 <= 6);
          if (layout == kPadTotals) {
            EXPECT_EQ(roll.Die1 + roll.Die2, column + 2);
          }
          if (layout == kPadTriangle) {
            EXPECT_EQ(roll.Die1 + roll.Die2, column + 2);
          }
          if (layout == kPadBox) {
            EXPECT_TRUE(roll.Die1 == row + 1 && roll.Die2 == column + 1);
          }
          seen |= CombinationBit(roll.Die1, roll.Die2);
        }
    EXPECT_EQ(seen, (std::uint64_t{1} << 36) - 1) << layout;
  }
  EXPECT_FALSE(PadCellRoll(7, 0, 0, generators).IsComplete());
}

TEST(RollPad, ATotalsCombinationsAreEquallyLikely) {
  Generators generators;
  for (int total = 2; total <= 12; ++total) {
    int counts[7] = {};
    for (int i = 0; i < 60'000; ++i) ++counts[RandomCombination(total, generators).Die1];
    const int ways = total <= 7 ? total - 1 : 13 - total;
    for (int die1 = 1; die1 <= 6; ++die1) {
      const bool possible = total - die1 >= 1 && total - die1 <= 6;
      EXPECT_NEAR(counts[die1], possible ? 60'000 / ways : 0, possible ? 900 : 0) << total << " " << die1;
    }
  }
}

TEST(RollPad, FacesAreSetOneDieAfterTheOther) {
  Generators generators;
  PadRoll set;
  set = JoinFaces(set, PadCellRoll(kPadFaces, 0, 3, generators));
  EXPECT_FALSE(set.IsComplete());
  set = JoinFaces(set, PadCellRoll(kPadFaces, 0, 4, generators));  // changed his mind
  set = JoinFaces(set, PadCellRoll(kPadFaces, 1, 0, generators));
  EXPECT_TRUE(set.IsComplete() && set.Die1 == 5 && set.Die2 == 1);
  set = JoinFaces(set, PadCellRoll(kPadFaces, 1, 5, generators));  // the next roll starts afresh
  EXPECT_TRUE(set.Die1 == 0 && set.Die2 == 6);
}

TEST(RollPad, PixelsAtTheEdgesStayInTheGrid) {
  for (int layout = 0; layout < kRollPadLayouts; ++layout) {
    const RollPadGrid grid = GridOf(layout);
    for (const auto& [width, height] : {std::pair{333, 97}, {11, 6}, {3, 2}, {1920, 1080}}) {
      const PadCell last = PadCellAt(layout, width - 1, height - 1, width, height);
      EXPECT_TRUE(last.Row >= 0 && last.Row < grid.Rows && last.Column >= 0 && last.Column < grid.Columns);
      EXPECT_EQ(PadCellAt(layout, 0, 0, width, height).Column, 0);
      EXPECT_EQ(PadCellAt(layout, width, 0, width, height).Row, -1);
      EXPECT_EQ(PadCellAt(layout, -1, 0, width, height).Row, -1);
    }
  }
  EXPECT_EQ(PadCellAt(9, 0, 0, 10, 10).Row, -1);
}

}  // namespace
}  // namespace tessaryn
