// Fingers on the table: a tap is a click, a long press brings the menu of what lies there, two fingers zoom
// and move. The keyboard's menu key brings the same menu for the area that has the focus.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointF>

class QMenu;
class QTimer;
class QTouchEvent;

namespace tessaryn {

struct Game;
struct TableCommands;
class TableWidget;

inline constexpr int kLongPressMilliseconds = 600;

class TableTouch : public QObject {
 public:
  TableTouch(TableWidget& table, Game& game, TableCommands& commands);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Hand { kNone, kDown, kDrags, kPinches, kDone };

  void Touch(QTouchEvent& event);
  void Pinch(QPointF first, QPointF second);
  void Mouse(QEvent::Type type, QPointF at);
  void LongPress();
  void ShowMenu(QPoint at, BetId bet);
  void AddBetEntries(QMenu& menu, BetId bet);

  TableWidget& table_;
  Game& game_;
  TableCommands& commands_;
  QTimer* timer_;
  Hand hand_ = Hand::kNone;
  QPointF at_;        // where the finger came down
  double apart_ = 0;  // of two fingers, when they were last looked at
  QPointF between_;   // the middle of them
};

}  // namespace tessaryn
