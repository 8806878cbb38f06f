#include "shell/frame/open_file.h"

#include <QString>
#include <filesystem>

#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "shell/frame/closing.h"
#include "shell/frame/desk.h"
#include "shell/frame/open_game.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/screens/workshop_window.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

// Scripts and logs are a player's.
bool NeedsPlayer(Desk& desk) {
  if (desk.game.table.OccupiedSeats > 0) return true;
  ShowMessage<Msg::kClickOpenPosition>(desk.game);
  return false;
}

void OpenScriptFile(Desk& desk, const std::string& path) {
  auto* workshop = dynamic_cast<WorkshopWindow*>(&Tool(desk, kAutoBetWindow));
  if (workshop == nullptr || !NeedsPlayer(desk)) return;
  workshop->ShowSeat(desk.game.table.SelectedSeat);
  workshop->OpenPath(path);
}

void OpenRolls(Desk& desk, const std::string& path) {
  const std::string problem = OpenRollFile(desk.game.rollFile, path);
  if (!problem.empty()) ShowMessage<Msg::kRollFileNotOpened>(desk.game, With<"problem">(problem));
}

void OpenProbabilities(Desk& desk, const std::string& path) {
  std::string error;
  if (SaveProbabilitiesFirst(desk) &&
      !OpenProbabilityFile(desk.game.percentage, path, desk.game.dataFolder, error))
    ShowMessage<Msg::kProbabilitiesNotOpened>(desk.game, With<"problem">(error));
}

void OpenSessions(Desk& desk, const std::string& path) {
  auto* sessions = dynamic_cast<SessionsLogScreen*>(&Tool(desk, kSessionsWindow));
  if (sessions != nullptr && NeedsPlayer(desk)) sessions->OpenPath(path);
}

struct Kind {
  const char* ending;
  int window;
  void (*open)(Desk&, const std::string&);
};
constexpr Kind kKinds[] = {{".bet", kAutoBetWindow, OpenScriptFile},
                           {".rol", kDiceRollFilesWindow, OpenRolls},
                           {".prb", kPercentageDiceWindow, OpenProbabilities},
                           {".slg", kSessionsWindow, OpenSessions}};

const Kind* KindOf(const std::string& path) {
  const QString name = FromCore(path);
  for (const Kind& kind : kKinds)
    if (name.endsWith(QLatin1String(kind.ending), Qt::CaseInsensitive)) return &kind;
  return nullptr;
}

}  // namespace

bool OpensBesideGame(const std::string& path) { return KindOf(path) != nullptr; }

void OpenAnyFile(Desk& desk, const std::string& path) {
  const Kind* kind = KindOf(path);
  if (kind == nullptr) return OpenGameFile(desk, path);
  std::error_code unseen;
  std::string full;
  // All the kinds are asked the same: whether the file is there.
  const FileProblem problem =
      CheckFileName(desk.game, kOpenGame, std::filesystem::absolute(path, unseen).string(), full);
  if (problem.Found()) {
    ShowMessage(desk.game, problem.message, {{"path", problem.told}, {"problem", problem.told}});
    return;
  }
  ShowTool(desk, kind->window, true);
  kind->open(desk, full);
  desk.refresh();
}

}  // namespace tessaryn
