// What helps someone who writes a script, without a screen: the words of a text with their kinds, places and
// meanings, completions, labels, blocks, indentation and the compiler's findings. The editor and the language
// server are built on it. All of it follows from the table of words (autobet/language/words.inc).
//
// Lines count from 1; columns from 0, in bytes of UTF-8; spans are half-open. Nothing here fails: a text that
// means nothing has words of kind kUnknown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table_types.h"
#include "play/script_session.h"
#include "state/script_types.h"

namespace tessaryn {

enum class ScriptWordKind {
  kKeyword,   // if, then, goto, do ...
  kAction,    // bet, clear, show message ...
  kVariable,  // of the table or of a player
  kBet,       // and groups of them
  kFunction,
  kPlayer,    // player1, shooter, a player's name
  kModifier,  // scope, metric, measure
  kList,      // any, all
  kOperator,  // signs, brackets and the words for them
  kNumber,
  kText,
  kLabel,  // a text or a number as a place of the script, at the place or behind a jump
  kComment,
  kUnknown,
};
inline constexpr int kScriptWordKinds = static_cast<int>(ScriptWordKind::kUnknown) + 1;
// "keyword", "action" ...
std::string_view ScriptKindName(ScriptWordKind kind);

// A word or phrase of the text.
struct ScriptWord {
  ScriptWordKind kind = ScriptWordKind::kUnknown;
  int line = 0;
  int begin = 0;
  int end = 0;
  std::string codes;  // what it is compiled to: the key of its meaning
};
// All of a text in order, never overlapping.
std::vector<ScriptWord> ScriptWords(const std::vector<std::string>& lines,
                                    const ScriptSurroundings& surroundings);

// What a word of the language means.
struct ScriptMeaning {
  std::string phrase;     // as it is typed
  std::string arguments;  // of a function: "(s, n)"
  std::string name;       // as messages show it; the phrase where they show none
  ScriptWordKind kind = ScriptWordKind::kUnknown;
  std::string doc;   // a line
  std::string code;  // what it is compiled to
  bool settable = false;
  int number = 0;  // of one among a hundred alike: 17 of "cs17"
};
// Every word and phrase that people write, by their letters.
const std::vector<ScriptMeaning>& ScriptMeanings();
// Null for a word that has no meaning of its own: numbers, texts, comments, unknown words.
const ScriptMeaning* MeaningOf(const ScriptWord& word);

// The word at a place, the one to the left of it included. Null for none.
const ScriptWord* WordAt(const std::vector<ScriptWord>& words, int line, int column);

struct ScriptCompletion {
  std::string text;
  std::string arguments;
  ScriptWordKind kind = ScriptWordKind::kUnknown;
  std::string doc;
};
struct ScriptCompletions {
  int begin = 0;  // what stands from here up to the place is replaced by the text
  std::vector<ScriptCompletion> items;
};
// The phrases that go on from what stands ahead of a column: of "last r" those that begin with both words, if
// there are any, else those with "r". Nothing in a text or a comment. players' names are phrases too.
ScriptCompletions CompletionsAt(std::string_view line, int column, const ScriptSurroundings& surroundings);

struct ScriptLabel {
  std::string name;  // in small letters, as jumps find it
  int line = 0;
  int begin = 0;
  int end = 0;
};
std::vector<ScriptLabel> ScriptLabels(const std::vector<std::string>& lines,
                                      const std::vector<ScriptWord>& words);
// The label that the word of kind kLabel means, itself or the goal of its jump. Null for none.
const ScriptLabel* LabelOf(const std::vector<std::string>& lines, const std::vector<ScriptLabel>& labels,
                           const ScriptWord& word);

// if and endif, do and loop: the keywords that belong together.
struct ScriptBlock {
  ScriptWord open;
  ScriptWord close;
};
// Each block that has both, in the order of their ends. What doesn't match is left out.
std::vector<ScriptBlock> ScriptBlocks(const std::vector<ScriptWord>& words);

// How a line changes the level of its block, in levels: "if" opens, "else" and a "then" behind lines of
// conditions stand one level out, "endif" closes.
struct BlockStep {
  int before = 0;  // of the line itself, 0 or less
  int behind = 0;  // of what follows, relative to what stood ahead of the line
};
// words: those of the line.
BlockStep BlockStepOf(const std::vector<ScriptWord>& words);

// The stretches that an editor may fold: blocks, and comments of several lines. firstLine stays visible.
struct ScriptFold {
  int firstLine = 0;
  int lastLine = 0;
  bool comment = false;
};
std::vector<ScriptFold> ScriptFolds(const std::vector<std::string>& lines,
                                    const std::vector<ScriptWord>& words);

// What the compiler says. On success lines with their indentation; else they are as they were.
struct ScriptFindings {
  ScriptCheck check;  // diagnostic with the span of what is wrong; message "\r" between lines
  std::vector<std::string> indented;
};
ScriptFindings CheckAndIndent(const ScriptSurroundings& surroundings, SeatId seat,
                              const std::vector<std::string>& lines);
// What is wrong, the first first: behind each finding the text is looked at as if that statement were in
// order, as far as its blocks can still be told. At most so many; none of a script that compiles.
std::vector<ScriptDiagnostic> ScriptFaults(const ScriptSurroundings& surroundings, SeatId seat,
                                           const std::vector<std::string>& lines, std::size_t most = 10);
// The word that a finding's offer takes the place of. False if there is no offer, or the word isn't found.
bool FindOffered(const std::vector<std::string>& lines, const ScriptDiagnostic& fault, ScriptWord& word);
}  // namespace tessaryn
