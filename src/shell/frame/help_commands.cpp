#include "shell/frame/commands.h"
#include "shell/frame/desk.h"
#include "shell/frame/help_desk.h"
#include "shell/screens/about.h"
#include "shell/screens/help_window.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

void OpenAbout(Desk& desk) {
  AboutScreen screen(desk.game, desk.window);
  RunDialog(screen);
}

void ShowContents(Desk& desk) { OpenHelp(desk, {kHelpContents, {}, {}}); }
void SearchHelp(Desk& desk) { OpenHelp(desk, {kHelpContents, {}, {}}).OpenSearch(); }
void ShowKeys(Desk& desk) { OpenHelp(desk, {"help/keys.md", {}, {}}); }

}  // namespace

std::span<const CommandRow> HelpCommands() {
  static const CommandRow kCommands[] = {
      {.name = "mnuHelpHere",
       .caption = QT_TRANSLATE_NOOP("Commands", "&Help for this screen"),
       .key = "F1",
       .act = HelpHere},
      {.name = "mnuHelpContents", .caption = QT_TRANSLATE_NOOP("Commands", "&Contents"), .act = ShowContents},
      {.name = "mnuHelpSearch", .caption = QT_TRANSLATE_NOOP("Commands", "&Search the help"), .act = SearchHelp},
      {.name = "mnuKeys", .caption = QT_TRANSLATE_NOOP("Commands", "&Keys and mouse"), .act = ShowKeys},
      {},
      {.name = "mnuAbout", .caption = QT_TRANSLATE_NOOP("Commands", "&About Tessaryn"), .act = OpenAbout},
  };
  return kCommands;
}

}  // namespace tessaryn
