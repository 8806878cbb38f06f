// What the codes of the betting language mean: one table each for variables, functions and actions, read by
// the compiler's passes, by its checks and by the interpreter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/script_types.h"

namespace tessaryn {

// Which modifiers a reference takes, and so how long its canonical run is.
enum class ReferenceClass {
  kPlain,    // none
  kPlayer,   // player
  kScope,    // player, scope
  kMeasure,  // player, scope, measure
  kBet,      // player, scope, metric, measure
};

enum class ScriptValueType { kNumber, kString };

// The modifier codes that the rules of the language speak of.
inline constexpr int kScopeCurrentHand = 1;
inline constexpr int kScopeCurrentSession = 3;
inline constexpr int kScopeAllSessions = 5;
inline constexpr int kMetricTendered = 0;
inline constexpr int kMetricWagered = 1;
inline constexpr int kMetricNetPercent = 5;
inline constexpr int kMetricEstablished = 6;
inline constexpr int kMetricMissed = 8;
inline constexpr int kMetricResolved = 10;
inline constexpr int kMeasureTotal = 0;
inline constexpr int kMeasureNaturals = 14;
inline constexpr int kMeasurePoints = 15;
inline constexpr int kMeasureRollsSinceLast = 27;
inline constexpr int kMeasureLastRollMoney = 29;
inline constexpr int kMeasureExpectedValue = 32;
inline constexpr int kMeasureCurrentMoney = 34;
inline constexpr int kPlayerAutobettor = 14;
inline constexpr int kPlayerAll = 15;
inline constexpr int kFunctionPlayer = 50;
inline constexpr int kFunctionCount = 131;
inline constexpr int kFunctionInstr = 203;
inline constexpr int kVariableRollsSinceLast = 2505;
inline constexpr int kListAny = 2;
inline constexpr int kListAll = 3;
inline constexpr int kActionSwap = 300;
inline constexpr int kStringFromRoll = -15;

// Functions.
struct FunctionProperty {
  int code;
  std::string_view name;  // as messages show it
  // A letter for each argument: n number, s string, e either. "*n", "*e": a list of any length.
  std::string_view arguments;
  ReferenceClass referenceClass;
  ScriptValueType type;
  bool wholeTable;  // without a player it means the table
};

// Null for a code that is no function.
const FunctionProperty* FindFunction(int code);
bool IsBetFunction(int code);   // 1 to 10
bool IsListFunction(int code);  // 126 to 133
bool IsAssignableFunction(int code);

// Variables. A bet is a variable of its number.
bool IsBetVariable(int code);
bool IsAssignableVariable(int code);
ScriptValueType VariableType(int code);
ReferenceClass VariableClass(int code);
bool IsWholeTableVariable(int code);
std::string VariableName(int code);
// The members of a group in their order; empty for a variable that is no group. surroundings leave bets out
// of "all bets" alone.
std::vector<int> GroupMembers(int code, const ScriptSurroundings& surroundings);
bool IsGroupVariable(int code);

// The family of a bet that the table doesn't offer; empty for one that it does.
std::string_view MissingBetFamily(int bet, const ScriptSurroundings& surroundings);

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

}  // namespace tessaryn
