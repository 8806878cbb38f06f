// An experiment as the command line tells it.
#pragma once

#include <string>

#include "lab/experiment.h"

namespace tessaryn {

// The command that plays it again, to be typed into a shell: scripts by their names, and a probability file
// that the user has to have. Empty where no command would lead to these systems.
std::string LabCommand(const Experiment& experiment);

}  // namespace tessaryn
