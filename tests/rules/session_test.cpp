#include "rules/session.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/check_stacks.h"
#include "stats/bankroll_graph.h"
#include "stats/statistics.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

constexpr int kAnn = 2;  // carries her bankroll forward
constexpr int kBob = 5;  // starts with 700
constexpr int kCyd = 8;  // is asked
constexpr std::int64_t kRolls = 4;
constexpr int kStack = 7;

struct Choices {
  bool keepSessions;
  bool keepStacks;
  bool keepLogs;
  int rollFile;
  bool returnAbandoned;
};

std::string Text(const Choices& c) {
  return std::string(c.keepSessions ? "sessions " : "") + (c.keepStacks ? "stacks " : "") +
         (c.keepLogs ? "logs " : "") + "file " + std::to_string(c.rollFile) +
         (c.returnAbandoned ? " returned" : " abandoned");
}

// Two players in the middle of a hand, with a bet of every sort up, and a dice roll file playing.
struct RunningTable : TestTable {
  explicit RunningTable(const Choices& choices) {
    Join(kAnn, "Ann");
    Join(kBob, "Bob");
    Join(kCyd, "Cyd");
    Set("ShooterBetRule", "0");
    Set("ReturnAbandonedBets", choices.returnAbandoned ? "on" : "off");
    Set("BankrollInitType", "1", kBob);
    Set("BankrollInitAmount", "700", kBob);
    Set("BankrollInitType", "2", kCyd);
    Set("BetDefaultWorking.31", "on", kAnn);
    game->events.RecordEventsActive = true;
    std::string rolls;
    for (const auto& [die1, die2] : {std::pair{1, 3}, {2, 3}, {4, 5}, {5, 5}, {6, 6}, {1, 1}})
      rolls += static_cast<char>(RollByte(die1, die2));
    test::WriteFile(folder.File("Dice.rol"), rolls);
    EXPECT_EQ(OpenRollFile(game->rollFile, folder.File("Dice.rol")), "");
    EXPECT_EQ(SetRecorderState(game->rollFile, kRecorderPlayback), "");
    Bet(kAnn, kPassLine, "10");
    Bet(kAnn, kAllSmall, "1");
    Bet(kBob, kSevenPoint7, "3");
    RollDice(*game);  // the point is 4
    Bet(kAnn, kCome, "20");
    RollDice(*game);  // ... and goes to the 5
    Bet(kAnn, kPassLineOdds, "10");
    Bet(kAnn, kPlace4, "5");
    Bet(kBob, kDontCome, "15");
    RollDice(*game);
    RollDice(*game);
    Bet(kBob, kCome, "25");                              // rides no roll, so it is no contract
    EXPECT_EQ(Bet(kAnn, kPassLine, "15"), Money("15"));  // nor is what comes to a bet that has ridden
    CallBet(*game, kAnn, kPlace4, false);
    SetCheckStackValue(*game, kAnn, kStack, Money("-12.5"));
    SetCheckStackName(*game, kAnn, kStack, "steps");
    AtmTransaction(*game, kBob, false, Money("50"));
    State().StopReason = "Stopped.";
    EXPECT_EQ(SessionRolls(game->stats), kRolls);
    EXPECT_NE(State().NumberMarks, 0u);
    host.boxes.clear();
    host.answers = {"640"};
  }
};

void ExpectBetsGone(const RunningTable& table) {
  const TableState& state = table.game->table;
  for (int seat = 1; seat <= kSeats; ++seat) {
    EXPECT_TRUE(state.seats[seat].SeatBets.Empty()) << seat;
    EXPECT_EQ(state.seats[seat].OnTableAmount, kZero) << seat;
    EXPECT_TRUE(state.seats[seat].BetWorking.calledOff.Empty()) << seat;
    EXPECT_EQ(state.seats[seat].BetWorking.byDefault, state.seats[seat].BetDefaultWorking) << seat;
    for (int bet = 1; bet <= kBets; ++bet) {
      EXPECT_EQ(state.BetCommitted(seat, bet), kZero);
      EXPECT_EQ(state.BetStreak(seat, bet), 0);
      EXPECT_EQ(state.BetAfterRoll(seat, bet), kZero);
    }
  }
  EXPECT_EQ(state.Point, 0);
  EXPECT_EQ(state.NumberMarks, 0u);
  EXPECT_EQ(state.FireMarks, 0u);
  EXPECT_EQ(state.FireCount + state.SharpShooterCount + state.RideTheLineCount + state.FourRollCount, 0);
  EXPECT_EQ(state.StopReason, "");
  EXPECT_EQ(state.HandSeat, state.ShooterSeat);
  EXPECT_EQ(table.game->graph.PlotCount, 0);
}

void ExpectStatistics(const RunningTable& table, const Choices& choices, Currency annBefore) {
  const Statistics& stats = table.game->stats;
  const std::int64_t kept = choices.keepSessions ? kRolls : 0;
  EXPECT_EQ(SessionRolls(stats), 0);
  EXPECT_EQ(Throws(stats), kRolls);
  EXPECT_EQ(HandRolls(stats), 0);
  EXPECT_EQ(PlayerRolls(stats, kLastHand, kAnn), kRolls);
  EXPECT_EQ(PlayerRolls(stats, kLastSession, kAnn), kRolls);
  EXPECT_EQ(RollCount(stats, kLastSession, 0, 4), 1);
  EXPECT_EQ(PlayerRolls(stats, kAllSessions, kAnn), kept);
  EXPECT_EQ(RollCount(stats, kAllSessions, 0, 4), choices.keepSessions ? 1 : 0);
  EXPECT_EQ(RollsSinceLast(stats, 4), 0);
  EXPECT_EQ(stats.HandCount[Slot(kCurrentSession, 0)], 0);
  // Ann's beginning is that of all sessions only if these stay.
  const Currency now = table.game->table.BankrollCurrent[kAnn];
  EXPECT_EQ(stats.BankrollBeginning[Slot(kCurrentSession, kAnn)], now);
  EXPECT_EQ(stats.BankrollBeginning[Slot(kAllSessions, kAnn)], choices.keepSessions ? Money("1000") : now);
  if (choices.keepSessions) {
    EXPECT_EQ(stats.BankrollHigh[Slot(kAllSessions, kAnn)], std::max(annBefore, Money("1000")));
  }
}

void ExpectRollFile(const RunningTable& table, int choice) {
  const RollFile& file = table.game->rollFile;
  EXPECT_EQ(IsRollFileOpen(file), choice != kCloseRollFile);
  EXPECT_EQ(file.RollFileName.empty(), choice == kCloseRollFile);
  EXPECT_EQ(file.RecorderState, choice == kCloseRollFile ? kRecorderOff : kRecorderPlayback);
  if (choice == kRewindRollFile) {
    EXPECT_EQ(file.RollFileCursor, 1);
  }
  if (choice == kContinueRollFile) {
    EXPECT_EQ(file.RollFileCursor, kRolls + 1);
  }
}

void ExpectHeading(RunningTable& table, std::size_t from, const Choices& choices, const std::string& ann) {
  std::vector<std::string> expected{"============================================",
                                    " New session started 2024-02-29 @ 12:34:56",
                                    "    Players:",
                                    "      Ann at stick 3-left with $" + ann,
                                    "      Bob at stick 1-right with $700",
                                    "      Cyd at stick 4-right with $640"};
  if (choices.rollFile != kCloseRollFile)
    expected.push_back("    Dice roll file playback actived (Dice.rol)");
  expected.push_back("----New shooter (Ann) coming out----------");
  const std::vector<std::string> log = table.Log();
  ASSERT_GE(log.size(), from);
  EXPECT_EQ(std::vector<std::string>(log.begin() + static_cast<std::ptrdiff_t>(from), log.end()), expected);
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(NewSessionTest, EachCombinationKeepsAndClearsWhatItSays) {
  for (int bits = 0; bits < 16; ++bits)
    for (int rollFile = 0; rollFile < 3; ++rollFile) {
      const Choices choices{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, rollFile, (bits & 8) != 0};
      SCOPED_TRACE(Text(choices));
      RunningTable table(choices);
      const Currency annBefore = table.State().BankrollCurrent[kAnn];
      const std::size_t logged = table.Log().size();
      NewSession(*table.game, choices.keepSessions, choices.keepStacks, choices.keepLogs, rollFile);
      table.Check("new session");
      ExpectBetsGone(table);
      // Pass Line and Come 5 are Ann's contracts.
      const Currency ann = choices.returnAbandoned ? annBefore : annBefore - Money("30");
      EXPECT_EQ(table.State().BankrollCurrent[kAnn], ann);
      EXPECT_EQ(table.State().BankrollCurrent[kBob], Money("700"));
      EXPECT_EQ(table.State().BankrollCurrent[kCyd], Money("640"));
      EXPECT_EQ(table.State().seats[kCyd].BankrollInitAmount, Money("640"));
      EXPECT_EQ(CheckStackValue(*table.game, kAnn, kStack), choices.keepStacks ? Money("-12.5") : kZero);
      EXPECT_EQ(CheckStackNameOf(*table.game, kAnn, kStack), choices.keepStacks ? "steps" : "");
      EXPECT_EQ(std::filesystem::exists(table.folder.File("ann.slg")), choices.keepLogs);
      ExpectStatistics(table, choices, annBefore);
      ExpectRollFile(table, rollFile);
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(Msg::kAskBeginningBankroll, {{"player", "Cyd"}}));
      ExpectHeading(table, logged, choices, PlainMoney(ann));
      // The table plays on, and its first roll logs no bets or money of the session before.
      const std::size_t started = table.Log().size();
      table.Roll(3, 4);
      EXPECT_EQ(SessionRolls(table.game->stats), 1);
      EXPECT_EQ(table.Log()[started], " Roll #1:  7 (3.4) from manual roll pad");
    }
}

TEST(NewSessionTest, AClearedLogBeginsWithTheSession) {
  RunningTable table({true, true, true, kContinueRollFile, true});
  table.Set("ClearLogOnNewSession", "on");
  NewSession(*table.game, true, true, true, kContinueRollFile);
  ASSERT_FALSE(table.Log().empty());
  EXPECT_EQ(table.Log()[0], " New session started 2024-02-29 @ 12:34:56");
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(NewSessionTest, AGivenUpBankrollQuestionKeepsTheStoredAmount) {
  RunningTable table({true, true, true, kCloseRollFile, true});
  table.State().seats[kCyd].BankrollInitAmount = Money("333");
  table.host.answers = {"cancel"};
  NewSession(*table.game, true, true, true, kCloseRollFile);
  EXPECT_EQ(table.State().BankrollCurrent[kCyd], Money("333"));
}

TEST(NewSessionTest, WithoutAFileToContinueThereIsNone) {
  TestTable table;
  table.Join(1, "Ann");
  for (int choice = 0; choice < 3; ++choice) {
    NewSession(*table.game, false, false, false, choice);
    EXPECT_FALSE(IsRollFileOpen(table.game->rollFile));
    EXPECT_TRUE(table.host.boxes.empty());
  }
}

TEST(NewSessionTest, TheSeedIsLoggedBeforeTheHeadingAndSurvivesAClearedLog) {
  for (const bool cleared : {false, true}) {
    RunningTable table({true, true, true, kCloseRollFile, true});
    table.Set("RngReseedNewSessions", "on");
    table.Set("ClearLogOnNewSession", cleared ? "on" : "off");
    const std::size_t from = cleared ? 0 : table.Log().size();
    NewSession(*table.game, true, true, true, kCloseRollFile);
    const std::vector<std::string> log = table.Log();
    ASSERT_GT(log.size(), from + 2);
    EXPECT_EQ(log[from].find("    RNG #"), 0u) << log[from];
    EXPECT_EQ(log[from + 1], "============================================");
    EXPECT_EQ(log[from + 2], " New session started 2024-02-29 @ 12:34:56");
    EXPECT_EQ(table.IndexProblem(), "");
  }
}

TEST(NewSessionTest, SeedsAgainOnlyWhenAsked) {
  for (const bool reseed : {false, true}) {
    TestTable table;
    table.Set("RngReseedNewSessions", reseed ? "on" : "off");
    const std::int32_t seed = table.game->generators.RngLastSeed;
    table.host.tick += 77'777;
    NewSession(*table.game, true, true, true, kCloseRollFile);
    EXPECT_EQ(table.game->generators.RngLastSeed != seed, reseed);
  }
}

}  // namespace
}  // namespace tessaryn
