#include "autobet/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "autobet/script_text.h"
#include "engine/game.h"

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

}  // namespace

bool ResolveOutputPath(const Game& game, const std::string& name, std::string& path) {
  if (Trimmed(name).empty() || name.find('\0') != std::string::npos) return false;
  const fs::path given{std::string(Trimmed(name))};
  std::error_code fault;
  const fs::path full =
      fs::weakly_canonical(given.is_absolute() ? given : fs::path(game.dataFolder) / given, fault);
  if (fault || !full.has_filename() || IsProgramFile(full)) return false;
  bool allowed = given.is_relative() && LiesWithin(full, game.dataFolder);
  for (const std::string& folder : game.autobet.AllowedOutputFolders)
    allowed = allowed || LiesWithin(full, folder);
  if (allowed) path = full.string();
  return allowed;
}

bool OpenScriptOutput(Game& game, int seat, const std::string& name, bool append) {
  ScriptOutput& output = game.autobet.Scripts[seat].Output;
  std::string path;
  if (!ResolveOutputPath(game, name, path)) return false;
  if (output.File != nullptr) std::fclose(output.File);
  output.File = nullptr;
  // The path was resolved: a link that stands there now was put there since.
  const int flags = O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | (append ? O_APPEND : O_TRUNC);
  const int descriptor = open(path.c_str(), flags, 0666);
  if (descriptor < 0) return false;
  output.File = fdopen(descriptor, append ? "a" : "w");
  if (output.File == nullptr) close(descriptor);
  return output.File != nullptr;
}

bool WriteScriptOutput(Game& game, int seat, const std::string& text) {
  std::FILE* file = game.autobet.Scripts[seat].Output.File;
  if (file == nullptr) return false;
  return std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fputc('\n', file) != EOF;
}

void FlushScriptOutputs(Game& game) {
  for (SeatScript& script : game.autobet.Scripts)
    if (script.Output.File != nullptr) std::fflush(script.Output.File);
}

}  // namespace tessaryn
