#include "play/session_luck.h"

#include <utility>

#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

SessionLuck* LuckKeptBy(const Game& game) {
  auto* keeper = dynamic_cast<LuckKeeper*>(game.host);
  return keeper != nullptr ? &keeper->sessionLuck : nullptr;
}

void BeginCounting(SessionLuck& luck, const Game& game) {
  luck.session = game.stats.ThrowsBeforeSession;
  luck.upTo = Throws(game.stats);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    luck.missed[seat] = PlayerRolls(game.stats, kCurrentSession, seat);
    luck.missedUpTo[seat] = luck.upTo;
  }
  LuckBeginSession(luck.meter, game);
}

// Behind rolls that nobody wanted counted. Bets have come and gone unseen meanwhile: that is no shift between
// two rolls.
void ResumeCounting(SessionLuck& luck, const Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    luck.missed[seat] += Throws(game.stats) - luck.missedUpTo[seat];
  LuckResume(luck.meter, game);
}

// Every roll up to now is told of.
void StandUpTo(SessionLuck& luck, std::int64_t throws) {
  luck.upTo = throws;
  for (std::int64_t& upTo : luck.missedUpTo) upTo = throws;
}

}  // namespace

SessionLuck* WatchedLuck(const Game& game) {
  SessionLuck* const luck = LuckKeptBy(game);
  return luck != nullptr && luck->game == &game ? luck : nullptr;
}

void WatchLuck(Game& game) {
  SessionLuck* const luck = LuckKeptBy(game);
  if (luck == nullptr || luck->game == &game) return;
  luck->game = &game;
  BeginCounting(*luck, game);
}

void WatchLuckOfTurboRolls(Game& game, bool wanted) {
  if (SessionLuck* const luck = LuckKeptBy(game); luck != nullptr) luck->turboWatchers += wanted ? 1 : -1;
}

void RestartLuck(Game& game) {
  if (SessionLuck* const luck = WatchedLuck(game); luck != nullptr) BeginCounting(*luck, game);
}

void ClearSeatLuck(Game& game, SeatId seat) {
  SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr) return;
  luck->meter.seats[seat] = {};
  luck->missed[seat] = 0;
  luck->missedUpTo[seat] = Throws(game.stats);
}

void SwapSeatLuck(Game& game, int a, int b) {
  SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr) return;
  std::swap(luck->meter.seats[a], luck->meter.seats[b]);
  std::swap(luck->missed[a], luck->missed[b]);
  std::swap(luck->missedUpTo[a], luck->missedUpTo[b]);
}

void LuckRollComes(SessionLuck& luck, const Game& game) {
  if (luck.session != game.stats.ThrowsBeforeSession || SessionRolls(game.stats) == 0)
    BeginCounting(luck, game);
  else if (luck.upTo != Throws(game.stats))
    ResumeCounting(luck, game);
  StandUpTo(luck, Throws(game.stats));
  LuckBeforeRoll(luck.meter, game);
}

void LuckRollFell(SessionLuck& luck, const Game& game) {
  LuckAfterRoll(luck.meter, game);
  StandUpTo(luck, Throws(game.stats));
}

SessionLuckFigures SessionLuckOf(const Game& game, SeatId seat) {
  SessionLuckFigures figures;
  const SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr || SessionRolls(game.stats) == 0) return figures;
  if (luck->session != game.stats.ThrowsBeforeSession) {
    figures.missed = PlayerRolls(game.stats, kCurrentSession, seat);
    return figures;
  }
  const SeatLuck& counted = luck->meter.seats[seat];
  figures.report = LuckOf(luck->meter, seat);
  if (luck->meter.unit > 0)
    figures.shifted =
        static_cast<double>(counted.shifted) / (static_cast<double>(luck->meter.unit) * Currency::kPerDollar);
  figures.counted = counted.rolls;
  figures.missed = luck->missed[seat] + Throws(game.stats) - luck->missedUpTo[seat];
  return figures;
}

}  // namespace tessaryn
