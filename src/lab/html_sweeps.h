// Sweeps in a report: two as a map, one as a curve.
#pragma once

#include <string>

#include "lab/lab_state.h"
#include "lab/ranking.h"

namespace tessaryn {

// What systems are ranked by, as a heading: "mean result".
const char* RankName(RankBy by);
// A share, or dollars.
bool IsShareRank(RankBy by);

// Sections of all grids by the measure, the others folded away. Requires settled counts.
std::string SweepSections(const LabState& state, RankBy by);

}  // namespace tessaryn
