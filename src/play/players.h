// Who stands at the rail, and whose the dice are.
#pragma once

#include <string>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// With its questions: whether, the name, the bankroll. False when given up.
bool AddPlayer(Game& game, SeatId seat);
// Without questions. The seat must be open, the name fit for a player and the bankroll within the limit;
// otherwise false, with the reason, and nothing changed.
bool JoinPlayer(Game& game, SeatId seat, const std::string& name, Currency bankroll, std::string& error);
// The selected seat leaves, after a question. False when given up.
bool RemovePlayer(Game& game);
// A seat leaves without questions.
void LeaveTable(Game& game, SeatId seat);
// With its question; false when given up.
bool RenamePlayer(Game& game);
bool RenameTo(Game& game, SeatId seat, const std::string& name, std::string& error);
// To an open seat, with everything that is the player's.
bool MovePlayer(Game& game, SeatId fromSeat, SeatId toSeat, std::string& error);
// Every per-seat table of the seat to zero.
void ClearSeat(Game& game, SeatId seat);
// What a name may not be: the text that refuses it, empty for a good one. ownSeat: a seat that may already
// have it, or 0.
std::string NameProblem(const Game& game, const std::string& name, SeatId ownSeat);
void SelectSeat(Game& game, SeatId seat);

}  // namespace tessaryn
