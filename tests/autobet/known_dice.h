// Scripts on dice that are known: the bets that they put up.
#pragma once

#include <string>

#include "autobet/language/vocabulary.h"
#include "base/bet_catalogue.h"
#include "base/money.h"
#include "state/game.h"

namespace tessaryn::script_test {

// "passline 10, passlineodds 20" of seat 1, by the bets' numbers.
inline std::string BetsUp(const Game& game) {
  std::string bets;
  for (int bet = 1; bet <= kBets; ++bet)
    if (const Currency amount = game.table.BetAmount(1, bet); amount > kZero)
      bets += (bets.empty() ? "" : ", ") + std::string(BetWord(bet)) + " " + PlainMoney(amount);
  return bets;
}

}  // namespace tessaryn::script_test
