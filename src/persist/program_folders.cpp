#include "persist/program_folders.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace tessaryn {

namespace fs = std::filesystem;

std::string ApplicationFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? "./" : program.parent_path().string() + "/";
}

std::string DefaultDataFolder() {
  const std::string application = ApplicationFolder();
  if (access(application.c_str(), W_OK) == 0) return application;
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data != 0)
    return std::string(data) + "/tessaryn/";
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "." : home) + "/.local/share/tessaryn/";
}

bool PrepareDataFolder(std::string& folder, std::string& error) {
  if (folder.empty()) folder = DefaultDataFolder();
  if (folder.back() != '/') folder += '/';
  std::error_code fault;
  fs::create_directories(folder, fault);
  if (!fs::is_directory(folder)) {
    error = "data folder " + folder + ": " + (fault ? fault.message() : "is no folder");
    return false;
  }
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
