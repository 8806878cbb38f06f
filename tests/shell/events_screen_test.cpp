// The Events Log's window, worked by mouse and keys: it shows the file's lines whatever is done to it.
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "shell/screens/events_log_screen.h"
#include "shell/screens/events_log_view.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens_support.h"
#include "stats/events_log.h"

namespace tessaryn::test {
namespace {

QStringList LinesOf(const std::string& path) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
  lines.removeLast();
  return lines;
}

// A log of many lines that tell their number.
std::string LongLog(const QTemporaryDir& folder, int lines) {
  const QString path = folder.filePath("old evening.txt");
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  for (int line = 1; line <= lines; ++line)
    file.write(line % 10 == 0 ? QByteArray("      Ann won $5 on Field\n")
                              : "line " + QByteArray::number(line) + "\n");
  return path.toStdString();
}

struct OpenLogScreen : ScreenTable {
  std::unique_ptr<EventsLogScreen> screen;

  OpenLogScreen() {
    game->events.RecordEventsActive = true;
    game->settings.ShooterBetRule = 0;
    game->settings.MessageMask = 0;
    Join(3, "Ann");
    Join(5, "Bo");
    Bet(3, kPassLine, "10");
    Bet(5, kField, "5");
    for (int roll = 0; roll < 12; ++roll) {
      if (State().BetAmount(5, kField) == kZero) Bet(5, kField, "5");
      Roll(1 + roll % 6, 2);
    }
    screen = std::make_unique<EventsLogScreen>(*game, nullptr);
    host.changed = [this](Game&, Change) { screen->Refresh(); };
    screen->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  ~OpenLogScreen() { host.changed = nullptr; }

  EventsLogView& View() { return screen->View(); }
  // Waits for the index.
  void Settle() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsLogIndexComplete(View().Index()); }, 300'000));
    QTest::qWait(1);
  }
  void Choose(const char* name) { Find<QAction>(*screen, name).trigger(); }
  // What is shown is what the file holds there.
  void ExpectShown() {
    const QStringList shown = View().ShownLines();
    EXPECT_EQ(shown, LinesOf(View().Index().Path).mid(View().TopRow() - 1, shown.size()));
    EXPECT_FALSE(shown.isEmpty());
  }
};

TEST(EventsLogScreen, ShowsTheLogAsItIsWritten) {
  OpenLogScreen table;
  EventsLog& log = table.game->events;
  for (const bool onTop : {true, false}) {
    log.KeepLatestRollOnTop = onTop;
    for (int roll = 0; roll < 8; ++roll) {
      table.Roll(6, 6);
      table.screen->Refresh();
      EXPECT_TRUE(!onTop || table.View().ShownLines().first().startsWith(" Roll "));
      table.ExpectShown();
    }
  }
  const QStringList lines = LinesOf(EventsLogPath(*table.game));
  EXPECT_EQ(table.View().Rows(), lines.size());
  table.View().setFocus();
  QTest::keyClick(&table.View(), Qt::Key_Home);
  EXPECT_EQ(log.EventsLogTopLine, 1) << "the view is kept with the log";
  QTest::keyClick(&table.View(), Qt::Key_PageDown);
  QTest::keyClick(&table.View(), Qt::Key_Up);
  EXPECT_EQ(log.EventsLogTopLine, table.View().RowsShown());
  table.ExpectShown();
  QTest::keyClick(&table.View(), Qt::Key_End);
  EXPECT_EQ(table.View().ShownLines().last(), lines.last());
  // Follow keeps the end, until the user goes elsewhere.
  table.Choose("mnuFollow");
  table.Roll(3, 4);
  table.screen->Refresh();
  EXPECT_EQ(table.View().ShownLines().last(), LinesOf(EventsLogPath(*table.game)).last());
  QTest::keyClick(&table.View(), Qt::Key_Home);
  EXPECT_FALSE(Find<QAction>(*table.screen, "mnuFollow").isChecked());
  std::unique_ptr<RowSource> rows = table.screen->TakeRows();
  const QStringList all = LinesOf(EventsLogPath(*table.game));
  ASSERT_EQ(rows->Count(), all.size() + 1);
  for (qint64 n = 1; n <= all.size(); ++n) ASSERT_EQ(rows->Row(n), QStringList{all[n - 1]});
}

TEST(EventsLogScreen, OptionsAreThoseOfTheLog) {
  OpenLogScreen table;
  EventsLog& log = table.game->events;
  const struct {
    const char* name;
    bool* flag;
  } kRows[] = {{"mnuRecordEventsActive", &log.RecordEventsActive},
               {"mnuRecordRolls", &log.RecordRolls},
               {"mnuRecordBetChanges", &log.RecordBetChanges},
               {"mnuRecordBetsWon", &log.RecordBetsWon},
               {"mnuRecordBetsLost", &log.RecordBetsLost},
               {"mnuRecordCheckStackChanges", &log.RecordCheckStackChanges},
               {"mnuRecordPassesMisses", &log.RecordPassesMisses},
               {"mnuRecordShooterChanges", &log.RecordShooterChanges},
               {"mnuRecordBankrollChanges", &log.RecordBankrollChanges},
               {"mnuClearLog", &log.ClearLogOnNewSession},
               {"mnuKeepLatestRollOnTop", &log.KeepLatestRollOnTop}};
  for (const auto& row : kRows) {
    const bool before = *row.flag;
    table.Choose(row.name);
    EXPECT_NE(*row.flag, before) << row.name;
    EXPECT_EQ(Find<QAction>(*table.screen, row.name).isChecked(), *row.flag) << row.name;
  }
  table.Choose("mnuDeselectAllEvents");
  EXPECT_FALSE(log.RecordRolls || log.RecordBankrollChanges);
  table.Choose("mnuRecordAll");
  EXPECT_TRUE(log.RecordRolls && log.RecordBankrollChanges);
  auto& record = Find<QPushButton>(*table.screen, "cmdRecordEvents");
  EXPECT_EQ(record.text(), "In&active");
  QTest::mouseClick(&record, Qt::LeftButton);
  EXPECT_TRUE(log.RecordEventsActive);
  const int height = table.View().fontMetrics().height();
  table.Choose("mnuFontSize2");
  table.Choose("mnuFontItalic");
  EXPECT_GT(table.View().fontMetrics().height(), height);
  EventsLogScreen again(*table.game, nullptr);
  EXPECT_TRUE(again.View().font().italic()) << "kept with the game";
}

TEST(EventsLogScreen, FindsForwardAndBackAndCanBeStopped) {
  OpenLogScreen table;
  table.screen->LookAt(LongLog(table.folder, 400'000));
  EXPECT_FALSE(IsLogIndexComplete(table.View().Index())) << "shown before it is read";
  table.ExpectShown();
  const auto find = [&](const char* button) {
    QTest::mouseClick(&Find<QToolButton>(*table.screen, button), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Find<QToolButton>(*table.screen, "cmdStopFind").isVisible(); },
                                20'000));
  };
  table.Choose("mnuFind");
  TypeInto(*table.screen, "txtFind", "LINE 399999");
  find("cmdFindNext");
  table.Settle();
  EXPECT_EQ(table.View().ShownLines().first(), "line 399999");
  EXPECT_EQ(table.View().TopRow(), 399'999);
  TypeInto(*table.screen, "txtFind", "line 5");
  find("cmdFindPrevious");
  EXPECT_EQ(table.View().ShownLines().first(), "line 59999");
  TypeInto(*table.screen, "txtFind", "nowhere");
  table.host.answers.Ok();
  find("cmdFindNext");
  EXPECT_TRUE(table.host.answers.Empty()) << "told that it isn't there";
  EXPECT_EQ(table.View().TopRow(), 59'999);
  QTest::keyClick(&Find<QLineEdit>(*table.screen, "txtFind"), Qt::Key_Return);
  QTest::keyClick(&Find<QLineEdit>(*table.screen, "txtFind"), Qt::Key_Escape);
  EXPECT_FALSE(Find<QToolButton>(*table.screen, "cmdStopFind").isVisible());
  QTest::qWait(20);
  EXPECT_EQ(table.View().TopRow(), 59'999) << "stopped without a word";
  for (int notch = 0; notch < 5; ++notch) {
    QWheelEvent wheel(QPointF(20, 20), QPointF(20, 20), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(table.View().viewport(), &wheel);
  }
  EXPECT_EQ(table.View().TopRow(), 59'999 + 15);
  table.View().verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
  EXPECT_EQ(table.View().ShownLines().last(), "      Ann won $5 on Field");
}

TEST(EventsLogScreen, AFilterShowsTheLinesOfAPlayerOrKind) {
  OpenLogScreen table;
  const QStringList all = LinesOf(EventsLogPath(*table.game));
  const auto choose = [&](const char* box, const QString& entry) {
    auto& combo = Find<QComboBox>(*table.screen, box);
    combo.setCurrentText(entry);
    emit combo.activated(combo.currentIndex());
    table.Settle();
  };
  choose("cmbKind", "Wins and losses");
  choose("cmbPlayer", "Bo");
  QStringList expected;
  for (const QString& line : all)
    if (line.startsWith("      Bo won") || line.startsWith("      Bo lost")) expected.append(line);
  ASSERT_GT(expected.size(), 3);
  EXPECT_EQ(table.View().Rows(), expected.size());
  QTest::keyClick(&table.View(), Qt::Key_Home);
  EXPECT_EQ(table.View().ShownLines(), expected.mid(0, table.View().RowsShown() + 1));
  table.Bet(5, kField, "5");
  table.Roll(3, 4);
  table.screen->Refresh();
  table.Settle();
  EXPECT_EQ(table.View().Rows(), expected.size() + 1);
  EXPECT_TRUE(table.View().ShownLines().last().startsWith("      Bo lost $")) << "the latest is seen";
}

TEST(EventsLogScreen, AnotherLogIsLookedAtWithoutDisturbingTheTables) {
  OpenLogScreen table;
  Game& game = *table.game;
  const std::string own = EventsLogPath(game);
  const std::string other = LongLog(table.folder, 1'000);
  QueuedFileNames().push_back(other);
  table.Choose("mnuLookAt");
  table.Settle();
  EXPECT_EQ(table.View().Rows(), 1'000);
  EXPECT_EQ(EventsLogPath(game), own);
  const qsizetype before = LinesOf(own).size();
  table.Roll(3, 4);
  table.screen->Refresh();
  EXPECT_GT(LinesOf(own).size(), before);
  EXPECT_EQ(LinesOf(other).size(), 1'000);
  EXPECT_EQ(table.View().TopRow(), 1);
  table.Choose("mnuBackToLog");
  EXPECT_EQ(table.View().Rows(), LinesOf(own).size());
  // The told commands change the table's own log.
  QueuedFileNames().push_back(other);
  table.Choose("mnuOpen");
  EXPECT_EQ(EventsLogPath(game), other);
  EXPECT_EQ(table.screen->windowTitle(), "Events Log (old evening.txt)");
  table.Roll(3, 4);
  table.screen->Refresh();
  EXPECT_GT(table.View().Rows(), 1'000);
  const std::string copy = table.folder.filePath("copy.txt").toStdString();
  QueuedFileNames().push_back(copy);
  table.Choose("mnuSaveAs");
  EXPECT_EQ(EventsLogPath(game), copy);
  EXPECT_EQ(LinesOf(copy), LinesOf(other));
  table.Choose("mnuNew");
  EXPECT_EQ(table.View().Rows(), 0);
  // The default one is kept when the user wants to.
  game.events.Path.clear();
  const QStringList kept = LinesOf(own);
  const std::string name = table.folder.filePath("kept.txt").toStdString();
  table.host.answers.Yes();
  QueuedFileNames().push_back(name);
  table.Choose("mnuNew");
  EXPECT_EQ(LinesOf(name), kept);
  EXPECT_EQ(EventsLogPath(game), own);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(own)));
  EXPECT_EQ(table.screen->windowTitle(), "Events Log");
}

TEST(EventsLogScreen, ALargeLogIsSavedBesideTheWindow) {
  OpenLogScreen table;
  Game& game = *table.game;
  const std::string large = LongLog(table.folder, 4'000'000);
  std::string error;
  ASSERT_TRUE(OpenEventsLog(game, large, error)) << error;
  auto& command = Find<QAction>(*table.screen, "mnuSaveAs");
  for (const bool giveUp : {true, false}) {
    const QString copy = table.folder.filePath(giveUp ? "given up.txt" : "saved.txt");
    QueuedFileNames().push_back(copy.toStdString());
    QElapsedTimer clock;
    clock.start();
    command.trigger();
    EXPECT_LT(clock.elapsed(), 200);
    EXPECT_FALSE(command.isEnabled());
    table.Roll(3, 4);
    if (giveUp) Find<QPushButton>(*table.screen, "cmdCancelSaving").click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return command.isEnabled(); }, 60'000));
    const bool saved = EventsLogPath(game) == copy.toStdString();
    EXPECT_EQ(saved, QFile::exists(copy));
    EXPECT_TRUE(saved || giveUp);
    if (saved) {
      EXPECT_EQ(QFileInfo(copy).size(), QFileInfo(QString::fromStdString(large)).size());
    }
    if (saved) break;
  }
  const QStringList left = QDir(table.folder.path()).entryList(QDir::Files | QDir::Hidden);
  EXPECT_EQ(left.filter("saved.txt").size() + left.filter("given up").size(), 1) << "nothing half-written";
}

// TESSARYN_LOG_BYTES=5000000000 tries it with what an evening at full speed writes.
TEST(EventsLogScreen, ALargeLogOpensAndScrollsAtOnce) {
  const qint64 bytes = std::max<qint64>(qEnvironmentVariable("TESSARYN_LOG_BYTES").toLongLong(), 50'000'000);
  OpenLogScreen table;
  QByteArray block;
  for (int roll = 0; block.size() < 1'000'000; ++roll)
    block += " Roll #" + QByteArray::number(roll) +
             ":  7 (3.4) from RNG #1\n    Wins/losses:\n      Ann lost $5 on Field\n";
  const std::string path = table.folder.filePath("large.txt").toStdString();
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  while (file.size() < bytes) ASSERT_EQ(file.write(block), block.size());
  file.close();
  QElapsedTimer clock;
  const auto shown = [&](const char* what, auto&& act) {
    clock.start();
    act();
    table.screen->repaint();
    QCoreApplication::processEvents();
    const qint64 took = clock.elapsed();
    EXPECT_LT(took, 500) << what;
    EXPECT_FALSE(table.View().ShownLines().isEmpty());
    return took;
  };
  const qint64 opened = shown("opened", [&] { table.screen->LookAt(path); });
  QElapsedTimer whole;
  whole.start();
  const auto key = [&](Qt::Key pressed) {
    return [&table, pressed] { QTest::keyClick(&table.View(), pressed); };
  };
  const qint64 toEnd = shown("to the end", key(Qt::Key_End));
  qint64 slowest = 0;
  for (int page = 0; page < 100; ++page) slowest = std::max(slowest, shown("a page", key(Qt::Key_PageUp)));
  QScrollBar& bar = *table.View().verticalScrollBar();
  for (int at = 0; at < 100; ++at)
    slowest = std::max(
        slowest, shown("dragged", [&] {
          bar.setSliderPosition(static_cast<int>(static_cast<qint64>(bar.maximum()) * (7 * at % 100) / 100));
        }));
  table.Settle();
  const qint64 read = whole.elapsed();
  for (int page = 0; page < 100; ++page) slowest = std::max(slowest, shown("a page", key(Qt::Key_PageUp)));
  for (int at = 0; at < 100; ++at)
    slowest = std::max(
        slowest, shown("dragged", [&] {
          bar.setSliderPosition(static_cast<int>(static_cast<qint64>(bar.maximum()) * (7 * at % 100) / 100));
        }));
  EXPECT_EQ(table.View().Rows(), file.size() / block.size() * block.count('\n'));
  // A search through all of it tells how far it is while the log is walked, and is given up at once.
  table.Choose("mnuFind");
  TypeInto(*table.screen, "txtFind", "nowhere");
  auto& next = Find<QToolButton>(*table.screen, "cmdFindNext");
  auto& stop = Find<QToolButton>(*table.screen, "cmdStopFind");
  const auto& progress = Find<QLabel>(*table.screen, "lblProgress");
  key(Qt::Key_Home)();
  table.host.answers.Ok();  // where the search ends before it is given up
  QTest::mouseClick(&next, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return progress.text().endsWith('%') || !stop.isVisible(); }));
  for (int page = 0; page < 5 && stop.isVisible(); ++page)
    slowest = std::max(slowest, shown("a page while it is searched", key(Qt::Key_PageDown)));
  EXPECT_TRUE(bytes <= 1'000'000'000 || stop.isVisible());
  shown("given up", [&] { QTest::mouseClick(&stop, Qt::LeftButton); });
  EXPECT_FALSE(stop.isVisible());
  QElapsedTimer search;
  search.start();
  if (table.host.answers.Empty()) table.host.answers.Ok();  // the first one may have needed none
  QTest::mouseClick(&next, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !stop.isVisible(); }, 300'000));
  const qint64 searched = search.elapsed();
  EXPECT_TRUE(table.host.answers.Empty()) << "told that it isn't there";
  // As the table's own log it opens as fast.
  std::string error;
  const qint64 own = shown("opened as the table's", [&] {
    EXPECT_TRUE(OpenEventsLog(*table.game, path, error)) << error;
    table.screen->LookAt({});
  });
  if (bytes > 1'000'000'000)
    std::printf(
        "%lld bytes: open %lld ms, end %lld, slowest step %lld, all read %lld, searched %lld, as own %lld\n",
        static_cast<long long>(bytes), static_cast<long long>(opened), static_cast<long long>(toEnd),
        static_cast<long long>(slowest), static_cast<long long>(read), static_cast<long long>(searched),
        static_cast<long long>(own));
}

TEST(EventsLogScreen, FitsAndIsNamed) {
  OpenLogScreen table;
  ExpectNamed(*table.screen);
  table.Choose("mnuFind");
  for (const bool dark : {false, true}) {
    const QPalette before = QApplication::palette();
    if (dark) QApplication::setPalette(DarkPalette());
    for (const QSize size : {QSize(560, 360), QSize(440, 184), QSize(1024, 600)}) {
      table.screen->resize(size);
      QTest::qWait(1);
      EXPECT_EQ(table.screen->size(), size) << "nothing asks for more";
      SavePicture(*table.screen, QString("events-log-%1-%2").arg(size.width()).arg(dark ? "dark" : "light"));
    }
    QApplication::setPalette(before);
  }
}

}  // namespace
}  // namespace tessaryn::test
