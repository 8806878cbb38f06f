#include "lab/replay.h"

#include "dice/percentage_dice.h"
#include "lab/dice_streams.h"
#include "play/game_file.h"
#include "rules/handling.h"

namespace tessaryn {
namespace {}  // namespace

std::string FigureSession(const Experiment& experiment, const LabSystem& system, std::int64_t session,
                          const std::string& applicationFolder, SessionResult& result) {
  LabHost host;
  LabProblem problem;
  const std::unique_ptr<Game> fresh = BuildTable(experiment, system, host, applicationFolder, problem);
  if (problem.Found()) return problem.text;
  const std::unique_ptr<LabTable> table = OpenLabTable(*fresh, nullptr);
  if (PlaySession(*table, experiment, session, result, nullptr)) return {};
  return system.name + ": the script never ends a roll";
}

std::string WriteSessionTable(const Experiment& experiment, const LabSystem& system, const Game& game,
                              const std::string& path) {
  LabHost host;
  LabProblem problem;
  const std::unique_ptr<Game> table = BuildTable(experiment, system, host, game.applicationFolder, problem);
  if (problem.Found()) return problem.text;
  SetAllScriptsActive(*table, false);
  SetScript(*table, kLabSeat, {}, "");
  table->screen = game.screen;
  // What is asked by hand is answered in a session as a host without anybody answers it.
  Handling& handling = table->table.seats[kLabSeat].handling;
  if (handling.WinHandling == kWinManual) handling.WinHandling = kWinSame;
  if (handling.LoseHandling == kLoseManual) handling.LoseHandling = kLoseTakeDown;
  std::string error;
  return SaveGame(*table, path, error) ? "" : error;
}

bool BeginSessionAtTable(Game& game, const Experiment& experiment, const LabSystem& system,
                         std::int64_t session) {
  ForgetGameFile(game);
  game.percentage.ProbMatrix = experiment.probabilities;
  ProbabilitiesChanged(game.percentage);
  ActivatePercentageDice(game.percentage, experiment.percentageDice);
  SetScript(game, kLabSeat, system.lines, system.name);
  SetScriptActive(game, kLabSeat, true);
  SetDiceStream(game.generators, experiment.seed, static_cast<std::uint64_t>(session));
  return InitialiseScripts(game);
}

}  // namespace tessaryn
