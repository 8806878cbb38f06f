// How a program tells what is wrong. What uses its commands without being a program has procedures of its
// own.
#include <cerrno>
#include <cstdio>

#include "cli/commands.h"

namespace tessaryn::cli {

int Fail(const std::string& what) {
  std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, what.c_str());
  return kBad;
}

int FailInLines(const std::string& lines) {
  std::fputs(lines.c_str(), stderr);
  return kBad;
}

}  // namespace tessaryn::cli
