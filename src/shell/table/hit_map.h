// The hidden map of the bets, painted from the same outlines as the table, and what a point on it means.
#pragma once

#include <QImage>
#include <QPoint>

#include "shell/table/table_layout.h"
#include "shell/table/table_view.h"

namespace tessaryn {

struct Game;

// White in the hit map: nothing there.
inline constexpr QRgb kNothing = 0xffffffffu;

// The hit map: each area filled, without blending, in a colour whose value is its id; visible stacks of
// occupied seats as seat * 1000 + 10 + stack. map has the window's size.
void DrawTableHotspots(QImage& map, const TableLayout& layout, const TableView& view, const Game& game);
// What lies under a point. An area is the selected seat's, as that seat means it: odds or their flat bet,
// Place or Buy. A stack at the rail is its own seat's CheckStack. Bet 0: nothing.
struct Hit {
  SeatId Seat = 0;
  BetId Bet = 0;
  int Area = 0;  // the area's own id
};
Hit HitTest(const QImage& map, QPoint point, const Game& game);
// The same for an area's id, without a map.
BetId MeantBet(const Game& game, int id);
// The id of the area in which a bet's checks stand.
int AreaOf(BetId bet);

}  // namespace tessaryn
