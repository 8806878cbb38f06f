#include "shell/screens/laboratory_picture.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "lab/html_parts.h"
#include "shell/screens/laboratory_sweep.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

QString Words(const char* text) { return QCoreApplication::translate("Laboratory", text); }

constexpr double kMargin = 12;
constexpr double kLine = 16;
constexpr double kAxisRoom = 58;  // left of a picture
constexpr double kBoxLine = 22;
constexpr double kNumbersRoom = 150;  // beside the bars of shares

struct Colours {
  QColor paper;
  QColor text;
  QColor second;
  QColor grid;
};
Colours ColoursOf(bool dark) {
  if (dark) return {QColor("#272D32"), QColor("#ECF0F3"), QColor("#AEB9C2"), QColor("#464E55")};
  return {QColor("#FFFFFF"), QColor("#1B1F23"), QColor("#4F5B66"), QColor("#D3D8DC")};
}

// What all pictures share while they are painted.
struct Canvas {
  QPainter& painter;
  QRectF area;
  const LabFigures& figures;
  const LabLook& look;
  Colours colours;

  const SystemFigures& A() const { return figures.systems[look.a]; }
  const SystemFigures& B() const { return figures.systems[look.b]; }
  bool Two() const { return look.a != look.b; }
};

QColor Faded(QColor colour) {
  colour.setAlphaF(0.55F);
  return colour;
}

struct Scale {
  double low = 0;
  double high = 1;
  double from = 0;
  double to = 1;
  double At(double value) const { return from + (to - from) * (value - low) / (high > low ? high - low : 1); }
  double Back(double place) const { return low + (high - low) * (place - from) / (to - from); }
};

// 1, 2, 5, 10, 20 ...: the least with few enough lines.
double StepFor(double span, double lines) {
  double step = 1;
  for (int i = 0; span / step > lines; ++i) step *= i % 3 == 1 ? 2.5 : 2;
  return step;
}

QString PlainNumber(double number) {
  const QString text = LabCount(static_cast<std::int64_t>(std::llround(number)));
  return number > 0 ? "+" + text : text;
}

void Text(Canvas& canvas, const QRectF& place, int flags, const QString& text, const QColor& colour) {
  canvas.painter.setPen(colour);
  const QFontMetricsF metrics(canvas.painter.font());
  canvas.painter.drawText(place, flags | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(text, Qt::ElideRight, place.width() + 0.5));
}

// A sample of how the system is drawn, and its name. Returns the right end.
void Legend(Canvas& canvas, const QRectF& line) {
  const double width = line.width() / (canvas.Two() ? 2 : 1);
  for (int i = 0; i < (canvas.Two() ? 2 : 1); ++i) {
    const bool second = i == 1;
    const QColor colour = LabColour(second, canvas.look.dark);
    const QRectF sample(line.left() + i * width, line.top() + 3, 20, line.height() - 6);
    canvas.painter.setPen(second ? QPen(colour, 2) : QPen(Qt::NoPen));
    canvas.painter.setBrush(second ? QBrush(Qt::NoBrush) : QBrush(Faded(colour)));
    canvas.painter.drawRect(sample);
    Text(canvas, QRectF(sample.right() + 8, line.top(), width - 40, line.height()), Qt::AlignLeft,
         (second ? "B  " : "A  ") + (second ? canvas.B() : canvas.A()).name, canvas.colours.text);
  }
  canvas.painter.setBrush(Qt::NoBrush);
}

// --- Results of sessions.

struct ResultsPlan {
  QRectF plot;
  Scale across;
  std::int64_t most = 1;
};

ResultsPlan PlanResults(const QRectF& area, const LabFigures& figures, const LabLook& look) {
  ResultsPlan plan;
  const bool two = look.a != look.b;
  plan.plot =
      area.adjusted(kAxisRoom, 2 * kLine + 22, -kMargin, -(kMargin + 2 * kLine + (two ? 2 : 1) * kBoxLine));
  const std::vector<std::int64_t>& bars = figures.systems[look.a].bars;
  plan.across = {figures.firstBar, figures.firstBar + static_cast<double>(bars.size()) * figures.barWidth,
                 plan.plot.left(), plan.plot.right()};
  for (const std::size_t system : {look.a, look.b})
    for (const std::int64_t bar : figures.systems[system].bars) plan.most = std::max(plan.most, bar);
  return plan;
}

void PaintAxes(Canvas& canvas, const QRectF& plot, const Scale& across, const Scale& up, double upStep,
               bool signedUp) {
  for (double value = std::ceil(up.low / upStep) * upStep; value <= up.high; value += upStep) {
    canvas.painter.setPen(canvas.colours.grid);
    canvas.painter.drawLine(QPointF(plot.left(), up.At(value)), QPointF(plot.right(), up.At(value)));
    Text(canvas, QRectF(plot.left() - kAxisRoom, up.At(value) - kLine / 2, kAxisRoom - 6, kLine),
         Qt::AlignRight, signedUp ? PlainNumber(value) : LabCount(std::llround(value)),
         canvas.colours.second);
  }
  const double step = StepFor(across.high - across.low, plot.width() / 80);
  for (double value = std::ceil(across.low / step) * step; value <= across.high; value += step)
    Text(canvas, QRectF(across.At(value) - 40, plot.bottom() + 2, 80, kLine), Qt::AlignHCenter,
         signedUp ? LabCount(std::llround(value)) : PlainNumber(value), canvas.colours.second);
}

void PaintBars(Canvas& canvas, const ResultsPlan& plan, const Scale& up) {
  const double width = canvas.figures.barWidth;
  const auto left = [&](std::size_t bar) {
    return plan.across.At(canvas.figures.firstBar + static_cast<double>(bar) * width);
  };
  const std::vector<std::int64_t>& filled = canvas.A().bars;
  for (std::size_t bar = 0; bar < filled.size(); ++bar) {
    const double top = up.At(static_cast<double>(filled[bar]));
    canvas.painter.fillRect(QRectF(QPointF(left(bar) + 0.5, top), QPointF(left(bar + 1) - 0.5, up.from)),
                            Faded(LabColour(false, canvas.look.dark)));
  }
  if (!canvas.Two()) return;
  const std::vector<std::int64_t>& outlined = canvas.B().bars;
  QPolygonF outline;
  for (std::size_t bar = 0; bar < outlined.size(); ++bar) {
    const double top = up.At(static_cast<double>(outlined[bar]));
    outline << QPointF(left(bar), top) << QPointF(left(bar + 1), top);
  }
  canvas.painter.setPen(QPen(LabColour(true, canvas.look.dark), 2));
  canvas.painter.drawPolyline(outline);
}

// Where the experiment ends sessions, and nothing won or lost.
void PaintBorders(Canvas& canvas, const ResultsPlan& plan) {
  const QRectF& plot = plan.plot;
  canvas.painter.setPen(QPen(canvas.colours.second, 1, Qt::DashLine));
  canvas.painter.drawLine(QPointF(plan.across.At(0), plot.top() - 4),
                          QPointF(plan.across.At(0), plot.bottom()));
  const auto border = [&](const QString& text, double at) {
    const double x = std::clamp(plan.across.At(at), plot.left() + 50, plot.right() - 50);
    Text(canvas, QRectF(x - 60, plot.top() - kLine, 120, kLine), Qt::AlignHCenter, text,
         canvas.colours.second);
  };
  const LabFigures& figures = canvas.figures;
  if (figures.lossLimit > kZero)
    border(Words(QT_TRANSLATE_NOOP("Laboratory", "loss limit %1"))
               .arg(PlainNumber(-figures.lossLimit.ToDouble())),
           -figures.lossLimit.ToDouble());
  if (figures.winGoal > kZero)
    border(Words(QT_TRANSLATE_NOOP("Laboratory", "goal %1")).arg(PlainNumber(figures.winGoal.ToDouble())),
           figures.winGoal.ToDouble());
}

void PaintBox(Canvas& canvas, const ResultsPlan& plan, const SystemFigures& system, bool second, double y) {
  const QColor colour = LabColour(second, canvas.look.dark);
  const double* q = system.quantiles;
  const auto x = [&](int which) { return plan.across.At(q[which]); };
  QPainter& painter = canvas.painter;
  Text(canvas, QRectF(plan.plot.left() - kAxisRoom, y - kLine / 2, kAxisRoom - 24, kLine), Qt::AlignRight,
       second ? "B" : "A", colour);
  painter.setPen(QPen(colour, 1));
  painter.drawLine(QPointF(x(0), y), QPointF(x(8), y));
  painter.setPen(QPen(colour, 4, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(QPointF(x(1), y), QPointF(x(7), y));
  painter.setPen(QPen(colour, 2));
  painter.setBrush(canvas.colours.paper);
  painter.drawRect(QRectF(QPointF(x(3), y - 7), QPointF(x(5), y + 7)));
  painter.setPen(QPen(colour, 4, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(QPointF(x(4), y - 7), QPointF(x(4), y + 7));
  const double mean = plan.across.At(system.net.mean);
  painter.setPen(Qt::NoPen);
  painter.setBrush(canvas.colours.text);
  painter.drawPolygon(QPolygonF({{mean - 5, y}, {mean, y - 5}, {mean + 5, y}, {mean, y + 5}}));
  painter.setBrush(Qt::NoBrush);
}

void PaintResults(Canvas& canvas) {
  const ResultsPlan plan = PlanResults(canvas.area, canvas.figures, canvas.look);
  const QRectF& plot = plan.plot;
  const Scale up{0, static_cast<double>(plan.most), plot.bottom(), plot.top()};
  Text(canvas, QRectF(canvas.area.left() + kMargin, plot.top() - kLine - 9, kAxisRoom + 30, kLine),
       Qt::AlignLeft, Words(QT_TRANSLATE_NOOP("Laboratory", "# sessions")), canvas.colours.second);
  PaintAxes(canvas, plot, plan.across, up, StepFor(up.high, plot.height() / 40), false);
  PaintBars(canvas, plan, up);
  PaintBorders(canvas, plan);
  double y = plot.bottom() + kLine + kBoxLine / 2 + 2;
  PaintBox(canvas, plan, canvas.A(), false, y);
  if (canvas.Two()) PaintBox(canvas, plan, canvas.B(), true, y += kBoxLine);
  Text(canvas, QRectF(plot.left(), y + kBoxLine / 2, plot.width(), kLine), Qt::AlignLeft,
       Words(QT_TRANSLATE_NOOP(
           "Laboratory",
           "Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.")),
       canvas.colours.second);
}

// --- Bankrolls on the way.

void PaintFan(Canvas& canvas, const SystemFigures& system, const QRectF& plot, const Scale& across,
              const Scale& up, bool second) {
  const QColor colour = LabColour(second, canvas.look.dark);
  const auto line = [&](int which) {
    QPolygonF points = {QPointF(plot.left(), up.At(0))};
    for (int mark = 0; mark < kFanMarks; ++mark)
      points << QPointF(across.At(across.high * (mark + 1) / kFanMarks), up.At(system.fan[mark][which]));
    return points;
  };
  const auto band = [&](int from, int to, int alpha) {
    QPolygonF area = line(from);
    const QPolygonF upper = line(to);
    for (auto point = upper.rbegin(); point != upper.rend(); ++point) area << *point;
    QColor fill = colour;
    fill.setAlpha(alpha);
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(fill);
    canvas.painter.drawPolygon(area);
    canvas.painter.setBrush(Qt::NoBrush);
  };
  if (!second) {
    band(0, 4, 50);
    band(1, 3, 80);
  } else {
    for (const int edge : {0, 1, 3, 4}) {
      canvas.painter.setPen(QPen(colour, 1.5, edge == 0 || edge == 4 ? Qt::DotLine : Qt::DashLine));
      canvas.painter.drawPolyline(line(edge));
    }
  }
  canvas.painter.setPen(QPen(colour, 2.5));
  canvas.painter.drawPolyline(line(2));
}

void PaintWay(Canvas& canvas) {
  const QRectF plot = canvas.area.adjusted(kAxisRoom, 2 * kLine + 22, -kMargin, -(kMargin + 2 * kLine));
  if (canvas.figures.mostRolls == 0)
    return Text(canvas, canvas.area, Qt::AlignHCenter,
                Words(QT_TRANSLATE_NOOP(
                    "Laboratory", "Only sessions with a most number of rolls are looked at on the way.")),
                canvas.colours.second);
  const Scale across{0, static_cast<double>(canvas.figures.mostRolls), plot.left(), plot.right()};
  Scale up{-1, 1, plot.bottom(), plot.top()};
  for (const SystemFigures* system : {&canvas.A(), &canvas.B()})
    for (const auto& mark : system->fan) {
      up.low = std::min(up.low, mark[0]);
      up.high = std::max(up.high, mark[kFanLines - 1]);
    }
  Text(canvas, QRectF(canvas.area.left() + kMargin, plot.top() - kLine - 9, 200, kLine), Qt::AlignLeft,
       Words(QT_TRANSLATE_NOOP("Laboratory", "Won or lost, $")), canvas.colours.second);
  PaintAxes(canvas, plot, across, up, StepFor(up.high - up.low, plot.height() / 36), true);
  PaintFan(canvas, canvas.A(), plot, across, up, false);
  if (canvas.Two()) PaintFan(canvas, canvas.B(), plot, across, up, true);
  Text(canvas, QRectF(plot.left(), plot.bottom() + kLine + 2, plot.width(), kLine), Qt::AlignLeft,
       Words(QT_TRANSLATE_NOOP(
           "Laboratory", "Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.")),
       canvas.colours.second);
}

// --- Ruin on the way.

void PaintRuinLine(Canvas& canvas, const SystemFigures& system, const Scale& across, const Scale& up,
                   bool second) {
  QPolygonF line = {QPointF(across.from, up.from)};
  double share = 0;
  for (const auto& [roll, ruined] : system.ruin) {
    line << QPointF(across.At(roll), up.At(share)) << QPointF(across.At(roll), up.At(ruined));
    share = ruined;
  }
  line << QPointF(across.to, up.At(share));
  canvas.painter.setPen(
      QPen(LabColour(second, canvas.look.dark), 2.5, second ? Qt::DashLine : Qt::SolidLine));
  canvas.painter.drawPolyline(line);
}

void PaintRuin(Canvas& canvas) {
  const QRectF plot = canvas.area.adjusted(kAxisRoom, 2 * kLine + 22, -kMargin, -(kMargin + 2 * kLine));
  const double most = std::max(canvas.A().ruin.empty() ? 0 : canvas.A().ruin.back().second,
                               canvas.B().ruin.empty() ? 0 : canvas.B().ruin.back().second);
  if (most == 0)
    return Text(canvas, canvas.area, Qt::AlignHCenter,
                Words(QT_TRANSLATE_NOOP("Laboratory", "No session was ruined.")), canvas.colours.second);
  const Scale across{0, canvas.figures.longest, plot.left(), plot.right()};
  const Scale up{0, most, plot.bottom(), plot.top()};
  Text(canvas, QRectF(canvas.area.left() + kMargin, plot.top() - kLine - 9, plot.width(), kLine),
       Qt::AlignLeft, Words(QT_TRANSLATE_NOOP("Laboratory", "Ruined by then, share of sessions")),
       canvas.colours.second);
  const double step = NiceStep(most, std::max(2, static_cast<int>(plot.height() / 36)));
  for (double value = 0; value <= most; value += step) {
    canvas.painter.setPen(canvas.colours.grid);
    canvas.painter.drawLine(QPointF(plot.left(), up.At(value)), QPointF(plot.right(), up.At(value)));
    Text(canvas, QRectF(plot.left() - kAxisRoom, up.At(value) - kLine / 2, kAxisRoom - 6, kLine),
         Qt::AlignRight, FromCore(ShownNumber(value, step, Shown::kShare)), canvas.colours.second);
  }
  const double rolls = StepFor(across.high, plot.width() / 80);
  for (double value = 0; value <= across.high; value += rolls)
    Text(canvas, QRectF(across.At(value) - 40, plot.bottom() + 2, 80, kLine), Qt::AlignHCenter,
         LabCount(std::llround(value)), canvas.colours.second);
  PaintRuinLine(canvas, canvas.A(), across, up, false);
  if (canvas.Two()) PaintRuinLine(canvas, canvas.B(), across, up, true);
  Text(canvas, QRectF(plot.left(), plot.bottom() + kLine + 2, plot.width(), kLine), Qt::AlignLeft,
       canvas.Two() ? Words(QT_TRANSLATE_NOOP("Laboratory", "Rolls.  Line: A.  Dashed: B."))
                    : Words(QT_TRANSLATE_NOOP("Laboratory", "Rolls.")),
       canvas.colours.second);
}

// --- How sessions end.

void PaintShare(Canvas& canvas, const QRectF& row, const SystemFigures& system, std::int64_t count,
                bool second) {
  const QColor colour = LabColour(second, canvas.look.dark);
  const ShareFigure share = FigureShare(count, system.sessions);
  const double room = std::max(row.width() - kNumbersRoom - 24, 10.0);
  const double left = row.left() + 24;
  Text(canvas, QRectF(row.left(), row.top(), 20, row.height()), Qt::AlignLeft, second ? "B" : "A", colour);
  const QRectF bar(left, row.top() + 2, share.p * room, row.height() - 4);
  canvas.painter.setPen(second ? QPen(colour, 2) : QPen(Qt::NoPen));
  canvas.painter.setBrush(second ? QBrush(Qt::NoBrush) : QBrush(Faded(colour)));
  canvas.painter.drawRect(second ? bar.adjusted(1, 1, 0, -1) : bar);
  canvas.painter.setBrush(Qt::NoBrush);
  canvas.painter.setPen(QPen(canvas.colours.text, 1.5));
  const double low = left + share.ci95.low * room;
  const double high = left + share.ci95.high * room;
  canvas.painter.drawLine(QPointF(low, row.center().y()), QPointF(high, row.center().y()));
  for (const double end : {low, high})
    canvas.painter.drawLine(QPointF(end, row.center().y() - 4), QPointF(end, row.center().y() + 4));
  const double numbers = row.right() - kNumbersRoom + 8;
  Text(canvas, QRectF(numbers, row.top(), 52, row.height()), Qt::AlignRight, LabShare(count, system.sessions),
       canvas.colours.text);
  Text(canvas, QRectF(numbers + 60, row.top(), kNumbersRoom - 68, row.height()), Qt::AlignLeft,
       LabBounds(count, system.sessions), canvas.colours.second);
}

void PaintEnds(Canvas& canvas) {
  const QList<LabEnd> ends = EndsOf(canvas.figures);
  const QRectF inside = canvas.area.adjusted(kMargin, 2 * kLine + 14, -kMargin, -kMargin);
  const int lines = canvas.Two() ? 2 : 1;
  const double captions = std::min(130.0, inside.width() / 4);
  const double block = std::min(inside.height() / static_cast<double>(ends.size()), lines * 20.0 + 16);
  const double line = std::min(20.0, (block - 4) / lines);
  double y = inside.top();
  for (const LabEnd& end : ends) {
    Text(canvas, QRectF(inside.left(), y, captions - 8, line), Qt::AlignLeft, end.caption,
         canvas.colours.text);
    for (int i = 0; i < lines; ++i) {
      const SystemFigures& system = i == 0 ? canvas.A() : canvas.B();
      PaintShare(canvas, QRectF(inside.left() + captions, y + i * line, inside.width() - captions, line),
                 system, system.*end.count, i == 1);
    }
    y += block;
  }
}

const char* const kHeadings[] = {QT_TRANSLATE_NOOP("Laboratory", "Result of a session, $"),
                                 QT_TRANSLATE_NOOP("Laboratory", "Bankrolls on the way"),
                                 QT_TRANSLATE_NOOP("Laboratory", "How sessions end, with 95% bounds"),
                                 QT_TRANSLATE_NOOP("Laboratory", "Ruin over time"),
                                 QT_TRANSLATE_NOOP("Laboratory", "Sweep")};

}  // namespace

void PaintLab(QPainter& painter, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  Canvas canvas{painter, area, figures, look, ColoursOf(look.dark)};
  painter.fillRect(area, canvas.colours.paper);
  QFont letters = painter.font();
  letters.setPixelSize(12);
  painter.setFont(letters);
  if (figures.sessions == 0) {
    Text(canvas, area.adjusted(kMargin, 0, -kMargin, 0), Qt::AlignHCenter,
         Words(QT_TRANSLATE_NOOP("Laboratory", "Nothing has been played yet.")), canvas.colours.second);
    painter.restore();
    return;
  }
  if (look.picture == LabPicture::kSweep) {
    PaintSweep(painter, area, figures, look);
    painter.restore();
    return;
  }
  QFont heading = letters;
  heading.setPixelSize(13);
  heading.setBold(true);
  painter.setFont(heading);
  const QString title = Words(kHeadings[static_cast<int>(look.picture)]);
  const double titleRoom = QFontMetricsF(heading).horizontalAdvance(title) + 24;
  Text(canvas, QRectF(area.left() + kMargin, area.top() + 8, titleRoom, kLine), Qt::AlignLeft, title,
       canvas.colours.text);
  painter.setFont(letters);
  Legend(canvas, QRectF(area.left() + kMargin + titleRoom, area.top() + 8,
                        area.width() - titleRoom - 2 * kMargin, kLine));
  if (look.picture == LabPicture::kResults) PaintResults(canvas);
  if (look.picture == LabPicture::kWay) PaintWay(canvas);
  if (look.picture == LabPicture::kEnds) PaintEnds(canvas);
  if (look.picture == LabPicture::kRuin) PaintRuin(canvas);
  painter.restore();
}

int LabSystemAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  if (look.picture != LabPicture::kSweep || figures.sessions == 0) return -1;
  return SweepSystemAt(place, area, figures, look);
}

QString LabTextAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look) {
  if (const int system = LabSystemAt(place, area, figures, look); system >= 0)
    return SweepText(figures, static_cast<std::size_t>(system));
  if (look.picture != LabPicture::kResults || figures.sessions == 0) return {};
  const ResultsPlan plan = PlanResults(area, figures, look);
  if (!plan.plot.contains(place)) return {};
  const double at = (plan.across.Back(place.x()) - figures.firstBar) / figures.barWidth;
  const auto bar =
      std::min(static_cast<std::size_t>(std::max(at, 0.0)), figures.systems[look.a].bars.size() - 1);
  const double low = figures.firstBar + static_cast<double>(bar) * figures.barWidth;
  const auto count = [&](std::size_t system) {
    const SystemFigures& shown = figures.systems[system];
    return QCoreApplication::translate("Laboratory", "%1 sessions (%2)", nullptr, PluralOf(shown.bars[bar]))
        .arg(LabCount(shown.bars[bar]), LabShare(shown.bars[bar], shown.sessions));
  };
  QString text = Words(QT_TRANSLATE_NOOP("Laboratory", "%1 to %2: A %3"))
                     .arg(LabMoney(low), LabMoney(low + figures.barWidth), count(look.a));
  if (look.a != look.b) text += Words(QT_TRANSLATE_NOOP("Laboratory", ", B %1")).arg(count(look.b));
  return text;
}

// --- On screen.

LabPictureView::LabPictureView(LabPicture picture, const char* name, QWidget* parent) : QWidget(parent) {
  look_.picture = picture;
  setObjectName(name);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

void LabPictureView::Show(std::shared_ptr<const LabFigures> figures, const LabLook& look) {
  const LabPicture picture = look_.picture;
  figures_ = std::move(figures);
  look_ = look;
  look_.picture = picture;
  setAccessibleName(Words(kHeadings[static_cast<int>(picture)]));
  update();
}

LabLook LabPictureView::LookNow() const {
  LabLook look = look_;
  look.dark = palette().color(QPalette::Window).lightness() < 128;
  return look;
}

void LabPictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintLab(painter, rect(), *figures_, LookNow());
}

void LabPictureView::mouseMoveEvent(QMouseEvent* event) {
  emit Pointed(LabTextAt(event->position(), rect(), *figures_, LookNow()));
}

void LabPictureView::mousePressEvent(QMouseEvent* event) {
  const int system = LabSystemAt(event->position(), rect(), *figures_, LookNow());
  if (event->button() == Qt::LeftButton && system >= 0) emit Chosen(system);
}

void LabPictureView::leaveEvent(QEvent*) { emit Pointed({}); }

}  // namespace tessaryn
