// A house's rules in a text file that can be kept, shared and compared: one NAME = VALUE a line, NAME@SEAT
// for one seat, # before a comment.
//
// Errors are texts that name the file, the line and the reason; an empty text is success.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "play/setting_table.h"

namespace tessaryn {

struct Game;

struct SettingLine {
  SettingChange change;
  int line = 0;  // from 1
};

inline constexpr std::size_t kSettingsFileMaximum = 1u << 20;  // bytes

// The lines of a file, in their order. Their names and values are not looked at. On an error lines is
// unchanged.
std::string ReadSettingsFile(const std::string& path, std::vector<SettingLine>& lines);
// One line; blank ones and comments give no change. False, with the reason, for anything else that is no
// NAME = VALUE.
enum class LineKind { kBlank, kChange, kBad };
LineKind ParseSettingLine(std::string_view text, SettingChange& change, std::string& error);
// "FILE, line 12: " before a reason.
std::string SettingLinePrefix(const std::string& path, int line);

// The changes of a file, found to hold together with the table's settings. On an error changes is unchanged.
std::string ReadCheckedSettings(Game& game, const std::string& path, std::vector<SettingChange>& changes);
// Reads and applies a file, everything or nothing.
std::string ApplySettingsFile(Game& game, const std::string& path);

// Every setting of the table as such a file; what players keep for themselves is not the house's.
std::string SettingsText(const Game& game);
std::string SaveSettingsFile(const Game& game, const std::string& path);

}  // namespace tessaryn
