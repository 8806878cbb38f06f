// The script files that were opened or saved last, kept beside what else the program writes.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

struct Game;

// The latest first; those that are there no longer are left out.
std::vector<std::string> RecentScripts(const Game& game);
// It becomes the latest. A list that can't be written is not missed.
void NoteRecentScript(const Game& game, const std::string& path);

}  // namespace tessaryn
