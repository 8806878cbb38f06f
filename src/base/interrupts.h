// The signals that ask a program to end: SIGINT (Ctrl-C), SIGTERM, SIGHUP and SIGPIPE. A signal is only noted
// here. Whatever takes long (a run, reading a file, compiling a script) looks at the note and stops as it
// would at the user's wish, so that every file is then written and closed in the one way, by EndGame.
//
// Signals belong to the process, and so does the note.
#pragma once

#include <string>

namespace tessaryn {

// Begins to note them. A system call that waits comes back when one arrives, and again every second after
// that, so that none is missed. Writing to a pipe without a reader, or beyond the allowed size of a file, is
// then an error of the write like any other. SIGHUP stays ignored where the program was started so.
// wake, if not -1, is a descriptor that gets a byte written with every signal.
void NoteSignals(int wake = -1);

// The signal that was noted; 0 none.
int NotedSignal();
inline bool Interrupted() { return NotedSignal() != 0; }
// For a prompt that goes on after a run that Ctrl-C has stopped.
void ForgetSignal();

// "Stopped by Ctrl-C.", "Stopped by SIGTERM.": what a run that ended tells.
std::string SignalReason();
// What the program ends with: 128 and the signal's number, as shells count.
inline int SignalExitCode() { return 128 + NotedSignal(); }

}  // namespace tessaryn
