#include "cli/play_terminal.h"

#include <readline/history.h>
#include <readline/readline.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "cli/commands.h"
#include "cli/play_session.h"
#include "cli/script_commands.h"
#include "config/setting_table.h"
#include "engine/bet_catalogue.h"
#include "engine/bet_rules.h"
#include "engine/handling.h"
#include "engine/table_files.h"

namespace tessaryn::cli {
namespace {

std::string WithNewlines(std::string text) {
  std::replace(text.begin(), text.end(), '\r', '\n');
  return text;
}

// A key, or the end of input when a signal wants it.
int ReadKey(std::FILE* input) {
  for (;;) {
    if (Interrupted()) return EOF;
    unsigned char key = 0;
    const ssize_t count = read(fileno(input), &key, 1);
    if (count == 1) return key;
    if (count == 0 || errno != EINTR) return EOF;
    rl_check_signals();  // readline has them while a line is typed, and hands them on
  }
}

// A line typed by the user. False at the end of input, or when a signal came.
bool TypedLine(const std::string& prompt, std::string& line) {
  rl_getc_function = ReadKey;
  char* typed = readline(prompt.c_str());
  if (typed != nullptr) line = typed;
  std::free(typed);
  return typed != nullptr && !Interrupted();
}

// An answer, without the history; empty when there is none.
std::string AskLine(const std::string& prompt) {
  std::string line;
  if (!TypedLine(prompt, line)) return "";
  const auto first = line.find_first_not_of(' ');
  return first == std::string::npos ? "" : line.substr(first, line.find_last_not_of(' ') - first + 1);
}

// Asks the person at the terminal.
class TerminalHost : public PlayHost {
 public:
  void ShowMessage(Game&, MessageBox& box) override {
    std::printf("\n-- %s --\n%s\n", box.MsgTitle.c_str(), WithNewlines(box.MsgText).c_str());
    const bool yesNo = (box.MsgFlags & kMsgYes) != 0;
    const bool input = (box.MsgFlags & kMsgInput) != 0;
    if (!yesNo && !input) {
      box.MsgResult = kResultOk;
      return;
    }
    if (answers.Answer(box)) return;
    if (yesNo && confirmNext && box.MsgText.find("Total to be abandoned") == std::string::npos) {
      box.MsgResult = kResultYes;
      return;
    }
    if (yesNo)
      AskYesNo(box);
    else
      AskValue(box);
  }

  SettleAnswer AskSettlement(Game& game, const SettleQuestion& question) override {
    SettleAnswer answer;
    answer.choice = answers.TakeChoice();
    if (answer.choice != 0) return answer;
    const char* const* captions = question.won ? kWinChoiceCaptions : kLoseChoiceCaptions;
    const int usual = question.won ? int{kWinSame} : int{kLoseTakeDown};
    std::printf("\n%s  %s's %s: $%s %s $%s\n", question.won ? "WINNER" : "LOSER",
                game.table.SeatName[question.seat].c_str(), BetName(question.bet).c_str(),
                FormatMoney(game.table.BetAmount(question.seat, question.bet)).c_str(),
                question.won ? "wins" : "loses", FormatMoney(Abs(question.net)).c_str());
    for (int choice = 1; choice <= 5; ++choice) std::printf("  %d%s\n", choice, captions[choice]);
    const std::string typed = AskLine("What now? [" + std::to_string(usual) + "] ");
    if (typed.size() == 1 && typed[0] >= '1' && typed[0] <= '5') answer.choice = typed[0] - '0';
    return answer;
  }

 private:
  static void AskYesNo(MessageBox& box) {
    const std::string typed = AskLine("yes or no? [no] ");
    box.MsgResult = !typed.empty() && (typed[0] == 'y' || typed[0] == 'Y') ? kResultYes : kResultNo;
  }
  static void AskValue(MessageBox& box) {
    const std::string typed = AskLine("> ");
    box.MsgResult = typed.empty() ? kResultCancel : kResultOk;
    box.MsgEntry = typed;
    TryParseMoney(typed, box.MsgValue1);
  }
};

const char* CallMark(int working) {
  switch (working) {
    case -1:
      return " OFF";
    case 0:
      return " (off)";
    case 2:
      return " ON";
    default:
      return "";
  }
}

constexpr const char* kFaces[7] = {"", "⚀", "⚁", "⚂", "⚃", "⚄", "⚅"};

void DrawSeat(const Game& game, int seat) {
  const TableState& table = game.table;
  std::printf("%c%d %-14s bankroll %12s   on table %10s   rail %12s\n", seat == table.ShooterSeat ? '*' : ' ',
              seat, table.SeatName[seat].c_str(), FormatMoney(table.BankrollCurrent[seat]).c_str(),
              FormatMoney(table.OnTableAmount[seat]).c_str(),
              FormatMoney(table.BankrollCurrent[seat] - table.OnTableAmount[seat]).c_str());
  std::string line;
  const auto flush = [&line] {
    if (!line.empty()) std::printf("     %s\n", line.c_str());
    line.clear();
  };
  table.SeatBets[seat].ForEach([&](int bet) {
    const std::string text = BetName(bet) + " $" + FormatMoney(table.BetAmount(seat, bet)) +
                             CallMark(BetWorkingOf(game, seat, bet));
    if (line.size() + text.size() > 78) flush();
    line += (line.empty() ? "" : "   ") + text;
  });
  flush();
}

void DrawTable(const Game& game) {
  const TableState& table = game.table;
  std::printf("\n%s %s  %d   roll %s   ", kFaces[table.Die1], kFaces[table.Die2], table.RollTotal,
              FormatMoney(Currency::Dollars(SessionRolls(game.stats))).c_str());
  if (table.Point == 0) std::printf("puck OFF");
  for (const int number : kBoxNumbers) {
    if (table.Point == 0) break;
    std::printf(number == table.Point ? "[%d]" : " %d ", number);
  }
  std::printf("\n");
  for (int seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat)) DrawSeat(game, seat);
  if (!table.StopReason.empty()) std::printf("%s\n", WithNewlines(table.StopReason).c_str());
}

// --- Completion: the command, then bets and settings wherever they may stand.

std::vector<std::string> Candidates(const std::string& text, bool firstWord, const std::string& command) {
  std::vector<std::string> words;
  if (firstWord) {
    for (const PlayCommandInfo& info : PlayCommands()) words.emplace_back(info.name);
  } else if (command == "set" || command == "get") {
    for (const SettingName& setting : AllSettings()) words.push_back(setting.name);
  } else {
    for (int bet = 1; bet <= kBets; ++bet) words.emplace_back(FactsOf(bet).scriptName);
  }
  std::erase_if(words, [&text](const std::string& word) { return !word.starts_with(text); });
  return words;
}

char* NextCandidate(const char* text, int state) {
  static std::vector<std::string> candidates;
  static std::size_t next = 0;
  if (state == 0) {
    const std::vector<std::string> words = SplitWords(rl_line_buffer);
    const bool firstWord = words.empty() || (words.size() == 1 && words[0] == text);
    candidates = Candidates(text, firstWord, words.empty() ? "" : words[0]);
    next = 0;
  }
  return next < candidates.size() ? strdup(candidates[next++].c_str()) : nullptr;
}

char** Complete(const char* text, int, int) {
  rl_attempted_completion_over = 1;
  return rl_completion_matches(text, NextCandidate);
}

void PrintHelp() {
  for (const PlayCommandInfo& info : PlayCommands())
    std::printf("  %-34s %s\n", (std::string(info.name) + " " + info.arguments).c_str(), info.help);
  std::printf("  Bets by number or name: 43, passline, place6, hop13 ... Tab completes, arrows recall.\n");
}

// The answer of a command that a person would want to read.
void PrintAnswer(const std::string& command, const Json& answer) {
  if (!answer["ok"].get<bool>()) {
    std::printf("%s\n", WithNewlines(answer["error"].get<std::string>()).c_str());
    return;
  }
  if (command == "get") std::printf("%s\n", answer["value"].dump().c_str());
  if (command == "stats") std::printf("%s\n", answer.dump(2).c_str());
  if (command == "turbo")
    std::printf("%s rolls a second\n",
                FormatMoney(WholePart(Currency::FromDouble(answer["rollsPerSecond"].get<double>()))).c_str());
}

bool ShowsTable(const std::string& command) {
  for (const char* quiet : {"get", "set", "stats", "answer", "help", "quit", "rng", "seed"})
    if (command == quiet) return false;
  return true;
}

// The next command. Ctrl-C drops what was typed, and pressed again at the empty prompt it ends the program:
// it may have been meant for a run that was just over. False at the end.
bool NextLine(std::string& line) {
  bool warned = false;
  while (!TypedLine("table> ", line)) {
    if (NotedSignal() != SIGINT || warned) return false;
    ForgetSignal();
    warned = true;
    std::printf("\nCtrl-C again, Ctrl-D or \"quit\" ends.\n");
  }
  return true;
}

void CarryOut(PlaySession& session, Game& game, const std::string& line) {
  const std::vector<std::string> words = SplitWords(line);
  if (words.empty()) return;
  add_history(line.c_str());
  if (words[0] == "help") return PrintHelp();
  const Json answer = session.Do(line);
  PrintAnswer(words[0], answer);
  if (ShowsTable(words[0])) DrawTable(game);
}

}  // namespace

int PlayTerminal(const TableOptions& options) {
  TerminalHost host;
  const std::unique_ptr<Game> game = SetUpTable(host, options);
  if (!game) return kBad;
  rl_attempted_completion_function = Complete;
  const std::string historyFile = game->dataFolder + "play.history";
  read_history(historyFile.c_str());
  std::printf(
      "Tessaryn. A table without players: \"join 1 Ann 500\", \"bet 1 passline 10\", \"roll\".\n"
      "\"help\" lists the commands, \"quit\" ends.\n");
  PlaySession session(*game, host);
  std::string line;
  while (!session.Ended() && NextLine(line)) {
    CarryOut(session, *game, line);
    // Ctrl-C stopped what was carried out; the table goes on.
    if (NotedSignal() == SIGINT) ForgetSignal();
  }
  std::printf("\n");
  write_history(historyFile.c_str());
  const std::string unwritten = EndGame(*game);
  return unwritten.empty() ? kDone : Fail(AsLines(unwritten));
}

}  // namespace tessaryn::cli
