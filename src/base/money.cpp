#include "base/money.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace tessaryn {

Currency WholePart(Currency value) {
  if (value.IsError()) return value;
  std::int64_t whole = value.raw / Currency::kPerDollar;
  if (value.raw % Currency::kPerDollar < 0) --whole;
  return Currency::Dollars(whole);
}

Currency RoundPartUnitDown(Currency value, Currency unit) {
  const Currency units = WholePart(Divide(value, unit));
  if (units.IsError()) return units;
  std::int64_t result = 0;
  if (__builtin_mul_overflow(units.raw / Currency::kPerDollar, unit.raw, &result)) return Currency::Error();
  return Currency::FromRaw(result);
}

namespace {

struct Digits {
  bool negative;
  std::string whole;     // no leading zero; empty for 0
  std::string fraction;  // four digits
};

Digits Split(Currency value) {
  const bool negative = value.raw < 0;
  const std::uint64_t magnitude =
      negative ? 0 - static_cast<std::uint64_t>(value.raw) : static_cast<std::uint64_t>(value.raw);
  const std::uint64_t whole = magnitude / Currency::kPerDollar;
  std::string fraction = std::to_string(magnitude % Currency::kPerDollar);
  fraction.insert(0, 4 - fraction.size(), '0');
  return {negative, whole == 0 ? std::string() : std::to_string(whole), fraction};
}

void TrimZeros(std::string& fraction, std::size_t keep) {
  while (fraction.size() > keep && fraction.back() == '0') fraction.pop_back();
}

}  // namespace

std::string FormatMoney(Currency value) {
  Digits digits = Split(value);
  for (int at = static_cast<int>(digits.whole.size()) - 3; at > 0; at -= 3) digits.whole.insert(at, 1, ',');
  std::string text = digits.negative ? "-" : "";
  if (value.IsWhole()) return text + (digits.whole.empty() ? "0" : digits.whole);
  TrimZeros(digits.fraction, 2);
  return text + digits.whole + "." + digits.fraction;
}

char* WritePlainMoney(char* to, Currency value) {
  if (value.raw < 0) *to++ = '-';
  const std::uint64_t magnitude =
      value.raw < 0 ? 0 - static_cast<std::uint64_t>(value.raw) : static_cast<std::uint64_t>(value.raw);
  constexpr int kMostDigits = 20;
  to = std::to_chars(to, to + kMostDigits, magnitude / Currency::kPerDollar).ptr;
  std::uint64_t fraction = magnitude % Currency::kPerDollar;
  if (fraction == 0) return to;
  *to++ = '.';
  for (std::uint64_t place = Currency::kPerDollar / 10; fraction != 0; place /= 10) {
    *to++ = static_cast<char>('0' + fraction / place);
    fraction %= place;
  }
  return to;
}

std::string PlainMoney(Currency value) {
  char text[kLongestPlainMoney];
  return std::string(text, WritePlainMoney(text, value));
}

double LeadingNumber(std::string_view text) {
  std::string compact;
  for (char c : text)
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') compact += c;
  const char* first = compact.data();
  const char* last = first + compact.size();
  if (first != last && *first == '+') ++first;
  if (first == last || !(std::isdigit(static_cast<unsigned char>(*first)) || *first == '-' || *first == '.'))
    return 0;
  double value = 0;
  const auto result = std::from_chars(first, last, value);
  return result.ec == std::errc() && std::isfinite(value) ? value : 0;
}

bool TryParseMoney(std::string_view text, Currency& value) {
  std::string number;
  bool negative = false;
  bool digitSeen = false;
  bool pointSeen = false;
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') {
      digitSeen = true;
      number += c;
    } else if (c == '.' && !pointSeen) {
      pointSeen = true;
      number += c;
    } else if ((c == '-' || c == '+') && number.empty() && i == 0) {
      negative = c == '-';
    } else if (c == '$' && number.empty()) {
      continue;
    } else if (c == ',' && digitSeen && !pointSeen) {
      continue;
    } else {
      return false;
    }
  }
  if (!digitSeen) return false;
  // Whole and fraction are taken apart so that the largest amounts stay exact.
  const auto point = number.find('.');
  const std::string whole = number.substr(0, point);
  std::string fraction = point == std::string::npos ? "" : number.substr(point + 1);
  std::int64_t dollars = 0;
  if (!whole.empty() && std::from_chars(whole.data(), whole.data() + whole.size(), dollars).ec != std::errc())
    return false;
  const bool halfOrMore = fraction.size() > 4;
  std::string rest = halfOrMore ? fraction.substr(4) : "";
  fraction.resize(4, '0');
  std::int64_t parts = std::stoll(fraction);
  if (halfOrMore) {
    const bool above =
        rest[0] > '5' || (rest[0] == '5' && rest.find_first_not_of('0', 1) != std::string::npos);
    const bool exactHalf = rest[0] == '5' && !above;
    if (above || (exactHalf && parts % 2 == 1)) ++parts;
  }
  const Currency result = Currency::Dollars(dollars) + Currency::FromRaw(parts);
  if (result.IsError()) return false;
  value = negative ? -result : result;
  return true;
}

Currency ParseMoney(std::string_view text) {
  Currency value;
  TryParseMoney(text, value);
  return value;
}

bool FilterAmountKey(std::string_view text, char key, int decimals, bool allowMinus) {
  if (key == '\b') return true;
  const auto point = text.find('.');
  const auto wholeDigits =
      std::count_if(text.begin(), point == std::string_view::npos ? text.end() : text.begin() + point,
                    [](char c) { return c >= '0' && c <= '9'; });
  if (key == '-') return allowMinus && text.empty();
  if (key == '.') return decimals > 0 && point == std::string_view::npos;
  if (key < '0' || key > '9') return false;
  if (point != std::string_view::npos) return static_cast<int>(text.size() - point - 1) < decimals;
  return wholeDigits < 13;
}

}  // namespace tessaryn
