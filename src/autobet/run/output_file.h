// The files that scripts write. People pass scripts around, so a script reaches no further than a folder that
// holds nothing else, made when it is first needed, and the folders that the user allowed for the run.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

inline constexpr const char* kScriptOutputFolder = "output";  // in Game::ownFolder

// The path that a script's file name means. False for a name that leads outside the allowed folders, or to a
// file that a program runs.
bool ResolveOutputPath(const Game& game, const std::string& name, std::string& path);
// Opens the seat's output file; one that is open is closed first. False when it can't be, and for a file that
// another player's script has written.
bool OpenScriptOutput(Game& game, SeatId seat, const std::string& name, bool append);
// A line. False with no file open, or when it could not be written.
bool WriteScriptOutput(Game& game, SeatId seat, const std::string& text);
// Everything written so far goes to the disk's files.
void FlushScriptOutputs(Game& game);

}  // namespace tessaryn
