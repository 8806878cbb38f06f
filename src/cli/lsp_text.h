// A text as an editor and the language server share it: places as lines and UTF-16 units, both from 0.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessaryn::cli {

struct LspPlace {
  std::size_t line = 0;
  std::size_t unit = 0;
};

class LspText {
 public:
  explicit LspText(std::string text = {});

  // Puts text, UTF-8, in place of a stretch. Places behind the end of a line or of the text mean that end;
  // one in the middle of a character its begin.
  void Replace(LspPlace begin, LspPlace end, std::string_view text);
  // The lines without their ends: \n, \r\n or \r. A text that ends with one has an empty line behind it.
  const std::vector<std::string>& Lines() const { return lines_; }
  // The byte of a line that a place means, the units up to a byte, and those from a byte to another.
  std::size_t ByteOf(LspPlace place) const;
  std::size_t UnitOf(std::size_t line, std::size_t byte) const { return UnitsBetween(line, 0, byte); }
  std::size_t UnitsBetween(std::size_t line, std::size_t begin, std::size_t end) const;

 private:
  std::size_t Offset(LspPlace place) const;
  void CutIntoLines();

  std::string text_;
  std::vector<std::string> lines_;
  std::vector<std::size_t> starts_;  // of the lines in the text
};

}  // namespace tessaryn::cli
