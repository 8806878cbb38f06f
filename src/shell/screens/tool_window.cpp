#include "shell/screens/tool_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace tessaryn {

namespace {

struct HeldRows : RowSource {
  explicit HeldRows(QList<QStringList> taken) : rows(std::move(taken)) {}
  qint64 Count() const override { return rows.size(); }
  QStringList Row(qint64 n) const override { return rows[n]; }

  QList<QStringList> rows;
};

}  // namespace

ToolWindow::ToolWindow(const char* name, QWidget* parent) : QWidget(parent, Qt::Tool) { setObjectName(name); }

std::unique_ptr<RowSource> ToolWindow::TakeRows() const { return std::make_unique<HeldRows>(Rows()); }

// While it is hidden nothing is put together: it is when it is shown.
void ToolWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    Retranslate();
    if (isVisible()) Refresh();
  }
  QWidget::changeEvent(event);
}

// From a part of a window it goes up by itself.
void ToolWindow::keyPressEvent(QKeyEvent* event) {
  if (parentWidget() == nullptr || !isWindow()) return QWidget::keyPressEvent(event);
  QCoreApplication::sendEvent(parentWidget(), event);
}

WindowPlace ToolWindow::Place() const {
  if (isHidden() || !isWindow()) return place_;
  return {true, y(), x(), width(), height()};
}

void ToolWindow::SetPlace(const WindowPlace& place) {
  place_ = place;
  place_.Open = false;
  if (!isHidden() && isWindow()) TakePlace();
}

// A window of a fixed size keeps that.
void ToolWindow::TakePlace() {
  if (place_.Width <= 0 || place_.Height <= 0) return;
  if (minimumSize() != maximumSize()) resize(place_.Width, place_.Height);
  const QPoint corner(place_.Left, place_.Top);
  const QScreen* there = QGuiApplication::screenAt(corner);
  const QRect room = (there != nullptr ? there : screen())->availableGeometry();
  move(std::max(room.left(), std::min(corner.x(), room.right() + 1 - width())),
       std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - height())));
}

// Only a window that is shown has its frame and its whole size.
void ToolWindow::ComeInside() {
  if (!isWindow()) return;
  const QRect room = screen()->availableGeometry();
  const QRect frame = geometry().united(frameGeometry());
  const QPoint over(std::max(0, frame.right() - room.right()), std::max(0, frame.bottom() - room.bottom()));
  if (!over.isNull()) move(pos() - over);
}

void ToolWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (isWindow()) TakePlace();
    Refresh();
    QTimer::singleShot(0, this, [this] { ComeInside(); });
  }
  QWidget::showEvent(event);
}

void ToolWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous() && isWindow()) place_ = {false, y(), x(), width(), height()};
  QWidget::hideEvent(event);
}

}  // namespace tessaryn
