#include "autobet/language/script_text.h"

#include <charconv>
#include <cmath>

namespace tessaryn {
namespace {

// Steps over digits and says how many there were.
std::size_t SkipDigits(std::string_view text, std::size_t& at) {
  const std::size_t start = at;
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at - start;
}

bool HasNumberShape(std::string_view text) {
  std::size_t at = !text.empty() && text[0] == '-' ? 1 : 0;
  std::size_t digits = SkipDigits(text, at);
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += SkipDigits(text, at);
  }
  if (digits == 0) return false;
  if (at < text.size() && text[at] == 'e') {
    ++at;
    if (SkipDigits(text, at) == 0) return false;
  }
  return at == text.size();
}

}  // namespace

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' ' || c == '\x7f'; }

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string Concat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text.append(part);
  return text;
}

bool ParseScriptNumber(std::string_view text, double& value) {
  if (!HasNumberShape(text)) return false;
  double parsed = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(parsed)) return false;
  value = parsed;
  return true;
}

std::string GeneralNumber(double value) {
  if (value == 0) return "0";
  char buffer[1200];  // the smallest double needs some 1100 places
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
  return error == std::errc() ? std::string(buffer, end) : std::string("0");
}

}  // namespace tessaryn
