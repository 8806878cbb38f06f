#include "state/run_stop.h"

#include "state/show_message.h"

namespace tessaryn {

void StopRun(Game& game, const std::string& reason) {
  TableState& table = game.table;
  if (!table.AutoRollActive) {
    if (!reason.empty()) table.StopReason = reason;
    return;
  }
  table.AutoRollActive = false;
  const bool turbo = table.TurboRollActive;
  table.TurboRollActive = false;
  if (!reason.empty()) table.StopReason = reason;
  game.host->Changed(game, Change::kRun);
  if (!turbo) return;
  if (!table.StopReason.empty()) ShowMessage<Msg::kRunStopped>(game, With<"reason">(table.StopReason));
  game.host->Changed(game, Change::kEverything);
}

void ReportError(Game& game, const std::string& text, int number, const char* label) {
  const std::string report =
      MessageText<Msg::kErrorReport>(With<"fault">(text), With<"number">(number), With<"place">(label));
  if (game.table.TurboRollActive) return StopRun(game, report);
  StopRun(game, "");
  ShowMessage<Msg::kErrorReported>(game, With<"report">(report));
}

}  // namespace tessaryn
