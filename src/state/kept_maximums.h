// What the maximums of bets were worked out to be. Written by MaxBetFor (rules/bet_limits.cpp).
#pragma once

#include "base/table_types.h"
#include "state/payoff_tables.h"

namespace tessaryn {

// The amounts that win what may be won, each with what it was figured from: to look whether that still holds
// is cheaper than to figure it again. Written by bet_limits.cpp.
struct KeptMaximum {
  Currency limit = Currency::Error();
  Currency unit;
  Currency payTo;
  Currency payPer;
  Currency amount;
  Currency whole;  // the amount in whole betting units
};
struct KeptMaximums {
  // Bets by their numbers, then rows 1 and up of SevenPoint7, Sharp Shooter and Ride The Line.
  KeptMaximum of[kBets + 1 + kSevenPointSevenRows + kSharpShooterRows + kRideTheLineRows];
};

}  // namespace tessaryn
