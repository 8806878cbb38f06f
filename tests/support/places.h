// Where the programs under test and the sources lie, and how long tests are.
#pragma once

namespace tessaryn::test {

const char* BinFolder();
inline const char* const kBinFolder =
    BinFolder();                         // programs and their support files; no separator at the end
extern const char* const kSourceFolder;  // the project

// How often a long random test goes round: fewer times where the sanitizers look on.
int Rounds(int rounds);

}  // namespace tessaryn::test
