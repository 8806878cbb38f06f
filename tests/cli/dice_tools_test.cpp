// The tools for loaded and recorded dice, and a house's rules in a file, as programs.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
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

TEST(CliProbabilities, WhatIsNoProbabilityFileIsReplacedOnlyByForce) {
  TempFolder folder;
  const std::string notes = folder.File("notes.txt");
  WriteFile(notes, "my notes");
  for (const std::vector<std::string>& options :
       {std::vector<std::string>{notes, "--new"}, {folder.File("good.prb"), "--out", notes}}) {
    ASSERT_EQ(RunCli(folder, {"probabilities", folder.File("good.prb"), "--new"}).exitCode, 0);
    std::vector<std::string> all{"probabilities"};
    all.insert(all.end(), options.begin(), options.end());
    const Ran ran = RunCli(folder, all);
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_NE(ran.err.find("--force"), std::string::npos) << ran.err;
    EXPECT_EQ(ReadFile(notes), "my notes");
  }
  EXPECT_EQ(RunCli(folder, {"probabilities", notes, "--new", "--force"}).exitCode, 0);
  EXPECT_EQ(RunCli(folder, {"probabilities", notes, "--new"}).exitCode, 0) << "it is one now";
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

TEST(CliRolls, AChainIsDoneWholeOrNotAtAll) {
  TempFolder folder;
  const std::string file = folder.File("dice.rol");
  const std::string out = folder.File("out.txt");
  const std::string copy = folder.File("copy.rol");
  const auto rolls = [&](const std::string& name, std::vector<std::string> arguments) {
    std::vector<std::string> all{"rolls", name, "--data-folder", folder.Path(), "--format", "Roll# Die1"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return RunCli(folder, all);
  };
  ASSERT_EQ(rolls(file, {"--insert", "1=1.1,2.2,3.3,4.4"}).exitCode, 0);
  WriteFile(out, "old");
  const std::string before = ReadFile(file);
  const std::vector<std::string> bad[] = {
      {"--delete", "1", "--export", out, "--export-rolls", copy, "--delete", "9"},
      {"--insert", "1=5.5", "--export", folder.Path()},
      {"--export", out, "--select", "3-9"},
      {"--select", "2-4", "--delete", "1", "--export", out},  // three are left
      {"--paste", "1"},
      {"--import", file},
      {"--export-rolls", file}};
  for (const auto& chain : bad) {
    const Ran ran = rolls(file, chain);
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_NE(ran.err.find("--"), std::string::npos) << ran.err;
    EXPECT_EQ(ReadFile(file), before) << ran.err;
    EXPECT_EQ(ReadFile(out), "old") << ran.err;
    EXPECT_FALSE(std::filesystem::exists(copy)) << ran.err;
  }
  Ran ran = rolls(file, {"--select", "2-3", "--export", out, "--export-rolls", copy, "--import", copy});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ReadFile(out), "2 2\n3 3\n");
  EXPECT_EQ(ReadFile(copy), before.substr(1, 2));
  EXPECT_EQ(ReadFile(file), before + before.substr(1, 2));
  ASSERT_EQ(rolls(file, {"--select", "2-3", "--renumber", "--export", out}).exitCode, 0);
  EXPECT_EQ(ReadFile(out), "1 2\n2 3\n");
  // Only what writes makes a file, and only when all went well.
  const std::string none = folder.File("none.rol");
  EXPECT_EQ(rolls(none, {"--export", out}).exitCode, 1);
  EXPECT_EQ(rolls(none, {"--import", file, "--delete", "7"}).exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(none));
  EXPECT_EQ(rolls(none, {"--import", file}).exitCode, 0);
  EXPECT_EQ(ReadFile(none), ReadFile(file));
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
    EXPECT_EQ(entry.path().string().find("~"), std::string::npos) << entry.path();
}

TEST(CliFiles, WhatCantBeReadIsToldAtOnceAndNothingAborts) {
  TempFolder folder;
  const std::string hole = folder.File("hole");
  const std::string pipe = folder.File("pipe");
  const std::string script = folder.File("long.bet");
  WriteFile(hole, "");
  std::filesystem::resize_file(hole, 3'000'000'000u);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  WriteFile(script, std::string(30'000'000, 'y'));
  const std::vector<std::string> files = {hole,
                                          pipe,
                                          script,
                                          folder.Path(),
                                          "/dev/zero",
                                          folder.File(std::string(300, 'n')),
                                          folder.File("hole/x"),
                                          folder.File("none")};
  const std::vector<std::vector<std::string>> commands = {
      {"check", "FILE"},
      {"convert", "FILE", folder.File("new.bet")},
      {"probabilities", "FILE"},
      {"rolls", "FILE"},
      {"rolls", folder.File("new.rol"), "--import-text", "FILE"},
      {"rolls", folder.File("new.rol"), "--import", "FILE"},
      {"run", "--rolls", "0", "--settings", "FILE"},
      {"run", "--rolls", "0", "--probabilities", "FILE"},
      {"run", "--rolls", "0", "--roll-file", "FILE"},
      {"run", "--rolls", "0", "--player", "Ann=100", "--script", "FILE"}};
  for (const auto& command : commands)
    for (const std::string& file : files) {
      std::vector<std::string> words = command;
      std::replace(words.begin(), words.end(), std::string("FILE"), file);
      if (command[0] == "rolls" || command[0] == "run")
        words.insert(words.end(), {"--data-folder", folder.Path() + "data"});
      if (words.size() > 2 && words[2] == "--import-text" && file == script)
        continue;  // a text, if one without dice
      const auto start = std::chrono::steady_clock::now();
      const Ran ran = RunCli(folder, words);
      EXPECT_EQ(ran.exitCode, 1) << command[0] << " " << file << " " << ran.err;
      EXPECT_NE(ran.err.find(file), std::string::npos) << command[0] << " " << ran.err;
      EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << command[0] << file;
    }
  EXPECT_FALSE(std::filesystem::exists(folder.File("new.rol")));
  EXPECT_FALSE(std::filesystem::exists(folder.File("new.bet")));
  for (const char* name : {"a\xff.prb", "a\nb"}) {
    const Ran ran = RunCli(folder, {"probabilities", folder.File(name), "--new"});
    EXPECT_EQ(ran.exitCode, 2) << ran.err;
    EXPECT_FALSE(std::filesystem::exists(folder.File(name)));
  }
  const Ran joined =
      RunCli(folder, {"play", "--data-folder", folder.Path() + "data"}, "join 1 \xff\xfe 500\nstate\n");
  EXPECT_EQ(joined.exitCode, 0);
  EXPECT_NE(joined.out.find("can't be a player's name: the name is not UTF-8"), std::string::npos)
      << joined.out;
  EXPECT_NE(joined.out.find("\"seats\":[]"), std::string::npos) << joined.out;
}

TEST(CliPlay, TheRecorderTellsItsStateFileAndPlace) {
  TempFolder folder;
  const std::string file = folder.File("r.rol");
  const Ran ran = RunCli(folder, {"play", "--data-folder", folder.Path()},
                         "set ShooterBetRule 0\nstate\nrollfile " + file +
                             " record\nroll 3 4\nstate\nget RecorderState\nget RollFileName\n"
                             "get RollFileCursor\nset FieldPreset Nonsense\n");
  const std::vector<std::string> lines = Lines(ran.out);
  ASSERT_EQ(lines.size(), 9u) << ran.out;
  EXPECT_EQ(Json::parse(lines[1])["recorder"]["state"], "off");
  EXPECT_EQ(Json::parse(lines[4])["recorder"],
            (Json{{"state", "record"}, {"file", file}, {"next", 2}, {"rolls", 1}}));
  EXPECT_EQ(Json::parse(lines[5])["value"], 1);
  EXPECT_EQ(Json::parse(lines[6])["value"], file);
  EXPECT_EQ(Json::parse(lines[7])["value"], 2);
  const std::string help = RunCli(folder, {"run", "--help"}).out;
  for (const char* preset : {"Crapless", "PlaceLose8", "Midway"}) {
    EXPECT_NE(lines[8].find(preset), std::string::npos) << lines[8];
    EXPECT_NE(help.find(preset), std::string::npos) << help;
  }
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
  const Ran ready = play({"--house", "345x-10", "--set", "MaxBet=600"},
                         "get MinBetMain\nget MaxBet\nhouse 2x-5\nget OddsAllowed410\nhouse\nquit\n");
  EXPECT_NE(ready.out.find("\"value\":10}"), std::string::npos) << ready.out;
  EXPECT_NE(ready.out.find("\"value\":600}"), std::string::npos) << ready.out;
  EXPECT_NE(ready.out.find("\"value\":2}"), std::string::npos) << ready.out;
  EXPECT_NE(ready.out.find("3-4-5x odds, $25 table"), std::string::npos) << ready.out;
  const Ran nowhere = play({"--house", "nowhere"}, "quit\n");
  EXPECT_EQ(nowhere.exitCode, 1);
  EXPECT_NE(nowhere.err.find("345x-10"), std::string::npos) << nowhere.err;
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
