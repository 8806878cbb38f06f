// The end of the program: its questions, in their order, and what is written last.
#pragma once

#include <string>

namespace tessaryn {

struct Desk;

// What runs, unsaved scripts, unsaved probabilities. False keeps the program running.
bool MayClose(Desk& desk);
// Asks whether to save the percentage dice if they have been edited. False: what would lose them must not
// go on.
bool SaveProbabilitiesFirst(Desk& desk);
// Writes and closes every file of the game. The problem is a text; empty for none.
std::string WriteFinalFiles(Desk& desk);

}  // namespace tessaryn
