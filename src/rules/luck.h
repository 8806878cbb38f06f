// Luck: what the dice made of the bets that rode, less what was to be expected of them under the rules,
// payoffs and dice in force. Exact, roll by roll; it costs nothing where nobody asks.
//
// Between rolls a bet is worth its face, but for what can't be had back at it: a Pass Line, Come, Don't Pass
// or Don't Come bet with a number counts what it will bring on average, and a bet on marks, counts or a hand
// that is on its way counts what its chain of states leads to. The luck of a roll is the change by the dice
// of money and these values, less the exact mean of the same over all outcomes: payoffs as they are really
// paid, cut to betting units, with vig, bar, calls and settings as the bets ride. So its mean is exactly 0
// for any system and any way to stop, and a result less its luck has the result's own mean. What happens to
// bets behind the settlement is nobody's luck: handling, odds that follow, scripts, the player, the ATM.
//
// Over any stretch of rolls
//     luck + expected + shifted = money brought by the dice + change of the values of the bets that are up,
// where expected is the sum of the means, and shifted what values changed between rolls, by bets that were
// made, changed or taken down where they are not worth their face.
//
// Fair dice, and dice from a pad or a file while no percentage dice are in force, come with 36 equal cells.
// Percentage dice come as they are drawn (DrawChances, which tells the one case that is not exact).
#pragma once

#include <cstdint>
#include <vector>

#include "rules/luck_plan.h"
#include "state/payoff_tables.h"

namespace tessaryn {

struct Game;

// Of one seat, in 1 / LuckMeter::unit of $0.0001.
struct SeatLuck {
  WideInt luck = 0;
  WideInt expected = 0;
  WideInt shifted = 0;
  double variance = 0;     // of luck, in dollars squared: the sum of the rolls' own
  std::int64_t rolls = 0;  // with bets up
  std::int64_t value = 0;  // of the bets against their face as the dice left them, in kValueUnit
};

// The settings by which bets are paid.
struct LuckRules {
  Currency unit;
  int barNumber = 0;
  bool specials = false;
  bool layVigUpFront = false;
  bool buyVigUpFront = false;
  friend bool operator==(const LuckRules&, const LuckRules&) = default;
};

// Whether payoffs and settings may change on the way. The dice may in any case.
enum class LuckRulesMay : std::uint8_t {
  kChange,
  kStand,  // the caller's word, until the next session begins; nothing is looked at then, and sums are whole
           // behind LuckSumUp alone
};

// One to a game; seats are told apart, players are not. Written by the procedures below alone. Plans are kept
// from session to session as long as rules, payoffs and dice stay.
struct LuckMeter {
  std::int64_t unit = 0;  // see LuckUnit
  // What every roll asks for stands side by side.
  std::int64_t throwsBefore = -1;
  RollNumber roll = 0;
  std::uint32_t ridingSeats = 0;  // bit n: seat n has a plan for the roll to come
  int standsAt = -1;  // the point with which these plans go on as long as no bet is touched; -1 none
  std::vector<LuckPlan> plans;  // by a hash of what rides; behind them one for each seat
  bool rulesStand = false;
  bool glances = false;              // rules stand, and the dice are fair
  bool counts = false;               // seat 1 alone rides, with a plan that is counted by
  LuckPlan* riding[kSeatRows] = {};  // of the roll to come; in plans
  SeatLuck seats[kSeatRows];
  // Places in plans, by the point: of the last roll that it was on.
  std::uint16_t lastRide[kSeatRows][11] = {};
  std::vector<std::uint16_t> counted;  // places of the plans whose rolls are counted

  // What plans are made from.
  LuckDice dice;
  LuckChances chances;
  bool chancesKnown = false;
  LuckRules rules;
  PayoffTables payoffs;
};

// Parts of $0.0001 in which every term is whole: 5,940 with fair dice, 16,500,000 with percentage dice. A
// session that changes from one to the other goes on in 148,500,000, and meter.unit tells so.
std::int64_t LuckUnit(const Game& game);

// Sums at 0, in the unit of the dice in force. Bets may be up; what they are worth above their face is no
// luck.
void LuckBeginSession(LuckMeter& meter, const Game& game, LuckRulesMay may = LuckRulesMay::kChange);
// The sums go on behind rolls that were not counted: bets are taken as they stand now.
void LuckResume(LuckMeter& meter, const Game& game);
// Right before MakeRoll, with all bets as they will ride. May be called again if the roll didn't come.
void LuckBeforeRoll(LuckMeter& meter, const Game& game);
// After it, with the dice still as they fell; what scripts and handling have done since doesn't matter.
// Without a throw since LuckBeforeRoll nothing is added.
void LuckAfterRoll(LuckMeter& meter, const Game& game);
// The same where the caller knows that the dice fell.
void LuckAfterThrow(LuckMeter& meter, const Game& game);
// The rolls that were only counted, since rules stand, go into the sums.
void LuckSumUp(LuckMeter& meter);

// A seat's session in dollars: actual = expected + luck. Bets that are up count at their values.
struct LuckReport {
  double expected = 0;  // of the bets made, what was given away between rolls included
  double actual = 0;
  double luck = 0;
  double standardDeviation = 0;  // of luck
  double deviations = 0;         // luck in standard deviations; 0 without any
};
LuckReport LuckOf(const LuckMeter& meter, SeatId seat);

}  // namespace tessaryn
