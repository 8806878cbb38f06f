// The roll pad, the new session's dialog, the controls of runs and the panel that moves the table.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <set>

#include "rules/session.h"
#include "shell/screens/about.h"
#include "shell/screens/move_panel.h"
#include "shell/screens/new_session.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens_support.h"
#include "shell/table/run_controls.h"
#include "shell/table/turbo_panel.h"
#include "stats/statistics.h"

namespace tessaryn::test {
namespace {

struct PadTable : ScreenTable {
  RollPad pad{*game, nullptr};

  PadTable() {
    game->settings.ShooterBetRule = 0;
    Join(3, "Ann");
    pad.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&pad));
  }
  void Press(int row, int column) {
    QTest::mouseClick(&pad.Grid(), Qt::LeftButton, {}, pad.Grid().MiddleOfCell(row, column));
  }
};

TEST(RollPad, EveryCellOfEveryLayoutRollsItsDice) {
  PadTable table;
  for (int layout = 0; layout < kRollPadLayouts; ++layout) {
    table.pad.SetPadLayout(layout);
    const RollPadGrid grid = GridOf(layout);
    std::set<std::pair<int, int>> rolled;
    for (int row = 0; row < grid.Rows; ++row)
      for (int column = 0; column < grid.Columns; ++column) {
        const auto before = SessionRolls(table.game->stats);
        if (layout == kPadFaces && row == 1) continue;
        table.Press(row, column);
        if (layout == kPadFaces) {
          EXPECT_EQ(SessionRolls(table.game->stats), before) << "one die is no roll";
          table.Press(1, (column + 2) % 6);
        }
        const int made = static_cast<int>(SessionRolls(table.game->stats) - before);
        Generators unused;
        const PadRoll cell = PadCellRoll(layout, row, column, unused);
        const bool isCell = layout == kPadTotals || layout == kPadFaces || cell.IsComplete();
        ASSERT_EQ(made, isCell ? 1 : 0) << layout << " " << row << "," << column;
        if (!isCell) continue;
        const TableState& state = table.State();
        EXPECT_TRUE(layout != kPadTotals || state.RollTotal == column + 2);
        if (layout == kPadFaces) {
          EXPECT_EQ(std::pair(state.Die1, state.Die2), std::pair(column + 1, (column + 2) % 6 + 1));
        }
        rolled.insert({state.Die1, state.Die2});
      }
    EXPECT_TRUE((layout != kPadBox && layout != kPadTriangle) || rolled.size() == 36) << layout;
    SavePicture(table.pad, QString("roll-pad-%1").arg(layout));
  }
}

TEST(RollPad, TheKeyboardWalksAndPresses) {
  PadTable table;
  table.pad.SetPadLayout(kPadBox);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
    QTest::keyClick(&table.pad.Grid(), key);
  EXPECT_EQ(table.State().Die1, 3);
  EXPECT_EQ(table.State().Die2, 2);
  EXPECT_EQ(table.pad.Grid().accessibleName(), "Roll 3 and 2");
}

TEST(RollPad, APressDuringARunAsksAndNeverRolls) {
  PadTable table;
  table.game->settings.RollThrottle = 12;
  table.game->settings.AutoRollDelay = Seconds::Whole(300);
  std::int64_t before = 0;
  QTimer::singleShot(100, [&] {
    before = SessionRolls(table.game->stats);
    table.host.answers.No();
    table.Press(0, 3);
    EXPECT_TRUE(table.State().AutoRollActive);
    EXPECT_EQ(SessionRolls(table.game->stats), before);
    EXPECT_FALSE(table.State().ManualRollPending);
    table.host.answers.Yes();
    table.Press(0, 3);
    EXPECT_FALSE(table.State().AutoRollActive);
  });
  QTest::mouseClick(table.pad.findChild<QWidget*>("cmdTurboRoll"), Qt::LeftButton);
  EXPECT_EQ(SessionRolls(table.game->stats), before);
  EXPECT_TRUE(table.host.answers.Empty());
}

TEST(RollPad, AnEntryThatGaveAMessageDropsThePress) {
  PadTable table;
  bool taken = false;
  table.pad.commitEntry = [&] { return taken; };
  table.Press(0, 4);
  QTest::mouseClick(table.pad.findChild<QWidget*>("cmdRandomRoll"), Qt::LeftButton);
  EXPECT_EQ(SessionRolls(table.game->stats), 0);
  taken = true;
  table.Press(0, 4);
  QTest::mouseClick(table.pad.findChild<QWidget*>("cmdRandomRoll"), Qt::LeftButton);
  EXPECT_EQ(SessionRolls(table.game->stats), 2);
}

TEST(NewSession, EachChoiceKeepsOrClearsWhatItSays) {
  for (int choices = 0; choices < 16; ++choices) {
    ScreenTable table;
    table.game->settings.ShooterBetRule = 0;
    table.Join(2, "Ann");
    table.Bet(2, kField, "10");
    PlaceBet(*table.game, 2, kFirstCheckStack + 3, Currency::Dollars(7));
    table.Roll(2, 1);
    table.game->autobet.Scripts[2].ScriptLines = {"bet 10 on field"};
    const std::string log = table.State().seats[2].SessionsLogName;
    NewSessionScreen screen(*table.game, nullptr);
    const bool scripts = (choices & 1) != 0;
    const bool sessions = (choices & 2) != 0;
    const bool stacks = (choices & 4) != 0;
    const bool logs = (choices & 8) != 0;
    Find<QCheckBox>(screen, "chkPreserveAutoBets").setChecked(scripts);
    Find<QCheckBox>(screen, "chkPreservePrevSessions").setChecked(sessions);
    Find<QCheckBox>(screen, "chkPreserveCheckstacks").setChecked(stacks);
    Find<QCheckBox>(screen, "chkPreserveSessionsLogs").setChecked(logs);
    EXPECT_FALSE(Find<QCheckBox>(screen, "chkPreserveDiceRollFile").isEnabled()) << "no file is open";
    screen.show();
    if (choices == 15) SavePicture(screen, "new-session");
    QTest::mouseClick(&Find<QWidget>(screen, "cmdOK"), Qt::LeftButton);
    EXPECT_EQ(SessionRolls(table.game->stats), 0);
    EXPECT_EQ(table.State().BetAmount(2, kField), kZero);
    EXPECT_EQ(table.State().BetAmount(2, kFirstCheckStack + 3), stacks ? Currency::Dollars(7) : kZero)
        << choices;
    EXPECT_EQ(table.game->autobet.Scripts[2].ScriptLines.empty(), !scripts) << choices;
    EXPECT_EQ(PlayerRolls(table.game->stats, kAllSessions, 2) > 0, sessions) << choices;
    EXPECT_EQ(QFile::exists(QString::fromStdString(log)), logs) << choices;
  }
}

TEST(NewSession, ACancelDoesNothing) {
  ScreenTable table;
  table.game->settings.ShooterBetRule = 0;
  table.Join(2, "Ann");
  table.Roll(2, 1);
  NewSessionScreen screen(*table.game, nullptr);
  screen.show();
  QTest::keyClick(&screen, Qt::Key_Escape);
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(SessionRolls(table.game->stats), 1);
}

TEST(RunControls, CaptionsFollowTheRunAndTheThrottle) {
  ScreenTable table;
  RunControls controls;
  const auto caption = [&] {
    controls.Refresh(*table.game);
    return Find<QAbstractButton>(controls, "cmdTurboRoll").text();
  };
  EXPECT_EQ(caption(), "Start &Turbo-Roll");
  table.game->settings.RollThrottle = 12;
  EXPECT_EQ(caption(), "Start &Auto-Roll");
  table.State().AutoRollActive = true;
  EXPECT_EQ(caption(), "Stop &Auto-Roll");
  table.State().TurboRollActive = true;
  EXPECT_EQ(caption(), "Stop &Turbo-Roll");
  table.State().AutoRollActive = table.State().TurboRollActive = false;
  QSignalSpy moved(&controls, &RunControls::throttleMoved);
  controls.Refresh(*table.game);
  EXPECT_EQ(moved.count(), 0) << "showing a throttle doesn't move it";
  SavePicture(controls, "run-controls");
}

TEST(TurboPanel, ShowsRollsAndEveryBankroll) {
  ScreenTable table;
  table.game->settings.ShooterBetRule = 0;
  table.Join(2, "Ann", "1000");
  table.Join(7, "Bartholomew", "250");
  TurboPanel panel;
  panel.resize(1024, 560);
  panel.show();
  panel.Begin(*table.game);
  table.State().TurboRollActive = true;
  table.Bet(2, kField, "100");
  table.State().TurboRollActive = false;
  for (SeatState& seat : table.State().seats) seat.handling.WinHandling = seat.handling.LoseHandling = 2;
  table.Roll(2, 1);
  panel.Refresh(*table.game);
  EXPECT_EQ(Find<QLabel>(panel, "lblRolls").text(), "1");
  QStringList shown;
  for (const QLabel* label : panel.findChildren<QLabel*>())
    if (label->isVisible()) shown += label->text();
  for (const char* text : {"Turbo-Roll Active", "Ann", "1,100", "+100", "Bartholomew", "250"})
    EXPECT_TRUE(shown.contains(text)) << text;
  SavePicture(panel, "turbo-panel");
  QSignalSpy stopped(&panel, &TurboPanel::stopPressed);
  QTest::keyClick(&panel, Qt::Key_Escape);
  QTest::mouseClick(&Find<QWidget>(panel, "cmdStop"), Qt::LeftButton);
  EXPECT_EQ(stopped.count(), 2);
}

TEST(MovePanel, ButtonsTellTheirWayAndTheKeysHeld) {
  MovePanel panel;
  panel.show();
  SavePicture(panel, "move-panel");
  QSignalSpy moved(&panel, &MovePanel::move);
  QSignalSpy zoomed(&panel, &MovePanel::zoom);
  QSignalSpy turned(&panel, &MovePanel::rotate);
  QSignalSpy centred(&panel, &MovePanel::center);
  for (const char* name : {"cmdMoveUp", "cmdMoveDown", "cmdMoveLeft", "cmdMoveRight", "cmdZoomIn",
                           "cmdZoomOut", "cmdRotateCW", "cmdRotateCCW", "cmdCenter"})
    QTest::mouseClick(&Find<QWidget>(panel, name), Qt::LeftButton);
  const auto way = [&](int n) { return std::pair(moved.at(n).at(0).toInt(), moved.at(n).at(1).toInt()); };
  ASSERT_EQ(moved.count(), 4);
  EXPECT_EQ(way(0), std::pair(0, -1));
  EXPECT_EQ(way(1), std::pair(0, 1));
  EXPECT_EQ(way(2), std::pair(-1, 0));
  EXPECT_EQ(way(3), std::pair(1, 0));
  ASSERT_EQ(zoomed.count(), 2);
  EXPECT_TRUE(zoomed.at(0).at(0).toBool());
  EXPECT_EQ(zoomed.at(0).at(1).toInt(), 0);
  ASSERT_EQ(turned.count(), 2);
  EXPECT_TRUE(turned.at(0).at(0).toBool());
  EXPECT_FALSE(turned.at(1).at(0).toBool());
  EXPECT_EQ(centred.count(), 1);
  ExpectNamed(panel);
}

TEST(About, TellsVersionFoldersAndLicense) {
  ScreenTable table;
  TakePictures("about", [&] { return std::make_unique<AboutScreen>(*table.game, nullptr); });
  AboutScreen screen(*table.game, nullptr);
  EXPECT_TRUE(Find<QLabel>(screen, "lblFolders").text().contains(table.folder.path()));
  EXPECT_TRUE(Find<QLabel>(screen, "lblLicense").text().contains("General Public License"));
  AboutSplash splash;
  SavePicture(splash, "splash");
}

}  // namespace
}  // namespace tessaryn::test
