#include "cli/lsp_text.h"

#include <algorithm>
#include <utility>

#include "autobet/language/characters.h"

namespace tessaryn::cli {
namespace {

std::size_t UnitsOf(const Character& character) { return character.code >= 0x10000 ? 2 : 1; }

}  // namespace

LspText::LspText(std::string text) : text_(std::move(text)) { CutIntoLines(); }

void LspText::CutIntoLines() {
  lines_.clear();
  starts_.clear();
  std::size_t start = 0;
  for (;;) {
    const std::size_t end = std::min(text_.find_first_of("\r\n", start), text_.size());
    starts_.push_back(start);
    lines_.push_back(text_.substr(start, end - start));
    if (end == text_.size()) return;
    start = end + (text_.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  }
}

std::size_t LspText::ByteOf(LspPlace place) const {
  if (place.line >= lines_.size()) return 0;
  const std::string& line = lines_[place.line];
  std::size_t byte = 0;
  for (std::size_t units = 0; byte < line.size();) {
    const Character character = CharacterAt(line, byte);
    units += UnitsOf(character);
    if (units > place.unit) break;
    byte += character.bytes;
  }
  return byte;
}

std::size_t LspText::UnitsBetween(std::size_t line, std::size_t begin, std::size_t end) const {
  if (line >= lines_.size()) return 0;
  const std::string& text = lines_[line];
  std::size_t units = 0;
  for (std::size_t at = begin; at < std::min(end, text.size());) {
    const Character character = CharacterAt(text, at);
    units += UnitsOf(character);
    at += character.bytes;
  }
  return units;
}

std::size_t LspText::Offset(LspPlace place) const {
  return place.line < lines_.size() ? starts_[place.line] + ByteOf(place) : text_.size();
}

void LspText::Replace(LspPlace begin, LspPlace end, std::string_view text) {
  const std::size_t from = Offset(begin);
  const std::size_t to = std::max(from, Offset(end));
  text_.replace(from, to - from, text);
  CutIntoLines();
}

}  // namespace tessaryn::cli
