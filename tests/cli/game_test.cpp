// A game goes from one process to the next through its file.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>

#include "support/cli_process.h"

namespace tessaryn {
namespace {

using Json = nlohmann::json;

std::vector<std::string> PlayLines(const test::TempFolder& folder, std::vector<std::string> options,
                                   const std::string& input) {
  std::vector<std::string> arguments{"play", "--data-folder", folder.Path()};
  arguments.insert(arguments.end(), options.begin(), options.end());
  const test::Ran ran = test::RunCli(folder, arguments, input);
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  return test::Lines(ran.out);
}

TEST(CliGame, ANewProcessGoesOnWhereTheFileWasSaved) {
  test::TempFolder folder;
  const std::string path = folder.File("game.crp");
  const std::string rest = "stats 1 2\nroll 3 3\nroll 5 4\nroll 2 5\nstate\nstats 1 4\nstats 0 2\nplot 1\n";
  const std::vector<std::string> played =
      PlayLines(folder, {"--player", "Ann=500", "--player", "Bob=300", "--rng", "3", "--seed", "7"},
                "bet 1 passline 10\nbet 2 place6 12\nstack 2 5 7.5\nroll 2 2\nbet 1 44 20\nroll\nsave " +
                    path + "\n" + rest + "roll\nroll\n");
  const std::vector<std::string> opened = PlayLines(folder, {"--game", path}, rest + "roll\nroll\n");
  ASSERT_GE(opened.size(), 10u);
  ASSERT_GE(played.size(), opened.size());
  EXPECT_TRUE(std::equal(opened.begin(), opened.end(), played.end() - static_cast<long>(opened.size())));

  const test::Ran shown = test::RunCli(folder, {"game", path, "--json"});
  ASSERT_EQ(shown.exitCode, 0) << shown.err;
  const Json game = Json::parse(shown.out);
  EXPECT_EQ(game["throws"], 2);
  EXPECT_EQ(game["table"]["seats"][1]["checkstacks"]["5"], 7.5);

  const std::string after = folder.File("after.crp");
  const test::Ran ran =
      test::RunCli(folder, {"run", "--data-folder", folder.Path(), "--game", path, "--rolls", "500", "--set",
                            "ShooterBetRule=0", "--json", "--save-game", after});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(Json::parse(ran.out)["rolls"], 500);
  EXPECT_EQ(Json::parse(test::RunCli(folder, {"game", after, "--json"}).out)["throws"], 502);
}

std::string RandomCommands(std::mt19937& random, int count) {
  const auto pick = [&random](int most) {
    return std::to_string(random() % static_cast<unsigned>(most) + 1);
  };
  std::string lines;
  for (int i = 0; i < count; ++i) {
    switch (random() % 12) {
      case 0:
        lines += "roll " + pick(6) + " " + pick(6) + "\n";
        break;
      case 1:
        lines += "turbo " + pick(300) + "\n";
        break;
      case 2:
        lines += "stack " + pick(8) + " " + pick(99) + " " + pick(500) + ".25\n";
        break;
      case 3:
        lines += random() % 4 == 0 ? "newsession keepprev keepstacks keeplogs\n" : "pass\n";
        break;
      case 4:
        lines += "set WinHandling@" + pick(8) + " " + pick(7) + "\n";
        break;
      case 5:
      case 6:
        lines += "roll\n";
        break;
      default:
        lines += "bet " + pick(8) + " " + pick(93) + " " + pick(60) + "\n";
    }
  }
  return lines;
}

std::string WithoutDates(const std::string& file) {
  static const std::regex date("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d");
  return std::regex_replace(file, date, "");
}

// The folder and the scripts are named from where the program stands; a file names them for any.
TEST(CliGame, ANewProcessGoesOnAtAnyPoint) {
  const char* asked = std::getenv("TESSARYN_GAME_FILES");
  const int games = asked != nullptr ? std::atoi(asked) : 4;
  for (int number = 0; number < games; ++number) {
    SCOPED_TRACE("game " + std::to_string(number));
    std::mt19937 random(static_cast<unsigned>(number));
    test::TempFolder folder;
    const auto near = [&](const char* name) { return std::filesystem::relative(folder.File(name)).string(); };
    test::WriteFile(folder.File("press.bet"),
                    "if comeout roll then bet 10 on passline endif\ncs1 = cs1 + 1\n");
    const std::vector<std::string> place = {"play", "--data-folder", near(".")};
    std::vector<std::string> start = place;
    for (const char* name : {"Ann", "Bob", "Cyd", "Dan", "Eve", "Fay", "Gus", "Zo\u00eb"})
      start.insert(start.end(), {"--player", std::string(name) + "=20000"});
    start.insert(start.end(),
                 {"--script", near("press.bet"), "--rng", "3", "--seed", std::to_string(number + 1), "--set",
                  "ShooterBetRule=0", "--set", "MessageMask=0"});
    const std::string rest = RandomCommands(random, 60) +
                             "state\nstats 0 4\nstats 3 2\nreport summary\nreport hands\n"
                             "report bet-results scope=4 seats=1,2,3\nplot 1\nsave " +
                             near("end.crp") + "\n";
    const std::string before =
        RandomCommands(random, static_cast<int>(random() % 80)) + "save " + near("mid.crp") + "\n";
    const test::Ran played = test::RunCli(folder, start, before + rest);
    const std::string end = WithoutDates(test::ReadFile(folder.File("end.crp")));
    std::vector<std::string> next = place;
    next.insert(next.end(), {"--game", near("mid.crp")});
    const test::Ran opened = test::RunCli(folder, next, rest);
    ASSERT_EQ(played.exitCode + opened.exitCode, 0) << played.err << opened.err;
    ASSERT_GT(opened.out.size(), 2'000u);
    const std::regex times("\"(rollsPerSecond|seconds)\":[-+.e0-9]+");
    const std::string told = std::regex_replace(opened.out, times, "");
    EXPECT_TRUE(std::regex_replace(played.out, times, "").ends_with(told));
    EXPECT_NE(end.find("press.bet"), end.npos);
    EXPECT_TRUE(WithoutDates(test::ReadFile(folder.File("end.crp"))) == end)
        << "the two ended in other files";
  }
}

TEST(CliGame, WhatIsNoGameIsNamed) {
  test::TempFolder folder;
  test::WriteFile(folder.File("text.crp"), "some text");
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"game", folder.File("text.crp")},
        {"run", "--game", folder.File("text.crp")},
        {"run", "--game", folder.File("none.crp")},
        {"run", "--rolls", "1", "--set", "ShooterBetRule=0", "--save-game", folder.File("no/where.crp")}}) {
    const test::Ran ran = test::RunCli(folder, arguments);
    EXPECT_EQ(ran.exitCode, 1) << arguments[0];
    EXPECT_NE(ran.err.find(".crp"), std::string::npos) << ran.err;
  }
  const std::vector<std::string> place = {"--data-folder", folder.Path()};
  test::RunCli(folder, {"play", place[0], place[1], "--save-game", folder.File("kept.crp")}, "");
  EXPECT_EQ(test::RunCli(folder, {"game", "kept.crp", place[0], place[1]}).exitCode, 0);
}

}  // namespace
}  // namespace tessaryn
