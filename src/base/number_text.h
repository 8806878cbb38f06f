// Numbers as the instruments show them: thousands separators and as many decimals as their place asks for.
#pragma once

#include <string>

#include "base/money.h"

namespace tessaryn {

struct NumberFormat {
  int leastDecimals = 0;
  int mostDecimals = 0;    // up to 4
  bool wholeDigit = true;  // "0.50", else ".50"
  const char* suffix = "";
};

inline constexpr NumberFormat kWholeNumber{};                  // "#,#;-#,#;0"
inline constexpr NumberFormat kTwoDecimals{2, 2, false};       // "#,#.00;-#,#.00;0"
inline constexpr NumberFormat kUpToTwoDecimals{0, 2};          // "#,0.##;-#,0.##;0"
inline constexpr NumberFormat kUpToFourDecimals{0, 4};         // "#,0.####;-#,0.####;0"
inline constexpr NumberFormat kPercentShare{1, 2, true, "%"};  // "#,0.0#%;-#,0.0#%;0%"

// What stands for a value that there is none of: a quotient by 0, a sum that doesn't fit.
inline constexpr const char* kNoValueText = "---";

// Rounded, an exact half away from 0; a bare 0 for 0 itself. No minus in front of what rounds to 0.
std::string NumberText(double value, const NumberFormat& format);
std::string NumberText(Currency value, const NumberFormat& format);
// With the fewest decimals, up to four, that keep the value: "12", "12.5", "12.0625". A value that isn't
// whole shows one at least, and one above 0 that would show as 0 is "< 0.0001".
std::string FewestDecimals(double value);
std::string FewestDecimals(Currency value);

}  // namespace tessaryn
