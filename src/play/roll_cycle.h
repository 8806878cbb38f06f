// One roll of the dice, from the shooter's bet to the next bets on the table; and the runs that go round it.
#pragma once

namespace tessaryn {

struct Game;

// Makes one roll and settles everything that hangs on it. While AutoRollActive is set it goes on until
// something stops the run. Does nothing while a roll is in progress.
void RollDice(Game& game);

}  // namespace tessaryn
