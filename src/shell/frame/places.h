// How the user has the windows and the view of the table, between the window and the game, which keeps it.
#pragma once

namespace tessaryn {

struct Desk;

// From the window into the game; to be called before the game is written.
void KeepScreen(Desk& desk);
// From the game to the window: the main window's place, which is moved onto a screen that is there. Without a
// place, or on a first start, as large as the screen has room for.
void PlaceMainWindow(Desk& desk);
// The rest: the view, what is shown, and the tool windows. Requires that the window is shown.
void ShowScreen(Desk& desk);

}  // namespace tessaryn
