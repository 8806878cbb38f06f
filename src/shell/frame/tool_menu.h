// What can be done with every tool window: its table and picture taken elsewhere, and the window put in its
// place. The same entries stand in a line over it while it is a window, behind the button of its dock's
// title, and in the menu of the right button.
#pragma once

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

}  // namespace tessaryn
