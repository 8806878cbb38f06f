#include "autobet/compile/compile_autobets.h"

#include <gtest/gtest.h>

#include "compile_helpers.h"

namespace tessaryn {
namespace {

using script_test::Compile;
using script_test::Dump;
using script_test::Lines;
using script_test::Message;
using script_test::Outcome;
using script_test::Table;

struct ErrorCase {
  const char* script;
  const char* message;  // " | " for a line end
};

void ExpectMessages(std::initializer_list<ErrorCase> cases) {
  for (const ErrorCase& one : cases) {
    const Outcome outcome = Compile(one.script);
    EXPECT_FALSE(outcome.ok) << one.script;
    EXPECT_EQ(Message(outcome), one.message) << one.script;
    EXPECT_TRUE(outcome.script.tokens.empty()) << one.script;
  }
}

constexpr const char* kAmbiguous = "Ambiguous variable references";

#define AMBIGUOUS "Ambiguous variable references |  | "
#define QUALIFIER                                                             \
  " |  | Acceptable qualifier format: |     =, <>, <, >, <=, or >= followed " \
  "by an expression. | For example: |     > 5 |     = cs1 + 4"
#define NO_ANY                                                                                         \
  "Improper use of list. |  | Lists defined by the keyword \"Any\" | cannot be used to set or modify " \
  "variables."
#define PLACE_NAMES                                                                                        \
  "Improper assignment or expression. |  | Enter only names (and optional qualifiers) | of Place bets to " \
  "buy. "                                                                                                  \
  "For example: | Buy the Place bet on Place10 | Buy the Place bet on Place4, Place(cs1) | "               \
  "Buy the Place bet on > 10, Place bets"

TEST(CompileAutobets, AcceptsWhatAuthorsWrite) {
  for (const char* script : {"",
                             "' nothing",
                             "bet 10 on passline",
                             "bet 5 to place6, place8",
                             "seed = 3000000000",
                             "cs1 = -1e300",
                             "add 6 to place6",
                             "passline = 10",
                             "\"press\" : add 6 to place6",
                             "subtract 5 from passline player2",
                             "multiply by 2 on field",
                             "round down to the nearest 6 on place6, place8",
                             "bet 50% of bankroll on passline",
                             "if bankroll > 1000 then\n bet 10 on passline\nendif",
                             "If the point is established Then\nEnd If",
                             "if any(place6, place8) > 10 then\nendif",
                             "if\n1\n0\nthen\nendif",
                             "if true then\nendif",
                             "if 5 > all[4, 5, cs1] then\nendif",
                             "if any(> 5, place bets) = 10 then\nendif",
                             "if any(\"Joe\", \"Ann\") = player name(1) then\nendif",
                             "if any(4, 6) = any(point, 8) then\nendif",
                             "if not passline exists and not (field > 5 or big6 > 5) then\nendif",
                             "if not not true then\nendif",
                             "if shooter = player1 or shooter = joe or shooter is mary ann then\nendif",
                             "if player(\"Joe\") = 2 then\nendif",
                             "if passline player(shooter) > 5 then\nendif",
                             "if place(6) player(2) last hand wins total $ > 5 then\nendif",
                             "if passline has won then\nendif",
                             "if # of rolls since last 7 > 10 then\nendif",
                             "if # rolls 3.4 > 5 then\nendif",
                             "if # rolls die1 face6 last session > 5 then\nendif",
                             "if # passes naturals > 2 then\nendif",
                             "if number of hands completed > 5 then\nendif",
                             "if # seven outs > 5 then\nendif",
                             "if # points established 6 > 2 then\nendif",
                             "if # of points(6) passed > 2 then\nendif",
                             "if % of rolls(7) > 16.7 then\nendif",
                             "if most rolls in a hand last session > 20 then\nendif",
                             "if the next roll is a comeout roll then\nendif",
                             "if point is decided for 6 then\nendif",
                             "if passline expected value > 0 then\nendif",
                             "if passline net % all sessions > 0 then\nendif",
                             "if passline last session > 0 then\nendif",
                             "if passline called off then\nendif",
                             "cs1 = -2 ^ 2",
                             "cs1 = 2 ^ -3",
                             "cs1 = - - 5",
                             "cs1 = 7 \\ 2 mod 3",
                             "cs1, cs2 = 5",
                             "(cs1, cs2) = 5",
                             "all(place4, place6) = 10",
                             "all(> 5, place bets) = cs1 + 4",
                             "place bets = 0",
                             "bets = 0",
                             "checkstacks = 0",
                             "checkstack names = \"\"",
                             "place(cs1) = cs2 * 2",
                             "csn1 = \"a\" & cs1 & date$",
                             "csn(5) = left$(csn1, 2) & cr & str$(5)",
                             "cs1 = 5 = 5",
                             "cs1 = instr(\"abc\", \"b\") + instr(2, \"abc\", \"b\")",
                             "cs1 = sum(passline player4, passline player6)",
                             "cs1 = count(> 0, bets)",
                             "cs1 = highest(place bets) + lowest(1, 2)",
                             "csn1 = highest$(csns)",
                             "cs1 = avg bankroll(10)",
                             "cs1 = input(\"How much?\")",
                             "swap cs1, cs2",
                             "swap(passline, place(6))",
                             "clear place bets",
                             "remove place6, field",
                             "take down lay bets player2",
                             "clear csn1, cs1",
                             "call off place6",
                             "call on > 5, hardway bets",
                             "remove on/off button from hard4",
                             "buy the place bet on place10",
                             "buy the place bet on place4, place(cs1)",
                             "buy the place bet on > 10, place bets",
                             "buy the place bet on = 10, place4",
                             "show message \"Hello\"",
                             "show message(\"Hello\")",
                             "show message bankroll",
                             "ask yes/no question \"Go on?\"",
                             "show steps",
                             "if answer = yes then\nendif",
                             "atm deposit",
                             "atm withdraw 50",
                             "seed rng",
                             "seed rng with 5",
                             "rng = 3",
                             "select rng 4",
                             "pass the dice",
                             "start new session",
                             "start new session(preserve checkstacks)",
                             "playback dice roll file \"a.rol\"",
                             "playback dice roll file \"a.rol\" from roll 5",
                             "autohandle winning bets = \"press double\"",
                             "autohandle losing bets = 3",
                             "autopass the dice = true",
                             "dice roll file next roll = 5",
                             "bankroll = 5000",
                             "comp rate = 1",
                             "stop autoroll/turboroll",
                             "open/append file for output \"x\"",
                             "output to file \"a\" & 5",
                             "stop autorolling/turboroll",
                             "10 : gosub \"Make bets\" : goto 10\n\"make bets \"\nreturn",
                             "do\nif 1 then\nexitdo\nendif\nloop",
                             "if 1 then bet 5 on field else bet 6 on field endif",
                             "if 1 then elseif 2 then else endif"}) {
    const Outcome outcome = Compile(script);
    EXPECT_TRUE(outcome.ok) << script << ": " << Message(outcome);
  }
}

TEST(CompileAutobets, WritesReferencesInTheirCanonicalRun) {
  const std::pair<const char*, const char*> cases[] = {
      {"cs1 = passline", "-12:101 -13:1 50:0 -11:43 -13:1 -14:3 -15:1 -16:34 102:0"},
      {"cs1 = wins passline", "-12:101 -13:1 50:0 -11:43 -13:1 -14:3 -15:2 -16:29 102:0"},
      {"cs1 = total # last hand player3 wagers place(cs2)",
       "-12:101 -13:1 50:0 -1:6 20:0 -11:102 -13:1 21:0 -13:3 -14:2 -15:1 -16:21 102:0"},
      {"cs1 = field player(joe) tendered",
       "-12:101 -13:1 50:0 -11:49 -1:50 20:0 -31:2 21:0 -14:3 -15:0 -16:34 102:0"},
      {"cs1 = # rolls 7 last hand", "-12:101 -13:1 50:0 -11:2504 -13:0 -14:2 -16:7 102:0"},
      {"cs1 = # rolls(7)", "-12:101 -13:1 50:0 -1:34 20:0 -31:7 21:0 -13:0 -14:3 -16:0 102:0"},
      {"cs1 = # points 6", "-12:101 -13:1 50:0 -11:4606 -13:0 -14:3 -15:6 -16:6 102:0"},
      {"cs1 = # points(6)", "-12:101 -13:1 50:0 -1:46 20:0 -31:6 21:0 -13:0 -14:3 -15:6 -16:0 102:0"},
      {"cs1 = bankroll shooter", "-12:101 -13:1 50:0 -11:1301 -13:10 -14:3 102:0"},
      {"cs1 = simulated hours", "-12:101 -13:1 50:0 -11:1200 -13:0 -14:3 102:0"},
      {"cs1 = avg rolls per hand", "-12:101 -13:1 50:0 -11:1502 -13:0 -14:3 102:0"},
      {"cs1 = expected value field", "-12:101 -13:1 50:0 -11:49 -13:1 -14:3 -15:5 -16:32 102:0"},
      {"cs1 = # rolls since last passline win", "-12:101 -13:1 50:0 -11:43 -13:1 -14:3 -15:2 -16:27 102:0"},
      {"cs1 = # rolls since last", "-12:101 -13:1 50:0 -11:2505 -13:0 -14:3 -16:0 102:0"},
      {"cs1 = last shooter", "-12:101 -13:1 50:0 -11:3201 102:0"},
      {"cs1 = point", "-12:101 -13:1 50:0 -11:3500 102:0"},
      {"cs1 = count(5, outside place bets)",
       "-12:101 -13:1 50:0 -1:131 20:0 -31:5 75:0 -11:31 -13:1 -14:3 -15:1 -16:34 75:0 -11:36 -13:1 -14:3 "
       "-15:1 "
       "-16:34 0:0 21:0 102:0"},
      {"big bets player2 = 1",
       "-12:50 -13:2 -14:3 -15:1 -16:34 75:0 -12:51 -13:2 -14:3 -15:1 -16:34 50:0 -31:1 102:0"},
      {"bet passline on field, place(6)",
       "-61:481 -11:43 -13:1 -14:3 -15:1 -16:34 57:0 -12:49 -13:1 -14:3 -15:1 -16:34 75:0 -2:6 20:0 -31:6 "
       "21:0 "
       "-13:1 -14:3 -15:1 -16:34 102:0"},
      {"all(> highest(cs1, cs2), field) = 1",
       "-81:3 20:0 53:0 -1:126 20:0 -11:101 -13:1 75:0 -11:102 -13:1 0:0 21:0 75:0 -12:49 -13:1 -14:3 -15:1 "
       "-16:34 "
       "0:0 21:0 50:0 -31:1 102:0"},
      {"\"x\" : goto \"X\"", "-71:1 101:4 14:0 -51:3 102:0"},
      {"50 : goto 50.0", "-71:1 101:3 14:0 -31:3 102:0"},
  };
  for (const auto& [script, records] : cases) {
    const Outcome outcome = Compile(script);
    ASSERT_TRUE(outcome.ok) << script << ": " << Message(outcome);
    EXPECT_EQ(Dump(outcome.script, 3), records) << script;
  }
}

TEST(CompileAutobets, RefusesBadStructureInItsWords) {
  ExpectMessages({
      {"cs1 = (5", "Missing or improperly placed parenthesis."},
      {"cs1 = 5)", "Missing or improperly placed parenthesis."},
      {"cs1 = (5 : cs2 = 5)", "Missing or improperly placed parenthesis."},
      {"cs1 = place 6", "Missing or inappropriate reference to Place bet."},
      {"cs1 = sqr 6", "Missing or inappropriate reference to Sqr."},
      {"cs1 = checkstack 6", "Missing or inappropriate reference to Checkstack."},
      {"if any 4, 5 = 6 then",
       "Lists defined by \"Any\" must be enclosed in brackets. |  | For example: |       "
       "Any(Big6, Field, Checkstacks) |       Any[4,5,6,8,9,10]"},
      {"all place4 = 6",
       "Lists defined by \"All\" must be enclosed in brackets. |  | For example: |       All(inside "
       "place bets) |       All[Field, PassLine, Hard4]"},
      {"\"here\"\nshow steps\n\" HERE \"", "A duplicate label exists in line 1"},
      {"show steps\n10\n\"10\"", "A duplicate line number exists in line 2"},
      {"if\n\"here\"\nthen",
       "Improper placement of label. | Labels cannot appear within condition statements "
       "(between If and Then)."},
      {"if if", "IF out of position."},
      {"then", "THEN out of position."},
      {"else", "Expected THEN before ELSE."},
      {"if 1 else", "Expected THEN before ELSE."},
      {"elseif", "ELSEIF out of position."},
      {"if 1 then else elseif", "ELSEIF out of position."},
      {"if 1 then if 2 then else elseif",
       "ELSEIF out of position. | Cannot be placed after ELSE within the same "
       "IF/THEN statement."},
      {"if 1 endif", "Missing THEN between IF and ENDIF."},
      {"if 1 then do endif", "Missing or out of position LOOP statement."},
      {"endif", "Unassociated ENDIF."},
      {"if 1 do", "DO statement out of position."},
      {"loop", "Missing DO statement or LOOP statement out of position."},
      {"do if 1 loop", "Missing DO statement or LOOP statement out of position."},
      {"do if 1 then loop", "ENDIF missing or out of position, or  | LOOP statement out of position."},
      {"exitdo", "EXIT DO statement outside of DO/LOOP."},
      {"do if exitdo", "EXIT DO statement out of position."},
      {"if goto 5", "GOTO out of position."},
      {"gosub", "GOSUB missing reference."},
      {"goto bankroll", "Improper reference after GOTO"},
      {"gosub date$", "Improper reference after GOSUB"},
      {"goto \"There\"", "Label \"There\" not found."},
      {"gosub 10.0", "Label \"10\" not found."},
      {"if 1", "Missing THEN statement."},
      {"if 1 then", "Missing ENDIF statement."},
      {"if 1 then else", "Missing ENDIF statement."},
      {"if 1 then if 2 then else else endif", "Missing ENDIF statement."},
      {"do", "Missing LOOP statement."},
      {"10 : goto 10 5",
       "Unable to resolve elements. |  | The GoTo command must be followed by the name of a single "
       "label.  | For example: |       GoTo \"Make bets\""},
  });
}

TEST(CompileAutobets, RefusesWhatCannotBeAssigned) {
  ExpectMessages({
      {"sqr(5) = 5", "Sqr is a read-only function and cannot be assigned a value."},
      {"left$(csn1, 2) = \"a\"", "Left$ is a read-only function and cannot be assigned a value."},
      {"minimum bet = 5", "Minimum Bet is a read-only variable and cannot be assigned a value."},
      {"rolls per hour = 60", "Rolls Per Hr is a read-only variable and cannot be assigned a value."},
      {"available bankroll = 60",
       "Available bankroll is a read-only variable and cannot be assigned a value."},
      {"new shooter = 1",
       "Beginning new hand (new shooter) is a read-only variable and cannot be assigned a value."},
      {"cs1, point = 5", "Point is a read-only variable and cannot be assigned a value."},
      {"clear bankroll, comps", "Comps is a read-only variable and cannot be assigned a value."},
      {"passline last hand = 5",
       "Unable to set the value of a bet that is not in the current hand or session."},
      {"bet 5 on passline wins", "Only able to set the value of current wagers."},
      {"place(6) net = 5", "Only able to set the value of current wagers."},
      {"passline current # = 5", "Only able to set the current $ value of a bet."},
  });
}

TEST(CompileAutobets, JudgesTheModifiersOfEachKindOfVariable) {
  ExpectMessages({
      {"cs1 = minimum bet last hand", kAmbiguous},
      {"cs1 = point 6", kAmbiguous},
      {"cs1 = cs2 last hand", kAmbiguous},
      {"cs1 = cs2 5", kAmbiguous},
      {"cs1 = passline field", kAmbiguous},
      {"cs1 = passline player1 player1", "Ambiguous player references"},
      {"cs1 = passline player(1) joe", "Ambiguous player references"},
      {"cs1 = passline last hand last hand", "Ambiguous hand references"},
      {"cs1 = passline wins wins", "Ambiguous variable modifiers"},
      {"cs1 = passline current current", kAmbiguous},
      {"cs1 = bankroll wins", kAmbiguous},
      {"cs1 = wins", kAmbiguous},
      {"cs1 = player1 last hand", kAmbiguous},
      {"cs1 = shooter 5", kAmbiguous},
      {"cs1 = avg rolls per hand last hand",
       AMBIGUOUS "Avg Rolls Per Hand only applies to | current session, last session, or all sessions."},
      {"cs1 = # rolls wins", kAmbiguous},
      {"cs1 = # rolls since last 7 last hand",
       AMBIGUOUS "# Rolls Since Last only applies to | current session or all sessions."},
      {"cs1 = # rolls since last(7) last session",
       AMBIGUOUS "# of rolls since last only applies to | current session or all sessions."},
      {"cs1 = # rolls 13", AMBIGUOUS "Reference to rolls out of limits."},
      {"cs1 = # rolls 3.7", AMBIGUOUS "Reference to rolls out of limits."},
      {"cs1 = # passes 3.4", AMBIGUOUS "Reference to rolls out of limits."},
      {"cs1 = # rolls vig", kAmbiguous},
      {"cs1 = # points wins", kAmbiguous},
      {"cs1 = # points 7", kAmbiguous},
      {"cs1 = passline all players", AMBIGUOUS
       "Wagers must be referenced by individual players.  If all players are desired then include the "
       "separate players in an expression or function.  For example,  | Expression: passline player1 + "
       "passline player2 | Function: sum(passline player4, passline player6)"},
      {"cs1 = passline tendered total #", AMBIGUOUS "'Total' only applies to resolved wagers."},
      {"cs1 = passline tendered high", AMBIGUOUS "'High' only applies to resolved wagers."},
      {"cs1 = passline tendered low", AMBIGUOUS "'Low' only applies to resolved wagers."},
      {"cs1 = passline tendered average $", AMBIGUOUS "'Average' only applies to resolved wagers."},
      {"cs1 = passline net # rolls since last",
       AMBIGUOUS "'# rolls since last' | only applies to wagers, wins, and losses."},
      {"cs1 = passline wins expected value", AMBIGUOUS "'Expected value' | only available as net or net %"},
      {"cs1 = passline wins current $", AMBIGUOUS "'Current' only applies to tendered wagers."},
      {"cs1 = passline current last session",
       AMBIGUOUS "'Current' only applies to | current hand, current session, or all sessions."},
      {"cs1 = passline wins prior", AMBIGUOUS "'Prior' only applies to tendered wagers."},
      {"cs1 = passline prior all sessions",
       AMBIGUOUS "'Prior' only applies to current hand, current session, or all sessions."},
      {"cs1 = passline working last hand", AMBIGUOUS "'Working' only applies to current hand or session."},
      {"cs1 = passline called on last hand",
       AMBIGUOUS "'Called on' only applies to current hand or session."},
      {"cs1 = passline called off last hand",
       AMBIGUOUS "'Called off' only applies to current hand or session."},
      {"cs1 = lay4 vig last hand", AMBIGUOUS "'Vig' only applies to current hand or session."},
  });
}

TEST(CompileAutobets, RefusesWhatDoesNotReduce) {
  ExpectMessages({
      {"if then endif", "Missing expression between IF and THEN."},
      {"if 5 6 then endif", "Unable to resolve expression."},
      {"if place bets > 5 then endif", "Unable to resolve expression."},
      {"if any(4, 5) then endif", "Unable to resolve expression."},
      {"if \"a\" & 5 then endif", "Result not true or false."},
      {"cs1 = \"a\" + 5", "Improper use of arithmetic operator."},
      {"cs1 = -\"a\"", "Improper use of arithmetic operator."},
      {"cs1 = 5 *", "Unable to perform requested math."},
      {"cs1 = 5 / * 5", "Unable to perform requested math."},
      {"cs1 = any(4, 5) + 1", "Unable to perform requested math."},
      {"cs1 = \"a\" &", "Unable to concatenate elements."},
      {"if > 5 then endif", "Improper use of relational operator"},
      {"if not \"a\" then endif", "Improper argument for NOT operation."},
      {"if not then endif", "Improper argument for NOT operation."},
      {"if and 5 then endif", "Missing expression before logical AND"},
      {"if 5 or then endif", "Missing expression after logical OR"},
      {"if \"a\" xor 5 then endif", "Missing or inappropriate expression before logical XOR"},
      {"if 5 and \"a\" then endif", "Missing or inappropriate expression after logical AND"},
      {"if any(5 6) = 5 then endif", "Inappropriate expression in list."},
      {"if any() = 5 then endif", "Inappropriate expression in list."},
      {"if any(4, any(5, 6)) = 5 then endif", "Inappropriate expression in list."},
      {"if any(>, 4) = 5 then endif", "Improper qualifier in list." QUALIFIER},
      {"if any(4, > 5) = 5 then endif", "Improper qualifier in list." QUALIFIER},
      {"cs1 = sum(>, 5)", "Missing or improper qualifier in Sum function." QUALIFIER},
      {"cs1 = sum(\"a\")", "Improper expression in Sum function."},
      {"cs1 = highest()", "Improper expression in Highest function."},
      {"cs1 = place()", "Missing expression in Place function."},
      {"csn1 = mid$(\"a\", 5)", "Missing expression in Mid$ function."},
      {"csn1 = left$(\"a\", 5, 6)", "Too many expressions in Left$ function."},
      {"csn1 = left$(5, 5)", "Inappropriate expression in Left$ function."},
      {"cs1 = place(5 6)", "Inappropriate expression in Place function."},
      {"cs1 = passline player(1, 2)", "Too many expressions in Player function."},
      {"cs1 = instr(\"a\")", "Missing expression in Instr function."},
      {"cs1 = instr(\"a\", \"b\", \"c\")",
       "Missing or improper qualifier in Instr function. |  | Expected qualifier format: | >, <, or = "
       "followed by "
       "number or non-string variable"},
      {"passline", "Improper assignment or expression."},
      {"5 + 3", "Improper assignment or expression."},
      {"cs1 =", "Improper assignment or expression."},
      {"cs1 = 5, 6", "Improper assignment or expression."},
      {"cs1 + cs2 = 5", "Improper assignment or expression."},
      {"5 = cs1", "Improper assignment or expression."},
      {"cs1 = place bets", "Improper assignment or expression."},
      {"any(place4, place6) = 5", NO_ANY},
      {"bet 5 on any(place4, place6)", NO_ANY},
      {"bet 5", "Missing argument."},
      {"bet on field", "Missing argument."},
      {"bet 5 on", "Missing argument."},
      {"bet 5 on field,", "Missing argument."},
      {"bet \"a\" on field", "Improper argument."},
      {"bet 5 on 6", "Improper argument."},
      {"bet 5 6 on field", "Unable to resolve elements."},
      {"bet 5 on field from place6", "Unable to resolve elements."},
      {"show message", "Missing argument."},
      {"play sound 5", "Improper argument."},
      {"show message 5 6", "Unable to resolve elements."},
      {"start new session 5", "Unable to resolve elements."},
      {"call off cs1", "Improper argument."},
      {"clear 5", "Improper argument."},
      {"swap cs1",
       "Missing or improper arguments. | The swap command only works with two variables at a time."},
      {"swap cs1, cs2, cs3",
       "Missing or improper arguments. | The swap command only works with two variables at a time."},
      {"buy the place bet on place4 + 5", PLACE_NAMES},
      {"buy the place bet on 5", PLACE_NAMES},
      {"playback dice roll file from roll 5", "Missing argument."},
  });
}

TEST(CompileAutobets, RefusesBetsThatTheTableDoesNotOffer) {
  ScriptSurroundings bare = Table();
  bare.big68 = bare.smallTall = bare.midway = bare.fire = false;
  const std::pair<const char*, const char*> cases[] = {
      {"cs1 = big6", "Big"},
      {"bet 5 on big8", "Big"},
      {"cs1 = big(6)", "Big"},
      {"big bets = 0", "Big"},
      {"cs1 = midway", "Midway"},
      {"cs1 = fire", "Fire"},
      {"cs1 = makeall", "Small-Tall-All"},
      {"bet 5 on point7", "Small-Tall-All"},
  };
  for (const auto& [script, family] : cases) {
    EXPECT_EQ(Message(Compile(script, 1, bare)), std::string("Table not configured for ") + family +
                                                     " bets. |  | Check 'Bets' tab on Configuration screen.");
    EXPECT_TRUE(Compile(script).ok) << script;
  }
  EXPECT_TRUE(Compile("bets = 0\nbet 5 on sharpshooter, ridetheline", 1, bare).ok);
  EXPECT_EQ(Compile("bets = 0").script.tokens.size() - Compile("bets = 0", 1, bare).script.tokens.size(),
            (93u - 83u) * 6);
}

TEST(CompileAutobets, SpansTheStatementThatFailed) {
  struct SpanCase {
    const char* script;
    int firstLine, firstColumn, lastLine, lastColumn;
  };
  const SpanCase cases[] = {
      {"\nfoo = 5", 2, 0, 2, 3},
      {"cs1=5:foo=5", 1, 6, 1, 9},
      {"if 5 6 then\nendif", 1, 2, 1, 7},
      {"if\n\nthen\nendif", 1, 0, 3, 4},
      {"  cs1 = 5 : cs2 = : cs3 = 5", 1, 10, 1, 18},
      {"\"a\"\n\n  \"A\" : cs1 = 5", 1, 0, 3, 6},
      {"cs1 = 5 : do", 1, 8, 1, 12},
  };
  for (const SpanCase& one : cases) {
    const ScriptDiagnostic diagnostic = Compile(one.script).diagnostic;
    EXPECT_TRUE(diagnostic.Failed()) << one.script;
    EXPECT_EQ(diagnostic.firstLine, one.firstLine) << one.script;
    EXPECT_EQ(diagnostic.firstColumn, one.firstColumn) << one.script;
    EXPECT_EQ(diagnostic.lastLine, one.lastLine) << one.script;
    EXPECT_EQ(diagnostic.lastColumn, one.lastColumn) << one.script;
  }
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
  const std::vector<std::string> lines = Lines(
      "if\n cs1 > 5\nthen\ndo : cs1 = 1\n' comment\nif 1 then exitdo endif\n\nloop\nelseif 2 then\ncs1 = "
      "2\nelse\n"
      "cs1 = 3\n endif\ncs1 = 4");
  const Outcome outcome = Compile(
      "if\n cs1 > 5\nthen\ndo : cs1 = 1\n' comment\nif 1 then exitdo endif\n\nloop\nelseif 2 then\ncs1 = "
      "2\nelse\n"
      "cs1 = 3\n endif\ncs1 = 4");
  ASSERT_TRUE(outcome.ok) << Message(outcome);
  std::string text;
  for (const std::string& line : ReindentScript(lines, outcome.nesting)) text += line + "\n";
  EXPECT_EQ(
      text,
      "if\n   cs1 > 5\nthen\n   do : cs1 = 1\n      ' comment\n      if 1 then exitdo endif\n\n   loop\n"
      "elseif 2 then\n   cs1 = 2\nelse\n   cs1 = 3\nendif\ncs1 = 4\n");
}

}  // namespace
}  // namespace tessaryn
