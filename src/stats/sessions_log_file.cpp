#include "stats/sessions_log_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "base/interrupts.h"
#include "base/messages.h"

namespace tessaryn {
namespace {

// Values of the file: never to change.
constexpr std::string_view kTitle = "Tessaryn Sessions Log, Data Format 5.0";
constexpr std::string_view kFormat = "Data Format 5.0";
constexpr std::size_t kTitleBytes = 92;
constexpr std::size_t kCountAt = 92;
constexpr std::size_t kMoveMarkAt = 96;  // a deletion under way, else zeros
constexpr std::size_t kMoveToAt = 104;
constexpr std::size_t kMoveGapAt = 108;
constexpr std::size_t kMoveAsideAt = 112;
constexpr std::string_view kMoveMark = "Deleting";

constexpr std::int64_t kCopyBlock = 2'048;  // records
constexpr int kLockTries = 2'000;           // of a millisecond

struct Header {
  std::int64_t count = 0;
  // While sessions are deleted: those from moveTo + moveGap on are still to move down by moveGap.
  std::int64_t moveTo = 0;
  std::int64_t moveGap = 0;    // 0: none under way
  std::int64_t moveAside = 0;  // so many of them stand behind the log's end
};

std::string NoLogText(const std::string& path) {
  return MessageText<Msg::kNotASessionsLog>(With<"path">(path));
}

off_t PlaceOf(std::int64_t session) { return static_cast<off_t>(session) * static_cast<off_t>(kRecordBytes); }

// 0 or errno.
int WriteAt(int descriptor, off_t place, const void* bytes, std::size_t size) {
  const char* from = static_cast<const char*>(bytes);
  while (size > 0) {
    const ssize_t written = pwrite(descriptor, from, size, place);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return written == 0 ? EIO : errno;
    from += written;
    size -= static_cast<std::size_t>(written);
    place += written;
  }
  return 0;
}

// The bytes got, which are fewer only at the file's end; below 0: -errno.
ssize_t ReadAt(int descriptor, off_t place, void* bytes, std::size_t size) {
  std::size_t got = 0;
  while (got < size) {
    const ssize_t count =
        pread(descriptor, static_cast<char*>(bytes) + got, size - got, place + static_cast<off_t>(got));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return -errno;
    if (count == 0) break;
    got += static_cast<std::size_t>(count);
  }
  return static_cast<ssize_t>(got);
}

// Held as long as the header and the records don't agree. Where the file system knows no locks there are
// none.
class Lock {
 public:
  explicit Lock(const SessionsLogFile& file) : descriptor_(file.Descriptor) {
    for (int tries = 0; flock(descriptor_, LOCK_EX | LOCK_NB) != 0; ++tries) {
      if (errno != EWOULDBLOCK) {
        descriptor_ = -1;
        return;
      }
      if (tries == kLockTries || Interrupted()) {
        descriptor_ = -1;
        problem = MessageText<Msg::kSessionsLogInUse>(With<"path">(file.Path));
        return;
      }
      usleep(1'000);
    }
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  ~Lock() {
    if (descriptor_ >= 0) flock(descriptor_, LOCK_UN);
  }
  std::string problem;

 private:
  int descriptor_;
};

// Held by who takes sessions out, so that nobody else does meanwhile; what is added doesn't mind it.
class DeletionLock {
 public:
  explicit DeletionLock(const SessionsLogFile& file) : descriptor_(file.Descriptor) {
    if (Set(F_WRLCK) == 0 || (errno != EAGAIN && errno != EACCES)) return;
    descriptor_ = -1;
    problem = MessageText<Msg::kSessionsLogInUse>(With<"path">(file.Path));
  }
  DeletionLock(const DeletionLock&) = delete;
  DeletionLock& operator=(const DeletionLock&) = delete;
  ~DeletionLock() {
    if (descriptor_ >= 0) Set(F_UNLCK);
  }
  std::string problem;

 private:
  int Set(short type) const {
    struct flock place {};
    place.l_type = type;
    place.l_whence = SEEK_SET;
    place.l_len = 1;
    return fcntl(descriptor_, F_OFD_SETLK, &place);
  }

  int descriptor_;
};

// The first of them, to session first and those behind it.
std::string WriteRecords(const SessionsLogFile& file, std::int64_t first, const std::vector<Record>& records,
                         std::int64_t count) {
  const int fault = WriteAt(file.Descriptor, PlaceOf(first), records.data(),
                            static_cast<std::size_t>(count) * kRecordBytes);
  return fault == 0 ? std::string() : FileErrorText("write", file.Path, fault);
}

// The whole record, so that it is written at once.
std::string WriteHeader(const SessionsLogFile& file, const Header& header) {
  Record record = SessionsLogHeader(header.count);
  if (header.moveGap > 0) {
    PutText(record, kMoveMarkAt, kMoveMark.size(), kMoveMark);
    PutInt32(record, kMoveToAt, static_cast<std::int32_t>(header.moveTo));
    PutInt32(record, kMoveGapAt, static_cast<std::int32_t>(header.moveGap));
    PutInt32(record, kMoveAsideAt, static_cast<std::int32_t>(header.moveAside));
  }
  const int error = WriteAt(file.Descriptor, 0, record.data(), record.size());
  return error == 0 ? std::string() : FileErrorText("write", file.Path, error);
}

std::string ReadHeader(const SessionsLogFile& file, Header& header) {
  Record record{};
  const ssize_t got = ReadAt(file.Descriptor, 0, record.data(), record.size());
  if (got < 0) return FileErrorText("read", file.Path, static_cast<int>(-got));
  if (got < static_cast<ssize_t>(kRecordBytes)) return NoLogText(file.Path);
  if (GetText(record, 0, kTitleBytes).find(kFormat) == std::string::npos) return NoLogText(file.Path);
  struct stat status {};
  if (fstat(file.Descriptor, &status) != 0) return FileErrorText("read", file.Path, errno);
  header = {};
  header.count = GetInt32(record, kCountAt);
  const std::int64_t held = static_cast<std::int64_t>(status.st_size) / std::int64_t{kRecordBytes} - 1;
  if (header.count < 0 || header.count > held)
    return MessageText<Msg::kSessionsMiscounted>(With<"path">(file.Path), With<"count">(header.count),
                                                 With<"held">(held));
  if (GetText(record, kMoveMarkAt, kMoveMark.size()) != kMoveMark) return {};
  header.moveTo = GetInt32(record, kMoveToAt);
  header.moveGap = GetInt32(record, kMoveGapAt);
  header.moveAside = GetInt32(record, kMoveAsideAt);
  if (header.moveTo >= 1 && header.moveGap >= 1 && header.moveAside >= 0 &&
      header.moveTo + header.moveGap + header.moveAside - 1 <= header.count &&
      header.count + header.moveAside <= held)
    return {};
  return MessageText<Msg::kSessionsMoveBad>(With<"path">(file.Path));
}

// Goes on with the deletion that the header tells of. What a block is copied from lies wholly above where it
// goes, or is put behind the log's end first, and the header says how far the work is: a block that was cut
// short is copied again.
std::string FinishMove(const SessionsLogFile& file, Header& header) {
  if (header.moveGap == 0) return {};
  std::vector<Record> records;
  while (header.moveTo + header.moveGap <= header.count) {
    const bool aside = header.moveAside > 0;
    const std::int64_t from = header.moveTo + header.moveGap;
    std::int64_t block = aside ? header.moveAside : std::min(header.count - from + 1, kCopyBlock);
    std::string error =
        ReadSessions(file, aside ? header.count + 1 : from, static_cast<std::size_t>(block), records);
    if (error.empty() && !aside && block > header.moveGap) {
      if (WriteRecords(file, header.count + 1, records, block).empty()) {
        header.moveAside = block;
        error = WriteHeader(file, header);
      } else {
        block = header.moveGap;  // no room behind the end: on a full disk it takes longer
      }
    }
    if (error.empty()) error = WriteRecords(file, header.moveTo, records, block);
    if (!error.empty()) return error;
    header.moveTo += block;
    header.moveAside = 0;
    if (error = WriteHeader(file, header); !error.empty()) return error;
  }
  header.count -= header.moveGap;
  header.moveTo = header.moveGap = 0;
  return WriteHeader(file, header);
}

// Requires the lock.
std::string SettledHeader(const SessionsLogFile& file, Header& header) {
  const std::string error = ReadHeader(file, header);
  return error.empty() ? FinishMove(file, header) : error;
}

// Whether the path leads to the file that is open.
bool IsInPlace(const SessionsLogFile& file) {
  struct stat status {};
  return stat(file.Path.c_str(), &status) == 0 && status.st_dev == file.Device && status.st_ino == file.Inode;
}

std::string Fail(SessionsLogFile& file, std::string problem) {
  CloseSessionsFile(file);
  return problem;
}

// A new file gets its header; one that isn't empty is left alone.
std::string BeginLog(const SessionsLogFile& file) {
  const Lock lock(file);
  struct stat status {};
  if (!lock.problem.empty()) return lock.problem;
  if (fstat(file.Descriptor, &status) != 0) return FileErrorText("read", file.Path, errno);
  if (status.st_size > 0) return {};
  std::string problem = WriteHeader(file, {});
  // A header that was cut short would make it a foreign file.
  if (!problem.empty() && ftruncate(file.Descriptor, 0) != 0) return problem;
  return problem;
}

std::string LockedAppend(const SessionsLogFile& file, const Record& session) {
  Header header;
  if (std::string problem = SettledHeader(file, header); !problem.empty()) return problem;
  if (header.count == kMostSessions) return MessageText<Msg::kSessionsLogFull>(With<"path">(file.Path));
  const int fault = WriteAt(file.Descriptor, PlaceOf(header.count + 1), session.data(), session.size());
  if (fault != 0) return FileErrorText("write", file.Path, fault);
  ++header.count;
  return WriteHeader(file, header);
}

// How many sessions another log would add.
std::string CountFurther(const SessionsLogFile& file, SessionsLogFile& other, std::int64_t& further) {
  if (file.Device == other.Device && file.Inode == other.Inode)
    return MessageText<Msg::kSessionsLogSame>(With<"path">(other.Path));
  return CountSessions(other, further);
}

bool IsRange(std::int64_t first, std::int64_t last, std::int64_t count) {
  return first >= 1 && last <= count && first <= last;
}

std::string_view BytesOf(const std::vector<Record>& records) {
  return {reinterpret_cast<const char*>(records.data()), records.size() * kRecordBytes};
}

// The sessions first to last behind what the copy has. done counts them, and those of earlier parts.
std::string CopyRecords(FileReplacement& copy, const SessionsLogFile& file, std::int64_t first,
                        std::int64_t last, std::int64_t& done, const SessionsGoOn& goOn) {
  std::vector<Record> records;
  for (std::int64_t at = first; at <= last; at += static_cast<std::int64_t>(records.size())) {
    const std::int64_t block = std::min(kCopyBlock, last - at + 1);
    std::string problem = ReadSessions(file, at, static_cast<std::size_t>(block), records);
    if (problem.empty()) problem = WriteReplacement(copy, BytesOf(records));
    done += block;
    if (problem.empty() && goOn) problem = goOn(done);
    if (!problem.empty()) return problem;
  }
  return {};
}

}  // namespace

Record SessionsLogHeader(std::int64_t count) {
  Record record{};
  PutText(record, 0, kTitleBytes, kTitle);
  PutInt32(record, kCountAt, static_cast<std::int32_t>(count));
  return record;
}

SessionsLogFile::~SessionsLogFile() { CloseSessionsFile(*this); }

void CloseSessionsFile(SessionsLogFile& file) {
  if (file.Descriptor >= 0) close(file.Descriptor);
  file.Descriptor = -1;
}

std::string OpenSessionsFile(SessionsLogFile& file, const std::string& path, SessionsAccess access) {
  CloseSessionsFile(file);
  file.Path = path;
  const char* const action = access == SessionsAccess::kRead ? "open" : "write";
  const int flags = (access == SessionsAccess::kRead ? O_RDONLY : O_RDWR) |
                    (access == SessionsAccess::kCreate ? O_CREAT : 0);
  file.Descriptor = open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  if (file.Descriptor < 0) return FileErrorText(action, path, errno);
  struct stat status {};
  if (fstat(file.Descriptor, &status) != 0) return Fail(file, FileErrorText(action, path, errno));
  if (S_ISDIR(status.st_mode)) return Fail(file, FileErrorText(action, path, EISDIR));
  if (!S_ISREG(status.st_mode))
    return Fail(file, MessageText<Msg::kFileFault>(With<"action">(action), With<"path">(path),
                                                   With<"reason">(MessageText<Msg::kIsNoFile>())));
  file.Device = status.st_dev;
  file.Inode = status.st_ino;
  if (access == SessionsAccess::kCreate && status.st_size == 0)
    if (std::string problem = BeginLog(file); !problem.empty()) return Fail(file, problem);
  std::int64_t count = 0;
  if (std::string problem = CountSessions(file, count); !problem.empty()) return Fail(file, problem);
  return {};
}

std::string CountSessions(SessionsLogFile& file, std::int64_t& count) {
  Header header;
  std::string problem = ReadHeader(file, header);
  if (problem.empty() && header.moveGap > 0) {
    // Opened to be read only, it can be gone on with through a descriptor of its own.
    SessionsLogFile writable;
    writable.Path = file.Path;
    writable.Descriptor = open(file.Path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (writable.Descriptor < 0) return FileErrorText("finish a deletion in", file.Path, errno);
    const Lock lock(writable);
    problem = lock.problem.empty() ? SettledHeader(writable, header) : lock.problem;
  }
  if (problem.empty()) count = header.count;
  return problem;
}

std::string ReadSessions(const SessionsLogFile& file, std::int64_t first, std::size_t count,
                         std::vector<Record>& records) {
  if (Interrupted()) return FileErrorText("read", file.Path, EINTR);
  records.resize(count);
  const ssize_t got = ReadAt(file.Descriptor, PlaceOf(first), records.data(), count * kRecordBytes);
  if (got < 0) return FileErrorText("read", file.Path, static_cast<int>(-got));
  if (static_cast<std::size_t>(got) != count * kRecordBytes)
    return MessageText<Msg::kSessionsLogCutShort>(With<"path">(file.Path));
  return {};
}

std::string AppendSession(SessionsLogFile& file, const Record& session) {
  for (int tries = 0;; ++tries) {
    {
      const Lock lock(file);
      if (!lock.problem.empty()) return lock.problem;
      if (IsInPlace(file)) return LockedAppend(file, session);
    }
    if (tries == kLockTries) return MessageText<Msg::kSessionsLogReplaced>(With<"path">(file.Path));
    const std::string path = file.Path;
    if (std::string problem = OpenSessionsFile(file, path, SessionsAccess::kCreate); !problem.empty())
      return problem;
  }
}

std::string AppendSessionsOf(SessionsLogFile& file, SessionsLogFile& other, std::int64_t from) {
  std::int64_t further = 0;
  if (std::string problem = CountFurther(file, other, further); !problem.empty()) return problem;
  further -= from - 1;
  if (further <= 0) return {};
  const Lock lock(file);
  if (!lock.problem.empty()) return lock.problem;
  Header header;
  if (std::string problem = SettledHeader(file, header); !problem.empty()) return problem;
  if (header.count + further > kMostSessions)
    return MessageText<Msg::kSessionsLogsTooLong>(With<"path">(other.Path), With<"limit">(kMostSessions));
  std::vector<Record> records;
  for (std::int64_t done = 0; done < further;) {
    const std::int64_t block = std::min(kCopyBlock, further - done);
    if (std::string problem = ReadSessions(other, from + done, static_cast<std::size_t>(block), records);
        !problem.empty())
      return problem;
    if (std::string problem = WriteRecords(file, header.count + done + 1, records, block); !problem.empty())
      return problem;
    done += block;
  }
  header.count += further;
  return WriteHeader(file, header);
}

std::string DeleteSessionRange(SessionsLogFile& file, std::int64_t first, std::int64_t last) {
  const DeletionLock alone(file);
  if (!alone.problem.empty()) return alone.problem;
  const Lock lock(file);
  if (!lock.problem.empty()) return lock.problem;
  Header header;
  if (std::string problem = SettledHeader(file, header); !problem.empty()) return problem;
  if (!IsRange(first, last, header.count)) return MessageText<Msg::kSessionsOutOfRange>();
  header.moveTo = first;
  header.moveGap = last - first + 1;
  if (last < header.count)
    if (std::string problem = WriteHeader(file, header); !problem.empty()) return problem;
  return FinishMove(file, header);
}

std::string DeleteEverySession(SessionsLogFile& file) {
  const DeletionLock alone(file);
  if (!alone.problem.empty()) return alone.problem;
  const Lock lock(file);
  if (!lock.problem.empty()) return lock.problem;
  Header header;
  if (std::string problem = ReadHeader(file, header); !problem.empty()) return problem;
  return WriteHeader(file, {});
}

std::string CopySessionsLog(SessionsLogFile& file, const std::string& path, std::int64_t* copied,
                            const SessionsGoOn& goOn) {
  if (IsSameFile(file.Path, path)) return {};
  std::int64_t count = 0;
  if (std::string problem = CountSessions(file, count); !problem.empty()) return problem;
  FileReplacement copy;
  std::int64_t done = 0;
  std::string problem = BeginReplacement(copy, path);
  if (problem.empty()) problem = WriteReplacement(copy, BytesOf({SessionsLogHeader(count)}));
  if (problem.empty()) problem = CopyRecords(copy, file, 1, count, done, goOn);
  if (copied != nullptr) *copied = count;
  return problem.empty() ? CommitReplacement(copy) : problem;
}

std::string RewriteSessionsLog(const std::string& path, const SessionsChange& change,
                               const SessionsGoOn& goOn) {
  SessionsLogFile file, other;
  Header header;
  std::int64_t further = 0;
  std::string problem = OpenSessionsFile(file, path, SessionsAccess::kChange);
  if (!problem.empty()) return problem;
  const DeletionLock alone(file);
  problem = alone.problem.empty() ? CountSessions(file, header.count) : alone.problem;
  if (problem.empty() && !change.Other.empty()) {
    problem = OpenSessionsFile(other, change.Other, SessionsAccess::kRead);
    if (problem.empty()) problem = CountFurther(file, other, further);
  }
  const bool deletes = change.First != 0;
  if (problem.empty() && deletes && !IsRange(change.First, change.Last, header.count))
    problem = MessageText<Msg::kSessionsOutOfRange>();
  // What stands before and behind the gap, the other log's, and what is added until all that is done.
  const std::int64_t seen = header.count;
  const std::int64_t gap = deletes ? change.Last - change.First + 1 : 0;
  const std::int64_t before = deletes ? change.First - 1 : seen;
  std::int64_t done = 0;
  FileReplacement copy;
  if (problem.empty()) problem = BeginReplacement(copy, path);
  if (problem.empty()) problem = WriteReplacement(copy, BytesOf({SessionsLogHeader(0)}));
  if (problem.empty()) problem = CopyRecords(copy, file, 1, before, done, goOn);
  if (problem.empty()) problem = CopyRecords(copy, file, before + gap + 1, seen, done, goOn);
  if (problem.empty()) problem = CopyRecords(copy, other, 1, further, done, goOn);
  if (!problem.empty()) return problem;
  fsync(copy.Descriptor);  // what takes long, before others have to wait
  const Lock lock(file);
  problem = lock.problem.empty() ? SettledHeader(file, header) : lock.problem;
  if (problem.empty() && (header.count < seen || !IsInPlace(file)))
    problem = MessageText<Msg::kSessionsLogReplaced>(With<"path">(path));
  const std::int64_t count = header.count - gap + further;
  if (problem.empty() && count > kMostSessions)
    problem = MessageText<Msg::kSessionsLogsTooLong>(With<"path">(path), With<"limit">(kMostSessions));
  if (problem.empty()) problem = CopyRecords(copy, file, seen + 1, header.count, done, {});
  if (!problem.empty()) return problem;
  const Record head = SessionsLogHeader(count);
  const int fault = WriteAt(copy.Descriptor, 0, head.data(), head.size());
  return fault == 0 ? CommitReplacement(copy) : FileErrorText("write", path, fault);
}

}  // namespace tessaryn
