// A table beside a table.
#pragma once

#include <memory>

#include "state/game.h"

namespace tessaryn {

// The table as it stands, at rest: no run goes on in it, and nothing is written for it (log, recording and
// scripts' output are off). A dice roll file that plays does so from the same roll. host outlives the copy.
// On its own dice the copy goes on as the original does.
std::unique_ptr<Game> CopyGame(const Game& game, Host& host);

}  // namespace tessaryn
