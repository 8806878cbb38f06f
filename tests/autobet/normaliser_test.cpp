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
using script_test::FirstPass;
using script_test::Lines;
using script_test::Table;

std::string Normalised(std::string_view text, int player = 1) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  const bool ok = NormaliseScript(player, Lines(text), Table(), script, diagnostic);
  return ok ? Dump(script) : "error: " + diagnostic.message;
}

TEST(TidyScriptLine, SpacesSignsAndLeavesStringsAndCommentsAlone) {
  const std::pair<const char*, const char*> cases[] = {
      {"cs1=5", "cs1 = 5"},
      {"cs1 = 1.50", "cs1 = 1.5"},
      {"   cs1=.5+0", "   cs1 = 0.5 + 0"},
      {"bet $ 5 on field", "bet $5 on field"},
      {"bet $5 on field", "bet $5 on field"},
      {"left$ (\"a=b\",2)", "left$( \"a=b\" , 2 )"},
      {"date$&time$", "date$ & time$"},
      {"place ( 6 )", "place( 6 )"},
      {"if (1)", "if ( 1 )"},
      {"cs1<=5", "cs1 <= 5"},
      {"cs1 = < 5", "cs1 <= 5"},
      {"cs1 > < 5", "cs1 <> 5"},
      {"cs1 = > 5", "cs1 >= 5"},
      {"cs1 = - 5", "cs1 = -5"},
      {"- 5", "-5"},
      {"cs1 - 5", "cs1 - 5"},
      {"cs1 - - 5", "cs1 + 5"},
      {"cs1 + - 5", "cs1 - 5"},
      {"cs1 * + 5", "cs1 * 5"},
      {"cs1 = - - 5", "cs1 = 5"},
      {"Go To \"x\"", "GoTo \"x\""},
      {"End If", "EndIf"},
      {"cs1=5'x=y", "cs1 = 5'x=y"},
      {"'cs1=5", "'cs1=5"},
      {"show message \"it's", "show message \"it's\""},
      {"", ""},
      {"   ", ""},
  };
  for (const auto& [typed, tidy] : cases) {
    std::string line = typed;
    TidyScriptLine(line);
    EXPECT_EQ(line, tidy) << typed;
  }
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

TEST(NormaliseScript, ReadsTheLongestPhraseThatStandsFirst) {
  const std::pair<const char*, const char*> cases[] = {
      {"is not less than", "55:0"},
      {"is less than", "52:0"},
      {"has not", "51:0"},
      {"has won", "-15:2"},
      {"yes no true false one once twice", "-31:6 -31:7 -31:-1 -31:0 -31:1 -31:1 -31:2"},
      {"all rolls", "-31:0"},
      {"50%of bankroll", "-31:50 61:0 -31:0.01 61:0 -11:1301"},
      {"net %", "-15:5"},
      {"the $5 a #6", "-31:5 -31:6"},
      {"\"\"", "-51:0"},
      {"\"it's\" & \"\" & \"b\"", "-51:1 74:0 -51:0 74:0 -51:2"},
      {"from roll 5", "-51:-15 -31:5"},
      {"date$ time$", "-51:-1 -51:-2"},
      {"input()", "-1:125 20:0 -51:0 21:0"},
      {"input$(\"x\")", "-1:825 20:0 -51:1 21:0"},
      {"number of of 5", "-31:5"},
      {"# of # of rolls", "-11:2504"},
      {"5 mod mod 6", "-31:5 64:0 64:0 -31:6"},
      {"5%mod 3", "error: Unknown or misplaced element:\r\rmod"},
      {"point is decided for or against 6", "-11:3500 50:0 -31:0 71:0 -11:3502 50:0 -31:6"},
      {"if the point is not established on 6", "1:0 -11:3500 51:0 -31:6"},
      {"passline exists", "-11:43 51:0 -31:0"},
      {"select rng 4", "-11:3672 50:0 -31:4"},
      {"date / time", "-11:3693"},
      {"remove on/off button from hard4", "-61:453 -11:52"},
      {"buy the place bet on(place4)", "-61:450 20:0 -11:31 21:0"},
      {"start new session(preserve dice roll file, checkstacks)", "-61:103"},
      {"[4;5}", "20:0 -31:4 75:0 -31:5 21:0"},
      {"a <= b", "error: Unknown or misplaced element:\r\rb"},
      {"<> =< => <= >=", "51:0 54:0 55:0 54:0 55:0"},
      {"joe mary  ann", "-13:2 -13:3"},
      {"maryann", "error: Unknown or misplaced element:\r\rmaryann"},
  };
  for (const auto& [line, records] : cases) {
    EXPECT_EQ(FirstPass(line), records) << line;
  }
}

TEST(NormaliseScript, TakesNothingTypedForACodeOfItsOwn) {
  for (const std::string word :
       {"V043", "F006", "L001", "S001", "A481", "P1", "U", "EX1", "H1.", "X", "I002"}) {
    EXPECT_EQ(FirstPass(word), "error: Unknown or misplaced element:\r\r" + Lowered(word));
  }
}

TEST(NormaliseScript, NamesTheWordThatIsUnknown) {
  const std::pair<const char*, const char*> cases[] = {
      {"playername",
       "Unknown player\r\rPlease enter actual name of player or refer to player's position such as player1, "
       "player2, etc."},
      {"passline session", "Please specify:\r\rcurrent session, last session, or all sessions."},
      {"passline hand", "Please specify:\r\rcurrent hand, last hand, or all hands."},
      {"bet 5 on Foo", "Unknown or misplaced element:\r\rfoo"},
      {"1e999", "Unknown or misplaced element:\r\r1e999"},
      {"1.2.3", "Unknown or misplaced element:\r\r1.2.3"},
      {"\xC3\xA9", "Unknown or misplaced element:\r\r\xC3\xA9"},
  };
  for (const auto& [line, message] : cases) EXPECT_EQ(FirstPass(line), std::string("error: ") + message);
}

TEST(NormaliseScript, MarksTheUnknownWordAloneAndOffersTheNearest) {
  struct OfferCase {
    const char* line;
    const char* marked;
    const char* offer;
  };
  const OfferCase cases[] = {
      {"bet 10 on Pasline", "Pasline", "passline"},
      {"  if \"Grüße €5\" = csn1 then bte 5 on field endif", "bte", "bet"},
      {"bet 10 on the pass line", "pass", "passline"},
      {"bet 10 on dont pass", "dont", "dontpass"},
      {"if comeout then", "comeout", "comeout roll"},
      {"if comeoutroll then", "comeoutroll", "comeout roll"},
      {"cs1 = highst(1, 2)", "highst", "highest"},
      {"cs1=5:bet cs1 on filed", "filed", "field"},
      {"bet 5 on passline marry ann", "marry", "mary ann"},
      {"bet 5 on passline maryann", "maryann", "mary ann"},
      {"bet 5 on place7", "place7", "place"},
      {"cs1 = cs100", "cs100", ""},
      {"take dwn place6", "take", "take down"},
      {"xyzzy", "xyzzy", ""},
      {"5%mod 3", "mod", ""},
      {"shw message \"a\"", "shw", "show message"},
      {"show mesage \"a\"", "show", "show message"},
      {"if bankroll > 5 than", "than", "then"},
      {"place6 = 12 autohandel winning bets", "autohandel", "autohandle"},
  };
  for (const OfferCase& one : cases) {
    CompiledScript script;
    ScriptDiagnostic diagnostic;
    ASSERT_FALSE(NormaliseScript(1, {"", one.line}, Table(), script, diagnostic)) << one.line;
    const auto begin = static_cast<std::size_t>(diagnostic.firstColumn);
    EXPECT_EQ(diagnostic.firstLine, 2);
    EXPECT_EQ(std::string(one.line).substr(begin, static_cast<std::size_t>(diagnostic.lastColumn) - begin),
              one.marked)
        << one.line;
    EXPECT_EQ(diagnostic.offer, one.offer) << one.line;
  }
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
