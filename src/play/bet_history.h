// Changes of bets since the last roll, to be taken back and made again. A step is what one command did, by
// whatever way: a click, a move, a call, a removal. What scripts and settlement do is no step.
//
// Table, money and calls are given back bit for bit. What has been written stays written: the list of bets
// that the workshop logs gets the bets given back as further lines.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/table_types.h"
#include "state/payoff_tables.h"
#include "state/seat_state.h"
#include "state/settings.h"

namespace tessaryn {

struct Game;

// All that a change of bets writes at one seat.
struct SeatBetsKept {
  std::string SeatName;  // whose bets these are
  Currency Amounts[kBetRows];
  BetSet SeatBets;
  BetSet TouchedSinceBefore;
  BetSet TouchedSinceAfter;
  BetSet StacksSinceBefore;
  BetSet StacksSinceAfter;
  bool SinceBefore = false;  // the seat's bits of SeatsSinceBefore and SeatsSinceAfter
  bool SinceAfter = false;
  WorkingState BetWorking;
  Currency LayVigHeld[6];
  Currency BuyVigHeld[6];
  Currency OnTableAmount;
};
TESSARYN_FIELDS(SeatBetsKept, SeatName, Amounts, SeatBets, TouchedSinceBefore, TouchedSinceAfter,
                StacksSinceBefore, StacksSinceAfter, SinceBefore, SinceAfter, BetWorking, LayVigHeld,
                BuyVigHeld, OnTableAmount)

// The bets of the whole table at one moment, and under what rules.
struct BetsKept {
  std::array<SeatBetsKept, kSeatRows> seats;
  bool CallsTouched = false;
  std::int64_t Throws = 0;
  Settings settings;
  PayoffTables payoffs;
};

struct BetStep {
  struct OfSeat {
    SeatId seat = 0;
    SeatBetsKept before;
    SeatBetsKept after;
  };
  std::vector<OfSeat> seats;
  bool callsBefore = false;
  bool callsAfter = false;
};

struct BetHistory {
  std::vector<BetStep> Steps;  // the oldest first
  std::size_t Standing = 0;    // so many of them stand; those behind were taken back
  BetsKept Now;                // as the last step, or taking one back, left the table
};
inline constexpr std::size_t kMostBetSteps = 500;  // the oldest go

BetsKept KeepBets(const Game& game);
// A command has been carried out, before which the bets were these. With a roll in between, or where
// something else has changed the bets or the rules since the last step, what was before is forgotten.
void NoteBetStep(BetHistory& history, const Game& game, const BetsKept& before);
// What the work changes in bets is one step.
template <typename Work>
void AsBetStep(BetHistory& history, const Game& game, Work&& work) {
  const BetsKept before = KeepBets(game);
  work();
  NoteBetStep(history, game, before);
}

// Whether there is a step, and the table still stands as it left it.
bool CanUndoBets(const BetHistory& history, const Game& game);
bool CanRedoBets(const BetHistory& history, const Game& game);
// Takes the last step back, or makes the one taken back last again. False, with nothing changed, when there
// is none.
bool UndoBets(Game& game, BetHistory& history);
bool RedoBets(Game& game, BetHistory& history);

}  // namespace tessaryn
