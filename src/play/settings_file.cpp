#include "play/settings_file.h"

#include <charconv>

#include "base/bet_catalogue.h"
#include "base/record_file.h"
#include "state/game.h"

namespace tessaryn {
namespace {

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool ReadSeat(std::string_view text, SeatId& seat) {
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), seat.value);
  return fault == std::errc() && end == text.data() + text.size() && !text.empty();
}

// The odds of the line have the row of the point that was last set: what they pay is told by the numbers'
// own rows.
bool FollowsThePoint(const std::string& name) {
  return name == "PayoffTable." + std::to_string(kPassLineOdds) ||
         name == "PayoffTable." + std::to_string(kDontPassOdds);
}

// The remark behind a value: the bet's name for a row of bets, what the setting means for a setting by
// itself.
std::string Remark(const SettingName& setting) {
  const auto dot = setting.name.find('.');
  if (dot == std::string::npos) return setting.help;
  const std::string table = setting.name.substr(0, dot);
  if (table != "PayoffTable" && table != "BetDefaultWorking" && table != "CompBetFlags") return "";
  return BetName(BetByName(setting.name.substr(dot + 1)));
}

}  // namespace

LineKind ParseSettingLine(std::string_view text, SettingChange& change, std::string& error) {
  const std::string_view line = Trim(text.substr(0, text.find('#')));
  if (line.empty()) return LineKind::kBlank;
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) {
    error = MessageText<Msg::kSettingLineBad>(With<"found">(CutText(line, 60)));
    return LineKind::kBad;
  }
  std::string_view name = Trim(line.substr(0, equals));
  SettingChange read;
  if (const auto at = name.find('@'); at != std::string_view::npos) {
    if (!ReadSeat(Trim(name.substr(at + 1)), read.seat)) {
      error = MessageText<Msg::kSettingSeatBad>(With<"found">(CutText(name.substr(at + 1), 60)));
      return LineKind::kBad;
    }
    name = Trim(name.substr(0, at));
  }
  if (name.empty()) {
    error = MessageText<Msg::kSettingLineNameless>();
    return LineKind::kBad;
  }
  read.name = name;
  read.value = Trim(line.substr(equals + 1));
  change = read;
  return LineKind::kChange;
}

std::string SettingLinePrefix(const std::string& path, int line) {
  return path + ", line " + std::to_string(line) + ": ";
}

std::string ReadSettingsFile(const std::string& path, std::vector<SettingLine>& lines) {
  std::string content;
  if (std::string error = ReadWholeFile(path, content, kSettingsFileMaximum); !error.empty()) return error;
  std::string_view rest = content;
  if (rest.starts_with("\xef\xbb\xbf")) rest.remove_prefix(3);
  std::vector<SettingLine> read;
  for (int number = 1; !rest.empty(); ++number) {
    const auto end = rest.find('\n');
    SettingLine line{{}, number};
    std::string error;
    const LineKind kind = ParseSettingLine(rest.substr(0, end), line.change, error);
    if (kind == LineKind::kBad) return SettingLinePrefix(path, number) + error;
    if (kind == LineKind::kChange) read.push_back(line);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  lines = std::move(read);
  return "";
}

std::string ReadCheckedSettings(Game& game, const std::string& path, std::vector<SettingChange>& changes) {
  std::vector<SettingLine> lines;
  if (std::string error = ReadSettingsFile(path, lines); !error.empty()) return error;
  std::vector<SettingChange> read;
  for (const SettingLine& line : lines) read.push_back(line.change);
  std::string error;
  const std::size_t problem = FindSettingProblem(game, read, error);
  if (problem < lines.size()) return SettingLinePrefix(path, lines[problem].line) + error;
  changes = std::move(read);
  return "";
}

std::string ApplySettingsFile(Game& game, const std::string& path) {
  std::vector<SettingChange> changes;
  if (std::string error = ReadCheckedSettings(game, path, changes); !error.empty()) return error;
  std::string error;
  return SetSettings(game, changes, error) ? "" : path + ": " + error;
}

std::string SettingsText(const Game& game) {
  std::string text = "# The rules of this table. A line is NAME = VALUE; # begins a comment.\n";
  std::string group;
  for (const SettingName& setting : AllSettings()) {
    if (IsSeatSetting(setting.name) || FollowsThePoint(setting.name)) continue;
    std::string value;
    std::string ignored;
    if (!GetSetting(game, setting.name, 0, value, ignored)) continue;
    const auto dot = setting.name.find('.');
    if (const std::string table = setting.name.substr(0, dot); dot != std::string::npos && table != group) {
      text += "\n# " + table + ": " + setting.help + "\n";
      group = table;
    }
    const std::string remark = Remark(setting);
    text += setting.name + " = " + value + (remark.empty() ? "" : "  # " + remark) + "\n";
  }
  return text;
}

std::string SaveSettingsFile(const Game& game, const std::string& path) {
  return ReplaceFile(path, SettingsText(game));
}

}  // namespace tessaryn
