#include "autobet/language/normaliser.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_map>
#include <utility>

#include "autobet/language/compile_errors.h"
#include "autobet/language/likely_word.h"
#include "autobet/language/script_spans.h"
#include "autobet/language/script_text.h"
#include "autobet/language/vocabulary.h"
#include "base/interrupts.h"

namespace tessaryn {
namespace {

// A character of the line in work and the columns that it came from.
struct WorkChar {
  char c = ' ';
  int begin = 0;
  int end = 0;
};

using WorkText = std::vector<WorkChar>;

// A word of the line in work: its text, its number in the vocabulary (-1 for a word that is in no row) and
// the columns that it came from.
struct WorkWord {
  std::string text;
  int id = -1;
  int begin = 0;
  int end = 0;
};

struct Phrase {
  std::vector<WorkWord> source;
  std::vector<WorkWord> token;
  bool stem = false;
};

// The vocabulary made ready for matching. Signs work on characters, phrases on words.
struct PreparedVocabulary {
  std::vector<VocabularyRow> signs;
  std::vector<Phrase> phrases;
  std::unordered_map<std::string, int> ids;
};

std::vector<std::string> SplitWords(std::string_view text) {
  std::vector<std::string> words;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (end > at) words.emplace_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

int FindId(const PreparedVocabulary& vocabulary, const std::string& text) {
  const auto found = vocabulary.ids.find(text);
  return found == vocabulary.ids.end() ? -1 : found->second;
}

std::vector<WorkWord> NumberedWords(PreparedVocabulary& vocabulary, std::string_view text) {
  std::vector<WorkWord> words;
  for (std::string& word : SplitWords(text)) {
    const int id = vocabulary.ids.emplace(word, static_cast<int>(vocabulary.ids.size())).first->second;
    words.push_back({std::move(word), id, 0, 0});
  }
  return words;
}

PreparedVocabulary Prepare(const std::vector<VocabularyRow>& rows) {
  PreparedVocabulary vocabulary;
  // Up to the last sign the rows work on the text as it was typed, "mod" among them.
  std::size_t signs = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].ends == RowEnds::kSign) signs = i + 1;
  }
  vocabulary.signs.assign(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(signs));
  for (std::size_t i = signs; i < rows.size(); ++i) {
    Phrase phrase;
    phrase.source = NumberedWords(vocabulary, rows[i].source);
    phrase.token = NumberedWords(vocabulary, rows[i].token);
    phrase.stem = rows[i].ends == RowEnds::kStem;
    vocabulary.phrases.push_back(std::move(phrase));
  }
  return vocabulary;
}

const PreparedVocabulary& Vocabulary() {
  static const PreparedVocabulary prepared = Prepare(VocabularyRows());
  return prepared;
}

// The players' names as phrases. A name is spaced as the script line around it will be.
std::vector<Phrase> NamePhrases(const ScriptSurroundings& surroundings) {
  std::vector<Phrase> phrases;
  for (SeatId seat = 1; seat <= 8; ++seat) {
    Phrase phrase;
    for (std::string& word : SplitWords(Lowered(Trimmed(surroundings.seatNames[seat])))) {
      const int id = FindId(Vocabulary(), word);
      phrase.source.push_back({std::move(word), id, 0, 0});
    }
    if (phrase.source.empty()) continue;
    const std::string token = Concat({"P", std::to_string(seat)});
    phrase.token.push_back({token, FindId(Vocabulary(), token), 0, 0});
    phrases.push_back(std::move(phrase));
  }
  return phrases;
}

void Append(WorkText& text, std::string_view added, int begin, int end) {
  for (const char c : added) text.push_back({c, begin, end});
}

// The text of a line in work: strings stand as their tokens, the rest is lowered.
bool TakeOutStrings(const std::vector<LinePiece>& pieces, CompiledScript& script, WorkText& text) {
  text.clear();
  text.push_back({});
  for (const LinePiece& piece : pieces) {
    if (piece.kind == PieceKind::kComment) break;
    if (!piece.gap.empty() && text.back().c != ' ') text.push_back({' ', piece.begin, piece.begin});
    if (piece.kind != PieceKind::kString) {
      for (std::size_t i = 0; i < piece.text.size(); ++i) {
        const int column = std::min(piece.begin + static_cast<int>(i), piece.end - 1);
        text.push_back({Lowered(piece.text[i]), column, i + 1 == piece.text.size() ? piece.end : column + 1});
      }
      continue;
    }
    if (piece.text.size() < 2 || piece.text.back() != '"') return false;
    std::string token = "S0";
    if (piece.text.size() > 2) {
      script.strings.push_back({piece.text.substr(1, piece.text.size() - 2), 0});
      const std::string digits = std::to_string(script.strings.size() - 1);
      token = Concat({digits.size() == 1 ? "S00" : digits.size() == 2 ? "S0" : "S", digits});
    }
    Append(text, Concat({" ", token, " "}), piece.begin, piece.end);
  }
  text.push_back({});
  return true;
}

bool MatchesAt(const WorkText& text, std::size_t at, std::string_view source, bool words) {
  if (at + source.size() > text.size()) return false;
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (text[at + i].c != source[i]) return false;
  }
  if (!words) return true;
  const std::size_t end = at + source.size();
  return (at == 0 || text[at - 1].c == ' ') && (end == text.size() || text[end].c == ' ');
}

void ApplySign(const VocabularyRow& row, WorkText& text) {
  const bool words = row.ends != RowEnds::kSign;
  const std::string token = Concat({" ", row.token, " "});
  const auto startsHere = [&](std::size_t at) { return MatchesAt(text, at, row.source, words); };
  std::size_t at = 0;
  while (at < text.size() && !startsHere(at)) ++at;
  if (at == text.size()) return;
  WorkText result(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at));
  while (at < text.size()) {
    if (startsHere(at)) {
      const std::size_t last = at + row.source.size() - 1;
      Append(result, token, text[at].begin, text[last].end);
      at = last + 1;
    } else {
      result.push_back(text[at++]);
    }
  }
  text = std::move(result);
}

std::vector<WorkWord> CutIntoWords(const WorkText& text) {
  std::vector<WorkWord> words;
  bool open = false;
  for (const WorkChar& c : text) {
    if (IsBlank(c.c)) {
      open = false;
      continue;
    }
    if (!open) words.push_back({{}, -1, c.begin, c.end});
    open = true;
    words.back().text += c.c;
    words.back().end = c.end;
  }
  for (WorkWord& word : words) word.id = FindId(Vocabulary(), word.text);
  return words;
}

// Which words of the vocabulary a line may hold. Most rows are dismissed by it alone.
class WordPresence {
 public:
  explicit WordPresence(std::size_t ids) : bits_(ids / 64 + 1) {}
  void Add(const WorkWord& word) {
    if (word.id >= 0) bits_[static_cast<std::size_t>(word.id) / 64] |= 1ULL << (word.id % 64);
  }
  bool Has(const WorkWord& word) const {
    return word.id < 0 || (bits_[static_cast<std::size_t>(word.id) / 64] >> (word.id % 64) & 1) != 0;
  }

 private:
  std::vector<std::uint64_t> bits_;
};

bool SameWord(const WorkWord& a, const WorkWord& b) {
  return a.id == b.id && (a.id >= 0 || a.text == b.text);
}

// No phrase goes on for longer than this; a line of one endless word is not worth the search.
constexpr std::size_t kLongestStemWord = 200;

// wordAt(i) is the i-th of count words to look at.
template <typename WordAt>
bool PhraseMatches(const Phrase& phrase, std::size_t count, WordAt wordAt) {
  const std::size_t length = phrase.source.size();
  if (length > count) return false;
  const std::size_t whole = phrase.stem ? length - 1 : length;
  for (std::size_t i = 0; i < whole; ++i) {
    if (!SameWord(phrase.source[i], wordAt(i))) return false;
  }
  if (!phrase.stem) return true;
  const std::string& last = wordAt(length - 1).text;
  return last.size() <= kLongestStemWord && last.starts_with(phrase.source.back().text);
}

std::size_t FindPhrase(const Phrase& phrase, const std::vector<WorkWord>& words) {
  for (std::size_t at = 0; at + phrase.source.size() <= words.size(); ++at) {
    const auto wordAt = [&](std::size_t i) -> const WorkWord& { return words[at + i]; };
    if (PhraseMatches(phrase, words.size() - at, wordAt)) return at;
  }
  return words.size();
}

bool MayHold(const WordPresence& presence, const Phrase& phrase) {
  const std::size_t whole = phrase.stem ? phrase.source.size() - 1 : phrase.source.size();
  return std::all_of(phrase.source.begin(), phrase.source.begin() + static_cast<std::ptrdiff_t>(whole),
                     [&](const WorkWord& word) { return presence.Has(word); });
}

// The words that replace a match, in reverse, onto the words still to do.
void PushReplacement(const Phrase& phrase, const WorkWord& first, const WorkWord& last,
                     std::vector<WorkWord>& toDo, WordPresence& presence) {
  const std::string rest = phrase.stem ? last.text.substr(phrase.source.back().text.size()) : std::string();
  for (std::size_t i = phrase.token.size(); i-- > 0;) {
    WorkWord word = phrase.token[i];
    if (i + 1 == phrase.token.size() && !rest.empty()) {
      word.text += rest;
      word.id = FindId(Vocabulary(), word.text);
    }
    word.begin = first.begin;
    word.end = last.end;
    presence.Add(word);
    toDo.push_back(std::move(word));
  }
}

// Replaces every occurrence, those that a replacement makes included.
void ApplyPhrase(const Phrase& phrase, std::vector<WorkWord>& words, WordPresence& presence) {
  const std::size_t first = FindPhrase(phrase, words);
  if (first == words.size()) return;
  std::size_t characters = 64;
  for (const WorkWord& word : words) characters += word.text.size() + 1;
  std::vector<WorkWord> toDo(std::make_move_iterator(words.rbegin()),
                             std::make_move_iterator(words.rend() - static_cast<std::ptrdiff_t>(first)));
  words.resize(first);
  const auto wordAt = [&](std::size_t i) -> const WorkWord& { return toDo[toDo.size() - 1 - i]; };
  while (!toDo.empty()) {
    if (characters == 0 || !PhraseMatches(phrase, toDo.size(), wordAt)) {
      words.push_back(std::move(toDo.back()));
      toDo.pop_back();
      continue;
    }
    // No row feeds on itself for longer than the line has characters; this makes sure of it.
    --characters;
    // By value: the words themselves go.
    const std::pair<WorkWord, WorkWord> ends(wordAt(0), wordAt(phrase.source.size() - 1));
    toDo.resize(toDo.size() - phrase.source.size());
    PushReplacement(phrase, ends.first, ends.second, toDo, presence);
    for (std::size_t back = phrase.source.size() - 1; back > 0 && !words.empty(); --back) {
      toDo.push_back(std::move(words.back()));
      words.pop_back();
    }
  }
}

void ApplyPhrases(const std::vector<Phrase>& names, std::vector<WorkWord>& words) {
  const PreparedVocabulary& vocabulary = Vocabulary();
  WordPresence presence(vocabulary.ids.size());
  for (const WorkWord& word : words) presence.Add(word);
  for (const Phrase& phrase : vocabulary.phrases) {
    if (MayHold(presence, phrase)) ApplyPhrase(phrase, words, presence);
  }
  for (const Phrase& phrase : names) ApplyPhrase(phrase, words, presence);
}

// Articles, and the signs that only adorn a number or a key. Rows may name them, so they go last.
void DropAdornments(std::vector<WorkWord>& words) {
  for (WorkWord& word : words) {
    if (word.text == "the" || word.text == "a") word.text.clear();
    std::erase_if(word.text, [](char c) { return c == '$' || c == '#'; });
  }
  std::erase_if(words, [](const WorkWord& word) { return word.text.empty(); });
}

bool IsAllDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

struct LetterKind {
  char letter;
  std::int32_t kind;
};

constexpr LetterKind kLetterKinds[] = {
    {'F', kTokenFunction}, {'V', kTokenVariable}, {'P', kTokenPlayer}, {'H', kTokenScope},
    {'X', kTokenMetric},   {'Y', kTokenMeasure},  {'I', kTokenList},   {'U', kTokenEnd},
    {'A', kTokenAction},   {'S', kTokenString},   {'L', kTokenEnd},
};

// The record of a word of the vocabulary's letters. Text that was typed is lower case and is never one.
bool ReadCode(std::string_view word, ScriptToken& token) {
  const char letter = word[0];
  std::string code(word.substr(1));
  if (letter == 'F' || letter == 'V') code = code.substr(0, code.find('.'));
  const bool negative = letter == 'S' && code.starts_with('-');
  if (negative) code.erase(0, 1);
  if (!IsAllDigits(code) || code.size() > 9) return false;
  const int number = std::stoi(code);
  for (const LetterKind& entry : kLetterKinds) {
    if (entry.letter != letter) continue;
    token.kind = letter == 'L' ? number : entry.kind;
    token.value = letter == 'L' || letter == 'U' ? 0 : (negative ? -number : number);
    return true;
  }
  return false;
}

std::string UnknownWordMessage(const std::string& word) {
  if (word == "playername") {
    return CompileErrorText(CompileError::kUnknownPlayer);
  }
  if (word == "session") return CompileErrorText(CompileError::kUnknownSession);
  if (word == "hand") return CompileErrorText(CompileError::kUnknownHand);
  return CompileErrorText(CompileError::kUnknownWord, word);
}

// Writes the records of one script.
class TokenWriter {
 public:
  TokenWriter(SeatId player, CompiledScript& script) : tokens_(script.tokens) {
    script.tokens.assign(1, {});
    script.strings.assign(1, {});
    tokens_.push_back({kTokenHeader, static_cast<double>(player)});
  }
  void OpenLine(int line) {
    line_ = line;
    AddMarker(0);
  }
  // False when the word means nothing.
  bool AddWord(const WorkWord& word) {
    ScriptToken token;
    if (ParseScriptNumber(word.text, token.value)) {
      token.kind = kTokenNumber;
    } else if (!ReadCode(word.text, token)) {
      return false;
    }
    if (token.kind == kStatementMarker) {
      AddMarker(word.begin);
    } else if (token.kind >= kTokenIf && token.kind <= kTokenExitDo) {
      AddKeyword(token, word);
    } else {
      tokens_.push_back(token);
    }
    return true;
  }
  void Close(int line) {
    line_ = line;
    if (tokens_.back().kind < kStatementMarker) AddMarker(0);
  }
  std::size_t LastIndex() const { return tokens_.size() - 1; }

 private:
  void AddMarker(int column) { tokens_.push_back({kStatementMarker + line_, static_cast<double>(column)}); }
  // A keyword stands in a statement of its own; a jump keeps its reference.
  void AddKeyword(const ScriptToken& token, const WorkWord& word) {
    if (tokens_.back().kind < kStatementMarker) AddMarker(word.begin);
    tokens_.push_back(token);
    if (token.kind != kTokenGoto && token.kind != kTokenGosub) AddMarker(word.end);
  }

  std::vector<ScriptToken>& tokens_;
  int line_ = 0;
};

// The words of one line after all rewriting. False for a string without its end.
bool ReadLine(std::string_view line, const std::vector<Phrase>& names, CompiledScript& script,
              std::vector<WorkWord>& words) {
  words.clear();
  WorkText text;
  if (!TakeOutStrings(TidyPieces(line), script, text)) return false;
  for (const VocabularyRow& row : Vocabulary().signs) ApplySign(row, text);
  words = CutIntoWords(text);
  ApplyPhrases(names, words);
  DropAdornments(words);
  return true;
}

// The span and the offer of an unknown word. Returns false.
bool FailAtWord(std::string_view line, const std::vector<WorkWord>& words, std::size_t unknown,
                const ScriptSurroundings& surroundings, ScriptDiagnostic& diagnostic) {
  const auto typed = [&](std::size_t i) {
    if (i >= words.size()) return std::string();
    const std::size_t begin = std::min(static_cast<std::size_t>(words[i].begin), line.size());
    return Lowered(line.substr(begin, static_cast<std::size_t>(words[i].end) - begin));
  };
  diagnostic.firstColumn = words[unknown].begin;
  diagnostic.lastColumn = words[unknown].end;
  const std::string before = unknown > 0 ? typed(unknown - 1) : std::string();
  diagnostic.offer = LikelyWord(words[unknown].text, before, typed(unknown + 1), surroundings);
  return false;
}

bool IsEmptyLine(std::string_view line) {
  const std::string_view text = Trimmed(line);
  return text.empty() || text.front() == '\'';
}

}  // namespace

bool NormaliseScript(SeatId player, const std::vector<std::string>& lines,
                     const ScriptSurroundings& surroundings, CompiledScript& script,
                     ScriptDiagnostic& diagnostic) {
  TokenWriter writer(player, script);
  const std::vector<Phrase> names = NamePhrases(surroundings);
  std::vector<WorkWord> words;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (IsEmptyLine(lines[i])) continue;
    const int line = static_cast<int>(i) + 1;
    writer.OpenLine(line);
    if (Interrupted()) return FailAt(script, lines, writer.LastIndex(), SignalReason(), diagnostic);
    if (!ReadLine(lines[i], names, script, words)) {
      return FailAt(script, lines, writer.LastIndex(), CompileErrorText(CompileError::kQuotationMark),
                    diagnostic);
    }
    for (std::size_t w = 0; w < words.size(); ++w) {
      if (writer.AddWord(words[w])) continue;
      FailAt(script, lines, writer.LastIndex(), UnknownWordMessage(words[w].text), diagnostic);
      return FailAtWord(lines[i], words, w, surroundings, diagnostic);
    }
    if (script.tokens.size() > kMostTokens) return FailTooLarge(script, lines, diagnostic);
  }
  writer.Close(static_cast<int>(lines.size()) + 1);
  return true;
}

std::vector<std::vector<ReadWord>> ReadScriptWords(const std::vector<std::string>& lines,
                                                   const ScriptSurroundings& surroundings) {
  const std::vector<Phrase> names = NamePhrases(surroundings);
  std::vector<std::vector<ReadWord>> read(lines.size());
  std::vector<WorkWord> words;
  CompiledScript script;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    script.strings.assign(1, {});
    if (IsEmptyLine(lines[i]) || !ReadLine(lines[i], names, script, words)) continue;
    for (WorkWord& word : words) {
      ScriptToken token;
      const bool string = ReadCode(word.text, token) && token.kind == kTokenString && token.value >= 0;
      read[i].push_back({string ? "S" : std::move(word.text), word.begin, word.end});
    }
  }
  return read;
}

bool IsKnownWord(const ReadWord& word) {
  ScriptToken token;
  return word.code == "S" || ParseScriptNumber(word.code, token.value) || ReadCode(word.code, token);
}

ScriptNameProblem CheckPlayerName(std::string_view name) {
  const std::string lowered = Lowered(Trimmed(name));
  double value = 0;
  if (ParseScriptNumber(lowered.starts_with('$') ? lowered.substr(1) : lowered, value)) {
    return ScriptNameProblem::kNumeric;
  }
  const std::string padded = Concat({" ", lowered, " "});
  for (const VocabularyRow& row : VocabularyRows()) {
    const std::string source =
        Concat({row.ends == RowEnds::kSign ? "" : " ", row.source, row.ends == RowEnds::kWords ? " " : ""});
    if (padded.find(source) != std::string::npos) return ScriptNameProblem::kReservedWord;
  }
  return ScriptNameProblem::kNone;
}

}  // namespace tessaryn
