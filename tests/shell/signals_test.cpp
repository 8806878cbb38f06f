// A signal ends the window in order, whatever it is at.
#include "shell/frame/signals.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <csignal>

#include "base/interrupts.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "stats/events_log.h"
#include "support/test_host.h"

namespace tessaryn::test {
namespace {

// Runs the window until it ends, with a signal in the middle of what it does, and returns its exit code.
int ExitAfter(ScreenTable& table, int signal, const std::function<void()>& work,
              const std::function<void(MainWindow&)>& later = {}) {
  MainWindow window(*table.game, table.host);
  window.show();
  const SignalWatch watch(*table.game, window, 500);
  if (later) QTimer::singleShot(2000, &window, [&] { later(window); });
  QTimer::singleShot(0, &window, work);
  QTimer::singleShot(300, &window, [signal] { raise(signal); });
  const int code = QCoreApplication::exec();
  // The last window asks for the end as well: that must not reach a loop of a later test.
  QCoreApplication::removePostedEvents(qApp, QEvent::Quit);
  EXPECT_FALSE(window.isVisible());
  ForgetSignal();
  return code;
}

TEST(Signals, LogAndRecordingAreOfTheSameRollWhenTheWindowIsEnded) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) {
    SCOPED_TRACE(signal);
    ScreenTable table;
    Game& game = *table.game;
    game.settings.ShooterBetRule = 0;
    game.events.RecordEventsActive = true;
    const std::string recording = game.dataFolder + "new.rol";
    ASSERT_EQ(OpenRollFile(game.rollFile, recording), "");
    ASSERT_EQ(SetRecorderState(game.rollFile, kRecorderRecord), "");
    EXPECT_EQ(ExitAfter(table, signal, [&game] { ToggleAutoRoll(game); }), 128 + signal);
    const std::int64_t rolls = SessionRolls(game.stats);
    EXPECT_GT(rolls, 0);
    EXPECT_EQ(static_cast<std::int64_t>(ReadFile(recording).size()), rolls);
    EXPECT_EQ(QString::fromStdString(ReadFile(EventsLogPath(game))).count(" Roll #"), rolls);
  }
}

TEST(Signals, ABoxThatWaitsInARollGetsItsSafeAnswer) {
  ScreenTable table;
  Game& game = *table.game;
  game.settings.ShooterBetRule = 0;
  table.Join(4, "Ann");
  table.Bet(4, kField, "5");
  EXPECT_EQ(ExitAfter(table, SIGTERM, [&table] { table.Roll(1, 2); }), 128 + SIGTERM);
  EXPECT_EQ(SessionRolls(game.stats), 1);
  EXPECT_FALSE(game.table.RollInProgress);
}

// SIGTERM asks what the close box asks.
TEST(Signals, TheEndThatIsAskedForCanBeRefused) {
  const auto unsaved = [](ScreenTable& table) {
    table.game->settings.ShooterBetRule = 0;
    table.Join(4, "Ann");
    table.game->autobet.Scripts[4].Unsaved = true;
  };
  {
    SCOPED_TRACE("refused, and ended by another signal later");
    ScreenTable table;
    unsaved(table);
    table.host.answers.Cancel();
    bool went = false;
    EXPECT_EQ(ExitAfter(
                  table, SIGTERM, [] {},
                  [&went](MainWindow& window) {
                    went = window.isVisible();
                    raise(SIGHUP);
                  }),
              128 + SIGHUP);
    EXPECT_TRUE(went);
  }
  {
    SCOPED_TRACE("refused while the table rolls on");
    ScreenTable table;
    table.game->settings.ShooterBetRule = 0;
    table.host.answers.Cancel();
    std::int64_t rolls = 0;
    EXPECT_EQ(ExitAfter(
                  table, SIGTERM, [&table] { ToggleAutoRoll(*table.game); },
                  [&](MainWindow&) {
                    EXPECT_TRUE(table.State().AutoRollActive);
                    rolls = SessionRolls(table.game->stats);
                    raise(SIGINT);
                  }),
              128 + SIGINT);
    EXPECT_GT(rolls, 0);
  }
  {
    SCOPED_TRACE("agreed");
    ScreenTable table;
    unsaved(table);
    table.host.answers.No();
    EXPECT_EQ(ExitAfter(table, SIGTERM, [] {}), 128 + SIGTERM);
  }
  {
    SCOPED_TRACE("nobody there");
    ScreenTable table;
    unsaved(table);
    EXPECT_EQ(ExitAfter(table, SIGTERM, [] {}), 128 + SIGTERM);
  }
}

}  // namespace
}  // namespace tessaryn::test
