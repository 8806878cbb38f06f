#include "rules/check_stacks.h"

#include <algorithm>
#include <set>

#include "rules/bet_rules.h"
#include "state/game.h"

namespace tessaryn {
namespace {

bool IsStackOf(int seat, int stack) {
  return seat >= 1 && seat <= kSeats && stack >= 0 && stack < kCheckStacks;
}

struct Question {
  const char* title;
  const char* text;
};
// By StackDeletion, before the player's name.
constexpr Question kQuestions[3] = {
    {"Delete All", "Are you sure you want to delete ALL the CheckStack names and values of "},
    {"Delete All Values", "Are you sure you want to delete ALL the CheckStack values of "},
    {"Delete All Names", "Are you sure you want to delete ALL the CheckStack names of "},
};

}  // namespace

Currency CheckStackValue(const Game& game, int seat, int stack) {
  return IsStackOf(seat, stack) ? game.table.BetAmount(seat, kFirstCheckStack + stack) : kZero;
}

Currency SetCheckStackValue(Game& game, int seat, int stack, Currency value) {
  if (!IsStackOf(seat, stack)) return kZero;
  const int bet = kFirstCheckStack + stack;
  ChangeBet(game, seat, bet, value - game.table.BetAmount(seat, bet));
  return game.table.BetAmount(seat, bet);
}

std::string CheckStackNameOf(const Game& game, int seat, int stack) {
  return IsStackOf(seat, stack) ? game.table.seats[seat].CheckStackName[stack] : "";
}

void SetCheckStackName(Game& game, int seat, int stack, std::string_view name) {
  if (IsStackOf(seat, stack)) game.table.seats[seat].CheckStackName[stack] = name;
}

std::string CheckStackValueText(const Game& game, int seat, int stack, bool displayZero) {
  const Currency value = CheckStackValue(game, seat, stack);
  return value == kZero && !displayZero ? "" : FormatMoney(value);
}

bool SetVisibleStacks(Game& game, int seat, const std::array<int, kVisibleStacks>& stacks) {
  if (seat < 1 || seat > kSeats) return false;
  const bool inRange =
      std::all_of(stacks.begin(), stacks.end(), [seat](int stack) { return IsStackOf(seat, stack); });
  if (!inRange || std::set<int>(stacks.begin(), stacks.end()).size() != stacks.size()) {
    ShowMessage(game, kVisibleStacksTitle,
                inRange ? kVisibleStacksText : "CheckStacks are numbered from 0 to 99.");
    return false;
  }
  std::copy(stacks.begin(), stacks.end(), game.table.seats[seat].VisibleStacks);
  game.host->Changed(game, Change::kLayout);
  return true;
}

void ClearCheckStacks(Game& game, int seat, StackDeletion what) {
  for (int stack = 0; stack < kCheckStacks; ++stack) {
    if (what != StackDeletion::kNames) SetBetAmount(game, seat, kFirstCheckStack + stack, kZero);
    if (what != StackDeletion::kValues) game.table.seats[seat].CheckStackName[stack].clear();
  }
  game.host->Changed(game, Change::kLayout);
}

bool DeleteCheckStacks(Game& game, int seat, StackDeletion what) {
  if (seat < 1 || seat > kSeats) return false;
  const Question& question = kQuestions[static_cast<int>(what)];
  if (ShowMessage(game, question.title, question.text + game.table.seats[seat].SeatName + "?",
                  kMsgYes | kMsgNo | kMsgQuestion) != kResultYes)
    return false;
  ClearCheckStacks(game, seat, what);
  return true;
}

}  // namespace tessaryn
