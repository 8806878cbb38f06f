#include "support/places.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tessaryn::test {
namespace {

// The tests stand beside the programs that they try.
const std::string kOwnFolder = std::filesystem::read_symlink("/proc/self/exe").parent_path();

}  // namespace

const char* const kBinFolder = kOwnFolder.c_str();
const char* const kSourceFolder = TESSARYN_SOURCE_DIR;

int Rounds(int rounds) {
  constexpr int kShare = 8;
  return std::getenv("TESSARYN_SANITIZED") != nullptr ? rounds / kShare : rounds;
}

}  // namespace tessaryn::test
