// The program itself as a process in a real window of a display of its own, driven by synthetic input.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>
#include <QtEndian>
#include <csignal>

#include "base/messages.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "play/game_file.h"
#include "play/hot_keys.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

constexpr QSize kWindow(1280, 800);  // of a first start on a screen that has room for it

// A display without a screen; its picture can be read from a file.
class Display {
 public:
  explicit Display(QSize size = {1400, 900}) {
    const QString screen = QString("%1x%2x24").arg(size.width()).arg(size.height());
    server_.setProgram("Xvfb");
    server_.setArguments({"-displayfd", "1", "-screen", "0", screen, "-fbdir", folder_.path(), "-nolisten",
                          "tcp", "-noreset"});
    server_.start();
    // The number comes as a line, which may come in parts.
    while (!server_.canReadLine() && server_.waitForReadyRead(15'000)) {
    }
    if (server_.canReadLine()) name_ = ":" + QString(server_.readLine()).trimmed();
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
  // What the tool says; a search that finds nothing is no failure.
  QString Ask(const QStringList& arguments) {
    QProcess tool;
    tool.setProcessEnvironment(process_.processEnvironment());
    tool.start("xdotool", arguments);
    EXPECT_TRUE(tool.waitForFinished(10'000)) << "xdotool: " << tool.errorString().toStdString();
    EXPECT_TRUE(tool.exitCode() == 0 || arguments[0] == "search")
        << tool.readAllStandardError().toStdString();
    return tool.readAllStandardOutput();
  }
  void Do(const QStringList& arguments) { Ask(arguments); }
  QString Windows() { return Ask({"search", "--onlyvisible", "--name", ".", "getwindowname", "%@"}); }
  // The titles of the boxes that are open. Tool tips have none.
  QStringList Boxes() {
    QStringList titles;
    const QString all = Ask({"search", "--onlyvisible", "--class", "tessaryn", "getwindowname", "%@"});
    for (const QString& title : all.split('\n', Qt::SkipEmptyParts))
      if (title.contains(" \u2014 ")) titles.append(title.section(" \u2014 ", 0, 0));
    return titles;
  }
  // Each gets its safe answer, until no more come.
  void AnswerBoxes() {
    for (int quiet = 0, tries = 0; quiet < 2 && tries < 60; ++tries) {
      quiet = Boxes().isEmpty() ? quiet + 1 : 0;
      if (quiet == 0) Key("Return");
      QTest::qWait(150);
    }
    EXPECT_EQ(Boxes().join(", ").toStdString(), "");
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
  void Terminate() { process_.terminate(); }
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
    window.resize(kWindow);
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

  // Until the table is on the screen.
  bool WaitForTable() {
    return QTest::qWaitFor(
        [&] { return display.Picture().pixelColor(places.passLine + QPoint(0, 12)).green() > 40; }, 15'000);
  }
  // Clicks a place at the rail and answers who it is.
  void Join(Program& program) {
    const QImage before = program.Settled();
    program.Click(places.seat);
    ASSERT_TRUE(program.WaitForChange(before, Around(places.middle, 150), 500)) << "no question";
    program.Key("Return");
    program.Settled();
    program.Do({"type", "Ann"});
    program.Key("Return");
    program.Settled();
    program.Key("Return");
    ASSERT_TRUE(program.WaitForChange(before, Around(places.seat, 30))) << "no name at the rail";
    program.Settled();
  }
};

TEST(Program, TwoClicksToAPlayerABetAndARollThenATurboRollAndTheQuestionsOfTheEnd) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty()) << evening.display.Why().toStdString();
  Program program(evening.display, QString(test::kBinFolder) + "/tessaryn",
                  {"--data-folder", evening.data.path()});
  ASSERT_TRUE(evening.WaitForTable());
  // The first click: a player.
  ASSERT_NO_FATAL_FAILURE(evening.Join(program));
  // The second: a bet. Then a roll, which is told before the box of a bet that it decides.
  QImage before = program.Settled();
  program.Click(evening.places.passLine);
  ASSERT_TRUE(program.WaitForChange(before, Around(evening.places.passLine, 12)))
      << "no check on the Pass Line";
  before = program.Settled();
  const QRect status(kWindow.width() - 330, kWindow.height() - 24, 330, 24);
  program.Click(evening.places.passLine, 3);
  ASSERT_TRUE(program.WaitForChange(before, status, 5)) << "no roll was counted";
  program.Settled();
  program.AnswerBoxes();
  // A Turbo-Roll at its slowest, so that it is still on when it is looked at.
  program.Click(evening.places.passLine);
  program.Settled();
  program.AnswerBoxes();
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
  const QImage left = program.Settled();
  program.Focus("^Tessaryn$");
  program.Key("ctrl+shift+q");
  EXPECT_TRUE(program.WaitForEnd());
  EXPECT_EQ(program.ExitCode(), 0);
  EXPECT_EQ(program.Complaints().toStdString(), "");
  EXPECT_TRUE(QFile::exists(evening.data.filePath("default.crp")));
  // The next evening goes on where this one ended.
  Program next(evening.display, QString(test::kBinFolder) + "/tessaryn",
               {"--data-folder", evening.data.path()});
  ASSERT_TRUE(evening.WaitForTable());
  const QRect place = Around(evening.places.seat, 20);
  EXPECT_EQ(Differences(next.Settled(), left, place), 0) << "another face at the rail";
  next.Focus("^Tessaryn$");
  next.Key("ctrl+shift+q");
  EXPECT_TRUE(next.WaitForEnd());
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
  enum Screen { kOffscreen, kNone, kDead };
  struct Case {
    Screen screen;
    QStringList arguments;
    int code;
    const char* names;
  };
  const Case cases[] = {{kOffscreen, {"--no-such-option"}, 2, "--no-such-option"},
                        {kOffscreen, {"--data-folder"}, 2, "--data-folder"},
                        {kOffscreen, {"--data-folder", "/dev/null/x"}, 1, "/dev/null/x"},
                        {kOffscreen, {"--help"}, 0, "--data-folder"},
                        {kNone, {"--help"}, 0, "--data-folder"},
                        {kNone, {"--version"}, 0, TESSARYN_VERSION},
                        {kNone, {}, 1, "no display"},
                        {kNone, {"--no-such-option"}, 1, "no display"},
                        {kNone, {"--data-folder"}, 1, "no display"},
                        {kNone, {"--data-folder", "/dev/null/x"}, 1, "no display"},
                        {kDead, {}, 1, ":98765"},
                        {kDead, {"-platform", "nonsense"}, 1, "no display"}};
  for (const Case& wrong : cases) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) environment.remove(name);
    if (wrong.screen == kOffscreen) environment.insert("QT_QPA_PLATFORM", "offscreen");
    if (wrong.screen == kDead) environment.insert("DISPLAY", ":98765");
    process.setProcessEnvironment(environment);
    process.start(QString(test::kBinFolder) + "/tessaryn", wrong.arguments);
    ASSERT_TRUE(process.waitForFinished(15'000));
    const std::string what = wrong.arguments.join(' ').toStdString() + " on " + std::to_string(wrong.screen);
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << what;
    EXPECT_EQ(process.exitCode(), wrong.code) << what;
    const QString said = process.readAllStandardOutput() + process.readAllStandardError();
    EXPECT_TRUE(said.contains(wrong.names)) << what << ": " << said.toStdString();
    EXPECT_TRUE(wrong.code != 1 || said.trimmed().count('\n') == 0) << what << ": " << said.toStdString();
  }
}

// Each start is seeded by the machine's clock, so no two evenings are the same.
TEST(Program, EveryStartHasItsOwnSeed) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty());
  const std::string folder = evening.data.path().toStdString() + "/";
  WriteFile(folder + "seed.bet", "open/append file for output \"seeds.txt\"\noutput to file seed\n");
  std::string error;
  ASSERT_TRUE(WriteHotKeys(folder + kHotKeysFile, {{'s', folder + "seed.bet", "Seed"}}, error)) << error;
  const auto seeds = [&] {
    QStringList all;
    QDirIterator found(evening.data.path(), {"seeds.txt"}, QDir::Files, QDirIterator::Subdirectories);
    if (found.hasNext())
      all = QString::fromStdString(ReadFile(found.next().toStdString())).split('\n', Qt::SkipEmptyParts);
    return all;
  };
  Generators clocked;
  double earliest = TimeSeed(clocked, MachineTick()).ToDouble();
  constexpr int kStarts = 5;
  for (int start = 1; start <= kStarts; ++start) {
    QFile::remove(evening.data.filePath(kDefaultGameFile));  // an evening of its own
    Program program(evening.display, QString(test::kBinFolder) + "/tessaryn",
                    {"--data-folder", evening.data.path()});
    ASSERT_TRUE(evening.WaitForTable());
    ASSERT_NO_FATAL_FAILURE(evening.Join(program));
    program.Focus("^Tessaryn$");
    program.Key("ctrl+s");
    program.Settled();
    EXPECT_EQ(program.Boxes().join(", ").toStdString(), "");
    program.Key("ctrl+shift+q");
    ASSERT_TRUE(program.WaitForEnd());
    ASSERT_EQ(seeds().size(), start);
    const double seed = seeds().back().toDouble();
    EXPECT_GE(seed, earliest);
    earliest = TimeSeed(clocked, MachineTick()).ToDouble();
    EXPECT_LE(seed, earliest);
  }
}

// The whole window, with its status bar and buttons, on a small screen; so does one that was left large.
TEST(Program, TheWindowFitsASmallScreen) {
  constexpr QSize kSmall(1024, 600);
  Display display(kSmall);
  ASSERT_FALSE(display.Name().isEmpty());
  for (const bool leftLarge : {false, true}) {
    ScreenTable table;
    if (leftLarge) {
      MainWindow large(*table.game, table.host);
      large.resize(1900, 1000);
      large.close();
    }
    Program program(display, QString(test::kBinFolder) + "/tessaryn", {"--data-folder", table.folder.path()});
    const QStringList ask = {"search", "--sync", "--onlyvisible", "--name", "^Tessaryn$", "getwindowgeometry",
                             "--shell"};
    QMap<QString, int> geometry;
    for (const QString& line : program.Ask(ask).split('\n', Qt::SkipEmptyParts))
      geometry[line.section('=', 0, 0)] = line.section('=', 1).toInt();
    const QRect place(geometry["X"], geometry["Y"], geometry["WIDTH"], geometry["HEIGHT"]);
    EXPECT_GT(place.height(), 400);
    EXPECT_TRUE(QRect(QPoint(), kSmall).contains(place))
        << place.x() << "," << place.y() << " " << place.width() << "x" << place.height();
  }
}

// The question of a start has nobody to answer it: what it is about must be there the next time.
TEST(Program, ASignalAtTheFirstQuestionLeavesTheAutosave) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty());
  const std::string autosave = evening.data.filePath(kAutosaveGameFile).toStdString();
  {
    ScreenTable table;
    table.Join(3, "Ann");
    std::string error;
    ASSERT_TRUE(AutosaveGame(*table.game, error)) << error;
    WriteFile(autosave, ReadFile(AutosavePath(*table.game)));
  }
  const std::string kept = ReadFile(autosave);
  Program program(evening.display, QString(test::kBinFolder) + "/tessaryn",
                  {"--data-folder", evening.data.path()});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !program.Boxes().isEmpty(); }, 15'000))
      << evening.display.Name().toStdString() << ": " << program.Windows().toStdString()
      << program.Complaints().toStdString();
  program.Terminate();
  EXPECT_TRUE(program.WaitForEnd());
  EXPECT_EQ(program.ExitCode(), 128 + SIGTERM);
  EXPECT_EQ(ReadFile(autosave), kept);
}

// What is told at a start, and whose game it is then.
TEST(Program, StartsWithWhatThereIsAndSaysWhatIsNot) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty());
  const QString unable = FromCore(MessageText(Msg::kTitleGameNotOpened));
  const QString missing = FromCore(MessageText(Msg::kTitleGameNotFound));
  std::string lastGame;
  {
    ScreenTable table;
    table.Join(3, "Ann");
    std::string error;
    ASSERT_TRUE(SaveDefaultGame(*table.game, error)) << error;
    lastGame = ReadFile(DefaultGamePath(*table.game));
  }
  const struct {
    const char* argument;
    std::string bytes;  // of the default game; none without
    QStringList box;
    const char* player;
  } cases[] = {{"", "", {}, ""},
               {"", lastGame, {}, "Ann"},
               {"", lastGame.substr(0, lastGame.size() / 2), {unable}, ""},
               {"", lastGame.substr(0, 300), {unable}, ""},
               {"evening.txt", lastGame, {unable}, "Ann"},
               {"none.crp", lastGame, {missing}, "Ann"},
               {"none.crp", "", {missing}, ""}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.argument + std::to_string(one.bytes.size()));
    const QTemporaryDir data;
    const std::string kept = data.filePath(kDefaultGameFile).toStdString();
    if (!one.bytes.empty()) WriteFile(kept, one.bytes);
    QStringList words{"--data-folder", data.path()};
    if (*one.argument != 0) words.append(data.filePath(one.argument));
    Program program(evening.display, QString(test::kBinFolder) + "/tessaryn", words);
    if (one.box.isEmpty())
      ASSERT_TRUE(evening.WaitForTable());
    else
      ASSERT_TRUE(QTest::qWaitFor([&] { return !program.Boxes().isEmpty(); }, 15'000));
    EXPECT_EQ(program.Boxes(), one.box);
    program.AnswerBoxes();
    program.Settled();
    program.Focus("^Tessaryn$");
    program.Key("ctrl+shift+q");
    ASSERT_TRUE(program.WaitForEnd());
    EXPECT_EQ(program.ExitCode(), 0);
    EXPECT_EQ(program.Complaints().toStdString(), "");
    ScreenTable looked;
    ASSERT_TRUE(OpenGame(*looked.game, kept));
    EXPECT_EQ(looked.game->table.seats[3].SeatName, one.player);
    EXPECT_EQ(QFile::exists(data.filePath(kDamagedGameFile)), one.bytes.size() % lastGame.size() != 0);
  }
}

// One box says so; the game goes on, and the end asks and writes nothing.
TEST(Program, ADataFolderThatCantBeWrittenIsToldOnce) {
  FirstEvening evening;
  ASSERT_FALSE(evening.display.Name().isEmpty());
  Program program(evening.display, QString(test::kBinFolder) + "/tessaryn", {"--data-folder", "/proc"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !program.Boxes().isEmpty(); }, 15'000))
      << evening.display.Name().toStdString() << ": " << program.Windows().toStdString()
      << program.Complaints().toStdString();
  EXPECT_EQ(program.Boxes(), QStringList("Data Folder"));
  program.Settled();
  program.Key("Return");
  program.Settled();
  EXPECT_EQ(program.Boxes(), QStringList());
  program.Focus("^Tessaryn$");
  program.Key("ctrl+shift+q");
  EXPECT_TRUE(program.WaitForEnd());
  EXPECT_EQ(program.ExitCode(), 0);
  EXPECT_EQ(program.Complaints().toStdString(), "");
}

}  // namespace
}  // namespace tessaryn::test
