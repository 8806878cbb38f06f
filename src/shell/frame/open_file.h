// Files of the program's kinds that come from the desktop: on the command line, or dropped on the window.
#pragma once

#include <string>

namespace tessaryn {

struct Desk;

// Whether a name ends like a kind that is opened on the table that is there, rather than as a game in its
// place: scripts, dice rolls, probabilities, Sessions Logs.
bool OpensBesideGame(const std::string& path);

// Does what Open does in the kind's own window, for the selected player, and shows that window. Any other
// name is that of a game. What is wrong is told.
void OpenAnyFile(Desk& desk, const std::string& path);

}  // namespace tessaryn
