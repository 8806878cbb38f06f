#include "shell/table/status_boxes.h"

#include <QLocale>
#include <QPainter>
#include <QStringList>
#include <cmath>
#include <filesystem>
#include <vector>

#include "shell/table/kept_pictures.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

QStringList StatusLines(const Game& game, int seat) {
  const TableState& table = game.table;
  int bets = 0;
  table.seats[seat].SeatBets.ForEach([&](int) { ++bets; });
  const Currency result = table.BankrollCurrent[seat] - game.stats.BankrollSessionStart[seat];
  const char* outcome = result.raw > 0 ? "Won:  " : result.raw < 0 ? "Lost:  " : "Even:  ";
  const auto amount = [](Currency value) {
    return QLocale(QLocale::English).toString(value.ToDouble(), 'f', 2);
  };
  return {"Rail:  " + amount(table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount),
          "Bankroll:  " + amount(table.BankrollCurrent[seat]),
          (bets == 1 ? QString("1 Bet:  ") : QString::number(bets) + " Bets:  ") +
              amount(table.seats[seat].OnTableAmount),
          outcome + amount(result)};
}

QString ScriptText(const Game& game, int seat) {
  const SeatScript& script = game.autobet.Scripts[seat];
  if (script.ScriptLines.empty()) return {};
  const std::string name = std::filesystem::path(script.ScriptFileName).stem().string();
  return (name.empty() ? QStringLiteral("untitled") : FromCore(name)) +
         (game.autobet.ScriptActive[seat] ? QStringLiteral(": on") : QStringLiteral(": off"));
}

namespace {

constexpr double kBoxGap = 4;
constexpr double kBoxPadding = 5;  // left and right of the text

// How much of the window an outline covers, in cells. Sums tell it of any box at once: asking the outline for
// every place that is tried would take longer than drawing it. A cell that is only touched counts too.
class Cover {
 public:
  Cover(const TableView& view, const QPainterPath& outline)
      : columns_(view.Window.width() / kCell + 1),
        rows_(view.Window.height() / kCell + 1),
        sums_(static_cast<std::size_t>(columns_ + 1) * (rows_ + 1)) {
    QImage mask(columns_, rows_, QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.scale(1.0 / kCell, 1.0 / kCell);
    painter.setTransform(view.Transform(), true);
    QPen edge(Qt::white, 2);
    edge.setCosmetic(true);
    painter.setPen(edge);
    painter.setBrush(Qt::white);
    painter.drawPath(outline);
    painter.end();
    for (int y = 0; y < rows_; ++y)
      for (int x = 0; x < columns_; ++x)
        sums_[At(x + 1, y + 1)] = sums_[At(x, y + 1)] + sums_[At(x + 1, y)] - sums_[At(x, y)] +
                                  (mask.constScanLine(y)[x] != 0 ? 1 : 0);
  }

  // The share of the box that is covered.
  double Under(const QRectF& box) const {
    const int left = std::clamp(static_cast<int>(box.left()) / kCell, 0, columns_);
    const int right = std::clamp(static_cast<int>(box.right()) / kCell + 1, left, columns_);
    const int top = std::clamp(static_cast<int>(box.top()) / kCell, 0, rows_);
    const int bottom = std::clamp(static_cast<int>(box.bottom()) / kCell + 1, top, rows_);
    const int cells =
        sums_[At(right, bottom)] - sums_[At(left, bottom)] - sums_[At(right, top)] + sums_[At(left, top)];
    return cells / std::max(1.0, static_cast<double>(right - left) * (bottom - top));
  }

 private:
  static constexpr int kCell = 4;  // screen units
  std::size_t At(int x, int y) const { return static_cast<std::size_t>(y) * (columns_ + 1) + x; }

  int columns_;
  int rows_;
  std::vector<int> sums_;
};

// What takes clicks: the felt, and at the rail the players' stacks and the open places.
QPainterPath WhereClicksGo(const Game& game, const TableLayout& layout) {
  QPainterPath path = FeltOutline();
  path.setFillRule(Qt::WindingFill);
  for (int seat = 1; seat <= kSeats; ++seat) {
    const SeatPlace& place = layout.Seats[seat];
    if (!IsOccupied(game.table, seat)) path.addEllipse(place.Rail, 10, 10);
    for (int n = 0; n < 4 && IsOccupied(game.table, seat); ++n)
      path.addEllipse(VisibleStackPlace(place, n), 7.5, 7.5);
  }
  return path;
}

QSizeF StatusBoxSize(const QFont& font) {
  const QFontMetricsF metrics(font);
  return {std::ceil(metrics.horizontalAdvance("Bankroll: 9,999,999.00") + 2 * kBoxPadding),
          std::ceil(metrics.height() * 5 + 8)};
}

// Where the boxes may stand.
struct BoxGround {
  Cover clicked;
  Cover table;
  QSizeF size;
  QRectF corners;  // within which a box's top left corner keeps it in the window
};

// The free place next to the spot; a place on the rail is taken only when there is none off the table. An
// empty rectangle when there is none at all.
QRectF PlaceBox(const BoxGround& ground, const QPointF& spot, const std::array<QRectF, kSeatRows>& taken) {
  constexpr double kOnTheTable = 10'000;
  QRectF best;
  double bestCost = 1e18;
  const QRectF& corners = ground.corners;
  const auto attempt = [&](double x, double y) {
    // On whole pixels: its edge is sharp, and every pixel of it its own.
    const QRectF box(QPointF(std::round(std::clamp(x, corners.left(), corners.right())),
                             std::round(std::clamp(y, corners.top(), corners.bottom()))),
                     ground.size);
    const QPointF way = box.center() - spot;
    const double cost = std::hypot(way.x(), way.y()) + kOnTheTable * ground.table.Under(box);
    if (cost >= bestCost || ground.clicked.Under(box) > 0) return;
    for (const QRectF& other : taken)
      if (other.intersects(box)) return;
    bestCost = cost;
    best = box;
  };
  const double width = ground.size.width();
  const double height = ground.size.height();
  for (const double dx : {-1.0, -0.5, 0.0})
    for (const double dy : {-1.0, -0.5, 0.0}) attempt(spot.x() + dx * width, spot.y() + dy * height);
  for (double x = corners.left(); x <= corners.right(); x += (width + kBoxGap) / 4)
    for (const double y : {corners.top(), corners.bottom()}) attempt(x, y);
  for (double y = corners.top(); y <= corners.bottom(); y += (height + kBoxGap) / 4)
    for (const double x : {corners.left(), corners.right()}) attempt(x, y);
  return best;
}

}  // namespace

std::array<QRectF, kSeatRows> PlaceStatusBoxes(const Game& game, const TableLayout& layout,
                                               const TableView& view, const QFont& font) {
  const QSizeF size = StatusBoxSize(font);
  const QSizeF room = QSizeF(view.Window) - size - QSizeF(2 * kBoxGap, 2 * kBoxGap);
  if (room.width() < 0 || room.height() < 0) return {};
  const BoxGround ground{Cover(view, WhereClicksGo(game, layout)), Cover(view, RailOutline()), size,
                         QRectF(QPointF(kBoxGap, kBoxGap), room)};
  std::array<QRectF, kSeatRows> boxes;
  const auto place = [&](int seat) {
    if (boxes[seat].isEmpty() && IsOccupied(game.table, seat))
      boxes[seat] = PlaceBox(ground, view.ToScreen(layout.Seats[seat].Spot), boxes);
  };
  // From the dealers' side round both ends, so that nobody's corner is taken by a neighbour.
  for (const int seat : kPayOrder) place(seat);
  const int selected = game.table.SelectedSeat;
  if (!IsOccupied(game.table, selected) || !boxes[selected].isEmpty()) return boxes;
  // Too little room for all: the player who bets comes first.
  boxes = {};
  place(selected);
  for (const int seat : kPayOrder) place(seat);
  return boxes;
}

namespace {

// The player's name, and at the right the script. The name gives way: it stands on the rail too.
void DrawStatusHead(QPainter& painter, const QRectF& row, const QString& name, const QString& script,
                    const QFont& font, const QFont& bold) {
  const QFontMetricsF metrics(font);
  const QFontMetricsF boldMetrics(bold);
  const double gap = script.isEmpty() ? 0 : 8;
  const double room = std::max(row.width() * 2 / 3, row.width() - boldMetrics.horizontalAdvance(name));
  const double scriptWidth = std::min(metrics.horizontalAdvance(script), room - gap);
  painter.setFont(bold);
  painter.drawText(row, Qt::AlignVCenter | Qt::AlignLeft,
                   boldMetrics.elidedText(name, Qt::ElideRight, row.width() - scriptWidth - gap));
  painter.setFont(font);
  if (script.isEmpty()) return;
  painter.setPen(script.endsWith(QLatin1String(": on")) ? QColor(140, 224, 150) : QColor(190, 182, 170));
  painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight,
                   metrics.elidedText(script, Qt::ElideMiddle, scriptWidth + 1));
}

void DrawStatusBox(QPainter& painter, const QRectF& box, const QString& name, const QString& script,
                   const QStringList& lines, bool selected, const QFont& font) {
  painter.setPen(QPen(selected ? QColor(255, 214, 92) : QColor(130, 120, 108), selected ? 1.6 : 1));
  painter.setBrush(QColor(24, 22, 20, 225));
  painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
  QFont bold = font;
  bold.setBold(true);
  const double line = (box.height() - 8) / 5;
  QRectF row(box.left() + kBoxPadding, box.top() + 4, box.width() - 2 * kBoxPadding, line);
  painter.setPen(selected ? QColor(255, 226, 140) : QColor(236, 228, 214));
  DrawStatusHead(painter, row, name, script, font, bold);
  for (const QString& text : lines) {
    row.translate(0, line);
    const auto colon = text.indexOf(QLatin1Char(':')) + 1;
    painter.setPen(QColor(190, 182, 170));
    painter.drawText(row, Qt::AlignVCenter | Qt::AlignLeft, text.left(colon));
    painter.setPen(text.startsWith("Won")    ? QColor(140, 224, 150)
                   : text.startsWith("Lost") ? QColor(246, 150, 140)
                                             : QColor(244, 240, 232));
    painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight, text.mid(colon).trimmed());
  }
}

}  // namespace

void DrawStatusBoxes(QPainter& painter, const Game& game, const std::array<QRectF, kSeatRows>& boxes,
                     const QFont& font) {
  painter.setRenderHint(QPainter::Antialiasing);
  for (int seat = 1; seat <= kSeats; ++seat) {
    const QRectF& box = boxes[seat];
    if (box.isEmpty() || !IsOccupied(game.table, seat)) continue;
    const bool selected = game.table.SelectedSeat == seat;
    const QString name = FromCore(game.table.seats[seat].SeatName);
    const QStringList lines = StatusLines(game, seat);
    const QString script = ScriptText(game, seat);
    const QString key = QStringLiteral("status|%1|%2|%3|%4|%5")
                            .arg(name, script, lines.join(QLatin1Char('|')), font.key())
                            .arg(selected);
    DrawKept(painter, key, box,
             [&](QPainter& brush) { DrawStatusBox(brush, box, name, script, lines, selected, font); });
  }
}

}  // namespace tessaryn
