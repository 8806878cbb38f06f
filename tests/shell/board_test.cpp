// The board above the table, the plates round it and the guide: what they say, and where they stand.
#include "shell/table/board.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainterPath>
#include <QPushButton>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <cmath>
#include <deque>
#include <map>
#include <random>

#include "base/bet_catalogue.h"
#include "rules/handling.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "shell/table/amount_selector.h"
#include "shell/table/screen_tools.h"

namespace tessaryn::test {
namespace {

struct Window : ScreenTable {
  MainWindow window{*game, host};

  explicit Window(QSize size = {1280, 800}) {
    window.Table().animate = false;
    window.resize(size);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  Board& TheBoard() { return window.Stage().TheBoard(); }
  void HandleAll() {
    for (SeatState& seat : State().seats) seat.handling.WinHandling = seat.handling.LoseHandling = 2;
  }
  // Four players in the middle of a hand.
  void MakeEvening() {
    Join(1, "Dan", "200");
    Join(4, "Ann", "500");
    Join(5, "Bo", "500");
    Join(7, "Cleo", "1000");
    HandleAll();
    SelectSeat(*game, 4);
    game->settings.ShooterBetRule = 0;
    std::mt19937 random(3);
    const auto die = [&] { return static_cast<int>(random() % 6 + 1); };
    for (int n = 0; n < 28 || State().Point == 0; ++n) {
      if (State().Point == 0) {
        if (State().BetAmount(State().ShooterSeat, kPassLine) == kZero)
          Bet(State().ShooterSeat, kPassLine, "10");
        if (State().BetAmount(5, kDontPass) == kZero) Bet(5, kDontPass, "15");
      }
      if (State().BetAmount(4, kField) == kZero) Bet(4, kField, "5");
      Roll(die(), die());
    }
    Bet(4, kPlace4 + 2, "12");
    Bet(7, kCome, "10");
    Bet(1, kHard8, "5");
    Bet(4, kPassLineOdds, "20");
    Bet(5, kBuy4, "25");
    Bet(7, kLay4 + 5, "50");
    Roll(4, 2);
    QApplication::processEvents();
  }
  // All places taken, with the largest amounts, and bets of everybody in the same areas.
  void MakeCrowd() {
    for (const int seat : {2, 3, 6, 8}) Join(seat, "Maximilian " + std::to_string(seat), "9999999");
    for (int seat = 1; seat <= kSeats; ++seat)
      for (const int bet : std::initializer_list<int>{kPassLine, kPassLineOdds, kField, kCome, kPlace4 + 2,
                                                      kPlace4 + 4, kHard6, kBuy4})
        Bet(seat, bet, seat % 2 == 0 ? "25" : "60");
    SelectSeat(*game, 4);
    window.TheDesk().refresh();
    QApplication::processEvents();
  }
};

TEST(WindowPictures, TheWholeWindowAtTheToldSizesInLightAndDark) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true})
    for (const QSize size : {QSize(1280, 800), QSize(1024, 600), QSize(1920, 1080), QSize(800, 500)}) {
      ApplyScheme(dark ? Scheme::kDark : Scheme::kLight);
      QApplication::setPalette(PaletteOf(dark ? DarkTones() : LightTones()));
      Window window(size);
      ApplyScheme(dark ? Scheme::kDark : Scheme::kLight);
      window.MakeEvening();
      SavePicture(
          window.window,
          QStringLiteral("board-%1x%2%3").arg(size.width()).arg(size.height()).arg(dark ? "-dark" : ""));
      window.MakeCrowd();
      SavePicture(
          window.window,
          QStringLiteral("crowd-%1x%2%3").arg(size.width()).arg(size.height()).arg(dark ? "-dark" : ""));
      EXPECT_EQ(window.window.size(), size);
    }
  QApplication::setPalette(before);
}

// --- The result line and the history, against what is worked out here.

TEST(Board, TheResultLineAndTheHistoryAreThoseOfTheRolls) {
  constexpr unsigned kSeed = 20;
  Window window;
  Game& game = *window.game;
  const std::pair<int, const char*> players[] = {{1, "Ann"}, {4, "Bo"}, {6, "Cleo"}};
  for (const auto& [seat, name] : players) window.Join(seat, name, "100000");
  window.HandleAll();
  game.settings.ShooterBetRule = 0;
  std::mt19937 random(kSeed);
  const auto upTo = [&](int most) { return static_cast<int>(random() % most) + 1; };
  std::deque<std::pair<int, RollMark>> rolled;
  int hand = 1;
  for (int roll = 1; roll <= 200; ++roll) {
    ASSERT_EQ(ToCore(HandTitle(game)), "Hand " + std::to_string(hand)) << "before roll " << roll;
    for (int n = 0; n < 6; ++n)
      PlaceBet(game, players[random() % 3].first, upTo(kBets), Currency::Dollars(5 * upTo(6)),
               Asking::kQuietly);
    const int point = game.table.Point;
    std::map<int, Currency> before;
    for (const auto& [seat, name] : players) before[seat] = game.table.BankrollCurrent[seat];
    const int die1 = upTo(6);
    const int die2 = upTo(6);
    const int total = die1 + die2;
    window.Roll(die1, die2);
    std::string happened = "point stays " + std::to_string(point);
    RollMark mark = RollMark::kNone;
    if (point == 0) {
      const bool natural = total == 7 || total == 11;
      const bool craps = total < 4 || total == 12;
      happened = natural ? "natural" : craps ? "craps" : "the point is " + std::to_string(total);
      mark = natural ? RollMark::kNatural : craps ? RollMark::kCraps : RollMark::kPointSet;
    } else if (total == 7 || total == point) {
      happened = total == 7 ? "seven-out" : "point made";
      mark = total == 7 ? RollMark::kSevenOut : RollMark::kPointMade;
    }
    hand += mark == RollMark::kSevenOut ? 1 : 0;
    std::string line = "Roll " + std::to_string(roll) + ": " + std::to_string(total) + " (" +
                       std::to_string(die1) + "-" + std::to_string(die2) + "), " + happened + ".";
    for (const auto& [seat, name] : players) {
      const Currency change = game.table.BankrollCurrent[seat] - before[seat];
      line += std::string(seat == 1 ? " " : ", ") + name + (change > kZero ? " +" : " ") +
              ToCore(MoneyText(change));
    }
    ASSERT_EQ(ToCore(window.TheBoard().ResultText()), line) << "seed " << kSeed;
    rolled.emplace_front(total, mark);
    if (rolled.size() > RollHistory::kMost) rolled.pop_back();
    ASSERT_EQ(window.host.rolled.Size(), static_cast<int>(rolled.size()));
    for (std::size_t n = 0; n < rolled.size(); ++n) {
      const RolledOnce& noted = window.host.rolled.Back(static_cast<int>(n));
      ASSERT_EQ(std::pair(noted.total, noted.mark), rolled[n]) << "roll " << roll << ", " << n << " back";
    }
  }
  game.settings.RollThrottle = 0;
  game.settings.AutoStopInterval = 300;
  window.host.answers.Ok();  // stopped by Auto-Stop
  ToggleAutoRoll(game);
  EXPECT_TRUE(window.host.answers.Empty());
  EXPECT_EQ(window.host.rolled.Size(), RollHistory::kMost) << "every roll of a run is noted";
  EXPECT_EQ(window.host.rolled.Back(0).total, game.table.RollTotal);
}

TEST(Board, NotesStandUnderTheResultOrComeInBoxes) {
  Window window;
  window.Join(4, "Ann", "5000000");  // more than any limit
  for (const bool boxes : {false, true}) {
    Preferences wanted;
    wanted.notesInBoxes = boxes;
    ASSERT_TRUE(WritePreferences(window.game->dataFolder, wanted));
    window.host.Changed(*window.game, Change::kSettings);
    window.host.answers.Ok();  // of a box, if there is one
    const auto before = window.TheBoard().Notes().size();
    const int bet = boxes ? kHard6 : kField;
    window.Bet(4, bet, "900000");
    EXPECT_EQ(window.host.answers.Empty(), boxes);
    EXPECT_EQ(window.TheBoard().Notes().size() > before, !boxes);
    if (!boxes) {
      EXPECT_TRUE(window.TheBoard().Notes().first().startsWith("Ann, The maximum Field bet is $"))
          << window.TheBoard().Notes().first().toStdString();
      MessageBox left;
      left.MsgFlags = kMsgOk;
      window.host.answers.Take(left);
    }
    window.game->settings.ShooterBetRule = 0;
  }
  ASSERT_TRUE(WritePreferences(window.game->dataFolder, Preferences()));
  window.host.Changed(*window.game, Change::kSettings);
  RemoveAllBets(*window.game);
  window.Bet(4, kHard8, "900000");
  EXPECT_FALSE(window.TheBoard().Notes().isEmpty());
  window.Roll(2, 3);
  EXPECT_TRUE(window.TheBoard().Notes().isEmpty()) << "they are of one roll";
}

TEST(Board, WhatTheNextClickIsMeantForStandsOnIt) {
  Window window;
  window.Join(4, "Ann");
  QTest::keyClick(&window.window.Table(), Qt::Key_Delete);
  EXPECT_EQ(NextClickLine(window.window.Commands()), "Next click: remove a bet. A right click ends this");
  QTest::keyClick(&window.window.Table(), Qt::Key_Escape);
  EXPECT_EQ(NextClickLine(window.window.Commands()), "");
}

// --- Motion, and what is lit.

TEST(Motion, PuckAndChecksMoveShortlyAndHoldNothingUp) {
  Window window;
  window.Join(4, "Ann");
  window.HandleAll();
  window.game->settings.ShooterBetRule = 0;
  window.game->settings.DiceAction = 1;  // not thrown
  const TableScene& scene = window.window.Table().scene;
  const auto moves = [&] { return !scene.moving.empty() || scene.puckShare < 1; };
  window.Bet(4, kField, "30");
  window.Roll(3, 3);
  EXPECT_FALSE(moves()) << "no motion";
  window.window.Table().animate = true;
  window.Bet(4, kField, "30");
  window.Bet(4, kPlace4, "10");
  window.Roll(5, 4);
  ASSERT_EQ(scene.moving.size(), 1u);
  EXPECT_LT(scene.moving[0].From.y(), 0) << "won: from the house";
  EXPECT_EQ(scene.puckShare, 1) << "the point stays";
  // Clicks and rolls go on at once.
  const Currency up = window.State().BetAmount(4, kField);
  const QPoint field = window.window.Table().PointOfBet(4, kField);
  QTest::mouseClick(&window.window.Table(), Qt::LeftButton, {}, field);
  EXPECT_EQ(window.State().BetAmount(4, kField), up + Currency::Dollars(5));
  const std::int64_t rolls = SessionRolls(window.game->stats);
  window.Roll(6, 1);
  EXPECT_EQ(SessionRolls(window.game->stats), rolls + 1);
  ASSERT_EQ(scene.moving.size(), 2u);
  for (const MovingChecks& checks : scene.moving) EXPECT_LT(checks.To.y(), 0) << "lost: to the house";
  EXPECT_EQ(scene.puckFrom, 6);
  QTest::qWait(2 * kChecksMilliseconds);
  EXPECT_FALSE(moves());
  window.game->settings.AutoStopInterval = 40;
  window.game->settings.RollThrottle = 0;
  window.host.betweenRolls = [&](Game&) { EXPECT_FALSE(moves()) << "in a Turbo-Roll"; };
  window.host.answers.Ok();
  ToggleAutoRoll(*window.game);
  EXPECT_FALSE(moves());
}

TEST(Motion, AnAreaThatMayNotBeBetNowIsNotLit) {
  Window window;
  window.Join(4, "Ann");
  TableWidget& table = window.window.Table();
  const auto lights = [&](int bet) {
    QTest::mouseMove(&table, QPoint(2, 2));
    QTest::mouseMove(&table, table.PointOfBet(4, bet));
    QApplication::processEvents();
    EXPECT_EQ(table.scene.hoverBet, bet);
    return table.scene.hoverTakes;
  };
  EXPECT_TRUE(lights(kPassLine));
  EXPECT_FALSE(lights(kPassLineOdds)) << "no line bet, no point";
  EXPECT_FALSE(lights(kCome)) << "on the come-out";
  window.Bet(4, kPassLine, "10");
  window.Roll(4, 2);
  EXPECT_TRUE(lights(kPassLineOdds) && lights(kCome));
  QTest::keyClick(&table, Qt::Key_Delete);
  EXPECT_FALSE(lights(kCome)) << "nothing to remove";
  EXPECT_TRUE(lights(kPassLine));
}

// --- Places.

QRect OnStage(const QWidget& widget, const QWidget& stage) {
  return {widget.mapTo(&stage, QPoint()), widget.size()};
}

TEST(Plates, EightOfTheLargestNeverOverlapCoverFeltOrMove) {
  for (const QSize size : {QSize(1280, 800), QSize(1024, 600), QSize(1920, 1080), QSize(800, 500),
                           QSize(1600, 720), QSize(900, 1000), QSize(1100, 700), QSize(3840, 2160)}) {
    Window window(size);
    for (int seat = 1; seat <= kSeats; ++seat)
      window.Join(seat, "Maximiliane " + std::string(1, static_cast<char>('a' + seat)), "9999999");
    TableStage& stage = window.window.Stage();
    TableWidget& table = window.window.Table();
    const std::string what = std::to_string(size.width()) + "x" + std::to_string(size.height());
    std::map<int, QRect> at;
    const auto look = [&](const std::string& when) {
      QApplication::processEvents();
      const QPainterPath felt =
          table.view.Transform().map(FeltOutline()).translated(QPointF(table.geometry().topLeft()));
      const bool whole = table.IsFitted() && table.view.TableAngle == 0;
      for (int seat = 1; seat <= kSeats; ++seat) {
        const Plate& plate = stage.PlateOf(seat);
        const QRect place = plate.geometry();
        EXPECT_TRUE(plate.isVisible() && stage.rect().contains(place)) << what << when << seat;
        EXPECT_TRUE(plate.FiguresFit()) << what << when << seat;
        EXPECT_EQ(whole && felt.intersects(QRectF(place)), false) << what << when << seat;
        for (int other = 1; other < seat; ++other)
          EXPECT_FALSE(place.intersects(stage.PlateOf(other).geometry())) << what << when << seat << other;
        for (int x = place.left(); x <= place.right(); x += 9)
          for (int y = place.top(); y <= place.bottom(); y += 7)
            EXPECT_EQ(table.BetAt(QPoint(x, y) - table.pos()), 0) << what << when << seat;
      }
    };
    look(" at first, ");
    for (int seat = 1; seat <= kSeats; ++seat) at[seat] = stage.PlateOf(seat).geometry();
    EXPECT_GE(table.view.Scale() * 1323 + 2, std::min<double>(table.width(), (table.height() - 80) / 0.449))
        << what << ": the table is small";
    for (int seat = 3; seat <= 6; ++seat)
      for (int other = 2; other < kSeats; ++other)
        EXPECT_FALSE(QRectF(at[other]).intersects(
            table.view.Transform().mapRect(WellsOf(seat)).translated(table.pos())))
            << what << ": the plate of " << other << " covers CheckStacks of " << seat;
    // The mark of an open position is seen whole whoever sits beside it.
    const int mark = static_cast<int>(OpenMarkRadius(table.view.Scale()));
    for (int seat = 3; seat <= 6; ++seat) {
      const QPoint middle = table.PointOfSeat(seat) + table.pos();
      for (int other = 1; other <= kSeats; ++other) {
        if (other == seat) continue;
        EXPECT_FALSE(at[other].intersects(QRect(middle.x() - mark, middle.y(), 2 * mark, 1)))
            << what << " " << seat << other;
      }
      EXPECT_EQ(table.SeatAt(table.PointOfSeat(seat)), seat) << what;
    }
    window.Bet(3, kPassLine, "500");
    LeaveTable(*window.game, 8);
    window.window.TheDesk().refresh();
    for (int seat = 1; seat < kSeats; ++seat) EXPECT_EQ(stage.PlateOf(seat).geometry(), at[seat]) << what;
    window.Join(8, "Again", "9999999");
    window.window.TheDesk().refresh();
    for (const char* view : {"mnuDisplayPropBets", "mnuViewLeft", "mnuRotate", "mnuViewWhole"}) {
      window.window.Command(view)->trigger();
      look(std::string(" ") + view + ", ");
    }
  }
}

TEST(Plates, APlateChoosesItsPlayerAndHasTheMenu) {
  Window window;
  window.Join(4, "Ann");
  window.Join(5, "Bo");
  QApplication::processEvents();
  auto& plate = Find<Plate>(window.window, "picPlate4");
  QTest::mouseClick(&plate, Qt::LeftButton);
  EXPECT_EQ(window.State().SelectedSeat, 4);
  EXPECT_TRUE(plate.Text().selected);
  window.Bet(4, kPassLine, "10");
  window.window.TheDesk().refresh();
  EXPECT_EQ(plate.Text().betsCaption + plate.Text().bets + plate.Text().rail, "1 Bet:10.00990.00");
  QStringList entries;
  QTimer::singleShot(50, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions()) entries += action->objectName();
    menu->close();
  });
  QContextMenuEvent wanted(QContextMenuEvent::Mouse, plate.rect().center(), plate.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&plate, &wanted);
  EXPECT_TRUE(entries.contains("mnuPlayerDelete") && entries.contains("mnuAtm")) << entries.size();
  QtWarnings().removeAll("This plugin does not support grabbing the keyboard");  // of the offscreen platform
}

TEST(MainWindow, ItsPartsHaveTheToldHeights) {
  const struct {
    QSize size;
    int board, controls, status;
    QSize plate, roll;
  } kTold[] = {{{1280, 800}, 50, 56, 22, {150, 71}, {118, 44}},
               {{1024, 600}, 38, 36, 18, {122, 50}, {86, 31}},
               {{1920, 1080}, 56, 54, 24, {172, 78}, {118, 44}},
               {{800, 500}, 38, 36, 18, {92, 50}, {86, 31}}};
  for (const auto& told : kTold) {
    Window window;
    window.Join(1, "Ann");
    window.window.resize(told.size);  // as it stands, not only when it comes up
    QApplication::processEvents();
    const auto& roll = Find<QPushButton>(window.window, "cmdRoll");
    EXPECT_EQ(window.TheBoard().height(), told.board);
    EXPECT_EQ(roll.parentWidget()->parentWidget()->height(), told.controls);
    EXPECT_EQ(window.window.statusBar()->height(), told.status);
    EXPECT_EQ(Find<Plate>(window.window, "picPlate1").size(), told.plate);
    EXPECT_EQ(roll.size(), told.roll);
    EXPECT_EQ(window.TheBoard().HistoryRoom(), told.size.width() < 1000 ? 12 : 20) << told.size.width();
    // Everything in the bar is in the window, and nothing on another.
    QList<QRect> places;
    for (const char* name : {"picCheck1", "picCheck5", "txtAmt", "hsbThrottle", "cmdTurboRoll", "cmdRoll"}) {
      const QRect place = OnStage(Find<QWidget>(window.window, name), window.window);
      EXPECT_TRUE(window.window.rect().contains(place)) << name << told.size.width();
      for (const QRect& other : places) EXPECT_FALSE(other.intersects(place)) << name << told.size.width();
      places.append(place);
    }
  }
}

// --- Palettes.

double Light(const QColor& color) {
  const auto part = [](double share) {
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}
double Contrast(const QColor& a, const QColor& b) {
  return (std::max(Light(a), Light(b)) + 0.05) / (std::min(Light(a), Light(b)) + 0.05);
}

TEST(Palettes, TextEdgesAndFocusStandOutAsTold) {
  const QPalette before = QApplication::palette();
  for (const Tones* tones : {&LightTones(), &DarkTones()}) {
    for (const QColor& ground : {tones->window, tones->panel}) {
      EXPECT_GE(Contrast(tones->text, ground), 11.5);
      EXPECT_GE(Contrast(tones->second, ground), 6);
      EXPECT_GE(Contrast(tones->edge, ground), 2.9);
      EXPECT_GE(Contrast(tones->focus, ground), 5);
    }
    EXPECT_GE(Contrast(tones->primary, tones->onPrimary), 6.5);
    EXPECT_GE(std::min(Contrast(tones->won, tones->panel), Contrast(tones->lost, tones->panel)), 5.3);
  }
  for (const Scheme scheme : {Scheme::kDark, Scheme::kLight}) {
    ApplyScheme(scheme);
    const Tones& tones = scheme == Scheme::kDark ? DarkTones() : LightTones();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), tones.window);
    EXPECT_EQ(QApplication::palette().color(QPalette::Text), tones.text);
    // The edge of a control and the knob of a slider are there to see.
    QWidget ground;
    QLineEdit entry(&ground);
    QSlider slider(Qt::Horizontal, &ground);
    entry.setGeometry(10, 10, 100, 24);
    slider.setGeometry(10, 40, 100, 24);
    ground.resize(120, 80);
    const QImage picture = ground.grab().toImage();
    double edge = 1;
    double knob = 1;
    for (int y = 9; y < 14; ++y) edge = std::max(edge, Contrast(picture.pixelColor(60, y), tones.panel));
    for (int x = 10; x < 40; ++x) knob = std::max(knob, Contrast(picture.pixelColor(x, 52), tones.window));
    EXPECT_GE(edge, 2.5);
    EXPECT_GE(knob, 2.5);
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessaryn::test
