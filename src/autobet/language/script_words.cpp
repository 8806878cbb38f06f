#include "autobet/language/script_words.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"

namespace tessaryn {
namespace {

struct Told {
  std::string_view phrase;
  std::string_view doc;
  WordKind kind;
  bool numbered = false;  // phrase0 to phrase99
  bool arguments = false;
};

// Where a word of no class of its own belongs, by the first letter of its codes.
constexpr WordKind KindOfToken(std::string_view token) {
  switch (token.empty() ? ' ' : token[0]) {
    case 'P':
    case 'H':
    case 'X':
    case 'Y':
      return WordKind::kModifier;
    case 'V':
      return WordKind::kVariable;
    case 'F':
    case 'S':
      return WordKind::kFunction;
    case 'A':
    case 'E':
      return WordKind::kAction;
    default:
      return WordKind::kLogic;
  }
}

// The words of structure, whose rows need no telling to the compiler.
constexpr Told kStructure[] = {
    {"if", "begins a condition; ends with endif", WordKind::kLogic},
    {"then", "what follows is done when the condition holds", WordKind::kLogic},
    {"else", "what is done when no condition above held", WordKind::kLogic},
    {"elseif", "a further condition, looked at when none above held", WordKind::kLogic},
    {"endif", "ends a condition", WordKind::kLogic},
    {"do", "begins what is done again and again, until exit do", WordKind::kLogic},
    {"loop", "goes back to its do", WordKind::kLogic},
    {"exit do", "goes on behind the loop", WordKind::kLogic},
    {"goto", "goes to a label", WordKind::kLogic},
    {"gosub", "goes to a label; return comes back", WordKind::kLogic},
    {"return", "goes back behind the gosub", WordKind::kLogic},
    {"and", "both hold; of whole numbers bit by bit", WordKind::kLogic},
    {"or", "one of both holds; of whole numbers bit by bit", WordKind::kLogic},
    {"xor", "one of both holds, but not both", WordKind::kLogic},
    {"not", "holds when what follows does not", WordKind::kLogic},
    {"mod", "the rest of a division of whole numbers", WordKind::kLogic},
    {"on", "ahead of what an action is done to", WordKind::kLogic},
    {"to", "ahead of what an action is done to", WordKind::kLogic},
    {"from", "ahead of what an amount is taken from", WordKind::kLogic},
};

constexpr Told kTold[] = {
#define VARIABLE(code, phrase, name, class, whose, reader, doc) {phrase, doc, WordKind::kVariable},
#define SETTABLE(code, phrase, name, class, whose, reader, writer, doc) {phrase, doc, WordKind::kVariable},
#define NUMBERED(code, phrase, name, type, writer, doc) {phrase, doc, WordKind::kVariable, true},
#define BET(code, phrase, kind) {phrase, "bet: " kind, WordKind::kVariable},
#define GROUP(code, phrase, first, last, parts, doc) {phrase, doc, WordKind::kVariable},
#define BET_FUNCTION(code, phrase, name, first, place, doc) {phrase, doc, WordKind::kFunction, false, true},
#define STACK_FUNCTION(code, phrase, name, class, type, first, error, doc) \
  {phrase, doc, WordKind::kFunction, false, true},
#define NUMBER_FUNCTION(code, phrase, name, arguments, reader, doc) \
  {phrase, doc, WordKind::kFunction, false, true},
#define TEXT_FUNCTION NUMBER_FUNCTION
#define ACTION(code, phrase, shape, effect, doc) {phrase, doc, WordKind::kAction},
#define TARGET_ACTION ACTION
#define AMOUNT_ACTION(code, phrase, result, doc) {phrase, doc, WordKind::kAction},
#define SWAP_ACTION(code, phrase, doc) {phrase, doc, WordKind::kAction},
#define WORD(phrase, codes, doc) {phrase, doc, KindOfToken(codes)},
#include "autobet/language/words.inc"
};

void Replace(std::string& text, std::string_view what, std::string_view by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
    text.replace(at, what.size(), by);
}

// A phrase as it is typed; empty when only rows before it write it.
std::string Typed(std::string_view phrase) {
  constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
      {"...", ""}, {"V980", "checkstacks"}, {"L061 .01", "%"}, {" L062 ", "/"}, {" L020", " ("},
      {"( ", "("}, {" L021", ")"},          {" L075", ","}};
  std::string text(phrase);
  for (const auto& [code, sign] : kSigns) Replace(text, code, sign);
  if (text.ends_with(" (")) text.resize(text.size() - 2);
  const bool coded = std::any_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
  if (coded || text.ends_with('.')) return {};
  return text;
}

std::vector<WordEntry> BuildWords() {
  std::vector<WordEntry> words;
  const auto add = [&words](const Told& told) {
    std::string text = Typed(told.phrase);
    if (text.empty()) return;
    if (told.numbered) text += "1";
    if (told.arguments) text += "(";
    words.push_back({std::move(text), told.doc, told.kind});
  };
  for (const Told& told : kStructure) add(told);
  for (const Told& told : kTold) add(told);
  std::stable_sort(words.begin(), words.end(), [](const WordEntry& a, const WordEntry& b) {
    return a.kind != b.kind ? a.kind < b.kind : a.text < b.text;
  });
  const auto same = [](const WordEntry& a, const WordEntry& b) {
    return a.kind == b.kind && a.text == b.text;
  };
  words.erase(std::unique(words.begin(), words.end(), same), words.end());
  return words;
}

// --- The words of a line.

bool IsWordByte(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$' || c == '#' ||
         (static_cast<unsigned char>(c) & 0x80) != 0;
}
constexpr std::size_t kLongestPhrase = 10;  // words

std::vector<std::string> WordsOf(std::string_view phrase) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < phrase.size();) {
    if (IsBlank(phrase[at])) {
      ++at;
      continue;
    }
    const std::size_t begin = at++;
    if (IsWordByte(phrase[begin]))
      while (at < phrase.size() && IsWordByte(phrase[at])) ++at;
    words.push_back(Lowered(phrase.substr(begin, at - begin)));
  }
  return words;
}

std::string Joined(const std::vector<std::string>& words, std::size_t first, std::size_t count) {
  std::string text;
  for (std::size_t n = first; n < first + count; ++n) text += (n == first ? "" : " ") + words[n];
  return text;
}

struct KnownPhrases {
  std::unordered_map<std::string, WordKind> whole;
  std::unordered_map<std::string, WordKind> parts;  // every word of one
  std::vector<std::pair<std::string, WordKind>> stems;
};

KnownPhrases BuildPhrases() {
  KnownPhrases known;
  const auto add = [&known](std::string_view phrase, WordKind kind) {
    const std::vector<std::string> words = WordsOf(phrase);
    if (words.empty()) return;
    known.whole.emplace(Joined(words, 0, words.size()), kind);
    for (const std::string& word : words) known.parts.emplace(word, kind);
  };
  for (const Told& told : kStructure) add(told.phrase, told.kind);
  for (const VocabularyRow& row : VocabularyRows()) {
    if (row.ends == RowEnds::kSign) continue;
    const std::string typed = Typed(row.source);
    if (typed.empty()) continue;
    add(typed, KindOfToken(row.token));
    if (row.ends == RowEnds::kStem) known.stems.emplace_back(typed, KindOfToken(row.token));
  }
  // What is left out or read as another word.
  for (const char* word : {"the", "a", "an", "of", "#", "$", "is", "end", "exit"})
    add(word, WordKind::kLogic);
  return known;
}

const KnownPhrases& Phrases() {
  static const KnownPhrases phrases = BuildPhrases();
  return phrases;
}

SpanKind KindOfSpan(WordKind kind) { return static_cast<SpanKind>(static_cast<int>(kind)); }

struct Piece {
  std::size_t begin;
  std::size_t end;
};

std::size_t EndOfNumber(std::string_view line, std::size_t at) {
  while (at < line.size() && (IsDigit(line[at]) || line[at] == '.')) ++at;
  return at;
}

// The kind of a phrase with its signs of number or money left off: "hits#" is a word as "hits" is.
bool FindKind(const std::string& phrase, SpanKind& kind) {
  const KnownPhrases& known = Phrases();
  if (const auto found = known.whole.find(phrase); found != known.whole.end()) {
    kind = KindOfSpan(found->second);
    return true;
  }
  if (phrase.size() > 1 && (phrase.back() == '#' || phrase.back() == '$'))
    return FindKind(phrase.substr(0, phrase.size() - 1), kind);
  for (const auto& [stem, stemKind] : known.stems) {
    if (!phrase.starts_with(stem) || phrase.find(' ', stem.size()) != std::string::npos) continue;
    kind = KindOfSpan(stemKind);
    return true;
  }
  return false;
}

// A word that stands in no known phrase here: one of the language in another place, a player, or unknown.
SpanKind KindOfLoneWord(const std::string& word, const ScriptSurroundings& surroundings) {
  const auto& parts = Phrases().parts;
  if (const auto found = parts.find(word); found != parts.end()) return KindOfSpan(found->second);
  const std::string bare = word.substr(0, word.find_first_of("#$"));
  if (const auto found = parts.find(bare); found != parts.end()) return KindOfSpan(found->second);
  for (const std::string& name : surroundings.seatNames)
    if (!name.empty() && (" " + Lowered(name) + " ").find(" " + word + " ") != std::string::npos)
      return SpanKind::kPlayer;
  return SpanKind::kUnknown;
}

// The run of words from at on, blanks between them: the longest phrase first.
std::size_t AddWords(std::string_view line, std::size_t at, const ScriptSurroundings& surroundings,
                     std::vector<ScriptSpan>& spans) {
  std::vector<Piece> pieces;
  for (std::size_t next = at; next < line.size() && pieces.size() < kLongestPhrase;) {
    if (IsBlank(line[next])) {
      ++next;
      continue;
    }
    const bool sign = !IsWordByte(line[next]);
    if (sign && (line[next] != '/' && line[next] != '%')) break;
    std::size_t end = next + 1;
    while (!sign && end < line.size() && IsWordByte(line[end])) ++end;
    pieces.push_back({next, end});
    next = end;
  }
  std::vector<std::string> words;
  for (const Piece& piece : pieces)
    words.push_back(Lowered(line.substr(piece.begin, piece.end - piece.begin)));
  for (std::size_t count = pieces.size(); count > 0; --count) {
    SpanKind kind{};
    if (!FindKind(Joined(words, 0, count), kind)) continue;
    spans.push_back({pieces[0].begin, pieces[count - 1].end, kind});
    return pieces[count - 1].end;
  }
  spans.push_back({pieces[0].begin, pieces[0].end, KindOfLoneWord(words[0], surroundings)});
  return pieces[0].end;
}

}  // namespace

const std::vector<WordEntry>& WordEntries() {
  static const std::vector<WordEntry> words = BuildWords();
  return words;
}

const WordEntry* FindWordEntry(std::string_view phrase) {
  static const auto byText = [] {
    std::map<std::string, const WordEntry*> found;
    for (const WordEntry& word : WordEntries()) {
      std::string text = word.text;
      if (text.ends_with('(')) text.pop_back();
      const std::vector<std::string> words = WordsOf(text);
      found.emplace(Joined(words, 0, words.size()), &word);
    }
    return found;
  }();
  std::vector<std::string> words = WordsOf(phrase);
  const auto found = byText.find(Joined(words, 0, words.size()));
  if (found != byText.end()) return found->second;
  // "cs17" is told as "cs1" is.
  if (words.size() != 1) return nullptr;
  const std::size_t digit = words[0].find_first_of("0123456789");
  if (digit == std::string::npos || digit == 0 || !words[0].starts_with("cs")) return nullptr;
  const auto numbered = byText.find(words[0].substr(0, digit) + "1");
  return numbered == byText.end() ? nullptr : numbered->second;
}

std::vector<ScriptSpan> SpansOf(std::string_view line, const ScriptSurroundings& surroundings) {
  std::vector<ScriptSpan> spans;
  for (std::size_t at = 0; at < line.size();) {
    const char c = line[at];
    if (IsBlank(c)) {
      ++at;
    } else if (c == '\'') {
      spans.push_back({at, line.size(), SpanKind::kComment});
      break;
    } else if (c == '"') {
      const std::size_t close = line.find('"', at + 1);
      const std::size_t end = close == std::string_view::npos ? line.size() : close + 1;
      spans.push_back({at, end, SpanKind::kText});
      at = end;
    } else if (IsDigit(c) || (c == '.' && at + 1 < line.size() && IsDigit(line[at + 1]))) {
      spans.push_back({at, EndOfNumber(line, at), SpanKind::kNumber});
      at = spans.back().end;
    } else if (IsWordByte(c) || (c == '%' && spans.empty())) {
      at = AddWords(line, at, surroundings, spans);
    } else {
      spans.push_back({at, at + 1, SpanKind::kSign});
      ++at;
    }
  }
  return spans;
}

std::vector<WordOffer> OffersAt(std::string_view line, std::size_t at) {
  line = line.substr(0, std::min(at, line.size()));
  std::vector<WordOffer> offers;
  // Where each of the words before the cursor begins: a phrase may have been begun with any of them.
  std::vector<std::size_t> starts;
  std::size_t from = line.size();
  while (from > 0 && starts.size() < kLongestPhrase) {
    std::size_t begin = from;
    while (begin > 0 && IsBlank(line[begin - 1])) --begin;
    const bool gap = begin < from && from == line.size();
    std::size_t word = begin;
    while (word > 0 && (IsWordByte(line[word - 1]) || line[word - 1] == '/')) --word;
    if (word == begin || gap) {
      if (word == begin) break;
      // Behind a blank only a phrase of several words goes on.
    }
    starts.push_back(word);
    from = word;
  }
  for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
    const std::string typed = Lowered(line.substr(*start));
    if (typed.find_first_of("'\"") != std::string::npos) continue;
    for (const WordEntry& word : WordEntries()) {
      if (word.text.size() <= typed.size() || !word.text.starts_with(typed)) continue;
      const bool known = std::any_of(offers.begin(), offers.end(), [&word](const WordOffer& offer) {
        return offer.word->text == word.text;
      });
      if (!known) offers.push_back({&word, line.size() - *start});
    }
  }
  return offers;
}

BlockStep BlockStepOf(std::string_view line) {
  BlockStep step;
  int level = 0;
  const ScriptSurroundings nobody;
  std::string before;
  for (const ScriptSpan& span : SpansOf(line, nobody)) {
    const std::string word = Lowered(line.substr(span.begin, span.end - span.begin));
    const bool behindEnd = word == "if" && before == "end";
    const bool close = word == "endif" || word == "loop" || behindEnd;
    // "then" turns where it stands alone, behind lines of conditions.
    const bool turn = word == "else" || word == "elseif" || (word == "then" && before.empty());
    const bool opens = (word == "if" && before != "end" && before != "else") || word == "do";
    before = word;
    if (close) --level;
    if ((close || turn) && level - (turn ? 1 : 0) < step.before) step.before = level - (turn ? 1 : 0);
    if (opens) ++level;
  }
  step.behind = level;
  return step;
}

}  // namespace tessaryn
