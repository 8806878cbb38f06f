#include "shell/table/table_lettering.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTransform>
#include <algorithm>
#include <cmath>

// In a library of its own a resource must be asked for, outside of any namespace.
static void BringFonts() { Q_INIT_RESOURCE(fonts); }

namespace tessaryn {

namespace {

constexpr double kDrawnAt = 64;  // pixels; outlines are scaled from there

// The one thing that is the same for every table of the program: a font is registered for all of it.
QString& TableFontFamily() {
  static QString family = BuiltInTableFont();
  return family;
}
QString& LetteringFamily() {
  static QString family;
  return family;
}

double CapHeight(const QFont& font) {
  QPainterPath capital;
  capital.addText(0, 0, font, QStringLiteral("H"));
  return std::max(1.0, capital.boundingRect().height());
}

LabelWording LabelWordingOf(const QString& text, const QFont& font) {
  QPainterPath path;
  path.addText(0, 0, font, text);
  const QRectF bounds = path.boundingRect();
  const double cap = CapHeight(font);
  QTransform unit;
  unit.scale(1 / cap, 1 / cap);
  unit.translate(-bounds.left(), 0);
  return {unit.map(path), bounds.width() / cap};
}

QPainterPath RingRound(const QRectF& box) {
  const double radius = box.height() / 2;
  QPainterPath ring;
  ring.addEllipse(box.center(), radius, radius);
  ring.addEllipse(box.center(), radius - 1.6, radius - 1.6);
  return ring;
}

void Fit(TableLabel& label, double least) {
  label.Outline = {};
  label.FittedCap = 0;
  const double wanted = std::min(label.Box.height(), std::max(label.Cap > 0 ? label.Cap : 1e9, least));
  for (const LabelWording& wording : label.Wordings) {
    if (wording.Width <= 0) continue;
    double cap = std::min(wanted, label.Box.width() / wording.Width);
    const double across = cap;
    if (cap < least && cap >= least * label.Narrowest) cap = std::min(wanted, least);
    if (cap < least - 1e-6) continue;
    QTransform place;
    place.translate(label.Box.center().x(), label.Box.center().y());
    place.rotate(label.Rotation);
    place.translate(label.Left ? -label.Box.width() / 2 : -across * wording.Width / 2, cap / 2);
    place.scale(across, cap);
    label.Outline = place.map(wording.Path);
    label.FittedCap = cap;
    break;
  }
  if (label.Ring) label.Outline.addPath(RingRound(label.Box));
}

}  // namespace

double LeastCap(double scale) { return scale >= 0.85 ? 8 : 7; }

void FitLettering(TableLayout& layout, double scale) {
  if (layout.FittedFor == scale) return;
  layout.FittedFor = scale;
  const double least = LeastCap(scale) / scale;
  for (TableArea& area : layout.Areas)
    for (TableLabel& label : area.Labels) Fit(label, least);
  for (TableHeading& heading : layout.Headings)
    for (TableLabel& label : heading.Labels) Fit(label, least);
  for (TableMark& mark : layout.Marks) Fit(mark.Label, least);
}

void WordLabel(TableLabel& label) {
  if (label.Die1 != 0) return;
  const QFont font = TableFont(true, kDrawnAt);
  label.Wordings = {LabelWordingOf(label.Text, font)};
  for (const QString& text : label.Shorter) label.Wordings.push_back(LabelWordingOf(text, font));
}

LabelDice PlaceLabelDice(const TableLabel& label) {
  const double side = std::min(label.Box.height(), label.Box.width() / 2.15);
  const QPointF step(side * 0.56, 0);
  return {label.Box.center() - step, label.Box.center() + step, side};
}

QString BuiltInTableFont() {
  BringFonts();
  const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/BebasNeue-Bold.otf"));
  const QStringList families = id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id);
  return families.isEmpty() ? QString(kPlainTableFont) : families.first();
}

void SetTableFont(const QString& family) { TableFontFamily() = family; }

void SetLetteringFont(const QString& family) { LetteringFamily() = family; }

QFont TableFont(bool bold, double pixels) {
  QFont font(LetteringFamily().isEmpty() ? TableFontFamily() : LetteringFamily());
  font.setStyleHint(QFont::SansSerif);
  font.setBold(bold);
  font.setPixelSize(std::max(4, static_cast<int>(std::lround(pixels))));
  return font;
}

QFont TableFontOfCap(double cap) {
  const double share = CapHeight(TableFont(true, kDrawnAt)) / kDrawnAt;
  return TableFont(true, std::ceil(cap / share - 0.05));
}

}  // namespace tessaryn
