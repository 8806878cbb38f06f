// Why the rules let nobody bet more on a bet now.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// The told note of what stands in the way, in one line: the house, a rule, the maximum or the bankroll, the
// first of them. Nothing is shown, and nothing changes. Requires bet 1 to 93, with no room for more.
std::string WhyNotMore(const Game& game, SeatId seat, BetId bet);

}  // namespace tessaryn
