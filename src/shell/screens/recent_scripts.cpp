#include "shell/screens/recent_scripts.h"

#include <QFileInfo>
#include <algorithm>
#include <sstream>

#include "base/record_file.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr std::size_t kMostRecent = 9;
constexpr std::uint64_t kLongestList = 1 << 20;  // bytes

std::string ListPath(const Game& game) { return game.ownFolder + "Recent Scripts.txt"; }

}  // namespace

std::vector<std::string> RecentScripts(const Game& game) {
  std::string content;
  if (!ReadWholeFile(ListPath(game), content, kLongestList).empty()) return {};
  std::vector<std::string> paths;
  std::istringstream lines(content);
  for (std::string path; paths.size() < kMostRecent && std::getline(lines, path);)
    if (TextProblem(path).empty() && QFileInfo(FromCore(path)).isFile()) paths.push_back(path);
  return paths;
}

void NoteRecentScript(const Game& game, const std::string& path) {
  std::vector<std::string> paths = RecentScripts(game);
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  paths.resize(std::min(paths.size(), kMostRecent));
  std::string content;
  for (const std::string& one : paths) content += one + "\n";
  ReplaceFile(ListPath(game), content);
}

}  // namespace tessaryn
