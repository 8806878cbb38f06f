// The bar of run controls, the panel of a Turbo-Roll and the panel that moves the table, by mouse and keys.
#include "shell/table/run_controls.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>

#include "play/auto_roll.h"
#include "shell/screens/move_panel.h"
#include "shell/screens_support.h"
#include "shell/table/turbo_panel.h"

namespace tessaryn::test {
namespace {

TEST(RunControlsBar, EachButtonSaysWhatWasPressedAndNoMore) {
  ScreenTable table;
  table.Join(1, "Ann");
  RunControls bar;
  bar.show();
  bar.Refresh(*table.game);
  QSignalSpy roll(&bar, &RunControls::rollPressed);
  QSignalSpy pass(&bar, &RunControls::passPressed);
  QSignalSpy run(&bar, &RunControls::turboPressed);
  QSignalSpy moved(&bar, &RunControls::throttleMoved);
  Click(bar, "cmdRoll");
  Click(bar, "cmdPass");
  Click(bar, "cmdTurboRoll");
  EXPECT_EQ(std::tuple(roll.count(), pass.count(), run.count(), moved.count()), std::tuple(1, 1, 1, 0));
  QTest::keyClick(&Find<QSlider>(bar, "hsbThrottle"), Qt::Key_End);
  QTest::keyClick(&Find<QSlider>(bar, "hsbThrottle"), Qt::Key_PageDown);
  ASSERT_EQ(moved.count(), 2);
  EXPECT_EQ(moved.at(0).at(0).toInt(), kThrottleAutoRoll);
  EXPECT_EQ(moved.at(1).at(0).toInt(), kThrottleAutoRoll - 1);
  ExpectNamed(bar);
}

TEST(RunControlsBar, WhatCannotActIsGrey) {
  ScreenTable table;
  RunControls bar;
  const auto enabled = [&](const char* name) {
    bar.Refresh(*table.game);
    return Find<QWidget>(bar, name).isEnabled();
  };
  EXPECT_FALSE(enabled("cmdPass")) << "nobody has the dice";
  EXPECT_TRUE(enabled("cmdRoll"));
  table.Join(1, "Ann");
  EXPECT_TRUE(enabled("cmdPass"));
  table.State().RollInProgress = true;
  for (const char* name : {"cmdRoll", "cmdPass", "cmdTurboRoll"}) EXPECT_FALSE(enabled(name)) << name;
  table.State().AutoRollActive = true;
  for (const char* name : {"cmdRoll", "cmdPass", "cmdTurboRoll"}) EXPECT_TRUE(enabled(name)) << name;
  table.State().RollInProgress = table.State().AutoRollActive = false;
}

TEST(RunControlsBar, IsSmallAndOfOneSizeWhateverItSays) {
  ScreenTable table;
  RunControls bar;
  EXPECT_LE(bar.sizeHint().height(), MeasuresOf({1280, 800}).controls);
  bar.SetMeasures(MeasuresOf(kSmallestWindow));
  const QSize size = bar.sizeHint();
  EXPECT_LE(size.height(), MeasuresOf(kSmallestWindow).controls);
  EXPECT_LE(size.width(), 470);
  for (int run = 0; run < 3; ++run)
    for (int throttle = 0; throttle <= kThrottleAutoRoll; ++throttle) {
      table.game->settings.RollThrottle = throttle;
      table.State().AutoRollActive = run > 0;
      table.State().TurboRollActive = run > 1;
      bar.Refresh(*table.game);
      EXPECT_EQ(bar.sizeHint(), size) << run << " " << throttle;
    }
  table.State().AutoRollActive = table.State().TurboRollActive = false;
}

TEST(RunControlsBar, AClickLeavesTheKeyboardWhereItWas) {
  ScreenTable table;
  QWidget window;
  QLineEdit other(&window);
  RunControls bar(&window);
  bar.move(0, 40);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  other.setFocus();
  Click(bar, "cmdRoll");
  EXPECT_TRUE(other.hasFocus());
}

TEST(RunControlsBar, PicturesInLightAndDark) {
  ScreenTable table;
  table.Join(1, "Ann");
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    RunControls bar;
    table.game->settings.RollThrottle = dark ? 11 : 4;
    bar.Refresh(*table.game);
    SavePicture(bar, dark ? "run-controls-dark" : "run-controls-light");
    MovePanel panel;
    panel.show();
    SavePicture(panel, dark ? "move-panel-dark" : "move-panel-light");
  }
  QApplication::setPalette(before);
}

// A window as far as a run needs one: the panel comes and goes with the run.
struct RunningTable : ScreenTable {
  QWidget window;
  TurboPanel panel{&window};
  int progress = 0;

  RunningTable() {
    game->settings.ShooterBetRule = 0;
    window.resize(1000, 560);
    panel.resize(window.size());
    panel.hide();
    window.show();
    host.changed = [this](Game& played, Change) {
      if (played.table.TurboRollActive && !panel.isVisible()) {
        panel.Begin(played);
        panel.show();
        panel.setFocus();
      } else if (!played.table.TurboRollActive) {
        panel.hide();
      }
    };
    host.showProgress = [this](Game& played) {
      ++progress;
      panel.Refresh(played);
    };
    QObject::connect(&panel, &TurboPanel::stopPressed, qApp, [this] { ToggleAutoRoll(*game); });
  }
  ~RunningTable() {
    host.changed = nullptr;
    host.showProgress = nullptr;
  }
};

TEST(TurboPanelInARun, StopsItWithinATenthOfASecondAndRefreshesTenTimesASecond) {
  RunningTable table;
  table.Join(2, "Ann");
  for (const int way : {0, 1, 2}) {
    QElapsedTimer sinceStop;
    QElapsedTimer run;
    QString rolls;
    table.progress = 0;
    QTimer::singleShot(600, &table.panel, [&] {
      rolls = Find<QLabel>(table.panel, "lblRolls").text();
      table.window.activateWindow();
      sinceStop.start();
      if (way == 0) QTest::mouseClick(&Find<QWidget>(table.panel, "cmdStop"), Qt::LeftButton);
      if (way == 1) QTest::keyClick(&table.panel, Qt::Key_Escape);
      if (way == 2) QTest::keyClick(&table.panel, Qt::Key_Space);
    });
    run.start();
    ToggleAutoRoll(*table.game);
    EXPECT_LT(sinceStop.elapsed(), 100) << way;
    EXPECT_FALSE(table.State().AutoRollActive);
    EXPECT_FALSE(table.panel.isVisible());
    EXPECT_GT(rolls.remove(',').toLongLong(), 0) << "the panel counts while it runs";
    EXPECT_GE(table.progress, 2);
    EXPECT_LE(table.progress, run.elapsed() / 100 + 1) << "no more than ten a second";
  }
}

TEST(TurboPanelInARun, TheKeyThatStartedItDoesNotStopIt) {
  RunningTable table;
  QSignalSpy stopped(&table.panel, &TurboPanel::stopPressed);
  table.panel.Begin(*table.game);
  table.panel.show();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&table.panel, &held);
  }
  EXPECT_EQ(stopped.count(), 0);
}

// A figure's place by its last digit: what is right of the label's right edge never moves.
TEST(TurboPanelFigures, StayInTheirPlacesAndKeepToTheirRows) {
  ScreenTable table;
  table.Join(1, "Ann", "1000");
  table.Join(7, "Bartholomew Alexandra Catherine", "9999998.5");
  TurboPanel panel;
  panel.resize(1024, 500);
  panel.show();
  panel.Begin(*table.game);
  std::vector<QRect> places;
  std::vector<QLabel*> labels;
  for (QLabel* label : panel.findChildren<QLabel*>())
    if (label->isVisible()) labels.push_back(label);
  for (const QLabel* label : labels) places.push_back(label->geometry());
  SavePicture(panel, "turbo-panel-begin");
  table.State().BankrollCurrent[1] = ParseMoney("-9999999");
  table.State().BankrollCurrent[7] = ParseMoney("12.25");
  panel.Refresh(*table.game);
  QTest::qWait(20);
  for (std::size_t n = 0; n < labels.size(); ++n) {
    EXPECT_EQ(labels[n]->geometry(), places[n]) << labels[n]->text().toStdString();
    EXPECT_GE(labels[n]->width(), labels[n]->sizeHint().width()) << labels[n]->text().toStdString();
    EXPECT_TRUE(panel.rect().contains(labels[n]->geometry()));
  }
  QStringList shown;
  for (const QLabel* label : labels) shown += label->text();
  for (const char* text : {"-9,999,999.00", "-10,000,999.00", "12.25", "-9,999,986.25"})
    EXPECT_TRUE(shown.contains(text)) << text;
  SavePicture(panel, "turbo-panel-cents");
  table.State().BankrollCurrent[1] = ParseMoney("1000");
  table.State().BankrollCurrent[7] = ParseMoney("9999998.5");
}

TEST(TurboPanelFigures, AFullTableFitsTheSmallestScreen) {
  constexpr const char* kNames[kSeats] = {"Ann",  "Bo",    "Catherine", "Dieter",
                                          "Emma", "Fritz", "Greta",     "Hugo"};
  ScreenTable table;
  for (int seat = 1; seat <= kSeats; ++seat) table.Join(seat, kNames[seat - 1], "2500");
  for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
    TurboPanel panel;
    panel.setParent(nullptr);
    panel.resize(1000, 470);  // what the window leaves to the table on a small screen
    panel.Begin(*table.game);
    panel.show();
    for (int seat = 1; seat <= kSeats; ++seat)
      table.State().BankrollCurrent[seat] = Currency::Dollars(2500 + 37 * (seat % 3 - 1) * seat);
    panel.Refresh(*table.game);
    EXPECT_LE(panel.minimumSizeHint().height(), 470);
    SavePicture(panel,
                palette == QApplication::palette() ? "turbo-panel-full-light" : "turbo-panel-full-dark");
    for (int seat = 1; seat <= kSeats; ++seat) table.State().BankrollCurrent[seat] = Currency::Dollars(2500);
  }
}

TEST(MovePanelKeys, ShiftAndCtrlGiveTheirModeToEveryButton) {
  MovePanel panel;
  panel.show();
  QSignalSpy zoomed(&panel, &MovePanel::zoom);
  QSignalSpy moved(&panel, &MovePanel::move);
  QSignalSpy turned(&panel, &MovePanel::rotate);
  const Qt::KeyboardModifiers keys[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                        Qt::ShiftModifier | Qt::ControlModifier};
  for (int mode = 0; mode < 4; ++mode) {
    for (const char* name : {"cmdZoomIn", "cmdMoveLeft", "cmdRotateCW"})
      QTest::mouseClick(&Find<QWidget>(panel, name), Qt::LeftButton, keys[mode]);
    EXPECT_EQ(zoomed.last().at(1).toInt(), mode);
    EXPECT_EQ(moved.last().at(2).toInt(), mode);
    EXPECT_EQ(turned.last().at(1).toInt(), mode);
  }
  QTest::keyClick(&Find<QWidget>(panel, "cmdZoomOut"), Qt::Key_Space);
  EXPECT_FALSE(zoomed.last().at(0).toBool());
  for (const QAbstractButton* button : panel.findChildren<QAbstractButton*>())
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
}

TEST(MovePanelKeys, IconsFollowTheDesktopsColours) {
  MovePanel panel;
  panel.show();
  const auto ink = [&] {
    return Find<QAbstractButton>(panel, "cmdMoveUp").icon().pixmap(26, 26).toImage().pixelColor(13, 14);
  };
  EXPECT_LT(ink().lightness(), 100);
  const QPalette before = QApplication::palette();
  QApplication::setPalette(DarkPalette());
  QTest::qWait(20);
  EXPECT_GT(ink().lightness(), 150);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
