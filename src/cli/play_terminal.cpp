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

#include "autobet/language/characters.h"
#include "autobet/language/script_text.h"
#include "autobet/run/interpreter.h"
#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "cli/commands.h"
#include "cli/play_session.h"
#include "cli/report_command.h"
#include "cli/script_commands.h"
#include "cli/script_report.h"
#include "play/hot_keys.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "rules/bet_rules.h"
#include "rules/check_stacks.h"
#include "rules/handling.h"

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

// The check of a seat's script; false for a bad one, with its lines marked.
bool TellCheck(const Game& game, SeatId seat, bool alsoGood) {
  const SeatScript& script = game.autobet.Scripts[seat];
  const ScriptCheck check = CheckLines(SurroundingsOf(game), seat, script.ScriptLines);
  const std::string name = script.ScriptFileName.empty() ? "hot-key" : script.ScriptFileName;
  if (!check.ok || alsoGood) std::fputs(CheckReport(name, script.ScriptLines, check).c_str(), stdout);
  return check.ok;
}

// Asks the person at the terminal.
class TerminalHost : public PlayHost {
 public:
  void ShowMessage(Game& game, MessageBox& box) override {
    std::printf("\n-- %s --\n%s\n", box.MsgTitle.c_str(), WithNewlines(box.MsgText).c_str());
    TellBadScripts(game, box.MsgId);
    const bool yesNo = (box.MsgFlags & kMsgYes) != 0;
    const bool input = (box.MsgFlags & kMsgInput) != 0;
    if (!yesNo && !input) {
      box.MsgResult = kResultOk;
      return;
    }
    if (answers.Answer(box)) return;
    if (yesNo && MayConfirm(box)) {
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
                game.table.seats[question.seat].SeatName.c_str(), BetName(question.bet).c_str(),
                FormatMoney(game.table.BetAmount(question.seat, question.bet)).c_str(),
                question.won ? "wins" : "loses", FormatMoney(Abs(question.net)).c_str());
    for (int choice = 1; choice <= 5; ++choice) std::printf("  %d%s\n", choice, captions[choice]);
    const std::string typed = AskLine("What now? [" + std::to_string(usual) + "] ");
    if (typed.size() == 1 && typed[0] >= '1' && typed[0] <= '5') answer.choice = typed[0] - '0';
    return answer;
  }

  // The statement once, and under it what came of it.
  void TellStep(Game& game, const ScriptStep& shown) override {
    const std::vector<std::string>& lines = game.autobet.Scripts[shown.seat].ScriptLines;
    const auto line = static_cast<std::size_t>(shown.line);
    if (shown.seat != stepSeat_ || shown.line != stepLine_)
      std::printf("%s, line %d: %s\n",
                  shown.seat == 0 ? "Hot-key" : game.table.seats[shown.seat].SeatName.c_str(), shown.line,
                  line >= 1 && line <= lines.size() ? std::string(Trimmed(lines[line - 1])).c_str() : "");
    stepSeat_ = shown.seat;
    stepLine_ = shown.line;
    std::string text = shown.text;
    std::replace(text.begin(), text.end(), '\r', ' ');
    std::printf("    %s%s\n", text.c_str(),
                shown.error == 0 ? "" : (" (error " + std::to_string(shown.error) + ")").c_str());
  }
  // Ahead of the next command's steps nothing was told yet.
  void ForgetSteps() { stepLine_ = 0; }

 private:
  // The window has a button that shows the error; here it is told at once.
  static void TellBadScripts(const Game& game, Msg told) {
    if (told == Msg::kHotKeyBad) TellCheck(game, 0, false);
    for (SeatId seat = 1; seat <= kSeats && told == Msg::kScriptBad; ++seat)
      if (game.autobet.ScriptActive[seat]) TellCheck(game, seat, false);
  }
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

  SeatId stepSeat_ = 0;
  int stepLine_ = 0;
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

// What a seat has, several on a line.
class IndentedList {
 public:
  void Add(const std::string& text) {
    if (line_.size() + text.size() > 78) Flush();
    line_ += (line_.empty() ? "" : "   ") + text;
  }
  void Flush() {
    if (!line_.empty()) std::printf("     %s\n", line_.c_str());
    line_.clear();
  }

 private:
  std::string line_;
};

constexpr const char* kFaces[7] = {"", "⚀", "⚁", "⚂", "⚃", "⚄", "⚅"};

constexpr std::size_t kMostOfName = 40;

void DrawSeat(const Game& game, SeatId seat) {
  const TableState& table = game.table;
  std::printf("%c%d %-14s bankroll %12s   on table %10s   rail %12s\n", seat == table.ShooterSeat ? '*' : ' ',
              seat.value, table.seats[seat].SeatName.c_str(),
              FormatMoney(table.BankrollCurrent[seat]).c_str(),
              FormatMoney(table.seats[seat].OnTableAmount).c_str(),
              FormatMoney(table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount).c_str());
  IndentedList list;
  table.seats[seat].SeatBets.ForEach([&](BetId bet) {
    list.Add(BetName(bet) + " $" + FormatMoney(table.BetAmount(seat, bet)) +
             CallMark(BetWorkingOf(game, seat, bet)));
  });
  list.Flush();
  for (int stack = 0; stack < kCheckStacks; ++stack) {
    const std::string name = CheckStackNameOf(game, seat, stack);
    if (name.empty() && CheckStackValue(game, seat, stack) == kZero) continue;
    const std::string shown = name.substr(0, CharacterStart(name, kMostOfName));
    list.Add("cs" + std::to_string(stack) + (name.empty() ? "" : " " + Shown(shown)) + " = " +
             FormatMoney(CheckStackValue(game, seat, stack)));
  }
  list.Flush();
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
  for (SeatId seat = 1; seat <= kSeats; ++seat)
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
  } else if (command == "report") {
    words = ReportWords();
  } else {
    for (BetId bet = 1; bet <= kBets; ++bet) words.emplace_back(FactsOf(bet).scriptName);
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

// The check of the script that a command loads or activates; whether it was told.
bool PrintScriptCheck(const Game& game, const std::vector<std::string>& words, const Json& answer) {
  const bool loads = words[0] == "script" && answer["ok"].get<bool>();
  if (!loads && words[0] != "activate") return false;
  if (words.size() < 2 || words[1].size() != 1 || words[1][0] < '1' || words[1][0] > '8') return false;
  const SeatId seat = words[1][0] - '0';
  return IsOccupied(game.table, seat) && (!TellCheck(game, seat, loads) || loads);
}

// The kinds of run-time errors that are new since the last command.
class ErrorTeller {
 public:
  void TellNew(const Game& game) {
    for (SeatId seat = 0; seat <= kSeats; ++seat) {
      const std::vector<ScriptErrorKind>& errors = game.autobet.Scripts[seat].Errors;
      if (errors.size() < told_[seat]) told_[seat] = 0;
      for (; told_[seat] < errors.size(); ++told_[seat])
        std::printf("%s: %s\n",
                    seat == 0 ? "Hot-key" : (game.table.seats[seat].SeatName + "'s script").c_str(),
                    ErrorReport(errors[told_[seat]]).c_str());
    }
  }

  // Each run of a hot-key has its own errors.
  void ForgetHotKey() { told_[0] = 0; }

 private:
  std::size_t told_[kSeatRows] = {};
};

// The answer of a command that a person would want to read.
void PrintAnswer(const std::string& command, const Json& answer) {
  if (!answer["ok"].get<bool>()) {
    std::printf("%s\n", WithNewlines(answer["error"].get<std::string>()).c_str());
    return;
  }
  if (command == "get") std::printf("%s\n", answer["value"].dump().c_str());
  if (command == "stats") std::printf("%s\n", answer.dump(2).c_str());
  if (command == "errors")
    for (const Json& error : answer["errors"])
      std::printf("seat %d: %lld x error %d in line %d: %s\n    %s\n", error["seat"].get<int>(),
                  error["count"].get<long long>(), error["code"].get<int>(), error["line"].get<int>(),
                  WithNewlines(error["text"].get<std::string>()).c_str(),
                  error["statement"].get<std::string>().c_str());
  if (command == "turbo")
    std::printf("%s rolls a second\n",
                FormatMoney(WholePart(Currency::FromDouble(answer["rollsPerSecond"].get<double>()))).c_str());
}

// The same table as the answer has, laid out to be read; whether there is one.
bool PrintReport(const Game& game, const std::vector<std::string>& words, const std::string& date) {
  ReportTable report;
  std::string error;
  if (words[0] != "report" || !ReportOf(game, words, report, error)) return false;
  std::printf("\n%s", ReportAsText(report, date).c_str());
  return true;
}

bool ShowsTable(const std::string& command) {
  for (const char* quiet :
       {"get", "set", "stats", "report", "answer", "errors", "help", "quit", "rng", "seed"})
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

void CarryOut(PlaySession& session, TerminalHost& host, Game& game, ErrorTeller& errors,
              const std::string& line) {
  const std::vector<std::string> words = SplitWords(line);
  if (words.empty()) return;
  add_history(line.c_str());
  if (words[0] == "help") return PrintHelp();
  host.ForgetSteps();
  if (words[0] == "hotkey") errors.ForgetHotKey();
  const Json answer = session.Do(line);
  if (!PrintScriptCheck(game, words, answer) && !PrintReport(game, words, host.DateText()))
    PrintAnswer(words[0], answer);
  errors.TellNew(game);
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
  ErrorTeller errors;
  std::string line;
  while (!session.Ended() && NextLine(line)) {
    CarryOut(session, host, *game, errors, line);
    // Ctrl-C stopped what was carried out; the table goes on.
    if (NotedSignal() == SIGINT) ForgetSignal();
  }
  std::printf("\n");
  write_history(historyFile.c_str());
  return EndTable(*game, options) ? kDone : kBad;
}

}  // namespace tessaryn::cli
