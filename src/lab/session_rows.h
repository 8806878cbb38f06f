// What is kept of single sessions: a row for each session and system, sessions in order, in a file that grows
// beside the experiment's own. CSV and Sessions Logs are written from it at the end.
//
// Errors are texts that name the file and the reason; an empty text is success.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "lab/lab_state.h"

namespace tessaryn {

struct SessionRows {
  std::string path;           // empty: a file of nobody's, gone with the program
  std::FILE* file = nullptr;  // null: all rows stay in the buffer
  RowsKept kept;              // what is in the file and the buffer
  std::string buffer;         // not written yet
  std::string fault;          // what went wrong in writing; nothing more is written then
  std::size_t systems = 0;

  SessionRows() = default;
  SessionRows(const SessionRows&) = delete;
  SessionRows& operator=(const SessionRows&) = delete;
  ~SessionRows();
};

// The rows' file of an experiment's file.
std::string RowsPathOf(const std::string& labPath);

// A new file, for what state keeps, or the file of a state that is gone on with: rows behind those that the
// state knows are cut off.
std::string OpenRows(SessionRows& rows, const std::string& path, const LabState& state);
// The rows of one session and system, in order. Faults are told by FlushRows.
void AddRow(SessionRows& rows, const SessionResult& result, const Record& record);
// A session is complete with all its systems.
inline void CloseSession(SessionRows& rows) { ++rows.kept.sessions; }
// Those of a piece, behind the rows that are there.
void AddPieceRows(SessionRows& rows, const LabPiece& piece);
// Everything to the disk.
std::string FlushRows(SessionRows& rows);
// The rows of another file behind those that are there.
std::string AppendRows(SessionRows& rows, SessionRows& other);

// A row's line, in numbers.
struct SessionLine {
  Currency net;
  Currency handle;
  Currency maxDrawdown;
  Currency highest;
  double luck = 0;  // dollars, as well as a double holds them
  double price = 0;
  std::int64_t rolls = 0;
  std::int64_t hands = 0;
  int marks = 0;  // SessionMark
};
// In the order of the rows. Requires lines that are kept.
std::string ForEachLine(SessionRows& rows, const std::function<void(const SessionLine&)>& visit);

// The first session of the rows is first (from 0). Requires flushed rows that hold what is asked for.
std::string WriteRowsAsCsv(SessionRows& rows, const Experiment& experiment, const std::string& path);
// A log for the system: "evening.slg" for one alone, else "evening.1.slg" ...
std::string SessionsLogOf(const std::string& path, std::size_t system, std::size_t systems);
std::string WriteRowsAsLogs(SessionRows& rows, const std::string& path);

}  // namespace tessaryn
