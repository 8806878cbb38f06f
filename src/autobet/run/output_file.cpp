#include "autobet/run/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "autobet/language/script_text.h"
#include "base/record_file.h"
#include "state/game.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

bool LiesWithin(const fs::path& path, const std::string& folder) {
  std::error_code fault;
  const fs::path root = fs::weakly_canonical(fs::path(folder), fault);
  if (fault || folder.empty()) return false;
  const fs::path inside = path.lexically_relative(root.has_filename() ? root : root.parent_path());
  return !inside.empty() && *inside.begin() != ".." && inside != ".";
}

// A library or program must not be replaced by what a script writes.
bool IsProgramFile(const fs::path& path) {
  const std::string extension = Lowered(path.extension().string());
  if (extension == ".dll" || extension == ".so" || extension == ".exe") return true;
  std::error_code fault;
  return fs::exists(path, fault) && (!fs::is_regular_file(path, fault) || access(path.c_str(), X_OK) == 0);
}

// What a player's script has made in this run of the program is not for another player's to write over.
bool MayWrite(AutoBet& autobet, const std::string& player, const std::string& path) {
  const auto [known, isNew] = autobet.OutputOwners.try_emplace(path, player);
  return isNew || known->second == player;
}

}  // namespace

bool ResolveOutputPath(const Game& game, const std::string& name, std::string& path) {
  if (Trimmed(name).empty() || !TextProblem(name).empty()) return false;
  const fs::path given{std::string(Trimmed(name))};
  const std::string own = game.ownFolder + kScriptOutputFolder;
  std::error_code fault;
  const fs::path full =
      fs::weakly_canonical(given.is_absolute() ? given : fs::absolute(own, fault) / given, fault);
  if (fault || !full.has_filename() || IsProgramFile(full)) return false;
  bool allowed = LiesWithin(full, own);
  for (const std::string& folder : game.autobet.AllowedOutputFolders)
    allowed = allowed || LiesWithin(full, folder);
  if (allowed) path = full.string();
  return allowed;
}

bool OpenScriptOutput(Game& game, SeatId seat, const std::string& name, bool append) {
  ScriptOutput& output = game.autobet.Scripts[seat].Output;
  std::error_code fault;
  // Made ahead, so that a name with ".." and the folder itself are looked up alike.
  fs::create_directory(game.ownFolder + kScriptOutputFolder, fault);
  std::string path;
  if (!ResolveOutputPath(game, name, path)) return false;
  if (!MayWrite(game.autobet, game.table.seats[seat].SeatName, path)) return false;
  if (output.File != nullptr) std::fclose(output.File);
  output.File = nullptr;
  // The path was resolved: a link or pipe that stands there now was put there since.
  const int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | (append ? O_APPEND : O_TRUNC);
  const int descriptor = open(path.c_str(), flags, 0666);
  if (descriptor < 0) return false;
  output.File = fdopen(descriptor, append ? "a" : "w");
  if (output.File == nullptr) close(descriptor);
  return output.File != nullptr;
}

bool WriteScriptOutput(Game& game, SeatId seat, const std::string& text) {
  std::FILE* file = game.autobet.Scripts[seat].Output.File;
  if (file == nullptr) return false;
  return std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fputc('\n', file) != EOF;
}

void FlushScriptOutputs(Game& game) {
  for (SeatScript& script : game.autobet.Scripts)
    if (script.Output.File != nullptr) std::fflush(script.Output.File);
}

}  // namespace tessaryn
