// The lines that stand above what is printed.
#pragma once

#include <QStringList>

namespace tessaryn {

struct Game;

// "Tessaryn Bankroll" and the date.
QStringList PrintHeading(const Game& game, const QString& what);
// "Game file:  friday.crp", "Game file:  untitled"
QString GameFileLine(const Game& game);
// "Player:  Ann"
QString PlayerLine(const Game& game, SeatId seat);

}  // namespace tessaryn
