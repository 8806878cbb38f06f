#include "autobet/compile/compile_autobets.h"

#include <gtest/gtest.h>

#include "compile_helpers.h"

namespace tessaryn {
namespace {

using script_test::Compile;
using script_test::Lines;
using script_test::Message;
using script_test::Outcome;

// A bet that the table doesn't offer is none of all bets.
TEST(CompileAutobets, AllBetsAreThoseThatTheTableOffers) {
  ScriptSurroundings bare = script_test::Table();
  bare.big68 = bare.smallTall = bare.midway = bare.fire = false;
  EXPECT_EQ(Compile("bets = 0").script.tokens.size() - Compile("bets = 0", 1, bare).script.tokens.size(),
            (93u - 83u) * 6);
}

// Every jump lands on the record that its keyword means, also behind another script's records.
void ExpectJumps(const CompiledScript& script) {
  const std::vector<ScriptToken>& tokens = script.tokens;
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const auto kindAt = [&](double index) { return tokens.at(static_cast<std::size_t>(index)).kind; };
    const std::int32_t kind = tokens[i].kind;
    if (kind == kTokenThen) {
      const std::int32_t to = kindAt(tokens[i].value);
      EXPECT_TRUE(to == kTokenElse || to == kTokenElseIf || to == kTokenEndIf);
    }
    if (kind == kTokenElse || kind == kTokenElseIf) {
      EXPECT_EQ(kindAt(tokens[i].value), kTokenEndIf);
    }
    if (kind == kTokenDo || kind == kTokenExitDo) {
      EXPECT_EQ(kindAt(tokens[i].value), kTokenLoop);
    }
    if (kind == kTokenLoop) {
      EXPECT_EQ(kindAt(tokens[i].value), kTokenDo);
    }
    if (kind == kTokenGoto || kind == kTokenGosub) {
      EXPECT_EQ(kindAt(tokens[i + 1].value), kTokenLabel);
    }
    if (kind == kTokenLabel) {
      EXPECT_EQ(script.strings.at(static_cast<std::size_t>(tokens[i].value)).position,
                static_cast<double>(i));
    }
  }
}

TEST(JoinScript, MovesJumpsAndStringsButNoValues) {
  const char* source =
      "\"Start\"\nif cs1 = 9 then\ndo\nif 1 then exitdo endif\nloop\nelseif cs2 = 12 then\ngoto "
      "\"start\"\nelse\n"
      "gosub 10\nendif\n10\nshow message \"hi\" & date$ & \"\"\nreturn";
  const Outcome one = Compile(source, 1);
  const Outcome two = Compile(source, 2);
  ASSERT_TRUE(one.ok && two.ok) << Message(one);
  ExpectJumps(one.script);
  CompiledScript program;
  JoinScript(program, {});
  EXPECT_TRUE(program.tokens.empty());
  JoinScript(program, one.script);
  EXPECT_EQ(program.tokens, one.script.tokens);
  EXPECT_EQ(program.strings, one.script.strings);
  JoinScript(program, two.script);
  const std::size_t length = one.script.tokens.size() - 1;
  ASSERT_EQ(program.tokens.size(), 2 * length + 1);
  ExpectJumps(program);
  for (std::size_t i = 1; i <= length; ++i) {
    const ScriptToken& joined = program.tokens[length + i];
    const ScriptToken& alone = two.script.tokens[i];
    EXPECT_EQ(joined.kind, alone.kind);
    if (alone.kind == kTokenString && alone.value > 0 && two.script.tokens[i - 1].kind != kTokenGoto) {
      EXPECT_EQ(program.strings.at(static_cast<std::size_t>(joined.value)).text,
                two.script.strings.at(static_cast<std::size_t>(alone.value)).text);
    }
    const bool index = alone.kind > 0 && alone.kind < kTokenOpen;
    const bool reference = i > 1 && (two.script.tokens[i - 1].kind == kTokenGoto ||
                                     two.script.tokens[i - 1].kind == kTokenGosub);
    const bool string = alone.kind == kTokenString || alone.kind == kTokenLabel;
    if (!index && !reference && !string) {
      EXPECT_EQ(joined.value, alone.value);
    }
    if (string && alone.value <= 0) {
      EXPECT_EQ(joined.value, alone.value);
    }
  }
}

TEST(ReindentScript, StandsBlocksOutByThreeBlanks) {
  const std::string script =
      "if\n cs1 > 5\nthen\ndo : cs1 = 1\n' comment\nif 1 then exitdo endif\n\nloop\nelseif 2 then\ncs1 = "
      "2\nelse\ncs1 = 3\n endif\ncs1 = 4";
  const Outcome outcome = Compile(script);
  ASSERT_TRUE(outcome.ok) << Message(outcome);
  std::string text;
  for (const std::string& line : ReindentScript(Lines(script), outcome.nesting)) text += line + "\n";
  EXPECT_EQ(
      text,
      "if\n   cs1 > 5\nthen\n   do : cs1 = 1\n      ' comment\n      if 1 then exitdo endif\n\n   loop\n"
      "elseif 2 then\n   cs1 = 2\nelse\n   cs1 = 3\nendif\ncs1 = 4\n");
}

}  // namespace
}  // namespace tessaryn
