#include "play/players.h"
#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/settle_roll.h"
#include "shell/screens/atm.h"
#include "shell/screens/auto_play.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

bool CanMove(const Desk& desk) { return HasPlayer(desk) && HasOpenPlace(desk); }
bool CanAtm(const Desk& desk) { return HasPlayer(desk) && desk.game.settings.AtmEnabled; }

void AddAPlayer(Desk& desk) { ShowMessage<Msg::kClickOpenPosition>(desk.game); }

void MoveSelected(Desk& desk) {
  desk.movingSeat = desk.game.table.SelectedSeat;
  desk.table->scene.movingPlayer = true;
  desk.table->update();
  ShowMessage<Msg::kClickRail>(desk.game, With<"player">(desk.game.table.seats[desk.movingSeat].SeatName));
}

void OpenAtm(Desk& desk) {
  AtmScreen screen(desk.game, desk.game.table.SelectedSeat, desk.window);
  RunDialog(screen);
  desk.table->Refresh();
}

void OpenAutoPlay(Desk& desk) {
  AutoPlayScreen screen(desk.game, desk.window);
  RunDialog(screen);
  desk.table->Refresh();
}

}  // namespace

std::span<const CommandRow> PlayerCommands() {
  constexpr InRun kAsks = InRun::kAsksFirst;
  static const CommandRow kCommands[] = {
      {"mnuPlayerAdd", QT_TRANSLATE_NOOP("Commands", "&Add ..."), nullptr, kAsks, AddAPlayer, HasOpenPlace},
      {"mnuPlayerRename", QT_TRANSLATE_NOOP("Commands", "&Rename ..."), nullptr, kAsks,
       [](Desk& desk) { RenamePlayer(desk.game); }, HasPlayer},
      {"mnuPlayerMove", QT_TRANSLATE_NOOP("Commands", "&Move"), nullptr, kAsks, MoveSelected, CanMove},
      {"mnuPlayerDelete", QT_TRANSLATE_NOOP("Commands", "R&emove ..."), nullptr, kAsks,
       [](Desk& desk) { RemovePlayer(desk.game); }, HasPlayer},
      {},
      {"mnuAtm", QT_TRANSLATE_NOOP("Commands", "A&TM ..."), nullptr, kAsks, OpenAtm, CanAtm},
      {"mnuAutoPlay", QT_TRANSLATE_NOOP("Commands", "Auto-&Play ..."), "F3", kAsks, OpenAutoPlay, HasPlayer},
      {.name = "mnuSettleOnSheet",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Settle each roll on one sheet"),
       .act = [](Desk& desk) { SetSettlesInBoxes(desk, !SettlesInBoxes(desk)); },
       .ticked = [](const Desk& desk) { return !SettlesInBoxes(desk); }},
  };
  return kCommands;
}

}  // namespace tessaryn
