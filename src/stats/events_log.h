// The journal of the game: one line an event, with a binary index beside it. Part of the table's record, not
// a debug log: the lines are exact.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/money.h"
#include "state/events_log_state.h"
#include "state/game.h"
#include "stats/log_line.h"

namespace tessaryn {

inline constexpr const char* kEventsLogName = "Events Log.txt";
inline constexpr const char* kEventsIndexName = "Events Log.ref";

// The paths in force.
std::string EventsLogPath(const Game& game);
std::string EventsIndexPath(const Game& game);

// The only writer. Does nothing while recording is off. A file that can't be written stops a run and is told
// once; its lines wait, and are tried again after every roll that a user asks for.
void WriteEventsLogLine(Game& game, std::string_view text);
// The same of a line that was formed in its place, which gets its end there.
void WriteWholeLine(Game& game, LogLine& line);
// A line by its message. Nothing is formed while recording is off.
template <Msg kId, typename... Arguments>
void WriteLogLine(Game& game, const Arguments&... arguments) {
  if (!game.events.RecordEventsActive) return;
  LogLine line;
  FormLogLine<kId>(line, game.settings.Language, arguments...);
  WriteWholeLine(game, line);
}
// Brings the files up to date and closes them: at the end of a roll that a user asked for, at every yield
// that lets others look, and before any other procedure touches the files.
void FlushEventsLog(Game& game);
// The same at the end of a game: what could not be written is returned, not told.
std::string CloseEventsLog(Game& game);

// Deletes the index and makes it anew from the text file. False, with text, on a file error.
bool RebuildEventsLogIndex(Game& game, std::string& error);
// Lines in the index, rebuilt first if it is missing or does not belong to the text file.
std::int64_t EventsLogLineCount(Game& game);
// Line 1 and up; empty beyond the end. No line break.
std::string ReadEventsLogLine(Game& game, std::int64_t line);
// Both files away; the view at line 1.
void ClearEventsLog(Game& game);
// Whether the index is there and of the text file, so that it tells where every line begins.
bool EventsIndexFits(const Game& game);
// The New and Open commands. New asks first when the log has its default name; kRenameFirst: the
// user wants to keep it, and the screen goes on to Save As and then to StartEventsLog. The index of a text of
// more than 64 MB is made when it is first needed.
enum class NewEvents { kCancelled, kRenameFirst, kStarted };
NewEvents NewEventsLog(Game& game);
// The log is the default one, and empty.
void StartEventsLog(Game& game);
bool OpenEventsLog(Game& game, const std::string& path, std::string& error);
// All eight classes on or off.
void RecordAllEvents(EventsLog& log, bool on);

// --- The lines of each event, in their groups.
void LogSessionStart(Game& game);
void LogChangesBeforeRoll(Game& game);
enum class RollSource { kPad, kFile, kGenerator };
void LogRoll(Game& game, RollSource source);
void LogWinOrLoss(Game& game, SeatId seat, BetId bet, Currency net);
void LogBetMoved(Game& game, SeatId seat, BetId fromBet, BetId toBet);
void LogBankrollChanges(Game& game);
void LogHandEnd(Game& game);
// Playback of the open dice roll file was turned on during play.
void LogPlayback(Game& game);
void LogJoined(Game& game, SeatId seat);
void LogPlayerMoved(Game& game, SeatId seat);

}  // namespace tessaryn
