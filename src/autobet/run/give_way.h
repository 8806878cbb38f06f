// The host's turn in the midst of a script.
#pragma once

#include <cstddef>

namespace tessaryn {

struct Game;

// To be called behind what may take long, with AutoBet::Work raised by about a byte of text or a nanosecond:
// now and then the host has its turn. False when the run was stopped in it; what is in hand is then dropped.
inline constexpr std::size_t kWorkPerLook = 1'000'000;
bool GiveWay(Game& game);

}  // namespace tessaryn
