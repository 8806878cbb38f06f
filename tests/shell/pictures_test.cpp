// The table as a person sees it, in pictures; and that nothing on it is where it shouldn't be.
#include <gtest/gtest.h>

#include <QDir>
#include <QPalette>
#include <QTest>

#include "engine/bet_rules.h"
#include "engine/players.h"
#include "shell/table_widget.h"
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
  SetTableRotation(widget.view, 90);
  widget.ShowWhole();
  SavePicture(widget, "table-90");
  SetTableRotation(widget.view, 270);
  ZoomTo(widget.view, 5000, QPointF(640, 360));
  CenterTable(widget.view);
  widget.ViewChanged();
  SavePicture(widget, "table-5000");
}

}  // namespace
}  // namespace tessaryn
