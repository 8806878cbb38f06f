#include "dice/roll_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "base/interrupts.h"
#include "base/messages.h"
#include "base/record_file.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"

namespace tessaryn {
namespace {

// ---- Bytes -------------------------------------------------------------------------------------------

using Block = std::array<unsigned char, kRollBlockBytes>;

// How many bytes came, fewer at the end of the file; -1 on an error.
std::int64_t ReadAt(int descriptor, std::int64_t offset, unsigned char* bytes, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got = pread(descriptor, bytes + done, count - done, offset + static_cast<off_t>(done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return static_cast<std::int64_t>(done);
}

// How many bytes went; fewer than count is an error, its number in errno.
std::size_t WriteAt(int descriptor, std::int64_t offset, const unsigned char* bytes, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t put = pwrite(descriptor, bytes + done, count - done, offset + static_cast<off_t>(done));
    if (put < 0 && errno == EINTR) continue;
    if (put == 0) errno = ENOSPC;
    if (put <= 0) break;
    done += static_cast<std::size_t>(put);
  }
  return done;
}

std::size_t BlockSize(std::int64_t left) {
  return static_cast<std::size_t>(std::min<std::int64_t>(left, kRollBlockBytes));
}

// ---- Files -------------------------------------------------------------------------------------------

// A regular file to read from; anything else could block or never end.
struct Source {
  int Descriptor = -1;
  std::int64_t Length = 0;

  Source() = default;
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  ~Source() {
    if (Descriptor >= 0) close(Descriptor);
  }
};

std::string OpenSource(Source& source, const std::string& path) {
  source.Descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (source.Descriptor < 0) return FileErrorText("open", path, errno);
  struct stat status {};
  if (fstat(source.Descriptor, &status) != 0) return FileErrorText("open", path, errno);
  if (!S_ISREG(status.st_mode)) return MessageText<Msg::kNotAFile>(With<"path">(path));
  source.Length = status.st_size;
  return {};
}

bool IsOpenFile(const RollFile& file, const std::string& path) {
  struct stat open {};
  struct stat other {};
  return IsRollFileOpen(file) && fstat(file.Channel.Descriptor, &open) == 0 &&
         stat(path.c_str(), &other) == 0 && open.st_dev == other.st_dev && open.st_ino == other.st_ino;
}

std::string TooLongText(const std::string& path) {
  return MessageText<Msg::kRollFileTooLong>(With<"path">(path),
                                            With<"limit">(Currency::Dollars(kRollFileMaximum)));
}

std::string FileError(const RollFile& file, std::string_view action) {
  return FileErrorText(action, file.RollFileName, errno);
}

void SetCursor(RollFile& file, std::int64_t position) {
  file.RollFileCursor = static_cast<std::int32_t>(position);
  file.RollFileSelectEnd = file.RollFileCursor;
}

// What every command on the open file starts with: nothing pending, the length as it is on the disk.
std::string Prepare(RollFile& file) {
  if (!IsRollFileOpen(file)) return MessageText<Msg::kRollFileClosed>();
  return FlushRollFile(file) ? std::string() : file.LastErrorText;
}

// A file that is readable at least; ReadOnly in the channel when it can't be written.
int OpenForUse(const std::string& path, bool exists, bool& readOnly) {
  readOnly = false;
  const int descriptor = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC | (exists ? 0 : O_CREAT), 0666);
  if (descriptor >= 0 || !exists || (errno != EACCES && errno != EROFS && errno != EPERM)) return descriptor;
  readOnly = true;
  return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

std::string CheckBeforeOpening(const std::string& path, bool& exists);

// The file that has the name by now: another program's edit puts a new one in the place of the old.
std::string OpenAgain(RollFile& file) {
  RollFileChannel& channel = file.Channel;
  bool exists = false;
  std::string error = CheckBeforeOpening(file.RollFileName, exists);
  if (error.empty() && !exists) error = FileErrorText("open", file.RollFileName, ENOENT);
  if (!error.empty()) return error;
  const int descriptor = OpenForUse(file.RollFileName, true, channel.ReadOnly);
  if (descriptor < 0) return FileError(file, "open");
  close(channel.Descriptor);
  channel.Descriptor = descriptor;
  return Prepare(file);
}

// Only one program writes to a file at a time: while it records, or as long as an edit takes.
std::string BecomeWriter(RollFile& file) {
  RollFileChannel& channel = file.Channel;
  while (!channel.IsWriter) {
    if (flock(channel.Descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
      return MessageText<Msg::kFileInUse>(With<"path">(file.RollFileName));
    channel.IsWriter = IsOpenFile(file, file.RollFileName);
    if (channel.IsWriter) break;
    if (std::string error = OpenAgain(file); !error.empty()) return error;
  }
  return {};
}

void BecomeReader(RollFile& file) {
  if (file.Channel.IsWriter) flock(file.Channel.Descriptor, LOCK_UN);
  file.Channel.IsWriter = false;
}

std::string PrepareToWrite(RollFile& file) {
  std::string error = Prepare(file);
  if (error.empty()) error = BecomeWriter(file);
  if (error.empty() && file.Channel.ReadOnly) return FileErrorText("change", file.RollFileName, EACCES);
  return error;
}

// The cursor as an offset, also when the file has shrunk under it.
std::int64_t CursorOffset(const RollFile& file) {
  return std::clamp<std::int64_t>(file.RollFileCursor - std::int64_t{1}, 0, file.Channel.Length);
}

std::string_view AsBytes(const unsigned char* bytes, std::size_t count) {
  return {reinterpret_cast<const char*>(bytes), count};
}

// Part of a file into the one being written, block by block, through a function that turns rolls into the
// bytes of the copy.
template <typename Convert>
std::string CopyPart(FileReplacement& target, int from, const std::string& name, std::int64_t offset,
                     std::int64_t count, Convert convert) {
  Block block;
  std::string error;
  while (error.empty() && count > 0) {
    const std::size_t size = BlockSize(count);
    const std::int64_t got = ReadAt(from, offset, block.data(), size);
    if (got >= 0 && static_cast<std::size_t>(got) < size) errno = EIO;
    if (got != static_cast<std::int64_t>(size)) return FileErrorText("read", name, errno);
    error = WriteReplacement(target, convert(block.data(), size));
    offset += static_cast<std::int64_t>(size);
    count -= static_cast<std::int64_t>(size);
  }
  return error;
}

// What goes into a file at one place: rolls of another one, or without one so many of a value.
struct Insertion {
  std::int64_t Count = 0;
  unsigned char Roll = 0;
  const Source* From = nullptr;
  std::string Name{};   // of From
  std::int64_t At = 0;  // in From
};

std::string WriteInsertion(FileReplacement& target, const Insertion& insertion) {
  if (insertion.From != nullptr)
    return CopyPart(target, insertion.From->Descriptor, insertion.Name, insertion.At, insertion.Count,
                    AsBytes);
  Block block;
  block.fill(insertion.Roll);
  std::string error;
  for (std::int64_t left = insertion.Count; error.empty() && left > 0; left -= kRollBlockBytes)
    error = WriteReplacement(target, AsBytes(block.data(), BlockSize(left)));
  return error;
}

// The one way in which rolls move: the file with some of them replaced is written beside it and takes its
// place when it is whole. A program that is killed leaves the old file or the new one. Requires
// PrepareToWrite.
std::string Splice(RollFile& file, std::int64_t offset, std::int64_t removed, const Insertion& insertion) {
  RollFileChannel& channel = file.Channel;
  const std::int64_t behind = channel.Length - offset - removed;
  if (offset + insertion.Count + behind > kRollFileMaximum) return TooLongText(file.RollFileName);
  FileReplacement changed;
  changed.Durable = file.Durable;
  std::string error = BeginReplacement(changed, file.RollFileName);
  if (error.empty()) error = CopyPart(changed, channel.Descriptor, file.RollFileName, 0, offset, AsBytes);
  if (error.empty()) error = WriteInsertion(changed, insertion);
  if (error.empty())
    error = CopyPart(changed, channel.Descriptor, file.RollFileName, offset + removed, behind, AsBytes);
  if (!error.empty()) return error;
  // The new file comes with the lock that it was written under.
  const int descriptor = fcntl(changed.Descriptor, F_DUPFD_CLOEXEC, 0);
  if (descriptor < 0) return FileError(file, "change");
  error = CommitReplacement(changed);
  if (!error.empty()) {
    close(descriptor);
    return error;
  }
  close(channel.Descriptor);
  channel.Descriptor = descriptor;
  channel.Length = static_cast<std::int32_t>(offset + insertion.Count + behind);
  return {};
}

std::string InsertSource(RollFile& file, const Source& source, const std::string& path) {
  if (source.Length == 0) return {};
  const std::int64_t offset = CursorOffset(file);
  std::string error = Splice(file, offset, 0, {source.Length, 0, &source, path});
  if (error.empty()) SetCursor(file, offset + 1 + source.Length);
  return error;
}

// The selected rolls, converted, into a file that takes its place when the caller commits it.
template <typename Convert>
std::string DraftCopy(RollFile& file, const std::string& path, FileReplacement& target, Convert convert) {
  std::string error = Prepare(file);
  if (error.empty()) error = BeginReplacement(target, path);
  if (!error.empty()) return error;
  const RollSelection selection = SelectedRolls(file);
  return CopyPart(target, file.Channel.Descriptor, file.RollFileName, selection.First - 1, selection.Count,
                  convert);
}

std::string FolderOf(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  return separator == std::string::npos ? "." : path.substr(0, separator + 1);
}

std::string InFolder(const std::string& folder, const char* name) { return ResolvePath(name, folder); }

// ---- Text --------------------------------------------------------------------------------------------

enum class RollField { kText, kNumber, kDie1, kDie2, kTotal };

struct FormatPiece {
  RollField Field;
  std::string Text;
};

constexpr struct {
  std::string_view Token;
  RollField Field;
} kRollTokens[] = {{"roll#", RollField::kNumber},
                   {"die1", RollField::kDie1},
                   {"die2", RollField::kDie2},
                   {"total", RollField::kTotal}};

std::string LowerTrimmed(std::string_view format) {
  while (!format.empty() && format.front() == ' ') format.remove_prefix(1);
  while (!format.empty() && format.back() == ' ') format.remove_suffix(1);
  std::string text(format);
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

std::vector<FormatPiece> ParseFormat(std::string_view format) {
  std::vector<FormatPiece> pieces;
  const std::string text = LowerTrimmed(format);
  for (std::size_t at = 0; at < text.size();) {
    const auto token = std::find_if(std::begin(kRollTokens), std::end(kRollTokens), [&](const auto& t) {
      return text.compare(at, t.Token.size(), t.Token) == 0;
    });
    if (token != std::end(kRollTokens)) {
      pieces.push_back({token->Field, {}});
      at += token->Token.size();
      continue;
    }
    if (pieces.empty() || pieces.back().Field != RollField::kText) pieces.push_back({RollField::kText, {}});
    pieces.back().Text += text[at++];
  }
  return pieces;
}

void AppendRollText(std::string& text, const std::vector<FormatPiece>& pieces, RollNumber rollNumber,
                    unsigned char roll) {
  const auto digit = [&](int value) { text += std::to_string(value); };
  for (const FormatPiece& piece : pieces) {
    switch (piece.Field) {
      case RollField::kText:
        text += piece.Text;
        break;
      case RollField::kNumber:
        text += FormatMoney(Currency::Dollars(rollNumber));
        break;
      case RollField::kDie1:
        digit(RollByteDie1(roll));
        break;
      case RollField::kDie2:
        digit(RollByteDie2(roll));
        break;
      case RollField::kTotal:
        digit(RollByteDie1(roll) + RollByteDie2(roll));
        break;
    }
  }
}

// Digits 1 to 6 are dice, two to a roll; anything else is skipped, and so is a last die without a second.
std::string ConvertText(Source& text, const std::string& path, const std::string& workPath) {
  FileReplacement work;
  work.Durable = false;
  std::string error = BeginReplacement(work, workPath);
  Block block;
  int die1 = 0;
  for (std::int64_t offset = 0; error.empty();) {
    const std::int64_t got = ReadAt(text.Descriptor, offset, block.data(), block.size());
    if (got < 0) return FileErrorText("read", path, errno);
    if (got == 0) break;
    offset += got;
    std::string rolls;
    for (std::int64_t i = 0; i < got; ++i) {
      const int face = block[static_cast<std::size_t>(i)] - '0';
      if (face < 1 || face > 6) continue;
      if (die1 != 0) rolls += static_cast<char>(RollByte(die1, face));
      die1 = die1 == 0 ? face : 0;
    }
    error = WriteReplacement(work, rolls);
  }
  return error.empty() ? CommitReplacement(work) : error;
}

std::string FailRecording(RollFile& file, std::string error) {
  file.RecorderState = kRecorderOff;
  file.LastErrorText = std::move(error);
  return file.LastErrorText;
}

// Whether a file can become the open one.
std::string CheckBeforeOpening(const std::string& path, bool& exists) {
  struct stat status {};
  exists = stat(path.c_str(), &status) == 0;
  if (!exists) return errno == ENOENT ? std::string() : FileErrorText("open", path, errno);
  if (!S_ISREG(status.st_mode)) return MessageText<Msg::kNotAFile>(With<"path">(path));
  if (status.st_size > kRollFileMaximum) return TooLongText(path);
  bool valid = false;
  std::string error = CheckRollFile(path, valid);
  if (error.empty() && !valid) return MessageText<Msg::kNotARollFile>(With<"path">(path));
  return error;
}

}  // namespace

// ---- The open file -----------------------------------------------------------------------------------

RollFile::~RollFile() {
  if (!CloseRollFile(*this).empty()) DiscardRollFile(*this);
}

std::string OpenRollFile(RollFile& file, const std::string& path) {
  if (IsRollFileOpen(file) && !FlushRollFile(file)) return file.LastErrorText;
  bool exists = false;
  std::string error = CheckBeforeOpening(path, exists);
  if (!error.empty()) return error;
  bool readOnly = false;
  const int descriptor = OpenForUse(path, exists, readOnly);
  struct stat status {};
  if (descriptor < 0 || fstat(descriptor, &status) != 0) {
    error = FileErrorText("open", path, errno);
    if (descriptor >= 0) close(descriptor);
    return error;
  }
  error = IsRollFileOpen(file) ? CloseRollFile(file) : std::string();
  if (!error.empty()) {
    close(descriptor);
    if (!exists) unlink(path.c_str());
    return error;
  }
  file.RollFileName = path;
  file.Channel.Descriptor = descriptor;
  file.Channel.ReadOnly = readOnly;
  file.Channel.Length = static_cast<std::int32_t>(status.st_size);
  SetCursor(file, 1);
  ClearLeftovers(FolderOf(path));
  return {};
}

std::string CloseRollFile(RollFile& file) {
  if (IsRollFileOpen(file) && !FlushRollFile(file)) return file.LastErrorText;
  if (IsRollFileOpen(file) && !file.Channel.ReadOnly && fsync(file.Channel.Descriptor) != 0 &&
      errno != EINVAL)
    return FileError(file, "write");
  DiscardRollFile(file);
  return {};
}

void DiscardRollFile(RollFile& file) {
  RollFileChannel& channel = file.Channel;
  if (channel.Descriptor >= 0) close(channel.Descriptor);
  channel.Descriptor = -1;
  channel.ReadOnly = channel.Pending = channel.IsWriter = false;
  channel.Length = channel.WindowStart = channel.WindowUsed = 0;
  file.RollFileName.clear();
  file.FaultReported.clear();
  file.RecorderState = kRecorderOff;
  SetCursor(file, 1);
}

std::string CheckRollFile(const std::string& path, bool& valid) {
  valid = false;
  Source source;
  std::string error = OpenSource(source, path);
  if (!error.empty()) return error;
  Block block;
  for (std::int64_t offset = 0;;) {
    const std::int64_t got = ReadAt(source.Descriptor, offset, block.data(), block.size());
    if (got < 0) return FileErrorText("read", path, errno);
    if (got == 0) break;
    if (Interrupted()) return FileErrorText("read", path, EINTR);
    offset += got;
    unsigned lowBits = 0;
    for (std::int64_t i = 0; i < got; ++i) lowBits |= block[static_cast<std::size_t>(i)];
    if ((lowBits & 3u) != 0) return {};
  }
  valid = true;
  return {};
}

bool FlushRollFile(RollFile& file) {
  RollFileChannel& channel = file.Channel;
  if (channel.Descriptor < 0) return true;
  if (channel.IsWriter && !channel.Pending && file.RecorderState != kRecorderRecord) BecomeReader(file);
  struct stat status {};
  if (fstat(channel.Descriptor, &status) != 0) {
    file.LastErrorText = FileError(file, "read");
    return false;
  }
  if (!channel.Pending || channel.WindowUsed == 0) {
    channel.Pending = false;
    channel.WindowUsed = 0;
    channel.Length = static_cast<std::int32_t>(std::min<std::int64_t>(status.st_size, kRollFileMaximum));
    return true;
  }
  if (!IsOpenFile(file, file.RollFileName)) {
    file.LastErrorText = MessageText<Msg::kFileReplaced>(With<"path">(file.RollFileName));
    return false;
  }
  // Rolls behind the end of a file that somebody shortened would stand behind a hole of no rolls.
  if (status.st_size < channel.WindowStart) {
    file.LastErrorText = MessageText<Msg::kFileShortened>(With<"path">(file.RollFileName));
    return false;
  }
  const auto count = static_cast<std::size_t>(channel.WindowUsed);
  const std::size_t written = WriteAt(channel.Descriptor, channel.WindowStart, channel.Window.data(), count);
  if (written < count) {
    file.LastErrorText = FileError(file, "write");
    std::memmove(channel.Window.data(), channel.Window.data() + written, count - written);
    channel.WindowStart += static_cast<std::int32_t>(written);
    channel.WindowUsed -= static_cast<std::int32_t>(written);
    return false;
  }
  const std::int64_t end = std::max<std::int64_t>(status.st_size, channel.WindowStart + channel.WindowUsed);
  channel.Length = static_cast<std::int32_t>(std::min<std::int64_t>(end, kRollFileMaximum));
  channel.Pending = false;
  channel.WindowUsed = 0;
  return true;
}

// ---- The recorder ------------------------------------------------------------------------------------

std::string SetRecorderState(RollFile& file, int state) {
  if (state != kRecorderOff && !IsRollFileOpen(file)) return MessageText<Msg::kRollFileClosed>();
  std::string error;
  if (IsRollFileOpen(file)) error = state == kRecorderRecord ? PrepareToWrite(file) : Prepare(file);
  if (!error.empty()) return error;
  file.RecorderState = state;
  if (state != kRecorderOff) file.FaultReported.clear();
  return {};
}

std::string RewindForPlayback(RollFile& file) {
  std::string error = SetRecorderState(file, kRecorderPlayback);
  if (error.empty()) SetCursor(file, 1);
  return error;
}

void SetRollFileCursor(RollFile& file, std::int64_t position) {
  SetCursor(file, std::clamp<std::int64_t>(position, 1, file.Channel.Length + std::int64_t{1}));
}

PlayResult PlayRollFromFile(RollFile& file, int& die1, int& die2) {
  RollFileChannel& channel = file.Channel;
  const auto fail = [&](std::string error) {
    FailRecording(file, std::move(error));
    return PlayResult::kError;
  };
  std::string error = Prepare(file);
  if (!error.empty()) return fail(error);
  const std::int64_t offset = file.RollFileCursor - std::int64_t{1};
  const std::int64_t got =
      offset < 0 ? 0 : ReadAt(channel.Descriptor, offset, channel.Window.data(), kRollWindowBytes);
  if (got < 0) return fail(FileError(file, "read"));
  channel.WindowStart = static_cast<std::int32_t>(offset);
  channel.WindowUsed = static_cast<std::int32_t>(got);
  if (got == 0) return PlayResult::kEndOfFile;
  if (!CheckRollValue(channel.Window[0])) {
    file.RecorderState = kRecorderOff;
    return PlayResult::kOutOfLimits;
  }
  return PlayRoll(file, die1, die2);
}

bool RecordRollToFile(RollFile& file, int die1, int die2) {
  RollFileChannel& channel = file.Channel;
  std::string error = PrepareToWrite(file);
  const std::int64_t offset = file.RollFileCursor - std::int64_t{1};
  if (error.empty() && offset > kRollFileMaximum - static_cast<std::int64_t>(kRollWindowBytes))
    error = TooLongText(file.RollFileName);
  if (error.empty() && (offset < 0 || offset > channel.Length))
    error = MessageText<Msg::kRollBehindEnd>(With<"path">(file.RollFileName));
  if (!error.empty()) {
    FailRecording(file, std::move(error));
    return false;
  }
  channel.Pending = true;
  channel.WindowStart = static_cast<std::int32_t>(offset);
  channel.WindowUsed = 0;
  return RecordRoll(file, die1, die2);
}

// ---- Editing -----------------------------------------------------------------------------------------

RollSelection SelectedRolls(const RollFile& file) {
  const std::int32_t first = std::max(1, std::min(file.RollFileCursor, file.RollFileSelectEnd));
  const std::int32_t last =
      std::min(std::max(file.RollFileCursor, file.RollFileSelectEnd), file.Channel.Length);
  return {first, std::max(0, last - first + 1)};
}

void SelectAllRolls(RollFile& file) {
  file.RollFileCursor = 1;
  file.RollFileSelectEnd = std::max(1, file.Channel.Length);
}

std::string ReadRolls(RollFile& file, std::int32_t first, std::int32_t count,
                      std::vector<unsigned char>& rolls) {
  std::string error = Prepare(file);
  if (!error.empty()) return error;
  first = std::max(first, 1);
  const std::int64_t behind = file.Channel.Length - (first - std::int64_t{1});
  std::vector<unsigned char> bytes(
      static_cast<std::size_t>(std::clamp<std::int64_t>(count, 0, std::max<std::int64_t>(behind, 0))));
  const std::int64_t got = ReadAt(file.Channel.Descriptor, first - 1, bytes.data(), bytes.size());
  if (got < 0) return FileError(file, "read");
  bytes.resize(static_cast<std::size_t>(got));
  rolls = std::move(bytes);
  return {};
}

std::string EnterRoll(RollFile& file, int die1, int die2) {
  std::string error = PrepareToWrite(file);
  if (!error.empty()) return error;
  const std::int64_t offset = CursorOffset(file);
  if (offset >= kRollFileMaximum) return TooLongText(file.RollFileName);
  const unsigned char roll = RollByte(die1, die2);
  if (file.RollFileInsertMode && offset < file.Channel.Length)
    error = Splice(file, offset, 0, {1, roll});
  else if (WriteAt(file.Channel.Descriptor, offset, &roll, 1) != 1)
    error = FileError(file, "write");
  if (!error.empty()) return error;
  file.Channel.Length = std::max(file.Channel.Length, static_cast<std::int32_t>(offset + 1));
  SetCursor(file, offset + 2);
  return {};
}

std::string EnterRandomRoll(RollFile& file, Generators& generators, std::uint32_t tick) {
  RandomizeRnd(generators, tick);
  Rnd(generators);
  const int die1 = RndPick(generators, 6);
  const int die2 = RndPick(generators, 6);
  return EnterRoll(file, die1, die2);
}

std::string InsertRollGap(RollFile& file, std::int32_t count) {
  std::string error = PrepareToWrite(file);
  if (!error.empty() || count <= 0) return error;
  return Splice(file, CursorOffset(file), 0, {count});
}

std::string PasteRolls(RollFile& file, const std::string& sourcePath, std::int32_t position,
                       std::int32_t count) {
  std::string error = PrepareToWrite(file);
  Source source;
  if (error.empty()) error = OpenSource(source, sourcePath);
  if (!error.empty()) return error;
  RollFileChannel& channel = file.Channel;
  const std::int64_t offset = position - std::int64_t{1};
  const std::int64_t end = offset + count;
  if (offset < 0 || offset > channel.Length || count < 0 || end > kRollFileMaximum || count > source.Length)
    return MessageText<Msg::kRollsNotPasted>(With<"count">(count), With<"source">(sourcePath),
                                             With<"roll">(position), With<"path">(file.RollFileName));
  return Splice(file, offset, std::min(end, std::int64_t{channel.Length}) - offset,
                {count, 0, &source, sourcePath});
}

std::string ReplaceRolls(RollFile& file, const std::string& sourcePath) {
  std::string error = PrepareToWrite(file);
  Source source;
  if (error.empty()) error = OpenSource(source, sourcePath);
  if (error.empty()) error = Splice(file, 0, file.Channel.Length, {source.Length, 0, &source, sourcePath});
  if (error.empty()) SetCursor(file, 1);
  return error;
}

// A single byte, and a file's new end, are in place or not; all else needs a new file.
std::string SpliceRolls(RollFile& file, std::int64_t offset, std::int64_t removed, int from, std::int64_t at,
                        std::int64_t count) {
  std::string error = PrepareToWrite(file);
  if (!error.empty()) return error;
  RollFileChannel& channel = file.Channel;
  if (offset < 0 || removed < 0 || count < 0 || offset + removed > channel.Length)
    return MessageText<Msg::kFileShortened>(With<"path">(file.RollFileName));
  const bool atEnd = offset + removed == channel.Length;
  if (count == 0 && atEnd) {
    if (ftruncate(channel.Descriptor, offset) != 0) return FileError(file, "write");
    channel.Length = static_cast<std::int32_t>(offset);
    return {};
  }
  unsigned char roll = 0;
  if (count == 1 && (removed == 1 || (atEnd && removed == 0 && offset < kRollFileMaximum))) {
    if (ReadAt(from, at, &roll, 1) != 1 || WriteAt(channel.Descriptor, offset, &roll, 1) != 1)
      return FileError(file, "write");
    channel.Length = std::max(channel.Length, static_cast<std::int32_t>(offset + 1));
    return {};
  }
  Source source;
  source.Descriptor = fcntl(from, F_DUPFD_CLOEXEC, 0);
  return Splice(file, offset, removed, {count, 0, &source, file.RollFileName, at});
}

std::string DeleteRolls(RollFile& file) {
  std::string error = PrepareToWrite(file);
  if (!error.empty()) return error;
  const RollSelection selection = SelectedRolls(file);
  if (selection.Count > 0) error = Splice(file, selection.First - 1, selection.Count, {});
  if (error.empty()) SetCursor(file, selection.First);
  return error;
}

std::string CopyRolls(RollFile& file, const std::string& workFolder) {
  FileReplacement target;
  target.Durable = false;
  std::string error = DraftCopy(file, InFolder(workFolder, kRollCopyFile), target, AsBytes);
  return error.empty() ? CommitReplacement(target) : error;
}

std::string CutRolls(RollFile& file, const std::string& workFolder) {
  std::string error = PrepareToWrite(file);
  if (error.empty()) error = CopyRolls(file, workFolder);
  return error.empty() ? DeleteRolls(file) : error;
}

std::string PasteCopiedRolls(RollFile& file, const std::string& workFolder) {
  std::string error = PrepareToWrite(file);
  const std::string path = InFolder(workFolder, kRollCopyFile);
  if (error.empty() && access(path.c_str(), F_OK) != 0) return MessageText<Msg::kNothingCopied>();
  Source source;
  if (error.empty()) error = OpenSource(source, path);
  return error.empty() ? InsertSource(file, source, path) : error;
}

std::string PasteFromRollFile(RollFile& file, const std::string& path) {
  std::string error = PrepareToWrite(file);
  if (!error.empty()) return error;
  if (IsOpenFile(file, path))
    return MessageText<Msg::kCopyToOpenFile>(With<"command">("Paste From Dice Roll File"));
  Source source;
  error = OpenSource(source, path);
  if (error.empty() && source.Length > kRollFileMaximum) error = TooLongText(path);
  bool valid = false;
  if (error.empty()) error = CheckRollFile(path, valid);
  if (error.empty() && !valid) return MessageText<Msg::kNotARollFile>(With<"path">(path));
  return error.empty() ? InsertSource(file, source, path) : error;
}

std::string PasteFromTextFile(RollFile& file, const std::string& path, const std::string& workFolder) {
  std::string error = PrepareToWrite(file);
  Source text;
  if (error.empty()) error = OpenSource(text, path);
  if (error.empty() && text.Length > kRollFileMaximum)
    error = MessageText<Msg::kFileTooLong>(With<"path">(path), With<"limit">(kRollFileMaximum));
  if (!error.empty()) return error;
  const std::string workPath = InFolder(workFolder, kRollConvertFile);
  error = ConvertText(text, path, workPath);
  Source rolls;
  if (error.empty()) error = OpenSource(rolls, workPath);
  if (error.empty()) error = InsertSource(file, rolls, workPath);
  unlink(workPath.c_str());
  return error;
}

// ---- Copying out -------------------------------------------------------------------------------------

std::string DraftRollFile(RollFile& file, const std::string& path, FileReplacement& target,
                          std::string_view command) {
  if (IsOpenFile(file, path)) return MessageText<Msg::kCopyToOpenFile>(With<"command">(command));
  return DraftCopy(file, path, target, AsBytes);
}

std::string CopyRollsToRollFile(RollFile& file, const std::string& path, std::string_view command) {
  FileReplacement target;
  std::string error = DraftRollFile(file, path, target, command);
  return error.empty() ? CommitReplacement(target) : error;
}

bool IsRollFormatUsable(std::string_view format) {
  const auto pieces = ParseFormat(format);
  return std::any_of(pieces.begin(), pieces.end(), [](const FormatPiece& piece) {
    return piece.Field != RollField::kText && piece.Field != RollField::kNumber;
  });
}

bool IsRenumberQuestion(const RollFile& file) {
  const auto pieces = ParseFormat(file.RollFileOutputFormat);
  return SelectedRolls(file).First != 1 &&
         std::any_of(pieces.begin(), pieces.end(),
                     [](const FormatPiece& piece) { return piece.Field == RollField::kNumber; });
}

std::string RollText(std::string_view format, RollNumber rollNumber, unsigned char roll) {
  std::string text;
  AppendRollText(text, ParseFormat(format), rollNumber, roll);
  return text;
}

std::string DraftTextFile(RollFile& file, const std::string& path, bool renumber, FileReplacement& target) {
  if (IsOpenFile(file, path))
    return MessageText<Msg::kCopyToOpenFile>(With<"command">("Copy Dice Rolls To Text File"));
  if (!IsRollFormatUsable(file.RollFileOutputFormat)) return MessageText<Msg::kNoDiceInFormat>();
  const auto pieces = ParseFormat(file.RollFileOutputFormat);
  std::int64_t number = renumber ? 1 : SelectedRolls(file).First;
  std::string text;
  return DraftCopy(file, path, target,
                   [&](const unsigned char* rolls, std::size_t count) -> std::string_view {
                     text.clear();
                     for (std::size_t i = 0; i < count; ++i) {
                       AppendRollText(text, pieces, number++, rolls[i]);
                       text += '\n';
                     }
                     return text;
                   });
}

std::string CopyRollsToTextFile(RollFile& file, const std::string& path, bool renumber) {
  FileReplacement target;
  std::string error = DraftTextFile(file, path, renumber, target);
  return error.empty() ? CommitReplacement(target) : error;
}

}  // namespace tessaryn
