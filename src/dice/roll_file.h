// Dice roll files: the recorder that writes the game's rolls to a file or plays them back, and the editing of
// such files by hand.
//
// A file is one byte a roll, die1 * 4 + die2 * 32, so its length is the number of rolls. Positions count from
// 1. Errors are texts that name the file and the reason; an empty text is success.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/table_types.h"
#include "base/work_files.h"
#include "state/generators_state.h"
#include "state/roll_file_state.h"

namespace tessaryn {

struct FileReplacement;

// Positions are 32-bit in every file that keeps them.
inline constexpr std::int32_t kRollFileMaximum = 2'147'483'646;
// Edits move rolls in blocks of this size, so that a file of any length needs no more memory than that.
inline constexpr std::size_t kRollBlockBytes = 30'000;

constexpr unsigned char RollByte(int die1, int die2) {
  return static_cast<unsigned char>(die1 * 4 + die2 * 32);
}
constexpr int RollByteDie1(unsigned char roll) { return (roll & 28) / 4; }
constexpr int RollByteDie2(unsigned char roll) { return (roll & 224) / 32; }
// Whether a byte is a roll; its two low bits are not looked at.
constexpr bool CheckRollValue(unsigned char roll) {
  const int die1 = RollByteDie1(roll);
  const int die2 = RollByteDie2(roll);
  return die1 != 0 && die1 != 7 && die2 != 0 && die2 != 7;
}

// ---- The open file -----------------------------------------------------------------------------------

inline bool IsRollFileOpen(const RollFile& file) { return file.Channel.Descriptor >= 0; }
inline std::int32_t RollFileLength(const RollFile& file) { return file.Channel.Length; }

// Opens a file, or makes an empty one under a new name, with cursor and selection at 1 and the recorder off.
// An existing file must pass CheckRollFile: else the error is Msg::kNotARollFile. On failure the file that
// was open stays open. A file that can't be written is opened for playback alone.
std::string OpenRollFile(RollFile& file, const std::string& path);
// Writes what is pending, closes and turns the recorder off. If the writing fails the file stays open with
// its rolls pending, so that the user can make room and close again, or DiscardRollFile.
std::string CloseRollFile(RollFile& file);
// Closes without what could not be written.
void DiscardRollFile(RollFile& file);
// Whether every byte of a file has its two low bits clear. On an error valid is false.
std::string CheckRollFile(const std::string& path, bool& valid);

// Writes what is recorded to the file and forgets what was read ahead, so that other programs and the table
// see the same file. Called when the table gives way to the user, and by every procedure below. On failure
// (LastErrorText) the rolls stay pending and the next call tries again.
bool FlushRollFile(RollFile& file);

// ---- The recorder ------------------------------------------------------------------------------------

// Off, record or playback. The error is Msg::kRollFileClosed with no file open.
std::string SetRecorderState(RollFile& file, int state);
// Playback from roll 1.
std::string RewindForPlayback(RollFile& file);
// Sets cursor and selection; positions before the first roll or behind the end are brought to these.
void SetRollFileCursor(RollFile& file, std::int64_t position);

enum class PlayResult {
  kPlayed,
  kEndOfFile,    // the roll doesn't happen: Msg::kStoppedAtFileEnd
  kOutOfLimits,  // the recorder is now off: Msg::kRollOutOfLimits
  kError,        // the recorder is now off: LastErrorText
};
PlayResult PlayRollFromFile(RollFile& file, int& die1, int& die2);
bool RecordRollToFile(RollFile& file, int die1, int die2);

// The next roll of the file, and the cursor one on.
inline PlayResult PlayRoll(RollFile& file, int& die1, int& die2) {
  RollFileChannel& channel = file.Channel;
  const std::int32_t at = file.RollFileCursor - 1 - channel.WindowStart;
  if (channel.Pending || at < 0 || at >= channel.WindowUsed) [[unlikely]]
    return PlayRollFromFile(file, die1, die2);
  const unsigned char roll = channel.Window[static_cast<std::size_t>(at)];
  if (!CheckRollValue(roll)) [[unlikely]]
    return PlayRollFromFile(file, die1, die2);
  die1 = RollByteDie1(roll);
  die2 = RollByteDie2(roll);
  file.RollFileSelectEnd = ++file.RollFileCursor;
  return PlayResult::kPlayed;
}

// Writes the roll over what stands at the cursor, and the cursor one on. False: the roll could not be
// written, the recorder is off and LastErrorText says why; rolls recorded before stay pending.
inline bool RecordRoll(RollFile& file, int die1, int die2) {
  RollFileChannel& channel = file.Channel;
  const std::int32_t at = file.RollFileCursor - 1 - channel.WindowStart;
  if (!channel.Pending || at != channel.WindowUsed || at == static_cast<std::int32_t>(kRollWindowBytes))
      [[unlikely]]
    return RecordRollToFile(file, die1, die2);
  channel.Window[static_cast<std::size_t>(at)] = RollByte(die1, die2);
  ++channel.WindowUsed;
  if (file.RollFileCursor > channel.Length) channel.Length = file.RollFileCursor;
  file.RollFileSelectEnd = ++file.RollFileCursor;
  return true;
}

// ---- Editing -----------------------------------------------------------------------------------------
// All need an open file that can be written; without one the error is Msg::kRollFileClosed or says so. On a
// full disk, or when another program is writing to it, the file is as before. An edit that moves rolls writes
// the new file beside the old one, so that a program killed in the middle of it leaves one of the two, whole.

struct RollSelection {
  std::int32_t First = 1;
  std::int32_t Count = 0;
};
// The rolls from cursor to selection end, both included, as far as the file has them.
RollSelection SelectedRolls(const RollFile& file);
void SelectAllRolls(RollFile& file);
// count bytes from a position on, fewer at the end of the file.
std::string ReadRolls(RollFile& file, std::int32_t first, std::int32_t count,
                      std::vector<unsigned char>& rolls);

// The dice of the recorder's 36 buttons, 0 to 35.
constexpr int ButtonDie1(int button) { return button / 6 + 1; }
constexpr int ButtonDie2(int button) { return button % 6 + 1; }
// One roll at the cursor, typed over or inserted as RollFileInsertMode says, and the cursor one on.
std::string EnterRoll(RollFile& file, int die1, int die2);
// As EnterRoll, with dice from the runtime generator, seeded anew from the millisecond clock.
std::string EnterRandomRoll(RollFile& file, Generators& generators, std::uint32_t tick);

// Moves all from the cursor on up by count rolls. The gap holds zeros, which are no rolls.
std::string InsertRollGap(RollFile& file, std::int32_t count);
// Writes the first count rolls of another file over what stands at a position.
std::string PasteRolls(RollFile& file, const std::string& sourcePath, std::int32_t position,
                       std::int32_t count);
// The rolls of another file in place of all that are there.
std::string ReplaceRolls(RollFile& file, const std::string& sourcePath);
// Takes removed rolls out at an offset, from 0, and puts there count bytes that a descriptor has from at on.
std::string SpliceRolls(RollFile& file, std::int64_t offset, std::int64_t removed, int from, std::int64_t at,
                        std::int64_t count);
// Takes the selected rolls out; cursor and selection go to the first of them.
std::string DeleteRolls(RollFile& file);
// Through the work file in a folder. The cursor goes behind what is pasted.
std::string CopyRolls(RollFile& file, const std::string& workFolder);
std::string CutRolls(RollFile& file, const std::string& workFolder);
std::string PasteCopiedRolls(RollFile& file, const std::string& workFolder);
// Inserts a whole roll file at the cursor. It must pass CheckRollFile and must not be the open one.
std::string PasteFromRollFile(RollFile& file, const std::string& path);
// Inserts the dice that the digits 1 to 6 of any text make, two by two, at the cursor. A text of more than
// kRollFileMaximum bytes is refused unread.
std::string PasteFromTextFile(RollFile& file, const std::string& path, const std::string& workFolder);

// ---- Copying out -------------------------------------------------------------------------------------

// The selected rolls into a file of their own, in place of what it held; the caller has asked. The error is
// Msg::kCopyToOpenFile when it is the open file.
inline constexpr std::string_view kRollCopyTitle = "Copy To Roll File";
std::string CopyRollsToRollFile(RollFile& file, const std::string& path,
                                std::string_view command = kRollCopyTitle);

// The same up to its last step: the copy takes its place when the caller commits the target.
std::string DraftRollFile(RollFile& file, const std::string& path, FileReplacement& target,
                          std::string_view command = kRollCopyTitle);

// A text for each roll: "roll#", "die1", "die2" and "total" in the format stand for the values, in capitals
// or not. False: the format has neither die nor total, Msg::kNoDiceInFormat.
bool IsRollFormatUsable(std::string_view format);
// Whether the user is to be asked Msg::kAskRenumber: the numbers are wanted and would not start with 1.
bool IsRenumberQuestion(const RollFile& file);
std::string RollText(std::string_view format, RollNumber rollNumber, unsigned char roll);
// The selected rolls by RollFileOutputFormat, a line each. renumber: the first one counts as roll 1.
std::string CopyRollsToTextFile(RollFile& file, const std::string& path, bool renumber);
std::string DraftTextFile(RollFile& file, const std::string& path, bool renumber, FileReplacement& target);

}  // namespace tessaryn
