// The table: who stands at it, what is up, what was rolled. Plain state; who writes a field is told beside
// it, and what keeps the redundant fields together is checked by CheckConsistency (consistency.h).
#pragma once

#include <cstdint>
#include <string>

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

// BetWorking of one seat's bets 1 to 93, as sets. A call stands above the default.
struct WorkingState {
  BetSet calledOn;   // reads 2
  BetSet calledOff;  // reads -1; never together with calledOn
  BetSet byDefault;  // reads 1, else 0

  BetSet Working() const { return Without(byDefault | calledOn, calledOff); }
};
TESSARYN_FIELDS(WorkingState, calledOn, calledOff, byDefault)

// What happens to a decided bet, and the other choices of the Auto-Play screen. By seat.
struct Handling {
  int WinHandling = 0;     // 0 " Manual" to 7
  int LoseHandling = 0;    // 0 " Manual" to 7
  int ProperOddsMode = 0;  // 0 none, 1 minor correction, 2 colour correction
  int PlaceBias = 0;       // 0 by the direction of the change, 1 upwards, 2 downwards
  int DoBias = 0;
  int DontBias = 0;
  int LayBias = 0;
  bool AutoTakeOdds = false;
  bool AutoLayOdds = false;
  bool AutoDownPlace = false;
  bool AutoPassDice = false;
  // Slots 4 to 7: win choice 6, loss choice 6, win choice 7, loss choice 7.
  int AdjustKind[8] = {};  // 0 plus, 1 minus, 2 times, 3 divided by
  Currency AdjustValue[8] = {};
  int AdjustUnit[8] = {};  // 0 dollars, 1 percent, n >= 2 units of the check n - 1
};
TESSARYN_FIELDS(Handling, WinHandling, LoseHandling, ProperOddsMode, PlaceBias, DoBias, DontBias, LayBias,
                AutoTakeOdds, AutoLayOdds, AutoDownPlace, AutoPassDice, AdjustKind, AdjustValue, AdjustUnit)

struct TableState {
  // --- Seats. Written by players.cpp.
  std::string SeatName[kSeatRows];   // empty for an open seat; 0 is "House"
  int OccupiedSeats = 0;             // seats 1 to 8 with a name
  std::uint8_t Seated[kSeats] = {};  // those seats, ascending; the first OccupiedSeats count
  int ShooterSeat = 0;               // holds the dice; 0 nobody
  int HandSeat = 0;                  // credited with the hand in play; 0 nobody
  int PreviousHandSeat = 0;          // credited with the hand that just ended
  int SelectedSeat = 0;              // whose bets the table shows and edits; 0 nobody

  // --- Bets. BetAmount is written by SetBetAmount (bet_rules.cpp) alone, which keeps the sets below.
  SeatBetTable<Currency> BetAmount;      // now up; of a CheckStack its value
  SeatBetTable<Currency> BetBeforeRoll;  // as the dice were thrown; what the log of changes compares with
  SeatBetTable<Currency> BetAfterRoll;   // as the roll was finished, scripts included
  SeatBetTable<Currency> BetCommitted;   // has ridden a roll, so under contract; bets 0 to 99
  SeatBetTable<std::int32_t, 101> BetStreak;        // wins in a row; below 0 losses in a row
  SeatBetTable<std::int32_t, 101> BetStreakBefore;  // as the dice were thrown
  WorkingState BetWorking[kSeatRows];
  WorkingState BetWorkingBeforeRoll[kSeatRows];  // its calls as the last roll was finished, for the log
  bool CallsTouched = false;                     // a call changed since that copy
  BetSet BetDefaultWorking[kSeatRows];           // works on the come-out; row 0 the house standard
  std::string CheckStackName[kSeatRows][kCheckStacks];

  // Which bets are up, kept by SetBetAmount. SeatsUp has a bit for each seat by its place in kPayOrder.
  BetSet SeatBets[kSeatRows];      // up at this seat
  BetSet AnyBets;                  // up at any seat
  std::uint8_t SeatsUp[128] = {};  // by bet
  // What the snapshots must copy, kept by SetBetAmount and SettleBet.
  BetSet TouchedSinceBefore[kSeatRows];  // amount, committed or streak changed since BetBeforeRoll
  BetSet TouchedSinceAfter[kSeatRows];   // amount changed since BetAfterRoll
  BetSet StacksSinceBefore[kSeatRows];   // CheckStacks 0 to 99, likewise
  BetSet StacksSinceAfter[kSeatRows];
  std::uint32_t SeatsSinceBefore = 0;  // bit n: seat n has an entry in the Before sets above
  std::uint32_t SeatsSinceAfter = 0;

  // Where this roll's Come and Don't Come bets moved, 0 for none; zeroed as the next dice are thrown.
  int ComeMovedTo[kSeatRows] = {};
  int DontComeMovedTo[kSeatRows] = {};
  bool AnyBetMoved = false;

  // By seat and box number position 0 to 5 (4, 5, 6, 8, 9, 10).
  Currency LayVigHeld[kSeatRows][6];        // vig on bets 1 to 6, on the table if charged up front
  Currency BuyVigHeld[kSeatRows][6];        // vig on bets 37 to 42
  Currency ComeTravelAmount[kSeatRows][6];  // the flat amount that moved onto the number

  // --- Money by seat.
  Currency BankrollCurrent[kSeatRows];     // everything owned, bets on the table included
  Currency OnTableAmount[kSeatRows];       // bets 1 to 93 that are up, and vig held up front
  Currency RailAmount[kSeatRows];          // bankroll less on table, as a roll begins
  Currency BankrollBeforeRoll[kSeatRows];  // as the dice were thrown
  Currency BankrollAfterRoll[kSeatRows];   // as the roll was finished, scripts included
  Currency AtmLogged[kSeatRows];           // AtmTotal that the Events Log has told of
  bool AllowNegativeBankroll[kSeatRows] = {};
  int BankrollInitType[kSeatRows] = {};  // at a new session: 0 carry forward, 1 the amount, 2 ask
  Currency BankrollInitAmount[kSeatRows];
  Handling handling[kSeatRows];
  std::string SessionsLogName[kSeatRows];
  int VisibleStacks[kSeatRows][4] = {};  // the CheckStacks shown on the table

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

  // --- The settlement in progress. Written by settlement.cpp.
  int SettlingBet = 0;
  Currency GrossPayoff;
  Currency NetPayoff;
  bool BetFinished = false;  // over, and must not stay up
  Currency PressUnit;
  // --- The bet change in progress. Written by bet_rules.cpp.
  Currency BetRequest;
  Currency BetChange;
  bool MovingComeBet = false;
  int QuietChanges = 0;  // above 0: changes show no texts
};
TESSARYN_FIELDS(TableState, SeatName, OccupiedSeats, Seated, ShooterSeat, HandSeat, PreviousHandSeat,
                SelectedSeat, BetAmount, BetBeforeRoll, BetAfterRoll, BetCommitted, BetStreak,
                BetStreakBefore, BetWorking, BetWorkingBeforeRoll, CallsTouched, BetDefaultWorking,
                CheckStackName, SeatBets, AnyBets, SeatsUp, TouchedSinceBefore, TouchedSinceAfter,
                StacksSinceBefore, StacksSinceAfter, SeatsSinceBefore, SeatsSinceAfter, ComeMovedTo,
                DontComeMovedTo, AnyBetMoved, LayVigHeld, BuyVigHeld, ComeTravelAmount, BankrollCurrent,
                OnTableAmount, RailAmount, BankrollBeforeRoll, BankrollAfterRoll, AtmLogged,
                AllowNegativeBankroll, BankrollInitType, BankrollInitAmount, handling, SessionsLogName,
                VisibleStacks, Point, PointBeforeRoll, PointTwoRollsAgo, LastPoint, Die1, Die2, RollTotal,
                ManualDie1, ManualDie2, ManualRollPending, RollInProgress, NumberMarks, FourRollCount,
                FireMarks, FireCount, SharpShooterCount, RideTheLineCount, TurboRollActive, AutoRollActive,
                StopReason, LastActivityTick, TurboCalibration, SettlingBet, GrossPayoff, NetPayoff,
                BetFinished, PressUnit, BetRequest, BetChange, MovingComeBet, QuietChanges)

inline constexpr std::uint32_t kSmallMarks = 124;
inline constexpr std::uint32_t kTallMarks = 7936;
inline constexpr std::uint32_t kAllMarks = kSmallMarks | kTallMarks;

// BetWorking as a number: -1 called OFF, 0 off by default, 1 working, 2 called ON.
inline int WorkingValue(const WorkingState& state, int bet) {
  if (state.calledOff.Has(bet)) return -1;
  if (state.calledOn.Has(bet)) return 2;
  return state.byDefault.Has(bet) ? 1 : 0;
}

// Notes that the copies of a seat's bet before the roll are out of date.
inline void TouchBefore(TableState& table, int seat, int bet) {
  table.TouchedSinceBefore[seat].Add(bet);
  table.SeatsSinceBefore |= 1u << seat;
}

inline bool IsOccupied(const TableState& table, int seat) {
  return seat >= 1 && seat <= kSeats && !table.SeatName[seat].empty();
}

}  // namespace tessaryn
