#include "dice/roll_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <vector>

#include "base/messages.h"
#include "base/record_file.h"
#include "support/places.h"

namespace tessaryn {
namespace {

using Rolls = std::vector<unsigned char>;

struct RollFiles : testing::Test {
  std::filesystem::path FolderPath =
      std::filesystem::path(testing::TempDir()) / ("rolls" + std::to_string(getpid()));
  std::string Folder = FolderPath.string();
  std::string Path = Folder + "/a.rol";
  std::string Other = Folder + "/b.rol";
  std::unique_ptr<RollFile> File = std::make_unique<RollFile>();

  RollFiles() { std::filesystem::create_directories(Folder); }
  ~RollFiles() override {
    File.reset();
    std::filesystem::remove_all(Folder);
  }
  static void Write(const std::string& path, const Rolls& rolls) {
    std::ofstream(path, std::ios::binary) << std::string(rolls.begin(), rolls.end());
  }
  static Rolls OnDisk(const std::string& path) {
    std::string content;
    EXPECT_EQ(ReadWholeFile(path, content), "");
    return {content.begin(), content.end()};
  }
  static Rolls RandomRolls(std::mt19937& random, std::size_t count) {
    Rolls rolls(count);
    for (auto& roll : rolls)
      roll = RollByte(static_cast<int>(random() % 6) + 1, static_cast<int>(random() % 6) + 1);
    return rolls;
  }
  void Select(std::int64_t cursor, std::int64_t end) {
    SetRollFileCursor(*File, cursor);
    File->RollFileSelectEnd = static_cast<std::int32_t>(end);
  }
};

// No file of this process may grow beyond a length: as good as a full disk.
struct SmallDisk {
  rlimit Old{};
  void (*OldHandler)(int);
  explicit SmallDisk(rlim_t bytes) : OldHandler(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &Old);
    const rlimit limit{bytes, Old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &Old);
    signal(SIGXFSZ, OldHandler);
  }
};

TEST_F(RollFiles, BytesAreThoseOfTheFormat) {
  EXPECT_EQ(RollByte(1, 1), 36);
  EXPECT_EQ(RollByte(2, 1), 40);
  EXPECT_EQ(RollByte(1, 2), 68);
  EXPECT_EQ(RollByte(6, 6), 216);
  int good = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const auto roll = static_cast<unsigned char>(byte);
    if (CheckRollValue(roll)) ++good;
    if (CheckRollValue(roll)) {
      EXPECT_EQ(RollByte(RollByteDie1(roll), RollByteDie2(roll)), byte & ~3);
    }
  }
  EXPECT_EQ(good, 36 * 4);
  for (int button = 0; button < 36; ++button)
    EXPECT_EQ(button, (ButtonDie1(button) - 1) * 6 + ButtonDie2(button) - 1);
}

TEST_F(RollFiles, ARecordedGamePlaysBackRollForRoll) {
  std::mt19937 random(1);
  const Rolls rolls = RandomRolls(random, 200'001);
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
  for (std::size_t i = 0; i < rolls.size(); ++i) {
    ASSERT_TRUE(RecordRoll(*File, RollByteDie1(rolls[i]), RollByteDie2(rolls[i])));
    if (i % 70'000 == 69'999) {
      ASSERT_TRUE(FlushRollFile(*File));
    }
  }
  EXPECT_EQ(RollFileLength(*File), 200'001);
  ASSERT_EQ(RewindForPlayback(*File), "");
  EXPECT_EQ(OnDisk(Path), rolls);
  int die1 = 0, die2 = 0;
  for (std::size_t i = 0; i < rolls.size(); ++i) {
    ASSERT_EQ(PlayRoll(*File, die1, die2), PlayResult::kPlayed);
    ASSERT_EQ(RollByte(die1, die2), rolls[i]) << i;
    if (i % 999 == 0) FlushRollFile(*File);
  }
  EXPECT_EQ(PlayRoll(*File, die1, die2), PlayResult::kEndOfFile);
  EXPECT_EQ(File->RecorderState, kRecorderPlayback);
  EXPECT_EQ(File->RollFileCursor, 200'002);
  // Recording from the middle writes over what follows.
  SetRollFileCursor(*File, 5);
  ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
  ASSERT_TRUE(RecordRoll(*File, 6, 6) && RecordRoll(*File, 6, 5));
  ASSERT_EQ(CloseRollFile(*File), "");
  Rolls expected = rolls;
  expected[4] = RollByte(6, 6);
  expected[5] = RollByte(6, 5);
  EXPECT_EQ(OnDisk(Path), expected);
}

TEST_F(RollFiles, LowBitsStopAnOpenButNotAPlayback) {
  Write(Path, {RollByte(3, 4), 37});
  EXPECT_EQ(OpenRollFile(*File, Path), MessageText<Msg::kNotARollFile>(With<"path">(Path)));
  EXPECT_FALSE(IsRollFileOpen(*File));
  Write(Path, {RollByte(3, 4), RollByte(2, 2), 0, 232, RollByte(1, 7)});
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  int die1 = 0, die2 = 0;
  ASSERT_EQ(RewindForPlayback(*File), "");
  std::FILE* entered = std::fopen(Path.c_str(), "r+b");
  ASSERT_NE(entered, nullptr);
  std::fseek(entered, 1, SEEK_SET);
  std::fputc(37, entered);
  std::fclose(entered);
  ASSERT_EQ(PlayRoll(*File, die1, die2), PlayResult::kPlayed);
  ASSERT_EQ(PlayRoll(*File, die1, die2), PlayResult::kPlayed);
  EXPECT_TRUE(die1 == 1 && die2 == 1);
  for (int position : {3, 4, 5}) {
    ASSERT_EQ(SetRecorderState(*File, kRecorderPlayback), "");
    SetRollFileCursor(*File, position);
    ASSERT_EQ(PlayRoll(*File, die1, die2), PlayResult::kOutOfLimits) << position;
    EXPECT_EQ(File->RecorderState, kRecorderOff);
    EXPECT_EQ(File->RollFileCursor, position);
  }
}

TEST_F(RollFiles, AFileThatShrinksReadsAsItsEndAndIsNotRecordedBehind) {
  std::mt19937 random(2);
  Write(Path, RandomRolls(random, 100'000));
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  SetRollFileCursor(*File, 90'000);
  ASSERT_EQ(SetRecorderState(*File, kRecorderPlayback), "");
  ASSERT_EQ(truncate(Path.c_str(), 100), 0);
  int die1 = 0, die2 = 0;
  EXPECT_EQ(PlayRoll(*File, die1, die2), PlayResult::kEndOfFile);
  File->RecorderState = kRecorderRecord;
  EXPECT_FALSE(RecordRoll(*File, 1, 1));
  EXPECT_EQ(File->RecorderState, kRecorderOff);
  EXPECT_NE(File->LastErrorText.find(Path), std::string::npos);
  SetRollFileCursor(*File, 90'000);
  EXPECT_EQ(File->RollFileCursor, 101);
  EXPECT_TRUE(RecordRoll(*File, 1, 1));
  ASSERT_EQ(truncate(Path.c_str(), 50), 0);
  EXPECT_FALSE(FlushRollFile(*File));
  EXPECT_NE(CloseRollFile(*File), "");
  EXPECT_TRUE(IsRollFileOpen(*File));
  DiscardRollFile(*File);
  EXPECT_EQ(OnDisk(Path).size(), 50u);
}

TEST_F(RollFiles, AFullDiskLosesNoRecordedRoll) {
  std::mt19937 random(3);
  const Rolls rolls = RandomRolls(random, 300'000);
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
  std::size_t recorded = 0;
  {
    SmallDisk disk(100'000);
    while (recorded < rolls.size() &&
           RecordRoll(*File, RollByteDie1(rolls[recorded]), RollByteDie2(rolls[recorded])))
      ++recorded;
    EXPECT_LT(recorded, rolls.size());
    EXPECT_EQ(File->RecorderState, kRecorderOff);
    EXPECT_NE(File->LastErrorText.find(Path), std::string::npos) << File->LastErrorText;
    EXPECT_NE(CloseRollFile(*File), "");
    EXPECT_NE(OpenRollFile(*File, Other), "");
    EXPECT_FALSE(std::filesystem::exists(Other));
    EXPECT_EQ(File->RollFileName, Path);
  }
  ASSERT_EQ(CloseRollFile(*File), "");  // room again
  EXPECT_EQ(OnDisk(Path), Rolls(rolls.begin(), rolls.begin() + static_cast<std::ptrdiff_t>(recorded)));
}

TEST_F(RollFiles, AnEditOnAFullDiskLeavesTheFileAsItWas) {
  std::mt19937 random(4);
  const Rolls rolls = RandomRolls(random, 70'000);
  Write(Path, rolls);
  Write(Other, RandomRolls(random, 60'000));
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  Select(10, 65'000);
  ASSERT_EQ(CopyRolls(*File, Folder), "");
  {
    SmallDisk disk(70'000);
    for (const std::string& error : {PasteCopiedRolls(*File, Folder), PasteFromRollFile(*File, Other),
                                     InsertRollGap(*File, 1), PasteRolls(*File, Other, 69'000, 60'000)})
      EXPECT_NE(error.find(Path), std::string::npos) << error;
    File->RollFileInsertMode = true;
    EXPECT_NE(EnterRoll(*File, 1, 1), "");
    SetRollFileCursor(*File, 70'001);
    EXPECT_NE(EnterRoll(*File, 1, 1), "");
  }
  {
    SmallDisk disk(5'000);
    Select(10, 65'000);
    EXPECT_NE(CutRolls(*File, Folder), "");
    EXPECT_NE(CopyRollsToTextFile(*File, Folder + "/out.txt", false), "");
    EXPECT_NE(CopyRollsToRollFile(*File, Other), "");
  }
  EXPECT_FALSE(std::filesystem::exists(Folder + "/out.txt"));
  EXPECT_EQ(OnDisk(Other).size(), 60'000u);
  EXPECT_EQ(RollFileLength(*File), 70'000);
  EXPECT_EQ(OnDisk(Path), rolls);
}

TEST_F(RollFiles, KilledInMidEditItIsTheOldFileOrTheNew) {
  constexpr unsigned kSeed = 8;
  std::mt19937 random(kSeed);
  const Rolls old = RandomRolls(random, 400'000);
  const Rolls pasted = RandomRolls(random, 100'001);
  Rolls edited = old;
  edited.insert(edited.begin() + 6, pasted.begin(), pasted.end());
  Write(Other, pasted);
  for (int trial = 0; trial < 20; ++trial) {
    Write(Path, old);
    const pid_t child = fork();
    if (child == 0) {
      File->Durable = false;
      while (OpenRollFile(*File, Path).empty()) {
        SetRollFileCursor(*File, 7);
        if (!PasteFromRollFile(*File, Other).empty()) break;
        Select(7, static_cast<std::int64_t>(6 + pasted.size()));
        if (!DeleteRolls(*File).empty()) break;
      }
      _exit(1);
    }
    usleep(static_cast<unsigned>(5'000 + random() % 30'000));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the edits failed";
    const Rolls left = OnDisk(Path);
    ASSERT_TRUE(left == old || left == edited)
        << "seed " << kSeed << " trial " << trial << " " << left.size();
  }
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(FolderPath), {}), 2) << "nothing is left over";
}

TEST_F(RollFiles, OneProgramWritesAtATimeAndSeesWhatTheOtherDid) {
  Write(Path, {RollByte(1, 1), RollByte(2, 2), RollByte(3, 3)});
  const auto other = std::make_unique<RollFile>();
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  ASSERT_EQ(OpenRollFile(*other, Path), "");
  ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
  ASSERT_TRUE(RecordRoll(*File, 6, 6));
  for (const std::string& error :
       {EnterRoll(*other, 5, 5), DeleteRolls(*other), SetRecorderState(*other, kRecorderRecord)})
    EXPECT_NE(error.find("another program is writing"), std::string::npos) << error;
  ASSERT_EQ(SetRecorderState(*File, kRecorderOff), "");
  ASSERT_TRUE(FlushRollFile(*File));
  ASSERT_EQ(DeleteRolls(*other), "");  // the first roll; this puts a new file in the place of the old
  ASSERT_TRUE(FlushRollFile(*other));
  SetRollFileCursor(*File, 1);
  ASSERT_EQ(EnterRoll(*File, 5, 5), "");
  EXPECT_EQ(OnDisk(Path), (Rolls{RollByte(5, 5), RollByte(3, 3)}));
  ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
  ASSERT_TRUE(RecordRoll(*File, 4, 4));
  std::filesystem::remove(Path);
  EXPECT_FALSE(FlushRollFile(*File)) << "not into a file that is gone";
  EXPECT_NE(File->LastErrorText.find(Path), std::string::npos);
}

TEST_F(RollFiles, AReadOnlyFilePlaysAndRefusesEdits) {
  std::mt19937 random(5);
  Write(Path, RandomRolls(random, 10));
  ASSERT_EQ(chmod(Path.c_str(), 0444), 0);
  const bool superuser = geteuid() == 0;
  if (superuser) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  const std::string opened = OpenRollFile(*File, Path);
  if (superuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  ASSERT_EQ(opened, "");
  int die1 = 0, die2 = 0;
  EXPECT_EQ(PlayRoll(*File, die1, die2), PlayResult::kPlayed);
  EXPECT_NE(SetRecorderState(*File, kRecorderRecord), "");
  EXPECT_EQ(File->RecorderState, kRecorderOff);
  EXPECT_NE(EnterRoll(*File, 1, 1), "");
  EXPECT_NE(DeleteRolls(*File), "");
  EXPECT_FALSE(RecordRoll(*File, 1, 1));
  EXPECT_EQ(CopyRolls(*File, Folder), "");
  EXPECT_EQ(CloseRollFile(*File), "");
}

TEST_F(RollFiles, AReadOnlyFolderTakesNothingAndTheOpenFileStays) {
  std::mt19937 random(6);
  const Rolls rolls = RandomRolls(random, 10);
  Write(Path, rolls);
  ASSERT_EQ(chmod(Path.c_str(), 0666), 0);
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  ASSERT_EQ(chmod(Folder.c_str(), 0555), 0);
  const bool superuser = geteuid() == 0 && seteuid(65534) == 0;
  SelectAllRolls(*File);
  const std::string text = Folder + "/out.txt";
  const std::pair<std::string, std::string> told[] = {
      {OpenRollFile(*File, Other), Other},
      {CopyRollsToRollFile(*File, Other), Other},
      {CopyRollsToTextFile(*File, text, true), text},
      {CutRolls(*File, Folder), kRollCopyFile},
      {PasteFromTextFile(*File, Path, Folder), kRollConvertFile}};
  if (superuser) {
    ASSERT_EQ(seteuid(0), 0);
  }
  ASSERT_EQ(chmod(Folder.c_str(), 0755), 0);
  for (const auto& [error, name] : told)
    EXPECT_NE(error.find(name), std::string::npos) << name << ": " << error;
  EXPECT_EQ(File->RollFileName, Path);
  EXPECT_EQ(OnDisk(Path), rolls);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(FolderPath), {}), 1);
}

// Cut or damaged anywhere, a file is refused as it is opened, or plays up to the first byte that is no roll.
TEST_F(RollFiles, ADamagedFileEndsItsPlaybackWhereTheDamageIs) {
  constexpr unsigned kSeed = 12;
  std::mt19937 random(kSeed);
  const Rolls whole = RandomRolls(random, 300);
  for (std::size_t trial = 0; trial < 1'500; ++trial) {
    Rolls damaged = whole;
    if (trial <= whole.size()) {
      damaged.resize(trial);
    } else {
      for (unsigned i = 0; i <= random() % 3; ++i)
        damaged[random() % damaged.size()] =
            static_cast<unsigned char>(random() & (trial % 2 == 0 ? 0xfc : 0xff));
    }
    Write(Path, damaged);
    const bool lowBits =
        std::any_of(damaged.begin(), damaged.end(), [](unsigned char b) { return (b & 3) != 0; });
    const std::string error = OpenRollFile(*File, Path);
    ASSERT_EQ(error, lowBits ? MessageText<Msg::kNotARollFile>(With<"path">(Path)) : "")
        << "seed " << kSeed << " trial " << trial;
    if (lowBits) continue;
    ASSERT_EQ(RewindForPlayback(*File), "");
    std::size_t played = 0;
    int die1 = 0, die2 = 0;
    PlayResult result;
    while ((result = PlayRoll(*File, die1, die2)) == PlayResult::kPlayed) ++played;
    const auto bad = std::find_if_not(damaged.begin(), damaged.end(), CheckRollValue);
    ASSERT_EQ(played, static_cast<std::size_t>(bad - damaged.begin()));
    ASSERT_EQ(result, bad == damaged.end() ? PlayResult::kEndOfFile : PlayResult::kOutOfLimits);
    ASSERT_EQ(CloseRollFile(*File), "");
  }
}

TEST_F(RollFiles, NothingHappensWithoutAnOpenFile) {
  int die1 = 0, die2 = 0;
  EXPECT_EQ(SetRecorderState(*File, kRecorderPlayback), MessageText<Msg::kRollFileClosed>());
  EXPECT_EQ(File->RecorderState, kRecorderOff);
  EXPECT_EQ(PlayRoll(*File, die1, die2), PlayResult::kError);
  EXPECT_FALSE(RecordRoll(*File, 1, 1));
  EXPECT_EQ(EnterRoll(*File, 1, 1), MessageText<Msg::kRollFileClosed>());
  EXPECT_EQ(CutRolls(*File, Folder), MessageText<Msg::kRollFileClosed>());
  EXPECT_EQ(CloseRollFile(*File), "");
  EXPECT_TRUE(FlushRollFile(*File));
  EXPECT_NE(OpenRollFile(*File, Folder), "");
  EXPECT_NE(OpenRollFile(*File, "/dev/zero"), "");
  EXPECT_NE(OpenRollFile(*File, Folder + "/none/x.rol"), "");
  EXPECT_NE(OpenRollFile(*File, ""), "");
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  Write(Other, {37});
  EXPECT_EQ(OpenRollFile(*File, Other), MessageText<Msg::kNotARollFile>(With<"path">(Other)));
  EXPECT_EQ(File->RollFileName, Path);  // the one that was open stays
  EXPECT_EQ(PasteFromRollFile(*File, Other), MessageText<Msg::kNotARollFile>(With<"path">(Other)));
  EXPECT_NE(PasteCopiedRolls(*File, Folder), "");
  EXPECT_NE(PasteFromTextFile(*File, "/dev/zero", Folder), "");
  std::filesystem::resize_file(Other, 3'000'000'000u);  // a hole
  for (const std::string& error :
       {PasteFromTextFile(*File, Other, Folder), PasteFromRollFile(*File, Other), OpenRollFile(*File, Other)})
    EXPECT_NE(error.find(Other), std::string::npos) << error;
  EXPECT_EQ(RollFileLength(*File), 0);
}

TEST_F(RollFiles, TheOpenFileIsNoTargetAndNoSource) {
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  ASSERT_EQ(EnterRoll(*File, 3, 3), "");
  Select(1, 1);
  const std::string alias = Folder + "/../" + FolderPath.filename().string() + "/a.rol";
  EXPECT_EQ(
      CopyRollsToRollFile(*File, alias),
      "Can't use the \"Copy To Roll File\" command to copy rolls to a file that's open and in use.\r\rPlease "
      "select another file name or use the \"Copy\" and \"Paste\" commands to modify the open file.");
  EXPECT_NE(CopyRollsToTextFile(*File, alias, false), "");
  EXPECT_NE(PasteFromRollFile(*File, alias), "");
  EXPECT_EQ(OnDisk(Path), Rolls{RollByte(3, 3)});
}

TEST_F(RollFiles, AHundredThousandEditsAgreeWithAPlainVector) {
  constexpr unsigned kSeed = 77;
  std::mt19937 random(kSeed);
  Rolls model;
  Rolls copied;
  const Rolls other = RandomRolls(random, 700);
  Write(Other, other);
  Generators generators;
  File->Durable = false;
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  const auto at = [&](std::int64_t offset) { return model.begin() + static_cast<std::ptrdiff_t>(offset); };
  for (int edit = 0; edit < test::Rounds(100'000); ++edit) {
    SCOPED_TRACE(testing::Message() << "seed " << kSeed << " edit " << edit);
    if (random() % 3 == 0) {
      const auto cursor = static_cast<std::int64_t>(random() % (model.size() + 4)) - 1;
      const std::int64_t end =
          random() % 2 == 0 ? cursor : static_cast<std::int64_t>(random() % (model.size() + 4));
      Select(cursor, end);
    }
    const std::int64_t cursor = File->RollFileCursor - 1;
    const RollSelection selection = SelectedRolls(*File);
    const int die1 = static_cast<int>(random() % 6) + 1;
    const int die2 = static_cast<int>(random() % 6) + 1;
    const auto put = [&](unsigned char roll, bool insert) {
      if (cursor == std::ssize(model)) {
        model.push_back(roll);
      } else if (insert) {
        model.insert(at(cursor), roll);
      } else {
        *at(cursor) = roll;
      }
    };
    switch (random() % (model.size() > 3'000 ? 12 : 24)) {
      case 0:
      case 1:
        ASSERT_EQ(DeleteRolls(*File), "");
        model.erase(at(std::min<std::int64_t>(selection.First - 1, std::ssize(model))),
                    at(std::min<std::int64_t>(selection.First - 1, std::ssize(model)) + selection.Count));
        ASSERT_EQ(File->RollFileCursor, selection.First);
        break;
      case 2:
        ASSERT_EQ(CopyRolls(*File, Folder), "");
        copied.assign(at(selection.First - 1), at(selection.First - 1 + selection.Count));
        break;
      case 3:
        ASSERT_EQ(CutRolls(*File, Folder), "");
        copied.assign(at(selection.First - 1), at(selection.First - 1 + selection.Count));
        model.erase(at(selection.First - 1), at(selection.First - 1 + selection.Count));
        break;
      case 4:
        if (!std::filesystem::exists(Folder + "/" + kRollCopyFile)) break;
        ASSERT_EQ(PasteCopiedRolls(*File, Folder), "");
        model.insert(at(cursor), copied.begin(), copied.end());
        break;
      case 5:
        if (random() % 10 != 0) break;
        ASSERT_EQ(PasteFromRollFile(*File, Other), "");
        model.insert(at(cursor), other.begin(), other.end());
        break;
      case 6: {
        ASSERT_EQ(SetRecorderState(*File, kRecorderRecord), "");
        ASSERT_TRUE(RecordRoll(*File, die1, die2));
        put(RollByte(die1, die2), false);
        break;
      }
      case 7: {
        int played1 = 0, played2 = 0;
        const PlayResult result = PlayRoll(*File, played1, played2);
        ASSERT_EQ(result, cursor == std::ssize(model) ? PlayResult::kEndOfFile : PlayResult::kPlayed);
        if (result == PlayResult::kPlayed) {
          ASSERT_EQ(RollByte(played1, played2), *at(cursor));
        }
        break;
      }
      case 8: {
        File->RollFileInsertMode = false;
        ASSERT_EQ(EnterRandomRoll(*File, generators, random() & 0xffffffffu), "");
        put(OnDisk(Path)[static_cast<std::size_t>(cursor)], false);
        break;
      }
      default:
        File->RollFileInsertMode = random() % 2 == 0;
        ASSERT_EQ(EnterRoll(*File, die1, die2), "");
        put(RollByte(die1, die2), File->RollFileInsertMode);
    }
    ASSERT_EQ(RollFileLength(*File), std::ssize(model));
    if (edit % 500 == 0) {
      Rolls rolls;
      ASSERT_EQ(ReadRolls(*File, 1, 1'000'000, rolls), "");
      ASSERT_EQ(rolls, model);
    }
  }
  ASSERT_EQ(CloseRollFile(*File), "");
  EXPECT_EQ(OnDisk(Path), model);
}

TEST_F(RollFiles, BlocksMoveWholeAtEveryEdgeOfTheirSize) {
  std::mt19937 random(6);
  for (std::size_t length : {29'999u, 30'000u, 30'001u, 95'000u}) {
    for (std::size_t count : {1u, 29'999u, 30'000u, 60'001u}) {
      Rolls model = RandomRolls(random, length);
      const Rolls source = RandomRolls(random, count);
      Write(Path, model);
      Write(Other, source);
      ASSERT_EQ(OpenRollFile(*File, Path), "");
      SetRollFileCursor(*File, 7);
      ASSERT_EQ(PasteFromRollFile(*File, Other), "");
      model.insert(model.begin() + 6, source.begin(), source.end());
      ASSERT_EQ(OnDisk(Path), model) << length << " " << count;
      Select(7, static_cast<std::int64_t>(6 + count));
      ASSERT_EQ(DeleteRolls(*File), "");
      model.erase(model.begin() + 6, model.begin() + 6 + static_cast<std::ptrdiff_t>(count));
      ASSERT_EQ(OnDisk(Path), model) << length << " " << count;
    }
  }
}

TEST_F(RollFiles, TextGoesInByItsDiceDigits) {
  const struct {
    std::string text;
    Rolls rolls;
  } cases[] = {{"", {}},
               {"7 8 9 0 x\n", {}},
               {"1 2 3", {RollByte(1, 2)}},
               {"(6.6)\r\n55,01", {RollByte(6, 6), RollByte(5, 5)}},
               {std::string(29'999, ' ') + "1" + std::string(40'000, '9') + "4", {RollByte(1, 4)}}};
  const std::string text = Folder + "/t.txt";
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  for (const auto& c : cases) {
    ASSERT_EQ(ReplaceFile(text, c.text), "");
    SelectAllRolls(*File);
    ASSERT_EQ(DeleteRolls(*File), "");
    ASSERT_EQ(EnterRoll(*File, 2, 2), "");
    SetRollFileCursor(*File, 1);
    ASSERT_EQ(PasteFromTextFile(*File, text, Folder), "");
    Rolls expected = c.rolls;
    expected.push_back(RollByte(2, 2));
    EXPECT_EQ(OnDisk(Path), expected);
    EXPECT_FALSE(std::filesystem::exists(Folder + "/" + kRollConvertFile));
  }
}

TEST_F(RollFiles, TextComesOutByTheFormat) {
  const struct {
    const char* format;
    const char* text;
  } cases[] = {{"Roll# (Die1.Die2) Total", "1,234 (2.5) 7"},
               {"  DIE1DIE2 ", "25"},
               {"Totally roll#5", "7ly 1,2345"},
               {"x", "x"},
               {"dIe rol# die11", "die rol# 21"},
               {"Würfe total", "würfe 7"}};
  for (const auto& c : cases) EXPECT_EQ(RollText(c.format, 1'234, RollByte(2, 5)), c.text);
  EXPECT_FALSE(IsRollFormatUsable("Roll# die"));
  EXPECT_TRUE(IsRollFormatUsable("subtotal"));

  std::mt19937 random(9);
  const Rolls rolls = RandomRolls(random, 70'000);
  Write(Path, rolls);
  ASSERT_EQ(OpenRollFile(*File, Path), "");
  const std::string out = Folder + "/o.txt";
  Select(3, 70'000);
  EXPECT_TRUE(IsRenumberQuestion(*File));
  ASSERT_EQ(CopyRollsToTextFile(*File, out, true), "");
  Rolls bytes = OnDisk(out);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 2), "1 ");
  File->RollFileOutputFormat = "die1 die2";
  EXPECT_FALSE(IsRenumberQuestion(*File));
  ASSERT_EQ(CopyRollsToTextFile(*File, out, false), "");
  ASSERT_EQ(OpenRollFile(*File, Other), "");
  ASSERT_EQ(PasteFromTextFile(*File, out, Folder), "");
  EXPECT_EQ(OnDisk(Other), Rolls(rolls.begin() + 2, rolls.end()));
  File->RollFileOutputFormat = "roll#";
  EXPECT_EQ(CopyRollsToTextFile(*File, out, false), MessageText<Msg::kNoDiceInFormat>());
}

}  // namespace
}  // namespace tessaryn
