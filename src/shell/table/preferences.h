// What the user wants of the program itself, whatever game is open: kept in the data folder, not in the game.
#pragma once

#include <QString>
#include <string>

#include "shell/table/appearance.h"

namespace tessaryn {

struct Preferences {
  Scheme scheme = Scheme::kAsDesktop;
  bool noMotion = false;
  bool notesInBoxes = false;  // limits, charges and changes of bets come as boxes, not under the result
  bool guideDone = false;     // the first steps have been shown
};

// A file that isn't there or holds nonsense leaves what it doesn't tell as it is at first.
Preferences ReadPreferences(const std::string& dataFolder);
// False when they can't be kept.
bool WritePreferences(const std::string& dataFolder, const Preferences& preferences);

}  // namespace tessaryn
