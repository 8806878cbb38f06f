#include "autobet/run/give_way.h"

#include "state/game.h"

namespace tessaryn {

bool GiveWay(Game& game) {
  AutoBet& autobet = game.autobet;
  if (autobet.Work < kWorkPerLook) return true;
  autobet.Work = 0;
  game.host->YieldByClock(game);
  return autobet.ScriptRunning;
}

}  // namespace tessaryn
