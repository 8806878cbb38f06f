// The tool windows: a row for each in the table of tool_windows.cpp, by which commands and game files know
// it.
#pragma once

namespace tessaryn {

struct Desk;
class ToolWindow;

inline constexpr const char* kRollPadWindow = "frmRYON";
inline constexpr const char* kMoveWindow = "frmMove";

// The window of the name, made when it isn't there yet.
ToolWindow& Tool(Desk& desk, const char* name);
// Shows it, or hides it when it is shown.
void ToggleTool(Desk& desk, const char* name);
bool ToolIsShown(const Desk& desk, const char* name);
// Those that are shown are brought to the state.
void RefreshTools(const Desk& desk);

// Asks where to, and does it. What is wrong is told.
void PrintRows(const ToolWindow& window);
void ExportRows(Desk& desk, ToolWindow& window);

}  // namespace tessaryn
