#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/screens/about.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

void OpenAbout(Desk& desk) {
  AboutScreen screen(desk.game, desk.window);
  RunDialog(screen);
}

void ShowKeys(Desk& desk) { ShowMessage<Msg::kKeys>(desk.game); }

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
