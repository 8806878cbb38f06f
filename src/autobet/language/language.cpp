#include "autobet/language/language.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"
#include "base/bet_catalogue.h"

namespace tessaryn {
namespace {

constexpr auto kNumber = ScriptValueType::kNumber;
constexpr auto kString = ScriptValueType::kString;
using enum ReferenceClass;
using enum Whose;

constexpr FunctionProperty kFunctions[] = {
#define BET_FUNCTION(code, phrase, name, ...) {code, name, "n", kBet, kNumber, FunctionKind::kBet, true},
#define STACK_FUNCTION(code, phrase, name, class, type, ...) \
  {code, name, "n", class, type, FunctionKind::kStack, true},
// To set a count, or player(...), is understood and changes nothing.
#define COUNT_FUNCTION(code, phrase, name, class, ...) \
  {code, name, "n", class, kNumber, FunctionKind::kCount, true},
#define NUMBER_FUNCTION(code, phrase, name, arguments, ...) \
  {code, name, arguments, kPlain, kNumber, FunctionKind::kNumber, (code) == kFunctionPlayer},
#define TEXT_FUNCTION(code, phrase, name, arguments, ...) \
  {code, name, arguments, kPlain, kString, FunctionKind::kText, false},
#include "autobet/language/words.inc"
};

struct VariableEntry {
  int code;
  VariableProperty property;
};

constexpr VariableEntry kVariables[] = {
#define VARIABLE(code, phrase, name, class, whose, ...) {code, {name, class, whose, kNumber, false}},
#define SETTABLE(code, phrase, name, class, whose, ...) {code, {name, class, whose, kNumber, true}},
#define UNSPOKEN(code, name, class, whose, ...) {code, {name, class, whose, kNumber, false}},
#include "autobet/language/words.inc"
};

// A hundred of them, from code on.
constexpr VariableEntry kNumbered[] = {
#define NUMBERED(code, phrase, name, type, ...) {code, {name, kPlayer, kOwn, type, true}},
#include "autobet/language/words.inc"
};

constexpr VariableProperty kBetProperty{"", kBet, kOwn, kNumber, true};

// A group is its members from first to last, or the two ends alone.
enum class GroupParts { kAll, kEnds };

struct GroupEntry {
  int code;
  int first;
  int last;
  GroupParts parts;
};

constexpr auto kAll = GroupParts::kAll;
constexpr auto kEnds = GroupParts::kEnds;
constexpr GroupEntry kGroups[] = {
#define GROUP(code, phrase, first, last, parts, ...) {code, first, last, parts},
#include "autobet/language/words.inc"
};

struct ActionEntry {
  int code;
  ActionShape shape;
};

constexpr ActionEntry kActions[] = {
#define ACTION(code, phrase, shape, ...) {code, ActionShape::shape},
#define TARGET_ACTION(code, phrase, shape, ...) {code, ActionShape::shape},
#define AMOUNT_ACTION(code, ...) {code, ActionShape::kAmountTargets},
#define SWAP_ACTION(code, ...) {code, ActionShape::kSwap},
#include "autobet/language/words.inc"
};

// --- Every code has one row.

struct BetRow {
  int code;
  std::string_view phrase;
};
constexpr BetRow kBetRows[] = {
#define BET(code, phrase, ...) {code, phrase},
#include "autobet/language/words.inc"
};

template <typename Row, std::size_t N>
consteval bool EachCodeOnce(const Row (&rows)[N]) {
  for (std::size_t i = 0; i < N; ++i)
    for (std::size_t j = i + 1; j < N; ++j)
      if (rows[i].code == rows[j].code) return false;
  return true;
}

consteval bool EachBetOnce() {
  int rows[kBets + 1] = {};
  for (const BetRow& row : kBetRows) ++rows[row.phrase == FactsOf(row.code).scriptName ? row.code : 0];
  return std::size(kBetRows) == kBets && std::count(rows, rows + kBets + 1, 1) == kBets && rows[0] == 0;
}

static_assert(EachCodeOnce(kFunctions) && EachCodeOnce(kActions));
static_assert(EachCodeOnce(kVariables) && EachCodeOnce(kNumbered) && EachCodeOnce(kGroups));
static_assert(EachBetOnce());

template <typename Row, std::size_t N>
const Row* FindRow(const Row (&rows)[N], int code) {
  for (const Row& row : rows)
    if (row.code == code) return &row;
  return nullptr;
}

const VariableEntry* FindNumbered(int code) {
  for (const VariableEntry& entry : kNumbered)
    if (code >= entry.code && code < entry.code + kCheckStacks) return &entry;
  return nullptr;
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

const FunctionProperty* FindFunction(int code) { return FindRow(kFunctions, code); }

VariableProperty VariableOf(int code) {
  if (const GroupEntry* group = FindRow(kGroups, code)) return VariableOf(group->first);
  if (IsTableBet(code)) return kBetProperty;
  if (const VariableEntry* numbered = FindNumbered(code)) return numbered->property;
  const VariableEntry* entry = FindRow(kVariables, code);
  return entry == nullptr ? VariableProperty{} : entry->property;
}

std::string VariableName(int code) {
  if (IsTableBet(code)) return TitleCase(BetWord(code));
  if (const VariableEntry* numbered = FindNumbered(code))
    return Concat({numbered->property.name, std::to_string(code - numbered->code)});
  return std::string(VariableOf(code).name);
}

bool IsGroupVariable(int code) { return FindRow(kGroups, code) != nullptr; }

std::vector<int> GroupMembers(int code, const ScriptSurroundings& surroundings) {
  const GroupEntry* group = FindRow(kGroups, code);
  if (group == nullptr) return {};
  if (group->parts == kEnds) return {group->first, group->last};
  std::vector<int> members;
  for (int member = group->first; member <= group->last; ++member) {
    if (code == kGroupOfAllBets && !MissingBetFamily(member, surroundings).empty()) continue;
    members.push_back(member);
  }
  return members;
}

std::string_view MissingBetFamily(BetId bet, const ScriptSurroundings& surroundings) {
  for (const BetFamily& family : kOptionalFamilies) {
    if (bet >= family.first && bet <= family.last && !(surroundings.*family.offered)) return family.name;
  }
  return {};
}

ActionShape ShapeOfAction(int code) {
  const ActionEntry* action = FindRow(kActions, code);
  return action == nullptr ? ActionShape::kNothing : action->shape;
}

bool TakesTargets(ActionShape shape) {
  return shape == ActionShape::kSwap || shape == ActionShape::kTargets || shape == ActionShape::kBetTargets ||
         shape == ActionShape::kPlaceBets;
}

}  // namespace tessaryn
