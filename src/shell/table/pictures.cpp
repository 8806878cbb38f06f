#include "shell/table/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_layout.h"

namespace tessaryn {

namespace {

// The colours of a check and the spots of its edge. Their number and width differ too, so that checks are
// told apart without their colours.
struct CheckLook {
  QColor body;
  QColor spot;  // and the ring round the value
  QColor text;
  int spots;
  double share;  // of the edge that the spots take
};

// As they are at first.
const std::array<CheckLook, kCheckFaces + 1>& FirstCheckLooks() {
  static const std::array<CheckLook, kCheckFaces + 1> looks = {{
      {},
      {QColor(0xF4, 0xF4, 0xF1), QColor(0x1F, 0x4E, 0x9E), QColor(0x1F, 0x4E, 0x9E), 4, 0.40},
      {QColor(0xC8, 0x20, 0x2B), Qt::white, Qt::white, 6, 0.46},
      {QColor(0x15, 0x7A, 0x44), Qt::white, Qt::white, 8, 0.37},
      {QColor(0x20, 0x22, 0x26), QColor(0xF2, 0xD2, 0x7A), Qt::white, 3, 0.50},
      {QColor(0x6B, 0x2F, 0xA0), QColor(0xFF, 0xE0, 0x8A), Qt::white, 12, 0.36},
      {QColor(0xDE, 0xA0, 0x28), QColor(0x60, 0x3E, 0x08), QColor(0x30, 0x1E, 0x04), 2, 0.50},
  }};
  return looks;
}

std::array<CheckLook, kCheckFaces + 1>& CheckLooks() {
  static std::array<CheckLook, kCheckFaces + 1> looks = FirstCheckLooks();
  return looks;
}

bool IsLight(const QColor& color) {
  return 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF() > 0.55;
}

// A check in a colour of the user's: spots and value stand off the body.
CheckLook LookOf(const CheckLook& first, const QColor& body) {
  CheckLook look = first;
  look.body = body;
  look.spot = IsLight(body) ? body.darker(320) : QColor(255, 250, 236);
  look.text = IsLight(body) ? body.darker(420) : QColor(Qt::white);
  return look;
}

// A spot of the edge: a piece of the ring between two radii, about an angle upwards.
QPainterPath EdgeSpot(double inner, double outer, double degrees, double span) {
  QPainterPath path;
  const QRectF out(-outer, -outer, 2 * outer, 2 * outer);
  const QRectF in(-inner, -inner, 2 * inner, 2 * inner);
  path.arcMoveTo(out, degrees + 90 - span / 2);
  path.arcTo(out, degrees + 90 - span / 2, span);
  path.arcTo(in, degrees + 90 + span / 2 * 0.72, -span * 0.72);
  path.closeSubpath();
  return path;
}

// The text as an outline of a size that fits a box, centred on the origin.
QPainterPath FittedText(const QString& text, double width, double height) {
  const QFont font = TableFont(true, 64);
  QPainterPath path;
  path.addText(0, 0, font, text);
  const QRectF bounds = path.boundingRect();
  if (bounds.isEmpty()) return path;
  const double scale = std::min(width / bounds.width(), height / bounds.height());
  QTransform place;
  place.scale(scale, scale);
  place.translate(-bounds.center().x(), -bounds.center().y());
  return place.map(path);
}

// The pips of a face on a grid of -1, 0, 1.
struct Pip {
  int x;
  int y;
};
constexpr Pip kPips[7][6] = {{},
                             {{0, 0}},
                             {{-1, -1}, {1, 1}},
                             {{-1, -1}, {0, 0}, {1, 1}},
                             {{-1, -1}, {1, -1}, {-1, 1}, {1, 1}},
                             {{-1, -1}, {1, -1}, {0, 0}, {-1, 1}, {1, 1}},
                             {{-1, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {1, 1}}};

QPixmap EmptyPicture(int size, double ratio) {
  const int pixels = std::max(1, static_cast<int>(std::ceil(size * ratio)));
  QPixmap picture(pixels, pixels);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  return picture;
}

}  // namespace

void PaintDie(QPainter& painter, int face, const QColor& body, const QColor& pips) {
  painter.save();
  painter.setPen(QPen(body.darker(170), 0.03));
  QLinearGradient shine(-0.5, -0.5, 0.5, 0.5);
  shine.setColorAt(0, body.lighter(135));
  shine.setColorAt(0.5, body);
  shine.setColorAt(1, body.darker(130));
  painter.setBrush(shine);
  painter.drawRoundedRect(QRectF(-0.485, -0.485, 0.97, 0.97), 0.16, 0.16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(pips);
  const double radius = face == 1 ? 0.13 : 0.095;
  for (int n = 0; n < face; ++n)
    painter.drawEllipse(QPointF(kPips[face][n].x * 0.26, kPips[face][n].y * 0.26), radius, radius);
  painter.restore();
}

void PaintFlatDie(QPainter& painter, int face, const QColor& body, const QColor& pips) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(body);
  painter.drawRoundedRect(QRectF(-0.5, -0.5, 1, 1), 0.17, 0.17);
  QPainterPath spots;  // as one: there are many of these dice
  for (int n = 0; n < face; ++n)
    spots.addEllipse(QPointF(kPips[face][n].x * 0.27, kPips[face][n].y * 0.27), 0.1, 0.1);
  painter.setBrush(pips);
  painter.drawPath(spots);
}

void PaintCheck(QPainter& painter, int denomination, const QString& text) {
  const CheckLook& look = CheckLooks()[denomination];
  painter.save();
  painter.setPen(QPen(QColor(10, 10, 10), 0.032));
  painter.setBrush(look.body);
  painter.drawEllipse(QPointF(0, 0), 0.484, 0.484);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.spot);
  const double step = 360.0 / look.spots;
  for (int n = 0; n < look.spots; ++n) painter.drawPath(EdgeSpot(0.35, 0.475, n * step, step * look.share));
  painter.setPen(QPen(look.spot, 0.036));
  painter.setBrush(look.body);
  painter.drawEllipse(QPointF(0, 0), 0.33, 0.33);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.text);
  painter.drawPath(FittedText(text, 0.5, 0.36));
  painter.restore();
}

QColor CheckBodyColor(int denomination) { return CheckLooks()[denomination].body; }

void SetCheckColors(const std::uint32_t (&colors)[kCheckColors]) {
  const Looks first;
  for (int n = 1; n <= kCheckFaces; ++n)
    CheckLooks()[n] = colors[n] == first.Checks[n] ? FirstCheckLooks()[n]
                                                   : LookOf(FirstCheckLooks()[n], QColor::fromRgb(colors[n]));
}

QString CheckText(int denomination, const Currency (&checkValue)[6], bool centsSymbol) {
  if (denomination < 1 || denomination >= kCheckFaces) return "$";
  const Currency value = checkValue[denomination];
  if (centsSymbol && IsCents(value)) return CentsText(value);
  if (value.IsWhole()) return QString::fromStdString(PlainMoney(value));
  return InHabit(QString::number(value.ToDouble(), 'f', 2));
}

QPixmap DicePicture(int size, double devicePixelRatio) {
  QPixmap picture = EmptyPicture(size, devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size, size);
  painter.save();
  painter.translate(0.33, 0.38);
  painter.rotate(-14);
  painter.scale(0.52, 0.52);
  PaintDie(painter, 4, kDiceRed, Qt::white);
  painter.restore();
  painter.translate(0.68, 0.66);
  painter.rotate(11);
  painter.scale(0.52, 0.52);
  PaintDie(painter, 3, kDiceRed, Qt::white);
  return picture;
}

QPixmap CheckPicture(int denomination, const QString& text, int size, double devicePixelRatio) {
  QPixmap picture = EmptyPicture(size, devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size, size);
  painter.translate(0.5, 0.5);
  PaintCheck(painter, denomination, text);
  return picture;
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) icon.addPixmap(DicePicture(size, 1));
  return icon;
}

}  // namespace tessaryn
