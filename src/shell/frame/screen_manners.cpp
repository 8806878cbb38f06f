#include "shell/frame/screen_manners.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDialog>
#include <QHelpEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QTimer>
#include <QToolTip>
#include <algorithm>

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

WholeChoices::WholeChoices(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool WholeChoices::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Show && object->inherits("QComboBoxPrivateContainer")) {
    auto* list = static_cast<QWidget*>(object);
    if (const auto* box = qobject_cast<QComboBox*>(list->parentWidget())) {
      const QWidget& view = *box->view();
      const int bar =
          box->count() > box->maxVisibleItems() ? box->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
      const int wanted = box->view()->sizeHintForColumn(0) + bar + list->width() - view.width();
      const QRect screen = list->screen()->availableGeometry();
      if (wanted > list->width()) {
        list->resize(std::min(wanted, screen.width()), list->height());
        list->move(std::min(list->x(), screen.right() + 1 - list->width()), list->y());
      }
    }
  }
  if (event->type() == QEvent::ToolTip) {
    const auto* box = qobject_cast<QComboBox*>(object);
    if (box == nullptr || !box->toolTip().isEmpty()) return false;
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect field =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    if (box->fontMetrics().horizontalAdvance(box->currentText()) <= field.width()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), box->currentText());
    return true;
  }
  return false;
}

}  // namespace tessaryn
