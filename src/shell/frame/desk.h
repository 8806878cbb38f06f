// What the commands of the window work on.
#pragma once

#include <QPointer>
#include <QStringList>
#include <array>
#include <functional>

#include "shell/frame/shell_host.h"
#include "shell/screens/tool_window.h"
#include "shell/table/table_commands.h"
#include "shell/table/table_view.h"

class QWidget;

namespace tessaryn {

class AmountSelector;
class TableWidget;

// The game, the table as it is shown, and what belongs to the window alone. Nothing here is owned but what is
// a value.
struct Desk {
  Game& game;
  ShellHost& host;
  QWidget* window = nullptr;  // what screens stand over
  TableWidget* table = nullptr;
  AmountSelector* amounts = nullptr;
  TableCommands commands = {};                                // what the next click on the table means
  std::array<QPointer<ToolWindow>, kToolWindows> tools = {};  // those that have been opened
  QStringList recentGames = {};                               // the latest first
  const char* view = "";              // the command whose view is shown; "" none of them
  SavedView beforePropositions = {};  // what was shown before them; empty while they aren't shown
  int movingSeat = 0;                 // the player who waits for a new place; 0 none
  bool keeps = true;                  // the data folder can be written
  // Brings commands, controls and tool windows to the state, at once.
  std::function<void()> refresh = {};
  // Another game has been opened: everything is shown anew.
  std::function<void()> showGame = {};
};

// The view has changed, by the command named or, with "", by any other way.
void ShowView(Desk& desk, const char* command);

}  // namespace tessaryn
