// What a tool window shows, as files and on the clipboard. What goes wrong is told.
#pragma once

#include <string>

namespace tessaryn {

struct Desk;
class ToolWindow;

// The table as comma-separated values, the picture as points or as a drawing; each asks for the file.
void ExportRows(Desk& desk, ToolWindow& window);
void ExportPng(Desk& desk, ToolWindow& window);
void ExportSvg(Desk& desk, ToolWindow& window);
// The table as text with tabs, and the picture.
void CopyTool(Desk& desk, ToolWindow& window);

// What a file of it is first named.
std::string FileNameFor(const ToolWindow& window);

}  // namespace tessaryn
