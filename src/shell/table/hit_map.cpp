#include "shell/table/hit_map.h"

#include <QPainter>

#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

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
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    for (int n = 0; n < 4; ++n) {
      const int id = seat * kRailIds + kRailStackIds + game.table.seats[seat].VisibleStacks[n];
      painter.setBrush(QColor::fromRgb(static_cast<QRgb>(id)));
      painter.drawEllipse(VisibleStackPlace(layout.Seats[seat], n), kStackReach, kStackReach);
    }
  }
}

BetId MeantBet(const Game& game, int id) {
  const TableState& table = game.table;
  const BetSet& up = table.seats[table.SelectedSeat].SeatBets;
  if (IsDontComeOdds(id) && !up.Has(FlatBetOf(id)) && !up.Has(id)) return FlatBetOf(id);
  if (id == kDontPass && up.Has(kDontPass) && table.Point != 0) return kDontPassOdds;
  // With both up each has its own area.
  if (IsPlace(id) && up.Has(id + 6) && !up.Has(id)) return id + 6;
  return id;
}

int AreaOf(BetId bet) { return bet == kDontPassOdds ? kDontPass : bet; }

Hit HitTest(const QImage& map, QPoint point, const Game& game) {
  if (!map.rect().contains(point)) return {};
  const QRgb color = map.pixel(point) & 0xffffffu;
  if (color == (kNothing & 0xffffffu)) return {};
  const int id = static_cast<int>(color);
  if (id >= kRailIds) return {id / kRailIds, id % kRailIds + kFirstCheckStack - kRailStackIds, id};
  return {game.table.SelectedSeat, MeantBet(game, id), id};
}

}  // namespace tessaryn
