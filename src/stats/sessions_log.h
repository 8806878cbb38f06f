// The players' Sessions Logs: a record for every session that ended, kept across games, and the commands of
// their screen.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stats/sessions_statistics.h"

namespace tessaryn {

struct Game;

// A player's log by default: the lower-case name and ".slg" in the table's own folder.
std::string DefaultSessionsLogName(const Game& game, std::string_view playerName);
// The log of a seat with a player. While another program has the data folder, default logs lie in the own
// one.
std::string SessionsLogPath(const Game& game, SeatId seat);

// --- At the table.

// The session as it stands, for the log.
Record SessionOf(Game& game, SeatId seat);
// Puts the session that ends into the seat's log, if it has rolls. What can't be written waits, is tried
// again, and is told by TellSessionsLogFault as soon as the table may be looked at.
void AppendSessionRecord(Game& game, SeatId seat);
// A fault stops a run, since its log would be lacking; a user who goes on is told once.
void TellSessionsLogFault(Game& game);
// Tries again what waits. Costs nothing when nothing does.
void WriteWaitingSessions(Game& game);
// A new session that keeps no logs: every player's log is the default one again, and there is none of that
// name. What could not be deleted is returned.
std::string RemoveSessionsLogs(Game& game);
// At the end of a game: what could not be written is returned, not told.
std::string CloseSessionsLogs(Game& game);

// --- The screen. Each takes a seat with a player; errors are texts, empty for success.

// Computes what the screen shows of SessionsSeat by its choices. A log that isn't there yet is an empty one.
// Faults are told. False, with statistics cleared, for a fault, without a seat, or while a computation is on.
bool UpdateSessionsLog(Game& game, SessionsStatistics& statistics);

enum class NewLog { kCancelled, kRenameFirst, kStarted };
// A seat's log begins anew. kRenameFirst: the user wants to keep the old log, and the screen goes on to Save
// As.
NewLog NewSessionsLog(Game& game, SeatId seat);
NewLog NewAllSessionsLogs(Game& game);
// After kRenameFirst: the default log goes to the path, and a new one begins.
std::string KeepSessionsLogAs(Game& game, SeatId seat, const std::string& path);
std::string OpenSessionsLog(Game& game, SeatId seat, const std::string& path);
// The log goes on under the new name; the old file stays.
std::string SaveSessionsLogAs(Game& game, SeatId seat, const std::string& path);
// The file moves. One that is there already is not replaced.
std::string RenameSessionsLog(Game& game, SeatId seat, const std::string& path);
std::string MergeSessionsLog(Game& game, SeatId seat, const std::string& path);
// After a copy of so many sessions was made beside the game: what the log has got since goes behind them, and
// the log goes on under the new name or, with keepName, begins anew under its own.
std::string UseSessionsLogCopy(Game& game, SeatId seat, const std::string& path, std::int64_t copied,
                               bool keepName);

// These ask, and tell what went wrong. Whether something has changed.
bool DeleteAllSessions(Game& game, SeatId seat);
bool DeleteSessions(Game& game, SeatId seat);
// The question of the last alone: sessions first to last, as they were typed.
bool AskDeleteSessions(Game& game, std::int64_t& first, std::int64_t& last);
bool SetBreakPoint(Game& game);
// Looks from the top session on for FindValue, by ask for a value that is typed first. step 1 or -1.
bool FindSession(Game& game, bool ask, int step);
// "-50 - 50"; empty without a range.
std::string BreakPointLabel(const SessionsLogs& screen);

// A line of the data.
struct SessionsRow {
  std::int64_t Number = 0;
  Currency Rolls;
  Currency Outcome;  // the measure
  bool Included = false;
  double Deviations = 0;  // from the mean
};
// As many as there are of count from the top session on. statistics: of the last computation.
std::string ReadSessionsRows(Game& game, const SessionsStatistics& statistics, std::size_t count,
                             std::vector<SessionsRow>& rows);

}  // namespace tessaryn
