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
  // Rolls of the session that were not counted, and where the present stretch of such rolls began, in throws;
  // below 0 while rolls are counted.
  std::int64_t missed[kSeatRows] = {};
  std::int64_t missingSince[kSeatRows] = {};
  bool missing = false;
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
void ClearSeatLuck(Game& game, int seat);
void SwapSeatLuck(Game& game, int a, int b);

// --- For the roll cycle.

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
SessionLuckFigures SessionLuckOf(const Game& game, int seat);

}  // namespace tessaryn
