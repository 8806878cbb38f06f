// The table in the window: paints it from the state through one transform, and turns the pointer and the keys
// into commands.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "shell/table/table_commands.h"
#include "shell/table/table_motion.h"
#include "shell/table/table_painter.h"

class QTimer;

namespace tessaryn {

class MoneyEdit;

class TableWidget : public QWidget {
  Q_OBJECT

 public:
  TableWidget(Game& game, TableCommands& commands, QWidget* parent = nullptr);

  TableView view;
  TableColors colors;
  TableScene scene;
  bool animate = true;  // whether anything moves by itself

  const TableLayout& Layout() const { return layout_; }
  // The bet meant under a point of the widget; 0 for none.
  BetId BetAt(QPoint point);
  // The bet whose stack a press there would drag; 0 for none.
  int DragsFrom(QPoint point) const;
  // The seat whose place at the rail is under a point; 0 for none.
  SeatId SeatAt(QPoint point) const;
  // The middle of an area on the screen, where a click hits it; the seat's end of the table first.
  QPoint PointOfBet(SeatId seat, BetId bet) const;
  // Where the seat's checks on a bet stand now, or would.
  QPoint PointOfStack(SeatId seat, BetId bet) const;
  QPoint PointOfSeat(SeatId seat) const;

  // The rules or payoffs changed: lettering and areas are made anew.
  void RebuildLayout();
  // The view was changed from outside.
  void ViewChanged();
  // How much of the upper and lower edge is the plates' in any view but the whole table's.
  void SetPlateRoom(int above, int below);
  // The whole table, as large as the window shows it.
  void ShowWhole();
  // It is shown so until the user chooses another view.
  bool IsFitted() const { return fitted_; }
  // The state changed: amounts, markers, dice, boxes.
  void Refresh();
  // Brings the dice from the shooter to the far end; returns when they lie still. A key or click cuts it
  // short.
  void ShowThrow();
  // What the roll won comes from the house, what it lost goes there. Returns at once.
  void ShowChecksMove(const std::vector<BetChange>& changes);
  // A thousand checks fall on the layout; they lie there until the state changes. A key or click ends the
  // fall.
  void RainChecks();
  // The dice as the state has them.
  void PlaceDice();
  void FlashBets();
  // What the pointer's line tells of a bet.
  QString LineOf(BetId bet) { return PointerText(game_, commands_, bet); }
  // The area with the keyboard's focus; 0 takes it away.
  void SetFocusBet(BetId bet, int side);
  // The entry box of a bet's amount.
  void OpenEntry(BetId bet);
  // Closes it and takes its amount. False when the amount was not taken as typed.
  bool CommitEntry();
  bool EntryOpen() const { return entryBet_ != 0; }
  // The check that hangs on the pointer, and the line of what is under it.
  void RefreshPointer();

 signals:
  void betClicked(BetId bet, bool alt);
  // A bet of the selected seat is put down on another; to 0: off the table.
  void betMoved(int from, int to);
  void rightClicked();
  void seatClicked(SeatId seat);
  void pointedAt(BetId bet);
  // The keyboard's focus has gone to another area, or left them.
  void areaFocused();
  // What an area or stack says may be another.
  void toldAnew();
  void wheelZoomed();
  void viewChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void TakeLooks();
  void PrepareTable();
  void PrepareMap();
  Hit HitAt(QPoint point);
  // The selected seat's bet whose stack is drawn under a point; 0 for none.
  int StackAt(QPoint point) const;
  void ShowHeld();
  void PutDown(QPoint point);
  void PutDownOn(int area);
  void FindPointed(bool anew = false);
  // Whether what goes on leaves the time to look at something that moves.
  bool MayMove() const;
  void ShowCursor();
  void TellSoon();
  void WalkFocus(int key);
  void TellFocus();
  void LeftPress(QMouseEvent* event);
  void LeftRelease(QMouseEvent* event);
  void DragStack(QMouseEvent* event);
  QRect OpenRoom() const;
  void TellView(bool fitted);
  // Calls frame with the share 0 to 1 of the time that is over, until it is or the user cuts it short.
  void Animate(int milliseconds, const std::function<void(double)>& frame);
  void CloseEntry();

  Game& game_;
  TableCommands& commands_;
  TableLayout layout_;
  CheckPictures checks_;
  BetPiles piles_;
  TableDrawing drawing_;
  QImage table_;  // the table without what changes
  QImage map_;    // ids under the points
  bool tableStale_ = true;
  bool mapStale_ = true;
  TableMotion motion_{scene, *this};
  int shownPoint_ = 0;
  bool fitted_ = true;  // shows the whole table until the user chooses a view
  // What the map was made for, beside the view.
  struct Shown {
    int selected = 0;
    std::array<bool, kSeatRows> seats{};
    std::array<std::array<int, 4>, kSeatRows> stacks{};
    bool operator==(const Shown&) const = default;
  };
  Shown shown_;
  QPoint pointer_{-1, -1};  // where it was last; outside when it has left
  bool tellPending_ = false;
  QPoint dragFrom_;
  bool dragging_ = false;  // the table, with the middle button
  int pressedStack_ = 0;   // under the left button, which hasn't moved yet
  QPoint pressedAt_;
  bool dragsStack_ = false;
  bool throwing_ = false;
  bool cutShort_ = false;
  int flashes_ = 0;
  QTimer* flashTimer_;
  MoneyEdit* entry_;
  BetId entryBet_ = 0;
};

}  // namespace tessaryn
