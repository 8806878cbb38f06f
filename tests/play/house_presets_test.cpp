#include "play/house_presets.h"

#include <gtest/gtest.h>

#include "play/settings_file.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::TestTable;

void Use(TestTable& table, const HousePreset& house) {
  std::string error;
  EXPECT_TRUE(SetSettings(*table.game, HouseRules(house), error)) << house.key << ": " << error;
}

// Whatever house was there before, and whatever the user had changed of its rules.
TEST(HousePresets, OneHouseFollowsAnotherWithoutATrace) {
  TestTable table;
  const std::string first = SettingsText(*table.game);
  Use(table, *FindHousePreset("FIRST"));
  EXPECT_EQ(SettingsText(*table.game), first) << "the first house is the table of a first start";
  for (const HousePreset& house : HousePresets()) {
    TestTable fresh;
    Use(fresh, house);
    const std::string rules = SettingsText(*fresh.game);
    EXPECT_EQ(rules == first, house.key == std::string("first")) << house.key;
    for (const HousePreset& before : HousePresets()) {
      Use(table, before);
      Use(table, house);
      EXPECT_EQ(SettingsText(*table.game), rules) << before.key << " before " << house.key;
    }
    EXPECT_EQ(FindHousePreset(house.name), &house);
    EXPECT_EQ(FindHousePreset(house.key), &house);
  }
  EXPECT_EQ(FindHousePreset("3-4-5x"), nullptr);
  table.Check("houses");
}

// What a house would change is just what it then changes; looking changes nothing.
TEST(HousePresets, ThePreviewIsWhatComes) {
  for (const HousePreset& house : HousePresets()) {
    TestTable table;
    table.Set("MaxBet", "700");
    table.Set("FieldPayoffs.21", "3 to 1");
    const std::string before = SettingsText(*table.game);
    const std::vector<SettingDifference> differences = PreviewSettings(*table.game, HouseRules(house));
    ASSERT_EQ(SettingsText(*table.game), before);
    ASSERT_FALSE(differences.empty());
    std::vector<SettingChange> back;
    for (const SettingDifference& difference : differences)
      back.push_back({difference.name, 0, difference.now});
    Use(table, house);
    for (const SettingDifference& difference : differences) {
      std::string value;
      std::string error;
      ASSERT_TRUE(GetSetting(*table.game, difference.name, 0, value, error));
      EXPECT_EQ(value, difference.then) << house.key << " " << difference.name;
    }
    EXPECT_TRUE(PreviewSettings(*table.game, HouseRules(house)).empty()) << house.key;
    // Nothing else was changed: undoing these brings all back.
    std::erase_if(back, [](const SettingChange& change) { return change.name == "FieldPreset"; });
    std::string error;
    ASSERT_TRUE(SetSettings(*table.game, back, error)) << error;
    EXPECT_EQ(SettingsText(*table.game), before) << house.key;
  }
}

}  // namespace
}  // namespace tessaryn
