// The table as screen readers and other tools of the desktop see it: every area of the felt, every stack of
// checks, every place at the rail and what the last roll did, each with a name, a role, a value and what can
// be done with it.
#pragma once

#include <QString>

namespace tessaryn {

struct Game;
class TableWidget;

// Tables are seen so from here on.
void MakeTablesAccessible();
// The keyboard's focus has gone to another area, or left them.
void TellAreaFocus(TableWidget& table);
// What an area or stack says may be another after a change.
void TellTableChanged(TableWidget& table);
// Says once what the last roll did, if that has not been said: "Roll 37: 6 (4-2), point stays 8. Ann +14, Bo
// -10". Not in a Turbo-Roll.
void AnnounceRoll(TableWidget& table, const Game& game);
QString RollAnnouncement(const Game& game);

}  // namespace tessaryn
