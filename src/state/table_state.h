// The table: who stands at it, what is up, what was rolled. Plain state; who writes a field is told beside
// it, and what keeps the redundant fields together is checked by CheckConsistency (consistency.h).
#pragma once

#include <cstdint>
#include <string>

#include "base/fields.h"
#include "base/table_types.h"
#include "state/seat_state.h"

namespace tessaryn {

struct TableState {
  // --- Seats. Written by players.cpp.
  SeatState seats[kSeatRows];        // 0 is the house
  int OccupiedSeats = 0;             // seats 1 to 8 with a name
  std::uint8_t Seated[kSeats] = {};  // those seats, ascending; the first OccupiedSeats count
  SeatId ShooterSeat = 0;            // holds the dice; 0 nobody
  SeatId HandSeat = 0;               // credited with the hand in play; 0 nobody
  SeatId PreviousHandSeat = 0;       // credited with the hand that just ended
  SeatId SelectedSeat = 0;           // whose bets the table shows and edits; 0 nobody

  // --- Bets. BetAmount is written by SetBetAmount (bet_rules.cpp) alone, which keeps the sets below.
  SeatBetTable<Currency> BetAmount;      // now up; of a CheckStack its value
  SeatBetTable<Currency> BetBeforeRoll;  // as the dice were thrown; what the log of changes compares with
  SeatBetTable<Currency> BetAfterRoll;   // as the roll was finished, scripts included
  SeatBetTable<Currency> BetCommitted;   // has ridden a roll, so under contract; bets 0 to 99
  SeatBetTable<std::int32_t, 101> BetStreak;        // wins in a row; below 0 losses in a row
  SeatBetTable<std::int32_t, 101> BetStreakBefore;  // as the dice were thrown
  bool CallsTouched = false;                        // a call changed since that copy

  // Which bets are up, kept by SetBetAmount. SeatsUp has a bit for each seat by its place in kPayOrder.
  BetSet AnyBets;                      // up at any seat
  std::uint8_t SeatsUp[128] = {};      // by bet
  std::uint32_t SeatsSinceBefore = 0;  // bit n: seat n has an entry in the Before sets above
  std::uint32_t SeatsSinceAfter = 0;

  // Where this roll's Come and Don't Come bets moved, 0 for none; zeroed as the next dice are thrown.
  BetId ComeMovedTo[kSeatRows];
  BetId DontComeMovedTo[kSeatRows];
  bool AnyBetMoved = false;

  // --- Money by seat.
  Currency BankrollCurrent[kSeatRows];     // everything owned, bets on the table included
  Currency BankrollBeforeRoll[kSeatRows];  // as the dice were thrown
  Currency BankrollAfterRoll[kSeatRows];   // as the roll was finished, scripts included

  // --- The roll. Written by roll_cycle.cpp.
  int Point = 0;  // 0 on a come-out
  int PointBeforeRoll = 0;
  int PointTwoRollsAgo = 0;
  int LastPoint = 0;  // the point that the last decision ended
  int Die1 = 3;
  int Die2 = 4;
  int RollTotal = 7;
  int ManualDie1 = 0;
  int ManualDie2 = 0;
  bool ManualRollPending = false;  // a roll typed on the roll pad waits
  bool RollInProgress = false;
  // Marks and counts of the special bets.
  std::uint32_t NumberMarks = 0;  // bit n: the number n has been rolled
  int FourRollCount = 0;
  std::uint32_t FireMarks = 0;  // bits 0 to 5: points 4, 5, 6, 8, 9, 10 made
  int FireCount = 0;
  int SharpShooterCount = 0;
  int RideTheLineCount = 0;

  // --- Runs. Written by auto_roll.cpp and the procedures that stop a run.
  bool TurboRollActive = false;
  bool AutoRollActive = false;
  std::string StopReason;
  std::uint32_t LastActivityTick = 0;
  std::int32_t TurboCalibration = 0;  // a tenth of the counting loops of 100 milliseconds
};
TESSARYN_FIELDS(TableState, seats, OccupiedSeats, Seated, ShooterSeat, HandSeat, PreviousHandSeat,
                SelectedSeat, BetAmount, BetBeforeRoll, BetAfterRoll, BetCommitted, BetStreak,
                BetStreakBefore, CallsTouched, AnyBets, SeatsUp, SeatsSinceBefore, SeatsSinceAfter,
                ComeMovedTo, DontComeMovedTo, AnyBetMoved, BankrollCurrent, BankrollBeforeRoll,
                BankrollAfterRoll, Point, PointBeforeRoll, PointTwoRollsAgo, LastPoint, Die1, Die2, RollTotal,
                ManualDie1, ManualDie2, ManualRollPending, RollInProgress, NumberMarks, FourRollCount,
                FireMarks, FireCount, SharpShooterCount, RideTheLineCount, TurboRollActive, AutoRollActive,
                StopReason, LastActivityTick, TurboCalibration)

inline constexpr std::uint32_t kSmallMarks = 124;
inline constexpr std::uint32_t kTallMarks = 7936;
inline constexpr std::uint32_t kAllMarks = kSmallMarks | kTallMarks;

// BetWorking as a number: -1 called OFF, 0 off by default, 1 working, 2 called ON.
inline int WorkingValue(const WorkingState& state, BetId bet) {
  if (state.calledOff.Has(bet)) return -1;
  if (state.calledOn.Has(bet)) return 2;
  return state.byDefault.Has(bet) ? 1 : 0;
}

// Notes that the copies of a seat's bet before the roll are out of date.
inline void TouchBefore(TableState& table, SeatId seat, BetId bet) {
  table.seats[seat].TouchedSinceBefore.Add(bet);
  table.SeatsSinceBefore |= 1u << seat;
}

inline bool IsOccupied(const TableState& table, SeatId seat) {
  return seat >= 1 && seat <= kSeats && !table.seats[seat].SeatName.empty();
}

}  // namespace tessaryn
