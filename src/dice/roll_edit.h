// Edits of a dice roll file that can be taken back, and counting what is in one.
//
// What an edit takes out of the file goes into a journal: a file without a name, so that a program that is
// killed leaves nothing of it. The roll file itself is changed by the procedures of roll_file.h, each of
// which leaves the old file or the new one. Offsets count from 0, positions from 1; errors are texts.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "dice/roll_file.h"

namespace tessaryn {

// What is told of a file without reading it; a file that others wrote to has another one.
struct RollFileMark {
  std::uint64_t Device = 0;
  std::uint64_t Node = 0;
  std::int64_t Size = -1;
  std::int64_t Seconds = 0;  // of the last change
  std::int64_t Nanoseconds = 0;
  friend bool operator==(const RollFileMark&, const RollFileMark&) = default;
};
// Of the open file; without one, a mark of Size -1.
RollFileMark MarkOf(const RollFile& file);

// --- Taking back.

// What brings an edit's part of the file back: some rolls out, others from the journal in.
struct RollStep {
  std::int64_t Offset = 0;
  std::int64_t Out = 0;
  std::int64_t In = 0;
  std::int64_t At = 0;      // in the journal, of those that come in
  std::int32_t Cursor = 1;  // of the file, before the edit
  std::int32_t SelectEnd = 1;
};

// The latest edits of the open file, in memory as long as the program runs. Edits from elsewhere (the
// recorder, another program, another file opened) end what can be taken back.
struct RollEdits {
  std::string Folder;  // for the journal
  std::vector<RollStep> Undo;
  std::vector<RollStep> Redo;
  RollFileMark After;  // of the file as the last edit left it
  int Journal = -1;
  std::int64_t JournalBytes = 0;

  RollEdits() = default;
  RollEdits(const RollEdits&) = delete;
  RollEdits& operator=(const RollEdits&) = delete;
  ~RollEdits();
};
inline constexpr std::size_t kMostUndoSteps = 1000;
// Beyond this older edits are forgotten; a single one that takes out more can't be taken back.
inline constexpr std::int64_t kMostJournalBytes = std::int64_t{1} << 28;

// The part of a file that an edit is going to replace.
struct RollPlace {
  std::int64_t Offset = 0;
  std::int64_t Count = 0;
};
RollPlace PlaceOfTypedRoll(const RollFile& file);
RollPlace PlaceOfSelection(const RollFile& file);
RollPlace PlaceOfCursor(const RollFile& file);

// Runs an edit that replaces a place and nothing else by whatever it puts there, and notes how to take it
// back. Returns the edit's error. A journal that can't be written costs the way back, never the edit.
std::string EditRolls(RollFile& file, RollEdits& edits, RollPlace place,
                      const std::function<std::string()>& edit);
bool CanUndoRolls(const RollFile& file, const RollEdits& edits);
bool CanRedoRolls(const RollFile& file, const RollEdits& edits);
// Nothing happens when it can't be done. On failure the file and what can be taken back are as before.
std::string UndoRolls(RollFile& file, RollEdits& edits);
std::string RedoRolls(RollFile& file, RollEdits& edits);

// --- Counting.

// How often each roll is in a part of a file, counted bit by bit so that nobody waits for it.
struct RollCounts {
  std::array<std::int64_t, 256> Of{};  // by the roll's byte
  std::int64_t Next = 1;               // position of the first that isn't counted
  std::int64_t Last = 0;               // of the last that is to be
  RollFileMark Mark;                   // of the file
  std::int64_t Begin = 1;
};
void BeginCount(const RollFile& file, RollCounts& counts, std::int64_t first, std::int64_t count);
// Counts at most so many. True when all is counted; a file that ends early has been counted.
bool CountMore(RollFile& file, RollCounts& counts, std::int32_t most);

struct RollTotals {
  std::array<std::int64_t, 13> Total{};  // 2 to 12
  std::array<std::int64_t, 7> Die1{};    // 1 to 6
  std::array<std::int64_t, 7> Die2{};
  std::int64_t Rolls = 0;
  std::int64_t Faults = 0;  // bytes that are no roll
};
RollTotals TotalsOf(const RollCounts& counts);

}  // namespace tessaryn
