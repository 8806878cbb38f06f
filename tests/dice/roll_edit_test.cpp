// Edits of dice roll files against a plain list of rolls with all its former states, and the counting.
#include "dice/roll_edit.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

#include "base/record_file.h"

namespace tessaryn {
namespace {

using Rolls = std::vector<unsigned char>;

struct RollEditing : testing::Test {
  std::filesystem::path FolderPath =
      std::filesystem::path(testing::TempDir()) / ("rolledit" + std::to_string(getpid()));
  std::string Folder = FolderPath.string() + "/";
  std::string Path = Folder + "a.rol";
  RollFile File;
  RollEdits Edits;

  RollEditing() {
    std::filesystem::create_directories(FolderPath);
    Edits.Folder = Folder;
    File.Durable = false;
  }
  ~RollEditing() override {
    CloseRollFile(File);
    std::filesystem::remove_all(FolderPath);
  }
  void Begin(const Rolls& rolls) {
    std::ofstream(Path, std::ios::binary) << std::string(rolls.begin(), rolls.end());
    ASSERT_EQ(OpenRollFile(File, Path), "");
  }
  Rolls OnDisk() const {
    std::string content;
    EXPECT_EQ(ReadWholeFile(Path, content), "");
    return {content.begin(), content.end()};
  }
  std::string Enter(int die1, int die2) {
    return EditRolls(File, Edits, PlaceOfTypedRoll(File), [&] { return EnterRoll(File, die1, die2); });
  }
};

unsigned char AnyRoll(std::mt19937& random) {
  return RollByte(static_cast<int>(random() % 6) + 1, static_cast<int>(random() % 6) + 1);
}

TEST_F(RollEditing, RandomEditsAreTakenBackAndDoneAgainAsAListWithItsHistory) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  Rolls model(200);
  for (auto& roll : model) roll = AnyRoll(random);
  Begin(model);
  std::vector<Rolls> past, future;
  Rolls copied;
  const auto edited = [&](const Rolls& next) {
    if (next == model && OnDisk() == model) {
      // Typing the same roll over is an edit too, and one of nothing none: either may have been noted.
      if (Edits.Undo.size() == past.size()) return;
    }
    past.push_back(model);
    future.clear();
    model = next;
  };
  for (int n = 0; n < 1500; ++n) {
    const auto length = static_cast<std::int64_t>(model.size());
    SetRollFileCursor(File, static_cast<std::int64_t>(random() % (model.size() + 1)) + 1);
    File.RollFileSelectEnd = static_cast<std::int32_t>(random() % (model.size() + 1) + 1);
    const RollSelection part = SelectedRolls(File);
    const auto first = model.begin() + (part.First - 1);
    const std::int64_t at = std::min<std::int64_t>(File.RollFileCursor - 1, length);
    Rolls next = model;
    switch (random() % 7) {
      case 0:
      case 1: {
        File.RollFileInsertMode = random() % 2 == 0;
        const unsigned char roll = AnyRoll(random);
        ASSERT_EQ(Enter(RollByteDie1(roll), RollByteDie2(roll)), "");
        if (File.RollFileInsertMode || at == length)
          next.insert(next.begin() + at, roll);
        else
          next[static_cast<std::size_t>(at)] = roll;
        edited(next);
        break;
      }
      case 2:
        ASSERT_EQ(EditRolls(File, Edits, PlaceOfSelection(File), [&] { return DeleteRolls(File); }), "");
        next.erase(next.begin() + (part.First - 1), next.begin() + (part.First - 1 + part.Count));
        edited(next);
        break;
      case 3:
        if (part.Count > 60) break;
        ASSERT_EQ(CopyRolls(File, Folder), "");
        copied.assign(first, first + part.Count);
        break;
      case 4:
        if (copied.empty() || model.size() > 600) break;
        ASSERT_EQ(EditRolls(File, Edits, PlaceOfCursor(File), [&] { return PasteCopiedRolls(File, Folder); }),
                  "");
        next.insert(next.begin() + at, copied.begin(), copied.end());
        edited(next);
        break;
      case 5:
        ASSERT_EQ(CanUndoRolls(File, Edits), !past.empty());
        ASSERT_EQ(UndoRolls(File, Edits), "");
        if (past.empty()) break;
        future.push_back(model);
        model = past.back();
        past.pop_back();
        break;
      default:
        ASSERT_EQ(CanRedoRolls(File, Edits), !future.empty());
        ASSERT_EQ(RedoRolls(File, Edits), "");
        if (future.empty()) break;
        past.push_back(model);
        model = future.back();
        future.pop_back();
    }
    ASSERT_EQ(OnDisk(), model) << n;
    ASSERT_EQ(RollFileLength(File), static_cast<std::int32_t>(model.size()));
  }
}

TEST_F(RollEditing, WhatOthersWroteEndsTheWayBack) {
  Begin(Rolls(10, RollByte(1, 1)));
  ASSERT_EQ(Enter(2, 2), "");
  ASSERT_TRUE(CanUndoRolls(File, Edits));
  ASSERT_EQ(SetRecorderState(File, kRecorderRecord), "");
  EXPECT_FALSE(CanUndoRolls(File, Edits));
  usleep(20'000);  // the file system's clock goes on
  ASSERT_TRUE(RecordRoll(File, 6, 6));
  ASSERT_EQ(SetRecorderState(File, kRecorderOff), "");
  EXPECT_FALSE(CanUndoRolls(File, Edits));
  const Rolls before = OnDisk();
  EXPECT_EQ(UndoRolls(File, Edits), "");
  EXPECT_EQ(OnDisk(), before);
  // Another file with the same edits behind it has nothing to take back either.
  ASSERT_EQ(Enter(3, 3), "");
  ASSERT_EQ(OpenRollFile(File, Folder + "b.rol"), "");
  EXPECT_FALSE(CanUndoRolls(File, Edits));
  // No file of the edits is left to be seen.
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(FolderPath)) ++files;
  EXPECT_EQ(files, 2);
}

TEST_F(RollEditing, ARefusedEditLeavesFileAndWayBack) {
  Begin(Rolls(3, RollByte(1, 1)));
  ASSERT_EQ(Enter(2, 2), "");
  EXPECT_NE(EditRolls(File, Edits, PlaceOfCursor(File),
                      [&] { return PasteFromRollFile(File, Folder + "none.rol"); }),
            "");
  EXPECT_TRUE(CanUndoRolls(File, Edits));
  ASSERT_EQ(UndoRolls(File, Edits), "");
  EXPECT_EQ(OnDisk(), Rolls(3, RollByte(1, 1)));
}

TEST_F(RollEditing, MillionsAreEditedAndCountedInNoTime) {
  std::mt19937 random(5);
  Rolls rolls(10'000'000);
  RollTotals plain;
  for (auto& roll : rolls) {
    roll = AnyRoll(random);
    ++plain.Total[static_cast<std::size_t>(RollByteDie1(roll) + RollByteDie2(roll))];
  }
  Begin(rolls);
  RollCounts counts;
  BeginCount(File, counts, 1, RollFileLength(File));
  int steps = 1;
  while (!CountMore(File, counts, 1 << 20)) ++steps;
  EXPECT_EQ(steps, 10);
  EXPECT_EQ(TotalsOf(counts).Total, plain.Total);
  File.RollFileInsertMode = true;
  SetRollFileCursor(File, 5'000'000);
  const auto start = std::chrono::steady_clock::now();
  for (int n = 0; n < 10; ++n) ASSERT_EQ(Enter(1, 2), "");
  for (int n = 0; n < 10; ++n) ASSERT_EQ(UndoRolls(File, Edits), "");
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  RecordProperty("MillisecondsAnEdit", static_cast<int>(took.count() * 50));
  EXPECT_LT(took.count(), 10);
  EXPECT_EQ(OnDisk(), rolls);
}

}  // namespace
}  // namespace tessaryn
