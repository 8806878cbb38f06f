// A session of the laboratory at the table.
#pragma once

#include <QString>

#include "lab/experiment.h"

namespace tessaryn {

struct Desk;

// Puts the session, from 0, in place of the game, after the questions that another game brings: its table,
// its script, its dice. Auto-Stop is set to where it ended. In words what it came to; empty when it was given
// up or can't be played, which is told.
QString PlayLabSession(Desk& desk, const Experiment& experiment, std::size_t system, std::int64_t session);

}  // namespace tessaryn
