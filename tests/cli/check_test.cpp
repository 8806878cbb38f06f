// Checking and converting scripts, as programs.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

TEST(CliCheck, GoodScriptsBadScriptsAndMissingOnesHaveTheirWordsAndCodes) {
  TempFolder folder;
  const std::string good = folder.File("good.bet");
  const std::string bad = folder.File("bad.bet");
  WriteFile(good, "bet 10 on passline\n");
  WriteFile(bad, "' a comment\nif bankroll > 5 then\nbet 5 on field\n");
  Ran ran = RunCli(folder, {"check", good});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_NE(ran.out.find("Your script is properly structured."), std::string::npos);
  ran = RunCli(folder, {"check", good, bad});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_NE(ran.out.find("Missing ENDIF statement."), std::string::npos) << ran.out;
  EXPECT_NE(ran.out.find("if bankroll > 5 then"), std::string::npos) << "the line is shown";
  ran = RunCli(folder, {"check", "--json", bad});
  const nlohmann::json object = nlohmann::json::parse(ran.out);
  EXPECT_EQ(object["ok"], false);
  EXPECT_EQ(object["firstLine"], 2);
  EXPECT_EQ(object["message"], "Missing ENDIF statement.");
  ran = RunCli(folder, {"check", folder.File("none.bet")});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_NE(ran.err.find("none.bet"), std::string::npos);
}

TEST(CliCheck, AnUnknownWordIsMarkedInItsColumnAndTheNearestOffered) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "csn1 = \"Grüße €5\"\ncsn2 = \"ü€\" : bet 5 on\tpasline\n");
  Ran ran = RunCli(folder, {"check", folder.File("a.bet")});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_EQ(ran.out, folder.File("a.bet") +
                         ":2:24: error: Unknown or misplaced element: pasline\n"
                         "     2 | csn2 = \"ü€\" : bet 5 on\tpasline\n"
                         "       |                       \t^~~~~~~\n" +
                         folder.File("a.bet") + ":2:24: note: Did you mean \"passline\"?\n");
  ran = RunCli(folder, {"check", "--json", folder.File("a.bet")});
  EXPECT_EQ(nlohmann::json::parse(ran.out)["firstColumn"], 23);
  EXPECT_EQ(nlohmann::json::parse(ran.out)["column"], 24);
}

TEST(CliCheck, BytesThatATerminalObeysAreNotPrinted) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "\x1b[31mred\x07 \x7f\n");
  const Ran ran = RunCli(folder, {"check", folder.File("a.bet")});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_NE(ran.out.find("?[31mred? ?"), std::string::npos) << ran.out;
  for (const char c : ran.out) EXPECT_TRUE(c == '\n' || (c >= ' ' && c != '\x7f')) << static_cast<int>(c);
}

TEST(CliCheck, TokensAreOneKindAndValueALine) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"), "cs1 = 2.5");
  const Ran ran = RunCli(folder, {"check", "--tokens", folder.File("a.bet")});
  EXPECT_EQ(ran.exitCode, 0);
  // Header, first line, the stack of the script's own player, what it becomes, the end.
  EXPECT_EQ(ran.out, "-3 1\n101 0\n-12 101\n-13 1\n50 0\n-31 2.5\n102 0\n");
}

TEST(CliFormat, IndentsInPlaceOrTellsWhatItWould) {
  TempFolder folder;
  const std::string rough = folder.File("rough.bet");
  const std::string text = "if comeout roll then\r\n  ' ten\r\nbet 10 on passline   \r\nendif";
  const std::string tidy = "if comeout roll then\n   ' ten\n   bet 10 on passline\nendif\n";
  WriteFile(rough, text);
  Ran ran = RunCli(folder, {"format", "--stdout", rough});
  EXPECT_EQ(ran.out, tidy) << ran.err;
  ran = RunCli(folder, {"format", "--check", rough});
  EXPECT_EQ(std::to_string(ran.exitCode) + ran.out, "1" + rough + "\n");
  EXPECT_EQ(ReadFile(rough), text);
  EXPECT_EQ(RunCli(folder, {"format", rough}).exitCode, 0);
  EXPECT_EQ(ReadFile(rough), tidy);
  ran = RunCli(folder, {"format", "--check", rough});
  EXPECT_EQ(std::to_string(ran.exitCode) + ran.out, "0");
  WriteFile(rough, "if 1 then\n");
  ran = RunCli(folder, {"format", rough});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_TRUE(ran.err.starts_with(rough + ":1:1: error: Missing ENDIF statement.")) << ran.err;
  EXPECT_EQ(ReadFile(rough), "if 1 then\n");
  EXPECT_EQ(RunCli(folder, {"format", folder.File("none.bet")}).exitCode, 1);
  EXPECT_EQ(RunCli(folder, {"format", "--check", "--stdout", rough}).exitCode, 2);
}

TEST(CliRun, ATraceAndAProfileTellWhatRanAndChangeNothing) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"),
            "if comeout roll and passline = 0 then\nbet 10 on passline : cs1 = 1 / cs2\nendif\n");
  const auto run = [&](std::vector<std::string> more) {
    std::vector<std::string> words = {
        "run",     "--data-folder", folder.Path(), "--player", "Ann=5000", "--script", folder.File("a.bet"),
        "--rolls", "500",           "--seed",      "3",        "--json"};
    words.insert(words.end(), more.begin(), more.end());
    nlohmann::json object = nlohmann::json::parse(RunCli(folder, words).out);
    for (const char* time : {"seconds", "rollsPerSecond"}) object.erase(time);
    return object;
  };
  nlohmann::json watched = run({"--trace", "4", "--profile"});
  const nlohmann::json trace = watched["trace"];
  const nlohmann::json profile = watched["profile"];
  ASSERT_EQ(trace.size(), 4u);
  EXPECT_EQ(trace[3]["roll"], 500);
  EXPECT_EQ(trace[2]["statement"], "comeout roll and passline = 0") << trace;
  EXPECT_EQ(trace[2]["outcome"], "false");
  double share = 0;
  std::map<int, int> counts;
  for (const nlohmann::json& line : profile) {
    share += line["share"].get<double>();
    counts[line["line"].get<int>()] = line["count"].get<int>();
  }
  EXPECT_NEAR(share, 100, 0.01);
  EXPECT_EQ(counts[1], 3 * 501) << "if, condition and then, once initialising and behind each roll";
  EXPECT_EQ(counts[2], 2 * watched["scriptErrors"][0]["count"].get<int>());
  watched.erase("trace");
  watched.erase("profile");
  EXPECT_EQ(watched, run({}));
}

TEST(CliConvert, AnOldFileBecomesAScriptThatCompiles) {
  TempFolder folder;
  std::string old(256, ' ');
  old.replace(0, 34, "Tessaryn AutoBets, Data Format 5.0");
  std::string statement(256, '\0');
  const std::string text = " bet 10 on pass line";
  statement.replace(0, 128, std::string(128, ' '));
  statement.replace(0, text.size(), text);
  WriteFile(folder.File("old.bet"), old + statement);
  EXPECT_EQ(RunCli(folder, {"convert", folder.File("old.bet"), folder.File("new.bet")}).exitCode, 0);
  EXPECT_EQ(RunCli(folder, {"check", folder.File("new.bet")}).exitCode, 0);
  EXPECT_EQ(RunCli(folder, {"convert", folder.File("none.bet"), folder.File("x.bet")}).exitCode, 1);
}

TEST(CliRun, AScriptPlaysAndABadOneIsToldBeforeTheFirstRoll) {
  TempFolder folder;
  WriteFile(folder.File("a.bet"),
            "if passline = 0 and next roll is a comeout roll then bet 10 on passline endif\n");
  Ran ran = RunCli(folder, {"run", "--data-folder", folder.Path(), "--player", "Ann=100000", "--script",
                            folder.File("a.bet"), "--rolls", "5000", "--seed", "3", "--json"});
  ASSERT_EQ(ran.exitCode, 0) << ran.err;
  const nlohmann::json run = nlohmann::json::parse(ran.out);
  EXPECT_EQ(run["rolls"], 5000);
  EXPECT_GT(run["seats"][0]["betsWon"].get<double>(), 500);
  WriteFile(folder.File("a.bet"), "bet on on\n");
  ran = RunCli(folder, {"run", "--data-folder", folder.Path(), "--player", "Ann=100", "--script",
                        folder.File("a.bet"), "--rolls", "5"});
  EXPECT_EQ(ran.exitCode, 1);
}

// Every "tessaryn-cli run ..." that a document tells, cut into words.
std::vector<std::vector<std::string>> ToldRuns(const std::string& document) {
  const std::string text = ReadFile(document);
  std::vector<std::vector<std::string>> runs;
  for (std::size_t at = 0; (at = text.find("tessaryn-cli run ", at)) != std::string::npos; ++at) {
    const std::size_t begin = at + std::string("tessaryn-cli ").size();
    std::istringstream words(text.substr(begin, text.find_first_of("`\n", begin) - begin));
    runs.emplace_back(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>());
  }
  return runs;
}

TEST(CliRun, EachSamplePlaysByTheCommandsThatTheDocumentsTell) {
  TempFolder folder;
  int samples = 0;
  for (const char* document : {"/docs/auto-bet.md", "/README.md"}) {
    for (const std::vector<std::string>& told : ToldRuns(std::string(test::kSourceFolder) + document)) {
      const auto script = std::find(told.begin(), told.end(), "--script");
      if (script == told.end()) continue;
      const bool any = *(script + 1) == "FILE";
      for (int number = 1; number <= (any ? 13 : 1); ++number) {
        const std::string sample =
            any ? "data/samples/Sample" + std::to_string(number) + ".bet" : *(script + 1);
        std::vector<std::string> words = told;
        words[static_cast<std::size_t>(script - told.begin()) + 1] =
            std::string(test::kSourceFolder) + "/" + sample;
        const auto rolls = std::find(words.begin(), words.end(), "--rolls");
        if (rolls != words.end()) words.erase(rolls, rolls + 2);
        words.insert(words.end(), {"--rolls", "200", "--json", "--data-folder", folder.Path()});
        const Ran ran = RunCli(folder, words);
        ASSERT_EQ(ran.exitCode, 0) << sample << ran.err;
        EXPECT_GT(nlohmann::json::parse(ran.out)["seats"][0]["wagered"], 100) << sample;
        ++samples;
      }
    }
  }
  EXPECT_GE(samples, 14);
}

TEST(CliRun, TellsRunTimeErrorsByKindAndThatAScriptCouldNeverAct) {
  TempFolder folder;
  const auto run = [&folder](const std::string& script, bool json) {
    WriteFile(folder.File("a.bet"), script);
    std::vector<std::string> words = {
        "run",      "--data-folder",      folder.Path(), "--set", "ShooterBetRule=0", "--player", "Ann=100",
        "--script", folder.File("a.bet"), "--rolls",     "5"};
    if (json) words.emplace_back("--json");
    return RunCli(folder, words);
  };
  const char* const both =
      "cs1 = 7 ' ok\ncs2 = 1 : cs3 = 1 / cs0 : cs0 = sqr(-1) ' it's\nif sqr(-1) = 1 then\nendif\n";
  const nlohmann::json errors = nlohmann::json::parse(run(both, true).out)["scriptErrors"];
  ASSERT_EQ(errors.size(), 2u);
  EXPECT_EQ(errors[0], (nlohmann::json{{"seat", 1},
                                       {"code", 9999},
                                       {"text", "Division by zero."},
                                       {"count", 6},
                                       {"line", 2},
                                       {"statement", "cs3 = 1 / cs0"}}));
  EXPECT_EQ(errors[1]["count"], 12) << "initialised once, and five rolls";
  EXPECT_EQ(errors[1]["statement"], "cs0 = sqr(-1)");
  Ran ran = run(both, false);
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_NE(ran.out.find("6 x error 9999 in line 2: Division by zero.\n    cs3 = 1 / cs0\n"),
            std::string::npos)
      << ran.out;
  ran = run("field player2 = 5\n", false);
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_NE(
      ran.err.find("Ann's script could never act: error 851 in line 1: No player at designated position.\n"
                   "    field player2 = 5"),
      std::string::npos)
      << ran.err;
}

}  // namespace
}  // namespace tessaryn::test
