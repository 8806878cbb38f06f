// Where the programs under test and the sources lie, and how long tests are.
#pragma once

#include <cstdint>

namespace tessaryn::test {

const char* BinFolder();
inline const char* const kBinFolder =
    BinFolder();                         // programs and their support files; no separator at the end
extern const char* const kSourceFolder;  // the project

// How often a long random test goes round: fewer times where the sanitizers look on.
int Rounds(int rounds);
// How long one is: as the variable of the environment asks, else its usual length, or the one under the sanitizers.
std::int64_t LengthOf(const char* variable, std::int64_t usual, std::int64_t underSanitizers);

}  // namespace tessaryn::test
