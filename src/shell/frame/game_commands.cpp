#include <QFileInfo>
#include <QMenu>

#include "play/auto_roll.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/game_files.h"
#include "shell/frame/open_game.h"
#include "shell/frame/sounds.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/new_session.h"
#include "shell/screens/path_screen.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/game.h"

namespace tessaryn {
namespace {

void NewGame(Desk& desk) {
  NewSessionScreen screen(desk.game, desk.window);
  RunDialog(screen);
  desk.table->Refresh();
}

void OpenGameOfChoice(Desk& desk) {
  const std::string path = ChooseFile(desk.game, desk.window, kOpenGame);
  if (!path.empty()) OpenGameFile(desk, path);
}

bool HasRecentGames(const Desk& desk) { return !desk.recentGames.isEmpty(); }

// The latest first; those that are gone can't be chosen.
void ListRecentGames(Desk& desk, QMenu& menu) {
  int number = 0;
  for (const QString& path : desk.recentGames) {
    const QFileInfo file(path);
    QString name = file.fileName() + "  (" + file.path() + ")";
    QAction* action = menu.addAction(QString("&%1  %2").arg(++number).arg(name.replace('&', "&&")));
    action->setEnabled(file.exists());
    QObject::connect(action, &QAction::triggered, desk.window, [&desk, path] {
      if (AskBeforeCommand(desk.game) && IsFree(desk) && desk.table->CommitEntry())
        OpenGameFile(desk, path.toStdString());
    });
  }
}

bool SoundIsOn(const Desk& desk) { return !desk.game.settings.DisableAllSound; }

void ToggleSound(Desk& desk) {
  desk.game.settings.DisableAllSound = SoundIsOn(desk);
  if (!SoundIsOn(desk) && desk.host.sounds != nullptr) desk.host.sounds->Stop();
}

void ShowPaths(Desk& desk) {
  PathScreen screen(PathsInUse(desk.game), desk.window);
  RunDialog(screen);
}

}  // namespace

std::span<const CommandRow> GameCommands() {
  static const CommandRow kCommands[] = {
      {"mnuNew", QT_TRANSLATE_NOOP("Commands", "&New ..."), "Ctrl+Shift+N", InRun::kAsksFirst, NewGame,
       HasPlayer},
      {"mnuOpen", QT_TRANSLATE_NOOP("Commands", "&Open ..."), "Ctrl+Shift+O", InRun::kAsksFirst,
       OpenGameOfChoice, IsFree},
      {"mnuSave", QT_TRANSLATE_NOOP("Commands", "&Save"), "Ctrl+Shift+S", InRun::kAsksFirst,
       [](Desk& desk) { SaveGameFile(desk); }, IsFree},
      {"mnuSaveAs", QT_TRANSLATE_NOOP("Commands", "Save &As ..."), nullptr, InRun::kAsksFirst,
       [](Desk& desk) { SaveGameFileAs(desk); }, IsFree},
      {.name = "mnuRecentGames",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Recent games"),
       .can = HasRecentGames,
       .fill = ListRecentGames},
      {.name = "mnuPath", .caption = QT_TRANSLATE_NOOP("Commands", "&Files in use ..."), .act = ShowPaths},
      {},
      {.name = "mnuSound",
       .caption = QT_TRANSLATE_NOOP("Commands", "So&und"),
       .act = ToggleSound,
       .ticked = SoundIsOn},
      {},
      {.name = "mnuConfigure",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Configuration"),
       .key = "Ctrl+,",
       .run = InRun::kAsksFirst,
       .act = [](Desk& desk) { ToggleTool(desk, kConfigurationWindow); },
       .can = IsFree,
       .ticked = [](const Desk& desk) { return ToolIsShown(desk, kConfigurationWindow); }},
      {},
      {"mnuExit", QT_TRANSLATE_NOOP("Commands", "E&xit"), "Ctrl+Shift+Q"},
  };
  return kCommands;
}

}  // namespace tessaryn
