// frmRYON: the floating pad on which the user rolls a chosen number, rolls at random, and starts and stops
// runs.
#pragma once

#include <QWidget>
#include <functional>

#include "play/roll_pad.h"
#include "shell/screens/tool_window.h"

class QLabel;
class QMenu;
class QPushButton;
class QSlider;

namespace tessaryn {

struct Game;

// The cells of the pad. A press is told to its owner; everything else is drawing and walking.
class PadGrid : public QWidget {
  Q_OBJECT

 public:
  explicit PadGrid(QWidget* parent = nullptr);
  void SetPadLayout(int layout);
  int PadLayout() const { return layout_; }
  // The die that the faces layout has already; zeros for none.
  void SetChosen(PadRoll chosen);
  QSize sizeHint() const override;
  QPoint MiddleOfCell(int row, int column) const;

 signals:
  void pressed(int row, int column);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRectF CellBox(int row, int column) const;
  PadCell CellAt(QPointF point) const;
  // Whether there is a roll in the cell; the triangle has empty corners.
  bool IsCell(int row, int column) const;
  void PaintCell(QPainter& painter, int row, int column) const;
  void Walk(int rows, int columns);
  void TellFocus();

  int layout_ = kPadTotals;
  PadRoll chosen_;
  PadCell hover_;
  PadCell focus_{0, 0};
};

class RollPad : public ToolWindow {
  Q_OBJECT

 public:
  RollPad(Game& game, QWidget* parent);
  // Takes the amount of an open bet entry before anything is rolled. False when that gave a message: the
  // press is dropped then. May be empty.
  std::function<bool()> commitEntry;
  void Refresh() override;
  PadGrid& Grid() { return *grid_; }
  // The pad takes its new size at once.
  void SetPadLayout(int layout);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  bool MayAct();
  void Pressed(int row, int column);
  void RandomRoll();
  void ToggleRun();
  void ShowMenu(QPoint globalPoint);
  void AddLayouts(QMenu& menu);
  void AddParts(QMenu& menu);
  void AddSettings(QMenu& menu);

  Game& game_;
  PadGrid* grid_;
  PadRoll chosen_;
  QLabel* counter_;
  QPushButton* random_;
  QPushButton* run_;
  QSlider* throttle_;
  QLabel* speed_;
};

}  // namespace tessaryn
