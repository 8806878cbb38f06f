#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/screens/about.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

void OpenAbout(Desk& desk) {
  AboutScreen screen(desk.game, desk.window);
  RunDialog(screen);
}

void ShowKeys(Desk& desk) {
  constexpr const char* kKeys =
      "Left click: bet the chosen amount\r"
      "Right click or F2: roll the dice\r"
      "Drag a stack: move the bet; off the felt: take it down\r"
      "Alt and click: take a bet up, click again to put it down\r"
      "Wheel: zoom.  Middle button: move the table\r"
      "Delete, F5, F6, F7: the next click removes, buys, calls ON, calls OFF\r"
      "F9: key in amounts.  F11: show amounts\r"
      "Tab: walk the bets with the arrows, Enter bets\r"
      "Arrows: the next player.  1 to 8: that place at the rail\r"
      "Ctrl and a letter or digit: its hot-key";
  ShowMessage(desk.game, "Keys and Mouse", kKeys, kMsgOk | kMsgDice, 640);
}

}  // namespace

std::span<const CommandRow> HelpCommands() {
  static const CommandRow kCommands[] = {
      {.name = "mnuKeys",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Keys and mouse"),
       .key = "F1",
       .act = ShowKeys},
      {.name = "mnuAbout", .caption = QT_TRANSLATE_NOOP("Commands", "&About Tessaryn"), .act = OpenAbout},
  };
  return kCommands;
}

}  // namespace tessaryn
