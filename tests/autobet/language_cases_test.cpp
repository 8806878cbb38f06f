// What the language makes of scripts, as data: each line of tests/data/language.cases is a way to look at a
// script and the script, "|" between its lines, and below it stands what came of it.
//   compile   the records behind the first marker, or the message, its span and what was likely meant
//   bare      the same where the table offers no optional bets
//   words     what the first pass alone makes of a line
//   run       what a run leaves in Ann's first CheckStacks and on the table, and its errors
//   old       what a statement of an old script becomes
//   tidy      what the script screen makes of a line
//   text      what a text expression gives
//   history   what a number expression gives behind the six rolls of HistoryTable
// TESSARYN_NEW_CASES=1 writes the outcomes anew: look at the difference before it is kept.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "autobet/history_table.h"
#include "autobet/language/script_files.h"
#include "autobet/language/tidy_script_line.h"
#include "autobet/language/vocabulary.h"
#include "base/bet_catalogue.h"
#include "rules/consistency.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

std::string InLines(std::string text, char from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, 1, to);
  return text;
}

std::string Compiled(const std::string& script, const ScriptSurroundings& surroundings) {
  const auto outcome = script_test::Compile(script, 1, surroundings);
  const ScriptDiagnostic& bad = outcome.diagnostic;
  if (outcome.ok) return script_test::Dump(outcome.script, 3);
  EXPECT_TRUE(outcome.script.tokens.empty()) << script;
  std::ostringstream text;
  text << script_test::Message(outcome) << " @ " << bad.firstLine << ":" << bad.firstColumn << "-"
       << bad.lastLine << ":" << bad.lastColumn;
  return text.str() + (bad.offer.empty() ? "" : " ? " + bad.offer);
}

ScriptSurroundings BareTable() {
  ScriptSurroundings bare = script_test::Table();
  bare.big68 = bare.smallTall = bare.midway = bare.fire = false;
  return bare;
}

std::string Left(const ScriptTable& table) {
  std::ostringstream text;
  text << std::setprecision(7);
  for (int stack = 0; stack < 4; ++stack)
    text << (stack > 0 ? " " : "") << table.Bet(kFirstCheckStack + stack);
  for (int bet = 1; bet <= kBets; ++bet)
    if (table.Bet(bet) != 0) text << ", " << BetWord(bet) << " " << table.Bet(bet);
  const Handling& handling = table.game->table.seats[1].handling;
  if (handling.WinHandling != 0) text << ", wins handled by " << handling.WinHandling + 1;
  if (handling.LoseHandling != 0) text << ", losses handled by " << handling.LoseHandling + 1;
  for (const ScriptErrorKind& error : table.game->autobet.Scripts[1].Errors)
    text << ", error " << error.code << (error.code == 10000 ? " " + error.text : "");
  return text.str();
}

std::string LeftByRun(const std::string& script) {
  ScriptTable table;
  table.game->settings.DisableAllSound = true;
  const std::string problem = table.Run(script);
  EXPECT_EQ(CheckConsistency(*table.game), "") << script;
  EXPECT_FALSE(table.game->autobet.ScriptRunning) << script;
  return problem.empty() ? Left(table) : problem;
}

std::string Tidied(std::string line) {
  TidyScriptLine(line);
  return line;
}

std::string TextOf(ScriptTable& table, const std::string& expression) {
  return "\"" + InLines(InLines(table.Text(expression), '\r', "|"), '\n', "|") + "\"";
}

std::string NumberOf(ScriptTable& table, const std::string& expression) {
  std::ostringstream text;
  text << std::setprecision(7) << table.Number(expression);
  return text.str();
}

struct Tables {
  ScriptTable texts;
  script_test::HistoryTable history;
};

std::string Outcome(Tables& tables, const std::string& look, const std::string& given) {
  const std::string script = InLines(given, '|', "\n");
  if (look == "compile") return Compiled(script, script_test::Table());
  if (look == "bare") return Compiled(script, BareTable());
  if (look == "words") return InLines(script_test::FirstPass(script), '\r', " | ");
  if (look == "run") return LeftByRun(script);
  if (look == "text") return TextOf(tables.texts, script);
  if (look == "old") return ConvertOldStatement(script);
  if (look == "tidy") return Tidied(script);
  return look == "history" ? NumberOf(tables.history, script) : "no such look";
}

TEST(LanguageCases, ComeToWhatTheyCameTo) {
  const std::string file = std::string(test::kSourceFolder) + "/tests/data/language.cases";
  const bool anew = std::getenv("TESSARYN_NEW_CASES") != nullptr;
  std::ifstream cases(file);
  Tables tables;
  tables.texts.Run("csn3 = \"three\"");
  std::string written;
  int count = 0;
  for (std::string line; std::getline(cases, line);) {
    if (line.starts_with("    ")) continue;
    written += line + "\n";
    if (line.empty() || line[0] == '#') continue;
    const std::size_t blank = line.find(' ');
    const std::string outcome = Outcome(tables, line.substr(0, blank), line.substr(blank + 1));
    std::string wanted;
    if (!anew && std::getline(cases, wanted)) {
      EXPECT_EQ("    " + outcome, wanted) << line;
    }
    written += "    " + outcome + "\n";
    ++count;
  }
  EXPECT_GT(count, 600);
  if (anew) std::ofstream(file) << written;
}

}  // namespace
}  // namespace tessaryn
