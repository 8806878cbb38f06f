// Scripts on the command line: the commands of play, the folders that a script may write to, and Ctrl-C.
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

using Json = nlohmann::json;

std::vector<Json> Play(const TempFolder& folder, const std::vector<std::string>& commands,
                       std::vector<std::string> options = {}) {
  std::string input;
  for (const std::string& command : commands) input += command + "\n";
  options.insert(options.begin(), {"play", "--data-folder", folder.Path(), "--set", "ShooterBetRule=0"});
  const Ran ran = RunCli(folder, options, input);
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  std::vector<Json> lines;
  for (const std::string& line : Lines(ran.out)) lines.push_back(Json::parse(line));
  return lines;
}

bool Has(const std::vector<Json>& lines, const char* key) {
  for (const Json& line : lines)
    if (line.contains(key)) return true;
  return false;
}

// 6 when the condition holds, else 0.
double BetIf(const TempFolder& folder, std::vector<std::string> commands, const std::string& condition) {
  WriteFile(folder.File("ask.bet"), "clear field\nif " + condition + " then bet 6 on field endif\n");
  commands.push_back("hotkey " + folder.File("ask.bet"));
  commands.push_back("remove 1 field");
  return -Play(folder, commands).back()["change"].get<double>();
}

TEST(CliScript, ActivatedScriptsPlayAndDeactivatedOnesRest) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "add 1 to cs0\n");
  const std::string script = "script 1 " + folder.File("a.bet");
  const std::vector<std::string> join = {"join 1 Ann 500", script};
  const auto with = [&join](std::vector<std::string> commands) {
    commands.insert(commands.begin(), join.begin(), join.end());
    return commands;
  };
  EXPECT_EQ(BetIf(folder, with({"roll 1 2", "roll 1 2"}), "cs0 = 0"), 6) << "loading activates nothing";
  EXPECT_EQ(BetIf(folder, with({"activate 1", "roll 1 2", "roll 1 2"}), "cs0 = 2"), 6);
  EXPECT_EQ(BetIf(folder, with({"answer yes", "activate 1", "roll 1 2"}), "cs0 = 2"), 6);
  EXPECT_EQ(BetIf(folder, with({"initialise 1"}), "cs0 = 1"), 6);
  EXPECT_EQ(BetIf(folder, with({"initialise 1", "deactivate 1", "roll 1 2"}), "cs0 = 1"), 6);
  EXPECT_EQ(BetIf(folder, with({"initialise 1", "roll 1 2", "newsession", "roll 1 2"}), "cs0 = 2"), 6)
      << "a new session clears the stacks and initialises";
}

TEST(CliScript, StepsAreLinesOfTheirOwnUntilTheyAreOff) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "\ncs0 = 1 / cs1\nif cs0 = 0 then\nbet 5 on field endif\n");
  const std::vector<std::string> commands = {"join 1 Ann 500", "script 1 " + folder.File("a.bet"), "steps on",
                                             "initialise 1"};
  const std::vector<Json> lines = Play(folder, commands);
  std::vector<std::string> steps;
  for (const Json& line : lines)
    if (line.contains("step"))
      steps.push_back(std::to_string(line["step"]["line"].get<int>()) + " " +
                      line["step"]["text"].get<std::string>());
  const std::vector<std::string> wanted = {
      "2 No action taken.\rDivision by zero.",
      "3 Beginning of condition block.",
      "3 Condition is true.",
      "3 End of condition block and beginning of action block.\rConditions were true, so next action block "
      "will "
      "be performed.",
      "4 Action taken.",
      "4 End of If/Then structure.",
  };
  EXPECT_EQ(steps, wanted);
  WriteFile(folder.File("b.bet"), "show steps\ncs1 = 1\n");
  EXPECT_TRUE(Has(Play(folder, {"join 1 Ann 500", "hotkey " + folder.File("b.bet")}), "step"));
  std::vector<std::string> off = commands;
  off.insert(off.end() - 1, "steps off");
  EXPECT_FALSE(Has(Play(folder, off), "step"));
}

TEST(CliScript, PermissionsOpenWhatTheyName) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "bet 9 on field bob\n");
  const std::vector<std::string> commands = {"join 1 Ann 500", "join 2 Bob 500",
                                             "script 1 " + folder.File("a.bet"), "initialise 1",
                                             "remove 2 field"};
  EXPECT_EQ(Play(folder, commands).back()["change"], 0);
  for (const char* word : {"others on", "reset on", "probabilities on", "files on"}) {
    std::vector<std::string> allowed = commands;
    allowed.insert(allowed.begin() + 3, std::string("permission 1 ") + word);
    EXPECT_EQ(Play(folder, allowed).back()["change"], std::string(word) == "others on" ? -9 : 0) << word;
  }
}

// A script that begins a session after every roll takes nothing from what was asked for.
TEST(CliScript, RollsAreDiceThrownWhateverSessionsDo) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "start new session\nbet 9 on field bob\n");
  const std::string script = folder.File("a.bet");
  const std::vector<Json> lines =
      Play(folder, {"set ShooterBetRule 0", "join 1 Ann 500", "join 2 Bob 500", "script 1 " + script,
                    "permission 1 reset on", "initialise 1", "turbo 50", "roll 1 2"});
  const Json& turbo = *(lines.end() - 2);
  EXPECT_EQ(turbo["rolled"], 50) << turbo;
  EXPECT_EQ(turbo["rolls"], 0) << "of the session";
  EXPECT_EQ(lines.back()["ok"], true) << lines.back();
  EXPECT_EQ(lines.back()["rolled"], 1);

  std::vector<std::string> run = {"run",
                                  "--data-folder",
                                  folder.Path(),
                                  "--set",
                                  "ShooterBetRule=0",
                                  "--player",
                                  "Ann=500",
                                  "--player",
                                  "Bob=500",
                                  "--script",
                                  script,
                                  "--rolls",
                                  "50",
                                  "--json",
                                  "--events-log",
                                  folder.File("log.txt"),
                                  "--permit",
                                  "1=reset,others"};
  const Json report = Json::parse(RunCli(folder, run).out);
  EXPECT_EQ(report["rolls"], 50);
  int rolls = 0;
  for (const Json& count : report["table"]["totals"]) rolls += count.get<int>();
  EXPECT_EQ(rolls, 50);
  EXPECT_EQ(report["seats"][1]["onTable"], 9);
  int sessions = 0;
  for (const std::string& line : test::Lines(test::ReadFile(folder.File("log.txt"))))
    sessions += line.rfind(" New session started", 0) == 0 ? 1 : 0;
  EXPECT_GE(sessions, 50);
  for (const char* wrong : {"1", "9=reset", "3=reset", "1=reset,all", "1="}) {
    run.back() = wrong;
    const Ran ran = RunCli(folder, run);
    EXPECT_EQ(ran.exitCode, 1) << wrong;
    EXPECT_NE(ran.err.find("--permit " + run.back()), std::string::npos) << ran.err;
  }
}

TEST(CliScript, EverySampleRunsAsTheReferenceSays) {
  TempFolder folder;
  for (int sample = 1; sample <= 13; ++sample) {
    const std::string file =
        std::string(test::kSourceFolder) + "/data/samples/Sample" + std::to_string(sample) + ".bet";
    const Ran ran = RunCli(folder, {"run", "--data-folder", folder.Path(), "--player", "Ann=1000", "--set",
                                    "ShooterBetRule=0", "--script", file, "--rolls", "200", "--json"});
    ASSERT_EQ(ran.exitCode, 0) << file << ": " << ran.err;
    EXPECT_EQ(Json::parse(ran.out)["rolls"], 200) << file;
  }
}

TEST(CliScript, WrongWordsAreNamedAndNothingIsLost) {
  TempFolder folder;
  WriteFile(folder.File("good.bet"), "bet 5 on field\n");
  WriteFile(folder.File("bad.bet"), "if 1 then\n");
  struct Case {
    const char* command;
    const char* part;  // of the error
  };
  const Case cases[] = {
      {"script 1", "expected: script SEAT FILE"},
      {"script 9 x.bet", "\"9\" is no seat"},
      {"script 3 x.bet", "there is no player at seat 3"},
      {"script 1 none.bet", "none.bet: File not found"},
      {"script 1 .", "."},
      {"activate x", "\"x\" is no seat"},
      {"deactivate", "expected"},
      {"initialise 8", "there is no player at seat 8"},
      {"hotkey none.bet", "did not run"},
      {"steps maybe", "\"maybe\" is neither on nor off"},
      {"permission 1 all on", "\"all\" is no permission"},
      {"permission 1 others", "expected"},
  };
  std::vector<std::string> commands = {"join 1 Ann 500", "script 1 " + folder.File("good.bet")};
  for (const Case& one : cases) {
    std::vector<std::string> tried = commands;
    tried.push_back(one.command);
    const Json answer = Play(folder, tried).back();
    EXPECT_EQ(answer["ok"], false) << one.command;
    EXPECT_NE(answer["error"].get<std::string>().find(one.part), std::string::npos)
        << one.command << ": " << answer.dump();
    tried.insert(tried.end(), {"initialise 1", "remove 1 field"});
    EXPECT_EQ(Play(folder, tried).back()["change"], -5) << "after " << one.command;
  }
  const std::vector<Json> bad =
      Play(folder, {commands[0], "script 1 " + folder.File("bad.bet"), "activate 1"});
  EXPECT_EQ(bad[1]["script"]["ok"], false);
  EXPECT_EQ(bad[1]["script"]["message"], "Missing ENDIF statement.");
  EXPECT_NE(bad.back()["error"].get<std::string>().find("Missing ENDIF statement."), std::string::npos);
}

TEST(CliScript, WritesOutsideTheDataFolderOnlyWhereItIsAllowed) {
  TempFolder folder;
  TempFolder data;
  WriteFile(folder.File("a.bet"),
            "open/clear file for output \"" + folder.File("log.txt") +
                "\"\noutput to file \"outside\"\nopen/append file for output \"in.txt\"\n"
                "output to file \"inside\"\n");
  std::vector<std::string> commands = {"join 1 Ann 500", "script 1 " + folder.File("a.bet"), "steps on",
                                       "initialise 1"};
  const auto told = [](const std::vector<Json>& lines) {
    std::string text;
    for (const Json& line : lines)
      if (line.contains("step")) text += line["step"]["text"].get<std::string>() + "|";
    return text;
  };
  EXPECT_EQ(
      told(Play(data, commands)),
      "No action taken.\rBad path and/or filename.|No action taken.\rOutput file not open.|Action taken.|"
      "Action taken.|");
  EXPECT_EQ(ReadFile(folder.File("log.txt")), "");
  EXPECT_EQ(ReadFile(data.File("output/in.txt")), "inside\n");
  EXPECT_EQ(told(Play(data, commands, {"--allow-output", folder.Path()})),
            "Action taken.|Action taken.|Action taken.|Action taken.|");
  EXPECT_EQ(ReadFile(folder.File("log.txt")), "outside\n");
  EXPECT_EQ(ReadFile(data.File("output/in.txt")), "inside\ninside\n");
}

TEST(CliScript, CtrlCStopsAScriptWithoutEnd) {
  TempFolder folder;
  WriteFile(folder.File("loop.bet"),
            "bet 5 on field\nopen/clear file for output \"begun\"\ndo\nadd 1 to cs0\n"
            "if cs0 < 0 then exitdo endif\nloop\n");
  Surroundings around;
  around.signal = SIGINT;
  around.when = [&folder] {
    return std::filesystem::exists(folder.File("begun")) ||
           std::filesystem::exists(folder.File("output/begun"));
  };
  const Ran played =
      RunCli(folder, {"play", "--data-folder", folder.Path()},
             "join 1 Ann 500\nscript 1 " + folder.File("loop.bet") + "\ninitialise 1\nstate\n", around);
  EXPECT_EQ(played.exitCode, 128 + SIGINT);
  const std::vector<std::string> lines = Lines(played.out);
  ASSERT_EQ(lines.size(), 3u) << "no command is done behind the one that was stopped";
  for (const std::string& line : lines) EXPECT_TRUE(Json::accept(line));

  for (const char* name : {"begun", "output/begun"}) std::filesystem::remove(folder.File(name));
  const Ran ran =
      RunCli(folder,
             {"run", "--data-folder", folder.Path(), "--player", "Ann=500", "--set", "ShooterBetRule=0",
              "--script", folder.File("loop.bet"), "--rolls", "1000", "--json"},
             "", around);
  EXPECT_EQ(ran.exitCode, 128 + SIGINT);
  const Json run = Json::parse(ran.out);
  EXPECT_EQ(run["seats"][0]["onTable"], 5) << "the table is as the last statement left it";
  EXPECT_LT(run["rolls"], 1000);
}

}  // namespace
}  // namespace tessaryn::test
