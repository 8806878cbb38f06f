// A fresh start at the same table.
#pragma once

namespace tessaryn {

struct Game;

enum RollFileChoice : int { kCloseRollFile = 0, kRewindRollFile = 1, kContinueRollFile = 2 };

// Clears the table for a new session. Makes no checks and asks no questions but for the bankrolls of seats
// that want to be asked.
void NewSession(Game& game, bool keepPrevSessions, bool keepCheckstacks, bool keepSessionsLogs,
                int rollFileChoice);

}  // namespace tessaryn
