// A Sessions Log as a file: a header and a record for each session. Every change is whole at every moment: a
// record is written before the header counts it, and a deletion that was cut short is gone on with as soon as
// somebody opens the log again. Programs that have one log open don't disturb each other.
//
// Errors are texts that name the file and the reason; an empty text is success. After an error the log is as
// it was, but for a deletion under way.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/record_file.h"
#include "state/sessions_log_state.h"

namespace tessaryn {

inline constexpr std::int64_t kMostSessions = 2'147'483'647;  // what the header can count

// The fields of a session by their numbers; what screens select by.
enum SessionField : int {
  kSessionRolls = 0,
  kSessionBetsDecided = 1,
  kSessionBetsWon = 2,
  kSessionBetsLost = 3,
  kSessionBetsNet = 4,
  kSessionHandle = 5,
  kSessionWon = 6,
  kSessionLost = 7,
  kSessionNet = 8,
  kSessionAdvantage = 9,
  kSessionInvested = 10,
  kSessionEnding = 11,
  kSessionStacks = 12,  // the first of twenty
};
inline constexpr int kSessionMeasures = 12;  // fields that can be selected
inline constexpr int kSessionFields = 32;
inline constexpr int kSessionStackFields = kSessionFields - kSessionStacks;

// The field of a record.
inline Currency SessionValue(const Record& record, int field) {
  return GetCurrency(record, static_cast<std::size_t>(field) * 8);
}
inline void PutSessionValue(Record& record, int field, Currency value) {
  PutCurrency(record, static_cast<std::size_t>(field) * 8, value);
}

enum class SessionsAccess { kRead, kChange, kCreate };

// Opens a log and sees that it is one. kCreate: one that isn't there is made, without sessions. A pipe or
// device is none. On failure the file is closed.
std::string OpenSessionsFile(SessionsLogFile& file, const std::string& path, SessionsAccess access);
void CloseSessionsFile(SessionsLogFile& file);

// The record that a log of so many sessions begins with, for who writes a whole one. Requires count up to
// kMostSessions.
Record SessionsLogHeader(std::int64_t count);
// How many sessions the log holds now.
std::string CountSessions(SessionsLogFile& file, std::int64_t& count);
// Sessions first (from 1) to first + count - 1 into records. Requires that the log holds them.
std::string ReadSessions(const SessionsLogFile& file, std::int64_t first, std::size_t count,
                         std::vector<Record>& records);

// The records first to last, in their order and a block at a time: visit(record, its number). goOn is asked
// after every block, and ends the walk with an error text of its own; empty: on.
using SessionsGoOn = std::function<std::string(std::int64_t)>;  // how many are done
template <typename Visit>
std::string ForEachSession(const SessionsLogFile& file, std::int64_t first, std::int64_t last, Visit&& visit,
                           const SessionsGoOn& goOn = {}) {
  constexpr std::int64_t kBlock = 2'048;  // half a megabyte
  std::vector<Record> records;
  for (std::int64_t at = first; at <= last; at += kBlock) {
    const std::int64_t count = last - at + 1 < kBlock ? last - at + 1 : kBlock;
    if (std::string error = ReadSessions(file, at, static_cast<std::size_t>(count), records); !error.empty())
      return error;
    for (std::int64_t i = 0; i < count; ++i) visit(records[static_cast<std::size_t>(i)], at + i);
    if (goOn)
      if (std::string stopped = goOn(at + count - first); !stopped.empty()) return stopped;
  }
  return {};
}

// Opened by kChange or kCreate from here on. A log that was deleted or replaced meanwhile is made or opened
// anew by an append.
std::string AppendSession(SessionsLogFile& file, const Record& session);
// All sessions of another log, or those from one on, behind its own, or none of them.
std::string AppendSessionsOf(SessionsLogFile& file, SessionsLogFile& other, std::int64_t from = 1);
// Sessions first to last out; those above move down in place.
std::string DeleteSessionRange(SessionsLogFile& file, std::int64_t first, std::int64_t last);
// A header without sessions; what it counted stays in the file, unreachable.
std::string DeleteEverySession(SessionsLogFile& file);
// A copy under another name, put in place when it is whole. Of the same file: nothing. copied: how many
// sessions it has.
std::string CopySessionsLog(SessionsLogFile& file, const std::string& path, std::int64_t* copied = nullptr,
                            const SessionsGoOn& goOn = {});

// What a log becomes: without its sessions First to Last, if First isn't 0, and with all of another log's
// behind its own, if Other names one.
struct SessionsChange {
  std::int64_t First = 0;
  std::int64_t Last = 0;
  std::string Other;
};
// Changes a log of any size beside the program: it is written anew beside the old one, which others go on
// adding to meanwhile, and put in its place when it is whole. goOn's text ends it before that.
std::string RewriteSessionsLog(const std::string& path, const SessionsChange& change,
                               const SessionsGoOn& goOn);

}  // namespace tessaryn
