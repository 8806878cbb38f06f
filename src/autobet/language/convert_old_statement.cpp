#include <algorithm>
#include <string>

#include "autobet/language/old_script_rows.h"
#include "autobet/language/script_files.h"
#include "autobet/language/script_text.h"

namespace tessaryn {
namespace {

// The apostrophe of "don't" begins no comment.
bool IsDont(std::string_view text, std::size_t apostrophe) {
  return apostrophe >= 3 && apostrophe + 1 < text.size() &&
         Lowered(text.substr(apostrophe - 3, 3)) == "don" && Lowered(text[apostrophe + 1]) == 't';
}

std::size_t CommentStart(std::string_view text) {
  bool quoted = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') quoted = !quoted;
    if (text[at] == '\'' && !quoted && !IsDont(text, at)) return at;
  }
  return text.size();
}

// One sweep: a result is not searched again, so that a row may hold its own source.
void Replace(std::string& text, std::string& lowered, const OldScriptRow& row) {
  std::size_t found = lowered.find(row.source);
  if (found == std::string::npos) return;
  std::string result;
  std::size_t at = 0;
  for (; found != std::string::npos; found = lowered.find(row.source, at)) {
    result.append(text, at, found - at).append(row.result);
    at = found + row.source.size();
  }
  text = result.append(text, at, std::string::npos);
  lowered = Lowered(text);
}

void ReplaceAll(std::string& text, const std::vector<OldScriptRow>& rows) {
  std::string lowered = Lowered(text);
  for (const OldScriptRow& row : rows) Replace(text, lowered, row);
}

// "place(CheckStack3" has lost its end: the bracket closes behind the number.
void CloseReferences(std::string& text) {
  constexpr std::string_view kOpening = "(checkstack";
  for (std::size_t at = Lowered(text).find(kOpening); at != std::string::npos;
       at = Lowered(text).find(kOpening, at)) {
    at += kOpening.size();
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
    if (at == text.size() || text[at] != ')') text.insert(at, 1, ')');
  }
}

// Which stack's name a comparison meant: the stack ahead of it, else the one behind.
void NameStack(std::string& text, std::size_t comparison) {
  constexpr std::string_view kStack = "checkstack";
  const std::string lowered = Lowered(text);
  std::size_t stack = lowered.rfind(kStack, comparison);
  if (stack == std::string::npos) stack = lowered.find(kStack, comparison);
  if (stack == std::string::npos || lowered.compare(stack, 14, "checkstackname") == 0) return;
  text.insert(stack + kStack.size(), "Name");
}

// Each comparison of names, while it can still be told from one of values.
void NameStacks(std::string& text) {
  for (const std::string_view phrase : {"is not named", "is named"}) {
    for (std::size_t at = Lowered(text).find(phrase); at != std::string::npos;
         at = Lowered(text).find(phrase, at + phrase.size() + 4)) {
      NameStack(text, at);
    }
  }
}

// "highest of place bets on field" -> "highest(place bets) on field".
void BracketLists(std::string& text) {
  for (const std::string_view phrase : {"highest of ", "lowest of ", "average of "}) {
    std::size_t at = Lowered(text).find(phrase);
    while (at != std::string::npos) {
      const std::size_t open = at + phrase.size() - 4;
      text.erase(open, 3);
      text[open] = '(';
      const std::string lowered = Lowered(text);
      std::size_t end = text.size();
      for (const std::string_view stop : {" on ", " to ", " from "})
        end = std::min(end, lowered.find(stop, open));
      while (end > open + 1 && text[end - 1] == ' ') --end;
      text.insert(end, 1, ')');
      at = Lowered(text).find(phrase, open);
    }
  }
}

}  // namespace

std::string ConvertOldStatement(std::string_view statement) {
  const std::size_t comment = CommentStart(statement);
  std::string text(" ");  // padded, so that the first and last word match too
  text.append(statement.substr(0, comment)).append(" ");
  ReplaceAll(text, OldScriptRows());
  NameStacks(text);
  ReplaceAll(text, OldScriptClosingRows());
  CloseReferences(text);
  BracketLists(text);
  std::string result(Trimmed(text));
  if (comment < statement.size()) {
    if (!result.empty()) result += ' ';
    result.append(Trimmed(statement.substr(comment)));
  }
  return result;
}

}  // namespace tessaryn
