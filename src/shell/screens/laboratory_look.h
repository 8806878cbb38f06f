// What a picture of the laboratory shows.
#pragma once

#include <memory>

#include "lab/lab_grid.h"
#include "shell/screens/laboratory_figures.h"

namespace tessaryn {

enum class LabPicture { kResults, kWay, kEnds, kRuin, kSweep };

struct LabLook {
  LabPicture picture = LabPicture::kResults;
  std::size_t a = 0;
  std::size_t b = 0;  // the same as a: none
  bool dark = false;
  std::shared_ptr<const LabGrid> grid;  // of a sweep; null: nothing was varied
  RankBy by = RankBy::kMean;
};

}  // namespace tessaryn
