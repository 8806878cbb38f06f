// The six reports on the screen: what they show is the report, cell by cell, whatever is selected by mouse
// and keys; the pictures have its proportions; nothing is cut.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <random>

#include "base/bet_catalogue.h"
#include "rules/shooter.h"
#include "shell/frame/main_window.h"
#include "shell/screens/report_chart.h"
#include "shell/screens/report_window.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "stats/statistics.h"

namespace tessaryn::test {
namespace {

constexpr int kWindows[] = {kSummaryWindow,   kHandsWindow,      kBetResultsWindow,
                            kBetTrendsWindow, kRollTotalsWindow, kRollFreqsWindow};
constexpr const char* kReports[] = {"summary",    "hands",       "bet-results",
                                    "bet-trends", "roll-totals", "roll-frequencies"};

struct ReportTableau : ScreenTable {
  TestHost quiet;  // what the random bets are refused for is of no concern here
  std::vector<std::unique_ptr<ReportWindow>> windows;
  std::mt19937 random{5};

  explicit ReportTableau(int players = 3) {
    game->host = &quiet;
    game->settings.ShooterBetRule = 0;
    const char* names[] = {"Ann", "Bo", "Catherine", "Dieter", "Eve", "Frank the Elder", "Gus", "Hanna"};
    for (int seat = 1; seat <= players; ++seat) {
      Join(seat, names[seat - 1], "90000");
      game->table.seats[seat].handling.WinHandling = game->table.seats[seat].handling.LoseHandling = 2;
    }
  }
  ~ReportTableau() { QtWarnings().removeAll("This plugin does not support grabbing the keyboard"); }
  int Pick(int first, int last) { return std::uniform_int_distribution(first, last)(random); }
  void Open() {
    for (const int number : kWindows) {
      windows.push_back(std::make_unique<ReportWindow>(*game, number, nullptr));
      windows.back()->selected = [this] { RefreshAll(); };
      windows.back()->show();
    }
  }
  void RefreshAll() {
    for (const auto& window : windows) window->Refresh();
  }
  ReportWindow& Of(int number) { return *windows[std::find(kWindows, kWindows + 6, number) - kWindows]; }
  void Play(int rolls) {
    while (rolls-- > 0) {
      for (int seat = 1; seat <= game->table.OccupiedSeats; ++seat) {
        Bet(seat, kField, "5");
        Bet(seat, Pick(1, kBets), "25");
      }
      Roll(Pick(1, 6), Pick(1, 6));
    }
  }
  // The statistics of every bet of every seat, as many games would leave them.
  void FillBets() {
    for (int seat = 1; seat <= game->table.OccupiedSeats; ++seat)
      for (int bet = 1; bet <= kBets; ++bet)
        for (const int net : {Pick(1, 4000), -Pick(1, 4000)})
          UpdateBetStats(*game, seat, bet, Currency::Dollars(Pick(1, 900)), Currency::FromRaw(net * 2500));
  }
};

// Label and texts of each line, strip by strip, as they stand in the view.
QList<QStringList> Shown(const ReportView& view) {
  const ReportModel& model = view.Model();
  QList<QStringList> rows;
  for (int column = 0; column < model.columnCount(); ++column)
    for (int line = 0; model.IsLabelColumn(column) && line < model.rowCount(); ++line) {
      QStringList row{model.index(line, column).data().toString()};
      if (row[0].isEmpty() || model.IsHeading(line, column)) continue;
      for (int cell = column + 1; cell < model.columnCount() && !model.IsLabelColumn(cell); ++cell)
        row += model.index(line, cell).data().toString();
      while (row.back().isEmpty() && row.size() > 1) row.removeLast();
      rows += row;
    }
  return rows;
}

void ExpectShows(ReportWindow& window, const ReportTable& report) {
  QList<QStringList> expected;
  for (const ReportRow& row : report.rows) {
    QStringList texts{QString::fromStdString(row.label)};
    for (const ReportCell& cell : row.cells) texts += QString::fromStdString(cell.text);
    while (texts.back().isEmpty() && texts.size() > 1) texts.removeLast();
    expected += texts;
  }
  QList<QStringList> shown = Shown(Find<ReportView>(window, "tblReport"));
  if (auto* grid = window.findChild<ReportView*>("tblGaps")) shown += Shown(*grid);
  // In which column a row begins depends on the strips.
  for (QStringList& row : shown)
    while (row.size() > 2 && row[1].isEmpty()) row.removeAt(1);
  for (QStringList& row : expected)
    while (row.size() > 2 && row[1].isEmpty()) row.removeAt(1);
  EXPECT_EQ(shown, expected) << report.name;
  ASSERT_EQ(window.Rows().size(), static_cast<int>(report.rows.size()) + 1);
}

TEST(ReportScreens, ShowTheReportCellByCellThroughRollsAndSelections) {
  ReportTableau table;
  table.Open();
  for (int round = 0; round < 25; ++round) {
    table.Play(4);
    if (round % 8 == 7) table.State().Point = 0;
    ReportsShown& shown = table.game->screen.Reports;
    ReportSelection selection;
    selection.scope = shown.Scope = table.Pick(0, kScopes - 1);
    selection.seats = shown.Seats = static_cast<std::uint32_t>(table.Pick(0, 15));
    selection.seat = shown.Seat = table.Pick(1, 3);
    if (shown.AllBets = table.Pick(0, 1) == 1; !shown.AllBets) {
      shown.Bets = {kField, table.Pick(60, kBets)};
      selection.bets.Clear();
      for (const int bet : shown.Bets) selection.bets.Add(bet);
    }
    selection.percent = shown.HandsPercent = round % 2 == 1;
    selection.skewed = shown.Skewed = round % 3 == 1;
    selection.item = shown.Item = table.Pick(2, 89);
    shown.RollGrouping = round % 4;
    selection.grouping = static_cast<RollGrouping>(round % 4);
    SetOption(*table.game, kNoSeparators, round % 5 == 0);
    selection.separator = round % 5 != 0;
    SetOption(*table.game, kEachBetInARow, round % 6 == 0);
    selection.eachBet = round % 6 == 0;
    for (const auto& window : table.windows) window->resize(round % 2 == 0 ? 900 : 320, 400);
    table.RefreshAll();
    for (std::size_t i = 0; i < 6; ++i)
      ExpectShows(*table.windows[i], MakeReport(*table.game, *FindReport(kReports[i]), selection));
  }
}

TEST(ReportScreens, SelectorsWorkByMouseAndKeysAndAreCommonToAll) {
  ReportTableau table;
  table.Open();
  table.Play(30);
  ReportsShown& shown = table.game->screen.Reports;
  ReportWindow& hands = table.Of(kHandsWindow);
  ReportWindow& bets = table.Of(kBetResultsWindow);
  auto& hand = Find<QComboBox>(hands, "cmbHand");
  QStringList scopes;
  for (int i = 0; i < hand.count(); ++i) scopes += hand.itemText(i);
  EXPECT_EQ(scopes.join("|"), "Current hand|Last hand|Current session|Last session|All sessions");
  hand.setFocus();
  QTest::keyClick(&hand, Qt::Key_End);
  EXPECT_EQ(shown.Scope, kAllSessions);
  EXPECT_EQ(Find<QComboBox>(bets, "cmbHand").currentText(), "All sessions") << "the others show it at once";
  // Players: all at first; the second goes by a click, the third by a key.
  EXPECT_EQ(Find<QLabel>(hands, "lblPlayer").text(), "All players selected");
  QTest::keyClick(&Find<QPushButton>(hands, "cmdPlayers"), Qt::Key_Space);
  auto& players = Find<QListWidget>(hands, "lstPlayer");
  ASSERT_TRUE(players.isVisible());
  QTest::mouseClick(players.viewport(), Qt::LeftButton, {}, players.visualItemRect(players.item(1)).center());
  EXPECT_EQ(shown.Seats, kAllSeatsSelected & ~4u);
  EXPECT_EQ(players.item(1)->checkState(), Qt::Unchecked);
  QTest::keyClick(&players, Qt::Key_Down);
  QTest::keyClick(&players, Qt::Key_Space);
  EXPECT_EQ(shown.Seats, kAllSeatsSelected & ~12u);
  EXPECT_EQ(Find<QLabel>(bets, "lblPlayer").text(), "1 player selected");
  EXPECT_EQ(Find<QLabel>(bets, "lblNames").text(), "Ann");
  QTest::mouseClick(&Find<QPushButton>(hands, "lstPlayerNone"), Qt::LeftButton);
  EXPECT_EQ(Find<QLabel>(bets, "lblPlayer").text(), "No players selected");
  QTest::mouseClick(&Find<QPushButton>(hands, "lstPlayerAll"), Qt::LeftButton);
  EXPECT_EQ(shown.Seats, kAllSeatsSelected);
  QTest::keyClick(&players, Qt::Key_Escape);
  EXPECT_FALSE(players.isVisible());
  // Bets.
  QTest::mouseClick(&Find<QPushButton>(bets, "cmdBets"), Qt::LeftButton);
  auto& list = Find<QListWidget>(bets, "lstBets");
  EXPECT_EQ(list.count(), kBets);
  QTest::mouseClick(&Find<QPushButton>(bets, "lstBetsNone"), Qt::LeftButton);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_End);
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_FALSE(shown.AllBets);
  EXPECT_EQ(shown.Bets, std::vector<BetId>{kFire});
  SavePicture(*list.parentWidget(), "report-list");
  list.parentWidget()->close();
  // Buttons that stay pressed.
  QTest::keyClick(&Find<QPushButton>(hands, "cmdUnits"), Qt::Key_Space);
  EXPECT_TRUE(shown.HandsPercent);
  QTest::mouseClick(&Find<QPushButton>(table.Of(kRollFreqsWindow), "cmdProbable"), Qt::LeftButton);
  EXPECT_TRUE(shown.Skewed);
  EXPECT_TRUE(Find<QPushButton>(table.Of(kRollTotalsWindow), "cmdProb").isChecked());
  EXPECT_EQ(table.Of(kRollFreqsWindow).Rows()[5][0], "Skewed probable %:");
  auto& item = Find<QComboBox>(table.Of(kRollFreqsWindow), "cmbFreqNum");
  QTest::keyClick(&item, Qt::Key_Home);
  EXPECT_EQ(shown.Item, 2);
  EXPECT_EQ(item.currentText(), "Number 2 (1.1)");
  auto& player = Find<QComboBox>(table.Of(kBetTrendsWindow), "cmbPlayer");
  QTest::keyClick(&player, Qt::Key_End);
  EXPECT_EQ(shown.Seat, 3);
  // Menus, as the screens that are opened next have them too.
  Find<QAction>(table.Of(kRollTotalsWindow), "mnuDisplayTotals2").trigger();
  Find<QAction>(table.Of(kRollTotalsWindow), "mnuHideProbBars").trigger();
  Find<QAction>(bets, "mnuUseSeparator").trigger();
  EXPECT_TRUE(HasOption(*table.game, kNoSeparators));
  const ReportWindow again(*table.game, kRollTotalsWindow, nullptr);
  EXPECT_EQ(again.Rows().size(), 37);
  EXPECT_TRUE(again.findChild<ReportChartView*>("picGraph")->Chart().probable.isEmpty());
  for (const auto& window : table.windows) ExpectNamed(*window);
}

// The note of the hand's owner, while it concerns what is shown.
TEST(ReportScreens, TheHandsOwnerIsToldWhereTheDiceWerePassed) {
  ReportTableau table;
  table.Roll(2, 2);
  PassDice(*table.game, kPassByUser);
  for (const int scope : {kCurrentHand, kCurrentSession}) {
    table.game->screen.Reports.Scope = scope;
    ReportWindow window(*table.game, kHandsWindow, nullptr);
    window.show();
    auto& note = Find<QLabel>(window, "lblExplain");
    EXPECT_EQ(note.isVisible(), scope == kCurrentHand);
    EXPECT_EQ(ToCore(note.text()), LastHandNote(*table.game, scope));
    EXPECT_EQ(window.PrintHeadings().join(" ").contains("presently shooting"), scope == kCurrentHand);
    if (scope == kCurrentHand) SavePicture(window, "report-note");
  }
}

// A file may hold anything.
TEST(ReportScreens, SelectionsOutOfRangeShowSomethingAllTheSame) {
  ReportTableau table;
  table.Play(5);
  for (const int wrong : {-1, 99, 2147483647}) {
    table.game->screen.Reports = {wrong, 0xFFFFFFFFu, wrong, false, {0, -4, 500, 201},
                                  true,  wrong,       false, true,  wrong};
    table.game->screen.ReportViewOption = wrong;
    for (const int number : kWindows) {
      ReportWindow window(*table.game, number, nullptr);
      window.show();
      EXPECT_FALSE(window.Rows().isEmpty());
    }
  }
}

TEST(ReportScreens, EachBetIsSortedByAHeadingAndToldInOrderAgain) {
  ReportTableau table(2);
  table.FillBets();
  SetOption(*table.game, kEachBetInARow, true);
  ReportWindow window(*table.game, kBetResultsWindow, nullptr);
  window.show();
  auto& view = Find<ReportView>(window, "tblReport");
  const auto first = Shown(view);
  ASSERT_EQ(first.size(), 2 * kBets);
  EXPECT_EQ(first[0][0], "Ann: " + QString::fromStdString(BetName(1)));
  constexpr int kNet = 5;
  const QPoint heading(view.columnViewportPosition(kNet) + 4, view.horizontalHeader()->height() / 2);
  const auto net = [&](int line) {
    return view.Model().index(line, kNet).data().toString().remove(',').toDouble();
  };
  int sign = 1;
  for (int click = 0; click < 2; ++click, sign = -sign) {
    QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, heading);
    window.Refresh();
    for (int line = 1; line < 2 * kBets; ++line) ASSERT_LE(sign * net(line - 1), sign * net(line)) << line;
  }
  QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, heading);
  EXPECT_EQ(Shown(view), first);
  view.setCurrentIndex(view.Model().index(0, kNet));
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_LE(net(0), net(1)) << "by a key as well";
  EXPECT_NE(Shown(view), first);
}

// The luminance contrast of two colours as accessibility rules have it.
double Contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& c) {
    const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF());
  };
  return (std::max(light(a), light(b)) + 0.05) / (std::min(light(a), light(b)) + 0.05);
}

TEST(ReportScreens, GainsAndLossesAreToldByColourAndSignOnAnyDesktop) {
  for (const QPalette& palette : {QApplication::palette(), DarkPalette()})
    for (const Tone tone : {Tone::kGain, Tone::kLoss})
      EXPECT_GE(Contrast(ToneColour(tone, palette.color(QPalette::Base)), palette.color(QPalette::Base)),
                4.5);
  EXPECT_NE(ToneColour(Tone::kLoss, QColor(170, 170, 170)), ToneColour(Tone::kLoss, QColor(169, 169, 169)));
  ReportTableau table(1);
  UpdateBetStats(*table.game, 1, kField, Currency::Dollars(5), Currency::Dollars(-5));
  ReportWindow window(*table.game, kBetResultsWindow, nullptr);
  const ReportModel& model = Find<ReportView>(window, "tblReport").Model();
  const QModelIndex net = model.index(2, 4);  // of "Total $"
  EXPECT_EQ(net.data().toString(), "-5");
  EXPECT_EQ(net.data(ReportModel::kSignRole).toInt(), -1);
  EXPECT_EQ(model.index(2, 1).data(ReportModel::kSignRole).toInt(), 0) << "a wager is no gain";
}

// A column of the picture's pixels that have the bars' colour.
int BarHeight(const QImage& picture, int x, QRgb colour) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) count += picture.pixel(x, y) == colour ? 1 : 0;
  return count;
}

TEST(ReportPictures, BarsHaveTheReportsProportions) {
  ReportTableau table;
  table.Play(150);
  const ReportWindow window(*table.game, kRollTotalsWindow, nullptr);
  QImage picture(800, 500, QImage::Format_RGB32);
  picture.fill(Qt::red);
  QPainter painter(&picture);
  ASSERT_TRUE(window.HasPicture());
  window.PaintPicture(painter, picture.rect());
  painter.end();
  EXPECT_EQ(picture.pixel(0, 0), qRgb(255, 255, 255)) << "white, whatever the desktop";
  std::vector<int> heights;  // of the solid bars from the left
  for (int x = 0, last = 0; x < picture.width(); ++x) {
    const int height = BarHeight(picture, x, qRgb(0x0B, 0x6B, 0x45));
    if (height > 12 && last <= 12) heights.push_back(height);
    if (height > 12) heights.back() = std::max(heights.back(), height);
    last = height;
  }
  const auto rows = window.Rows();
  std::vector<double> shares;
  for (int row = 1; row < rows.size(); ++row) shares.push_back(rows[row][3].toDouble());
  std::erase_if(shares, [&](double share) { return share < 1; });
  ASSERT_EQ(heights.size(), shares.size());
  const auto most = std::max_element(shares.begin(), shares.end()) - shares.begin();
  for (std::size_t bar = 0; bar < shares.size(); ++bar)
    EXPECT_NEAR(heights[bar], shares[bar] / shares[most] * heights[most], 2.5) << bar;
}

// 8 players with all their bets, thousands of rolls: what a roll costs while a report is open.
TEST(ReportScreens, ARefreshTakesUnderFiveMilliseconds) {
  ReportTableau table(kSeats);
  table.FillBets();
  table.Play(60);
  table.Open();
  for (const bool each : {false, true}) {
    SetOption(*table.game, kEachBetInARow, each);
    for (std::size_t i = 0; i < 6; ++i) {
      double best = 1e9;
      for (int n = 0; n < 7; ++n) {
        QElapsedTimer time;
        time.start();
        table.windows[i]->Refresh();
        best = std::min(best, static_cast<double>(time.nsecsElapsed()) / 1e6);
      }
      RecordProperty(std::string(kReports[i]) + (each ? "Each" : ""), std::to_string(best));
      EXPECT_LT(best, 5) << kReports[i] << (each ? ", each bet" : "");
    }
  }
}

// Nothing is cut in a dock's width, on the smallest screen, and in letters of twice the size.
TEST(ReportScreens, NothingIsCutAndEveryLookHasItsPicture) {
  const QPalette before = QApplication::palette();
  const QFont plain = QApplication::font();
  struct Look {
    const char* name;
    QSize size;
    bool dark;
    double scale;
  };
  constexpr Look kLooks[] = {{"light", {}, false, 1},
                             {"dark", {}, true, 1},
                             {"dock", {440, 230}, false, 1},
                             {"dock-dark", {440, 460}, true, 1},
                             {"1024x600", {1024, 600}, false, 1},
                             {"scale2", {1024, 600}, false, 2}};
  for (const Look& look : kLooks) {
    if (look.dark) QApplication::setPalette(DarkPalette());
    QFont font = plain;
    font.setPointSizeF(plain.pointSizeF() * look.scale);
    QApplication::setFont(font);
    ReportTableau table;
    table.game->screen.Reports.RollGrouping = look.dark ? look.size.isValid() ? 2 : 3 : 0;
    table.Play(240);
    table.Open();
    for (std::size_t i = 0; i < 6; ++i) {
      ReportWindow& window = *table.windows[i];
      if (look.size.isValid()) window.resize(look.size);
      EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
      QTest::qWait(20);
      if (look.size.isValid()) {
        EXPECT_LE(window.width(), look.size.width()) << kReports[i] << look.name;
      }
      for (QWidget* part : window.findChildren<QWidget*>()) {
        if (!part->isVisibleTo(&window) || part->parentWidget() != &window) continue;
        const std::string name =
            std::string(kReports[i]) + " " + look.name + " " + part->objectName().toStdString();
        EXPECT_TRUE(window.rect().contains(part->geometry())) << name;
        if (qobject_cast<QPushButton*>(part) != nullptr || qobject_cast<QComboBox*>(part) != nullptr) {
          EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name;
        }
      }
      SavePicture(window, QString("report-%1-%2").arg(kReports[i], look.name));
    }
    QApplication::setPalette(before);
    QApplication::setFont(plain);
  }
}

TEST(ReportScreens, TheMenuOpensEachBesideTheTableAndRollsMoveThem) {
  ShellTable table;
  table.MakeBusy();
  ShellHost host;
  table.game->host = &host;
  MainWindow window(*table.game, host);
  window.Table().animate = false;
  window.show();
  const char* names[] = {"frmSummary",   "frmHands",      "frmBetResults",
                         "frmBetTrends", "frmRollTotals", "frmRollFreqs"};
  const char* commands[] = {"mnuSummary",   "mnuHands",      "mnuBetResults",
                            "mnuBetTrends", "mnuRollTotals", "mnuRollFreqs"};
  for (int i = 0; i < 6; ++i) {
    Find<QAction>(window, commands[i]).trigger();
    auto& report = static_cast<ReportWindow&>(Find<QWidget>(window, names[i]));
    EXPECT_TRUE(report.isVisible()) << names[i];
    EXPECT_FALSE(report.PrintHeadings().isEmpty());
    EXPECT_TRUE(Find<QAction>(window, commands[i]).isChecked());
  }
  auto& totals = static_cast<ReportWindow&>(Find<QWidget>(window, "frmRollFreqs"));
  const QString rolls = totals.Rows()[1][1];
  table.Roll(6, 6);
  ASSERT_TRUE(QTest::qWaitFor([&] { return totals.Rows()[1][1] != rolls; }));
  Find<QAction>(window, "mnuRollFreqs").trigger();
  EXPECT_FALSE(totals.isVisible());
}

}  // namespace
}  // namespace tessaryn::test
