// A table for the window's tests: a core with its test host, and a way to fill it with bets.
#pragma once

#include <QString>

#include "shell/table/table_commands.h"
#include "support/test_host.h"

class QImage;
class QWidget;

namespace tessaryn {

struct ShellTable : test::TestTable {
  TableCommands commands;

  // Four players with bets all over the felt in the middle of a hand; seat 3 selected.
  void MakeBusy();
};

// Writes the widget's picture to the folder that TESSARYN_PICTURES names; nothing without it. A picture of
// one colour fails the test.
void SavePicture(QWidget& widget, const QString& name);
void SaveImage(const QImage& image, const QString& name);

}  // namespace tessaryn
