#include "base/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>

#include "base/messages.h"
#include "base/record_file.h"
#include "base/work_files.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLockFile = "tessaryn.lock";
constexpr int kMostPrograms = 1'000;

enum class Taken { kYes, kByAnother, kUnable };

void Release(FolderLock& lock) {
  if (lock.Descriptor < 0) return;
  unlink(lock.Path.c_str());  // while it is held, so that it is nobody else's
  if (!lock.Folder.empty()) rmdir(lock.Folder.c_str());
  close(lock.Descriptor);
  lock.Descriptor = -1;
  lock.Folder.clear();
}

std::string HolderText(std::string_view program) {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char since[32];
  std::strftime(since, sizeof since, "%Y-%m-%d %H:%M:%S", &local);
  return std::string(program) + " (process " + std::to_string(getpid()) + ", since " + since + ")";
}

// The lock on a file that still is the one of that name: its last holder may just have removed it.
Taken LockFile(const std::string& path, int& descriptor) {
  for (;;) {
    descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (descriptor < 0) return Taken::kUnable;
    struct stat held {};
    struct stat named {};
    const bool locked = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    if (!locked && errno == EWOULDBLOCK) return Taken::kByAnother;
    if (!locked || fstat(descriptor, &held) != 0 || !S_ISREG(held.st_mode)) {
      close(descriptor);
      return Taken::kUnable;
    }
    if (stat(path.c_str(), &named) == 0 && named.st_ino == held.st_ino && named.st_dev == held.st_dev)
      return Taken::kYes;
    close(descriptor);
  }
}

// holder: who has it, when another has.
Taken Take(FolderLock& lock, const std::string& folder, std::string_view program, std::string& holder) {
  const std::string path = folder + kLockFile;
  int descriptor = -1;
  const Taken taken = LockFile(path, descriptor);
  if (taken == Taken::kYes) {
    const std::string text = HolderText(program);
    // Told to others and no more: the lock holds without it.
    if (ftruncate(descriptor, 0) != 0 || write(descriptor, text.data(), text.size()) < 0) errno = 0;
    lock.Path = path;
    lock.Descriptor = descriptor;
  } else if (taken == Taken::kByAnother) {
    char text[200];
    const ssize_t got = read(descriptor, text, sizeof text);
    holder.assign(text, got > 0 ? static_cast<std::size_t>(got) : 0);
    if (holder.empty() || !TextProblem(holder).empty()) holder = MessageText<Msg::kAnotherProgram>();
    close(descriptor);
  }
  return taken;
}

constexpr const char* kFolderOfOthers = "table ";

// Requires that this program holds the folder.
void ClearWorkFiles(const std::string& folder) {
  for (const char* name : {kRollCopyFile, kRollConvertFile, kRollWorkFile}) unlink((folder + name).c_str());
  ClearLeftovers(folder);
}

// Of programs that worked beside the one that has the data folder, and are no more.
void ClearForsakenFolders(const std::string& dataFolder, std::string_view program) {
  std::error_code fault;
  fs::directory_iterator entries(dataFolder, fs::directory_options::skip_permission_denied, fault);
  for (; !fault && entries != fs::directory_iterator(); entries.increment(fault)) {
    const std::string path = entries->path().string();
    const std::string name = FileTitle(path);
    std::error_code unseen;
    if (!name.starts_with(kFolderOfOthers) || !fs::exists(path + "/" + kLockFile, unseen)) continue;
    FolderLock lock;
    std::string holder;
    if (Take(lock, path + "/", program, holder) != Taken::kYes) continue;
    ClearWorkFiles(path + "/");
    lock.Folder = path;
  }
}

// The first folder beside the data folder's own that no program has.
bool TakeFolderInside(FolderLock& lock, const std::string& dataFolder, std::string_view program,
                      std::string& folder) {
  for (int number = 2; number <= kMostPrograms; ++number) {
    const std::string path = dataFolder + kFolderOfOthers + std::to_string(number);
    std::error_code fault;
    fs::create_directory(path, fault);
    std::string holder;
    if (Take(lock, path + "/", program, holder) != Taken::kYes) continue;
    ClearWorkFiles(path + "/");
    lock.Folder = path;
    folder = path + "/";
    return true;
  }
  return false;
}

}  // namespace

FolderLock::~FolderLock() { Release(*this); }

std::string ClaimDataFolder(FolderLock& lock, std::string& folder, std::string_view program) {
  Release(lock);
  const std::string dataFolder = folder;
  std::string holder;
  const Taken first = Take(lock, dataFolder, program, holder);
  if (first == Taken::kYes) {
    ClearWorkFiles(dataFolder);
    ClearForsakenFolders(dataFolder, program);
  }
  if (first != Taken::kByAnother) return {};
  const auto inUse = With<"path">(dataFolder);
  if (!TakeFolderInside(lock, dataFolder, program, folder))
    return MessageText<Msg::kFolderInUseNoOther>(inUse, With<"holder">(holder));
  return MessageText<Msg::kFolderInUse>(inUse, With<"holder">(holder), With<"folder">(folder));
}

}  // namespace tessaryn
