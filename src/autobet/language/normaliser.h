// From the text of a script to its tokens.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "autobet/language/tidy_script_line.h"
#include "state/script_types.h"

namespace tessaryn {

// Reads the lines of the script of player 0 to 8 (0 a hot-key script) into script: a header, then for every
// line that holds anything a marker and its tokens, then a closing marker. On failure diagnostic has the
// message and the span, and script is worthless.
bool NormaliseScript(SeatId player, const std::vector<std::string>& lines,
                     const ScriptSurroundings& surroundings, CompiledScript& script,
                     ScriptDiagnostic& diagnostic);

// A word or phrase of a line as the compiler reads it.
struct ReadWord {
  std::string code;  // a letter of the vocabulary and a number, or a number as typed; what means nothing as
                     // it was read. A string is "S"
  int begin = 0;     // column, in bytes
  int end = 0;
};
// The words of each line from left to right, comments and articles excepted. A phrase that stands for several
// codes comes as so many words of one span.
std::vector<std::vector<ReadWord>> ReadScriptWords(const std::vector<std::string>& lines,
                                                   const ScriptSurroundings& surroundings);
// Whether a word that was read means something.
bool IsKnownWord(const ReadWord& word);

enum class ScriptNameProblem {
  kNone,
  kNumeric,       // could not be told from a number in a script
  kReservedWord,  // contains a word, phrase or sign of the language
};

// Whether a player may be called name. The texts of the refusals are those of the player's screens.
ScriptNameProblem CheckPlayerName(std::string_view name);

}  // namespace tessaryn
