#include "shell/table/table_painter.h"

#include <QLocale>
#include <QPainter>
#include <QPixmapCache>
#include <QStringList>
#include <cmath>
#include <filesystem>
#include <thread>
#include <utility>
#include <vector>

#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

namespace {

QColor InkColor(const TableColors& colors, Ink ink) {
  switch (ink) {
    case Ink::kLine:
      return colors.Line;
    case Ink::kAccent:
      return colors.Accent;
    case Ink::kSoft:
      return colors.Soft;
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
  QLinearGradient wood(0, -23, 0, 536);
  wood.setColorAt(0, colors.Rail.lighter(135));
  wood.setColorAt(0.5, colors.Rail);
  wood.setColorAt(1, colors.Rail.darker(135));
  painter.setPen(QPen(colors.Rail.darker(260), 2));
  painter.setBrush(wood);
  painter.drawPath(RailOutline());
  // The padded armrest, and the dark wall down to the felt.
  QTransform shrink;
  shrink.translate(kTableMiddle, 258);
  shrink.scale(0.985, 0.968);
  shrink.translate(-kTableMiddle, -258);
  painter.setPen(QPen(colors.RailPad.lighter(150), 1.2));
  painter.setBrush(colors.RailPad);
  painter.drawPath(shrink.map(RailOutline()));
  painter.setPen(QPen(colors.Rail.darker(220), 4));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(FeltOutline());
}

void DrawFelt(QPainter& painter, const TableColors& colors) {
  QRadialGradient light(QPointF(kTableMiddle, 240), 660);
  light.setColorAt(0, colors.Felt.lighter(100 + colors.Spotlight * 18 / 50));
  light.setColorAt(0.7, colors.Felt);
  light.setColorAt(1, colors.Felt.darker(100 + colors.Spotlight * 22 / 50));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawPath(FeltOutline());
  DrawWeave(painter, colors);
}

// The dealers' bank: racks of checks at the middle of their side.
void DrawBank(QPainter& painter, const TableColors& colors) {
  const QRectF rack(478, -17, 291, 36);
  painter.setPen(QPen(colors.Rail.darker(240), 1));
  painter.setBrush(colors.RailPad.darker(150));
  painter.drawRoundedRect(rack, 4, 4);
  const QColor rows[5] = {{236, 236, 232}, {190, 30, 38}, {18, 112, 60}, {40, 40, 46}, {106, 44, 144}};
  constexpr int kTubes = 30;
  const double step = (rack.width() - 8) / kTubes;
  for (int n = 0; n < kTubes; ++n) {
    const QColor color = rows[(n / 3) % 5];
    painter.setPen(QPen(color.darker(150), 0.5));
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(rack.left() + 4 + n * step, rack.top() + 4, step - 1, rack.height() - 8),
                            2, 2);
    painter.setPen(QPen(color.darker(128), 0.4));
    for (double y = rack.top() + 6; y < rack.bottom() - 5; y += 2.4)
      painter.drawLine(QPointF(rack.left() + 4.5 + n * step, y),
                       QPointF(rack.left() + 2.5 + (n + 1) * step, y));
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
    PaintDie(painter, first ? label.Die1 : label.Die2, QColor(246, 243, 232), QColor(20, 40, 30));
    painter.restore();
  }
}

// Whether an area is set off from the felt, and how.
QColor AreaFill(const TableArea& area, const TableColors& colors) {
  if (area.Id == kPassLine || area.Id == kCome || area.Id == kField) return colors.Felt.darker(112);
  if (IsPlace(area.Id)) return colors.Felt.darker(128);
  if (area.Side == 0) return QColor(120, 22, 34);
  if (FamilyRowOf(area.Id).felt == Felt::kSpecials) return QColor(22, 62, 104);
  return Qt::transparent;
}

void DrawAreas(QPainter& painter, const TableLayout& layout, const TableColors& colors) {
  const QTransform toDevice = painter.combinedTransform();
  const QRectF device(0, 0, painter.device()->width(), painter.device()->height());
  std::vector<const TableArea*> seen;
  constexpr double kLine = 1.1;
  for (const TableArea& area : layout.Areas) {
    const QRectF room = area.Outline.boundingRect().adjusted(-kLine, -kLine, kLine, kLine);
    if (toDevice.mapRect(room).intersects(device)) seen.push_back(&area);
  }
  for (const TableArea* area : seen) {
    painter.setPen(QPen(colors.Line, kLine));
    painter.setBrush(AreaFill(*area, colors));
    painter.drawPath(area->Outline);
  }
  for (const TableArea* area : seen)
    for (const TableLabel& label : area->Labels) DrawLabel(painter, label, colors);
}

// The part of the picture from a column of its pixels on, as wide as part is.
void DrawTablePart(QImage& part, int column, const TableLayout& layout, const TableView& view,
                   const TableColors& colors) {
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
  TableColors colors;
  colors.Room = QColor::fromRgb(looks.Room);
  colors.Felt = QColor::fromRgb(looks.Cloth);
  colors.Rail = QColor::fromRgb(looks.Rail);
  colors.RailPad = looks.Rail == Looks().Rail ? colors.RailPad : colors.Rail.darker(170);
  colors.Letter = QColor::fromRgb(looks.Lettering);
  if (looks.Lettering != Looks().Lettering) colors.Line = colors.Soft = colors.Letter;
  colors.Dice = QColor::fromRgb(looks.Dice[0]);
  colors.Dice2 = QColor::fromRgb(looks.Dice[1]);
  colors.Pips = QColor::fromRgb(looks.Pips);
  colors.Texture = std::clamp(looks.Texture, 0, 100);
  colors.Spotlight = std::clamp(looks.Spotlight, 0, 100);
  return colors;
}

void DrawTable(QImage& picture, const TableDrawing& drawing, const TableView& view,
               const TableColors& colors) {
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

// --- The hit map.

namespace {
// Ids from 1000 up are stacks at the rail: seat * 1000 + 10 + the stack's number.
constexpr int kRailIds = 1000;
constexpr int kRailStackIds = 10;
}  // namespace

void DrawTableHotspots(QImage& map, const TableLayout& layout, const TableView& view, const Game& game) {
  map.fill(kNothing);
  QPainter painter(&map);
  painter.setTransform(view.Transform());
  painter.setPen(Qt::NoPen);
  for (const TableArea& area : layout.Areas) {
    painter.setBrush(QColor::fromRgb(static_cast<QRgb>(area.Id)));
    painter.drawPath(area.Outline);
  }
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    for (int n = 0; n < 4; ++n) {
      const int id = seat * kRailIds + kRailStackIds + game.table.seats[seat].VisibleStacks[n];
      painter.setBrush(QColor::fromRgb(static_cast<QRgb>(id)));
      painter.drawEllipse(VisibleStackPlace(layout.Seats[seat], n), 7, 7);
    }
  }
}

int MeantBet(const Game& game, int id) {
  const TableState& table = game.table;
  const BetSet& up = table.seats[table.SelectedSeat].SeatBets;
  if (IsDontComeOdds(id) && !up.Has(FlatBetOf(id)) && !up.Has(id)) return FlatBetOf(id);
  if (id == kDontPass && up.Has(kDontPass) && table.Point != 0) return kDontPassOdds;
  // With both up each has its own area.
  if (IsPlace(id) && up.Has(id + 6) && !up.Has(id)) return id + 6;
  return id;
}

int AreaOf(int bet) { return bet == kDontPassOdds ? static_cast<int>(kDontPass) : bet; }

Hit HitTest(const QImage& map, QPoint point, const Game& game) {
  if (!map.rect().contains(point)) return {};
  const QRgb color = map.pixel(point) & 0xffffffu;
  if (color == (kNothing & 0xffffffu)) return {};
  const int id = static_cast<int>(color);
  if (id >= kRailIds) return {id / kRailIds, id % kRailIds + kFirstCheckStack - kRailStackIds, id};
  return {game.table.SelectedSeat, MeantBet(game, id), id};
}

// --- Checks.

CheckPile BreakIntoChecks(Currency amount, const Currency (&checkValue)[6], int most) {
  CheckPile pile;
  Currency rest = Abs(amount);
  for (int n = 5; n >= 1; --n) {
    if (checkValue[n].raw <= 0) continue;
    std::int64_t count = rest.raw / checkValue[n].raw;
    rest = Currency::FromRaw(rest.raw % checkValue[n].raw);
    for (; count > 0 && static_cast<int>(pile.size()) < most; --count) pile.push_back(n);
  }
  if (rest.raw > 0) {
    if (static_cast<int>(pile.size()) >= most) pile.pop_back();
    pile.push_back(6);
  }
  return pile;
}

const CheckPile& BetPiles::PileOf(int seat, int bet, Currency amount, const Currency (&checkValue)[6]) {
  constexpr int kMostKept = 40;  // more are changed for the fewest
  Kept& kept = piles_[{seat, bet}];
  kept.up = true;
  const auto changeAll = [&] {
    kept.pile = BreakIntoChecks(amount, checkValue, kMostKept);
    std::copy(checkValue, checkValue + 6, kept.values.begin());
  };
  const Currency change = amount - kept.amount;
  const bool sameChecks = std::equal(kept.values.begin(), kept.values.end(), checkValue);
  if (!sameChecks || kept.amount <= kZero || amount <= kZero) {
    changeAll();
  } else if (change > kZero) {
    const CheckPile added = BreakIntoChecks(change, checkValue, kMostKept);
    kept.pile.insert(kept.pile.end(), added.begin(), added.end());
    if (kept.pile.size() > kMostKept) changeAll();
  } else if (change < kZero) {
    Currency rest = -change;
    CheckPile pile = kept.pile;
    while (!pile.empty() && pile.back() <= 5 && checkValue[pile.back()] <= rest) {
      rest -= checkValue[pile.back()];
      pile.pop_back();
    }
    if (rest == kZero)
      kept.pile = pile;
    else
      changeAll();
  }
  kept.amount = amount;
  return kept.pile;
}

void BetPiles::ForgetOthers() {
  for (auto each = piles_.begin(); each != piles_.end();)
    each = std::exchange(each->second.up, false) ? std::next(each) : piles_.erase(each);
}

namespace {

constexpr int kPileHeight = 10;
constexpr double kStackStep = 0.15;      // of a check's diameter, from one check to the next above it
constexpr std::size_t kMostPiles = 600;  // kept at a time

}  // namespace

void CheckPictures::SetSize(double diameter, double devicePixelRatio, const Currency (&checkValue)[6],
                            bool centsSymbol) {
  if (diameter == diameter_ && devicePixelRatio == ratio_ && centsSymbol == centsSymbol_ &&
      std::equal(values_.begin(), values_.end(), checkValue))
    return;
  diameter_ = diameter;
  ratio_ = devicePixelRatio;
  centsSymbol_ = centsSymbol;
  std::copy(checkValue, checkValue + 6, values_.begin());
  Forget();
}

void CheckPictures::Forget() {
  pictures_.fill({});
  piles_.clear();
}

const QPixmap& CheckPictures::CheckPictureOf(int denomination) {
  QPixmap& picture = pictures_[denomination];
  if (picture.isNull()) {
    Currency values[6];
    std::copy(values_.begin(), values_.end(), values);
    picture = CheckPicture(denomination, CheckText(denomination, values, centsSymbol_),
                           std::max(4, static_cast<int>(std::lround(diameter_))), ratio_);
  }
  return picture;
}

QPointF CheckPictures::Origin() const {
  return {diameter_ / 2, diameter_ / 2 + kPileHeight * kStackStep * diameter_};
}

const QPixmap& CheckPictures::PilePicture(const CheckPile& pile) {
  if (piles_.size() > kMostPiles) piles_.clear();
  QPixmap& picture = piles_[pile];
  if (!picture.isNull()) return picture;
  const QSizeF size(diameter_ * 1.2, Origin().y() + diameter_ * 0.75);
  picture = QPixmap((size * ratio_).toSize());
  picture.setDevicePixelRatio(ratio_);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 70));
  painter.drawEllipse(Origin() + QPointF(diameter_ * 0.08, diameter_ * 0.1), diameter_ / 2, diameter_ / 2);
  for (std::size_t n = 0; n < pile.size(); ++n) {
    const double up = static_cast<double>(n) * diameter_ * kStackStep;
    painter.drawPixmap(Origin() - QPointF(diameter_ / 2, diameter_ / 2 + up), CheckPictureOf(pile[n]));
  }
  return picture;
}

namespace {

// What costs more to draw than to keep is drawn once for a key, its size and the screen, and copied from then
// on. box in screen units; paint draws into it. What is too large to keep is drawn each time.
template <class Paint>
void DrawKept(QPainter& painter, const QString& key, const QRectF& box, Paint paint) {
  constexpr double kMostPixels = 300'000;
  const double ratio = painter.device()->devicePixelRatioF();
  const QSize pixels(static_cast<int>(std::ceil(box.width() * ratio)) + 1,
                     static_cast<int>(std::ceil(box.height() * ratio)) + 1);
  if (static_cast<double>(pixels.width()) * pixels.height() > kMostPixels) return paint(painter);
  const QString whole = QStringLiteral("%1|%2|%3x%4").arg(key).arg(ratio).arg(box.width()).arg(box.height());
  QPixmap picture;
  if (!QPixmapCache::find(whole, &picture)) {
    picture = QPixmap(pixels);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter inner(&picture);
    inner.setRenderHint(QPainter::Antialiasing);
    inner.translate(-box.topLeft());
    paint(inner);
    inner.end();
    QPixmapCache::insert(whole, picture);
  }
  painter.drawPixmap(box.topLeft().toPoint(), picture);
}

// Short lettering on a small rounded plate, in screen units.
void DrawPlate(QPainter& painter, QPointF centre, double height, const QString& text, QColor plate,
               QColor ink) {
  const QFont font = TableFont(true, height * 0.8);
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance(text) + height * 0.5;
  const QRectF box(centre.x() - width / 2, centre.y() - height / 2, width, height);
  painter.setPen(QPen(ink, 0.6));
  painter.setBrush(plate);
  painter.drawRoundedRect(box, height * 0.3, height * 0.3);
  painter.setFont(font);
  painter.setPen(ink);
  painter.drawText(box, Qt::AlignCenter, text);
}

struct Pile {
  QPointF base;  // on the screen
  int seat;
  int bet;
  Currency amount;
};

std::vector<Pile> CollectPiles(const TableScene& scene, const TableLayout& layout,
                               const QTransform& toScreen) {
  std::vector<Pile> piles;
  const TableState& table = scene.game->table;
  const auto isHeld = [&](int seat, int bet) { return bet == scene.heldBet && seat == table.SelectedSeat; };
  const auto add = [&](int seat, int bet) {
    const QPointF stands(layout.CheckX(seat, bet), layout.CheckY(seat, bet));
    piles.push_back(
        {isHeld(seat, bet) ? scene.heldAt : toScreen.map(stands), seat, bet, table.BetAmount(seat, bet)});
  };
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(table, seat)) continue;
    table.seats[seat].SeatBets.ForEach([&](int bet) { add(seat, bet); });
    for (const int stack : table.seats[seat].VisibleStacks)
      if (table.BetAmount(seat, kFirstCheckStack + stack).raw != 0) add(seat, kFirstCheckStack + stack);
  }
  // From the back to the front, as they cover each other; what is held is in front of all.
  std::stable_sort(piles.begin(), piles.end(), [&](const Pile& a, const Pile& b) {
    const bool heldA = isHeld(a.seat, a.bet);
    const bool heldB = isHeld(b.seat, b.bet);
    return heldA != heldB ? heldB : a.base.y() < b.base.y();
  });
  return piles;
}

// What a pile bears: its kind, and a call that differs from the table's normal state.
QString PileMarker(const Game& game, int seat, int bet) {
  if (!IsTableBet(bet)) return game.table.BetAmount(seat, bet).raw < 0 ? "-" : QString();
  const int working = WorkingValue(game.table.seats[seat].BetWorking, bet);
  if (working == 2) return "ON";
  if (working == -1) return "OFF";
  if (IsBuy(bet)) return "BUY";
  if (IsLay(bet)) return "LAY";
  return {};
}

struct CheckBrush {
  QPainter& painter;
  const TableScene& scene;
  CheckPictures& pictures;
  double diameter;  // screen units
};

void DrawPile(CheckBrush& brush, const Pile& pile) {
  const Game& game = *brush.scene.game;
  CheckPile checks = BreakIntoChecks(pile.amount, game.settings.CheckValue, kPileHeight);
  if (brush.scene.piles != nullptr && !game.settings.AutoArrangeChecks) {
    checks = brush.scene.piles->PileOf(pile.seat, pile.bet, pile.amount, game.settings.CheckValue);
    // Of a pile that would stand too high, the upper checks show.
    if (checks.size() > kPileHeight) checks.erase(checks.begin(), checks.end() - kPileHeight);
  }
  const double radius = brush.diameter / 2;
  // On whole pixels: a picture between them would be smeared, and drawn slowly.
  const QPointF corner = pile.base - brush.pictures.Origin();
  brush.painter.drawPixmap(corner.toPoint(), brush.pictures.PilePicture(checks));
  const QPointF top =
      pile.base - QPointF(0, static_cast<double>(checks.size() - 1) * brush.diameter * kStackStep);
  const QString marker = PileMarker(game, pile.seat, pile.bet);
  const double plate = std::max(7.0, brush.diameter * 0.52);
  if (!marker.isEmpty())
    DrawPlate(brush.painter, top, plate, marker, marker == "OFF" ? QColor(20, 20, 22) : QColor(250, 250, 246),
              marker == "OFF" ? QColor(250, 250, 246) : QColor(20, 20, 22));
  if (brush.scene.showAmounts)
    DrawPlate(brush.painter, pile.base + QPointF(0, radius + plate * 0.5), std::max(9.0, plate),
              TableAmountText(game, pile.amount), QColor(255, 252, 225), QColor(40, 30, 10));
}

void DrawPuck(QPainter& painter, const Game& game, const TableView& view) {
  const bool on = game.table.Point != 0;
  const double radius = 9.5 * view.Scale();
  for (int side = 1; side <= 2; ++side) {
    const QPointF centre = view.ToScreen(PuckPlace(game.table.Point, side));
    painter.setPen(QPen(on ? QColor(20, 20, 20) : QColor(235, 235, 235), radius * 0.14));
    painter.setBrush(on ? QColor(250, 250, 248) : QColor(20, 20, 22));
    painter.drawEllipse(centre, radius, radius);
    painter.setFont(TableFont(true, radius * 0.8));
    painter.setPen(on ? QColor(20, 20, 22) : QColor(240, 240, 240));
    painter.drawText(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius),
                     Qt::AlignCenter, on ? "ON" : "OFF");
  }
}

constexpr double kDieUnits = 20;

void DrawDie(QPainter& painter, const TableView& view, const QColor& body, const QColor& pips, QPointF place,
             double turn, double height, int face) {
  const double side = kDieUnits * view.Scale() * (1 + 0.5 * height);
  const QPointF ground = view.ToScreen(place);
  painter.save();
  painter.translate(ground + QPointF(side * (0.10 + height), side * (0.14 + 1.2 * height)));
  painter.rotate(turn - view.TableAngle);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 80));
  painter.drawRoundedRect(QRectF(-side / 2, -side / 2, side, side), side * 0.16, side * 0.16);
  painter.restore();
  painter.save();
  painter.translate(ground - QPointF(0, side * height));
  painter.rotate(turn - view.TableAngle);
  painter.scale(side, side);
  PaintDie(painter, face, body, pips);
  painter.restore();
}

// The angle at which lettering along a direction can be read.
double ReadableAngle(QPointF direction) {
  double degrees = std::atan2(direction.y(), direction.x()) * 180 / 3.141592653589793;
  if (degrees > 90) degrees -= 180;
  if (degrees <= -90) degrees += 180;
  return degrees;
}

constexpr double kOpenPlaceRadius = 10;

void DrawOpenPlace(QPainter& painter, const TableScene& scene, const SeatPlace& place, const TableView& view,
                   int seat) {
  const bool hover = scene.hoverSeat == seat;
  const QPointF centre = view.ToScreen(place.Rail);
  const double radius = kOpenPlaceRadius * view.Scale();
  const QColor ink = hover || scene.movingPlayer ? QColor(255, 220, 120) : QColor(200, 180, 160, 150);
  painter.setPen(QPen(ink, std::max(1.0, radius * 0.12)));
  painter.setBrush(hover ? QColor(255, 220, 120, 50) : QColor(0, 0, 0, 40));
  painter.drawEllipse(centre, radius, radius);
  painter.drawLine(centre - QPointF(radius * 0.45, 0), centre + QPointF(radius * 0.45, 0));
  painter.drawLine(centre - QPointF(0, radius * 0.45), centre + QPointF(0, radius * 0.45));
}

void DrawNamePlate(QPainter& painter, const Game& game, const SeatPlace& place, const TableView& view,
                   int seat) {
  const double scale = view.Scale();
  const QPointF along = view.ToScreen(place.Rail + place.Along) - view.ToScreen(place.Rail);
  const QPointF centre = view.ToScreen(place.Rail + place.Out * 9);
  const double angle = ReadableAngle(along);
  const bool selected = game.table.SelectedSeat == seat;
  const bool shooter = game.table.ShooterSeat == seat;
  const QString name = FromCore(game.table.seats[seat].SeatName);
  const QRectF plate(-44 * scale, -7 * scale, 88 * scale, 14 * scale);
  QTransform turn;
  turn.rotate(angle);
  const QRectF box = turn.mapRect(plate.adjusted(-scale, -scale, scale, scale)).translated(centre);
  const QString key =
      QStringLiteral("name|%1|%2%3|%4|%5").arg(name).arg(selected).arg(shooter).arg(angle).arg(scale);
  DrawKept(painter, key, box, [&](QPainter& brush) {
    brush.save();
    brush.translate(centre);
    brush.rotate(angle);
    brush.setPen(QPen(selected ? QColor(255, 214, 92) : QColor(120, 92, 60), std::max(1.0, scale)));
    brush.setBrush(selected ? QColor(86, 58, 20) : QColor(40, 26, 18));
    brush.drawRoundedRect(plate, 4 * scale, 4 * scale);
    double left = plate.left() + 3 * scale;
    if (shooter) {
      brush.save();
      brush.translate(left + 6 * scale, 0);
      brush.scale(9 * scale, 9 * scale);
      PaintDie(brush, 5, kDiceRed, Qt::white);
      brush.restore();
      left += 13 * scale;
    }
    brush.setFont(TableFont(selected, 9.5 * scale));
    brush.setPen(selected ? QColor(255, 236, 180) : QColor(232, 222, 206));
    const QRectF room(left, plate.top(), plate.right() - left - 2 * scale, plate.height());
    brush.drawText(room, Qt::AlignCenter,
                   brush.fontMetrics().elidedText(name, Qt::ElideRight, static_cast<int>(room.width())));
    brush.restore();
  });
}

void DrawSeat(QPainter& painter, const TableScene& scene, const TableLayout& layout, const TableView& view,
              int seat) {
  const Game& game = *scene.game;
  const SeatPlace& place = layout.Seats[seat];
  if (!IsOccupied(game.table, seat)) return DrawOpenPlace(painter, scene, place, view, seat);
  DrawNamePlate(painter, game, place, view, seat);
  const double radius = kCheckUnits / 2 * view.Scale();
  for (int n = 0; n < 4; ++n) {
    const QPointF centre = view.ToScreen(VisibleStackPlace(place, n));
    const QRectF box(centre.x() - radius - 1, centre.y() - radius - 1, 2 * radius + 2, 2 * radius + 2);
    DrawKept(painter, "well", box, [&](QPainter& brush) {
      brush.setPen(QPen(QColor(200, 180, 150, 110), 1));
      brush.setBrush(QColor(0, 0, 0, 70));
      brush.drawEllipse(centre, radius, radius);
    });
  }
}

void DrawAreaMark(QPainter& painter, const TableLayout& layout, const TableView& view, int bet, int side,
                  const QPen& pen, const QColor& fill) {
  if (bet == 0) return;
  painter.save();
  painter.setTransform(view.Transform(), true);
  for (const TableArea& area : layout.Areas) {
    if (area.Id != bet || (side != 0 && area.Side != 0 && area.Side != side)) continue;
    painter.setPen(pen);
    painter.setBrush(fill);
    painter.drawPath(area.Outline);
  }
  painter.restore();
}

}  // namespace

void DrawChecksAndDice(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                       const TableView& view, const TableColors& colors, CheckPictures& pictures) {
  painter.setRenderHint(QPainter::Antialiasing);
  DrawAreaMark(painter, layout, view, scene.hoverBet, 0, Qt::NoPen, QColor(255, 255, 255, 42));
  DrawAreaMark(painter, layout, view, scene.focusBet, scene.focusSide, QPen(QColor(255, 226, 90), 2.2),
               QColor(255, 226, 90, 30));
  for (int seat = 1; seat <= kSeats; ++seat) DrawSeat(painter, scene, layout, view, seat);
  DrawPuck(painter, *scene.game, view);
  CheckBrush brush{painter, scene, pictures, kCheckUnits * view.Scale()};
  pictures.SetSize(brush.diameter, painter.device()->devicePixelRatioF(), scene.game->settings.CheckValue,
                   scene.game->settings.UseCentsSymbol);
  if (!scene.hideBets) {
    for (const Pile& pile : CollectPiles(scene, layout, view.Transform())) DrawPile(brush, pile);
    if (scene.piles != nullptr) scene.piles->ForgetOthers();
  }
  for (const FallenCheck& check : scene.rain)
    painter.drawPixmap((view.ToScreen(check.Place) - pictures.Origin()).toPoint(),
                       pictures.PilePicture({check.Denomination}));
  if (!scene.showDice) return;
  DrawDie(painter, view, colors.Dice, colors.Pips, scene.dice.Die1, scene.dice.Turn1, scene.dice.Height,
          scene.dice.Face1);
  DrawDie(painter, view, colors.Dice2, colors.Pips, scene.dice.Die2, scene.dice.Turn2, scene.dice.Height,
          scene.dice.Face2);
}

// --- Status boxes.

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
    if (!IsOccupied(game.table, seat)) path.addEllipse(place.Rail, kOpenPlaceRadius, kOpenPlaceRadius);
    for (int n = 0; n < 4 && IsOccupied(game.table, seat); ++n)
      path.addEllipse(VisibleStackPlace(place, n), kCheckUnits / 2, kCheckUnits / 2);
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
