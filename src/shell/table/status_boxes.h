// The players' boxes round the table.
#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>
#include <array>

#include "shell/table/table_layout.h"
#include "shell/table/table_view.h"

class QPainter;

namespace tessaryn {

struct Game;

// The lines of a seat's status box.
QStringList StatusLines(const Game& game, int seat);
// The seat's script and whether it is active, for the head of the box; empty without one.
QString ScriptText(const Game& game, int seat);
// Where the boxes of the occupied seats stand: near their seat, within the window, off each other and off all
// bets, off the rail too as far as there is room. Empty rectangles for empty seats, and where there is no
// room.
std::array<QRectF, kSeatRows> PlaceStatusBoxes(const Game& game, const TableLayout& layout,
                                               const TableView& view, const QFont& font);
void DrawStatusBoxes(QPainter& painter, const Game& game, const std::array<QRectF, kSeatRows>& boxes,
                     const QFont& font);

}  // namespace tessaryn
