#include "shell/frame/lab_table.h"

#include <QCoreApplication>
#include <filesystem>

#include "lab/replay.h"
#include "play/auto_roll.h"
#include "play/game_file.h"
#include "shell/frame/closing.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/game_files.h"
#include "shell/frame/places.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr const char* kSessionFile = "laboratory.crp";

QString Words(const char* text) { return QCoreApplication::translate("Laboratory", text); }

void Tell(Desk& desk, const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(desk.game,
                                 With<"title">(ToCore(Words(QT_TRANSLATE_NOOP("Laboratory", "Laboratory")))),
                                 With<"problem">(problem));
}

bool OpenTable(Desk& desk, const Experiment& experiment, const LabSystem& system) {
  KeepScreen(desk);
  const std::string path = desk.game.ownFolder + kSessionFile;
  const std::string error = WriteSessionTable(experiment, system, desk.game, path);
  const bool opened = error.empty() && OpenGame(desk.game, path);
  std::error_code gone;
  std::filesystem::remove(path, gone);
  if (!error.empty()) Tell(desk, error);
  return opened;
}

}  // namespace

QString PlayLabSession(Desk& desk, const Experiment& experiment, std::size_t number, std::int64_t session) {
  if (!AskBeforeCommand(desk.game) || !IsFree(desk)) return {};
  const LabSystem& system = experiment.systems[number];
  SessionResult result;
  if (const std::string error =
          FigureSession(experiment, system, session, desk.game.applicationFolder, result);
      !error.empty()) {
    Tell(desk, error);
    return {};
  }
  if (!SaveOwnFilesFirst(desk) || !SaveSessionFirst(desk, Leaving::kForAnother)) return {};
  if (!OpenTable(desk, experiment, system)) return {};
  const bool begun = BeginSessionAtTable(desk.game, experiment, system, session);
  desk.game.settings.AutoStopInterval = result.rolls;
  desk.showGame();
  if (!begun) return {};
  return QCoreApplication::translate("Laboratory", "At the table: session %1 of %2, %3 rolls to %4", nullptr,
                                     PluralOf(result.rolls))
      .arg(session + 1)
      .arg(FromCore(LabelOf(system)))
      .arg(result.rolls)
      .arg((result.net > kZero ? "+" : "") + MoneyText(result.net));
}

}  // namespace tessaryn
