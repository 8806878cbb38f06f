// The end of the program: its questions, in their order, and what is written last.
#pragma once

#include <string>

namespace tessaryn {

struct Desk;

// Asks to stop what runs. False keeps the program running.
bool StopRunFirst(Desk& desk);
// Unsaved scripts, then unsaved percentage dice. False: what would lose them must not go on.
bool SaveOwnFilesFirst(Desk& desk);
bool SaveProbabilitiesFirst(Desk& desk);
// All questions but the first, in their order. False keeps the program running.
bool MayClose(Desk& desk);

// Writes the default game and the hot-keys. What can't be written is told, and whether to close all the same
// is asked. False keeps the program running.
bool KeepGame(Desk& desk);
// The same where nobody can be asked: what can't be written is returned as a text. Unsaved scripts and
// percentage dice are part of the default game.
std::string KeepGameUnasked(Desk& desk);
// Closes every file of the game and removes what was made for the run of the program alone. The problem is a
// text; empty for none.
std::string CloseFiles(Desk& desk);

}  // namespace tessaryn
