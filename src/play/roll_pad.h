// The roll pad's four grids: from a pressed cell to the dice it asks for.
#pragma once

#include "dice/generators.h"

namespace tessaryn {

enum RollPadLayout : int {
  kPadTotals = 0,    // one row of the totals 2 to 12
  kPadTriangle = 1,  // the combinations as in the pyramid of percentage dice, 6 rows by 11 columns
  kPadBox = 2,       // die 1 down, die 2 across
  kPadFaces = 3,     // a row of faces for each die; die 1 first, then die 2
};
inline constexpr int kRollPadLayouts = 4;

struct RollPadGrid {
  int Rows = 0;
  int Columns = 0;
};
RollPadGrid GridOf(int layout);

// What a press asks for. A die that the press leaves open is 0; with neither set the place is no cell.
struct PadRoll {
  int Die1 = 0;
  int Die2 = 0;
  bool IsComplete() const { return Die1 != 0 && Die2 != 0; }
};

// Rows and columns count from 0, from the top left. In the faces layout a press gives one die: keep it with
// JoinFaces until the other is pressed too. In the totals layout the runtime generator chooses among the
// total's combinations.
PadRoll PadCellRoll(int layout, int row, int column, Generators& generators);
// The faces layout: what has been set so far with one more press.
PadRoll JoinFaces(PadRoll soFar, PadRoll press);
struct PadCell {
  int Row = -1;
  int Column = -1;
};
// The cell at a point of a grid of so many pixels, the frame not counted; {-1, -1} outside.
PadCell PadCellAt(int layout, int x, int y, int width, int height);

// One of the combinations of a total, 2 to 12.
PadRoll RandomCombination(int total, Generators& generators);

}  // namespace tessaryn
