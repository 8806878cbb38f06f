// Long runs in the window. An Auto-Roll for as long as TESSARYN_AUTO_ROLL_SECONDS tells: what is drawn, said
// and counted leaves nothing behind. A Turbo-Roll of TESSARYN_LONG_ROLLS rolls with every instrument open,
// against one with none: in a release its speed, too.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <ctime>

#include "play/auto_roll.h"
#include "shell/frame/desk.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_rows.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/luck_window.h"
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

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

struct TurboRun {
  double rate = 0;            // rolls a second of processor time
  double longestSilence = 0;  // milliseconds of processor time in which no click would have been heard
  long grown = 0;             // kilobytes since a third of the run
  int refreshes = 0;
  double seconds = 0;  // of processor time
};

TurboRun RunTurbo(std::int64_t rolls, bool instruments) {
  ScreenTable table;
  table.watchdog.stop();
  MainWindow window(*table.game, table.host);
  window.Table().animate = false;
  window.resize(1280, 800);
  window.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  table.Join(1, "Ann", "900000");
  table.State().seats[1].handling.WinHandling = table.State().seats[1].handling.LoseHandling = 2;
  for (const int bet : {kPassLine, kField, kHard8}) table.Bet(1, bet, "5");
  table.game->settings.ShooterBetRule = 0;
  table.game->settings.AutoStopInterval = rolls;
  if (instruments)
    for (const ToolRow& row : ToolRows())
      // Luck is counted roll by roll while its window is open, which has its price.
      if (row.number != kLuckWindow) ShowTool(window.TheDesk(), row.number, true);
  QTest::qWait(300);
  TurboRun run;
  long warm = 0;
  double heard = 0;
  QTimer ear;
  QObject::connect(&ear, &QTimer::timeout, [&] {
    const double now = ProcessorSeconds();
    run.longestSilence = std::max(run.longestSilence, 1000 * (now - heard));
    heard = now;
    if (warm == 0 && SessionRolls(table.game->stats) > rolls / 3) warm = MemoryInUse();
  });
  ear.start(1);
  table.host.answers.Ok();
  table.host.showProgress = [&run, all = table.host.showProgress](Game& game) {
    ++run.refreshes;
    all(game);
  };
  const double before = heard = ProcessorSeconds();
  ToggleAutoRoll(*table.game);
  run.seconds = ProcessorSeconds() - before;
  run.rate = static_cast<double>(rolls) / run.seconds;
  run.grown = MemoryInUse() - warm;
  EXPECT_EQ(SessionRolls(table.game->stats), rolls);
  return run;
}

TEST(LongRun, EveryInstrumentOpenBesideATurboRoll) {
#ifdef NDEBUG
  const std::int64_t rolls = qEnvironmentVariable("TESSARYN_LONG_ROLLS", "5000000").toLongLong();
  // Short runs are little more than the windows' first pictures.
  const double leastShare = rolls > 10'000'000 ? 0.95 : 0.75;
  // Few refreshes fit in a short run, and whoever else works here takes some of them.
  const double leastRefreshes = rolls > 10'000'000 ? 5 : 4;
  constexpr double kLongestSilence = 100;
#else
  const std::int64_t rolls = qEnvironmentVariable("TESSARYN_LONG_ROLLS", "20000").toLongLong();
  constexpr double leastShare = 0.3;  // a roll costs many times as much, with its checks
  constexpr double leastRefreshes = 0;
  constexpr double kLongestSilence = 1000;
#endif
  double best = 0;
  double refreshes = 0;
  TurboRun all, none;
  for (int again = 0; again < 3 && (best < leastShare || refreshes < leastRefreshes); ++again) {
    none = RunTurbo(rolls, false);
    all = RunTurbo(rolls, true);
    best = std::max(best, all.rate / none.rate);
    refreshes = std::max(refreshes, all.refreshes / all.seconds);
  }
  EXPECT_GT(best, leastShare) << all.rate << " rolls a second of " << none.rate;
  EXPECT_LT(all.longestSilence, kLongestSilence);
  EXPECT_LT(all.grown, 2000) << "kilobytes more";
  EXPECT_GE(refreshes, leastRefreshes) << "too dear to be done ten times a second";
  printf(
      "%.0f rolls a second without instruments, %.0f with all of them (%.1f%%); unheard for %.0f ms at most; "
      "%ld kB more; %.1f refreshes a second\n",
      none.rate, all.rate, 100 * all.rate / none.rate, all.longestSilence, all.grown,
      all.refreshes / all.seconds);
}

}  // namespace
}  // namespace tessaryn::test
