#include "autobet/language/likely_word.h"

#include <algorithm>
#include <array>
#include <vector>

#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"

namespace tessaryn {
namespace {

constexpr std::size_t kLongestWord = 40;  // of the language and a slip or two

// Whether people write it: no sign, no code that earlier rows left behind, none of the numbered CheckStacks.
bool IsOfWords(const VocabularyRow& row) {
  if (row.ends == RowEnds::kSign || row.source.starts_with(' ')) return false;
  if (row.source.starts_with("cs") && std::any_of(row.source.begin(), row.source.end(), IsDigit))
    return false;
  return std::none_of(row.source.begin(), row.source.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

struct LanguageWord {
  std::string text;
  bool whole = false;  // a phrase, or a word that can stand alone
};

// Every phrase, and every word of one.
std::vector<LanguageWord> LanguageWords() {
  std::vector<LanguageWord> words;
  const auto add = [&words](std::string_view text, bool whole = false) {
    const auto known = std::find_if(words.begin(), words.end(),
                                    [text](const LanguageWord& word) { return word.text == text; });
    if (known == words.end())
      words.push_back({std::string(text), whole});
    else
      known->whole = known->whole || whole;
  };
  for (const VocabularyRow& row : VocabularyRows()) {
    if (!IsOfWords(row)) continue;
    add(row.source, true);
    for (std::size_t at = 0; at < row.source.size();) {
      const std::size_t end = std::min(row.source.find(' ', at), row.source.size());
      add(std::string_view(row.source).substr(at, end - at));
      at = end + 1;
    }
  }
  return words;
}

const std::vector<LanguageWord>& Words() {
  static const std::vector<LanguageWord> words = LanguageWords();
  return words;
}

bool IsWhole(std::string_view phrase) {
  return std::any_of(VocabularyRows().begin(), VocabularyRows().end(), [&](const VocabularyRow& row) {
    return row.ends != RowEnds::kSign && row.source == phrase;
  });
}

// How many letters must be changed, put in, left out or exchanged with their neighbours. A wrong digit is no
// slip: it means another bet.
int SlipsBetween(std::string_view a, std::string_view b) {
  std::array<std::array<int, kLongestWord + 1>, 3> rows{};
  const std::size_t width = b.size() + 1;
  for (std::size_t j = 0; j < width; ++j) rows[0][j] = static_cast<int>(j);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    auto& row = rows[i % 3];
    const auto& above = rows[(i + 2) % 3];
    row[0] = static_cast<int>(i);
    for (std::size_t j = 1; j < width; ++j) {
      const bool same = a[i - 1] == b[j - 1];
      const int change = same ? 0 : IsDigit(a[i - 1]) || IsDigit(b[j - 1]) ? 3 : 1;
      row[j] = std::min({above[j - 1] + change, above[j] + 1, row[j - 1] + 1});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], rows[(i + 1) % 3][j - 2] + 1);
    }
  }
  return rows[a.size() % 3][b.size()];
}

int SlipsAllowed(std::size_t letters) { return letters < 3 ? 0 : letters < 6 ? 1 : letters < 9 ? 2 : 3; }

// The nearest name, or word or phrase of the language, with so many slips at most.
std::string Nearest(std::string_view word, int most, const std::vector<std::string>& names) {
  std::string nearest;
  int least = 4 * most + 4;
  const auto look = [&](const std::string& candidate, bool whole) {
    if (candidate.size() > kLongestWord || candidate == word) return;
    const int slips = SlipsBetween(word, candidate);
    if (slips > most) return;
    // Of words as near as each other one that can stand alone, and one with the same first letter.
    const int rank = 4 * slips + (whole ? 0 : 2) + (candidate[0] == word[0] ? 0 : 1);
    if (rank >= least) return;
    least = rank;
    nearest = candidate;
  };
  for (const std::string& name : names) look(name, true);
  for (const LanguageWord& candidate : Words()) look(candidate.text, candidate.whole);
  return nearest;
}

// The shortest phrase that a word is a part of.
std::string PhraseWith(std::string_view word) {
  const std::string sought = Concat({" ", word, " "});
  std::string shortest;
  for (const LanguageWord& phrase : Words()) {
    if (phrase.text == word || Concat({" ", phrase.text, " "}).find(sought) == std::string::npos) continue;
    if (shortest.empty() || phrase.text.size() < shortest.size()) shortest = phrase.text;
  }
  return shortest;
}

}  // namespace

std::string LikelyWord(std::string_view word, std::string_view before, std::string_view behind,
                       const ScriptSurroundings& surroundings) {
  if (word.empty() || word.size() > kLongestWord) return {};
  for (const std::string& joined : {Concat({word, behind}), Concat({before, word})})
    if (joined.size() > word.size() && IsWhole(joined)) return joined;
  if (IsWhole(word)) return {};  // a word of the language at a wrong place
  std::vector<std::string> names;
  for (const std::string& name : surroundings.seatNames)
    if (!name.empty()) names.push_back(Lowered(Trimmed(name)));
  // A slip in the word behind leaves this one alone: "show mesage".
  const std::string both = Concat({word, " ", behind});
  std::string likely = behind.empty() || both.size() > kLongestWord ? "" : Nearest(both, 2, names);
  if (!likely.empty()) return likely;
  const std::string phrase = PhraseWith(word);
  likely = Nearest(word, phrase.empty() ? SlipsAllowed(word.size()) : word.size() < 4 ? 0 : 1, names);
  return likely.empty() ? phrase : likely;
}

}  // namespace tessaryn
