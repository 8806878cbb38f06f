#include "shell/table/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>

#include "shell/table/screen_tools.h"
#include "shell/table/table_layout.h"

namespace tessaryn {

namespace {

// The colours of a check and the pattern of its edge. The patterns differ too, so that they are told apart
// without their colours.
struct CheckLook {
  QColor body;
  QColor edge;
  QColor centre;
  QColor text;
  int marks;        // marks round the edge
  double share;     // how much of the edge they take
  bool doubleMark;  // each mark split in two
};

// As they are at first.
const std::array<CheckLook, kCheckFaces + 1>& FirstCheckLooks() {
  static const std::array<CheckLook, kCheckFaces + 1> looks = {{
      {},
      {QColor(236, 236, 232), QColor(52, 92, 168), QColor(250, 250, 247), QColor(30, 48, 92), 4, 0.30, false},
      {QColor(190, 30, 38), QColor(255, 250, 240), QColor(250, 240, 226), QColor(122, 10, 18), 6, 0.36,
       false},
      {QColor(18, 112, 60), QColor(255, 236, 150), QColor(238, 246, 226), QColor(8, 66, 34), 8, 0.42, false},
      {QColor(30, 30, 34), QColor(240, 240, 240), QColor(232, 232, 234), QColor(16, 16, 18), 4, 0.50, true},
      {QColor(106, 44, 144), QColor(250, 200, 70), QColor(246, 236, 250), QColor(70, 20, 102), 6, 0.56, true},
      {QColor(222, 160, 40), QColor(96, 62, 8), QColor(255, 244, 208), QColor(92, 58, 4), 12, 0.34, false},
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

// A check in a colour of the user's: the edge stands off the body, the value can be read on the middle.
CheckLook LookOf(const CheckLook& first, const QColor& body) {
  CheckLook look = first;
  if (body == first.body) return look;
  look.body = body;
  look.edge = IsLight(body) ? body.darker(320) : QColor(255, 250, 236);
  const QColor hue = QColor::fromHsvF(std::max(0.0f, body.hueF()), body.saturationF(), 0.4f);
  look.centre = QColor::fromHsvF(std::max(0.0f, body.hueF()), body.saturationF() * 0.08f, 0.98f);
  look.text = hue.darker(130);
  return look;
}

// A piece of the ring between two radii.
QPainterPath RingPiece(double inner, double outer, double startDegrees, double spanDegrees) {
  QPainterPath path;
  path.arcMoveTo(QRectF(-outer, -outer, 2 * outer, 2 * outer), startDegrees);
  path.arcTo(QRectF(-outer, -outer, 2 * outer, 2 * outer), startDegrees, spanDegrees);
  path.arcTo(QRectF(-inner, -inner, 2 * inner, 2 * inner), startDegrees + spanDegrees, -spanDegrees);
  path.closeSubpath();
  return path;
}

void PaintEdgeMarks(QPainter& painter, const CheckLook& look) {
  const double step = 360.0 / look.marks;
  for (int n = 0; n < look.marks; ++n) {
    const double start = n * step;
    const double span = step * look.share;
    if (look.doubleMark) {
      painter.drawPath(RingPiece(0.37, 0.485, start, span * 0.38));
      painter.drawPath(RingPiece(0.37, 0.485, start + span * 0.62, span * 0.38));
    } else {
      painter.drawPath(RingPiece(0.37, 0.485, start, span));
    }
  }
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

void PaintCheck(QPainter& painter, int denomination, const QString& text) {
  const CheckLook& look = CheckLooks()[denomination];
  painter.save();
  painter.setPen(QPen(look.body.darker(190), 0.025));
  painter.setBrush(look.body);
  painter.drawEllipse(QPointF(0, 0), 0.487, 0.487);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.edge);
  PaintEdgeMarks(painter, look);
  painter.setBrush(look.centre);
  painter.setPen(QPen(look.body.darker(120), 0.02));
  painter.drawEllipse(QPointF(0, 0), 0.345, 0.345);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.text);
  painter.drawPath(FittedText(text, 0.56, 0.27));
  painter.restore();
}

void SetCheckColors(const std::uint32_t (&colors)[kCheckColors]) {
  for (int n = 1; n <= kCheckFaces; ++n)
    CheckLooks()[n] = LookOf(FirstCheckLooks()[n], QColor::fromRgb(colors[n]));
}

QString CheckText(int denomination, const Currency (&checkValue)[6], bool centsSymbol) {
  if (denomination < 1 || denomination >= kCheckFaces) return "$";
  const Currency value = checkValue[denomination];
  if (centsSymbol && IsCents(value)) return CentsText(value);
  if (value.IsWhole()) return QString::fromStdString(PlainMoney(value));
  return QString::number(value.ToDouble(), 'f', 2);
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
