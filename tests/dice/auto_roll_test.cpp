#include "dice/auto_roll.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/test_host.h"

namespace tessaryn::test {
namespace {

// A table that rolls by itself, under a clock that moves by so much at every wait.
struct PacedHost : TestHost {
  std::uint32_t waitStep = 100;
  int waits = 0;
  std::vector<std::uint32_t> rollTicks;   // when each roll had been made
  std::int64_t rollsSeen = 0;
  std::function<void(Game&)> onWait;

  void Wait(Game& game) override {
    ++waits;
    Note(game);
    tick += waitStep;
    if (onWait) onWait(game);
  }
  bool Yield(Game& game) override {
    Note(game);
    return TestHost::Yield(game);
  }
  void Note(Game& game) {
    if (SessionRolls(game.stats) == rollsSeen) return;
    rollsSeen = SessionRolls(game.stats);
    rollTicks.push_back(tick);
  }
};

struct PacedTable {
  TempFolder folder;
  PacedHost host;
  std::unique_ptr<Game> game;

  PacedTable() : game(StartGame(host, TESSARYN_BIN_DIR, folder.Path())) {
    game->settings.ShooterBetRule = 0;
    game->settings.RollThrottle = kThrottleAutoRoll;
    game->settings.AutoRollDelay = Currency::Dollars(2);
  }
  void StopAfter(std::int64_t rolls) {
    host.onWait = [this, rolls](Game& running) {
      if (SessionRolls(running.stats) >= rolls) StopRun(running, "");
    };
  }
};

TEST(AutoRoll, KeepsItsPaceAndEndsAtOnceWhenStopped) {
  PacedTable table;
  table.StopAfter(5);
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(SessionRolls(table.game->stats), 5);
  ASSERT_EQ(table.host.rollTicks.size(), 5u);
  for (std::size_t i = 1; i < 5; ++i)
    EXPECT_EQ(table.host.rollTicks[i] - table.host.rollTicks[i - 1], 2000u) << i;
  EXPECT_EQ(table.host.waits, 4 * 20 + 1);
  EXPECT_FALSE(table.game->table.AutoRollActive);
  EXPECT_FALSE(table.game->table.RollInProgress);
}

TEST(AutoRoll, ActivityPostponesTheNextRollAndNoDelayStillYields) {
  PacedTable table;
  int pressed = 0;
  table.host.onWait = [&](Game& running) {
    if (SessionRolls(running.stats) >= 2) return StopRun(running, "");
    // A key pressed half way, three times over.
    if (pressed < 3 && running.host->TickMilliseconds() - running.table.LastActivityTick >= 1000) {
      ++pressed;
      NoteActivity(running);
    }
  };
  ToggleAutoRoll(*table.game);
  ASSERT_EQ(table.host.rollTicks.size(), 2u);
  EXPECT_EQ(table.host.rollTicks[1] - table.host.rollTicks[0], 3 * 1000u + 2000u);

  PacedTable fast;
  fast.game->settings.AutoRollDelay = kZero;
  fast.StopAfter(7);
  ToggleAutoRoll(*fast.game);
  EXPECT_EQ(fast.host.waits, 7);
}

TEST(AutoRoll, AutoStopEndsAtItsMultiples) {
  PacedTable table;
  table.game->settings.AutoStopInterval = Currency::Dollars(4);
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(SessionRolls(table.game->stats), 4);
  EXPECT_EQ(table.host.boxes.back().title, "Auto-Roll Stopped");
  EXPECT_EQ(table.host.boxes.back().text, "Stopped by Auto-Stop");
  table.game->settings.RollThrottle = 0;
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(SessionRolls(table.game->stats), 8);
  EXPECT_EQ(table.host.boxes.back().title, "Turbo-Roll Stopped");
  EXPECT_EQ(table.host.boxes.back().text, "Stopped by Auto-Stop.");
  EXPECT_EQ(table.game->table.StopReason, "Stopped by Auto-Stop.");
  EXPECT_EQ(ClampAutoStop(Currency::FromDouble(2.9)), Currency::Dollars(2));
  EXPECT_EQ(ClampAutoStop(Currency::Dollars(-3)), kZero);
  EXPECT_EQ(ClampAutoRollDelay(Currency::Dollars(1000)), Currency::Dollars(300));
  EXPECT_EQ(ClampAutoRollDelay(Currency::Dollars(-1)), kZero);
}

TEST(AutoRoll, AThrottleMovedInMidRunChangesTheRun) {
  PacedTable table;
  table.game->settings.AutoStopInterval = Currency::Dollars(50);
  bool moved = false;
  table.host.onWait = [&](Game& running) {
    if (moved) return;
    moved = true;
    EXPECT_FALSE(running.table.TurboRollActive);
    SetThrottle(running, 0);   // off the slow end: a Turbo-Roll from here on
    EXPECT_TRUE(running.table.TurboRollActive);
  };
  ToggleAutoRoll(*table.game);
  EXPECT_EQ(SessionRolls(table.game->stats), 50);
  EXPECT_EQ(table.host.waits, 1);
  SetThrottle(*table.game, 99);
  EXPECT_EQ(table.game->settings.RollThrottle, 0);
  EXPECT_FALSE(table.game->table.TurboRollActive) << "no run, so only the position changes";
}

TEST(AutoRoll, CommandsAskFirstAndNeverGoOn) {
  PacedTable table;
  EXPECT_TRUE(AskBeforeCommand(*table.game));
  bool asked = false;
  table.host.onWait = [&](Game& running) {
    if (!asked) {
      asked = true;
      EXPECT_FALSE(AskBeforeCommand(running));   // no answer is No
      EXPECT_TRUE(running.table.AutoRollActive);
      EXPECT_EQ(table.host.boxes.back().text, "Do you want to stop Auto-Rolling?");
      return;
    }
    table.host.answers = {"yes"};
    EXPECT_FALSE(AskBeforeCommand(running)) << "a yes stops the run and no more";
    EXPECT_FALSE(running.table.AutoRollActive);
  };
  ToggleAutoRoll(*table.game);
  EXPECT_TRUE(asked);
}

}  // namespace
}  // namespace tessaryn::test
