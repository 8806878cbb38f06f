#include "shell/screens/tool_window.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tessaryn {

ToolWindow::ToolWindow(const char* name, QWidget* parent) : QWidget(parent, Qt::Tool) { setObjectName(name); }

void ToolWindow::keyPressEvent(QKeyEvent* event) {
  if (parentWidget() == nullptr) return QWidget::keyPressEvent(event);
  QCoreApplication::sendEvent(parentWidget(), event);
}

void ToolWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (placed_) move(place_);
    Refresh();
  }
  QWidget::showEvent(event);
}

void ToolWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    place_ = pos();
    placed_ = true;
  }
  QWidget::hideEvent(event);
}

}  // namespace tessaryn
