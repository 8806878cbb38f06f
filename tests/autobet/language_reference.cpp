#include "autobet/language_reference.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>
#include <vector>

namespace tessaryn::script_test {
namespace {

struct WordRow {
  std::string table;
  int order = 0;  // in the table: the code
  std::string phrase;
  std::string arguments;  // of a function
  std::string token;      // what another phrase for it is rewritten to
  std::string doc;
};

std::string CodeToken(char letter, int code) {
  const std::string digits = std::to_string(code);
  return letter + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

const char* TableOfClass(const std::string& referenceClass) {
  static const std::map<std::string, const char*> kTables = {
      {"kPlain", "table"}, {"kPlayer", "player"}, {"kScope", "scope"},  {"kHand", "scope"},
      {"kDice", "counts"}, {"kLine", "counts"},   {"kPoints", "counts"}};
  return kTables.at(referenceClass);
}

// Where a word of no class of its own is told, by the first letter of its codes.
std::string TableOfToken(const std::string& token) {
  static const std::map<char, const char*> kTables = {
      {'P', "players"}, {'H', "scopes"}, {'X', "metrics"},   {'Y', "measures"},  {'L', "comparisons"},
      {'I', "lists"},   {'V', "table"},  {'F', "functions"}, {'S', "functions"}, {'E', "actions"}};
  const auto found = kTables.find(token[0]);
  return found == kTables.end() ? "numbers" : found->second;
}

int OrderOfToken(const std::string& token) {
  constexpr int kBehindFunctions = 1000;
  if (token[0] == 'S') return kBehindFunctions;
  const auto digit = token.find_first_of("0123456789");
  return digit == std::string::npos ? 0 : std::atoi(token.c_str() + digit);
}

WordRow OfToken(const std::string& phrase, const std::string& token, const std::string& doc) {
  return {.table = TableOfToken(token),
          .order = OrderOfToken(token),
          .phrase = phrase,
          .arguments = "",
          .token = token,
          .doc = doc};
}

WordRow OfCode(const std::string& table, char letter, int code, const std::string& phrase,
               const std::string& arguments, const std::string& doc) {
  return {.table = table,
          .order = code,
          .phrase = phrase,
          .arguments = arguments,
          .token = CodeToken(letter, code),
          .doc = doc};
}

// The words with a line of their own.
std::vector<WordRow> Words() {
  return {
#define VARIABLE(code, phrase, name, class, whose, reader, doc) \
  OfCode(TableOfClass(#class), 'V', code, phrase, "", doc),
#define SETTABLE(code, phrase, name, class, whose, reader, writer, doc) \
  OfCode(TableOfClass(#class), 'V', code, phrase, "", std::string(doc) + "; can be set"),
#define NUMBERED(code, phrase, name, type, writer, doc) \
  OfCode("player", 'V', code, phrase "0` to `" phrase "99", "", doc),
#define BET(code, phrase, kind) OfCode("bets", 'V', code, phrase, "", kind),
#define GROUP(code, phrase, first, last, parts, doc) OfCode("groups", 'V', code, phrase, "", doc),
#define BET_FUNCTION(code, phrase, name, first, place, doc) OfCode("functions", 'F', code, phrase, "n", doc),
#define STACK_FUNCTION(code, phrase, name, class, type, first, error, doc) \
  OfCode("functions", 'F', code, phrase, "n", doc),
#define NUMBER_FUNCTION(code, phrase, name, arguments, reader, doc) \
  OfCode("functions", 'F', code, phrase, arguments, doc),
#define TEXT_FUNCTION NUMBER_FUNCTION
#define ACTION(code, phrase, shape, effect, doc) OfCode("actions", 'A', code, phrase, "", doc),
#define TARGET_ACTION ACTION
#define AMOUNT_ACTION(code, phrase, result, doc) OfCode("actions", 'A', code, phrase, "", doc),
#define SWAP_ACTION(code, phrase, doc) OfCode("actions", 'A', code, phrase, "", doc),
#define WORD(phrase, codes, doc) OfToken(phrase, codes, doc),
#include "autobet/language/words.inc"
  };
}

struct Rewriting {
  std::string phrase;
  std::string codes;
};

std::vector<Rewriting> Rewritings() {
  return {
#define ROW(phrase, codes) {phrase, codes},
#include "autobet/language/words.inc"
  };
}

// --- As it is typed.

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
    text.replace(at, what.size(), by);
  return text;
}

std::string Typed(std::string phrase) {
  const std::pair<const char*, const char*> signs[] = {
      {"...", ""}, {"V980", "checkstacks"}, {"L061 .01", "%"}, {" L062 ", "/"}, {" L020", " ("},
      {"( ", "("}, {" L021", ")"},          {" L075", ","}};
  for (const auto& [code, sign] : signs) phrase = Replaced(phrase, code, sign);
  return phrase.ends_with(" (") ? phrase.substr(0, phrase.size() - 2) : phrase;
}

// Whether people write it, and not rows before it.
bool IsOfWords(const std::string& typed) {
  return std::none_of(typed.begin(), typed.end(), [](unsigned char c) { return std::isupper(c) != 0; });
}

// "snn" as (s, n, m).
std::string Arguments(const std::string& kinds) {
  if (kinds.empty()) return {};
  if (kinds[0] == '*') return "(...)";
  std::string texts = "st";
  std::string numbers = "nm";
  std::string shown;
  for (const char kind : kinds) {
    std::string& names = kind == 's' ? texts : numbers;
    shown += (shown.empty() ? "" : ", ") + (kind == 'e' ? std::string("x") : names.substr(0, 1));
    if (kind != 'e') names.erase(0, 1);
  }
  return "(" + shown + ")";
}

// --- The tables.

// Every way to write a word.
std::string Phrases(const WordRow& word, const std::vector<Rewriting>& rewritings) {
  const std::string arguments = Arguments(word.arguments);
  std::string phrases = "`" + Typed(word.phrase) + arguments + "`";
  for (const Rewriting& other : rewritings)
    if (other.codes == word.token && word.token != "2" && IsOfWords(Typed(other.phrase)))
      phrases += ", `" + Typed(other.phrase) + arguments + "`";
  return phrases;
}

struct TableLine {
  std::string phrases;
  std::string doc;
};

// Words that say the same share a line.
std::vector<TableLine> LinesOf(const std::string& table) {
  std::vector<WordRow> words = Words();
  std::erase_if(words, [&table](const WordRow& word) { return word.table != table; });
  std::stable_sort(words.begin(), words.end(),
                   [](const WordRow& a, const WordRow& b) { return a.order < b.order; });
  const std::vector<Rewriting> rewritings = Rewritings();
  std::vector<TableLine> lines;
  std::map<std::string, bool> told;  // another phrase is told with the first word that it means
  for (const WordRow& word : words) {
    const std::string phrases =
        told.try_emplace(word.token).second ? Phrases(word, rewritings) : Phrases(word, {});
    const auto same =
        std::find_if(lines.begin(), lines.end(), [&](const TableLine& line) { return line.doc == word.doc; });
    if (same == lines.end())
      lines.push_back({phrases, word.doc});
    else
      same->phrases += ", " + phrases;
  }
  return lines;
}

// Words that are read as others.
std::vector<TableLine> LinesOfSpellings() {
  std::vector<TableLine> lines;
  for (const Rewriting& row : Rewritings()) {
    const bool words = std::islower(static_cast<unsigned char>(row.codes[0])) != 0 || row.codes[0] == '#';
    if (words) lines.push_back({"`" + Typed(row.phrase) + "`", "`" + row.codes + "`"});
  }
  return lines;
}

std::string Table(const std::string& name) {
  const std::vector<TableLine> lines = name == "spellings" ? LinesOfSpellings() : LinesOf(name);
  if (lines.empty()) return "no such table\n";
  std::string table =
      name == "spellings" ? "| written | read as |\n|---|---|\n" : "| words | meaning |\n|---|---|\n";
  for (const TableLine& line : lines) table += "| " + line.phrases + " | " + line.doc + " |\n";
  return table;
}

}  // namespace

std::string WithTablesOfRows(const std::string& reference) {
  static const std::string kBegin = "<!-- words: ";
  static const std::string kEnd = "<!-- end -->";
  std::istringstream lines(reference);
  std::string result;
  bool inTable = false;
  for (std::string line; std::getline(lines, line);) {
    if (line == kEnd) inTable = false;
    if (!inTable) result += line + "\n";
    if (!line.starts_with(kBegin)) continue;
    inTable = true;
    result += Table(line.substr(kBegin.size(), line.find(" -->") - kBegin.size()));
  }
  return result;
}

}  // namespace tessaryn::script_test
