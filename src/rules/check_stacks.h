// CheckStacks: a player's named number cells, shown as piles of checks at the rail. Their values are bets 100
// to 199 of the seat, changed through ChangeBet as any bet; here are their names, what is shown, and the
// deletions.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

inline constexpr int kVisibleStacks = 4;
inline constexpr const char* kVisibleStackLabels[kVisibleStacks] = {
    "Set 1st checkstack to #", "Set 2nd checkstack to #", "Set 3rd checkstack to #",
    "Set 4th checkstack to #"};

// In all of these: seat 1 to 8, stack 0 to 99. Beyond, reading gives nothing and writing does nothing.
Currency CheckStackValue(const Game& game, SeatId seat, int stack);
// Returns the value that it came to: within plus and minus 9,999,999.9999.
Currency SetCheckStackValue(Game& game, SeatId seat, int stack, Currency value);
std::string CheckStackNameOf(const Game& game, SeatId seat, int stack);
void SetCheckStackName(Game& game, SeatId seat, int stack, std::string_view name);
// The value as the list shows it; empty for zero unless zeros are displayed.
std::string CheckStackValueText(const Game& game, SeatId seat, int stack, bool displayZero);

// The four stacks of a seat on the table. False, with nothing changed, for a number outside 0 to 99 or one
// that comes twice; then the refusal is shown.
bool SetVisibleStacks(Game& game, SeatId seat, const std::array<int, kVisibleStacks>& stacks);

// The deletions of the menu. Each asks first; false when given up.
enum class StackDeletion { kAll, kValues, kNames };
bool DeleteCheckStacks(Game& game, SeatId seat, StackDeletion what);
// The same without a question.
void ClearCheckStacks(Game& game, SeatId seat, StackDeletion what);

}  // namespace tessaryn
