// A table for tests: a host with answers prepared and everything that was asked written down, on a clock
// that only the test moves, over a data folder of its own.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "state/game.h"
#include "support/said.h"

namespace tessaryn::test {

struct TestHost : Host {
  // "yes", "no", "ok", "cancel", or what is typed into the box before OK. Without one: the safe answer.
  std::deque<std::string> answers;
  std::vector<ShownBox> boxes;
  int noticesEnded = 0;
  std::deque<SettleAnswer> settleAnswers;
  std::vector<SettleQuestion> settleQuestions;
  std::vector<Sound> sounds;
  std::uint32_t tick = 1'000'000;  // the machine's, at a moment that never changes: tests repeat their dice
  std::uint32_t tickStep = 0;      // by which every look at the clock moves it
  std::int64_t rollTarget = 0;     // a run stops once the dice were thrown so often; 0 never
  bool yields = false;             // what Yield tells the table

  void ShowMessage(Game& game, MessageBox& box) override;
  void EndNotice(Game&) override { ++noticesEnded; }
  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override;
  bool Yield(Game& game) override;
  void Wait(Game& game) override;
  std::uint32_t TickMilliseconds() override { return tick += tickStep; }
  std::string DateText() override { return "2024-02-29"; }
  std::string TimeText() override { return "12:34:56"; }
  double SecondsSinceMidnight() override { return 45296; }
  double DateTimeNumber() override { return 45351.5; }
  void PlaySound(Game&, Sound sound) override { sounds.push_back(sound); }

  std::string LastText() const { return boxes.empty() ? "" : boxes.back().text; }
  // Of the last box; Msg::kNone before the first.
  testing::AssertionResult Said(Msg id, const std::vector<MessageArgument>& arguments = {}) const {
    return Says(boxes.empty() ? ShownBox() : boxes.back(), id, arguments);
  }
};

// A folder that is gone with the test.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::string& Path() const { return path_; }  // ends with a separator
  std::string File(const std::string& name) const { return path_ + name; }

 private:
  std::string path_;
};

Currency Money(const char* text);
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& content);
std::vector<std::string> Lines(const std::string& text);

// A started game. Every helper checks the table's consistency after what it did.
struct TestTable {
  TempFolder folder;
  TestHost host;
  std::unique_ptr<Game> game;

  TestTable();
  TableState& State() { return game->table; }
  void Check(const char* after);
  void Join(int seat, const std::string& name, const char* bankroll = "1000");
  // Returns the change allowed.
  Currency Bet(int seat, int bet, const char* amount);
  void Roll(int die1, int die2);
  // So many rolls at full speed from the source in force.
  void Turbo(std::int64_t rolls);
  void Set(const std::string& name, const std::string& value, int seat = 0);
  std::vector<std::string> Log();
  // Empty when every record of the index is where its line begins.
  std::string IndexProblem();
};

}  // namespace tessaryn::test
