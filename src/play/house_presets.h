// Houses: ready sets of rules by name, and those that are kept as settings files in the data folder.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "play/setting_table.h"

namespace tessaryn {

struct Game;

// A ready house. It says every rule that another ready house says, so that one follows another without a
// trace of it.
struct HousePreset {
  const char* key;   // "345x-10", for command lines
  const char* name;  // "3-4-5x odds, $10 table"
  const char* tells;
  const char* rules;  // NAME=VALUE; those in which it differs from the first
};
std::span<const HousePreset> HousePresets();
// By key or name, in either case; null for none.
const HousePreset* FindHousePreset(std::string_view keyOrName);
// Every rule of it, for SetSettings.
std::vector<SettingChange> HouseRules(const HousePreset& preset);
// "first, 345x-10, ...".
std::string HouseKeys();

// The houses that the user keeps: settings files in the folder "houses" of the data folder.
inline constexpr const char* kHouseEnding = ".txt";
std::string HousesFolder(const Game& game);
// Their names, without the ending, by the alphabet.
std::vector<std::string> KeptHouses(const Game& game);

}  // namespace tessaryn
