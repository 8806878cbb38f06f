// The files that a table writes while it plays: the Events Log, the Sessions Logs, the recording, what
// scripts put out.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// Brings the log and the recording to the same roll. What can't be written is told once and stops the run.
void FlushTableFiles(Game& game);
// The recorder could not write (LastErrorText): it goes off, the run stops, and it is told once.
void ReportRecorderFault(Game& game);
// The one way in which a table ends, whatever ends it: run and scripts stop, then every file is written and
// closed. The error names what is not on the disk; empty when all is.
std::string EndGame(Game& game);

}  // namespace tessaryn
