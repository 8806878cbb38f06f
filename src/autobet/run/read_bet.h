// One statistic of one bet, by its metric, measure and scope.
#pragma once

#include "autobet/run/prepared_program.h"
#include "base/money.h"

namespace tessaryn {

struct Game;

// The bet is the code that is asked about. False with ScriptError set: 300 to 302 where an average, or the
// rolls since the last, has nothing to go by, 1000 for the vig of a bet without.
bool ReadBet(const Question& question, double& value);

// What the last roll won (metric 2) or lost (3) on a bet, as the session has it. 0 when it decided nothing.
Currency SessionLastRoll(const Game& game, int metric, SeatId seat, BetId bet);

}  // namespace tessaryn
