// The Sessions Logs: what their screen shows, and the files while they are open.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/record_file.h"
#include "base/table_types.h"

namespace tessaryn {

// An open log. Nothing of it waits in memory: it is right whenever another program looks.
struct SessionsLogFile {
  int Descriptor = -1;  // -1: closed
  std::string Path;
  std::uint64_t Device = 0;  // which file the descriptor is of
  std::uint64_t Inode = 0;

  SessionsLogFile() = default;
  SessionsLogFile(const SessionsLogFile&) = delete;
  SessionsLogFile& operator=(const SessionsLogFile&) = delete;
  ~SessionsLogFile();
};

// A session that could not be written, and where it belongs.
struct WaitingSession {
  std::string Path;
  Record Session;
};

// What this program has put into a seat's log.
struct SessionsTally {
  std::int64_t Sessions = 0;
  std::int64_t Won = 0;
  std::int64_t BrokeEven = 0;
  std::int64_t Lost = 0;
  Currency Net;
  Currency Handle;
};

// Of a program rather than of its game. Written by sessions_log.cpp.
struct SessionsLogFiles {
  SessionsLogFile Seats[kSeatRows];
  SessionsTally Tally[kSeatRows];
  std::vector<WaitingSession> Waiting;  // in their order; tried again
  std::string Fault;                    // not told yet
  std::string FaultTold;                // empty while writing works
  bool Off = false;                     // in the copy of a game, whose sessions are nobody's
  bool Calculating = false;             // a computation is on; a second one doesn't begin
};

enum class OutlierRule {
  kNone,
  kByValue,       // OutlierLow and OutlierHigh are values of the measure
  kByDeviations,  // they are standard deviations from the mean of the included classes
};

struct SessionsLogs {
  SeatId SessionsSeat = 0;      // 0 nobody
  int SessionsStat = 8;         // the measure, a field 0 to 11
  int SessionsDisplayMode = 0;  // 0 " Histogram", 1 " Data"
  Currency BreakPointLow;       // a net below is Lost, ...
  Currency BreakPointHigh;      // ... one above Won, else Broke-even
  bool IncludeWon = true;
  bool IncludeBrokeEven = true;
  bool IncludeLost = true;
  OutlierRule Outliers = OutlierRule::kNone;
  Currency OutlierLow;
  Currency OutlierHigh;
  std::int64_t SessionsTopRow = 1;  // the session at the top of the data
  int GraphBarWidth = 0;            // 0 "&Fine" to 3 "&Extra wide"
  Currency FindValue;               // what was looked for last
  Unshared<SessionsLogFiles> Files;
};
TESSARYN_FIELDS(SessionsLogs, SessionsSeat, SessionsStat, SessionsDisplayMode, BreakPointLow, BreakPointHigh,
                IncludeWon, IncludeBrokeEven, IncludeLost, Outliers, OutlierLow, OutlierHigh, SessionsTopRow,
                GraphBarWidth, FindValue, Files)

}  // namespace tessaryn
