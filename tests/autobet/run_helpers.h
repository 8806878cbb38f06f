// A table for the tests of running scripts: a host that remembers, and seats with scripts.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "autobet/compile_helpers.h"
#include "autobet/run/interpreter.h"
#include "play/auto_roll.h"
#include "play/players.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "state/game.h"
#include "state/run_stop.h"
#include "stats/statistics.h"
#include "support/places.h"
#include "support/said.h"

namespace tessaryn::script_test {

struct TestHost : Host {
  std::vector<test::ShownBox> boxes;
  std::deque<std::string> entries;  // for the next input boxes
  int result = 0;                   // 0: the safe answer
  std::vector<std::string> steps;   // "line text"
  std::vector<std::string> sounds;
  std::int64_t rollTarget = 0;  // of dice thrown
  std::int64_t yields = 0;
  std::int64_t yieldLimit = 0;  // stops the run in progress
  std::uint32_t tick = 0;

  void ShowMessage(Game&, MessageBox& box) override {
    boxes.emplace_back(box);
    if ((box.MsgFlags & kMsgInput) != 0 && !entries.empty()) {
      box.MsgEntry = entries.front();
      entries.pop_front();
      box.MsgResult = kResultOk;
      return;
    }
    box.MsgResult = (box.MsgFlags & kMsgNo) != 0       ? kResultNo
                    : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel
                                                       : kResultOk;
    if (result != 0) box.MsgResult = result;
  }
  testing::AssertionResult Said(Msg id, const std::vector<MessageArgument>& arguments = {}) const {
    return Says(boxes.empty() ? test::ShownBox() : boxes.back(), id, arguments);
  }
  bool Yield(Game& game) override {
    ++yields;
    if (yieldLimit > 0 && yields >= yieldLimit) {
      game.autobet.ScriptRunning = false;
      StopRun(game, "");
    }
    if (rollTarget > 0 && Throws(game.stats) >= rollTarget) StopRun(game, "");
    return false;
  }
  void Wait(Game& game) override {
    tick += 5;
    Yield(game);
  }
  std::uint32_t TickMilliseconds() override { return tick; }
  std::string DateText() override { return "2001-02-03"; }
  std::string TimeText() override { return "04:05:06"; }
  double SecondsSinceMidnight() override { return 14706; }
  double DateTimeNumber() override { return 36925.25; }
  bool PlaySoundFile(Game&, const std::string& name) override {
    sounds.push_back(name);
    return true;
  }
  void ShowStep(Game&, const ScriptStep& step) override {
    steps.push_back(std::to_string(step.line) + " " + step.text);
  }
};

// A folder that goes with the test.
struct Folder {
  std::string path;
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "tessaryn-XXXXXX").string();
    path = std::string(mkdtemp(name.data())) + "/";
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
};

// Ann at seat 1, Bob at seat 2, each with 1,000.
struct ScriptTable {
  Folder folder;
  TestHost host;
  std::unique_ptr<Game> game;

  ScriptTable() : game(StartGame(host, std::string(test::kBinFolder) + "/", folder.path)) {
    std::string error;
    JoinPlayer(*game, 1, "Ann", Currency::Dollars(1000), error);
    JoinPlayer(*game, 2, "Bob", Currency::Dollars(1000), error);
    game->settings.ShooterBetRule = 0;
    SelectGenerator(*game, 4);
    bool given = true;
    SeedRng(*game, given, Currency::Dollars(7));
  }

  // Gives a seat a script and activates it. The message of a bad one, or "".
  std::string Load(int seat, const std::string& text) {
    SetScript(*game, seat, Lines(text), "");
    const ScriptCheck check = CheckScript(*game, seat);
    SetScriptActive(*game, seat, true);
    return check.ok ? "" : check.text;
  }
  // Runs a script once for Ann; the error of its last statement that had one.
  std::string Run(const std::string& text) {
    const std::string problem = Load(1, text);
    if (!problem.empty()) return problem;
    CompileActiveScripts(*game);
    RunAutoBet(*game);
    return "";
  }
  // The run-time error of a single action statement, by its steps text; "" for none.
  std::string ErrorOf(const std::string& statement) {
    game->autobet.StepsShown = true;
    game->autobet.StepsHold = false;
    host.steps.clear();
    const std::string problem = Run(statement);
    if (!problem.empty()) return "does not compile: " + problem;
    for (const std::string& step : host.steps) {
      const auto at = step.find("No action taken.\r");
      if (at != std::string::npos) return step.substr(at + 17);
      const auto condition = step.find("Unable to evaluate.\r");
      if (condition != std::string::npos) return step.substr(condition + 20);
    }
    return "";
  }
  // What an expression gives, through CheckStack 99 or, for a text, its name.
  double Number(const std::string& expression) {
    SetBetAmount(*game, 1, 199, Currency::Dollars(-98765));
    Run("cs99 = " + expression);
    return game->table.BetAmount(1, 199).ToDouble();
  }
  std::string Text(const std::string& expression) {
    game->table.seats[1].CheckStackName[99] = "(none)";
    Run("csn99 = " + expression);
    return game->table.seats[1].CheckStackName[99];
  }
  double Bet(int bet, int seat = 1) const { return game->table.BetAmount(seat, bet).ToDouble(); }
  void Dice(int die1, int die2) {
    game->table.ManualDie1 = die1;
    game->table.ManualDie2 = die2;
    game->table.ManualRollPending = true;
    RollDice(*game);
  }
  // So many rolls at full speed.
  void Turbo(std::int64_t rolls) {
    host.rollTarget = Throws(game->stats) + rolls;
    ToggleAutoRoll(*game);
    host.rollTarget = 0;
  }
};

}  // namespace tessaryn::script_test
