// The words of the table, checked once against data/messages.txt: all else decides by ids and arguments.
#include "base/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "state/show_message.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

// The lines of the file that say something, with their line ends.
std::vector<std::string> WordingLines() {
  std::vector<std::string> lines;
  for (std::string line :
       test::Lines(test::ReadFile(std::string(test::kSourceFolder) + "/tests/data/messages.txt"))) {
    if (line.empty() || line[0] == '#') continue;
    for (std::size_t at = 0; (at = line.find("\\r", at)) != std::string::npos;) line.replace(at, 2, "\r");
    lines.push_back(line);
  }
  return lines;
}

// The quoted text at a line's end; what stands before it stays.
std::string TakeText(std::string& line) {
  const std::size_t quote = line.find('"');
  const std::string text = line.substr(quote + 1, line.size() - quote - 2);
  line.resize(quote);
  return text;
}

TEST(Messages, EveryNumberHasTheTextToldForItAndTheOthersNone) {
  std::map<int, std::string> told;
  for (std::string line : WordingLines()) {
    const std::string text = TakeText(line);
    if (const int number = std::atoi(line.c_str()); number > 0) told[number] = text;
  }
  EXPECT_EQ(told.size(), 84u);
  for (int id = -1; id <= 1100; ++id) EXPECT_EQ(GetMessage(0, id), told.contains(id) ? told[id] : "") << id;
}

TEST(Messages, EachLanguageHasEveryToldTextWithItsBlanksAndLetters) {
  EXPECT_EQ(GetMessage(4, 1), "Bir oyuncu eklemek için raydaki açik bir pozisyona tiklayin.");
  EXPECT_EQ(GetMessage(1, 1), "Haga clic en una posición abierta en el riel para agregar un jugador.");
  for (const int outside : {-1, 5, 99}) EXPECT_EQ(GetMessage(outside, 132), "Jump to Tessaryn' home folder?");
  for (int language = 1; language < kMessageLanguages; ++language)
    for (int id = -1; id <= 1100; ++id) {
      const std::string english(GetMessage(0, id));
      const std::string text(GetMessage(language, id));
      EXPECT_EQ(text.empty(), english.empty()) << id;
      if (english.empty()) continue;
      EXPECT_EQ(std::count(text.begin(), text.end(), '&'), std::count(english.begin(), english.end(), '&'))
          << text;
      EXPECT_EQ(text.ends_with('$'), english.ends_with('$')) << text;
      EXPECT_TRUE(!english.ends_with(' ') || text.ends_with(' ')) << text;
    }
  // Parts of others come along; what isn't told stays English, and names as they were entered.
  EXPECT_EQ(MessageTextIn(2, Msg::kNameTaken, ArgumentsOf(With<"name">("Ömer"))),
            "Es gibt schon einen Spieler namens Ömer.");
  EXPECT_EQ(MessageTextIn(3, Msg::kNoSuchSeat, ArgumentsOf(With<"seat">(9))),
            "There is no seat 9; seats are 1 to 8.");
}

MessageValue ValueOf(const std::string& text) {
  if (text.find('$') < 2) return ParseMoney(text);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos
             ? MessageValue(std::stoi(text))
             : MessageValue(text);
}

TEST(Messages, BoxesAndReasonsHaveTheirWords) {
  std::map<std::string, Msg> ids;
  for (const MessageRow& row : kMessages) ids[test::NameOf(row.id)] = row.id;
  std::set<std::string> holes;  // their names live as long as the arguments
  int checked = 0;
  for (std::string line : WordingLines()) {
    if (line[0] != 'k') continue;
    const std::string text = TakeText(line);
    const std::size_t bar = line.find(" | ");
    const std::string title = line.substr(bar + 3, line.size() - bar - 6);
    line.resize(bar);
    const std::size_t end = std::min(line.find(';'), line.size());
    const std::string name = line.substr(0, end);
    ASSERT_TRUE(ids.contains(name)) << name;
    std::vector<MessageArgument> arguments;
    for (std::size_t at = end; at < line.size();) {
      const std::size_t next = std::min(line.find(';', at + 1), line.size());
      const std::size_t equals = line.find('=', at);
      arguments.push_back({*holes.insert(line.substr(at + 2, equals - at - 2)).first,
                           ValueOf(line.substr(equals + 1, next - equals - 1))});
      at = next;
    }
    const MessageRow& row = RowOf(ids[name]);
    const bool note = row.text.starts_with("{player},\r\r");
    if (note) arguments.push_back({"player", "Ann"});
    EXPECT_EQ(MessageText(row.id, arguments), (note ? "Ann,\r\r" : "") + text) << name;
    EXPECT_EQ(MessageText(row.title, arguments), title) << name;
    ++checked;
  }
  EXPECT_GT(checked, 100);
}

TEST(Messages, NoTextStandsInTwoRows) {
  std::set<std::pair<Msg, std::string_view>> texts;
  for (const MessageRow& row : kMessages)
    EXPECT_TRUE(row.text.size() < 30 || texts.insert({row.title, row.text}).second) << row.text;
}

TEST(Messages, PatternsChooseAndHold) {
  const auto text = [](Msg id, int come, bool line) {
    return MessageText(id, {{"come", come}, {"passline", line}, {"player", "{name}"}, {"total", kZero}});
  };
  EXPECT_NE(text(Msg::kAskAbandon, 1, true).find("bet and an active Come bet \r"), std::string::npos);
  EXPECT_NE(text(Msg::kAskAbandon, 0, true).find("{name} still"), std::string::npos)
      << "a name stays as entered";
  EXPECT_EQ(MessageText(Msg::kDicePassedBack, {{"from", "Ann"}}),
            "Ann is passing the dice back to {to} who originally started this hand.");
}

// --- Boxes.

TEST(Messages, ABoxHasTheButtonsOfItsKindAndTellsItsIdAndArguments) {
  test::TestTable table;
  Game& game = *table.game;
  table.host.answers = {"yes"};
  EXPECT_TRUE(Confirms<Msg::kAskMatchHouseOf>(game, With<"player">("Ann")));
  EXPECT_TRUE(table.host.Said(Msg::kAskMatchHouseOf, {{"player", "Ann"}}));
  EXPECT_FALSE(table.host.Said(Msg::kAskMatchHouseOf, {{"player", "Bob"}}));
  EXPECT_FALSE(table.host.Said(Msg::kAskMatchHouse));
  const std::pair<Msg, std::uint32_t> flags[] = {
      {Msg::kAutoRollStopped, kMsgOk | kMsgAlert},
      {Msg::kErrorReported, kMsgOk | kMsgStop},
      {Msg::kKeys, kMsgOk | kMsgDice},
      {Msg::kCalculating, kMsgCentred},
      {Msg::kAskDeleteSessions, kMsgOk | kMsgCancel | kMsgTwoInputs | kMsgQuestion},
      {Msg::kAskAddPlayer, kMsgYes | kMsgNo | kMsgQuestion},
      {Msg::kAskRewind, kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion},
      {Msg::kAskSeed, kMsgOk | kMsgCancel | kMsgInput | kMsgQuestion},
      {Msg::kAskBeginningBankroll, kMsgOk | kMsgInput | kMsgQuestion},
      {Msg::kAskPlayerName, kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgQuestion}};
  for (const auto& [id, wanted] : flags) {
    ShowMessage(game, id, {});
    EXPECT_EQ(table.host.boxes.back().flags, wanted) << table.host.LastText();
  }
}

}  // namespace
}  // namespace tessaryn
