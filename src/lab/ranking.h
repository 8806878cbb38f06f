// Systems in the order of what the user asks about.
#pragma once

#include <cstdint>
#include <vector>

#include "lab/lab_state.h"

namespace tessaryn {

enum class RankBy : std::uint8_t {
  kMean,    // net, the highest first
  kMedian,  // likewise
  kRuin,    // the share of ruined, the least first
  kGoal,    // the share that met the win goal, the largest first
};

struct Ranked {
  std::size_t system = 0;  // its place in the experiment
  double value = 0;        // dollars, or a share
};
// The best first; what is equal stays in the experiment's order. Requires settled counts.
std::vector<Ranked> RankSystems(const LabState& state, RankBy by);

}  // namespace tessaryn
