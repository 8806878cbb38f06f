// Whose script may do what, as words.
#pragma once

#include <string>

namespace tessaryn {
struct Game;
}

namespace tessaryn::cli {

// A seat with a player. Empty, or what is wrong with the word.
std::string ReadSeat(const Game& game, const std::string& word, SeatId& seat);
// Gives or takes a permission: others, reset or probabilities. Empty, or what is wrong with the word.
std::string Permit(Game& game, SeatId seat, const std::string& word, bool on);

}  // namespace tessaryn::cli
