// The tool windows: a row for each in the table of tool_rows.cpp, with the number by which commands and game
// files know it (ToolWindowNumber).
#pragma once

#include <span>

namespace tessaryn {

struct ToolRow;

std::span<const ToolRow> ToolRows();

}  // namespace tessaryn
