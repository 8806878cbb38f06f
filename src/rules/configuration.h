// The rules that the settings must keep among themselves.
#pragma once

#include "base/table_types.h"
#include "rules/payoffs.h"

namespace tessaryn {

struct Game;

// The leaving check of the configuration: check values, limits, payoffs, Fire bet, in that order.
ConfigurationProblem CheckConfiguration(const Game& game);
// The original checks.
void RestoreDefaultDenominations(Game& game);

}  // namespace tessaryn
