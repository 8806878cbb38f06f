// What the Events Log records, and its files while they are open.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "base/fields.h"

namespace tessaryn {

// Open while lines come fast; FlushEventsLog brings both files up to date.
struct EventsLogFiles {
  std::FILE* textFile = nullptr;
  std::FILE* indexFile = nullptr;
  std::string textBuffer;
  std::string indexBuffer;
  std::int64_t textLength = 0;  // of the text file with the buffer
  std::int64_t lineCount = 0;   // of the index with the buffer
  std::size_t failedAt = 0;     // bytes of text that waited when writing last failed; 0 while it works
};

struct EventsLog {
  // --- Choices of the user.
  bool RecordEventsActive = false;  // the master switch
  bool RecordRolls = true;
  bool RecordBetChanges = true;
  bool RecordBetsWon = true;
  bool RecordBetsLost = true;
  bool RecordCheckStackChanges = true;
  bool RecordPassesMisses = true;
  bool RecordShooterChanges = true;
  bool RecordBankrollChanges = true;
  bool ClearLogOnNewSession = false;
  bool KeepLatestRollOnTop = true;
  // --- The view.
  std::int32_t EventsLogTopLine = 1;  // 1-based
  // --- The files. Written by events_log.cpp.
  std::string Path;                    // of the text file; empty: the default name in the data folder
  std::string_view PendingLogHeading;  // a group heading, a literal, that is not written yet; empty for none
  bool ScriptActiveLogged[9] = {};     // what the log has told of each script
  std::string FaultReported;           // the write error that was reported; empty while writing works
  bool Held = false;                   // lines wait in memory: no file is touched before all is found good
  Unshared<EventsLogFiles> Files;

  EventsLog() = default;
  ~EventsLog();
  EventsLog(const EventsLog&) = default;
  EventsLog& operator=(const EventsLog&) = delete;
};
TESSARYN_FIELDS(EventsLog, RecordEventsActive, RecordRolls, RecordBetChanges, RecordBetsWon, RecordBetsLost,
                RecordCheckStackChanges, RecordPassesMisses, RecordShooterChanges, RecordBankrollChanges,
                ClearLogOnNewSession, KeepLatestRollOnTop, EventsLogTopLine, Path, PendingLogHeading,
                ScriptActiveLogged, FaultReported, Held, Files)

}  // namespace tessaryn
