#include "shell/screens/sessions_log_histogram.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <vector>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

constexpr int kLast = kHistogramColumns - 1;
constexpr int kMarks = 4;  // steps of an axis, about
constexpr double kGap = 4;

bool IsDark(const QPalette& colours) { return colours.color(QPalette::Base).lightness() < 128; }
QColor BarColour(const QPalette& colours) { return IsDark(colours) ? QColor(0x3CC98A) : QColor(0x0B6B45); }
QColor CurveColour(const QPalette& colours) { return IsDark(colours) ? QColor(0xFFB454) : QColor(0xB45309); }

double Edge(const SessionsStatistics& s, int column) {
  return s.Low.ToDouble() + s.Range.ToDouble() * column / kLast;
}

double NormalBelow(const SessionsStatistics& s, double value) {
  return std::erfc((s.Mean.ToDouble() - value) / s.StdDev.ToDouble() / std::sqrt(2.0)) / 2;
}

// 1, 2 or 5 and zeros, so that a few of them reach the top.
double NiceStep(double top) {
  const double rough = top / kMarks;
  const double power = std::pow(10, std::floor(std::log10(rough)));
  for (const double digit : {1.0, 2.0, 5.0, 10.0})
    if (digit * power >= rough) return digit * power;
  return 10 * power;
}

QString Short(Currency value) {
  const bool round = Abs(value) >= Currency::Dollars(100) || value.IsWhole();
  return ShownNumber(value.ToDouble(), round ? 0 : 2);
}

// The widest number beside the bars is about this wide.
QRectF PlotOf(const QRectF& area, const QFontMetricsF& metrics) {
  const double line = metrics.height();
  return area.adjusted(line + metrics.horizontalAdvance("999,999") + 3 * kGap, line, -2 * kGap, -2.4 * line);
}

struct Drawing {
  QPainter& painter;
  const SessionsStatistics& s;
  const HistogramLook& look;
  const QPalette& colours;
  QRectF plot;
  double top = 1;  // of the axis, in sessions

  double X(double column) const { return plot.left() + plot.width() * column / kHistogramColumns; }
  double Y(double sessions) const { return plot.bottom() - plot.height() * sessions / top; }
  double Line() const { return QFontMetricsF(painter.font(), painter.device()).height(); }
};

void DrawSessionsAxis(const Drawing& d) {
  QPainter& painter = d.painter;
  const double step = std::max(1.0, NiceStep(d.top));
  QColor grid = d.colours.color(QPalette::Mid);
  grid.setAlpha(110);
  for (double at = 0; at <= d.top; at += step) {
    painter.setPen(QPen(grid, 1));
    painter.drawLine(QPointF(d.plot.left(), d.Y(at)), QPointF(d.plot.right(), d.Y(at)));
    painter.setPen(d.colours.color(QPalette::WindowText));
    painter.drawText(QRectF(d.plot.left() - 200, d.Y(at) - d.Line() / 2, 200 - kGap, d.Line()),
                     Qt::AlignRight | Qt::AlignVCenter, ShownNumber(at, 0));
  }
  painter.save();
  painter.translate(d.plot.left() -
                        QFontMetricsF(painter.font(), painter.device()).horizontalAdvance("999,999") - kGap -
                        d.Line(),
                    d.plot.center().y());
  painter.rotate(-90);
  const double half = d.plot.height() / 2 + 2 * d.Line();
  painter.drawText(QRectF(-half, -d.Line() / 2, 2 * half, d.Line()), Qt::AlignCenter,
                   SessionsHistogram::tr("# S e s s i o n s"));
  painter.restore();
}

void DrawValueAxis(const Drawing& d) {
  QPainter& painter = d.painter;
  painter.setPen(d.colours.color(QPalette::WindowText));
  painter.drawLine(d.plot.bottomLeft(), d.plot.bottomRight());
  const int steps = d.s.Range == kZero ? 0 : d.plot.width() < 320 ? 2 : 4;
  for (int i = 0; i <= steps; ++i) {
    const int column = steps == 0 ? kMiddleColumn : kLast * i / steps;
    const double x = d.X(column + 0.5);
    painter.drawLine(QPointF(x, d.plot.bottom()), QPointF(x, d.plot.bottom() + kGap));
    const QString text = Short(Currency::FromDouble(Edge(d.s, column)));
    const double width = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(text) + 2;
    const double left =
        std::clamp(x - width / 2, d.plot.left() - 2 * kGap, d.plot.right() + 2 * kGap - width);
    painter.drawText(QRectF(left, d.plot.bottom() + 1.2 * d.Line(), width, 1.1 * d.Line()), Qt::AlignCenter,
                     text);
  }
}

void DrawBars(const Drawing& d) {
  d.painter.setPen(Qt::NoPen);
  const QColor bars = BarColour(d.colours);
  const int pointed = d.look.Pointer < 0 ? -1 : d.look.Pointer / d.look.BarColumns;
  for (int first = 0; first < kHistogramColumns; first += d.look.BarColumns) {
    const HistogramBar bar = BarOf(d.s, first, d.look.BarColumns);
    if (bar.Sessions == 0) continue;
    const double left = d.X(first);
    const double right = d.X(std::min(first + d.look.BarColumns, kHistogramColumns));
    const double gap = right - left > 4 ? 1 : 0;
    // One session among thousands is seen too.
    const double height = std::max(d.plot.bottom() - d.Y(static_cast<double>(bar.Sessions)), 1.0);
    d.painter.fillRect(QRectF(left, d.plot.bottom() - height, right - left - gap, height),
                       first / d.look.BarColumns == pointed ? d.colours.color(QPalette::WindowText) : bars);
  }
}

void DrawCurve(const Drawing& d) {
  if (!d.look.Curve || d.s.StdDev <= kZero || d.s.Range == kZero) return;
  QPainterPath path;
  for (int first = 0; first < kHistogramColumns; first += d.look.BarColumns) {
    const int columns = std::min(d.look.BarColumns, kHistogramColumns - first);
    // The last bar may be narrower; as high as one of full width it would be.
    const double sessions = NormalSessions(d.s, first, columns) * d.look.BarColumns / columns;
    const QPointF at(d.X(first + columns / 2.0), d.Y(sessions));
    first == 0 ? path.moveTo(at) : path.lineTo(at);
  }
  d.painter.save();
  d.painter.setClipRect(d.plot);
  d.painter.setBrush(Qt::NoBrush);
  d.painter.setPen(QPen(CurveColour(d.colours), 2, Qt::DashLine));
  d.painter.drawPath(path);
  d.painter.restore();
}

void DrawMean(const Drawing& d) {
  const double x = d.X(d.s.MeanColumn + 0.5);
  const double y = d.plot.bottom() + 1;
  const double half = d.Line() / 3;
  d.painter.setPen(Qt::NoPen);
  d.painter.setBrush(d.colours.color(QPalette::WindowText));
  const QPointF corners[] = {{x, y}, {x - half, y + 2 * half}, {x + half, y + 2 * half}};
  d.painter.drawPolygon(corners, 3);
  d.painter.setPen(d.colours.color(QPalette::WindowText));
  const QString text = SessionsHistogram::tr("mean");
  const double width = QFontMetricsF(d.painter.font(), d.painter.device()).horizontalAdvance(text) + 2;
  const bool atLeft = x + half + kGap + width > d.plot.right();
  d.painter.drawText(QRectF(atLeft ? x - half - kGap - width : x + half + kGap, y, width, d.Line()),
                     Qt::AlignCenter, text);
}

void DrawPointer(const Drawing& d) {
  if (d.look.Pointer < 0) return;
  const double x = d.X(d.look.Pointer + 0.5);
  d.painter.setPen(QPen(d.colours.color(QPalette::WindowText), 1, Qt::DotLine));
  d.painter.drawLine(QPointF(x, d.plot.top()), QPointF(x, d.plot.bottom()));
}

double FullestBar(const SessionsStatistics& s, const HistogramLook& look) {
  std::int64_t fullest = 1;
  for (int first = 0; first < kHistogramColumns; first += look.BarColumns)
    fullest = std::max(fullest, BarOf(s, first, look.BarColumns).Sessions);
  return static_cast<double>(fullest);
}

}  // namespace

double NormalSessions(const SessionsStatistics& s, int first, int columns) {
  if (s.StdDev <= kZero) return 0;
  const double share = NormalBelow(s, Edge(s, first + columns)) - NormalBelow(s, Edge(s, first));
  return share * static_cast<double>(s.Included);
}

QString HistogramText(const SessionsStatistics& s, int column, int barColumns) {
  if (s.Included == 0 || column < 0) return {};
  const int first = column / barColumns * barColumns;
  const HistogramBar bar = BarOf(s, first, barColumns);
  std::int64_t below = 0;
  for (int at = 0; at < std::min(first + barColumns, kHistogramColumns); ++at) below += s.Histogram[at];
  const double share = 100.0 * static_cast<double>(below) / static_cast<double>(s.Included);
  const QString sessions =
      SessionsHistogram::tr("%1 sessions", nullptr, PluralOf(bar.Sessions)).arg(ShownCount(bar.Sessions));
  return SessionsHistogram::tr("%1 to %2: %3, %4% at or below")
      .arg(InHabit(QString::fromStdString(SessionsNumber(bar.Low))),
           InHabit(QString::fromStdString(SessionsNumber(bar.High))), sessions, ShownNumber(share, 1));
}

void PaintSessionsHistogram(QPainter& painter, const QRectF& area, const SessionsStatistics& s,
                            const HistogramLook& look, const QPalette& colours) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(area, colours.color(QPalette::Base));
  if (s.Included == 0) {
    painter.setPen(colours.color(QPalette::WindowText));
    painter.drawText(area, Qt::AlignCenter, SessionsHistogram::tr("No sessions"));
  } else {
    const Drawing drawing{painter,
                          s,
                          look,
                          colours,
                          PlotOf(area, QFontMetricsF(painter.font(), painter.device())),
                          FullestBar(s, look) * 1.05};
    DrawSessionsAxis(drawing);
    DrawBars(drawing);
    DrawCurve(drawing);
    DrawValueAxis(drawing);
    DrawMean(drawing);
    DrawPointer(drawing);
  }
  painter.restore();
}

SessionsHistogram::SessionsHistogram(QWidget* parent) : QWidget(parent) {
  setObjectName("picHistogram");
  setAccessibleName(tr("Histogram of the sessions"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setMinimumSize(200, 110);
}

void SessionsHistogram::Show(const SessionsStatistics& statistics, int barColumns, bool curve) {
  statistics_ = statistics;
  look_.BarColumns = barColumns;
  look_.Curve = curve;
  setAccessibleDescription(HistogramText(statistics_, look_.Pointer, look_.BarColumns));
  update();
}

void SessionsHistogram::Point(int column) {
  column = std::clamp(column, -1, kLast);
  if (column == look_.Pointer) return;
  look_.Pointer = column;
  setAccessibleDescription(HistogramText(statistics_, column, look_.BarColumns));
  update();
  emit Pointed(column);
}

QPoint SessionsHistogram::PlaceOf(int column) const {
  const QRectF plot = PlotOf(rect(), QFontMetricsF(font()));
  return QPointF(plot.left() + plot.width() * (column + 0.5) / kHistogramColumns, plot.center().y())
      .toPoint();
}

void SessionsHistogram::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(font());
  PaintSessionsHistogram(painter, rect(), statistics_, look_, palette());
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void SessionsHistogram::mouseMoveEvent(QMouseEvent* event) {
  const QRectF plot = PlotOf(rect(), QFontMetricsF(font()));
  const double share = (event->position().x() - plot.left()) / plot.width();
  Point(share < 0 || share >= 1 ? -1 : static_cast<int>(share * kHistogramColumns));
}

void SessionsHistogram::leaveEvent(QEvent*) {
  if (!hasFocus()) Point(-1);
}

void SessionsHistogram::keyPressEvent(QKeyEvent* event) {
  const int step = look_.BarColumns;
  const int from = look_.Pointer < 0 ? statistics_.MeanColumn : look_.Pointer;
  switch (event->key()) {
    case Qt::Key_Left:
      return Point(std::max(0, from - step));
    case Qt::Key_Right:
      return Point(from + step);
    case Qt::Key_PageUp:
      return Point(std::max(0, from - 10 * step));
    case Qt::Key_PageDown:
      return Point(from + 10 * step);
    case Qt::Key_Home:
      return Point(0);
    case Qt::Key_End:
      return Point(kLast);
    default:
      event->ignore();
  }
}

}  // namespace tessaryn
