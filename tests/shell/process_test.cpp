// The program itself as a process in a real window of a display of its own, driven by synthetic input.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>
#include <QtEndian>
#include <csignal>

#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

constexpr QSize kScreen(1280, 800);

// A display without a screen; its picture can be read from a file.
class Display {
 public:
  Display() {
    server_.setProgram("Xvfb");
    server_.setArguments(
        {"-displayfd", "1", "-screen", "0", "1280x800x24", "-fbdir", folder_.path(), "-nolisten", "tcp"});
    server_.start();
    if (server_.waitForReadyRead(15'000)) name_ = ":" + QString(server_.readAllStandardOutput()).trimmed();
  }
  ~Display() {
    server_.terminate();
    server_.waitForFinished(5000);
  }
  QString Name() const { return name_; }
  QString Why() const { return server_.errorString(); }

  QImage Picture() const {
    QFile file(folder_.filePath("Xvfb_screen0"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    const auto field = [&](int n) {
      return static_cast<int>(qFromBigEndian<quint32>(bytes.constData() + 4 * n));
    };
    const int start = field(0) + 12 * field(19);
    const QImage view(reinterpret_cast<const uchar*>(bytes.constData()) + start, field(4), field(5),
                      field(12), QImage::Format_RGB32);
    return view.copy();
  }

 private:
  QTemporaryDir folder_;
  QProcess server_;
  QString name_;
};

// How many pixels of a part differ.
int Differences(const QImage& a, const QImage& b, const QRect& part) {
  int count = 0;
  for (int x = std::max(0, part.left()); x <= std::min(a.width() - 1, part.right()); ++x)
    for (int y = std::max(0, part.top()); y <= std::min(a.height() - 1, part.bottom()); ++y)
      if (a.pixel(x, y) != b.pixel(x, y)) ++count;
  return count;
}

QRect Around(QPoint point, int reach) {
  return QRect(point - QPoint(reach, reach), QSize(2 * reach, 2 * reach));
}

// The program in its display.
class Program {
 public:
  Program(const Display& display, const QString& program, const QStringList& arguments) : display_(display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display.Name());
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    process_.setProcessEnvironment(environment);
    process_.start(program, arguments);
    EXPECT_TRUE(process_.waitForStarted(5000)) << process_.errorString().toStdString();
  }
  ~Program() {
    process_.kill();
    process_.waitForFinished(5000);
  }
  void Do(const QStringList& arguments) {
    QProcess tool;
    tool.setProcessEnvironment(process_.processEnvironment());
    tool.start("xdotool", arguments);
    ASSERT_TRUE(tool.waitForFinished(10'000)) << "xdotool: " << tool.errorString().toStdString();
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
  }
  void Click(QPoint point, int button = 1) {
    Do({"mousemove", QString::number(point.x()), QString::number(point.y()), "click",
        QString::number(button)});
  }
  void Key(const char* key) { Do({"key", key}); }
  // The keyboard's focus to a window by its title, as a window manager gives it.
  void Focus(const char* title) {
    Do({"search", "--sync", "--onlyvisible", "--name", title, "windowfocus", "--sync"});
  }
  // Until the part of the screen has changed from what it was.
  bool WaitForChange(const QImage& before, const QRect& part, int pixels = 20, int milliseconds = 10'000) {
    return QTest::qWaitFor([&] { return Differences(before, display_.Picture(), part) >= pixels; },
                           milliseconds);
  }
  // Until nothing changes any more.
  QImage Settled(int milliseconds = 10'000) {
    QImage last = display_.Picture();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
      QTest::qWait(250);
      const QImage now = display_.Picture();
      if (now == last) break;
      last = now;
    }
    return last;
  }
  bool Running() { return process_.state() == QProcess::Running; }
  bool WaitForEnd() { return process_.waitForFinished(10'000); }
  int ExitCode() const { return process_.exitCode(); }
  QString Complaints() { return process_.readAllStandardError(); }
  // Processor time used so far, in clock ticks.
  long ProcessorTicks() {
    QFile stat(QString("/proc/%1/stat").arg(process_.processId()));
    if (!stat.open(QIODevice::ReadOnly)) return -1;
    const QList<QByteArray> fields = stat.readAll().split(' ');
    return fields[13].toLong() + fields[14].toLong();
  }

 private:
  const Display& display_;
  QProcess process_;
};

// Where things are in a window of the first start's size.
struct Places {
  QPoint seat, passLine, middle, throttle;
  Places() {
    ScreenTable table;
    MainWindow window(*table.game, table.host);
    window.RestoreWindow();
    window.resize(kScreen);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    TableWidget& felt = window.Table();
    const auto place = [&](QPoint point) { return felt.mapTo(&window, point); };
    seat = place(felt.PointOfSeat(4));
    passLine = place(felt.PointOfBet(4, kPassLine));
    middle = place(felt.rect().center());
    auto* slider = window.findChild<QWidget*>("hsbThrottle");
    throttle = slider->mapTo(&window, slider->rect().center());
  }
};

struct FirstEvening {
  Display display;
  QTemporaryDir data;
  Places places;
};

TEST(Program, TwoClicksToAPlayerABetAndARollThenATurboRollAndTheQuestionsOfTheEnd) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty()) << evening.display.Why().toStdString();
  Program program(evening.display, QString(test::kBinFolder) + "/tessaryn",
                  {"--data-folder", evening.data.path()});
  const QRect all(QPoint(0, 0), kScreen);
  // The empty table.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        return evening.display.Picture().pixelColor(evening.places.passLine + QPoint(0, 12)).green() > 40;
      },
      15'000));
  QImage before = program.Settled();
  // The first click: a player.
  program.Click(evening.places.seat);
  ASSERT_TRUE(program.WaitForChange(before, Around(evening.places.middle, 150), 500)) << "no question";
  program.Key("Return");
  program.Settled();
  program.Do({"type", "Ann"});
  program.Key("Return");
  program.Settled();
  program.Key("Return");
  ASSERT_TRUE(program.WaitForChange(before, Around(evening.places.seat, 30))) << "no name at the rail";
  // The second: a bet. Then a roll.
  before = program.Settled();
  program.Click(evening.places.passLine);
  ASSERT_TRUE(program.WaitForChange(before, Around(evening.places.passLine, 12)))
      << "no check on the Pass Line";
  before = program.Settled();
  const QRect status(kScreen.width() - 330, kScreen.height() - 24, 330, 24);
  program.Click(evening.places.passLine, 3);
  ASSERT_TRUE(program.WaitForChange(before, status, 5)) << "no roll was counted";
  program.Settled();
  // A Turbo-Roll at its slowest, so that it is still on when it is looked at.
  program.Key("Return");  // the box of a bet that was decided, if it was
  program.Click(evening.places.passLine);
  program.Settled();
  program.Click(evening.places.throttle);
  program.Key("End");
  program.Key("Left");
  const auto covered = [&] {
    const QColor corner = evening.display.Picture().pixelColor(40, 120);
    return corner.green() > corner.red() + 15;  // the room round the table is grey
  };
  EXPECT_FALSE(covered());
  program.Key("ctrl+Return");
  ASSERT_TRUE(QTest::qWaitFor(covered, 5000)) << "no run";
  // The end of the program is a question now; a refusal keeps the run.
  program.Key("ctrl+shift+q");
  program.Settled(1500);
  program.Focus("^Turbo-Roll Active$");
  program.Key("n");
  QTest::qWait(300);
  EXPECT_TRUE(program.Running());
  EXPECT_TRUE(covered());
  program.Focus("^Tessaryn$");
  program.Key("Escape");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !covered(); }, 5000)) << "the run went on";
  program.Settled();
  // An idle table costs nothing.
  const long ticks = program.ProcessorTicks();
  QTest::qWait(1500);
  EXPECT_LE(program.ProcessorTicks() - ticks, 2);
  program.Focus("^Tessaryn$");
  program.Key("ctrl+shift+q");
  EXPECT_TRUE(program.WaitForEnd());
  EXPECT_EQ(program.ExitCode(), 0);
  EXPECT_EQ(program.Complaints().toStdString(), "");
  EXPECT_TRUE(QFile::exists(evening.data.filePath("window.ini")));
}

TEST(Program, StartsWithoutSoundsGeneratorsOrFontAndSaysSo) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty());
  // The program alone in a folder, as someone may copy it; a font file that is none.
  QTemporaryDir bare;
  const QString program = bare.filePath("tessaryn");
  ASSERT_TRUE(QFile::copy(QString(test::kBinFolder) + "/tessaryn", program));
  QFile font(bare.filePath("tessaryn.ttf"));
  ASSERT_TRUE(font.open(QIODevice::WriteOnly));
  font.write("no font");
  font.close();
  Program run(evening.display, program, {"--data-folder", evening.data.path()});
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        const QColor table =
            evening.display.Picture().pixelColor(evening.places.seat.x(), evening.places.seat.y());
        return table.red() > 30;
      },
      15'000));
  const QImage told = run.Settled();
  run.Key("Return");
  EXPECT_TRUE(run.WaitForChange(told, Around(evening.places.middle, 60), 500))
      << "the missing files weren't told";
  run.Settled();
  run.Focus("^Tessaryn$");
  run.Key("ctrl+shift+q");
  EXPECT_TRUE(run.WaitForEnd());
  EXPECT_EQ(run.ExitCode(), 0);
}

TEST(Program, WrongOptionsAndFoldersAreNamed) {
  struct Case {
    QStringList arguments;
    int code;
    const char* names;
  };
  const Case cases[] = {{{"--no-such-option"}, 2, "--no-such-option"},
                        {{"--data-folder", "/dev/null/x"}, 1, "/dev/null/x"},
                        {{"--help"}, 0, "--data-folder"},
                        {{"--version"}, 0, TESSARYN_VERSION}};
  for (const Case& wrong : cases) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.start(QString(test::kBinFolder) + "/tessaryn", wrong.arguments);
    ASSERT_TRUE(process.waitForFinished(15'000));
    EXPECT_EQ(process.exitCode(), wrong.code) << wrong.names;
    const QString said = process.readAllStandardOutput() + process.readAllStandardError();
    EXPECT_TRUE(said.contains(wrong.names)) << said.toStdString();
  }
}

}  // namespace
}  // namespace tessaryn::test
