// Logs for tests: sessions that can be told apart, written and read whole.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "stats/sessions_log_file.h"
#include "support/test_host.h"

namespace tessaryn::test {

using Records = std::vector<Record>;
using Random = std::mt19937;

inline std::int64_t Draw(Random& random, std::int64_t low, std::int64_t high) {
  return std::uniform_int_distribution<std::int64_t>(low, high)(random);
}

// A session that can be told from all others.
inline Record Numbered(std::int64_t number) {
  Record record{};
  for (int field = 0; field < kSessionFields; ++field)
    PutSessionValue(record, field, Currency::FromRaw(number * 100 + field));
  return record;
}

inline std::string OpenedTo(SessionsLogFile& file, const std::string& path,
                            SessionsAccess access = SessionsAccess::kCreate) {
  return OpenSessionsFile(file, path, access);
}

inline Records ReadAll(const std::string& path) {
  SessionsLogFile file;
  EXPECT_EQ(OpenedTo(file, path, SessionsAccess::kRead), "");
  std::int64_t count = 0;
  EXPECT_EQ(CountSessions(file, count), "");
  Records all;
  const auto add = [&](const Record& record, std::int64_t) { all.push_back(record); };
  EXPECT_EQ(ForEachSession(file, 1, count, add), "");
  return all;
}

inline void WriteAll(const std::string& path, const Records& records) {
  SessionsLogFile file;
  ASSERT_EQ(OpenedTo(file, path), "");
  for (const Record& record : records) ASSERT_EQ(AppendSession(file, record), "");
}

}  // namespace tessaryn::test
