// The user's command to open another game.
#pragma once

#include <string>

namespace tessaryn {

struct Desk;

// A file is looked at first; only if it can be opened the user is asked to give up the present game. What is
// wrong is told.
void OpenGameFile(Desk& desk, const std::string& path);

}  // namespace tessaryn
