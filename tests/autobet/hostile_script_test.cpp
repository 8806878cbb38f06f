// Scripts that nobody would write: the compiler must answer each with tokens or one message, soon.
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "autobet/language/vocabulary.h"
#include "compile_helpers.h"
#include "support/places.h"

namespace tessaryn {
namespace {

using script_test::Compile;
using script_test::Message;
using script_test::Outcome;
using script_test::Table;

// What must hold of any outcome.
void ExpectSound(const std::vector<std::string>& lines, int player) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  std::vector<int> nesting;
  const bool ok = CompileAutobets(player, lines, Table(), script, diagnostic, &nesting);
  ASSERT_EQ(ok, !diagnostic.Failed());
  if (!ok) {
    ASSERT_FALSE(diagnostic.message.empty());
    ASSERT_TRUE(script.tokens.empty() && script.strings.empty());
    ASSERT_GE(diagnostic.lastLine, diagnostic.firstLine);
    ASSERT_LE(static_cast<std::size_t>(diagnostic.lastLine), lines.size());
    const auto length = [&](int line) {
      return static_cast<int>(lines[static_cast<std::size_t>(line) - 1].size());
    };
    ASSERT_LE(diagnostic.firstColumn, length(diagnostic.firstLine));
    ASSERT_LE(diagnostic.lastColumn, length(diagnostic.lastLine));
    ASSERT_GE(diagnostic.firstColumn, 0);
    return;
  }
  ASSERT_EQ(script.tokens[1], (ScriptToken{kTokenHeader, static_cast<double>(player)}));
  ASSERT_GE(script.tokens.back().kind, kStatementMarker);
  ASSERT_EQ(nesting.size(), lines.size());
  for (std::size_t i = 1; i < script.tokens.size(); ++i) {
    const ScriptToken& token = script.tokens[i];
    const bool jump = token.kind >= kTokenIf && token.kind <= kTokenExitDo;
    if (jump) {
      ASSERT_LT(token.value, static_cast<double>(script.tokens.size()));
    }
    if (token.kind == kTokenLabel) {
      ASSERT_LT(token.value, static_cast<double>(script.strings.size()));
    }
  }
  CompiledScript program;
  JoinScript(program, script);
  JoinScript(program, script);
  ASSERT_EQ(program.tokens.size(), 2 * script.tokens.size() - 1);
  ReindentScript(lines, nesting);
}

TEST(HostileScript, AnswersRandomBytes) {
  std::mt19937 random(4711);
  for (int round = 0; round < test::Rounds(3000); ++round) {
    std::vector<std::string> lines(1 + random() % 4);
    for (std::string& line : lines) {
      const std::size_t length = random() % 60;
      for (std::size_t i = 0; i < length; ++i) line += static_cast<char>(random());
    }
    ExpectSound(lines, static_cast<int>(random() % 9));
    if (HasFatalFailure()) FAIL() << "round " << round;
  }
}

TEST(HostileScript, AnswersRandomSentencesOfTheLanguage) {
  const std::vector<VocabularyRow>& rows = VocabularyRows();
  const char* extra[] = {"5", "1.5", "\"a\"", "(", ")",   ",",         "then", "if",
                         "=", "'",   "\"",    ":", "cs1", "player(1)", "-"};
  std::mt19937 random(815);
  int compiled = 0;
  for (int round = 0; round < test::Rounds(20000); ++round) {
    std::vector<std::string> lines(1 + random() % 3);
    for (std::string& line : lines) {
      for (std::size_t word = 1 + random() % 8; word > 0; --word) {
        line += random() % 2 == 0 ? std::string(extra[random() % std::size(extra)])
                                  : rows[random() % rows.size()].source;
        line += ' ';
      }
    }
    CompiledScript script;
    ScriptDiagnostic diagnostic;
    compiled += CompileAutobets(1, lines, Table(), script, diagnostic) ? 1 : 0;
    ExpectSound(lines, 1);
    if (HasFatalFailure()) FAIL() << "round " << round << ": " << lines[0];
  }
  EXPECT_GT(compiled, 20);  // else the sentences test nothing behind the first passes
}

TEST(HostileScript, AnswersMutatedScripts) {
  const std::string source =
      "\"top\"\nif point is established and any(> 5, place bets, cs1) > 6 then\n  bet highest(passline, 5) / "
      "2 on "
      "place6, place(cs2) player2\n  do\n    if -cs1 ^ 2 >= 4 xor not true then exitdo endif\n    goto "
      "\"top\"\n  "
      "loop\nelseif # rolls since last 7 > 3 then\n  all(= 5, hardway bets) = 10 : gosub 10\nelse\n  swap "
      "cs1, csn2\n"
      "  show message left$(\"abc\" & csn1, len(\"x\")) 'done\nendif\n10\nreturn";
  ASSERT_TRUE(Compile(source).ok) << Message(Compile(source));
  std::mt19937 random(31337);
  const std::string letters = "()[],=<>-+*/^&:'\"% \n15acps";
  for (int round = 0; round < test::Rounds(6000); ++round) {
    std::string text = source;
    for (std::size_t change = 1 + random() % 4; change > 0; --change) {
      const std::size_t at = random() % text.size();
      const std::size_t length = 1 + random() % 6;
      switch (random() % 4) {
        case 0:
          text.erase(at, length);
          break;
        case 1:
          text.insert(at, 1, letters[random() % letters.size()]);
          break;
        case 2:
          text[at] = letters[random() % letters.size()];
          break;
        default:
          text.insert(at, text.substr(random() % text.size(), length * 4));
      }
      if (text.empty()) text.push_back(' ');
    }
    ExpectSound(script_test::Lines(text), 1);
    if (HasFatalFailure()) FAIL() << "round " << round << ": " << text;
  }
}

std::string Repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

// Depth and length that would exhaust a stack, or a pass that does square work.
TEST(HostileScript, AnswersDeepAndLongScriptsSoon) {
  const int many = 20000;
  const std::string scripts[] = {
      "cs1 = " + Repeated("(", many) + "5" + Repeated(")", many),
      "cs1 = " + Repeated("(", many),
      "cs1 = " + Repeated("sqr(", many) + "5" + Repeated(")", many),
      "cs1 = " + Repeated("(1,", many) + "5" + Repeated(")", many),
      "cs1 = 1" + Repeated(" + 1", many),
      "cs1 = 1" + Repeated(" ^ - 1", many),
      "cs1 = " + Repeated("not ", many) + "1",
      "cs1 = " + Repeated("- ", many) + "1",
      "cs1 = " + Repeated("place(", many) + "6" + Repeated(") player1", many),
      "cs1 = sum(5" + Repeated(", passline", many) + ")",
      "cs1 = passline " + Repeated("player(passline ", many) + "1" + Repeated(")", many),
      Repeated("bets, ", many) + "bets = 5",
      "bets " + Repeated("player(bets ", 1000) + "5" + Repeated(")", 1000) + " = 5",
      Repeated("# of ", many),
      Repeated("one ", many),
      Repeated("current # ", many),
      Repeated("cr ", many),
      "cs" + Repeated("#", 1000000) + "5",
      Repeated("if 1 then\n", many) + Repeated("endif\n", many),
      Repeated("do\n", many) + Repeated("loop\n", many),
      Repeated("\"x\" : ", many),
      "goto 1\n" + Repeated("goto 1\n", many) + "1",
      Repeated("\"", many),
      std::string(1000000, 'x'),
      std::string(1000000, '9'),
      std::string(200000, '('),
      std::string(1000000, '-'),
      std::string(200000, '<'),
      Repeated("1e300 ", many / 10),
      "cs1 = " + std::string(1000000, ' ') + "5",
  };
  for (const std::string& script : scripts) {
    const auto start = std::chrono::steady_clock::now();
    ExpectSound(script_test::Lines(script), 1);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_LT(seconds, 20.0) << script.substr(0, 40);
    if (HasFailure()) FAIL() << script.substr(0, 40);
  }
}

TEST(HostileScript, RefusesAScriptThatAsksForTooManyRecords) {
  EXPECT_EQ(Message(Compile(Repeated("bets, ", 5000) + "bets = 5")), "Script too large.");
}

TEST(HostileScript, CompilesAThousandLinesInWellUnderASecond) {
  std::string script;
  for (int i = 0; i < 250; ++i) {
    script +=
        "if point is established and place6 wins total $ > cs1 * 2 then\n  bet 50% of bankroll on place6, "
        "place8\n"
        "  show message \"Round \" & cs1\nendif\n";
  }
  Compile("cs1 = 5");  // makes the vocabulary ready
  const auto start = std::chrono::steady_clock::now();
  const Outcome outcome = Compile(script);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  EXPECT_TRUE(outcome.ok) << Message(outcome);
  EXPECT_LT(seconds, 1.0);
  RecordProperty("milliseconds", static_cast<int>(seconds * 1000));
}

}  // namespace
}  // namespace tessaryn
