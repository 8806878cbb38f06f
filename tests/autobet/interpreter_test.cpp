#include "autobet/run/interpreter.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "autobet/run_helpers.h"
#include "base/bet_catalogue.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "rules/bankroll.h"
#include "rules/consistency.h"
#include "stats/events_log.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

// A script and what it leaves in bets and CheckStacks 0 to 3 of Ann.
struct EffectCase {
  const char* name;
  const char* script;
  const char* bet;  // named as in the language; "" none
  double betAfter;
  double stacks[4];
};

const EffectCase kEffects[] = {
    {"LinesOfAConditionAreJoinedByOr",
     "if\n1\n0\nthen cs0 = 1 endif\nif\n0\n0\nthen cs1 = 1 endif",
     "",
     0,
     {1}},
    {"ElseIsLeftOutBehindATrueCondition", "if 1 then cs0 = 1 else cs1 = 1 endif", "", 0, {1}},
    {"ElseIfStartsAnew", "if 0 then cs0 = 1 elseif 1 then cs1 = 1 else cs2 = 1 endif", "", 0, {0, 1}},
    {"ElseIfIsNotHelpedByTheFirst",
     "if 0 then cs0 = 1 elseif 0 then cs1 = 1 else cs2 = 1 endif",
     "",
     0,
     {0, 0, 1}},
    {"BlocksNest", "if 1 then\nif 0 then cs0 = 1 else cs1 = 1 endif\ncs2 = 1\nendif", "", 0, {0, 1, 1}},
    {"ACompareOfNumberAndTextIsOne",
     "if \"5\" = 5 then cs0 = 1 endif\nif \"05\" = \"5\" then cs1 = 1 endif",
     "",
     0,
     {1}},
    {"ABadLineLeavesTheOthers",
     "if\n1/0\n1\nthen cs0 = 1 endif\nif\n1/0\nthen cs1 = 1 else cs2 = 1 endif",
     "",
     0,
     {1, 0, 1}},
    {"PowersGoLeftToRight",
     "cs0 = 2 ^ 3 ^ 2\ncs1 = -2 ^ 2\ncs2 = not 0\ncs3 = not 1",
     "",
     0,
     {64, -4, -1, -2}},
    {"LogicIsBitwise", "cs0 = 5 and 3\ncs1 = 5 or 3\ncs2 = 5 xor 3\ncs3 = 17 mod 5", "", 0, {1, 7, 6, 2}},
    {"DivisionBeforeWhole",
     "cs0 = 7 \\ 2\ncs1 = 10 / 4 * 2\ncs2 = 2 + 3 * 4\ncs3 = (2 + 3) * 4",
     "",
     0,
     {3, 5, 14, 20}},
    {"ListsAnyAndAll",
     "if any(1, 5, 9) = 5 then cs0 = 1 endif\nif all(1, 5) < 6 then cs1 = 1 endif\n"
     "if all(1, 5) < 5 then cs2 = 1 endif\nif 7 = any(6, 8) then cs3 = 1 endif",
     "",
     0,
     {1, 1}},
    {"ListsTakeAQualifier",
     "if all(> 2, 1, 5, 9) > 4 then cs0 = 1 endif\nif any(> 20, 1, 5) = 5 then cs1 = 1 endif\n"
     "cs2 = count(> 2, 1, 5, 9)\ncs3 = sum(<> 5, 1, 5, 9)",
     "",
     0,
     {1, 0, 2, 10}},
    {"ListAgainstList",
     "if all(1, 2) < any(2, 3) then cs0 = 1 endif\nif all(1, 2) < all(2, 3) then cs1 = 1 endif",
     "",
     0,
     {1, 0}},
    {"OneValueForManyTargets", "cs0, cs1, cs2 = 3", "", 0, {3, 3, 3}},
    {"AllAsTargets", "all(cs0, cs3) = 4", "", 0, {4, 0, 0, 4}},
    {"QualifierSelectsTargets", "cs1 = 5\ncs2 = 9\nadd 1 to > 4, cs0, cs1, cs2", "", 0, {0, 6, 10}},
    {"LaterQualifierTakesOver", "cs1 = 5\ncs2 = 9\nbet 7 on > 6, cs1, cs2, < 6, cs0, cs1", "", 0, {7, 7, 7}},
    {"AmountActions",
     "cs0 = 8\nmultiply by 3 on cs0\ncs1 = 8\ndivide by 4 on cs1\ncs2 = 8\nsubtract 3 from cs2\ncs3 = 8\nadd "
     "1 to cs3",
     "",
     0,
     {24, 2, 5, 9}},
    {"Rounding",
     "cs0 = 13\nround to the nearest 5 on cs0\ncs1 = 13\nround down to the nearest 5 on cs1\ncs2 = 11\n"
     "round up to the nearest 5 on cs2\ncs3 = 12.5\nround to the nearest 5 on cs3",
     "",
     0,
     {15, 10, 15, 10}},
    {"Swap", "cs0 = 1\ncs1 = 2\nswap cs0, cs1", "", 0, {2, 1}},
    {"Clear", "cs0 = 1\ncs1 = 2\nclear cs0", "", 0, {0, 2}},
    {"GotoLeavesABlock",
     "do\nadd 1 to cs0\nif cs0 = 3 then goto \"out\" endif\nloop\n\"out\"\ncs1 = 9",
     "",
     0,
     {3, 9}},
    {"ExitDoLeavesTheInnerLoop",
     "do\nadd 1 to cs0\ndo\nadd 1 to cs1\nexitdo\nloop\nif cs0 = 2 then exitdo endif\nloop",
     "",
     0,
     {2, 2}},
    {"GosubReturns", "gosub \"s\"\ncs1 = 2\ngoto \"e\"\n\"s\"\ncs0 = 1\nreturn\n\"e\"", "", 0, {1, 2}},
    {"ReturnAloneIsNothing", "return\ncs0 = 1", "", 0, {1}},
    {"NumberLabels", "goto 20\ncs0 = 1\n20\ncs1 = 1", "", 0, {0, 1}},
    {"TextsJoin", "csn5 = \"a\" & 1.5\nif csn5 = \"a1.5\" then cs0 = 1 endif", "", 0, {1}},
    {"FunctionTargets", "cs(2) = 5\ncs(cs(2) - 4) = 6", "", 0, {0, 6, 5}},
    {"PassLineBet", "bet 10 on passline", "passline", 10, {}},
    {"BetIsATotal", "bet 10 on passline\nbet 15 on passline\nadd 5 to passline", "passline", 20, {}},
    {"AssignedBet", "passline = 12.4", "passline", 13, {}},
    {"GroupOfBets",
     "bet 12 on inside place bets\ncs0 = sum(place bets)\ncs1 = count(> 0, place bets)",
     "place5",
     12,
     {48, 4}},
    {"BetByFunction", "place(8) = 12\nhop(34) = 2\ncs0 = hop(4.3)\ncs1 = place8", "hop34", 2, {2, 12}},
    {"ModifiersStandAnywhere",
     "bet 10 on field\ncs0 = current session field wagered current $\n"
     "cs1 = wagered field player1\ncs2 = field current $ player(1)\ncs3 = player(\"ann\") field",
     "field",
     10,
     {10, 10, 10, 10}},
    {"PlayersByName",
     "bet 10 on field\ncs0 = field ann\ncs1 = field bob\ncs2 = bob\ncs3 = autobettor",
     "field",
     10,
     {10, 0, 2, 1}},
    {"RefusedOdds", "bet 10 on passlineodds", "passlineodds", 0, {}},
    {"NegativeBetTakesDown", "bet 10 on field\nfield = -5", "field", 0, {}},
    {"EmptySeatDropsTheStatementAlone", "field player5 = 10\ncs0 = 1", "field", 0, {1}},
    {"OtherPlayersNeedPermission", "field bob = 10\ncs0 = field bob", "field", 0, {0}},
    {"PercentAndOf", "cs0 = 50% of 30\ncs1 = 200 * 10%", "", 0, {15, 20}},
    {"DatesAsTexts",
     "if date$ = \"2001-02-03\" and time$ = \"04:05:06\" then cs0 = 1 endif\ncs1 = timer\ncs2 = date/time",
     "",
     0,
     {1, 14706, 36925.25}},
};

TEST(Interpreter, EveryEffectIsTheToldOne) {
  for (const EffectCase& one : kEffects) {
    SCOPED_TRACE(one.name);
    ScriptTable table;
    EXPECT_EQ(table.Run(one.script), "");
    for (int i = 0; i < 4; ++i) EXPECT_EQ(table.Bet(100 + i), one.stacks[i]) << "cs" << i;
    if (one.bet[0] != 0) {
      EXPECT_EQ(table.Bet(BetByName(one.bet)), one.betAfter) << one.bet;
    }
    EXPECT_EQ(CheckConsistency(*table.game), "");
    EXPECT_FALSE(table.game->autobet.ScriptRunning);
  }
}

TEST(Interpreter, ScriptBetsObeyContractsCallsAndVig) {
  ScriptTable table;
  table.Run("bet 10 on passline");
  table.Dice(2, 2);
  table.Run("passline = 5");
  EXPECT_EQ(table.Bet(kPassLine), 10) << "a contract bet can't be lowered";
  table.Run("passline = 25");
  EXPECT_EQ(table.Bet(kPassLine), 25) << "an increase is of the whole bet, not on top of it";
  table.Run("place6 = 12\ncall off place6\nplace6 = 18");
  EXPECT_EQ(table.Bet(kPlace4 + 2), 18);
  EXPECT_EQ(table.Number("place6 called off"), -1) << "a call outlives a change of the amount";
  const Currency before = table.game->table.seats[1].OnTableAmount;
  table.Run("buy10 = 100");
  EXPECT_EQ((table.game->table.seats[1].OnTableAmount - before).ToDouble(), 105) << "vig is on the table too";
  table.Run("buy10 = 40\nclear buy10");
  EXPECT_EQ(table.game->table.seats[1].OnTableAmount, before);
  EXPECT_EQ(CheckConsistency(*table.game), "");
}

TEST(Interpreter, PermissionAndPlayersOfOthers) {
  ScriptTable table;
  SetScriptPermission(*table.game, 1, ScriptPermission::kOthers, true);
  table.Run("field bob = 10\ncs0 = field player2\nbet 5 on field player(2), field");
  EXPECT_EQ(table.Bet(kField, 2), 5);
  EXPECT_EQ(table.Bet(kField, 1), 5);
  EXPECT_EQ(table.Bet(100), 10);
}

TEST(Interpreter, SeveralScriptsRunInSeatOrder) {
  ScriptTable table;
  table.Load(1, "cs0 = autobettor");
  table.Load(2, "cs0 = autobettor + cs0 ann * 10\ngoto \"x\"\ncs1 = 1\n\"x\"");
  CompileActiveScripts(*table.game);
  RunAutoBet(*table.game);
  EXPECT_EQ(table.Bet(100, 1), 1);
  EXPECT_EQ(table.Bet(100, 2), 12);
  EXPECT_EQ(table.Bet(101, 2), 0) << "jumps are moved with the script";
}

TEST(Interpreter, ASessionBeginsInOneRunOfEachScript) {
  constexpr const char* kCount = "add 1 to cs2\nif beginning new session then add 1 to cs1 endif\n";
  struct Case {
    const char* name;
    bool initialised[2];  // the scripts of both seats together, and the second on its own later
    const char* more;     // of Ann's script
    double begun[2];      // by seat, after four rolls
  };
  const Case cases[] = {
      {"the first run", {false, false}, "", {1, 1}},
      {"the initialising run", {true, false}, "", {1, 1}},
      {"a script that comes later has its own", {false, true}, "", {1, 1}},
      {"a session in mid run begins in the next",
       {true, false},
       "if cs2 = 3 then start new session (preserve checkstacks) endif",
       {2, 2}},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.name);
    ScriptTable table;
    ASSERT_EQ(table.Load(1, std::string(kCount) + one.more), "");
    SetScriptPermission(*table.game, 1, ScriptPermission::kReset, true);
    if (one.initialised[1]) {
      EXPECT_TRUE(InitialiseScripts(*table.game));
    }
    ASSERT_EQ(table.Load(2, kCount), "");
    if (one.initialised[0] || one.initialised[1]) {
      EXPECT_TRUE(InitialiseScripts(*table.game));
    }
    for (int roll = 0; roll < 4; ++roll) table.Dice(3, 1 + roll % 2);
    EXPECT_EQ(table.Bet(101, 1), one.begun[0]);
    EXPECT_EQ(table.Bet(101, 2), one.begun[1]);
  }
}

TEST(Interpreter, AScriptWithoutEndIsStoppedWithTheTableWhole) {
  ScriptTable table;
  table.host.yieldLimit = 5000;
  table.Run("do\nadd 1 to cs0\nbet 5 on field\nloop");
  EXPECT_FALSE(table.game->autobet.ScriptRunning);
  EXPECT_GT(table.Bet(100), 1000);
  EXPECT_EQ(CheckConsistency(*table.game), "");
}

TEST(Interpreter, GrowingTextsAndCallsEndInAFault) {
  ScriptTable table;
  table.game->autobet.StepsShown = true;
  table.game->autobet.StepsHold = false;
  table.host.yieldLimit = 400;
  table.Run("csn0 = \"abcdefgh\"\ndo\ncsn0 = csn0 & csn0\nloop");
  EXPECT_LE(table.game->table.seats[1].CheckStackName[0].size(), 1'000'000u);
  EXPECT_NE(table.host.steps.back().find("Out of string space"), std::string::npos)
      << table.host.steps.back();
}

TEST(Interpreter, StepsAreToldInTheirWords) {
  ScriptTable table;
  table.game->autobet.StepsShown = true;
  table.Run(
      "if 0 then\ncs0 = 1\nelse\ncs0 = 1/0\nendif\n\"a\"\ndo\nexitdo\nloop\ngosub \"s\"\ngoto "
      "\"e\"\n\"s\"\nreturn\n\"e\"");
  const std::vector<std::string> wanted = {
      "1 Beginning of condition block.",
      "1 Condition is false.",
      "1 End of condition block and beginning of action block.\rConditions were false, so next action block "
      "will "
      "be skipped.\rBeginning of last action block.",
      "4 No action taken.\rDivision by zero.",
      "5 End of If/Then structure.",
      "6 Label.",
      "7 Beginning of DO/LOOP structure.",
      "8 Exit from DO/LOOP structure.",
      "10 A jump will be made to the designated subroutine.\rLabel.",
      "13 Return to place where subroutine was initiated.",
      "11 A jump will be made to the designated label.\rLabel.",
  };
  EXPECT_EQ(table.host.steps, wanted);
  EXPECT_GE(table.host.tick, 300u) << "a watched run lasts long enough to be seen";
}

TEST(Interpreter, ABadScriptIsToldAndNothingRuns) {
  ScriptTable table;
  table.Load(1, "cs0 = 1");
  SetScript(*table.game, 2, {"nonsense"}, "");
  SetScriptActive(*table.game, 2, true);
  CompileActiveScripts(*table.game);
  EXPECT_FALSE(table.game->autobet.ScriptsCompiled);
  EXPECT_TRUE(table.host.Said(Msg::kScriptBad, {{"player", "Bob"}}));
  table.Dice(3, 4);
  EXPECT_EQ(SessionRolls(table.game->stats), 0) << "no roll with a bad script";
  EXPECT_EQ(table.Bet(100), 0);
}

// A hundred thousand rolls by script, recorded, and the same again from the recording.
TEST(Interpreter, AScriptedGameReplaysFromItsRollFile) {
  const char* const script =
      "if comeout roll then bet 10 on passline endif\n"
      "if point is established and passlineodds = 0 then bet 20 on passlineodds endif\n"
      "if point is established and count(> 0, come bets) < 2 then bet 5 on come endif\n"
      "if place6 wins last roll $ > 0 then add 6 to place6 endif\n"
      "if point is established and place6 < 12 then place6 = 12 endif\n"
      "add 1 to cs1\ncs2 = average $ wins field\nif field = 0 then field = 5 + cs1 mod 7 endif\n"
      "if bankroll < 500 then atm withdraw 1000 endif";
  struct End {
    std::string bets;
    Currency bankroll;
    Currency atm;
  };
  script_test::Folder folder;
  const auto play = [&](bool record) {
    ScriptTable table;
    Game& game = *table.game;
    EXPECT_EQ(table.Load(1, script), "");
    EXPECT_EQ(OpenRollFile(game.rollFile, folder.path + "game.rll"), "");
    EXPECT_EQ(SetRecorderState(game.rollFile, record ? kRecorderRecord : kRecorderPlayback), "");
    if (!record) SelectGenerator(game, 1);
    table.Turbo(100'000);
    EXPECT_EQ(SessionRolls(game.stats), 100'000);
    EXPECT_EQ(CheckConsistency(game), "");
    End end{"", game.table.BankrollCurrent[1], game.stats.AtmTotal[Slot(kCurrentSession, 1)]};
    for (int bet = 1; bet < kBetRows; ++bet) end.bets += PlainMoney(game.table.BetAmount(1, bet)) + " ";
    return end;
  };
  const End first = play(true);
  const End again = play(false);
  EXPECT_EQ(first.bets, again.bets);
  EXPECT_EQ(first.bankroll, again.bankroll);
  EXPECT_EQ(first.atm, again.atm);
  EXPECT_NE(first.bankroll, Currency::Dollars(1000));
}

// A condition out of everything that has a short form, and what has none.
std::string RandomCondition(std::mt19937& random) {
  const char* const values[] = {
      "place6",      "cs1",   "cs2",    "passline",      "field bob",
      "cs3 bob",     "point", "cs(1)",  "# rolls",       "place6 wins last roll $",
      "player(cs2)", "4.5",   "\"12\"", "cs4 player(9)", "field losses last roll $"};
  const char* const relations[] = {"=", "<>", "<", ">", "<=", ">="};
  const char* const literals[] = {"0", "1", "12", "4.5", "-3", "12.00005", "1e12", "\"12\"", "0.1"};
  const char* const flags[] = {"comeout roll", "point is established", "point is not established", "0", "2"};
  const char* const joins[] = {" and ", " and ", " and ", " or ", " xor "};
  std::string text;
  for (int i = 0; i == 0 || (i < 4 && random() % 2 == 0); ++i) {
    if (i > 0) text += joins[random() % 5];
    if (random() % 4 == 0)
      text += flags[random() % 5];
    else if (random() % 6 == 0)
      text += std::string("any(place6, place8, field, cs1) ") + relations[random() % 6] + " 12";
    else
      text += std::string(values[random() % 15]) + " " + relations[random() % 6] + " " +
              (random() % 4 == 0 ? values[random() % 15] : literals[random() % 9]);
  }
  return text;
}

std::string RandomBlocks(std::mt19937& random) {
  std::string text;
  for (int block = 0; block < 8; ++block) {
    const std::string mark = "add " + std::to_string(1 << block) + " to cs50\n";
    text += "if " + RandomCondition(random) + "\n";
    if (random() % 3 == 0) text += RandomCondition(random) + "\n";
    text += "then\n" + mark;
    for (auto i = random() % 3; i > 0; --i)
      text += "elseif " + RandomCondition(random) + " then\nadd " + std::to_string(1000 * i) + " to cs50\n";
    if (random() % 2 == 0) text += "else\nadd 0.5 to cs50\n";
    text += "endif\n";
  }
  return text;
}

// What is watched step by step and what runs at one go must come to the same.
TEST(Interpreter, BlocksAtOneGoDoWhatTheirStepsDo) {
  std::mt19937 random(31);
  int compiled = 0;
  for (int round = 0; round < 60; ++round) {
    ScriptTable table;
    Game& game = *table.game;
    PlaceBet(game, 1, kPassLine, Currency::Dollars(10));
    PlaceBet(game, 1, kPlace4 + 2, Currency::Dollars(12));
    PlaceBet(game, 2, kField, Currency::Dollars(5));
    ChangeBet(game, 1, 101, Currency::FromDouble(4.5));
    ChangeBet(game, 1, 102, Currency::Dollars(1 + round % 9));
    if (round % 2 == 0) table.Dice(2 + round % 3, 2);
    const std::string script = RandomBlocks(random);
    if (!table.Load(1, script).empty()) continue;
    ++compiled;
    CompileActiveScripts(game);
    game.autobet.StepsHold = false;
    double sums[2];
    for (const bool watched : {false, true}) {
      ChangeBet(game, 1, 150, -game.table.BetAmount(1, 150));
      game.autobet.StepsShown = watched;
      RunAutoBet(game);
      sums[watched ? 1 : 0] = table.Bet(150);
    }
    EXPECT_EQ(sums[0], sums[1]) << script;
  }
  EXPECT_GT(compiled, 40);
}

// The same statements as plain ones, and with a qualifier that every amount passes, which no short way takes.
struct Twins {
  std::string plain;
  std::string qualified;
};

Twins RandomSystem(std::mt19937& random) {
  const auto pick = [&random](const auto& words) { return std::string(words[random() % std::size(words)]); };
  const char* const bets[] = {
      "passline", "passline", "dontpass", "come",      "dontcome",  "field",        "place6",       "place8",
      "buy4",     "lay10",    "come6",    "dontcome8", "comeodds6", "passlineodds", "dontpassodds", "hard6",
      "hop33",    "horn",     "big6",     "allsmall",  "fire",      "sharpshooter", "7point7"};
  const char* const amounts[] = {"0",    "1",  "5",    "10",  "10",        "10",
                                 "12.5", "30", "2000", "cs1", "cs2 / cs3", "-4"};
  const char* const values[] = {"cs1 + 1",    "cs2 - 0.33335", "cs1 * cs2",  "cs3 / cs2",
                                "bankroll",   "1 / cs4",       "field",      "place6 / 7",
                                "-cs2 * 1e6", "# rolls",       "1e300 * cs1"};
  const char* const whens[] = {"comeout roll", "point is established", "cs1 > 4", "field = 0"};
  const char* const sums[] = {
      "add 1.5 to ",       "subtract 7.00005 from ",        "multiply by 1.1 on ",
      "divide by cs4 on ", "round to the nearest 0.25 on ", "round up to the nearest 5 on "};
  const char* const calls[] = {"call off place6, hard6", "call on place8, come6", "clear cs4, big6"};
  Twins twins;
  const auto both = [&twins](const std::string& text) {
    twins.plain += text;
    twins.qualified += text;
  };
  for (int i = 0; i < 14; ++i) {
    const bool guarded = random() % 3 == 0;
    if (guarded) both("if " + pick(whens) + " then\n");
    const std::string stack = "cs" + std::to_string(1 + random() % 5);
    std::string target = random() % 2 == 0 ? stack : pick(bets);
    std::string verb = "bet " + pick(amounts) + " on ";
    if (random() % 9 == 0) {
      both(pick(calls) + "\n");
    } else if (target == stack && random() % 2 == 0) {
      const std::string value = " = " + pick(values) + "\n";
      twins.plain += stack + value;
      twins.qualified += "all(<> 0.00005, " + stack + ")" + value;
    } else {
      if (target == stack) verb = pick(sums);
      twins.plain += verb + target + "\n";
      twins.qualified += verb + "<> 0.00005, " + target + "\n";
    }
    if (guarded) both("endif\n");
  }
  return twins;
}

// House rules and habits of the player by which bets come to stand, or not.
void ChooseRules(Game& game, std::mt19937 random) {
  Settings& settings = game.settings;
  settings.AllowPutBets = random() % 2 == 0;
  settings.MaxBet = Currency::Dollars(random() % 2 == 0 ? 1000 : 10);
  settings.MinBetMain = Currency::Dollars(random() % 4 == 0 ? 10 : 1);
  settings.MaxPropBetPayoff = Currency::Dollars(random() % 2 == 0 ? 3000 : 90);
  if (random() % 3 == 0) settings.CheckValue[1] = Currency::FromRaw(25'000);
  TableState& table = game.table;
  Handling& handling = table.seats[1].handling;
  handling.WinHandling = 1 + static_cast<int>(random() % 5);
  handling.LoseHandling = 1 + static_cast<int>(random() % 5);
  handling.ProperOddsMode = static_cast<int>(random() % 4) / 2;
  handling.AutoTakeOdds = random() % 3 == 0;
  handling.AutoLayOdds = random() % 3 == 0;
  table.seats[1].AllowNegativeBankroll = random() % 2 == 0;
  table.seats[1].BetDefaultWorking.Set(kPlace4 + 2, random() % 2 == 0);
  if (random() % 3 == 0) SetBankroll(game, 1, Currency::Dollars(40));
  game.events.RecordEventsActive = true;
}

std::string WhatIsLeft(const Game& game) {
  const TableState& table = game.table;
  std::string left =
      PlainMoney(table.BankrollCurrent[1]) + "; error " + std::to_string(game.autobet.ScriptError) + ";";
  for (int bet = 1; bet < 110; ++bet)
    left += " " + PlainMoney(table.BetAmount(1, bet)) + "/" + PlainMoney(table.BetCommitted(1, bet)) + "/" +
            std::to_string(bet <= kBets ? WorkingValue(table.seats[1].BetWorking, bet) : 0);
  return left;
}

TEST(Interpreter, ShortWaysDoWhatTheLongWaysDo) {
  std::mt19937 random(17);
  constexpr int kRolls = 100;
  std::size_t logged = 0;
  for (int round = 0; round < 40; ++round) {
    const Twins twins = RandomSystem(random);
    std::string left[2];
    std::string logs[2];
    for (const bool shortWay : {true, false}) {
      ScriptTable table;
      Game& game = *table.game;
      ChooseRules(game, random);
      bool given = true;
      SeedRng(game, given, Currency::Dollars(100 + round));
      ASSERT_EQ(table.Load(1, shortWay ? twins.plain : twins.qualified), "") << twins.qualified;
      if (shortWay)
        table.Turbo(kRolls);
      else  // a roll by itself is heard, so that bets come down and go up again
        for (int i = 0; i < kRolls; ++i) RollDice(game);
      EXPECT_EQ(CheckConsistency(game), "");
      FlushEventsLog(game);
      std::ifstream log(EventsLogPath(game));
      logs[shortWay ? 1 : 0] = std::string(std::istreambuf_iterator<char>(log), {});
      left[shortWay ? 1 : 0] = WhatIsLeft(game);
    }
    ASSERT_EQ(left[0], left[1]) << round << "\n" << twins.plain;
    ASSERT_TRUE(logs[0] == logs[1]) << round << "\n" << twins.plain;
    logged += logs[0].size();
    random.discard(40);
  }
  EXPECT_GT(logged, 150'000u);
}

}  // namespace
}  // namespace tessaryn
