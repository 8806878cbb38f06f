// The commands of the menu, as tables by subject. A new screen adds its row; nothing else needs to know it.
#pragma once

#include <QString>
#include <QtGlobal>
#include <span>

class QMenu;

namespace tessaryn {

struct Desk;
struct ScriptStep;

// What a command does about a run or a script that is on.
enum class InRun {
  kGoesOn,    // nothing
  kAsksFirst  // asks whether to stop it; the command goes on only when nothing runs
};

// A menu entry. Without a name it is a line between two groups.
struct CommandRow {
  const char* name = nullptr;
  const char* caption = nullptr;
  // A shortcut as text. A plain key without a modifier is heeded only where nothing is typed.
  const char* key = nullptr;
  InRun run = InRun::kGoesOn;
  void (*act)(Desk&) = nullptr;            // null: ends the program
  bool (*can)(const Desk&) = nullptr;      // null: always
  bool (*ticked)(const Desk&) = nullptr;   // null: the entry is not one that can be ticked
  QString (*text)(const Desk&) = nullptr;  // a caption that follows the state
  // The entry is a menu of its own, made anew from this before it opens.
  void (*fill)(Desk&, QMenu&) = nullptr;
};

struct CommandMenu {
  const char* title;
  std::span<const CommandRow> commands;
};

// All of them, in the order of the menu bar.
std::span<const CommandMenu> CommandMenus();
template <typename Work>
void ForEachCommand(const Work& work) {
  for (const CommandMenu& menu : CommandMenus())
    for (const CommandRow& command : menu.commands)
      if (command.name != nullptr) work(command);
}

std::span<const CommandRow> GameCommands();
std::span<const CommandRow> PlayerCommands();
std::span<const CommandRow> BetCommands();
std::span<const CommandRow> DiceCommands();
std::span<const CommandRow> ScriptCommands();
std::span<const CommandRow> StatisticsCommands();
std::span<const CommandRow> ViewCommands();
std::span<const CommandRow> HelpCommands();

// A statement of a script was carried out, and somebody wants to see it: in the workshop, which is opened.
void ShowScriptStep(Desk& desk, const ScriptStep& step);

void UndoBet(Desk& desk);
void RedoBet(Desk& desk);
// Whether what the command changes in bets can be taken back.
bool ChangesBets(const CommandRow& command);

// Keys without a modifier stay free for entry boxes; 0 for a shortcut with one.
int PlainKeyCode(const char* key);
// The command of such a key; null for none.
const CommandRow* PlainKeyCommand(int key);

// --- When a command can act.

// No roll is under way, or one of a run, which can be asked to stop.
bool IsFree(const Desk& desk);
// The same, and a player is selected.
bool HasPlayer(const Desk& desk);
bool HasOpenPlace(const Desk& desk);
bool HasBets(const Desk& desk);

}  // namespace tessaryn
