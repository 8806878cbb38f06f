#include "autobet/script_files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

#include "autobet/script_text.h"

namespace tessaryn {
namespace {

constexpr std::size_t kRecordSize = 256;
constexpr std::size_t kTextSize = 128;
constexpr std::size_t kKindOffset = 128;
constexpr std::size_t kMostBytes = 64u << 20;

constexpr std::string_view kOldMarks[] = {
    "Quorvelian AutoBets, Data Format 5.0",
    "Tessaryn AutoBets, Data Format 3.9",
    "Tessaryn AutoBets, Data Format 5.0",
};

// The kinds of an old statement that matter to its reader.
constexpr int kFirstBlockKind = 1;
constexpr int kSecondBlockKind = 2;
constexpr int kSilentKind = 13;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

ScriptFileResult Fault(const std::filesystem::path& path, const std::string& reason) {
  return {ScriptFileProblem::kFault, path.string() + ": " + reason};
}

ScriptFileResult SystemFault(const std::filesystem::path& path) { return Fault(path, std::strerror(errno)); }

int ByteAt(std::string_view record, std::size_t at) {
  return at < record.size() ? static_cast<unsigned char>(record[at]) : 0;
}

std::vector<std::string> ReadOldScript(std::string_view bytes) {
  std::vector<std::string> lines;
  bool blockOpen = false;
  for (std::size_t at = kRecordSize; at < bytes.size(); at += kRecordSize) {
    const std::string_view record = bytes.substr(at, kRecordSize);
    if (ByteAt(record, 0) < 1) continue;
    const int kind = ByteAt(record, kKindOffset) | ByteAt(record, kKindOffset + 1) << 8;
    const bool opensBlock = kind == kFirstBlockKind || kind == kSecondBlockKind;
    // The old form had no block ends: a block lasted until the next one.
    if (blockOpen && (opensBlock || kind == kSilentKind)) lines.emplace_back(" EndIf");
    if (opensBlock || kind == kSilentKind) blockOpen = opensBlock;
    if (kind == kSilentKind) continue;
    const std::string_view text = record.substr(0, kTextSize);
    lines.push_back(ConvertOldStatement(text.substr(0, text.find('\0'))));
  }
  return lines;
}

std::vector<std::string> ReadText(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < bytes.size()) {
    std::size_t end = bytes.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = bytes.size();
    lines.emplace_back(bytes.substr(start, end - start));
    const bool pair = end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n';
    start = end + (pair ? 2 : 1);
  }
  return lines;
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
#if defined(__unix__) || defined(__APPLE__)
  // Some file systems can't; the data is in the system's hands then.
  return ::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
#else
  return true;
#endif
}

ScriptFileResult WriteBeside(const std::filesystem::path& path, const std::vector<std::string>& lines) {
  const FileHandle file(std::fopen(path.string().c_str(), "w"));
  if (!file) return SystemFault(path);
  for (const std::string& line : lines) {
    const bool written = std::fwrite(line.data(), 1, line.size(), file.get()) == line.size();
    if (!written || std::fputc('\n', file.get()) == EOF) return SystemFault(path);
  }
  return FlushToDisk(file.get()) ? ScriptFileResult{} : SystemFault(path);
}

ScriptFileResult ReadBytes(const std::filesystem::path& path, std::string& bytes) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) return {ScriptFileProblem::kNotFound, path.string() + ": not found"};
  if (std::filesystem::is_directory(status)) return Fault(path, "is a folder");
  const FileHandle file(std::fopen(path.string().c_str(), "rb"));
  if (!file) return SystemFault(path);
  char buffer[16384];
  while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get())) {
    bytes.append(buffer, count);
    if (bytes.size() > kMostBytes) return Fault(path, "too large for a script");
  }
  return std::ferror(file.get()) ? SystemFault(path) : ScriptFileResult{};
}

}  // namespace

bool IsOldScript(std::string_view bytes) {
  for (const std::string_view mark : kOldMarks) {
    if (bytes.starts_with(mark)) return true;
  }
  return false;
}

std::vector<std::string> ScriptLinesOf(std::string_view bytes) {
  return IsOldScript(bytes) ? ReadOldScript(bytes) : ReadText(bytes);
}

ScriptFileResult ReadScriptFile(const std::filesystem::path& path, std::vector<std::string>& lines) {
  std::string bytes;
  ScriptFileResult result = ReadBytes(path, bytes);
  if (result.Ok()) lines = ScriptLinesOf(bytes);
  return result;
}

ScriptFileResult WriteScriptFile(const std::filesystem::path& path, const std::vector<std::string>& lines) {
  std::filesystem::path beside = path;
  beside += ".new~";
  std::error_code error;
  ScriptFileResult result = WriteBeside(beside, lines);
  if (result.Ok()) {
    std::filesystem::rename(beside, path, error);
    if (error) result = Fault(path, error.message());
  }
  if (!result.Ok()) std::filesystem::remove(beside, error);
  return result;
}

}  // namespace tessaryn
