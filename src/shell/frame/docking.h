// What can be done with every tool window: its table and picture taken elsewhere, and the window put in its
// place. The same entries stand in a line over it while it is a window, behind the button of its dock's
// title, and in the menu of the right button.
#pragma once

#include <QPoint>
#include <Qt>
#include <optional>
#include <string>

class QMenu;
class QWidget;

namespace tessaryn {

struct Desk;
class ToolWindow;

// Makes the entries and their keys; once for a window.
void GiveToolMenu(Desk& desk, ToolWindow& window);
// The line over the window, which a dock's title stands for.
void ShowToolMenu(ToolWindow& window, bool shown);
// All entries, for a dock's title.
QMenu* DockMenu(Desk& desk, ToolWindow& window, QWidget* parent);

// --- At the table's sides.

bool MayDock(const Desk& desk, int number);
// Moves the window to the side and shows it; behind a tab where the side has no room for one more. Without
// docks, and for a window that doesn't dock, nothing happens.
void DockTool(Desk& desk, int number, Qt::DockWidgetArea side);
// Makes it a window of its own, shown if it was.
void FloatTool(Desk& desk, int number, std::optional<QPoint> corner = {});

// How docks and tabs stand, as text; empty when none is docked.
std::string KeptArrangement(const Desk& desk);
// The windows that the text docks are docked as it says, all others are windows of their own. A text that
// isn't whole docks none.
void RestoreArrangement(Desk& desk, const std::string& text);

// Their places into the game, and from it: those that were open are opened, where they were.
void KeepTools(Desk& desk);
void PlaceTools(Desk& desk);

}  // namespace tessaryn
