#include "play/auto_roll.h"

#include <algorithm>
#include <cmath>

#include "dice/roll_file.h"
#include "play/roll_cycle.h"
#include "play/session_luck.h"
#include "play/table_files.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

bool MayInterruptScript(Game& game) {
  const SeatId seat = std::clamp<int>(game.autobet.CurrentAutobettor, 0, kSeats);
  return Confirms<Msg::kAskInterruptScript>(game, With<"player">(game.table.seats[seat].SeatName));
}

bool AutoStopDue(const Game& game) {
  const std::int64_t interval = game.settings.AutoStopInterval;
  if (interval <= 0) return false;
  const std::int64_t rolls = SessionRolls(game.stats);
  return rolls > 0 && rolls % interval == 0;
}

// Gives way to user events; what others may read is then up to date.
void GiveWay(Game& game) {
  if (game.host->Yield(game)) FlushTableFiles(game);
}

// A tenth of the counting loops of 100 milliseconds, measured once when pacing is first wanted.
void Calibrate(Game& game) {
  if (game.table.TurboCalibration > 0) return;
  const std::uint32_t start = game.host->TickMilliseconds();
  volatile std::uint64_t count = 0;
  for (;;) {
    for (int i = 0; i < 1000; ++i) count = count + 1;
    if (game.host->TickMilliseconds() - start >= 100) break;
  }
  game.table.TurboCalibration = static_cast<std::int32_t>(std::min<std::uint64_t>(count / 10, 2'000'000'000));
}

// The busy wait by which a throttle slows Turbo-Roll: each step doubles it. Gives way now and then, so that a
// long wait can be stopped, or cut short by moving the throttle.
void Pace(Game& game) {
  Calibrate(game);
  const auto stepsWanted = [&game] {
    const int throttle = game.settings.RollThrottle;
    return throttle > 0 ? std::ldexp(1.0, throttle) * game.table.TurboCalibration : 0.0;
  };
  const double perYield = std::max(1, game.table.TurboCalibration) * 5.0;  // 50 milliseconds
  volatile double counted = 0;
  while (counted < stepsWanted() && game.table.AutoRollActive && game.table.TurboRollActive) {
    const double until = std::min(stepsWanted(), counted + perYield);
    while (counted < until) counted = counted + 1;
    if (counted < stepsWanted()) GiveWay(game);
  }
}

bool GoRoundTurbo(Game& game) {
  TableState& table = game.table;
  GiveWay(game);
  if (table.AutoRollActive && AutoStopDue(game)) {
    StopRun(game, table.StopReason.empty() ? MessageText<Msg::kStoppedByAutoStop>() : table.StopReason);
    return false;
  }
  if (table.AutoRollActive && table.TurboRollActive && game.settings.RollThrottle > 0) Pace(game);
  return table.AutoRollActive;
}

void WaitForNextRoll(Game& game) {
  TableState& table = game.table;
  table.LastActivityTick = game.host->TickMilliseconds();
  const auto delay = [&game] {
    return static_cast<std::uint32_t>(game.settings.AutoRollDelay.raw / (Currency::kPerDollar / 1000));
  };
  do {
    game.host->Wait(game);
  } while (table.AutoRollActive && !table.TurboRollActive &&
           game.host->TickMilliseconds() - table.LastActivityTick < delay());
}

// What stands between the end of a roll and the next one. False when the run is over.
bool GoRoundAgain(Game& game) {
  TableState& table = game.table;
  if (table.TurboRollActive) return GoRoundTurbo(game);
  FlushTableFiles(game);
  game.host->Changed(game, Change::kEverything);
  if (!table.AutoRollActive) return false;
  if (AutoStopDue(game)) {
    StopRun(game, "");
    ShowMessage<Msg::kAutoRollStopped>(game);
    return false;
  }
  WaitForNextRoll(game);
  return table.AutoRollActive;
}

}  // namespace

void RollDice(Game& game) {
  if (game.table.RollInProgress || !ReadyToRoll(game)) return;
  game.table.RollInProgress = true;
  SessionLuck* const luck = WatchedLuck(game);
  while (MakeRoll(game, luck) && GoRoundAgain(game)) {
  }
  CloseRolling(game);
}

void ToggleAutoRoll(Game& game) {
  TableState& table = game.table;
  if (table.AutoRollActive) return StopRun(game, "");
  if (game.autobet.ScriptRunning && game.autobet.StepMode) {
    if (MayInterruptScript(game)) game.autobet.StepMode = false;
    return;
  }
  if (table.RollInProgress) return;
  table.AutoRollActive = true;
  table.TurboRollActive = game.settings.RollThrottle != kThrottleAutoRoll;
  game.host->Changed(game, Change::kRun);
  RollDice(game);
  // A roll that was not even begun leaves no run behind.
  if (table.AutoRollActive && !table.RollInProgress) StopRun(game, "");
}

void SetThrottle(Game& game, int position) {
  TableState& table = game.table;
  game.settings.RollThrottle = position < 0 || position > kThrottleAutoRoll ? 0 : position;
  if (table.AutoRollActive) {
    table.TurboRollActive = game.settings.RollThrottle != kThrottleAutoRoll;
    game.host->Changed(game, Change::kEverything);
  }
  game.host->Changed(game, Change::kRun);
}

void SetAutoRollDelay(Game& game) {
  game.box.MsgValue1 = game.settings.AutoRollDelay.Number();
  if (ShowMessage<Msg::kAskAutoRollDelay>(game) != kResultOk) return;
  game.settings.AutoRollDelay = kAutoRollDelayLimits.Clamp(Seconds::Of(game.box.MsgValue1));
}

void SetAutoStop(Game& game) {
  game.box.MsgValue1 = Currency::Dollars(game.settings.AutoStopInterval);
  if (ShowMessage<Msg::kAskAutoStop>(game) != kResultOk) return;
  game.settings.AutoStopInterval =
      kAutoStopLimits.Clamp(WholePart(game.box.MsgValue1).raw / Currency::kPerDollar);
}

bool AskBeforeCommand(Game& game) {
  TableState& table = game.table;
  if (table.AutoRollActive) {
    const Msg question = table.TurboRollActive ? Msg::kAskStopTurboRoll : Msg::kAskStopAutoRoll;
    if (ShowMessage(game, question, {}) == kResultYes) StopRun(game, "");
    return false;
  }
  if (game.autobet.ScriptRunning) {
    if (MayInterruptScript(game)) {
      game.autobet.StepMode = false;
      game.autobet.ScriptRunning = false;
    }
    return false;
  }
  return true;
}

void NoteActivity(Game& game) { game.table.LastActivityTick = game.host->TickMilliseconds(); }

}  // namespace tessaryn
