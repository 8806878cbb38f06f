// The recorder of the dice roll file, as the table's commands work it.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// Off, record or playback. Playback is noted in the Events Log. The error is that of SetRecorderState.
std::string SetRecorder(Game& game, int state);
// "Playback stopped." or "Recording stopped.": asks whether to play the file from its first roll. No turns
// the recorder off, Cancel leaves all as it is. What goes wrong is told.
void AskRewind(Game& game);
// The same by the user, who stops an Auto-Roll with it. Nothing with the recorder off.
void StopRollFileAndAsk(Game& game);

}  // namespace tessaryn
