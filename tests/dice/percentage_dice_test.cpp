#include "dice/percentage_dice.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <vector>

#include "base/messages.h"
#include "base/record_file.h"
#include "base/roll_items.h"
#include "dice/generators.h"
#include "support/places.h"

namespace tessaryn {
namespace {

std::int32_t ValueAt(const PercentageDice& dice, int row, int column) {
  return dice.ProbMatrix[1][row][column];
}

template <typename Visit>
void WalkCells(Visit visit) {
  for (int row = 2; row <= 7; ++row)
    for (int column = row - 1; column <= 13 - row; ++column) visit(row, column);
}

// The draw as it is told: cell by cell, the sum carried on through every retry.
void NaiveDraw(const PercentageDice& dice, Generators& generators, std::int64_t draw, int& die1, int& die2) {
  std::int64_t sum = 0;
  for (;;) {
    std::int64_t before = 0;
    for (int row = 2; row <= 7; ++row)
      for (int column = row - 1; column <= 13 - row; ++column) {
        sum += ValueAt(dice, row, column);
        if (sum >= draw && draw > before) {
          die1 = column < 7 ? row - 1 : row + column - 7;
          die2 = column < 7 ? column - row + 2 : 8 - row;
          return;
        }
        before = sum;
      }
    draw = static_cast<std::int64_t>(Rnd(generators) * 100000) + 1;
  }
}

void Scatter(PercentageDice& dice, std::mt19937& random, std::int32_t sum) {
  std::vector<std::int32_t> cuts{0, sum};
  for (int i = 0; i < 35; ++i) cuts.push_back(static_cast<std::int32_t>(random() % (sum + 1u)));
  std::sort(cuts.begin(), cuts.end());
  std::size_t at = 0;
  WalkCells([&](int row, int column) {
    dice.ProbMatrix[1][row][column] = cuts[at + 1] - cuts[at];
    ++at;
  });
  ProbabilitiesChanged(dice);
}

TEST(ProbabilityMatrix, EveryCombinationHasOneCell) {
  std::uint64_t seen = 0;
  WalkCells([&](int row, int column) {
    const int die1 = ProbabilityDie1(row, column);
    const int die2 = ProbabilityDie2(row, column);
    ASSERT_TRUE(die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6);
    EXPECT_EQ(die1 + die2 - 1, column);
    EXPECT_EQ(ProbabilityRow(die1, die2), row);
    EXPECT_EQ(ProbabilityColumn(die1, die2), column);
    seen |= CombinationBit(die1, die2);
  });
  EXPECT_EQ(seen, (std::uint64_t{1} << 36) - 1);
  int kinds[5] = {};
  for (int row = -1; row <= 8; ++row)
    for (int column = -1; column <= 14; ++column)
      ++kinds[static_cast<int>(KindOfProbabilityCell(row, column))];
  EXPECT_EQ(kinds[1], 11);
  EXPECT_EQ(kinds[2], 6);
  EXPECT_EQ(kinds[3], 6);
  EXPECT_EQ(kinds[4], 36);
}

TEST(ProbabilityMatrix, AFastDrawRollsWhatTheWalkRolls) {
  constexpr unsigned kSeed = 4711;
  std::mt19937 random(kSeed);
  PercentageDice dice;
  Generators fast;
  Generators naive;
  for (int matrix = 0; matrix < 200; ++matrix) {
    if (matrix > 0)
      Scatter(dice, random, matrix % 3 == 0 ? 100'000 : static_cast<std::int32_t>(random() % 110'000 + 1));
    for (int i = 0; i < 1000; ++i) {
      std::int32_t draw = static_cast<std::int32_t>(random() % 100'001) + 1;
      if (i < 40) draw = i < 20 ? i + 1 : 99'982 + i;
      int dice1[2], dice2[2];
      DrawFromMatrix(dice, fast, draw, dice1[0], dice1[1]);
      NaiveDraw(dice, naive, draw, dice2[0], dice2[1]);
      ASSERT_TRUE(dice1[0] == dice2[0] && dice1[1] == dice2[1]) << "seed " << kSeed << " draw " << draw;
    }
  }
  EXPECT_EQ(fast.RndState, naive.RndState);
}

TEST(ProbabilityMatrix, AnyMatrixEndsItsDraw) {
  PercentageDice dice;
  Generators generators;
  int die1 = 0, die2 = 0;
  const auto rolls = [&](std::int32_t draw) {
    for (int i = 0; i < 50; ++i) {
      DrawFromMatrix(dice, generators, draw, die1, die2);
      if (die1 < 1 || die1 > 6 || die2 < 1 || die2 > 6) return false;
    }
    return true;
  };
  dice.ProbMatrix[1] = {};
  ProbabilitiesChanged(dice);
  EXPECT_TRUE(rolls(5));
  EXPECT_FALSE(ActivatePercentageDice(dice, true));
  EXPECT_FALSE(dice.PercentageDiceActive);
  dice.ProbMatrix[1][7][6] = 1;
  ProbabilitiesChanged(dice);
  EXPECT_TRUE(ActivatePercentageDice(dice, true));
  EXPECT_TRUE(rolls(100'001) && rolls(0) && rolls(-2'147'483'647) && rolls(2'147'483'647));
  dice.ProbMatrix[1][3][3] = -2'147'483'647;
  dice.ProbMatrix[1][4][4] = 2'147'483'647;
  ProbabilitiesChanged(dice);
  EXPECT_TRUE(rolls(100'001));
}

// The chance of each combination, retries with their bias included, for a draw even over 1 to 100,000.
std::vector<double> ExactChances(const PercentageDice& dice) {
  std::vector<double> sums, chances(36);
  double total = 0;
  WalkCells([&](int row, int column) { sums.push_back(total += ValueAt(dice, row, column)); });
  const auto overlap = [](double low, double high) { return std::max(0.0, std::min(high, 100000.0) - low); };
  double reach = 1;
  double carried = 0;
  for (int pass = 0; reach > 1e-15; ++pass) {
    double before = pass == 0 ? 0 : -carried;  // a retry's first cell takes the whole carried sum
    for (std::size_t at = 0; at < 36; ++at) {
      chances[at] += reach * overlap(carried + before, carried + sums[at]) / 100000;
      before = sums[at];
    }
    carried += total;
    reach *= std::max(0.0, 100000 - carried) / 100000;
  }
  return chances;
}

TEST(ProbabilityMatrix, TenMillionDrawsKeepTheCellsAndTheBiasOfTheRetry) {
  PercentageDice dice;
  std::mt19937 random(99);
  Scatter(dice, random, 62'000);
  dice.ProbMatrix[1][2][1] = 300;
  const std::vector<double> chances = ExactChances(dice);
  auto generators = std::make_unique<Generators>();
  LoadSupportLibraries(*generators, test::kBinFolder);
  StartGenerators(*generators, 31'337);
  constexpr int kDraws = 10'000'000;
  std::int64_t counts[36] = {};
  for (int i = 0; i < kDraws; ++i) {
    int die1 = 0, die2 = 0;
    DrawFromMatrix(dice, *generators, DrawNumber(*generators, i), die1, die2);
    ++counts[CombinationIndex(die1, die2)];
  }
  double chiSquare = 0;
  double sum = 0;
  std::size_t at = 0;
  WalkCells([&](int row, int column) {
    const double expected = chances[at++] * kDraws;
    const auto count = static_cast<double>(
        counts[CombinationIndex(ProbabilityDie1(row, column), ProbabilityDie2(row, column))]);
    sum += expected;
    if (expected > 0) chiSquare += (count - expected) * (count - expected) / expected;
    EXPECT_TRUE(expected > 0 || count == 0);
  });
  EXPECT_NEAR(sum, kDraws, 1);
  EXPECT_LT(chiSquare, 80);    // 35 degrees of freedom
  EXPECT_GT(chances[0], 0.2);  // (1,1) takes most retries
}

TEST(ProbabilityEdit, ASingleEntryOnFairDiceGoesWhereItIsTold) {
  PercentageDice dice;
  ASSERT_TRUE(SetProbabilityCell(dice, kTotalRow, 6, 0, true));  // no sevens
  EXPECT_EQ(dice.ProbMatrix[0][0][0], kModeFreeForm);
  EXPECT_STREQ(PercentageDiceCaption(dice), "Free Form Dice");
  WalkCells([&](int row, int column) { EXPECT_EQ(ValueAt(dice, row, column), column == 6 ? 0 : 3333); });
  EXPECT_EQ(ValueAt(dice, kTotalRow, 1), 3333);
  EXPECT_EQ(ValueAt(dice, 2, kDie1Column), 5 * 3333);
  EXPECT_TRUE(dice.ProbDirty);

  NewProbabilityMatrix(dice);
  ASSERT_TRUE(SetProbabilityCell(dice, 2, kDie1Column, 50'000, true));
  EXPECT_STREQ(PercentageDiceCaption(dice), "Percentage Dice");
  EXPECT_EQ(ValueAt(dice, 3, kDie1Column), 10'000);
  EXPECT_EQ(ValueAt(dice, ProbabilityRow(1, 4), ProbabilityColumn(1, 4)), 8334);  // .5 * 16667, half to even
  EXPECT_EQ(ValueAt(dice, ProbabilityRow(4, 1), ProbabilityColumn(4, 1)), 1667);
  EXPECT_EQ(ValueAt(dice, 2, kDie2Column), 16'667);

  NewProbabilityMatrix(dice);
  ASSERT_TRUE(SetProbabilityCell(dice, 2, 1, 200'000, true));  // cut to the room there is
  EXPECT_EQ(ValueAt(dice, 2, 1), 100'000);
  EXPECT_EQ(ValueAt(dice, 2, 2), 0);
}

TEST(ProbabilityEdit, AnImpossibleEntryChangesNothingButItsLock) {
  PercentageDice dice;
  WalkCells([&](int row, int column) {
    if (row != 2 || column != 1) ToggleProbabilityLock(dice, row, column);
  });
  const ProbabilityCells before = dice.ProbMatrix;
  EXPECT_FALSE(SetProbabilityCell(dice, 2, 1, 50'000, true));
  EXPECT_EQ(dice.ProbMatrix[1], before[1]);
  EXPECT_EQ(dice.ProbMatrix[0][0], before[0][0]);
  EXPECT_TRUE(IsProbabilityLocked(dice, 2, 1));

  NewProbabilityMatrix(dice);
  for (int row = 2; row <= 6; ++row) ToggleProbabilityLock(dice, row, kDie2Column);
  EXPECT_FALSE(SetProbabilityCell(dice, 7, kDie2Column, 1, true));
  EXPECT_EQ(ValueAt(dice, 7, kDie2Column), 16'667);
  for (const auto& [row, column] :
       {std::pair{0, 0}, {1, 0}, {1, 12}, {2, 0}, {7, 5}, {8, 6}, {-1, 3}, {3, 99}}) {
    EXPECT_FALSE(SetProbabilityCell(dice, row, column, 5, true)) << row << "," << column;
    EXPECT_FALSE(EnterProbability(dice, row, column, "5"));
    EXPECT_FALSE(ToggleProbabilityLock(dice, row, column));
  }
  EXPECT_FALSE(SetProbabilityCell(dice, 2, 1, std::nan(""), true));
  dice.ProbDisplayMode = kShowRollsOutOf;
  dice.ProbRollsOutOf = 0;
  EXPECT_FALSE(SetProbabilityCell(dice, 2, 2, 5, false));
}

TEST(ProbabilityEdit, ACombinationInLockedGroupsIsTakenUpWithinThem) {
  PercentageDice dice;
  ASSERT_TRUE(SetProbabilityCell(dice, kTotalRow, 3, 9'000, true));  // the 4
  ASSERT_TRUE(SetProbabilityCell(dice, 2, 3, 5'000, true));          // (1,3)
  EXPECT_EQ(ValueAt(dice, kTotalRow, 3), 9'000);
  EXPECT_EQ(ValueAt(dice, 3, 3), 2'000);
  EXPECT_EQ(ValueAt(dice, 4, 3), 2'000);
  ASSERT_TRUE(SetProbabilityCell(dice, 3, 3, 8'000, true));  // cut to what the locked (1,3) leaves
  EXPECT_EQ(ValueAt(dice, 3, 3), 4'000);
  EXPECT_EQ(ValueAt(dice, 4, 3), 0);
}

TEST(ProbabilityEdit, LockedTotalsClaimTheirOwnValues) {
  struct Entry {
    int row, column;
    std::int32_t asked, taken;
  };
  const std::vector<Entry> evenings[] = {
      {{kTotalRow, 5, 33'334, 33'334}, {kTotalRow, 6, 33'333, 33'333}, {kTotalRow, 7, 90'000, 33'333}},
      {{kTotalRow, 6, 33'334, 33'334}, {kTotalRow, 5, 33'333, 33'333}, {2, 1, 90'000, 33'333}},
      {{kTotalRow, 6, 50'000, 50'000}, {kTotalRow, 8, 49'999, 49'999}, {kTotalRow, 2, 5, 0}},
      {{kTotalRow, 6, 50'000, 50'000}, {kTotalRow, 8, 49'998, 49'998}, {kTotalRow, 2, 5, 2}},
  };
  for (const std::vector<Entry>& entries : evenings) {
    PercentageDice dice;
    for (const Entry& entry : entries) {
      EXPECT_TRUE(SetProbabilityCell(dice, entry.row, entry.column, entry.asked, true));
      EXPECT_EQ(ValueAt(dice, entry.row, entry.column), entry.taken) << entry.row << "," << entry.column;
    }
  }
}

// Whether the combinations of a cell's group, by the dice they show.
bool Shows(int row, int column, int cellRow, int cellColumn) {
  switch (KindOfProbabilityCell(row, column)) {
    case ProbabilityCellKind::kTotal:
      return cellColumn == column;
    case ProbabilityCellKind::kFace1:
      return ProbabilityDie1(cellRow, cellColumn) == row - 1;
    case ProbabilityCellKind::kFace2:
      return ProbabilityDie2(cellRow, cellColumn) == row - 1;
    default:
      return cellRow == row && cellColumn == column;
  }
}

std::int32_t SumShown(const PercentageDice& dice, int row, int column) {
  std::int32_t sum = 0;
  WalkCells([&](int r, int c) { sum += Shows(row, column, r, c) ? ValueAt(dice, r, c) : 0; });
  return sum;
}

TEST(ProbabilityEdit, AHundredThousandEditsKeepEveryLockedSum) {
  constexpr unsigned kSeed = 20'260;
  std::mt19937 random(kSeed);
  PercentageDice dice;
  std::vector<std::pair<int, int>> cells;
  for (int row = 1; row <= 7; ++row)
    for (int column = 1; column <= 13; ++column)
      if (KindOfProbabilityCell(row, column) != ProbabilityCellKind::kNone) cells.push_back({row, column});
  int done = 0;
  int refused = 0;
  for (int edit = 0; edit < test::Rounds(100'000); ++edit) {
    if (random() % 12 == 0) random() % 2 == 0 ? UnlockAllProbabilities(dice) : NewProbabilityMatrix(dice);
    const auto [row, column] = cells[random() % cells.size()];
    if (random() % 8 == 0) ToggleProbabilityLock(dice, row, column);
    const std::int32_t asked = static_cast<std::int32_t>(random() % (random() % 4 == 0 ? 100'001u : 20'000u));
    const PercentageDice before = dice;
    const bool ok = SetProbabilityCell(dice, row, column, asked, true);
    const auto trace = testing::Message() << "seed " << kSeed << " edit " << edit << " cell " << row << ","
                                          << column << " asked " << asked;
    SCOPED_TRACE(trace);
    ASSERT_TRUE(IsProbabilityLocked(dice, row, column));
    if (!ok) {
      ++refused;
      ASSERT_EQ(dice.ProbMatrix[1], before.ProbMatrix[1]);
      ASSERT_EQ(dice.ProbMatrix[0][0], before.ProbMatrix[0][0]);
      continue;
    }
    ++done;
    const bool freeForm = dice.ProbMatrix[0][0][0] == kModeFreeForm;
    std::int32_t sum = 0;
    for (const auto& [r, c] : cells) {
      const std::int32_t value = ValueAt(dice, r, c);
      const bool edited = r == row && c == column;
      const bool group = r == kTotalRow || c >= kDie1Column;
      ASSERT_TRUE(value >= 0 && value <= kProbabilityCeiling) << r << "," << c << " = " << value;
      ASSERT_EQ(dice.ProbMatrix[0][r][c], edited ? kCellLocked : before.ProbMatrix[0][r][c] & kCellLocked);
      if (!group) sum += value;
      const bool kept = IsProbabilityLocked(before, r, c) && !edited;
      if (kept) {
        ASSERT_EQ(value, ValueAt(before, r, c)) << "locked " << r << "," << c;
      }
      if (kept && group) {
        // Parts are rounded, so a sum is kept to a few thousandths; the product of two faces carries the
        // other die's rounding too.
        const int off = std::max(std::abs(SumShown(before, r, c) - value), freeForm ? 6 : 60);
        ASSERT_NEAR(SumShown(dice, r, c), value, off) << "locked " << r << "," << c;
      }
      if (group && !edited && !kept && (freeForm || r == kTotalRow)) {
        ASSERT_EQ(value, SumShown(dice, r, c)) << r << "," << c;
      }
      if (group && edited) {
        ASSERT_NEAR(value, SumShown(dice, r, c), freeForm ? 6 : 60);
      }
    }
    ASSERT_NEAR(sum, kProbabilityWhole, 60);
  }
  EXPECT_GT(done, test::Rounds(40'000));
  EXPECT_GT(refused, 1'000);
}

TEST(ProbabilityEdit, AShooterKeepsHisAxesOnly) {
  PercentageDice dice;
  ApplyShooterEffectiveness(dice, 250, kAxis16, 0, kAxis25);
  for (int row = 2; row <= 7; ++row) {
    EXPECT_EQ(ValueAt(dice, row, kDie1Column), row == 2 || row == 7 ? 0 : 25'000);
    const bool locked = row == 3 || row == 6;
    EXPECT_EQ(IsProbabilityLocked(dice, row, kDie2Column), locked);
    EXPECT_EQ(ValueAt(dice, row, kDie2Column), locked ? 16'667 : 16'666);
  }
  EXPECT_EQ(ValueAt(dice, ProbabilityRow(1, 3), ProbabilityColumn(1, 3)), 0);
  EXPECT_NEAR(ValueAt(dice, ProbabilityRow(2, 5), ProbabilityColumn(2, 5)), 4'167, 1);
  // Three axes kept at all times leave no face at all: the last is not entered.
  ApplyShooterEffectiveness(dice, 100, kAxis16 | kAxis25 | kAxis34, 0, 0);
  EXPECT_EQ(ValueAt(dice, 4, kDie1Column), 50'000);
  EXPECT_EQ(ValueAt(dice, 5, kDie1Column), 50'000);
}

TEST(ProbabilityDisplayModes, WhatIsShownCanBeTypedBack) {
  std::mt19937 random(5);
  for (int mode = 0; mode < 4; ++mode) {
    for (double n : {36.0, 1000.0, 360'000.0}) {
      PercentageDice dice;
      dice.ProbDisplayMode = mode;
      dice.ProbRollsOutOf = n;
      for (int i = 0; i < 200; ++i) {
        UnlockAllProbabilities(dice);
        const int row = 2 + static_cast<int>(random() % 6);
        const int column = row - 1 + static_cast<int>(random() % (15 - 2 * row > 0 ? 15 - 2 * row : 1));
        ASSERT_TRUE(SetProbabilityCell(dice, row, column, static_cast<double>(random() % 90'000), true));
        const std::int32_t value = ValueAt(dice, row, column);
        const std::string text = ProbabilityCellText(dice, row, column);
        UnlockAllProbabilities(dice);
        ASSERT_TRUE(EnterProbability(dice, row, column, text)) << text;
        // Three decimals of a count out of few rolls don't tell every thousandth of a percent.
        const double step = mode < 2 ? 1 : 50.0 / n + 1;
        EXPECT_NEAR(ValueAt(dice, row, column), value, step) << "mode " << mode << " " << text;
      }
    }
  }
}

TEST(ProbabilityDisplayModes, CellsAreShownInTheirFormat) {
  PercentageDice dice;
  const struct {
    int mode;
    double n;
    int row, column;
    const char* text;
  } cases[] = {{0, 36, 2, 1, "2.778"},
               {0, 36, 1, 6, "16.667"},
               {1, 36, 2, 1, "0.000"},
               {1, 36, 1, 2, "0.000"},
               {2, 1'000'000, 1, 6, "166,670.000"},
               {3, 1'000'000, 1, 6, "+3.333"},
               {3, 1'000'000, 1, 4, "-1.111"},
               {2, 36, 7, 13, "6.000"},
               {0, 36, 0, 0, ""}};
  for (const auto& c : cases) {
    dice.ProbDisplayMode = c.mode;
    dice.ProbRollsOutOf = c.n;
    EXPECT_EQ(ProbabilityCellText(dice, c.row, c.column), c.text)
        << c.mode << " " << c.row << "," << c.column;
  }
  dice.ProbDisplayMode = kShowFromTruePercentage;
  ASSERT_TRUE(EnterProbability(dice, 2, 1, "-50"));
  EXPECT_EQ(ValueAt(dice, 2, 1), 0);
  EXPECT_FALSE(EnterProbability(dice, 2, 1, "1"));  // locked now
  EXPECT_EQ(ValueAt(dice, 2, 1), 0);
}

TEST(RollItems, FairChancesAgreeWithTheCombinationsOfEachItem) {
  PercentageDice dice;
  const int pairs[] = {26, 31, 32, 37, 38, 45, 46, 47, 52, 53, 58, 59, 62};
  for (int item = 22; item <= 64; ++item) {
    const bool pair = std::find(std::begin(pairs), std::end(pairs), item) != std::end(pairs);
    EXPECT_EQ(ProbabilityOfEvent(dice, item, false), pair ? 5.56f : 2.78f) << item;
    EXPECT_EQ(ProbabilityOfEvent(dice, item, true), pair ? 5.556f : 2.778f) << item;
  }
  const struct {
    int item;
    float fair, matrix;
  } cases[] = {{0, 100, 100},
               {7, 16.67f, 16.667f},
               {13, 2.78f, 2.778f},
               {17, 66.67f, 66.666f},
               {18, 50, 50},
               {19, 38.89f, 38.888f},
               {20, 11.11f, 11.112f},
               {21, 44.44f, 44.445f},
               {65, 33.33f, 33.335f},
               {66, 16.67f, 16.668f},
               {67, 33.33f, 33.333f},
               {73, 27.78f, 27.778f},
               {75, 8.33f, 8.334f},
               {78, 16.67f, 16.667f},
               {89, 16.67f, 16.667f},
               {1, 0, 0},
               {90, 0, 0},
               {-3, 0, 0},
               {5'000, 0, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(ProbabilityOfEvent(dice, c.item, false), c.fair) << c.item;
    EXPECT_EQ(ProbabilityOfEvent(dice, c.item, true), c.matrix) << c.item;
  }
  EXPECT_EQ(RollItemMask(58), CombinationBit(3, 6) | CombinationBit(6, 3));
  EXPECT_EQ(RollItemMask(64), CombinationBit(6, 5));
  EXPECT_EQ(RollItemMask(83) & RollItemMask(84), CombinationBit(6, 1));
  ASSERT_TRUE(SetProbabilityCell(dice, 5, kDie2Column, 40'000, true));
  EXPECT_EQ(ProbabilityOfEvent(dice, 87, true), 40.0f);
}

struct ProbabilityFile : testing::Test {
  std::filesystem::path Folder =
      std::filesystem::path(testing::TempDir()) / ("prb" + std::to_string(getpid()));
  std::string Path = (Folder / "a b.prb").string();
  ProbabilityFile() { std::filesystem::create_directories(Folder); }
  ~ProbabilityFile() override { std::filesystem::remove_all(Folder); }
  std::string Bytes() {
    std::string bytes;
    EXPECT_EQ(ReadWholeFile(Path, bytes), "");
    return bytes;
  }
};

TEST_F(ProbabilityFile, BytesAreThoseOfTheFormat) {
  PercentageDice dice;
  std::string error;
  ASSERT_TRUE(SetProbabilityCell(dice, 3, kDie1Column, 30'000, true));
  ASSERT_TRUE(SaveProbabilityFile(dice, Path, error)) << error;
  EXPECT_FALSE(dice.ProbDirty);
  const std::string bytes = Bytes();
  std::string expected = "Tessaryn Probability File, Data Format 4.6";
  expected.resize(200, ' ');
  expected.resize(256, '\0');
  const auto put = [&](std::int32_t value) {
    for (int shift = 0; shift < 32; shift += 8) expected += static_cast<char>((value >> shift) & 0xff);
  };
  for (const auto& plane : dice.ProbMatrix)
    for (const auto& row : plane)
      for (std::int32_t value : row) put(value);
  expected += expected.substr(256 * 3 + 128, 128);  // what the record before left in the buffer
  EXPECT_EQ(bytes, expected);

  PercentageDice other;
  ASSERT_TRUE(OpenProbabilityFile(other, "a b.prb", Folder.string(), error)) << error;
  EXPECT_EQ(other.ProbMatrix, dice.ProbMatrix);
  EXPECT_EQ(other.ProbFileName, Path);
  EXPECT_EQ(ProbabilityTitle(other), "a b.prb");
  ASSERT_TRUE(SaveProbabilityFile(other, Path, error));
  EXPECT_EQ(Bytes(), bytes);
}

TEST_F(ProbabilityFile, ADamagedFileIsRefusedAndTheMatrixStands) {
  PercentageDice dice;
  std::string error;
  SetProbabilityCell(dice, 2, 4, 12'345, true);
  ASSERT_TRUE(SaveProbabilityFile(dice, Path, error));
  const std::string whole = Bytes();
  PercentageDice open;
  SetProbabilityCell(open, kTotalRow, 7, 777, true);
  const PercentageDice before = open;
  const auto refused = [&](const std::string& content, Msg text = Msg::kNotAProbabilityFile) {
    std::ofstream(Path, std::ios::binary) << content;
    return !OpenProbabilityFile(open, Path, "", error) && error == MessageText(text) &&
           open.ProbMatrix == before.ProbMatrix && open.ProbDirty;
  };
  for (std::size_t length = 0; length < whole.size(); ++length)
    ASSERT_TRUE(refused(whole.substr(0, length))) << length;
  EXPECT_TRUE(refused(whole + std::string(256, '\0')));
  for (std::size_t at = 0; at < 42; ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 1);
    ASSERT_TRUE(refused(damaged)) << at;
  }
  std::string zeros = whole;
  for (std::size_t at = 256 + 112 * 4; at < zeros.size(); ++at) zeros[at] = 0;
  EXPECT_TRUE(refused(zeros, Msg::kNothingToRoll));

  constexpr unsigned kSeed = 8;
  std::mt19937 random(kSeed);
  Generators generators;
  for (int round = 0; round < 300; ++round) {
    std::string damaged = whole;
    for (unsigned i = 0; i <= random() % 4; ++i)
      damaged[256 + random() % (damaged.size() - 256)] = static_cast<char>(random());
    std::ofstream(Path, std::ios::binary) << damaged;
    PercentageDice loaded = before;
    if (!OpenProbabilityFile(loaded, Path, "", error)) {
      ASSERT_EQ(loaded.ProbMatrix, before.ProbMatrix) << "seed " << kSeed;
      continue;
    }
    int die1 = 0, die2 = 0;  // let in: it must be fit to roll and to edit
    for (int draw : {1, 50'000, 100'001}) DrawFromMatrix(loaded, generators, draw, die1, die2);
    ASSERT_TRUE(die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6);
    SetProbabilityCell(loaded, 4, 5, 1'000, true);
    SetProbabilityCell(loaded, 1, 5, 90'000, true);
    WalkCells([&](int row, int column) { ASSERT_GE(ValueAt(loaded, row, column), 0); });
  }
}

TEST_F(ProbabilityFile, AFailedSaveNamesTheFileAndStaysUnsaved) {
  PercentageDice dice;
  std::string error;
  SetProbabilityCell(dice, 2, 4, 12'345, true);
  for (const std::string& path :
       {Folder.string() + "/none/x.prb", Folder.string(), std::string("/dev/full")}) {
    EXPECT_FALSE(SaveProbabilityFile(dice, path, error));
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_TRUE(dice.ProbDirty);
    EXPECT_TRUE(dice.ProbFileName.empty());
  }
  EXPECT_FALSE(OpenProbabilityFile(dice, "missing.prb", Folder.string(), error));
  EXPECT_NE(error.find("missing.prb"), std::string::npos) << error;
}

TEST_F(ProbabilityFile, AFullDiskOrAReadOnlyFolderKeepsTheOldFile) {
  PercentageDice dice;
  std::string error;
  ASSERT_TRUE(SaveProbabilityFile(dice, Path, error));
  const std::string before = Bytes();
  SetProbabilityCell(dice, 2, 4, 12'345, true);
  const auto refused = [&] {
    return !SaveProbabilityFile(dice, Path, error) && error.find(Path) != std::string::npos && dice.ProbDirty;
  };
  // Any length but the whole: the disk is full in each record.
  const auto old = signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  for (rlim_t bytes : {0, 1, 255, 256, 700, 1279}) {
    const rlimit small{bytes, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool told = refused();
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_TRUE(told) << bytes << ": " << error;
    EXPECT_EQ(Bytes(), before) << bytes;
  }
  signal(SIGXFSZ, old);
  std::filesystem::permissions(Folder, std::filesystem::perms(0555));
  const bool superuser = geteuid() == 0 && seteuid(65534) == 0;
  const bool told = refused();
  if (superuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  std::filesystem::permissions(Folder, std::filesystem::perms(0755));
  EXPECT_TRUE(told) << error;
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder), {}), 1) << "nothing half written";
}

}  // namespace
}  // namespace tessaryn
