#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <set>

#include "autobet/language/language.h"
#include "autobet/run/script_errors.h"
#include "autobet/run_helpers.h"
#include "base/bet_catalogue.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "rules/payoffs.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

// A table with a history that can be counted by hand. Rolls of Ann, with 10 on the Pass Line and 5 on the
// Field each time the script below finds them down:
//   1  2.2  come-out, point 4; field pays 5
//   2  6.1  seven-out: pass line -10, field -5
//   3  4.3  natural: pass line +10, field -5
//   4  3.3  point 6; field -5
//   5  5.1  pass: pass line +10; field -5
//   6  6.6  come-out craps: pass line -10; field 12
// Auto handling is "same bet" for wins and losses.
struct HistoryTable : ScriptTable {
  HistoryTable() {
    // One player, so that the dice stay.
    LeaveTable(*game, 2);
    game->table.seats[1].handling.WinHandling = 2;
    game->table.seats[1].handling.LoseHandling = 2;
    Load(1, "passline = 10\nfield = 5");
    CompileActiveScripts(*game);
    RunAutoBet(*game);
    SetScriptActive(*game, 1, false);
    constexpr int kRolls[][2] = {{2, 2}, {6, 1}, {4, 3}, {3, 3}, {5, 1}, {6, 6}};
    for (const auto& roll : kRolls) Dice(roll[0], roll[1]);
  }
};

struct NumberCase {
  const char* expression;
  double value;
};

// Bankroll: 1000 +5 -15 +5 -5 +5 +(field on 12) -10. The field pays 2 to 1 or 3 to 1 on twelve as the house
// has it, so it is read from the payoffs once.
TEST(ScriptCatalogue, EveryVariableReadsItsRightValue) {
  HistoryTable table;
  Game& game = *table.game;
  const PayoffRecord& twelve = game.payoffs.FieldPayoffs[FieldRow(6, 6)];
  const double fieldWin = 5 * twelve.PayTo.ToDouble() / twelve.PayPer.ToDouble();
  const PayoffRecord& four = game.payoffs.FieldPayoffs[FieldRow(2, 2)];
  const double firstWin = 5 * four.PayTo.ToDouble() / four.PayPer.ToDouble();
  const double bankroll = 1000 + firstWin - 15 + 5 - 5 + 5 + fieldWin - 10;
  const double net = firstWin + fieldWin - 20;
  const NumberCase cases[] = {
      // The bets: 6 field wagers of 5, 4 pass line wagers of 10.
      {"field", 5},
      {"passline", 10},
      {"field current #", 1},
      {"lay4 current #", 0},
      {"field prior roll $", 5},
      {"field prior roll #", 1},
      {"field tendered last roll $", 5},
      {"field wagered total #", 6},
      {"field wagered total $", 30},
      {"field wagered total", 30},
      {"field resolved total #", 6},
      {"field wagered high $", 5},
      {"field wagered low $", 5},
      {"field wagered average $", 5},
      {"field wagered last $", 5},
      {"field wins total #", 2},
      {"field wins total $", firstWin + fieldWin},
      {"field wins high $", std::max(firstWin, fieldWin)},
      {"field wins low $", std::min(firstWin, fieldWin)},
      {"field wins average $", (firstWin + fieldWin) / 2},
      {"field wins last $", fieldWin},
      {"field wins last roll $", fieldWin},
      {"field wins last roll #", 1},
      {"field losses total #", 4},
      {"field losses last roll $", 0},
      {"field losses last roll #", 0},
      {"field losses # rolls since last", 1},
      {"field wins # rolls since last", 0},
      {"field net total $", net},
      {"field net total #", -2},
      {"field net average $", net / 6},
      {"field net last roll $", fieldWin},
      {"field net last $", fieldWin},
      {"field net % total $", 100 * net / 30},
      {"passline wins total #", 2},
      {"passline losses total #", 2},
      {"passline losses last roll $", 10},
      {"passline wins total # current hand", 2},
      {"passline losses total # last hand", 1},
      {"passline losses total # all sessions", 2},
      {"passline wins total # last session", 0},
      {"field avg #/hr wagered", 6 / (6 / 120.0)},
      {"field avg $/hr wagered", 30 / (6 / 120.0)},
      {"field working", -1},
      {"field called on", 0},
      {"field called off", 0},
      {"buy4 vig", 0},
      // Bankrolls and hands.
      {"bankroll", bankroll},
      {"available bankroll", bankroll - 15},
      {"beginning bankroll", 1000},
      {"last available bankroll", bankroll - fieldWin + 10 - 15},
      {"beginning bankroll current hand", 1000 + firstWin - 15},
      {"high bankroll", std::max({1000 + firstWin, bankroll, 1000.0})},
      {"# hands", 2},
      {"most rolls in a hand", 4},
      {"avg rolls per hand", 3},
      {"most comeout rolls in a hand", 3},
      {"avg comeout rolls per hand", 2},
      {"most passes in a hand", 2},
      {"avg passes per hand", 1},
      {"most misses in a hand", 1},
      {"avg misses per hand", 1},
      {"hrs", 6 / 120.0},
      {"simulated hrs", 6 / 120.0},
      // Dice.
      {"# rolls", 6},
      {"# rolls 7", 2},
      {"# rolls 6.1", 1},
      {"# rolls 1.6", 0},
      {"# rolls current hand", 4},
      {"# rolls last hand", 2},
      {"# of rolls(7)", 2},
      {"# rolls(6.6)", 1},
      {"% of rolls 7", 200 / 6.0},
      {"% of rolls(12)", 100 / 6.0},
      {"# rolls die1 face6", 2},
      {"# rolls die2 face1", 2},
      {"# rolls naturals", 3},
      {"# rolls points", 3},
      {"# rolls since last 7", 3},
      {"# rolls since last(7)", 3},
      {"# rolls since last(6)", 1},
      {"# comeout rolls", 4},
      {"# comeout rolls(4)", 1},
      {"# comeout rolls naturals", 2},
      {"# comeout rolls points", 2},
      {"% of comeout rolls", 400 / 6.0},
      {"% of comeout rolls(4)", 25},
      {"# passes", 2},
      {"# passes(6)", 1},
      {"# passes naturals", 1},
      {"% of passes", 50},
      {"% of passes(6)", 50},
      {"# misses", 2},
      {"# misses(12)", 1},
      {"# seven outs", 1},
      {"# hands completed", 1},
      {"% of misses", 50},
      {"% of misses(12)", 50},
      {"# points", 2},
      {"# points(4)", 1},
      {"# points passed", 1},
      {"# points(6) passed", 1},
      {"# points(4) missed", 1},
      {"% of points(4)", 50},
      {"% of points passed", 50},
      // The table.
      {"initializing script", 0},
      {"beginning new session", 0},
      {"new shooter", 0},
      {"dice roll file end reached", 0},
      {"dice roll file next roll", 0},
      {"dice roll file length", 0},
      {"shooter", 1},
      {"last shooter", 1},
      {"original shooter", 1},
      {"bettor", 1},
      {"autobettor", 1},
      {"shooter passes", 2},
      {"shooter misses", 1},
      {"point", 0},
      {"last point", 6},
      {"dice total", 12},
      {"dice faces", 66},
      {"die1", 6},
      {"die2", 6},
      {"die(2)", 6},
      {"rolls per hr", 120},
      {"minimum bet", 1},
      {"maximum bet", 1000},
      {"seed", 7},
      {"rng", 4},
      {"comp rate", 0.3},
      {"date/time", 36925.25},
      {"timer", 14706},
      {"answer", 0},
      {"comeout roll", -1},
      {"next roll is a comeout roll", -1},
      {"next roll is not a comeout roll", 0},
      {"last roll was a comeout roll", -1},
      {"last roll was not a comeout roll", 0},
      {"seven out", 0},
      {"point is decided", 0},
      {"point is established", 0},
      {"point is not established", -1},
      {"autohandle winning bets", 3},
      {"autohandle losing bets", 3},
      {"autotake full odds", 0},
      {"autolay full odds", 0},
      {"autodown place bets", 0},
      {"autopass the dice", 0},
      // Functions.
      {"avg bankroll(1)", bankroll},
      {"avg bankroll(2)", (bankroll + bankroll - fieldWin + 10) / 2},
      {"sqr(16)", 4},
      {"int(-2.5)", -3},
      {"abs(-3)", 3},
      {"asc(\"A\")", 65},
      {"val(\"12.5 x\")", 12.5},
      {"len(\"abc\")", 3},
      {"highest(3, 9, 4)", 9},
      {"lowest(3, 9, 4)", 3},
      {"avg(3, 9, 6)", 6},
      {"standard deviation(2, 4, 4, 4, 5, 5, 7, 9)", 2},
      {"sum(1, 2, 3)", 6},
      {"count(> 1, 1, 2, 3)", 2},
      {"instr(\"abcabc\", \"c\")", 3},
      {"instr(4, \"abcabc\", \"c\")", 6},
      {"instr(\"abc\", \"x\")", 0},
      // Characters are counted, not bytes.
      {"len(\"Grüße €5\")", 8},
      {"instr(\"Grüße €5\", \"€\")", 7},
      {"instr(5, \"üüéüü\", \"ü\")", 5},
      {"instr(6, \"üüéüü\", \"ü\")", 0},
      {"asc(\"€5\")", 8364},
      {"player(\"Ann\")", 1},
      {"player(3)", 3},
      {"cs(5)", 0},
      {"lay(4) + dontcome(5) + dontcomeodds(6) + come(8) + comeodds(9) + place(10) + buy(4) + big(6) + "
       "hard(8)",
       0},
      {"% of prob(7)", 16.67},
      {"% of prob true(7)", 16.67},
      {"# prob(7)", 6 * 0.1667},
      {"# prob true(7)", 6 * 0.1667},
      {"% of prob(6.6)", 2.78},
      {"true", -1},
      {"yes", 6},
      {"no", 7},
      {"once", 1},
      {"twice", 2},
  };
  for (const NumberCase& one : cases)
    EXPECT_NEAR(table.Number(one.expression), one.value, 0.0051) << one.expression;
  const double random = table.Number("rnd * 1000000");
  EXPECT_GE(random, 0);
  EXPECT_LT(random, 1'000'000);
  EXPECT_NE(random, table.Number("rnd * 1000000"));
}

TEST(ScriptCatalogue, ExpectedValuesAndCompsAreTheTables) {
  HistoryTable table;
  EXPECT_NEAR(table.Number("passline expected value"), -1.414, 0.01) << "the house's edge in percent";
  EXPECT_NEAR(table.Number("passline net expected value"), -0.01414 * 40, 0.01);
  table.game->settings.CompBase = 1;
  EXPECT_NEAR(table.Number("comps"), 70 * 0.30, 0.01) << "of all action";
}

TEST(ScriptCatalogue, EveryTextFunctionGivesItsRightText) {
  ScriptTable table;
  table.Run("csn3 = \"three\"");
  const std::pair<const char*, const char*> cases[] = {
      {"left$(\"abcdef\", 2)", "ab"},
      {"left$(\"ab\", 9)", "ab"},
      {"right$(\"abcdef\", 2)", "ef"},
      {"removeleft$(\"abcdef\", 2)", "cdef"},
      {"removeright$(\"abcdef\", 2)", "abcd"},
      {"mid$(\"abcdef\", 2, 3)", "bcd"},
      {"removemid$(\"abcdef\", 2, 3)", "aef"},
      {"insert$(\"abc\", \"X\", 2)", "aXbc"},
      {"left$(\"Grüße\", 3)", "Grü"},
      {"right$(\"Grüße\", 3)", "üße"},
      {"removeleft$(\"Grüße\", 3)", "ße"},
      {"removeright$(\"Grüße\", 3)", "Gr"},
      {"mid$(\"Grüße €5\", 4, 4)", "ße €"},
      {"removemid$(\"Grüße €5\", 4, 4)", "Grü5"},
      {"insert$(\"Grße\", \"ü\", 3)", "Grüße"},
      {"chr$(252)", "ü"},
      {"str$(2.50)", "2.5"},
      {"chr$(65)", "A"},
      {"space$(3)", "   "},
      {"\"a\" & cr & \"b\"", "a\r\nb"},
      {"\"a\" & tab & \"b\"", "a\tb"},
      {"csn(3)", "three"},
      {"csn3", "three"},
      {"player name(2)", "Bob"},
      {"highest$(\"a\", \"c\", \"b\")", "c"},
      {"lowest$(\"b\", \"a\", \"c\")", "a"},
      {"date$ & \" \" & time$", "2001-02-03 04:05:06"},
  };
  for (const auto& [expression, text] : cases) EXPECT_EQ(table.Text(expression), text) << expression;
  table.host.entries = {"12.5", "word"};
  EXPECT_EQ(table.Number("input(\"How much?\")"), 12.5);
  EXPECT_EQ(table.Text("input$()"), "word");
  EXPECT_TRUE(Says(table.host.boxes[0], Msg::kScriptAsksValue, {{"player", "Ann"}, {"prompt", "How much?"}}));
  EXPECT_TRUE(table.host.Said(Msg::kScriptAsksString, {{"prompt", ""}}));
}

TEST(ScriptCatalogue, EveryRunTimeErrorComesFromItsStatement) {
  ScriptTable table;
  Game& game = *table.game;
  std::ofstream(table.folder.path + "text.txt") << "not dice";
  game.settings.DisableAllSound = true;
  const std::pair<const char*, int> cases[] = {
      {"cs0 = lay(7)", 1},
      {"cs0 = dontcome(7)", 2},
      {"dontcomeodds(3) = 1", 3},
      {"cs0 = come(11)", 4},
      {"comeodds(2) = 4", 5},
      {"place(4.5) = 4", 6},
      {"buy(0) = 4", 7},
      {"big(4) = 4", 8},
      {"hard(5) = 4", 9},
      {"hop(78) = 4", 10},
      {"buy the place bet on field", kErrorPlaceReference},
      {"cs(100) = 1", kErrorCheckStack},
      {"cs0 = field player(9)", kErrorPlayer},
      {"cs0 = player(\"Zoe\")", kErrorPlayer},
      {"cs0 = sqr(-1)", kErrorSquareRoot},
      {"cs0 = avg bankroll(526)", kErrorAverageBankroll},
      {"cs0 = die(3)", kErrorDie},
      {"cs0 = instr(9, \"abc\", \"a\")", kErrorInstr},
      {"cs0 = field wagered average $", kErrorNoWagers},
      {"cs0 = field wins average $", kErrorNoWins},
      {"cs0 = field losses average $", kErrorNoLosses},
      {"csn(100) = \"x\"", kErrorCheckStackName},
      {"csn0 = left$(\"a\", -1)", 801},
      {"csn0 = right$(\"a\", -1)", 802},
      {"csn0 = removeleft$(\"a\", -1)", 803},
      {"csn0 = removeright$(\"a\", -1)", 804},
      {"csn0 = mid$(\"a\", 0, 1)", 805},
      {"csn0 = removemid$(\"a\", 3, 1)", 806},
      {"csn0 = insert$(\"a\", \"b\", 9)", 809},
      {"csn0 = insert$(\"€\", \"b\", 3)", 809},
      {"cs0 = instr(3, \"€\", \"a\")", kErrorInstr},
      {"csn0 = chr$(256)", 811},
      {"csn0 = space$(-1)", 812},
      {"csn0 = player name(9)", kErrorPlayerName},
      {"csn0 = player name(3)", kErrorNoPlayer},
      {"field player4 = 5", kErrorNoPlayer},
      {"field player2 = 5", kErrorOtherPlayers},
      {"start new session", kErrorNewSession},
      {"activate probability file \"x.prb\"", kErrorProbabilityPermission},
      {"deactivate probability file", kErrorProbabilityPermission},
      {"playback dice roll file \"x.rll\"", kErrorRollFilePermission},
      {"deactivate dice roll file", kErrorRollFilePermission},
      {"autohandle winning bets = \"nonsense\"", kErrorWinHandling},
      {"autohandle losing bets = 9", kErrorLoseHandling},
      {"seed = 3000000000", kErrorSeed},
      {"seed rng with 99999999999", kErrorSeed},
      {"rng = 9", kErrorGenerator},
      {"comp rate = -1", kErrorCompRate},
      {"play sound \"x.wav\"", kErrorSoundsOff},
      {"cs0 = field vig", kErrorVig},
      {"cs0 = # rolls(13)", kErrorRolls},
      {"cs0 = # points(7)", kErrorPoints},
      {"dice roll file next roll = 3", kErrorRollFileClosed},
      {"output to file \"x\"", kErrorOutputClosed},
      {"open/clear file for output \"../x.txt\"", kErrorBadPath},
      {"open/append file for output \"/tmp/x.txt\"", kErrorBadPath},
      {"cs0 = input(\"?\")", kErrorNoValue},
      {"csn0 = input$(\"?\")", kErrorNoString},
      {"cs0 = 1 / 0", kErrorDivision},
      {"cs0 = 5 mod 0.2", kErrorDivision},
      {"cs0 = 1e300 * 1e300", kErrorFault},
  };
  std::set<int> seen;
  for (const auto& [statement, code] : cases) {
    EXPECT_EQ(table.ErrorOf(statement), ScriptErrorText(code, "Overflow")) << statement;
    seen.insert(code);
  }
  SetScriptPermission(game, 1, ScriptPermission::kFiles, true);
  EXPECT_EQ(table.ErrorOf("playback dice roll file \"none.rll\""), ScriptErrorText(kErrorFileNotFound, ""));
  EXPECT_EQ(table.ErrorOf("playback dice roll file \"text.txt\""), ScriptErrorText(kErrorNotRollFile, ""));
  EXPECT_EQ(table.ErrorOf("activate probability file \"text.txt\""),
            ScriptErrorText(kErrorNotProbabilityFile, ""));
  EXPECT_EQ(table.ErrorOf("deactivate dice roll file"), ScriptErrorText(kErrorRollFileClosed, ""));
  game.settings.MessageMask = 0;
  EXPECT_EQ(table.ErrorOf("show message \"x\""), ScriptErrorText(kErrorMessagesOff, ""));
  table.Load(1, "");
  SetScriptActive(game, 1, false);
  game.table.ShooterSeat = 2;
  EXPECT_EQ(table.ErrorOf("pass the dice"), ScriptErrorText(kErrorPassDice, ""));
  SetScriptActive(game, 1, false);
  table.Dice(3, 4);
  EXPECT_EQ(table.ErrorOf("bankroll = 5"), ScriptErrorText(kErrorBankroll, ""));
  EXPECT_GT(seen.size(), 50u);
}

TEST(ScriptCatalogue, SettingsAndActionsDoWhatTheySay) {
  ScriptTable table;
  Game& game = *table.game;
  const Handling& handling = game.table.seats[1].handling;
  const std::pair<const char*, int> wins[] = {{"\"manual\"", 1},
                                              {"\" Take Bet and Winnings \"", 2},
                                              {"\"same bet/take winnings\"", 3},
                                              {"\"same bet\"", 3},
                                              {"\"press 1 unit\"", 4},
                                              {"\"press double\"", 5},
                                              {"\"parlay\"", 6},
                                              {"\"same bet + $5\"", 7},
                                              {"\"same bet x 50%\"", 7},
                                              {"\"bet 25\"", 8},
                                              {"2", 2}};
  for (const auto& [value, number] : wins) {
    table.Run(std::string("autohandle winning bets = ") + value);
    EXPECT_EQ(handling.WinHandling, number - 1) << value;
    EXPECT_EQ(table.Number("autohandle winning bets"), number);
  }
  EXPECT_EQ(handling.AdjustKind[4], 2);
  EXPECT_EQ(handling.AdjustUnit[4], 1);
  EXPECT_EQ(handling.AdjustValue[4], Currency::Dollars(50));
  EXPECT_EQ(handling.AdjustValue[6], Currency::Dollars(25));
  const std::pair<const char*, int> losses[] = {{"\"no bet\"", 2},        {"\"same bet\"", 3},
                                                {"\"bet remainder\"", 4}, {"\"same bet plus 1 unit\"", 5},
                                                {"\"double bet\"", 6},    {"\"same bet - 10\"", 7},
                                                {"\"bet $5\"", 8}};
  for (const auto& [value, number] : losses) {
    table.Run(std::string("autohandle losing bets = ") + value);
    EXPECT_EQ(handling.LoseHandling, number - 1) << value;
  }
  table.Run("bankroll = 2500");
  EXPECT_EQ(game.table.BankrollCurrent[1], Currency::Dollars(2500));
  table.Run("atm withdraw 500\natm deposit 100");
  EXPECT_EQ(game.table.BankrollCurrent[1], Currency::Dollars(2900));
  table.Run("atm withdraw");
  EXPECT_EQ(game.table.BankrollCurrent[1], Currency::Dollars(3400)) << "without an amount it is the unit";
  table.Run("seed = 55\nrng = 4\ncomp rate = .25");
  EXPECT_EQ(game.settings.CompRate, Percent::Whole(25));
  table.host.result = kResultYes;
  table.Run("ask yes/no question \"Well?\"\ncs0 = answer\nshow message \"Now \" & 5");
  EXPECT_EQ(table.Bet(100), 6);
  EXPECT_TRUE(Says(table.host.boxes[0], Msg::kScriptAsks, {{"text", "Well?"}}));
  EXPECT_TRUE(table.host.Said(Msg::kScriptSays, {{"player", "Ann"}, {"text", "Now 5"}}));
  game.settings.AutoBetSounds = true;
  table.Run("play sound \"/x.wav\"");
  EXPECT_EQ(table.host.sounds, std::vector<std::string>{"/x.wav"});
  table.Run("open/clear file for output \"log.txt\"\noutput to file \"one\"\noutput to file 2");
  table.Run("open/append file for output \"log.txt\"\noutput to file \"three\"");
  std::ifstream log(table.folder.path + "output/log.txt");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(log), {}), "one\n2\nthree\n");
  table.Run("bet 10 on passline\npass the dice");
  EXPECT_EQ(game.table.ShooterSeat, 2);
  table.Run("dontpass = 10");
  table.Dice(2, 2);
  table.Run("autotake full odds = true\nautolay full odds = 1\nplace6 = 12\nautodown place bets = yes");
  EXPECT_GT(table.Bet(kPassLineOdds), 0);
  EXPECT_GT(table.Bet(kDontPassOdds), 0);
  EXPECT_EQ(table.Bet(kPlace4 + 2), 0);
  table.Run("place6 = 30\nbuy the place bet on place6\ncall off buy6");
  EXPECT_EQ(table.Bet(kBuy4 + 2), 30);
  EXPECT_EQ(table.Number("buy6 called off"), -1);
  table.Run("remove on/off button from buy6");
  EXPECT_EQ(table.Number("buy6 called off"), 0);
  table.Run("autopass the dice = 1\nshow steps");
  EXPECT_TRUE(handling.AutoPassDice);
  EXPECT_TRUE(game.autobet.StepsShown);
  game.autobet.StepsShown = false;
  SetScriptPermission(game, 1, ScriptPermission::kReset, true);
  table.Run("cs5 = 9\nstart new session (preserve checkstacks)\ncs6 = beginning new session");
  EXPECT_EQ(SessionRolls(game.stats), 0);
  EXPECT_EQ(table.Bet(105), 9);
  EXPECT_EQ(table.Bet(106), 0);  // the run that began it is of the session before
  table.Run("cs6 = beginning new session");
  EXPECT_EQ(table.Bet(106), -1);
  table.Run("start new session");
  EXPECT_EQ(table.Bet(105), 0);
}

TEST(ScriptCatalogue, RollFilesPlayFromTheRollAskedFor) {
  ScriptTable table;
  Game& game = *table.game;
  const unsigned char rolls[] = {RollByte(1, 1), RollByte(2, 2), RollByte(3, 3), RollByte(4, 4)};
  std::ofstream(table.folder.path + "dice.rll", std::ios::binary)
      .write(reinterpret_cast<const char*>(rolls), sizeof rolls);
  SetScriptPermission(game, 1, ScriptPermission::kFiles, true);
  table.Run(
      "playback dice roll file \"dice.rll\" from roll 3\ncs0 = dice roll file next roll\ncs1 = dice roll "
      "file length");
  EXPECT_EQ(table.Bet(100), 3);
  EXPECT_EQ(table.Bet(101), 4);
  SetScriptActive(game, 1, false);
  RollDice(game);
  EXPECT_EQ(game.table.RollTotal, 6);
  table.Run("dice roll file next roll = 2\ndeactivate dice roll file");
  EXPECT_FALSE(IsRollFileOpen(game.rollFile));
}

TEST(ScriptCatalogue, OutputStaysInItsFolders) {
  ScriptTable table;
  script_test::Folder outside;
  const std::string output = table.folder.path + "output/";
  std::filesystem::create_directory(output);
  std::filesystem::create_symlink(outside.path, output + "link");
  const std::string refused = ScriptErrorText(kErrorBadPath, "");
  const std::string data = table.folder.path;
  std::ofstream(data + "qt.conf") << "mine";
  for (const std::string& name :
       {std::string("link/x.txt"), std::string("a/../../x.txt"), outside.path + "x.txt",
        std::string("cokus.dll"), std::string(), std::string("../qt.conf"), data + "qt.conf", output,
        std::string("../output")})
    EXPECT_EQ(table.ErrorOf("open/clear file for output \"" + name + "\""), refused) << name;
  EXPECT_EQ(std::filesystem::file_size(data + "qt.conf"), 4u);
  EXPECT_EQ(table.ErrorOf("open/clear file for output \"qt.conf\""), "") << "one of its own";
  EXPECT_EQ(table.ErrorOf("open/clear file for output \"" + output + "x.txt\""), "");
  table.game->autobet.OutputOwners[output + "x.txt"] = "another player";
  EXPECT_EQ(table.ErrorOf("open/append file for output \"x.txt\""), refused);
  table.game->autobet.AllowedOutputFolders = {outside.path};
  EXPECT_EQ(table.ErrorOf("open/clear file for output \"" + outside.path + "x.txt\""), "");
  EXPECT_TRUE(std::filesystem::exists(outside.path + "x.txt"));
}

}  // namespace
}  // namespace tessaryn
