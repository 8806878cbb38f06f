// What the fuzz targets share: a folder of their own to write in, and what must hold after every input.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tessaryn::fuzz {

inline void Require(bool holds, const std::string& what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what.c_str());
  std::abort();
}

// A new empty folder, in which the process then stands; gone when the process ends as it should.
class Folder {
 public:
  Folder() : path_(std::filesystem::temp_directory_path() / ("tessaryn-fuzz-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(path_);
    std::filesystem::current_path(path_);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  void Empty() const {
    for (const auto& entry : std::filesystem::directory_iterator(path_)) std::filesystem::remove_all(entry);
  }
  std::string Write(const char* name, const std::uint8_t* data, std::size_t size) const {
    const std::string path = path_ / name;
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(data), static_cast<long>(size));
    return path;
  }
  std::string Name(const char* name) const { return path_ / name; }
  std::string PathWithSeparator() const { return path_.string() + "/"; }

 private:
  std::filesystem::path path_;
};

inline std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tessaryn::fuzz
