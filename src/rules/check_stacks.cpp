#include "rules/check_stacks.h"

#include <algorithm>
#include <set>

#include "rules/bet_rules.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

bool IsStackOf(SeatId seat, int stack) {
  return seat >= 1 && seat <= kSeats && stack >= 0 && stack < kCheckStacks;
}

// By StackDeletion.
constexpr Msg kQuestions[3] = {Msg::kAskDeleteStacks, Msg::kAskDeleteStackValues, Msg::kAskDeleteStackNames};
static_assert(NeedOnly({kQuestions[0], kQuestions[1], kQuestions[2]}, {"player"}));

}  // namespace

Currency CheckStackValue(const Game& game, SeatId seat, int stack) {
  return IsStackOf(seat, stack) ? game.table.BetAmount(seat, kFirstCheckStack + stack) : kZero;
}

Currency SetCheckStackValue(Game& game, SeatId seat, int stack, Currency value) {
  if (!IsStackOf(seat, stack)) return kZero;
  const BetId bet = kFirstCheckStack + stack;
  ChangeBet(game, seat, bet, value - game.table.BetAmount(seat, bet));
  return game.table.BetAmount(seat, bet);
}

std::string CheckStackNameOf(const Game& game, SeatId seat, int stack) {
  return IsStackOf(seat, stack) ? game.table.seats[seat].CheckStackName[stack] : "";
}

void SetCheckStackName(Game& game, SeatId seat, int stack, std::string_view name) {
  if (IsStackOf(seat, stack)) game.table.seats[seat].CheckStackName[stack] = name;
}

std::string CheckStackValueText(const Game& game, SeatId seat, int stack, bool displayZero) {
  const Currency value = CheckStackValue(game, seat, stack);
  return value == kZero && !displayZero ? "" : FormatMoney(value);
}

bool SetVisibleStacks(Game& game, SeatId seat, const std::array<int, kVisibleStacks>& stacks) {
  if (seat < 1 || seat > kSeats) return false;
  const bool inRange =
      std::all_of(stacks.begin(), stacks.end(), [seat](int stack) { return IsStackOf(seat, stack); });
  if (!inRange || std::set<int>(stacks.begin(), stacks.end()).size() != stacks.size()) {
    ShowMessage(game, inRange ? Msg::kStacksNotDifferent : Msg::kNoSuchStack, {});
    return false;
  }
  std::copy(stacks.begin(), stacks.end(), game.table.seats[seat].VisibleStacks);
  game.host->Changed(game, Change::kLayout);
  return true;
}

void ClearCheckStacks(Game& game, SeatId seat, StackDeletion what) {
  for (int stack = 0; stack < kCheckStacks; ++stack) {
    if (what != StackDeletion::kNames) SetBetAmount(game, seat, kFirstCheckStack + stack, kZero);
    if (what != StackDeletion::kValues) game.table.seats[seat].CheckStackName[stack].clear();
  }
  game.host->Changed(game, Change::kLayout);
}

bool DeleteCheckStacks(Game& game, SeatId seat, StackDeletion what) {
  if (seat < 1 || seat > kSeats) return false;
  if (ShowMessage(game, kQuestions[static_cast<int>(what)], {{"player", game.table.seats[seat].SeatName}}) !=
      kResultYes)
    return false;
  ClearCheckStacks(game, seat, what);
  return true;
}

}  // namespace tessaryn
