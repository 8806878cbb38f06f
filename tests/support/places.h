// Where the programs under test and the sources lie.
#pragma once

namespace tessaryn::test {

extern const char* const kBinFolder;     // programs and their support files; no separator at the end
extern const char* const kSourceFolder;  // the project

}  // namespace tessaryn::test
