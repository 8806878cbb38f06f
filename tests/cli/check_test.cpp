// Checking and converting scripts, as programs.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/cli_process.h"

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
  WriteFile(folder.File("a.bet"), "if passline = 0 and next roll is a comeout roll then bet 10 on passline endif\n");
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

}  // namespace
}  // namespace tessaryn::test
