// A game goes from one process to the next through its file.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

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
}

}  // namespace
}  // namespace tessaryn
