#include "shell/screens/row_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace tessaryn {

namespace {
constexpr int kNotch = 120;  // of a wheel
constexpr int kRowsOfNotch = 3;
}  // namespace

RowView::RowView(int steps, QWidget* parent) : QAbstractScrollArea(parent), steps_(steps) {
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &RowView::BarActs);
}

int RowView::RowHeight() const { return fontMetrics().height() + 2; }

int RowView::RowsShown() const { return std::max(1, (viewport()->height() - HeadHeight()) / RowHeight()); }

qint64 RowView::LastTop() const { return std::max<qint64>(1, rows_ - RowsShown() + 1); }

void RowView::SetRows(qint64 rows) {
  rows_ = std::max<qint64>(rows, 0);
  top_ = std::clamp<qint64>(top_, 1, LastTop());
  PlaceBar();
  viewport()->update();
}

void RowView::ShowRow(qint64 row) {
  top_ = std::clamp<qint64>(row, 1, LastTop());
  PlaceBar();
  viewport()->update();
}

void RowView::MoveBy(qint64 rows) { ShowRow(TopRow() + rows); }

void RowView::PlaceBar() {
  QScrollBar* bar = verticalScrollBar();
  const qint64 last = LastTop() - 1;
  const int most = static_cast<int>(std::min<qint64>(last, steps_));
  const QSignalBlocker quiet(bar);
  bar->setRange(0, most);
  bar->setPageStep(static_cast<int>(std::max<double>(
      1, static_cast<double>(RowsShown()) * most / static_cast<double>(std::max<qint64>(last, 1)))));
  if (!bar->isSliderDown())
    bar->setValue(last == 0 ? 0
                            : static_cast<int>(static_cast<double>(std::min(TopRow() - 1, last)) * most /
                                               static_cast<double>(last)));
  bar->update();
}

// The bar's own idea of a step may be many rows.
void RowView::BarActs(int action) {
  switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
      return Move(1);
    case QAbstractSlider::SliderSingleStepSub:
      return Move(-1);
    case QAbstractSlider::SliderPageStepAdd:
      return Move(RowsShown());
    case QAbstractSlider::SliderPageStepSub:
      return Move(-RowsShown());
    case QAbstractSlider::SliderToMinimum:
      ShowRow(1);
      break;
    case QAbstractSlider::SliderToMaximum:
      ShowEnd();
      break;
    default: {
      const QScrollBar* bar = verticalScrollBar();
      const double share =
          bar->maximum() == 0 ? 0 : static_cast<double>(bar->sliderPosition()) / bar->maximum();
      if (bar->sliderPosition() == bar->maximum())
        ShowEnd();
      else
        ShowRow(1 + static_cast<qint64>(share * static_cast<double>(LastTop() - 1)));
    }
  }
  emit Scrolled();
}

void RowView::Move(qint64 rows) {
  MoveBy(rows);
  emit Scrolled();
}

void RowView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  SetRows(rows_);
}

void RowView::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  if (turned == 0 || (event->modifiers() & Qt::ShiftModifier) != 0)
    return QAbstractScrollArea::wheelEvent(event);
  wheel_ += turned * kRowsOfNotch;
  const int rows = wheel_ / kNotch;
  wheel_ -= rows * kNotch;
  if (rows != 0) Move(-rows);
  event->accept();
}

void RowView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Move(-1);
    case Qt::Key_Down:
      return Move(1);
    case Qt::Key_PageUp:
      return Move(-RowsShown());
    case Qt::Key_PageDown:
      return Move(RowsShown());
    case Qt::Key_Home:
      ShowRow(1);
      break;
    case Qt::Key_End:
      ShowEnd();
      break;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return QAbstractScrollArea::keyPressEvent(event);
    default:
      return event->ignore();
  }
  emit Scrolled();
}

void RowView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange) SetRows(rows_);
}

void RowView::scrollContentsBy(int, int) { viewport()->update(); }

}  // namespace tessaryn
