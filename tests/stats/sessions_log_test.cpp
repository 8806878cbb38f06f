#include "stats/sessions_log.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <csignal>
#include <cstring>
#include <functional>
#include <random>

#include "play/copy_game.h"
#include "play/players.h"
#include "play/table_files.h"
#include "rules/bet_rules.h"
#include "rules/session.h"
#include "stats/statistics.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TempFolder;
using test::TestTable;
using Records = std::vector<Record>;
using Random = std::mt19937;

std::int64_t Draw(Random& random, std::int64_t low, std::int64_t high) {
  return std::uniform_int_distribution<std::int64_t>(low, high)(random);
}

// A session that can be told from all others.
Record Numbered(std::int64_t number) {
  Record record{};
  for (int field = 0; field < kSessionFields; ++field)
    PutSessionValue(record, field, Currency::FromRaw(number * 100 + field));
  return record;
}

std::string OpenedTo(SessionsLogFile& file, const std::string& path,
                     SessionsAccess access = SessionsAccess::kCreate) {
  return OpenSessionsFile(file, path, access);
}

Records ReadAll(const std::string& path) {
  SessionsLogFile file;
  EXPECT_EQ(OpenedTo(file, path, SessionsAccess::kRead), "");
  std::int64_t count = 0;
  EXPECT_EQ(CountSessions(file, count), "");
  Records all;
  const auto add = [&](const Record& record, std::int64_t) { all.push_back(record); };
  EXPECT_EQ(ForEachSession(file, 1, count, add), "");
  return all;
}

void WriteAll(const std::string& path, const Records& records) {
  SessionsLogFile file;
  ASSERT_EQ(OpenedTo(file, path), "");
  for (const Record& record : records) ASSERT_EQ(AppendSession(file, record), "");
}

// --- The file.

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
  for (int round = 0; round < 1'500; ++round) {
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
  for (rlim_t bytes = 0; bytes <= 4 * kRecordBytes; bytes += 7) {
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

int KillRounds() {
  const char* rounds = std::getenv("TESSARYN_KILL_ROUNDS");
  return rounds != nullptr ? std::atoi(rounds) : 300;
}

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
  for (int round = 0; round < KillRounds() / 3; ++round) {
    Records before;
    for (std::int64_t number = 1; number <= 2'500; ++number) before.push_back(Numbered(number));
    for (const std::string& each : {path, second}) {
      std::remove(each.c_str());
      WriteAll(each, before);
    }
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

// --- The statistics, plainly: all values in memory, sorted.

double Rounded(double value) { return std::nearbyint(value * 1e4) / 1e4; }

struct Plain {
  std::vector<double> values;
  std::int64_t net = 0, handle = 0;  // in ten-thousandths: exactly 0 or not
  double sum = 0, mean = 0, variance = 0, deviation = 0, skew = 0, kurtosis = 0, median = 0;
  bool marked = false;
  std::vector<std::int64_t> columns = std::vector<std::int64_t>(525);
};

Plain Recompute(const Records& records, const SessionsQuery& query) {
  Plain p;
  const auto dollars = [](const Record& record, int field) { return SessionValue(record, field).ToDouble(); };
  for (const Record& record : records) {
    const double net = dollars(record, 8);
    const bool in = net < query.BreakPointLow.ToDouble()    ? query.IncludeLost
                    : net > query.BreakPointHigh.ToDouble() ? query.IncludeWon
                                                            : query.IncludeBrokeEven;
    const double value = dollars(record, query.Measure);
    const bool within = query.Outliers == OutlierRule::kNone ||
                        (value >= query.OutlierLow.ToDouble() && value <= query.OutlierHigh.ToDouble());
    if (!in || !within) continue;
    p.values.push_back(value);
    p.sum += value;
    p.net += SessionValue(record, 8).raw;
    p.handle += SessionValue(record, 5).raw;
  }
  if (p.values.empty()) return p;
  std::sort(p.values.begin(), p.values.end());
  const auto n = static_cast<double>(p.values.size());
  const double low = p.values.front();
  const double range = p.values.back() - low;
  p.mean = Rounded(p.sum / n);
  std::vector<std::vector<double>> held(525);
  for (const double value : p.values) {
    p.variance += (value - p.mean) * (value - p.mean) / n;
    const double column = range > 0 ? 524 * std::round((value - low) * 1e4) / std::round(range * 1e4) : 262;
    held[static_cast<std::size_t>(column + 1e-9)].push_back(value);
  }
  p.deviation = Rounded(std::sqrt(p.variance));
  for (const double value : p.values) {
    if (p.deviation == 0) break;
    p.skew += Rounded(std::pow((value - p.mean) / p.deviation, 3)) / n;
    p.kurtosis += Rounded(std::pow((value - p.mean) / p.deviation, 4)) / n;
  }
  if (p.deviation > 0) p.kurtosis -= 3;
  const auto columnOf = [&](std::size_t at) {  // the column of the value with this rank
    for (std::size_t column = 0;; at -= held[column++].size())
      if (at < held[column].size()) return column;
  };
  const std::size_t a = columnOf((p.values.size() - 1) / 2);
  const std::size_t b = columnOf(p.values.size() / 2);
  const auto middle = [&](std::size_t column) { return (held[column].front() + held[column].back()) / 2; };
  p.median = a == b ? middle(a) : (middle(a) + middle(b)) / 2;
  p.marked = a != b || held[a].front() != held[a].back();
  for (std::size_t column = 0; column < 525; ++column)
    p.columns[column] = static_cast<std::int64_t>(held[column].size());
  return p;
}

TEST(SessionsStatistics, AreThoseOfAPlainRecomputation) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  Random random(seed);
  TempFolder folder;
  for (int round = 0; round < 150; ++round) {
    const std::int64_t count = round < 10 ? round : Draw(random, 1, round % 10 == 0 ? 6'000 : 300);
    const std::int64_t spread =
        std::vector<std::int64_t>{0, 3, 600, 40'000'000}[static_cast<std::size_t>(Draw(random, 0, 3))];
    const std::int64_t unit = Draw(random, 0, 1) == 0 ? 1 : 10'000;
    Records records;
    for (std::int64_t n = 0; n < count; ++n) {
      Record record{};
      for (int field = 0; field < 12; ++field)
        PutSessionValue(record, field, Currency::FromRaw(Draw(random, -spread, spread) * unit));
      records.push_back(record);
    }
    SessionsQuery query;
    query.Measure = static_cast<int>(Draw(random, 0, 11));
    query.BreakPointLow = Currency::FromRaw(-Draw(random, 0, spread / 2) * unit);
    query.BreakPointHigh = Currency::FromRaw(Draw(random, 0, spread / 2) * unit);
    query.IncludeWon = Draw(random, 0, 3) > 0;
    query.IncludeLost = Draw(random, 0, 3) > 0;
    if (round % 3 == 1) query.Outliers = OutlierRule::kByValue;
    if (round % 3 == 2) query.Outliers = OutlierRule::kByDeviations;
    query.OutlierLow = round % 3 == 1 ? Currency::FromRaw(-spread * unit / 2) : Money("-1.25");
    query.OutlierHigh = round % 3 == 1 ? Currency::FromRaw(spread * unit / 3) : Money("1.5");
    SessionsQuery bounded = query;
    if (query.Outliers == OutlierRule::kByDeviations) {
      SessionsQuery all = query;
      all.Outliers = OutlierRule::kNone;
      const Plain classes = Recompute(records, all);
      bounded.OutlierLow =
          Currency::FromDouble(classes.mean) + Currency::FromDouble(classes.deviation * -1.25);
      bounded.OutlierHigh =
          Currency::FromDouble(classes.mean) + Currency::FromDouble(classes.deviation * 1.5);
    }
    const std::string path = folder.File("a.slg");
    std::remove(path.c_str());
    WriteAll(path, records);
    SessionsLogFile file;
    ASSERT_EQ(OpenedTo(file, path), "");
    SessionsStatistics s;
    bool overflow = false;
    ASSERT_EQ(ComputeSessions(file, query, s, overflow), "");
    const Plain p = Recompute(records, bounded);
    SCOPED_TRACE("round " + std::to_string(round));
    ASSERT_EQ(s.Included, static_cast<std::int64_t>(p.values.size()));
    ASSERT_EQ(s.Won + s.BrokeEven + s.Lost, count);
    if (p.values.empty()) continue;
    const double size = std::abs(p.values.front()) + std::abs(p.values.back()) + 1;
    EXPECT_NEAR(s.Sum.ToDouble(), p.sum, 1e-9 * size * static_cast<double>(count));
    EXPECT_NEAR(s.Mean.ToDouble(), p.mean, 1.1e-4);
    EXPECT_NEAR(s.Variance, p.variance, 1e-9 * size * size);
    EXPECT_NEAR(s.StdDev.ToDouble(), p.deviation, 1.1e-4);
    EXPECT_NEAR(s.Skew, p.skew, 2e-3);
    EXPECT_NEAR(s.Kurtosis, p.kurtosis, 2e-3);
    EXPECT_NEAR(s.Median.ToDouble(), p.median, 2e-4 + 1e-12 * size);
    EXPECT_EQ(s.MedianMarked, p.marked);
    EXPECT_EQ(s.Low.ToDouble(), p.values.front());
    EXPECT_EQ(s.High.ToDouble(), p.values.back());
    EXPECT_NEAR(s.Mid.ToDouble(), (p.values.front() + p.values.back()) / 2, 1.1e-4);
    EXPECT_NEAR(s.AdvantagePercent.ToDouble(),
                p.handle == 0 ? 0 : 100.0 * static_cast<double>(p.net) / static_cast<double>(p.handle),
                1e-3 + 1e-9 * size);
    EXPECT_EQ(std::vector<std::int64_t>(s.Histogram, s.Histogram + 525), p.columns);
    const auto fullest = std::max_element(p.columns.begin(), p.columns.end()) - p.columns.begin();
    EXPECT_EQ(HistogramColumn(s.Mode, s.Low, s.High), fullest);
  }
}

TEST(SessionsStatistics, ValuesBeyondCountingAreAnErrorAndNoResult) {
  TempFolder folder;
  for (const std::int64_t raw : {Currency::kErrorRaw, Currency::kErrorRaw + 1}) {
    const std::string path = folder.File(std::to_string(raw) + ".slg");
    Record low{};
    Record high{};
    PutSessionValue(low, 8, Currency::FromRaw(raw));
    PutSessionValue(high, 8, Currency::FromRaw(std::numeric_limits<std::int64_t>::max()));
    WriteAll(path, {low, high, high});
    SessionsLogFile file;
    ASSERT_EQ(OpenedTo(file, path), "");
    SessionsStatistics s;
    bool overflow = false;
    EXPECT_NE(ComputeSessions(file, {}, s, overflow), "");
    EXPECT_TRUE(overflow);
    EXPECT_EQ(s.Total, 0);
  }
}

// --- At the table.

// What the game's own statistics say of the session, bet by bet.
Record Expected(const Game& game, int seat) {
  const Statistics& stats = game.stats;
  Currency sums[kStatTables][2];
  for (int bet = 1; bet <= kBets; ++bet)
    for (int table = 0; table < kStatTables; ++table)
      for (const StatKind kind : {kStatCount, kStatTotal})
        sums[table][kind - 1] +=
            BetStat(stats, static_cast<StatTable>(table), kCurrentSession, seat, bet, kind);
  Record record{};
  int field = 0;
  const auto put = [&](Currency value) { PutSessionValue(record, field++, value); };
  put(Currency::Dollars(PlayerRolls(stats, kCurrentSession, seat)));
  for (const int kind : {0, 1}) {
    for (const auto& table : sums) put(table[kind]);
    put(sums[kWinStats][kind] - sums[kLossStats][kind]);
  }
  const double handle = sums[kWagerStats][1].ToDouble();
  put(handle == 0 ? kZero : Currency::FromDouble(100 * SessionValue(record, 8).ToDouble() / handle));
  put(stats.BankrollSessionStart[seat]);
  put(game.table.BankrollCurrent[seat]);
  for (int stack = 0; stack < 20; ++stack) put(game.table.BetAmount(seat, 100 + stack));
  return record;
}

TEST(SessionsLog, HoldsWhatTheTableCountedForEverySessionOfEveryPlayer) {
  Random random(std::random_device{}());
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Set("MessageMask", "0");
  table.Set("ReturnAbandonedBets", "on");
  const std::string names[] = {"", "ann", "bob", "cyd"};
  Records model[4];
  for (int seat = 1; seat <= 3; ++seat) table.Join(seat, names[seat], "5000");
  for (int session = 0; session < 40; ++session) {
    for (std::int64_t hand = Draw(random, 0, 3); hand > 0; --hand) {
      for (int n = 0; n < 12; ++n)
        PlaceBet(game, static_cast<int>(Draw(random, 1, 3)), static_cast<int>(Draw(random, 1, kBets)),
                 Money("20"));
      SetBetAmount(game, 1, static_cast<int>(Draw(random, 100, 125)),
                   Currency::FromRaw(Draw(random, -50, 99'999)));
      table.Turbo(Draw(random, 1, 25));
    }
    const bool rolled = SessionRolls(game.stats) > 0;
    const int leaver = Draw(random, 0, 4) == 0 ? static_cast<int>(Draw(random, 1, 3)) : 0;
    for (int seat = 1; seat <= 3 && rolled; ++seat) model[seat].push_back(Expected(game, seat));
    if (leaver > 0) LeaveTable(game, leaver);
    if (leaver > 0) table.Join(leaver, names[leaver], "5000");
    // One who has just come back has a session without rolls of his own.
    if (leaver > 0 && rolled) model[leaver].push_back(Expected(game, leaver));
    NewSession(game, true, session % 2 == 0, true, 0);
    for (int seat = 1; seat <= 3; ++seat) {
      const std::string path = table.folder.File(names[seat] + ".slg");
      if (model[seat].empty()) continue;
      ASSERT_EQ(ReadAll(path), model[seat]) << names[seat] << ", session " << session;
    }
  }
  // A copy of the game writes nothing; without keeping them the logs are gone.
  const std::string before = test::ReadFile(table.folder.File("ann.slg"));
  const std::unique_ptr<Game> copy = CopyGame(game, table.host);
  table.Turbo(3);
  copy->stats = game.stats;
  NewSession(*copy, false, false, false, 0);
  EXPECT_EQ(test::ReadFile(table.folder.File("ann.slg")), before);
  game.table.seats[2].SessionsLogName = table.folder.File("mine.slg");
  NewSession(game, true, true, false, 0);
  EXPECT_EQ(game.table.seats[2].SessionsLogName, table.folder.File("bob.slg"));
  EXPECT_NE(access(table.folder.File("ann.slg").c_str(), F_OK), 0);
  EXPECT_EQ(ReadAll(table.folder.File("mine.slg")).size(), 1u);
}

TEST(SessionsLog, OneThatCantBeWrittenStopsTheRunAndLosesNothing) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  const std::string common = table.folder.File("common.slg");
  for (const int seat : {1, 2}) game.table.seats[seat].SessionsLogName = common;
  test::WriteFile(common, "something else");
  Records model;
  for (int session = 0; session < 3; ++session) {
    table.Roll(1, 2);
    for (const int seat : {1, 2}) model.push_back(Expected(game, seat));
    game.table.AutoRollActive = session == 0;
    NewSession(game, true, true, true, 0);
    EXPECT_FALSE(game.table.AutoRollActive);
  }
  EXPECT_EQ(std::ranges::count(table.host.boxes, "Sessions Log Error", &test::ShownBox::title), 1);
  EXPECT_NE(table.host.LastText().find("is not a true Tessaryn Sessions Log."), std::string::npos);
  EXPECT_EQ(test::ReadFile(common), "something else");
  std::remove(common.c_str());
  FlushTableFiles(game);
  EXPECT_EQ(ReadAll(common), model) << "both players, in their order";
  EXPECT_EQ(EndGame(game), "");
  table.Roll(1, 2);
  test::WriteFile(common, "something else");
  NewSession(game, true, true, true, 0);
  EXPECT_NE(EndGame(game).find("2 sessions are not in the Sessions Log"), std::string::npos);
}

TEST(SessionsLog, ASecondProgramKeepsItsOwn) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  mkdir(table.folder.File("table 2").c_str(), 0700);
  game.ownFolder = table.folder.File("table 2/");
  game.table.seats[2].SessionsLogName.clear();
  table.Roll(1, 2);
  NewSession(game, true, true, true, 0);
  EXPECT_EQ(ReadAll(game.ownFolder + "ann.slg").size(), 1u);
  EXPECT_EQ(ReadAll(game.ownFolder + "bob.slg").size(), 1u);
  EXPECT_NE(access(table.folder.File("bob.slg").c_str(), F_OK), 0);
}

TEST(SessionsLog, TheScreensCommandsAskAndDo) {
  TestTable table;
  Game& game = *table.game;
  SessionsLogs& screen = game.sessions;
  auto& answers = table.host.answers;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  SessionsStatistics s;
  EXPECT_FALSE(UpdateSessionsLog(game, s)) << "without a seat";
  screen.SessionsSeat = 1;
  EXPECT_TRUE(UpdateSessionsLog(game, s)) << "without a log";
  const std::string ann = table.folder.File("ann.slg");
  Records model;
  for (int n = 1; n <= 9; ++n) model.push_back(Numbered(n));
  WriteAll(ann, model);
  EXPECT_TRUE(UpdateSessionsLog(game, s));
  EXPECT_EQ(s.Won, 9);
  EXPECT_EQ(StatisticText(s, 2), "0.0508");
  answers = {".0508"};
  EXPECT_TRUE(FindSession(game, true, 1));
  EXPECT_EQ(screen.SessionsTopRow, 5);
  EXPECT_FALSE(FindSession(game, false, -1));
  std::vector<SessionsRow> rows;
  EXPECT_EQ(ReadSessionsRows(game, s, 100, rows), "");
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_EQ(rows[0].Number, 5);
  answers = {"10"};
  EXPECT_FALSE(DeleteSessions(game, 1));
  EXPECT_EQ(table.host.LastText(), "No sessions deleted.  Entry out of range.");
  answers = {"9"};
  EXPECT_TRUE(DeleteSessions(game, 1));
  EXPECT_EQ(ReadAll(ann).size(), 8u);
  answers = {"-5"};
  EXPECT_TRUE(SetBreakPoint(game));
  EXPECT_EQ(BreakPointLabel(screen), "-5 - 0");

  EXPECT_EQ(SaveSessionsLogAs(game, 1, table.folder.File("kept.slg")), "");
  EXPECT_EQ(MergeSessionsLog(game, 1, ann), "");
  EXPECT_EQ(ReadAll(table.folder.File("kept.slg")).size(), 16u);
  EXPECT_NE(RenameSessionsLog(game, 1, ann), "") << "there is one of that name";
  EXPECT_NE(OpenSessionsLog(game, 1, table.folder.File("none.slg")), "");
  table.Roll(1, 2);
  answers = {"no"};
  EXPECT_EQ(NewSessionsLog(game, 1), NewLog::kCancelled) << "a session is in progress";
  answers = {"yes", "yes"};
  EXPECT_EQ(NewSessionsLog(game, 1), NewLog::kRenameFirst);
  EXPECT_EQ(ReadAll(ann).size(), 8u);
  answers = {"yes", "no"};
  EXPECT_EQ(NewAllSessionsLogs(game), NewLog::kStarted);
  EXPECT_EQ(ReadAll(ann).size(), 0u);
  EXPECT_EQ(game.table.seats[1].SessionsLogName, ann);
  EXPECT_EQ(OpenSessionsLog(game, 1, table.folder.File("kept.slg")), "");
  answers = {"yes"};
  EXPECT_TRUE(DeleteAllSessions(game, 1));
  EXPECT_EQ(ReadAll(table.folder.File("kept.slg")).size(), 0u);
}

}  // namespace
}  // namespace tessaryn
