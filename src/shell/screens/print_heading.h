// The lines that stand above what is printed.
#pragma once

#include <QStringList>

namespace tessaryn {

struct Game;

// "Tessaryn Bankroll", the date, "Game file:  friday.crp" or "Game file:  untitled", "Player:  Ann". The last
// is left out for seat 0.
QStringList PrintHeading(const Game& game, const QString& what, int seat);

}  // namespace tessaryn
