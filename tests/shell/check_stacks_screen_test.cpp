// The CheckStacks editor under mouse and keyboard, beside a plain list of what was done.
#include "shell/screens/check_stacks_screen.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <random>

#include "shell/screens/check_stacks_list.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

struct OpenStacks : ScreenTable {
  CheckStacksScreen screen{*game, nullptr};

  OpenStacks() {
    Join(3, "Ann");
    Join(5, "Bo");
    screen.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
    screen.Refresh();
    View().setFocus();
  }
  CheckStackView& View() { return screen.View(); }
  QModelIndex At(int stack, int column) { return View().model()->index(stack, column); }
  void Go(int stack, int column) { View().setCurrentIndex(At(stack, column)); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&View(), key, modifiers); }
  QLineEdit* Box() { return View().findChild<QLineEdit*>("txtCheckStack"); }
  void Type(const char* text) {
    QTest::keyClick(&View(), text[0]);
    ASSERT_NE(Box(), nullptr);
    QTest::keyClicks(Box(), text + 1);
    QTest::keyClick(Box(), Qt::Key_Return);
    QTest::qWait(1);
  }
  QString Shown(int stack, int column) { return At(stack, column).data().toString(); }
  void Choose(const QString& name) { Find<QAction>(screen, name).trigger(); }
  std::string Value(int stack, int seat = 5) { return PlainMoney(CheckStackValue(*game, seat, stack)); }
  std::string Name(int stack, int seat = 5) { return CheckStackNameOf(*game, seat, stack); }
  std::vector<std::string> All() {
    std::vector<std::string> all;
    for (int stack = 0; stack < kCheckStacks; ++stack) all.push_back(Name(stack) + "=" + Value(stack));
    return all;
  }
};

// Any edits, then all of them back and forth again: each state comes again as it was.
TEST(CheckStacksScreen, UndoAndRedoWalkThroughEveryState) {
  std::mt19937 random(11);
  const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  OpenStacks table;
  std::vector<std::vector<std::string>> states{table.All()};
  for (int n = 0; n < 150; ++n) {
    const int column = below(2);
    table.Go(below(100), column);
    switch (below(7)) {
      case 0:
      case 1:
        table.Type(column == kStackName ? "unit" : "-12.5");
        break;
      case 2:
        table.Key(Qt::Key_X, Qt::ControlModifier);
        break;
      case 3:
        QGuiApplication::clipboard()->setText("7\n1,250.25\r\n-3");
        table.Key(Qt::Key_V, Qt::ControlModifier);
        break;
      case 4:
        QGuiApplication::clipboard()->setText("low\t5\nhigh\t\n");
        table.Go(table.View().currentIndex().row(), kStackName);
        table.Key(Qt::Key_V, Qt::ControlModifier);
        break;
      case 5:
        table.Key(Qt::Key_Delete);
        break;
      default:
        table.host.answers.Yes();
        table.Choose(QStringList{"mnuDeleteAll", "mnuDeleteAllValues", "mnuDeleteAllNames"}[below(3)]);
    }
    if (table.All() != states.back()) states.push_back(table.All());
  }
  ASSERT_GT(states.size(), 60u);
  for (std::size_t at = states.size() - 1; at-- > 0;) {
    table.Key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(table.All(), states[at]) << at;
  }
  table.Key(Qt::Key_Z, Qt::ControlModifier);
  for (std::size_t at = 1; at < states.size(); ++at) {
    at % 2 == 0 ? table.Key(Qt::Key_Y, Qt::ControlModifier) : table.Choose("mnuRedo");
    ASSERT_EQ(table.All(), states[at]) << at;
  }
  EXPECT_TRUE(table.host.answers.Empty());
}

TEST(CheckStacksScreen, FollowsWhatScriptsDoAndUndoLeavesThatAlone) {
  OpenStacks table;
  table.Go(2, kStackValue);
  table.Type("10");
  table.Go(3, kStackValue);
  table.Type("20");
  EXPECT_EQ(Find<QLabel>(table.screen, "lblVisibleValue1").text(), "10");
  SetCheckStackValue(*table.game, 5, 2, ParseMoney("1234.5"));
  SetCheckStackName(*table.game, 5, 2, "profit");
  table.screen.Refresh();
  EXPECT_EQ(table.Shown(2, kStackValue), "1,234.50");
  EXPECT_EQ(Find<QLabel>(table.screen, "lblVisibleValue1").text(), "1,234.50");
  EXPECT_EQ(Find<QLabel>(table.screen, "lblVisibleName1").text(), "#2 profit");
  table.Choose("mnuUndo");
  table.Choose("mnuUndo");
  EXPECT_EQ(table.Value(3), "0");
  EXPECT_EQ(table.Value(2), "1234.5") << "a script has set it since";
  EXPECT_EQ(table.Shown(3, kStackValue), "") << "a zero is hidden";
  table.Choose("mnuDisplayZero");
  EXPECT_EQ(table.Shown(3, kStackValue), "0");
  // Another player's undo is none of this one's.
  LeaveTable(*table.game, 5);
  table.Join(5, "Cleo");
  table.Choose("mnuRedo");
  EXPECT_EQ(table.Value(3), "0");
}

TEST(CheckStacksScreen, ValuesAreKeptWithinTheirLimitsAndBadOnesRefused) {
  OpenStacks table;
  table.Go(7, kStackValue);
  table.host.answers.Ok();
  table.Type("123456789");
  EXPECT_EQ(table.Value(7), "9999999.9999");
  EXPECT_TRUE(table.host.answers.Empty()) << "the limit is told";
  table.Type("-4x.25y");
  EXPECT_EQ(table.Value(7), "-4.25") << "letters are no keys of a value";
  const auto before = table.All();
  QGuiApplication::clipboard()->setText("1\n2\nthree\n4");
  table.host.answers.Ok();
  table.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(table.All(), before) << "all of a paste or nothing";
  table.Go(98, kStackValue);
  QGuiApplication::clipboard()->setText("1\n2\n3");
  table.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table.Value(99), "2") << "what is beyond the last is left out";
  table.Key(Qt::Key_Down);
  table.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "2");
  table.Go(1, kStackName);
  table.Key(Qt::Key_Return);
  ASSERT_NE(table.Box(), nullptr) << "Enter edits";
  QTest::keyClick(table.Box(), Qt::Key_Escape);
}

TEST(CheckStacksScreen, FourDifferentStacksAreSetByKeyboard) {
  OpenStacks table;
  const auto& visible = table.State().seats[5].VisibleStacks;
  const auto set = [&](const std::array<const char*, 4>& numbers) {
    table.Choose("mnuSetStacks");
    for (int n = 0; n < 4; ++n)
      TypeInto(table.screen, QString("txtStackNum%1").arg(n), numbers[static_cast<std::size_t>(n)]);
    QTest::keyClick(&Find<QWidget>(table.screen, "txtStackNum3"), Qt::Key_Return);
  };
  set({"0", "99", "5", "6"});
  EXPECT_EQ(std::vector<int>(std::begin(visible), std::end(visible)), (std::vector<int>{0, 99, 5, 6}));
  EXPECT_FALSE(Find<QWidget>(table.screen, "picSetStacks").isVisible());
  EXPECT_EQ(Find<QLabel>(table.screen, "lblVisibleName1").text().trimmed(), "#99");
  table.host.answers.Ok();
  set({"1", "2", "3", "1"});
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(visible[0], 0) << "refused, nothing changed";
  EXPECT_TRUE(Find<QWidget>(table.screen, "picSetStacks").isVisible());
  QTest::keyClick(&Find<QWidget>(table.screen, "txtStackNum3"), Qt::Key_Escape);
  EXPECT_FALSE(Find<QWidget>(table.screen, "picSetStacks").isVisible());
}

TEST(CheckStacksScreen, AnEditBehindARunAsksAndChangesNothing) {
  OpenStacks table;
  table.Go(1, kStackValue);
  table.State().AutoRollActive = table.State().TurboRollActive = table.State().RollInProgress = true;
  for (const Qt::Key key : {Qt::Key_5, Qt::Key_Delete, Qt::Key_Return}) {
    table.host.answers.No();
    table.Key(key);
    EXPECT_TRUE(table.host.answers.Empty()) << key;
    EXPECT_EQ(table.Box(), nullptr);
  }
  table.State().AutoRollActive = table.State().TurboRollActive = false;
  table.Key(Qt::Key_5);
  EXPECT_EQ(table.Box(), nullptr) << "a roll is under way";
  table.State().RollInProgress = false;
}

TEST(CheckStacksScreen, ShowsThePlayerChosenAndPrintsARange) {
  OpenStacks table;
  SetCheckStackName(*table.game, 3, 12, "Ann's, \"own\"");
  auto& players = Find<QComboBox>(table.screen, "cmbPlayer");
  EXPECT_EQ(players.currentText(), "Bo");
  QTest::keyClick(&players, Qt::Key_Up);
  EXPECT_EQ(table.game->screen.CheckStacks.CheckStackSeat, 3);
  EXPECT_EQ(table.Shown(12, kStackName), "Ann's, \"own\"");
  table.host.answers.Type("14", "12");
  EXPECT_TRUE(table.screen.ReadyToPrint());
  const QList<QStringList> rows = table.screen.Rows();
  ASSERT_EQ(rows.size(), 4);
  EXPECT_EQ(rows[1], (QStringList{"12", "Ann's, \"own\"", ""}));
  EXPECT_EQ(table.screen.Rows().size(), 101) << "the range is of one print";
  table.host.answers.Cancel();
  EXPECT_FALSE(table.screen.ReadyToPrint());
  EXPECT_EQ(table.screen.PrintHeadings().mid(2), (QStringList{"Game file:  untitled", "Player:  Ann"}));
  ExpectNamed(table.screen);
}

TEST(CheckStacksScreenLooks, PicturesInLightAndDark) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    OpenStacks table;
    const char* const names[] = {"step", "target", "", "losses in a row",
                                 "a name that is far too long for its place"};
    for (int stack = 0; stack < 5; ++stack) {
      SetCheckStackName(*table.game, 5, stack, names[stack]);
      SetCheckStackValue(*table.game, 5, stack, ParseMoney("-1250.5") + Currency::Dollars(900 * stack));
    }
    SetCheckStackValue(*table.game, 5, 3, ParseMoney("9999999.9999"));
    table.screen.Refresh();
    QTest::qWait(5);
    SavePicture(table.screen, QString("stacks") + (dark ? "-dark" : "-light"));
    EXPECT_LE(table.screen.minimumSizeHint().width(), 360);
    table.Choose("mnuSetStacks");
    QTest::qWait(5);
    SavePicture(table.screen, QString("stacks-set") + (dark ? "-dark" : "-light"));
    for (const int size : {16, 9}) {
      table.Choose(QString("mnuFontSize%1").arg(size));
      EXPECT_EQ(table.View().horizontalScrollBar()->maximum(), 0) << "nothing is cut";
    }
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
