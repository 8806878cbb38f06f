// What the codes of the betting language mean: one table each for variables, functions and actions, read by
// the compiler's passes, by its checks and by the interpreter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table_types.h"
#include "state/script_types.h"

namespace tessaryn {

// Which modifiers a reference takes, and so how long its canonical run is.
enum class ReferenceClass {
  kPlain,   // none
  kPlayer,  // player
  kScope,   // player, scope
  kHand,    // the same of whole hands, and so of no single one
  kDice,    // player, scope, measure: totals, pairs and faces
  kLine,    // the same: totals, naturals and points
  kPoints,  // player, scope, metric, measure: points
  kBet,     // the same: of a bet
};

// Whom a reference means without a player, and with all of them.
enum class Whose {
  kOwn,         // whose script runs; the sum
  kOwnOrTable,  // whose script runs; the table
  kTable,       // the table
};

enum class ScriptValueType { kNumber, kString };

// The modifier codes that the rules of the language speak of.
inline constexpr int kScopeCurrentHand = 1;
inline constexpr int kScopeCurrentSession = 3;
inline constexpr int kScopeAllSessions = 5;
inline constexpr int kMetricTendered = 0;
inline constexpr int kMetricWagered = 1;
inline constexpr int kMetricWins = 2;
inline constexpr int kMetricLosses = 3;
inline constexpr int kMetricNet = 4;
inline constexpr int kMetricNetPercent = 5;
inline constexpr int kMetricEstablished = 6;
inline constexpr int kMetricMissed = 8;
// 2 to 12 are measures too: the numbers themselves.
inline constexpr int kMeasureTotal = 0;
inline constexpr int kMeasureNaturals = 14;
inline constexpr int kMeasurePoints = 15;
inline constexpr int kMeasureCount = 21;
inline constexpr int kMeasureSum = 22;
inline constexpr int kMeasureHigh = 23;
inline constexpr int kMeasureLow = 24;
inline constexpr int kMeasureAverage = 25;
inline constexpr int kMeasureLastMoney = 26;
inline constexpr int kMeasureRollsSinceLast = 27;
inline constexpr int kMeasureLastRollCount = 28;
inline constexpr int kMeasureLastRollMoney = 29;
inline constexpr int kMeasureCountPerHour = 30;
inline constexpr int kMeasureMoneyPerHour = 31;
inline constexpr int kMeasureExpectedValue = 32;
inline constexpr int kMeasureCurrentCount = 33;
inline constexpr int kMeasureCurrentMoney = 34;
inline constexpr int kMeasurePriorCount = 35;
inline constexpr int kMeasurePriorMoney = 36;
inline constexpr int kMeasureWorking = 37;
inline constexpr int kMeasureCalledOn = 38;
inline constexpr int kMeasureCalledOff = 39;
inline constexpr int kMeasureFirstFace = 78;  // the first die's 1
inline constexpr int kMeasureLastFace = 89;   // the second die's 6
inline constexpr int kPlayerShooter = 10;
inline constexpr int kPlayerAll = 15;
inline constexpr int kFunctionBig = 8;
inline constexpr int kFunctionPlayer = 50;
inline constexpr int kFunctionCount = 131;
inline constexpr int kFunctionInstr = 203;
inline constexpr int kFunctionRollsSinceLast = 35;
inline constexpr int kVariableRollsSinceLast = 2505;
inline constexpr int kFirstCheckStackName = 800;
inline constexpr int kGroupOfAllBets = 4100;
inline constexpr int kListAny = 2;
inline constexpr int kStringDate = -1;
inline constexpr int kStringTime = -2;
inline constexpr int kStringFromRoll = -15;

// How a function is read.
enum class FunctionKind {
  kBet,     // a bet of a number: a reference
  kStack,   // a CheckStack or its name by a number: a reference
  kCount,   // a count of the dice by a number: a reference
  kNumber,  // gives a number
  kText,    // gives a text
};

struct FunctionProperty {
  int code;
  std::string_view name;  // as messages show it
  // A letter for each argument: n number, s string, e either. "*n", "*e": a list of any length.
  std::string_view arguments;
  ReferenceClass referenceClass;
  ScriptValueType type;
  FunctionKind kind;
  bool assignable;

  bool IsReference() const { return kind <= FunctionKind::kCount; }
  bool TakesList() const { return arguments.starts_with('*'); }
};

// Null for a code that is no function.
const FunctionProperty* FindFunction(int code);

constexpr bool IsCheckStackName(int code) {
  return code >= kFirstCheckStackName && code < kFirstCheckStackName + kCheckStacks;
}

struct VariableProperty {
  std::string_view name;  // see VariableName
  ReferenceClass referenceClass = ReferenceClass::kPlain;
  Whose whose = Whose::kTable;
  ScriptValueType type = ScriptValueType::kNumber;
  bool assignable = false;
};

// A bet is a variable of its number; a group has the properties of its members.
VariableProperty VariableOf(int code);
// As messages show it.
std::string VariableName(int code);
// The members of a group in their order; empty for a variable that is no group. surroundings leave bets out
// of "all bets" alone.
std::vector<int> GroupMembers(int code, const ScriptSurroundings& surroundings);
bool IsGroupVariable(int code);

// The family of a bet that the table doesn't offer; empty for one that it does.
std::string_view MissingBetFamily(BetId bet, const ScriptSurroundings& surroundings);

// Actions, by the shape of what follows them.
enum class ActionShape {
  kNothing,
  kText,            // a string or a number
  kString,          // a string
  kNumber,          // a number
  kOptionalNumber,  // a number or nothing
  kRollFile,        // a string, and "from roll" with a number or nothing
  kSwap,            // two targets
  kTargets,         // targets
  kBetTargets,      // bets
  kPlaceBets,       // bets, with a message of its own
  kAmountTargets,   // an amount, a preposition and targets
};

// kNothing for a code that is no action.
ActionShape ShapeOfAction(int code);
// Whether what is to be set follows the action at once.
bool TakesTargets(ActionShape shape);

}  // namespace tessaryn
