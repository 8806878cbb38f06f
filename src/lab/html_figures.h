// The drawings of a report.
#pragma once

#include <string>

#include "lab/lab_state.h"

namespace tessaryn {

// A letter for each system, or a number where letters don't suffice for all.
std::string KeyOf(std::size_t system, std::size_t systems);

// All require settled counts and one session at least.
std::string ResultsFigure(const Experiment& experiment, const SystemSums& sums);
// Empty where sessions have no last roll.
std::string WayFigure(const Experiment& experiment, const SystemSums& sums);
// first <= system < last in one drawing; empty where nobody was ruined.
std::string RuinFigure(const LabState& state, std::size_t first, std::size_t last);
// All systems' results beside each other.
std::string SpreadFigure(const LabState& state);

}  // namespace tessaryn
