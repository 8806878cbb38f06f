#include "support/places.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tessaryn::test {
// The tests stand beside the programs that they try.
const char* BinFolder() {
  static const std::string folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  return folder.c_str();
}

const char* const kSourceFolder = TESSARYN_SOURCE_DIR;

int Rounds(int rounds) {
  constexpr int kShare = 8;
  return std::getenv("TESSARYN_SANITIZED") != nullptr ? rounds / kShare : rounds;
}

std::int64_t LengthOf(const char* variable, std::int64_t usual, std::int64_t underSanitizers) {
  if (const char* asked = std::getenv(variable)) return std::atoll(asked);
  return std::getenv("TESSARYN_SANITIZED") != nullptr ? underSanitizers : usual;
}

}  // namespace tessaryn::test
