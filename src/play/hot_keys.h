// Scripts on single keys of the table, and the file that keeps them.
#pragma once

#include <string>
#include <vector>

#include "state/screen_state.h"

namespace tessaryn {

struct Game;

inline constexpr const char* kHotKeysFile = "HotKeys.dta";
// The title of the box that tells of a bad script.

// As it is shown: a letter as a capital.
std::string HotKeyText(char key);

// The whole file. On failure, told in error, keys is unchanged, or the file as it was. No file: no keys.
bool ReadHotKeys(const std::string& path, std::vector<HotKey>& keys, std::string& error);
bool WriteHotKeys(const std::string& path, const std::vector<HotKey>& keys, std::string& error);
// Adds a key or gives it a new meaning. False, with the screen's words, without a file.
bool AddHotKey(std::vector<HotKey>& keys, const HotKey& key, std::string& error);

// A key pressed on the table. False when it is no hot-key or a script is running.
bool PressHotKey(Game& game, const std::vector<HotKey>& keys, char key);
// Runs a script file for the selected seat, with boxes for what is wrong. False when it did not run.
bool RunHotKeyFile(Game& game, const std::string& path);

}  // namespace tessaryn
