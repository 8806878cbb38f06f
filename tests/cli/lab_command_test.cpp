// The laboratory's command as a process: what it prints and refuses, and that killing it loses nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "support/cli_process.h"

namespace tessaryn::test {
namespace {

using Json = nlohmann::json;

struct Ground {
  TempFolder folder;
  Ran Run(std::vector<std::string> words) {
    words.insert(words.begin(), "lab");
    return RunCli(folder, words);
  }
  Json Says(std::vector<std::string> words) {
    words.push_back("--json");
    const Ran ran = Run(words);
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    return Json::parse(ran.out, nullptr, false);
  }
};

void ExpectMoneyDistribution(const Json& figure) {
  EXPECT_EQ(figure["quantiles"].size(), 9u);
  for (const char* key : {"0.01", "0.05", "0.1", "0.25", "0.5", "0.75", "0.9", "0.95", "0.99"})
    EXPECT_TRUE(figure["quantiles"][key].is_number()) << key;
  EXPECT_TRUE(figure["mean"].is_number());
}

TEST(LabCommand, PrintsEverySystemByTheContract) {
  Ground ground;
  WriteFile(ground.folder.File("line.bet"), "if passline = 0 then bet cs1 on passline endif\n");
  const Json lab = ground.Says({"--script", ground.folder.File("line.bet"), "--bets", "dontpass=10",
                                "--stack", "1=5..10:5", "--sessions", "200", "--rolls", "30", "--bankroll",
                                "100", "--win-goal", "40", "--loss-limit", "40", "--seed", "5"});
  EXPECT_EQ(lab["sessions"], 200);
  EXPECT_EQ(lab["seed"], 5);
  ASSERT_EQ(lab["systems"].size(), 4u);
  EXPECT_EQ(lab["systems"][1]["name"], "line.bet");
  EXPECT_EQ(lab["systems"][1]["parameters"], Json({{"CheckStack 1", 10}}));
  EXPECT_EQ(lab["systems"][2]["name"], "dontpass=10");
  for (const Json& system : lab["systems"]) {
    ExpectMoneyDistribution(system["net"]);
    ExpectMoneyDistribution(system["maxDrawdown"]);
    ExpectMoneyDistribution(system["sessionRolls"]);
    double all = 0;
    for (const char* share : {"won", "brokeEven", "lost"}) all += system[share]["p"].get<double>();
    EXPECT_NEAR(all, 1, 1e-9);
    for (const char* share : {"ruined", "goal", "limit", "stopped"})
      EXPECT_LE(system[share]["ci95"][0], system[share]["p"]) << share;
    std::int64_t counted = 0;
    for (const Json& bin : system["histogram"]) counted += bin["count"].get<std::int64_t>();
    EXPECT_EQ(counted, 200);
    EXPECT_NEAR(system["advantagePercent"].get<double>(),
                100 * system["net"]["mean"].get<double>() / system["handle"].get<double>(), 1e-9);
    EXPECT_LT(system["adjusted"]["ci95"][1].get<double>() - system["adjusted"]["ci95"][0].get<double>(),
              system["net"]["ci95"][1].get<double>() - system["net"]["ci95"][0].get<double>());
  }
  ASSERT_EQ(lab["comparisons"].size(), 6u);
  EXPECT_NEAR(lab["comparisons"][0]["mean"].get<double>(),
              lab["systems"][0]["net"]["mean"].get<double>() - lab["systems"][1]["net"]["mean"].get<double>(),
              1e-9);
}

TEST(LabCommand, StandingBetsPlayAsTheirScript) {
  Ground ground;
  WriteFile(ground.folder.File("f.bet"), "if field = 0 then bet 5 on field endif\n");
  const Json lab = ground.Says({"--bets", "49=5", "--script", ground.folder.File("f.bet"), "--sessions",
                                "100", "--rolls", "40", "--bankroll", "33", "--set", "ShooterBetRule=0"});
  EXPECT_EQ(lab["systems"][0]["net"], lab["systems"][1]["net"]);
  EXPECT_GT(lab["systems"][0]["ruined"]["p"], 0);
  EXPECT_EQ(lab["comparisons"][0]["ci95"], Json({0.0, 0.0}));
}

TEST(LabCommand, RefusesWhatItCantPlay) {
  Ground ground;
  WriteFile(ground.folder.File("bad.bet"), "bet on on\n");
  WriteFile(ground.folder.File("endless.bet"), "do\ncs1 = cs1 + 1\nloop\n");
  WriteFile(ground.folder.File("junk.lab"), "junk");
  const struct {
    std::vector<std::string> words;
    int exitCode;
    const char* told;
  } cases[] = {{{}, 2, "nothing to play"},
               {{"--bets", "foo=1"}, 2, "\"foo\" is no bet"},
               {{"--bets", "43=0"}, 2, "no amount above 0"},
               {{"--bets", "43=1,passline=2"}, 2, "comes twice"},
               {{"--bets", "43=5", "--stack", "100=2"}, 2, "CheckStack N from 0 to 99"},
               {{"--bets", "43=5", "--stack", "1=5..1"}, 2, "no range"},
               {{"--bets", "43=5,84=5", "--set", "SmallTallEnabled=off"}, 1, "--bets 43=5,84=5: Table not"},
               {{"--bets", "43=5", "--rank", "luck"}, 2, "--rank"},
               {{"--bets", "43=5", "--find", "stack:x", "--ruin", ".1"}, 2, "--find stack:x"},
               {{"--bets", "43=5", "--find", "bankroll", "--ruin", "2"}, 2, "--ruin 2"},
               {{"--bets", "43=5", "--find", "bankroll", "--ruin", ".1", "--csv", "x"}, 2, "--csv"},
               {{"--bets", "43=5", "--hours", "0"}, 2, "--hours 0"},
               {{"--bets", "43=5", "--shard", "3/2"}, 2, "--shard 3/2"},
               {{"--bets", "43=5", "--shard", "1/2", "--precision", "1"}, 2, "can't be used together"},
               {{"--bets", "43=5", "--bankroll", "x"}, 2, "--bankroll x"},
               {{"--bets", "43=5", "--end", "soon"}, 2, "--end"},
               {{"--bets", "43=5", "--rng", "4"}, 1, "RNG #4"},
               {{"--bets", "43=5", "--set", "Nope=1"}, 1, "Nope"},
               {{"--bets", "43=5", "--vary", "MaxBet=1,x"}, 1, "MaxBet"},
               {{"--script", ground.folder.File("none.bet")}, 1, "none.bet"},
               {{"--script", ground.folder.File("bad.bet")}, 1, "bad.bet:1"},
               {{"--script", ground.folder.File("endless.bet")}, 1, "endless.bet, line "},
               {{"--bets", "43=5", "--csv", "/nowhere/x.csv"}, 1, "/nowhere/x.csv"},
               {{"--bets", "43=5", "--script", ground.folder.File("junk.lab"), "--out",
                 ground.folder.File("junk.lab")},
                1,
                "junk.lab"},
               {{"--resume", ground.folder.File("junk.lab")}, 1, "no laboratory's file"},
               {{"merge", ground.folder.File("junk.lab")}, 1, "junk.lab"},
               {{"merge"}, 2, "files"}};
  for (const auto& one : cases) {
    const Ran ran = ground.Run(one.words);
    EXPECT_EQ(ran.exitCode, one.exitCode) << one.told << "\n" << ran.err;
    EXPECT_NE(ran.err.find(one.told), std::string::npos) << ran.err;
    EXPECT_EQ(ran.out, "") << one.told;
  }
  EXPECT_EQ(ReadFile(ground.folder.File("junk.lab")), "junk");
}

TEST(LabCommand, WritesNothingOverWhatItReads) {
  Ground ground;
  const auto shard = [&](int number) { return ground.folder.File(std::to_string(number) + ".lab"); };
  std::string before;
  for (int number = 1; number <= 2; ++number) {
    ground.Says({"--bets", "43=10", "--sessions", "40", "--shard", std::to_string(number) + "/2", "--out",
                 shard(number), "--csv", ground.folder.File("part.csv")});
    before += ReadFile(shard(number)) + ReadFile(shard(number) + ".rows");
  }
  const std::vector<std::string> merge = {"merge", shard(2), shard(1)};
  for (const auto& [option, path] : {std::pair("--out", shard(1)), std::pair("--csv", shard(2) + ".rows"),
                                     std::pair("--report", shard(2))}) {
    std::vector<std::string> words = merge;
    words.insert(words.end(), {option, path});
    const Ran ran = ground.Run(words);
    EXPECT_EQ(ran.exitCode, 1) << option;
    EXPECT_NE(ran.err.find(path), std::string::npos) << ran.err;
  }
  EXPECT_TRUE(ReadFile(shard(1)) + ReadFile(shard(1) + ".rows") + ReadFile(shard(2)) +
                  ReadFile(shard(2) + ".rows") ==
              before);
  // What can be written is, beside what can't.
  std::vector<std::string> words = merge;
  words.insert(words.end(), {"--csv", "/dev/full", "--report", ground.folder.File("r.html")});
  EXPECT_NE(ground.Run(words).err.find("/dev/full"), std::string::npos);
  EXPECT_FALSE(ReadFile(ground.folder.File("r.html")).empty());
}

// Killed ten times on the way, at any moment, and gone on with on more threads or fewer.
TEST(LabCommand, IsTheSameAfterTenKills) {
  Ground ground;
  const std::string lab = ground.folder.File("k.lab");
  const std::vector<std::string> asked = {"--bets", "passline=10", "--bets", "field=5,43=10", "--sessions",
                                          "2000",   "--rolls",     "20",     "--csv"};
  std::vector<std::string> whole = asked;
  whole.insert(whole.end(), {ground.folder.File("whole.csv"), "--out", ground.folder.File("whole.lab")});
  const Json expected = ground.Says(whole);
  std::vector<std::string> words = asked;
  words.insert(words.begin(), "lab");
  words.insert(words.end(), {ground.folder.File("k.csv"), "--out", lab, "--threads", "2"});
  std::string before;
  for (int kill = 0; kill < 10; ++kill) {
    Surroundings around;
    around.signal = SIGKILL;
    // Behind the first checkpoint, and at another moment each time.
    around.when = [&, looks = 0]() mutable { return !ReadFile(lab).empty() && ++looks > 3 * kill; };
    RunCli(ground.folder, words, "", around);
    words = {"lab", "--resume", lab, "--csv", ground.folder.File("k.csv"), "--threads", kill % 2 ? "1" : "3"};
  }
  EXPECT_EQ(ground.Says({"--resume", lab, "--csv", ground.folder.File("k.csv")}), expected);
  for (const char* ending : {".lab", ".csv", ".lab.rows"})
    EXPECT_TRUE(ReadFile(ground.folder.File("k") + ending) == ReadFile(ground.folder.File("whole") + ending))
        << ending;
}

TEST(LabCommand, EndsByHoursRanksAndTellsStreaks) {
  Ground ground;
  const Json lab =
      ground.Says({"--bets", "49=5", "--bets", "49=50", "--sessions", "300", "--hours", "0.26", "--set",
                   "SimRollRate=100", "--set", "ShooterBetRule=0", "--bankroll", "150", "--rank", "ruin"});
  EXPECT_EQ(lab["systems"][0]["sessionRolls"]["quantiles"]["0.5"], 26);
  EXPECT_EQ(lab["ranking"][0]["system"], "49=5");
  EXPECT_GT(lab["ranking"][1]["value"], 0.1);
  // Of 26 rolls each lost with 20 of 36: about 3 in a row at the longest at least, and never more than all.
  EXPECT_GT(lab["systems"][0]["losingStreak"]["mean"], 3);
  EXPECT_LT(lab["systems"][0]["losingStreak"]["quantiles"]["0.99"], 27);
  const Json line = ground.Says({"--bets", "43=5", "--sessions", "5", "--rolls", "1", "--end", "hand"});
  EXPECT_LE(line["systems"][0]["losingStreak"]["quantiles"]["0.99"], 1);
}

// The risk of ruin of one unit a roll: the value found keeps to it, and its neighbour doesn't.
TEST(LabCommand, FindsWhatKeepsRuinWithinBounds) {
  Ground ground;
  WriteFile(ground.folder.File("f.bet"), "if field = 0 then bet cs3 on field endif\n");
  const std::vector<std::string> same = {
      "--script", ground.folder.File("f.bet"), "--sessions", "100", "--rolls", "30",
      "--set",    "ShooterBetRule=0",          "--stack",    "3=5"};
  const auto asked = [&](std::vector<std::string> more) {
    more.insert(more.begin(), same.begin(), same.end());
    return ground.Says(more)["systems"][0];
  };
  const Json bankroll = asked({"--find", "bankroll", "--ruin", "0.1", "--bankroll", "40"});
  const int value = bankroll["value"];
  EXPECT_LE(bankroll["ci95"][0], value);
  EXPECT_GE(bankroll["ci95"][1], value);
  EXPECT_EQ(asked({"--bankroll", std::to_string(value)})["ruined"], bankroll["ruined"]);
  EXPECT_LE(bankroll["ruined"]["p"], 0.1);
  EXPECT_GT(asked({"--bankroll", std::to_string(value - 1)})["ruined"]["p"], 0.1);
  const Json stake = asked({"--find", "stack:3", "--ruin", "0.1", "--bankroll", "100"});
  EXPECT_LE(stake["ruined"]["p"], 0.1);
  EXPECT_GE(stake["value"], 1);
  EXPECT_FALSE(asked({"--find", "stack:3", "--ruin", "0.01", "--bankroll", "6"})["found"]);
}

// Each cell of a sweep is the experiment of its own values, and the ranking that of those.
TEST(LabCommand, SweepsAsSingleExperiments) {
  const bool full = std::getenv("TESSARYN_LAB_PROOFS") != nullptr;
  Ground ground;
  WriteFile(ground.folder.File("s.bet"),
            "if passline = 0 then bet cs1 on passline endif\nbet cs1 * 3 on passlineodds\n");
  const std::vector<std::string> same = {
      "--script", ground.folder.File("s.bet"), "--sessions", full ? "10000" : "50", "--rank", "mean",
      "--rolls",  full ? "20" : "60"};
  const auto says = [&](const std::string& stack, const std::string& setting) {
    std::vector<std::string> words = same;
    words.insert(words.end(), {"--stack", "1=" + stack, "--vary", "MaxOddsBet=" + setting});
    return ground.Says(words);
  };
  const Json sweep = says("5..50:5", "20,30,40,50,60,70,80,90,100,110");
  ASSERT_EQ(sweep["systems"].size(), 100u);
  std::vector<double> means;
  for (std::size_t cell = 0; cell < 100; ++cell) {
    means.push_back(sweep["systems"][cell]["net"]["mean"]);
    if (!full && cell % 11 != 0) continue;
    const std::string stack = std::to_string(5 * (cell / 10 + 1));
    const Json single = says(stack, std::to_string(10 * (cell % 10 + 2)));
    EXPECT_EQ(single["systems"][0], sweep["systems"][cell]) << cell;
  }
  std::sort(means.rbegin(), means.rend());
  for (std::size_t place = 0; place < 100; ++place)
    EXPECT_EQ(sweep["ranking"][place]["value"], means[place]) << place;
}

// Without the permission, which nobody gives here, a script doesn't change the dice that luck goes by.
TEST(LabCommand, KeepsTheDiceOfAScriptThatWouldChangeThem) {
  Ground ground;
  WriteFile(ground.folder.File("d.bet"),
            "if passline = 0 then bet 10 on passline endif\nactivate probability file \"x.prb\"\n");
  const Json lab = ground.Says(
      {"--script", ground.folder.File("d.bet"), "--bets", "43=10", "--sessions", "20", "--rolls", "30"});
  EXPECT_EQ(lab["systems"][0]["adjusted"], lab["systems"][1]["adjusted"]);
  EXPECT_EQ(lab["systems"][0]["scriptErrors"][0]["code"], 854);
  const Ran ran = ground.Run({"--script", ground.folder.File("d.bet"), "--sessions", "2", "--rolls", "3"});
  EXPECT_NE(ran.err.find("d.bet: run-time errors of the script, "), std::string::npos) << ran.err;
  EXPECT_NE(ran.err.find("in all; the first: error 854 in line 2"), std::string::npos) << ran.err;
}

TEST(LabCommand, GoesOnWhereItWasKilled) {
  Ground ground;
  const std::string lab = ground.folder.File("e.lab");
  const std::vector<std::string> asked = {"--bets", "passline=10", "--sessions", "3000", "--rolls", "20"};
  const Json whole = ground.Says(asked);
  std::vector<std::string> killed = asked;
  killed.insert(killed.end(), {"--out", lab, "--threads", "2"});
  killed.insert(killed.begin(), "lab");
  Surroundings around;
  around.signal = SIGKILL;
  around.when = [&] { return !ReadFile(lab).empty(); };
  RunCli(ground.folder, killed, "", around);
  EXPECT_EQ(ground.Says({"--resume", lab}), whole);
  EXPECT_EQ(ground.Says({"--resume", lab, "--bets", "passline=10", "--rolls", "20"}), whole);
  const Ran other = ground.Run({"--resume", lab, "--rolls", "21"});
  EXPECT_EQ(other.exitCode, 2);
  EXPECT_NE(other.err.find("--rolls"), std::string::npos);
  EXPECT_NE(ground.Run({"--resume", lab, "--csv", ground.folder.File("e.csv")}).err.find("--csv"),
            std::string::npos);
}

TEST(LabCommand, EndsWithWhatIsKnown) {
  Ground ground;
  const std::string lab = ground.folder.File("e.lab");
  Surroundings around;
  around.signal = SIGINT;
  around.when = [&, looks = 0]() mutable { return !ReadFile(lab).empty() && ++looks > 200; };
  const Ran ran = RunCli(
      ground.folder,
      {"lab", "--bets", "passline=10", "--sessions", "900000000", "--rolls", "20", "--json", "--out", lab},
      "", around);
  EXPECT_EQ(ran.exitCode, 128 + SIGINT);
  if (ran.out.empty()) return;  // stopped before the first block
  const Json known = Json::parse(ran.out, nullptr, false);
  EXPECT_GT(known["sessions"], 0);
  EXPECT_LT(known["sessions"], 900'000'000);
}

}  // namespace
}  // namespace tessaryn::test
