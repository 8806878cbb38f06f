// Hot-keys and their file.
#include "play/hot_keys.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

#include "autobet/run_helpers.h"

namespace tessaryn {
namespace {

using script_test::Folder;
using script_test::ScriptTable;

void WriteText(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string BytesOf(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

const std::vector<HotKey> kKeys = {{'f', "/scripts/field.bet", "the field"},
                                   {'7', "place.bet", ""},
                                   {'\x1b', std::string(100, 'p'), "long"}};

TEST(HotKeyFile, ComesBackAsItWasWritten) {
  Folder folder;
  std::string error;
  for (std::size_t count = 0; count <= kKeys.size(); ++count) {
    const std::vector<HotKey> keys(kKeys.begin(), kKeys.begin() + static_cast<std::ptrdiff_t>(count));
    ASSERT_TRUE(WriteHotKeys(folder.path + kHotKeysFile, keys, error)) << error;
    std::vector<HotKey> read = kKeys;
    ASSERT_TRUE(ReadHotKeys(folder.path + kHotKeysFile, read, error)) << error;
    EXPECT_EQ(read, keys);
  }
}

TEST(HotKeyFile, HasItsFieldsAtTheirPlaces) {
  Folder folder;
  std::string error;
  ASSERT_TRUE(WriteHotKeys(folder.path + kHotKeysFile, {kKeys[0]}, error)) << error;
  const std::string bytes = BytesOf(folder.path + kHotKeysFile);
  ASSERT_EQ(bytes.size(), 512u);
  EXPECT_EQ(bytes.substr(1, 21), "Tessaryn Hot-Key File");
  EXPECT_EQ(bytes.substr(101, 2), "1 ");
  EXPECT_EQ(bytes[256], 'f');
  EXPECT_EQ(bytes.substr(257, 19), "/scripts/field.bet ");
  EXPECT_EQ(bytes.substr(357, 10), "the field ");
}

TEST(HotKeyFile, WithoutAFileThereAreNoKeys) {
  Folder folder;
  std::string error;
  std::vector<HotKey> keys = kKeys;
  EXPECT_TRUE(ReadHotKeys(folder.path + kHotKeysFile, keys, error));
  EXPECT_TRUE(keys.empty());
}

// Whatever the damage: an error that names the file and the keys as they were, or keys that can be written.
TEST(HotKeyFile, DamageLosesNothing) {
  Folder folder;
  const std::string path = folder.path + kHotKeysFile;
  std::string error;
  ASSERT_TRUE(WriteHotKeys(path, kKeys, error)) << error;
  const std::string whole = BytesOf(path);
  std::mt19937 random(20);
  const auto tryBytes = [&](const std::string& bytes, bool cut) {
    WriteText(path, bytes);
    std::vector<HotKey> keys = kKeys;
    error.clear();
    const bool read = ReadHotKeys(path, keys, error);
    EXPECT_FALSE(read && cut) << bytes.size();
    if (read) {
      EXPECT_TRUE(WriteHotKeys(path, keys, error)) << error;
    } else {
      EXPECT_EQ(keys, kKeys);
      EXPECT_NE(error.find(kHotKeysFile), std::string::npos) << error;
    }
  };
  for (std::size_t length = 0; length < whole.size(); ++length)
    if (length % 64 == 0 || length % 256 < 2) tryBytes(whole.substr(0, length), true);
  for (int i = 0; i < 80; ++i) {
    std::string damaged = whole;
    for (int hits = 0; hits < 5; ++hits) damaged[random() % damaged.size()] = static_cast<char>(random());
    tryBytes(damaged, false);
  }
}

TEST(HotKeyFile, APathTooLongIsRefusedAndTheFileKept) {
  Folder folder;
  const std::string path = folder.path + kHotKeysFile;
  std::string error;
  ASSERT_TRUE(WriteHotKeys(path, kKeys, error));
  const std::string before = BytesOf(path);
  EXPECT_FALSE(WriteHotKeys(path, {{'x', std::string(101, 'p'), ""}}, error));
  EXPECT_NE(error.find("X"), std::string::npos) << error;
  EXPECT_EQ(BytesOf(path), before);
}

TEST(HotKey, AddingNeedsAFileAndAKeyHasOneMeaning) {
  std::vector<HotKey> keys;
  std::string error;
  EXPECT_FALSE(AddHotKey(keys, {'a', "", "no file"}, error));
  EXPECT_EQ(error, "Please enter an Auto-Bet filename to define this Hot-Key.");
  EXPECT_TRUE(AddHotKey(keys, {'a', "one.bet", ""}, error));
  EXPECT_TRUE(AddHotKey(keys, {'b', "two.bet", ""}, error));
  EXPECT_TRUE(AddHotKey(keys, {'A', "three.bet", ""}, error));
  ASSERT_EQ(keys.size(), 2u);
  EXPECT_EQ(keys[0].path, "three.bet");
}

TEST(HotKey, RunsForTheSelectedSeatAndHasTheScriptsCompiledAgain) {
  ScriptTable table;
  Game& game = *table.game;
  const std::string path = table.folder.path + "key.bet";
  WriteText(path, "bet 7 on field\nif initializing script then add 1 to cs5 endif\ncs6 = autobettor");
  ASSERT_EQ(table.Load(1, "add 1 to cs0"), "");
  CompileActiveScripts(game);
  game.table.SelectedSeat = 2;
  const std::vector<HotKey> keys = {{'f', path, ""}};
  EXPECT_FALSE(PressHotKey(game, keys, 'g')) << "no hot-key";
  EXPECT_TRUE(PressHotKey(game, keys, 'F'));
  EXPECT_EQ(table.Bet(kField, 2), 7);
  EXPECT_EQ(table.Bet(105, 2), 1);
  EXPECT_EQ(table.Bet(106, 2), 2);
  EXPECT_EQ(table.Bet(100, 1), 0) << "only the hot-key's script runs";
  EXPECT_FALSE(game.autobet.ScriptsCompiled);
  EXPECT_FALSE(game.autobet.ScriptInitializing);
  table.Dice(2, 3);
  EXPECT_EQ(table.Bet(100, 1), 1) << "the players' scripts run again with the next roll";
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(HotKey, AMissingFileAndABadScriptAreToldAndNothingRuns) {
  ScriptTable table;
  Game& game = *table.game;
  EXPECT_FALSE(PressHotKey(game, {{'f', table.folder.path + "none.bet", ""}}, 'f'));
  ASSERT_EQ(table.host.boxes.size(), 1u);
  EXPECT_TRUE(table.host.Said(Msg::kHotKeyFileMissing));
  WriteText(table.folder.path + "bad.bet", "bet 5 on field\nif then");
  game.autobet.ScriptsCompiled = true;
  EXPECT_FALSE(PressHotKey(game, {{'f', table.folder.path + "bad.bet", ""}}, 'f'));
  ASSERT_EQ(table.host.boxes.size(), 2u);
  EXPECT_TRUE(table.host.Said(Msg::kHotKeyBad));
  EXPECT_FALSE(game.autobet.ScriptsCompiled) << "whatever the outcome";
  EXPECT_EQ(table.Bet(kField, 1), 0);
  game.autobet.ScriptRunning = true;
  EXPECT_FALSE(PressHotKey(game, {{'f', table.folder.path + "bad.bet", ""}}, 'f'));
  EXPECT_EQ(table.host.boxes.size(), 2u) << "nothing is looked at during a run";
  game.autobet.ScriptRunning = false;
}

}  // namespace
}  // namespace tessaryn
