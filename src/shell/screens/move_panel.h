// frmMove: the small panel that moves, zooms and turns the table.
#pragma once

#include <QPainterPath>
#include <QWidget>
#include <vector>

#include "shell/screens/tool_window.h"

class QGridLayout;
class QToolButton;

namespace tessaryn {

class MovePanel : public ToolWindow {
  Q_OBJECT

 public:
  explicit MovePanel(QWidget* parent = nullptr);

 signals:
  // mode: the keys held at the click, 0 none, 1 Shift, 2 Ctrl, 3 both.
  void zoom(bool in, int mode);
  void move(int dx, int dy, int mode);
  void center();
  void rotate(bool clockwise, int mode);

 protected:
  // The icons are in the colour of the buttons' text.
  void changeEvent(QEvent* event) override;

 private:
  void DrawIcons();
  QToolButton* Add(QGridLayout& grid, int row, int column, const char* name, const QString& text,
                   const QString& hint, const QPainterPath& icon, double turn = 0);

  struct Icon {
    QToolButton* button;
    QPainterPath strokes;
    double turn;
  };
  std::vector<Icon> icons_;
};

}  // namespace tessaryn
