// The bankroll graph under mouse and keyboard: what it tells, draws and prints against the rolls themselves.
#include "shell/screens/bankroll_graph_screen.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QComboBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <random>

#include "shell/screens/bankroll_graph_view.h"
#include "shell/screens_support.h"
#include "stats/bankroll_graph.h"

namespace tessaryn::test {
namespace {

struct OpenGraph : ScreenTable {
  std::mt19937 random{7};
  std::vector<Currency> closing[kSeatRows];  // by roll, from 0
  BankrollGraphScreen screen{*game, nullptr};

  OpenGraph() {
    game->settings.ShooterBetRule = 0;
    for (const auto& [seat, name] : {std::pair(3, "Ann"), {5, "Bo"}}) {
      Join(seat, name, "5000");
      State().seats[seat].handling.WinHandling = State().seats[seat].handling.LoseHandling = 2;
    }
    SelectPlotSeat(*game, 3);
    screen.resize(760, 480);
    screen.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
  }

  void RollOn(int rolls) {
    std::uniform_int_distribution<int> die(1, 6);
    for (int n = 0; n < rolls; ++n) {
      if (State().BetAmount(3, kField) == kZero) Bet(3, kField, "25");
      if (State().BetAmount(5, kBig8) == kZero) Bet(5, kBig8, "12");
      const int die1 = die(random);
      const int die2 = die(random);
      Roll(die1, die1 + die2 == 7 ? die1 : die2);  // nobody is asked to take the dice
      for (const int seat : {3, 5}) closing[seat].push_back(State().BankrollCurrent[seat]);
    }
    screen.Refresh();
  }
  GraphView& View() { return screen.View(); }
  QString Text(const char* label) { return Find<QLabel>(screen, label).text(); }
  void Choose(const QString& name) { Find<QAction>(screen, name).trigger(); }
  QPoint AtCell(int cell, int y = 60) { return {static_cast<int>(std::lround(View().Frame().X(cell))), y}; }
};

// In both modes, over page ends: every point under the pointer, and the figures beside the graph.
TEST(BankrollGraphScreen, TellsTheBankrollOfEachRoll) {
  for (const int type : {kPlotPage, kPlotScroll}) {
    OpenGraph table;
    table.Choose(QString("mnuGraphPlotType%1").arg(type));
    for (const int rolls : {1, 300, 224, 90}) {
      table.RollOn(rolls);
      const std::vector<Currency>& all = table.closing[3];
      const std::size_t total = all.size();
      const std::size_t shown = total <= 525 ? total : type == kPlotPage ? total - 525 : 525;
      ASSERT_EQ(table.View().Page().Count(), static_cast<int>(shown));
      for (std::size_t cell = 1; cell <= shown; cell += 1 + cell / 9) {
        QTest::mouseMove(&table.View(), table.AtCell(static_cast<int>(cell)));
        const std::size_t roll = total - shown + cell;
        EXPECT_TRUE(table.View().PointerText().startsWith(
            QString("Roll %1:  %2").arg(roll).arg(GraphMoney(all[roll - 1]))))
            << table.View().PointerText().toStdString() << " at " << cell;
      }
      const auto [low, high] = std::minmax_element(all.end() - static_cast<std::ptrdiff_t>(shown), all.end());
      EXPECT_EQ(table.Text("lblHighBankroll"), GraphMoney(*high));
      EXPECT_EQ(table.Text("lblLowBankroll"), GraphMoney(*low));
      EXPECT_EQ(table.Text("lblCurrentBankroll"), GraphMoney(all.back()));
      const Currency gain = all.back() - Currency::Dollars(5000);
      EXPECT_EQ(table.Text("lblSessionGain").contains(gain > kZero ? QChar(0x25B2) : QChar(0x25BC)),
                gain != kZero);
    }
  }
}

// The curve is where the scale says, from the first cell to the last, and so are average and reference lines.
TEST(BankrollGraphScreen, DrawsEachPointWhereTheScaleHasIt) {
  OpenGraph table;
  table.Choose("mnuGraphAdjustType2");
  table.RollOn(525);
  table.game->graph.DisplayGridLines = false;
  for (const int style : {kGraphPlain, kGraphStriped, kGraphSolid}) {
    table.Choose(QString("mnuGraphStyle%1").arg(style));
    GraphColours colours = GraphColoursOf(table.game->screen.Graph, false);
    colours.parts[kGraphBankroll] = Qt::red;
    QImage image(1600, 900, QImage::Format_RGB32);
    QPainter painter(&image);
    const GraphPage& page = table.View().Page();
    PaintGraph(painter, image.rect(), page, colours);
    const GraphFrame frame = FrameOf(painter, image.rect(), page);
    for (int cell = 2; cell < 515; cell += 7) {
      const double y = frame.Y(page, table.closing[3][static_cast<std::size_t>(cell - 1)]);
      const QColor there = image.pixelColor(static_cast<int>(frame.X(cell)), static_cast<int>(y));
      EXPECT_TRUE(there.red() > 180 && there.green() < 150) << cell << " in style " << style;
    }
  }
}

TEST(BankrollGraphScreen, ReferenceLinesAreDraggedAndTellTheirDifferences) {
  OpenGraph table;
  table.RollOn(400);
  table.Choose("mnuDisplayRefLines");
  const std::vector<Currency>& all = table.closing[3];
  const auto expect = [&](int cell1, int cell2) {
    SCOPED_TRACE(testing::Message() << cell1 << " " << cell2);
    const Currency first = all[static_cast<std::size_t>(cell1 - 1)];
    const Currency second = all[static_cast<std::size_t>(cell2 - 1)];
    EXPECT_EQ(table.Text("lblRefBR1"), GraphMoney(first));
    EXPECT_EQ(table.Text("lblRefBR2"), GraphMoney(second));
    EXPECT_EQ(table.Text("lblRollsDif"), QString("Rolls diff  %1").arg(cell2 - cell1));
    EXPECT_TRUE(table.Text("lblBankrollDif").endsWith(GraphMoney(second - first)));
  };
  expect(1, 400);
  for (const auto& [from, to] : {std::pair(1, 120), {400, 60}, {120, 333}}) {
    QTest::mousePress(&table.View(), Qt::LeftButton, {}, table.AtCell(from));
    QTest::mouseMove(&table.View(), table.AtCell((from + to) / 2));
    QTest::mouseMove(&table.View(), table.AtCell(to));
    QTest::mouseRelease(&table.View(), Qt::LeftButton, {}, table.AtCell(to));
    QTest::mouseMove(&table.View(), table.AtCell(10));
  }
  expect(333, 60);
  table.View().setFocus();
  QTest::keyClick(&table.View(), Qt::Key_Home);
  QTest::keyClick(&table.View(), Qt::Key_PageDown);
  QTest::keyClick(&table.View(), Qt::Key_Return);
  QTest::keyClick(&table.View(), Qt::Key_Right);
  QTest::keyClick(&table.View(), Qt::Key_Return, Qt::ShiftModifier);
  expect(26, 27);
  QTest::keyClick(&Find<QSlider>(table.screen, "hsbRefRolls2"), Qt::Key_Right);
  expect(26, 28);
  QTest::keyClick(&Find<QSlider>(table.screen, "hsbRefRolls1"), Qt::Key_End);
  EXPECT_EQ(table.Text("lblRollsDif"), "Rolls diff  ---") << "a line beyond the points reads nothing";
  table.Choose("mnuDisplayRefLines");
  EXPECT_FALSE(Find<QSlider>(table.screen, "hsbRefRolls1").isVisible());
}

TEST(BankrollGraphScreen, ButtonsAndKeysMoveTheScaleAsTheMenuSetsTheModes) {
  OpenGraph table;
  table.RollOn(30);
  const BankrollGraph& graph = table.game->graph;
  const auto click = [&](const char* name) {
    QTest::mouseClick(&Find<QWidget>(table.screen, name), Qt::LeftButton);
  };
  table.Choose("mnuGraphAdjustType0");
  const Currency top = graph.ScaleTop;
  const Currency step = Currency::FromRaw(kGraphStep * graph.ScaleUnit.raw);
  click("picUpScaleUp");
  EXPECT_EQ(graph.ScaleTop, top + step);
  QTest::keyClick(&table.View(), Qt::Key_Down);
  QTest::keyClick(&table.View(), Qt::Key_Down);
  EXPECT_EQ(graph.ScaleTop, top - step);
  table.RollOn(60);
  EXPECT_EQ(graph.ScaleTop, top - step) << "nothing else moves a manual scale";
  for (const int units : {2, 4, 10}) {
    click("cmdScale1");
    EXPECT_EQ(graph.ScaleUnit, Currency::Dollars(units));
  }
  click("cmdScale0");
  EXPECT_EQ(graph.ScaleUnit, Currency::Dollars(4));
  for (int mode = 3; mode > 0; --mode) {
    table.Choose(QString("mnuGraphAdjustType%1").arg(mode));
    EXPECT_EQ(graph.ScaleMode, mode);
  }
  EXPECT_TRUE(graph.ScaleTop >= table.closing[3].back() && graph.ScaleBottom <= table.closing[3].back());
  table.host.answers.Type("25");
  table.Choose("mnuSetAverage");
  table.Choose("mnuDisplayAverage");
  EXPECT_EQ(table.Text("lblMovingAverage"), "25 roll avg");
  Currency sum;
  for (std::size_t n = 65; n < 90; ++n) sum += table.closing[3][n];
  EXPECT_EQ(table.Text("lblAverage"), GraphMoney(Divide(sum, Currency::Dollars(25))));
  table.Choose("mnuTogether5");
  ASSERT_EQ(table.View().Page().curves.size(), 2u);
  EXPECT_EQ(table.View().Page().curves[1].points, table.closing[5]);
  auto& players = Find<QComboBox>(table.screen, "cmbPlayer");
  QTest::keyClick(&players, Qt::Key_Down);
  EXPECT_EQ(graph.PlotSeat, 5);
  EXPECT_EQ(table.Text("lblCurrentBankroll"), GraphMoney(table.closing[5].back()));
  WhenOpen("frmSetColor", [](QDialog& dialog) {
    static_cast<QColorDialog&>(dialog).setCurrentColor(QColor(1, 2, 3));
    dialog.accept();
  });
  table.Choose("mnuSetColor4");
  EXPECT_EQ(table.game->screen.Graph.GraphColors[kGraphBankroll], 0x010203);
  table.Choose("mnuDefaultColors");
  EXPECT_EQ(table.game->screen.Graph.GraphColors[kGraphBankroll], -1);
  const int mask = table.game->settings.MessageMask;
  table.Choose("mnuShowLoggedMessages");
  EXPECT_EQ(table.game->settings.MessageMask, mask ^ 16);
  ExpectNamed(table.screen);
}

// Every page of a run at full speed reaches the printer, in sheets of so many, and the questions of the end.
TEST(BankrollGraphScreen, PrintsEachPageOfATurboRollByItself) {
  OpenGraph table;
  table.host.graphPageFull = [&](Game&) { table.screen.PageFilled(); };
  std::vector<std::int64_t> printed;  // the graphs of each sheet
  table.screen.printNow = [&] {
    printed.push_back(table.screen.WaitingGraphs());
    QImage sheet(600, 800, QImage::Format_RGB32);
    QPainter painter(&sheet);
    table.screen.PaintPicture(painter, sheet.rect());
    EXPECT_FALSE(table.screen.PrintHeadings().join("\n").contains("High:"));
    return true;
  };
  table.Choose("mnuGraphsPerPage1");
  table.Choose("mnuAutoPrint");
  table.game->settings.AutoStopInterval = 525 * 5 + 10;
  table.game->settings.RollThrottle = 0;
  table.host.answers.Ok();
  QTest::mouseClick(&Find<QPushButton>(table.screen, "cmdTurboRollActive"), Qt::LeftButton);
  EXPECT_EQ(table.game->graph.PlotCount, 10);
  EXPECT_EQ(printed, (std::vector<std::int64_t>{2, 2}));
  EXPECT_EQ(table.screen.WaitingGraphs(), 1);
  table.host.answers.No();
  table.host.answers.No();
  table.Choose("mnuAutoPrint");
  EXPECT_EQ(table.screen.WaitingGraphs(), 1) << "kept for the next sheet";
  table.Choose("mnuAutoPrint");
  // A dock that is closed takes it along.
  QMainWindow sides;
  QDockWidget dock;
  dock.setWidget(&table.screen);
  sides.addDockWidget(Qt::LeftDockWidgetArea, &dock);
  sides.show();
  QTest::qWait(5);
  EXPECT_EQ(printed.size(), 2u) << "moved, not closed";
  table.host.answers.Yes();
  dock.close();
  QTest::qWait(5);
  table.screen.setParent(nullptr);
  EXPECT_EQ(printed.size(), 3u) << "the last graph filled the sheet";
  EXPECT_TRUE(table.host.answers.Empty());
  table.screen.FinishPrinting();
  EXPECT_EQ(printed.size(), 3u) << "nothing is left";
}

TEST(BankrollGraphScreen, AFullGraphOfAllPlayersIsDrawnInFiveMilliseconds) {
  OpenGraph table;
  table.RollOn(525);
  table.game->graph.MovingAverageRolls = 525;
  table.game->graph.DisplayAverage = true;
  const auto best = [&] {
    qint64 least = 1'000'000'000;
    for (int n = 0; n < 20; ++n) {
      QElapsedTimer clock;
      clock.start();
      table.screen.Refresh();
      table.View().repaint();
      least = std::min(least, clock.nsecsElapsed());
    }
    return static_cast<double>(least) / 1e6;
  };
  const double alone = best();
  table.game->screen.Graph.TogetherSeats = 0x1FE;
  const double together = best();
  RecordProperty("milliseconds", std::to_string(alone) + " " + std::to_string(together));
  std::printf("a graph %.2f ms, of two %.2f ms\n", alone, together);
  EXPECT_LT(alone, 5);
  EXPECT_LT(together, 8);
}

TEST(BankrollGraphScreenLooks, PicturesInLightAndDarkAndSmall) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    const QString look = dark ? "-dark" : "-light";
    OpenGraph table;
    SavePicture(table.screen, "graph-empty" + look);
    table.RollOn(412);
    table.game->graph.MovingAverageRolls = 25;
    table.Choose("mnuDisplayAverage");
    table.screen.resize(440, 320);
    SavePicture(table.screen, "graph-docked" + look);
    EXPECT_LE(table.screen.minimumSizeHint().width(), 440);
    EXPECT_LE(table.screen.minimumSizeHint().height(), 320);
    table.screen.resize(760, 480);
    QTest::mouseMove(&table.View(), table.AtCell(200));
    table.Choose("mnuDisplayRefLines");
    SetReferenceRoll(*table.game, 2, 310);
    table.Choose("mnuTogether5");
    table.Choose("mnuGraphStyle1");
    table.Choose("mnuGraphAdjustType2");
    QTest::qWait(5);
    SavePicture(table.screen, "graph-together" + look);
    QImage sheet(794, 1123, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    PaintGraphs(painter, QRectF(40, 40, 714, 1000), {3, table.View().Page()}, 4,
                GraphColoursOf(table.game->screen.Graph, false));
    painter.end();
    QLabel paper;
    paper.setPixmap(QPixmap::fromImage(sheet));
    paper.resize(sheet.size());
    SavePicture(paper, "graph-sheet" + look);
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
