#include "cli/commands.h"

#include <cstdio>

namespace tessaryn::cli {

int Fail(const std::string& what) {
  std::fprintf(stderr, "tessaryn-cli: %s\n", what.c_str());
  return kBad;
}

}  // namespace tessaryn::cli
