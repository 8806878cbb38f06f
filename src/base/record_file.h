// Files: fields of 256-byte records, whole-file reading, and writing that never leaves half a file.
//
// Errors are texts that name the file and the reason; an empty text is success.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"

namespace tessaryn {

inline constexpr std::size_t kRecordBytes = 256;

// One record. Fields are placed by byte offset and are little-endian whatever the machine is. An offset
// beyond the record is a fault of the caller: writing does nothing, reading gives 0.
using Record = std::array<unsigned char, kRecordBytes>;

void PutInt16(Record& record, std::size_t offset, std::int16_t value);
void PutInt32(Record& record, std::size_t offset, std::int32_t value);
void PutInt64(Record& record, std::size_t offset, std::int64_t value);
void PutDouble(Record& record, std::size_t offset, double value);
void PutCurrency(Record& record, std::size_t offset, Currency value);
// width bytes, filled up with blanks; a text that is too long is cut between two UTF-8 characters.
void PutText(Record& record, std::size_t offset, std::size_t width, std::string_view text);

std::int16_t GetInt16(const Record& record, std::size_t offset);
std::int32_t GetInt32(const Record& record, std::size_t offset);
std::int64_t GetInt64(const Record& record, std::size_t offset);
double GetDouble(const Record& record, std::size_t offset);
Currency GetCurrency(const Record& record, std::size_t offset);
// Without the blanks and zero bytes at its end.
std::string GetText(const Record& record, std::size_t offset, std::size_t width);

// The longest beginning of text that is at most width bytes and ends between two UTF-8 characters.
std::string_view CutText(std::string_view text, std::size_t width);

// A file's records, built up in memory and written by ReplaceFile, or read whole. Numbered from 0 here.
struct RecordFile {
  std::vector<Record> Records;

  // Adds a copy, so that a shape's buffer can be used again and again.
  void Append(const Record& record) { Records.push_back(record); }
};
std::string WriteRecordFile(const std::string& path, const RecordFile& file);
// A file whose length is no whole number of records is an error; file is unchanged on any error. A file of
// more than maximumRecords is refused unread.
std::string ReadRecordFile(const std::string& path, RecordFile& file, std::size_t maximumRecords = 1u << 20);

// Whole records out of a file's bytes; false, with file unchanged, if the last one is cut short.
bool SplitRecords(std::string_view content, RecordFile& file);

// Values packed one after the other into one shape's buffer, which is written out when it is full. The
// buffer is never cleared: what a last, partly filled record carries behind its values is what the record
// before it left there. Value: a signed integer of 2, 4 or 8 bytes.
template <typename Value>
struct RecordPacker {
  RecordFile& File;
  Record Buffer{};
  std::size_t Used = 0;  // bytes filled

  explicit RecordPacker(RecordFile& file) : File(file) {}
  void Put(Value value);
  // Writes a partly filled buffer. The next value starts a new record.
  void Finish() {
    if (Used > 0) File.Append(Buffer);
    Used = 0;
  }
};
// The reverse: values in order from a record on. Reading past the end sets Failed and gives 0. Next is then
// the record behind the one last read from, so that another shape can go on there.
template <typename Value>
struct RecordUnpacker {
  const RecordFile& File;
  std::size_t Next = 0;
  std::size_t Used = kRecordBytes;
  bool Failed = false;

  RecordUnpacker(const RecordFile& file, std::size_t first) : File(file), Next(first) {}
  Value Get();
};

template <typename Value>
void RecordPacker<Value>::Put(Value value) {
  static_assert(sizeof(Value) == 2 || sizeof(Value) == 4 || sizeof(Value) == 8);
  if constexpr (sizeof(Value) == 2) PutInt16(Buffer, Used, value);
  if constexpr (sizeof(Value) == 4) PutInt32(Buffer, Used, value);
  if constexpr (sizeof(Value) == 8) PutInt64(Buffer, Used, value);
  Used += sizeof(Value);
  if (Used == kRecordBytes) Finish();
}

template <typename Value>
Value RecordUnpacker<Value>::Get() {
  static_assert(sizeof(Value) == 2 || sizeof(Value) == 4 || sizeof(Value) == 8);
  if (Used == kRecordBytes) {
    ++Next;
    Used = 0;
  }
  if (Next > File.Records.size()) {
    Failed = true;
    return 0;
  }
  const Record& record = File.Records[Next - 1];
  const std::size_t at = Used;
  Used += sizeof(Value);
  if constexpr (sizeof(Value) == 2) return GetInt16(record, at);
  if constexpr (sizeof(Value) == 4) return GetInt32(record, at);
  if constexpr (sizeof(Value) == 8) return GetInt64(record, at);
}

// A file being written beside the one it is to replace: on CommitReplacement it is flushed to the disk and
// renamed over it, so that after a crash or on a full disk the old file is whole. Follows a symbolic link and
// keeps the old file's permissions. A device or pipe is written straight through. Whatever fails, and a
// replacement that ends uncommitted, leaves nothing behind; only a killed program does, for ClearLeftovers.
struct FileReplacement {
  std::string Path;       // as the caller named it
  std::string Target;     // what it stands for
  std::string Temporary;  // empty when written straight through
  int Descriptor = -1;    // -1: not begun, ended, or failed
  bool Durable = true;    // set to false before the commit of a scratch file, which need not reach the disk

  FileReplacement() = default;
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  ~FileReplacement();
};
std::string BeginReplacement(FileReplacement& file, const std::string& path);
std::string WriteReplacement(FileReplacement& file, std::string_view bytes);
std::string CommitReplacement(FileReplacement& file);
void AbandonReplacement(FileReplacement& file);

// All three for content that is at hand.
std::string ReplaceFile(const std::string& path, std::string_view content);
// Removes from a folder what replacements of killed programs left there. What a program at work is writing
// stays.
void ClearLeftovers(const std::string& folder);

// Reads a regular file: a pipe or a device could keep the reader waiting or never end. One of more than
// maximumBytes is refused unread, and tooLong tells so. On failure content is unchanged.
inline constexpr std::uint64_t kWholeFileMaximum = 64u << 20;
std::string ReadWholeFile(const std::string& path, std::string& content,
                          std::uint64_t maximumBytes = kWholeFileMaximum, bool* tooLong = nullptr);

// Why a text can't be the name of a player, file or folder: it is no UTF-8, or holds a line end or a zero
// byte, so that no list, log or JSON could carry it. Empty when it can.
std::string TextProblem(std::string_view name);

// Whether two paths lead to the same file. False if either is not there.
bool IsSameFile(const std::string& path, const std::string& other);

// "Unable to <action> <path>: <the system's reason>". number: an errno.
std::string FileErrorText(std::string_view action, std::string_view path, int number);

// A plain name (no separator) belongs to the folder; any other path stands as it is. Both separators are
// read: a path written with "\" is taken with "/" unless a file of just that name is there.
std::string ResolvePath(std::string_view path, std::string_view folder);
// What follows the last separator.
std::string FileTitle(std::string_view path);

}  // namespace tessaryn
