#include "shell/screens/tool_window.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>

namespace tessaryn {

ToolWindow::ToolWindow(const char* name, QWidget* parent) : QWidget(parent, Qt::Tool) { setObjectName(name); }

void ToolWindow::keyPressEvent(QKeyEvent* event) {
  if (parentWidget() == nullptr) return QWidget::keyPressEvent(event);
  QCoreApplication::sendEvent(parentWidget(), event);
}

WindowPlace ToolWindow::Place() const {
  if (isHidden()) return place_;
  return {true, y(), x(), width(), height()};
}

void ToolWindow::SetPlace(const WindowPlace& place) {
  place_ = place;
  place_.Open = false;
  if (!isHidden()) TakePlace();
}

// A window of a fixed size keeps that.
void ToolWindow::TakePlace() {
  if (place_.Width <= 0 || place_.Height <= 0) return;
  if (minimumSize() != maximumSize()) resize(place_.Width, place_.Height);
  // Before it is shown a window may be smaller than it was when its place was kept.
  const QSize kept(place_.Width, place_.Height);
  const QSize size = minimumSize() != maximumSize() ? this->size() : this->size().expandedTo(kept);
  const QPoint corner(place_.Left, place_.Top);
  const QScreen* there = QGuiApplication::screenAt(corner);
  const QRect room = (there != nullptr ? there : screen())->availableGeometry();
  move(std::max(room.left(), std::min(corner.x(), room.right() + 1 - size.width())),
       std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - size.height())));
}

void ToolWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    TakePlace();
    Refresh();
  }
  QWidget::showEvent(event);
}

void ToolWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) place_ = {false, y(), x(), width(), height()};
  QWidget::hideEvent(event);
}

}  // namespace tessaryn
