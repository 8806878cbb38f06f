#include "shell/frame/screen_manners.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "state/game.h"

namespace tessaryn {
namespace {

constexpr double kUsualPoints = 11;

QPushButton* DefaultButton(const QDialog& box) {
  for (auto* button : box.findChildren<QPushButton*>())
    if (button->isDefault() && button->isVisible() && button->isEnabled()) return button;
  return nullptr;
}

}  // namespace

void TakeFontSize(int points) {
  static const QFont desktop = QApplication::font();
  QFont font = desktop;
  font.setPointSizeF(desktop.pointSizeF() * points / kUsualPoints);
  if (font != QApplication::font()) QApplication::setFont(font);
}

PointerSnap::PointerSnap(Game& game, QObject* parent) : QObject(parent), game_(game) {
  qApp->installEventFilter(this);
}

bool PointerSnap::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Show && game_.settings.SnapMouse && !event->spontaneous()) {
    // Its buttons have their places once it is laid out and shown.
    if (QPointer<QDialog> box = qobject_cast<QDialog*>(object))
      QTimer::singleShot(0, this, [this, box] {
        if (box != nullptr && box->isVisible()) Snap(*box);
      });
  }
  if (event->type() == QEvent::Hide && object == box_) {
    box_ = nullptr;
    if (QCursor::pos() == to_) QCursor::setPos(from_);
  }
  return false;
}

void PointerSnap::Snap(QDialog& box) {
  const QPushButton* button = DefaultButton(box);
  bool inside = false;
  for (const QWidget* window : QApplication::topLevelWidgets())
    inside = inside || (window->isVisible() && window->frameGeometry().contains(QCursor::pos()));
  if (button == nullptr || !inside) return;
  const bool follows = box_ != nullptr && QCursor::pos() == to_;
  if (!follows) from_ = QCursor::pos();
  box_ = &box;
  to_ = button->mapToGlobal(button->rect().center());
  QCursor::setPos(to_);
}

}  // namespace tessaryn
