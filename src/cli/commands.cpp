#include "cli/commands.h"

#include <unistd.h>

#include "base/money.h"
#include "base/program_folders.h"

namespace tessaryn::cli {

std::string PathInDataFolder(const std::string& name, std::string dataFolder) {
  const auto exists = [](const std::string& path) { return access(path.c_str(), F_OK) == 0; };
  if (exists(name) || name.find('/') != std::string::npos) return name;
  if (dataFolder.empty()) dataFolder = DefaultDataFolder();
  if (dataFolder.back() != '/') dataFolder += '/';
  return exists(dataFolder + name) ? dataFolder + name : name;
}

double SecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string Whole(std::int64_t number) { return FormatMoney(Currency::Dollars(number)); }

}  // namespace tessaryn::cli
