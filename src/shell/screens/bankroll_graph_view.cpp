#include "shell/screens/bankroll_graph_view.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaryn {
namespace {

constexpr double kGrip = 6;       // pixels from a reference line that still take hold of it
constexpr int kFarStep = 25;      // points, by PageUp and PageDown
constexpr int kWheelNotch = 120;  // eighths of degrees
constexpr int kFocusWidth = 2;

}  // namespace

GraphView::GraphView(QWidget* parent) : QWidget(parent) {
  setObjectName("picGraph");
  setAccessibleName(tr("Bankroll graph"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize GraphView::sizeHint() const { return {440, 240}; }
QSize GraphView::minimumSizeHint() const { return {240, 110}; }

void GraphView::SetPage(GraphPage page, const GraphColours& colours) {
  page_ = std::move(page);
  colours_ = colours;
  stale_ = true;
  PointAt(std::min(pointed_, page_.Count()));
  update();
}

GraphFrame GraphView::Frame() const {
  QPixmap nothing(1, 1);
  QPainter painter(&nothing);
  painter.setFont(font());
  return FrameOf(painter, rect(), page_);
}

// --- The pointer.

QString GraphView::PointerText() const {
  if (pointed_ == 0) return {};
  const auto place = static_cast<std::size_t>(pointed_ - 1);
  QStringList parts{tr("Roll %1:").arg(page_.rolls[place])};
  const bool several = page_.curves.size() > 1;
  for (const GraphCurve& curve : page_.curves)
    parts += (several ? QString::number(curve.seat) + ": " : QString()) + GraphMoney(curve.points[place]);
  const Currency gain = page_.curves.front().points[place] - page_.start;
  if (!several && gain != kZero) parts += (gain > kZero ? "(+" : "(") + GraphMoney(gain) + ")";
  if (!page_.averages.empty()) parts += page_.averageCaption + " " + GraphMoney(page_.averages[place]);
  return parts.join("  ");
}

void GraphView::PointAt(int cell) {
  pointed_ = std::clamp(cell, 0, page_.Count());
  setAccessibleDescription(PointerText());
  update();
}

void GraphView::PaintPointer(QPainter& painter) const {
  const GraphFrame frame = Frame();
  const auto place = static_cast<std::size_t>(pointed_ - 1);
  const double x = std::floor(frame.X(pointed_)) + 0.5;
  const double y = std::floor(frame.Y(page_, page_.curves.front().points[place])) + 0.5;
  const QColor colour = colours_.parts[kGraphPointer];
  painter.setPen(QPen(colour, 1, Qt::DotLine));
  painter.drawLine(QPointF(x, frame.plot.top()), QPointF(x, frame.plot.bottom()));
  if (y > frame.plot.top() && y < frame.plot.bottom())
    painter.drawLine(QPointF(frame.plot.left(), y), QPointF(frame.plot.right(), y));
  const QString text = PointerText();
  const QFontMetricsF metrics(font());
  QRectF box(0, 0, metrics.horizontalAdvance(text) + 12, metrics.height() + 6);
  box.moveTop(y - frame.plot.top() > box.height() + 12 ? y - box.height() - 8 : y + 8);
  box.moveTop(std::clamp(box.top(), 0.0, std::max(0.0, height() - box.height())));
  box.moveLeft(x + 10 + box.width() < width() ? x + 10 : x - 10 - box.width());
  box.moveLeft(std::max(0.0, box.left()));
  painter.setPen(QPen(colour, 1));
  painter.setBrush(colours_.parts[kGraphBackground]);
  painter.drawRoundedRect(box, 4, 4);
  painter.drawText(box, Qt::AlignCenter, text);
}

// --- Events.

void GraphView::paintEvent(QPaintEvent*) {
  if (std::exchange(stale_, false) || drawn_.devicePixelRatio() != devicePixelRatioF()) {
    if (const QSize points = size() * devicePixelRatioF(); drawn_.size() != points) drawn_ = QPixmap(points);
    drawn_.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&drawn_);
    painter.setFont(font());
    PaintGraph(painter, QRectF(rect()), page_, colours_);
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, drawn_);
  painter.setRenderHint(QPainter::Antialiasing);
  if (pointed_ != 0) PaintPointer(painter);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), kFocusWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

void GraphView::resizeEvent(QResizeEvent*) { stale_ = true; }

void GraphView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) stale_ = true;
  QWidget::changeEvent(event);
}

int GraphView::ReferenceAt(double x) const {
  if (!page_.referenceLines) return 0;
  const GraphFrame frame = Frame();
  const double off1 = std::abs(frame.X(page_.references[0]) - x);
  const double off2 = std::abs(frame.X(page_.references[1]) - x);
  if (std::min(off1, off2) > kGrip) return 0;
  // Where they stand together, each is taken at a side of its own.
  if (off1 == off2) return x < frame.X(page_.references[0]) ? 1 : 2;
  return off1 < off2 ? 1 : 2;
}

void GraphView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  dragged_ = ReferenceAt(event->position().x());
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
  const double x = event->position().x();
  const GraphFrame frame = Frame();
  if (dragged_ != 0) emit referenceMoved(dragged_, frame.CellAt(x));
  setCursor(dragged_ != 0 || ReferenceAt(x) != 0 ? Qt::SizeHorCursor : Qt::CrossCursor);
  const bool inside = x >= frame.plot.left() - kGrip && x <= frame.plot.right() + kGrip;
  PointAt(inside ? std::max(frame.CellAt(x), 1) : 0);
}

void GraphView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) dragged_ = 0;
}

void GraphView::leaveEvent(QEvent*) { PointAt(0); }

// The curve follows the wheel; with Ctrl it grows and shrinks.
void GraphView::wheelEvent(QWheelEvent* event) {
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / kWheelNotch;
  wheel_ -= steps * kWheelNotch;
  if (steps == 0) return;
  if ((event->modifiers() & Qt::ControlModifier) != 0)
    emit unitStepped(-steps);
  else
    emit shifted(steps);
}

// Along the points. The pointer comes in at the last one.
bool GraphView::WalkKey(int key, Qt::KeyboardModifiers modifiers) {
  const int step = (modifiers & Qt::ControlModifier) != 0 ? kFarStep : 1;
  const int from = pointed_ == 0 ? page_.Count() + 1 : pointed_;
  int to = 0;
  switch (key) {
    case Qt::Key_Left:
      to = from - step;
      break;
    case Qt::Key_Right:
      to = from + step;
      break;
    case Qt::Key_PageUp:
      to = from - kFarStep;
      break;
    case Qt::Key_PageDown:
      to = from + kFarStep;
      break;
    case Qt::Key_Home:
      to = 1;
      break;
    case Qt::Key_End:
      to = page_.Count();
      break;
    default:
      return false;
  }
  PointAt(std::max(to, 1));
  return true;
}

void GraphView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (WalkKey(key, event->modifiers())) return;
  if (key == Qt::Key_Up || key == Qt::Key_Down) return emit shifted(key == Qt::Key_Up ? 1 : -1);
  if (key == Qt::Key_Plus || key == Qt::Key_Minus) return emit unitStepped(key == Qt::Key_Plus ? 1 : -1);
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (enter && pointed_ != 0 && (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0)
    return emit referenceMoved((event->modifiers() & Qt::ShiftModifier) != 0 ? 2 : 1, pointed_);
  if (key == Qt::Key_Escape && pointed_ != 0) return PointAt(0);
  QWidget::keyPressEvent(event);
}

}  // namespace tessaryn
