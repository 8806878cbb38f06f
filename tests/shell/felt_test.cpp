// The felt at the sizes that windows give it: its lettering, its stacks and what these bear.
#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <ctime>
#include <random>

#include "base/bet_catalogue.h"
#include "rules/bet_rules.h"
#include "shell/table/stack_arrangement.h"
#include "shell/table/table_painter.h"
#include "shell_table.h"
#include "state/bet_families.h"

namespace tessaryn {
namespace {

// The widths that the whole table has in windows of 1280x800, 1024x600, 800x500 and 1920x1080.
constexpr int kWidths[] = {1280, 984, 800, 1464};

TableView WholeTable(int width) {
  TableView view;
  const double scale = width / 1323.0;
  view.Window = QSize(width, static_cast<int>(594 * scale) + 1);
  ZoomTo(view, static_cast<int>(std::lround(scale * kTableUnits)), {0, 0});
  view.TableOffsetX = static_cast<int>(std::lround(38 * scale));
  view.TableOffsetY = static_cast<int>(std::lround(20 * scale));
  return view;
}

TableScene SceneOf(const Game& game, bool showAmounts) {
  TableScene scene;
  scene.game = &game;
  scene.showAmounts = showAmounts;
  return scene;
}

struct Random {
  std::mt19937 source;
  int Below(int limit) { return static_cast<int>(source() % static_cast<unsigned>(limit)); }
};

// So many players with any bets, of any amounts, called or not; of every share-th kind.
void MakeRandom(Game& game, Random& random, int players, int share) {
  for (int seat = 1; seat <= players; ++seat)
    for (int bet = 1; bet <= kBets; ++bet) {
      if (random.Below(share) != 0) continue;
      constexpr int kLimits[] = {6, 60, 2'000, 9'999'999};
      SetBetAmount(game, seat, bet, Currency::Dollars(1 + random.Below(kLimits[random.Below(4)])));
      WorkingState& working = game.table.seats[seat].BetWorking;
      const int call = FamilyRowOf(bet).callable ? random.Below(6) : 5;
      working.calledOn.Set(bet, call == 0);
      working.calledOff.Set(bet, call == 1);
    }
  game.table.Point = random.Below(2) == 0 ? 0 : 8;
  game.table.SelectedSeat = 1 + random.Below(players);
}

double FaceToMark(const StandingStack& stack, const QRectF& mark) {
  const double x = std::clamp(stack.Face.x(), mark.left(), mark.right());
  const double y = std::clamp(stack.Face.y(), mark.top(), mark.bottom());
  return std::hypot(stack.Face.x() - x, stack.Face.y() - y);
}

TEST(Felt, NoTotalOrMarkerCoversAnotherOrAFace) {
  Random random{std::mt19937(2026)};
  int seen = 0;
  for (int game = 0; game < 60; ++game) {
    ShellTable table;
    const int players = 1 + random.Below(kSeats);
    for (int seat = 1; seat <= players; ++seat) table.Join(seat, "P" + std::to_string(seat));
    MakeRandom(*table.game, random, players, game % 3 == 0 ? 1 : 1 + random.Below(12));
    const TableView view = WholeTable(kWidths[game % 4]);
    const TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
    const auto stacks = ArrangeStacks(SceneOf(*table.game, game % 2 == 0), layout, view);
    std::vector<QRectF> marks;
    for (const StandingStack& stack : stacks) {
      EXPECT_FALSE(stack.Faint && stack.Seat == table.State().SelectedSeat);
      for (const QRectF& mark : {stack.Badge, stack.Tab, stack.Call}) {
        if (mark.isEmpty()) continue;
        EXPECT_FALSE(stack.Faint);
        for (const QRectF& other : marks)
          ASSERT_FALSE(mark.intersects(other)) << game << " " << BetName(stack.Bet);
        for (const StandingStack& other : stacks)
          ASSERT_TRUE(other.Faint || FaceToMark(other, mark) > CheckDiameter(view.Scale()) * 0.33)
              << game << " " << BetName(stack.Bet) << " on " << BetName(other.Bet);
        marks.push_back(mark);
      }
    }
    seen += static_cast<int>(marks.size());
  }
  EXPECT_GT(seen, 2'000);
}

// With all 93 up side by side a few of the narrowest cells have no room.
TEST(Felt, EveryStackOfAPlayerAloneSaysItsAmount) {
  for (const int width : kWidths) {
    ShellTable table;
    table.Join(4, "Ann");
    for (int bet = 1; bet <= kBets; ++bet) SetBetAmount(*table.game, 4, bet, Currency::Dollars(12));
    table.State().SelectedSeat = 4;
    const TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
    int untold = 0;
    for (const StandingStack& stack : ArrangeStacks(SceneOf(*table.game, false), layout, WholeTable(width)))
      untold += stack.Badge.isEmpty() ? 1 : 0;
    EXPECT_LE(untold, width < 900 ? 12 : 3) << width;
  }
}

TEST(Felt, LetteringKeepsItsSmallestHeightAndStaysOffTheStacks) {
  ShellTable table;
  for (const int width : kWidths) {
    const TableView view = WholeTable(width);
    TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
    FitLettering(layout, view.Scale());
    const double least = width >= 1280 ? 8 : 7;
    for (const TableArea& area : layout.Areas)
      for (const TableLabel& label : area.Labels) {
        if (label.Die1 != 0) continue;
        ASSERT_GE(label.FittedCap * view.Scale(), least - 0.01)
            << label.Text.toStdString() << " of " << BetName(area.Id) << " at " << width;
        EXPECT_LE(label.Outline.boundingRect().width(),
                  std::max(label.Box.width(), label.Box.height()) + 0.01);
        if (width != 1280 || area.Side == 0) continue;
        for (int seat = 1; seat <= kSeats; ++seat) {
          if (SideOf(seat) != area.Side) continue;
          const QPointF stands = StackPlace(layout, table.State(), seat, area.Id);
          QPainterPath check;
          check.addEllipse(stands, 11.5, 11.5);
          EXPECT_FALSE(check.intersects(label.Outline.boundingRect()))
              << label.Text.toStdString() << " under the stack of " << BetName(area.Id) << " seat " << seat;
        }
      }
  }
}

// A table as people play at, in colours and without, and one with everything up.
TEST(Felt, Pictures) {
  for (const bool full : {false, true})
    for (const int width : kWidths) {
      ShellTable table;
      if (full)
        for (int seat = 1; seat <= kSeats; ++seat) {
          table.Join(seat, "P" + std::to_string(seat));
          for (int bet = 1; bet <= kBets; ++bet)
            SetBetAmount(*table.game, seat, bet, Currency::Dollars(12 * seat + bet));
        }
      else
        table.MakeBusy();
      const TableView view = WholeTable(width);
      TableDrawing drawing{BuildTableLayout(table.game->settings, table.game->payoffs),
                           BuildTableLayout(table.game->settings, table.game->payoffs)};
      const TableColors colors;
      QImage picture(view.Window, QImage::Format_RGB32);
      TableLayout layout = BuildTableLayout(table.game->settings, table.game->payoffs);
      for (int seat = 1; seat <= kSeats; ++seat)
        if (IsOccupied(table.State(), seat))
          PlaceVisibleStacks(layout, seat, table.State().seats[seat].VisibleStacks);
      TableScene scene = SceneOf(*table.game, full);
      scene.hoverBet = kPlace4 + 2;
      CheckPictures checks;
      for (const bool warm : {false, true}) {
        const auto start = std::clock();
        FitLettering(layout, view.Scale());
        DrawTable(picture, drawing, view, colors);
        const auto felt = std::clock();
        QPainter painter(&picture);
        DrawChecksAndDice(painter, scene, layout, view, colors, checks);
        painter.end();
        const auto end = std::clock();
        const auto ms = [](std::clock_t time) { return static_cast<double>(time) * 1000 / CLOCKS_PER_SEC; };
        if (warm && !qEnvironmentVariableIsEmpty("TESSARYN_TIMES"))
          std::printf("%d %s: felt %.1f ms, over it %.1f ms\n", width, full ? "full" : "busy",
                      ms(felt - start), ms(end - felt));
      }
      const QString name = QStringLiteral("felt-%1-%2").arg(full ? "full" : "busy").arg(width);
      SaveImage(picture, name);
      if (!full)
        SaveImage(picture.convertToFormat(QImage::Format_Grayscale8), name + QStringLiteral("-gray"));
    }
}

}  // namespace
}  // namespace tessaryn
