#include "autobet/language/language.h"

#include <algorithm>
#include <iterator>

#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"
#include "base/bet_catalogue.h"

namespace tessaryn {
namespace {

constexpr auto kNumber = ScriptValueType::kNumber;
constexpr auto kString = ScriptValueType::kString;
constexpr auto kPlain = ReferenceClass::kPlain;
constexpr auto kMeasure = ReferenceClass::kMeasure;
constexpr auto kBet = ReferenceClass::kBet;

constexpr FunctionProperty kFunctions[] = {
    {1, "Lay", "n", kBet, kNumber, false},
    {2, "DontCome", "n", kBet, kNumber, false},
    {3, "DontComeOdds", "n", kBet, kNumber, false},
    {4, "Come", "n", kBet, kNumber, false},
    {5, "ComeOdds", "n", kBet, kNumber, false},
    {6, "Place", "n", kBet, kNumber, false},
    {7, "Buy", "n", kBet, kNumber, false},
    {8, "Big", "n", kBet, kNumber, false},
    {9, "Hardway", "n", kBet, kNumber, false},
    {10, "Hop", "n", kBet, kNumber, false},
    {21, "Checkstack", "n", ReferenceClass::kPlayer, kNumber, false},
    {31, "% of rolls probable", "n", kMeasure, kNumber, true},
    {32, "# of rolls probable", "n", kMeasure, kNumber, true},
    {33, "% of rolls", "n", kMeasure, kNumber, true},
    {34, "# of rolls", "n", kMeasure, kNumber, true},
    {35, "# of rolls since last", "n", kMeasure, kNumber, true},
    {36, "% of rolls probable true", "n", kMeasure, kNumber, true},
    {37, "# of rolls probable true", "n", kMeasure, kNumber, true},
    {38, "# of rolls probable skew", "n", kMeasure, kNumber, true},
    {39, "% of rolls probable skew", "n", kMeasure, kNumber, true},
    {40, "# of comeout rolls", "n", kMeasure, kNumber, true},
    {41, "% of comeout rolls", "n", kMeasure, kNumber, true},
    {42, "# of passes", "n", kMeasure, kNumber, true},
    {43, "% of passes", "n", kMeasure, kNumber, true},
    {44, "# of misses", "n", kMeasure, kNumber, true},
    {45, "% of misses", "n", kMeasure, kNumber, true},
    {46, "# of points", "n", kBet, kNumber, true},
    {47, "% of points", "n", kBet, kNumber, true},
    {50, "Player", "e", kPlain, kNumber, false},
    {100, "Sqr", "n", kPlain, kNumber, false},
    {101, "Int", "n", kPlain, kNumber, false},
    {102, "Abs", "n", kPlain, kNumber, false},
    {104, "Asc", "s", kPlain, kNumber, false},
    {110, "Average Bankroll", "n", kPlain, kNumber, false},
    {117, "Val", "s", kPlain, kNumber, false},
    {118, "Len", "s", kPlain, kNumber, false},
    {125, "Input", "s", kPlain, kNumber, false},
    {126, "Highest", "*n", kPlain, kNumber, false},
    {127, "Lowest", "*n", kPlain, kNumber, false},
    {128, "Average", "*n", kPlain, kNumber, false},
    {129, "StdDev", "*n", kPlain, kNumber, false},
    {130, "Sum", "*n", kPlain, kNumber, false},
    {131, "Count", "*e", kPlain, kNumber, false},
    {132, "Highest$", "*e", kPlain, kString, false},
    {133, "Lowest$", "*e", kPlain, kString, false},
    {190, "Die", "n", kPlain, kNumber, false},
    {203, "Instr", "nss", kPlain, kNumber, false},
    {800, "Checkstack Name", "n", kPlain, kString, false},
    {801, "Left$", "sn", kPlain, kString, false},
    {802, "Right$", "sn", kPlain, kString, false},
    {803, "RemoveLeft$", "sn", kPlain, kString, false},
    {804, "RemoveRight$", "sn", kPlain, kString, false},
    {805, "Mid$", "snn", kPlain, kString, false},
    {806, "RemoveMid$", "snn", kPlain, kString, false},
    {809, "Insert$", "ssn", kPlain, kString, false},
    {810, "Str$", "n", kPlain, kString, false},
    {811, "Chr$", "n", kPlain, kString, false},
    {812, "Space$", "n", kPlain, kString, false},
    {825, "Input$", "s", kPlain, kString, false},
    {850, "Playername", "n", kPlain, kString, false},
};

struct VariableEntry {
  int code;
  std::string_view name;
  bool assignable;
};

constexpr VariableEntry kVariables[] = {
    {603, "Variable", true},  // rolls per hr is 3603 and read-only to scripts
    {651, "Available bankroll", false},
    {655, "Last Available Bankroll", false},
    {670, "Autohandle Winning Bets", true},
    {671, "Autohandle Losing Bets", true},
    {700, "Autotake Full Odds", true},
    {701, "Autolay Full Odds", true},
    {702, "Autodown Place Bets", true},
    {703, "Autopass The Dice", true},
    {704, "Variable", true},
    {1100, "Comps", false},
    {1200, "Simulated hours", false},
    {1300, "Beginning Bankroll", true},
    {1301, "Bankroll", true},
    {1302, "High Bankroll", false},
    {1303, "Low Bankroll", false},
    {1500, "# Hands", false},
    {1501, "Most Rolls In A Hand", false},
    {1502, "Avg Rolls Per Hand", false},
    {1503, "Most Comeout Rolls In A Hand", false},
    {1504, "Avg Comeout Rolls Per Hand", false},
    {1505, "Most Passes In A Hand", false},
    {1506, "Avg Passes Per Hand", false},
    {1507, "Most Misses In A Hand", false},
    {1508, "Avg Misses Per Hand", false},
    {2501, "% Of Prob", false},
    {2502, "# Prob", false},
    {2503, "% Of Rolls", false},
    {2504, "# Rolls", false},
    {2505, "# Rolls Since Last", false},
    {2506, "% Of Prob True", false},
    {2507, "# Prob True", false},
    {2508, "# Prob Skew", false},
    {2509, "% Of Prob Skew", false},
    {2600, "# Comeout Rolls", false},
    {2601, "% Of Comeout Rolls", false},
    {2602, "# Passes", false},
    {2603, "% Of Passes", false},
    {2604, "# Misses", false},
    {2605, "% Of Misses", false},
    {3000, "Initializing Script", false},
    {3001, "Beginning New Session", false},
    {3002, "Beginning new hand (new shooter)", false},
    {3005, "Dice Roll File End Reached", false},
    {3006, "Dice roll file next roll #", true},
    {3007, "Dice Roll File Length", false},
    {3200, "Shooter", false},
    {3201, "Last Shooter", false},
    {3202, "Original Shooter", false},
    {3203, "Bettor", false},
    {3204, "Autobettor", false},
    {3300, "Shooter Passes", false},
    {3301, "Shooter Misses", false},
    {3500, "Point", false},
    {3501, "Shooters Last Point", false},
    {3510, "Dice Total", false},
    {3511, "Dice Faces", false},
    {3512, "Die1", false},
    {3513, "Die2", false},
    {3603, "Rolls Per Hr", false},
    {3610, "Minimum Bet", false},
    {3611, "Maximum Bet", false},
    {3655, "Seed", true},
    {3672, "Rng", true},
    {3691, "Comp Rate", true},
    {3693, "Date/Time", false},
    {3696, "Timer", false},
    {3697, "Answer", false},
    {3698, "Rnd", false},
    {3704, "Next Roll Is A Comeout Roll", false},
    {3705, "Next Roll Is Not A Comeout Roll", false},
    {3706, "Last Roll Was A Comeout Roll", false},
    {3707, "Last Roll Was Not A Comeout Roll", false},
    {3708, "Seven Out", false},
    {3709, "Point Is Decided", false},
    {3710, "Point Is Established", false},
    {3711, "Point Is Not Established", false},
    {4606, "# Points", false},
    {4607, "% Of Points", false},
};

const VariableEntry* FindVariable(int code) {
  for (const VariableEntry& entry : kVariables) {
    if (entry.code == code) return &entry;
  }
  return nullptr;
}

// A group is its members from first to last, or the two ends alone.
struct GroupEntry {
  int code;
  int first;
  int last;
  bool endsOnly;
};

constexpr GroupEntry kGroups[] = {
    {4000, 1, 6, false},     {4001, 2, 5, false},    {4002, 1, 6, true},     // lay
    {4010, 7, 12, false},    {4011, 8, 11, false},   {4012, 7, 12, true},    // don't come
    {4020, 13, 18, false},   {4021, 14, 17, false},  {4022, 13, 18, true},   // don't come odds
    {4030, 19, 24, false},   {4031, 20, 23, false},  {4032, 19, 24, true},   // come
    {4040, 25, 30, false},   {4041, 26, 29, false},  {4042, 25, 30, true},   // come odds
    {4050, 31, 36, false},   {4051, 32, 35, false},  {4052, 31, 36, true},   // place
    {4060, 37, 42, false},   {4061, 38, 41, false},  {4062, 37, 42, true},   // buy
    {4070, 50, 51, false},   {4071, 52, 55, false},  {4072, 67, 83, false},  // big, hardways, hop
    {980, 100, 199, false},  {990, 800, 899, false},                         // checkstacks, names
    {4100, 1, kBets, false},                                                 // all bets
};

const GroupEntry* FindGroup(int code) {
  const auto* found = std::find_if(std::begin(kGroups), std::end(kGroups),
                                   [code](const GroupEntry& entry) { return entry.code == code; });
  return found == std::end(kGroups) ? nullptr : found;
}

struct BetFamily {
  int first;
  int last;
  std::string_view name;
  bool ScriptSurroundings::*offered;
};

constexpr BetFamily kOptionalFamilies[] = {
    {50, 51, "Big", &ScriptSurroundings::big68},
    {kAllSmall, kSevenPoint7, "Small-Tall-All", &ScriptSurroundings::smallTall},
    {90, 90, "Midway", &ScriptSurroundings::midway},
    {93, 93, "Fire", &ScriptSurroundings::fire},
};

struct ActionEntry {
  int code;
  ActionShape shape;
};

constexpr ActionEntry kActions[] = {
    {210, ActionShape::kText},           {211, ActionShape::kText},
    {212, ActionShape::kString},         {213, ActionShape::kString},
    {220, ActionShape::kString},         {221, ActionShape::kString},
    {223, ActionShape::kText},           {225, ActionShape::kOptionalNumber},
    {226, ActionShape::kOptionalNumber}, {230, ActionShape::kNumber},
    {300, ActionShape::kSwap},           {310, ActionShape::kRollFile},
    {450, ActionShape::kPlaceBets},      {451, ActionShape::kBetTargets},
    {452, ActionShape::kBetTargets},     {453, ActionShape::kBetTargets},
    {460, ActionShape::kTargets},        {481, ActionShape::kAmountTargets},
    {482, ActionShape::kAmountTargets},  {483, ActionShape::kAmountTargets},
    {484, ActionShape::kAmountTargets},  {485, ActionShape::kAmountTargets},
    {487, ActionShape::kAmountTargets},  {488, ActionShape::kAmountTargets},
    {489, ActionShape::kAmountTargets},
};

std::string TitleCase(std::string_view text) {
  std::string result(text);
  bool start = true;
  for (char& c : result) {
    if (start && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    start = c == ' ';
  }
  return result;
}

}  // namespace

const FunctionProperty* FindFunction(int code) {
  for (const FunctionProperty& property : kFunctions) {
    if (property.code == code) return &property;
  }
  return nullptr;
}

bool IsBetFunction(int code) { return code >= 1 && code <= 10; }
bool IsListFunction(int code) { return code >= 126 && code <= 133; }
bool IsAssignableFunction(int code) { return code < 100 || code == 800; }

bool IsBetVariable(int code) { return IsTableBet(code); }

bool IsAssignableVariable(int code) {
  if (IsBetVariable(code) || (code >= 100 && code <= 199) || (code >= 800 && code <= 999)) return true;
  const VariableEntry* entry = FindVariable(code);
  return entry != nullptr && entry->assignable;
}

ScriptValueType VariableType(int code) {
  return (code >= 800 && code <= 899) || code == 990 ? ScriptValueType::kString : ScriptValueType::kNumber;
}

ReferenceClass VariableClass(int code) {
  if (IsBetVariable(code) || code >= 4000) return ReferenceClass::kBet;
  if (code < 1000) return ReferenceClass::kPlayer;
  if (code < 2000) return ReferenceClass::kScope;
  return code < 3000 ? ReferenceClass::kMeasure : ReferenceClass::kPlain;
}

bool IsWholeTableVariable(int code) {
  return VariableClass(code) == ReferenceClass::kMeasure || code == 4606 || code == 4607 || code == 1200 ||
         (code >= 1501 && code <= 1508);
}

std::string VariableName(int code) {
  if (const VariableEntry* entry = FindVariable(code)) return std::string(entry->name);
  if (IsBetVariable(code)) return TitleCase(BetWord(code));
  if (code >= 100 && code <= 199) return "Checkstack" + std::to_string(code - 100);
  if (code >= 800 && code <= 899) return "Checkstack Name" + std::to_string(code - 800);
  return "Variable";
}

bool IsGroupVariable(int code) { return FindGroup(code) != nullptr; }

std::vector<int> GroupMembers(int code, const ScriptSurroundings& surroundings) {
  const GroupEntry* group = FindGroup(code);
  if (group == nullptr) return {};
  if (group->endsOnly) return {group->first, group->last};
  std::vector<int> members;
  for (int member = group->first; member <= group->last; ++member) {
    if (code == 4100 && !MissingBetFamily(member, surroundings).empty()) continue;
    members.push_back(member);
  }
  return members;
}

std::string_view MissingBetFamily(int bet, const ScriptSurroundings& surroundings) {
  for (const BetFamily& family : kOptionalFamilies) {
    if (bet >= family.first && bet <= family.last && !(surroundings.*family.offered)) return family.name;
  }
  return {};
}

ActionShape ShapeOfAction(int code) {
  for (const ActionEntry& entry : kActions) {
    if (entry.code == code) return entry.shape;
  }
  return ActionShape::kNothing;
}

}  // namespace tessaryn
