#include "play/table_files.h"

#include <cerrno>
#include <cstdio>

#include "base/messages.h"
#include "base/record_file.h"
#include "dice/roll_file.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/events_log.h"
#include "stats/sessions_log.h"

namespace tessaryn {
namespace {

std::string CloseRecording(RollFile& file) {
  std::string fault = file.FaultReported;
  const std::string problem = CloseRollFile(file);
  if (!problem.empty()) DiscardRollFile(file);
  return fault.empty() ? problem : fault;
}

std::string FinishScriptOutput(Game& game, SeatId seat) {
  std::FILE* file = game.autobet.Scripts[seat].Output.File;
  if (file == nullptr) return "";
  errno = 0;
  const bool failed = std::fflush(file) != 0;
  if (!failed && std::ferror(file) == 0) return "";
  return FileErrorText("write",
                       MessageText<Msg::kOutputOfScript>(With<"player">(game.table.seats[seat].SeatName)),
                       errno == 0 ? EIO : errno);
}

}  // namespace

void FlushTableFiles(Game& game) {
  FlushEventsLog(game);
  WriteWaitingSessions(game);
  if (!FlushRollFile(game.rollFile)) ReportRecorderFault(game);
}

void ReportRecorderFault(Game& game) {
  RollFile& file = game.rollFile;
  file.RecorderState = kRecorderOff;
  if (file.FaultReported == file.LastErrorText) return;
  file.FaultReported = file.LastErrorText;
  ReportError(game, file.LastErrorText, 61, "Record Roll");
}

std::string EndGame(Game& game) {
  game.autobet.StepMode = game.autobet.ScriptRunning = false;
  if (game.table.AutoRollActive) StopRun(game, "");
  std::string problem = CloseEventsLog(game);
  const auto note = [&problem](const std::string& what) {
    if (problem.empty()) problem = what;
  };
  note(CloseRecording(game.rollFile));
  note(CloseSessionsLogs(game));
  for (SeatId seat = 1; seat <= kSeats; ++seat) note(FinishScriptOutput(game, seat));
  return problem;
}

}  // namespace tessaryn
