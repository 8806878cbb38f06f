// What the window costs: a full repaint, the pointer moving over the table, and a Turbo-Roll beside the same
// run without a window.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>

#include "play/auto_roll.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "shell/frame/main_window.h"
#include "state/game.h"
#include "state/run_stop.h"

namespace tessaryn {
namespace {

void SeatPlayers(Game& game, int count, bool busy) {
  constexpr const char* kNames[] = {"Ann", "Bob", "Cyd", "Dan", "Eve", "Fay", "Gus", "Hal"};
  std::string error;
  for (int seat = 1; seat <= count; ++seat) {
    JoinPlayer(game, seat, kNames[seat - 1], Currency::Dollars(5'000'000), error);
    game.table.seats[seat].handling.WinHandling = game.table.seats[seat].handling.LoseHandling = 2;
    for (int bet = 1; busy && bet <= kBets; ++bet) SetBetAmount(game, seat, bet, Currency::Dollars(31 + bet));
  }
  game.settings.ShooterBetRule = 0;
}

struct Window {
  QTemporaryDir folder;
  ShellHost host;
  std::unique_ptr<Game> game =
      StartGame(host, QCoreApplication::applicationDirPath().toStdString(), folder.path().toStdString());
  MainWindow window{*game, host};

  Window() {
    window.Table().animate = false;
    window.resize(1920, 1080);
    window.show();
    QCoreApplication::processEvents();
  }
};

void FullRepaintOfABusyTable(benchmark::State& state) {
  Window shown;
  SeatPlayers(*shown.game, 8, true);
  TableWidget& table = shown.window.Table();
  table.resize(1920, 1080);
  table.ShowWhole();
  QImage target(1920, 1080, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    table.ViewChanged();  // felt, rail and lettering too
    table.render(&target, {}, {}, {});
  }
}
BENCHMARK(FullRepaintOfABusyTable)->Unit(benchmark::kMillisecond);

void RepaintAfterABet(benchmark::State& state) {
  Window shown;
  SeatPlayers(*shown.game, 8, true);
  TableWidget& table = shown.window.Table();
  table.resize(1920, 1080);
  table.ShowWhole();
  QImage target(1920, 1080, QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    table.Refresh();
    table.render(&target, {}, {}, {});
  }
}
BENCHMARK(RepaintAfterABet)->Unit(benchmark::kMillisecond);

void Hover(benchmark::State& state) {
  Window shown;
  SeatPlayers(*shown.game, 8, true);
  shown.game->table.SelectedSeat = 3;
  shown.game->settings.InfoTipLevel = 0;
  TableWidget& table = shown.window.Table();
  table.resize(1920, 1080);
  table.ShowWhole();
  table.BetAt({0, 0});
  int n = 0;
  for (auto _ : state) {
    ++n;
    const QPointF point(300 + (n * 37) % 1300, 200 + (n * 53) % 600);
    QMouseEvent move(QEvent::MouseMove, point, table.mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&table, &move);
  }
}
BENCHMARK(Hover)->Unit(benchmark::kMicrosecond);

// A host without a window, as the command line's: the same run's yardstick.
class BareHost : public ShellHost {
 public:
  std::int64_t target = 0;
  bool Yield(Game& game) override {
    if (SessionRolls(game.stats) >= target) StopRun(game, "");
    return false;
  }
};

constexpr std::int64_t kRolls = 3'000'000;

void TurboWithoutAWindow(benchmark::State& state) {
  QTemporaryDir folder;
  BareHost host;
  const auto game =
      StartGame(host, QCoreApplication::applicationDirPath().toStdString(), folder.path().toStdString());
  SeatPlayers(*game, 1, false);
  SetBetAmount(*game, 1, kPassLine, Currency::Dollars(5));
  for (auto _ : state) {
    host.target = SessionRolls(game->stats) + kRolls;
    ToggleAutoRoll(*game);
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * kRolls);
}
BENCHMARK(TurboWithoutAWindow)->Unit(benchmark::kMillisecond);

void TurboInTheWindow(benchmark::State& state) {
  Window shown;
  SeatPlayers(*shown.game, 1, false);
  SetBetAmount(*shown.game, 1, kPassLine, Currency::Dollars(5));
  std::int64_t rolls = 0;
  for (auto _ : state) {
    const std::int64_t before = SessionRolls(shown.game->stats);
    shown.game->settings.AutoStopInterval = kRolls;
    shown.host.answers.Ok();
    ToggleAutoRoll(*shown.game);
    rolls += SessionRolls(shown.game->stats) - before;
  }
  state.SetItemsProcessed(rolls);
}
BENCHMARK(TurboInTheWindow)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaryn

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, arguments);
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
