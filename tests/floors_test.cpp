// The house stands on floors: each folder includes only those below it, and no files go round in a circle.
// A header and its source count as one.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/places.h"

namespace {

using Units = std::map<std::string, std::set<std::string>>;  // a unit and those that it includes

const std::vector<std::string> kFloors = {
    "base",        "state", "dice", "stats", "rules",       "autobet/language", "autobet/compile",
    "autobet/run", "play",  "lab",  "cli", "mpi",   "shell/table", "shell/screens",    "shell/frame"};

// The place of the unit's folder from below; -1 for a folder that has no floor.
int FloorOf(const std::string& unit) {
  const auto slash = unit.rfind('/');
  const auto found = std::find(kFloors.begin(), kFloors.end(), unit.substr(0, slash));
  return slash == std::string::npos || found == kFloors.end() ? -1
                                                              : static_cast<int>(found - kFloors.begin());
}

std::string WithoutEnding(const std::string& path) { return path.substr(0, path.rfind('.')); }

Units ReadUnits() {
  const std::filesystem::path source = std::filesystem::path(tessaryn::test::kSourceFolder) / "src";
  Units units;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(source)) {
    const std::string ending = entry.path().extension();
    if (ending != ".h" && ending != ".cpp" && ending != ".inc") continue;
    const std::string unit = WithoutEnding(std::filesystem::relative(entry.path(), source));
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include \"")) continue;
      std::string other = WithoutEnding(line.substr(10, line.rfind('"') - 10));
      if (other.find('/') == std::string::npos) other = unit.substr(0, unit.rfind('/') + 1) + other;
      if (other != unit) units[unit].insert(other);
    }
  }
  return units;
}

TEST(House, NoFolderIncludesOneAboveIt) {
  const Units units = ReadUnits();
  ASSERT_GT(units.size(), 100u);
  for (const auto& [unit, others] : units) {
    if (unit.starts_with("dice/support/")) continue;  // libraries of their own
    const int floor = FloorOf(unit);
    EXPECT_GE(floor, 0) << unit << " stands on no floor";
    for (const std::string& other : others)
      EXPECT_LE(FloorOf(other), floor) << unit << " reaches up to " << other;
  }
}

// The command line and the window are two houses on one ground.
TEST(House, TheWindowAndTheCommandLineDontUseEachOther) {
  for (const auto& [unit, others] : ReadUnits())
    for (const std::string& other : others)
      EXPECT_FALSE(unit.starts_with("shell/") && (other.starts_with("cli/") || other.starts_with("mpi/"))) << unit << " uses " << other;
}

TEST(House, NoFilesIncludeEachOtherInACircle) {
  const Units units = ReadUnits();
  std::set<std::string> done;
  std::vector<std::string> path;
  const std::function<void(const std::string&)> visit = [&](const std::string& unit) {
    const auto again = std::find(path.begin(), path.end(), unit);
    if (again != path.end()) {
      std::string circle;
      for (auto at = again; at != path.end(); ++at) circle += *at + " > ";
      ADD_FAILURE() << circle << unit;
      return;
    }
    if (done.contains(unit)) return;
    path.push_back(unit);
    if (const auto found = units.find(unit); found != units.end())
      for (const std::string& other : found->second) visit(other);
    path.pop_back();
    done.insert(unit);
  };
  for (const auto& [unit, others] : units) visit(unit);
}

}  // namespace
