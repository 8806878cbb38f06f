// An experiment as it is typed: on a command line, or on the laboratory's page.
#pragma once

#include <string>
#include <vector>

#include "lab/experiment.h"

namespace tessaryn {

// What became systems: those before they were multiplied, and the sweeps that did it.
struct LabSweeps {
  std::vector<LabSystem> systems;
  std::vector<std::string> stacks;    // "1=5,10,25"
  std::vector<std::string> settings;  // "OddsCalcMethod=1,2,3"
};
// Requires a system. False where no sweeps lead to these.
bool FindSweeps(const std::vector<LabSystem>& systems, LabSweeps& found);

// "NAME=VALUE", "NAME@SEAT=VALUE".
std::string SettingText(const LabSetting& setting);

// The command that plays it again, to be typed into a shell: scripts by their names, and a probability file
// that the user has to have. Empty where no command would lead to these systems.
std::string LabCommand(const Experiment& experiment);

}  // namespace tessaryn
