#include "play/auto_roll.h"

#include <gtest/gtest.h>

#include <functional>

#include "dice/roll_file.h"
#include "play/start_up.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

// A host whose clock moves by what the test says, and who lets the test act at every place where a run gives
// way.
struct PacedHost : test::TestHost {
  std::function<void(Game&)> onYield;
  std::function<void(Game&)> onWait;
  int yieldCalls = 0;
  int waitCalls = 0;
  std::uint32_t waitStep = 50;
  std::vector<std::uint32_t> rollTicks;  // when each roll's dice were seen

  bool Yield(Game& game) override {
    ++yieldCalls;
    if (onYield) onYield(game);
    return TestHost::Yield(game);
  }
  void Wait(Game& game) override {
    ++waitCalls;
    tick += waitStep;
    if (onWait) onWait(game);
    TestHost::Yield(game);
  }
  void PlaySound(Game& game, Sound sound) override {
    if (sound == Sound::kDice) rollTicks.push_back(tick);
    TestHost::PlaySound(game, sound);
  }
};

struct PacedTable {
  test::TempFolder folder;
  PacedHost host;
  std::unique_ptr<Game> game = StartGame(host, test::kBinFolder, folder.Path());

  explicit PacedTable(int throttle = kThrottleAutoRoll, const char* delay = "1") {
    game->settings.ShooterBetRule = 0;
    game->settings.RollThrottle = throttle;
    game->settings.AutoRollDelay = Seconds::Of(Money(delay));
    host.rollTarget = 5;
  }
  std::int64_t Rolls() const { return SessionRolls(game->stats); }
};

TEST(AutoRollTest, KeepsItsPace) {
  for (const char* delay : {"0", "0.5", "1", "2.75", "300"}) {
    PacedTable table(kThrottleAutoRoll, delay);
    ToggleAutoRoll(*table.game);
    const double milliseconds = Money(delay).ToDouble() * 1000;
    ASSERT_EQ(table.host.rollTicks.size(), 5u) << delay;
    for (std::size_t i = 1; i < table.host.rollTicks.size(); ++i) {
      const double waited = table.host.rollTicks[i] - table.host.rollTicks[i - 1];
      EXPECT_GE(waited, milliseconds) << delay;
      EXPECT_LE(waited, milliseconds + 50) << delay;
    }
    // Even without a delay it gives way once a roll.
    EXPECT_GE(table.host.waitCalls, 4) << delay;
  }
}

TEST(AutoRollTest, TheClockMayTurnOver) {
  PacedTable table;
  table.host.tick = 0xffffffffu - 1500;
  ToggleAutoRoll(*table.game);
  ASSERT_EQ(table.Rolls(), 5);
  EXPECT_EQ(table.host.rollTicks[4] - table.host.rollTicks[0], 4000u);
}

TEST(AutoRollTest, AUsersActionPutsTheNextRollOff) {
  PacedTable table;
  int touches = 0;
  table.host.onWait = [&](Game& game) {
    if (table.Rolls() == 2 && ++touches <= 30) NoteActivity(game);
  };
  ToggleAutoRoll(*table.game);
  ASSERT_EQ(table.host.rollTicks.size(), 5u);
  EXPECT_EQ(table.host.rollTicks[1] - table.host.rollTicks[0], 1000u);
  EXPECT_EQ(table.host.rollTicks[2] - table.host.rollTicks[1], 30 * 50 + 1000u);
}

TEST(AutoRollTest, StopsAtOnceInTheMiddleOfAWait) {
  PacedTable table(kThrottleAutoRoll, "300");
  table.host.onWait = [&](Game& game) {
    if (table.host.waitCalls == 3) ToggleAutoRoll(game);
  };
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(table.Rolls(), 1);
  EXPECT_EQ(table.host.waitCalls, 3);
  EXPECT_FALSE(table.game->table.AutoRollActive);
  EXPECT_FALSE(table.game->table.RollInProgress);
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(AutoRollTest, AutoStopComesAtEveryMultiple) {
  struct Case {
    int throttle;
    std::int64_t interval;
    std::int64_t rolls;  // after each of two starts
    std::int64_t more;
  };
  for (const Case& c : {Case{kThrottleAutoRoll, 3, 3, 6}, Case{kThrottleAutoRoll, 1, 1, 2}, Case{0, 3, 3, 6},
                        Case{0, 1, 1, 2}, Case{0, 0, 7, 7}, Case{0, 2, 2, 4}}) {
    PacedTable table(c.throttle, "0");
    table.host.rollTarget = 7;
    table.game->settings.AutoStopInterval = c.interval;
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), c.rolls) << c.interval;
    EXPECT_EQ(table.game->table.StopReason,
              c.throttle == 0 && c.rolls < 7 ? MessageText<Msg::kStoppedByAutoStop>() : "");
    if (c.rolls == 7) continue;
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(c.throttle == 0 ? Msg::kRunStopped : Msg::kAutoRollStopped));
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), c.more) << c.interval;
  }
}

TEST(AutoRollTest, TurboGivesWayOnceARollAndMakesNoNoise) {
  PacedTable table(0);
  table.host.rollTarget = 1000;
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(table.Rolls(), 1000);
  EXPECT_EQ(table.host.yieldCalls, 1000);
  EXPECT_EQ(table.host.waitCalls, 0);
  EXPECT_TRUE(table.host.rollTicks.empty());
}

TEST(AutoRollTest, TheThrottleMayMoveInTheMiddleOfARun) {
  PacedTable table(0);
  table.host.rollTarget = 30;
  table.host.onYield = [&](Game& game) {
    if (table.Rolls() == 10 && game.table.TurboRollActive) SetThrottle(game, kThrottleAutoRoll);
  };
  table.host.onWait = [&](Game& game) {
    if (table.Rolls() == 20) SetThrottle(game, 0);
  };
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(table.Rolls(), 30);
  // Rolls 11 to 20 were made in the open and waited behind each other; the wait behind the 20th was broken
  // off by its first look at the throttle.
  EXPECT_EQ(table.host.rollTicks.size(), 10u);
  EXPECT_EQ(table.host.waitCalls, 9 * 20 + 1);
  EXPECT_TRUE(table.host.boxes.empty());
}

TEST(AutoRollTest, EachStepOfTheThrottleDoublesItsPause) {
  PacedTable table(0);
  table.game->table.TurboCalibration = 1000;
  for (const int throttle : {0, 1, 3, 5, 6, 7, 8}) {
    // Two rolls, and between them one pause, which gives way after every 5,000 of its steps.
    table.host.rollTarget = table.Rolls() + 2;
    table.host.yieldCalls = 0;
    SetThrottle(*table.game, throttle);
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), table.host.rollTarget);
    EXPECT_EQ(table.host.yieldCalls, 2 + ((1 << throttle) - 1) / 5) << throttle;
  }
  // A long pause ends as soon as the throttle says so: here at its second look.
  table.host.rollTarget = table.Rolls() + 2;
  table.host.yieldCalls = 0;
  table.host.onYield = [&](Game& game) {
    if (table.host.yieldCalls == 3) SetThrottle(game, 0);
  };
  SetThrottle(*table.game, 11);
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(table.host.yieldCalls, 4);
  table.host.onYield = nullptr;
  SetThrottle(*table.game, 99);
  EXPECT_EQ(table.game->settings.RollThrottle, 0);
  SetThrottle(*table.game, -1);
  EXPECT_EQ(table.game->settings.RollThrottle, 0);
}

TEST(AutoRollTest, NoRollStartsWithinARoll) {
  for (const int throttle : {0, kThrottleAutoRoll}) {
    PacedTable table(throttle, "0");
    const auto press = [&](Game& game) {
      game.table.ManualDie1 = game.table.ManualDie2 = 3;
      game.table.ManualRollPending = true;
      const std::int64_t before = table.Rolls();
      RollDice(game);
      EXPECT_EQ(table.Rolls(), before);
      game.table.ManualRollPending = false;
    };
    table.host.onYield = table.host.onWait = press;
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), 5);
  }
}

TEST(AutoRollTest, OtherCommandsAskBeforeTheyDisturbARun) {
  struct Case {
    int throttle;
    Msg question;
  };
  for (const Case& c : {Case{0, Msg::kAskStopTurboRoll}, Case{kThrottleAutoRoll, Msg::kAskStopAutoRoll}})
    for (const bool yes : {false, true}) {
      PacedTable table(c.throttle, "0");
      bool asked = false;
      const auto command = [&](Game& game) {
        if (table.Rolls() != 2 || asked) return;
        asked = true;
        table.host.answers = {yes ? "yes" : "no"};
        EXPECT_FALSE(AskBeforeCommand(game));
      };
      (c.throttle == 0 ? table.host.onYield : table.host.onWait) = command;
      ToggleAutoRoll(*table.game);
      EXPECT_EQ(table.Rolls(), yes ? 2 : 5);
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(c.question));
      EXPECT_TRUE(AskBeforeCommand(*table.game)) << "nothing runs any more";
    }
}

TEST(AutoRollTest, AFileThatEndsEndsTheRunWithItsQuestion) {
  for (const char* answer : {"yes", "no", "cancel"}) {
    PacedTable table(0);
    test::WriteFile(table.folder.File("three.rol"),
                    {static_cast<char>(RollByte(1, 2)), static_cast<char>(RollByte(3, 4)),
                     static_cast<char>(RollByte(5, 6))});
    ASSERT_EQ(OpenRollFile(table.game->rollFile, table.folder.File("three.rol")), "");
    ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderPlayback), "");
    table.host.rollTarget = 0;
    table.host.answers = {answer};
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), 3);
    EXPECT_EQ(table.game->table.StopReason, MessageText<Msg::kStoppedAtFileEnd>());
    ASSERT_EQ(table.host.boxes.size(), 2u);
    EXPECT_TRUE(Says(table.host.boxes[0], Msg::kRunStopped));
    EXPECT_TRUE(table.host.Said(Msg::kAskRewind));
    const RollFile& file = table.game->rollFile;
    EXPECT_EQ(file.RecorderState, std::string(answer) == "no" ? kRecorderOff : kRecorderPlayback) << answer;
    EXPECT_EQ(file.RollFileCursor, std::string(answer) == "yes" ? 1 : 4) << answer;
  }
}

// Another program shortens or spoils the file while its rolls are played.
TEST(AutoRollTest, AFileThatIsAlteredUnderARunEndsIt) {
  for (const bool spoil : {false, true}) {
    PacedTable table(kThrottleAutoRoll, "0");
    const std::string path = table.folder.File("long.rol");
    test::WriteFile(path, std::string(1000, static_cast<char>(RollByte(2, 3))));
    ASSERT_EQ(OpenRollFile(table.game->rollFile, path), "");
    ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderPlayback), "");
    table.host.rollTarget = 0;
    table.host.yields = true;  // the table looks at the file anew
    table.host.onWait = [&](Game& game) {
      if (table.Rolls() != 10) return;
      std::string content = test::ReadFile(path);
      if (spoil)
        content[12] = static_cast<char>(0xe4);
      else
        content.resize(12);
      test::WriteFile(path, content);
      FlushRollFile(game.rollFile);
    };
    ToggleAutoRoll(*table.game);
    EXPECT_EQ(table.Rolls(), 12) << spoil;
    EXPECT_EQ(table.game->table.StopReason,
              MessageText(spoil ? Msg::kStoppedByRollOutOfLimits : Msg::kStoppedAtFileEnd));
    EXPECT_FALSE(table.game->table.AutoRollActive);
    if (spoil) {
      EXPECT_EQ(table.game->rollFile.RecorderState, kRecorderOff);
    }
  }
}

TEST(AutoRollTest, TheDialogsKeepWithinTheirLimits) {
  PacedTable table;
  const std::pair<const char*, const char*> delays[] = {
      {"1000", "300"}, {"-1", "0"}, {"2.5", "2.5"}, {"cancel", "2.5"}};
  for (const auto& [answer, seconds] : delays) {
    table.host.answers = {answer};
    SetAutoRollDelay(*table.game);
    EXPECT_EQ(table.game->settings.AutoRollDelay, Seconds::Of(Money(seconds))) << answer;
  }
  EXPECT_TRUE(table.host.Said(Msg::kAskAutoRollDelay));
  const std::pair<const char*, const char*> stops[] = {
      {"12.9", "12"}, {"-5", "0"}, {"7", "7"}, {"cancel", "7"}};
  for (const auto& [answer, rolls] : stops) {
    table.host.answers = {answer};
    SetAutoStop(*table.game);
    EXPECT_EQ(table.game->settings.AutoStopInterval, std::stoll(rolls)) << answer;
  }
  EXPECT_TRUE(table.host.Said(Msg::kAskAutoStop));
}

}  // namespace
}  // namespace tessaryn
