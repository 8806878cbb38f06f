#include "autobet/language_reference.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"
#include "autobet/run/script_errors.h"
#include "autobet/run_helpers.h"
#include "stats/statistics.h"
#include "support/places.h"

namespace tessaryn {
namespace {

const std::string kFile = std::string(test::kSourceFolder) + "/docs/auto-bet.md";

std::string GeneratedReference() {
  std::ifstream file(kFile);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

// A row that was added or changed: TESSARYN_NEW_REFERENCE=1 writes the tables anew.
TEST(LanguageReference, TablesAreThoseOfTheRows) {
  const std::string text = GeneratedReference();
  const std::string anew = script_test::WithTablesOfRows(text);
  if (std::getenv("TESSARYN_NEW_REFERENCE") != nullptr)
    std::ofstream(kFile) << anew;
  else
    EXPECT_EQ(text, anew);
  EXPECT_EQ(anew.find("no such table"), std::string::npos);
}

TEST(LanguageReference, EveryExampleCompiles) {
  const std::string text = GeneratedReference();
  ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Ann";
  int examples = 0;
  for (std::size_t at = 0; (at = text.find("```bet\n", at)) != std::string::npos;) {
    at += 7;
    const std::string example = text.substr(at, text.find("```", at) - at);
    const auto outcome = script_test::Compile(example, 1, surroundings);
    EXPECT_TRUE(outcome.ok) << outcome.diagnostic.message << " in line " << outcome.diagnostic.firstLine
                            << " of\n"
                            << example;
    ++examples;
  }
  EXPECT_GT(examples, 10);
}

// The examples behind a heading are systems: they must bet, and never fail.
TEST(LanguageReference, EveryWorkedSystemPlays) {
  const std::string text = GeneratedReference();
  std::size_t at = text.find("## Three systems");
  int systems = 0;
  while ((at = text.find("```bet\n", at)) < text.find("## Run-time errors")) {
    at += 7;
    const std::string system = text.substr(at, text.find("```", at) - at);
    SCOPED_TRACE(system);
    script_test::ScriptTable table;
    Game& game = *table.game;
    ASSERT_EQ(table.Load(1, system), "");
    game.autobet.BeginningNewSession = true;
    ASSERT_TRUE(InitialiseScripts(game));
    table.Turbo(3000);
    EXPECT_TRUE(game.autobet.Scripts[1].Errors.empty()) << game.autobet.Scripts[1].Errors.front().text;
    double wagered = 0;
    for (int bet = 1; bet <= kBets; ++bet)
      wagered += BetStat(game.stats, kWagerStats, kAllSessions, 1, bet, kStatTotal).ToDouble();
    EXPECT_GT(wagered, 100);
    ++systems;
  }
  EXPECT_EQ(systems, 3);
}

// What stands in brackets for any number or text, as a script would have it.
std::string WithValues(std::string text) {
  const std::pair<const char*, const char*> values[] = {
      {"s", "csn1"}, {"t", "csn2"}, {"n", "4"}, {"m", "1"}, {"x", "9"}, {"...", "1, 2"}, {"d.e", "3.4"}};
  const auto ends = [&text](std::size_t at) {
    return std::string("(,) ").find(text[at]) != std::string::npos;
  };
  for (const auto& [sign, value] : values) {
    const std::size_t length = std::string(sign).size();
    for (std::size_t at = text.find('('); (at = text.find(sign, at)) != std::string::npos; ++at)
      if (ends(at - 1) && at + length < text.size() && ends(at + length)) text.replace(at, length, value);
  }
  return text;
}

// What stands between single backquotes, outside of the examples.
std::vector<std::string> Sentences() {
  const std::string text = GeneratedReference();
  std::vector<std::string> sentences;
  for (std::size_t at = 0; (at = text.find('`', at)) != std::string::npos;) {
    if (text.compare(at, 3, "```") == 0) {
      at = text.find("```", at + 3) + 3;
      continue;
    }
    const std::size_t end = text.find('`', at + 1);
    sentences.push_back(text.substr(at + 1, end - at - 1));
    at = end + 1;
  }
  return sentences;
}

TEST(LanguageReference, EverySentenceInTheTextCompiles) {
  ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Ann";
  // A sentence of its own, or the part of one that it is told to be.
  const char* const frames[] = {"%",
                                "if % then\nendif",
                                "cs1 = %",
                                "csn1 = %",
                                "bet 1 on %",
                                "cs1 = % passline",
                                "cs1 = % 7",
                                "cs1 = # rolls(7) %",
                                "cs1 = # points %",
                                "cs1 = # %",
                                "% place6",
                                "% csn1",
                                "% 5 on cs1",
                                "% place6, place8",
                                "cs1 = 1 % 2",
                                "cs1 = passline net %",
                                "cs1 = buy4 %",
                                "if passline % then\nendif",
                                "if passline % 6 then\nendif",
                                "cs1 = % (4)",
                                "cs1 = %(1, 2)",
                                "csn1 = %(csn1)",
                                "csn1 = \"a\" & %",
                                "% then\nendif",
                                "% 9\n9",
                                "start new session %",
                                "playback dice roll file csn1 % 5"};
  // What is typed elsewhere.
  const char* const commands[] = {"tessaryn-cli ", "--",     "script ", "activate ",
                                  "initialise ",   "steps ", "hotkey ", "permission "};
  std::string bad;
  for (const std::string& sentence : Sentences()) {
    if (std::any_of(std::begin(commands), std::end(commands),
                    [&](const char* command) { return sentence.starts_with(command); }))
      continue;
    const std::string valued = WithValues(sentence);
    const bool compiles = std::any_of(std::begin(frames), std::end(frames), [&](std::string frame) {
      frame.replace(frame.find('%'), 1, valued);
      return script_test::Compile(frame, 1, surroundings).ok;
    });
    if (!compiles && sentence.find(' ') != std::string::npos) bad += sentence + "\n";
  }
  EXPECT_EQ(bad, "");
}

// Signs and keywords are told in the text around the tables.
TEST(LanguageReference, EveryWordIsTold) {
  const std::string text = Lowered(GeneratedReference());
  const auto isCode = [](char c) { return c >= 'A' && c <= 'Z'; };
  std::string missing;
  for (const VocabularyRow& row : VocabularyRows()) {
    const std::string& word = row.source;
    const bool numbered = word.starts_with("cs") && word.find_first_of("0123456789") != std::string::npos;
    if (numbered || std::any_of(word.begin(), word.end(), isCode)) continue;
    if (text.find(word) == std::string::npos) missing += word + "; ";
  }
  EXPECT_EQ(missing, "");
}

TEST(LanguageReference, EveryRunTimeErrorIsTold) {
  const std::string text = GeneratedReference();
  int told = 0;
  for (int code = 1; code < 10000; ++code) {
    std::string message = ScriptErrorText(code, "");
    if (message.empty()) continue;
    for (std::size_t at = 0; (at = message.find('\r', at)) != std::string::npos;)
      message.replace(at, 1, " / ");
    EXPECT_NE(text.find("| " + std::to_string(code) + " | " + message + " |"), std::string::npos)
        << code << message;
    ++told;
  }
  EXPECT_GT(told, 55);
}

}  // namespace
}  // namespace tessaryn
