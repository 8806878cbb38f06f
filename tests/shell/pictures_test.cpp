// The table as a person sees it, in pictures; and that nothing on it is where it shouldn't be.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QTest>

#include "play/players.h"
#include "rules/bet_rules.h"
#include "shell/frame/main_window.h"
#include "shell/screens_support.h"
#include "shell/table/table_widget.h"
#include "shell_table.h"

namespace tessaryn {
namespace {

TEST(TablePictures, EmptyTable) {
  ShellTable table;
  TableWidget widget(*table.game, table.commands);
  widget.resize(1280, 720);
  SavePicture(widget, "table-empty");
}

TEST(TablePictures, BusyTableAtItsAnglesAndSizes) {
  ShellTable table;
  table.MakeBusy();
  TableWidget widget(*table.game, table.commands);
  widget.animate = false;
  widget.resize(1280, 720);
  SavePicture(widget, "table-busy");
  SetTableRotation(widget.view, 30);
  widget.ViewChanged();
  SavePicture(widget, "table-30");
  widget.ShowWhole();
  SetTableRotation(widget.view, 60);
  widget.ShowWhole();
  SavePicture(widget, "table-90");
  SetTableRotation(widget.view, -60);
  ZoomTo(widget.view, 5000, QPointF(640, 360));
  CenterTable(widget.view);
  widget.ViewChanged();
  SavePicture(widget, "table-5000");
}

// The whole window on light and dark desktops, on the smallest screen and on a very large one.
TEST(TablePictures, TheWindowAtEverySizeInLightAndDark) {
  struct Look {
    const char* name;
    QSize size;
    bool dark;
  };
  constexpr Look kLooks[] = {{"window", {1440, 860}, false},
                             {"window-dark", {1440, 860}, true},
                             {"window-1024x600", {1024, 600}, false},
                             {"window-1024x600-dark", {1024, 600}, true},
                             {"window-3840x2160", {3840, 2160}, false}};
  const QPalette before = QApplication::palette();
  for (const Look& look : kLooks) {
    if (look.dark) QApplication::setPalette(test::DarkPalette());
    ShellTable table;
    table.MakeBusy();
    ShellHost host;
    MainWindow window(*table.game, host);
    window.Table().animate = false;
    window.resize(look.size);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(window.size(), look.size) << look.name << " does not fit";
    const TableView& view = window.Table().view;
    const QRectF reach = TableExtremes(view);
    EXPECT_TRUE(QRectF(window.Table().rect()).adjusted(-2, -2, 2, 2).contains(reach)) << look.name;
    SavePicture(window, look.name);
    QApplication::setPalette(before);
  }
}

// In every view: off the felt, the stacks at the rail and each other; so no click on one can be a bet's.
TEST(TablePictures, StatusBoxesStandOffAllBetsAndOffEachOther) {
  struct Look {
    const char* name;
    QSize size;
    int angle;
    int zoom;      // 0: the whole table
    QPoint shift;  // then
    bool all;      // there is room for every box
  };
  constexpr Look kLooks[] = {{"table-eight", {1280, 720}, 0, 0, {}, true},
                             {"eight-1024x600", {1024, 480}, 0, 0, {}, true},
                             {"eight-800x500", {800, 400}, 0, 0, {}, true},
                             {"eight-30", {1280, 720}, 30, 0, {}, true},
                             {"eight-large", {1280, 720}, 0, 2000, {500, 300}, false},
                             {"eight-left", {1280, 720}, 0, 1600, {900, 0}, false},
                             {"eight-turned", {1024, 480}, 90, 1400, {0, 80}, false},
                             {"eight-close", {1280, 720}, 200, 5000, {-100, 40}, false}};
  ShellTable table;
  for (int seat = 1; seat <= kSeats; ++seat)
    table.Join(seat, "Player" + std::string(1, static_cast<char>('a' + seat)), "9999999");
  table.State().SelectedSeat = 4;
  for (const Look& look : kLooks) {
    TableWidget widget(*table.game, table.commands);
    widget.resize(look.size);
    widget.view.Window = look.size;
    SetTableRotation(widget.view, look.angle);
    widget.ShowWhole();
    if (look.zoom != 0) {
      ZoomTo(widget.view, look.zoom, QPointF(look.size.width() / 2.0, look.size.height() / 2.0));
      ShiftTable(widget.view, look.shift.x(), look.shift.y());
      widget.ViewChanged();
    }
    SavePicture(widget, look.name);
    const auto boxes = PlaceStatusBoxes(*table.game, widget.Layout(), widget.view, widget.font());
    const QPainterPath felt = widget.view.Transform().map(FeltOutline());
    const QPainterPath rail = widget.view.Transform().map(RailOutline());
    for (int a = 1; a <= kSeats; ++a) {
      EXPECT_TRUE(!look.all || !boxes[a].isEmpty()) << look.name << " " << a;
      if (boxes[a].isEmpty()) continue;
      EXPECT_TRUE(QRectF(widget.rect()).contains(boxes[a])) << look.name << " " << a;
      EXPECT_FALSE(felt.intersects(boxes[a])) << look.name << " " << a;
      if (look.all) {
        EXPECT_FALSE(rail.contains(boxes[a].center())) << look.name << " " << a;
      }
      for (int x = 0; x < 20; ++x)
        for (int y = 0; y < 20; ++y) {
          const QPointF point =
              boxes[a].topLeft() + QPointF(boxes[a].width() * x, boxes[a].height() * y) / 20;
          table.State().SelectedSeat = 1 + (x + y) % kSeats;
          EXPECT_EQ(widget.BetAt(point.toPoint()), 0) << look.name << " " << a;
          EXPECT_EQ(widget.SeatAt(point.toPoint()), a) << look.name;
        }
      table.State().SelectedSeat = 4;
      for (int b = a + 1; b <= kSeats; ++b)
        EXPECT_FALSE(boxes[a].intersects(boxes[b])) << look.name << " " << a << " and " << b;
    }
  }
}

}  // namespace
}  // namespace tessaryn
