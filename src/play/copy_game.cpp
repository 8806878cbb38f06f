#include "play/copy_game.h"

#include "dice/roll_file.h"

namespace tessaryn {
namespace {

// The copy has no file open yet.
void FollowRollFile(RollFile& file, const RollFile& original) {
  const std::string path = original.RollFileName;
  file.RollFileName.clear();
  file.RecorderState = kRecorderOff;
  file.FaultReported.clear();
  SetRollFileCursor(file, 1);
  if (original.RecorderState != kRecorderPlayback || !OpenRollFile(file, path).empty()) return;
  if (SetRecorderState(file, kRecorderPlayback).empty()) SetRollFileCursor(file, original.RollFileCursor);
}

}  // namespace

std::unique_ptr<Game> CopyGame(const Game& game, Host& host) {
  auto copy = std::make_unique<Game>(game);
  copy->host = &host;
  copy->events.RecordEventsActive = false;
  copy->sessions.Files.Off = true;
  TableState& table = copy->table;
  table.RollInProgress = table.AutoRollActive = table.TurboRollActive = false;
  AutoBet& autobet = copy->autobet;
  autobet.ScriptRunning = autobet.StepWaiting = false;
  autobet.ScriptsCompiled = false;  // made ready again by the copy's first roll
  FollowRollFile(copy->rollFile, game.rollFile);
  return copy;
}

}  // namespace tessaryn
