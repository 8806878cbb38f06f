// Texts by their characters, and long ones in good time.
#include "autobet/language/characters.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "autobet/run_helpers.h"

namespace tessaryn {
namespace {

TEST(Characters, AnyTextIsItsCharactersAndCanBeCutAtEach) {
  std::mt19937 random(20010);
  // Beginnings, middles and ends of characters in any order, and plain ones in runs long enough to be
  // skipped.
  const char* parts[] = {"a",    "plain text ", "\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x8E\xB2",
                         "\xC3", "\x82",        "\xE2\x82", "\xED\xA0\x80", "\xC0\x80",
                         "\xF5", "\xFF"};
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t i = random() % 12; i > 0; --i) text += parts[random() % std::size(parts)];
    std::vector<std::size_t> starts;
    for (std::size_t at = 0; at < text.size(); at += CharacterAt(text, at).bytes) {
      starts.push_back(at);
      const Character character = CharacterAt(text, at);
      ASSERT_LE(at + character.bytes, text.size());
      if (character.bytes > 1 || character.code < 0x80) {
        ASSERT_EQ(CharacterText(character.code), text.substr(at, character.bytes));
      }
    }
    ASSERT_EQ(CountCharacters(text), starts.size());
    for (std::size_t n = 0; n < starts.size(); ++n) ASSERT_EQ(CharacterStart(text, n), starts[n]) << n;
    ASSERT_EQ(CharacterStart(text, starts.size()), text.size());
    ASSERT_EQ(CharacterStart(text, starts.size() + 5), text.size());
    const std::string sought = text.substr(random() % (text.size() + 1), random() % 4);
    const std::size_t from = random() % (text.size() + 1);
    ASSERT_EQ(FindText(text, sought, from), text.find(sought, from));
  }
}

// csn1 a million characters, csn2 the same with another in the middle: a plain search for a part of one in
// the other looks through the same stretch again and again.
void MakeLongTexts(script_test::ScriptTable& table) {
  ASSERT_EQ(table.Run("csn1 = \"a\"\ndo\nif len(csn1) >= 500000 then exitdo endif\ncsn1 = csn1 & csn1\nloop\n"
                      "csn1 = left$(csn1, 499999)\ncsn2 = csn1 & \"b\" & csn1\ncsn1 = csn1 & csn1\n"),
            "");
  ASSERT_EQ(table.Number("len(csn1)"), 999998);
}

TEST(LongTexts, AreSearchedAndCutInMilliseconds) {
  script_test::ScriptTable table;
  MakeLongTexts(table);
  for (const char* expression :
       {"instr(csn1, left$(csn2, 700000))", "instr(300000, csn1, right$(csn2, 600000))",
        "instr(csn2, \"ab\")", "len(insert$(left$(csn1, 5), mid$(csn2, 5, 900000), 3))"}) {
    const auto start = std::chrono::steady_clock::now();
    table.Number(expression);
    // A plain search takes minutes; this leaves room for a busy machine.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500)) << expression;
  }
}

std::string Times(int count, const std::string& part) {
  std::string text = part;
  while (--count > 0) text += ", " + part;
  return text;
}

TEST(LongTexts, AStatementLetsTheHostHaveItsTurnAndCanBeStopped) {
  const std::string bets = "any(" + Times(40, "bets") + ")";
  for (const std::string& statement :
       {"cs1 = sum(" + Times(20, "len(csn1)") + ")", "csn9 = highest$(" + Times(20, "csn1") + ")",
        "if all(" + Times(20, "csn1") + ") = csn1 then csn3 = \"x\" endif",
        "if " + bets + " > " + bets + " then csn3 = \"x\" endif", std::string("csns = csn1")}) {
    SCOPED_TRACE(statement.substr(0, 40));
    script_test::ScriptTable table;
    MakeLongTexts(table);
    table.game->table.TurboRollActive = true;
    table.host.yields = 0;
    ASSERT_EQ(table.Run("cs99 = 5\n" + statement + "\ncs99 = 6"), "");
    EXPECT_GT(table.host.yields, 5);
    EXPECT_EQ(table.Bet(199), 6);
    table.host.yields = 0;
    table.host.yieldLimit = 2;
    table.Run("cs99 = 5\n" + statement + "\ncs99 = 6");
    EXPECT_EQ(table.Bet(199), 5);
    EXPECT_TRUE(table.game->autobet.Scripts[1].Errors.empty()) << "being stopped is no error";
    table.game->table.TurboRollActive = false;
  }
}

TEST(LongTexts, AllOfThemAtOnceAreRefusedAndNotMadeUntilTheMachineIsFull) {
  script_test::ScriptTable table;
  MakeLongTexts(table);
  EXPECT_EQ(table.ErrorOf("csn9 = highest$(" + Times(400, "csn1") + ")"), "Out of string space");
  EXPECT_EQ(table.ErrorOf("csn9 = highest$(" + Times(100, "csn1") + ")"), "");
}

}  // namespace
}  // namespace tessaryn
