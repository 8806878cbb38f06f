#include "play/roll_pad.h"

#include "dice/percentage_dice.h"

namespace tessaryn {

RollPadGrid GridOf(int layout) {
  switch (layout) {
    case kPadTotals:
      return {1, 11};
    case kPadTriangle:
      return {6, 11};
    case kPadBox:
      return {6, 6};
    case kPadFaces:
      return {2, 6};
    default:
      return {};
  }
}

PadRoll RandomCombination(int total, Generators& generators) {
  if (total < 2 || total > 12) return {};
  const int ways = total <= 7 ? total - 1 : 13 - total;
  const int lowest = total <= 7 ? 1 : total - 6;
  const int die1 = lowest + RndPick(generators, ways) - 1;
  return {die1, total - die1};
}

PadRoll PadCellRoll(int layout, int row, int column, Generators& generators) {
  const RollPadGrid grid = GridOf(layout);
  if (row < 0 || row >= grid.Rows || column < 0 || column >= grid.Columns) return {};
  switch (layout) {
    case kPadTotals:
      return RandomCombination(column + 2, generators);
    case kPadTriangle: {
      const int pyramidRow = row + 2;
      const int pyramidColumn = column + 1;
      if (KindOfProbabilityCell(pyramidRow, pyramidColumn) != ProbabilityCellKind::kCombination) return {};
      return {ProbabilityDie1(pyramidRow, pyramidColumn), ProbabilityDie2(pyramidRow, pyramidColumn)};
    }
    case kPadBox:
      return {row + 1, column + 1};
    default:
      return row == 0 ? PadRoll{column + 1, 0} : PadRoll{0, column + 1};
  }
}

PadRoll JoinFaces(PadRoll soFar, PadRoll press) {
  if (soFar.IsComplete()) soFar = {};
  return {press.Die1 != 0 ? press.Die1 : soFar.Die1, press.Die2 != 0 ? press.Die2 : soFar.Die2};
}

PadCell PadCellAt(int layout, int x, int y, int width, int height) {
  const RollPadGrid grid = GridOf(layout);
  if (grid.Rows == 0 || x < 0 || y < 0 || x >= width || y >= height) return {};
  return {static_cast<int>(static_cast<long long>(y) * grid.Rows / height),
          static_cast<int>(static_cast<long long>(x) * grid.Columns / width)};
}

}  // namespace tessaryn
