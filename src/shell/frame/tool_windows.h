// The tool windows: a row for each in the table of tool_windows.cpp, with the number by which commands and
// game files know it (ToolWindowNumber).
#pragma once

namespace tessaryn {

struct Desk;
class ToolWindow;

// Whether there is one of the number, and whether it may stand at the table's sides as well.
bool HasTool(const Desk& desk, int number);
bool DocksAsWell(const Desk& desk, int number);
// The window of a number, made when it isn't there yet. Requires HasTool.
ToolWindow& Tool(Desk& desk, int number);
// -1 for a window that is none of them.
int NumberOf(const Desk& desk, const ToolWindow& window);
void ShowTool(Desk& desk, int number, bool shown);
// Shows it, or hides it when it is shown.
void ToggleTool(Desk& desk, int number);
bool ToolIsShown(const Desk& desk, int number);
// Those that can be seen are brought to the state. Not while one of them is at it.
void RefreshTool(Desk& desk, int number);
void RefreshTools(Desk& desk);
// Their places into the game, and from it: those that were open are opened, where they were.
void KeepTools(Desk& desk);
void PlaceTools(Desk& desk);

}  // namespace tessaryn
