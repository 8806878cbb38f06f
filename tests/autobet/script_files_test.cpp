#include "autobet/language/script_files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "autobet/language/old_script_rows.h"
#include "autobet/language/script_text.h"
#include "compile_helpers.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

class ScriptFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("tessaryn_scripts_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path Put(const std::string& name, const std::string& bytes) {
    const fs::path path = folder_ / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  static std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  fs::path folder_;
};

using Lines = std::vector<std::string>;

std::string OldRecord(const std::string& text, int kind) {
  std::string record(256, '\0');
  for (std::size_t i = 0; i < 128; ++i) record[i] = i < text.size() ? text[i] : ' ';
  if (text.empty()) record[0] = '\0';
  record[128] = static_cast<char>(kind & 0xFF);
  record[129] = static_cast<char>(kind >> 8);
  return record;
}

std::string OldFile(const std::string& mark, const std::vector<std::pair<std::string, int>>& statements) {
  std::string bytes = mark;
  bytes.resize(256, ' ');
  for (const auto& [text, kind] : statements) bytes += OldRecord(text, kind);
  return bytes;
}

const std::string kMarks[] = {"Quorvelian AutoBets, Data Format 5.0", "Tessaryn AutoBets, Data Format 3.9",
                              "Tessaryn AutoBets, Data Format 5.0"};

TEST_F(ScriptFiles, ReadsTextWithEveryLineEnding) {
  const std::pair<const char*, Lines> cases[] = {
      {"", {}},
      {"\n", {""}},
      {"a\nb", {"a", "b"}},
      {"a\r\n  b  \r\n", {"a", "  b  "}},
      {"a\rb\r", {"a", "b"}},
      {"a\n\n\r\nb\n", {"a", "", "", "b"}},
      {"\xEF\xBB\xBF"
       "a",
       {"a"}},
      {"Tessaryn AutoBets, Data Format 3.8", {"Tessaryn AutoBets, Data Format 3.8"}},
  };
  for (const auto& [bytes, expected] : cases) {
    for (const char* name : {"a.bet", "a.txt"}) {
      Lines lines = {"before"};
      ASSERT_TRUE(ReadScriptFile(Put(name, bytes), lines).Ok());
      EXPECT_EQ(lines, expected) << bytes;
    }
  }
}

TEST_F(ScriptFiles, KeepsTheLinesWhenThereIsNothingToRead) {
  Lines lines = {"kept"};
  EXPECT_EQ(ReadScriptFile(folder_ / "none.bet", lines).problem, ScriptFileProblem::kNotFound);
  const ScriptFileResult folder = ReadScriptFile(folder_, lines);
  EXPECT_EQ(folder.problem, ScriptFileProblem::kFault);
  EXPECT_NE(folder.message.find(folder_.string()), std::string::npos);
  EXPECT_EQ(lines, Lines{"kept"});
}

TEST_F(ScriptFiles, GivesBackWhatWasWritten) {
  const fs::path path = Put("a.bet", "an older and much longer script than the one that replaces it");
  const Lines lines = {"if 1 then", "   'comment  ", "", "\tbet 5 on field", "\xC3\xA9"};
  ASSERT_TRUE(WriteScriptFile(path, lines).Ok());
  Lines back;
  ASSERT_TRUE(ReadScriptFile(path, back).Ok());
  EXPECT_EQ(back, lines);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(ScriptFiles, LeavesTheOldFileWhenWritingFails) {
  const fs::path path = Put("a.bet", "kept\n");
  EXPECT_EQ(WriteScriptFile((path / "below.bet").string(), {"new"}).problem, ScriptFileProblem::kFault);
  EXPECT_EQ(BytesOf(path), "kept\n");
  // A device that is always full; what stands for it is written through, so only the fault is looked at.
  EXPECT_EQ(WriteScriptFile("/dev/full", {"new"}).problem, ScriptFileProblem::kFault);
  EXPECT_EQ(WriteScriptFile(folder_ / "none" / "a.bet", {"new"}).problem, ScriptFileProblem::kFault);
  fs::create_directory(folder_ / "b.bet");
  EXPECT_EQ(WriteScriptFile(folder_ / "b.bet", {"new"}).problem, ScriptFileProblem::kFault);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 2);
}

TEST(OldScript, GainsBlockEndsAndNoLinesForSilentRecords) {
  const std::vector<std::pair<std::string, int>> statements = {{"show steps", 3},
                                                               {"silent", 13},
                                                               {"if point is 6 then", 1},
                                                               {"bet 5 on field", 4},
                                                               {"", 4},
                                                               {"if point is 8 then", 2},
                                                               {"bet 6 on field", 4},
                                                               {"end of blocks", 13},
                                                               {"clear field", 4},
                                                               {"again silent", 13},
                                                               {"if point is 9 then", 257},
                                                               {"if point is 5 then", 1}};
  for (const std::string& mark : kMarks) {
    EXPECT_EQ(ScriptLinesOf(OldFile(mark, statements)),
              (Lines{"show steps", "if point is 6 then", "bet 5 on field", " EndIf", "if point is 8 then",
                     "bet 6 on field", " EndIf", "clear field", "if point is 9 then", "if point is 5 then"}));
    EXPECT_EQ(ScriptLinesOf(mark), Lines{});
    EXPECT_EQ(ScriptLinesOf(OldFile(mark, {})), Lines{});
  }
}

// Each bet family as it used to be written must be a bet of the present language.
TEST(OldScript, JoinsTheNamesOfAllBets) {
  const std::pair<const char*, const char*> families[] = {{"lay %", "lay%"},
                                                          {"don't come %", "dontcome%"},
                                                          {"dont come odds %", "dontcomeodds%"},
                                                          {"don't come % odds", "dontcomeodds%"},
                                                          {"come %", "come%"},
                                                          {"come % odds", "comeodds%"},
                                                          {"come odds %", "comeodds%"},
                                                          {"place %", "place%"},
                                                          {"place-%", "place%"},
                                                          {"buy %", "buy%"}};
  const auto filled = [](std::string text, int number) {
    return text.replace(text.find('%'), 1, std::to_string(number));
  };
  for (const auto& [old, present] : families) {
    for (const int number : {4, 5, 6, 8, 9, 10}) {
      EXPECT_EQ(Lowered(ConvertOldStatement(filled(old, number))), filled(present, number));
    }
  }
}

TEST(OldScript, SurvivesEveryTruncationAndRandomDamage) {
  const std::string whole =
      OldFile(kMarks[2], {{"when pass line wins and when highest of stack #3 on field", 1},
                          {"set come 4 odds to ref #3", 5},
                          {"silent", 13},
                          {"if chip stack 5 is named \"x\" then", 2}});
  for (std::size_t size = 0; size <= whole.size(); ++size)
    ScriptLinesOf(std::string_view(whole).substr(0, size));
  EXPECT_EQ(ScriptLinesOf(whole.substr(0, 256 + 20)), Lines{"If 'When PassLine wins"});
  std::mt19937 random(99);
  for (int round = 0; round < 3000; ++round) {
    std::string damaged = whole;
    for (int change = 0; change < 20; ++change) {
      damaged[256 + random() % (damaged.size() - 256)] = static_cast<char>(random());
    }
    const Lines lines = ScriptLinesOf(damaged);
    EXPECT_LE(lines.size(), 8u);
    CompiledScript script;
    ScriptDiagnostic diagnostic;
    CompileAutobets(1, lines, {}, script, diagnostic);
  }
}

}  // namespace
}  // namespace tessaryn
