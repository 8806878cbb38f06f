#include "persist/new_session.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/bet_rules.h"
#include "engine/consistency.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

// A table in the middle of a hand: contract bets, a Place bet, CheckStacks, a roll file, statistics.
struct BusyTable : TestTable {
  BusyTable() {
    Join(1, "Ann", "1000");
    Join(5, "Bob", "500");
    Bet(1, kPassLine, "10");
    Bet(5, kDontPass, "20");
    Roll(4, 2);
    Bet(1, kCome, "15");
    Bet(1, kPlace4 + 3, "12");
    ChangeBet(*game, 1, kFirstCheckStack + 7, Money("33"));
    State().CheckStackName[1][7] = "goal";
    Roll(5, 4);
    EXPECT_EQ(OpenRollFile(game->rollFile, folder.File("dice.rol")), "");
    EXPECT_EQ(EnterRoll(game->rollFile, 3, 4), "");
  }
};

TEST(NewSession, EveryChoiceKeepsAndClearsWhatItSays) {
  for (int choices = 0; choices < 8; ++choices)
    for (const int rollFile : {kCloseRollFile, kRewindRollFile, kContinueRollFile}) {
      SCOPED_TRACE("choices " + std::to_string(choices) + ", roll file " + std::to_string(rollFile));
      const bool keepSessions = (choices & 1) != 0;
      const bool keepStacks = (choices & 2) != 0;
      const bool keepLogs = (choices & 4) != 0;
      BusyTable table;
      Game& game = *table.game;
      WriteFile(game.table.SessionsLogName[1], "a log");
      NewSession(game, keepSessions, keepStacks, keepLogs, rollFile);
      ASSERT_EQ(CheckConsistency(game), "");
      EXPECT_EQ(SessionRolls(game.stats), 0);
      EXPECT_EQ(HandRolls(game.stats), 0);
      EXPECT_EQ(RollCount(game.stats, kAllSessions, 0, 0), keepSessions ? 2 : 0);
      EXPECT_EQ(RollCount(game.stats, kLastSession, 0, 6), keepSessions ? 1 : 0);
      EXPECT_TRUE(game.table.AnyBets.Empty());
      EXPECT_EQ(game.table.BetAmount(1, kFirstCheckStack + 7), keepStacks ? Money("33") : kZero);
      EXPECT_EQ(game.table.CheckStackName[1][7], keepStacks ? "goal" : "");
      EXPECT_EQ(ReadFile(game.table.SessionsLogName[1]), keepLogs ? "a log" : "");
      EXPECT_EQ(IsRollFileOpen(game.rollFile), rollFile != kCloseRollFile);
      EXPECT_EQ(game.rollFile.RecorderState, rollFile == kRewindRollFile ? kRecorderPlayback : kRecorderOff);
      EXPECT_EQ(game.table.Point, 0);
      EXPECT_EQ(game.table.HandSeat, game.table.ShooterSeat);
      // The Pass Line and the Come bet on its number are abandoned; Place and Don't Pass go back.
      EXPECT_EQ(game.table.BankrollCurrent[1], Money("975"));
      EXPECT_EQ(game.table.BankrollCurrent[5], Money("500"));
    }
}

TEST(NewSession, ContractBetsGoBackWhereTheHouseReturnsThem) {
  BusyTable table;
  table.Set("ReturnAbandonedBets", "on");
  NewSession(*table.game, true, false, true, kCloseRollFile);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("1000"));
}

TEST(NewSession, BankrollsStartAsEachSeatWants) {
  BusyTable table;
  table.Join(8, "Cyd", "700");
  table.Set("BankrollInitType", "1", 5);
  table.Set("BankrollInitAmount", "250", 5);
  table.Set("BankrollInitType", "2", 8);
  table.host.answers = {"432"};
  NewSession(*table.game, true, false, true, kCloseRollFile);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("975"));
  EXPECT_EQ(table.State().BankrollCurrent[5], Money("250"));
  EXPECT_EQ(table.State().BankrollCurrent[8], Money("432"));
  EXPECT_EQ(table.State().BankrollInitAmount[8], Money("432"));
  EXPECT_EQ(table.host.boxes.back().text, "Enter Cyd's beginning bankroll:");
  EXPECT_EQ(table.host.boxes.back().title, "Beginning Bankroll");
  EXPECT_EQ(table.game->stats.BankrollBeginning[Slot(kCurrentSession, 5)], Money("250"));
}

TEST(NewSession, TheLogOpensWithTheSessionsLinesInOrder) {
  BusyTable table;
  table.Set("RecordEventsActive", "on");
  NewSession(*table.game, true, false, true, kRewindRollFile);
  const std::vector<std::string> first = table.Log();
  const std::vector<std::string> expected = {" New session started 2024-02-29 @ 12:34:56",
                                             "    Players:",
                                             "      Ann at stick 4-left with $975",
                                             "      Bob at stick 1-right with $500",
                                             "    Dice roll file playback actived (dice.rol)",
                                             "----New shooter (Ann) coming out----------"};
  EXPECT_EQ(first, expected);
  NewSession(*table.game, true, false, true, kCloseRollFile);
  const std::vector<std::string> second = table.Log();
  ASSERT_GT(second.size(), expected.size());
  EXPECT_EQ(second[expected.size()], "============================================");
  table.Set("ClearLogOnNewSession", "on");
  NewSession(*table.game, true, false, true, kCloseRollFile);
  EXPECT_EQ(table.Log().front(), " New session started 2024-02-29 @ 12:34:56");
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(NewSession, TheGeneratorIsSeededAgainOnlyWhenAsked) {
  BusyTable table;
  const std::int32_t seed = table.game->generators.RngLastSeed;
  table.host.tick += 12345;
  NewSession(*table.game, true, false, true, kCloseRollFile);
  EXPECT_EQ(table.game->generators.RngLastSeed, seed);
  table.Set("RngReseedNewSessions", "on");
  NewSession(*table.game, true, false, true, kCloseRollFile);
  EXPECT_NE(table.game->generators.RngLastSeed, seed);
}

}  // namespace
}  // namespace tessaryn::test
