// An Auto-Roll in the window for as long as TESSARYN_AUTO_ROLL_SECONDS tells: what is drawn, said and counted
// leaves nothing behind.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include "play/auto_roll.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "state/run_stop.h"

namespace tessaryn::test {
namespace {

// Resident memory in kilobytes.
long MemoryInUse() {
  QFile file("/proc/self/statm");
  if (!file.open(QIODevice::ReadOnly)) return 0;
  return file.readAll().split(' ')[1].toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

TEST(LongRun, AnAutoRollLeavesNoMemoryBehind) {
  const int seconds = qEnvironmentVariable("TESSARYN_AUTO_ROLL_SECONDS", "6").toInt();
  ScreenTable table;
  table.watchdog.stop();
  MainWindow window(*table.game, table.host);
  window.Table().animate = false;
  window.resize(1280, 800);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  table.game->settings.ShooterBetRule = 0;
  table.game->settings.RollThrottle = kThrottleAutoRoll;
  table.game->settings.AutoRollDelay = Seconds{};
  for (int seat = 1; seat <= kSeats; ++seat) {
    table.Join(seat, "P" + std::to_string(seat) + "x", "9000000");
    table.State().seats[seat].handling.WinHandling = table.State().seats[seat].handling.LoseHandling = 2;
    for (const int bet : std::initializer_list<int>{kPassLine, kField, kHard8, kHorn, kPlace4 + 2, kFire})
      table.Bet(seat, bet, "5");
  }
  long warm = 0;
  QTimer::singleShot(seconds * 1000 / 3, [&] { warm = MemoryInUse(); });
  QTimer::singleShot(seconds * 1000, [&] { StopRun(*table.game, ""); });
  ToggleAutoRoll(*table.game);
  const long grown = MemoryInUse() - warm;
  EXPECT_GT(SessionRolls(table.game->stats), seconds * 10);
  EXPECT_LT(grown, 1500) << "kilobytes more after " << SessionRolls(table.game->stats) << " rolls";
  RecordProperty("rolls", static_cast<int>(SessionRolls(table.game->stats)));
  RecordProperty("kilobytes", static_cast<int>(grown));
}

}  // namespace
}  // namespace tessaryn::test
