// What is drawn over the felt: marks of the hand, what is pointed at, places at the rail, puck, stacks and
// dice.
#include <QPainter>
#include <cmath>

#include "shell/table/kept_pictures.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "shell/table/stack_arrangement.h"
#include "shell/table/table_painter.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

namespace {

const QColor kBlack(0x0B, 0x0D, 0x0F);
const QColor kCream(0xFF, 0xF7, 0xD6);

struct Overlay {
  QPainter& painter;
  const TableScene& scene;
  const TableLayout& layout;
  const TableView& view;
  const TableColors& colors;
  CheckPictures& pictures;
};

// --- On the felt itself, in table units.

// Whether a place of a side bet is marked, and the figure on it.
bool IsMarked(const TableState& table, const TableMark& mark) {
  switch (mark.Kind) {
    case Progress::kNumber:
      return (table.NumberMarks >> mark.Number & 1) != 0;
    case Progress::kPoint:
      return (table.FireMarks >> mark.Number & 1) != 0;
    case Progress::kRoll:
      return mark.Number < table.FourRollCount;
    default:
      return (mark.Bet == kSharpShooter ? table.SharpShooterCount : table.RideTheLineCount) > 0;
  }
}

void DrawCount(Overlay& over, const TableMark& mark) {
  const TableState& table = over.scene.game->table;
  const int count = mark.Bet == kSharpShooter ? table.SharpShooterCount : table.RideTheLineCount;
  TableLabel label;
  label.Text = QString::number(count);
  label.Box = mark.Box.adjusted(1, 1.2, -1, -1.2);
  label.Colour = Ink::kDark;
  WordLabel(label);
  const double cap = std::min(label.Box.height(), label.Box.width() / label.Wordings[0].Width);
  QTransform place;
  place.translate(label.Box.center().x() - cap * label.Wordings[0].Width / 2,
                  label.Box.center().y() + cap / 2);
  place.scale(cap, cap);
  over.painter.setBrush(over.colors.Ink);
  over.painter.drawPath(place.map(label.Wordings[0].Path));
}

void DrawProgress(Overlay& over) {
  const TableState& table = over.scene.game->table;
  for (const TableMark& mark : over.layout.Marks) {
    if (!IsMarked(table, mark)) continue;
    over.painter.setPen(Qt::NoPen);
    over.painter.setBrush(over.colors.Accent);
    if (mark.Kind == Progress::kPoint)
      over.painter.drawEllipse(mark.Box);
    else
      over.painter.drawRoundedRect(mark.Box, 1.5, 1.5);
    over.painter.setBrush(over.colors.Ink);
    if (mark.Kind == Progress::kNumber) over.painter.drawPath(mark.Label.Outline);
    if (mark.Kind == Progress::kCount) DrawCount(over, mark);
  }
}

template <class Visit>
void ForAreas(const TableLayout& layout, BetId bet, int side, Visit visit) {
  if (bet == 0) return;
  for (const TableArea& area : layout.Areas)
    if (area.Id == bet && (side == 0 || area.Side == 0 || area.Side == side)) visit(area);
}

QColor LitColor(const TableColors& colors, const TableArea& area) {
  const QColor ground = GroundColor(colors, area.Fill);
  const bool onFelt = area.Fill == Ground::kFelt || area.Fill == Ground::kDark;
  // Black, as in high contrast, has no lighter shade.
  return onFelt || ground == QColor(Qt::black) ? colors.Lit : ground.lighter(155);
}

void LightArea(Overlay& over, BetId bet) {
  ForAreas(over.layout, bet, 0, [&](const TableArea& area) {
    DrawArea(over.painter, area, over.colors, LitColor(over.colors, area));
  });
}

void EdgeArea(Overlay& over, BetId bet, int side, const QColor& color, double width) {
  ForAreas(over.layout, bet, side, [&](const TableArea& area) {
    QPen pen(color, width);
    pen.setCosmetic(true);
    over.painter.setPen(pen);
    over.painter.setBrush(Qt::NoBrush);
    over.painter.drawPath(area.Outline);
  });
}

void DrawFeltMarks(Overlay& over) {
  over.painter.save();
  over.painter.setTransform(over.view.Transform(), true);
  const int point = over.scene.game->table.Point;
  const BetId pointBox = IsBoxNumber(point) ? BetOn(kPlace4, point) : kNoBet;
  LightArea(over, pointBox);
  const int hover = AreaOf(over.scene.hoverBet);
  if (hover != pointBox && over.scene.hoverTakes) LightArea(over, hover);
  DrawProgress(over);
  EdgeArea(over, pointBox, 0, Qt::white, 2.6);
  // Seen on light and dark: white within black.
  EdgeArea(over, over.scene.focusBet, over.scene.focusSide, Qt::black, 6);
  EdgeArea(over, over.scene.focusBet, over.scene.focusSide, Qt::white, 2.6);
  EdgeArea(over, AreaOf(over.scene.refusedBet), 0, QColor(0xFF, 0x4B, 0x3E), 3.5);
  over.painter.restore();
}

// --- At the rail.

void DrawOpenPlace(Overlay& over, SeatId seat) {
  const bool hover = over.scene.hoverSeat == seat || over.scene.movingPlayer;
  const double radius = OpenMarkRadius(over.view.Scale());
  const QPointF centre =
      over.view.ToScreen(over.layout.Seats[seat].Rail) + QPointF(over.scene.openShift[seat], 0);
  const QRectF box(centre.x() - radius - 1, centre.y() - radius - 1, 2 * radius + 2, 2 * radius + 2);
  DrawKept(over.painter, hover ? QStringLiteral("open+") : QStringLiteral("open"), box, [&](QPainter& brush) {
    brush.setPen(QPen(hover ? over.colors.Accent : over.colors.Line, hover ? 2 : 1.3));
    brush.setBrush(QColor(0x2A, 0x19, 0x0F));
    brush.drawEllipse(centre, radius, radius);
    brush.setPen(QPen(hover ? over.colors.Accent : over.colors.Letter, 1.8));
    brush.drawLine(centre - QPointF(radius / 2, 0), centre + QPointF(radius / 2, 0));
    brush.drawLine(centre - QPointF(0, radius / 2), centre + QPointF(0, radius / 2));
  });
}

// The places of a player's visible CheckStacks.
void DrawStackPlaces(Overlay& over, SeatId seat) {
  const double radius = kStackReach * over.view.Scale();
  for (int n = 0; n < 4; ++n) {
    const QPointF centre = over.view.ToScreen(VisibleStackPlace(over.layout.Seats[seat], n));
    const QRectF box(centre.x() - radius - 1, centre.y() - radius - 1, 2 * radius + 2, 2 * radius + 2);
    DrawKept(over.painter, QStringLiteral("well"), box, [&](QPainter& brush) {
      brush.setPen(QPen(QColor(233, 227, 200, 70), 1));
      brush.setBrush(QColor(0, 0, 0, 70));
      brush.drawEllipse(centre, radius, radius);
    });
  }
}

// --- Puck, stacks and dice, in screen units.

void DrawLettering(QPainter& painter, const QRectF& box, const QString& text, double cap) {
  QPainterPath path;
  path.addText(0, 0, TableFontOfCap(cap), text);
  const QRectF bounds = path.boundingRect();
  painter.setPen(Qt::NoPen);
  painter.drawPath(path.translated(box.center() - bounds.center()));
}

void DrawPuck(Overlay& over) {
  const bool on = over.scene.game->table.Point != 0;
  const double radius = PuckDiameter(over.view.Scale()) / 2;
  const QColor ink = on ? kBlack : Qt::white;
  const QColor body = on ? Qt::white : kBlack;
  for (int side = 1; side <= 2; ++side) {
    const QPointF from = PuckPlace(over.scene.puckFrom, side);
    const QPointF to = PuckPlace(over.scene.game->table.Point, side);
    // On whole pixels, as its kept picture is.
    const QPointF centre = over.view.ToScreen(from + (to - from) * over.scene.puckShare).toPoint();
    const QRectF box(centre.x() - radius - 3, centre.y() - radius - 3, 2 * radius + 6, 2 * radius + 6);
    DrawKept(over.painter, on ? QStringLiteral("puck on") : QStringLiteral("puck off"), box,
             [&](QPainter& brush) {
               brush.setPen(Qt::NoPen);
               brush.setBrush(QColor(0, 0, 0, 100));
               brush.drawEllipse(centre + QPointF(1, 2), radius, radius);
               brush.setPen(QPen(ink, 1.2));
               brush.setBrush(body);
               brush.drawEllipse(centre, radius, radius);
               brush.setPen(QPen(ink, 1));
               brush.drawEllipse(centre, radius * 0.84, radius * 0.84);
               brush.setBrush(ink);
               const QString text = on ? QStringLiteral("ON") : QStringLiteral("OFF");
               DrawLettering(brush, box, text, radius * (on ? 0.76 : 0.64));
             });
  }
}

void DrawBadge(Overlay& over, const StandingStack& stack) {
  if (stack.Badge.isEmpty()) return;
  const QRectF& box = stack.Badge;
  DrawKept(over.painter, QStringLiteral("badge|") + stack.BadgeText, box, [&](QPainter& brush) {
    brush.setPen(QPen(Qt::white, 1));
    brush.setBrush(kBlack);
    brush.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), box.height() / 2, box.height() / 2);
    brush.setBrush(Qt::white);
    DrawLettering(brush, box, stack.BadgeText, MarkCap(over.view.Scale()));
  });
}

void DrawTab(Overlay& over, const StandingStack& stack) {
  if (stack.Tab.isEmpty()) return;
  const QRectF& box = stack.Tab;
  const bool light = IsBuy(stack.Bet);
  DrawKept(over.painter, QStringLiteral("tab|") + stack.TabText, box, [&](QPainter& brush) {
    brush.setPen(QPen(light ? kBlack : kCream, 1.2));
    brush.setBrush(light ? kCream : kBlack);
    brush.drawRoundedRect(box.adjusted(0.6, 0.6, -0.6, -0.6), 1.5, 1.5);
    brush.setBrush(light ? kBlack : kCream);
    DrawLettering(brush, box, stack.TabText, MarkCap(over.view.Scale()));
  });
}

void DrawCall(Overlay& over, const StandingStack& stack) {
  if (stack.Call.isEmpty()) return;
  const QRectF& box = stack.Call;
  const QString text = stack.CalledOn ? QStringLiteral("ON") : QStringLiteral("OFF");
  DrawKept(over.painter, QStringLiteral("call|") + text, box, [&](QPainter& brush) {
    brush.setPen(QPen(stack.CalledOn ? kBlack : QColor(Qt::white), 1.4));
    brush.setBrush(stack.CalledOn ? QColor(Qt::white) : kBlack);
    brush.drawEllipse(box.adjusted(0.7, 0.7, -0.7, -0.7));
    brush.setBrush(stack.CalledOn ? kBlack : QColor(Qt::white));
    DrawLettering(brush, box, text, LeastCap(over.view.Scale()));
  });
}

void DrawStacks(Overlay& over) {
  const std::vector<StandingStack> stacks = ArrangeStacks(over.scene, over.layout, over.view);
  for (const StandingStack& stack : stacks) {
    over.painter.setOpacity(stack.Faint || stack.Off ? 0.6 : 1);
    // On whole pixels: a picture between them would be smeared, and drawn slowly.
    over.painter.drawPixmap((stack.Base - over.pictures.Origin()).toPoint(),
                            over.pictures.PilePicture(stack.Checks));
  }
  over.painter.setOpacity(1);
  for (const StandingStack& stack : stacks) {
    DrawTab(over, stack);
    DrawCall(over, stack);
    DrawBadge(over, stack);
  }
}

void DrawMoving(Overlay& over) {
  for (const MovingChecks& checks : over.scene.moving) {
    const QPointF at = checks.From + (checks.To - checks.From) * over.scene.movingShare;
    over.painter.drawPixmap((over.view.ToScreen(at) - over.pictures.Origin()).toPoint(),
                            over.pictures.PilePicture(checks.Checks));
  }
}

void DrawDie(Overlay& over, const QColor& body, QPointF place, double turn, int face) {
  const double height = over.scene.dice.Height;
  const double side = DieSide(over.view.Scale()) * (1 + 0.5 * height);
  const QPointF ground = over.view.ToScreen(place);
  QPainter& painter = over.painter;
  painter.save();
  painter.translate(ground + QPointF(side * (0.06 + height), side * (0.12 + 1.2 * height)));
  painter.rotate(turn - over.view.TableAngle);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 95));
  painter.drawRoundedRect(QRectF(-side / 2, -side / 2, side, side), side * 0.2, side * 0.2);
  painter.restore();
  painter.save();
  painter.translate(ground - QPointF(0, side * height));
  painter.rotate(turn - over.view.TableAngle);
  painter.scale(side, side);
  PaintDie(painter, face, body, over.colors.Pips);
  painter.restore();
}

}  // namespace

void DrawChecksAndDice(QPainter& painter, const TableScene& scene, const TableLayout& layout,
                       const TableView& view, const TableColors& colors, CheckPictures& pictures) {
  Overlay over{painter, scene, layout, view, colors, pictures};
  const Game& game = *scene.game;
  painter.setRenderHint(QPainter::Antialiasing);
  DrawFeltMarks(over);
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    IsOccupied(game.table, seat) ? DrawStackPlaces(over, seat) : DrawOpenPlace(over, seat);
  DrawPuck(over);
  pictures.SetSize(CheckDiameter(view.Scale()), painter.device()->devicePixelRatioF(),
                   game.settings.CheckValue, game.settings.UseCentsSymbol);
  if (!scene.hideBets) {
    DrawStacks(over);
    if (scene.piles != nullptr) scene.piles->ForgetOthers();
  }
  DrawMoving(over);
  for (const FallenCheck& check : scene.rain)
    painter.drawPixmap((view.ToScreen(check.Place) - pictures.Origin()).toPoint(),
                       pictures.PilePicture({check.Denomination}));
  if (!scene.showDice) return;
  DrawDie(over, colors.Dice, scene.dice.Die1, scene.dice.Turn1, scene.dice.Face1);
  DrawDie(over, colors.Dice2, scene.dice.Die2, scene.dice.Turn2, scene.dice.Face2);
}

}  // namespace tessaryn
