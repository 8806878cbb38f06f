#include "autobet/language/vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "autobet/language/script_text.h"
#include "base/table_types.h"
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
std::string Typed(std::string source) {
  if (const auto at = source.find("L061 .01"); at != std::string::npos) source.replace(at, 8, "%");
  std::string typed;
  for (const std::string& word : Words(source)) {
    const std::vector<VocabularyRow>& rows = VocabularyRows();
    const auto made =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.token == word; });
    const bool isCode = word[0] >= 'A' && word[0] <= 'Z' && made != rows.end();
    typed += " " + (isCode ? Typed(made->source) : word);
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

TEST(Vocabulary, EveryBetHasAWordThatLeadsBackToIt) {
  for (int bet = 1; bet <= kBets; ++bet)
    EXPECT_EQ(FirstPass(std::string(BetWord(bet))), "-11:" + std::to_string(bet)) << bet;
}

}  // namespace
}  // namespace tessaryn
