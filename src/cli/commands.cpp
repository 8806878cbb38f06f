#include "cli/commands.h"

#include <cstdio>

#include "base/money.h"

namespace tessaryn::cli {

int Fail(const std::string& what) {
  std::fprintf(stderr, "tessaryn-cli: %s\n", what.c_str());
  return kBad;
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string Whole(std::int64_t number) { return FormatMoney(Currency::Dollars(number)); }

}  // namespace tessaryn::cli
