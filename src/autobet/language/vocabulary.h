// The vocabulary of the betting language as data.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table_types.h"

namespace tessaryn {

// Where a row may match.
enum class RowEnds {
  kSign,   // anywhere, also inside a word
  kWords,  // whole words
  kStem,   // whole words, the last of which may go on
};

struct VocabularyRow {
  std::string source;  // without the blanks that stand for word ends
  std::string token;
  RowEnds ends = RowEnds::kWords;
};

// All rows in their order, the players' names excepted. Built once, never changed.
const std::vector<VocabularyRow>& VocabularyRows();

// The first word or phrase of the language that means bet 1 to 93; empty for any other number.
std::string_view BetWord(BetId bet);

}  // namespace tessaryn
