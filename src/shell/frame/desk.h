// What the commands of the window work on.
#pragma once

#include <QPointer>
#include <QStringList>
#include <array>
#include <functional>
#include <memory>
#include <span>

#include "shell/frame/shell_host.h"
#include "shell/screens/tool_window.h"
#include "shell/table/table_commands.h"
#include "shell/table/table_view.h"

class QPrinter;
class QWidget;

namespace tessaryn {

class AmountSelector;
class DockArea;
class TableStage;
class TableWidget;

// A tool window that there may be.
struct Desk;
struct ToolRow {
  int number;
  ToolWindow* (*make)(Desk&);
  bool floatsOnly = false;  // it doesn't dock, and has nothing to print
};

// The game, the table as it is shown, and what belongs to the window alone. Nothing here is owned but what is
// a value.
struct Desk {
  Game& game;
  ShellHost& host;
  QWidget* window = nullptr;  // what screens stand over
  TableWidget* table = nullptr;
  TableStage* stage = nullptr;  // it, its board and plates
  AmountSelector* amounts = nullptr;
  DockArea* docks = nullptr;                                  // the table and its sides; null: nothing docks
  TableCommands commands = {};                                // what the next click on the table means
  std::array<QPointer<ToolWindow>, kToolWindows> tools = {};  // those that have been opened
  std::span<const ToolRow> toolRows = {};
  std::function<void(ToolWindow&)> toolMade = {};  // one that docks has been made
  // Make windows in place of, or beside, those of the table; for tests.
  std::array<ToolWindow* (*)(Desk&), kToolWindows> toolMakers = {};
  bool refreshing = false;  // a tool window is being brought to the state
  bool refreshDue = false;  // and it has changed meanwhile
  // Gives what is printed on without asking; empty: the desktop's printer.
  std::function<std::unique_ptr<QPrinter>()> printer = {};
  QStringList recentGames = {};       // the latest first
  const char* view = "";              // the command whose view is shown; "" none of them
  SavedView beforePropositions = {};  // what was shown before them; empty while they aren't shown
  SeatId movingSeat = 0;              // the player who waits for a new place; 0 none
  bool keeps = true;                  // the data folder can be written
  // Brings commands, controls and tool windows to the state, at once.
  std::function<void()> refresh = {};
  // Another game has been opened: everything is shown anew.
  std::function<void()> showGame = {};
};

// The view has changed, by the command named or, with "", by any other way.
void ShowView(Desk& desk, const char* command);

}  // namespace tessaryn
