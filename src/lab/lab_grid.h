// Sweeps as grids: what was varied, and which system stands where.
#pragma once

#include <string>
#include <vector>

#include "lab/experiment.h"

namespace tessaryn {

struct LabAxis {
  std::string name;                 // "CheckStack 1", or the setting's
  std::vector<std::string> values;  // two at least, in the order in which they were asked for
};

// All systems of one script that differ in one or two things.
struct LabGrid {
  std::string name;                  // the script's, with what else was told of these systems
  std::vector<LabAxis> axes;         // one: across; two: down, across
  std::vector<std::size_t> systems;  // their places in the experiment, row by row

  std::size_t Columns() const { return axes.back().values.size(); }
  std::size_t Rows() const { return systems.size() / Columns(); }
};

// A grid for each script; of more than two sweeps the last two make grids, one for each value of the others.
// Systems that nothing was varied of have none.
std::vector<LabGrid> GridsOf(const Experiment& experiment);

// From dark blue to bright yellow, ever lighter: told apart by eyes that see few colours, and in gray. Good
// behind dark and light windows alike.
struct HeatColour {
  int red = 0;  // 0 to 255
  int green = 0;
  int blue = 0;
  bool darkText = false;  // what is written on it
};
// share: 0 the worst, 1 the best.
HeatColour HeatColourOf(double share);
// Where the value is between the worst and the best of a grid; the middle where these are the same.
double HeatShare(double value, double worst, double best);

}  // namespace tessaryn
