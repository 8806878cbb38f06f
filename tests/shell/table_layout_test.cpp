// The felt's areas, lettering and check places; and the map that tells what is under a point.
#include "shell/table/table_layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "base/bet_catalogue.h"
#include "rules/bet_rules.h"
#include "shell/table/table_painter.h"
#include "shell_table.h"
#include "state/bet_families.h"

namespace tessaryn {
namespace {

// A window that holds the whole table at a zoom and an angle.
TableView WholeAt(int zoom, int angle) {
  TableView view;
  view.Window = QSize(100, 100);
  ZoomTo(view, zoom, {0, 0});
  SetTableRotation(view, angle);
  const QRectF reach = TableExtremes(view);
  view.Window = QSizeF(reach.width() + 40, reach.height() + 40).toSize();
  CenterTable(view);
  return view;
}

QImage MapOf(const TableLayout& layout, const TableView& view, const Game& game) {
  QImage map(view.Window, QImage::Format_RGB32);
  DrawTableHotspots(map, layout, view, game);
  return map;
}

// The state in which an id means itself and not a bet that shares its place.
void PutUpPartners(Game& game, int seat, int bet) {
  if (IsDontComeOdds(bet)) SetBetAmount(game, seat, bet - 6, Currency::Dollars(5));
  if (bet == kDontPassOdds) SetBetAmount(game, seat, kDontPass, Currency::Dollars(5));
}

void TakeDownPartners(Game& game, int seat, int bet) {
  if (IsDontComeOdds(bet)) SetBetAmount(game, seat, bet - 6, kZero);
  if (bet == kDontPassOdds) SetBetAmount(game, seat, kDontPass, kZero);
}

TEST(TableLayout, EveryBetIsHitWhereItsChecksStandForEverySeatAtEveryView) {
  ShellTable table;
  for (int seat = 1; seat <= kSeats; ++seat) table.Join(seat, "P" + std::to_string(seat) + "x");
  Game& game = *table.game;
  const TableLayout layout = BuildTableLayout(game.settings, game.payoffs);
  game.table.Point = 6;
  for (const int zoom : {500, 1248, 2600, 5000})
    for (const int angle : {0, 30, 90, 135, 180, 301}) {
      const TableView view = WholeAt(zoom, angle);
      const QImage map = MapOf(layout, view, game);
      for (int seat = 1; seat <= kSeats; ++seat)
        for (int bet = 1; bet <= kBets; ++bet) {
          game.table.SelectedSeat = seat;
          PutUpPartners(game, seat, bet);
          const QPoint point =
              view.ToScreen(QPointF(layout.CheckX(seat, bet), layout.CheckY(seat, bet))).toPoint();
          ASSERT_EQ(HitTest(map, point, game).Bet, bet)
              << BetName(bet) << " seat " << seat << " zoom " << zoom << " angle " << angle;
          TakeDownPartners(game, seat, bet);
        }
    }
  game.table.Point = 0;
}

TEST(TableLayout, MapAgreesWithTheOutlinesAndGapsRailAndRoomHitNothing) {
  ShellTable table;
  const TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
  const TableView view = WholeAt(2500, 37);
  const QImage map = MapOf(layout, view, *table.game);
  const QPainterPath felt = FeltOutline();
  std::mt19937 random(7);
  int nothing = 0;
  int hits = 0;
  for (int n = 0; n < 60'000; ++n) {
    const QPoint point(static_cast<int>(random() % static_cast<unsigned>(map.width())),
                       static_cast<int>(random() % static_cast<unsigned>(map.height())));
    const QPointF units = view.ToTable(point);
    const int hit = HitTest(map, point, *table.game).Bet;
    int expected = 0;
    bool nearEdge = false;
    for (const TableArea& area : layout.Areas) {
      if (area.Outline.contains(units)) expected = MeantBet(*table.game, area.Id);
      // Points within a pixel or two of an edge may fall either way.
      if (area.Outline.intersects(QRectF(units - QPointF(0.8, 0.8), QSizeF(1.6, 1.6))) &&
          !area.Outline.contains(QRectF(units - QPointF(0.8, 0.8), QSizeF(1.6, 1.6))))
        nearEdge = true;
    }
    if (nearEdge) continue;
    ASSERT_EQ(hit, expected) << units.x() << "," << units.y();
    ASSERT_TRUE(hit == 0 || felt.contains(units)) << "off the felt";
    ++(hit == 0 ? nothing : hits);
  }
  EXPECT_GT(nothing, 5'000);
  EXPECT_GT(hits, 20'000);
}

TEST(TableLayout, NoTwoAreasOverlapAndAllLieOnTheFelt) {
  ShellTable table;
  const TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
  const QPainterPath felt = FeltOutline();
  for (std::size_t a = 0; a < layout.Areas.size(); ++a) {
    EXPECT_TRUE(felt.contains(layout.Areas[a].Outline)) << BetName(layout.Areas[a].Id) << " leaves the felt";
    for (std::size_t b = a + 1; b < layout.Areas.size(); ++b)
      EXPECT_FALSE(layout.Areas[a].Outline.intersects(layout.Areas[b].Outline))
          << BetName(layout.Areas[a].Id) << " and " << BetName(layout.Areas[b].Id);
  }
}

TEST(TableLayout, LetteringFitsItsAreaWithAnyPayoffAndBar) {
  ShellTable table;
  for (const int bar : {2, 12}) {
    table.game->settings.BarNumber = bar;
    for (PayoffRecord& record : table.game->payoffs.PayoffTable) {
      record.PayTo = Currency::Dollars(bar == 2 ? 1234 : 7);
      record.PayPer = Currency::Dollars(bar == 2 ? 1000 : 5);
    }
    TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
    FitLettering(layout, bar == 2 ? 0.6 : 1.1);
    int labels = 0;
    for (const TableArea& area : layout.Areas)
      for (const TableLabel& label : area.Labels) {
        ++labels;
        if (label.Die1 == 0) {
          if (label.Outline.isEmpty()) continue;  // there is no room for it
          const QRectF bounds = label.Outline.boundingRect();
          EXPECT_TRUE(area.Outline.contains(bounds)) << BetName(area.Id) << ": " << label.Text.toStdString();
          continue;
        }
        const LabelDice dice = PlaceLabelDice(label);
        for (const QPointF& centre : {dice.First, dice.Second}) {
          QRectF square(0, 0, dice.Side, dice.Side);
          square.moveCenter(centre);
          EXPECT_TRUE(area.Outline.contains(square)) << BetName(area.Id) << " dice";
        }
      }
    EXPECT_GT(labels, 150);
  }
}

TEST(TableLayout, SeatsDontShareAPlace) {
  ShellTable table;
  const TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
  for (int bet = 1; bet <= kBets; ++bet)
    for (int a = 1; a <= kSeats; ++a)
      for (int b = a + 1; b <= kSeats; ++b) {
        const double dx = layout.CheckX(a, bet) - layout.CheckX(b, bet);
        const double dy = layout.CheckY(a, bet) - layout.CheckY(b, bet);
        EXPECT_GE(std::hypot(dx, dy), 7) << BetName(bet) << " seats " << a << " and " << b;
      }
}

TEST(TableLayout, BetsThatTheHouseDoesntOfferHaveNoArea) {
  ShellTable table;
  Settings& settings = table.game->settings;
  settings.UseBig68 = settings.UseMidway = settings.SmallTallEnabled = settings.UseFire = false;
  const TableLayout layout = BuildTableLayout(settings, table.game->payoffs);
  for (const TableArea& area : layout.Areas) EXPECT_TRUE(BetOffered(settings, area.Id)) << BetName(area.Id);
}

TEST(HitTest, SharedPlacesMeanWhatTheSelectedSeatHasUp) {
  ShellTable table;
  table.Join(1, "Ann");
  table.Join(2, "Bob");
  Game& game = *table.game;
  game.table.SelectedSeat = 1;
  EXPECT_EQ(MeantBet(game, kDontComeOdds4 + 2), kDontCome4 + 2);
  SetBetAmount(game, 2, kDontCome4 + 2, Currency::Dollars(5));
  EXPECT_EQ(MeantBet(game, kDontComeOdds4 + 2), kDontCome4 + 2) << "another seat's bet";
  SetBetAmount(game, 1, kDontCome4 + 2, Currency::Dollars(5));
  EXPECT_EQ(MeantBet(game, kDontComeOdds4 + 2), kDontComeOdds4 + 2);
  EXPECT_EQ(MeantBet(game, kPlace4), kPlace4);
  SetBetAmount(game, 1, kBuy4, Currency::Dollars(20));
  EXPECT_EQ(MeantBet(game, kPlace4), kBuy4);
  SetBetAmount(game, 1, kPlace4, Currency::Dollars(5));
  EXPECT_EQ(MeantBet(game, kPlace4), kPlace4) << "both are up";
  EXPECT_EQ(MeantBet(game, kBuy4), kBuy4);
  EXPECT_EQ(MeantBet(game, kDontPass), kDontPass);
  SetBetAmount(game, 1, kDontPass, Currency::Dollars(5));
  EXPECT_EQ(MeantBet(game, kDontPass), kDontPass) << "no point is on";
  game.table.Point = 5;
  EXPECT_EQ(MeantBet(game, kDontPass), kDontPassOdds);
  game.table.Point = 0;
}

TEST(HitTest, VisibleStacksOfOccupiedSeatsAlone) {
  ShellTable table;
  table.Join(3, "Cat");
  Game& game = *table.game;
  game.table.seats[3].VisibleStacks[2] = 77;
  const TableLayout layout = BuildTableLayout(game.settings, game.payoffs);
  const TableView view = WholeAt(1600, 60);
  const QImage map = MapOf(layout, view, game);
  for (int seat = 1; seat <= kSeats; ++seat)
    for (int n = 0; n < 4; ++n) {
      const QPoint point = view.ToScreen(VisibleStackPlace(layout.Seats[seat], n)).toPoint();
      const Hit hit = HitTest(map, point, game);
      EXPECT_EQ(hit.Bet, seat == 3 ? kFirstCheckStack + game.table.seats[3].VisibleStacks[n] : 0)
          << seat << " " << n;
      EXPECT_EQ(hit.Seat, seat == 3 ? 3 : 0);
    }
}

TEST(CheckPiles, AmountsBreakIntoTheFewestChecksAndALabelForTheRest) {
  ShellTable table;
  const Currency(&values)[6] = table.game->settings.CheckValue;
  EXPECT_EQ(BreakIntoChecks(test::Money("631"), values, 20), (CheckPile{5, 4, 3, 2, 1}));
  EXPECT_EQ(BreakIntoChecks(test::Money("4"), values, 20), (CheckPile{1, 1, 1, 1}));
  EXPECT_EQ(BreakIntoChecks(test::Money("5.50"), values, 20), (CheckPile{2, 6}));
  EXPECT_EQ(BreakIntoChecks(test::Money("-25"), values, 20), (CheckPile{3}));
  EXPECT_TRUE(BreakIntoChecks(kZero, values, 20).empty());
  EXPECT_EQ(BreakIntoChecks(test::Money("9999999.99"), values, 10).size(), 10u);
  EXPECT_EQ(BreakIntoChecks(test::Money("9999999.99"), values, 10).back(), 6);
}

}  // namespace
}  // namespace tessaryn
