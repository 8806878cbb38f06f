#include "stats/events_log_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <vector>

#include "base/interrupts.h"
#include "base/record_file.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

constexpr std::size_t kBlock = 1 << 20;

// Bytes from to end, as write takes them.
template <typename Write>
std::string ReadPart(const EventsLogCopy& copy, std::int64_t from, std::int64_t end, Write&& write) {
  std::vector<char> block(kBlock);
  for (std::int64_t at = from; at < end;) {
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(kBlock, end - at));
    const ssize_t got = pread(copy.Descriptor, block.data(), wanted, at);
    if (got < 0 && errno == EINTR && !Interrupted()) continue;
    if (got <= 0) return FileErrorText("read", copy.From, got < 0 ? errno : EIO);
    at += got;
    std::string problem = write(std::string_view(block.data(), static_cast<std::size_t>(got)), at);
    if (!problem.empty()) return problem;
  }
  return {};
}

}  // namespace

EventsLogCopy::~EventsLogCopy() {
  if (Descriptor >= 0) close(Descriptor);
}

std::string CopyEventsLog(EventsLogCopy& copy, const std::function<std::string(std::int64_t)>& goOn) {
  copy.Descriptor = open(copy.From.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  struct stat status {};
  if (copy.Descriptor < 0 || fstat(copy.Descriptor, &status) != 0)
    return FileErrorText("open", copy.From, errno);
  FileReplacement to;
  std::string problem = BeginReplacement(to, copy.To);
  if (!problem.empty()) return problem;
  problem = ReadPart(copy, 0, status.st_size, [&](std::string_view bytes, std::int64_t done) {
    std::string fault = WriteReplacement(to, bytes);
    return fault.empty() && goOn ? goOn(done) : fault;
  });
  copy.Copied = status.st_size;
  return problem.empty() ? CommitReplacement(to) : problem;
}

std::string UseEventsLogCopy(Game& game, const EventsLogCopy& copy) {
  FlushEventsLog(game);
  struct stat then {
  }, now{};
  const std::string path = EventsLogPath(game);
  if (fstat(copy.Descriptor, &then) != 0 || stat(path.c_str(), &now) != 0) return {};
  if (then.st_dev != now.st_dev || then.st_ino != now.st_ino || now.st_size < copy.Copied) return {};
  const int to = open(copy.To.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
  if (to < 0) return FileErrorText("write", copy.To, errno);
  std::string problem = ReadPart(copy, copy.Copied, now.st_size, [&](std::string_view bytes, std::int64_t) {
    const ssize_t written = write(to, bytes.data(), bytes.size());
    return written == static_cast<ssize_t>(bytes.size())
               ? std::string()
               : FileErrorText("write", copy.To, written < 0 ? errno : ENOSPC);
  });
  // What was cut short is not left behind the last whole line.
  const bool cut = problem.empty() || ftruncate(to, copy.Copied) == 0;
  close(to);
  if (!cut) return FileErrorText("write", copy.To, EIO);
  if (problem.empty()) game.events.Path = copy.To;
  return problem;
}

bool SaveEventsLogAs(Game& game, const std::string& path, std::string& error) {
  FlushEventsLog(game);
  const std::string from = EventsLogPath(game);
  std::error_code fault;
  if (std::filesystem::weakly_canonical(path, fault) == std::filesystem::weakly_canonical(from, fault))
    return true;
  EventsLogCopy copy;
  copy.From = from;
  copy.To = path;
  error = CopyEventsLog(copy, {});
  if (error.empty()) error = UseEventsLogCopy(game, copy);
  return error.empty();
}

}  // namespace tessaryn
