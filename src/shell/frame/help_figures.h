// What the pages of the help tell of the table as it is: payoffs, edges, rules, keys. The pages hold the same
// of a new table, for those who read them elsewhere.
#pragma once

#include <QString>

namespace tessaryn {

struct Game;

// A block of a page, as <!-- figures: place, field --> begins one, in Markdown. Null for a kind, or a name in it,
// that there isn't.
//   figures  bets by their words, or the beginnings of several ("place"), or "all" of them by their edge
//   payoffs  a bet with a table of payoffs of its own, row by row
//   rules    settings, with what they are now
//   houses   the ready houses
//   keys     all commands of the menu
QString LiveHelp(Game& game, const QString& kind, const QString& what);

}  // namespace tessaryn
