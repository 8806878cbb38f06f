// The tool windows: a row for each in the table of tool_windows.cpp, with the number by which commands and
// game files know it (ToolWindowNumber).
#pragma once

namespace tessaryn {

struct Desk;
class ToolWindow;

// The window of a number, made when it isn't there yet.
ToolWindow& Tool(Desk& desk, int number);
// Shows it, or hides it when it is shown.
void ToggleTool(Desk& desk, int number);
bool ToolIsShown(const Desk& desk, int number);
// Those that are shown are brought to the state.
void RefreshTools(const Desk& desk);
// Their places into the game, and from it: those that were open are opened.
void KeepTools(Desk& desk);
void PlaceTools(Desk& desk);

// Asks where to, and does it. What is wrong is told.
void PrintRows(const ToolWindow& window);
void ExportRows(Desk& desk, ToolWindow& window);

}  // namespace tessaryn
