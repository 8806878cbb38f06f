#include "base/record_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <limits>
#include <random>

namespace tessaryn {
namespace {

struct RecordFiles : testing::Test {
  std::filesystem::path Folder =
      std::filesystem::path(testing::TempDir()) / ("records" + std::to_string(getpid()));
  std::string Path = (Folder / "x.dat").string();
  RecordFiles() { std::filesystem::create_directories(Folder); }
  ~RecordFiles() override {
    std::filesystem::permissions(Folder, std::filesystem::perms::owner_all);
    std::filesystem::remove_all(Folder);
  }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(Folder), {}));
  }
};

// The superuser is refused nothing; as somebody else the folder's permissions count.
struct AsNobody {
  AsNobody() : Changed(geteuid() == 0 && seteuid(65534) == 0) {}
  ~AsNobody() {
    if (Changed) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }
  bool Changed;
};

TEST_F(RecordFiles, FieldsAreLittleEndianAndComeBack) {
  Record record{};
  PutInt16(record, 0, -2);
  PutInt32(record, 2, 0x01020304);
  PutInt64(record, 6, std::numeric_limits<std::int64_t>::min());
  PutDouble(record, 14, -0.1);
  PutCurrency(record, 248, Currency::FromRaw(-12'345));
  const unsigned char expected[] = {0xfe, 0xff, 4, 3, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0x80};
  EXPECT_TRUE(std::equal(std::begin(expected), std::end(expected), record.begin()));
  EXPECT_EQ(GetInt16(record, 0), -2);
  EXPECT_EQ(GetInt32(record, 2), 0x01020304);
  EXPECT_EQ(GetInt64(record, 6), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(GetDouble(record, 14), -0.1);
  EXPECT_EQ(GetCurrency(record, 248).raw, -12'345);
  const Record before = record;
  PutInt64(record, 249, 1);
  PutInt16(record, std::numeric_limits<std::size_t>::max(), 1);
  PutText(record, 250, 7, "beyond");
  EXPECT_EQ(record, before);
  EXPECT_EQ(GetInt32(record, 253), 0);
  EXPECT_EQ(GetText(record, 250, 7), "");
}

TEST_F(RecordFiles, TextIsCutBetweenCharacters) {
  const struct {
    const char* text;
    std::size_t width;
    const char* kept;
  } cases[] = {{"abc", 3, "abc"},
               {"abcd", 3, "abc"},
               {"aé", 2, "a"},
               {"aé", 3, "aé"},
               {"€€", 5, "€"},
               {"\xf0\x9f\x8e\xb2x", 3, ""},
               {"\xf0\x9f\x8e\xb2x", 4, "\xf0\x9f\x8e\xb2"},
               {"", 4, ""},
               {"\x80\x80\x80\x80\x80\x80\x80", 6, "\x80\x80\x80\x80\x80\x80"}};
  for (const auto& c : cases) {
    EXPECT_EQ(CutText(c.text, c.width), c.kept) << c.text;
    Record record{};
    PutText(record, 9, c.width, c.text);
    EXPECT_EQ(GetText(record, 9, c.width), c.kept);
    EXPECT_EQ(record[9 + c.width], 0);
  }
  Record record{};
  PutText(record, 0, 8, "a b ");
  EXPECT_EQ(std::string(reinterpret_cast<char*>(record.data()), 8), "a b     ");
}

TEST_F(RecordFiles, PackedValuesComeBackAndAPartRecordKeepsWhatStoodThere) {
  std::mt19937_64 random(3);
  std::vector<std::int16_t> shorts(300);
  std::vector<std::int64_t> longs(70);
  for (auto& value : shorts) value = static_cast<std::int16_t>(random());
  for (auto& value : longs) value = static_cast<std::int64_t>(random());
  RecordFile file;
  RecordPacker<std::int16_t> first(file);
  for (auto value : shorts) first.Put(value);
  first.Finish();
  RecordPacker<std::int64_t> second(file);
  for (auto value : longs) second.Put(value);
  second.Finish();
  second.Finish();  // nothing pending: no empty record
  ASSERT_EQ(file.Records.size(), 6u);
  EXPECT_EQ(GetInt16(file.Records[2], 2 * 44), shorts[128 + 44]);

  ASSERT_EQ(WriteRecordFile(Path, file), "");
  RecordFile read;
  ASSERT_EQ(ReadRecordFile(Path, read), "");
  ASSERT_EQ(read.Records, file.Records);
  RecordUnpacker<std::int16_t> shortsBack(read, 0);
  for (auto value : shorts) ASSERT_EQ(shortsBack.Get(), value);
  RecordUnpacker<std::int64_t> longsBack(read, shortsBack.Next);
  for (auto value : longs) ASSERT_EQ(longsBack.Get(), value);
  for (int i = 70; i < 96; ++i) longsBack.Get();
  EXPECT_FALSE(longsBack.Failed);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(longsBack.Get(), 0);
  EXPECT_TRUE(longsBack.Failed);
}

TEST_F(RecordFiles, ABadFileIsNamedAndLeavesTheOldRecords) {
  RecordFile file;
  file.Append(Record{});
  for (std::size_t length : {1u, 255u, 257u, 600u}) {
    ASSERT_EQ(ReplaceFile(Path, std::string(length, 'x')), "");
    EXPECT_NE(ReadRecordFile(Path, file).find(Path), std::string::npos);
    EXPECT_EQ(file.Records.size(), 1u);
  }
  ASSERT_EQ(ReplaceFile(Path, std::string(1024, 'x')), "");
  EXPECT_NE(ReadRecordFile(Path, file, 3), "");
  EXPECT_EQ(ReadRecordFile(Path, file, 4), "");
  for (const std::string& path : {Folder.string() + "/none", Folder.string(), std::string()})
    EXPECT_NE(ReadRecordFile(path, file), "") << path;
  EXPECT_EQ(file.Records.size(), 4u);
}

TEST_F(RecordFiles, AFailedReplacementLeavesTheOldFileAndNothingBesideIt) {
  ASSERT_EQ(ReplaceFile(Path, "old"), "");
  {
    FileReplacement file;
    ASSERT_EQ(BeginReplacement(file, Path), "");
    ASSERT_EQ(WriteReplacement(file, "half of the new"), "");
    EXPECT_EQ(FilesInFolder(), 2u);
  }
  std::string content;
  ASSERT_EQ(ReadWholeFile(Path, content), "");
  EXPECT_EQ(content, "old");
  EXPECT_EQ(FilesInFolder(), 1u);
  for (const std::string& path : {std::string("/dev/full"), Folder.string(), Folder.string() + "/none/y"}) {
    const std::string error = ReplaceFile(path, "new");
    EXPECT_NE(error.find(path + ": "), std::string::npos) << error;
  }
  ASSERT_EQ(chmod(Folder.c_str(), 0555), 0);
  {
    AsNobody nobody;
    const std::string error = ReplaceFile(Path, "new");
    EXPECT_NE(error.find(Path), std::string::npos) << error;
  }
  ASSERT_EQ(ReadWholeFile(Path, content), "");
  EXPECT_EQ(content, "old");
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(RecordFiles, WhatIsNoFileOrTooLongIsRefusedAtOnce) {
  const std::string pipe = (Folder / "pipe").string();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  ASSERT_EQ(ReplaceFile(Path, ""), "");
  std::filesystem::resize_file(Path, 3'000'000'000u);  // a hole
  for (const std::string& path : {Path, pipe, Folder.string(), std::string("/dev/zero"), std::string()}) {
    std::string content = "before";
    bool tooLong = false;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_NE(ReadWholeFile(path, content, 1'000, &tooLong).find(path + ":"), std::string::npos);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << path;
    EXPECT_EQ(tooLong, path == Path);
    EXPECT_EQ(content, "before");
  }
}

TEST_F(RecordFiles, WhatAKilledProgramWasWritingIsClearedAndWhatALivingOneWritesStays) {
  const pid_t child = fork();
  if (child == 0) {
    FileReplacement file;
    if (!BeginReplacement(file, Path).empty() || !WriteReplacement(file, "half").empty()) _exit(1);
    raise(SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  FileReplacement file;
  ASSERT_EQ(BeginReplacement(file, Path), "");
  ASSERT_EQ(ReplaceFile((Folder / ".tessaryn-mine").string(), "mine"), "");
  EXPECT_EQ(FilesInFolder(), 3u);
  ClearLeftovers(Folder.string());
  EXPECT_EQ(FilesInFolder(), 2u);
  EXPECT_EQ(CommitReplacement(file), "");
  EXPECT_TRUE(std::filesystem::exists(Path));
}

TEST_F(RecordFiles, NamesThatNoListCouldCarryAreTold) {
  for (const char* good :
       {"", "Ann", "Grüße €5", "\xf0\x9f\x8e\xb2", "\xed\x9f\xbf", "\xf4\x8f\xbf\xbf", "a\tb"})
    EXPECT_EQ(TextProblem(good), "") << good;
  for (const std::string bad : {"a\nb", "a\r", "\xff", "\x80", "\xc3", "\xc0\xaf", "\xe0\x80\x80",
                                "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "x\xe2\x82"})
    EXPECT_NE(TextProblem(bad), "") << bad;
  EXPECT_NE(TextProblem(std::string_view("a\0b", 3)), "");
}

TEST_F(RecordFiles, AReplacedFileKeepsItsLinkAndPermissions) {
  const std::string link = (Folder / "link").string();
  ASSERT_EQ(ReplaceFile(Path, "old"), "");
  ASSERT_EQ(chmod(Path.c_str(), 0640), 0);
  std::filesystem::create_symlink(Path, link);
  ASSERT_EQ(ReplaceFile(link, "new"), "");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  std::string content;
  ASSERT_EQ(ReadWholeFile(Path, content), "");
  EXPECT_EQ(content, "new");
  struct stat status {};
  ASSERT_EQ(stat(Path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);
  EXPECT_TRUE(IsSameFile(link, Path));
  EXPECT_FALSE(IsSameFile(link, Folder.string()));
}

TEST_F(RecordFiles, PathsAreReadWithEitherSeparator) {
  EXPECT_EQ(ResolvePath("a.prb", "/data"), "/data/a.prb");
  EXPECT_EQ(ResolvePath("a.prb", "/data/"), "/data/a.prb");
  EXPECT_EQ(ResolvePath("sub\\a.prb", "/data"), "sub/a.prb");
  EXPECT_EQ(ResolvePath("/x/a.prb", "/data"), "/x/a.prb");
  EXPECT_EQ(ResolvePath("", "/data"), "");
  const std::string odd = (Folder / "odd\\name").string();
  ASSERT_EQ(ReplaceFile(odd, "x"), "");
  EXPECT_EQ(ResolvePath(odd, "/data"), odd);
  EXPECT_EQ(FileTitle("/x/y\\a.prb"), "a.prb");
  EXPECT_EQ(FileTitle("a.prb"), "a.prb");
}

}  // namespace
}  // namespace tessaryn
