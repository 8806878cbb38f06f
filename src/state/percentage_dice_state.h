// The matrix of percentage dice: cells by row and column as dice/percentage_dice.h tells.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/fields.h"

namespace tessaryn {

inline constexpr int kProbabilityRows = 8;
inline constexpr int kProbabilityColumns = 14;
inline constexpr int kTotalRow = 1;
inline constexpr int kDie1Column = 12;
inline constexpr int kDie2Column = 13;
inline constexpr std::int32_t kProbabilityWhole = 100'000;
// The most a cell can come to when its parts have been rounded up.
inline constexpr std::int32_t kProbabilityCeiling = 100'100;

inline constexpr std::int32_t kCellLocked = 128;  // flag bits of plane 0
inline constexpr std::int32_t kInLockedTotal = 4;
inline constexpr std::int32_t kInLockedFace1 = 1;
inline constexpr std::int32_t kInLockedFace2 = 2;

inline constexpr std::int32_t kModePercentageDice = 0;  // the combinations are products of the faces
inline constexpr std::int32_t kModeFreeForm = -1;

using ProbabilityPlane = std::array<std::array<std::int32_t, kProbabilityColumns>, kProbabilityRows>;
using ProbabilityCells = std::array<ProbabilityPlane, 2>;  // plane 0 flags and mode, plane 1 values

// Fair dice: 2,778 a combination, so that the 36 add to 100,008.
ProbabilityCells FairProbabilities();

enum ProbabilityDisplay : int {
  kShowPercentage = 0,
  kShowFromTruePercentage = 1,
  kShowRollsOutOf = 2,
  kShowFromTrueRollsOutOf = 3,
};
// Where a draw falls, kept ready between edits; nobody else's business.
struct ProbabilityDrawTable {
  bool Ready = false;
  std::array<std::int32_t, 36> Sums{};    // running sums in the order of the walk
  std::array<std::uint8_t, 392> First{};  // first cell of the walk that can hold draw (index * 256) + 1
};
TESSARYN_FIELDS(ProbabilityDrawTable, Ready, Sums, First)

struct PercentageDice {
  ProbabilityCells ProbMatrix = FairProbabilities();  // written by the procedures below alone
  bool PercentageDiceActive = false;                  // see ActivatePercentageDice
  std::int32_t ProbDisplayMode = kShowPercentage;     // 0 to 3
  double ProbRollsOutOf = 36;                         // above 0
  std::string ProbFileName;                           // full path; empty: untitled
  bool ProbDirty = false;                             // edited since it was saved or opened
  ProbabilityDrawTable DrawTable;
};
TESSARYN_FIELDS(PercentageDice, ProbMatrix, PercentageDiceActive, ProbDisplayMode, ProbRollsOutOf,
                ProbFileName, ProbDirty, DrawTable)

}  // namespace tessaryn
