#include "play/settings_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::TestTable;

// Everything that a settings file can tell of a table.
std::string Rules(const TestTable& table) { return SettingsText(*table.game); }

TEST(SettingsFileTest, ATableComesBackFromItsFile) {
  TestTable saved;
  const std::pair<const char*, const char*> house[] = {{"MaxBet", "2500"},
                                                       {"BarNumber", "2"},
                                                       {"BuyVigRate", "4.5%"},
                                                       {"LayVigUpFront", "off"},
                                                       {"PayoffTable.58", "5 for 1"},
                                                       {"FieldPreset", "mnuSFWorld"},
                                                       {"FieldPayoffs.3", "-3 to 7"},
                                                       {"CompBetFlags.12", "off"},
                                                       {"BetDefaultWorking.31", "on"},
                                                       {"FirePayoffs.0", "0 to 1"},
                                                       {"CompRate", "12.3456"},
                                                       {"UseMidway", "off"}};
  for (const auto& [name, value] : house) saved.Set(name, value);
  saved.Set("MinBetMain", "5");
  const std::string path = saved.folder.File("house.txt");
  ASSERT_EQ(SaveSettingsFile(*saved.game, path), "");
  TestTable other;
  other.Join(1, "Ann");
  ASSERT_NE(Rules(other), Rules(saved));
  ASSERT_EQ(ApplySettingsFile(*other.game, path), "");
  EXPECT_EQ(Rules(other), Rules(saved));
  other.Check("settings file");
}

TEST(SettingsFileTest, ChecksWithOtherValuesAreReadTogether) {
  // No single line of these would hold by itself.
  TestTable table;
  const std::string path = table.folder.File("checks.txt");
  test::WriteFile(
      path,
      "\xef\xbb\xbf# big money\r\nCheckValue.1 = 100\r\nCheckValue.2=500\n  CheckValue.3 = 1,000\n"
      "CheckValue.4 = 5000 # yellow\nCheckValue.5 = 25000\n\nMinBetMain = 100\nMinBetProp = 100");
  EXPECT_EQ(ApplySettingsFile(*table.game, path), "");
  EXPECT_EQ(table.game->settings.Unit(), Currency::Dollars(100));
}

TEST(SettingsFileTest, SeatsAreNamedBehindTheSign) {
  TestTable table;
  table.Join(2, "Ann");
  table.Join(4, "Bob");
  const std::string path = table.folder.File("players.txt");
  test::WriteFile(path, "WinHandling = 3\nWinHandling @ 4 = 5\n");
  ASSERT_EQ(ApplySettingsFile(*table.game, path), "");
  EXPECT_EQ(table.State().seats[2].handling.WinHandling, 3);
  EXPECT_EQ(table.State().seats[4].handling.WinHandling, 5);
}

TEST(SettingsFileTest, AFaultIsToldWithItsLineAndChangesNothing) {
  TestTable table;
  table.Join(2, "Ann");
  const std::string before = Rules(table);
  const std::string path = table.folder.File("bad.txt");
  struct Case {
    const char* content;
    const char* told;
  };
  const Case cases[] = {
      {"MaxBet = 2000\nNonsense = 1\n", "line 2: There is no setting named \"Nonsense\"."},
      {"# one\n\nMaxBet = lots", "line 3: MaxBet: \"lots\" is no number."},
      {"MaxBet", "line 1: expected NAME = VALUE, found \"MaxBet\""},
      {"= 5", "line 1: expected NAME = VALUE, found no name"},
      {"WinHandling@x = 1", "line 1: expected a seat after @, found \"x\""},
      {"WinHandling@7 = 1", "line 1: There is no player at seat 7."},
      // Values that are good by themselves and don't go together: the line from which on nothing holds.
      {"MaxBet = 900\nMinBetMain = 1000\nUseFire = off\n", "line 2: The maximum bet must be greater"},
      {"CheckValue.1 = 5\nCheckValue.2 = 3\n", "line 1: Checks must be listed in ascending order"},
      {"BarNumber = 3", "line 1: BarNumber must be 12 or 2."},
  };
  for (const Case& c : cases) {
    test::WriteFile(path, c.content);
    const std::string error = ApplySettingsFile(*table.game, path);
    EXPECT_EQ(error.find(path + ", " + c.told), 0u) << c.content << "\n" << error;
    EXPECT_EQ(Rules(table), before) << c.content;
  }
  EXPECT_NE(ApplySettingsFile(*table.game, table.folder.File("missing.txt")).find("missing.txt"),
            std::string::npos);
  EXPECT_NE(ApplySettingsFile(*table.game, table.folder.Path()), "");
  test::WriteFile(path, std::string(kSettingsFileMaximum + 1, '#'));
  EXPECT_NE(ApplySettingsFile(*table.game, path).find(path), std::string::npos);
}

TEST(SettingsFileTest, CutAndDamagedFilesApplyWhollyOrNotAtAll) {
  TestTable table;
  table.Set("MaxBet", "2500");
  const std::string content = Rules(table);
  const std::string path = table.folder.File("cut.txt");
  std::mt19937 random(20261123);
  // Cut at every place of a part of the file that holds every form of line, then anywhere.
  constexpr int kCuts = 600;
  for (int trial = 0; trial < kCuts + 200; ++trial) {
    std::string damaged = content;
    if (trial < kCuts) {
      damaged.resize(content.size() - static_cast<std::size_t>(trial) - 1);
    } else if (trial % 2 == 0) {
      damaged.resize(random() % content.size());
    } else {
      for (int hits = 0; hits < 3; ++hits) damaged[random() % damaged.size()] = static_cast<char>(random());
    }
    test::WriteFile(path, damaged);
    TestTable other;
    const std::string before = Rules(other);
    const std::string error = ApplySettingsFile(*other.game, path);
    if (!error.empty()) {
      ASSERT_EQ(error.find(path + ", line "), 0u) << error;
      ASSERT_EQ(Rules(other), before);
    }
    other.Check("damaged settings");
  }
}

// No file of this process may grow beyond a length: as good as a full disk.
struct SmallDisk {
  rlimit Old{};
  void (*OldHandler)(int);
  explicit SmallDisk(rlim_t bytes) : OldHandler(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &Old);
    const rlimit limit{bytes, Old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &Old);
    signal(SIGXFSZ, OldHandler);
  }
};

// The superuser is refused nothing; as somebody else the folder's permissions count.
struct AsNobody {
  bool Changed = geteuid() == 0 && seteuid(65534) == 0;
  ~AsNobody() {
    if (Changed) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }
};

TEST(SettingsFileTest, AFullDiskOrAReadOnlyFolderKeepsTheOldRules) {
  TestTable table;
  const test::TempFolder rules;
  const std::string path = rules.File("house.txt");
  ASSERT_EQ(SaveSettingsFile(*table.game, path), "");
  const std::string before = test::ReadFile(path);
  table.Set("MaxBet", "2500");
  std::string error;
  {
    SmallDisk disk(before.size() / 2);
    error = SaveSettingsFile(*table.game, path);
  }
  EXPECT_NE(error.find(path), std::string::npos) << error;
  EXPECT_EQ(test::ReadFile(path), before);
  std::filesystem::permissions(rules.Path(), std::filesystem::perms(0555));
  {
    AsNobody nobody;
    error = SaveSettingsFile(*table.game, path);
  }
  std::filesystem::permissions(rules.Path(), std::filesystem::perms(0755));
  EXPECT_NE(error.find(path), std::string::npos) << error;
  EXPECT_EQ(test::ReadFile(path), before);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(rules.Path()), {}), 1)
      << "nothing half written";
}

}  // namespace
}  // namespace tessaryn
