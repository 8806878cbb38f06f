#include "stats/sessions_log_file.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>

#include "stats/sessions_records.h"
#include "stats/sessions_statistics.h"

namespace tessaryn {
namespace {

using namespace test;

int Rounds(const char* variable, int otherwise) {
  const char* rounds = std::getenv(variable);
  return rounds != nullptr ? std::atoi(rounds) : otherwise;
}

TEST(SessionsLogFile, EveryChangeIsThatOfAList) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Random random(seed);
  TempFolder folder;
  const std::string path = folder.File("a.slg");
  const std::string second = folder.File("b.slg");
  Records model;
  SessionsLogFile file;
  ASSERT_EQ(OpenedTo(file, path), "");
  std::int64_t number = 0;
  for (int step = 0; step < 250; ++step) {
    const auto size = static_cast<std::int64_t>(model.size());
    switch (Draw(random, 0, 9)) {
      case 0:
      case 1: {
        const std::int64_t first = Draw(random, 0, size + 1);
        const std::int64_t last = Draw(random, first, size + 1);
        const bool good = first >= 1 && last <= size;
        EXPECT_EQ(DeleteSessionRange(file, first, last).empty(), good);
        if (good) model.erase(model.begin() + first - 1, model.begin() + last);
        break;
      }
      case 2: {
        Records further;
        for (std::int64_t n = Draw(random, 0, 5'000); n > 0; --n) further.push_back(Numbered(++number));
        SessionsLogFile other;
        std::remove(second.c_str());
        Record head{};
        PutText(head, 0, 92, "Another Sessions Log, Data Format 5.0");
        PutInt32(head, 92, static_cast<std::int32_t>(further.size()));
        RecordFile written{further};
        written.Records.insert(written.Records.begin(), head);
        ASSERT_EQ(WriteRecordFile(second, written), "");
        ASSERT_EQ(OpenedTo(other, second, SessionsAccess::kRead), "");
        EXPECT_EQ(AppendSessionsOf(file, other), "");
        EXPECT_NE(AppendSessionsOf(other, other), "");
        model.insert(model.end(), further.begin(), further.end());
        break;
      }
      case 3:
        EXPECT_EQ(CopySessionsLog(file, second), "");
        EXPECT_EQ(ReadAll(second), model);
        if (Draw(random, 0, 5) == 0) {
          EXPECT_EQ(DeleteEverySession(file), "");
          model.clear();
        }
        break;
      case 4:  // another program puts another log in its place, or takes it away
        if (Draw(random, 0, 1) == 0 && CopySessionsLog(file, second).empty())
          std::rename(second.c_str(), path.c_str());
        else if (std::remove(path.c_str()) == 0)
          model.clear();
        model.push_back(Numbered(++number));
        EXPECT_EQ(AppendSession(file, model.back()), "");
        break;
      case 5: {  // beside a program that adds to it meanwhile, to its end or not
        SessionsChange change{Draw(random, 0, size), 0, ""};
        change.Last = Draw(random, std::max<std::int64_t>(change.First, 1), size + 1);
        const Records further{Numbered(++number), Numbered(++number)};
        std::remove(second.c_str());
        SessionsLogFile other;
        ASSERT_EQ(OpenedTo(other, second), "");
        for (const Record& record : further) ASSERT_EQ(AppendSession(other, record), "");
        if (Draw(random, 0, 1) == 0) change.Other = second;
        Records added;
        const bool stopped = Draw(random, 0, 3) == 0;
        const std::string problem = RewriteSessionsLog(path, change, [&](std::int64_t) {
          added.push_back(Numbered(++number));
          EXPECT_EQ(AppendSession(file, added.back()), "");
          EXPECT_NE(DeleteEverySession(file), "") << "sessions are being taken out";
          return std::string(stopped ? "enough" : "");
        });
        if (problem.empty()) {
          if (change.First != 0) model.erase(model.begin() + change.First - 1, model.begin() + change.Last);
          if (!change.Other.empty()) model.insert(model.end(), further.begin(), further.end());
        }
        EXPECT_EQ(problem.empty(), (change.First == 0 || change.Last <= size) && (!stopped || added.empty()));
        model.insert(model.end(), added.begin(), added.end());
        model.push_back(Numbered(++number));
        EXPECT_EQ(AppendSession(file, model.back()), "");
        break;
      }
      default:
        for (std::int64_t n = Draw(random, 1, 50); n > 0; --n) {
          model.push_back(Numbered(++number));
          ASSERT_EQ(AppendSession(file, model.back()), "");
        }
    }
    ASSERT_EQ(ReadAll(path), model) << "step " << step;
  }
}

TEST(SessionsLogFile, NoTruncationAndNoBytesDoHarm) {
  Random random(20'240'229);
  TempFolder folder;
  const std::string path = folder.File("a.slg");
  WriteAll(path, {Numbered(1), Numbered(2), Numbered(3), Numbered(4)});
  const std::string whole = test::ReadFile(path);
  ASSERT_EQ(whole.size(), 5 * kRecordBytes);
  EXPECT_EQ(whole.substr(0, 38), "Tessaryn Sessions Log, Data Format 5.0");
  const auto refuse = [&](const std::string& bytes, const std::string& what) {
    test::WriteFile(path, bytes);
    SessionsLogFile file;
    for (const SessionsAccess access :
         {SessionsAccess::kRead, SessionsAccess::kChange, SessionsAccess::kCreate}) {
      if (bytes.empty() && access == SessionsAccess::kCreate) break;  // nothing yet: a new log
      EXPECT_NE(OpenedTo(file, path, access).find("is not a true Tessaryn Sessions Log."), std::string::npos)
          << what;
      EXPECT_EQ(test::ReadFile(path), bytes) << what << " was changed";
    }
  };
  for (std::size_t length = 0; length < whole.size(); ++length)
    refuse(whole.substr(0, length), "cut at " + std::to_string(length));
  for (const std::int32_t count : {-1, 5, 2'147'483'647}) {
    std::string bytes = whole;
    std::memcpy(bytes.data() + 92, &count, sizeof count);
    refuse(bytes, "a count of " + std::to_string(count));
  }
  refuse("<html>" + std::string(3000, ' '), "another program's file");
  for (int round = Rounds("TESSARYN_LOG_MUTATIONS", 1'500); round > 0; --round) {
    std::string bytes = whole;
    for (std::int64_t n = Draw(random, 1, 40); n > 0; --n)
      bytes[static_cast<std::size_t>(Draw(random, n % 2 == 0 ? 0 : 88, n % 2 == 0 ? 1279 : 120))] =
          static_cast<char>(Draw(random, 0, 255));
    test::WriteFile(path, bytes);
    SessionsLogFile file;
    if (!OpenedTo(file, path).empty()) {
      EXPECT_EQ(test::ReadFile(path), bytes);
      continue;
    }
    SessionsStatistics s;
    bool overflow = false;
    const std::string problem = ComputeSessions(file, {}, s, overflow);
    EXPECT_EQ(problem.empty(), !overflow) << problem;
    EXPECT_EQ(AppendSession(file, Numbered(9)), "");
    EXPECT_EQ(ReadAll(path).back(), Numbered(9));
  }
}

TEST(SessionsLogFile, WhatIsNoFileIsRefused) {
  TempFolder folder;
  SessionsLogFile file;
  const std::string pipe = folder.File("pipe.slg");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {pipe, folder.Path(), folder.File("none/a.slg"), std::string("/dev/null")})
    for (const SessionsAccess access :
         {SessionsAccess::kRead, SessionsAccess::kChange, SessionsAccess::kCreate})
      EXPECT_NE(OpenedTo(file, path, access).find(path), std::string::npos);
  EXPECT_NE(OpenedTo(file, folder.File("b.slg"), SessionsAccess::kChange), "");
  EXPECT_NE(access(folder.File("b.slg").c_str(), F_OK), 0) << "made by looking";
}

// A write that fails at each byte in turn: the log holds what it held, and the session comes in once.
TEST(SessionsLogFile, AFullDiskLosesNothing) {
  TempFolder folder;
  const std::string path = folder.File("a.slg");
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlim_t step = std::getenv("TESSARYN_GAME_FAULTS") != nullptr ? 1 : 7;
  for (rlim_t bytes = 0; bytes <= 4 * kRecordBytes; bytes += step) {
    std::remove(path.c_str());
    Records model;
    for (std::int64_t number = 1; number <= 4; ++number) {
      const rlimit full{bytes, before.rlim_max};
      ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
      SessionsLogFile file;
      std::string problem = OpenedTo(file, path);
      if (problem.empty()) problem = AppendSession(file, Numbered(number));
      ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
      EXPECT_EQ(problem.empty(), (static_cast<rlim_t>(number) + 1) * kRecordBytes <= bytes);
      if (problem.empty()) model.push_back(Numbered(number));
      if (bytes >= kRecordBytes) {
        ASSERT_EQ(ReadAll(path), model) << bytes;
      }
    }
    ASSERT_EQ(OpenedTo(*std::make_unique<SessionsLogFile>(), path), "");
    WriteAll(path, {Numbered(77)});
    model.push_back(Numbered(77));
    ASSERT_EQ(ReadAll(path), model);
  }
}

// --- kill -9.

int KillRounds() { return Rounds("TESSARYN_KILL_ROUNDS", 300); }

// Runs work in a process of its own and kills it some time later.
void Killed(Random& random, const std::function<void()>& work) {
  const pid_t child = fork();
  if (child == 0) {
    work();
    _exit(0);
  }
  usleep(static_cast<useconds_t>(Draw(random, 200, 3'000)));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

TEST(SessionsLogKilled, AnAppendIsThereOnceOrNotAtAll) {
  Random random(std::random_device{}());
  TempFolder folder;
  const std::string path = folder.File("a.slg");
  void* shared = mmap(nullptr, sizeof(std::atomic<std::int64_t>), PROT_READ | PROT_WRITE,
                      MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  auto& done = *new (shared) std::atomic<std::int64_t>(0);
  std::int64_t there = 0;
  for (int round = 0; round < KillRounds(); ++round) {
    done = there;
    Killed(random, [&] {
      SessionsLogFile file;
      if (!OpenedTo(file, path).empty()) _exit(1);
      for (std::int64_t number = there + 1; AppendSession(file, Numbered(number)).empty(); ++number)
        done = number;
    });
    if (access(path.c_str(), F_OK) != 0) continue;
    SessionsLogFile file;
    ASSERT_EQ(OpenedTo(file, path), "") << "round " << round;
    ASSERT_EQ(CountSessions(file, there), "");
    ASSERT_TRUE(there == done || there == done + 1) << there << " sessions, " << done << " were told";
    if (round % 50 != 0 && round + 1 < KillRounds()) continue;
    const auto right = [](const Record& record, std::int64_t number) { ASSERT_EQ(record, Numbered(number)); };
    ASSERT_EQ(ForEachSession(file, 1, there, right), "");
  }
  EXPECT_GT(there, KillRounds());
  munmap(shared, sizeof done);
}

TEST(SessionsLogKilled, ADeletionOrMergeIsDoneOrIsNot) {
  Random random(std::random_device{}());
  TempFolder folder;
  const std::string path = folder.File("a.slg");
  const std::string second = folder.File("b.slg");
  Records before;
  for (std::int64_t number = 1; number <= 2'500; ++number) before.push_back(Numbered(number));
  WriteAll(second, before);
  const std::string bytes = ReadFile(second);
  for (int round = 0; round < KillRounds() / 3; ++round) {
    WriteFile(path, bytes);
    const std::int64_t first = Draw(random, 1, 200);
    const std::int64_t last = Draw(random, first, first + 20);
    const bool merges = round % 4 == 0;
    Killed(random, [&] {
      SessionsLogFile file;
      SessionsLogFile other;
      if (!OpenedTo(file, path).empty() || !OpenedTo(other, second).empty()) _exit(1);
      if (merges) AppendSessionsOf(file, other);
      DeleteSessionRange(file, first, last);
    });
    const Records found = ReadAll(path);
    Records merged = before;
    if (merges) merged.insert(merged.end(), before.begin(), before.end());
    Records after = merged;
    after.erase(after.begin() + first - 1, after.begin() + last);
    ASSERT_TRUE(found == before || found == merged || found == after)
        << found.size() << " sessions, " << first << ".." << last;
  }
}

}  // namespace
}  // namespace tessaryn
