// The tools for loaded and recorded dice, and a house's rules in a file, as programs.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "support/cli_process.h"

namespace tessaryn::test {
namespace {

using Json = nlohmann::json;

TEST(CliProbabilities, OperationsAreCarriedOutInTheirOrder) {
  TempFolder folder;
  const std::string file = folder.File("loaded.prb");
  ASSERT_EQ(
      RunCli(folder, {"probabilities", file, "--new", "--total", "7=12000", "--set", "1.1=4%"}).exitCode, 0);
  const Ran shown = RunCli(folder, {"probabilities", file, "--json"});
  ASSERT_EQ(shown.exitCode, 0) << shown.err;
  const Json matrix = Json::parse(shown.out);
  EXPECT_EQ(matrix["totals"]["7"]["value"], 12000);
  EXPECT_EQ(matrix["combinations"]["1.1"]["value"], 4000);
  EXPECT_TRUE(matrix["totals"]["7"]["locked"]);
  // What is locked refuses, says so, and the file stays.
  const std::string before = ReadFile(file);
  const Ran refused = RunCli(folder, {"probabilities", file, "--set", "2.2=1000", "--total", "7=50000"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_NE(refused.err.find("--total 7=50000"), std::string::npos) << refused.err;
  EXPECT_EQ(ReadFile(file), before);
  EXPECT_EQ(RunCli(folder, {"probabilities", file, "--unlock", "--total", "7=50000"}).exitCode, 0);
  EXPECT_NE(ReadFile(file), before);
}

TEST(CliProbabilities, BadWordsAreNamed) {
  TempFolder folder;
  const std::string file = folder.File("x.prb");
  EXPECT_EQ(RunCli(folder, {"probabilities", file}).exitCode, 1);
  EXPECT_EQ(RunCli(folder, {"probabilities"}).exitCode, 2);
  for (const char* bad : {"1.7=5", "7=5", "1.1", "1.1=-3", "1.1=200%", "=4"}) {
    const Ran ran = RunCli(folder, {"probabilities", file, "--new", "--set", bad});
    EXPECT_EQ(ran.exitCode, 1) << bad;
    EXPECT_NE(ran.err.find("--set"), std::string::npos) << bad;
    EXPECT_EQ(ReadFile(file), "") << "nothing is written";
  }
  WriteFile(file, "no probabilities");
  const Ran ran = RunCli(folder, {"probabilities", file, "--show", "percent"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_NE(ran.err.find("not a true Tessaryn Probability File"), std::string::npos) << ran.err;
}

TEST(CliRolls, AFileIsCountedEditedAndExported) {
  TempFolder folder;
  const std::string file = folder.File("dice.rol");
  const auto rolls = [&](std::vector<std::string> arguments) {
    std::vector<std::string> all{"rolls", file, "--data-folder", folder.Path(), "--json"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return RunCli(folder, all);
  };
  Ran ran = rolls({"--insert", "1=3.4,6.6,1.2"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(Json::parse(ran.out)["rolls"], 3);
  ran = rolls({"--cut", "2-3", "--paste", "1"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(Json::parse(ran.out)["totals"]["12"], 1);
  ran = rolls({"--format", "Die1-Die2", "--export", folder.File("out.txt")});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ReadFile(folder.File("out.txt")), "6-6\n1-2\n3-4\n");
  WriteFile(folder.File("in.txt"), "5 and 2, then 4");
  ran = rolls({"--import-text", folder.File("in.txt"), "--delete", "1"});
  EXPECT_EQ(Json::parse(ran.out)["rolls"], 3);
  EXPECT_EQ(Json::parse(ran.out)["pairs"]["5.2"], 1);
  EXPECT_EQ(rolls({"--delete", "3-9"}).exitCode, 1);
  EXPECT_EQ(rolls({"--insert", "1=7.1"}).exitCode, 1);
  EXPECT_EQ(RunCli(folder, {"rolls", folder.File("none.rol")}).exitCode, 1);
  WriteFile(folder.File("bad.rol"), "%%%");
  const Ran bad = RunCli(folder, {"rolls", folder.File("bad.rol")});
  EXPECT_EQ(bad.exitCode, 1);
  EXPECT_NE(bad.err.find("not a true Tessaryn dice roll file"), std::string::npos) << bad.err;
}

TEST(CliRolls, AListWithAFaultInsertsNoneOfIt) {
  TempFolder folder;
  const std::string file = folder.File("dice.rol");
  const auto insert = [&](const std::string& list) {
    return RunCli(folder, {"rolls", file, "--data-folder", folder.Path(), "--insert", list});
  };
  ASSERT_EQ(insert("1=3.4,6.6").exitCode, 0);
  const std::string before = ReadFile(file);
  for (const char* bad : {"1=1.1,9.9", "2=", "1=1.1,", "1=1.1,2", "1=1.1;2.2", "9=1.1", "1.1", "0=1.1"}) {
    const Ran ran = insert(bad);
    EXPECT_EQ(ran.exitCode, 1) << bad;
    EXPECT_NE(ran.err.find("--insert"), std::string::npos) << ran.err;
    EXPECT_EQ(ReadFile(file), before) << bad;
  }
}

TEST(CliAdvantage, TheTableIsThereAndBadBetsAreNamed) {
  TempFolder folder;
  const Ran ran =
      RunCli(folder, {"advantage", "--data-folder", folder.Path(), "--json", "--bet", "passline=10"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  const Json table = Json::parse(ran.out);
  bool found = false;
  for (const Json& row : table["rows"])
    if (row["bet"] == 43) {
      found = true;
      EXPECT_DOUBLE_EQ(row["evPerDecision"].get<double>(), -0.014141);
    }
  EXPECT_TRUE(found);
  EXPECT_NEAR(table["session"]["evPerHour"].get<double>(), -0.004189 * 10 * 120, 1e-6);
  const Ran set = RunCli(folder, {"advantage", "--data-folder", folder.Path(), "--json", "--bet",
                                  "passline=10", "--bet", "fire=5"});
  const Json session = Json::parse(set.out)["session"];
  EXPECT_TRUE(session["stdevPerHour"].is_null());
  EXPECT_NE(session["note"].get<std::string>().find("left out"), std::string::npos);
  for (const char* bad : {"94=5", "passline", "passline=x", "passline=0"}) {
    const Ran refused = RunCli(folder, {"advantage", "--data-folder", folder.Path(), "--bet", bad});
    EXPECT_EQ(refused.exitCode, 1) << bad;
    EXPECT_NE(refused.err.find(bad), std::string::npos) << refused.err;
  }
}

TEST(CliSettings, AHousesRulesSurviveTheirFileAndDamageIsNamed) {
  TempFolder folder;
  const std::string file = folder.File("house.txt");
  const auto play = [&](std::vector<std::string> options, const std::string& input) {
    std::vector<std::string> all{"play", "--data-folder", folder.Path()};
    all.insert(all.end(), options.begin(), options.end());
    return RunCli(folder, all, input);
  };
  ASSERT_EQ(play({"--set", "BarNumber=2", "--set", "MaxBet=2500", "--set", "PayoffTable.55=8 to 1",
                  "--save-settings", file},
                 "quit\n")
                .exitCode,
            0);
  const Ran ran = play({"--settings", file}, "get BarNumber\nget MaxBet\nget PayoffTable.55\nquit\n");
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_NE(ran.out.find("\"value\":2}"), std::string::npos) << ran.out;
  EXPECT_NE(ran.out.find("\"value\":2500"), std::string::npos);
  EXPECT_NE(ran.out.find("8 to 1"), std::string::npos);
  WriteFile(file, "# a house\nMaxBet = 500\nNoSuchRule = 3\n");
  const Ran unknown = play({"--settings", file}, "quit\n");
  EXPECT_EQ(unknown.exitCode, 1);
  EXPECT_NE(unknown.err.find("line 3"), std::string::npos) << unknown.err;
  EXPECT_NE(unknown.err.find("NoSuchRule"), std::string::npos) << unknown.err;
  std::mt19937 random(7);
  for (int i = 0; i < 20; ++i) {
    std::string rubbish;
    for (int n = 0; n < 200; ++n) rubbish += static_cast<char>(random() % 256);
    WriteFile(file, rubbish);
    EXPECT_EQ(play({"--settings", file}, "quit\n").exitCode, 1);
  }
}

TEST(CliPlay, SessionsStacksDiceFilesAndPlots) {
  TempFolder folder;
  const std::string prb = folder.File("p.prb");
  ASSERT_EQ(RunCli(folder, {"probabilities", prb, "--new", "--total", "7=0"}).exitCode, 0);
  const Ran ran =
      RunCli(folder, {"play", "--data-folder", folder.Path()},
             "join 1 Ann 500\nset ShooterBetRule 0\nstack 1 5 12.5\nrollfile " + folder.File("r.rol") +
                 " record\nroll 3 4\nroll 1 1\nplot 1\nrollfile off\nprobabilities " + prb +
                 "\nturbo 2000\nstats 0 2\nprobabilities off\nnewsession keepstacks\nstate\nplot 1\n"
                 "newsession nonsense\nstack 1 100 3\nrollfile /nowhere/x play\n");
  std::vector<std::string> lines = Lines(ran.out);
  ASSERT_EQ(lines.size(), 18u) << ran.out;
  const auto answer = [&lines](std::size_t i) { return Json::parse(lines[i]); };
  EXPECT_EQ(answer(6)["points"].size(), 2u);
  EXPECT_EQ(answer(6)["points"][1]["roll"], 2);
  EXPECT_EQ(answer(10)["rolls"]["7"], 1) << "only the seven from before the dice were loaded";
  EXPECT_EQ(answer(13)["seats"][0]["checkstacks"]["5"], 12.5);
  EXPECT_EQ(answer(13)["rolls"], 0);
  EXPECT_EQ(answer(14)["points"].size(), 0u);
  for (std::size_t i = 15; i < 18; ++i) EXPECT_FALSE(answer(i)["ok"]) << lines[i];
  EXPECT_EQ(ReadFile(folder.File("r.rol")).size(), 2u);
}

TEST(CliPlay, ANewSessionClosesScriptsOnlyWhenTold) {
  for (const bool closes : {false, true}) {
    TempFolder folder;
    const std::string script = folder.File("line.atb");
    WriteFile(script, "bet 5 on passline\r\n");
    const Ran ran =
        RunCli(folder, {"play", "--data-folder", folder.Path()},
               "join 1 Ann 500\nset ShooterBetRule 0\nscript 1 " + script + "\nactivate 1\nnewsession" +
                   (closes ? " closescripts" : "") + "\nroll 3 3\nroll 4 4\nstate\n");
    const std::vector<std::string> lines = Lines(ran.out);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(Json::parse(lines.back())["seats"][0]["bets"].empty(), closes) << ran.out;
  }
}

}  // namespace
}  // namespace tessaryn::test
