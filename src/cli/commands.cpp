#include "cli/commands.h"

#include "base/money.h"

namespace tessaryn::cli {

double SecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string Whole(std::int64_t number) { return FormatMoney(Currency::Dollars(number)); }

}  // namespace tessaryn::cli
