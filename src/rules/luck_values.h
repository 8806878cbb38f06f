// The steps of a luck plan: which bets a roll decides, and what those are worth that stay up.
#pragma once

#include <array>
#include <cstdint>

#include "rules/luck_dice.h"
#include "rules/luck_layout.h"
#include "rules/roll_payoff.h"

namespace tessaryn {

// A bet that rides.
struct RidingBet {
  const Game& game;
  const LuckDice& dice;
  const LuckChances& chances;
  const LuckLayout& layout;
  BetId bet = 0;
  Currency amount;
  Currency vig;  // that it holds
};

// The code with which an outcome decides a bet that works (see roll_payoff.h); 0 where it leaves it.
int DecidingCode(const RidingBet& riding, const RolledLayout& rolled, int outcome);
// The money that the decision brings, in $0.0001 and whole betting units; 0 where it brings none and so is no
// decision.
std::int64_t NetOf(const RidingBet& riding, int code, int outcome);

// In kValueUnit, against its face: what a line or Come bet with a number will bring on average, and a bet on
// marks, counts or a hand that is on its way. 0 for every other, and for all that have not begun.
struct StandingValues {
  std::int64_t before = 0;
  std::array<std::int64_t, kOutcomes> after{};  // where the outcome doesn't decide the bet
};
StandingValues StandingValuesOf(const RidingBet& riding, const RolledLayouts& rolled);

}  // namespace tessaryn
