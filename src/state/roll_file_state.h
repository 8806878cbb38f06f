// The dice roll file that is open, and how the recorder stands to it.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/fields.h"

namespace tessaryn {

enum RecorderMode : int { kRecorderOff = 0, kRecorderRecord = 1, kRecorderPlayback = 2 };

inline constexpr std::size_t kRollWindowBytes = 65'536;
inline constexpr const char* kDefaultRollFormat = "Roll# (Die1.Die2) Total";

// The open file and the part of it that is in memory: rolls read ahead, or rolls recorded but not written.
struct RollFileChannel {
  int Descriptor = -1;
  bool ReadOnly = false;
  bool IsWriter = false;         // no other program may write to the file now
  bool Pending = false;          // the window is recorded rolls; else it is rolls read ahead
  std::int32_t Length = 0;       // rolls in the file, those in the window included
  std::int32_t WindowStart = 0;  // offset in the file of the window
  std::int32_t WindowUsed = 0;   // rolls in it
  std::array<unsigned char, kRollWindowBytes> Window{};
};

struct RollFile {
  std::string RollFileName;                   // of the open file; empty: none
  std::int32_t RecorderState = kRecorderOff;  // see SetRecorderState
  std::int32_t RollFileCursor = 1;            // what the next roll reads or writes
  std::int32_t RollFileSelectEnd = 1;         // the other end of the selection
  std::string RollFileOutputFormat = kDefaultRollFormat;
  bool RollFileInsertMode = false;    // typed rolls are inserted, not typed over
  bool Durable = true;                // false for a work file, whose edits need not reach the disk
  std::string LastErrorText;          // of PlayRoll, RecordRoll and FlushRollFile
  std::string FaultReported;          // the recorder's fault that was told; empty while it works
  Unshared<RollFileChannel> Channel;  // nobody else's business

  RollFile() = default;
  RollFile(const RollFile&) = default;  // no file is open in a copy: see CopyGame
  RollFile& operator=(const RollFile&) = delete;
  ~RollFile();  // writes what is pending and closes
};
TESSARYN_FIELDS(RollFile, RollFileName, RecorderState, RollFileCursor, RollFileSelectEnd,
                RollFileOutputFormat, RollFileInsertMode, Durable, LastErrorText, FaultReported, Channel)

}  // namespace tessaryn
