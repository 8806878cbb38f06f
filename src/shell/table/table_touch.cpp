#include "shell/table/table_touch.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QTouchEvent>
#include <cmath>

#include "base/bet_catalogue.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

QString Translated(const char* text) { return QCoreApplication::translate("TableTouch", text); }

}  // namespace

TableTouch::TableTouch(TableWidget& table, Game& game, TableCommands& commands)
    : QObject(&table), table_(table), game_(game), commands_(commands), timer_(new QTimer(this)) {
  table.setAttribute(Qt::WA_AcceptTouchEvents);
  timer_->setSingleShot(true);
  timer_->setInterval(kLongPressMilliseconds);
  connect(timer_, &QTimer::timeout, this, [this] { LongPress(); });
  table.installEventFilter(this);
}

bool TableTouch::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      Touch(*static_cast<QTouchEvent*>(event));
      event->accept();
      return true;
    case QEvent::TouchCancel:
      timer_->stop();
      if (hand_ == Hand::kDrags) Mouse(QEvent::MouseButtonRelease, at_);
      hand_ = Hand::kNone;
      return true;
    case QEvent::ContextMenu: {
      const auto* menu = static_cast<QContextMenuEvent*>(event);
      // The right button rolls.
      if (menu->reason() != QContextMenuEvent::Keyboard || table_.scene.focusBet == 0) break;
      const BetId bet = MeantBet(game_, table_.scene.focusBet);
      ShowMenu(table_.mapToGlobal(table_.PointOfBet(game_.table.SelectedSeat, bet)), bet);
      return true;
    }
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void TableTouch::Touch(QTouchEvent& event) {
  const auto& points = event.points();
  if (points.isEmpty()) return;
  const QPointF at = points[0].position();
  if (points.size() >= 2) {
    // A second finger ends what the first had begun; what it drags stays where it was.
    timer_->stop();
    if (hand_ == Hand::kDrags) Mouse(QEvent::MouseButtonRelease, at_);
    if (event.type() != QEvent::TouchEnd) Pinch(at, points[1].position());
  } else if (event.type() == QEvent::TouchBegin) {
    hand_ = Hand::kDown;
    at_ = at;
    timer_->start();
  } else if (event.type() == QEvent::TouchUpdate) {
    if (hand_ == Hand::kDown && (at - at_).manhattanLength() >= QApplication::startDragDistance()) {
      timer_->stop();
      // A finger that wanders over the felt without a stack bets nothing.
      hand_ = table_.DragsFrom(at_.toPoint()) != 0 ? Hand::kDrags : Hand::kDone;
      if (hand_ == Hand::kDrags) Mouse(QEvent::MouseButtonPress, at_);
    }
    if (hand_ == Hand::kDrags) Mouse(QEvent::MouseMove, at);
  }
  if (event.type() != QEvent::TouchEnd) return;
  timer_->stop();
  const Hand ended = std::exchange(hand_, Hand::kNone);
  if (ended == Hand::kDown) Mouse(QEvent::MouseButtonPress, at_);
  if (ended == Hand::kDown || ended == Hand::kDrags) Mouse(QEvent::MouseButtonRelease, at);
}

// The table follows the fingers: its point between them stays there.
void TableTouch::Pinch(QPointF first, QPointF second) {
  const double apart = std::hypot(first.x() - second.x(), first.y() - second.y());
  const QPointF between = (first + second) / 2;
  if (std::exchange(hand_, Hand::kPinches) == Hand::kPinches && apart_ > 1 && apart > 1) {
    const QPointF way = between - between_;
    ShiftTable(table_.view, static_cast<int>(std::lround(way.x())), static_cast<int>(std::lround(way.y())));
    ZoomTo(table_.view, static_cast<int>(std::lround(table_.view.TableZoom * apart / apart_)), between);
    ShiftTable(table_.view, 0, 0);
    table_.ViewChanged();
    emit table_.wheelZoomed();
  }
  apart_ = apart;
  between_ = between;
}

void TableTouch::Mouse(QEvent::Type type, QPointF at) {
  const bool held = type != QEvent::MouseButtonRelease;
  QMouseEvent event(type, at, table_.mapToGlobal(at),
                    type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&table_, &event);
}

void TableTouch::LongPress() {
  hand_ = Hand::kDone;
  const QPoint at = at_.toPoint();
  ShowMenu(table_.mapToGlobal(at), table_.BetAt(at));
}

void TableTouch::AddBetEntries(QMenu& menu, BetId bet) {
  const SeatId seat = game_.table.SelectedSeat;
  const bool up = game_.table.BetAmount(seat, bet) != kZero;
  const auto add = [&](const char* name, const QString& text, int action) {
    QAction* const entry = menu.addAction(text, &table_, [this, bet, action] {
      commands_.PendingAction = action;
      emit table_.betClicked(bet, false);
    });
    entry->setObjectName(name);
  };
  menu.addSection(FromCore(BetName(bet)));
  add("mnuTouchBet",
      Translated(QT_TRANSLATE_NOOP("TableTouch", "Bet %1"))
          .arg(TableAmountText(game_, commands_.ClickAmount)),
      kPendingNone);
  if (!up || !IsTableBet(bet)) return;
  add("mnuTouchRemove", Translated(QT_TRANSLATE_NOOP("TableTouch", "Take down")), kPendingRemove);
  add("mnuTouchMove", Translated(QT_TRANSLATE_NOOP("TableTouch", "Move")), kPendingMove);
  if (kCallableBets.Has(bet)) {
    add("mnuTouchOn", Translated(QT_TRANSLATE_NOOP("TableTouch", "Call ON")), kPendingCallOn);
    add("mnuTouchOff", Translated(QT_TRANSLATE_NOOP("TableTouch", "Call OFF")), kPendingCallOff);
  }
  if (IsPlace(bet)) add("mnuTouchBuy", Translated(QT_TRANSLATE_NOOP("TableTouch", "Buy")), kPendingBuy);
}

void TableTouch::ShowMenu(QPoint at, BetId bet) {
  auto* menu = new QMenu(&table_);
  menu->setObjectName("mnuTouch");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (bet != 0 && IsOccupied(game_.table, game_.table.SelectedSeat)) AddBetEntries(*menu, bet);
  menu->addSeparator();
  menu->addAction(Translated(QT_TRANSLATE_NOOP("TableTouch", "Roll the dice")), &table_,
                  [this] { emit table_.rightClicked(); })
      ->setObjectName("mnuTouchRoll");
  menu->popup(at);
}

}  // namespace tessaryn
