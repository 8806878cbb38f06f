#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/sounds.h"
#include "shell/screens/new_session.h"
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

bool SoundIsOn(const Desk& desk) { return !desk.game.settings.DisableAllSound; }

void ToggleSound(Desk& desk) {
  desk.game.settings.DisableAllSound = SoundIsOn(desk);
  if (!SoundIsOn(desk) && desk.host.sounds != nullptr) desk.host.sounds->Stop();
}

}  // namespace

std::span<const CommandRow> GameCommands() {
  static const CommandRow kCommands[] = {
      {"mnuNew", QT_TRANSLATE_NOOP("Commands", "&New ..."), "Ctrl+Shift+N", InRun::kAsksFirst, NewGame,
       HasPlayer},
      {.name = "mnuSound",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Sound"),
       .act = ToggleSound,
       .ticked = SoundIsOn},
      {},
      {"mnuExit", QT_TRANSLATE_NOOP("Commands", "E&xit"), "Ctrl+Shift+Q"},
  };
  return kCommands;
}

}  // namespace tessaryn
