// The panel of the shooter's effectiveness: for each die, in how many percent of the rolls it stays on which
// axes.
#pragma once

class QWidget;

namespace tessaryn {

struct ShooterAxes {
  double percent[2] = {};  // 0 to 100, by die
  unsigned axes[2] = {};   // bits of ProbabilityAxis
};
// False when it is given up.
bool AskShooterAxes(QWidget* parent, ShooterAxes& chosen);

}  // namespace tessaryn
