// The settlement sheet beside the boxes: whoever answers alike has the same game, and what can't be answered
// from the sheet is asked in its box.
#include "shell/screens/settle_sheet.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <random>

#include "rules/handling.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"

namespace tessaryn::test {
namespace {

// A window, and hands that work whatever comes up.
struct Settling {
  ScreenTable table;
  MainWindow window{*table.game, table.host};
  QTimer timer;
  std::function<void(QDialog&)> sheet;  // frmSettleSheet; without one Enter
  std::function<void(QDialog&)> box;    // frmSettleBet; without one Escape
  int sheets = 0;
  int boxes = 0;

  Settling() {
    window.resize(1280, 800);
    window.Table().animate = false;
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    table.game->settings.MessageMask = 0;
    table.game->settings.ShooterBetRule = 0;
    QObject::connect(&timer, &QTimer::timeout, [this] { Look(); });
    timer.start(0);
  }
  void Look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    // Another table has hands of its own.
    if (dialog == nullptr || !dialog->isVisible() || dialog->parentWidget() != &window) return;
    const bool onSheet = dialog->objectName() == "frmSettleSheet";
    ++(onSheet ? sheets : boxes);
    timer.stop();
    if (const auto& work = onSheet ? sheet : box; work)
      work(*dialog);
    else
      QTest::keyClick(dialog, onSheet ? Qt::Key_Return : Qt::Key_Escape);
    timer.start(0);
  }
  // Four winners and losers of two players, on a 6 that makes the point.
  void MakeRoll() {
    table.Join(3, "Ann", "5000");
    table.Join(6, "Bo", "5000");
    for (const int seat : {3, 6}) table.Bet(seat, kPassLine, "10");
    table.Roll(2, 4);
    table.Bet(3, kPlace4 + 2, "12");
    table.Bet(3, kField, "5");
    table.Bet(3, kPassLineOdds, "20");
    table.Bet(6, kHard8, "4");
    table.Bet(6, kBuy4 + 2, "40");
    table.Bet(6, kField, "15");
  }
};

// A choice for each bet and outcome, another one each roll.
int ChoiceOf(int roll, const QString& what) { return 1 + static_cast<int>((qHash(what, 7) + roll) % 5); }

TEST(SettleSheet, GivesTheGameThatBoxesAnsweredAlikeGive) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  Settling one;
  Settling other;
  SetSettlesInBoxes(other.window.TheDesk(), true);
  int roll = 0;
  one.sheet = [&](QDialog& sheet) {
    const auto decisions = dynamic_cast<SettleSheet&>(sheet).Decisions();
    for (std::size_t at = 0; at < decisions.size(); ++at) {
      const SettleQuestion& question = decisions[at].question;
      const QString what =
          decisions[at].player + ", bet " + SettleBetName(question.bet) + SettleTitle(question);
      if (auto* choice = sheet.findChild<QComboBox*>(QString("cmbHandle%1").arg(at)); choice != nullptr)
        choice->setCurrentIndex(ChoiceOf(roll, what) - 1);
    }
    QTest::keyClick(&sheet, Qt::Key_Return);
  };
  // What is chosen for one bet may change what is asked about another: that comes in its box.
  one.box = other.box = [&](QDialog& box) {
    const QString what = Find<QLabel>(box, "lblBet").accessibleName() + Find<QLabel>(box, "lblTitle").text();
    Click(box, QString("cmdHandle%1").arg(ChoiceOf(roll, what)));
  };
  for (Settling* table : {&one, &other})
    for (const auto& [seat, name] : {std::pair{1, "Bea"}, {4, "Eve"}, {7, "Hal"}})
      table->table.Join(seat, name, "90000");
  std::mt19937 dice(seed);
  for (roll = 0; roll < 25; ++roll) {
    for (int n = 0; n < 9; ++n) {
      const int seat = 1 + 3 * static_cast<int>(dice() % 3);
      const int bet = n < 3 ? int{kPassLine} : 1 + static_cast<int>(dice() % kBets);
      const Currency amount = Currency::Dollars(1 + static_cast<int>(dice() % 40));
      for (Settling* table : {&one, &other}) PlaceBet(*table->table.game, seat, bet, amount);
    }
    const int die1 = 1 + static_cast<int>(dice() % 6);
    const int die2 = 1 + static_cast<int>(dice() % 6);
    for (Settling* table : {&one, &other}) table->table.Roll(die1, die2);
    TableState a = one.table.State();
    a.LastActivityTick = other.table.State().LastActivityTick;
    for (int seat = 1; seat <= kSeats; ++seat)  // the two tables lie in folders of their own
      a.seats[seat].SessionsLogName = other.table.State().seats[seat].SessionsLogName;
    ASSERT_EQ(FirstDifference(a, other.table.State()), "") << "roll " << roll;
  }
  EXPECT_GT(one.sheets, 0);
  EXPECT_LT(one.boxes, other.boxes / 5);
}

QComboBox& ChoiceFor(QDialog& sheet, const QString& what) {
  for (auto* choice : sheet.findChildren<QComboBox*>(QRegularExpression("^cmbHandle")))
    if (choice->accessibleName() == what) return *choice;
  ADD_FAILURE() << what.toStdString();
  std::abort();
}

TEST(SettleSheet, OffersWhatWasAnsweredLastAndAllSameCopiesTheFirst) {
  Settling table;
  table.MakeRoll();
  table.sheet = [](QDialog& sheet) {
    ExpectNamed(sheet);
    EXPECT_EQ(ToCore(Find<QLabel>(sheet, "lblTitle").text()), "Roll 2: 6, point made");
    ChoiceFor(sheet, "Ann, Pass Line, WINNER").setCurrentIndex(kWinPressDouble - 1);
    QTest::keyClick(&sheet, Qt::Key_Return);
  };
  table.table.Roll(3, 3);
  EXPECT_EQ(PlainMoney(table.table.State().BetAmount(3, kPassLine)), "20");
  table.table.Bet(3, kField, "5");
  table.sheet = [](QDialog& sheet) {
    const auto chosen = [&](const char* what) { return ChoiceFor(sheet, what).currentIndex() + 1; };
    EXPECT_EQ(chosen("Ann, Pass Line, WINNER"), kWinPressDouble);
    EXPECT_EQ(chosen("Bo, Pass Line, WINNER"), kWinSame);
    Click(sheet, "cmdAllSame");
    const int first = Find<QComboBox>(sheet, "cmbHandle0").currentIndex() + 1;
    for (const char* what : {"Ann, Pass Line, WINNER", "Bo, Pass Line, WINNER", "Ann, Field, WINNER"})
      EXPECT_EQ(chosen(what), first) << what;
    QTest::keyClick(&sheet, Qt::Key_Escape);
  };
  table.table.Roll(5, 6);
  EXPECT_EQ(PlainMoney(table.table.State().BetAmount(3, kPassLine)), "20") << "left by Escape: the same bet";
  EXPECT_EQ(table.sheets, 2);
  EXPECT_EQ(table.boxes, 0);
}

TEST(SettleSheet, OneAtATimeAndWhatWasNotForeseenAreAskedInBoxes) {
  for (const bool oneAtATime : {true, false}) {
    Settling table;
    table.MakeRoll();
    if (oneAtATime) {
      table.sheet = [](QDialog& sheet) { Click(sheet, "cmdOneAtATime"); };
    } else {
      // The table pays otherwise than the copy did.
      table.table.host.askSettlement = [ask = table.table.host.askSettlement](Game& game,
                                                                              SettleQuestion question) {
        question.gross += Currency::Dollars(1);
        return ask(game, question);
      };
    }
    table.table.Roll(3, 3);
    EXPECT_EQ(table.sheets, 1);
    EXPECT_GE(table.boxes, 5) << oneAtATime;
  }
}

TEST(SettleSheet, ChoicesForGoodAndForTheRestOfTheRoll) {
  Settling table;
  table.MakeRoll();
  table.sheet = [](QDialog& sheet) {
    Find<QAbstractButton>(sheet, "chkDontAskAgain").setChecked(true);
    QTest::keyClick(&sheet, Qt::Key_Return);
  };
  table.table.Roll(3, 3);
  for (const int seat : {3, 6}) {
    EXPECT_EQ(table.table.State().seats[seat].handling.WinHandling, 2) << seat;
    EXPECT_EQ(table.table.State().seats[seat].handling.LoseHandling, 1) << seat;
  }
  Settling boxes;
  SetSettlesInBoxes(boxes.window.TheDesk(), true);
  boxes.MakeRoll();
  boxes.box = [](QDialog& box) {
    Find<QAbstractButton>(box, "chkRestOfRoll").setChecked(true);
    Click(box, "cmdHandle1");
  };
  boxes.table.Roll(3, 3);
  EXPECT_EQ(boxes.boxes, 2) << "one for the winners, one for the losers";
  EXPECT_EQ(boxes.table.State().seats[3].handling.WinHandling, 0);
}

// Nothing is cut in the smallest window, and a long list scrolls.
TEST(SettleSheet, FitsTheWindowAndPictures) {
  for (const QSize size : {QSize(1280, 800), QSize(1024, 600), QSize(800, 500)}) {
    for (const bool dark : {false, true}) {
      const QPalette before = QApplication::palette();
      if (dark) QApplication::setPalette(DarkPalette());
      Settling table;
      table.window.resize(size);
      table.MakeRoll();
      table.sheet = [&](QDialog& sheet) {
        const QRect over(table.window.Table().mapToGlobal(QPoint(0, 0)), table.window.Table().size());
        EXPECT_TRUE(over.contains(sheet.geometry())) << size.width();
        auto& area = Find<QScrollArea>(sheet, "scrDecisions");
        EXPECT_LE(area.widget()->minimumSizeHint().width(), area.viewport()->width());
        SavePicture(sheet, QString("sheet-%1-%2").arg(size.width()).arg(dark ? "dark" : "light"));
        QTest::keyClick(&sheet, Qt::Key_Return);
      };
      table.table.Roll(3, 3);
      EXPECT_EQ(table.sheets, 1);
      QApplication::setPalette(before);
    }
  }
}

}  // namespace
}  // namespace tessaryn::test
