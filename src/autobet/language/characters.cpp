#include "autobet/language/characters.h"

#include <cstdint>
#include <cstring>

namespace tessaryn {
namespace {

// By its first byte: how long a character is, and from which code on it must be so long.
struct CharacterForm {
  unsigned char mask;
  unsigned char mark;
  std::size_t bytes;
  char32_t least;
};

constexpr CharacterForm kForms[] = {
    {0xe0, 0xc0, 2, 0x80},
    {0xf0, 0xe0, 3, 0x800},
    {0xf8, 0xf0, 4, 0x10000},
};

bool IsCode(char32_t code) { return code <= 0x10ffff && (code < 0xd800 || code > 0xdfff); }

// Most texts are plain: eight bytes at once that are a character each.
bool EightPlain(std::string_view text, std::size_t at) {
  std::uint64_t bytes = 0;
  if (at + sizeof bytes > text.size()) return false;
  std::memcpy(&bytes, text.data() + at, sizeof bytes);
  return (bytes & 0x8080808080808080u) == 0;
}

// Steps over up to most characters from byte at on, and says how many there were.
std::size_t SkipCharacters(std::string_view text, std::size_t most, std::size_t& at) {
  std::size_t count = 0;
  while (count < most && at < text.size()) {
    const bool plain = count + 8 <= most && EightPlain(text, at);
    at += plain ? 8 : CharacterAt(text, at).bytes;
    count += plain ? 8 : 1;
  }
  return count;
}

}  // namespace

Character CharacterAt(std::string_view text, std::size_t at) {
  const auto byte = [&text](std::size_t place) { return static_cast<unsigned char>(text[place]); };
  const Character stray{1, byte(at)};
  for (const CharacterForm& form : kForms) {
    if ((byte(at) & form.mask) != form.mark) continue;
    if (at + form.bytes > text.size()) return stray;
    char32_t code = byte(at) & static_cast<unsigned char>(~form.mask);
    for (std::size_t i = 1; i < form.bytes; ++i) {
      if ((byte(at + i) & 0xc0) != 0x80) return stray;
      code = code << 6 | (byte(at + i) & 0x3f);
    }
    return code >= form.least && IsCode(code) ? Character{form.bytes, code} : stray;
  }
  return stray;
}

std::size_t CountCharacters(std::string_view text) {
  std::size_t at = 0;
  return SkipCharacters(text, text.size(), at);
}

std::size_t CharacterStart(std::string_view text, std::size_t n) {
  std::size_t at = 0;
  SkipCharacters(text, n, at);
  return at;
}

std::string CharacterText(char32_t code) {
  if (code < 0x80) return std::string(1, static_cast<char>(code));
  std::size_t form = 0;
  while (form < 2 && code >= kForms[form + 1].least) ++form;
  std::string text(kForms[form].bytes, '\0');
  for (std::size_t i = text.size() - 1; i > 0; --i, code >>= 6)
    text[i] = static_cast<char>(0x80 | (code & 0x3f));
  text[0] = static_cast<char>(kForms[form].mark | code);
  return text;
}

std::size_t FindText(std::string_view text, std::string_view sought, std::size_t from) {
  if (from > text.size()) return std::string_view::npos;
  // Of the searches at hand this one alone never looks at a stretch again and again.
  const void* found = memmem(text.data() + from, text.size() - from, sought.data(), sought.size());
  if (found == nullptr) return std::string_view::npos;
  return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

}  // namespace tessaryn
