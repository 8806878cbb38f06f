#include "support/places.h"

namespace tessaryn::test {

const char* const kBinFolder = TESSARYN_BIN_DIR;
const char* const kSourceFolder = TESSARYN_SOURCE_DIR;

}  // namespace tessaryn::test
