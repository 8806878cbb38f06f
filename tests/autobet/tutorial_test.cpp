// The scripts of the documents: each compiles, and does on the dice that are told what is told.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "autobet/known_dice.h"
#include "autobet/run_helpers.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

std::string TextOf(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

// The line of a result: "DICE | BETS | BANKROLL".
std::string ResultLine(const std::string& dice, const Game& game) {
  const std::string bets = script_test::BetsUp(game);
  return dice + " | " + (bets.empty() ? "none" : bets) + " | " + PlainMoney(game.table.BankrollCurrent[1]);
}

// What a script does on the dice of a result's lines, as lines of the same form.
std::string Played(const std::string& script, const std::string& told) {
  ScriptTable table;
  Game& game = *table.game;
  EXPECT_EQ(table.Load(1, script), "");
  EXPECT_TRUE(InitialiseScripts(game));
  std::istringstream lines(told);
  std::string line;
  std::getline(lines, line);
  std::string result = ResultLine("   ", game) + "\n";
  while (std::getline(lines, line)) {
    table.Dice(line[0] - '0', line[2] - '0');
    result += ResultLine(line.substr(0, 3), game) + "\n";
  }
  EXPECT_TRUE(game.autobet.Scripts[1].Errors.empty());
  return result;
}

// Whether a script's text compiles at a table with Ann and Bob.
std::string ProblemOf(const std::string& script) {
  ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Ann";
  surroundings.seatNames[2] = "Bob";
  const auto outcome = script_test::Compile(script, 1, surroundings);
  return outcome.ok ? "" : outcome.diagnostic.message;
}

constexpr const char* kScript = "```bet\n";
constexpr const char* kResult = "```\n\n```rolls\n";

// TESSARYN_NEW_REFERENCE=1 writes the results anew, for the dice that are there.
TEST(Documents, ScriptsCompileAndDoWhatIsTold) {
  int scripts = 0;
  int results = 0;
  for (const auto& entry : std::filesystem::directory_iterator(std::string(test::kSourceFolder) + "/docs")) {
    if (entry.path().extension() != ".md") continue;
    std::string text = TextOf(entry.path());
    const std::string before = text;
    for (std::size_t at = 0; (at = text.find(kScript, at)) != std::string::npos; ++scripts) {
      at += std::string(kScript).size();
      const std::size_t end = text.find("```", at);
      const std::string script = text.substr(at, end - at);
      SCOPED_TRACE(entry.path().string() + ":\n" + script);
      EXPECT_EQ(ProblemOf(script), "");
      if (text.compare(end, std::string(kResult).size(), kResult) != 0) continue;
      const std::size_t begin = end + std::string(kResult).size();
      const std::string told = text.substr(begin, text.find("```", begin) - begin);
      const std::string played = Played(script, told);
      ++results;
      if (std::getenv("TESSARYN_NEW_REFERENCE") == nullptr)
        EXPECT_EQ(told, played);
      else
        text.replace(begin, told.size(), played);
    }
    if (text != before) std::ofstream(entry.path()) << text;
  }
  EXPECT_GE(scripts, 25);
  EXPECT_EQ(results, 6);
}

}  // namespace
}  // namespace tessaryn
