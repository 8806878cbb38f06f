#include "rules/luck_layout.h"

#include "state/game.h"

namespace tessaryn {
namespace {

void MarkSide(LuckLayout& layout, std::uint32_t side, BetId bet, int total) {
  if (!IsMarkedFor(layout, bet) && !IsMarkedFor(layout, kMakeAll))
    layout.marks &= ~side;
  else
    layout.marks |= (1u << total) & side;
}

int PointAfter(int point, int total) {
  if (point == 0) return IsBoxNumber(total) ? total : 0;
  return total == point || total == 7 ? 0 : point;
}

void CountHand(LuckLayout& layout, int total) {
  const int point = layout.point;
  if (point != 0 && total == point) {
    const std::uint32_t mark = 1u << BoxPosition(point);
    if ((layout.fireMarks & mark) == 0) ++layout.fireCount;
    layout.fireMarks |= mark;
    ++layout.sharpShooter;
    ++layout.rideTheLine;
  }
  if (point == 0 && (total == 7 || total == 11)) ++layout.rideTheLine;
  if (point == 0 || total != 7) return;
  layout.fireMarks = 0;
  layout.fireCount = layout.sharpShooter = layout.rideTheLine = 0;
}

// What the winners leave of the marks.
std::uint32_t MarksLeft(const LuckLayout& layout, std::uint32_t marks) {
  if (AllMarked(marks, kAllMarks)) return 0;
  if (IsMarkedFor(layout, kMakeAll)) return marks;
  for (const std::uint32_t side : {kSmallMarks, kTallMarks})
    if (AllMarked(marks, side)) marks &= ~side;
  return marks;
}

RolledLayout LayoutAfter(const LuckLayout& layout, int total) {
  LuckLayout next = layout;
  if (next.specials) {
    MarkSide(next, kSmallMarks, kAllSmall, total);
    MarkSide(next, kTallMarks, kAllTall, total);
    next.fourRolls = IsMarkedFor(next, kFourRolls) && total != 7 ? next.fourRolls + 1 : 0;
    if (total == 7) next.marks = 0;
  }
  RolledLayout rolled{{}, next.marks, next.fourRolls};
  if (next.specials) {
    next.marks = MarksLeft(next, next.marks);
    if (next.fourRolls == 4) next.fourRolls = 0;
  }
  CountHand(next, total);
  next.pointBefore = layout.point;
  next.point = PointAfter(layout.point, total);
  rolled.after = next;
  return rolled;
}

}  // namespace

LuckLayout LuckLayoutOf(const Game& game, const BetSet& bets) {
  const TableState& table = game.table;
  LuckLayout layout;
  layout.point = table.Point;
  if (!bets.Meets(kHandBets)) return layout;
  layout.pointBefore = table.PointBeforeRoll;
  layout.marks = table.NumberMarks;
  layout.fourRolls = table.FourRollCount;
  layout.fireMarks = table.FireMarks;
  layout.fireCount = table.FireCount;
  layout.sharpShooter = table.SharpShooterCount;
  layout.rideTheLine = table.RideTheLineCount;
  layout.specials = game.settings.SmallTallEnabled;
  for (BetId bet = kAllSmall; bet <= kFourRolls; ++bet)
    if (table.AnyBets.Has(bet)) layout.marked |= static_cast<std::uint8_t>(1u << (bet - kAllSmall));
  return layout;
}

RolledLayouts LayoutsAfter(const LuckLayout& layout) {
  std::array<RolledLayout, 13> byTotal;
  for (int total = 2; total <= 12; ++total) byTotal[total] = LayoutAfter(layout, total);
  RolledLayouts rolled;
  for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome)
    rolled[outcome] = byTotal[kOutcomeDice[outcome].Total()];
  return rolled;
}

}  // namespace tessaryn
