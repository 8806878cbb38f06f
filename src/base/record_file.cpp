#include "base/record_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <bit>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "base/interrupts.h"
#include "base/messages.h"

namespace tessaryn {
namespace {

template <typename Unsigned>
void PutBytes(Record& record, std::size_t offset, Unsigned value) {
  if (offset > kRecordBytes - sizeof value) return;
  for (std::size_t i = 0; i < sizeof value; ++i)
    record[offset + i] = static_cast<unsigned char>((value >> (8 * i)) & 0xff);
}

template <typename Unsigned>
Unsigned GetBytes(const Record& record, std::size_t offset) {
  if (offset > kRecordBytes - sizeof(Unsigned)) return 0;
  Unsigned value = 0;
  for (std::size_t i = 0; i < sizeof value; ++i)
    value = static_cast<Unsigned>(value | (static_cast<Unsigned>(record[offset + i]) << (8 * i)));
  return value;
}

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xc0) == 0x80; }

struct Descriptor {
  int Number = -1;
  explicit Descriptor(int number) : Number(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (Number >= 0) close(Number);
  }
};

bool WriteAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(descriptor, content.data(), content.size());
    // A pipe whose reader sleeps would hold up the program's end; a file is written on.
    if (written < 0 && errno == EINTR && !Interrupted()) continue;
    if (written <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

constexpr std::string_view kTemporaryStart = ".tessaryn-";
constexpr std::string_view kTemporaryEnd = "~";

// A name that no file of the user's has, whatever the target is called.
std::string TemporaryBeside(const std::string& target) {
  static std::atomic<unsigned> made{0};
  std::string path(target, 0, target.rfind('/') + 1);
  path.append(kTemporaryStart).append(std::to_string(getpid()));
  return path.append("-").append(std::to_string(++made)).append(kTemporaryEnd);
}

// A new file that is locked as long as its writer lives: what nobody holds is a leftover. -1 with errno.
int CreateTemporary(const std::string& path) {
  for (;;) {
    unlink(path.c_str());  // of a killed program that had the same number
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0) return -1;
    flock(descriptor, LOCK_EX | LOCK_NB);
    // Another program that clears leftovers may have come between the two.
    struct stat made {};
    if (fstat(descriptor, &made) == 0 && made.st_nlink > 0) return descriptor;
    close(descriptor);
  }
}

// The renaming is on the disk only when the folder is. A folder that can't be flushed is no reason to call
// the save failed: the new file is in its place.
void FlushFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const Descriptor descriptor(
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.Number >= 0) fsync(descriptor.Number);
}

// What a path stands for when it is a symbolic link, so that the link itself stays.
std::string LinkTarget(const std::string& path) {
  std::error_code failed;
  if (!std::filesystem::is_symlink(path, failed)) return path;
  const auto target = std::filesystem::weakly_canonical(path, failed);
  return failed ? path : target.string();
}

}  // namespace

void PutInt16(Record& record, std::size_t offset, std::int16_t value) {
  PutBytes(record, offset, static_cast<std::uint16_t>(value));
}
void PutInt32(Record& record, std::size_t offset, std::int32_t value) {
  PutBytes(record, offset, static_cast<std::uint32_t>(value));
}
void PutInt64(Record& record, std::size_t offset, std::int64_t value) {
  PutBytes(record, offset, static_cast<std::uint64_t>(value));
}
void PutDouble(Record& record, std::size_t offset, double value) {
  PutBytes(record, offset, std::bit_cast<std::uint64_t>(value));
}
void PutCurrency(Record& record, std::size_t offset, Currency value) { PutInt64(record, offset, value.raw); }

void PutText(Record& record, std::size_t offset, std::size_t width, std::string_view text) {
  if (offset > kRecordBytes || width > kRecordBytes - offset) return;
  const std::string_view cut = CutText(text, width);
  std::memset(record.data() + offset, ' ', width);
  std::memcpy(record.data() + offset, cut.data(), cut.size());
}

std::int16_t GetInt16(const Record& record, std::size_t offset) {
  return static_cast<std::int16_t>(GetBytes<std::uint16_t>(record, offset));
}
std::int32_t GetInt32(const Record& record, std::size_t offset) {
  return static_cast<std::int32_t>(GetBytes<std::uint32_t>(record, offset));
}
std::int64_t GetInt64(const Record& record, std::size_t offset) {
  return static_cast<std::int64_t>(GetBytes<std::uint64_t>(record, offset));
}
double GetDouble(const Record& record, std::size_t offset) {
  return std::bit_cast<double>(GetBytes<std::uint64_t>(record, offset));
}
Currency GetCurrency(const Record& record, std::size_t offset) {
  return Currency::FromRaw(GetInt64(record, offset));
}

std::string GetText(const Record& record, std::size_t offset, std::size_t width) {
  if (offset > kRecordBytes || width > kRecordBytes - offset) return {};
  std::string text(reinterpret_cast<const char*>(record.data()) + offset, width);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\0')) text.pop_back();
  return text;
}

std::string_view CutText(std::string_view text, std::size_t width) {
  if (text.size() <= width) return text;
  std::size_t end = width;
  // At most three bytes back: bytes that are no UTF-8 at all are cut at the width.
  while (end > 0 && width - end < 4 && IsContinuation(text[end])) --end;
  return text.substr(0, IsContinuation(text[end]) ? width : end);
}

std::string WriteRecordFile(const std::string& path, const RecordFile& file) {
  const auto* bytes = reinterpret_cast<const char*>(file.Records.data());
  return ReplaceFile(path, std::string_view(bytes, file.Records.size() * kRecordBytes));
}

std::string ReadRecordFile(const std::string& path, RecordFile& file, std::size_t maximumRecords) {
  std::string content;
  std::string error = ReadWholeFile(path, content, std::uint64_t{maximumRecords} * kRecordBytes);
  if (!error.empty()) return error;
  if (!SplitRecords(content, file)) return "Unable to read " + path + ": it ends in the middle of a record.";
  return {};
}

bool SplitRecords(std::string_view content, RecordFile& file) {
  if (content.size() % kRecordBytes != 0) return false;
  std::vector<Record> records(content.size() / kRecordBytes);
  if (!records.empty()) std::memcpy(records.data(), content.data(), content.size());
  file.Records = std::move(records);
  return true;
}

namespace {

// The reason is the one in errno; then nothing of the replacement is left.
std::string FailReplacement(FileReplacement& file, std::string_view action) {
  const int number = errno;
  AbandonReplacement(file);
  return FileErrorText(action, file.Path, number);
}

}  // namespace

FileReplacement::~FileReplacement() { AbandonReplacement(*this); }

std::string BeginReplacement(FileReplacement& file, const std::string& path) {
  AbandonReplacement(file);
  file.Path = path;
  file.Target = LinkTarget(path);
  struct stat old {};
  const bool exists = stat(file.Target.c_str(), &old) == 0;
  if (exists && S_ISDIR(old.st_mode)) return FileErrorText("write", path, EISDIR);
  if (exists && faccessat(AT_FDCWD, file.Target.c_str(), W_OK, AT_EACCESS) != 0)
    return FileErrorText("write", path, errno);
  if (exists && !S_ISREG(old.st_mode)) {
    file.Descriptor = open(file.Target.c_str(), O_WRONLY | O_CLOEXEC);
    return file.Descriptor < 0 ? FileErrorText("write", path, errno) : std::string();
  }
  const std::string temporary = TemporaryBeside(file.Target);
  file.Descriptor = CreateTemporary(temporary);
  if (file.Descriptor < 0) return FileErrorText("write", path, errno);
  file.Temporary = temporary;
  if (exists && fchmod(file.Descriptor, old.st_mode & 07777) != 0) return FailReplacement(file, "write");
  return {};
}

std::string WriteReplacement(FileReplacement& file, std::string_view bytes) {
  if (file.Descriptor < 0) return FileErrorText("write", file.Path, EBADF);
  return WriteAll(file.Descriptor, bytes) ? std::string() : FailReplacement(file, "write");
}

std::string CommitReplacement(FileReplacement& file) {
  if (file.Descriptor < 0) return FileErrorText("write", file.Path, EBADF);
  if (file.Durable && !file.Temporary.empty() && fsync(file.Descriptor) != 0)
    return FailReplacement(file, "write");
  // A write that was put off can still fail here.
  const int closed = close(file.Descriptor);
  file.Descriptor = -1;
  if (closed != 0) return FailReplacement(file, "write");
  if (file.Temporary.empty()) return {};
  if (rename(file.Temporary.c_str(), file.Target.c_str()) != 0) return FailReplacement(file, "replace");
  file.Temporary.clear();
  if (file.Durable) FlushFolderOf(file.Target);
  return {};
}

void AbandonReplacement(FileReplacement& file) {
  if (file.Descriptor >= 0) close(file.Descriptor);
  file.Descriptor = -1;
  if (!file.Temporary.empty()) unlink(file.Temporary.c_str());
  file.Temporary.clear();
}

std::string ReplaceFile(const std::string& path, std::string_view content) {
  FileReplacement file;
  std::string error = BeginReplacement(file, path);
  if (error.empty()) error = WriteReplacement(file, content);
  if (error.empty()) error = CommitReplacement(file);
  return error;
}

bool IsSameFile(const std::string& path, const std::string& other) {
  struct stat first {};
  struct stat second {};
  return stat(path.c_str(), &first) == 0 && stat(other.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

void ClearLeftovers(const std::string& folder) {
  DIR* entries = opendir(folder.c_str());
  if (entries == nullptr) return;
  while (const dirent* entry = readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (!name.starts_with(kTemporaryStart) || !name.ends_with(kTemporaryEnd)) continue;
    const Descriptor found(
        openat(dirfd(entries), entry->d_name, O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    struct stat status {};
    const bool left = found.Number >= 0 && fstat(found.Number, &status) == 0 && S_ISREG(status.st_mode) &&
                      flock(found.Number, LOCK_EX | LOCK_NB) == 0;
    if (left) unlinkat(dirfd(entries), entry->d_name, 0);
  }
  closedir(entries);
}

std::string ReadWholeFile(const std::string& path, std::string& content, std::uint64_t maximumBytes,
                          bool* tooLong) {
  if (tooLong != nullptr) *tooLong = false;
  const Descriptor descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (descriptor.Number < 0) return FileErrorText("open", path, errno);
  struct stat status {};
  if (fstat(descriptor.Number, &status) != 0) return FileErrorText("read", path, errno);
  if (S_ISDIR(status.st_mode)) return FileErrorText("open", path, EISDIR);
  if (!S_ISREG(status.st_mode)) return MessageText<Msg::kNotAFile>(With<"path">(path));
  const auto refuse = [&] {
    if (tooLong != nullptr) *tooLong = true;
    return MessageText<Msg::kFileTooLong>(With<"path">(path), With<"limit">(std::to_string(maximumBytes)));
  };
  if (static_cast<std::uint64_t>(status.st_size) > maximumBytes) return refuse();
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  char block[65536];
  for (;;) {
    const ssize_t count = read(descriptor.Number, block, sizeof block);
    if (Interrupted()) return FileErrorText("read", path, EINTR);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return FileErrorText("read", path, errno);
    if (count == 0) break;
    bytes.append(block, static_cast<std::size_t>(count));
    if (bytes.size() > maximumBytes) return refuse();
  }
  content = std::move(bytes);
  return {};
}

namespace {

// The length of the UTF-8 character that a text begins with; 0 when it begins with none.
std::size_t Utf8Length(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
  if (first < 0xc2 || first > 0xf4 || text.size() < length) return 0;
  for (std::size_t at = 1; at < length; ++at)
    if (!IsContinuation(text[at])) return 0;
  // Too long a form, half of a pair, or beyond the last character.
  const unsigned char second = byte(1);
  const bool none = (first == 0xe0 && second < 0xa0) || (first == 0xed && second > 0x9f) ||
                    (first == 0xf0 && second < 0x90) || (first == 0xf4 && second > 0x8f);
  return none ? 0 : length;
}

}  // namespace

std::string TextProblem(std::string_view name) {
  if (name.find_first_of(std::string_view("\n\r\0", 3)) != std::string_view::npos)
    return "a name can't hold a line end";
  for (std::size_t length = 0; !name.empty(); name.remove_prefix(length))
    if ((length = Utf8Length(name)) == 0) return "the name is not UTF-8";
  return {};
}

std::string FileErrorText(std::string_view action, std::string_view path, int number) {
  return MessageText<Msg::kFileFault>(With<"action">(action), With<"path">(path),
                                      With<"reason">(std::system_category().message(number)));
}

std::string ResolvePath(std::string_view path, std::string_view folder) {
  std::string result(path);
  if (result.empty()) return result;
  if (result.find('\\') != std::string::npos && access(result.c_str(), F_OK) != 0) {
    for (char& c : result)
      if (c == '\\') c = '/';
  }
  if (result.find('/') != std::string::npos || folder.empty()) return result;
  std::string inFolder(folder);
  if (inFolder.back() != '/') inFolder += '/';
  return inFolder + result;
}

std::string FileTitle(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

}  // namespace tessaryn
