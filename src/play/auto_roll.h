// Rolling without the user: Auto-Roll at a paced rate, Turbo-Roll at full speed.
#pragma once

#include <cstdint>
#include <string>

#include "base/money.h"

namespace tessaryn {

struct Game;

inline constexpr int kThrottleAutoRoll = 12;

// Makes one roll and settles everything that hangs on it; in a run goes on until something stops it. Does
// nothing while a roll is in progress.
void RollDice(Game& game);
// Starts a run, or stops the one that is on. A start does not return until the run ends. With a script that
// is being stepped through it asks whether to interrupt that instead.
void ToggleAutoRoll(Game& game);
// A position 0 to 12, also in the middle of a run. Others become 0.
void SetThrottle(Game& game, int position);
// The two setting dialogs. What is typed is brought within the limits of the setting.
void SetAutoRollDelay(Game& game);
void SetAutoStop(Game& game);
// Asks to stop what runs (Turbo-Roll, Auto-Roll, a script) before another command acts. True when nothing
// runs. After a yes the run is stopped and the answer is still false: the command does not go on.
bool AskBeforeCommand(Game& game);
// A key or mouse press on the table: the wait of an Auto-Roll starts again.
void NoteActivity(Game& game);

}  // namespace tessaryn
