#include "dice/percentage_dice.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/messages.h"
#include "base/record_file.h"
#include "base/roll_items.h"
#include "dice/generators.h"

namespace tessaryn {
namespace {

struct Cell {
  std::int8_t row;
  std::int8_t column;
};

struct Geometry {
  std::array<Cell, 36> Walk{};          // along the diagonal bands, row by row
  std::array<std::uint8_t, 36> Die1{};  // of Walk
  std::array<std::uint8_t, 36> Die2{};
  std::array<std::uint8_t, kProbabilityColumns> WaysOf{};  // combinations in a total's column
};

constexpr Geometry MakeGeometry() {
  Geometry geometry;
  std::size_t at = 0;
  for (int row = 2; row <= 7; ++row)
    for (int column = row - 1; column <= 13 - row; ++column, ++at) {
      geometry.Walk[at] = {static_cast<std::int8_t>(row), static_cast<std::int8_t>(column)};
      geometry.Die1[at] = static_cast<std::uint8_t>(ProbabilityDie1(row, column));
      geometry.Die2[at] = static_cast<std::uint8_t>(ProbabilityDie2(row, column));
      ++geometry.WaysOf[static_cast<std::size_t>(column)];
    }
  return geometry;
}
constexpr Geometry kGeometry = MakeGeometry();

std::int32_t& Flags(PercentageDice& dice, int row, int column) { return dice.ProbMatrix[0][row][column]; }
std::int32_t& Value(PercentageDice& dice, int row, int column) { return dice.ProbMatrix[1][row][column]; }
std::int32_t& Mode(PercentageDice& dice) { return dice.ProbMatrix[0][0][0]; }
bool IsLocked(PercentageDice& dice, int row, int column) {
  return (Flags(dice, row, column) & kCellLocked) != 0;
}

// To the nearest, an exact half to the even number.
std::int32_t Round(double value) { return static_cast<std::int32_t>(std::llrint(value)); }

// The number of the 36 combinations that a cell stands for.
int WaysOfCell(int row, int column) {
  switch (KindOfProbabilityCell(row, column)) {
    case ProbabilityCellKind::kTotal:
      return kGeometry.WaysOf[column];
    case ProbabilityCellKind::kFace1:
    case ProbabilityCellKind::kFace2:
      return 6;
    case ProbabilityCellKind::kCombination:
      return 1;
    default:
      return 0;
  }
}

// ---- The edit ----------------------------------------------------------------------------------------

using Combinations = std::array<std::int32_t, 36>;  // in the order of the walk

// What an edit works on, and puts back only when it has succeeded.
struct Edit {
  Combinations Values{};
  Combinations Flags{};
  std::array<std::int32_t, kProbabilityColumns>
      LockedTotals{};  // their own values, by column; else kUnlocked
};
constexpr std::int32_t kUnlocked = -1;

// Whether the combination at a place of the walk belongs to the group of a total or a face.
bool InGroup(std::size_t at, int row, int column) {
  switch (KindOfProbabilityCell(row, column)) {
    case ProbabilityCellKind::kTotal:
      return kGeometry.Walk[at].column == column;
    case ProbabilityCellKind::kFace1:
      return kGeometry.Die1[at] == row - 1;
    case ProbabilityCellKind::kFace2:
      return kGeometry.Die2[at] == row - 1;
    default:
      return false;
  }
}

std::int32_t GroupBit(int row, int column) {
  switch (KindOfProbabilityCell(row, column)) {
    case ProbabilityCellKind::kTotal:
      return kInLockedTotal;
    case ProbabilityCellKind::kFace1:
      return kInLockedFace1;
    default:
      return kInLockedFace2;
  }
}

template <typename Visit>
void ForEachGroupCell(Visit visit) {
  for (int column = 1; column <= 11; ++column) visit(kTotalRow, column);
  for (int row = 2; row <= 7; ++row) visit(row, kDie1Column);
  for (int row = 2; row <= 7; ++row) visit(row, kDie2Column);
}

// The combinations with the flags that the locks give them.
Edit StartEdit(PercentageDice& dice) {
  Edit edit;
  for (std::size_t at = 0; at < 36; ++at) {
    const Cell cell = kGeometry.Walk[at];
    edit.Values[at] = Value(dice, cell.row, cell.column);
    edit.Flags[at] = Flags(dice, cell.row, cell.column) & kCellLocked;
  }
  edit.LockedTotals.fill(kUnlocked);
  for (int column = 1; column <= 11; ++column)
    if (IsLocked(dice, kTotalRow, column)) edit.LockedTotals[column] = Value(dice, kTotalRow, column);
  ForEachGroupCell([&](int row, int column) {
    if (!IsLocked(dice, row, column)) return;
    for (std::size_t at = 0; at < 36; ++at)
      if (InGroup(at, row, column)) edit.Flags[at] |= GroupBit(row, column);
  });
  return edit;
}

// A sum over a part of the combinations: what the bound ones hold, and how many are free.
struct Share {
  std::int64_t Bound = 0;
  int Free = 0;
};

// By what the combinations of a part hold more than the locked totals that lie wholly in it. These claim
// their own value, whatever their combinations add up to by rounding.
template <typename Belongs>
std::int64_t RoundedExcess(const Edit& edit, Belongs belongs) {
  std::int64_t excess = 0;
  for (int column = 1; column <= 11; ++column) {
    if (edit.LockedTotals[column] == kUnlocked) continue;
    std::int64_t sum = 0;
    bool whole = true;
    for (std::size_t at = 0; at < 36; ++at) {
      if (kGeometry.Walk[at].column != column) continue;
      sum += edit.Values[at];
      whole = whole && belongs(at);
    }
    if (whole) excess += sum - edit.LockedTotals[column];
  }
  return excess;
}

template <typename Belongs>
Share Survey(const Edit& edit, std::int32_t bindingFlags, Belongs belongs) {
  Share share;
  for (std::size_t at = 0; at < 36; ++at) {
    if (!belongs(at)) continue;
    if ((edit.Flags[at] & bindingFlags) != 0) {
      share.Bound += edit.Values[at];
    } else {
      ++share.Free;
    }
  }
  if ((bindingFlags & kInLockedTotal) != 0) share.Bound -= RoundedExcess(edit, belongs);
  return share;
}

template <typename Belongs>
void ShareOut(Edit& edit, std::int32_t bindingFlags, const Share& share, std::int64_t rest, Belongs belongs) {
  const std::int32_t part = Round(static_cast<double>(std::max<std::int64_t>(rest, 0)) / share.Free);
  for (std::size_t at = 0; at < 36; ++at)
    if (belongs(at) && (edit.Flags[at] & bindingFlags) == 0) edit.Values[at] = part;
}

std::int64_t Room(std::int64_t claimed) {
  const std::int64_t room = kProbabilityWhole - claimed;
  return room < 2 ? 0 : room;
}

constexpr std::int32_t kBound = kCellLocked | kInLockedTotal | kInLockedFace1 | kInLockedFace2;

// A total, or a face among locked totals and combinations: its combinations share the value, all others
// what is left of 100%. value comes in as asked and goes out as cut.
bool EditGroup(Edit& edit, int row, int column, std::int64_t& value) {
  const auto inside = [&](std::size_t at) { return InGroup(at, row, column); };
  const auto outside = [&](std::size_t at) { return !InGroup(at, row, column); };
  const std::int32_t boundInside = kBound & ~GroupBit(row, column);
  const Share in = Survey(edit, boundInside, inside);
  const Share out = Survey(edit, kBound, outside);
  if (in.Free == 0 || out.Free == 0) return false;
  const std::int64_t room = Room(out.Bound);
  value = std::max(std::min(value, room), in.Bound);
  ShareOut(edit, boundInside, in, value - in.Bound, inside);
  ShareOut(edit, kBound, out, room - value, outside);
  return true;
}

// The locked total and faces that a combination belongs to take up its change among themselves, each keeping
// its sum; then all other free combinations share what is left of 100%.
bool EditCombination(PercentageDice& dice, Edit& edit, std::size_t edited, std::int64_t& value) {
  struct Group {
    int row, column;
    Share share;
  };
  const int die1 = kGeometry.Die1[edited];
  const int die2 = kGeometry.Die2[edited];
  Group groups[3] = {
      {kTotalRow, die1 + die2 - 1, {}}, {die1 + 1, kDie1Column, {}}, {die2 + 1, kDie2Column, {}}};
  int absorbing = 0;
  std::int64_t highest = kProbabilityWhole;
  std::int64_t claimed = 0;  // by the absorbing groups without the edited combination
  const auto member = [edited](const Group& group) {
    return [&group, edited](std::size_t at) { return at != edited && InGroup(at, group.row, group.column); };
  };
  for (Group& group : groups) {
    if (!IsLocked(dice, group.row, group.column)) continue;
    group.share = Survey(edit, kBound & ~GroupBit(group.row, group.column), member(group));
    if (group.share.Free == 0) return false;
    ++absorbing;
    const std::int64_t sum = Value(dice, group.row, group.column);
    highest = std::min(highest, sum - group.share.Bound);
    claimed += sum;
  }
  const auto elsewhere = [&](std::size_t at) {
    if (at == edited) return false;
    for (const Group& group : groups)
      if (group.share.Free > 0 && member(group)(at)) return false;
    return true;
  };
  const Share others = Survey(edit, kBound, elsewhere);
  // One group alone takes up the whole change; otherwise it reaches the combinations elsewhere.
  if (others.Free == 0 && absorbing != 1) return false;
  const std::int64_t room = Room(others.Bound + claimed);
  if (absorbing == 0) highest = std::min(highest, room);
  // Two groups give way twice for what the cell takes once, so that a small value can leave too much.
  std::int64_t lowest = 0;
  if (absorbing > 1) {
    const std::int64_t excess = others.Bound + claimed - kProbabilityWhole;
    lowest = excess <= 0 ? 0 : (excess + absorbing - 2) / (absorbing - 1);
  }
  if (highest < lowest) return false;
  value = std::clamp(value, lowest, highest);
  for (const Group& group : groups) {
    if (group.share.Free == 0) continue;
    const std::int64_t sum = Value(dice, group.row, group.column);
    ShareOut(edit, kBound & ~GroupBit(group.row, group.column), group.share, sum - group.share.Bound - value,
             member(group));
  }
  edit.Values[edited] = static_cast<std::int32_t>(value);
  if (others.Free > 0) {
    const std::int64_t left = kProbabilityWhole - others.Bound - claimed + (absorbing - 1) * value;
    ShareOut(edit, kBound, others, left < 2 ? 0 : left, elsewhere);
  }
  return true;
}

// A face while no combination and no total is locked: the other free faces of the die share what is left,
// and every combination is the product of its faces.
bool EditFaceOfPercentageDice(PercentageDice& dice, Edit& edit, int row, int column, std::int64_t& value) {
  std::int64_t claimed = 0;
  int freeFaces = 0;
  for (int face = 2; face <= 7; ++face) {
    if (face == row) continue;
    if (IsLocked(dice, face, column)) {
      claimed += Value(dice, face, column);
    } else {
      ++freeFaces;
    }
  }
  if (freeFaces == 0) return false;
  const std::int64_t room = Room(claimed);
  value = std::min(value, room);
  const std::int32_t part = Round(static_cast<double>(room - value) / freeFaces);
  for (int face = 2; face <= 7; ++face)
    if (face != row && !IsLocked(dice, face, column)) Value(dice, face, column) = part;
  Value(dice, row, column) = static_cast<std::int32_t>(value);
  for (std::size_t at = 0; at < 36; ++at) {
    const double face1 = Value(dice, kGeometry.Die1[at] + 1, kDie1Column);
    const double face2 = Value(dice, kGeometry.Die2[at] + 1, kDie2Column);
    edit.Values[at] = Round(face1 * face2 * 1e-5);
  }
  return true;
}

bool AnyTotalOrCombinationLocked(PercentageDice& dice) {
  for (int column = 1; column <= 11; ++column)
    if (IsLocked(dice, kTotalRow, column)) return true;
  return std::any_of(kGeometry.Walk.begin(), kGeometry.Walk.end(),
                     [&](Cell cell) { return IsLocked(dice, cell.row, cell.column); });
}

void FinishEdit(PercentageDice& dice, const Edit& edit) {
  for (std::size_t at = 0; at < 36; ++at)
    Value(dice, kGeometry.Walk[at].row, kGeometry.Walk[at].column) = edit.Values[at];
  ForEachGroupCell([&](int row, int column) {
    if (IsLocked(dice, row, column)) return;
    if (column >= kDie1Column && Mode(dice) == kModePercentageDice) return;
    std::int32_t sum = 0;
    for (std::size_t at = 0; at < 36; ++at)
      if (InGroup(at, row, column)) sum += edit.Values[at];
    Value(dice, row, column) = sum;
  });
  dice.ProbDirty = true;
  ProbabilitiesChanged(dice);
}

bool EditCell(PercentageDice& dice, int row, int column, std::int64_t value) {
  const ProbabilityCellKind kind = KindOfProbabilityCell(row, column);
  Edit edit = StartEdit(dice);
  bool done = false;
  std::int32_t mode = kModeFreeForm;
  if (kind == ProbabilityCellKind::kCombination) {
    std::size_t edited = 0;
    while (kGeometry.Walk[edited].row != row || kGeometry.Walk[edited].column != column) ++edited;
    done = EditCombination(dice, edit, edited, value);
  } else if (kind == ProbabilityCellKind::kTotal || AnyTotalOrCombinationLocked(dice)) {
    done = EditGroup(edit, row, column, value);
  } else {
    mode = kModePercentageDice;
    done = EditFaceOfPercentageDice(dice, edit, row, column, value);
  }
  if (!done) return false;
  Mode(dice) = mode;
  Value(dice, row, column) = static_cast<std::int32_t>(value);
  FinishEdit(dice, edit);
  return true;
}

// ---- Drawing -----------------------------------------------------------------------------------------

void BuildDrawTable(PercentageDice& dice) {
  ProbabilityDrawTable& table = dice.DrawTable;
  std::int32_t sum = 0;
  for (std::size_t at = 0; at < 36; ++at) {
    const Cell cell = kGeometry.Walk[at];
    sum += std::clamp(Value(dice, cell.row, cell.column), 0, kProbabilityCeiling);
    table.Sums[at] = sum;
  }
  for (std::size_t bucket = 0; bucket < table.First.size(); ++bucket) {
    const auto lowestDraw = static_cast<std::int32_t>(bucket * 256 + 1);
    const auto first = std::lower_bound(table.Sums.begin(), table.Sums.end(), lowestDraw);
    table.First[bucket] = static_cast<std::uint8_t>(first - table.Sums.begin());
  }
  table.Ready = true;
}

// The first place of the walk whose running sum reaches the draw. Requires 1 <= draw <= the last sum.
std::size_t PlaceOf(const ProbabilityDrawTable& table, std::int64_t draw) {
  const auto bucket = std::min<std::int64_t>((draw - 1) / 256, std::ssize(table.First) - 1);
  std::size_t at = table.First[static_cast<std::size_t>(bucket)];
  while (table.Sums[at] < draw) ++at;
  return at;
}

// Walks again with new draws, the sum of the walks before carried on.
std::size_t RetryPlace(const ProbabilityDrawTable& table, Generators& generators) {
  const std::int64_t sum = table.Sums.back();
  if (sum <= 0) return static_cast<std::size_t>(RndPick(generators, 36) - 1);
  for (std::int64_t carried = sum;; carried += sum) {
    const std::int64_t draw = RndPick(generators, kProbabilityWhole);
    if (draw <= carried) return 0;
    if (draw <= carried + sum) return PlaceOf(table, draw - carried);
  }
}

// ---- Texts -------------------------------------------------------------------------------------------

std::string WithSeparators(double magnitude) {
  char digits[400];
  std::snprintf(digits, sizeof digits, "%.3f", magnitude);
  std::string text = digits;
  for (auto at = static_cast<std::ptrdiff_t>(text.find('.')) - 3; at > 0; at -= 3)
    text.insert(static_cast<std::size_t>(at), 1, ',');
  return text;
}

bool IsDisplayFromTrue(const PercentageDice& dice) {
  return dice.ProbDisplayMode == kShowFromTruePercentage || dice.ProbDisplayMode == kShowFromTrueRollsOutOf;
}
bool IsDisplayOutOf(const PercentageDice& dice) {
  return dice.ProbDisplayMode == kShowRollsOutOf || dice.ProbDisplayMode == kShowFromTrueRollsOutOf;
}

// Fair percentages to two decimals, as the reports print them, by the number of combinations in the event.
constexpr float kFairPercent[37] = {
    0,      2.78f,  5.56f,  8.33f,  11.11f, 13.89f, 16.67f, 19.44f, 22.22f, 25.0f,  27.78f, 30.56f, 33.33f,
    36.11f, 38.89f, 41.67f, 44.44f, 47.22f, 50.0f,  52.78f, 55.56f, 58.33f, 61.11f, 63.89f, 66.67f, 69.44f,
    72.22f, 75.0f,  77.78f, 80.56f, 83.33f, 86.11f, 88.89f, 91.67f, 94.44f, 97.22f, 100.0f};

// ---- The file ----------------------------------------------------------------------------------------

constexpr std::size_t kProbabilityFileRecords = 5;
constexpr std::size_t kMagicBytes = 42;
constexpr std::size_t kMagicField = 200;
static_assert(std::string_view(kProbabilityMagic).size() == kMagicBytes);

bool InRange(std::int32_t value, std::int32_t low, std::int32_t high) {
  return value >= low && value <= high;
}

// What a matrix from outside has to be like before it is let in.
bool IsUsable(const ProbabilityCells& cells) {
  const ProbabilityPlane& flags = cells[0];
  if (!InRange(flags[0][0], kModeFreeForm, kModePercentageDice)) return false;
  if (!InRange(flags[0][1], 0, kProbabilityRows - 1) || !InRange(flags[0][2], 0, kProbabilityColumns - 1))
    return false;
  for (int row = 1; row < kProbabilityRows; ++row)
    for (int column = 1; column < kProbabilityColumns; ++column) {
      if (KindOfProbabilityCell(row, column) == ProbabilityCellKind::kNone) continue;
      if ((flags[row][column] & ~(kCellLocked | kBound)) != 0) return false;
      if (!InRange(cells[1][row][column], 0, kProbabilityCeiling)) return false;
    }
  return true;
}

bool HasSomethingToRoll(const ProbabilityCells& cells) {
  return std::any_of(kGeometry.Walk.begin(), kGeometry.Walk.end(),
                     [&](Cell cell) { return cells[1][cell.row][cell.column] > 0; });
}

bool ReadCells(const RecordFile& file, ProbabilityCells& cells) {
  if (file.Records.size() != kProbabilityFileRecords) return false;
  const auto* text = reinterpret_cast<const char*>(file.Records[0].data());
  if (std::string_view(text, kMagicBytes) != kProbabilityMagic) return false;
  RecordUnpacker<std::int32_t> values(file, 1);
  for (ProbabilityPlane& plane : cells)
    for (auto& row : plane)
      for (std::int32_t& value : row) value = values.Get();
  return IsUsable(cells);
}

}  // namespace

ProbabilityCellKind KindOfProbabilityCell(int row, int column) {
  if (row == kTotalRow && column >= 1 && column <= 11) return ProbabilityCellKind::kTotal;
  if (row < 2 || row > 7 || column < 1) return ProbabilityCellKind::kNone;
  if (column == kDie1Column) return ProbabilityCellKind::kFace1;
  if (column == kDie2Column) return ProbabilityCellKind::kFace2;
  if (column >= row - 1 && column <= 13 - row) return ProbabilityCellKind::kCombination;
  return ProbabilityCellKind::kNone;
}

ProbabilityCells FairProbabilities() {
  static constexpr std::int32_t kTotals[11] = {2778,  5556,  8333, 11111, 13889, 16667,
                                               13889, 11111, 8333, 5556,  2778};
  ProbabilityCells cells{};
  for (int column = 1; column <= 11; ++column) cells[1][kTotalRow][column] = kTotals[column - 1];
  for (const Cell cell : kGeometry.Walk) cells[1][cell.row][cell.column] = 2778;
  for (int row = 2; row <= 7; ++row) cells[1][row][kDie1Column] = cells[1][row][kDie2Column] = 16667;
  cells[0][0][1] = 2;  // the cursor, on the cell of (1,1)
  cells[0][0][2] = 1;
  return cells;
}

bool ActivatePercentageDice(PercentageDice& dice, bool active) {
  if (!dice.DrawTable.Ready) BuildDrawTable(dice);
  dice.PercentageDiceActive = active && dice.DrawTable.Sums.back() > 0;
  return dice.PercentageDiceActive == active;
}

void DrawFromMatrix(PercentageDice& dice, Generators& generators, std::int32_t draw, int& die1, int& die2) {
  ProbabilityDrawTable& table = dice.DrawTable;
  if (!table.Ready) [[unlikely]]
    BuildDrawTable(dice);
  const bool hit = draw >= 1 && draw <= table.Sums.back();
  const std::size_t at = hit ? PlaceOf(table, draw) : RetryPlace(table, generators);
  die1 = kGeometry.Die1[at];
  die2 = kGeometry.Die2[at];
}

std::array<std::int32_t, 36> DrawChances(const PercentageDice& dice) {
  std::array<std::int32_t, 36> chances{};
  std::int32_t left = kProbabilityWhole;
  for (std::size_t at = 0; at < 36; ++at) {
    const Cell cell = kGeometry.Walk[at];
    const std::int32_t draws = std::clamp(dice.ProbMatrix[1][cell.row][cell.column], 0, left);
    chances[CombinationIndex(kGeometry.Die1[at], kGeometry.Die2[at])] = draws;
    left -= draws;
  }
  if (left < kProbabilityWhole) chances[0] += left;
  return chances;
}

bool SetProbabilityCell(PercentageDice& dice, int row, int column, double value, bool raw) {
  if (KindOfProbabilityCell(row, column) == ProbabilityCellKind::kNone) return false;
  const double trueValue = 100000.0 * WaysOfCell(row, column) / 36;
  if (!raw && IsDisplayOutOf(dice)) value = value * 100 / dice.ProbRollsOutOf;
  if (!raw && IsDisplayFromTrue(dice)) value += trueValue;
  if (!std::isfinite(value)) return false;
  const std::int32_t asked = Round(std::clamp(value, 0.0, static_cast<double>(kProbabilityWhole)));

  Flags(dice, row, column) |= kCellLocked;
  const std::int32_t old = Value(dice, row, column);
  Value(dice, row, column) = 0;
  const bool done = EditCell(dice, row, column, asked);
  if (!done) Value(dice, row, column) = old;
  return done;
}

bool EnterProbability(PercentageDice& dice, int row, int column, std::string_view text) {
  if (KindOfProbabilityCell(row, column) == ProbabilityCellKind::kNone) return false;
  if (IsLocked(dice, row, column)) return false;
  std::string number(text);
  std::erase(number, ',');
  return SetProbabilityCell(dice, row, column, LeadingNumber(number) * 1000, false);
}

bool ToggleProbabilityLock(PercentageDice& dice, int row, int column) {
  if (KindOfProbabilityCell(row, column) == ProbabilityCellKind::kNone) return false;
  Flags(dice, row, column) ^= kCellLocked;
  return true;
}

bool IsProbabilityLocked(const PercentageDice& dice, int row, int column) {
  return KindOfProbabilityCell(row, column) != ProbabilityCellKind::kNone &&
         (dice.ProbMatrix[0][row][column] & kCellLocked) != 0;
}

void UnlockAllProbabilities(PercentageDice& dice) {
  for (int row = 1; row <= 7; ++row)
    for (int column = 1; column <= 13; ++column) Flags(dice, row, column) = 0;
}

void ResetProbabilityMatrix(PercentageDice& dice) {
  dice.ProbMatrix[1] = FairProbabilities()[1];
  ProbabilitiesChanged(dice);
}

void NewProbabilityMatrix(PercentageDice& dice) {
  UnlockAllProbabilities(dice);
  ResetProbabilityMatrix(dice);
  Mode(dice) = kModePercentageDice;
  dice.ProbFileName.clear();
  dice.ProbDirty = false;
}

namespace {

void ApplyAxes(PercentageDice& dice, int column, double percent, unsigned axes) {
  const double f = percent > 0 ? std::min(percent, 100.0) / 100 : 0;
  const std::int32_t value = Round(100000 * (1 - f) / 6);
  for (int axis = 0; axis < 3; ++axis) {
    if ((axes & (1u << axis)) == 0) continue;
    const int lowRow = 2 + axis;
    const int highRow = 7 - axis;
    const std::int32_t old = Value(dice, lowRow, column);
    Flags(dice, lowRow, column) |= kCellLocked;
    Value(dice, lowRow, column) = value;
    if (!SetProbabilityCell(dice, highRow, column, value, true)) Value(dice, lowRow, column) = old;
  }
}

}  // namespace

void ApplyShooterEffectiveness(PercentageDice& dice, double percent1, unsigned axes1, double percent2,
                               unsigned axes2) {
  UnlockAllProbabilities(dice);
  ApplyAxes(dice, kDie1Column, percent1, axes1);
  ApplyAxes(dice, kDie2Column, percent2, axes2);
}

double ShownProbability(const PercentageDice& dice, int row, int column) {
  const int ways = WaysOfCell(row, column);
  if (ways == 0) return 0;
  const double value = dice.ProbMatrix[1][row][column];
  const double n = dice.ProbRollsOutOf;
  double shown = IsDisplayOutOf(dice) ? value * n / 100000 : value / 1000;
  if (IsDisplayFromTrue(dice)) shown -= (IsDisplayOutOf(dice) ? n : 100.0) * ways / 36;
  return shown;
}

std::string ProbabilityCellText(const PercentageDice& dice, int row, int column) {
  if (WaysOfCell(row, column) == 0) return {};
  const double shown = ShownProbability(dice, row, column);
  const std::string text = WithSeparators(std::fabs(shown));
  if (text == "0.000" || !std::isfinite(shown)) return text;
  if (shown < 0) return "-" + text;
  return IsDisplayFromTrue(dice) ? "+" + text : text;
}

const char* PercentageDiceCaption(const PercentageDice& dice) {
  return dice.ProbMatrix[0][0][0] == kModeFreeForm ? "Free Form Dice" : "Percentage Dice";
}

std::string ProbabilityTitle(const PercentageDice& dice) {
  return dice.ProbFileName.empty() ? "untitled" : FileTitle(dice.ProbFileName);
}

float ProbabilityOfEvent(const PercentageDice& dice, int eventId, bool usePercentageDice) {
  if (eventId == 0) return 100;
  const std::uint64_t mask = RollItemMask(eventId);
  if (!usePercentageDice) return kFairPercent[__builtin_popcountll(mask)];
  const ProbabilityPlane& values = dice.ProbMatrix[1];
  std::int64_t sum = 0;
  if (const std::uint32_t totals = RollItemTotals(eventId); totals != 0) {
    for (int total = 2; total <= 12; ++total)
      if ((totals & (1u << total)) != 0) sum += values[kTotalRow][total - 1];
  } else if (eventId >= 78 && eventId <= 89) {
    const int face = (eventId - 78) % 6 + 1;
    sum = values[face + 1][eventId < 84 ? kDie1Column : kDie2Column];
  } else {
    for (std::size_t at = 0; at < 36; ++at)
      if ((mask & CombinationBit(kGeometry.Die1[at], kGeometry.Die2[at])) != 0)
        sum += values[kGeometry.Walk[at].row][kGeometry.Walk[at].column];
  }
  return static_cast<float>(static_cast<double>(sum) / 1000);
}

bool SaveProbabilityFile(PercentageDice& dice, const std::string& path, std::string& error) {
  RecordFile file;
  Record header{};
  PutText(header, 0, kMagicField, kProbabilityMagic);
  file.Append(header);
  RecordPacker<std::int32_t> values(file);
  for (const ProbabilityPlane& plane : dice.ProbMatrix)
    for (const auto& row : plane)
      for (const std::int32_t value : row) values.Put(value);
  values.Finish();
  error = WriteRecordFile(path, file);
  if (!error.empty()) return false;
  dice.ProbFileName = path;
  dice.ProbDirty = false;
  return true;
}

bool OpenProbabilityFile(PercentageDice& dice, const std::string& path, const std::string& folder,
                         std::string& error) {
  const std::string fullPath = ResolvePath(path, folder);
  std::string content;
  bool tooLong = false;
  error = ReadWholeFile(fullPath, content, kProbabilityFileRecords * kRecordBytes, &tooLong);
  if (tooLong) error = MessageText<Msg::kNotAProbabilityFile>();
  if (!error.empty()) return false;
  RecordFile file;
  ProbabilityCells cells{};
  if (!SplitRecords(content, file) || !ReadCells(file, cells)) {
    error = MessageText<Msg::kNotAProbabilityFile>();
    return false;
  }
  // A true file, but dice in force must not be given up for dice that can't be rolled.
  if (!HasSomethingToRoll(cells)) {
    error = MessageText<Msg::kNothingToRoll>();
    return false;
  }
  dice.ProbMatrix = cells;
  dice.ProbFileName = fullPath;
  dice.ProbDirty = false;
  ProbabilitiesChanged(dice);
  return true;
}

}  // namespace tessaryn
