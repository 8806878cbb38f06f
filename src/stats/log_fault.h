// What a log that can't be written does to the table.
#pragma once

#include <string>
#include <utility>

#include "state/game.h"
#include "state/run_stop.h"

namespace tessaryn {

// A run stops with it, since its journal would be lacking, and a Turbo-Roll shows it as the reason; what a
// user does roll by roll goes on, and there it is told once. told: the fault that was told last. Whether the
// box that tells it is due.
inline bool StopWithLogFault(Game& game, std::string& told, const std::string& fault) {
  const bool again = std::exchange(told, fault) == fault;
  const bool run = game.table.AutoRollActive;
  const bool turbo = game.table.TurboRollActive;
  if (run) StopRun(game, fault);
  return !turbo && (run || !again);
}

}  // namespace tessaryn
