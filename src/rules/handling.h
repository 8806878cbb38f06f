// What becomes of a bet that was decided: the stored choices of each seat, or the settlement dialog.
#pragma once

#include "base/table_types.h"
#include "state/host.h"

namespace tessaryn {

struct Game;

// A bet as its settlement decided it.
struct Decision {
  const PayoffRecord* paidBy = nullptr;  // none for odds that weren't working
  Currency gross;
  Currency net;           // in whole betting units
  bool finished = false;  // over, and must not stay up
};

// The choices of WinHandling and LoseHandling.
enum WinChoice : int {
  kWinManual,
  kWinTakeDown,
  kWinSame,
  kWinPressUnit,
  kWinPressDouble,
  kWinParlay,
  kWinAdjusted,
  kWinFixed
};
enum LoseChoice : int {
  kLoseManual,
  kLoseTakeDown,
  kLoseSame,
  kLoseRemainder,
  kLosePlusUnit,
  kLoseDouble,
  kLoseAdjusted,
  kLoseFixed
};
// The captions of the choices 0 to 7 on the Auto-Play screen.
extern const char* const kWinChoiceCaptions[8];
extern const char* const kLoseChoiceCaptions[8];

// The bet that was just paid or taken: closes its vig and carries out the seat's choice.
void HandleWin(Game& game, SeatId seat, BetId bet, const Decision& decision);
void HandleLoss(Game& game, SeatId seat, BetId bet, const Decision& decision);
// Odds that weren't working as their flat bet was decided.
void HandleOffOdds(Game& game, SeatId seat, BetId bet, const Decision& decision);

}  // namespace tessaryn
