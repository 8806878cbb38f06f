// Money, and the text forms of money. Everything else in the program stands on this header.
#pragma once

#include <cmath>
#include <compare>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace tessaryn {

// A signed 64-bit count of ten-thousandths of a dollar. Sums and differences are exact and checked: one
// that does not fit gives the error value, which stays an error through every further operation, so a
// procedure computes first, tests IsError() once and only then changes state.
struct Currency {
  std::int64_t raw = 0;  // ten-thousandths

  static constexpr std::int64_t kPerDollar = 10'000;
  static constexpr std::int64_t kErrorRaw = std::numeric_limits<std::int64_t>::min();

  static constexpr Currency FromRaw(std::int64_t value) { return Currency{value}; }
  static constexpr Currency Error() { return Currency{kErrorRaw}; }
  // Whole dollars; the error value when they don't fit.
  static constexpr Currency Dollars(std::int64_t dollars) {
    std::int64_t result = 0;
    return __builtin_mul_overflow(dollars, kPerDollar, &result) ? Error() : Currency{result};
  }
  // To four decimals, the nearest, an exact half to the even digit. Not a number or out of range: error.
  static Currency FromDouble(double dollars) {
    double scaled = dollars * 10'000.0;
    // Adding and taking away 1.5 * 2^52 leaves the nearest whole number, halves to even, without a call.
    if (std::fabs(scaled) < 0x1p51) {
      scaled = (scaled + 0x1.8p52) - 0x1.8p52;
      return Currency{static_cast<std::int64_t>(scaled)};
    }
    scaled = std::nearbyint(scaled);
    if (!(std::fabs(scaled) < 9.2233720368547748e18)) return Error();
    return Currency{static_cast<std::int64_t>(scaled)};
  }

  constexpr bool IsError() const { return raw == kErrorRaw; }
  constexpr double ToDouble() const { return static_cast<double>(raw) / 10'000.0; }
  constexpr bool IsWhole() const { return raw % kPerDollar == 0; }

  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr auto operator<=>(Currency, Currency) = default;

  friend constexpr Currency operator+(Currency a, Currency b) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a.raw, b.raw, &sum) || a.IsError() || b.IsError()) return Error();
    return Currency{sum};
  }
  friend constexpr Currency operator-(Currency a, Currency b) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a.raw, b.raw, &difference) || a.IsError() || b.IsError()) return Error();
    return Currency{difference};
  }
  constexpr Currency operator-() const { return IsError() ? *this : Currency{-raw}; }
  constexpr Currency& operator+=(Currency other) { return *this = *this + other; }
  constexpr Currency& operator-=(Currency other) { return *this = *this - other; }
};

// Product and quotient through double precision, back with four decimals. A zero divisor gives the error
// value.
inline Currency Multiply(Currency a, Currency b) {
  if (a.IsError() || b.IsError()) return Currency::Error();
  return Currency::FromDouble(a.ToDouble() * b.ToDouble());
}
inline Currency Divide(Currency a, Currency b) {
  if (a.IsError() || b.IsError() || b.raw == 0) return Currency::Error();
  return Currency::FromDouble(a.ToDouble() / b.ToDouble());
}
// The absolute value.
constexpr Currency Abs(Currency value) { return value.raw < 0 ? -value : value; }
// Downwards, towards minus infinity.
Currency WholePart(Currency value);
// Whether value is a whole multiple of unit. Requires unit > 0.
constexpr bool IsMultiple(Currency value, Currency unit) {
  // Most tables bet in dollars, and a division by a known number is a multiplication.
  if (unit.raw == Currency::kPerDollar) return value.raw % Currency::kPerDollar == 0;
  return value.raw % unit.raw == 0;
}
// Towards minus infinity to a multiple of unit. Requires unit > 0. The quotient is first brought to four
// decimals, as a payoff is rounded.
Currency RoundPartUnitDown(Currency value, Currency unit);
inline Currency RoundDownToUnit(Currency value, Currency unit) {
  return !value.IsError() && IsMultiple(value, unit) ? value : RoundPartUnitDown(value, unit);
}

inline constexpr Currency kZero{};

// "1,234,567", "-2.50", ".125", "0": thousands separators; two to four decimals unless whole.
std::string FormatMoney(Currency value);
// "1234567", "-2.5", "0.125": no separators, no trailing zeros; the form of the Events Log.
std::string PlainMoney(Currency value);
inline constexpr std::size_t kLongestPlainMoney = 24;
// Writes it where there is room for the longest; returns its end.
char* WritePlainMoney(char* to, Currency value);
// The reverse of both, also with a leading "$"; 0 for a text that is no number.
Currency ParseMoney(std::string_view text);
// As ParseMoney, but tells a text that is no number, or out of range, from 0: returns false and leaves
// value unchanged.
bool TryParseMoney(std::string_view text, Currency& value);
// The leading number of a text, blanks ignored; 0 without one. No thousands separators.
double LeadingNumber(std::string_view text);
// Whether a key may be typed into an amount box that holds text (backspace is '\b'). decimals: how many
// digits may follow the point; up to 13 whole digits.
bool FilterAmountKey(std::string_view text, char key, int decimals, bool allowMinus);

}  // namespace tessaryn
