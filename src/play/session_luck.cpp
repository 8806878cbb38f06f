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

// The rolls from here on until counting begins again are missed.
void BeginMissing(SessionLuck& luck, const Game& game) {
  luck.missing = true;
  for (std::int64_t& since : luck.missingSince) since = Throws(game.stats);
}

void EndMissing(SessionLuck& luck, const Game& game) {
  luck.missing = false;
  for (int seat = 1; seat <= kSeats; ++seat)
    luck.missed[seat] += Throws(game.stats) - luck.missingSince[seat];
  // Bets have come and gone unseen: that is nobody's doing between two rolls.
  LuckResume(luck.meter, game);
}

void BeginCounting(SessionLuck& luck, const Game& game) {
  luck.missing = false;
  for (int seat = 1; seat <= kSeats; ++seat)
    luck.missed[seat] = PlayerRolls(game.stats, kCurrentSession, seat);
  LuckBeginSession(luck.meter, game);
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

void ClearSeatLuck(Game& game, int seat) {
  SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr) return;
  luck->meter.seats[seat] = {};
  luck->missed[seat] = 0;
  luck->missingSince[seat] = Throws(game.stats);
}

void SwapSeatLuck(Game& game, int a, int b) {
  SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr) return;
  std::swap(luck->meter.seats[a], luck->meter.seats[b]);
  std::swap(luck->missed[a], luck->missed[b]);
  std::swap(luck->missingSince[a], luck->missingSince[b]);
}

void LuckRollComes(SessionLuck& luck, const Game& game) {
  // A session that begins has nothing behind it.
  if (SessionRolls(game.stats) == 0) BeginCounting(luck, game);
  const bool wanted = !game.table.TurboRollActive || luck.turboWatchers > 0;
  if (!wanted) {
    if (!luck.missing) BeginMissing(luck, game);
    return;
  }
  if (luck.missing) EndMissing(luck, game);
  LuckBeforeRoll(luck.meter, game);
}

void LuckRollFell(SessionLuck& luck, const Game& game) {
  if (!luck.missing) LuckAfterRoll(luck.meter, game);
}

SessionLuckFigures SessionLuckOf(const Game& game, int seat) {
  SessionLuckFigures figures;
  const SessionLuck* const luck = WatchedLuck(game);
  if (luck == nullptr || SessionRolls(game.stats) == 0) return figures;
  const SeatLuck& counted = luck->meter.seats[seat];
  figures.report = LuckOf(luck->meter, seat);
  if (luck->meter.unit > 0)
    figures.shifted =
        static_cast<double>(counted.shifted) / (static_cast<double>(luck->meter.unit) * Currency::kPerDollar);
  figures.counted = counted.rolls;
  figures.missed = luck->missed[seat];
  if (luck->missing) figures.missed += Throws(game.stats) - luck->missingSince[seat];
  return figures;
}

}  // namespace tessaryn
