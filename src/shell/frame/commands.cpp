#include "shell/frame/commands.h"

#include "shell/frame/desk.h"
#include "state/game.h"

namespace tessaryn {

std::span<const CommandMenu> CommandMenus() {
  static const CommandMenu kMenus[] = {{QT_TRANSLATE_NOOP("Commands", "&Game"), GameCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "&Players"), PlayerCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "&Bets"), BetCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "&Dice"), DiceCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "A&uto-Bet"), ScriptCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "Stat&istics"), StatisticsCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "&View"), ViewCommands()},
                                       {QT_TRANSLATE_NOOP("Commands", "&Help"), HelpCommands()}};
  return kMenus;
}

bool ChangesBets(const CommandRow& command) {
  const auto bets = BetCommands();
  const bool takesBack = command.act == UndoBet || command.act == RedoBet;
  return &command >= bets.data() && &command < bets.data() + bets.size() && !takesBack;
}

int PlainKeyCode(const char* key) {
  const QString name(key);
  if (name == "Space") return Qt::Key_Space;
  if (name == "Esc") return Qt::Key_Escape;
  if (name == "Del") return Qt::Key_Delete;
  if (name == "Backspace") return Qt::Key_Backspace;
  return name.size() == 1 ? name[0].unicode() : 0;
}

const CommandRow* PlainKeyCommand(int key) {
  const CommandRow* found = nullptr;
  ForEachCommand([&](const CommandRow& command) {
    if (command.key != nullptr && PlainKeyCode(command.key) == key) found = &command;
  });
  return found;
}

bool IsFree(const Desk& desk) { return !desk.game.table.RollInProgress || desk.game.table.AutoRollActive; }

bool HasPlayer(const Desk& desk) {
  return IsFree(desk) && IsOccupied(desk.game.table, desk.game.table.SelectedSeat);
}

bool HasOpenPlace(const Desk& desk) { return IsFree(desk) && desk.game.table.OccupiedSeats < kSeats; }

bool HasBets(const Desk& desk) {
  return HasPlayer(desk) && !desk.game.table.seats[desk.game.table.SelectedSeat].SeatBets.Empty();
}

}  // namespace tessaryn
