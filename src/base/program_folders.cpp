#include "base/program_folders.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/record_file.h"

namespace tessaryn {

namespace fs = std::filesystem;

std::string ApplicationFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? "./" : program.parent_path().string() + "/";
}

std::string DefaultDataFolder() {
  const std::string application = ApplicationFolder();
  // What the system has installed is no portable copy, not even for who may write there.
  const bool portable = !application.starts_with("/usr/") && access(application.c_str(), W_OK) == 0;
  if (portable) return application;
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data != 0)
    return std::string(data) + "/tessaryn/";
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "." : home) + "/.local/share/tessaryn/";
}

namespace {

// Why a folder can't be worked in; empty when it can.
std::string FolderProblem(const std::string& folder) {
  if (std::string problem = TextProblem(folder); !problem.empty()) return problem;
  std::error_code fault;
  fs::create_directories(folder, fault);
  std::error_code unseen;
  if (!fs::is_directory(folder, unseen))
    return fault ? fault.message() : unseen ? unseen.message() : "is no folder";
  if (faccessat(AT_FDCWD, folder.c_str(), R_OK | X_OK, AT_EACCESS) != 0)
    return std::system_category().message(errno);
  return {};
}

}  // namespace

bool PrepareDataFolder(std::string& folder, std::string& error) {
  if (folder.empty()) folder = DefaultDataFolder();
  if (folder.back() != '/') folder += '/';
  const std::string problem = FolderProblem(folder);
  if (!problem.empty()) {
    error = "data folder " + folder + ": " + problem;
    return false;
  }
  // What files name by it is found from any folder.
  std::error_code unknown;
  const fs::path full = fs::absolute(folder, unknown);
  // Behind a link, ".." is another folder than it looks.
  const bool plain = folder.find("..") == folder.npos;
  if (!unknown) folder = (plain ? full.lexically_normal() : full).string();
  return true;
}

// Tried, since permissions alone don't tell of a system that is mounted to be read.
bool CanWriteIn(const std::string& folder) {
  std::string name = folder + ".writable-XXXXXX";
  const int file = mkstemp(name.data());
  if (file < 0) return false;
  close(file);
  unlink(name.c_str());
  return true;
}

}  // namespace tessaryn
