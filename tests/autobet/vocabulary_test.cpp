#include "autobet/language/vocabulary.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "autobet/language/script_text.h"
#include "compile_helpers.h"

namespace tessaryn {
namespace {

using script_test::Dump;
using script_test::FirstPass;

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char c : text) {
    if (c == ' ') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

// The records that a row's token text stands for.
std::string RecordsOf(const std::string& token) {
  static const std::map<char, int> kKinds = {{'F', -1},  {'V', -11}, {'P', -13}, {'H', -14}, {'X', -15},
                                             {'Y', -16}, {'A', -61}, {'S', -51}, {'I', -81}};
  CompiledScript script;
  script.tokens.push_back({});
  for (const std::string& word : Words(token)) {
    double number = 0;
    if (ParseScriptNumber(word, number)) {
      script.tokens.push_back({kTokenNumber, number});
    } else if (word[0] == 'L') {
      if (word != "L100") script.tokens.push_back({std::stoi(word.substr(1)), 0});
    } else {
      script.tokens.push_back({kKinds.at(word[0]), std::stod(word.substr(1))});
    }
  }
  return Dump(script);
}

// What is typed to make a row's source: its codes are what earlier rows have made of other phrases.
std::string Typed(const std::string& source) {
  static const std::map<std::string, std::string> kTyped = {{"L061", "%"},
                                                            {".01", ""},
                                                            {"L062", "/"},
                                                            {"L020", "("},
                                                            {"L021", ")"},
                                                            {"L075", ","},
                                                            {"V980", "checkstacks"},
                                                            {"EX1", "from roll"},
                                                            {"V2509", "% prob skew"},
                                                            {"V2506", "% prob true"},
                                                            {"V2501", "% prob"},
                                                            {"V2503", "% rolls"},
                                                            {"V2508", "# prob skew"},
                                                            {"V2507", "# prob true"},
                                                            {"V2502", "# prob"},
                                                            {"V2505", "# rolls since last"},
                                                            {"V2504", "# rolls"},
                                                            {"V2600", "# comeout rolls"},
                                                            {"V2601", "% comeout rolls"},
                                                            {"V2602", "# passes"},
                                                            {"V2603", "% passes"},
                                                            {"V2604", "# misses"},
                                                            {"V2605", "% misses"},
                                                            {"V4606", "# points"},
                                                            {"V4607", "% points"},
                                                            {"F125", "input"},
                                                            {"F825", "input$"}};
  std::string typed;
  for (const std::string& word : Words(source)) {
    const auto entry = kTyped.find(word);
    typed += " " + (entry == kTyped.end() ? word : entry->second);
  }
  return typed;
}

// Rows whose source is taken apart by an earlier row, with what is read instead.
const std::map<std::string, std::string> kShadowed = {
    {"two", "-11:56"},  // the bet
};

TEST(Vocabulary, EveryRowOfOwnTokensIsReachedByItsOwnSource) {
  int reached = 0;
  std::set<std::string> seen;
  for (const VocabularyRow& row : VocabularyRows()) {
    // A row that makes words is judged by the rows that read them.
    const std::vector<std::string> words = Words(row.token);
    double number = 0;
    const bool codes = words[0][0] >= 'A' && words[0][0] <= 'Z' && row.token != "EX1";
    if (!codes && !ParseScriptNumber(row.token, number)) continue;
    if (!seen.insert(row.source).second) continue;
    const std::string got = FirstPass(Typed(row.source));
    const auto shadowed = kShadowed.find(row.source);
    if (shadowed != kShadowed.end()) {
      EXPECT_EQ(got, shadowed->second) << row.source;
    } else {
      EXPECT_EQ(got, RecordsOf(row.token)) << row.source;
      ++reached;
    }
  }
  EXPECT_GT(reached, 930);
}

TEST(Vocabulary, RowsThatMakeWordsLeadToTheirPhrases) {
  const std::pair<const char*, const char*> cases[] = {
      {"simulated hours", "-11:1200"},
      {"hours", "-11:1200"},
      {"average bankroll(5)", "-1:110 20:0 -31:5 21:0"},
      {"number of rolls", "-11:2504"},
      {"# of rolls rolled", "error: Unknown or misplaced element:\r\rrolls"},
      {"# rolled", "-11:2504"},
      {"% of probable", "-11:2501"},
      {"# of rolls probable", "-11:2502"},
      {"stop autorolling/turboroll", "-61:115"},
      {"checkstack12", "-11:112"},
      {"checkstack #12", "-1:21 -31:12"},
      {"cs#12", "-11:112"},
      {"checkstacks", "-11:980"},
      {"checkstack names", "-11:990"},
      {"name checkstack7", "-11:807"},
      {"csname7", "-11:807"},
      {"csn#7", "-11:807"},
      {"cs5.", "-11:105"},
      {"csn5.", "-11:805"},
      {"greatest(1)", "-1:126 20:0 -31:1 21:0"},
      {"smallest$(1)", "-1:133 20:0 -31:1 21:0"},
      {"least(1)", "-1:127 20:0 -31:1 21:0"},
      {"largest$(1)", "-1:132 20:0 -31:1 21:0"},
  };
  for (const auto& [line, records] : cases) {
    EXPECT_EQ(FirstPass(line), records) << line;
  }
}

// A row that could feed on its own output would hang the compiler.
TEST(Vocabulary, NoRowMakesItsOwnSourceAgain) {
  for (const VocabularyRow& row : VocabularyRows()) {
    const std::string token = " " + row.token + " ";
    const std::string source = row.ends == RowEnds::kSign ? row.source : " " + row.source;
    EXPECT_EQ(token.find(source), std::string::npos) << row.source;
    std::string many;
    for (int i = 0; i < 200; ++i) many += Typed(row.source) + (row.ends == RowEnds::kStem ? "" : " ");
    FirstPass(many);
  }
}

TEST(Vocabulary, RowsAreInTheToldOrderAtTheirSeams) {
  const std::vector<VocabularyRow>& rows = VocabularyRows();
  const auto indexOf = [&](const std::string& source, const std::string& token) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].source == source && rows[i].token == token) return i;
    }
    return rows.size();
  };
  EXPECT_EQ(indexOf("(", "L020"), 0u);
  EXPECT_EQ(indexOf(":", "L100"), 25u);
  EXPECT_EQ(indexOf("hour", "hr"), 26u);
  EXPECT_EQ(indexOf("cs99", "V199"), indexOf("csn#", "csn") + 1);
  EXPECT_EQ(indexOf("csn99", "V899"), indexOf("cs0", "V100") + 1);
  EXPECT_EQ(indexOf("csn", "F800"), indexOf("csn0", "V800") + 1);
  EXPECT_EQ(indexOf("cs99.", "V199."), indexOf("cs.", "F021.") + 1);
  EXPECT_EQ(indexOf("initializing script", "V3000"), indexOf("csn0.", "V800.") + 1);
  EXPECT_EQ(rows.back().source, "F825 L020 L021");
  EXPECT_EQ(rows.size(), 985u);
}

TEST(Vocabulary, EveryBetHasAWordThatLeadsBackToIt) {
  for (int bet = 1; bet <= 93; ++bet) {
    EXPECT_EQ(BetFromWord(BetWord(bet)), bet) << bet;
    EXPECT_EQ(FirstPass(std::string(BetWord(bet))), "-11:" + std::to_string(bet));
  }
  EXPECT_EQ(BetFromWord(" PassLine "), 43);
  EXPECT_EQ(BetFromWord("hop43"), 77);
  for (const char* word : {"", "cs1", "bets", "place", "passlin", "V043"})
    EXPECT_EQ(BetFromWord(word), 0) << word;
  EXPECT_TRUE(BetWord(0).empty());
  EXPECT_TRUE(BetWord(94).empty());
}

}  // namespace
}  // namespace tessaryn
