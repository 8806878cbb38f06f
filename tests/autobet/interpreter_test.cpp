#include "autobet/run/interpreter.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "autobet/run_helpers.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "rules/bankroll.h"
#include "rules/consistency.h"
#include "stats/events_log.h"
#include "support/places.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

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
    const int rolls = test::Rounds(100'000);
    table.Turbo(rolls);
    EXPECT_EQ(SessionRolls(game.stats), rolls);
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
