// What the script screen does, without the screen.
#include "play/script_session.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "autobet/run_helpers.h"
#include "base/bet_catalogue.h"
#include "base/fields.h"
#include "play/players.h"
#include "play/script_trial.h"

namespace tessaryn {
namespace {

using script_test::ScriptTable;

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "|";
  return text;
}

TEST(LoggedBets, PlayTheSameBetsAgain) {
  ScriptTable table;
  Game& game = *table.game;
  LogBet(game, 1, kField);
  EXPECT_TRUE(game.autobet.LoggedBets.empty()) << "logging is off";
  game.autobet.BetLogging = true;
  const auto bet = [&](int number, const char* amount) {
    Currency money;
    ASSERT_TRUE(TryParseMoney(amount, money));
    PlaceBet(game, 1, number, money);
    LogBet(game, 1, number);
  };
  bet(kPassLine, "10");
  bet(kPassLine, "5");
  bet(kField, "7");
  bet(kPlace4 + 2, "12");
  bet(103, "2.25");
  RemoveBet(game, 1, kField);
  LogBet(game, 1, kField);
  EXPECT_EQ(
      Joined(game.autobet.LoggedBets),
      "bet 10 on passline|bet 15 on passline|bet 7 on field|bet 12 on place6|bet 2.25 on cs3|remove field|");
  double wanted[200];
  for (int number = 1; number < 200; ++number) wanted[number] = table.Bet(number);
  for (const int number : {static_cast<int>(kPassLine), kPlace4 + 2, 103}) RemoveBet(game, 1, number);
  ASSERT_EQ(table.Bet(kPlace4 + 2), 0);

  table.host.result = kResultYes;
  EXPECT_TRUE(OfferToSaveLoggedBets(game));
  EXPECT_TRUE(table.host.Said(Msg::kAskSaveLoggedBets));
  SetScript(game, 1, game.autobet.LoggedBets, "");
  SetScriptActive(game, 1, true);
  ASSERT_TRUE(InitialiseScripts(game));
  for (int number = 1; number < 200; ++number) EXPECT_EQ(table.Bet(number), wanted[number]) << number;
}

// An evening's bets, as they were logged between the rolls, make the same evening on the same dice.
TEST(LoggedBets, ARandomEveningPlaysAgain) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto draw = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
  };
  constexpr int kRolls = 60;
  struct Roll {
    int die1, die2;
    Currency bankroll;
    std::vector<Currency> bets;
  };
  const auto lookAt = [](const Game& game, Roll& roll) {
    roll.bankroll = game.table.BankrollCurrent[1];
    for (int bet = 1; bet <= kBets; ++bet) roll.bets.push_back(game.table.BetAmount(1, bet));
  };
  std::vector<Roll> rolls;
  std::string script = "cs1 = cs1 + 1\n";
  {
    ScriptTable evening;
    Game& game = *evening.game;
    LeaveTable(game, 2);
    game.autobet.BetLogging = true;
    for (int n = 1; n <= kRolls; ++n) {
      for (int clicks = draw(0, 5); clicks > 0; --clicks) {
        const int bet = draw(0, 2) == 0 ? draw(1, kBets) : draw(1, 12);
        if (draw(0, 3) == 0 && game.table.BetAmount(1, bet) != kZero)
          RemoveBet(game, 1, bet);
        else
          PlaceBet(game, 1, bet, Currency::Dollars(5 * draw(1, 6)));
        LogBet(game, 1, bet);
      }
      script += "if cs1 = " + std::to_string(n) + " then\n";
      for (const std::string& statement : game.autobet.LoggedBets) script += statement + "\n";
      script += "endif\n";
      game.autobet.LoggedBets.clear();
      Roll roll{draw(1, 6), draw(1, 6), kZero, {}};
      lookAt(game, roll);
      evening.Dice(roll.die1, roll.die2);
      rolls.push_back(roll);
    }
  }
  ScriptTable again;
  Game& game = *again.game;
  LeaveTable(game, 2);
  ASSERT_EQ(again.Load(1, script), "");
  ASSERT_TRUE(InitialiseScripts(game));  // later it runs behind each roll
  for (const Roll& roll : rolls) {
    Roll now{};
    lookAt(game, now);
    for (std::size_t bet = 0; bet < now.bets.size(); ++bet)
      ASSERT_EQ(now.bets[bet], roll.bets[bet])
          << BetName(static_cast<int>(bet) + 1) << " in roll " << &roll - rolls.data() + 1 << "\n"
          << script;
    ASSERT_EQ(now.bankroll, roll.bankroll) << "in roll " << &roll - rolls.data() + 1;
    again.Dice(roll.die1, roll.die2);
  }
}

TEST(ConditionValues, TellWhatTheOperandsAreWorth) {
  ScriptTable table;
  ASSERT_EQ(table.Run("cs1 = 3 : cs2 = 12"), "");
  struct Case {
    const char* line;
    const char* values;
  };
  const Case cases[] = {
      {"if cs1 < 5 and cs2 = cs1 then", "cs1 3, cs2 12"},
      {"   IF sum(cs1, cs2) = 15 and bankroll player2 > 0 then 'cs3",
       "sum(cs1, cs2) 15, bankroll player2 1000"},
      {"cs1 = cs2", ""},
      {"' if cs1 = 1 then", ""},
      {"if sum(cs1", ""},
  };
  for (const Case& one : cases) EXPECT_EQ(ConditionValues(*table.game, 1, one.line), one.values) << one.line;
}

// In processor time, and with room for a build that isn't optimised.
TEST(CheckScript, TenThousandLinesAreCheckedAtOnce) {
  std::vector<std::string> lines;
  while (lines.size() < 10'000)
    for (const char* line : {"if comeout roll and passline = 0 then", "   bet 10 on passline", "endif"})
      lines.emplace_back(line);
  const std::clock_t start = std::clock();
  EXPECT_TRUE(CheckLines({}, 1, lines).ok);
  EXPECT_LT(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 1500);
}

TEST(LoggedBets, EveryBetIsAStatementThatCompiles) {
  for (int bet = 1; bet < 200; ++bet) {
    if (bet > kBets && bet < kFirstCheckStack) continue;
    const ScriptCheck check = CheckLines({}, 1, {BetStatement(bet, Currency::FromDouble(12.5))});
    EXPECT_TRUE(check.ok) << BetStatement(bet, Currency::FromDouble(12.5)) << ": " << check.text;
  }
}

// What compiled is kept, but nothing of it outlives what it was made from.
TEST(CheckScript, AScriptIsCompiledOnceAndAgainWhenSomethingOfItChanges) {
  ScriptTable table;
  Game& game = *table.game;
  ASSERT_EQ(table.Load(1, "cs0 = place6 bob : bet 5 on big6"), "");
  const KeptScript* kept = game.autobet.Scripts[1].Kept.get();
  CompileActiveScripts(game);
  EXPECT_EQ(game.autobet.Scripts[1].Kept.get(), kept);
  std::string error;
  for (const char* const name : {"Rob", "Bob"}) {
    ASSERT_TRUE(RenameTo(game, 2, name, error)) << error;
    EXPECT_EQ(CheckScript(game, 1).ok, std::string(name) == "Bob") << name;
  }
  ASSERT_TRUE(SetSetting(game, "UseBig68", 0, "off", error)) << error;
  CompileActiveScripts(game);
  EXPECT_FALSE(game.autobet.ScriptsCompiled);
  SetScript(game, 1, {"bet 7 on field"}, "");
  CompileActiveScripts(game);
  RunAutoBet(game);
  EXPECT_EQ(table.Bet(kField), 7);
}

TEST(CheckScript, AnEmptyScriptIsToldAndNotCompiled) {
  ScriptTable table;
  Game& game = *table.game;
  CompileActiveScripts(game);
  SetScript(game, 1, {"", "  "}, "");
  game.autobet.ScriptsCompiled = true;
  const ScriptCheck check = CheckScript(game, 1);
  EXPECT_FALSE(check.ok);
  EXPECT_EQ(check.title, "Auto-Bet");
  EXPECT_EQ(check.text,
            "This feature checks to see that your auto-bet script is properly structured, but presently your "
            "script is empty.");
  EXPECT_TRUE(game.autobet.ScriptsCompiled);
  SetScript(game, 1, {"bet 5 on field"}, "");
  game.autobet.ScriptsCompiled = true;
  EXPECT_EQ(CheckScript(game, 1).text, "Your script is properly structured.");
  EXPECT_FALSE(game.autobet.ScriptsCompiled) << "so that a run compiles all scripts";
}

TEST(CheckScript, TheTitleNamesTheLinesAndTheSpanStaysInTheScript) {
  const ScriptCheck one = CheckLines({}, 1, {"bet 5 on field", "bet 5 on", "cs1 = 1"});
  EXPECT_EQ(one.title, "Auto-bet script error in line 2");
  const ScriptCheck several = CheckLines({}, 1, {"10", "cs1 = 1", "10"});
  EXPECT_EQ(several.title, "Auto-bet script error in lines 1 thru 3");
  for (const char* const text : {"if 1 then", "do", "bet 5 on (", "goto"}) {
    const ScriptCheck check = CheckLines({}, 1, {"' first", text});
    EXPECT_FALSE(check.ok) << text;
    EXPECT_GE(check.diagnostic.firstLine, 1) << text;
    EXPECT_LE(check.diagnostic.lastLine, 2) << text;
  }
}

TEST(ActivateScript, OffersToInitialise) {
  ScriptTable table;
  Game& game = *table.game;
  SetScript(game, 1, {"if initializing script then add 1 to cs0 endif"}, "");
  ActivateScript(game, 1);
  ASSERT_EQ(table.host.boxes.size(), 1u);
  EXPECT_TRUE(table.host.Said(Msg::kAskInitialise, {{"player", "Ann"}}));
  EXPECT_TRUE(game.autobet.ScriptActive[1] && game.autobet.ScriptActive[0]);
  EXPECT_EQ(table.Bet(100), 0) << "No was the answer";
  table.host.result = kResultYes;
  ActivateScript(game, 0);
  EXPECT_TRUE(table.host.Said(Msg::kAskInitialiseAll));
  EXPECT_EQ(table.Bet(100), 1);
  EXPECT_FALSE(game.autobet.ScriptActive[2]) << "a player without a script";
  SetAllScriptsActive(game, false);
  EXPECT_FALSE(game.autobet.ScriptActive[1] || game.autobet.ScriptActive[0]);
}

// The user of the steps viewer: asks for the next statement, or stops the run at one of them.
struct StepHost : script_test::TestHost {
  int waits = 0;
  int stopAt = 0;  // 0 never
  void Wait(Game& game) override {
    ++waits;
    tick += 5;
    if (stopAt > 0 && waits == stopAt)
      game.autobet.ScriptRunning = false;
    else
      game.autobet.StepWaiting = false;
  }
};

TEST(StepMode, WaitsBehindEveryStatementUntilTheUserAsksOrStops) {
  for (const int stopAt : {0, 2}) {
    ScriptTable table;
    Game& game = *table.game;
    StepHost host;
    game.host = &host;
    host.stopAt = stopAt;
    game.autobet.StepsShown = game.autobet.StepMode = true;
    game.autobet.StepsHold = false;
    ASSERT_EQ(table.Load(1, "bet 5 on field\nbet 6 on passline\nbet 7 on big6"), "");
    CompileActiveScripts(game);
    RunAutoBet(game);
    EXPECT_EQ(host.waits, stopAt == 0 ? 3 : 2);
    EXPECT_EQ(table.Bet(kField), 5);
    EXPECT_EQ(table.Bet(kPassLine), 6) << "the statement that was waited behind is done";
    EXPECT_EQ(table.Bet(kBig6), stopAt == 0 ? 7 : 0);
    EXPECT_FALSE(game.autobet.ScriptRunning || game.autobet.StepWaiting);
    game.host = &table.host;
  }
}

// Every sample, on the same dice with its statements waited behind and without.
TEST(StepMode, AGameStepByStepIsThatOfARun) {
  const std::filesystem::path samples = std::string(test::kSourceFolder) + "/data/samples";
  for (const auto& entry : std::filesystem::directory_iterator(samples)) {
    SCOPED_TRACE(entry.path().filename().string());
    std::ifstream file(entry.path());
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    ScriptTable run;
    ScriptTable steps;
    StepHost host;
    steps.game->host = &host;
    for (ScriptTable* table : {&run, &steps}) {
      Game& game = *table->game;
      game.autobet.StepsShown = game.autobet.StepMode = table == &steps;
      game.autobet.StepsHold = false;
      ASSERT_EQ(table->Load(1, text), "");
      ASSERT_TRUE(InitialiseScripts(game));
      std::mt19937 random(14);
      for (int roll = 0; roll < 60; ++roll) {
        const int die = static_cast<int>(random() % 6) + 1;
        table->Dice(die, static_cast<int>(random() % 6) + 1);
      }
    }
    EXPECT_GE(host.waits, 60);
    for (SeatId seat = 1; seat <= kSeats; ++seat)  // each table has a folder of its own
      steps.game->table.seats[seat].SessionsLogName = run.game->table.seats[seat].SessionsLogName;
    EXPECT_EQ(FirstDifference(run.game->table, steps.game->table), "");
    EXPECT_EQ(FirstDifference(run.game->stats, steps.game->stats), "");
    steps.game->host = &steps.host;
  }
}

}  // namespace
}  // namespace tessaryn
