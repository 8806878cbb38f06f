// Programs that share a data folder, each a process of its own.
#include "base/folder_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "base/program_folders.h"
#include "dice/roll_file.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::TempFolder;
using test::WriteFile;

// Another program, which claims the data folder, leaves work files in its own, and lives until it is killed.
struct OtherProgram {
  pid_t process = -1;
  std::string folder;

  explicit OtherProgram(const std::string& dataFolder) {
    int pipes[2];
    if (pipe(pipes) != 0) return;
    process = fork();
    if (process == 0) {
      FolderLock lock;
      std::string claimed = dataFolder;
      ClaimDataFolder(lock, claimed, "the other");
      for (const char* name : {kRollCopyFile, kRollConvertFile, kRollWorkFile})
        WriteFile(claimed + name, "x");
      const ssize_t told = write(pipes[1], claimed.data(), claimed.size());
      while (told > 0) pause();
      _exit(1);
    }
    close(pipes[1]);
    char text[1000];
    const ssize_t got = read(pipes[0], text, sizeof text);
    folder.assign(text, got > 0 ? static_cast<std::size_t>(got) : 0);
    close(pipes[0]);
  }
  ~OtherProgram() { Kill(); }
  void Kill() {
    if (process <= 0) return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    process = -1;
  }
  bool HasItsFiles() const { return std::filesystem::exists(folder + kRollCopyFile); }
};

TEST(FolderLocks, TheSecondProgramIsToldWhoHasTheFolderAndWorksBeside) {
  TempFolder data;
  OtherProgram first(data.Path());
  OtherProgram second(data.Path());
  EXPECT_EQ(first.folder, data.Path());
  EXPECT_EQ(second.folder, data.Path() + "table 2/");
  std::string own = data.Path();
  {
    FolderLock lock;
    const std::string told = ClaimDataFolder(lock, own, "this one");
    EXPECT_NE(told.find("the other (process " + std::to_string(first.process)), std::string::npos) << told;
    EXPECT_NE(told.find(data.Path() + "table 3/"), std::string::npos) << told;
    EXPECT_EQ(own, data.Path() + "table 3/");
    EXPECT_TRUE(first.HasItsFiles() && second.HasItsFiles());
  }
  EXPECT_FALSE(std::filesystem::exists(data.Path() + "table 3")) << "nothing was written there";
}

TEST(FolderLocks, WorkFilesOfAKilledProgramAreClearedAtTheNextStartAndThoseOfALivingOneAreNot) {
  TempFolder data;
  OtherProgram first(data.Path());
  OtherProgram second(data.Path());
  OtherProgram third(data.Path());
  first.Kill();
  second.Kill();
  EXPECT_TRUE(first.HasItsFiles() && second.HasItsFiles());
  FolderLock lock;
  std::string own = data.Path();
  EXPECT_EQ(ClaimDataFolder(lock, own, "this one"), "");
  EXPECT_EQ(own, data.Path());
  EXPECT_FALSE(first.HasItsFiles() || second.HasItsFiles());
  EXPECT_TRUE(third.HasItsFiles());
  for (const char* name : {kRollCopyFile, kRollConvertFile, kRollWorkFile})
    EXPECT_FALSE(std::filesystem::exists(own + name)) << name;
}

TEST(FolderLocks, AFolderThatCantBeWorkedInIsAnErrorThatNamesIt) {
  TempFolder data;
  WriteFile(data.File("file"), "");
  std::filesystem::create_directories(data.Path() + "closed/inner");
  std::filesystem::permissions(data.Path() + "closed", std::filesystem::perms::none);
  const bool superuser = geteuid() == 0 && seteuid(65534) == 0;
  for (const char* name : {"file", "file/x", "closed", "closed/inner", "a\nb", "\xff"}) {
    std::string folder = data.Path() + name;
    std::string error;
    EXPECT_FALSE(PrepareDataFolder(folder, error)) << name;
    EXPECT_NE(error.find(name), std::string::npos) << error;
  }
  if (superuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  std::filesystem::permissions(data.Path() + "closed", std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace tessaryn
