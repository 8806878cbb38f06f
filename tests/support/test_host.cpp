#include "support/test_host.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "play/auto_roll.h"
#include "play/players.h"
#include "play/setting_table.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "state/run_stop.h"
#include "stats/events_log.h"
#include "support/places.h"

namespace tessaryn::test {

namespace fs = std::filesystem;

void TestHost::ShowMessage(Game&, MessageBox& box) {
  boxes.emplace_back(box);
  const bool question = (box.MsgFlags & (kMsgYes | kMsgNo | kMsgCancel | kMsgInput)) != 0;
  if (!question || answers.empty()) {
    const bool no = (box.MsgFlags & kMsgNo) != 0;
    box.MsgResult = no ? kResultNo : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel : kResultOk;
    return;
  }
  const std::string answer = answers.front();
  answers.pop_front();
  if (answer == "yes") {
    box.MsgResult = kResultYes;
  } else if (answer == "no") {
    box.MsgResult = kResultNo;
  } else if (answer == "cancel") {
    box.MsgResult = kResultCancel;
  } else {
    box.MsgResult = kResultOk;
    if (answer == "ok") return;
    box.MsgEntry = answer;
    box.MsgValue1 = ParseMoney(answer);
  }
}

SettleAnswer TestHost::AskSettlement(Game&, const SettleQuestion& question) {
  settleQuestions.push_back(question);
  if (settleAnswers.empty()) return {};
  const SettleAnswer answer = settleAnswers.front();
  settleAnswers.pop_front();
  return answer;
}

bool TestHost::Yield(Game& game) {
  if (rollTarget > 0 && Throws(game.stats) >= rollTarget && game.table.AutoRollActive) StopRun(game, "");
  return yields;
}

void TestHost::Wait(Game& game) {
  tick += 50;
  Yield(game);
}

TempFolder::TempFolder() {
  static std::atomic<int> next{0};
  path_ = (fs::temp_directory_path() /
           ("tessaryn-test-" + std::to_string(getpid()) + "-" + std::to_string(next++)))
              .string() +
          "/";
  fs::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

Currency Money(const char* text) { return ParseMoney(text); }

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteFile(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

TestTable::TestTable() : game(StartGame(host, test::kBinFolder, folder.Path())) {}

void TestTable::Check(const char* after) { EXPECT_EQ(CheckConsistency(*game), "") << "after " << after; }

void TestTable::Join(int seat, const std::string& name, const char* bankroll) {
  std::string error;
  EXPECT_TRUE(JoinPlayer(*game, seat, name, Money(bankroll), error)) << error;
  Check("join");
}

Currency TestTable::Bet(int seat, int bet, const char* amount) {
  const Currency change = PlaceBet(*game, seat, bet, Money(amount));
  Check("bet");
  return change;
}

void TestTable::Roll(int die1, int die2) {
  State().ManualDie1 = die1;
  State().ManualDie2 = die2;
  State().ManualRollPending = true;
  RollDice(*game);
  Check("roll");
}

void TestTable::Turbo(std::int64_t rolls) {
  game->settings.RollThrottle = 0;
  host.rollTarget = Throws(game->stats) + rolls;
  ToggleAutoRoll(*game);
  host.rollTarget = 0;
  Check("turbo");
}

void TestTable::Set(const std::string& name, const std::string& value, int seat) {
  std::string error;
  EXPECT_TRUE(SetSetting(*game, name, seat, value, error)) << name << ": " << error;
  Check("set");
}

std::vector<std::string> TestTable::Log() {
  FlushEventsLog(*game);
  return Lines(ReadFile(EventsLogPath(*game)));
}

std::string TestTable::IndexProblem() {
  FlushEventsLog(*game);
  const std::string text = ReadFile(EventsLogPath(*game));
  const std::string index = ReadFile(EventsIndexPath(*game));
  const std::vector<std::string> lines = Lines(text);
  if (index.size() != lines.size() * 4)
    return std::to_string(index.size()) + " bytes of index for " + std::to_string(lines.size()) + " lines";
  std::uint32_t position = 1;
  for (std::size_t line = 0; line < lines.size(); ++line) {
    std::uint32_t record = 0;
    for (std::size_t byte = 0; byte < 4; ++byte)
      record |= static_cast<std::uint32_t>(static_cast<unsigned char>(index[line * 4 + byte])) << (8 * byte);
    if (record != position)
      return "line " + std::to_string(line + 1) + " at " + std::to_string(record) + ", not " +
             std::to_string(position);
    position += static_cast<std::uint32_t>(lines[line].size()) + 1;
  }
  return "";
}

}  // namespace tessaryn::test
