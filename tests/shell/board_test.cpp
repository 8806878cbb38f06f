// The board above the table, the plates round it and the guide: what they say, and where they stand.
#include "shell/table/board.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <map>
#include <random>

#include "base/bet_catalogue.h"
#include "rules/handling.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "shell/table/amount_selector.h"
#include "shell/table/screen_tools.h"

namespace tessaryn::test {
namespace {

struct Window : ScreenTable {
  MainWindow window{*game, host};

  explicit Window(QSize size = {1280, 800}) {
    window.Table().animate = false;
    window.resize(size);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  Board& TheBoard() { return window.Stage().TheBoard(); }
  void HandleAll() {
    for (SeatState& seat : State().seats) seat.handling.WinHandling = seat.handling.LoseHandling = 2;
  }
  // Four players in the middle of a hand.
  void MakeEvening() {
    Join(1, "Dan", "200");
    Join(4, "Ann", "500");
    Join(5, "Bo", "500");
    Join(7, "Cleo", "1000");
    HandleAll();
    SelectSeat(*game, 4);
    std::mt19937 random(3);
    const auto die = [&] { return static_cast<int>(random() % 6 + 1); };
    for (int n = 0; n < 28 || State().Point == 0; ++n) {
      Bet(State().ShooterSeat, kPassLine, "10");
      Bet(5, kDontPass, "15");
      Bet(4, kField, "5");
      Roll(die(), die());
    }
    Bet(4, kPlace4 + 2, "12");
    Bet(7, kCome, "10");
    Bet(1, kHard8, "5");
    Roll(4, 2);
    QApplication::processEvents();
  }
};

TEST(WindowPictures, TheWholeWindowAtTheToldSizesInLightAndDark) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true})
    for (const QSize size : {QSize(1280, 800), QSize(1024, 600), QSize(1920, 1080), QSize(800, 500)}) {
      ApplyScheme(dark ? Scheme::kDark : Scheme::kLight);
      QApplication::setPalette(PaletteOf(dark ? DarkTones() : LightTones()));
      Window window(size);
      ApplyScheme(dark ? Scheme::kDark : Scheme::kLight);
      window.MakeEvening();
      SavePicture(window.window, QStringLiteral("board-%1x%2%3").arg(size.width()).arg(size.height()).arg(dark ? "-dark" : ""));
      EXPECT_EQ(window.window.size(), size);
    }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
