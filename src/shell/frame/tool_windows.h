// The tool windows that are there, by the number that commands and game files know them by
// (ToolWindowNumber).
#pragma once

namespace tessaryn {

struct Desk;
struct ScreenState;
struct WindowPlace;
class ToolWindow;

// Whether there is one of the number, and whether it may stand at the table's sides as well.
bool HasTool(const Desk& desk, int number);
bool DocksAsWell(const Desk& desk, int number);
// The window of a number, made when it isn't there yet. Requires HasTool.
ToolWindow& Tool(Desk& desk, int number);
// Where it is kept.
WindowPlace& KeptPlace(ScreenState& screen, int number);
// -1 for a window that is none of them.
int NumberOf(const Desk& desk, const ToolWindow& window);
void ShowTool(Desk& desk, int number, bool shown);
// Shows it, or hides it when it is shown.
void ToggleTool(Desk& desk, int number);
bool ToolIsShown(const Desk& desk, int number);
// Those that can be seen are brought to the state. Not while one of them is at it.
void RefreshTool(Desk& desk, int number);
void RefreshTools(Desk& desk);

}  // namespace tessaryn
