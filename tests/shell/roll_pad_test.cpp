// The roll pad under mouse and keyboard: its menu, its buttons, its cells while something runs, its looks.
#include "shell/screens/roll_pad.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <set>

#include "play/auto_roll.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

struct OpenPad : ScreenTable {
  RollPad pad{*game, nullptr};

  explicit OpenPad(int shooterBetRule = 0) {
    game->settings.ShooterBetRule = shooterBetRule;
    Join(3, "Ann");
    host.changed = [this](Game&, Change) { pad.Refresh(); };
    pad.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&pad));
  }
  ~OpenPad() {
    host.changed = nullptr;
    // A menu wants the keyboard; the offscreen platform says of itself that it has none to give.
    QtWarnings().removeAll("This plugin does not support grabbing the keyboard");
  }

  std::int64_t Rolls() const { return SessionRolls(game->stats); }
  void Press(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&pad.Grid(), button, {}, pad.Grid().MiddleOfCell(row, column));
  }
  QMenu* OpenMenu() {
    Press(0, 0, Qt::RightButton);
    return Menu();
  }
  // The one that is open; the earlier ones are on their way out.
  QMenu* Menu() {
    for (QMenu* menu : pad.findChildren<QMenu*>("mnuRYON"))
      if (menu->isVisible()) return menu;
    return nullptr;
  }
  // Chooses an entry of the pad's menu with the mouse.
  void Choose(const char* name) {
    QMenu* menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    for (QMenu* at : {menu, menu->findChild<QMenu*>()}) {
      auto* action = at->findChild<QAction*>(name);
      if (action == nullptr || !at->actions().contains(action)) continue;
      if (at != menu) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(at->menuAction()).center());
        ASSERT_TRUE(QTest::qWaitFor([&] { return at->isVisible(); }));
      }
      QTest::mouseClick(at, Qt::LeftButton, {}, at->actionGeometry(action).center());
      QTest::qWait(5);
      EXPECT_EQ(Menu(), nullptr) << "a choice closes the menu";
      return;
    }
    ADD_FAILURE() << "no entry " << name;
  }
};

// Both: a run that waits long between its rolls, and a script. Whatever is pressed, asked and refused.
TEST(RollPadPresses, NothingRollsBehindARunOrAScript) {
  OpenPad table;
  table.State().AutoRollActive = table.State().RollInProgress = true;
  for (const bool turbo : {false, true}) {
    table.State().TurboRollActive = turbo;
    for (int layout = 0; layout < kRollPadLayouts; ++layout) {
      table.pad.SetPadLayout(layout);
      table.host.answers.No();
      table.Press(0, 5);
      EXPECT_TRUE(table.host.answers.Empty()) << "not asked, layout " << layout;
    }
    table.host.answers.No();
    QTest::mouseClick(&Find<QPushButton>(table.pad, "cmdRandomRoll"), Qt::LeftButton);
    EXPECT_TRUE(table.host.answers.Empty());
    EXPECT_TRUE(table.State().AutoRollActive);
  }
  table.State().AutoRollActive = table.State().TurboRollActive = table.State().RollInProgress = false;
  table.game->autobet.ScriptRunning = true;
  table.host.answers.No();
  table.Press(0, 5);
  EXPECT_TRUE(table.game->autobet.ScriptRunning);
  table.host.answers.Yes();
  table.Press(0, 5);
  EXPECT_FALSE(table.game->autobet.ScriptRunning);
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_FALSE(table.State().ManualRollPending);
  EXPECT_EQ(table.Rolls(), 0);
}

TEST(RollPadPresses, ARollUnderWayIsLeftAlone) {
  OpenPad table;
  int presses = 0;
  table.pad.commitEntry = [&] {
    ++presses;
    return true;
  };
  table.State().RollInProgress = true;
  table.Press(0, 3);
  EXPECT_EQ(presses, 0) << "the entry isn't taken either";
  EXPECT_FALSE(table.State().ManualRollPending);
  table.pad.Refresh();
  EXPECT_FALSE(Find<QPushButton>(table.pad, "cmdRandomRoll").isEnabled());
  EXPECT_FALSE(Find<QPushButton>(table.pad, "cmdTurboRoll").isEnabled());
  table.State().RollInProgress = false;
}

TEST(RollPadPresses, OnlyTheLeftButtonRollsAndOnlyInACell) {
  OpenPad table;
  table.Press(0, 3, Qt::MiddleButton);
  table.Press(0, 3, Qt::RightButton);
  table.pad.SetPadLayout(kPadTriangle);
  table.Press(5, 0);
  for (const QPoint corner : {QPoint(1, 1), QPoint(table.pad.Grid().width() - 2, 1),
                              QPoint(table.pad.Grid().width() / 2, table.pad.Grid().height() - 2)})
    QTest::mouseClick(&table.pad.Grid(), Qt::LeftButton, {}, corner);
  EXPECT_EQ(table.Rolls(), 0);
}

// With a line bet wanting, the dice asked for don't turn up in the roll after it, from the pad or elsewhere.
TEST(RollPadPresses, TheNextRollIsNotTheOneThatWasRefusedBefore) {
  OpenPad table(1);
  table.pad.SetPadLayout(kPadBox);
  std::set<std::pair<int, int>> rolled;
  for (int n = 0; n < 12; ++n) {
    if (n == 6) {
      EXPECT_GT(rolled.size(), 1u);
      rolled.clear();
    }
    table.host.answers.Ok();
    table.Press(5, 5);
    EXPECT_TRUE(table.host.answers.Empty()) << "a line bet is required";
    table.game->settings.ShooterBetRule = 0;
    if (n < 6)
      RollDice(*table.game);
    else
      QTest::mouseClick(&Find<QPushButton>(table.pad, "cmdRandomRoll"), Qt::LeftButton);
    table.game->settings.ShooterBetRule = 1;
    rolled.insert({table.State().Die1, table.State().Die2});
  }
  EXPECT_EQ(table.Rolls(), 12);
  EXPECT_GT(rolled.size(), 1u);
}

TEST(RollPadPresses, EveryCombinationOfATotalComesUp) {
  OpenPad table;
  std::set<std::pair<int, int>> rolled;
  for (int n = 0; n < 90; ++n) {
    table.Press(0, 5);
    ASSERT_EQ(table.State().RollTotal, 7);
    rolled.insert({table.State().Die1, table.State().Die2});
  }
  EXPECT_EQ(rolled.size(), 6u);
}

TEST(RollPadPresses, TheSecondFaceMayBeSetFirstAndChanged) {
  OpenPad table;
  table.pad.SetPadLayout(kPadFaces);
  table.Press(1, 3);
  table.Press(1, 5);
  EXPECT_EQ(table.Rolls(), 0);
  table.Press(0, 1);
  EXPECT_EQ(table.Rolls(), 1);
  EXPECT_EQ(std::pair(table.State().Die1, table.State().Die2), std::pair(2, 6));
  table.Press(0, 1);
  EXPECT_EQ(table.Rolls(), 1) << "a roll starts with no die set";
}

TEST(RollPadKeys, TheArrowsReachEveryCellAndEnterRollsIt) {
  OpenPad table;
  PadGrid& grid = table.pad.Grid();
  for (const int layout : {kPadTotals, kPadTriangle, kPadBox}) {
    table.pad.SetPadLayout(layout);
    std::set<QString> names;
    std::set<std::pair<int, int>> rolled;
    for (int row = 0; row < GridOf(layout).Rows; ++row) {
      // From the left end of the row to its right end, then back to the middle column, which all rows have.
      for (int n = 0; n < 12; ++n) QTest::keyClick(&grid, Qt::Key_Left);
      QString last;
      for (int n = 0; last != grid.accessibleName(); ++n) {
        last = grid.accessibleName();
        names.insert(last);
        const auto before = table.Rolls();
        QTest::keyClick(&grid, n % 2 == 0 ? Qt::Key_Return : Qt::Key_Space);
        EXPECT_EQ(table.Rolls(), before + 1) << last.toStdString();
        rolled.insert({table.State().Die1, table.State().Die2});
        QTest::keyClick(&grid, Qt::Key_Right);
      }
      const int rightEnd = layout == kPadBox ? 5 : 10 - row;
      for (int n = 5; n < rightEnd; ++n) QTest::keyClick(&grid, Qt::Key_Left);
      QTest::keyClick(&grid, Qt::Key_Down);
    }
    EXPECT_EQ(names.size(), layout == kPadTotals ? 11u : 36u) << "every cell has its own name";
    if (layout != kPadTotals) {
      EXPECT_EQ(rolled.size(), 36u);
    }
  }
}

TEST(RollPadKeys, AKeyThatIsHeldDownRollsOnce) {
  OpenPad table;
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(&table.pad.Grid(), &held);
  EXPECT_EQ(table.Rolls(), 0);
}

TEST(RollPadMenu, EachEntryDoesWhatItSays) {
  OpenPad table;
  for (const int layout : {3, 2, 1, 0}) {
    table.Choose(qPrintable(QString("mnuRYONDisplay%1").arg(layout)));
    EXPECT_EQ(table.pad.Grid().PadLayout(), layout);
    EXPECT_TRUE(table.pad.rect().contains(table.pad.Grid().geometry())) << "the pad follows the grid's size";
  }
  for (const auto& [entry, part] : {std::pair("mnuRollCounter", "lblRollCounter"),
                                    {"mnuTurboRollButton", "cmdTurboRoll"},
                                    {"mnuRandomButton", "cmdRandomRoll"}}) {
    auto& widget = Find<QWidget>(table.pad, part);
    const bool before = widget.isVisible();
    table.Choose(entry);
    EXPECT_NE(widget.isVisible(), before) << entry;
    table.Choose(entry);
    EXPECT_EQ(widget.isVisible(), before) << entry;
  }
  table.host.answers.Type("1000");
  table.Choose("mnuSetAutoRollTimeDelay");
  EXPECT_EQ(table.game->settings.AutoRollDelay, Seconds::Whole(300));
  table.host.answers.Type("-5");
  table.Choose("mnuSetAutoStop");
  EXPECT_EQ(table.game->settings.AutoStopInterval, 0);
  EXPECT_TRUE(table.host.answers.Empty());
  table.Choose("mnuHide");
  EXPECT_FALSE(table.pad.isVisible());
  EXPECT_EQ(table.Rolls(), 0) << "a menu rolls nothing";
}

TEST(RollPadMenu, OpensByKeyboardAndOverTheButtonsToo) {
  OpenPad table;
  QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(&table.pad.Grid(), &key);
  ASSERT_NE(table.Menu(), nullptr);
  QTest::keyClick(table.Menu(), Qt::Key_Escape);
  EXPECT_EQ(table.Menu(), nullptr);
  QTest::mouseClick(&Find<QWidget>(table.pad, "cmdRandomRoll"), Qt::RightButton);
  ASSERT_NE(table.Menu(), nullptr);
  QTest::keyClick(table.Menu(), Qt::Key_Escape);
  EXPECT_EQ(table.Rolls(), 0);
}

// The menu doesn't hold up a run; its dialogs ask first.
TEST(RollPadMenu, ARunGoesOnBehindItAndItsSettingsAsk) {
  OpenPad table;
  table.game->settings.RollThrottle = kThrottleAutoRoll;
  table.game->settings.AutoRollDelay = Seconds{};
  std::int64_t seen = 0;
  QTimer::singleShot(50, [&] {
    table.OpenMenu();
    seen = table.Rolls();
  });
  QTimer::singleShot(250, [&] {
    EXPECT_NE(table.Menu(), nullptr);
    EXPECT_GT(table.Rolls(), seen) << "the menu stopped the run";
    if (table.Menu() != nullptr) table.Menu()->close();
    table.host.answers.No();
    table.Choose("mnuSetAutoStop");
    EXPECT_TRUE(table.host.answers.Empty());
    EXPECT_TRUE(table.State().AutoRollActive);
    table.host.answers.Yes();
    table.Choose("mnuSetAutoRollTimeDelay");
  });
  QTest::mouseClick(&Find<QWidget>(table.pad, "cmdTurboRoll"), Qt::LeftButton);
  EXPECT_FALSE(table.State().AutoRollActive);
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(table.game->settings.AutoRollDelay, Seconds{});
}

TEST(RollPadButtons, AnEntryThatGaveAMessageStartsNoRun) {
  OpenPad table;
  table.pad.commitEntry = [] { return false; };
  QTest::mouseClick(&Find<QWidget>(table.pad, "cmdTurboRoll"), Qt::LeftButton);
  EXPECT_EQ(table.Rolls(), 0);
  EXPECT_FALSE(table.State().AutoRollActive);
}

TEST(RollPadButtons, TheThrottleIsSetByKeysAndNamesTheRun) {
  OpenPad table;
  auto& throttle = Find<QSlider>(table.pad, "hsbThrottle");
  auto& run = Find<QPushButton>(table.pad, "cmdTurboRoll");
  QTest::keyClick(&throttle, Qt::Key_End);
  EXPECT_EQ(table.game->settings.RollThrottle, kThrottleAutoRoll);
  EXPECT_EQ(run.text(), "Start Auto-Roll");
  QTest::keyClick(&throttle, Qt::Key_Left);
  EXPECT_EQ(table.game->settings.RollThrottle, 11);
  EXPECT_EQ(run.text(), "Start Turbo-Roll");
  EXPECT_EQ(Find<QLabel>(table.pad, "lblThrottle").text(), "20.48 s a roll");
  SetThrottle(*table.game, 3);
  EXPECT_EQ(throttle.value(), 3) << "a throttle that moved elsewhere is followed";
  QTest::keyClick(&throttle, Qt::Key_Home);
  EXPECT_EQ(table.game->settings.RollThrottle, 0);
  ExpectNamed(table.pad);
}

TEST(RollPadLooks, PicturesOfEveryLayoutInLightAndDark) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    OpenPad table;
    for (int layout = 0; layout < kRollPadLayouts; ++layout) {
      table.pad.SetPadLayout(layout);
      table.pad.Grid().setFocus();
      QTest::keyClick(&table.pad.Grid(), Qt::Key_Right);
      if (layout == kPadFaces) table.Press(0, 3);
      QTest::mouseMove(&table.pad.Grid(), table.pad.Grid().MiddleOfCell(1, 4));
      QTest::qWait(20);
      EXPECT_LE(table.pad.width(), 600);
      SavePicture(table.pad, QString("roll-pad-%1-%2").arg(layout).arg(dark ? "dark" : "light"));
    }
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
