#include "shell/screens/bankroll_graph_picture.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/bankroll_graph.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

QString Translated(const char* text) { return QCoreApplication::translate("BankrollGraph", text); }

constexpr NumberFormat kFigure{0, 2, false};  // "#,#.##;-#,#.##;0"
constexpr int kRollsBetweenTicks = 100;
constexpr double kSheetHeading = 2.4;  // lines above a graph on a sheet

// --- Colours: of the parts, and of seats 1 to 8, which dashes and numbers tell apart too.

constexpr QRgb kPartColours[2][kGraphColors] = {
    {0xFFFFFF, 0x4F5B66, 0xD5DBE0, 0x87929B, 0x0B6B45, 0xDCEBE4, 0xA85C00, 0x1A5FD0, 0x8E2A9E, 0x1B1F23},
    {0x272D32, 0xAEB9C2, 0x3C454C, 0x7D8993, 0x3CC98A, 0x28463A, 0xF0B45A, 0x7FB2FF, 0xE29BF0, 0xECF0F3}};
constexpr QRgb kSeatColours[2][kSeats] = {
    {0x0072B2, 0xC04A00, 0x7B3FA0, 0x7A6000, 0xC2185B, 0x00768A, 0x6D4C41, 0x455A64},
    {0x6DB7FF, 0xFF9A5C, 0xC79BFF, 0xE3C54A, 0xFF8FB8, 0x5FD9E6, 0xD7B29D, 0xB4C2CB}};

// In the order in which the further curves come.
const QList<qreal> kDashes[kSeats] = {{4, 2}, {1.5, 2},       {8, 2, 2, 2}, {9, 4},
                                      {3, 3}, {6, 2, 1.5, 2}, {2, 4},       {12, 3, 4, 3}};

// --- Taking a page.

int CellOf(WhichPage which, int place) { return which == WhichPage::kPresent ? place : kPlotCells + place; }

GraphCurve TakeCurve(const Game& game, SeatId seat, WhichPage which, int count) {
  GraphCurve curve{seat, FromCore(game.table.seats[seat].SeatName), {}};
  curve.points.reserve(static_cast<std::size_t>(count));
  for (int place = 1; place <= count; ++place)
    curve.points.push_back(BankrollPlot(game, seat, CellOf(which, place)));
  return curve;
}

std::vector<Currency> TakeAverages(const Game& game, WhichPage which, int count) {
  const SeatId seat = game.graph.PlotSeat;
  std::vector<Currency> averages;
  if (which == WhichPage::kPresent) {
    PlotAverages all;
    RecomputeAverages(game, seat, all);
    averages.assign(all.begin() + 1, all.begin() + 1 + count);
  } else {
    for (int place = 1; place <= count; ++place)
      averages.push_back(BankrollAverage(game, seat, CellOf(which, place)));
  }
  return averages;
}

void FindExtremes(GraphPage& page) {
  const std::vector<Currency>& points = page.curves.front().points;
  if (points.empty()) return;
  const auto [low, high] = std::minmax_element(points.begin(), points.end());
  page.low = *low;
  page.high = *high;
  page.current = points.back();
}

// --- Painting.

double TextUnit(const QPainter& painter) {
  return QFontMetricsF(painter.font(), painter.device()).height() / 15.0;
}

QFontMetricsF MetricsOf(const QPainter& painter) { return QFontMetricsF(painter.font(), painter.device()); }

// Of the lines from above, the highest first.
Currency LabelValue(const GraphPage& page, int line) {
  return Currency::FromRaw(page.top.raw - line * kGraphStep * page.unit.raw);
}
constexpr int kLabels = kGraphUnits / kGraphStep + 1;

double Middle(double at) { return std::floor(at) + 0.5; }

void PaintGrid(QPainter& painter, const GraphFrame& frame, const GraphPage& page,
               const GraphColours& colours) {
  painter.setPen(QPen(colours.parts[kGraphGrid], frame.unit));
  for (int line = 0; line < kLabels; ++line) {
    if (!page.grid && line != kLabels - 1) continue;
    const double y = Middle(frame.plot.top() + frame.plot.height() * line / (kLabels - 1));
    painter.drawLine(QPointF(frame.plot.left(), y), QPointF(frame.plot.right(), y));
  }
}

void PaintMoneyLabels(QPainter& painter, const GraphFrame& frame, const GraphPage& page) {
  const QFontMetricsF metrics = MetricsOf(painter);
  const double apart = frame.plot.height() / (kLabels - 1);
  const int each = apart < metrics.height() * 0.9 ? (apart < metrics.height() * 0.45 ? 3 : 2) : 1;
  for (int line = 0; line < kLabels; line += each) {
    const QRectF box(frame.plot.left() - 200 * frame.unit,
                     frame.plot.top() + apart * line - metrics.height() / 2, 194 * frame.unit,
                     metrics.height());
    painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, GraphMoney(LabelValue(page, line)));
  }
}

// Every hundredth roll of the session, as far as there is room for its number.
void PaintRollLabels(QPainter& painter, const GraphFrame& frame, const GraphPage& page) {
  const QFontMetricsF metrics = MetricsOf(painter);
  const QString rollsText = Translated(QT_TRANSLATE_NOOP("BankrollGraph", "rolls"));
  double free = frame.plot.left() - 30 * frame.unit;
  for (int cell = 0; cell <= kPlotCells; ++cell) {
    const auto place = static_cast<std::size_t>(cell - 1);
    const std::int64_t last = page.rolls.empty() ? page.firstRoll - 1 : page.rolls.back();
    const RollNumber roll = cell == 0              ? page.firstRoll - 1
                            : cell <= page.Count() ? page.rolls[place]
                                                   : last + cell - page.Count();
    if (roll % kRollsBetweenTicks != 0) continue;
    const double x = Middle(frame.X(cell));
    painter.drawLine(QPointF(x, frame.plot.bottom()), QPointF(x, frame.plot.bottom() + 4 * frame.unit));
    const QString text = FromCore(NumberText(static_cast<double>(roll), kWholeNumber));
    const double wide = metrics.horizontalAdvance(text);
    const double end = frame.plot.right() - metrics.horizontalAdvance(rollsText) - 8 * frame.unit;
    if (x - wide / 2 < free || x + wide / 2 > end) continue;
    painter.drawText(QPointF(x - wide / 2, frame.plot.bottom() + 5 * frame.unit + metrics.ascent()), text);
    free = x + wide / 2 + 8 * frame.unit;
  }
  painter.drawText(QPointF(frame.plot.right() - metrics.horizontalAdvance(rollsText),
                           frame.plot.bottom() + 5 * frame.unit + metrics.ascent()),
                   rollsText);
}

QPolygonF LineOf(const GraphFrame& frame, const GraphPage& page, const std::vector<Currency>& values) {
  QPolygonF line;
  line.reserve(static_cast<qsizetype>(values.size()) + 2);
  int cell = 0;
  for (const Currency value : values) line.append({frame.X(++cell), frame.Y(page, value)});
  return line;
}

void PaintArea(QPainter& painter, const GraphFrame& frame, const GraphPage& page, QPolygonF line,
               const GraphColours& colours) {
  if (page.style == kGraphPlain || line.isEmpty()) return;
  if (page.style == kGraphSolid) {
    line.append({line.back().x(), frame.plot.bottom()});
    line.append({line.front().x(), frame.plot.bottom()});
    // The curve stands over its edge.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.parts[kGraphArea]);
    painter.drawPolygon(line);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    return;
  }
  QList<QLineF> stripes;
  for (qsizetype at = 0; at < line.size(); at += 6)
    stripes.append(QLineF(line[at], QPointF(line[at].x(), frame.plot.bottom())));
  painter.setPen(QPen(colours.parts[kGraphArea].darker(115), 1.5 * frame.unit));
  painter.drawLines(stripes);
}

// The session's beginning: above it is won, below it lost.
void PaintStart(QPainter& painter, const GraphFrame& frame, const GraphPage& page,
                const GraphColours& colours) {
  if (page.start > page.top || page.start < page.Bottom()) return;
  painter.setPen(QPen(colours.parts[kGraphStart], frame.unit, Qt::DashLine));
  const double y = Middle(frame.Y(page, page.start));
  painter.drawLine(QPointF(frame.plot.left(), y), QPointF(frame.plot.right(), y));
}

void PaintReferences(QPainter& painter, const GraphFrame& frame, const GraphPage& page,
                     const GraphColours& colours) {
  if (!page.referenceLines) return;
  const QFontMetricsF metrics = MetricsOf(painter);
  for (const int which : {0, 1}) {
    const QColor colour = colours.parts[kGraphReference1 + which];
    const double x = Middle(frame.X(page.references[which]));
    painter.setPen(QPen(colour, 1.5 * frame.unit, which == 0 ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(QPointF(x, frame.plot.top()), QPointF(x, frame.plot.bottom()));
    // A flag at its foot with the line's number, the second above the first.
    const QSizeF size(metrics.horizontalAdvance('0') + 6 * frame.unit, metrics.height());
    const double left = x + size.width() > frame.plot.right() ? x - size.width() : x;
    const QRectF flag(QPointF(left, frame.plot.bottom() - (1 + which) * size.height()), size);
    painter.fillRect(flag, colour);
    painter.setPen(colours.parts[kGraphBackground]);
    painter.drawText(flag, Qt::AlignCenter, QString::number(which + 1));
  }
}

QPen CurvePen(const GraphFrame& frame, const GraphColours& colours, const GraphPage& page, std::size_t n) {
  if (n == 0) return QPen(colours.parts[kGraphBankroll], 2 * frame.unit);
  QPen pen(colours.seats[page.curves[n].seat], 1.5 * frame.unit);
  pen.setDashPattern(kDashes[(n - 1) % kSeats]);
  return pen;
}

// Where a curve ends; with the number of its seat when there are several. One that is off the graph has its
// mark at the edge, as a triangle that points where it is.
void PaintEnd(QPainter& painter, const GraphFrame& frame, QPointF end, const QColor& colour,
              const QColor& text, const QString& number) {
  const bool above = end.y() < frame.plot.top();
  const bool below = end.y() > frame.plot.bottom();
  const double radius = (number.isEmpty() ? 4 : 8) * frame.unit;
  end.setX(std::min(end.x(), frame.plot.right() - (number.isEmpty() ? 0 : radius / 2)));
  end.setY(std::clamp(end.y(), frame.plot.top() + radius, frame.plot.bottom() - radius));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  if (above || below) {
    const double tip = above ? -radius : radius;
    painter.drawPolygon(QPolygonF({end + QPointF(0, tip * 1.3), end + QPointF(-radius * 1.2, -tip * 0.8),
                                   end + QPointF(radius * 1.2, -tip * 0.8)}));
  } else {
    painter.drawEllipse(end, radius, radius);
  }
  painter.setBrush(Qt::NoBrush);
  if (number.isEmpty()) return;
  painter.setPen(text);
  painter.drawText(QRectF(end - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), Qt::AlignCenter,
                   number);
}

QString NumberOf(const GraphPage& page, std::size_t n) {
  return page.curves.size() > 1 ? QString::number(page.curves[n].seat) : QString();
}

void PaintCurves(QPainter& painter, const GraphFrame& frame, const GraphPage& page,
                 const GraphColours& colours) {
  std::vector<QPolygonF> lines;
  for (const GraphCurve& curve : page.curves) lines.push_back(LineOf(frame, page, curve.points));
  painter.save();
  painter.setClipRect(frame.plot);
  PaintArea(painter, frame, page, lines.front(), colours);
  PaintGrid(painter, frame, page, colours);
  PaintStart(painter, frame, page, colours);
  for (std::size_t n = lines.size(); n-- > 0;) {
    painter.setPen(CurvePen(frame, colours, page, n));
    painter.drawPolyline(lines[n]);
  }
  if (!page.averages.empty()) {
    painter.setPen(QPen(colours.parts[kGraphAverage], 1.5 * frame.unit, Qt::DashLine));
    painter.drawPolyline(LineOf(frame, page, page.averages));
  }
  painter.restore();
  for (std::size_t n = lines.size(); n-- > 0;)
    if (!lines[n].isEmpty())
      PaintEnd(painter, frame, lines[n].back(), CurvePen(frame, colours, page, n).color(),
               colours.parts[kGraphBackground], NumberOf(page, n));
}

// Who is which line: number, name, line. Names give way when there are many.
void PaintLegend(QPainter& painter, const GraphFrame& frame, const GraphPage& page,
                 const GraphColours& colours) {
  const QFontMetricsF metrics = MetricsOf(painter);
  const double each =
      frame.legend.width() / static_cast<double>(std::min<std::size_t>(4, page.curves.size()));
  for (std::size_t n = 0; n < page.curves.size(); ++n) {
    const QPointF at(frame.legend.left() + static_cast<double>(n % 4) * each,
                     frame.legend.top() + static_cast<double>(n / 4) * metrics.height());
    const double middle = at.y() + metrics.height() / 2;
    const double sample = 22 * frame.unit;
    painter.setPen(CurvePen(frame, colours, page, n));
    painter.drawLine(QPointF(at.x(), middle), QPointF(at.x() + sample, middle));
    painter.setPen(colours.parts[kGraphText]);
    const QString text = NumberOf(page, n) + " " + page.curves[n].name;
    const double room = each - sample - 10 * frame.unit;
    painter.drawText(QRectF(at.x() + sample + 4 * frame.unit, at.y(), room, metrics.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(text, Qt::ElideRight, room));
  }
}

QString RollsOf(const GraphPage& page) {
  if (page.rolls.empty()) return Translated(QT_TRANSLATE_NOOP("BankrollGraph", "No rolls"));
  return Translated(QT_TRANSLATE_NOOP("BankrollGraph", "Rolls %1 to %2"))
      .arg(page.rolls.front())
      .arg(page.rolls.back());
}

}  // namespace

QString GraphMoney(Currency value) { return FromCore(NumberText(value, kFigure)); }

QString GraphFigures(const GraphPage& page) {
  return Translated(QT_TRANSLATE_NOOP("BankrollGraph", "High:  %1  Current:  %2  Low:  %3"))
      .arg(GraphMoney(page.high), GraphMoney(page.current), GraphMoney(page.low));
}

GraphColours GraphColoursOf(const GraphShown& shown, bool dark) {
  GraphColours colours;
  for (int part = 0; part < kGraphColors; ++part) {
    const int own = shown.GraphColors[part];
    colours.parts[part] = QColor(own < 0 ? kPartColours[dark][part] : static_cast<QRgb>(own));
  }
  for (SeatId seat = 1; seat <= kSeats; ++seat) colours.seats[seat] = QColor(kSeatColours[dark][seat - 1]);
  return colours;
}

GraphPage TakeGraphPage(const Game& game, WhichPage which) {
  const BankrollGraph& graph = game.graph;
  const GraphShown& shown = game.screen.Graph;
  GraphPage page;
  const int count = which == WhichPage::kPresent ? graph.PlotCount : kPlotCells;
  for (int place = 1; place <= count; ++place)
    page.rolls.push_back(BankrollPlot(game, 0, CellOf(which, place)).raw / Currency::kPerDollar);
  page.firstRoll = count > 0 ? page.rolls.front() : SessionRolls(game.stats) + 1;
  page.curves.push_back(TakeCurve(game, graph.PlotSeat, which, count));
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (seat != graph.PlotSeat && (shown.TogetherSeats >> seat & 1) != 0 && IsOccupied(game.table, seat))
      page.curves.push_back(TakeCurve(game, seat, which, count));
  if (graph.DisplayAverage) page.averages = TakeAverages(game, which, count);
  page.averageCaption =
      graph.MovingAverageRolls > 0
          ? Translated(QT_TRANSLATE_NOOP("BankrollGraph", "%1 roll avg")).arg(graph.MovingAverageRolls)
          : Translated(QT_TRANSLATE_NOOP("BankrollGraph", "All rolls avg"));
  page.high = page.low = page.current = game.table.BankrollCurrent[graph.PlotSeat];
  FindExtremes(page);
  page.start = game.stats.BankrollSessionStart[graph.PlotSeat];
  page.top = graph.ScaleTop;
  page.unit = graph.ScaleUnit;
  page.references[0] = graph.RefRoll1;
  page.references[1] = graph.RefRoll2;
  page.grid = graph.DisplayGridLines;
  page.referenceLines = graph.DisplayRefLines;
  page.style = shown.GraphStyle;
  return page;
}

double GraphFrame::Y(const GraphPage& page, Currency value) const {
  const double share =
      static_cast<double>(page.top.raw - value.raw) / static_cast<double>(kGraphUnits * page.unit.raw);
  // Far off is as good as off; a painter counts in small numbers.
  return plot.top() + plot.height() * std::clamp(share, -20.0, 20.0);
}

int GraphFrame::CellAt(double x) const {
  if (plot.width() <= 0) return 0;
  const double share = (x - plot.left()) / plot.width();
  return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * kPlotCells));
}

GraphFrame FrameOf(const QPainter& painter, const QRectF& area, const GraphPage& page) {
  const QFontMetricsF metrics = MetricsOf(painter);
  GraphFrame frame;
  frame.unit = TextUnit(painter);
  double widest = 0;
  for (int line = 0; line < kLabels; ++line)
    widest = std::max(widest, metrics.horizontalAdvance(GraphMoney(LabelValue(page, line))));
  const int legendRows = page.curves.size() > 1 ? static_cast<int>(page.curves.size() + 3) / 4 : 0;
  const double above = legendRows * metrics.height();
  frame.legend = QRectF(area.left() + 4 * frame.unit, area.top(), area.width() - 8 * frame.unit, above);
  frame.plot = area.adjusted(widest + 8 * frame.unit, above + metrics.height() / 2 + 2 * frame.unit,
                             -8 * frame.unit, -metrics.height() - 6 * frame.unit);
  return frame;
}

void PaintGraph(QPainter& painter, const QRectF& area, const GraphPage& page, const GraphColours& colours) {
  const GraphFrame frame = FrameOf(painter, area, page);
  painter.save();
  painter.fillRect(area, colours.parts[kGraphBackground]);
  painter.setRenderHint(QPainter::Antialiasing);
  if (frame.plot.width() > 0 && frame.plot.height() > 0) {
    PaintCurves(painter, frame, page, colours);
    PaintReferences(painter, frame, page, colours);
    painter.setPen(colours.parts[kGraphText]);
    PaintMoneyLabels(painter, frame, page);
    PaintRollLabels(painter, frame, page);
    if (page.curves.size() > 1) PaintLegend(painter, frame, page, colours);
  }
  painter.restore();
}

void PaintGraphs(QPainter& painter, const QRectF& area, const std::vector<GraphPage>& pages, int places,
                 const GraphColours& colours) {
  const int columns = places > 3 ? 2 : 1;
  const int rows = std::max(1, (places + columns - 1) / columns);
  const QFontMetricsF metrics = MetricsOf(painter);
  const QSizeF size(area.width() / columns, area.height() / rows);
  for (std::size_t n = 0; n < pages.size(); ++n) {
    const int place = static_cast<int>(n);
    const QRectF room(area.left() + size.width() * (place % columns),
                      area.top() + size.height() * (place / columns), size.width(), size.height());
    const QRectF graph = room.adjusted(0, kSheetHeading * metrics.height(), 0, -metrics.height() / 2);
    painter.setPen(colours.parts[kGraphPointer]);
    painter.drawText(
        room.adjusted(0, 0, 0, kSheetHeading * metrics.height() - room.height()),
        Qt::AlignLeft | Qt::AlignTop,
        pages[n].curves.front().name + "   " + RollsOf(pages[n]) + "\n" + GraphFigures(pages[n]));
    PaintGraph(painter, graph, pages[n], colours);
  }
}

}  // namespace tessaryn
