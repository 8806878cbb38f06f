#include "play/roll_recorder.h"

#include "dice/roll_file.h"
#include "state/run_stop.h"
#include "state/show_message.h"
#include "stats/events_log.h"

namespace tessaryn {

std::string SetRecorder(Game& game, int state) {
  RollFile& file = game.rollFile;
  const bool played = file.RecorderState == kRecorderPlayback;
  std::string error = SetRecorderState(file, state);
  if (error.empty() && state == kRecorderPlayback && !played) LogPlayback(game);
  return error;
}

void AskRewind(Game& game) {
  RollFile& file = game.rollFile;
  const bool recording = file.RecorderState == kRecorderRecord;
  const int answer = ShowMessage<Msg::kAskRewind>(game, With<"recording">(recording));
  std::string problem;
  if (answer == kResultYes) problem = RewindForPlayback(file);
  if (answer == kResultNo) problem = SetRecorderState(file, kRecorderOff);
  if (!problem.empty()) ShowMessage<Msg::kNotRewound>(game, With<"problem">(problem));
}

void StopRollFileAndAsk(Game& game) {
  if (game.rollFile.RecorderState == kRecorderOff) return;
  if (game.table.AutoRollActive) StopRun(game, "");
  AskRewind(game);
}

}  // namespace tessaryn
