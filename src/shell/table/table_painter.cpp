#include "shell/table/table_painter.h"

#include <QPainter>
#include <algorithm>
#include <thread>
#include <vector>

#include "shell/table/pictures.h"
#include "state/looks.h"

namespace tessaryn {

namespace {

constexpr double kLineWidth = 1.1;

QColor InkColor(const TableColors& colors, Ink ink) {
  switch (ink) {
    case Ink::kAccent:
      return colors.Accent;
    case Ink::kSoft:
      return colors.Soft;
    case Ink::kDark:
      return colors.Ink;
    default:
      return colors.Letter;
  }
}

constexpr int kWeave = 16;  // pixels of the tile

// A tile of cloth, woven of light and dark threads. The same each time, so that halves of a table match.
QImage Weave(int strength) {
  QImage tile(kWeave, kWeave, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < kWeave; ++y)
    for (int x = 0; x < kWeave; ++x) {
      const bool over = ((x / 2 + y / 2) & 1) != 0;
      const int fleck = (x * 73 + y * 151 + x * y * 31) % 7;
      const int alpha = std::min(255, strength * (3 + fleck) / 8);
      tile.setPixelColor(x, y, over ? QColor(255, 255, 255, alpha / 2) : QColor(0, 0, 0, alpha));
    }
  return tile;
}

void DrawWeave(QPainter& painter, const TableColors& colors) {
  if (colors.Texture <= 0) return;
  QBrush weave;
  weave.setTextureImage(Weave(colors.Texture));
  weave.setTransform(QTransform::fromScale(0.5, 0.5));
  painter.setBrush(weave);
  painter.drawPath(FeltOutline());
}

void DrawRail(QPainter& painter, const TableColors& colors) {
  QLinearGradient wood(0, -20, 0, 574);
  wood.setColorAt(0, colors.Rail.lighter(200));
  wood.setColorAt(0.5, colors.Rail.lighter(122));
  wood.setColorAt(1, colors.Rail.darker(140));
  painter.setPen(QPen(colors.Rail.darker(230), 1.5));
  painter.setBrush(wood);
  painter.drawPath(RailOutline());
  QColor shine = colors.Rail.lighter(245);
  shine.setAlphaF(0.55f);
  QTransform shrink;
  shrink.translate(kTableMiddle, 277);
  shrink.scale(0.988, 0.974);
  shrink.translate(-kTableMiddle, -277);
  painter.setPen(QPen(shine, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(shrink.map(RailOutline()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.Rail.darker(190));
  painter.drawPath(WallOutline());
}

void DrawFelt(QPainter& painter, const TableColors& colors) {
  QRadialGradient light(QPointF(kTableMiddle, 226), 700);
  light.setColorAt(0, colors.Felt.lighter(100 + colors.Spotlight * 15 / 50));
  light.setColorAt(0.6, colors.Felt);
  light.setColorAt(1, colors.Felt.darker(100 + colors.Spotlight * 14 / 50));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawPath(FeltOutline());
  DrawWeave(painter, colors);
}

// The dealers' bank: racks of checks at the middle of their side.
void DrawBank(QPainter& painter, const TableColors& colors) {
  const QRectF rack(448, -15, 351, 16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.Rail.darker(230));
  painter.drawRoundedRect(rack, 3, 3);
  constexpr int kTubes = 36;
  constexpr int kTubesOfOne = 4;
  const double step = (rack.width() - 8) / kTubes;
  for (int n = 0; n < kTubes; ++n) {
    const QColor color = CheckBodyColor(1 + n / kTubesOfOne % 5);
    painter.setPen(QPen(Qt::black, 0.4));
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(rack.left() + 4.5 + n * step, rack.top() + 2, step - 1, rack.height() - 4),
                            1.5, 1.5);
  }
}

void DrawLabel(QPainter& painter, const TableLabel& label, const TableColors& colors) {
  if (label.Die1 == 0) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(InkColor(colors, label.Colour));
    painter.drawPath(label.Outline);
    return;
  }
  const LabelDice dice = PlaceLabelDice(label);
  for (const bool first : {true, false}) {
    painter.save();
    painter.translate(first ? dice.First : dice.Second);
    painter.scale(dice.Side, dice.Side);
    PaintFlatDie(painter, first ? label.Die1 : label.Die2, QColor(0xF7, 0xF3, 0xE6),
                 QColor(0x1B, 0x1F, 0x23));
    painter.restore();
  }
}

QPen EdgeOf(const TableArea& area, const TableColors& colors) {
  if (!area.Edged) return Qt::NoPen;
  return area.Gold ? QPen(colors.Accent, 1.6) : QPen(colors.Line, kLineWidth);
}

// What of the table lies within the picture that is drawn.
class Seen {
 public:
  explicit Seen(const QPainter& painter)
      : toDevice_(painter.combinedTransform()),
        device_(0, 0, painter.device()->width(), painter.device()->height()) {}
  bool Has(const QRectF& box) const {
    return toDevice_.mapRect(box.adjusted(-2, -2, 2, 2)).intersects(device_);
  }

 private:
  QTransform toDevice_;
  QRectF device_;
};

void DrawLines(QPainter& painter, const TableLayout& layout, const TableColors& colors, const Seen& seen) {
  painter.setBrush(Qt::NoBrush);
  for (const FeltLine& line : layout.Lines) {
    if (!seen.Has(line.Path.boundingRect())) continue;
    QPen pen(colors.Line, line.Dashed ? 0.8 : kLineWidth);
    if (line.Dashed) pen.setDashPattern({2.5, 2.5});
    painter.setPen(pen);
    painter.drawPath(line.Path);
  }
}

void DrawHeadings(QPainter& painter, const TableLayout& layout, const TableColors& colors, const Seen& seen) {
  for (const TableHeading& heading : layout.Headings) {
    if (!seen.Has(heading.Box)) continue;
    painter.setPen(heading.Fill == Ground::kUnused ? QPen(Qt::NoPen) : QPen(colors.Line, 1));
    painter.setBrush(GroundColor(colors, heading.Fill));
    painter.drawRoundedRect(heading.Box, 2, 2);
    for (const TableLabel& label : heading.Labels) DrawLabel(painter, label, colors);
  }
}

// The places that are still to be marked.
void DrawMarks(QPainter& painter, const TableLayout& layout, const TableColors& colors, const Seen& seen) {
  painter.setPen(QPen(colors.Soft, 1));
  painter.setBrush(Qt::NoBrush);
  for (const TableMark& mark : layout.Marks) {
    if (!seen.Has(mark.Box)) continue;
    if (mark.Kind == Progress::kPoint) painter.drawEllipse(mark.Box);
    if (mark.Kind == Progress::kRoll) painter.drawRoundedRect(mark.Box, 1, 1);
  }
}

void DrawAreas(QPainter& painter, const TableLayout& layout, const TableColors& colors) {
  const Seen seen(painter);
  std::vector<const TableArea*> shown;
  for (const TableArea& area : layout.Areas)
    if (seen.Has(area.Outline.boundingRect())) shown.push_back(&area);
  for (const TableArea* area : shown) {
    const bool plain = area->Fill == Ground::kFelt;
    if (plain && !area->Edged) continue;
    painter.setPen(EdgeOf(*area, colors));
    painter.setBrush(plain ? QBrush() : QBrush(GroundColor(colors, area->Fill)));
    painter.drawPath(area->Outline);
  }
  DrawLines(painter, layout, colors, seen);
  DrawHeadings(painter, layout, colors, seen);
  for (const TableArea* area : shown)
    for (const TableLabel& label : area->Labels) DrawLabel(painter, label, colors);
  DrawMarks(painter, layout, colors, seen);
}

// The part of the picture from a column of its pixels on, as wide as part is.
void DrawTablePart(QImage& part, int column, TableLayout& layout, const TableView& view,
                   const TableColors& colors) {
  FitLettering(layout, view.Scale());
  part.fill(colors.Room);
  QPainter painter(&part);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-column / part.devicePixelRatio(), 0);
  painter.setTransform(view.Transform(), true);
  DrawRail(painter, colors);
  DrawFelt(painter, colors);
  DrawBank(painter, colors);
  DrawAreas(painter, layout, colors);
}

}  // namespace

TableColors ColorsOf(const Looks& looks) {
  const Looks first;
  TableColors colors;
  const auto chosen = [](std::uint32_t value, std::uint32_t atFirst, QColor& color) {
    if (value != atFirst) color = QColor::fromRgb(value);
    return value != atFirst;
  };
  chosen(looks.Room, first.Room, colors.Room);
  chosen(looks.Rail, first.Rail, colors.Rail);
  if (chosen(looks.Cloth, first.Cloth, colors.Felt)) {
    colors.Dark = colors.Felt.darker(125);
    colors.Lit = colors.Felt.lighter(132);
  }
  if (chosen(looks.Lettering, first.Lettering, colors.Letter)) colors.Line = colors.Soft = colors.Letter;
  chosen(looks.Dice[0], first.Dice[0], colors.Dice);
  chosen(looks.Dice[1], first.Dice[1], colors.Dice2);
  colors.Pips = QColor::fromRgb(looks.Pips);
  colors.Texture = std::clamp(looks.Texture, 0, 100);
  colors.Spotlight = std::clamp(looks.Spotlight, 0, 100);
  return colors;
}

QColor GroundColor(const TableColors& colors, Ground ground) {
  switch (ground) {
    case Ground::kDark:
      return colors.Dark;
    case Ground::kMiddle:
      return colors.Middle;
    case Ground::kHead:
      return colors.Head;
    case Ground::kSide:
      return colors.Side;
    case Ground::kSideHead:
      return colors.SideHead;
    case Ground::kUnused: {
      QColor faint = colors.Head;
      faint.setAlphaF(0.55f);
      return faint;
    }
    default:
      return Qt::transparent;
  }
}

void DrawArea(QPainter& painter, const TableArea& area, const TableColors& colors, const QColor& ground) {
  painter.setPen(EdgeOf(area, colors));
  painter.setBrush(ground);
  painter.drawPath(area.Outline);
  for (const TableLabel& label : area.Labels) DrawLabel(painter, label, colors);
}

void DrawTable(QImage& picture, TableDrawing& drawing, const TableView& view, const TableColors& colors) {
  const int middle = picture.width() / 2;
  const auto part = [&](int from, int to) {
    QImage image(picture.bits() + from * (picture.depth() / 8), to - from, picture.height(),
                 picture.bytesPerLine(), picture.format());
    image.setDevicePixelRatio(picture.devicePixelRatio());
    return image;
  };
  QImage left = part(0, middle);
  QImage right = part(middle, picture.width());
  const std::jthread helper([&] { DrawTablePart(right, middle, drawing.Right, view, colors); });
  DrawTablePart(left, 0, drawing.Left, view, colors);
}

}  // namespace tessaryn
