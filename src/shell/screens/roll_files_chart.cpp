#include "shell/screens/roll_files_chart.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <tuple>

#include "shell/table/number_habit.h"

namespace tessaryn {

namespace {

QString Words(const char* text) { return QCoreApplication::translate("RollChart", text); }

double FairShare(int total) { return (6 - std::abs(7 - total)) / 36.0; }

double ShareOf(const RollTotals& totals, int total) {
  if (totals.Rolls == 0) return 0;
  return static_cast<double>(totals.Total[static_cast<std::size_t>(total)]) /
         static_cast<double>(totals.Rolls);
}

QString CountText(std::int64_t count) { return ShownCount(count); }

constexpr double kHeadLine = 18;
constexpr double kLabelLine = 14;
constexpr double kWideStep = 30;  // room for a decimal

}  // namespace

int FarFromFair(const RollTotals& totals, int total) {
  if (totals.Rolls == 0) return 0;
  const double fair = FairShare(total);
  const double error = std::sqrt(fair * (1 - fair) / static_cast<double>(totals.Rolls));
  const double difference = ShareOf(totals, total) - fair;
  if (std::fabs(difference) <= 2 * error) return 0;
  return difference > 0 ? 1 : -1;
}

void PaintRollChart(QPainter& painter, const QRectF& area, const RollChart& chart, bool dark) {
  const QColor paper = dark ? QColor(0x27, 0x2D, 0x32) : QColor(0xFF, 0xFF, 0xFF);
  const QColor text = dark ? QColor(0xEC, 0xF0, 0xF3) : QColor(0x1B, 0x1F, 0x23);
  const QColor second = dark ? QColor(0xAE, 0xB9, 0xC2) : QColor(0x4F, 0x5B, 0x66);
  const QColor bar = dark ? QColor(0x3C, 0xC9, 0x8A) : QColor(0x0B, 0x6B, 0x45);
  painter.save();
  painter.fillRect(area, paper);
  QFont letters = painter.font();
  letters.setPixelSize(11);
  painter.setFont(letters);
  const QRectF inside = area.adjusted(8, 4, -8, -4);
  painter.setPen(text);
  painter.drawText(QRectF(inside.left(), inside.top(), inside.width(), kHeadLine),
                   Qt::AlignLeft | Qt::AlignVCenter, chart.heading);
  double most = FairShare(7);
  for (int total = 2; total <= 12; ++total) most = std::max(most, ShareOf(chart.totals, total));
  const double foot = inside.bottom() - 2 * kLabelLine;
  const double room = foot - inside.top() - kHeadLine - kLabelLine;
  const double step = inside.width() / 11;
  for (int total = 2; total <= 12; ++total) {
    const double left = inside.left() + (total - 2) * step;
    const double share = ShareOf(chart.totals, total);
    const QRectF actual(left + step * 0.1, foot - room * share / most, step * 0.38, room * share / most);
    const double fair = room * FairShare(total) / most;
    painter.fillRect(actual, bar);
    painter.setPen(second);
    painter.setBrush(QBrush(second, Qt::BDiagPattern));
    painter.drawRect(QRectF(left + step * 0.52, foot - fair, step * 0.36, fair));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(text);
    if (const int far = FarFromFair(chart.totals, total); far != 0)
      painter.drawText(QRectF(left, std::min(actual.top(), foot - fair) - kLabelLine, step, kLabelLine),
                       Qt::AlignCenter, far > 0 ? QStringLiteral("\u25b2") : QStringLiteral("\u25bc"));
    painter.drawText(QRectF(left, foot, step, kLabelLine), Qt::AlignCenter, QString::number(total));
    painter.setPen(second);
    painter.drawText(
        QRectF(left - 4, foot + kLabelLine, step + 8, kLabelLine), Qt::AlignCenter,
        chart.totals.Rolls == 0 ? QString() : QString::number(share * 100, 'f', step < kWideStep ? 0 : 1));
  }
  painter.setPen(second);
  painter.drawLine(QPointF(inside.left(), foot + 0.5), QPointF(inside.right(), foot + 0.5));
  painter.restore();
}

RollChartView::RollChartView(QWidget* parent) : QWidget(parent) {
  setObjectName("picDistribution");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Show({});
}

void RollChartView::Show(const RollChart& chart) {
  const auto shown = [](const RollChart& of) {
    return std::tie(of.totals.Total, of.totals.Rolls, of.totals.Faults, of.heading, of.counting);
  };
  if (shown(chart) == shown(chart_)) return;
  chart_ = chart;
  setAccessibleName(
      Words(QT_TRANSLATE_NOOP("RollChart", "Distribution of the totals: %1")).arg(chart.heading));
  update();
}

void RollChartView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintRollChart(painter, rect(), chart_, palette().color(QPalette::Window).lightness() < 128);
}

// The exact counts of the total under the pointer.
bool RollChartView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const int total = std::clamp(2 + (help->pos().x() - 8) * 11 / std::max(1, width() - 16), 2, 12);
  const RollTotals& totals = chart_.totals;
  QString text = Words(QT_TRANSLATE_NOOP("RollChart", "%1: %2 of %3 rolls, %4%, fair dice %5%"))
                     .arg(total)
                     .arg(CountText(totals.Total[static_cast<std::size_t>(total)]))
                     .arg(CountText(totals.Rolls))
                     .arg(ShownNumber(ShareOf(totals, total) * 100, 3))
                     .arg(ShownNumber(FairShare(total) * 100, 3));
  if (FarFromFair(totals, total) != 0)
    text = Words(QT_TRANSLATE_NOOP("RollChart", "%1, more than two standard errors away")).arg(text);
  if (totals.Faults > 0)
    text += "\n" + QCoreApplication::translate("RollChart", "%1 values are no rolls", nullptr,
                                               PluralOf(totals.Faults))
                       .arg(CountText(totals.Faults));
  QToolTip::showText(help->globalPos(), text, this);
  return true;
}

}  // namespace tessaryn
