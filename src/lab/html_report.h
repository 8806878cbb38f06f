// The report of an experiment: one page that needs nothing but itself, with all that another needs to repeat
// it.
#pragma once

#include <string>

#include "lab/lab_state.h"

namespace tessaryn {

// Requires one session at least.
std::string HtmlReport(LabState& state);

}  // namespace tessaryn
