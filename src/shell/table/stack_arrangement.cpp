#include "shell/table/stack_arrangement.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <cmath>

#include "base/bet_catalogue.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

namespace {

// Things by where they are, so that only neighbours are compared. Each is in the cell of its middle.
class Neighbours {
 public:
  // reach: the farthest from which two things touch.
  explicit Neighbours(double reach) : reach_(reach) {}
  void Add(QPointF at, int what) {
    const std::size_t cell = Cell(Column(at.x()), Column(at.y()));
    next_.push_back({what, head_[cell]});
    head_[cell] = static_cast<int>(next_.size()) - 1;
  }
  // Visits what may touch a thing with its middle there, until visit returns true; whether it did.
  template <class Visit>
  bool Any(QPointF at, Visit visit) const {
    const int x = Column(at.x());
    const int y = Column(at.y());
    for (int dx = -1; dx <= 1; ++dx)
      for (int dy = -1; dy <= 1; ++dy)
        for (int n = head_[Cell(x + dx, y + dy)]; n >= 0; n = next_[n].second)
          if (visit(next_[n].first)) return true;
    return false;
  }

 private:
  static constexpr int kCells = 64;  // either way; places farther out share cells with those within
  int Column(double x) const { return static_cast<int>(std::floor(x / reach_)); }
  static std::size_t Cell(int x, int y) { return (x & (kCells - 1)) * kCells + (y & (kCells - 1)); }
  double reach_;
  std::vector<int> head_ = std::vector<int>(kCells * kCells, -1);
  std::vector<std::pair<int, int>> next_;
};

double Apart(QPointF a, QPointF b) { return std::hypot(a.x() - b.x(), a.y() - b.y()); }

struct Arranger {
  Arranger(const TableScene& shown, const TableLayout& places, const TableView& seen)
      : scene(shown), layout(places), view(seen) {}
  const TableScene& scene;
  const TableLayout& layout;
  const TableView& view;
  const double diameter = CheckDiameter(view.Scale());
  const double cap = MarkCap(view.Scale());
  const double reach = std::max(72.0, 3 * diameter);
  const QFontMetricsF metrics{TableFontOfCap(cap)};
  std::vector<StandingStack> stacks;
  Neighbours faces{reach};   // by index of the stack
  Neighbours faint{reach};   // of those that bear nothing
  Neighbours placed{reach};  // by index of marks
  std::vector<QRectF> marks;

  int Selected() const { return scene.game->table.SelectedSeat; }
  bool IsHeld(const StandingStack& stack) const {
    return stack.Bet == scene.heldBet && stack.Seat == Selected();
  }
};

// --- The stacks.

CheckPile ChecksOf(const Arranger& table, const StandingStack& stack) {
  const TableScene& scene = table.scene;
  const Settings& settings = scene.game->settings;
  // A high one would cover the numeral above it, and the stacks behind.
  const bool shares = SharesArea(table.layout, scene.game->table, stack.Seat, stack.Bet);
  const int most = shares ? kSharedPileHeight : kPileHeight;
  if (scene.piles == nullptr || settings.AutoArrangeChecks)
    return BreakIntoChecks(stack.Amount, settings.CheckValue, most);
  const CheckPile& lies = scene.piles->PileOf(stack.Seat, stack.Bet, stack.Amount, settings.CheckValue);
  // Of a pile that would stand too high, the upper checks show.
  const auto over = std::max<std::ptrdiff_t>(0, static_cast<std::ptrdiff_t>(lies.size()) - most);
  return {lies.begin() + over, lies.end()};
}

void AddStack(Arranger& table, SeatId seat, BetId bet) {
  const Game& game = *table.scene.game;
  StandingStack stack;
  stack.Seat = seat;
  stack.Bet = bet;
  stack.Amount = game.table.BetAmount(seat, bet);
  stack.Base = table.view.ToScreen(StackPlace(table.layout, game.table, seat, bet));
  if (table.IsHeld(stack)) stack.Base = table.scene.heldAt;
  stack.Checks = ChecksOf(table, stack);
  const auto above = static_cast<double>(stack.Checks.size()) - 1;
  stack.Face = stack.Base - QPointF(0, above * kStackStep * table.diameter);
  const bool working = !IsTableBet(bet) || WorkingValue(game.table.seats[seat].BetWorking, bet) != 0;
  stack.Off = game.table.Point == 0 && !working;
  table.stacks.push_back(std::move(stack));
}

void CollectStacks(Arranger& table) {
  const TableState& state = table.scene.game->table;
  table.stacks.reserve(128);
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(state, seat)) continue;
    state.seats[seat].SeatBets.ForEach([&](BetId bet) { AddStack(table, seat, bet); });
    for (const int stack : state.seats[seat].VisibleStacks)
      if (state.BetAmount(seat, kFirstCheckStack + stack).raw != 0)
        AddStack(table, seat, kFirstCheckStack + stack);
  }
  // From the back to the front, as they cover each other; what is held is in front of all.
  const auto rank = [&](const StandingStack& stack) {
    return table.IsHeld(stack) ? 2 : stack.Seat == table.Selected() ? 1 : 0;
  };
  std::stable_sort(table.stacks.begin(), table.stacks.end(), [&](const auto& a, const auto& b) {
    return rank(a) != rank(b) ? rank(a) < rank(b) : a.Base.y() < b.Base.y();
  });
}

void FindFaint(Arranger& table) {
  constexpr double kTooClose = 0.72;  // of the diameter
  Neighbours all(table.reach);
  for (std::size_t n = 0; n < table.stacks.size(); ++n) all.Add(table.stacks[n].Face, static_cast<int>(n));
  for (StandingStack& stack : table.stacks) {
    if (stack.Seat == table.Selected()) continue;
    // Of those that are drawn over it any may cover its face.
    stack.Faint = all.Any(stack.Face, [&](int n) {
      const StandingStack& other = table.stacks[n];
      return &other > &stack && ApartFromStack(stack.Face, other) < kTooClose * table.diameter;
    });
  }
  for (std::size_t n = 0; n < table.stacks.size(); ++n)
    (table.stacks[n].Faint ? table.faint : table.faces).Add(table.stacks[n].Face, static_cast<int>(n));
}

// --- What they bear.

bool OnFace(const Arranger& table, const Neighbours& faces, const QRectF& mark) {
  const double radius = table.diameter * kFaceShare / 2;
  return faces.Any(mark.center(), [&](int n) {
    const QPointF face = table.stacks[n].Face;
    const QPointF nearest(std::clamp(face.x(), mark.left(), mark.right()),
                          std::clamp(face.y(), mark.top(), mark.bottom()));
    return Apart(face, nearest) < radius;
  });
}

bool IsFree(const Arranger& table, const QRectF& mark, bool coverFaint) {
  if (OnFace(table, table.faces, mark) || (!coverFaint && OnFace(table, table.faint, mark))) return false;
  return !table.placed.Any(mark.center(), [&](int n) { return table.marks[n].intersects(mark); });
}

// The first of the places that is free, from then on taken; rather one that leaves the faint stacks' faces
// free too. Empty for none.
template <std::size_t kPlaces>
QRectF Take(Arranger& table, QSizeF size, const std::array<QPointF, kPlaces>& centres) {
  for (const bool coverFaint : {false, true})
    for (const QPointF& centre : centres) {
      QRectF mark({}, size);
      mark.moveCenter(centre);
      mark.moveTopLeft(QPointF(std::round(mark.left()), std::round(mark.top())));
      if (!IsFree(table, mark, coverFaint)) continue;
      table.marks.push_back(mark);
      table.placed.Add(mark.center(), static_cast<int>(table.marks.size()) - 1);
      return mark;
    }
  return {};
}

// An amount in few figures: "12.5k", "9.99M". Never more than it is.
QString ShortAmount(Currency amount) {
  const double value = std::fabs(amount.ToDouble());
  const double unit = value >= 1e6 ? 1e6 : 1e3;
  const double share = value / unit;
  const double step = share >= 100 ? 1 : share >= 10 ? 10 : 100;
  const QString figure = InHabit(QString::number(std::floor(share * step + 1e-9) / step));
  return (amount.raw < 0 ? QStringLiteral("-") : QString()) + figure +
         (unit == 1e6 ? QStringLiteral("M") : QStringLiteral("k"));
}

void TakeBadge(Arranger& table, StandingStack& stack, const QString& text) {
  const double height = std::round(table.cap + 6);
  const QSizeF size(std::max(height, std::ceil(table.metrics.horizontalAdvance(text) + 7)), height);
  const double radius = table.diameter / 2;
  const double disc = radius * kFaceShare;
  const QPointF base = stack.Base;
  const double below = std::max(base.y() + 0.62 * radius, stack.Face.y() + disc + 1) + height / 2;
  const QPointF under(base.x(), below);
  const QPointF right(base.x() + disc + 2 + size.width() / 2, base.y() + 0.3 * radius);
  const QPointF left(base.x() - disc - 2 - size.width() / 2, base.y() + 0.3 * radius);
  const QPointF over(base.x(), stack.Face.y() - disc - 2 - height / 2);
  const QPointF aside(size.width() / 2, 0);
  const QPointF lower(0, height * 0.6);
  const std::array<QPointF, 10> places =
      stack.Bet == kPassLineOdds
          ? std::array<QPointF, 10>{right,        left, over, under, right - lower,
                                    left - lower, over, over, over,  over}
          : std::array<QPointF, 10>{under,         right,        left, under + aside, under - aside,
                                    right + lower, left + lower, over, over + aside,  over - aside};
  stack.Badge = Take(table, size, places);
  if (!stack.Badge.isEmpty()) stack.BadgeText = text;
}

void PlaceBadge(Arranger& table, StandingStack& stack) {
  if (stack.Checks.size() < 2 && !table.scene.showAmounts) return;
  TakeBadge(table, stack, TableAmountText(*table.scene.game, stack.Amount));
  const bool thousands = std::fabs(stack.Amount.ToDouble()) >= 1000;
  if (stack.Badge.isEmpty() && thousands) TakeBadge(table, stack, ShortAmount(stack.Amount));
}

void PlaceTab(Arranger& table, StandingStack& stack) {
  const QString text = IsBuy(stack.Bet)       ? QStringLiteral("BUY")
                       : IsLay(stack.Bet)     ? QStringLiteral("LAY")
                       : stack.Amount.raw < 0 ? QStringLiteral("-")
                                              : QString();
  if (text.isEmpty()) return;
  const double height = std::round(table.cap + 5);
  const double width = std::ceil(table.metrics.horizontalAdvance(text) + 6);
  const double radius = table.diameter / 2;
  const double high = stack.Face.y() - radius - height / 2;
  const double beside = radius * kFaceShare + 2 + width / 2;
  const QPointF face = stack.Face;
  stack.Tab = Take(
      table, QSizeF(width, height),
      std::array<QPointF, 5>{QPointF(face.x() + 2 - width / 2, high), QPointF(face.x() - 2 + width / 2, high),
                             QPointF(face.x() - beside, face.y() - radius * 0.6),
                             QPointF(face.x() + beside, face.y() - radius * 0.6),
                             QPointF(face.x() - beside, face.y() + radius * 0.6)});
  if (!stack.Tab.isEmpty()) stack.TabText = text;
}

void PlaceCall(Arranger& table, StandingStack& stack) {
  if (!IsTableBet(stack.Bet)) return;
  const int working = WorkingValue(table.scene.game->table.seats[stack.Seat].BetWorking, stack.Bet);
  if (working != 2 && working != -1) return;
  const double width = std::ceil(table.metrics.horizontalAdvance(QStringLiteral("OFF")) + 6);
  const double radius = table.diameter / 2;
  const double out = radius * kFaceShare + 1 + width / 2;
  const QPointF face = stack.Face;
  const double high = face.y() - radius - width / 2 + 3;
  stack.Call = Take(
      table, QSizeF(width, width),
      std::array<QPointF, 5>{QPointF(face.x() + 4 + width / 2, high), QPointF(face.x() - 4 - width / 2, high),
                             QPointF(face.x() + out, face.y() - radius * 0.5),
                             QPointF(face.x() - out, face.y() - radius * 0.5),
                             QPointF(face.x() + out, face.y() + radius * 0.5)});
  stack.CalledOn = working == 2;
}

}  // namespace

double ApartFromStack(QPointF point, const StandingStack& stack) {
  const double y = std::clamp(point.y(), std::min(stack.Face.y(), stack.Base.y()), stack.Base.y());
  return Apart(point, {stack.Base.x(), y});
}

double MarkCap(double scale) { return std::clamp(8.25 * scale, LeastCap(scale), 14.0); }

std::vector<StandingStack> ArrangeStacks(const TableScene& scene, const TableLayout& layout,
                                         const TableView& view) {
  Arranger table{scene, layout, view};
  CollectStacks(table);
  FindFaint(table);
  // The selected player's first: where there is no room for all, theirs are there.
  for (const bool selected : {true, false})
    for (StandingStack& stack : table.stacks) {
      if (stack.Faint || (stack.Seat == table.Selected()) != selected) continue;
      PlaceTab(table, stack);
      PlaceCall(table, stack);
      PlaceBadge(table, stack);
    }
  return std::move(table.stacks);
}

}  // namespace tessaryn
