// The rules that the settings must keep among themselves.
#pragma once

#include "base/table_types.h"
#include "rules/payoffs.h"

namespace tessaryn {

struct Game;
struct Settings;

// The leaving check of the configuration: check values, limits, payoffs, Fire bet, in that order.
ConfigurationProblem CheckConfiguration(const Game& game);
// Its first part: the checks are above 0, ascend, and are multiples of the first.
ConfigurationProblem CheckDenominations(const Settings& settings);
// The original checks.
void RestoreDefaultDenominations(Game& game);

}  // namespace tessaryn
