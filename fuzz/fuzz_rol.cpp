// Edits a dice roll file as the bytes say, beside a plain list of rolls that is edited the same way.
#include <algorithm>
#include <vector>

#include "dice/roll_file.h"
#include "fuzz_support.h"

using namespace tessaryn;

namespace {

using Rolls = std::vector<unsigned char>;

struct Edited {
  const fuzz::Folder& folder;
  RollFile file;
  Rolls model;

  std::size_t At() const { return static_cast<std::size_t>(file.RollFileCursor - 1); }
};

void Ok(const std::string& problem) { fuzz::Require(problem.empty(), problem); }

void MoveCursor(Edited& e, unsigned char to) { SetRollFileCursor(e.file, to); }

void Select(Edited& e, unsigned char to) {
  e.file.RollFileSelectEnd = std::clamp<std::int32_t>(to, 1, RollFileLength(e.file) + 1);
}

void Enter(Edited& e, unsigned char button) {
  const int die1 = ButtonDie1(button % 36);
  const int die2 = ButtonDie2(button % 36);
  e.file.RollFileInsertMode = (button & 128) != 0;
  const std::size_t at = e.At();
  Ok(EnterRoll(e.file, die1, die2));
  if (e.file.RollFileInsertMode || at >= e.model.size())
    e.model.insert(e.model.begin() + static_cast<long>(std::min(at, e.model.size())), RollByte(die1, die2));
  else
    e.model[at] = RollByte(die1, die2);
}

Rolls Selected(const Edited& e) {
  const RollSelection selection = SelectedRolls(e.file);
  const auto from = e.model.begin() + (selection.First - 1);
  return {from, from + selection.Count};
}

void Delete(Edited& e, unsigned char) {
  const RollSelection selection = SelectedRolls(e.file);
  const std::string problem = DeleteRolls(e.file);
  if (!problem.empty()) return;
  const auto from = e.model.begin() + (selection.First - 1);
  e.model.erase(from, from + selection.Count);
}

void CopyAndPaste(Edited& e, unsigned char to) {
  const Rolls rolls = Selected(e);
  if (!CopyRolls(e.file, e.folder.PathWithSeparator()).empty()) return;
  SetRollFileCursor(e.file, to);
  const std::size_t at = std::min(e.At(), e.model.size());
  if (PasteCopiedRolls(e.file, e.folder.PathWithSeparator()).empty())
    e.model.insert(e.model.begin() + static_cast<long>(at), rolls.begin(), rolls.end());
}

void Record(Edited& e, unsigned char faces) {
  if (!SetRecorderState(e.file, kRecorderRecord).empty()) return;
  const std::size_t at = e.At();
  const int die1 = faces % 6 + 1;
  const int die2 = faces / 6 % 6 + 1;
  fuzz::Require(RecordRoll(e.file, die1, die2), e.file.LastErrorText);
  if (at >= e.model.size())
    e.model.push_back(RollByte(die1, die2));
  else
    e.model[at] = RollByte(die1, die2);
}

void Play(Edited& e, unsigned char count) {
  if (!SetRecorderState(e.file, kRecorderPlayback).empty()) return;
  for (int i = 0; i < count; ++i) {
    const std::size_t at = e.At();
    int die1 = 0;
    int die2 = 0;
    const PlayResult result = PlayRoll(e.file, die1, die2);
    if (at >= e.model.size()) return fuzz::Require(result == PlayResult::kEndOfFile, "a roll behind the end");
    if (!CheckRollValue(e.model[at])) return fuzz::Require(result == PlayResult::kOutOfLimits, "a bad roll");
    fuzz::Require(result == PlayResult::kPlayed && RollByteDie1(e.model[at]) == die1 &&
                      RollByteDie2(e.model[at]) == die2,
                  "another roll was played");
  }
}

void Reopen(Edited& e, unsigned char) {
  const std::string path = e.file.RollFileName;
  Ok(CloseRollFile(e.file));
  const std::string onDisk = fuzz::Bytes(path);
  fuzz::Require(Rolls(onDisk.begin(), onDisk.end()) == e.model, "the file isn't what was edited");
  Ok(OpenRollFile(e.file, path));
}

constexpr void (*kEdits[])(Edited&, unsigned char) = {MoveCursor,   Select, Enter, Enter, Delete,
                                                      CopyAndPaste, Record, Play,  Reopen};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  folder.Empty();
  if (size < 1) return 0;
  // The first byte tells how many bytes are the file as it is found; what follows are edits and their values.
  const std::size_t kept = std::min<std::size_t>(data[0], size - 1);
  const std::string path = folder.Write("in.rol", data + 1, kept);
  Edited edited{folder, {}, Rolls(data + 1, data + 1 + kept)};
  if (!OpenRollFile(edited.file, path).empty()) {
    fuzz::Require(fuzz::Bytes(path) == std::string(data + 1, data + 1 + kept), "a refused file was changed");
    return 0;
  }
  for (std::size_t i = kept + 1; i + 1 < size; i += 2) {
    if (edited.model.size() > 2'000) break;
    kEdits[data[i] % std::size(kEdits)](edited, data[i + 1]);
    fuzz::Require(RollFileLength(edited.file) == static_cast<std::int32_t>(edited.model.size()),
                  "another number of rolls");
  }
  Reopen(edited, 0);
  return 0;
}
