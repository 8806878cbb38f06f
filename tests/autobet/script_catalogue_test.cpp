#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

#include "autobet/history_table.h"
#include "autobet/run/script_errors.h"
#include "autobet/run_helpers.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/players.h"

namespace tessaryn {
namespace {

using script_test::HistoryTable;
using script_test::ScriptTable;

TEST(ScriptCatalogue, ARandomNumberIsNewAtEachReading) {
  ScriptTable table;
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

TEST(ScriptCatalogue, QuestionsAreAskedAndAnswered) {
  ScriptTable table;
  table.host.entries = {"12.5", "word"};
  EXPECT_EQ(table.Number("input(\"How much?\")"), 12.5);
  EXPECT_EQ(table.Text("input$()"), "word");
  EXPECT_TRUE(Says(table.host.boxes[0], Msg::kScriptAsksValue, {{"player", "Ann"}, {"prompt", "How much?"}}));
  EXPECT_TRUE(table.host.Said(Msg::kScriptAsksString, {{"prompt", ""}}));
}

// Those that need more of the table than a statement.
TEST(ScriptCatalogue, RunTimeErrorsComeFromTheirStatements) {
  ScriptTable table;
  Game& game = *table.game;
  std::ofstream(table.folder.path + "text.txt") << "not dice";
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
}

TEST(ScriptCatalogue, SettingsAndActionsDoWhatTheySay) {
  ScriptTable table;
  Game& game = *table.game;
  const Handling& handling = game.table.seats[1].handling;
  table.Run("autohandle winning bets = \"same bet x 50%\"\nautohandle winning bets = \"bet 25\"");
  EXPECT_EQ(table.Number("autohandle winning bets"), 8);
  EXPECT_EQ(handling.AdjustKind[4], 2);
  EXPECT_EQ(handling.AdjustUnit[4], 1);
  EXPECT_EQ(handling.AdjustValue[4], Currency::Dollars(50));
  EXPECT_EQ(handling.AdjustValue[6], Currency::Dollars(25));
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
