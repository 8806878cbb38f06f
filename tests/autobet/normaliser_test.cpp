#include "autobet/language/normaliser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include "autobet/language/script_text.h"
#include "compile_helpers.h"

namespace tessaryn {
namespace {

using script_test::Dump;
using script_test::Lines;
using script_test::Table;

std::string Normalised(std::string_view text, int player = 1) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  const bool ok = NormaliseScript(player, Lines(text), Table(), script, diagnostic);
  return ok ? Dump(script) : "error: " + diagnostic.message;
}

// The screen tidies what it has tidied before: a line that kept changing would walk under the cursor.
TEST(TidyScriptLine, IsStableOnWhatItHasTidied) {
  std::mt19937 random(20240611);
  const std::string alphabet = "ab15.$#%&*+-/\\^<>=()[],;:'\" \"  \t";
  for (int round = 0; round < 20000; ++round) {
    std::string line;
    const std::size_t length = random() % 24;
    for (std::size_t i = 0; i < length; ++i) line += alphabet[random() % alphabet.size()];
    std::string once = line;
    TidyScriptLine(once);
    std::string twice = once;
    TidyScriptLine(twice);
    ASSERT_EQ(once, twice) << line;
  }
}

TEST(NormaliseScript, CountsNoRecordsForBlankLinesAndComments) {
  EXPECT_EQ(Normalised(""), "-3:1 102:0");
  EXPECT_EQ(Normalised("\n  \n'only a comment\n", 0), "-3:0 105:0");
  EXPECT_EQ(Normalised("\n\ncs1"), "-3:1 103:0 -11:101 104:0");
  EXPECT_EQ(Normalised("cs1 'comment\n\ncs2"), "-3:1 101:0 -11:101 103:0 -11:102 104:0");
}

TEST(NormaliseScript, GivesEveryKeywordAStatementOfItsOwnWithItsColumn) {
  EXPECT_EQ(Normalised("if cs1 then"), "-3:1 101:0 1:0 101:2 -11:101 101:7 9:0 101:11");
  EXPECT_EQ(Normalised("cs1:cs2"), "-3:1 101:0 -11:101 101:3 -11:102 102:0");
  EXPECT_EQ(Normalised("cs1 : if"), "-3:1 101:0 -11:101 101:4 1:0 101:8");
  EXPECT_EQ(Normalised("goto 5"), "-3:1 101:0 14:0 -31:5 102:0");
  EXPECT_EQ(Normalised("then goto 5"), "-3:1 101:0 9:0 101:4 14:0 -31:5 102:0");
  EXPECT_EQ(Normalised("end if\ndo"), "-3:1 101:0 12:0 101:6 102:0 16:0 102:2");
}

TEST(NormaliseScript, KeepsTheCaseOfStringsAndTheirOrder) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  ASSERT_TRUE(NormaliseScript(1, {"\"One: 'x'\" : \"tWO\"", "\"  open"}, {}, script, diagnostic));
  ASSERT_EQ(script.strings.size(), 4u);
  EXPECT_EQ(script.strings[1].text, "One: 'x'");
  EXPECT_EQ(script.strings[2].text, "tWO");
  EXPECT_EQ(script.strings[3].text, "  open");
}

TEST(CheckPlayerName, RefusesNumbersAndWordsOfTheLanguage) {
  for (const char* name : {"5", " 12.5 ", "-3", "1e5", "$5", ".5"}) {
    EXPECT_EQ(CheckPlayerName(name), ScriptNameProblem::kNumeric) << name;
  }
  for (const char* name : {"Bet", "BET", "Joe and Ann", "Mary-Ann", "a*b", "The Field", "Hourly", "Cs5",
                           "Averages", "One", "No", "Mr 50%", "x,y", "Ann (1)", "player1", "Buy"}) {
    EXPECT_EQ(CheckPlayerName(name), ScriptNameProblem::kReservedWord) << name;
  }
  for (const char* name : {"Joe", "Mary Ann", "Betty", "Anderson", "Isolde", "Player9", "Bob2", "Jos\xC3\xA9",
                           "Noel", "O'Neil", "Two2"}) {
    EXPECT_EQ(CheckPlayerName(name), ScriptNameProblem::kNone) << name;
  }
}

TEST(ParseScriptNumber, ReadsWhatScriptsWriteAndGivesItBack) {
  double value = 7;
  for (const char* text :
       {"", "-", ".", "e5", "1e", "inf", "nan", "0x10", "1,000", " 5", "5 ", "+5", "1e+5", "--5"}) {
    EXPECT_FALSE(ParseScriptNumber(text, value)) << text;
    EXPECT_EQ(value, 7);
  }
  std::mt19937_64 random(77);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t bits = random();
    double number = 0;
    static_assert(sizeof bits == sizeof number);
    std::memcpy(&number, &bits, sizeof number);
    if (!std::isfinite(number)) continue;
    double back = 0;
    ASSERT_TRUE(ParseScriptNumber(GeneralNumber(number), back)) << number;
    ASSERT_EQ(back, number);
  }
}

}  // namespace
}  // namespace tessaryn
