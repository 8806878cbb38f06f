// The report of an experiment: one page that needs nothing but itself, with all that another needs to repeat
// it.
#pragma once

#include <string>

#include "lab/lab_state.h"
#include "lab/ranking.h"

namespace tessaryn {

// by: what systems are ranked by, and what sweeps show first. Requires one session at least.
std::string HtmlReport(LabState& state, RankBy by = RankBy::kMean);

}  // namespace tessaryn
