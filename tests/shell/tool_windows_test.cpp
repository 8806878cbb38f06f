// The frame that all tool windows share: docks, layouts, refreshes, and what is taken elsewhere, with windows
// of the tests' own in the places of real ones. Pages are looked at as others read them.
#include "shell/frame/tool_windows.h"

#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QSvgRenderer>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/messages.h"
#include "play/game_file.h"
#include "shell/frame/arrange.h"
#include "shell/frame/docking.h"
#include "shell/frame/docks.h"
#include "shell/frame/exporting.h"
#include "shell/frame/main_window.h"
#include "shell/frame/page_painter.h"
#include "shell/frame/places.h"
#include "shell/frame/printing.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/path_screen.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "state/run_stop.h"

namespace tessaryn::test {
namespace {

// A table and a picture, with a control that takes keys.
struct Figures : ToolWindow {
  explicit Figures(const char* name, QWidget* parent) : ToolWindow(name, parent) {
    setWindowTitle(name + 3);
    auto* column = new QVBoxLayout(this);
    list = new QTableWidget(3, 2, this);
    list->setObjectName("lstFigures");
    list->setAccessibleName("Figures");
    list->setMinimumWidth(260);
    column->addWidget(list);
    auto* button = new QPushButton("&Turn", this);
    button->setObjectName("cmdTurn");
    column->addWidget(button);
    resize(320, 240);
  }
  void Refresh() override {
    ++refreshed;
    if (whileRefreshing) whileRefreshing();
  }
  QList<QStringList> Rows() const override { return rows; }
  QStringList PrintHeadings() const override { return {"Tessaryn Figures", "Player:  Ann"}; }
  bool HasPicture() const override { return picture; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override {
    painter.fillRect(area.adjusted(area.width() / 2, 0, 0, 0), Qt::red);
    QLinearGradient shade(area.topLeft(), area.bottomLeft());
    shade.setColorAt(0, QColor(0, 0, 255, 60));
    shade.setColorAt(1, Qt::green);
    painter.fillRect(area.adjusted(area.width() / 4, 40, -area.width() / 2, 0), shade);
    painter.setPen(Qt::black);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, "drawn");
    if (whilePainting) whilePainting();
  }
  QStringList PrintFacts(int pages) const override {
    return facts ? QStringList{"Number of pages: " + QString::number(pages)} : QStringList{};
  }

  QTableWidget* list;
  QList<QStringList> rows{{"Name", "$"}, {"Ann, \"the\" shooter", "1,000"}, {"Bo", "-20.50"}};
  bool picture = true;
  bool facts = false;
  int refreshed = 0;
  std::function<void()> whileRefreshing;
  std::function<void()> whilePainting;
};

constexpr int kNumbers[] = {kBankrollWindow, kRollTotalsWindow, kBetResultsWindow, kEventsLogWindow,
                            kConfigurationWindow};
constexpr const char* kNames[] = {"frmBankroll", "frmRollTotals", "frmBetResults", "frmEventsLog",
                                  "frmConfiguration"};

template <int n>
ToolWindow* MakeFigures(Desk& desk) {
  return new Figures(kNames[n], desk.window);
}

// A window with five instruments of the test's own.
struct FrameTable : ScreenTable {
  MainWindow window{*game, host};
  Desk& desk = window.TheDesk();

  explicit FrameTable(QSize size = {1280, 800}) {
    desk.toolMakers[kNumbers[0]] = MakeFigures<0>;
    desk.toolMakers[kNumbers[1]] = MakeFigures<1>;
    desk.toolMakers[kNumbers[2]] = MakeFigures<2>;
    desk.toolMakers[kNumbers[3]] = MakeFigures<3>;
    desk.toolMakers[kNumbers[4]] = MakeFigures<4>;
    window.Table().animate = false;
    window.resize(size);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  Figures& At(int number) { return static_cast<Figures&>(Tool(desk, number)); }
  // An entry of View > Arrange.
  void Arrange(const char* name) {
    QMenu menu;
    ListArrangements(desk, menu);
    Find<QAction>(menu, name).trigger();
    QTest::qWait(50);
  }
  void Do(int number, const char* name) { Find<QAction>(At(number), name).trigger(); }
  // An entry that asks for a file; its bytes.
  QByteArray Written(int number, const char* action, const char* name) {
    QueuedFileNames() = {folder.filePath(name).toStdString()};
    Do(number, action);
    QFile file(folder.filePath(name));
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

QString Output(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(20'000) && process.exitCode() == 0) << program;
  return process.readAllStandardOutput();
}

// --- Docks.

TEST(ToolWindows, ALayoutDocksRoundTheTableAndTheKeysStayItsOwn) {
  for (const QSize size : {QSize(1920, 1080), QSize(1280, 800), QSize(1024, 600), QSize(800, 500)}) {
    FrameTable table(size);
    table.Arrange("mnuArrangeWatch");
    EXPECT_EQ(table.window.size(), size);
    EXPECT_TRUE(table.window.Table().hasFocus());
    QRect taken;
    for (int n = 0; n < 4; ++n) {
      ToolDock* dock = DockOf(table.desk, kNumbers[n]);
      ASSERT_NE(dock, nullptr);
      if (!dock->IsInFront()) continue;
      EXPECT_TRUE(table.desk.docks->rect().contains(dock->geometry())) << size.width() << " " << kNames[n];
      EXPECT_FALSE(dock->geometry().intersects(table.window.Table().geometry()));
      EXPECT_FALSE(dock->geometry().intersects(taken)) << size.width() << " " << kNames[n];
      taken = dock->geometry();
      EXPECT_TRUE(size.width() < 1600 || std::abs(n < 3 ? dock->width() - 440 : dock->height() - 184) < 12);
    }
    EXPECT_GE(table.window.Table().width(), size.width() * 6 / 10);
    SavePicture(table.window, QString("frame-%1").arg(size.width()));
    const QPalette light = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    QTest::qWait(20);
    SavePicture(table.window, QString("frame-%1-dark").arg(size.width()));
    QApplication::setPalette(light);
    // Keys that a docked list has no use for are the table's, and Escape leads back.
    table.Join(3, "Ann");
    table.At(kEventsLogWindow).list->setFocus();
    QTest::keyClick(table.At(kEventsLogWindow).list, Qt::Key_F11);
    EXPECT_TRUE(table.window.Table().scene.showAmounts);
    QTest::keyClick(table.At(kEventsLogWindow).list, Qt::Key_Escape);
    EXPECT_TRUE(table.window.Table().hasFocus());
    table.Arrange("mnuArrangePlay");
    EXPECT_EQ(KeptArrangement(table.desk), "");
    EXPECT_FALSE(ToolIsShown(table.desk, kBankrollWindow));
    table.window.CloseUnasked();
  }
}

TEST(ToolWindows, DocksByTheButtonsOfTheirTitleAndByMenus) {
  FrameTable table;
  ToggleTool(table.desk, kBankrollWindow);
  Figures& graph = table.At(kBankrollWindow);
  graph.move(60, 70);
  const WindowPlace before = graph.Place();
  table.Do(kBankrollWindow, "mnuDockLeft");
  ASSERT_NE(DockOf(table.desk, kBankrollWindow), nullptr);
  EXPECT_EQ(table.desk.docks->dockWidgetArea(DockOf(table.desk, kBankrollWindow)), Qt::LeftDockWidgetArea);
  ExpectNamed(*DockOf(table.desk, kBankrollWindow));
  // Alt+T is the table's while the window is in a dock.
  EXPECT_TRUE(Find<QPushButton>(graph, "cmdTurn").shortcut().isEmpty());
  Click(*DockOf(table.desk, kBankrollWindow), "cmdDockMenu");
  auto& menu = Find<QMenu>(*DockOf(table.desk, kBankrollWindow), "menDock");
  EXPECT_TRUE(menu.isVisible());
  SavePicture(menu, "frame-menu");
  menu.close();
  QtWarnings().removeAll("This plugin does not support grabbing the keyboard");  // of the offscreen platform
  Click(*DockOf(table.desk, kBankrollWindow), "cmdCloseDock");
  EXPECT_FALSE(ToolIsShown(table.desk, kBankrollWindow));
  ToggleTool(table.desk, kBankrollWindow);
  EXPECT_TRUE(graph.isVisible());
  Click(*DockOf(table.desk, kBankrollWindow), "cmdFloat");
  EXPECT_TRUE(graph.isWindow() && graph.isVisible());
  EXPECT_FALSE(Find<QPushButton>(graph, "cmdTurn").shortcut().isEmpty());
  EXPECT_EQ(graph.Place().Left, before.Left);
  EXPECT_EQ(graph.Place().Width, before.Width);
  // As by a mouse that drags it off and lets go.
  table.Do(kBankrollWindow, "mnuDockRight");
  DockOf(table.desk, kBankrollWindow)->setFloating(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return graph.isWindow() && graph.isVisible(); }));
  EXPECT_FALSE(DocksAsWell(table.desk, kRollPadWindow));
  DockTool(table.desk, kRollPadWindow, Qt::RightDockWidgetArea);
  EXPECT_EQ(DockOf(table.desk, kRollPadWindow), nullptr);
  SavePicture(graph, "frame-floating");
  table.window.CloseUnasked();
}

TEST(ToolWindows, ASavedGameBringsTheArrangementBackAndADamagedOneDocksNothing) {
  std::string whole;
  const QSize fits(784, 560);  // on the tests' screen
  FrameTable first(fits);
  const std::string path = first.folder.filePath("docked.crp").toStdString();
  first.Arrange("mnuArrangeWatch");
  DockTool(first.desk, kConfigurationWindow, Qt::LeftDockWidgetArea);
  ShowTool(first.desk, kConfigurationWindow, false);
  first.desk.docks->tabifyDockWidget(DockOf(first.desk, kBankrollWindow),
                                     DockOf(first.desk, kRollTotalsWindow));
  KeepScreen(first.desk);
  std::string error;
  ASSERT_TRUE(SaveGame(*first.game, path, error)) << error;
  const QRect place = DockOf(first.desk, kEventsLogWindow)->geometry();

  FrameTable second(fits);
  DockTool(second.desk, kBetResultsWindow, Qt::LeftDockWidgetArea);
  ASSERT_TRUE(OpenGame(*second.game, path));
  second.desk.showGame();
  QTest::qWait(50);
  EXPECT_EQ(DockOf(second.desk, kEventsLogWindow)->geometry(), place);
  EXPECT_EQ(second.desk.docks->tabifiedDockWidgets(DockOf(second.desk, kBankrollWindow)).size(), 1);
  EXPECT_EQ(second.desk.docks->dockWidgetArea(DockOf(second.desk, kBetResultsWindow)),
            Qt::RightDockWidgetArea);
  EXPECT_FALSE(ToolIsShown(second.desk, kConfigurationWindow));
  EXPECT_NE(DockOf(second.desk, kConfigurationWindow), nullptr);
  whole = second.game->screen.Arrangement;

  for (std::size_t at = 0; at < whole.size(); at += 37) {
    for (const bool cut : {true, false}) {
      std::string& text = second.game->screen.Arrangement;
      text = cut ? whole.substr(0, at) : whole;
      if (!cut) text[at] = text[at] == 'x' ? 'y' : 'x';
      PlaceTools(second.desk);
      for (const int number : kNumbers) EXPECT_EQ(DockOf(second.desk, number), nullptr) << at;
    }
  }
  EXPECT_TRUE(ToolIsShown(second.desk, kEventsLogWindow));
  first.window.CloseUnasked();
  second.window.CloseUnasked();
}

// --- Refreshes.

TEST(ToolWindows, OnlyWhatIsSeenIsRefreshedAndNeverInItself) {
  FrameTable table;
  for (const int number : {kBankrollWindow, kRollTotalsWindow})
    DockTool(table.desk, number, Qt::RightDockWidgetArea);
  Figures& front = table.At(kBankrollWindow);
  Figures& behind = table.At(kRollTotalsWindow);
  table.desk.docks->tabifyDockWidget(DockOf(table.desk, kRollTotalsWindow),
                                     DockOf(table.desk, kBankrollWindow));
  DockOf(table.desk, kBankrollWindow)->raise();
  QTest::qWait(50);
  front.refreshed = behind.refreshed = 0;
  int deep = 0;
  front.whileRefreshing = [&] {
    EXPECT_EQ(++deep, 1);
    if (front.refreshed < 3) RefreshTools(table.desk);
    --deep;
  };
  table.Join(3, "Ann");
  table.game->settings.ShooterBetRule = 0;
  table.Roll(3, 4);
  QTest::qWait(50);
  EXPECT_GE(front.refreshed, 2);
  EXPECT_EQ(behind.refreshed, 0);
  ToggleTool(table.desk, kRollTotalsWindow);  // comes in front
  EXPECT_GE(behind.refreshed, 1);
  EXPECT_TRUE(ToolIsShown(table.desk, kRollTotalsWindow));
  table.window.CloseUnasked();
}

// With a screen that takes 30 ms to draw, the run still has nearly all of its time.
TEST(ToolWindows, InATurboRollTheyCountOnAndLeaveItItsSpeed) {
  FrameTable table;
  DockTool(table.desk, kBankrollWindow, Qt::RightDockWidgetArea);
  DockTool(table.desk, kRollTotalsWindow, Qt::RightDockWidgetArea);
  table.game->settings.ShooterBetRule = 0;
  table.game->settings.RollThrottle = 0;
  table.Join(3, "Ann");
  for (const int cost : {0, 30}) {
    Figures& graph = table.At(kBankrollWindow);
    graph.whileRefreshing = [cost] { QTest::qSleep(std::max(cost, 1)); };
    graph.refreshed = 0;
    QTimer::singleShot(1500, [&] { StopRun(*table.game, ""); });
    table.host.answers.Ok();
    ToggleAutoRoll(*table.game);
    EXPECT_GE(graph.refreshed, cost == 0 ? 8 : 2) << cost;
    EXPECT_LE(graph.refreshed, cost == 0 ? 24 : 8) << cost;
  }
  table.window.CloseUnasked();
}

// --- Taken elsewhere.

TEST(ToolWindows, RowsAndPictureAreExportedAndCopiedAsTheyAreShown) {
  FrameTable table;
  table.Do(kBankrollWindow, "mnuDockRight");
  EXPECT_EQ(table.Written(kBankrollWindow, "mnuExport", "a.csv"),
            "Name,$\n\"Ann, \"\"the\"\" shooter\",\"1,000\"\nBo,-20.50\n");
  const QImage png = QImage::fromData(table.Written(kBankrollWindow, "mnuExportPng", "a.png"));
  EXPECT_EQ(png.size(), QSize(1440, 880));
  EXPECT_EQ(png.pixelColor(1400, 440), QColor(Qt::red));
  QSvgRenderer svg(table.Written(kBankrollWindow, "mnuExportSvg", "a.svg"));
  EXPECT_TRUE(svg.isValid());
  EXPECT_EQ(svg.viewBoxF().size(), QSizeF(720, 440));
  QTest::keyClick(&table.At(kBankrollWindow), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), "Name\t$\nAnn, \"the\" shooter\t1,000\nBo\t-20.50\n");
  EXPECT_TRUE(copied->hasImage());
  // What can't be written is told of.
  for (const auto& [action, name] :
       {std::pair("mnuExport", "full.csv"), std::pair("mnuExportPng", "full.png"),
        std::pair("mnuExportSvg", "full.svg"), std::pair("mnuPdf", "full.pdf")}) {
    ASSERT_TRUE(QFile::link("/dev/full", table.folder.filePath(name)));
    table.host.answers.Yes();  // to write over it
    table.host.answers.Ok();
    table.Written(kBankrollWindow, action, name);
    EXPECT_TRUE(table.host.answers.Empty()) << action;
  }
  table.window.CloseUnasked();
}

// --- Paper.

TEST(ToolWindows, PagesHoldEveryRowOnceUnderTheirHeads) {
  struct Paper {
    const char* name;
    QPageSize::PageSizeId size;
    int rows;
    int columns;
    bool picture;
    bool colour;
  };
  constexpr Paper kPapers[] = {{"short", QPageSize::A4, 2, 2, false, false},
                               {"picture", QPageSize::Letter, 3, 3, true, true},
                               {"long", QPageSize::Letter, 5000, 6, true, false},
                               {"wide", QPageSize::A4, 40, 30, false, false},
                               {"wordy", QPageSize::A4, 200, 1, false, true}};
  FrameTable table;
  Figures& figures = table.At(kBankrollWindow);
  for (const Paper& paper : kPapers) {
    figures.picture = paper.picture;
    figures.rows.clear();
    for (int n = 0; n <= paper.rows; ++n) {
      QStringList row;
      for (int c = 0; c < paper.columns; ++c)
        row.append(n == 0 ? QString("Head%1").arg(c) : QString::number(n * c));
      if (n > 0) row[0] = QString("row%1").arg(n);
      if (n > 0 && paper.columns == 1) row[0] += QString(" with many words").repeated(30);
      figures.rows.append(row);
    }
    const QString path = table.folder.filePath(QString(paper.name) + ".pdf");
    {
      QPrinter printer(QPrinter::ScreenResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(path);
      printer.setPageSize(QPageSize(paper.size));
      printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
      printer.setColorMode(paper.colour ? QPrinter::Color : QPrinter::GrayScale);
      EXPECT_TRUE(PaintPages(JobOf(figures), printer));
      PrintJob stopped = JobOf(figures);
      stopped.goesOn = [] { return false; };
      printer.setOutputFileName(path + ".stopped");
      EXPECT_EQ(PaintPages(stopped, printer), paper.rows < 5000) << "long work can be given up";
    }
    const QString text = Output("pdftotext", {"-layout", path, "-"});
    const QStringList pages = text.split('\f', Qt::SkipEmptyParts);
    EXPECT_TRUE(pages[0].simplified().startsWith("Tessaryn Figures Player: Ann")) << paper.name;
    int rows = 0;
    for (int n = 0; n < pages.size(); ++n) {
      EXPECT_TRUE(pages[n].contains(QString("Page %1 of %2").arg(n + 1).arg(pages.size()))) << paper.name;
      const auto found = pages[n].count(QRegularExpression("\\brow\\d+\\b"));
      EXPECT_EQ(pages[n].count("Head0"), found > 0 ? 1 : 0) << paper.name << " " << n;
      rows += static_cast<int>(found);
    }
    EXPECT_EQ(rows, paper.rows) << paper.name;
    EXPECT_TRUE(paper.rows < 5000 || pages.size() > 80) << pages.size();
    EXPECT_EQ(text.contains("drawn"), paper.picture) << paper.name;
    EXPECT_TRUE(text.contains(QString::number(paper.rows * (paper.columns - 1)))) << paper.name;
    const QString look = table.folder.filePath(paper.name);
    Output("pdftoppm", {"-r", "60", "-png", "-singlefile", path, look});
    const QImage image(look + ".png");
    ASSERT_FALSE(image.isNull());
    bool colour = false;
    bool edge = false;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QColor at = image.pixelColor(x, y);
        colour = colour || at.saturation() > 20;
        const int margin = 34;  // 15 millimetres, with a little slack
        const bool inside =
            x >= margin && y >= margin && x < image.width() - margin && y < image.height() - margin;
        edge = edge || (!inside && at.lightness() < 200);
      }
    EXPECT_EQ(colour, paper.colour && paper.picture) << paper.name;
    EXPECT_FALSE(edge) << paper.name << " goes into the margin";
    // A shade that lets white through, beside the red half.
    const int lit = image.pixelColor(image.width() * 3 / 8, image.height() / 5).lightness();
    EXPECT_TRUE(!paper.picture || (lit > 100 && lit < 250)) << paper.name << " " << lit;
    if (!qEnvironmentVariableIsEmpty("TESSARYN_PICTURES"))
      Output("pdftoppm", {"-r", "90", "-png", "-singlefile", path,
                          qEnvironmentVariable("TESSARYN_PICTURES") + "/pages-" + paper.name});
  }
  table.window.CloseUnasked();
}

TEST(ToolWindows, PrintsWithoutAskingAndTellsWhatItDoes) {
  FrameTable table;
  Figures& figures = table.At(kBankrollWindow);
  if (!figures.isVisible()) ToggleTool(table.desk, kBankrollWindow);
  table.host.answers.Ok();
  EXPECT_FALSE(PrintNow(table.desk, figures)) << "there is a printer here";
  QString notice;
  figures.whilePainting = [&] {
    const QWidget* box = OpenDialog("frmMsg");
    if (box != nullptr) notice = box->findChild<QLabel*>("lblMsg")->text();
  };
  const QString path = table.folder.filePath("now.pdf");
  table.desk.printer = [&] {
    auto printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(path);
    return printer;
  };
  EXPECT_TRUE(PrintNow(table.desk, figures));
  EXPECT_EQ(notice, "Sending output to printer.");
  EXPECT_EQ(OpenDialog("frmMsg"), nullptr);
  EXPECT_TRUE(Output("pdftotext", {path, "-"}).contains("Page 1 of 1"));
  // The preview shows the same pages.
  figures.whilePainting = nullptr;
  WhenOpen("frmPrintPreview", [&](QDialog& preview) {
    SavePicture(preview, "frame-preview");
    preview.close();
  });
  table.Do(kBankrollWindow, "mnuPrintPreview");
  EXPECT_TRUE(table.Written(kBankrollWindow, "mnuPdf", "saved.pdf").startsWith("%PDF"));
  // A window that tells what it prints asks behind the printer's dialog; here that prints to a file.
  figures.facts = true;
  for (const bool agreed : {false, true}) {
    agreed ? table.host.answers.Yes() : table.host.answers.No();
    const QString asked = table.folder.filePath(agreed ? "yes.pdf" : "no.pdf");
    WhenOpen("frmPrint", [&](QDialog& dialog) {
      Find<QLineEdit>(dialog, "filename").setText(asked);
      SavePicture(dialog, "frame-print");
      dialog.accept();
    });
    table.Do(kBankrollWindow, "mnuPrint");
    EXPECT_TRUE(table.host.answers.Empty());
    EXPECT_EQ(QFile::exists(asked), agreed);
  }
  table.window.CloseUnasked();
}

TEST(ToolWindows, FilesInUseAreToldByTheirPaths) {
  ScreenTable table;
  table.Join(3, "Ann");
  table.game->autobet.Scripts[3].ScriptFileName = "/" + std::string(200, 'x') + "/ann.bet";
  PathScreen screen(PathsInUse(*table.game), nullptr);
  screen.show();
  ExpectNamed(screen);
  const QString text = Find<QPlainTextEdit>(screen, "picpath").toPlainText();
  EXPECT_TRUE(text.contains("Ann:  /" + QString(200, 'x') + "/ann.bet\n"));
  EXPECT_TRUE(text.contains("Events log file\n    " + FromCore(table.game->dataFolder)));
  EXPECT_FALSE(text.contains("Dice roll file"));
  SavePicture(screen, "path");
}

}  // namespace
}  // namespace tessaryn::test
