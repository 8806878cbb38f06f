// Letters and digits of the Latin alphabet, whatever the locale; other bytes stay as they are.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tessaryn {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr char Lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool IsLetter(char c) { return Lowered(c) >= 'a' && Lowered(c) <= 'z'; }

inline std::string Lowered(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = Lowered(c);
  return result;
}
// Alike but for capitals.
inline bool SameLetters(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Lowered(x) == Lowered(y); });
}

}  // namespace tessaryn
