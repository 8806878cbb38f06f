// A table that something has happened at.
#pragma once

#include "autobet/run_helpers.h"

namespace tessaryn::script_test {

// A table with a history that can be counted by hand. Rolls of Ann, with 10 on the Pass Line and 5 on the
// Field each time the script below finds them down:
//   1  2.2  come-out, point 4; field pays 5
//   2  6.1  seven-out: pass line -10, field -5
//   3  4.3  natural: pass line +10, field -5
//   4  3.3  point 6; field -5
//   5  5.1  pass: pass line +10; field -5
//   6  6.6  come-out craps: pass line -10; field 12
// Auto handling is "same bet" for wins and losses.
struct HistoryTable : ScriptTable {
  HistoryTable() {
    // One player, so that the dice stay.
    LeaveTable(*game, 2);
    game->table.seats[1].handling.WinHandling = 2;
    game->table.seats[1].handling.LoseHandling = 2;
    Load(1, "passline = 10\nfield = 5");
    CompileActiveScripts(*game);
    RunAutoBet(*game);
    SetScriptActive(*game, 1, false);
    constexpr int kRolls[][2] = {{2, 2}, {6, 1}, {4, 3}, {3, 3}, {5, 1}, {6, 6}};
    for (const auto& roll : kRolls) Dice(roll[0], roll[1]);
  }
};

}  // namespace tessaryn::script_test
