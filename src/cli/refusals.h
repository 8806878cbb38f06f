// What several commands say: why a word is refused, and what an option that many have is for.
#pragma once

#include <cstdint>
#include <string>

#include "base/messages.h"

namespace tessaryn::cli {

inline std::string NoSeat(const std::string& word) { return "\"" + word + "\" is no seat; seats are 1 to 8"; }
inline std::string NobodyAtSeat(const std::string& seat) { return "there is no player at seat " + seat; }
inline std::string NoScope(const std::string& word) {
  return "\"" + word +
         "\" is no scope; 0 current hand, 1 last hand, 2 session, 3 last session, 4 all sessions";
}
inline std::string NoAmount(const std::string& word) { return "\"" + word + "\" is no amount"; }
inline std::string NeitherOnNorOff(const std::string& word) {
  return "\"" + word + "\" is neither on nor off";
}
inline std::string NoSettingName(const std::string& word) {
  return "\"" + word + "\": expected NAME or NAME@SEAT";
}
// option: with what it was given.
inline std::string NoSeed(const std::string& option, std::int64_t most) {
  return option + ": must be a whole number from 1 to " + std::to_string(most);
}
inline std::string SameFileAs(const std::string& option, const std::string& other) {
  return option + ": is the file of " + other + "too";
}
inline std::string NotFound(const std::string& path) {
  return MessageText<Msg::kNamedFileNotFound>(With<"path">(path));
}

inline constexpr const char* kNothingRolled = "nothing was rolled";
inline constexpr const char* kRollsASecond = "%s rolls in %.2f seconds (%s rolls a second)\n";

inline constexpr const char* kJsonHelp = "Print one JSON object";
inline constexpr const char* kDataFolderHelp = "Folder of everything that is written";
inline constexpr const char* kNoDataFolderHelp = "Taken as by every command; nothing is kept there";
inline constexpr const char* kGeneratorHelp = "Generator 1 to 8";
inline constexpr const char* kSeedHelp = "Seed of the generator";
inline constexpr const char* kProbabilitiesHelp = "Percentage dice from a probability file";
inline constexpr const char* kSettingsHelp = "A file of settings, NAME = VALUE a line";
inline constexpr const char* kPlayerNamesHelp = "A player's name that scripts may use; the k-th is at seat k";

}  // namespace tessaryn::cli
