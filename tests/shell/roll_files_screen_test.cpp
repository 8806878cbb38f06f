// The dice roll files' screen, by mouse and keys, against a plain list of rolls.
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <random>

#include "dice/roll_edit.h"
#include "play/auto_roll.h"
#include "play/roll_recorder.h"
#include "shell/frame/main_window.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/roll_files_chart.h"
#include "shell/screens/roll_files_list.h"
#include "shell/screens/roll_files_window.h"
#include "shell/screens_support.h"
#include "shell/table/table_widget.h"
#include "state/show_message.h"

namespace tessaryn::test {
namespace {

using Rolls = std::vector<unsigned char>;

struct RollScreen : ScreenTable {
  std::unique_ptr<RollFilesWindow> window;
  std::string path = folder.filePath("a.rol").toStdString();

  RollScreen() {
    game->settings.ShooterBetRule = 0;
    window = std::make_unique<RollFilesWindow>(*game, nullptr);
    window->resize(760, 500);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  RollFile& File() { return game->rollFile; }
  RollList& List() { return Find<RollList>(*window, "picDiceRolls"); }
  void Write(const std::string& name, const Rolls& rolls) {
    QFile file(QString::fromStdString(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(reinterpret_cast<const char*>(rolls.data()), static_cast<qint64>(rolls.size()));
  }
  void Open(const Rolls& rolls) {
    Write(path, rolls);
    QueuedFileNames().push_back(path);
    Trigger("mnuNewOpen");
    ASSERT_TRUE(IsRollFileOpen(File()));
    List().setFocus();
  }
  Rolls OnDisk(const std::string& name) {
    FlushRollFile(File());
    QFile file(QString::fromStdString(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
  }
  void Trigger(const char* name) { Find<QAction>(*window, name).trigger(); }
  void Press(int key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(&List(), static_cast<Qt::Key>(key), with);
  }
  void ClickRoll(std::int64_t roll, Qt::KeyboardModifiers with = {}) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, with, List().CellOf(roll).center());
  }
};

Rolls SomeRolls(std::size_t count, unsigned seed = 3) {
  std::mt19937 random(seed);
  Rolls rolls(count);
  for (auto& roll : rolls)
    roll = RollByte(static_cast<int>(random() % 6) + 1, static_cast<int>(random() % 6) + 1);
  return rolls;
}

TEST(RollFilesScreen, ButtonsAndKeysTypeOverAndInsert) {
  RollScreen screen;
  screen.Open(SomeRolls(50));
  Rolls model = SomeRolls(50);
  for (int button = 0; button < 36; ++button) {
    Click(*screen.window, QString("cmdRollNumbers%1").arg(button));
    model[static_cast<std::size_t>(button)] = RollByte(ButtonDie1(button), ButtonDie2(button));
  }
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  EXPECT_EQ(screen.File().RollFileCursor, 37);
  Click(*screen.window, "optInsertRolls1");
  screen.ClickRoll(5);
  EXPECT_EQ(screen.File().RollFileCursor, 5);
  screen.List().setFocus();
  QTest::keyClicks(&screen.List(), "34");
  model.insert(model.begin() + 4, RollByte(3, 4));
  // A face that is taken back is none; digits beyond 6 are none either.
  QTest::keyClicks(&screen.List(), "2");
  EXPECT_EQ(screen.List().TypedDie(), 2);
  screen.Press(Qt::Key_Backspace);
  QTest::keyClicks(&screen.List(), "66");
  model.insert(model.begin() + 5, RollByte(6, 6));
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  Click(*screen.window, "cmdRandomNum");
  EXPECT_EQ(RollFileLength(screen.File()), static_cast<int>(model.size()) + 1);
  screen.Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  // Behind the last roll either mode adds.
  screen.Press(Qt::Key_End);
  QTest::keyClicks(&screen.List(), "11");
  model.push_back(RollByte(1, 1));
  EXPECT_EQ(screen.OnDisk(screen.path), model);
}

TEST(RollFilesScreen, SelectionsAreCutCopiedPastedDeletedAndTakenBack) {
  QGuiApplication::clipboard()->clear();
  RollScreen screen;
  const Rolls rolls = SomeRolls(40);
  screen.Open(rolls);
  screen.ClickRoll(10);
  screen.ClickRoll(14, Qt::ShiftModifier);
  EXPECT_TRUE(Find<QLabel>(*screen.window, "lblRollCount").text().contains("5 selected"));
  screen.Press(Qt::Key_X, Qt::ControlModifier);
  Rolls model = rolls;
  model.erase(model.begin() + 9, model.begin() + 14);
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  EXPECT_EQ(screen.File().RollFileCursor, 10);
  screen.Press(Qt::Key_Home);
  screen.Press(Qt::Key_V, Qt::ControlModifier);
  model.insert(model.begin(), rolls.begin() + 9, rolls.begin() + 14);
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  screen.Press(Qt::Key_Home);
  for (int n = 0; n < 3; ++n) screen.Press(Qt::Key_Down, Qt::ShiftModifier);
  screen.Press(Qt::Key_Delete);
  model.erase(model.begin(), model.begin() + 4);
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  screen.Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(SelectedRolls(screen.File()).Count, static_cast<int>(model.size()));
  screen.Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(screen.OnDisk(screen.game->ownFolder + kRollCopyFile), model);
  for (int n = 0; n < 3; ++n) screen.Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(screen.OnDisk(screen.path), rolls);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST(RollFilesScreen, FilesInAndOut) {
  RollScreen screen;
  const Rolls rolls = SomeRolls(30);
  screen.Open(rolls);
  const std::string out = screen.folder.filePath("out.rol").toStdString();
  const std::string text = screen.folder.filePath("out.txt").toStdString();
  screen.ClickRoll(3);
  screen.ClickRoll(4, Qt::ShiftModifier);
  QueuedFileNames().push_back(out);
  screen.Trigger("mnuCopyToRollFile");
  EXPECT_EQ(screen.OnDisk(out), Rolls(rolls.begin() + 2, rolls.begin() + 4));
  // The second time it is asked whether to copy over it; the open file is refused in any case.
  screen.host.answers.No();
  QueuedFileNames() = {out, ""};
  screen.Trigger("mnuCopyToRollFile");
  EXPECT_EQ(screen.game->box.MsgId, Msg::kAskCopyOver);
  screen.host.answers.Ok();
  QueuedFileNames() = {screen.path, ""};
  screen.Trigger("mnuCopyToRollFile");
  EXPECT_EQ(screen.OnDisk(screen.path), rolls);
  EXPECT_TRUE(screen.host.answers.Empty());
  TypeInto(*screen.window, "txtDiceRollOutputFormat", "roll#;die1-die2");
  for (const bool renumber : {false, true}) {
    renumber ? screen.host.answers.Yes() : screen.host.answers.No();
    QueuedFileNames() = {screen.folder.filePath(renumber ? "two.txt" : "out.txt").toStdString()};
    screen.Trigger("mnuCopyToTextFile");
    const Rolls bytes = screen.OnDisk(renumber ? screen.folder.filePath("two.txt").toStdString() : text);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()).substr(0, 2), renumber ? "1;" : "3;");
  }
  // A format without dice is refused before a name is asked for.
  TypeInto(*screen.window, "txtDiceRollOutputFormat", "roll#");
  screen.host.answers.Ok();
  screen.Trigger("mnuCopyToTextFile");
  EXPECT_TRUE(screen.host.answers.Empty());
  screen.Write(text, {'1', ' ', '2', 'x', '3', '7', '4', '5'});
  QueuedFileNames() = {text};
  screen.List().setFocus();
  screen.Press(Qt::Key_Home);
  screen.Trigger("mnuPasteFromTextFile");
  Rolls model = rolls;
  model.insert(model.begin(), {RollByte(1, 2), RollByte(3, 4)});
  EXPECT_EQ(screen.OnDisk(screen.path), model);
  screen.Press(Qt::Key_End);
  QueuedFileNames() = {out};
  screen.Trigger("mnuPasteFromRollFile");
  model.insert(model.end(), rolls.begin() + 2, rolls.begin() + 4);
  EXPECT_EQ(screen.OnDisk(screen.path), model);
}

TEST(RollFilesScreen, TheRecorderRecordsAndPlaysAndItsEndAsks) {
  RollScreen screen;
  screen.Join(4, "Ann");
  // Without a file both states are refused in words.
  for (const char* button : {"picRecorder1", "picRecorder2", "cmdRollNumbers7"}) {
    screen.host.answers.Ok();
    Click(*screen.window, button);
    EXPECT_TRUE(screen.host.answers.Empty()) << button;
    EXPECT_EQ(screen.File().RecorderState, kRecorderOff);
  }
  screen.Open({});
  Click(*screen.window, "picRecorder1");
  EXPECT_EQ(screen.File().RecorderState, kRecorderRecord);
  screen.Roll(3, 4);
  screen.Roll(6, 5);
  screen.window->Refresh();
  EXPECT_EQ(Find<QLineEdit>(*screen.window, "txtNextRollNum").text(), "3");
  EXPECT_EQ(screen.OnDisk(screen.path), (Rolls{RollByte(3, 4), RollByte(6, 5)}));
  screen.host.answers.Yes();
  StopRollFileAndAsk(*screen.game);
  EXPECT_EQ(screen.File().RecorderState, kRecorderPlayback);
  EXPECT_EQ(screen.File().RollFileCursor, 1);
  TypeInto(*screen.window, "txtNextRollNum", "2");
  QTest::keyClick(&Find<QLineEdit>(*screen.window, "txtNextRollNum"), Qt::Key_Return);
  RollDice(*screen.game);
  EXPECT_EQ(std::pair(screen.State().Die1, screen.State().Die2), std::pair(6, 5));
  Click(*screen.window, "picRecorder0");
  EXPECT_EQ(screen.File().RecorderState, kRecorderOff);
  screen.Trigger("mnuClose");
  EXPECT_FALSE(IsRollFileOpen(screen.File()));
}

TEST(RollFilesScreen, ARunIsAskedToStopBeforeAnythingIsChanged) {
  RollScreen screen;
  const Rolls rolls = SomeRolls(9);
  screen.Open(rolls);
  screen.State().AutoRollActive = true;
  for (const char* name : {"cmdRollNumbers3", "cmdRandomNum", "picRecorder2"}) {
    screen.host.answers.No();
    Click(*screen.window, name);
    EXPECT_TRUE(screen.host.answers.Empty()) << name;
  }
  for (const char* name : {"mnuCut", "mnuDelete", "mnuPaste", "mnuUndo", "mnuClose", "mnuNewOpen"}) {
    screen.host.answers.No();
    screen.Trigger(name);
    EXPECT_TRUE(screen.host.answers.Empty()) << name;
  }
  screen.State().AutoRollActive = false;
  EXPECT_EQ(screen.OnDisk(screen.path), rolls);
  EXPECT_EQ(screen.File().RecorderState, kRecorderOff);
}

TEST(RollFilesScreen, TheTablesCommandsOpenItAndEscapeStopsTheFile) {
  ScreenTable table;
  RollFile& file = table.game->rollFile;
  MainWindow window(*table.game, table.host);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (const char* command : {"mnuDiceRollFiles", "mnuPercentageDiceEditor"}) {
    window.Command(command)->trigger();
    EXPECT_TRUE(window.Command(command)->isChecked()) << command;
    window.Command(command)->trigger();
    EXPECT_FALSE(window.Command(command)->isChecked()) << command;
  }
  ASSERT_EQ(OpenRollFile(file, table.folder.filePath("b.rol").toStdString()), "");
  ASSERT_EQ(SetRecorder(*table.game, kRecorderPlayback), "");
  table.host.answers.Cancel();
  table.host.answers.No();
  for (const int state : {kRecorderPlayback, kRecorderOff}) {
    QTest::keyClick(&window.Table(), Qt::Key_Escape);
    EXPECT_EQ(file.RecorderState, state);
  }
  EXPECT_TRUE(table.host.answers.Empty() && IsRollFileOpen(file));
}

TEST(RollFilesScreen, TenMillionRollsScrollAtOnceAndAreCountedInTheBackground) {
  RollScreen screen;
  const Rolls rolls = SomeRolls(10'000'000);
  screen.Open(rolls);
  QElapsedTimer clock;
  clock.start();
  auto& bar = Find<QScrollBar>(screen.List(), "vsbDiceRolls");
  for (int n = 1; n <= 100; ++n) {
    bar.setValue(bar.maximum() / 100 * n);
    screen.List().viewport()->repaint();
  }
  EXPECT_LT(clock.elapsed(), 4000);
  screen.Press(Qt::Key_End);
  EXPECT_FALSE(screen.List().CellOf(10'000'001).isEmpty());
  auto& chart = Find<RollChartView>(*screen.window, "picDistribution");
  EXPECT_TRUE(QTest::qWaitFor([&] { return chart.Chart().totals.Rolls == 10'000'000; }, 10'000));
  std::int64_t sevens = 0;
  for (const unsigned char roll : rolls) sevens += RollByteDie1(roll) + RollByteDie2(roll) == 7;
  EXPECT_EQ(chart.Chart().totals.Total[7], sevens);
  clock.restart();
  for (int n = 0; n < 100; ++n) screen.window->Refresh();
  EXPECT_LT(clock.elapsed(), 500);
}

TEST(RollFilesScreen, EverythingIsNamedAndFitsASmallScreenAndPrints) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    RollScreen screen;
    screen.Open(SomeRolls(300));
    screen.window->resize(1000, 540);
    Find<QAction>(*screen.window, "mnuHighlightSevens").trigger();
    Find<QAction>(*screen.window, "mnuFontSize10").trigger();
    const std::unique_ptr<RollFilesWindow> later = std::make_unique<RollFilesWindow>(*screen.game, nullptr);
    auto& list = Find<RollList>(*later, screen.List().objectName());
    EXPECT_TRUE(list.Highlight() == 1 && list.FontSize() == 10) << "kept with the game";
    screen.ClickRoll(20);
    screen.ClickRoll(31, Qt::ShiftModifier);
    EXPECT_LE(screen.window->minimumSizeHint().width(), 440);
    EXPECT_LE(screen.window->minimumSizeHint().height(), 400);
    ExpectNamed(*screen.window);
    SavePicture(*screen.window, dark ? "roll-files-dark" : "roll-files-light");
    const auto rows = screen.window->TakeRows();
    ASSERT_EQ(rows->Count(), 13);
    EXPECT_EQ(rows->Row(12)[0].left(2), "31");
    EXPECT_EQ(rows->Row(1)[0].left(2), "20");
    screen.window->resize(440, 300);
    QApplication::processEvents();
    SavePicture(*screen.window, dark ? "roll-files-docked-dark" : "roll-files-docked-light");
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
