// Every setting by its name: reading, checking and carrying out what a change brings with it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table_types.h"
#include "rules/payoffs.h"

namespace tessaryn {

struct Game;

// Sets NAME to the text. seat 0: the table's setting, or every occupied seat for one that is kept by seat;
// seat 1 to 8: that seat's. Asks the questions that a change brings (bets that would come down). On failure
// returns false with the reason, and nothing is changed.
bool SetSetting(Game& game, std::string_view name, SeatId seat, std::string_view value, std::string& error);
// Several at once, checked together at the end: for settings that depend on each other.
struct SettingChange {
  std::string name;
  SeatId seat = 0;
  std::string value;
};
// A new house standard of bets that work on the come-out is offered to the players, unless the caller does
// so later by OfferHouseStandard.
enum class HouseStandard { kOffered, kOfferedLater };
bool SetSettings(Game& game, const std::vector<SettingChange>& changes, std::string& error,
                 HouseStandard standard = HouseStandard::kOffered);
// The place in changes of the one that SetSettings would refuse: a value that is out of its limits, or the
// one behind which the settings no longer hold together. changes.size() if there is none. Changes nothing and
// asks nothing.
std::size_t FindSettingProblem(Game& game, const std::vector<SettingChange>& changes, std::string& error);
// What the leaving check of the configuration would say with the changes made: the first rule that the
// settings would break among themselves. Changes that can't be made are left out. Changes nothing.
ConfigurationProblem FindConfigurationProblem(Game& game, const std::vector<SettingChange>& changes);
// The table's values that the changes would replace by others, in the order of AllSettings; what players keep
// for themselves is left out. Requires that FindSettingProblem finds none. Changes nothing.
struct SettingDifference {
  std::string name;
  std::string now;
  std::string then;
};
std::vector<SettingDifference> PreviewSettings(Game& game, const std::vector<SettingChange>& changes);
// Whether the setting is kept by players alone, so that without a seat it means every player at the table.
bool IsSeatSetting(std::string_view name);
// Brings every setting back within the limits of its row, and what the settings must keep among themselves
// with it: for values that came past SetSettings, as from a game file. BetUnit of the payoffs and FieldPreset
// are figured anew. Asks nothing, and carries nothing out. The names of those that were outside, as NAME or
// NAME@SEAT.
std::vector<std::string> ClampSettings(Game& game);
// The value as text. False with the reason for an unknown name.
bool GetSetting(const Game& game, std::string_view name, SeatId seat, std::string& value, std::string& error);
// All names in their order; bySeat tells those that are kept for each seat.
struct SettingName {
  std::string name;
  bool bySeat = false;
  std::string help;
};
std::vector<SettingName> AllSettings();

}  // namespace tessaryn
