// Every instrument there is, on the real widgets of one window: on paper and in files, under hands that know
// nothing, and as a crowd.
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPrinter>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "shell/frame/arrange.h"
#include "shell/frame/desk.h"
#include "shell/frame/main_window.h"
#include "shell/frame/page_painter.h"
#include "shell/frame/printing.h"
#include "shell/frame/tool_rows.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens_support.h"
#include "shell/table/languages.h"
#include "state/run_stop.h"
#include "stats/events_log.h"

namespace tessaryn::test {
namespace {

// A window in the midst of a hand of two players.
struct InstrumentTable : ScreenTable {
  MainWindow window{*game, host};
  Desk& desk = window.TheDesk();

  InstrumentTable() {
    game->settings.ShooterBetRule = 0;
    window.Table().animate = false;
    window.resize(1024, 600);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const int seat : {1, 3}) {
      Join(seat, seat == 1 ? "Ada" : "Bo");
      State().seats[seat].handling.WinHandling = State().seats[seat].handling.LoseHandling = 2;
      for (const int bet : std::initializer_list<int>{kPassLine, kField, kPlace4 + 2}) Bet(seat, bet, "6");
    }
    for (int roll = 0; roll < 40; ++roll) Roll(1 + roll % 6, 1 + roll / 3 % 6);
  }
  ~InstrumentTable() { SpeakWith({}); }

  ToolWindow& Open(int number) {
    ShowTool(desk, number, true);
    QTest::qWait(20);
    return Tool(desk, number);
  }
  // What an entry of the window's Output menu writes.
  QByteArray Written(ToolWindow& tool, const char* action, const QString& path) {
    QueuedFileNames() = {path.toStdString()};
    QAction* const entry = tool.findChild<QAction*>(action);
    entry == nullptr ? void(ADD_FAILURE() << action) : entry->trigger();
    QFile file(path);
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

QString Output(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(30'000) && process.exitCode() == 0) << program;
  return process.readAllStandardOutput();
}

// Pages of a size: as many as they say, all within the margins.
void ExpectPages(const QString& path, const QString& first, QSizeF points) {
  const QString facts = Output("pdfinfo", {path});
  const auto size = QRegularExpression("Page size: +([0-9.]+) x ([0-9.]+)").match(facts);
  const auto count = QRegularExpression("Pages: +(\\d+)").match(facts).captured(1).toInt();
  const QSizeF is(size.captured(1).toDouble(), size.captured(2).toDouble());
  EXPECT_NEAR(std::min(is.width(), is.height()), points.width(), 1.5) << path.toStdString();
  EXPECT_NEAR(std::max(is.width(), is.height()), points.height(), 1.5) << path.toStdString();
  const QStringList pages = Output("pdftotext", {"-layout", path, "-"})
                                .normalized(QString::NormalizationForm_KC)  // letters that stand as one
                                .split('\f', Qt::SkipEmptyParts);
  ASSERT_EQ(pages.size(), count) << path.toStdString();
  EXPECT_TRUE(pages[0].simplified().contains(first.simplified())) << path.toStdString();
  for (int page = 0; page < count; ++page)
    EXPECT_TRUE(pages[page].contains(QString("Page %1 of %2").arg(page + 1).arg(count)));
  Output("pdftoppm", {"-r", "40", "-gray", "-png", "-singlefile", path, path});
  const QImage page(path + ".png");
  ASSERT_FALSE(page.isNull());
  const QRect inside = page.rect().adjusted(22, 22, -22, -22);
  int outside = 0;
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x)
      outside += !inside.contains(x, y) && qGray(page.pixel(x, y)) < 200 ? 1 : 0;
  EXPECT_EQ(outside, 0) << path.toStdString() << " goes into the margin";
}

TEST(Instruments, EachIsOnEveryPaperAndInEveryFileAndFailuresAreTold) {
  InstrumentTable table;
  int printed = 0;
  for (const ToolRow& row : ToolRows()) {
    ToolWindow& tool = table.Open(row.number);
    const QString name = tool.objectName();
    const QList<QStringList> rows = tool.Rows();
    const bool some = tool.TakeRows()->Count() > 0;
    if (!some && !tool.HasPicture()) continue;
    ++printed;
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
      const QString path = table.folder.filePath(name + (paper == QPageSize::A4 ? "-a4.pdf" : "-letter.pdf"));
      QPrinter printer(QPrinter::ScreenResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(path);
      printer.setPageSize(QPageSize(paper));
      printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
      const PrintJob job = JobOf(tool);
      if (WantsLandscape(job, printer)) printer.setPageOrientation(QPageLayout::Landscape);
      ASSERT_TRUE(PaintPages(job, printer)) << name.toStdString();
      ExpectPages(path, job.headings.front(), QPageSize(paper).size(QPageSize::Point));
      if (const QString pictures = qEnvironmentVariable("TESSARYN_PICTURES"); !pictures.isEmpty())
        Output("pdftoppm", {"-r", "60", "-png", "-singlefile", path,
                            pictures + "/paper-" + name + QString::number(paper)});
    }
    if (some && !rows.isEmpty()) {
      const QByteArray csv = table.Written(tool, "mnuExport", table.folder.filePath(name + ".csv"));
      EXPECT_GE(csv.count('\n'), rows.size()) << name.toStdString();
    }
    if (tool.HasPicture()) {
      EXPECT_FALSE(QImage::fromData(table.Written(tool, "mnuExportPng", table.folder.filePath(name + ".png")))
                       .isNull());
      EXPECT_TRUE(
          QSvgRenderer(table.Written(tool, "mnuExportSvg", table.folder.filePath(name + ".svg"))).isValid());
    }
    // A full disk, and a folder that takes nothing. Some have questions, or nothing, before they print.
    const bool asks = QStringList{"frmCheckStacks", "frmDiceRollFiles", "frmSessions"}.contains(name);
    const std::tuple<const char*, const char*, bool> kinds[] = {{"mnuExport", ".csv", some},
                                                                {"mnuExportPng", ".png", tool.HasPicture()},
                                                                {"mnuExportSvg", ".svg", tool.HasPicture()},
                                                                {"mnuPdf", ".pdf", !asks}};
    for (const auto& [action, ending, offered] : kinds) {
      if (!offered) continue;
      const QString full = table.folder.filePath(name + "-full" + ending);
      ASSERT_TRUE(QFile::link("/dev/full", full));
      table.host.answers.Yes();  // to write over it
      table.host.answers.Ok();
      table.Written(tool, action, full);
      EXPECT_TRUE(table.host.answers.Empty()) << name.toStdString() << " " << action;
      table.host.answers.Ok();
      table.Written(tool, action, "/proc/none");
      EXPECT_TRUE(table.host.answers.Empty()) << name.toStdString() << " " << action;
    }
    ShowTool(table.desk, row.number, false);
  }
  EXPECT_GE(printed, 12);
  // In colours only if the house wants them.
  ToolWindow& totals = table.Open(kRollTotalsWindow);
  for (const bool colours : {false, true}) {
    table.game->settings.ColorPrint = colours;
    const QString path = table.folder.filePath(colours ? "colours.pdf" : "gray.pdf");
    table.Written(totals, "mnuPdf", path);
    Output("pdftoppm", {"-r", "40", "-png", "-singlefile", path, path});
    const QImage page(path + ".png");
    int coloured = 0;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x) coloured += page.pixelColor(x, y).hsvSaturation() > 40 ? 1 : 0;
    EXPECT_EQ(coloured > 0, colours);
  }
  table.window.CloseUnasked();
}

// The ready layouts with what they really hold, on screens of every size.
TEST(Instruments, ReadyLayoutsFitAndAreSeen) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    for (const QSize size : {QSize(1920, 1080), QSize(1280, 800), QSize(1024, 600)}) {
      InstrumentTable table;
      table.game->events.RecordEventsActive = true;
      RecordAllEvents(table.game->events, true);
      table.window.resize(size);
      for (const char* layout : {"mnuArrangeWatch", "mnuArrangeStudy"}) {
        const std::string name = layout + (" " + std::to_string(size.width()));
        QMenu menu;
        ListArrangements(table.desk, menu);
        Find<QAction>(menu, layout).trigger();
        for (int roll = 0; roll < 25; ++roll) table.Roll(1 + roll % 5, 2 + roll / 2 % 5);
        QTest::qWait(100);
        EXPECT_EQ(table.window.size(), size) << name << " asks for more";
        const double felt = table.window.Table().width();
        EXPECT_GE(felt, 0.6 * size.width()) << name;
        int seen = 0;
        for (const ToolRow& row : ToolRows()) {
          const ToolWindow* tool = table.desk.tools[static_cast<std::size_t>(row.number)];
          if (tool == nullptr || !tool->isVisible() || tool->isWindow()) continue;
          ++seen;
          const QWidget* room = tool->parentWidget();
          EXPECT_LE(tool->width(), room->width()) << name << " " << tool->objectName().toStdString();
          EXPECT_LE(tool->height(), room->height()) << name << " " << tool->objectName().toStdString();
        }
        EXPECT_GE(seen, 4) << name;
        SavePicture(table.window,
                    QString("%1-%2-%3").arg(layout + 3).arg(size.width()).arg(dark ? "dark" : "light"));
      }
      table.window.CloseUnasked();
    }
    QApplication::setPalette(before);
  }
}

// --- Hands that know nothing.

// Whatever asks is given up after a while; a run doesn't go on for ever.
struct GivesUp : QTimer {
  explicit GivesUp(InstrumentTable& table) {
    callOnTimeout([&table] {
      StopRun(*table.game, "");
      table.game->autobet.StepMode = table.game->autobet.ScriptRunning = false;
      if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr)
        popup->close();
      else if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr)
        modal->close();
    });
    start(15);
  }
};

struct Monkey {
  QRandomGenerator random;

  int Upto(int count) { return static_cast<int>(random.bounded(count)); }
  void Act(QWidget& tool) {
    QList<QWidget*> parts;
    for (QWidget* part : tool.findChildren<QWidget*>())
      if (part->isVisible() && !part->size().isEmpty()) parts += part;
    if (parts.isEmpty()) return;
    QPointer<QWidget> part = parts[Upto(static_cast<int>(parts.size()))];
    const QPoint at(Upto(part->width()), Upto(part->height()));
    const int act = Upto(100);
    constexpr Qt::Key kKeys[] = {Qt::Key_Return, Qt::Key_Tab,      Qt::Key_Up,     Qt::Key_Down,
                                 Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,   Qt::Key_End,
                                 Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Escape,
                                 Qt::Key_Space,  Qt::Key_Plus,     Qt::Key_F2,     Qt::Key_Z,
                                 Qt::Key_A,      Qt::Key_V,        Qt::Key_X,      Qt::Key_C};
    constexpr const char* kTexts[] = {"-1", "1e9", "0.25", "99999999999999", "abc", "7 to 6", "nan", "2.5.1"};
    if (act < 55) {
      QTest::mouseClick(part, act < 50 ? Qt::LeftButton : Qt::RightButton, {}, at);
    } else if (act < 62) {
      QTest::mousePress(part, Qt::LeftButton, {}, at);
      if (part != nullptr) QTest::mouseMove(part, QPoint(Upto(part->width()), Upto(part->height())));
      if (part != nullptr) QTest::mouseRelease(part, Qt::LeftButton, {}, QPoint(Upto(part->width()), 1));
    } else if (act < 66) {
      QTest::mouseDClick(part, Qt::LeftButton, {}, at);
    } else if (QWidget* focus = act < 80 || !tool.isAncestorOf(QApplication::focusWidget())
                                    ? part.data()
                                    : QApplication::focusWidget();
               act < 90) {
      QTest::keyClick(focus, kKeys[Upto(static_cast<int>(std::size(kKeys)))],
                      Upto(4) == 0 ? Qt::ControlModifier : Qt::NoModifier);
    } else {
      QTest::keyClicks(focus, kTexts[Upto(static_cast<int>(std::size(kTexts)))]);
    }
  }
};

// TESSARYN_MONKEY_ACTS acts on each, from TESSARYN_MONKEY_SEED on.
TEST(Instruments, RandomMouseAndKeysLeaveAWholeTable) {
  const auto number = [](const char* name, int usual) {
    return qEnvironmentVariable(name, QString::number(usual)).toInt();
  };
  const int acts = number("TESSARYN_MONKEY_ACTS", 60);
  Monkey monkey{QRandomGenerator(static_cast<quint32>(number("TESSARYN_MONKEY_SEED", 12)))};
  InstrumentTable table;
  table.watchdog.stop();
  const GivesUp givesUp(table);
  for (const ToolRow& row : ToolRows()) {
    ShowTool(table.desk, row.number, true);
    for (int act = 0; act < acts; ++act) {
      ShowTool(table.desk, row.number, true);
      monkey.Act(Tool(table.desk, row.number));
      if (act % 8 == 0) QTest::qWait(1);
      ASSERT_EQ(CheckConsistency(*table.game), "") << row.number << ", act " << act;
    }
    QTest::qWait(30);
  }
  // All of them are open as the game is closed.
  table.window.CloseUnasked();
  QtWarnings().removeAll("This plugin does not support grabbing the keyboard");
}

}  // namespace
}  // namespace tessaryn::test
