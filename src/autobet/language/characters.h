// The characters of a text: its UTF-8 code points. A byte that belongs to none is a character of its own, so
// that every text has characters and none is lost.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessaryn {

// The character that begins at a byte of a text: its length in bytes, and its code (of a stray byte the
// byte).
struct Character {
  std::size_t bytes = 1;
  char32_t code = 0;
};
Character CharacterAt(std::string_view text, std::size_t at);

std::size_t CountCharacters(std::string_view text);
// The byte where character n begins, counted from 0; the end of the text when it has no more than n.
std::size_t CharacterStart(std::string_view text, std::size_t n);
// The text of one character.
std::string CharacterText(char32_t code);

// Where sought begins in text, from a byte on, in time that grows with the lengths alone; npos for nowhere.
std::size_t FindText(std::string_view text, std::string_view sought, std::size_t from);

}  // namespace tessaryn
