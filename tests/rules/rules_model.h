// The rules of the table told a second time: slow, obvious and apart from the engine, so that random games
// can be played on both side by side and every difference found. What a bet does on a roll is data.
#pragma once

#include <string>
#include <vector>

#include "base/money.h"

namespace tessaryn::model {

inline constexpr int kSeats = 9;   // 0 the table as a whole, 1 to 8 the players
inline constexpr int kBets = 201;  // 1 to 93 the table's bets, 100 to 199 CheckStacks
inline constexpr int kSlots = 45;  // scope * 9 + seat
inline constexpr int kLastBet = 93;

struct Payoff {
  Currency BetUnit;
  Currency PayTo;
  Currency ForFlag;
  Currency PayPer;
};

// A decision in the order in which it was paid or taken.
struct Decision {
  int seat;
  int bet;
  Currency net;
  friend bool operator==(const Decision&, const Decision&) = default;
};

struct RulesModel {
  // Settings of the table.
  Currency CheckValue[6];  // 1 to 5, the first is the betting unit
  Currency MinBetMain, MinBetProp, MaxBet, MaxPropBetPayoff, MaxOddsBet, MaxFireBet;
  Currency OddsAllowed410, OddsAllowed59, OddsAllowed68;
  int OddsCalcMethod;
  Currency LayVigRate, BuyVigRate;
  int LayVigRound, BuyVigRound;
  bool LayVigUpFront, BuyVigUpFront;
  bool AllowPutBets, SmallTallEnabled;
  int BarNumber, ShooterBetRule;
  bool AtmEnabled;

  // Payoffs.
  Payoff PayoffTable[101];
  Payoff FieldPayoffs[22];
  Payoff SevenPointSevenPayoffs[3];
  Payoff MidwayPayoffs[6];
  Payoff SharpShooterPayoffs[12];
  Payoff RideTheLinePayoffs[13];
  Payoff FirePayoffs[7];

  // By seat.
  bool Occupied[kSeats];
  int WinHandling[kSeats], LoseHandling[kSeats], ProperOddsMode[kSeats];
  bool ParlayBias[kSeats];  // on while a parlay is being made
  bool AutoTakeOdds[kSeats], AutoLayOdds[kSeats], AutoDownPlace[kSeats], AutoPassDice[kSeats];
  bool AllowNegativeBankroll[kSeats];
  int AdjustKind[kSeats][8];
  Currency AdjustValue[kSeats][8];
  int AdjustUnit[kSeats][8];
  Currency OnTableAmount[kSeats], RailAmount[kSeats], BankrollBeforeRoll[kSeats];
  Currency AtmTotal[kSlots];

  // By seat and bet.
  Currency BetAmount[kSeats][kBets];
  Currency BetBeforeRoll[kSeats][kBets];
  Currency BetCommitted[kSeats][kBets];
  int BetWorking[kSeats][kBets];
  int BetDefaultWorking[kSeats][kBets];
  int BetStreak[kSeats][kBets];
  // By seat and box number, positions 0 to 5 for 4, 5, 6, 8, 9, 10.
  Currency LayVigHeld[kSeats][6];
  Currency BuyVigHeld[kSeats][6];
  Currency ComeTravelAmount[kSeats][6];

  // The hand in play.
  int Point, PointBeforeRoll, PointTwoRollsAgo, LastPoint;
  int Die1, Die2, RollTotal;
  int ShooterSeat, HandSeat, PreviousHandSeat;
  int NumberMarks, FourRollCount, FireMarks, FireCount, SharpShooterCount, RideTheLineCount;
  bool MovingComeBet;

  // The settlement in progress.
  Currency GrossPayoff, NetPayoff, PressUnit;
  bool BetFinished;
  std::vector<Decision> Decisions;  // of the last roll

  // Hands and bankrolls by scope; bets, rolls and numbers are recounted in the tests of the statistics.
  int MostComeoutRollsInHand[kSlots];
  int MostPassesInHand[kSlots], MostMissesInHand[kSlots];
  int HandRolls, HandComeoutRolls, HandPasses, HandMisses;
  Currency BankrollBeginning[kSlots], BankrollCurrent[kSlots], BankrollHigh[kSlots], BankrollLow[kSlots];
};

// An empty table; settings and payoffs are the caller's to fill in. The struct is large: keep it on the heap.
void ResetModel(RulesModel& m);
// BetUnit of every record from its payoff and the betting unit; after a change of either.
void RefreshBetUnits(RulesModel& m);

void AddPlayer(RulesModel& m, int seat, Currency bankroll);
void RemovePlayer(RulesModel& m, int seat);
// 0 after a seven-out, 1 asked for by the user, 2 the shooter has left.
void PassDice(RulesModel& m, int reason);
// The amount that moved.
Currency AtmTransaction(RulesModel& m, int seat, bool deposit, Currency amount);

// The change that was allowed and made.
Currency ChangeBet(RulesModel& m, int seat, int bet, Currency request);
// As ChangeBet, and odds that depend on the bet follow it.
Currency PlaceBet(RulesModel& m, int seat, int bet, Currency request);
void TakeFullOdds(RulesModel& m, int seat, int bet);
// False: the bet can't be called.
bool CallBet(RulesModel& m, int seat, int bet, bool on);
void RemoveCall(RulesModel& m, int seat, int bet);
// The vig's rules change, and with them the vig of every bet that is up.
struct VigRules {
  Currency layRate, buyRate;
  int layRound, buyRound;
  bool layUpFront, buyUpFront;
};
void ChangeVigRules(RulesModel& m, const VigRules& rules);
void BuyPlaceBet(RulesModel& m, int seat, int bet);
Currency MaxBetFor(const RulesModel& m, int seat, int bet);
Currency MaxOddsFor(const RulesModel& m, int bet, Currency flatAmount, Currency payTo, Currency payPer);
Currency VigFor(const RulesModel& m, int bet, Currency amount);

// One roll with everything that follows from it. False: the roll was refused and nothing happened.
bool Roll(RulesModel& m, int die1, int die2);

}  // namespace tessaryn::model
