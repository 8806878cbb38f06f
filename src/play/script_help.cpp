#include "play/script_help.h"

#include <algorithm>
#include <map>
#include <utility>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/characters.h"
#include "autobet/language/language.h"
#include "autobet/language/normaliser.h"
#include "autobet/language/script_text.h"
#include "autobet/language/tidy_script_line.h"
#include "base/bet_catalogue.h"

namespace tessaryn {
namespace {

using enum ScriptWordKind;

constexpr std::string_view kKindNames[] = {"keyword", "action",   "variable", "bet",      "function",
                                           "player",  "modifier", "list",     "operator", "number",
                                           "text",    "label",    "comment",  "unknown"};
static_assert(std::size(kKindNames) == kScriptWordKinds);

// --- Meanings.

std::string CodeToken(char letter, int code) {
  const std::string digits = std::to_string(code);
  return letter + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

// A phrase of the table as people type it.
std::string Typed(std::string_view phrase) {
  static constexpr std::pair<std::string_view, std::string_view> kSigns[] = {
      {"...", ""}, {"V980", "checkstacks"}, {"L061 .01", "%"}, {" L062 ", "/"}, {" L020", " ("},
      {"( ", "("}, {" L021", ")"},          {" L075", ","}};
  std::string text(phrase);
  for (const auto& [code, sign] : kSigns)
    for (std::size_t at = 0; (at = text.find(code, at)) != std::string::npos; at += sign.size())
      text.replace(at, code.size(), sign);
  if (text.ends_with(" (")) text.resize(text.size() - 2);
  return text;
}

// Whether people write it, and not rows before it.
bool IsOfWords(std::string_view typed) {
  return std::none_of(typed.begin(), typed.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

// "snn" as (s, n, m).
std::string Arguments(std::string_view kinds) {
  if (kinds.empty()) return {};
  if (kinds[0] == '*') return "(...)";
  std::string_view texts = "st";
  std::string_view numbers = "nm";
  std::string shown;
  for (const char kind : kinds) {
    shown += shown.empty() ? "(" : ", ";
    std::string_view& names = kind == 's' ? texts : numbers;
    shown += kind == 'e' || names.empty() ? 'x' : names.front();
    if (kind != 'e' && !names.empty()) names.remove_prefix(1);
  }
  return shown + ")";
}

ScriptWordKind KindOfVariable(int code) {
  if (IsTableBet(code)) return kBet;
  return IsGroupVariable(code) && !GroupMembers(code, {}).empty() && IsTableBet(GroupMembers(code, {})[0])
             ? kBet
             : kVariable;
}

// Of codes "V3704", "F020", "L001", "Y29".
ScriptWordKind KindOfCode(std::string_view code) {
  const int number = std::atoi(std::string(code.substr(1)).c_str());
  switch (code[0]) {
    case 'V':
      return KindOfVariable(number);
    case 'F':
      return kFunction;
    case 'S':
      return number == kStringFromRoll ? kAction : kFunction;
    case 'A':
    case 'E':
      return kAction;
    case 'P':
      return kPlayer;
    case 'H':
    case 'X':
    case 'Y':
      return kModifier;
    case 'I':
      return kList;
    case 'L':
      return number >= kTokenIf && number <= kTokenExitDo ? kKeyword : kOperator;
    default:
      return kNumber;
  }
}

bool StartsWithLetter(std::string_view text) { return !text.empty() && text[0] >= 'A' && text[0] <= 'Z'; }

std::string NameOf(const std::string& code, const std::string& phrase) {
  const int number = std::atoi(code.c_str() + 1);
  std::string name;
  if (code[0] == 'V') name = VariableName(number);
  if (code[0] == 'F' && FindFunction(number) != nullptr) name = FindFunction(number)->name;
  return name.empty() ? phrase : name;
}

struct TableRow {
  char letter;  // 0: code is in codes
  int number;
  std::string_view codes;
  std::string_view phrase;
  std::string_view arguments;
  std::string_view doc;
  bool settable;
};

constexpr TableRow kRows[] = {
#define VARIABLE(code, phrase, name, class, whose, reader, doc) {'V', code, "", phrase, "", doc, false},
#define SETTABLE(code, phrase, name, class, whose, reader, writer, doc) \
  {'V', code, "", phrase, "", doc, true},
#define BET(code, phrase, kind) {'V', code, "", phrase, "", kind, true},
#define GROUP(code, phrase, first, last, parts, doc) {'V', code, "", phrase, "", doc, true},
#define BET_FUNCTION(code, phrase, name, first, place, doc) {'F', code, "", phrase, "n", doc, true},
#define STACK_FUNCTION(code, phrase, name, class, type, first, error, doc) \
  {'F', code, "", phrase, "n", doc, true},
#define NUMBER_FUNCTION(code, phrase, name, arguments, reader, doc) \
  {'F', code, "", phrase, arguments, doc, false},
#define TEXT_FUNCTION NUMBER_FUNCTION
#define ACTION(code, phrase, shape, effect, doc) {'A', code, "", phrase, "", doc, false},
#define TARGET_ACTION ACTION
#define AMOUNT_ACTION(code, phrase, result, doc) {'A', code, "", phrase, "", doc, false},
#define SWAP_ACTION(code, phrase, doc) {'A', code, "", phrase, "", doc, false},
#define WORD(phrase, codes, doc) {0, 0, codes, phrase, "", doc, false},
#include "autobet/language/words.inc"
};

struct Numbered {
  int first;
  std::string_view word;
  std::string_view doc;
};
constexpr Numbered kNumbered[] = {
#define NUMBERED(code, phrase, name, type, writer, doc) {code, phrase, doc},
#include "autobet/language/words.inc"
};

// Other phrases for words, and functions that are counts by a number.
struct OtherPhrase {
  std::string_view phrase;
  std::string_view codes;
};
constexpr OtherPhrase kOthers[] = {
#define ROW(phrase, codes) {phrase, codes},
#include "autobet/language/words.inc"
};

struct CountRow {
  int function;
  std::string_view phrase;  // "V2504 L020": the variable's code and a bracket
};
constexpr CountRow kCounts[] = {
#define COUNT_FUNCTION(code, phrase, ...) {code, phrase},
#include "autobet/language/words.inc"
};

struct SignRow {
  std::string_view code;
  ScriptWordKind kind;
  std::string_view doc;
};
constexpr SignRow kSignRows[] = {
#define MEANING(code, kind, doc) {code, kind, doc},
#include "play/script_meanings.inc"
#undef MEANING
};

// A number that has a word is known by that word; what is a step on the way by what it comes to.
std::string KeyOf(std::string_view codes, std::string_view phrase) {
  for (const OtherPhrase& other : kOthers)
    if (other.phrase == codes) return std::string(other.codes);
  return std::string(StartsWithLetter(codes) ? codes : phrase);
}

ScriptMeaning FromRow(const TableRow& row) {
  ScriptMeaning meaning;
  meaning.phrase = Typed(row.phrase);
  meaning.arguments = Arguments(row.arguments);
  meaning.code = row.letter != 0 ? CodeToken(row.letter, row.number) : KeyOf(row.codes, row.phrase);
  meaning.kind = StartsWithLetter(meaning.code) ? KindOfCode(meaning.code) : kNumber;
  meaning.name = NameOf(meaning.code, meaning.phrase);
  meaning.doc = row.doc;
  meaning.settable = row.settable;
  return meaning;
}

// The meanings in the order of the table, and by their codes the first of each.
struct MeaningTable {
  std::vector<ScriptMeaning> all;
  std::map<std::string, std::size_t, std::less<>> byCode;

  void Add(ScriptMeaning meaning) {
    byCode.try_emplace(meaning.code, all.size());
    all.push_back(std::move(meaning));
  }
  const ScriptMeaning* Find(std::string_view code) const {
    const auto found = byCode.find(code);
    return found == byCode.end() ? nullptr : &all[found->second];
  }
};

void AddNumbered(MeaningTable& table) {
  for (const Numbered& row : kNumbered)
    for (int n = 0; n < kCheckStacks; ++n) {
      const std::string word = Concat({row.word, std::to_string(n)});
      const std::string code = CodeToken('V', row.first + n);
      table.Add({word, "", VariableName(row.first + n), kVariable, std::string(row.doc), code, true, n});
    }
}

// Signs and keywords: the phrases for them are rows without a line of the reference.
void AddSigns(MeaningTable& table) {
  for (const SignRow& row : kSignRows) {
    const auto first = std::find_if(std::begin(kOthers), std::end(kOthers),
                                    [&](const OtherPhrase& other) { return other.codes == row.code; });
    const std::string phrase(first == std::end(kOthers) ? std::string_view() : first->phrase);
    if (table.Find(row.code) == nullptr)
      table.Add({phrase, "", phrase, row.kind, std::string(row.doc), std::string(row.code), false});
  }
}

void AddOtherPhrases(MeaningTable& table) {
  for (const OtherPhrase& other : kOthers) {
    const ScriptMeaning* known = table.Find(other.codes);
    const std::string phrase = Typed(other.phrase);
    if (known == nullptr || phrase == known->phrase || !IsOfWords(phrase)) continue;
    ScriptMeaning meaning = *known;
    meaning.phrase = phrase;
    table.Add(std::move(meaning));
  }
}

void AddCounts(MeaningTable& table) {
  for (const CountRow& row : kCounts) {
    const ScriptMeaning* counted = table.Find(row.phrase.substr(0, row.phrase.find(' ')));
    if (counted == nullptr) continue;
    ScriptMeaning meaning = *counted;
    meaning.kind = kFunction;
    meaning.arguments = "(n)";
    meaning.code = CodeToken('F', row.function);
    table.Add(std::move(meaning));
  }
}

const MeaningTable& Meanings() {
  static const MeaningTable table = [] {
    MeaningTable made;
    for (const TableRow& row : kRows) made.Add(FromRow(row));
    AddNumbered(made);
    AddSigns(made);
    AddOtherPhrases(made);
    AddCounts(made);
    return made;
  }();
  return table;
}

// --- Words.

ScriptWordKind KindOfWord(const ReadWord& word) {
  if (word.code == "S") return kText;
  if (!IsKnownWord(word)) return kUnknown;
  return StartsWithLetter(word.code) ? KindOfCode(word.code) : kNumber;
}

std::string_view TextBetween(std::string_view line, int begin, int end) {
  const auto from = std::min(static_cast<std::size_t>(std::max(begin, 0)), line.size());
  const auto to = std::min(static_cast<std::size_t>(std::max(end, begin)), line.size());
  return line.substr(from, to - from);
}

// A function whose bracket is a part of its phrase: the bracket is a word of its own to the eye.
void SplitAtBracket(std::string_view line, ScriptWord word, std::vector<ScriptWord>& words) {
  const std::string_view text = TextBetween(line, word.begin, word.end);
  const std::size_t bracket = text.find_first_of("([{");
  if (word.kind != kFunction || bracket == std::string_view::npos) return words.push_back(std::move(word));
  const std::string_view name = Trimmed(text.substr(0, bracket));
  ScriptWord sign{kOperator, word.line, word.begin + static_cast<int>(bracket), word.end, "L020"};
  word.end = word.begin + static_cast<int>(name.size());
  word.codes.resize(std::min(word.codes.find(' '), word.codes.size()));
  words.push_back(std::move(word));
  words.push_back(std::move(sign));
}

void AddWordsOfLine(std::string_view line, int number, const std::vector<ReadWord>& read,
                    std::vector<ScriptWord>& words) {
  for (std::size_t i = 0; i < read.size();) {
    ScriptWord word{KindOfWord(read[i]), number, read[i].begin, read[i].end, read[i].code};
    std::size_t next = i + 1;
    for (; next < read.size() && read[next].begin == read[i].begin && read[next].end == read[i].end; ++next)
      word.codes += " " + read[next].code;
    i = next;
    if (word.kind == kNumber) word.codes = Lowered(TextBetween(line, word.begin, word.end));
    // Words may come from one stretch in part; the eye wants each character once.
    if (!words.empty() && words.back().line == number) word.begin = std::max(word.begin, words.back().end);
    if (word.begin < word.end) SplitAtBracket(line, std::move(word), words);
  }
}

// Where a text begins that hasn't its end yet; the size of the line if none does.
std::size_t OpenText(std::string_view line) {
  std::size_t open = line.size();
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '\'' && open == line.size()) break;
    if (line[at] == '"') open = open == line.size() ? at : line.size();
  }
  return open;
}

void AddComment(std::string_view line, int number, std::vector<ScriptWord>& words) {
  if (line.find('\'') == std::string_view::npos) return;
  for (const LinePiece& piece : TidyPieces(line))
    if (piece.kind == PieceKind::kComment)
      words.push_back({kComment, number, piece.begin, static_cast<int>(line.size()), ""});
}

// --- Labels: a text or a number alone in a statement, and the word behind a jump.

bool EndsStatement(const ScriptWord& word) {
  return word.codes == "L100" || word.kind == kKeyword || word.kind == kComment;
}

void MarkLabels(std::vector<ScriptWord>& words) {
  bool inCondition = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    ScriptWord& word = words[i];
    if (word.codes == "L001" || word.codes == "L011") inCondition = true;
    if (word.codes == "L009") inCondition = false;
    if (word.kind != kText && (word.kind != kNumber || inCondition)) continue;
    const bool opens = i == 0 || words[i - 1].line != word.line || EndsStatement(words[i - 1]);
    const bool closes =
        i + 1 == words.size() || words[i + 1].line != word.line || EndsStatement(words[i + 1]);
    if (opens && closes) word.kind = kLabel;
  }
}

bool IsGoalOfJump(const std::vector<ScriptWord>& words, std::size_t i) {
  return i > 0 && words[i - 1].line == words[i].line &&
         (words[i - 1].codes == "L014" || words[i - 1].codes == "L015");
}

std::string LabelName(std::string_view text) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  double number = 0;
  const std::string name = Lowered(Trimmed(text));
  return ParseScriptNumber(name, number) ? GeneralNumber(number) : name;
}

std::string_view LineText(const std::vector<std::string>& lines, int line) {
  return line >= 1 && static_cast<std::size_t>(line) <= lines.size()
             ? std::string_view(lines[static_cast<std::size_t>(line) - 1])
             : std::string_view();
}

std::string NameOfLabel(const std::vector<std::string>& lines, const ScriptWord& word) {
  return LabelName(TextBetween(LineText(lines, word.line), word.begin, word.end));
}

bool Opens(const ScriptWord& word) { return word.codes == "L001" || word.codes == "L016"; }
bool Closes(const ScriptWord& word) { return word.codes == "L012" || word.codes == "L017"; }
bool BelongTogether(const ScriptWord& open, const ScriptWord& close) {
  return (open.codes == "L001") == (close.codes == "L012");
}

}  // namespace

std::string_view ScriptKindName(ScriptWordKind kind) { return kKindNames[static_cast<int>(kind)]; }

std::vector<ScriptWord> ScriptWords(const std::vector<std::string>& lines,
                                    const ScriptSurroundings& surroundings) {
  std::vector<ScriptWord> words;
  std::vector<std::string> whole = lines;
  for (std::string& line : whole) line.resize(OpenText(line));
  const auto read = ReadScriptWords(whole, surroundings);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    AddWordsOfLine(lines[i], number, read[i], words);
    if (whole[i].size() < lines[i].size())
      words.push_back(
          {kText, number, static_cast<int>(whole[i].size()), static_cast<int>(lines[i].size()), ""});
    else
      AddComment(lines[i], number, words);
  }
  MarkLabels(words);
  return words;
}

const std::vector<ScriptMeaning>& ScriptMeanings() {
  static const std::vector<ScriptMeaning> sorted = [] {
    std::vector<ScriptMeaning> written;
    for (const ScriptMeaning& meaning : Meanings().all)
      if (!meaning.phrase.empty() && IsOfWords(meaning.phrase)) written.push_back(meaning);
    std::stable_sort(written.begin(), written.end(),
                     [](const ScriptMeaning& a, const ScriptMeaning& b) { return a.phrase < b.phrase; });
    return written;
  }();
  return sorted;
}

const ScriptMeaning* MeaningOf(const ScriptWord& word) {
  if (word.kind == kText || word.kind == kLabel || word.kind == kComment) return nullptr;
  return Meanings().Find(word.codes);
}

const ScriptWord* WordAt(const std::vector<ScriptWord>& words, int line, int column) {
  const ScriptWord* left = nullptr;
  const auto from = std::lower_bound(words.begin(), words.end(), line,
                                     [](const ScriptWord& word, int sought) { return word.line < sought; });
  for (auto word = from; word != words.end() && word->line == line; ++word) {
    if (word->begin <= column && column < word->end) return &*word;
    if (word->end == column) left = &*word;
  }
  return left;
}

namespace {

// Whether a place of a line is inside a text or a comment.
bool IsQuoted(std::string_view line) {
  bool inText = false;
  for (const char c : line) {
    if (c == '"') inText = !inText;
    if (c == '\'' && !inText) return true;
  }
  return inText;
}

bool IsPartOfWord(char c) {
  constexpr std::string_view kEnds = "()[]{}=<>^*/\\+-&,;:%";
  return !IsBlank(c) && kEnds.find(c) == std::string_view::npos;
}

// Where the words that end a text begin, from the last one to the left, a few of them.
std::vector<std::size_t> StartsOfWords(std::string_view text) {
  constexpr std::size_t kLongestPhrase = 7;
  std::vector<std::size_t> starts;
  std::size_t at = text.size();
  while (starts.size() < kLongestPhrase) {
    while (at > 0 && IsPartOfWord(text[at - 1])) --at;
    starts.push_back(at);
    std::size_t blank = at;
    while (blank > 0 && IsBlank(text[blank - 1])) --blank;
    if (blank == at || blank == 0 || !IsPartOfWord(text[blank - 1])) break;
    at = blank;
  }
  return starts;
}

// Blanks in a row count as one.
std::string Spaced(std::string_view text) {
  std::string spaced;
  for (const char c : Lowered(text))
    if (!IsBlank(c) || (!spaced.empty() && spaced.back() != ' ')) spaced += IsBlank(c) ? ' ' : c;
  return spaced;
}

void AddCompletions(const std::string& prefix, const ScriptSurroundings& surroundings,
                    std::vector<ScriptCompletion>& items) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const std::string& name = surroundings.seatNames[seat];
    if (!name.empty() && Lowered(name).starts_with(prefix))
      items.push_back({name, "", kPlayer, "the player at seat " + std::to_string(seat)});
  }
  const std::vector<ScriptMeaning>& all = ScriptMeanings();
  const auto from = std::lower_bound(
      all.begin(), all.end(), prefix,
      [](const ScriptMeaning& meaning, const std::string& sought) { return meaning.phrase < sought; });
  for (auto meaning = from; meaning != all.end() && meaning->phrase.starts_with(prefix); ++meaning) {
    const bool again = !items.empty() && items.back().text == meaning->phrase;
    if (!again) items.push_back({meaning->phrase, meaning->arguments, meaning->kind, meaning->doc});
  }
}

}  // namespace

ScriptCompletions CompletionsAt(std::string_view line, int column, const ScriptSurroundings& surroundings) {
  const std::string_view ahead = TextBetween(line, 0, column);
  ScriptCompletions completions;
  completions.begin = static_cast<int>(ahead.size());
  if (IsQuoted(ahead)) return completions;
  const std::vector<std::size_t> starts = StartsOfWords(ahead);
  for (std::size_t i = starts.size(); i-- > 0 && completions.items.empty();) {
    completions.begin = static_cast<int>(starts[i]);
    AddCompletions(Spaced(ahead.substr(starts[i])), surroundings, completions.items);
  }
  return completions;
}

std::vector<ScriptLabel> ScriptLabels(const std::vector<std::string>& lines,
                                      const std::vector<ScriptWord>& words) {
  std::vector<ScriptLabel> labels;
  for (std::size_t i = 0; i < words.size(); ++i)
    if (words[i].kind == kLabel && !IsGoalOfJump(words, i))
      labels.push_back({NameOfLabel(lines, words[i]), words[i].line, words[i].begin, words[i].end});
  return labels;
}

const ScriptLabel* LabelOf(const std::vector<std::string>& lines, const std::vector<ScriptLabel>& labels,
                           const ScriptWord& word) {
  if (word.kind != kLabel) return nullptr;
  const std::string name = NameOfLabel(lines, word);
  const auto found = std::find_if(labels.begin(), labels.end(),
                                  [&](const ScriptLabel& label) { return label.name == name; });
  return found == labels.end() ? nullptr : &*found;
}

std::vector<ScriptBlock> ScriptBlocks(const std::vector<ScriptWord>& words) {
  std::vector<ScriptBlock> blocks;
  std::vector<const ScriptWord*> open;
  for (const ScriptWord& word : words) {
    if (Opens(word)) open.push_back(&word);
    if (!Closes(word)) continue;
    // What was never closed is left behind by the end of what is around it.
    const auto match = std::find_if(open.rbegin(), open.rend(), [&](const ScriptWord* candidate) {
      return BelongTogether(*candidate, word);
    });
    if (match == open.rend()) continue;
    blocks.push_back({**match, word});
    open.erase(match.base() - 1, open.end());
  }
  return blocks;
}

BlockStep BlockStepOf(const std::vector<ScriptWord>& words) {
  BlockStep step;
  int level = 0;
  for (const ScriptWord& word : words) {
    const bool turns =
        word.codes == "L010" || word.codes == "L011" || (word.codes == "L009" && &word == &words.front());
    if (Closes(word)) --level;
    if (Closes(word) || turns) step.before = std::min(step.before, level - (turns ? 1 : 0));
    if (Opens(word)) ++level;
  }
  step.behind = level;
  return step;
}

std::vector<ScriptFold> ScriptFolds(const std::vector<std::string>& lines,
                                    const std::vector<ScriptWord>& words) {
  std::vector<ScriptFold> folds;
  for (const ScriptBlock& block : ScriptBlocks(words))
    if (block.open.line < block.close.line) folds.push_back({block.open.line, block.close.line, false});
  const auto isComment = [&](int line) { return Trimmed(LineText(lines, line)).starts_with('\''); };
  const int count = static_cast<int>(lines.size());
  for (int line = 1; line <= count; ++line) {
    int last = line;
    while (isComment(last) && last + 1 <= count && isComment(last + 1)) ++last;
    if (last > line) folds.push_back({line, last, true});
    line = last;
  }
  return folds;
}

ScriptFindings CheckAndIndent(const ScriptSurroundings& surroundings, SeatId seat,
                              const std::vector<std::string>& lines) {
  ScriptFindings findings;
  std::vector<int> nesting;
  findings.check = CheckLines(surroundings, seat, lines, &nesting);
  findings.indented = findings.check.ok ? ReindentScript(lines, nesting) : lines;
  return findings;
}

namespace {

constexpr std::string_view kHolds = "if 1 = 1 then";

// Blanks in the place of the bytes from begin to end of a line; what stands behind keeps its column.
void Blank(std::string& line, int begin, int end) {
  const auto from = std::min(line.size(), static_cast<std::size_t>(std::max(begin, 0)));
  const auto to = std::clamp(static_cast<std::size_t>(std::max(end, 0)), from, line.size());
  line.replace(from, to - from, to - from, ' ');
}

// Takes a faulty statement out; of one that opens a block the block stays. False where the blocks behind it
// would no longer be known.
bool PassOver(std::vector<std::string>& lines, const ScriptDiagnostic& fault) {
  const int count = static_cast<int>(lines.size());
  if (fault.firstLine < 1 || fault.lastLine < fault.firstLine || fault.lastLine > count) return false;
  const std::vector<std::string> span(lines.begin() + fault.firstLine - 1, lines.begin() + fault.lastLine);
  int opens = 0;
  for (const ScriptWord& word : ScriptWords(span, {})) {
    const bool first = word.line == 1 && word.end <= fault.firstColumn;
    const bool behind = word.line == static_cast<int>(span.size()) && word.begin >= fault.lastColumn;
    if (first || behind) continue;
    if (Closes(word)) return false;
    if (Opens(word)) ++opens;
  }
  if (opens > 1) return false;
  for (int line = fault.firstLine; line <= fault.lastLine; ++line) {
    std::string& text = lines[static_cast<std::size_t>(line) - 1];
    Blank(text, line == fault.firstLine ? fault.firstColumn : 0,
          line == fault.lastLine ? fault.lastColumn : static_cast<int>(text.size()));
  }
  if (opens == 0) return true;
  std::string& text = lines[static_cast<std::size_t>(fault.firstLine) - 1];
  const auto at = static_cast<std::size_t>(std::max(fault.firstColumn, 0));
  if (at > text.size()) return false;
  const bool alone = text.find_first_not_of(' ', at) == std::string::npos;
  if (!alone && (text.size() - at < kHolds.size() || text.find_first_not_of(' ', at) < at + kHolds.size()))
    return false;
  text.replace(at, std::min(kHolds.size(), text.size() - at), kHolds);
  return true;
}

}  // namespace

bool FindOffered(const std::vector<std::string>& lines, const ScriptDiagnostic& fault, ScriptWord& word) {
  // The message ends with the word that isn't known.
  const std::size_t end = fault.message.find_last_of('\r');
  const std::string told = Lowered(Trimmed(fault.message.substr(end == std::string::npos ? 0 : end + 1)));
  if (fault.offer.empty() || told.empty()) return false;
  for (int line = std::max(fault.firstLine, 1); line <= fault.lastLine; ++line) {
    if (line > static_cast<int>(lines.size())) break;
    const auto from = static_cast<std::size_t>(line == fault.firstLine ? std::max(fault.firstColumn, 0) : 0);
    const std::size_t at = Lowered(lines[static_cast<std::size_t>(line) - 1]).find(told, from);
    if (at == std::string::npos) continue;
    word = {ScriptWordKind::kUnknown, line, static_cast<int>(at), static_cast<int>(at + told.size()), {}};
    return true;
  }
  return false;
}

std::vector<ScriptDiagnostic> ScriptFaults(const ScriptSurroundings& surroundings, SeatId seat,
                                           const std::vector<std::string>& lines, std::size_t most) {
  std::vector<ScriptDiagnostic> faults;
  std::vector<std::string> rest = lines;
  for (std::size_t looks = 0; faults.size() < most && looks < 2 * most; ++looks) {
    const ScriptDiagnostic fault = CheckLines(surroundings, seat, rest).diagnostic;
    if (!fault.Failed()) break;
    // Where something was mended already it may be for that.
    const bool mended = std::any_of(faults.begin(), faults.end(), [&](const ScriptDiagnostic& known) {
      return known.firstLine <= fault.lastLine && known.lastLine >= fault.firstLine;
    });
    if (!mended) faults.push_back(fault);
    ScriptWord word;
    if (FindOffered(rest, fault, word)) {
      std::string& line = rest[static_cast<std::size_t>(word.line) - 1];
      line.replace(static_cast<std::size_t>(word.begin), static_cast<std::size_t>(word.end - word.begin),
                   fault.offer);
    } else if (!PassOver(rest, fault)) {
      break;
    }
  }
  std::stable_sort(faults.begin(), faults.end(), [](const ScriptDiagnostic& a, const ScriptDiagnostic& b) {
    return a.firstLine < b.firstLine;
  });
  return faults;
}

}  // namespace tessaryn
