// The Sessions Log's window: what it shows is what the log's records say, whatever is chosen and done.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <cmath>
#include <random>

#include "shell/screens/file_chooser.h"
#include "shell/screens/sessions_log_histogram.h"
#include "shell/screens/sessions_log_rows.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

Record Session(std::mt19937& random) {
  Record record{};
  const auto net = static_cast<std::int64_t>(std::normal_distribution<double>(-20, 150)(random)) / 5 * 5;
  PutSessionValue(record, kSessionRolls, Currency::Dollars(100 + static_cast<std::int64_t>(random() % 400)));
  PutSessionValue(record, kSessionHandle, Currency::Dollars(2'000));
  PutSessionValue(record, kSessionNet, Currency::Dollars(net));
  return record;
}

struct OpenSessions : ScreenTable {
  std::vector<Record> records;
  std::unique_ptr<SessionsLogScreen> screen;

  explicit OpenSessions(int sessions = 500) {
    Join(3, "Ann", "1000");
    Join(5, "Bo", "1000");
    SelectSeat(*game, 3);
    std::mt19937 random(7);
    for (int i = 0; i < sessions; ++i) records.push_back(Session(random));
    Write(SessionsLogPath(*game, 3), records);
    screen = std::make_unique<SessionsLogScreen>(*game, nullptr);
    screen->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
    Settle();
  }
  static void Write(const std::string& path, const std::vector<Record>& sessions) {
    SessionsLogFile file;
    ASSERT_EQ(OpenSessionsFile(file, path, SessionsAccess::kCreate), "");
    for (const Record& session : sessions) ASSERT_EQ(AppendSession(file, session), "");
  }
  void Settle() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen->IsUpToDate(); }, 60'000));
    QTest::qWait(1);
  }
  void Choose(const char* name) {
    Find<QAction>(*screen, name).trigger();
    Settle();
  }
  std::string Text(const QString& label) { return Find<QLabel>(*screen, label).text().toStdString(); }
  // What is shown against a plain computation of what was asked.
  void ExpectRight(const char* after) {
    SessionsLogFile file;
    SessionsStatistics s;
    bool overflow = false;
    ASSERT_EQ(
        OpenSessionsFile(file, SessionsLogPath(*game, game->sessions.SessionsSeat), SessionsAccess::kRead),
        "");
    ASSERT_EQ(ComputeSessions(file, QueryOf(game->sessions), s, overflow), "");
    for (int label = 0; label < kStatisticLabels; ++label) {
      EXPECT_EQ(Text(QString("lblStat%1").arg(label)), StatisticText(s, label))
          << after << " " << StatisticName(label);
      const std::string mark = label == 2 && s.MedianMarked ? " *" : "";
      EXPECT_EQ(Text(QString("lblStatName%1").arg(label)), std::string(StatisticName(label)) + mark) << after;
    }
    const std::int64_t counts[] = {s.Won, s.BrokeEven, s.Lost, s.Total};
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(Text(QString("lblCount%1").arg(i)), FormatMoney(Currency::Dollars(counts[i]))) << after;
      EXPECT_EQ(Text(QString("lblShare%1").arg(i)), ShareText(counts[i], s.Total)) << after;
    }
    EXPECT_EQ(Text("lblFixed0"), s.Included == 0 ? "" : SessionsNumber(s.Net)) << after;
  }
};

TEST(SessionsLogScreen, ShowsWhatTheRecordsSayByEveryChoice) {
  OpenSessions table;
  SessionsLogs& log = table.game->sessions;
  EXPECT_EQ(log.SessionsSeat, 3) << "the selected player's";
  table.ExpectRight("opened");
  for (const int measure : {0, 5, 9, 8}) {
    auto& stat = Find<QComboBox>(*table.screen, "cmbStat");
    stat.setCurrentIndex(measure);
    emit stat.activated(measure);
    table.Settle();
    table.ExpectRight("another measure");
  }
  Click(*table.screen, "chkInclude2");
  table.Settle();
  EXPECT_FALSE(log.IncludeLost);
  table.ExpectRight("without the lost");
  table.host.answers.Type("50", "-50");
  table.Choose("mnuSetBreakPoint");
  EXPECT_EQ(table.Text("lblBreakPoint"), "Break-point: -50 - 50");
  table.ExpectRight("a break-point");
  for (const char* name : {"chkInclude0", "chkInclude1"}) Click(*table.screen, name);
  table.Settle();
  table.ExpectRight("nobody");
  table.host.answers.Ok();
  EXPECT_FALSE(table.screen->ReadyToPrint());
  EXPECT_TRUE(table.host.answers.Empty()) << "told that there is nothing to print";
}

TEST(SessionsLogScreen, OutliersGoBySliderValueAndDeviations) {
  OpenSessions table;
  SessionsLogs& log = table.game->sessions;
  Click(*table.screen, "chkOutliers");
  table.Settle();
  EXPECT_EQ(log.Outliers, OutlierRule::kByDeviations);
  table.ExpectRight("three deviations");
  TypeInto(*table.screen, "txtSDCount0", "1");
  TypeInto(*table.screen, "txtSDCount1", "-1");
  QTest::keyClick(&Find<QLineEdit>(*table.screen, "txtSDCount1"), Qt::Key_Return);
  table.Settle();
  EXPECT_EQ(log.OutlierLow, Currency::Dollars(-1)) << "sorted";
  table.ExpectRight("one deviation");
  TypeInto(*table.screen, "txtValueCount1", "40");
  QTest::keyClick(&Find<QLineEdit>(*table.screen, "txtValueCount1"), Qt::Key_Return);
  table.Settle();
  EXPECT_EQ(log.Outliers, OutlierRule::kByValue);
  EXPECT_EQ(log.OutlierHigh, Currency::Dollars(40));
  table.ExpectRight("a value");
  auto& slider = Find<QSlider>(*table.screen, "hsbOutlierHigh");
  slider.setFocus();
  const Currency before = log.OutlierHigh;
  QTest::keyClick(&slider, Qt::Key_Home);
  table.Settle();
  EXPECT_LT(log.OutlierHigh, before);
  EXPECT_LE(log.OutlierLow, log.OutlierHigh) << "the other end comes along";
  table.ExpectRight("the slider");
  TypeInto(*table.screen, "txtValueCount0", "x1");
  QTest::keyClick(&Find<QLineEdit>(*table.screen, "txtValueCount0"), Qt::Key_Return);
  EXPECT_NE(Find<QLineEdit>(*table.screen, "txtValueCount0").text(), "x1") << "what is in force stands there";
  Click(*table.screen, "chkOutliers");
  table.Settle();
  EXPECT_EQ(log.Outliers, OutlierRule::kNone);
  table.ExpectRight("all again");
}

TEST(SessionsLogScreen, TheHistogramTellsValuesAndSharesAtThePointer) {
  OpenSessions table;
  auto& histogram = Find<SessionsHistogram>(*table.screen, "picHistogram");
  const SessionsStatistics& s = table.screen->Shown();
  for (int width = 0; width < 4; ++width) {
    table.Choose(qPrintable(QString("mnuGraphBarWidth%1").arg(width)));
    EXPECT_EQ(table.game->sessions.GraphBarWidth, width);
    double normal = 0;
    std::int64_t all = 0;
    for (int first = 0; first < kHistogramColumns; first += kBarColumns[width]) {
      normal += NormalSessions(s, first, std::min(kBarColumns[width], kHistogramColumns - first));
      all += BarOf(s, first, kBarColumns[width]).Sessions;
    }
    EXPECT_EQ(all, s.Included);
    // The curve has the sessions' own mean and deviation: nearly all of it lies over the bars.
    EXPECT_NEAR(normal / static_cast<double>(s.Included), 1, 0.02);
    QTest::mouseMove(&histogram, histogram.PlaceOf(300));
    EXPECT_EQ(histogram.Pointer(), 300);
    const HistogramBar bar = BarOf(s, 300 / kBarColumns[width] * kBarColumns[width], kBarColumns[width]);
    std::int64_t below = 0;
    for (const Record& record : table.records)
      if (HistogramColumn(SessionValue(record, kSessionNet), s.Low, s.High) <
          300 / kBarColumns[width] * kBarColumns[width] + kBarColumns[width])
        ++below;
    const std::string text = table.Text("lblCurrent");
    EXPECT_NE(text.find(SessionsNumber(bar.Low) + " to " + SessionsNumber(bar.High)), std::string::npos)
        << text;
    EXPECT_NE(text.find(std::to_string(bar.Sessions) + " session"), std::string::npos) << text;
    EXPECT_NE(text.find(ShareText(below, s.Included)), std::string::npos) << text;
  }
  QTest::keyClick(&histogram, Qt::Key_Home);
  EXPECT_EQ(histogram.Pointer(), 0);
  EXPECT_EQ(histogram.accessibleDescription().toStdString(), table.Text("lblCurrent"));
}

TEST(SessionsLogScreen, DataFindDeleteMergeAndNewFiles) {
  OpenSessions table;
  SessionsLogs& log = table.game->sessions;
  QTest::mouseClick(&Find<QRadioButton>(*table.screen, "optDisplay1"), Qt::LeftButton, {}, QPoint(8, 8));
  auto& rows = Find<SessionsRows>(*table.screen, "picRaw");
  EXPECT_EQ(rows.Rows(), 500);
  rows.setFocus();
  QTest::keyClick(&rows, Qt::Key_End);
  EXPECT_EQ(log.SessionsTopRow, 500 - rows.RowsShown() + 1);
  QTest::keyClick(&rows, Qt::Key_Home);
  // The next session of the value, and the one before it.
  const Currency wanted = SessionValue(table.records[200], kSessionNet);
  std::vector<std::int64_t> with;
  for (std::size_t i = 0; i < 500; ++i)
    if (SessionValue(table.records[i], kSessionNet) == wanted)
      with.push_back(static_cast<std::int64_t>(i) + 1);
  table.host.answers.Type(PlainMoney(wanted));
  table.Choose("mnuFind");
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.SessionsTopRow == with[0]; }));
  table.Choose("mnuFindNext");
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.SessionsTopRow == with[1]; }));
  table.Choose("mnuFindPrevious");
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.SessionsTopRow == with[0]; }));
  std::unique_ptr<RowSource> source = table.screen->TakeRows();
  ASSERT_EQ(source->Count(), 501);
  for (const int n : {1, 7, 500, 3})
    EXPECT_EQ(source->Row(n)[2].toStdString(),
              SessionsNumber(SessionValue(table.records[static_cast<std::size_t>(n - 1)], kSessionNet)));
  table.host.answers.Type("101", "5");
  table.Choose("mnuDelete");
  EXPECT_EQ(table.screen->Shown().Total, 500 - 97);
  table.ExpectRight("deleted");
  const std::string other = table.folder.filePath("other.slg").toStdString();
  OpenSessions::Write(other, {table.records.begin(), table.records.begin() + 40});
  QueuedFileNames().push_back(other);
  table.Choose("mnuMerge");
  EXPECT_EQ(table.screen->Shown().Total, 443);
  // New keeps the old one under another name when the user wants to.
  const std::string kept = table.folder.filePath("kept.slg").toStdString();
  table.host.answers.Yes();
  QueuedFileNames().push_back(kept);
  table.Choose("mnuNew");
  EXPECT_EQ(table.screen->Shown().Total, 0);
  EXPECT_EQ(table.Text("lblStat0"), "");
  EXPECT_EQ(table.screen->windowTitle(), "Sessions Log (ann.slg)");
  QueuedFileNames().push_back(kept);
  table.Choose("mnuOpen");
  EXPECT_EQ(table.screen->Shown().Total, 443);
  EXPECT_EQ(table.screen->windowTitle(), "Sessions Log (kept.slg)");
  table.host.answers.Yes();
  table.Choose("mnuDeleteAll");
  EXPECT_EQ(table.screen->Shown().Total, 0);
  // What is no log is told, and the present one stays.
  const QString foreign = table.folder.filePath("foreign.slg");
  QFile file(foreign);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("nothing of the kind") > 0);
  file.close();
  QueuedFileNames().push_back(foreign.toStdString());
  table.host.answers.Ok();
  table.Choose("mnuOpen");
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(table.screen->windowTitle(), "Sessions Log (kept.slg)");
}

TEST(SessionsLogScreen, ALongPassNeitherBlocksNorGoesOnWhenCancelled) {
  OpenSessions table(60'000);
  SessionsLogs& log = table.game->sessions;
  table.ExpectRight("many");
  QElapsedTimer clock;
  clock.start();
  Click(*table.screen, "chkInclude0");
  EXPECT_LT(clock.elapsed(), 400) << "the pass goes on beside the window";
  EXPECT_TRUE(log.Files.Calculating || table.screen->IsUpToDate());
  SessionsStatistics refused;
  EXPECT_TRUE(!log.Files.Calculating || !UpdateSessionsLog(*table.game, refused))
      << "no second one meanwhile";
  // A session that ends meanwhile is counted too.
  OpenSessions::Write(SessionsLogPath(*table.game, 3), {table.records[0]});
  table.screen->Refresh();
  table.Settle();
  EXPECT_EQ(table.screen->Shown().Total, 60'001);
  table.ExpectRight("grown");
  Click(*table.screen, "chkInclude0");
  Find<QPushButton>(*table.screen, "cmdCancel").click();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !log.Files.Calculating; }));
  QTest::qWait(1);
  EXPECT_FALSE(table.screen->IsUpToDate());
  auto& again = Find<QPushButton>(*table.screen, "cmdCancel");
  EXPECT_EQ(again.text(), "&Calculate");
  QTest::mouseClick(&again, Qt::LeftButton);
  table.Settle();
  table.ExpectRight("after all");
  Click(*table.screen, "chkInclude0");
  table.screen.reset();  // closed in the midst of it
}

// Deletion, merge and copy of a large log go on beside the window, are given up whole, and lose no session
// that ends meanwhile.
TEST(SessionsLogScreen, ALargeLogIsChangedBesideTheWindow) {
  OpenSessions table(60'000);
  const std::string path = SessionsLogPath(*table.game, 3);
  auto& cancel = Find<QPushButton>(*table.screen, "cmdCancel");
  const auto working = [&] { return !Find<QAction>(*table.screen, "mnuDelete").isEnabled(); };
  std::int64_t expected = 60'000;
  const auto change = [&](const char* name, bool giveUp) {
    QElapsedTimer clock;
    clock.start();
    Find<QAction>(*table.screen, name).trigger();
    EXPECT_LT(clock.elapsed(), 200) << name;
    EXPECT_TRUE(working() && cancel.isVisible()) << name;
    OpenSessions::Write(path, {table.records[0]});
    ++expected;
    if (giveUp) cancel.click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !working(); }, 60'000)) << name;
    table.Settle();
  };
  table.host.answers.Type("11", "50010");
  change("mnuDelete", true);
  if (table.screen->Shown().Total != expected) expected -= 50'000;  // it was done before the click
  EXPECT_EQ(table.screen->Shown().Total, expected);
  const std::string other = table.folder.filePath("other.slg").toStdString();
  OpenSessions::Write(other, table.records);
  QueuedFileNames().push_back(other);
  expected += 60'000;
  change("mnuMerge", false);
  EXPECT_EQ(table.screen->Shown().Total, expected);
  table.host.answers.Type("1", "60000");
  expected -= 60'000;
  change("mnuDelete", false);
  EXPECT_EQ(table.screen->Shown().Total, expected);
  table.ExpectRight("changed");
  QueuedFileNames().push_back(other);
  change("mnuMerge", false);
  expected += 60'000;
  const std::string copy = table.folder.filePath("copy.slg").toStdString();
  QueuedFileNames().push_back(copy);
  change("mnuSaveAs", false);
  EXPECT_EQ(SessionsLogPath(*table.game, 3), copy);
  EXPECT_EQ(table.screen->Shown().Total, expected) << "with the one that ended meanwhile";
  EXPECT_EQ(table.folder.isValid()
                ? QDir(table.folder.path()).entryList({"*.slg*"}, QDir::Files | QDir::Hidden).size()
                : 0,
            3)
      << "nothing half-written is left";
}

// TESSARYN_LOG_SESSIONS=10000000 tries it with a log of two and a half gigabytes.
TEST(SessionsLogScreen, ALargeLogOpensAndScrollsAtOnce) {
  const qint64 sessions =
      std::max<qint64>(qEnvironmentVariable("TESSARYN_LOG_SESSIONS").toLongLong(), 100'000);
  OpenSessions table(1);
  const std::string path = table.folder.filePath("large.slg").toStdString();
  OpenSessions::Write(path, {table.records[0]});
  std::mt19937 random(3);
  std::vector<Record> block;
  for (int i = 0; i < 1'000; ++i) block.push_back(Session(random));
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(static_cast<qint64>(kRecordBytes));
  for (qint64 written = 0; written < sessions; written += 1'000)
    file.write(reinterpret_cast<const char*>(block.data()), static_cast<qint64>(block.size() * kRecordBytes));
  const auto count = static_cast<std::int32_t>(sessions / 1'000 * 1'000);
  file.seek(92);
  for (int byte = 0; byte < 4; ++byte) file.putChar(static_cast<char>(count >> 8 * byte & 0xff));
  file.close();
  table.game->sessions.SessionsDisplayMode = 1;
  QElapsedTimer clock;
  const auto shown = [&](const char* what, auto&& act) {
    clock.start();
    act();
    table.screen->repaint();
    QCoreApplication::processEvents();
    EXPECT_LT(clock.elapsed(), 500) << what;
    return clock.elapsed();
  };
  QueuedFileNames().push_back(path);
  QElapsedTimer whole;
  whole.start();
  const qint64 opened = shown("opened", [&] { Find<QAction>(*table.screen, "mnuOpen").trigger(); });
  auto& rows = Find<SessionsRows>(*table.screen, "picRaw");
  QScrollBar& bar = *rows.verticalScrollBar();
  EXPECT_LE(bar.maximum(), 30'000);
  qint64 slowest = 0;
  const auto scroll = [&] {
    for (int at = 0; at < 100; ++at) {
      slowest = std::max(
          slowest, shown("dragged", [&] { bar.setSliderPosition(bar.maximum() * (7 * at % 100) / 100); }));
      slowest = std::max(slowest, shown("a page", [&] { QTest::keyClick(&rows, Qt::Key_PageDown); }));
    }
  };
  scroll();
  table.Settle();
  const qint64 computed = whole.elapsed();
  scroll();
  EXPECT_EQ(rows.Rows(), count);
  EXPECT_EQ(table.screen->Shown().Total, count);
  if (sessions > 1'000'000)
    std::printf("%d sessions: open %lld ms, slowest step %lld, figures after %lld\n", count,
                static_cast<long long>(opened), static_cast<long long>(slowest),
                static_cast<long long>(computed));
}

TEST(SessionsLogScreen, FitsAndIsNamed) {
  OpenSessions table(3'000);
  ExpectNamed(*table.screen);
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    for (const int mode : {0, 1})
      for (const QSize size : {QSize(760, 460), QSize(440, 560), QSize(1024, 600)}) {
        table.game->sessions.SessionsDisplayMode = mode;
        table.game->sessions.GraphBarWidth = size.width() == 440 ? 2 : 1;
        table.screen->resize(size);
        table.screen->Refresh();
        QTest::qWait(1);
        EXPECT_EQ(table.screen->size(), size) << "nothing asks for more";
        SavePicture(*table.screen,
                    QString("sessions-%1-%2-%3").arg(size.width()).arg(mode).arg(dark ? "dark" : "light"));
      }
    QApplication::setPalette(before);
  }
}

}  // namespace
}  // namespace tessaryn::test
