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
inline constexpr int kItems = 91;  // roll items
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

// Kinds of the bet statistics.
enum StatKind { StatCount = 1, StatTotal, StatHigh, StatLow, StatLastRoll, StatLastAmount };

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

  // Statistics.
  Currency WagerStats[kSlots][101][7];
  Currency WinStats[kSlots][101][7];
  Currency LossStats[kSlots][101][7];
  Currency ComeTravelTotals[kSlots][6];
  int RollCounts[kSlots][kItems];
  int RollsSinceLast[kItems];
  int RollGapCounts[kItems][201];
  int HandCount[kSlots], PlayerRolls[kSlots];
  int MostRollsInHand[kSlots], MostComeoutRollsInHand[kSlots];
  int MostPassesInHand[kSlots], MostMissesInHand[kSlots];
  int NumberCounts[kSlots][13][3];  // come-out rolls, passes, misses
  int HandComeoutRolls, HandPasses, HandMisses;
  Currency BankrollBeginning[kSlots], BankrollCurrent[kSlots], BankrollHigh[kSlots], BankrollLow[kSlots];
  Currency BankrollRollSum[kSeats], BankrollSessionStart[kSeats];
};

// Everything as at the first start. The struct is large: keep it on the heap.
void ResetModel(RulesModel& m);
// The payoffs' defaults.
void ResetPayoffs(RulesModel& m);
// BetUnit of every record from its payoff and the betting unit; after a change of either.
void RefreshBetUnits(RulesModel& m);
// The Field's rows, 0 to 12, in the order of the menu of presets.
void SetFieldPreset(RulesModel& m, int preset);

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
bool CanCallBet(int bet);
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

// What a working bet does on a roll: -1 and -2 lose, 1 and 2 win, 0 nothing. Bets 84 to 87 and 91 to 93,
// which hang on counts, are 0 here.
struct RollCase {
  int die1, die2;
  int pointBefore;       // 0: a come-out roll
  int pointTwoRollsAgo;  // 0: the point was set on the roll before
  int barNumber;
};
int EffectOf(int bet, const RollCase& roll);

// The order in which the bets are visited, each group taken seat by seat.
using VisitOrder = std::vector<std::vector<int>>;
VisitOrder LosersByTotal(int total);
VisitOrder LosersAlways();
VisitOrder WinnersByTotal(int total);

// Empty, or what is inconsistent in the state.
std::string CheckModel(const RulesModel& m);

}  // namespace tessaryn::model
