#include "autobet/language/script_files.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "autobet/language/script_text.h"
#include "base/record_file.h"

namespace tessaryn {
namespace {

constexpr std::size_t kTextSize = 128;
constexpr std::size_t kKindOffset = 128;
constexpr std::size_t kMostBytes = 4u << 20;  // the compiler takes a million words

constexpr std::string_view kOldMarks[] = {
    "Quorvelian AutoBets, Data Format 5.0",
    "Tessaryn AutoBets, Data Format 3.9",
    "Tessaryn AutoBets, Data Format 5.0",
};

// The kinds of an old statement that matter to its reader.
constexpr int kFirstBlockKind = 1;
constexpr int kSecondBlockKind = 2;
constexpr int kSilentKind = 13;

int ByteAt(std::string_view record, std::size_t at) {
  return at < record.size() ? static_cast<unsigned char>(record[at]) : 0;
}

std::vector<std::string> ReadOldScript(std::string_view bytes) {
  std::vector<std::string> lines;
  bool blockOpen = false;
  for (std::size_t at = kRecordBytes; at < bytes.size(); at += kRecordBytes) {
    const std::string_view record = bytes.substr(at, kRecordBytes);
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

ScriptFileResult ReadScriptFile(const std::string& path, std::vector<std::string>& lines) {
  std::error_code error;
  if (!std::filesystem::exists(path, error) && !error) {
    return {ScriptFileProblem::kNotFound, Concat({path, " not found"})};
  }
  std::string bytes;
  std::string fault = ReadWholeFile(path, bytes, kMostBytes);
  if (!fault.empty()) return {ScriptFileProblem::kFault, std::move(fault)};
  lines = ScriptLinesOf(bytes);
  return {};
}

ScriptFileResult WriteScriptFile(const std::string& path, const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes.append(line).append("\n");
  std::string fault = ReplaceFile(path, bytes);
  if (!fault.empty()) return {ScriptFileProblem::kFault, std::move(fault)};
  return {};
}

}  // namespace tessaryn
