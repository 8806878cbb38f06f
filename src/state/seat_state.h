// One seat of the table: its player, its money, its bets as sets and its choices. Plain state; the amounts of
// the bets stand in TableState, whose tables the roll cycle walks bet by bet.
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

// What happens to a decided bet, and the other choices of the Auto-Play screen.
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

struct SeatState {
  std::string SeatName;  // empty for an open seat; seat 0 is "House"

  // --- Bets, kept by SetBetAmount (bet_rules.cpp) with the amounts.
  BetSet SeatBets;  // up at this seat
  // What the snapshots must copy, kept by SetBetAmount and SettleBet.
  BetSet TouchedSinceBefore;  // amount, committed or streak changed since BetBeforeRoll
  BetSet TouchedSinceAfter;   // amount changed since BetAfterRoll
  BetSet StacksSinceBefore;   // CheckStacks 0 to 99, likewise
  BetSet StacksSinceAfter;
  WorkingState BetWorking;
  WorkingState BetWorkingBeforeRoll;  // its calls as the last roll was finished, for the log
  BetSet BetDefaultWorking;           // works on the come-out; of seat 0 the house standard

  // By box number position 0 to 5 (4, 5, 6, 8, 9, 10).
  Currency LayVigHeld[6];        // vig on bets 1 to 6, on the table if charged up front
  Currency BuyVigHeld[6];        // vig on bets 37 to 42
  Currency ComeTravelAmount[6];  // the flat amount that moved onto the number

  // --- Money.
  Currency OnTableAmount;  // bets 1 to 93 that are up, and vig held up front
  Currency RailAmount;     // bankroll less on table, as a roll begins
  Currency AtmLogged;      // AtmTotal that the Events Log has told of
  bool AllowNegativeBankroll = false;
  int BankrollInitType = 0;  // at a new session: 0 carry forward, 1 the amount, 2 ask
  Currency BankrollInitAmount;

  // --- Choices.
  Handling handling;
  std::string SessionsLogName;
  int VisibleStacks[4] = {1, 2, 3, 4};  // the CheckStacks shown on the table
  std::string CheckStackName[kCheckStacks];
};
TESSARYN_FIELDS(SeatState, SeatName, SeatBets, TouchedSinceBefore, TouchedSinceAfter, StacksSinceBefore,
                StacksSinceAfter, BetWorking, BetWorkingBeforeRoll, BetDefaultWorking, LayVigHeld, BuyVigHeld,
                ComeTravelAmount, OnTableAmount, RailAmount, AtmLogged, AllowNegativeBankroll,
                BankrollInitType, BankrollInitAmount, handling, SessionsLogName, VisibleStacks,
                CheckStackName)

}  // namespace tessaryn
