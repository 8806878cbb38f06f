// Programs that share a data folder: each has a folder of its own for what it writes under names that it did
// not choose, such as the Events Log.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

// A lock file that is held. The system gives the lock up when the program ends, however it ends.
struct FolderLock {
  std::string Path;
  int Descriptor = -1;  // -1: not held
  std::string Folder;   // to be removed with the lock when nothing is left in it; empty: none

  FolderLock() = default;
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock();
};

// Takes the data folder for a program, or while another program has it the first free folder "table 2",
// "table 3" ... in it, and clears what a killed program left there. folder: the data folder, and then the one
// that was taken, each with a separator at its end. Returns what the user is to be told: who has the data
// folder, and where this program writes; empty when it has the data folder itself. In a folder that can't be
// written nothing is locked, and nothing told.
std::string ClaimDataFolder(FolderLock& lock, std::string& folder, std::string_view program);

}  // namespace tessaryn
