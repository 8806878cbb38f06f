// What every bet pays, as the house has it.
#pragma once

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

// An amount is paid amount * PayTo / PayPer. A negative PayTo is a loss, 0 a push.
struct PayoffRecord {
  Currency BetUnit;  // the size in which the bet is paid whole; written by RebuildBetUnits alone
  Currency PayTo;
  Currency ForFlag;  // -1 reads "to", 0 reads "for"; the arithmetic is the same
  Currency PayPer;   // above 0

  friend bool operator==(const PayoffRecord&, const PayoffRecord&) = default;
};

inline constexpr int kFieldRows = 21;
inline constexpr int kSevenPointSevenRows = 2;
inline constexpr int kMidwayRows = 5;
inline constexpr int kSharpShooterRows = 11;
inline constexpr int kRideTheLineRows = 12;
inline constexpr int kFireRows = 6;

// The tables by their places.
enum class PayoffTableId : int {
  kByBet,
  kField,
  kSevenPointSeven,
  kMidway,
  kSharpShooter,
  kRideTheLine,
  kFire,
};

// Row 0 is unused but for the Fire bet, where it is the hand without a point. Of bets 44 and 47, the odds on
// the line, the rows are unused too: they are paid as the odds of the point's own number (see PayoffOf).
struct PayoffTables {
  PayoffRecord PayoffTable[101];
  PayoffRecord FieldPayoffs[kFieldRows + 1];
  PayoffRecord SevenPointSevenPayoffs[kSevenPointSevenRows + 1];
  PayoffRecord MidwayPayoffs[kMidwayRows + 1];
  PayoffRecord SharpShooterPayoffs[kSharpShooterRows + 1];
  PayoffRecord RideTheLinePayoffs[kRideTheLineRows + 1];
  PayoffRecord FirePayoffs[kFireRows + 1];
};
TESSARYN_FIELDS(PayoffTables, PayoffTable, FieldPayoffs, SevenPointSevenPayoffs, MidwayPayoffs,
                SharpShooterPayoffs, RideTheLinePayoffs, FirePayoffs)

}  // namespace tessaryn
