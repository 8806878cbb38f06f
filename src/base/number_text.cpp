#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace tessaryn {
namespace {

constexpr std::uint64_t kPowersOfTen[] = {1, 10, 100, 1'000, 10'000};
constexpr int kMoneyDecimals = 4;

// scaled: the magnitude times ten to the format's most decimals.
std::string Text(bool negative, std::uint64_t scaled, const NumberFormat& format) {
  const std::uint64_t power = kPowersOfTen[format.mostDecimals];
  std::string whole = scaled / power == 0 ? "" : std::to_string(scaled / power);
  for (auto at = static_cast<int>(whole.size()) - 3; at > 0; at -= 3)
    whole.insert(static_cast<std::size_t>(at), 1, ',');
  std::string fraction = std::to_string(scaled % power + power).substr(1);
  while (fraction.size() > static_cast<std::size_t>(format.leastDecimals) && fraction.back() == '0')
    fraction.pop_back();
  if (whole.empty() && (format.wholeDigit || fraction.empty())) whole = "0";
  return (negative && scaled != 0 ? "-" : "") + whole + (fraction.empty() ? "" : "." + fraction) +
         format.suffix;
}

// The decimals that a value which isn't whole shows at least.
NumberFormat FewestFormat(bool whole) {
  NumberFormat format = kUpToFourDecimals;
  format.leastDecimals = whole ? 0 : 1;
  return format;
}

}  // namespace

std::string NumberText(double value, const NumberFormat& format) {
  if (!std::isfinite(value)) return kNoValueText;
  if (value == 0) return std::string("0") + format.suffix;
  const double scaled = std::round(std::fabs(value) * static_cast<double>(kPowersOfTen[format.mostDecimals]));
  constexpr double kMostScaled = 9e18;
  if (scaled < kMostScaled) return Text(value < 0, static_cast<std::uint64_t>(scaled), format);
  char text[400];
  std::snprintf(text, sizeof text, "%.0f%s", value, format.suffix);
  return text;
}

std::string NumberText(Currency value, const NumberFormat& format) {
  if (value.IsError()) return kNoValueText;
  if (value == kZero) return std::string("0") + format.suffix;
  const auto magnitude = static_cast<std::uint64_t>(Abs(value).raw);
  const std::uint64_t cut = kPowersOfTen[kMoneyDecimals - format.mostDecimals];
  return Text(value < kZero, (magnitude + cut / 2) / cut, format);
}

std::string FewestDecimals(double value) {
  constexpr double kLeastShown = 0.00005;
  if (value > 0 && value < kLeastShown) return "< 0.0001";
  if (value < 0 && value > -kLeastShown) return "0";
  return NumberText(value, FewestFormat(value == std::floor(value)));
}

std::string FewestDecimals(Currency value) { return NumberText(value, FewestFormat(value.IsWhole())); }

}  // namespace tessaryn
