#include "stats/events_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/table_files.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "state/run_stop.h"
#include "stats/events_log_copy.h"
#include "stats/log_index.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using test::Money;
using test::TestTable;
using LogLines = std::vector<std::string>;

struct LoggedTable : TestTable {
  LoggedTable() {
    Set("ShooterBetRule", "0");
    Set("MessageMask", "0");
    Set("RecordEventsActive", "on");
  }
  // The lines since the last call.
  LogLines News() {
    const LogLines all = Log();
    LogLines news(all.begin() + static_cast<std::ptrdiff_t>(seen), all.end());
    seen = all.size();
    return news;
  }
  std::size_t seen = 0;
};

TEST(EventsLogLines, WhatIsToldOfPlayersIsInTheLanguageAndTheRestEnglish) {
  const LogLines told[] = {
      {"    Ann se unió al juego en stick 4-izquierda con $1000",
       "    Ann se retiró con $1000 (sin ganar ni perder)"},
      {"    Ann ist eingestiegen, Stick 4-links, mit $1000",
       "    Ann ist ausgestiegen mit $1000 (ausgeglichen)"},
      {"    Ann a rejoint la partie, stick 4-gauche, avec $1000",
       "    Ann a quitté la table avec $1000 (ni gain ni perte)"},
      {"    Ann oyuna katıldı, stick 4-sol, kasa $1000", "    Ann oyundan ayrıldı, aldığı $1000 (başa baş)"}};
  for (int language = 1; language < kMessageLanguages; ++language) {
    LoggedTable table;
    table.Set("Language", std::to_string(language));
    table.Join(1, "Ann");
    table.Set("RecordBetChanges", "on");
    table.Bet(1, kPassLine, "10");
    LogChangesBeforeRoll(*table.game);
    table.Bet(1, kPassLine, "-10");
    LeaveTable(*table.game, 1);
    const LogLines news = table.News();
    ASSERT_FALSE(news.empty());
    EXPECT_EQ(news.front(), told[language - 1].front());
    EXPECT_NE(std::find(news.begin(), news.end(), told[language - 1].back()), news.end()) << news.back();
    EXPECT_NE(std::find(news.begin(), news.end(), "      Ann bet $10 on Pass Line"), news.end());
    // Found again by the player's name.
    for (const std::string& line : told[language - 1])
      EXPECT_TRUE(PassesLogFilter({.Kinds = kLogAllKinds, .Player = "Ann"}, line)) << line;
  }
}

TEST(EventsLogLines, ALittleGameOfThreeReadsAsItWasPlayed) {
  LoggedTable table;
  Game& game = *table.game;
  table.Join(1, "Ann");
  table.Join(8, "Bob", "500.5");
  table.Join(5, "Cid", "-5");
  EXPECT_EQ(table.News(), (LogLines{"    Ann joined the game at stick 4-left with $1000",
                                    "    Bob joined the game at stick 4-right with $500.5",
                                    "    Cid joined the game at stick 1-right with $-5"}));

  table.Bet(1, kPassLine, "10");
  table.Bet(8, kDontPass, "20");
  table.Bet(8, kFirstCheckStack + 4, "12.5");
  table.Bet(1, kPlace4 + 2, "12");
  CallBet(game, 1, kPlace4 + 2, true);
  AtmTransaction(game, 5, false, Money("105"));
  table.Roll(2, 2);
  EXPECT_EQ(table.News(),
            (LogLines{"    Bankroll:", "      Cid increased to $100 ($105 ATM withdrawal)",
                      "    Bets:", "      Ann bet $12 on Place 6", "      Ann called ON Place 6 bet",
                      "      Ann bet $10 on Pass Line", "      Bob bet $20 on Don't Pass",
                      "    CheckStacks:", "      Bob increased CheckStack #4 to 12.5",
                      " Roll #1:  4 (2.2) from manual roll pad", "    Point established"}));

  table.Bet(1, kCome, "15");
  table.Bet(1, kPlace4 + 2, "6");
  CallBet(game, 1, kPlace4 + 2, false);
  table.Bet(8, kDontPass, "-5");
  table.Bet(8, kFirstCheckStack + 4, "-2");
  table.Bet(8, kField, "7");
  table.Roll(4, 4);
  EXPECT_EQ(table.News(),
            (LogLines{"    Bets:", "      Ann increased Place 6 to $18",
                      "      Ann called Place 6 bet working normally again", "      Ann bet $15 on Come",
                      "      Bob decreased Don't Pass to $15", "      Bob bet $7 on Field",
                      "    CheckStacks:", "      Bob decreased CheckStack #4 to 10.5",
                      " Roll #2:  8 (4.4) from manual roll pad",
                      "    Wins/losses:", "      Bob lost $7 on Field", "    Ann's Come bet moved to Come 8",
                      "    Bankroll:", "      Bob decreased to $493.5 ($7 loss)"}));

  // The Field bet was taken by the table and the Come bet's move is told: neither is a removal by the player.
  CallBet(game, 1, kPlace4 + 2, false);
  table.Roll(2, 4);
  EXPECT_EQ(table.News(),
            (LogLines{"    Bets:", "      Ann called OFF Place 6 bet", "      Bob removed $7 bet on Field",
                      " Roll #3:  6 (2.4) from manual roll pad"}));

  PassDice(game, kPassByUser);
  EXPECT_EQ(table.News(), (LogLines{"    The dice were passed to Bob"}));
  table.Roll(3, 4);
  EXPECT_EQ(
      table.News(),
      (LogLines{" Roll #4:  7 (3.4) from manual roll pad", "    Miss (seven-out)",
                "    Wins/losses:", "      Ann lost $10 on Pass Line", "      Ann lost $15 on Come 8",
                "      Bob won $15 on Don't Pass", "    Bankroll:", "      Ann decreased to $975 ($25 loss)",
                "      Bob increased to $508.5 ($15 gain)", "----New shooter (Bob) coming out----------"}));

  std::string error;
  RenameTo(game, 8, "Bert", error);
  MovePlayer(game, 8, 4, error);
  LeaveTable(game, 1);
  bool seed = true;
  SeedRng(game, seed, Money("42"));
  EXPECT_EQ(table.News(), (LogLines{"    Bob's name changed to Bert", "    Bert moved to stick 1-left",
                                    "    Ann cashed out with $975 ($25 loss)", "    RNG #1 seeded: 42"}));
  table.Roll(6, 6);
  table.Roll(6, 5);
  const LogLines tail = table.News();
  ASSERT_GE(tail.size(), 6u);
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(EventsLogLines, TheLineOfEachDecisionAndDivider) {
  LoggedTable table;
  table.Join(1, "Ann");
  table.News();
  const std::tuple<int, int, LogLines> rolls[] = {
      {5, 2, {" Roll #1:  7 (5.2) from manual roll pad", "    Pass (natural)"}},
      {5, 6, {" Roll #2:  11 (5.6) from manual roll pad", "    Pass (natural)"}},
      {1, 2, {" Roll #3:  3 (1.2) from manual roll pad", "    Miss (craps natural)"}},
      {6, 6, {" Roll #4:  12 (6.6) from manual roll pad", "    Miss (craps natural)"}},
      {1, 4, {" Roll #5:  5 (1.4) from manual roll pad", "    Point established"}},
      {1, 1, {" Roll #6:  2 (1.1) from manual roll pad"}},
      {2, 3, {" Roll #7:  5 (2.3) from manual roll pad", "    Pass (point rolled)"}},
      {4, 5, {" Roll #8:  9 (4.5) from manual roll pad", "    Point established"}},
      {6,
       1,
       {" Roll #9:  7 (6.1) from manual roll pad", "    Miss (seven-out)",
        "----Same shooter (Ann) coming out----------"}},
  };
  for (const auto& [die1, die2, lines] : rolls) {
    table.Roll(die1, die2);
    EXPECT_EQ(table.News(), lines);
  }
  LeaveTable(*table.game, 1);
  table.Roll(2, 2);
  table.Roll(3, 4);
  EXPECT_EQ(table.News().back(), "----New hand, come-out roll----------");
}

TEST(EventsLogLines, EachClassCanBeLeftOut) {
  struct Case {
    const char* only;
    LogLines lines;
  };
  const Case cases[] = {
      {"RecordRolls", {" Roll #1:  6 (3.3) from manual roll pad"}},
      {"RecordBetChanges", {"    Bets:", "      Ann bet $5 on Field", "      Ann bet $5 on Hard 6"}},
      {"RecordBetsWon", {"    Wins:", "      Ann won $45 on Hard 6"}},
      {"RecordBetsLost", {"    Losses:", "      Ann lost $5 on Field"}},
      {"RecordCheckStackChanges", {"    CheckStacks:", "      Ann increased CheckStack #0 to 1"}},
      {"RecordPassesMisses", {"    Point established"}},
      {"RecordShooterChanges", {}},
      {"RecordBankrollChanges",
       {"    Bankroll:", "      Ann decreased to $900 ($100 ATM deposit)",
        "    Bankroll:", "      Ann increased to $940 ($40 gain)"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.only);
    LoggedTable table;
    table.Join(1, "Ann");
    RecordAllEvents(table.game->events, false);
    table.Set(c.only, "on");
    table.News();
    table.Bet(1, kField, "5");
    table.Bet(1, kHard6, "5");
    table.Bet(1, kFirstCheckStack, "1");
    AtmTransaction(*table.game, 1, true, Money("100"));
    table.Roll(3, 3);
    EXPECT_EQ(table.News(), c.lines);
  }
}

TEST(EventsLogLines, AWinHeadingIsNotWrittenWithoutAWin) {
  LoggedTable table;
  table.Join(1, "Ann");
  RecordAllEvents(table.game->events, false);
  table.Set("RecordBetsWon", "on");
  table.News();
  table.Bet(1, kField, "5");
  table.Roll(3, 3);
  table.Bet(1, kField, "5");
  table.Roll(1, 1);
  EXPECT_EQ(table.News(), (LogLines{"    Wins:", "      Ann won $10 on Field"}));
}

TEST(EventsLogLines, ANewSessionIsAnnounced) {
  for (const bool clears : {false, true}) {
    for (const bool shooters : {true, false}) {
      LoggedTable table;
      table.Set("ClearLogOnNewSession", clears ? "on" : "off");
      table.Set("RecordShooterChanges", shooters ? "on" : "off");
      table.Join(3, "Ann");
      table.Join(6, "Bob", "20");
      table.Roll(2, 2);
      const std::size_t before = table.Log().size();
      NewSession(*table.game, true, true, true, 0);
      LogLines lines = table.Log();
      if (!clears) lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(before));
      LogLines expected{
          " New session started 2024-02-29 @ 12:34:56",
          "    Players:", "      Ann at stick 2-left with $1000", "      Bob at stick 2-right with $20",
          shooters ? "----New shooter (Ann) coming out----------" : "----New hand, come-out roll----------"};
      if (!clears) expected.insert(expected.begin(), "============================================");
      EXPECT_EQ(lines, expected);
      EXPECT_EQ(table.IndexProblem(), "");
    }
  }
}

TEST(EventsLogLines, AnEmptyLogBeginsAtOne) {
  LoggedTable table;
  table.Join(1, "Ann");
  FlushEventsLog(*table.game);
  EXPECT_EQ(test::ReadFile(EventsIndexPath(*table.game)), (std::string{1, 0, 0, 0}));
}

TEST(EventsLogLines, WithRecordingOffNoFileIsTouched) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kField, "5");
  table.Roll(3, 3);
  NewSession(*table.game, true, true, true, 0);
  EXPECT_FALSE(fs::exists(EventsLogPath(*table.game)));
  EXPECT_FALSE(fs::exists(EventsIndexPath(*table.game)));
}

// --- Full speed writes what single rolls write.

TEST(EventsLogTurbo, TheSameDiceGiveTheSameLinesAtAnySpeed) {
  std::mt19937 random(7);
  std::string dice;
  for (int i = 0; i < 3000; ++i)
    dice +=
        static_cast<char>(RollByte(1 + static_cast<int>(random() % 6), 1 + static_cast<int>(random() % 6)));
  std::string logs[2];
  for (const bool turbo : {false, true}) {
    LoggedTable table;
    for (int seat = 1; seat <= 8; ++seat) {
      table.Join(seat, std::string("P") + static_cast<char>('a' + seat), "9000");
      for (const int bet : {static_cast<int>(kPassLine), kPlace4 + 2, static_cast<int>(kField),
                            kLay4 + seat % 6, static_cast<int>(kHard6), static_cast<int>(kMakeAll)})
        table.Bet(seat, bet, "6");
      table.State().seats[seat].handling.WinHandling = 1 + seat % 5;
      table.State().seats[seat].handling.LoseHandling = 2 + seat % 4;
      table.State().seats[seat].handling.AutoTakeOdds = seat % 2 == 0;
    }
    test::WriteFile(table.folder.File("d.rol"), dice);
    ASSERT_EQ(OpenRollFile(table.game->rollFile, table.folder.File("d.rol")), "");
    ASSERT_EQ(SetRecorderState(table.game->rollFile, kRecorderPlayback), "");
    if (turbo)
      table.Turbo(3000);
    else
      for (int i = 0; i < 3000; ++i) RollDice(*table.game);
    table.Check("the run");
    EXPECT_EQ(SessionRolls(table.game->stats), 3000);
    EXPECT_EQ(table.IndexProblem(), "");
    logs[turbo ? 1 : 0] = test::ReadFile(EventsLogPath(*table.game));
  }
  EXPECT_GT(logs[0].size(), 100'000u);
  EXPECT_TRUE(logs[0] == logs[1]);
}

TEST(EventsLogTurbo, AHostThatGivesWayFindsTheFilesComplete) {
  LoggedTable table;
  table.Join(1, "Ann");
  table.host.yields = true;
  table.Turbo(50);
  EXPECT_EQ(static_cast<std::int64_t>(test::Lines(test::ReadFile(EventsLogPath(*table.game))).size()),
            EventsLogLineCount(*table.game));
}

// --- The view.

TEST(EventsLogView, OnlyRollLinesMoveIt) {
  LoggedTable table;
  table.Join(1, "Ann");
  EXPECT_EQ(table.game->events.EventsLogTopLine, 1);
  table.Bet(1, kField, "5");
  table.Roll(3, 4);
  EXPECT_EQ(ReadEventsLogLine(*table.game, table.game->events.EventsLogTopLine),
            " Roll #1:  7 (3.4) from manual roll pad");
  const int top = table.game->events.EventsLogTopLine;
  table.Set("KeepLatestRollOnTop", "off");
  table.Roll(3, 4);
  EXPECT_EQ(table.game->events.EventsLogTopLine, top);
}

TEST(EventsLogView, EveryLineIsReadThroughTheIndex) {
  LoggedTable table;
  table.Join(1, "Ann");
  table.Turbo(500);
  const LogLines lines = table.Log();
  ASSERT_EQ(EventsLogLineCount(*table.game), static_cast<std::int64_t>(lines.size()));
  for (std::size_t line = 0; line < lines.size(); line += 7)
    EXPECT_EQ(ReadEventsLogLine(*table.game, static_cast<std::int64_t>(line) + 1), lines[line]);
  EXPECT_EQ(ReadEventsLogLine(*table.game, static_cast<std::int64_t>(lines.size()) + 1), "");
  EXPECT_EQ(ReadEventsLogLine(*table.game, 0), "");
}

// --- Files.

TEST(EventsLogFiles, ALostOrForeignIndexIsMadeAnew) {
  const auto damage = [](Game& game, int kind) {
    const std::string index = EventsIndexPath(game);
    if (kind == 0) fs::remove(index);
    if (kind == 1) test::WriteFile(index, "");
    if (kind == 2) test::WriteFile(index, "abc");
    if (kind == 3) test::WriteFile(EventsLogPath(game), "another log\nof two lines\n");
    if (kind == 4) fs::resize_file(index, fs::file_size(index) - 4);
  };
  for (int kind = 0; kind < 5; ++kind)
    for (const bool playsOn : {false, true}) {
      SCOPED_TRACE("damage " + std::to_string(kind) + (playsOn ? ", then a roll" : ", then a look"));
      LoggedTable table;
      table.Join(1, "Ann");
      table.Turbo(20);
      damage(*table.game, kind);
      if (playsOn) table.Roll(3, 4);
      EventsLogLineCount(*table.game);
      EXPECT_EQ(table.IndexProblem(), "");
    }
}

TEST(EventsLogFiles, ALogThatIsTakenAwayBeginsAnew) {
  LoggedTable table;
  table.Join(1, "Ann");
  table.Roll(3, 4);
  fs::remove(EventsLogPath(*table.game));
  EXPECT_EQ(EventsLogLineCount(*table.game), 0);
  EXPECT_EQ(ReadEventsLogLine(*table.game, 1), "");
  table.Roll(6, 6);
  EXPECT_EQ(table.Log(), (LogLines{" Roll #2:  12 (6.6) from manual roll pad", "    Miss (craps natural)"}));
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(EventsLogFiles, AnUnwritableLogIsToldOnceAndTheGameGoesOn) {
  for (const bool full : {true, false}) {
    SCOPED_TRACE(full ? "full disk" : "a folder in the way");
    LoggedTable table;
    Game& game = *table.game;
    const std::string blocked = table.folder.File("blocked");
    if (!full) fs::create_directories(blocked + "/inside");
    game.events.Path = full ? "/dev/full" : blocked;
    table.Join(1, "Ann");
    for (int i = 0; i < 20; ++i) table.Roll(3, 4);
    EXPECT_EQ(SessionRolls(game.stats), 20);
    ASSERT_EQ(table.host.boxes.size(), 1u);
    EXPECT_TRUE(table.host.Said(Msg::kLogFaultReported));
    EXPECT_NE(table.host.LastText().find(game.events.Path), std::string::npos);
    // A place to write brings the journal back, with an index that fits.
    std::string error;
    game.events.Path = table.folder.File("good.txt");
    table.Roll(6, 6);
    EXPECT_EQ(table.IndexProblem(), "");
    EXPECT_EQ(table.Log().back(), "    Miss (craps natural)");
    EXPECT_EQ(table.host.boxes.size(), 1u);
  }
}

TEST(EventsLogFiles, AFullDiskStopsEveryRunWithItsReason) {
  LoggedTable table;
  Game& game = *table.game;
  game.events.Path = "/dev/full";
  table.Join(1, "Ann");
  for (int run = 1; run <= 3; ++run) {
    const std::int64_t before = SessionRolls(game.stats);
    table.Turbo(60'000);
    EXPECT_LT(SessionRolls(game.stats) - before, 20'000);
    EXPECT_EQ(table.host.boxes.size(), static_cast<std::size_t>(run)) << "told once in a run";
    EXPECT_TRUE(table.host.Said(Msg::kRunStopped));
    EXPECT_NE(game.table.StopReason.find("/dev/full"), std::string::npos) << game.table.StopReason;
  }
  EXPECT_NE(EndGame(game).find("/dev/full"), std::string::npos);
}

TEST(EventsLogFiles, WaitingLinesGoBehindWhatTheNextLogHolds) {
  LoggedTable table;
  Game& game = *table.game;
  const std::string other = table.folder.File("other.txt");
  test::WriteFile(other, "an older line\nand one more\n");
  game.events.Path = "/dev/full";
  table.Join(1, "Ann");
  table.Roll(3, 4);
  std::string error;
  ASSERT_TRUE(OpenEventsLog(game, other, error)) << error;
  EXPECT_EQ(game.events.EventsLogTopLine, 1);
  table.Roll(6, 6);
  EXPECT_EQ(table.IndexProblem(), "");
  EXPECT_EQ(table.Log()[0], "an older line");
  EXPECT_EQ(table.Log().back(), "    Miss (craps natural)");
}

TEST(EventsLogFiles, ALogWithoutItsLastLineEndIsGoneOnWithProperly) {
  LoggedTable table;
  const std::string other = table.folder.File("edited.txt");
  test::WriteFile(other, "first\nedited by hand");
  std::string error;
  ASSERT_TRUE(OpenEventsLog(*table.game, other, error)) << error;
  table.Join(1, "Ann");
  EXPECT_EQ(table.Log(),
            (LogLines{"first", "edited by hand", "    Ann joined the game at stick 4-left with $1000"}));
  EXPECT_EQ(table.IndexProblem(), "");
}

TEST(EventsLogFiles, NewAsksForTheDefaultNameAlone) {
  LoggedTable table;
  Game& game = *table.game;
  table.Join(1, "Ann");
  table.Roll(3, 4);
  table.host.boxes.clear();
  table.host.answers = {"cancel", "no"};
  NewEventsLog(game);
  EXPECT_GT(table.Log().size(), 0u);
  ASSERT_EQ(table.host.boxes.size(), 1u);
  EXPECT_TRUE(table.host.Said(Msg::kAskSaveEventsLog));
  NewEventsLog(game);
  EXPECT_EQ(table.Log().size(), 0u);
  EXPECT_EQ(game.events.EventsLogTopLine, 1);
  EXPECT_FALSE(fs::exists(EventsIndexPath(game)));
  table.Roll(3, 4);
  std::string error;
  ASSERT_TRUE(SaveEventsLogAs(game, table.folder.File("kept.txt"), error)) << error;
  EXPECT_EQ(EventsLogPath(game), table.folder.File("kept.txt"));
  const LogLines kept = table.Log();
  EXPECT_FALSE(kept.empty());
  table.Roll(6, 6);
  EXPECT_EQ(table.Log().size(), kept.size() + 2);
  EXPECT_EQ(table.IndexProblem(), "");
  table.host.boxes.clear();
  NewEventsLog(game);
  EXPECT_TRUE(table.host.boxes.empty()) << "a log with a name of its own is not asked about";
  EXPECT_EQ(table.Log().size(), 0u);
}

TEST(EventsLogFiles, OpenAndSaveAsRefuseWhatCannotBe) {
  LoggedTable table;
  Game& game = *table.game;
  table.Join(1, "Ann");
  const std::string path = EventsLogPath(game);
  std::string error;
  EXPECT_FALSE(OpenEventsLog(game, table.folder.File("nothing.txt"), error));
  EXPECT_NE(error.find("nothing.txt"), std::string::npos);
  EXPECT_FALSE(OpenEventsLog(game, table.folder.Path(), error));
  error.clear();
  EXPECT_FALSE(SaveEventsLogAs(game, table.folder.File("no/such/folder.txt"), error));
  EXPECT_NE(error.find("folder.txt"), std::string::npos);
  EXPECT_EQ(EventsLogPath(game), path);
  EXPECT_EQ(table.Log().size(), 1u);
}

}  // namespace
}  // namespace tessaryn
