// The help for who writes a script: its words, meanings, completions, labels and blocks.
#include "play/script_help.h"

#include <gtest/gtest.h>

#include <random>

#include "autobet/compile_helpers.h"
#include "autobet/language/script_files.h"

namespace tessaryn {
namespace {

using script_test::Lines;

// "kind:text" of every word.
std::string Told(const std::vector<std::string>& lines, const ScriptSurroundings& surroundings = {}) {
  std::string told;
  for (const ScriptWord& word : ScriptWords(lines, surroundings))
    told += std::string(told.empty() ? "" : "|") + std::string(ScriptKindName(word.kind)) + ":" +
            lines[static_cast<std::size_t>(word.line) - 1].substr(
                static_cast<std::size_t>(word.begin), static_cast<std::size_t>(word.end - word.begin));
  return told;
}

TEST(ScriptHelp, WordsHaveTheKindsThatTheCompilerGivesThem) {
  ScriptSurroundings surroundings;
  surroundings.seatNames[2] = "Bobby Lee";
  const struct {
    const char* text;
    const char* told;
  } cases[] = {
      {"if the Comeout  Roll then ' why\nendif",
       "keyword:if|variable:Comeout  Roll|keyword:then|comment:' why|keyword:endif"},
      {"bet 5% of bankroll on inside place bets",
       "action:bet|number:5|operator:%|operator:of|variable:bankroll|operator:on|bet:inside place bets"},
      {"cs1 = # of rolls(7) last session",
       "variable:cs1|operator:=|function:# of rolls|operator:(|number:7|"
       "operator:)|modifier:last session"},
      {"hop(3.4), pasline = 5",
       "function:hop|operator:(|number:3.4|operator:)|operator:,|unknown:pasline|operator:=|number:5"},
      {"goto \"End\" : \"end\" : 12",
       "keyword:goto|label:\"End\"|operator::|label:\"end\"|operator::|label:12"},
      {"csn1 = \"ü\" & bobby lee passline wins",
       "variable:csn1|operator:=|text:\"ü\"|operator:&|player:bobby lee|bet:passline|modifier:wins"},
      {"stop autoroll/turboroll", "action:stop autoroll/turboroll"},
      {"show message \"if ' then", "action:show message|text:\"if ' then"},
      {"if\n12\nthen 12\nendif", "keyword:if|number:12|keyword:then|label:12|keyword:endif"},
  };
  for (const auto& row : cases) EXPECT_EQ(Told(Lines(row.text), surroundings), row.told) << row.text;
}

// What completion offers is one word to the compiler, with the meaning that was told.
TEST(ScriptHelp, EveryPhraseIsReadAsOneWordOfItsMeaning) {
  int phrases = 0;
  std::string bad;
  for (const ScriptMeaning& meaning : ScriptMeanings()) {
    // Alone in its statement a number is a label.
    const std::string line = (meaning.kind == ScriptWordKind::kNumber ? "=" : " ") + meaning.phrase +
                             (meaning.arguments.empty() ? "" : "(1)");
    const std::vector<ScriptWord> words = ScriptWords({line}, {});
    const ScriptWord* word = WordAt(words, 1, 1);
    const ScriptMeaning* read = word == nullptr ? nullptr : MeaningOf(*word);
    const bool whole = word != nullptr && word->end - word->begin == static_cast<int>(meaning.phrase.size());
    if (read == nullptr || !whole || read->doc != meaning.doc)
      bad += line + " (" + (word == nullptr ? "" : word->codes) + "); ";
    EXPECT_FALSE(meaning.doc.empty()) << line;
    ++phrases;
  }
  EXPECT_EQ(bad, "");
  EXPECT_GT(phrases, 700);
}

TEST(ScriptHelp, CompletionGoesOnFromWholePhrasesFirst) {
  const struct {
    const char* line;
    int begin;
    const char* first;
    std::size_t most;
  } cases[] = {{"bet 10 on pass", 10, "pass the dice", 9},
               {"if Last  Roll W", 3, "last roll was a comeout roll", 2},
               {"if x last r", 5, "last roll", 9},
               {"cs1=highe", 4, "highest", 9},
               {"csn1 = \"pass", 12, nullptr, 0},
               {"cs1 = 1 ' pass", 14, nullptr, 0},
               {"bet 5 on an", 9, "Ann", 9},
               {"zzz", 0, nullptr, 0}};
  ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Ann";
  for (const auto& row : cases) {
    const ScriptCompletions found =
        CompletionsAt(row.line, static_cast<int>(std::string(row.line).size()), surroundings);
    ASSERT_EQ(found.items.empty(), row.first == nullptr) << row.line;
    if (row.first == nullptr) continue;
    EXPECT_EQ(found.items[0].text, row.first) << row.line;
    EXPECT_EQ(found.begin, row.begin) << row.line;
    EXPECT_LE(found.items.size(), row.most) << row.line;
  }
}

TEST(ScriptHelp, LabelsBlocksAndFoldsAreFoundInAnUnfinishedText) {
  const std::vector<std::string> lines = Lines(
      "' one\n' two\nif point then\n  do\n    gosub \"Half\"\n  loop\nendif\n\"half\"\nreturn\nif 1 "
      "then\n12.0\ngoto 12");
  const std::vector<ScriptWord> words = ScriptWords(lines, {});
  const std::vector<ScriptLabel> labels = ScriptLabels(lines, words);
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_EQ(labels[0].name + labels[1].name, "half12");
  const ScriptWord* jump = WordAt(words, 5, 13);
  ASSERT_NE(jump, nullptr);
  EXPECT_EQ(LabelOf(lines, labels, *jump), &labels[0]);
  EXPECT_EQ(LabelOf(lines, labels, *WordAt(words, 12, 5)), &labels[1]);
  EXPECT_EQ(LabelOf(lines, labels, *WordAt(words, 3, 5)), nullptr);
  std::string folds;
  for (const ScriptFold& fold : ScriptFolds(lines, words))
    folds +=
        std::to_string(fold.firstLine) + "-" + std::to_string(fold.lastLine) + (fold.comment ? "c " : " ");
  EXPECT_EQ(folds, "4-6 3-7 1-2c ");
}

TEST(ScriptHelp, EachLineStepsTheBlockItStandsIn) {
  const struct {
    const char* line;
    int before;
    int behind;
  } cases[] = {{"if point then", 0, 1},
               {"If bet 5 on field", 0, 1},
               {"then bet 5 on field", -1, 0},
               {"else", -1, 0},
               {"endif", -1, -1},
               {"end if", -1, -1},
               {"do : loop", 0, 0},
               {"loop ' do", -1, -1},
               {"show message \"do", 0, 0},
               {"endif : if point then", -1, 0}};
  for (const auto& row : cases) {
    const BlockStep step = BlockStepOf(ScriptWords({row.line}, {}));
    EXPECT_EQ(step.before, row.before) << row.line;
    EXPECT_EQ(step.behind, row.behind) << row.line;
  }
}

TEST(ScriptHelp, WordsOfAnyTextStandInItInOrder) {
  const char* const pieces[] = {"if ", "passline", "\"",    "'",  "(",          "hop", " last roll",
                                "#",   "$",        "\xff",  "%",  "café",       ":",   "\t",
                                "1e6", "[",        "str$(", "cs", "die1 face1", " ",   "then"};
  std::mt19937 random(7);
  for (int round = 0; round < 1000; ++round) {
    std::vector<std::string> lines(1 + random() % 3);
    for (std::string& line : lines)
      for (auto n = random() % 12; n > 0; --n) line += pieces[random() % std::size(pieces)];
    const std::vector<ScriptWord> words = ScriptWords(lines, {});
    int line = 1;
    int column = 0;
    for (const ScriptWord& word : words) {
      if (word.line > line) column = 0;
      ASSERT_GE(word.line, line);
      line = word.line;
      ASSERT_GE(word.begin, column) << lines[static_cast<std::size_t>(line) - 1];
      ASSERT_GT(word.end, word.begin);
      column = word.end;
      ASSERT_LE(column, static_cast<int>(lines[static_cast<std::size_t>(line) - 1].size()));
      MeaningOf(word);
    }
    CompletionsAt(lines[0], static_cast<int>(random() % (lines[0].size() + 2)), {});
    ScriptFolds(lines, words);
    ScriptLabels(lines, words);
  }
}

TEST(ScriptHelp, FaultsAreToldTogetherAndMendedByTheirOffers) {
  struct Case {
    std::vector<std::string> lines;
    std::vector<int> faulty;
  };
  const Case cases[] = {
      {{"bet 5 on fieldd", "cs1 = 3", "bet 7 on paslin", "if cs1 = 3 and feld = 0 then", "  bet 5 on feld",
        "endif", "clear filed : cs2 = = 4"},
       {1, 3, 4, 5, 7}},
      {{"if cs1 = 3 then", "bet 5 on feld"}, {1, 2}},
      {{"goto nowhere", "bet on", "if then", "cs1 = 2", "endif", "bet 5 on feld"}, {1, 2, 3, 6}},
      {{"bet 5 on field"}, {}},
  };
  for (const Case& one : cases) {
    std::vector<int> faulty;
    for (const ScriptDiagnostic& fault : ScriptFaults({}, 1, one.lines)) faulty.push_back(fault.firstLine);
    EXPECT_EQ(faulty, one.faulty) << one.lines[0];
  }
  // With every offer taken only what has none is left.
  std::vector<std::string> lines = cases[0].lines;
  for (const ScriptDiagnostic& fault : ScriptFaults({}, 1, lines)) {
    ScriptWord word;
    if (FindOffered(lines, fault, word))
      lines[static_cast<std::size_t>(word.line) - 1].replace(
          static_cast<std::size_t>(word.begin), static_cast<std::size_t>(word.end - word.begin), fault.offer);
  }
  EXPECT_EQ(ScriptFaults({}, 1, lines).size(), 1u);
}

}  // namespace
}  // namespace tessaryn
