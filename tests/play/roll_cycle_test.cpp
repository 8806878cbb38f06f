
#include <gtest/gtest.h>

#include <algorithm>

#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "rules/bet_rules.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// What keeps a roll from being made, and what is told of it by hand and in a run.
struct Stop {
  const char* name;
  void (*prepare)(TestTable&);
  Msg box;
  Msg reason;  // of the run
  Currency limit = kZero;
};

void NoPlayers(TestTable&) {}
void AloneWithoutLine(TestTable& table) { table.Join(1, "Ann"); }
void TwoOnTheComeOut(TestTable& table) {
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  table.Bet(2, kPassLine, "10");
  table.Bet(1, kField, "10");
}
void TwoWithAPoint(TestTable& table) {
  TwoOnTheComeOut(table);
  table.Bet(1, kDontPass, "10");
  table.Roll(2, 2);
  table.Bet(1, kDontPass, "-10");
}
void AnyBetMissing(TestTable& table) {
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  table.Bet(2, kPassLine, "10");
  table.Bet(1, kFirstCheckStack, "10");
  table.Set("ShooterBetRule", "2");
}
void RollsAtTheLimit(TestTable& table) {
  table.Join(1, "Ann");
  table.Bet(1, kPassLine, "10");
  // Two thousand million rolls, as the counters have them.
  for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions}) {
    table.game->stats.RollTotals[Slot(scope, 0)] = 2'000'000'000;
    table.game->stats.PairCounts[Slot(kCurrentHand, 0)][0] = 2'000'000'000;
  }
}
void RichBeyondTheLimit(TestTable& table) {
  table.Join(1, "Ann", "9999999");
  table.Bet(1, kPassLine, "10");
  table.State().BankrollCurrent[1] = Money("9999999.0001");
}
void PoorBeyondTheLimit(TestTable& table) {
  table.Join(1, "Ann", "100");
  table.Bet(1, kPassLine, "10");
  table.State().BankrollCurrent[1] = Money("-9999999.0001");
}

const Stop kStops[] = {
    {"no players", NoPlayers, Msg::kNobodyToBet, Msg::kNobodyToBet},
    {"one without a line bet", AloneWithoutLine, Msg::kLineBetRequiredAlone, Msg::kShooterHasNoLineBet},
    {"two on the come-out", TwoOnTheComeOut, Msg::kLineBetRequired, Msg::kShooterHasNoLineBet},
    {"two with a point", TwoWithAPoint, Msg::kLineBetRequiredOnPoint, Msg::kShooterHasNoLineBet},
    {"any bet", AnyBetMissing, Msg::kAnyBetRequired, Msg::kShooterHasNoBet},
    {"limit of rolls", RollsAtTheLimit, Msg::kRollLimitReached, Msg::kStoppedByRollLimit,
     Money("2000000000")},
    {"too rich", RichBeyondTheLimit, Msg::kBankrollLimitBroken, Msg::kStoppedByBankrollLimit, kBankrollLimit},
    {"too poor", PoorBeyondTheLimit, Msg::kNegativeLimitExceeded, Msg::kStoppedByNegativeLimit,
     kBankrollLimit},
};

TEST(RollCycleStops, ByHandABoxSaysWhyNothingIsRolled) {
  for (const Stop& stop : kStops) {
    SCOPED_TRACE(stop.name);
    TestTable table;
    stop.prepare(table);
    table.host.boxes.clear();
    const std::int64_t rolls = SessionRolls(table.game->stats);
    table.Roll(3, 4);
    EXPECT_EQ(SessionRolls(table.game->stats), rolls);
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(stop.box));
    EXPECT_FALSE(table.State().RollInProgress);
  }
}

TEST(RollCycleStops, ARunEndsWithItsReasonAndNoOtherBox) {
  for (const Stop& stop : kStops) {
    SCOPED_TRACE(stop.name);
    TestTable table;
    stop.prepare(table);
    table.host.boxes.clear();
    const std::int64_t rolls = SessionRolls(table.game->stats);
    table.Turbo(10);
    EXPECT_EQ(SessionRolls(table.game->stats), rolls);
    const std::string reason = MessageText(stop.reason, {{"limit", stop.limit}});
    EXPECT_EQ(table.State().StopReason, reason);
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(Msg::kRunStopped, {{"reason", reason}}));
    EXPECT_FALSE(table.State().AutoRollActive);
    EXPECT_FALSE(table.State().TurboRollActive);
  }
}

TEST(RollCycleStops, ABankrollAtExactlyTheLimitGoesOn) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann", "9999999");
  table.Join(2, "Bob", "-9999999");
  table.Roll(3, 4);
  EXPECT_EQ(SessionRolls(table.game->stats), 1);
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(RollCycleStops, TheWinThatBreaksTheLimitEndsTheRunAfterItsRoll) {
  TestTable table;
  table.Join(1, "Ann", "9999990");
  table.Bet(1, kPassLine, "10");
  table.Roll(3, 4);
  EXPECT_EQ(SessionRolls(table.game->stats), 1);
  EXPECT_EQ(table.State().BankrollCurrent[1], Money("10000000"));
  EXPECT_TRUE(table.host.Said(Msg::kBankrollLimitBroken, {{"player", "Ann"}, {"limit", kBankrollLimit}}));
}

TEST(RollCycleStops, AutoStopEndsBothKindsOfRunAtWholeMultiples) {
  for (const bool turbo : {true, false}) {
    SCOPED_TRACE(turbo ? "turbo" : "auto");
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Set("AutoStopInterval", "25");
    table.Set("RollThrottle", turbo ? "0" : "12");
    table.Set("AutoRollDelay", "1");
    for (const int expected : {25, 50}) {
      table.host.boxes.clear();
      ToggleAutoRoll(*table.game);
      EXPECT_EQ(SessionRolls(table.game->stats), expected);
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(turbo ? Msg::kRunStopped : Msg::kAutoRollStopped));
    }
  }
}

// --- Dice roll files.

TEST(RollCycleFiles, WhatWasRecordedPlaysBackFaceByFace) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  ASSERT_EQ(OpenRollFile(table.game->rollFile, table.folder.File("game.rol")), "");
  ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderRecord), "");
  const std::pair<int, int> rolls[] = {{1, 1}, {6, 6}, {2, 5}, {5, 2}, {3, 3}};
  for (const auto& [die1, die2] : rolls) table.Roll(die1, die2);
  EXPECT_EQ(test::ReadFile(table.folder.File("game.rol")).size(), std::size(rolls));
  ASSERT_EQ(RewindForPlayback(table.game->rollFile), "");
  for (const auto& [die1, die2] : rolls) {
    RollDice(*table.game);
    EXPECT_EQ(table.State().Die1, die1);
    EXPECT_EQ(table.State().Die2, die2);
  }
}

struct PlayingTable : TestTable {
  explicit PlayingTable(const std::string& bytes) {
    test::WriteFile(folder.File("rolls.rol"), bytes);
    Set("ShooterBetRule", "0");
    EXPECT_EQ(OpenRollFile(game->rollFile, folder.File("rolls.rol")), "");
    EXPECT_EQ(SetRecorderState(game->rollFile, kRecorderPlayback), "");
  }
};

TEST(RollCycleFiles, TheEndOfTheFileStopsAndAsksWhatNext) {
  const std::string file{static_cast<char>(RollByte(3, 4)), static_cast<char>(RollByte(6, 5))};
  struct Case {
    const char* answer;
    int recorder;
    int cursor;
  };
  for (const Case& c : {Case{"yes", kRecorderPlayback, 1}, Case{"no", kRecorderOff, 3},
                        Case{"cancel", kRecorderPlayback, 3}}) {
    for (const bool turbo : {false, true}) {
      SCOPED_TRACE(std::string(c.answer) + (turbo ? " turbo" : ""));
      PlayingTable table(file);
      table.host.answers = {c.answer};
      if (turbo) {
        table.Turbo(10);
      } else {
        for (int i = 0; i < 3; ++i) RollDice(*table.game);
      }
      EXPECT_EQ(SessionRolls(table.game->stats), 2);
      EXPECT_EQ(table.State().StopReason, MessageText<Msg::kStoppedAtFileEnd>());
      EXPECT_EQ(table.game->rollFile.RecorderState, c.recorder);
      EXPECT_EQ(table.game->rollFile.RollFileCursor, c.cursor);
      EXPECT_FALSE(table.State().AutoRollActive);
      EXPECT_TRUE(table.game->autobet.RollFileEndReached);
      ASSERT_EQ(table.host.boxes.size(), turbo ? 2u : 1u);
      EXPECT_TRUE(Says(table.host.boxes[0], turbo ? Msg::kRunStopped : Msg::kAskRewind));
      EXPECT_TRUE(table.host.Said(Msg::kAskRewind, {{"recording", false}}));
    }
  }
}

TEST(RollCycleFiles, AValueOutOfLimitsStopsAndTurnsTheRecorderOff) {
  for (const int bad : {0, 28, 224, 28 + 32, 4 + 224}) {
    for (const bool turbo : {false, true}) {
      PlayingTable table(std::string{static_cast<char>(RollByte(3, 4)), static_cast<char>(bad)});
      if (turbo) {
        table.Turbo(10);
      } else {
        RollDice(*table.game);
        RollDice(*table.game);
      }
      EXPECT_EQ(SessionRolls(table.game->stats), 1) << bad;
      EXPECT_EQ(table.State().StopReason, MessageText<Msg::kStoppedByRollOutOfLimits>());
      EXPECT_EQ(table.game->rollFile.RecorderState, kRecorderOff);
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(turbo ? Msg::kRunStopped : Msg::kRollOutOfLimits));
      EXPECT_EQ(table.State().Die1 + table.State().Die2, 7) << "the dice lie as they fell";
    }
  }
}

TEST(RollCycleFiles, WithoutARollNothingOfARollHasHappened) {
  // The file ends behind a point of 4, or goes on with no roll; then the shooter sevens out from the pad.
  const std::string point4(1, static_cast<char>(RollByte(2, 2)));
  for (const std::string& file : {point4, point4 + std::string(1, '\0')}) {
    SCOPED_TRACE(file.size() == 1 ? "end of the file" : "bad value");
    PlayingTable table(file);
    table.Set("RecordEventsActive", "on");
    table.Join(1, "Ann");
    for (const int bet : {kPoint7, kSevenPoint7}) table.Bet(1, bet, "5");
    RollDice(*table.game);
    table.Bet(1, kPassLine, "20");
    const std::int64_t rolls = SessionRolls(table.game->stats);
    for (int tries = 0; tries < 2 && table.game->rollFile.RecorderState == kRecorderPlayback; ++tries)
      RollDice(*table.game);
    SetRecorderState(table.game->rollFile, kRecorderOff);
    EXPECT_EQ(SessionRolls(table.game->stats), rolls);
    EXPECT_EQ(table.State().BetCommitted(1, kPassLine), kZero);
    EXPECT_EQ(table.Bet(1, kPassLine, "-10"), Money("-10")) << "a Put bet that hasn't ridden comes down";
    table.Roll(3, 4);
    EXPECT_EQ(table.State().BankrollCurrent[1], Money("1040"))
        << "35 of Point 7 and 15 of 7 Point 7, less the Pass Line";
    const std::vector<std::string> log = table.Log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "      Ann bet $10 on Pass Line"), 1);
    EXPECT_EQ(std::count(log.begin(), log.end(), "      Ann bet $20 on Pass Line"), 0);
  }
}

TEST(RollCycleFiles, TheRollPadWinsOverTheFile) {
  PlayingTable table(std::string{static_cast<char>(RollByte(3, 4))});
  table.Roll(6, 6);
  EXPECT_EQ(table.State().RollTotal, 12);
  EXPECT_EQ(table.game->rollFile.RollFileCursor, 1);
}

// --- The point and what follows it.

TEST(RollCyclePoint, TheWorkingStatesFollowThePointAndCallsStandAboveIt) {
  TestTable table;
  Game& game = *table.game;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4), 0);
  EXPECT_EQ(BetWorkingOf(game, 1, kLay4), 1);
  table.Bet(1, kPlace4 + 2, "6");
  table.Bet(1, kPlace4 + 3, "6");
  CallBet(game, 1, kPlace4 + 2, true);
  table.Roll(2, 2);
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 2), 2);
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 3), 1);
  CallBet(game, 1, kPlace4 + 2, false);
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 2), 1) << "the other word only cancels the call";
  CallBet(game, 1, kPlace4 + 3, false);
  table.Roll(1, 3);
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 2), 0);
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 3), -1) << "a call lasts across points";
  table.Bet(1, kPlace4 + 3, "-6");
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 3), 0) << "a bet that comes down loses its call";
  table.Bet(1, kPlace4 + 3, "6");
  EXPECT_EQ(BetWorkingOf(game, 1, kPlace4 + 3), 0);
}

TEST(RollCyclePoint, ABetTakesTheSeatsChoiceOfTheComeOutAsItIsMade) {
  TestTable table;
  table.Join(1, "Ann");
  int made = kPlace4;
  for (const bool works : {true, false, true}) {
    table.Set("BetDefaultWorking." + std::to_string(made), works ? "on" : "off", 1);
    table.Bet(1, made, "10");
    EXPECT_EQ(BetWorkingOf(*table.game, 1, made), works ? 1 : 0);
    table.Set("BetDefaultWorking." + std::to_string(made), works ? "off" : "on", 1);
    EXPECT_EQ(BetWorkingOf(*table.game, 1, made), works ? 1 : 0) << "the choice is for the bets to come";
    ++made;
  }
  CallBet(*table.game, 1, kBuy4, false);
  table.Set("BetDefaultWorking." + std::to_string(kBuy4), "on", 1);
  table.Bet(1, kBuy4, "20");
  EXPECT_EQ(BetWorkingOf(*table.game, 1, kBuy4), -1) << "a call stands above it";
}

TEST(RollCyclePoint, AutomaticOddsAndPlaceBetsThatComeDown) {
  TestTable table;
  table.Join(1, "Ann", "5000");
  table.Join(2, "Bob", "5000");
  table.State().seats[1].handling.AutoTakeOdds = table.State().seats[1].handling.AutoDownPlace = true;
  table.State().seats[2].handling.AutoLayOdds = true;
  table.Bet(1, kPassLine, "10");
  table.Bet(1, kPlace4 + 4, "10");
  table.Bet(1, kBuy4 + 4, "20");
  table.Bet(1, kPlace4, "10");
  table.Bet(2, kDontPass, "10");
  table.Set("OddsCalcMethod", "1");
  table.Roll(4, 5);
  EXPECT_EQ(table.State().BetAmount(1, kPassLineOdds), Money("40"));
  EXPECT_EQ(table.State().BetAmount(2, kDontPassOdds), Money("60")) << "4 times 10 is what the odds may win";
  EXPECT_EQ(table.State().BetAmount(1, kPlace4 + 4), kZero);
  EXPECT_EQ(table.State().BetAmount(1, kBuy4 + 4), kZero);
  EXPECT_EQ(table.State().BetAmount(1, kPlace4), Money("10"));
  table.Bet(1, kPassLine, "10");
  EXPECT_EQ(table.State().BetAmount(1, kPassLineOdds), Money("80")) << "odds follow their flat bet";
}

}  // namespace
}  // namespace tessaryn
