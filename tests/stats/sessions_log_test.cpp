#include "stats/sessions_log.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

#include "base/messages.h"
#include "play/copy_game.h"
#include "play/players.h"
#include "play/table_files.h"
#include "rules/bet_rules.h"
#include "rules/session.h"
#include "stats/sessions_records.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

using namespace test;

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
  EXPECT_EQ(std::ranges::count(table.host.boxes, Msg::kSessionsLogFault, &test::ShownBox::id), 1);
  const std::string reason = MessageText<Msg::kNotASessionsLog>(With<"path">(common));
  const std::string bobs =
      MessageText<Msg::kSessionNotLogged>(With<"player">("Bob"), With<"problem">(reason));
  EXPECT_TRUE(table.host.Said(Msg::kSessionsLogFault, {{"problem", bobs}}));
  EXPECT_EQ(test::ReadFile(common), "something else");
  std::remove(common.c_str());
  FlushTableFiles(game);
  EXPECT_EQ(ReadAll(common), model) << "both players, in their order";
  EXPECT_EQ(EndGame(game), "");
  table.Roll(1, 2);
  test::WriteFile(common, "something else");
  NewSession(game, true, true, true, 0);
  EXPECT_EQ(EndGame(game), MessageText<Msg::kSessionsLost>(With<"count">(2), With<"problem">(reason)));
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
  EXPECT_TRUE(
      table.host.Said(Msg::kSessionsNotDeleted, {{"problem", MessageText<Msg::kSessionsOutOfRange>()}}));
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
  EXPECT_TRUE(table.host.Said(Msg::kAskNewSessionsLog, {{"all", false}}));
  answers = {"yes", "yes"};
  EXPECT_EQ(NewSessionsLog(game, 1), NewLog::kRenameFirst);
  EXPECT_TRUE(table.host.Said(Msg::kAskSaveSessionsLog, {{"player", "Ann"}}));
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

TEST(SessionsLog, ALongComputationIsAnnouncedUntilItIsOver) {
  TestTable table;
  Game& game = *table.game;
  table.Join(1, "Ann");
  game.sessions.SessionsSeat = 1;
  Records many;
  for (int n = 0; n < 30'000; ++n) many.push_back(Numbered(n % 100));
  WriteAll(table.folder.File("ann.slg"), many);
  SessionsStatistics s;
  EXPECT_TRUE(UpdateSessionsLog(game, s));
  EXPECT_TRUE(table.host.boxes.empty()) << "it took no time";
  table.host.tickStep = 1'000;
  EXPECT_TRUE(UpdateSessionsLog(game, s));
  ASSERT_EQ(table.host.boxes.size(), 1u);
  EXPECT_TRUE(table.host.Said(Msg::kCalculating));
  EXPECT_EQ(table.host.noticesEnded, 1);
}

}  // namespace
}  // namespace tessaryn
