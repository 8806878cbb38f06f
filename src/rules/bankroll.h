// The ATM and the size that a bankroll may have.
#pragma once

#include "base/table_types.h"

namespace tessaryn {

struct Game;

// deposit: into the ATM, so that the bankroll falls. Returns the amount allowed; 0 while AtmEnabled is off.
// alwaysTell: the caller is the configuration screen. Requires amount >= 0.
Currency AtmTransaction(Game& game, SeatId seat, bool deposit, Currency amount, bool alwaysTell = false);
// The seat's bankroll has passed the limit: tells so, and stops a run.
void BankrollLimitReached(Game& game, SeatId seat);
// The bankroll, with its beginning, as a script may set it before the session's first roll.
void SetBankroll(Game& game, SeatId seat, Currency amount);

}  // namespace tessaryn
