// Small text helpers of the script compiler: case, blanks, and numbers as a script writes them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/letters.h"

namespace tessaryn {

// Blanks and control characters are what separates words, at the ends as well as within.
bool IsBlank(char c);
std::string_view Trimmed(std::string_view text);

// The parts one behind the other.
std::string Concat(std::initializer_list<std::string_view> parts);

// A number as scripts write it: digits with an optional point, an optional "-" in front and an optional
// exponent behind ("1e6"). False, with value unchanged, for anything else and for what a double can't hold.
bool ParseScriptNumber(std::string_view text, double& value);
// The general numeric form: the fewest digits that give the number back, never with an exponent.
std::string GeneralNumber(double value);

}  // namespace tessaryn
