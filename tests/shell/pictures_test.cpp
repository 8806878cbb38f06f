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
    const QRectF reach = FrameExtremes(view);
    EXPECT_TRUE(QRectF(window.Table().rect()).adjusted(-2, -2, 2, 2).contains(reach)) << look.name;
    SavePicture(window, look.name);
    QApplication::setPalette(before);
  }
}

}  // namespace
}  // namespace tessaryn
