// A whole evening by real mouse and key events on the real window, beside the same commands given to a core
// that has no window: after every step both tables are the same, and both said the same.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <deque>
#include <functional>
#include <set>

#include "base/bet_catalogue.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "rules/bet_rules.h"
#include "rules/shooter.h"
#include "shell/frame/main_window.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/roll_pad.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "support/places.h"
#include "support/said.h"

namespace tessaryn::test {
namespace {

// Hands at the boxes: notes what each says, answers questions as told and settles bets by every choice in
// turn.
class Hands {
 public:
  Hands() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(0);
  }
  std::deque<std::function<void(QDialog&)>> answers;  // for questions, in their order
  std::vector<std::string> texts;
  std::function<void()> watch;  // called as a box is worked
  int settled = 0;

 private:
  void Look() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || busy_) return;
    busy_ = true;
    if (watch) watch();
    if (dialog->objectName() == "frmSettleBet") {
      Click(*dialog, QString("cmdHandle%1").arg(1 + settled++ % 7));
    } else if (dialog->objectName() == "frmMsg") {
      Read(*dialog);
    } else {
      Answer(*dialog);
    }
    busy_ = false;
  }
  void Read(QDialog& box) {
    const bool question =
        box.findChild<QWidget*>("cmdButton1") != nullptr || box.findChild<QWidget*>("txtInput0") != nullptr;
    if (!question) {
      texts.push_back(ToCore(box.windowTitle() + "|" + box.findChild<QLabel*>("lblMsg")->text()));
      QTest::mouseClick(box.findChild<QWidget*>("cmdButton0"), Qt::LeftButton);
      return;
    }
    ASSERT_FALSE(answers.empty()) << "asked: " << box.findChild<QLabel*>("lblMsg")->text().toStdString();
    Answer(box);
  }
  void Answer(QDialog& box) {
    ASSERT_FALSE(answers.empty()) << "open: " << box.objectName().toStdString();
    const auto answer = answers.front();
    answers.pop_front();
    answer(box);
  }

  QTimer timer_;
  bool busy_ = false;
};

void PressReturn(QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); }
void PressYes(QDialog& box) { QTest::keyClick(&box, Qt::Key_Y); }
void PressEscape(QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); }

// Joins with a name and an amount to buy in for.
std::function<void(QDialog&)> Joining(const char* name, const char* buyIn) {
  return [name, buyIn](QDialog& box) {
    ASSERT_EQ(box.objectName(), "frmJoin");
    QTest::keyClicks(box.focusWidget(), name);
    TypeInto(box, "txtBuyIn", buyIn);
    QTest::keyClick(box.focusWidget(), Qt::Key_Return);
  };
}

struct Evening {
  ScreenTable real;
  TestTable model;
  // As the model has no list to put them into.
  const bool notesInBoxes = WritePreferences(real.game->dataFolder, {.notesInBoxes = true});
  MainWindow window{*real.game, real.host};
  Hands hands;
  std::size_t saidBefore = 0;

  Evening() {
    window.resize(1500, 900);
    window.Table().animate = false;
    SetSettlesInBoxes(window.TheDesk(), true);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    // Every choice of the settlement dialog in turn, as the hands press them.
    for (int n = 0; n < 20'000; ++n) {
      SettleAnswer answer;
      answer.choice = 1 + n % 7;
      model.host.settleAnswers.push_back(answer);
    }
  }
  TableWidget& Table() { return window.Table(); }
  TableState& Core() { return model.game->table; }

  void Compare(const std::string& after) {
    const TableState& a = real.game->table;
    const TableState& b = Core();
    ASSERT_EQ(a.Point, b.Point) << after;
    ASSERT_EQ(a.ShooterSeat, b.ShooterSeat) << after;
    ASSERT_EQ(a.HandSeat, b.HandSeat) << after;
    ASSERT_EQ(a.SelectedSeat, b.SelectedSeat) << after;
    for (int seat = 0; seat <= kSeats; ++seat) {
      ASSERT_EQ(a.seats[seat].SeatName, b.seats[seat].SeatName) << after;
      ASSERT_EQ(a.BankrollCurrent[seat].raw, b.BankrollCurrent[seat].raw) << after << ", seat " << seat;
      ASSERT_EQ(a.seats[seat].OnTableAmount.raw, b.seats[seat].OnTableAmount.raw)
          << after << ", seat " << seat;
      for (int bet = 1; bet <= kBets; ++bet) {
        ASSERT_EQ(a.BetAmount(seat, bet).raw, b.BetAmount(seat, bet).raw)
            << after << ", " << BetName(bet) << " of " << seat;
        ASSERT_EQ(BetWorkingOf(*real.game, seat, bet), BetWorkingOf(*model.game, seat, bet))
            << after << ", " << BetName(bet);
        ASSERT_EQ(a.BetCommitted(seat, bet).raw, b.BetCommitted(seat, bet).raw)
            << after << ", " << BetName(bet);
      }
    }
    ASSERT_EQ(hands.texts.size() - saidBefore, model.host.boxes.size()) << after;
    for (std::size_t n = 0; n < model.host.boxes.size(); ++n) {
      const ShownBox& box = model.host.boxes[n];
      ASSERT_EQ(hands.texts[saidBefore + n], box.title + "|" + box.text) << after;
    }
    saidBefore = hands.texts.size();
    model.host.boxes.clear();
  }

  // A key as the platform sends it: shortcuts belong to the active window.
  void Key(Qt::Key key) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(window.windowHandle(), key);
  }

  // The pointer over the table, with buttons held.
  void Point(QPoint point, Qt::MouseButtons buttons = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, point, Table().mapToGlobal(point), Qt::NoButton, buttons, {});
    QApplication::sendEvent(&Table(), &move);
  }

  // --- Each step, by hand and by command.
  void Join(int seat, const char* name) {
    hands.answers = {Joining(name, "9000")};
    QTest::mouseClick(&Table(), Qt::LeftButton, {}, Table().PointOfSeat(seat));
    EXPECT_TRUE(hands.answers.empty());
    model.Join(seat, name, "9000");
    SelectSeat(*model.game, seat);
    Compare(std::string("join ") + name);
  }
  void Select(int seat) {
    QTest::mouseClick(&Table(), Qt::LeftButton, {}, Table().PointOfSeat(seat));
    SelectSeat(*model.game, seat);
    Compare("select");
  }
  void Bet(int bet, int check) {
    auto* button = window.findChild<QWidget*>(QString("picCheck%1").arg(check));
    QTest::mouseClick(button, Qt::LeftButton);
    const int seat = Core().SelectedSeat;
    const int meant = MeantBet(*model.game, Table().Layout().Areas.empty() ? bet : AreaOf(bet));
    QTest::mouseClick(&Table(), Qt::LeftButton, {}, Table().PointOfBet(seat, bet));
    PlaceBet(*model.game, seat, meant, model.game->settings.CheckValue[check]);
    Compare("bet " + BetName(bet));
  }
  // Odds on Don't Pass have no area of their own.
  static int AreaOf(int bet) { return bet == kDontPassOdds ? static_cast<int>(kDontPass) : bet; }
  void KeyThenClick(Qt::Key key, int bet, const std::function<void(Game&, int)>& command) {
    const int seat = Core().SelectedSeat;
    const int meant = MeantBet(*model.game, AreaOf(bet));
    Key(key);
    // A command that can't act leaves the click a plain bet; such steps are not taken here.
    QTest::mouseClick(&Table(), Qt::LeftButton, {}, Table().PointOfBet(seat, bet));
    command(*model.game, meant);
    Compare("key and click on " + BetName(bet));
  }
  void Roll(int die1, int die2) {
    for (TableState* table : {&real.game->table, &Core()}) {
      table->ManualDie1 = die1;
      table->ManualDie2 = die2;
      table->ManualRollPending = true;
    }
    QTest::mouseClick(&Table(), Qt::RightButton, {}, QPoint(5, 5));
    model.Roll(die1, die2);
    Compare("roll " + std::to_string(die1) + std::to_string(die2));
  }
};

TEST(Evening, FourPlayersBetEverythingAndLeaveTheSameTableAsTheCore) {
  Evening evening;
  for (Game* game : {evening.real.game.get(), evening.model.game.get()})
    for (SeatState& seat : game->table.seats) seat.handling.WinHandling = seat.handling.LoseHandling = 0;
  evening.Join(2, "Ann");
  evening.Join(4, "Boris");
  evening.Join(5, "Cleo");
  evening.Join(7, "Dan");
  const int kSeatsHere[] = {2, 4, 5, 7};
  const int kDice[][2] = {{2, 4}, {5, 5}, {6, 3}, {1, 1}, {4, 4}, {3, 3},
                          {6, 5}, {4, 1}, {2, 2}, {1, 2}, {3, 4}};
  int step = 0;
  for (const auto& dice : kDice) {
    for (const int seat : kSeatsHere) {
      ASSERT_NO_FATAL_FAILURE(evening.Select(seat));
      // On the come-out and in the middle of a hand everything that can be bet, and what can't.
      const bool all = step == 0 || step == 3;
      for (int bet = 1; bet <= kBets; ++bet)
        if (all || (bet * 7 + seat + step) % 23 == 0) {
          ASSERT_NO_FATAL_FAILURE(evening.Bet(bet, 1 + (bet + seat + step) % 4));
        }
    }
    const int seat = evening.Core().SelectedSeat;
    const BetSet& up = evening.Core().seats[seat].SeatBets;
    const auto first = [&](int from) {
      for (int bet = from; bet < from + 6; ++bet)
        if (up.Has(bet)) return bet;
      return 0;
    };
    if (const int place = first(kPlace4); place != 0 && !up.Has(place + 6)) {
      ASSERT_NO_FATAL_FAILURE(evening.KeyThenClick(
          Qt::Key_F5, place, [seat](Game& game, int bet) { BuyPlaceBet(game, seat, bet); }));
    }
    if (const int buy = first(kBuy4); buy != 0) {
      ASSERT_NO_FATAL_FAILURE(evening.KeyThenClick(
          Qt::Key_F7, buy, [seat](Game& game, int bet) { CallBet(game, seat, bet, false); }));
      ASSERT_NO_FATAL_FAILURE(evening.KeyThenClick(
          Qt::Key_F6, buy, [seat](Game& game, int bet) { CallBet(game, seat, bet, true); }));
    }
    if (up.Has(kHard8)) {
      ASSERT_NO_FATAL_FAILURE(evening.KeyThenClick(
          Qt::Key_Delete, kHard8, [seat](Game& game, int bet) { RemoveBet(game, seat, bet); }));
    }
    if (step == 4) {
      evening.Key(Qt::Key_P);
      PassDice(*evening.model.game, kPassByUser);
      ASSERT_NO_FATAL_FAILURE(evening.Compare("pass"));
    }
    ASSERT_NO_FATAL_FAILURE(evening.Roll(dice[0], dice[1]));
    ++step;
  }
  EXPECT_GT(evening.hands.settled, 40);
  EXPECT_EQ(evening.hands.settled, static_cast<int>(evening.model.host.settleQuestions.size()));
  EXPECT_GT(evening.hands.texts.size(), 100u) << "refusals are part of an evening";
  for (int left = 0; left < 4; ++left) {
    evening.hands.answers = {PressYes};
    evening.window.Command("mnuPlayerDelete")->trigger();
    evening.model.host.answers = {"yes"};
    RemovePlayer(*evening.model.game);
    evening.model.host.boxes.clear();
    ASSERT_NO_FATAL_FAILURE(evening.Compare("leave"));
  }
  EXPECT_EQ(evening.real.game->table.OccupiedSeats, 0);
}

// --- Single commands of the window.

TEST(MainWindow, CommandsAreEnabledExactlyWhenTheyCanAct) {
  Evening evening;
  const auto enabled = [&](const char* name) { return evening.window.Command(name)->isEnabled(); };
  for (const char* name :
       {"mnuPlayerRename", "mnuPlayerDelete", "mnuPlayerMove", "mnuRemoveBet", "mnuBuyPlaceBet",
        "mnuCallBetOn", "mnuPassDice", "mnuTakeFullOdds", "mnuAtm", "mnuActivateScript", "mnuNew"})
    EXPECT_FALSE(enabled(name)) << name;
  for (const char* name : {"mnuPlayerAdd", "mnuExit", "mnuAbout", "mnuTableMove"})
    EXPECT_TRUE(enabled(name)) << name;
  evening.Join(3, "Eve");
  for (const char* name :
       {"mnuPlayerRename", "mnuPlayerDelete", "mnuPlayerMove", "mnuPassDice", "mnuAtm", "mnuNew"})
    EXPECT_TRUE(enabled(name)) << name;
  // What gives the next click another meaning always does, or that click would bet.
  for (const char* name : {"mnuRemoveBet", "mnuMoveBet", "mnuBuyPlaceBet", "mnuCallBetOn", "mnuCallBetOff"})
    EXPECT_TRUE(enabled(name)) << name;
  EXPECT_FALSE(enabled("mnuRemoveAllBets"));
  evening.Bet(kPlace4, 3);
  EXPECT_TRUE(enabled("mnuRemoveAllBets"));
  EXPECT_FALSE(enabled("mnuTakeFullOdds"));
  evening.real.game->settings.AtmEnabled = false;
  evening.window.Table().Refresh();
  evening.real.host.Changed(*evening.real.game, Change::kSettings);
  QTest::qWait(5);
  EXPECT_FALSE(enabled("mnuAtm"));
}

TEST(MainWindow, AltTakesABetUpAndTheNextClickPutsItDown) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.Bet(kPlace4, 3);
  evening.Bet(kPlace4, 3);
  QTest::mouseClick(&evening.Table(), Qt::LeftButton, Qt::AltModifier,
                    evening.Table().PointOfBet(4, kPlace4));
  EXPECT_EQ(evening.real.game->table.BetAmount(4, kPlace4), kZero);
  EXPECT_EQ(evening.window.Commands().CarriedAmount, Currency::Dollars(50));
  QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, evening.Table().PointOfBet(4, kField));
  EXPECT_EQ(evening.real.game->table.BetAmount(4, kField), Currency::Dollars(50));
  EXPECT_EQ(evening.window.Commands().CarriedAmount, kZero);
}

// Keys that give the next click another meaning, with nothing up that they could act on.
TEST(MainWindow, AClickThatIsMeantForSomethingElseNeverBets) {
  struct Case {
    Qt::Key key;  // 0: the menu entry
    Msg says;
  };
  const Case cases[] = {
      {Qt::Key_F5, Msg::kOnlyPlaceBetsBuy}, {Qt::Key_Delete, Msg::kNone}, {Qt::Key(0), Msg::kOnlyBetsMove}};
  Evening evening;
  evening.Join(4, "Eve");
  for (const Case& one : cases)
    for (const int bet : {int(kPlace4), int(kPassLine), int(kBuy4)}) {
      evening.hands.texts.clear();
      one.key == 0 ? evening.window.Command("mnuMoveBet")->trigger() : evening.Key(one.key);
      QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, evening.Table().PointOfBet(4, bet));
      EXPECT_EQ(evening.real.game->table.seats[4].OnTableAmount, kZero) << test::NameOf(one.says);
      ASSERT_EQ(evening.hands.texts.empty(), one.says == Msg::kNone) << BetName(bet);
      if (one.says != Msg::kNone) {
        EXPECT_EQ(evening.real.game->box.MsgId, one.says) << evening.hands.texts.back();
      }
      EXPECT_EQ(evening.window.Commands().PendingAction, kPendingNone);
    }
}

TEST(MainWindow, PlaceAndBuyOnOneNumberAreEachReachedAtTheirOwnArea) {
  Evening evening;
  evening.Join(4, "Eve");
  for (const int bet : {kPlace4 + 1, kBuy4 + 1, kPlace4 + 1})
    QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, evening.Table().PointOfBet(4, bet));
  EXPECT_EQ(evening.real.game->table.BetAmount(4, kPlace4 + 1), Currency::Dollars(10));
  EXPECT_EQ(evening.real.game->table.BetAmount(4, kBuy4 + 1), Currency::Dollars(5));
}

TEST(MainWindow, ABetMovesByDraggingItsStackAndByTheMenu) {
  struct Case {
    int from;
    int to;               // the area it is let go over; 0 off the felt, -1 a gap in the felt
    bool menu;            // by the menu and two clicks
    const char* fromHas;  // then
    const char* toHas;
  };
  const Case cases[] = {{kPlace4, kPlace4 + 2, false, "0", "25"},
                        {kPlace4, kPlace4 + 2, true, "0", "25"},
                        {kBuy4, kPlace4, false, "0", "25"},
                        {kBuy4, kPlace4, true, "0", "25"},
                        {kField, 0, false, "0", ""},
                        {kField, 0, true, "0", ""},
                        {kField, -1, false, "25", ""},
                        {kField, kCome, false, "25", "0"},
                        {kPassLine, kPassLine, true, "25", "25"}};
  Evening evening;
  evening.Join(4, "Eve");
  TableWidget& table = evening.Table();
  Game& game = *evening.real.game;
  QPoint gap;
  for (QPointF at(0, 200); gap.isNull() && at.x() < 1200; at.rx() += 2)
    if (FeltOutline().contains(at) && table.BetAt(table.view.ToScreen(at).toPoint()) == 0)
      gap = table.view.ToScreen(at).toPoint();
  ASSERT_FALSE(gap.isNull());
  for (const Case& one : cases) {
    const std::string what =
        BetName(one.from) + " to " + std::to_string(one.to) + (one.menu ? " by the menu" : "");
    RemoveAllBets(game);
    PlaceBet(game, 4, one.from, Currency::Dollars(25));
    const QPoint from = table.PointOfStack(4, one.from);
    const QPoint to = one.to > 0 ? table.PointOfBet(4, one.to) : one.to == 0 ? QPoint(5, 5) : gap;
    if (one.menu) {
      evening.window.Command("mnuMoveBet")->trigger();
      QTest::mouseClick(&table, Qt::LeftButton, {}, from);
      EXPECT_EQ(game.table.BetAmount(4, one.from), Currency::Dollars(25)) << what << ": it stays until then";
      evening.Point(to);
      QTest::mouseClick(&table, Qt::LeftButton, {}, to);
    } else {
      QTest::mousePress(&table, Qt::LeftButton, {}, from);
      evening.Point((from + to) / 2, Qt::LeftButton);
      evening.Point(to, Qt::LeftButton);
      EXPECT_EQ(table.scene.heldBet, one.from) << what;
      SavePicture(evening.window, "drag");
      QTest::mouseRelease(&table, Qt::LeftButton, {}, to);
    }
    EXPECT_EQ(PlainMoney(game.table.BetAmount(4, one.from)), one.fromHas) << what;
    if (one.to > 0) {
      EXPECT_EQ(PlainMoney(game.table.BetAmount(4, one.to)), one.toHas) << what;
    }
    EXPECT_EQ(table.scene.heldBet, 0) << what;
  }
}

TEST(MainWindow, AStackIsDraggedBeyondAThresholdOnlyAndGivenUpByTheRightButtonAndEscape) {
  Evening evening;
  evening.Join(4, "Eve");
  TableWidget& table = evening.Table();
  TableState& state = evening.real.game->table;
  evening.real.game->settings.ShooterBetRule = 0;
  QTest::mouseClick(&table, Qt::LeftButton, {}, table.PointOfBet(4, kPlace4));
  const QPoint place = table.PointOfStack(4, kPlace4);
  // A hand that trembles bets.
  QTest::mousePress(&table, Qt::LeftButton, {}, place);
  evening.Point(place + QPoint(3, 2), Qt::LeftButton);
  QTest::mouseRelease(&table, Qt::LeftButton, {}, place + QPoint(3, 2));
  EXPECT_EQ(state.BetAmount(4, kPlace4), Currency::Dollars(10));
  const auto drag = [&](const std::function<void()>& meanwhile) {
    QTest::mousePress(&table, Qt::LeftButton, {}, place);
    evening.Point(QPoint(5, 5), Qt::LeftButton);
    EXPECT_EQ(table.scene.heldBet, kPlace4);
    meanwhile();
    QTest::mouseRelease(&table, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(state.BetAmount(4, kPlace4), Currency::Dollars(10)) << "it stays";
    EXPECT_EQ(table.scene.heldBet, 0);
  };
  drag([&] { evening.Key(Qt::Key_Escape); });
  state.ManualDie1 = state.ManualDie2 = 3;
  state.ManualRollPending = true;
  drag([&] { QTest::mouseClick(&table, Qt::RightButton, {}, QPoint(5, 5)); });
  EXPECT_EQ(state.Point, 6) << "the right button rolls";
}

TEST(MainWindow, TheHandTakesBackRepeatsAndTakesOddsByOneKey) {
  Evening evening;
  evening.Join(4, "Eve");
  TableWidget& table = evening.Table();
  Game& game = *evening.real.game;
  const auto up = [&](int bet) { return PlainMoney(game.table.BetAmount(4, bet)); };
  const auto click = [&](int bet) {
    QTest::mouseClick(&table, Qt::LeftButton, {}, table.PointOfBet(4, bet));
  };
  QTest::keyClick(evening.window.windowHandle(), Qt::Key_3, Qt::AltModifier);
  click(kPassLine);
  evening.Key(Qt::Key_Plus);
  click(kPlace4);
  evening.Key(Qt::Key_Minus);
  evening.Key(Qt::Key_Minus);
  click(kField);
  EXPECT_EQ(up(kPassLine) + " " + up(kPlace4) + " " + up(kField), "25 100 5");
  // A stack dragged away, a bet taken off by Delete, and back through all of it.
  QTest::mousePress(&table, Qt::LeftButton, {}, table.PointOfStack(4, kPlace4));
  evening.Point(table.PointOfBet(4, kPlace4 + 2), Qt::LeftButton);
  QTest::mouseRelease(&table, Qt::LeftButton, {}, table.PointOfBet(4, kPlace4 + 2));
  evening.Key(Qt::Key_Delete);
  click(kField);
  EXPECT_EQ(up(kPlace4) + " " + up(kPlace4 + 2) + " " + up(kField), "0 100 0");
  const char* const kBack[] = {"25 0 100 5", "25 100 0 5", "25 100 0 0", "25 0 0 0", "0 0 0 0"};
  const auto all = [&] {
    return up(kPassLine) + " " + up(kPlace4) + " " + up(kPlace4 + 2) + " " + up(kField);
  };
  for (const char* then : kBack) {
    evening.Key(Qt::Key_Backspace);
    EXPECT_EQ(all(), then);
  }
  EXPECT_FALSE(evening.window.Command("mnuUndoBet")->isEnabled());
  for (int n = 3; n >= 0; --n) {
    QTest::keyClick(evening.window.windowHandle(), Qt::Key_Backspace, Qt::ShiftModifier);
    EXPECT_EQ(all(), kBack[n]);
  }
  evening.real.Roll(4, 4);
  EXPECT_FALSE(evening.window.Command("mnuUndoBet")->isEnabled()) << "the dice have fallen";
  evening.Key(Qt::Key_O);
  EXPECT_NE(up(kPassLineOdds), "0");
  game.table.seats[4].handling.LoseHandling = 1;
  evening.real.Roll(3, 4);
  EXPECT_EQ(up(kPassLine), "0");
  evening.Key(Qt::Key_R);
  EXPECT_EQ(up(kPassLine), "25");
  evening.Key(Qt::Key_Backspace);
  EXPECT_EQ(up(kPassLine), "0") << "the bets repeated are one step";
}

TEST(MainWindow, JoiningInOneBoxRefusesAsTheQuestionsDo) {
  Evening evening;
  evening.Join(4, "Eve");
  QStringList problems;
  const auto problem = [&](QDialog& box) { problems.append(Find<QLabel>(box, "lblProblem").text()); };
  const QPoint seat = evening.Table().PointOfSeat(2);
  evening.hands.answers = {[&](QDialog& box) {
    ExpectNamed(box);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(box.isVisible()) << "nobody joins without a name";
    for (const auto& [name, buyIn] : {std::pair{"eve", "100"}, {"77", "100"}, {"Bo", "10000000"}}) {
      TypeInto(box, "txtName", name);
      TypeInto(box, "txtBuyIn", buyIn);
      QTest::keyClick(&box, Qt::Key_Return);
      problem(box);
    }
    EXPECT_EQ(ToCore(Find<QLabel>(box, "lblBuyIn").text()), "How much would Bo like to buy-in for?");
    SavePicture(box, "join");
    QTest::keyClick(&box, Qt::Key_Escape);
  }};
  QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, seat);
  const char* const kProblems[] = {
      "There's already a player named eve.",
      "A player's name can't be all numeric because it can't be used in auto-betting.",
      "The maximum player bankroll is $9,999,999"};
  ASSERT_EQ(problems.size(), 3);
  for (int n = 0; n < 3; ++n) EXPECT_EQ(ToCore(problems[n]), kProblems[n]);
  EXPECT_EQ(evening.real.game->table.OccupiedSeats, 1);
}

// Without the pointer being moved.
TEST(MainWindow, ThePointersLineFollowsEveryChange) {
  Evening evening;
  evening.Join(4, "Eve");
  Game& game = *evening.real.game;
  const auto line = [&] {
    QTest::qWait(5);
    return ToCore(evening.window.findChild<QLabel*>("lblPointer")->text());
  };
  game.settings.ShooterBetRule = 0;
  evening.Point(evening.Table().PointOfBet(4, kCome));
  struct Case {
    std::function<void()> change;
    const char* says;
  };
  const Case cases[] = {{[] {}, "may still be bet: 0"},  // there is no point
                        {[&] { evening.real.Roll(2, 2); }, "may still be bet: 1,000"},
                        {[&] { PlaceBet(game, 4, kCome, Currency::Dollars(40)); }, "Come: 40"},
                        {[&] {
                           game.settings.MaxBet = Currency::Dollars(300);
                           evening.real.host.Changed(game, Change::kSettings);
                         },
                         "may still be bet: 260"},
                        {[&] {
                           game.table.BankrollCurrent[4] = Currency::Dollars(90);
                           evening.Table().Refresh();
                         },
                         "may still be bet: 50"},
                        {[&] { evening.Key(Qt::Key_Delete); }, "Next click: remove a bet   Come"},
                        {[&] { evening.Key(Qt::Key_Escape); }, "may still be bet: 50"},
                        {[&] {
                           evening.window.Command("mnuViewRight")->trigger();
                           evening.window.Command("mnuViewWhole")->trigger();
                           evening.Point(QPoint(3, 3));
                         },
                         "Eve   Rail:  50.00"}};
  for (const Case& one : cases) {
    one.change();
    const std::string told = line();
    EXPECT_NE(told.find(one.says), std::string::npos) << told << "\nnot: " << one.says;
  }
}

TEST(MainWindow, AKeyedInAmountReplacesTheBet) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.Bet(kField, 3);
  evening.Key(Qt::Key_F9);
  for (const char* amount : {"40", "12", "0"}) {
    QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, evening.Table().PointOfBet(4, kField));
    auto* entry = evening.window.findChild<QLineEdit*>("txtBetAmount");
    ASSERT_TRUE(entry->isVisible());
    entry->selectAll();
    QTest::keyClicks(entry, amount);
    QTest::keyClick(entry, Qt::Key_Return);
    EXPECT_FALSE(entry->isVisible());
    EXPECT_EQ(evening.real.game->table.BetAmount(4, kField), Money(amount));
  }
}

TEST(MainWindow, TheKeyboardAloneWalksTheAreasBetsAndRolls) {
  Evening evening;
  evening.Join(4, "Eve");
  QWidget& table = evening.Table();
  table.setFocus();
  QTest::keyClick(&table, Qt::Key_Tab);
  EXPECT_EQ(evening.Table().scene.focusBet, kPassLine);
  EXPECT_TRUE(table.accessibleName().startsWith("Pass Line"));
  // Every area can be come to by the arrows.
  std::set<std::pair<int, int>> reached{{evening.Table().scene.focusBet, evening.Table().scene.focusSide}};
  std::deque<std::pair<int, int>> open(reached.begin(), reached.end());
  while (!open.empty()) {
    const auto from = open.front();
    open.pop_front();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      evening.Table().SetFocusBet(from.first, from.second);
      QTest::keyClick(&table, key);
      const std::pair<int, int> now{evening.Table().scene.focusBet, evening.Table().scene.focusSide};
      if (reached.insert(now).second) open.push_back(now);
    }
  }
  std::set<std::pair<int, int>> all;
  for (const TableArea& area : evening.Table().Layout().Areas) all.insert({area.Id, area.Side});
  for (const auto& area : all)
    EXPECT_TRUE(reached.count(area) != 0) << BetName(area.first) << " side " << area.second;
  evening.Table().SetFocusBet(kPassLine, 1);
  QTest::keyClick(&table, Qt::Key_Return);
  EXPECT_EQ(evening.real.game->table.BetAmount(4, kPassLine), evening.window.Commands().ClickAmount);
  evening.Key(Qt::Key_F2);
  EXPECT_EQ(SessionRolls(evening.real.game->stats), 1);
}

TEST(MainWindow, DigitsAreThePlacesAtTheRail) {
  Evening evening;
  evening.hands.answers = {Joining("Fay", "300")};
  evening.Key(Qt::Key_6);
  EXPECT_EQ(evening.real.game->table.seats[6].SeatName, "Fay");
  evening.hands.answers = {Joining("Gil", "300")};
  evening.Key(Qt::Key_1);
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 1);
  evening.Key(Qt::Key_6);
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 6);
}

TEST(MainWindow, ArrowsWalkTheSeatsUntilTheAreasHaveTheFocus) {
  Evening evening;
  evening.Join(2, "Ann");
  evening.Join(6, "Fay");
  QTest::keyClick(&evening.Table(), Qt::Key_Right);
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 2);
  QTest::keyClick(&evening.Table(), Qt::Key_Left);
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 6);
}

TEST(MainWindow, ATurboRollShowsItsPanelAndStopsWithinATenthOfASecond) {
  Evening evening;
  for (SeatState& seat : evening.real.game->table.seats)
    seat.handling.WinHandling = seat.handling.LoseHandling = 2;
  evening.Join(4, "Eve");
  evening.real.game->table.seats[4].handling.WinHandling =
      evening.real.game->table.seats[4].handling.LoseHandling = 2;
  evening.real.game->settings.ShooterBetRule = 0;
  QElapsedTimer clock;
  bool shown = false;
  QTimer::singleShot(400, [&] {
    auto* panel = evening.window.findChild<QWidget*>("picTurboRoll");
    shown = panel->isVisible() && panel->geometry() == evening.window.Stage().FeltRoom();
    EXPECT_GT(panel->findChild<QLabel*>("lblRolls")->text().size(), 3);
    clock.start();
    QTest::mouseClick(panel->findChild<QWidget*>("cmdStop"), Qt::LeftButton);
  });
  evening.window.Command("mnuTurboRoll")->trigger();
  EXPECT_LT(clock.elapsed(), 100);
  EXPECT_TRUE(shown);
  EXPECT_FALSE(evening.window.findChild<QWidget*>("picTurboRoll")->isVisible());
  EXPECT_GT(SessionRolls(evening.real.game->stats), 1000);
  EXPECT_FALSE(evening.real.game->table.AutoRollActive);
}

TEST(MainWindow, ClosingAsksToStopARunAndARefusalKeepsItOn) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.real.game->settings.ShooterBetRule = 0;
  int closed = 0;
  QTimer::singleShot(150, [&] {
    evening.hands.answers = {PressEscape};
    closed += evening.window.close() ? 1 : 0;
    EXPECT_TRUE(evening.real.game->table.AutoRollActive);
    EXPECT_EQ(closed, 0);
    evening.hands.answers = {PressReturn};
    closed += evening.window.close() ? 1 : 0;
    EXPECT_EQ(closed, 0) << "the roll that is under way ends first";
  });
  evening.window.Command("mnuTurboRoll")->trigger();
  EXPECT_FALSE(evening.real.game->table.AutoRollActive);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !evening.window.isVisible(); }, 2000));
}

TEST(MainWindow, AStackAtTheRailIsItsOwnPlayersAndIsFilledLikeABet) {
  Evening evening;
  evening.Join(2, "Ann");
  evening.Join(4, "Eve");
  TableWidget& table = evening.Table();
  const auto place = [&](int seat) {
    return table.view.ToScreen(VisibleStackPlace(table.Layout().Seats[seat], 2)).toPoint();
  };
  const int stack = kFirstCheckStack + evening.real.game->table.seats[4].VisibleStacks[2];
  QTest::mouseMove(&table, place(4));
  QTest::mouseClick(&table, Qt::LeftButton, {}, place(4));
  EXPECT_EQ(evening.real.game->table.BetAmount(4, stack), evening.window.Commands().ClickAmount);
  EXPECT_TRUE(evening.window.findChild<QLabel*>("lblPointer")->text().startsWith("CheckStack"));
  QTest::mouseClick(&table, Qt::LeftButton, {}, place(2));
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 2);
  EXPECT_EQ(evening.real.game->table.BetAmount(2, stack), kZero);
}

TEST(MainWindow, ABrokenBankRainsChecksUntilTheTableChanges) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.real.game->table.BankrollCurrent[4] = Currency::Dollars(10'000'001);
  std::size_t fallen = 0;
  evening.hands.watch = [&] { fallen = std::max(fallen, evening.Table().scene.rain.size()); };
  QTest::mouseClick(&evening.Table(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_EQ(fallen, 1000u);
  EXPECT_TRUE(evening.Table().scene.rain.empty());
  EXPECT_EQ(SessionRolls(evening.real.game->stats), 0);
  ASSERT_FALSE(evening.hands.texts.empty());
  EXPECT_EQ(evening.real.game->box.MsgId, Msg::kBankrollLimitBroken) << evening.hands.texts.back();
  evening.real.game->table.BankrollCurrent[4] = Currency::Dollars(9000);
}

// --- File names.

TEST(FileChooser, RefusesInTheTablesWordsAndAsksAgain) {
  ScreenTable table;
  const std::string folder = table.game->dataFolder;
  WriteFile(folder + "there.bet", "bet 10 on field");
  WriteFile(folder + "bad.rol", "abc");
  struct Case {
    const FilePurpose& purpose;
    const char* typed;
    Msg message;  // none: good
    const char* path;
  };
  const Case cases[] = {{kOpenAutoBet, "  ", Msg::kFileNameMissing, ""},
                        {kOpenAutoBet, "there", Msg::kNone, "there.bet"},
                        {kOpenAutoBet, "gone.bet", Msg::kFileNotFound, ""},
                        {kOpenAutoBet, "no/such/folder/x.bet", Msg::kNoSuchFolder, ""},
                        {kSaveAutoBet, "new", Msg::kNone, "new.bet"},
                        {kOpenRollFile, "new", Msg::kNone, "new.rol"},
                        {kOpenRollFile, "bad.rol", Msg::kRollFileNotOpened, ""}};
  for (const Case& one : cases) {
    std::string path;
    const FileProblem problem = CheckFileName(*table.game, one.purpose, one.typed, path);
    EXPECT_EQ(problem.message, one.message) << one.typed;
    EXPECT_TRUE(one.message != Msg::kNone || path == folder + one.path) << path;
  }
  // An existing file is replaced after a yes alone.
  QueuedFileNames() = {"there", "there", ""};
  table.host.answers.No();
  table.host.answers.Yes();
  EXPECT_EQ(ChooseFile(*table.game, nullptr, kSaveAutoBet), folder + "there.bet");
  EXPECT_TRUE(table.host.answers.Empty());
  EXPECT_EQ(ChooseFile(*table.game, nullptr, kSaveAutoBet), "") << "given up";
}

// Scripts are looked for among the samples, as built and as installed; then where the player's own is.
TEST(FileChooser, ScriptsAreLookedForWhereTheSamplesAre) {
  QTemporaryDir installed;
  QProcess install;
  install.start("cmake", {"--install", QString(test::kBinFolder) + "/..", "--prefix", installed.path()});
  ASSERT_TRUE(install.waitForFinished(60'000) && install.exitCode() == 0)
      << install.readAllStandardError().toStdString();
  const QString home = installed.filePath("libexec/tessaryn/");
  EXPECT_TRUE(QFileInfo(home + "tessaryn").isExecutable());
  ScreenTable table;
  Game& game = *table.game;
  for (const std::string& program : {game.applicationFolder, home.toStdString()}) {
    game.applicationFolder = program;
    for (const FilePurpose* purpose : {&kOpenAutoBet, &kHotKeyScript}) {
      EXPECT_EQ(StartFolder(game, *purpose), program + "samples/");
      EXPECT_TRUE(QFile::exists(FromCore(StartFolder(game, *purpose)) + "Sample1.bet"));
    }
    EXPECT_EQ(StartFolder(game, kSaveAutoBet), game.dataFolder);
  }
  table.Join(3, "Ann");
  game.autobet.Scripts[3].ScriptFileName = game.dataFolder + "mine.bet";
  EXPECT_EQ(StartFolder(game, kOpenAutoBet) + "/", game.dataFolder);
  game.autobet.Scripts[3].ScriptFileName.clear();
  game.applicationFolder = "/nowhere/";
  EXPECT_EQ(StartFolder(game, kOpenAutoBet), game.dataFolder) << "a copy without samples";
}

// In this dialog alone: the list of places is kept for the dialogs of the whole desktop.
TEST(FileChooser, TheTablesPlacesAreListedForScriptsAndNotKept) {
  ScreenTable table;
  Game& game = *table.game;
  const QList<QUrl> usual = QFileDialog().sidebarUrls();
  for (const FilePurpose* purpose : {&kOpenAutoBet, &kHotKeyScript}) {
    QList<QDir> listed;
    WhenOpen("frmFile", [&](QDialog& dialog) {
      for (const QUrl& place : qobject_cast<QFileDialog*>(&dialog)->sidebarUrls())
        listed.append(QDir(place.toLocalFile()));
      dialog.reject();
    });
    EXPECT_EQ(ChooseFile(game, nullptr, *purpose), "");
    for (const std::string& place : {game.dataFolder, game.applicationFolder + "samples/"})
      EXPECT_TRUE(listed.contains(QDir(FromCore(place)))) << place;
    EXPECT_EQ(QFileDialog().sidebarUrls(), usual);
  }
}

TEST(MainWindow, APlayerMovesToAClickedPlace) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.window.Command("mnuPlayerMove")->trigger();
  QTest::mouseClick(&evening.Table(), Qt::LeftButton, {}, evening.Table().PointOfSeat(7));
  EXPECT_EQ(evening.real.game->table.seats[7].SeatName, "Eve");
  EXPECT_TRUE(evening.real.game->table.seats[4].SeatName.empty());
  EXPECT_EQ(evening.real.game->table.SelectedSeat, 7);
}

// No two captions have the same letter after their "&".
void ExpectOwnLetters(const QStringList& captions, const QString& where) {
  QMap<QChar, QString> owners;
  for (const QString& caption : captions) {
    const auto mark = caption.indexOf('&');
    if (mark < 0 || mark + 1 >= caption.size()) continue;
    const QChar letter = caption[mark + 1].toUpper();
    EXPECT_FALSE(owners.contains(letter)) << where.toStdString() << ": \"" << caption.toStdString()
                                          << "\" and \"" << owners[letter].toStdString() << "\"";
    owners[letter] = caption;
  }
}

void ExpectOwnLetters(const QMenu& menu, const QString& name) {
  QStringList captions;
  for (const QAction* action : menu.actions()) {
    captions.append(action->text());
    if (action->menu() != nullptr) ExpectOwnLetters(*action->menu(), action->text());
  }
  ExpectOwnLetters(captions, name);
}

// Of one menu's entries, and of all that Alt reaches at once: the menus, the window's buttons and those of
// the tool windows, from which the window's are reached too.
TEST(MainWindow, EveryAccessLetterHasOneOwner) {
  Evening evening;
  for (const char* opens : {"mnuRollYourOwnNumbers", "mnuTableMove"})
    evening.window.Command(opens)->trigger();
  auto* pad = evening.window.findChild<RollPad*>();
  ASSERT_NE(pad, nullptr);
  QTest::mouseClick(&pad->Grid(), Qt::RightButton);
  for (const int throttle : {0, kThrottleAutoRoll}) {
    SetThrottle(*evening.real.game, throttle);
    QStringList together;
    for (const QAction* menu : evening.window.menuBar()->actions()) together.append(menu->text());
    for (const QAbstractButton* button : evening.window.findChildren<QAbstractButton*>())
      together.append(button->text());
    EXPECT_GT(together.size(), 20);
    ExpectOwnLetters(together, "the window");
    for (const QMenu* menu : evening.window.findChildren<QMenu*>()) ExpectOwnLetters(*menu, menu->title());
  }
  pad->findChild<QMenu*>("mnuRYON")->close();
  QtWarnings().removeAll("This plugin does not support grabbing the keyboard");
}

// Wherever the keyboard is but in an entry box.
TEST(MainWindow, PlainKeysActFromEveryButtonAndToolWindow) {
  Evening evening;
  evening.Join(2, "Ann");
  evening.Join(6, "Fay");
  evening.Bet(kField, 2);
  for (const char* opens : {"mnuRollYourOwnNumbers", "mnuTableMove"})
    evening.window.Command(opens)->trigger();
  const TableState& state = evening.real.game->table;
  struct Case {
    const char* window;
    const char* focus;
  };
  const Case cases[] = {{"frmRYON", "picRYON"},          {"frmRYON", "cmdRandomRoll"},
                        {"frmRYON", "cmdTurboRoll"},     {"frmRYON", "hsbThrottle"},
                        {"frmMove", "cmdZoomIn"},        {"frmMove", "cmdCenter"},
                        {"frmCrapTable", "picLayout"},   {"frmCrapTable", "cmdRoll"},
                        {"frmCrapTable", "hsbThrottle"}, {"frmCrapTable", "picCheck3"}};
  for (const Case& one : cases) {
    QWidget* place = &evening.window;
    if (place->objectName() != one.window) place = evening.window.findChild<QWidget*>(one.window);
    ASSERT_NE(place, nullptr) << one.window;
    place->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(place)) << one.window;
    auto& focus = Find<QWidget>(*place, one.focus);
    focus.setFocus();
    const auto press = [&](Qt::Key key) { QTest::keyClick(&focus, key); };
    press(Qt::Key_2);
    EXPECT_EQ(state.SelectedSeat, 2) << one.focus;
    press(Qt::Key_6);
    EXPECT_EQ(state.SelectedSeat, 6) << one.focus;
    press(Qt::Key_Delete);
    EXPECT_EQ(evening.window.Commands().PendingAction, kPendingRemove) << one.focus;
    press(Qt::Key_Escape);
    EXPECT_EQ(evening.window.Commands().PendingAction, kPendingNone) << one.focus;
    const int shooter = state.ShooterSeat;
    press(Qt::Key_P);
    EXPECT_NE(state.ShooterSeat, shooter) << one.focus;
    for (const bool on : {true, false}) {
      press(Qt::Key_C);
      EXPECT_EQ(evening.window.Command("mnuDisplayPropBets")->isChecked(), on) << one.focus;
      press(Qt::Key_F9);
      EXPECT_EQ(evening.window.Command("mnuKeyInBetAmounts")->isChecked(), on) << one.focus;
    }
  }
}

// What a decided bet or a script asks stands over the roll that it is about.
TEST(MainWindow, ABoxComesUpOverTheTableAsItIs) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.Join(6, "Fay");
  evening.real.game->table.seats[4].handling.WinHandling =
      evening.real.game->table.seats[4].handling.LoseHandling = 0;
  const TableState& state = evening.real.game->table;
  WriteFile(evening.real.game->dataFolder + "told.bet", "show message \"rolled\"");
  QueuedFileNames() = {"told.bet"};
  evening.window.Command("mnuOpenScript")->trigger();
  evening.hands.answers = {PressEscape};  // it need not be initialised
  evening.window.Command("mnuActivateScript")->trigger();
  auto* status = evening.window.findChild<QLabel*>("lblStatus");
  int boxes = 0;
  evening.hands.watch = [&] {
    ++boxes;
    const DicePose& dice = evening.Table().scene.dice;
    EXPECT_EQ(std::pair(dice.Face1, dice.Face2), std::pair(state.Die1, state.Die2));
    const QString roll = QString("Roll %1   ").arg(SessionRolls(evening.real.game->stats));
    const QString point = state.Point == 0 ? QString("Come-out") : QString("Point %1").arg(state.Point);
    EXPECT_TRUE(status->text().startsWith(roll + point)) << status->text().toStdString();
  };
  const int dice[][2] = {{6, 5}, {1, 1}, {2, 2}, {6, 3}, {3, 1}};
  for (const auto& [die1, die2] : dice) {
    const int before = boxes;
    PlaceBet(*evening.real.game, 4, kField, Currency::Dollars(5));
    PlaceBet(*evening.real.game, 4, kPassLine, Currency::Dollars(5));
    evening.real.Roll(die1, die2);
    EXPECT_GT(boxes, before + 1) << "a settled bet and the script's message";
  }
}

TEST(MainWindow, AScriptShowsOnThePlateWhileItIsActive) {
  Evening evening;
  evening.Join(4, "Eve");
  evening.Bet(kPassLine, 2);
  const auto sign = [&] { return evening.window.Stage().PlateOf(4).Text().script; };
  EXPECT_EQ(sign(), ScriptSign::kNone);
  QueuedFileNames() = {evening.real.game->applicationFolder + "samples/Sample1.bet"};
  evening.hands.answers = {PressEscape};
  evening.window.Command("mnuOpenScript")->trigger();
  EXPECT_EQ(sign(), ScriptSign::kNone);
  evening.window.Command("mnuActivateScript")->trigger();
  EXPECT_EQ(sign(), ScriptSign::kActive);
  evening.window.Command("mnuActivateScript")->trigger();
  EXPECT_EQ(sign(), ScriptSign::kNone);
}

TEST(MainWindow, EveryMenuEntryHasAName) {
  Evening evening;
  std::set<QString> names;
  for (const QAction* menu : evening.window.menuBar()->actions())
    for (const QAction* action : menu->menu()->actions()) {
      if (action->isSeparator()) continue;
      EXPECT_TRUE(action->objectName().startsWith("mnu")) << action->text().toStdString();
      EXPECT_TRUE(names.insert(action->objectName()).second) << action->objectName().toStdString();
    }
  EXPECT_GT(names.size(), 35u);
}

}  // namespace
}  // namespace tessaryn::test
