#include "dice/roll_edit.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <utility>

namespace tessaryn {
namespace {

bool OpenJournal(RollEdits& edits) {
  if (edits.Journal >= 0) return true;
  const std::string folder = edits.Folder.empty() ? "." : edits.Folder;
#ifdef O_TMPFILE
  edits.Journal = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
#endif
  if (edits.Journal >= 0) return true;
  std::string name = folder + "/rollundoXXXXXX";
  edits.Journal = mkostemp(name.data(), O_CLOEXEC);
  if (edits.Journal >= 0) unlink(name.c_str());
  return edits.Journal >= 0;
}

bool WriteJournal(RollEdits& edits, const std::vector<unsigned char>& rolls) {
  for (std::size_t done = 0; done < rolls.size();) {
    const ssize_t put = pwrite(edits.Journal, rolls.data() + done, rolls.size() - done,
                               edits.JournalBytes + static_cast<off_t>(done));
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    done += static_cast<std::size_t>(put);
  }
  edits.JournalBytes += static_cast<std::int64_t>(rolls.size());
  return true;
}

// A part of the file into the journal, whose place it returns; -1 when that could not be.
std::int64_t KeepRolls(RollFile& file, RollEdits& edits, RollPlace place) {
  const std::int64_t at = edits.JournalBytes;
  if (place.Count == 0) return at;
  if (place.Count > kMostJournalBytes - at || !OpenJournal(edits)) return -1;
  constexpr std::int64_t kBlock = 1 << 20;
  std::vector<unsigned char> rolls;
  for (std::int64_t done = 0; done < place.Count; done += kBlock) {
    const std::int64_t size = std::min(kBlock, place.Count - done);
    const bool read = ReadRolls(file, static_cast<std::int32_t>(place.Offset + done + 1),
                                static_cast<std::int32_t>(size), rolls)
                          .empty();
    if (!read || static_cast<std::int64_t>(rolls.size()) != size || !WriteJournal(edits, rolls)) {
      edits.JournalBytes = at;
      return -1;
    }
  }
  return at;
}

void Forget(RollEdits& edits) {
  edits.Undo.clear();
  edits.Redo.clear();
  if (edits.Journal >= 0 && ftruncate(edits.Journal, 0) == 0) edits.JournalBytes = 0;
}

bool IsAsLeft(const RollFile& file, const RollEdits& edits) {
  return IsRollFileOpen(file) && file.RecorderState != kRecorderRecord && MarkOf(file) == edits.After;
}

// Takes the last step of one list back, and puts how to do it again on the other.
std::string TakeBack(RollFile& file, RollEdits& edits, std::vector<RollStep>& from,
                     std::vector<RollStep>& to) {
  if (from.empty() || !IsAsLeft(file, edits)) return {};
  const RollStep step = from.back();
  RollStep back{step.Offset, step.In, step.Out, 0, file.RollFileCursor, file.RollFileSelectEnd};
  back.At = KeepRolls(file, edits, {step.Offset, step.Out});
  std::string error = SpliceRolls(file, step.Offset, step.Out, edits.Journal, step.At, step.In);
  if (!error.empty()) return error;
  from.pop_back();
  if (back.At >= 0)
    to.push_back(back);
  else
    to.clear();
  SetRollFileCursor(file, step.Cursor);
  file.RollFileSelectEnd = std::clamp(step.SelectEnd, 1, RollFileLength(file) + 1);
  edits.After = MarkOf(file);
  return {};
}

}  // namespace

RollEdits::~RollEdits() {
  if (Journal >= 0) close(Journal);
}

RollFileMark MarkOf(const RollFile& file) {
  RollFileMark mark;
  struct stat status {};
  if (!IsRollFileOpen(file) || fstat(file.Channel.Descriptor, &status) != 0) return mark;
  mark.Device = status.st_dev;
  mark.Node = status.st_ino;
  mark.Size = status.st_size;
  mark.Seconds = status.st_mtim.tv_sec;
  mark.Nanoseconds = status.st_mtim.tv_nsec;
  return mark;
}

RollPlace PlaceOfCursor(const RollFile& file) {
  return {std::clamp<std::int64_t>(file.RollFileCursor - std::int64_t{1}, 0, RollFileLength(file)), 0};
}

RollPlace PlaceOfTypedRoll(const RollFile& file) {
  RollPlace place = PlaceOfCursor(file);
  if (!file.RollFileInsertMode && place.Offset < RollFileLength(file)) place.Count = 1;
  return place;
}

RollPlace PlaceOfSelection(const RollFile& file) {
  const RollSelection selection = SelectedRolls(file);
  return {selection.First - std::int64_t{1}, selection.Count};
}

std::string EditRolls(RollFile& file, RollEdits& edits, RollPlace place,
                      const std::function<std::string()>& edit) {
  if (!IsRollFileOpen(file) || !FlushRollFile(file)) return edit();
  if (!IsAsLeft(file, edits) || edits.JournalBytes > kMostJournalBytes / 2) Forget(edits);
  const RollFileMark before = MarkOf(file);
  const std::int64_t length = RollFileLength(file);
  RollStep step{place.Offset, 0, place.Count, 0, file.RollFileCursor, file.RollFileSelectEnd};
  step.At = KeepRolls(file, edits, place);
  std::string error = edit();
  step.Out = RollFileLength(file) - length + place.Count;
  if (!error.empty()) {
    if (MarkOf(file) != before) Forget(edits);
    return error;
  }
  if (step.At < 0 || step.Out < 0) {
    Forget(edits);
  } else if (step.In != 0 || step.Out != 0) {
    edits.Redo.clear();
    if (edits.Undo.size() == kMostUndoSteps) edits.Undo.erase(edits.Undo.begin());
    edits.Undo.push_back(step);
  }
  edits.After = MarkOf(file);
  return {};
}

bool CanUndoRolls(const RollFile& file, const RollEdits& edits) {
  return !edits.Undo.empty() && IsAsLeft(file, edits);
}
bool CanRedoRolls(const RollFile& file, const RollEdits& edits) {
  return !edits.Redo.empty() && IsAsLeft(file, edits);
}
std::string UndoRolls(RollFile& file, RollEdits& edits) {
  return TakeBack(file, edits, edits.Undo, edits.Redo);
}
std::string RedoRolls(RollFile& file, RollEdits& edits) {
  return TakeBack(file, edits, edits.Redo, edits.Undo);
}

// --- Counting.

void BeginCount(const RollFile& file, RollCounts& counts, std::int64_t first, std::int64_t count) {
  counts = {};
  counts.Begin = counts.Next = std::max<std::int64_t>(first, 1);
  counts.Last = counts.Next + std::max<std::int64_t>(count, 0) - 1;
  counts.Mark = MarkOf(file);
}

bool CountMore(RollFile& file, RollCounts& counts, std::int32_t most) {
  if (counts.Next > counts.Last) return true;
  std::vector<unsigned char> rolls;
  const auto count = static_cast<std::int32_t>(std::min<std::int64_t>(most, counts.Last - counts.Next + 1));
  const std::string error = ReadRolls(file, static_cast<std::int32_t>(counts.Next), count, rolls);
  if (!error.empty() || rolls.empty()) {
    counts.Last = counts.Next - 1;
    return true;
  }
  for (const unsigned char roll : rolls) ++counts.Of[roll];
  counts.Next += static_cast<std::int64_t>(rolls.size());
  return counts.Next > counts.Last;
}

RollTotals TotalsOf(const RollCounts& counts) {
  RollTotals totals;
  for (std::size_t byte = 0; byte < counts.Of.size(); ++byte) {
    const auto roll = static_cast<unsigned char>(byte);
    const std::int64_t count = counts.Of[byte];
    if (count == 0) continue;
    if (!CheckRollValue(roll)) {
      totals.Faults += count;
      continue;
    }
    const auto die1 = static_cast<std::size_t>(RollByteDie1(roll));
    const auto die2 = static_cast<std::size_t>(RollByteDie2(roll));
    totals.Total[die1 + die2] += count;
    totals.Die1[die1] += count;
    totals.Die2[die2] += count;
    totals.Rolls += count;
  }
  return totals;
}

}  // namespace tessaryn
