#include "shell/screens/probability_picture.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "dice/probability_edit.h"
#include "shell/screens/hatching.h"

namespace tessaryn {

namespace {

constexpr double kPoints = 1000;         // thousandths of a percent in a percent
constexpr double kLeastScale = 0.5;      // percent points of difference that are shown in full colour
constexpr double kMostShownPart = 0.75;  // of a cell's colour, so that its letters stay readable
constexpr double kWideStep = 38;         // room for two decimals under a total

QString Words(const char* text) { return QCoreApplication::translate("ProbabilityPicture", text); }

struct Ink {
  QColor paper, text, second, line, more, less, bar;
};
const Ink kLight{QColor(255, 255, 255),    QColor(0x1B, 0x1F, 0x23), QColor(0x4F, 0x5B, 0x66),
                 QColor(0xC3, 0xCA, 0xD0), QColor(0xE3, 0x8A, 0x1C), QColor(0x4F, 0x86, 0xD9),
                 QColor(0x0B, 0x6B, 0x45)};
const Ink kDark{QColor(0x27, 0x2D, 0x32), QColor(0xEC, 0xF0, 0xF3), QColor(0xAE, 0xB9, 0xC2),
                QColor(0x55, 0x60, 0x69), QColor(0xC2, 0x70, 0x10), QColor(0x33, 0x68, 0xBC),
                QColor(0x3C, 0xC9, 0x8A)};

QColor Mixed(const QColor& from, const QColor& to, double part) {
  const auto mix = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
  return QColor(mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue()));
}

QFont Sized(const QPainter& painter, double pixels, bool bold = false) {
  QFont font = painter.font();
  font.setPixelSize(std::max(10, static_cast<int>(pixels)));
  font.setBold(bold);
  return font;
}

// Percent points with their sign.
QString Difference(double points, int decimals = 2) {
  if (std::fabs(points) < (decimals == 2 ? 0.005 : 0.05)) return QStringLiteral("0");
  return (points > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) +
         QString::number(std::fabs(points), 'f', std::fabs(points) < 10 ? decimals : 1);
}

// What the colours go up to: the farthest combination.
double ScaleOf(const PercentageDice& dice) {
  double most = kLeastScale;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      most = std::max(most, std::fabs(ProbabilityFromFair(dice, ProbabilityRow(die1, die2),
                                                          ProbabilityColumn(die1, die2)) /
                                      kPoints));
  return most;
}

void PaintMap(QPainter& painter, const QRectF& area, const PercentageDice& dice, const Ink& ink) {
  const double width = area.width() / 6.6;
  const double height = area.height() / 6.6;
  const QPointF corner(area.left() + 0.6 * width, area.top() + 0.6 * height);
  const double scale = ScaleOf(dice);
  const QFont figures = Sized(painter, std::min(height * 0.42, width * 0.27));
  painter.setFont(figures);
  for (int die = 1; die <= 6; ++die) {
    painter.setPen(ink.second);
    painter.drawText(QRectF(corner.x() + (die - 1) * width, area.top(), width, 0.6 * height), Qt::AlignCenter,
                     QString::number(die));
    painter.drawText(QRectF(area.left(), corner.y() + (die - 1) * height, 0.6 * width, height),
                     Qt::AlignCenter, QString::number(die));
  }
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      const double points =
          ProbabilityFromFair(dice, ProbabilityRow(die1, die2), ProbabilityColumn(die1, die2)) / kPoints;
      const QRectF box(corner.x() + (die2 - 1) * width, corner.y() + (die1 - 1) * height, width, height);
      const double part = std::min(1.0, std::fabs(points) / scale) * kMostShownPart;
      painter.fillRect(box.adjusted(0.5, 0.5, -0.5, -0.5),
                       Mixed(ink.paper, points > 0 ? ink.more : ink.less, part));
      painter.setPen(ink.line);
      painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
      painter.setPen(ink.text);
      painter.drawText(box, Qt::AlignCenter, Difference(points));
    }
}

void PaintTotals(QPainter& painter, const QRectF& area, const PercentageDice& dice, const Ink& ink) {
  const ProbabilityPlane fair = FairProbabilities()[1];
  const ProbabilityPlane& now = dice.ProbMatrix[1];
  double most = 1;
  for (int column = 1; column <= 11; ++column)
    most = std::max<double>(
        {most, static_cast<double>(now[kTotalRow][column]), static_cast<double>(fair[kTotalRow][column])});
  const double step = area.width() / 11;
  const double line = std::max(12.0, area.height() * 0.09);
  const double foot = area.bottom() - 2 * line;
  const double room = foot - area.top() - line;
  for (int column = 1; column <= 11; ++column) {
    const double left = area.left() + (column - 1) * step;
    const auto bar = [&](double value, double from) {
      const double height = room * value / most;
      return QRectF(left + step * from, foot - height, step * 0.36, height);
    };
    const double points = ProbabilityFromFair(dice, kTotalRow, column) / kPoints;
    painter.fillRect(bar(now[kTotalRow][column], 0.1), ink.bar);
    painter.setPen(ink.second);
    painter.setBrush(Qt::NoBrush);
    const QRectF hatched = bar(fair[kTotalRow][column], 0.5);
    painter.drawRect(hatched);
    PaintHatching(painter, hatched, ink.second);
    painter.setPen(ink.text);
    painter.setFont(Sized(painter, line * 0.9, true));
    painter.drawText(QRectF(left, foot + 1, step, line), Qt::AlignCenter, QString::number(column + 1));
    painter.setPen(ink.second);
    painter.setFont(Sized(painter, std::min(line * 0.8, step * 0.36)));
    painter.drawText(QRectF(left - 4, foot + line, step + 8, line), Qt::AlignCenter,
                     Difference(points, step < kWideStep ? 1 : 2));
  }
  painter.setPen(ink.line);
  painter.drawLine(QPointF(area.left(), foot + 0.5), QPointF(area.right(), foot + 0.5));
}

}  // namespace

void PaintProbabilityPicture(QPainter& painter, const QRectF& area, const PercentageDice& dice, bool dark) {
  const Ink& ink = dark ? kDark : kLight;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(area, ink.paper);
  const QRectF inside = area.adjusted(12, 8, -12, -8);
  const bool beside = inside.width() > 1.7 * inside.height();
  const double line = 18;
  const double gap = 12;
  const QSizeF part = beside ? QSizeF((inside.width() - gap) / 2, inside.height())
                             : QSizeF(inside.width(), (inside.height() - gap) / 2);
  const QRectF first(inside.topLeft(), part);
  const QRectF second(inside.bottomRight() - QPointF(part.width(), part.height()), part);
  const auto heading = [&](const QRectF& where, const QString& text) {
    painter.setPen(ink.text);
    // A long one in smaller letters, then in thinner ones.
    const auto isLong = [&] { return painter.fontMetrics().horizontalAdvance(text) > where.width(); };
    double size = 12.5;
    do painter.setFont(Sized(painter, size, true));
    while ((size -= 0.5) >= 10 && isLong());
    if (isLong()) painter.setFont(Sized(painter, 10));
    painter.drawText(QRectF(where.left(), where.top(), where.width(), line), Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(where.width())));
  };
  heading(first,
          Words(QT_TRANSLATE_NOOP("ProbabilityPicture", "Die 1 down, die 2 across: % points from fair")));
  PaintMap(painter, first.adjusted(0, line, 0, 0), dice, ink);
  heading(second, Words(QT_TRANSLATE_NOOP("ProbabilityPicture", "Totals: filled as set, hatched fair")));
  PaintTotals(painter, second.adjusted(0, line, 0, 0), dice, ink);
  painter.restore();
}

ProbabilityPicture::ProbabilityPicture(const PercentageDice& dice, QWidget* parent)
    : QWidget(parent), dice_(dice) {
  setObjectName("picProbabilities");
  setAccessibleName(Words(QT_TRANSLATE_NOOP("ProbabilityPicture", "How the dice differ from fair ones")));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize ProbabilityPicture::sizeHint() const { return {340, 380}; }
QSize ProbabilityPicture::minimumSizeHint() const { return {300, 280}; }

void ProbabilityPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintProbabilityPicture(painter, rect(), dice_, palette().color(QPalette::Window).lightness() < 128);
}

}  // namespace tessaryn
