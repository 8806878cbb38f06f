// A table as at a first start.
#pragma once

#include <memory>
#include <string>

#include "state/game.h"

namespace tessaryn {

// A table on its defaults: rules, payoffs and generators as at a first start. host outlives the game.
// applicationFolder and dataFolder may come with or without a separator at the end.
std::unique_ptr<Game> StartGame(Host& host, const std::string& applicationFolder,
                                const std::string& dataFolder);

}  // namespace tessaryn
