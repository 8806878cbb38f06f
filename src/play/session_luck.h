// The luck of the players' sessions as they are played: what was expected of the bets made, what happened,
// and the difference. Counted for a host that keeps it, and only for rolls that somebody wants counted.
#pragma once

#include <cstdint>

#include "rules/luck.h"

namespace tessaryn {

struct Game;

// Of one table. Written by the procedures below alone.
struct SessionLuck {
  const Game* game = nullptr;  // whose luck it is; null while nobody watches
  int turboWatchers = 0;       // who want the rolls of a Turbo-Roll counted too
  LuckMeter meter;
  std::int64_t session = 0;  // throws before the session that is counted
  std::int64_t upTo = 0;     // throws that have been counted or missed
  // Of each seat: rolls of the session that were not counted, up to so many throws.
  std::int64_t missed[kSeatRows] = {};
  std::int64_t missedUpTo[kSeatRows] = {};
};

// A host that keeps luck is one beside its being a Host.
struct LuckKeeper {
  virtual ~LuckKeeper() = default;
  SessionLuck sessionLuck;
};

// Counts the table's luck from here on, from what stands on it now. Nothing where its host keeps none, or
// where it is watched already.
void WatchLuck(Game& game);
// Whether the rolls of a Turbo-Roll are wanted, by one watcher more or less: they come by the million, and
// nobody looks at each.
void WatchLuckOfTurboRolls(Game& game, bool wanted);
// What is counted for the table; null while nobody watches.
SessionLuck* WatchedLuck(const Game& game);
// Another game lies on the table.
void RestartLuck(Game& game);
// A player has come or gone; two seats have changed their players.
void ClearSeatLuck(Game& game, SeatId seat);
void SwapSeatLuck(Game& game, int a, int b);

// --- For the roll cycle.

// Whether a roll is to be counted; one that isn't asks for nothing.
inline bool WantsRoll(const SessionLuck* luck, bool turbo) {
  return luck != nullptr && (luck->turboWatchers > 0 || !turbo);
}
void LuckRollComes(SessionLuck& luck, const Game& game);
void LuckRollFell(SessionLuck& luck, const Game& game);

// --- Reading.

// A seat's session. What is not there for want of a watcher is all 0.
struct SessionLuckFigures {
  LuckReport report;
  double shifted = 0;        // part of what was expected: values given away, or won, between rolls
  std::int64_t counted = 0;  // rolls with bets up
  std::int64_t missed = 0;   // rolls that nobody wanted counted
};
SessionLuckFigures SessionLuckOf(const Game& game, SeatId seat);

}  // namespace tessaryn
