#include "shell/screens/report_chart.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "shell/screens/report_selection.h"
#include "shell/screens/report_view.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

constexpr int kCountColumn = 0;
constexpr int kActualColumn = 2;
constexpr int kProbableColumn = 3;

constexpr double kEdge = 8;
constexpr double kGap = 4;
constexpr double kTitleRoom = 1.6;     // of the letters' height, for the axis' title
constexpr double kLabelBeside = 0.85;  // of the letters' size, before labels are turned upright
constexpr double kLeastLabel = 0.65;   // of the letters' size
constexpr double kBarShare = 0.38;     // of a place, for each of two bars
constexpr double kSingleShare = 0.7;   // for one bar
constexpr int kLeastGaps = 25;         // bars that the picture of the gaps has at least

QString Said(const char* text) { return QCoreApplication::translate("Reports", text); }

// 1, 2 or 5 of a power of ten, with at most so many steps to the top.
double Step(double top, int steps) {
  const double least = top / std::max(1, steps);
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (power * factor >= least) return power * factor;
  return power * 10;
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// What stands where in a chart of a size.
struct Frame {
  const ReportChart& chart;
  const ChartLook& look;
  QFontMetricsF metrics;
  QColor ink;
  QRectF plot;
  double top = 1;   // the value at the plot's upper edge
  double step = 1;  // of the lines
  bool counts = false;
  bool upright = false;  // labels read from below
  int every = 1;         // bar that has a label
  QFont labels;          // smaller where they stand close together

  Frame(QPaintDevice* device, const QRectF& area, const ReportChart& of, const ChartLook& in)
      : chart(of),
        look(in),
        metrics(in.font, device),
        ink(IsBright(in.background) ? QColor(0x1B1F23) : Qt::white) {
    Scale(area);
    Place(area);
  }

  double Place() const {
    return plot.width() / static_cast<double>(std::max<std::size_t>(1, chart.bars.size()));
  }
  double Height(double value) const { return plot.height() * value / top; }
  double LegendHeight() const {
    return chart.probable.isEmpty() && chart.below.isEmpty() ? 0 : metrics.height() + kGap;
  }
  // The gaps stand for themselves: their labels are numbers in order, of which some will do.
  bool Numbered() const { return chart.probable.isEmpty() && chart.actual.isEmpty(); }

 private:
  void Scale(const QRectF& area) {
    double most = 0;
    for (const ChartBar& bar : chart.bars) most = std::max({most, bar.actual, bar.probable});
    const int steps = std::clamp(static_cast<int>(area.height() / (metrics.height() * 3)), 1, 8);
    step = most > 0 ? Step(most * 1.08, steps) : 1;
    if (Numbered()) step = std::max(1.0, step);
    top = step * std::max(1.0, std::ceil(most * 1.08 / step));
  }
  void Place(const QRectF& area) {
    const double left = metrics.horizontalAdvance(QString::number(top, 'g', 6)) + 2 * kGap;
    plot =
        area.adjusted(kEdge + left, kEdge + kTitleRoom * metrics.height(), -kEdge, -kEdge - LegendHeight());
    const Extent labelled = Measure();
    if (Numbered()) {
      every = static_cast<int>(std::ceil((labelled.line + 2 * kGap) / Place()));
      if (every > 1) every = (every + 4) / 5 * 5;
    }
    const double room = Place() - kGap;
    upright = !Numbered() && labelled.line * kLabelBeside > room;
    const double share = Numbered() ? 1
                         : upright  ? std::clamp(Place() / metrics.height(), kLeastLabel, 1.0)
                                    : std::clamp(room / std::max(1.0, labelled.line), kLabelBeside, 1.0);
    labels = look.font;
    labels.pixelSize() > 0 ? labels.setPixelSize(static_cast<int>(labels.pixelSize() * share))
                           : labels.setPointSizeF(labels.pointSizeF() * share);
    double below = upright ? labelled.whole * share + kGap : metrics.height() * labelled.lines;
    counts =
        !upright && labelled.count > 0 && labelled.count <= room && area.height() > 10 * metrics.height();
    if (counts) below += metrics.height();
    plot.setBottom(plot.bottom() - below - kGap);
  }

  // The widest of the labels: of a line, of both lines as one, of a count.
  struct Extent {
    double line = 0;
    double whole = 0;
    double count = 0;
    int lines = 1;
  };
  Extent Measure() const {
    Extent extent;
    for (const ChartBar& bar : chart.bars) {
      const QStringList lines = bar.label.split('\n');
      for (const QString& line : lines) extent.line = std::max(extent.line, metrics.horizontalAdvance(line));
      extent.whole = std::max(extent.whole, metrics.horizontalAdvance(lines.join(' ')));
      extent.count = std::max(extent.count, metrics.horizontalAdvance(bar.count));
      extent.lines = std::max(extent.lines, static_cast<int>(lines.size()));
    }
    return extent;
  }
};

void PaintGrid(QPainter& painter, const Frame& frame) {
  const QColor line = Mixed(frame.look.background, frame.ink, 0.18);
  const QColor second = Mixed(frame.look.background, frame.ink, 0.78);
  const double left = frame.plot.left();
  for (int n = 0; n * frame.step <= frame.top * 1.0001; ++n) {
    const double y = frame.plot.bottom() - frame.Height(n * frame.step);
    painter.setPen(n == 0 ? second : line);
    painter.drawLine(QPointF(left, y), QPointF(frame.plot.right(), y));
    painter.setPen(second);
    painter.drawText(QRectF(0, y - frame.metrics.height(), left - kGap, 2 * frame.metrics.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(n * frame.step, 'g', 6));
  }
  painter.drawText(QRectF(kEdge, frame.plot.top() - frame.metrics.height() * kTitleRoom, frame.plot.width(),
                          frame.metrics.height()),
                   Qt::AlignLeft | Qt::AlignTop, frame.chart.axis);
}

void PaintActual(QPainter& painter, const Frame& frame, const QRectF& bar) {
  painter.setPen(QPen(frame.ink, 0.6));
  painter.setBrush(frame.look.bars);
  painter.drawRect(bar);
}

// Hatched, so that it is told from the other without colour.
void PaintProbable(QPainter& painter, const Frame& frame, const QRectF& bar) {
  painter.setPen(QPen(frame.ink, 0.8));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(bar);
  painter.save();
  painter.setClipRect(bar);
  // Diagonals are even as they are, and drawn many times as fast.
  painter.setRenderHint(QPainter::Antialiasing, false);
  constexpr double kHatch = 5;
  painter.setPen(QPen(Mixed(frame.look.background, frame.ink, 0.55), 0.8));
  QList<QLineF> lines;
  for (double x = bar.left() - bar.height(); x < bar.right(); x += kHatch)
    lines.append({x, bar.bottom(), x + bar.height(), bar.top()});
  painter.drawLines(lines);
  painter.restore();
}

void PaintBars(QPainter& painter, const Frame& frame) {
  const bool both = !frame.chart.probable.isEmpty();
  const double width = frame.Place() * (both ? kBarShare : kSingleShare);
  double middle = frame.plot.left() + frame.Place() / 2;
  for (const ChartBar& bar : frame.chart.bars) {
    const double left = middle - (both ? width : width / 2);
    const double tip = frame.plot.bottom() - frame.Height(bar.actual);
    if (bar.actual > 0) PaintActual(painter, frame, {left, tip, width, frame.Height(bar.actual)});
    if (both && bar.probable > 0) {
      const double height = frame.Height(bar.probable);
      PaintProbable(painter, frame, {middle, frame.plot.bottom() - height, width, height});
    }
    if (bar.marked) {
      painter.setPen(frame.ink);
      painter.drawText(
          QRectF(left - width, tip - frame.metrics.height() * 0.9, 3 * width, frame.metrics.height()),
          Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("*"));
    }
    middle += frame.Place();
  }
}

void PaintLabels(QPainter& painter, const Frame& frame) {
  const QColor second = Mixed(frame.look.background, frame.ink, 0.78);
  double middle = frame.plot.left() + frame.Place() / 2;
  int number = 0;
  for (const ChartBar& bar : frame.chart.bars) {
    const double lines = frame.metrics.height() * static_cast<double>(bar.label.count('\n') + 1);
    painter.setPen(frame.ink);
    painter.setFont(frame.labels);
    if (frame.upright) {
      painter.save();
      painter.translate(middle, frame.plot.bottom() + kGap);
      painter.rotate(-90);
      QString label = bar.label;
      painter.drawText(QRectF(-200, -frame.metrics.height() / 2, 200, frame.metrics.height()),
                       Qt::AlignRight | Qt::AlignVCenter, label.replace('\n', ' '));
      painter.restore();
    } else if (++number % frame.every == 0) {
      painter.drawText(QRectF(middle - 100, frame.plot.bottom() + kGap, 200, lines),
                       Qt::AlignHCenter | Qt::AlignTop, bar.label);
    }
    painter.setFont(frame.look.font);
    if (frame.counts) {
      painter.setPen(second);
      painter.drawText(QRectF(middle - 100, frame.plot.bottom() + kGap + lines, 200, frame.metrics.height()),
                       Qt::AlignHCenter | Qt::AlignTop, bar.count);
    }
    middle += frame.Place();
  }
}

void PaintLegend(QPainter& painter, const Frame& frame, const QRectF& area) {
  const double height = frame.metrics.height();
  const double top = area.bottom() - kEdge - height;
  if (frame.chart.probable.isEmpty()) {
    painter.setPen(Mixed(frame.look.background, frame.ink, 0.78));
    painter.drawText(QRectF(frame.plot.left(), top, frame.plot.width(), height),
                     Qt::AlignHCenter | Qt::AlignTop, frame.chart.below);
    return;
  }
  const double side = frame.metrics.ascent() * 0.8;
  double x = area.left() + kEdge;
  const auto name = [&](const QString& text) {
    painter.setPen(frame.ink);
    painter.drawText(QRectF(x, top, area.right() - x, height), Qt::AlignLeft | Qt::AlignTop, text);
    x += frame.metrics.horizontalAdvance(text) + 2 * kEdge;
  };
  const auto sample = [&] {
    const QRectF box(x, top + (height - side) / 2, side, side);
    x += side + kGap;
    return box;
  };
  PaintActual(painter, frame, sample());
  name(frame.chart.actual);
  PaintProbable(painter, frame, sample());
  name(frame.chart.probable);
  const bool marks = std::any_of(frame.chart.bars.begin(), frame.chart.bars.end(),
                                 [](const ChartBar& bar) { return bar.marked; });
  if (marks) name(Said(QT_TRANSLATE_NOOP("Reports", "* beyond 2 standard errors")));
}

}  // namespace

ReportChart TotalsChart(const ReportTable& report, bool hideProbable, bool skewed) {
  ReportChart chart;
  chart.axis = Said(QT_TRANSLATE_NOOP("Reports", "PERCENT"));
  chart.actual = Said(QT_TRANSLATE_NOOP("Reports", "Actual"));
  if (!hideProbable)
    chart.probable = skewed ? Said(QT_TRANSLATE_NOOP("Reports", "Probable (skewed)"))
                            : Said(QT_TRANSLATE_NOOP("Reports", "Probable"));
  for (const ReportRow& row : report.rows) {
    const ReportCell& actual = row.cells[kActualColumn];
    chart.bars.push_back({ReportText(report, row.label).replace(", ", "\n"),
                          FromCore(row.cells[kCountColumn].text), actual.value,
                          hideProbable ? -1 : row.cells[kProbableColumn].value, actual.marked});
  }
  return chart;
}

// As far as there are gaps, and the last cell where it has any.
ReportChart GapsChart(const ReportTable& report) {
  ReportChart chart;
  chart.axis = Said(QT_TRANSLATE_NOOP("Reports", "TIMES"));
  chart.below = Said(QT_TRANSLATE_NOOP("Reports", "rolls to come again"));
  const std::size_t cells = report.rows.size() - report.gridFirst;
  std::size_t shown = kLeastGaps;
  for (std::size_t gap = 0; gap < cells; ++gap)
    if (report.rows[report.gridFirst + gap].cells[0].value > 0)
      shown = std::max(shown, (gap / kLeastGaps + 1) * kLeastGaps);
  for (std::size_t gap = 0; gap < std::min(shown, cells); ++gap) {
    const ReportRow& row = report.rows[report.gridFirst + gap];
    const bool last = gap + 1 == cells;
    chart.bars.push_back({FromCore(row.label) + (last ? "+" : ""), {}, row.cells[0].value, -1, false});
  }
  return chart;
}

void PaintReportChart(QPainter& painter, const QRectF& area, const ReportChart& chart,
                      const ChartLook& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(area, look.background);
  painter.setFont(look.font);
  painter.translate(area.topLeft());
  const QRectF room({0, 0}, area.size());
  const Frame frame(painter.device(), room, chart, look);
  if (frame.plot.height() > 0 && frame.plot.width() > 0) {
    PaintGrid(painter, frame);
    PaintBars(painter, frame);
    PaintLabels(painter, frame);
    PaintLegend(painter, frame, room);
  }
  painter.restore();
}

ReportChartView::ReportChartView(const QString& what, QWidget* parent) : QWidget(parent) {
  setObjectName("picGraph");
  setAccessibleName(what);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ReportChartView::Show(ReportChart chart, const QColor& background, const QColor& bars) {
  if (chart == chart_ && background == background_ && bars == bars_) return;
  chart_ = std::move(chart);
  background_ = background;
  bars_ = bars;
  update();
}

ChartLook ReportChartView::LookOnScreen() const {
  const QColor background = background_.isValid() ? background_ : palette().color(QPalette::Base);
  const QColor bars = bars_.isValid() ? bars_ : IsBright(background) ? QColor(0x0B6B45) : QColor(0x3CC98A);
  return {background, bars, font()};
}

ChartLook ReportChartView::LookOnPaper() const {
  return {background_.isValid() ? background_ : QColor(Qt::white), bars_.isValid() ? bars_ : QColor(0x0B6B45),
          font()};
}

QSize ReportChartView::sizeHint() const { return {420, 240}; }
QSize ReportChartView::minimumSizeHint() const { return {160, 110}; }

void ReportChartView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintReportChart(painter, rect(), chart_, LookOnScreen());
}

// The figures of the bar under the pointer.
bool ReportChartView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const ChartLook look = LookOnScreen();
  const Frame frame(this, rect(), chart_, look);
  const auto bar =
      static_cast<std::size_t>(std::max(0.0, (help->pos().x() - frame.plot.left()) / frame.Place()));
  if (help->pos().x() < frame.plot.left() || bar >= chart_.bars.size()) {
    QToolTip::hideText();
    return true;
  }
  const ChartBar& of = chart_.bars[bar];
  const auto number = [](double value) { return QString::number(value, 'f', 2); };
  QString text = of.label;
  text.replace('\n', ", ");
  if (chart_.actual.isEmpty()) {
    text += ": " + QString::number(of.actual);
  } else {
    text += QString(": %1 %2%").arg(chart_.actual, number(of.actual));
    if (of.probable >= 0) text += QString(", %1 %2%").arg(chart_.probable, number(of.probable));
  }
  QToolTip::showText(help->globalPos(), text, this);
  return true;
}

}  // namespace tessaryn
