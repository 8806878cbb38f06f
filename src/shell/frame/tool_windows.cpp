#include "shell/frame/tool_windows.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "shell/frame/desk.h"
#include "shell/frame/docks.h"
#include "state/game.h"

namespace tessaryn {
namespace {

const ToolRow* RowOf(const Desk& desk, int number) {
  for (const ToolRow& row : desk.toolRows)
    if (row.number == number) return &row;
  return nullptr;
}

ToolWindow* Make(Desk& desk, int number) {
  if (desk.toolMakers[number] != nullptr) return desk.toolMakers[number](desk);
  const ToolRow* row = RowOf(desk, number);
  return row != nullptr ? row->make(desk) : nullptr;
}

}  // namespace

bool HasTool(const Desk& desk, int number) {
  return desk.toolMakers[number] != nullptr || RowOf(desk, number) != nullptr;
}

bool DocksAsWell(const Desk& desk, int number) {
  if (!HasTool(desk, number)) return false;
  const ToolRow* row = RowOf(desk, number);
  return row == nullptr || !row->floatsOnly;
}

ToolWindow& Tool(Desk& desk, int number) {
  QPointer<ToolWindow>& tool = desk.tools[number];
  if (tool != nullptr) return *tool;
  tool = Make(desk, number);
  tool->SetPlace(KeptPlace(desk.game.screen, number));
  if (DocksAsWell(desk, number) && desk.toolMade) desk.toolMade(*tool);
  return *tool;
}

int NumberOf(const Desk& desk, const ToolWindow& window) {
  const auto found = std::find(desk.tools.begin(), desk.tools.end(), &window);
  return found == desk.tools.end() ? -1 : static_cast<int>(found - desk.tools.begin());
}

void ShowTool(Desk& desk, int number, bool shown) {
  ToolWindow& tool = Tool(desk, number);
  ToolDock* dock = DockOf(desk, number);
  if (dock == nullptr) return tool.setVisible(shown);
  dock->setVisible(shown);
  if (shown) dock->raise();
}

// One that stands behind a tab comes before it.
void ToggleTool(Desk& desk, int number) {
  const ToolDock* dock = DockOf(desk, number);
  const bool behind = dock != nullptr && !dock->IsInFront();
  ShowTool(desk, number, behind || !ToolIsShown(desk, number));
}

bool ToolIsShown(const Desk& desk, int number) {
  if (const ToolDock* dock = DockOf(desk, number); dock != nullptr) return !dock->isHidden();
  return desk.tools[number] != nullptr && desk.tools[number]->isVisible();
}

namespace {

bool IsSeen(const Desk& desk, int number) {
  const ToolDock* dock = DockOf(desk, number);
  return ToolIsShown(desk, number) && (dock == nullptr || dock->IsInFront());
}

}  // namespace

// What a window looks up may let events in, and with them another refresh: that comes behind.
void RefreshTool(Desk& desk, int number) {
  if (!IsSeen(desk, number)) return;
  if (std::exchange(desk.refreshing, true)) {
    desk.refreshDue = true;
    return;
  }
  desk.tools[number]->Refresh();
  if (DockOf(desk, number) != nullptr) SetAccessKeys(*desk.tools[number], false);
  desk.refreshing = false;
  if (std::exchange(desk.refreshDue, false))
    QTimer::singleShot(0, desk.window, [&desk] { RefreshTools(desk); });
}

void RefreshTools(Desk& desk) {
  for (int number = 0; number < kToolWindows; ++number) RefreshTool(desk, number);
}

WindowPlace& KeptPlace(ScreenState& screen, int number) {
  return number < kRecordedWindows ? screen.ToolWindows[number]
                                   : screen.FurtherPlaces[number - kRecordedWindows];
}

}  // namespace tessaryn
