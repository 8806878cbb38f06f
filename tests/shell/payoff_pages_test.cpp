// What bets pay, what they are worth and what they earn in comps, on the configuration's tabs: worked by keys
// and mouse, against `set` and against the rules' own figures.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <random>

#include "base/bet_catalogue.h"
#include "play/setting_table.h"
#include "rules/advantage.h"
#include "rules/bets_together.h"
#include "rules/comps.h"
#include "rules/payoffs.h"
#include "shell/screens/configuration.h"
#include "shell/screens/figures_table.h"
#include "shell/screens/screen_parts.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

using namespace test;

struct Pages : ScreenTable {
  std::unique_ptr<ConfigurationScreen> screen;

  explicit Pages(const char* tab) {
    Join(2, "Ann", "10000");
    Join(5, "Bo");
    screen = std::make_unique<ConfigurationScreen>(*game, SoundShelf{}, nullptr);
    screen->ShowTab(tab);
    screen->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  QTableView& Table(const char* name) { return Find<QTableView>(*screen, name); }
  void Choose(const char* name, int index) {
    auto& box = Find<QComboBox>(*screen, name);
    box.setFocus();
    while (box.currentIndex() != index)
      QTest::keyClick(&box, box.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
  }
  // Puts the mark on a payoff's first number, and types.
  void Type(int table, const QString& caption, const QString& keys) {
    Choose("cmbPayoffs", table);
    auto& view = Table("txtPayoffs");
    view.setFocus();
    for (int row = 0; row < view.model()->rowCount(); ++row)
      if (view.model()->index(row, 0).data() == caption) view.setCurrentIndex(view.model()->index(row, 1));
    for (const QChar key : keys) {
      QWidget* typed = QApplication::focusWidget();
      key == '\n' ? QTest::keyClick(typed, Qt::Key_Return) : QTest::keyClick(typed, key.toLatin1());
    }
  }
  QString Cell(const char* table, const QString& caption, int column) {
    const QAbstractItemModel& model = *Table(table).model();
    for (int row = 0; row < model.rowCount(); ++row)
      if (model.index(row, 0).data() == caption) return model.index(row, column).data().toString();
    ADD_FAILURE() << "no " << caption.toStdString();
    return {};
  }
  std::string PayoffIs(const char* setting) {
    std::string value;
    std::string error;
    GetSetting(*game, setting, 0, value, error);
    return value;
  }
  Msg Leave() {
    game->box = {};
    host.answers.Ok();
    Click(*screen, "cmdClose");
    host.answers = {};
    return game->box.MsgId;
  }
  void PlayRandomly(int rolls) {
    game->settings.MessageMask = 0;
    game->settings.ShooterBetRule = 0;
    for (SeatState& seat : State().seats) seat.handling.WinHandling = seat.handling.LoseHandling = 2;
    std::mt19937 random(7);
    for (int n = 0; n < rolls; ++n) {
      for (const int bet : {static_cast<int>(kPassLine), kField + 0, kPlace4 + 2, kHard8 + 0})
        if (State().BetAmount(2, bet) == kZero) Bet(2, bet, "12");
      Roll(static_cast<int>(random() % 6) + 1, static_cast<int>(random() % 6) + 1);
    }
  }
};

TEST(PayoffPage, TypingGoesThroughTheNumbersAndTheWord) {
  Pages window("picPayoffs");
  struct Case {
    int table;
    const char* caption;
    const char* keys;
    const char* setting;
    const char* value;
  };
  const Case cases[] = {
      {0, "Place 6", "7\n\n5\n", "PayoffTable.33", "7 to 5"},
      {0, "Place 8", "13t12\n", "PayoffTable.34", "13 to 12"},
      {0, "Hard 4", "8f1\n", "PayoffTable.52", "8 for 1"},
      {0, "Hard 4", "t", "PayoffTable.52", "8 to 1"},
      {0, "Pass/Come 10 Odds", "2.5\n", "PayoffTable.30", "2.5 to 1"},
      {0, "DP/DC 4 Odds", "\n\n3\n", "PayoffTable.13", "1 to 3"},
      {0, "Two", "31\n\n0\n", "PayoffTable.56", "31 to 1"},  // nothing is paid per 0
      {0, "Two", "x-\n", "PayoffTable.56", "31 to 1"},       // nor is a sign alone a number
      {1, "12   (6.6)", "3\n", "FieldPayoffs.21", "3 to 1"},
      {2, "Seven after the point", "4\n", "SevenPointSevenPayoffs.2", "4 to 1"},
      {3, "8     (4.4)", "5f2\n", "MidwayPayoffs.5", "5 for 2"},
      {4, "3 points made", "-0.5\n", "SharpShooterPayoffs.4", "-0.5 to 1"},
      {5, "11 line wins or more", "150\n", "RideTheLinePayoffs.12", "150 to 1"},
      {6, "6 different points", "1000\n", "FirePayoffs.6", "1000 to 1"},
  };
  ScreenTable plain;
  std::string error;
  for (const Case& each : cases) {
    window.Type(each.table, each.caption, each.keys);
    EXPECT_EQ(window.PayoffIs(each.setting), each.value) << each.caption;
    ASSERT_TRUE(SetSetting(*plain.game, each.setting, 0, each.value, error)) << error;
    EXPECT_EQ(FirstDifference(window.game->payoffs, plain.game->payoffs), "") << each.setting;
    EXPECT_EQ(window.game->settings.FieldPreset, plain.game->settings.FieldPreset);
  }
  EXPECT_EQ(window.Cell("txtPayoffs", "6 different points", 4), "originally 999 to 1");
  // A cell that is still open as the screen is left is taken.
  window.Type(0, "Craps", "8");
  EXPECT_EQ(window.Leave(), Msg{});
  EXPECT_EQ(window.PayoffIs("PayoffTable.61"), "8 to 1");
  // Restored only after a yes.
  window.screen->show();
  for (const bool yes : {false, true}) {
    yes ? window.host.answers.Yes() : window.host.answers.No();
    Click(*window.screen, "mnuRestoreDefaultPayoffs");
    EXPECT_EQ(window.game->box.MsgId, Msg::kAskRestorePayoffs);
    EXPECT_EQ(window.PayoffIs("PayoffTable.61"), yes ? "7 to 1" : "8 to 1");
  }
  PayoffTables original;
  ResetPayoffs(original, window.game->settings.Unit());
  EXPECT_EQ(FirstDifference(window.game->payoffs, original), "");
}

TEST(PayoffPage, EveryPresetOfTheFieldIsSet) {
  Pages window("picPayoffs");
  for (int preset = kFieldPresets - 1; preset >= 0; --preset) {
    PayoffTables wanted = window.game->payoffs;
    SetFieldPreset(wanted, preset, window.game->settings.Unit());
    Find<QAction>(*Find<QPushButton>(*window.screen, "mnuSetSuperField").menu(),
                  QString("mnuSF") + FieldPresetFacts(preset).name)
        .trigger();
    EXPECT_EQ(FirstDifference(window.game->payoffs, wanted), "") << FieldPresetFacts(preset).name;
    if (std::string(FieldPresetFacts(preset).name) != "World") continue;
    EXPECT_EQ(window.Cell("txtPayoffs", "7     (3.4) (4.3)", 1), "0");
    EXPECT_EQ(window.Cell("txtPayoffs", "7     (3.4) (4.3)", 2), "for");
    EXPECT_EQ(window.Cell("txtPayoffs", "7     (3.4) (4.3)", 3), "5");
  }
}

TEST(PayoffPage, WhatCanNotBeWaitsIsToldAndKeepsTheScreenOpen) {
  Pages window("picPayoffs");
  struct Case {
    int table;
    const char* caption;
    const char* bad;
    const char* good;
    const char* told;
  };
  const Case cases[] = {
      {0, "DP/DC 9", "0\n", "1\n", "The payoff on DP/DC 9 must be a positive amount."},
      {2, "Come-out 7", "-1\n", "2\n", "The payoffs on SevenPoint7 must be positive amounts."},
      {4, "0 points made", "-2\n", "-1\n",
       "The loss on any Sharpshooter bet payoff cannot exceed the amount wagered."},
      {6, "0 different points", "-3t2\n", "\n\n3\n",
       "The loss on any Fire bet payoff cannot exceed the amount wagered."}};
  for (const Case& each : cases) {
    const PayoffTables before = window.game->payoffs;
    window.screen->ShowTab("picPayoffs");
    window.Type(each.table, each.caption, each.bad);
    EXPECT_EQ(FirstDifference(window.game->payoffs, before), "") << each.caption;
    EXPECT_EQ(window.Cell("txtPayoffs", each.caption, 4), "not taken yet");
    EXPECT_TRUE(Find<QLabel>(*window.screen, "lblWaiting").text().contains(each.told));
    window.screen->ShowTab("picMisc");
    EXPECT_NE(window.Leave(), Msg{});
    EXPECT_EQ(window.game->box.MsgText, each.told);
    EXPECT_TRUE(window.screen->isVisible());
    EXPECT_EQ(window.screen->Tab(), "picPayoffs");
    window.Type(each.table, each.caption, each.good);
    EXPECT_EQ(window.Leave(), Msg{}) << each.caption << " " << window.game->box.MsgText;
    window.screen->show();
  }
  // Every row of the Field losing: the last one waits, and a preset takes its place.
  window.screen->ShowTab("picPayoffs");
  for (int row = 1; row <= kFieldRows; ++row) window.Type(1, FieldRowCaption(row), "-1f1\n");
  window.Leave();
  EXPECT_EQ(window.game->box.MsgText, "At least one of the Field bet payoffs must be postiive.");
  Find<QAction>(*Find<QPushButton>(*window.screen, "mnuSetSuperField").menu(), "mnuSFPass").trigger();
  EXPECT_EQ(window.PayoffIs("FieldPayoffs.20") + ", " + window.PayoffIs("FieldPayoffs.21"),
            "1 to 1, -1 to 1");
  // What a bet off the table pays is taken.
  window.Type(3, "8     (4.4)", "0\n");
  EXPECT_EQ(window.PayoffIs("MidwayPayoffs.5"), "2 to 1");
  window.screen->ShowTab("picLayout");
  Click(*window.screen, "chkUseMidwayBet");
  EXPECT_EQ(window.PayoffIs("MidwayPayoffs.5"), "0 to 1");
  EXPECT_EQ(window.Leave(), Msg{});
}

TEST(AdvantagePage, ShowsTheFiguresOfTheRulesInForceAndSortsThem) {
  Pages window("picAdvantage");
  window.PlayRandomly(120);
  for (const int bet : {static_cast<int>(kCome), kBuy4 + 0}) window.Bet(2, bet, "20");
  Game& game = *window.game;
  const auto check = [&](double amount) {
    const QList<QStringList> rows = window.screen->Rows();
    const std::vector<AdvantageRow> wanted = AdvantageTable(game);
    ASSERT_GE(rows.size(), static_cast<qsizetype>(wanted.size()) + 1);
    for (std::size_t n = 0; n < wanted.size(); ++n) {
      const Advantage& figures = wanted[n].figures;
      const double numbers[] = {figures.evPerRoll, figures.stdevPerRoll, figures.evPerDecision,
                                figures.stdevPerDecision,
                                figures.evPerRoll * game.settings.SimRollRate.ToDouble()};
      const QStringList& row = rows[static_cast<qsizetype>(n) + 1];
      ASSERT_EQ(row[0], FromCore(wanted[n].caption));
      for (int column = 0; column < 5; ++column)
        EXPECT_EQ(row[column + 1], FigureText(numbers[column] * amount)) << row[0].toStdString();
    }
  };
  check(100);
  EXPECT_EQ(window.Cell("picAdvantageTable", "Passline/Come", 3), "-1.41");
  EXPECT_EQ(window.Cell("picAdvantageTable", "Passline/Come", 10), "01:41.4") << "3.38 rolls";
  // Rules, dice and what the screen itself asks for are seen at once.
  std::string error;
  ASSERT_TRUE(SetSettings(game, {{"PayoffTable.33", 0, "7 to 5"}, {"BuyVigUpFront", 0, "off"}}, error));
  window.screen->Refresh();
  check(100);
  Click(*window.screen, "mnuIncludeZeroOutcomes");
  EXPECT_TRUE(game.settings.IncludeZeroOutcomes);
  check(100);
  EXPECT_EQ(window.Cell("picAdvantageTable", "Place 6", 3), window.Cell("picAdvantageTable", "Place 6", 1));
  TypeInto(*window.screen, "txtAdvantageBet", "25");
  check(25);
  Click(*window.screen, "mnuIncludeZeroOutcomes");
  // The player's bets, and the session so far.
  Find<QComboBox>(*window.screen, "cmbAdvantagePlayer").setFocus();
  window.Choose("cmbAdvantagePlayer", 0);
  BetAmounts up;
  double expected = 0;
  for (int bet = 1; bet <= kBets; ++bet) {
    if (window.State().BetAmount(2, bet) > kZero) up[bet] = window.State().BetAmount(2, bet).ToDouble();
    expected += BetStat(game.stats, kWagerStats, kCurrentSession, 2, bet, kStatTotal).ToDouble() *
                FigureAdvantage(game, bet).evPerDecision;
  }
  ASSERT_GE(up.size(), 3U);
  const BetsTogether together = FigureBetsTogether(game, up);
  const QString told = Find<QLabel>(*window.screen, "lblUp").text();
  EXPECT_TRUE(told.contains(DollarFigure(together.evPerHour) + " an hour")) << told.toStdString();
  EXPECT_TRUE(told.contains(DollarFigure(together.stdevPerHour))) << told.toStdString();
  const QString session = Find<QLabel>(*window.screen, "lblSession").text();
  EXPECT_TRUE(session.contains(DollarFigure(expected) + " was")) << session.toStdString();
  const Currency came = BankrollOf(game, kCurrentSession, 2) - Currency::Dollars(10000);
  EXPECT_TRUE(session.contains(DollarFigure(came.ToDouble()) + " it came to")) << session.toStdString();
  // Sorted by key, turned round, by the heading, and back in its own order.
  auto& table = window.Table("picAdvantageTable");
  const auto sorted = [&](int column, bool up_) {
    double before = up_ ? -1e9 : 1e9;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
      const double value = table.model()->index(row, column).data().toString().toDouble();
      if (up_ ? value < before - 0.011 : value > before + 0.011) return false;
      before = value;
    }
    return true;
  };
  window.Choose("cmbAdvantageSort", 4);
  EXPECT_TRUE(sorted(3, true));
  QTest::mouseClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {},
                    QPoint(table.columnViewportPosition(3) + 5, 5));
  EXPECT_TRUE(sorted(3, false));
  window.Choose("cmbAdvantageSort", 0);
  check(25);
  Click(*window.screen, "chkOnlyUp");
  EXPECT_EQ(table.model()->rowCount(),
            static_cast<int>(up.size()) - static_cast<int>(up.contains(kPassLine)));
  SavePicture(*window.screen, "advantage-up");
  EXPECT_EQ(window.Leave(), Msg{});
}

TEST(CompsPage, BetsAreFlippedAndTheCompsAreThoseOfTheRules) {
  Pages window("picComps");
  window.PlayRandomly(120);
  window.screen->Refresh();
  auto& bets = window.Table("lstCompBets");
  window.screen->resize(900, 600);
  QTest::qWait(20);
  EXPECT_LE(bets.columnViewportPosition(3) + bets.columnWidth(3), bets.viewport()->width())
      << "what is expected";
  bets.setFocus();
  bets.setCurrentIndex(bets.model()->index(kField - 1, 0));
  QTest::keyClick(&bets, Qt::Key_Space);
  EXPECT_FALSE(window.game->settings.CompBetFlags.Has(kField));
  const QPoint at = bets.visualRect(bets.model()->index(kField - 1, 0)).center();
  QTest::mouseClick(bets.viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(bets.viewport(), Qt::LeftButton, {}, at);
  EXPECT_TRUE(window.game->settings.CompBetFlags.Has(kField));
  // Sorted, a bet is still the one that is shown.
  window.Choose("cmbCompSort", 3);
  window.Choose("cmbCompPlayer", 0);
  bets.setFocus();
  QTest::keyClick(&bets, Qt::Key_End, Qt::ControlModifier);
  const QString most = bets.currentIndex().siblingAtColumn(0).data().toString();
  QTest::keyClick(&bets, Qt::Key_Space);
  int off = 0;
  for (int bet = 1; bet <= kBets; ++bet)
    if (!window.game->settings.CompBetFlags.Has(bet)) off = bet;
  EXPECT_EQ(FromCore(BetName(off)), most);
  EXPECT_GT(BetStat(window.game->stats, kWagerStats, kCurrentSession, 2, off, kStatTotal), kZero);
  for (const int base : {0, 1, 2}) {
    Click(*window.screen, QString("optBaseComps%1").arg(base));
    const Comps comps = FigureComps(*window.game, kCurrentSession, 2);
    EXPECT_EQ(Find<QLabel>(*window.screen, "lblComps0").text(), DollarFigure(comps.totalAction.ToDouble()));
    EXPECT_EQ(Find<QLabel>(*window.screen, "lblComps5").text(), DollarText(comps.compAmount));
  }
  Click(*window.screen, "cmdCompsSelectAll");
  Click(*window.screen, "cmdCompsNo");
  EXPECT_TRUE(window.game->settings.CompBetFlags.Empty());
  EXPECT_EQ(Find<QLabel>(*window.screen, "lblComps5").text(), "$0");
  SavePicture(*window.screen, "comps-none");
}

}  // namespace
}  // namespace tessaryn
