#include "shell/screens/laboratory_sweep.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "lab/html_parts.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

QString Words(const char* text) { return QCoreApplication::translate("Laboratory", text); }

constexpr double kMargin = 12;
constexpr double kLine = 16;
constexpr double kAbove = 2 * kLine + 18;  // heading, and what goes across
constexpr double kBelow = kLine + 14;      // the legend
constexpr double kMostCell = 96;
constexpr double kRoomForNames = 142;  // of the rows

struct Colours {
  QColor text;
  QColor second;
  QColor grid;
};
Colours ColoursOf(bool dark) {
  if (dark) return {QColor("#ECF0F3"), QColor("#AEB9C2"), QColor("#464E55")};
  return {QColor("#1B1F23"), QColor("#4F5B66"), QColor("#D3D8DC")};
}

// A sweep as it is painted.
struct Sweep {
  QPainter* painter = nullptr;
  QRectF area;
  const LabFigures& figures;
  const LabLook& look;
  const LabGrid& grid;
  Colours colours;
  std::size_t best = 0;  // a place in the grid
  double worst = 0;

  const SystemFigures& System(std::size_t place) const { return figures.systems[grid.systems[place]]; }
  double At(std::size_t place) const { return RankValue(System(place), look.by); }
  bool IsMap() const { return grid.axes.size() == 2; }
};

Sweep ReadSweep(QPainter* painter, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  Sweep sweep{painter, area, figures, look, *look.grid, ColoursOf(look.dark)};
  sweep.worst = sweep.At(0);
  const auto better = [&](double a, double b) { return look.by == RankBy::kRuin ? a < b : a > b; };
  for (std::size_t place = 1; place < sweep.grid.systems.size(); ++place) {
    if (better(sweep.At(place), sweep.At(sweep.best))) sweep.best = place;
    if (better(sweep.worst, sweep.At(place))) sweep.worst = sweep.At(place);
  }
  return sweep;
}

void Text(const Sweep& sweep, const QRectF& place, int flags, const QString& text, const QColor& colour) {
  sweep.painter->setPen(colour);
  const QFontMetricsF metrics(sweep.painter->font());
  sweep.painter->drawText(place, flags | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(text, Qt::ElideRight, place.width() + 0.5));
}

QColor ColourOf(const HeatColour& colour) { return {colour.red, colour.green, colour.blue}; }

// --- Two sweeps.

QRectF CellOf(const Sweep& sweep, std::size_t place) {
  const QRectF inside = sweep.area.adjusted(kRoomForNames, kAbove + kLine, -kMargin, -(kBelow + kMargin));
  const auto columns = static_cast<double>(sweep.grid.Columns());
  const auto rows = static_cast<double>(sweep.grid.Rows());
  const double width = std::min(inside.width() / columns, kMostCell);
  const double height = std::min(inside.height() / rows, kMostCell / 2);
  const auto column = static_cast<double>(place % sweep.grid.Columns());
  const auto row = static_cast<double>(place / sweep.grid.Columns());
  return {inside.left() + column * width, inside.top() + row * height, width, height};
}

// The dice may have made the difference from the best.
bool MayBeAsGood(const Sweep& sweep, std::size_t place) {
  const std::size_t best = sweep.grid.systems[sweep.best];
  const std::size_t other = sweep.grid.systems[place];
  if (sweep.look.by != RankBy::kMean || !HasPair(sweep.figures, best, other)) return false;
  return DifferenceOf(sweep.figures, best, other).ci95.low <= 0;
}

void PaintCell(const Sweep& sweep, std::size_t place) {
  const QRectF cell = CellOf(sweep, place);
  const HeatColour colour = HeatColourOf(HeatShare(sweep.At(place), sweep.worst, sweep.At(sweep.best)));
  QPainter& painter = *sweep.painter;
  painter.fillRect(cell.adjusted(1, 1, -1, -1), ColourOf(colour));
  const bool best = place == sweep.best;
  if (best || MayBeAsGood(sweep, place)) {
    painter.setPen(
        QPen(colour.darkText ? Qt::black : Qt::white, best ? 3 : 1.5, best ? Qt::SolidLine : Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(3, 3, -3, -3));
  }
  if (cell.height() < kLine - 4) return;
  Text(sweep, cell.adjusted(4, 0, -4, 0), Qt::AlignHCenter, RankText(sweep.At(place), sweep.look.by),
       colour.darkText ? Qt::black : Qt::white);
}

void PaintMap(const Sweep& sweep) {
  const LabAxis& down = sweep.grid.axes.front();
  const LabAxis& across = sweep.grid.axes.back();
  const QRectF first = CellOf(sweep, 0);
  const double names = sweep.area.left() + kMargin;
  Text(sweep,
       QRectF(first.left(), first.top() - 2 * kLine - 2, sweep.area.right() - first.left() - kMargin, kLine),
       Qt::AlignLeft, FromCore(across.name), sweep.colours.second);
  Text(sweep, QRectF(names, first.top() - kLine, 122, kLine), Qt::AlignRight, FromCore(down.name),
       sweep.colours.second);
  for (std::size_t column = 0; column < across.values.size(); ++column) {
    const QRectF cell = CellOf(sweep, column);
    Text(sweep, QRectF(cell.left(), cell.top() - kLine, cell.width(), kLine), Qt::AlignHCenter,
         FromCore(across.values[column]), sweep.colours.text);
  }
  for (std::size_t row = 0; row < down.values.size(); ++row) {
    const QRectF cell = CellOf(sweep, row * sweep.grid.Columns());
    Text(sweep, QRectF(names, cell.top(), 122, cell.height()), Qt::AlignRight, FromCore(down.values[row]),
         sweep.colours.text);
  }
  for (std::size_t place = 0; place < sweep.grid.systems.size(); ++place) PaintCell(sweep, place);
}

void PaintLegend(const Sweep& sweep) {
  const double y = sweep.area.bottom() - kMargin - kLine;
  double x = sweep.area.left() + kMargin;
  const QFontMetricsF metrics(sweep.painter->font());
  const auto say = [&](const QString& text) {
    const double width = std::min(metrics.horizontalAdvance(text) + 2, sweep.area.right() - kMargin - x);
    Text(sweep, QRectF(x, y, width, kLine), Qt::AlignLeft, text, sweep.colours.second);
    x += width + 8;
  };
  say(RankText(sweep.worst, sweep.look.by));
  for (int i = 0; i < 60; ++i)
    sweep.painter->fillRect(QRectF(x + 2 * i, y + 2, 2.5, kLine - 4), ColourOf(HeatColourOf(i / 59.0)));
  x += 128;
  say(RankText(sweep.At(sweep.best), sweep.look.by));
  say(sweep.look.by == RankBy::kMean
          ? Words(
                QT_TRANSLATE_NOOP("Laboratory", "Framed: the best.  Dotted: not sure to be worse than that."))
          : Words(QT_TRANSLATE_NOOP("Laboratory", "Framed: the best.")));
}

// --- One sweep.

Bounds BoundsAt(const Sweep& sweep, std::size_t place) {
  const SystemFigures& system = sweep.System(place);
  if (sweep.look.by == RankBy::kMean) return system.net.ci95;
  if (sweep.look.by == RankBy::kMedian) return {sweep.At(place), sweep.At(place)};
  return FigureShare(sweep.look.by == RankBy::kRuin ? system.ruined : system.goal, system.sessions).ci95;
}

QRectF PlotOf(const Sweep& sweep) {
  return sweep.area.adjusted(kMargin + 70, kAbove + 4, -kMargin, -(kMargin + 2 * kLine + 8));
}

// Where the value stands: each has as much room as any.
double PlaceAcross(const Sweep& sweep, std::size_t place) {
  const QRectF plot = PlotOf(sweep);
  return plot.left() +
         plot.width() * (static_cast<double>(place) + 0.5) / static_cast<double>(sweep.grid.systems.size());
}

void PaintCurve(const Sweep& sweep) {
  const QRectF plot = PlotOf(sweep);
  DrawnScale up{1e300, -1e300, plot.bottom(), plot.top()};
  for (std::size_t place = 0; place < sweep.grid.systems.size(); ++place) {
    up.low = std::min(up.low, BoundsAt(sweep, place).low);
    up.high = std::max(up.high, BoundsAt(sweep, place).high);
  }
  if (up.high - up.low < 1e-9) up.low -= 1e-2, up.high += 1e-2;
  QPainter& painter = *sweep.painter;
  const double step = NiceStep(up.high - up.low, std::max(2, static_cast<int>(plot.height() / 36)));
  const Shown as = IsShare(sweep.look.by) ? Shown::kShare : Shown::kDollars;
  for (double value = std::ceil(up.low / step) * step; value <= up.high; value += step) {
    painter.setPen(sweep.colours.grid);
    painter.drawLine(QPointF(plot.left(), up.At(value)), QPointF(plot.right(), up.At(value)));
    Text(sweep, QRectF(plot.left() - 78, up.At(value) - kLine / 2, 72, kLine), Qt::AlignRight,
         FromCore(ShownNumber(value, step, as)), sweep.colours.second);
  }
  QPolygonF line;
  const QColor colour = LabColour(false, sweep.look.dark);
  const double room = plot.width() / static_cast<double>(sweep.grid.systems.size());
  const std::size_t every = static_cast<std::size_t>(std::ceil(40 / std::max(room, 1.0)));
  for (std::size_t place = 0; place < sweep.grid.systems.size(); ++place) {
    const double x = PlaceAcross(sweep, place);
    const Bounds bounds = BoundsAt(sweep, place);
    line << QPointF(x, up.At(sweep.At(place)));
    painter.setPen(QPen(colour, 1.5));
    painter.drawLine(QPointF(x, up.At(bounds.low)), QPointF(x, up.At(bounds.high)));
    for (const double end : {bounds.low, bounds.high})
      painter.drawLine(QPointF(x - 4, up.At(end)), QPointF(x + 4, up.At(end)));
    painter.setBrush(place == sweep.best ? sweep.colours.text : colour);
    painter.drawEllipse(line.back(), 4, 4);
    painter.setBrush(Qt::NoBrush);
    const double width = room * static_cast<double>(every);
    if (place % every == 0)
      Text(sweep, QRectF(x - width / 2, plot.bottom() + 2, width, kLine), Qt::AlignHCenter,
           FromCore(sweep.grid.axes.front().values[place]), sweep.colours.text);
  }
  painter.setPen(QPen(colour, 1));
  painter.drawPolyline(line);
  Text(sweep, QRectF(plot.left(), plot.bottom() + kLine + 4, plot.width(), kLine), Qt::AlignLeft,
       sweep.look.by == RankBy::kMedian ? FromCore(sweep.grid.axes.front().name)
                                        : Words(QT_TRANSLATE_NOOP("Laboratory", "%1, with 95% bounds"))
                                              .arg(FromCore(sweep.grid.axes.front().name)),
       sweep.colours.second);
}

}  // namespace

void PaintSweep(QPainter& painter, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  const Colours colours = ColoursOf(look.dark);
  if (!look.grid) {
    painter.setPen(colours.second);
    painter.drawText(
        area.adjusted(kMargin, 0, -kMargin, 0), Qt::AlignCenter | Qt::TextWordWrap,
        Words(QT_TRANSLATE_NOOP("Laboratory",
                                "Nothing was varied. Let a CheckStack start at several values, or vary a "
                                "setting, and what comes of each stands here.")));
    return;
  }
  const Sweep sweep = ReadSweep(&painter, area, figures, look);
  const QFont letters = painter.font();
  QFont heading = letters;
  heading.setPixelSize(13);
  heading.setBold(true);
  painter.setFont(heading);
  Text(sweep, QRectF(area.left() + kMargin, area.top() + 8, area.width() - 2 * kMargin, kLine), Qt::AlignLeft,
       Words(QT_TRANSLATE_NOOP("Laboratory", "%1: %2")).arg(RankCaption(look.by), FromCore(sweep.grid.name)),
       sweep.colours.text);
  painter.setFont(letters);
  if (!sweep.IsMap()) return PaintCurve(sweep);
  PaintMap(sweep);
  PaintLegend(sweep);
}

int SweepSystemAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  if (!look.grid) return -1;
  const Sweep sweep = ReadSweep(nullptr, area, figures, look);
  const QRectF plot = PlotOf(sweep);
  for (std::size_t at = 0; at < sweep.grid.systems.size(); ++at) {
    const double half = plot.width() / static_cast<double>(sweep.grid.systems.size()) / 2;
    const bool there = sweep.IsMap()
                           ? CellOf(sweep, at).contains(place)
                           : plot.contains(place) && std::fabs(PlaceAcross(sweep, at) - place.x()) <= half;
    if (there) return static_cast<int>(sweep.grid.systems[at]);
  }
  return -1;
}

QString SweepText(const LabFigures& figures, std::size_t system) {
  const SystemFigures& shown = figures.systems[system];
  return Words(QT_TRANSLATE_NOOP("Laboratory", "%1: mean %2 \u00b1 %3, median %4, ruined %5"))
      .arg(shown.name, SignedMoney(shown.net.mean), LabMoney((shown.net.ci95.high - shown.net.ci95.low) / 2),
           SignedMoney(RankValue(shown, RankBy::kMedian)), LabShare(shown.ruined, shown.sessions));
}

}  // namespace tessaryn
