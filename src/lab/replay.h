// A session of an experiment on a table that somebody looks at, roll by roll: the same table, the same
// script, the same dice.
//
// Errors are texts; an empty text is success.
#pragma once

#include <string>

#include "lab/experiment.h"
#include "lab/session.h"

namespace tessaryn {

// What the session comes to.
std::string FigureSession(const Experiment& experiment, const LabSystem& system, std::int64_t session,
                          const std::string& applicationFolder, SessionResult& result);

// A game file of the table before its first session. The bets that sessions settle without a question are
// settled so there too. What game has of screens comes with it.
std::string WriteSessionTable(const Experiment& experiment, const LabSystem& system, const Game& game,
                              const std::string& path);

// The table that was opened from that file gets what a game file doesn't hold, the script and the dice, and
// goes on from there. session from 0. False when the script has an error as it is initialised.
bool BeginSessionAtTable(Game& game, const Experiment& experiment, const LabSystem& system,
                         std::int64_t session);

}  // namespace tessaryn
