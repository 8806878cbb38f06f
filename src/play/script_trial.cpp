#include "play/script_trial.h"

#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <utility>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/script_text.h"
#include "autobet/run/interpreter.h"
#include "play/auto_roll.h"
#include "play/copy_game.h"
#include "play/script_help.h"
#include "play/script_session.h"
#include "rules/seed_rng.h"
#include "state/run_stop.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr std::size_t kMostPoints = 400;  // of the bankroll's curve

// Nobody is asked anything: every box gets its safe answer.
struct TrialHost : Host {
  TrialProgress* progress = nullptr;
  std::int64_t before = 0;
  std::int64_t target = 0;
  std::int64_t every = 1;  // rolls between two points of the curve
  SeatId seat = 0;
  TrialResult* result = nullptr;
  std::string said;  // the last box

  void ShowMessage(Game&, MessageBox& box) override {
    said = box.MsgText;
    box.MsgResult = (box.MsgFlags & kMsgNo) != 0       ? kResultNo
                    : (box.MsgFlags & kMsgCancel) != 0 ? kResultCancel
                                                       : kResultOk;
  }
  // Each roll comes by here, and each statement now and then.
  bool Yield(Game& game) override {
    if (progress == nullptr) return false;
    const std::int64_t rolls = Throws(game.stats) - before;
    progress->rolls.store(rolls, std::memory_order_relaxed);
    if (!game.autobet.ScriptRunning) NotePoint(game, rolls);
    const bool enough = rolls >= target && !game.autobet.ScriptRunning;
    if (progress->stop.load(std::memory_order_relaxed)) game.autobet.ScriptRunning = false;
    if ((enough || progress->stop) && game.table.AutoRollActive) StopRun(game, "");
    return false;
  }
  void NotePoint(const Game& game, std::int64_t rolls) const {
    if (result == nullptr || rolls < every * static_cast<std::int64_t>(result->bankrolls.size())) return;
    result->bankrolls.push_back(game.table.BankrollCurrent[seat]);
  }
  std::uint32_t TickMilliseconds() override { return MachineTick(); }
  std::string DateText() override { return {}; }
  std::string TimeText() override { return {}; }
  double SecondsSinceMidnight() override { return 0; }
  double DateTimeNumber() override { return 0; }
};

// Where the scripts of a copy write; gone with it.
struct WorkFolder {
  std::string path;

  WorkFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "trial-XXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) path = name + "/";
  }
  ~WorkFolder() {
    std::error_code gone;
    if (!path.empty()) std::filesystem::remove_all(path, gone);
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
};

std::unique_ptr<Game> CopyApart(const Game& game, Host& host, const std::string& folder) {
  std::unique_ptr<Game> copy = CopyGame(game, host);
  copy->ownFolder = folder;
  AutoBet& autobet = copy->autobet;
  autobet.AllowedOutputFolders.clear();
  autobet.OutputOwners.clear();
  autobet.StepMode = autobet.StepsShown = false;
  autobet.HotKeyRun = autobet.ScriptInitializing = false;
  autobet.BetLogging = false;
  return copy;
}

}  // namespace

struct ScriptTrial::Parts {
  WorkFolder folder;
  TrialHost host;
  std::unique_ptr<Game> game;
  SeatId seat = 0;
};

ScriptTrial::ScriptTrial(const Game& game, SeatId seat, const std::vector<std::string>& lines,
                         std::uint32_t seed)
    : parts_(std::make_unique<Parts>()) {
  parts_->seat = parts_->host.seat = seat;
  parts_->game = CopyApart(game, parts_->host, parts_->folder.path);
  Game& copy = *parts_->game;
  copy.settings.RollThrottle = 0;
  copy.settings.ShooterBetRule = 0;
  SetScript(copy, seat, lines, copy.autobet.Scripts[seat].ScriptFileName);
  SetScriptActive(copy, seat, true);
  bool given = seed != 0;
  if (given) SeedRng(copy, given, Currency::Dollars(seed));
}

ScriptTrial::~ScriptTrial() = default;

namespace {

struct Before {
  std::int64_t won[kBets + 1];
  std::int64_t lost[kBets + 1];
  Currency wins[kBets + 1];
  Currency losses[kBets + 1];
  Currency wagers[kBets + 1];
};

Before FiguresOf(const Game& game, SeatId seat) {
  Before now{};
  const auto stat = [&](StatTable table, BetId bet, StatKind kind) {
    return BetStat(game.stats, table, kAllSessions, seat, bet, kind);
  };
  for (BetId bet = 1; bet <= kBets; ++bet) {
    now.won[bet] = stat(kWinStats, bet, kStatCount).raw / Currency::kPerDollar;
    now.lost[bet] = stat(kLossStats, bet, kStatCount).raw / Currency::kPerDollar;
    now.wins[bet] = stat(kWinStats, bet, kStatTotal);
    now.losses[bet] = stat(kLossStats, bet, kStatTotal);
    now.wagers[bet] = stat(kWagerStats, bet, kStatTotal);
  }
  return now;
}

Currency Size(Currency amount) { return amount < kZero ? -amount : amount; }

void TellBets(const Before& before, const Before& now, TrialResult& result) {
  for (BetId bet = 1; bet <= kBets; ++bet) {
    TrialBet row{bet, now.won[bet] - before.won[bet], now.lost[bet] - before.lost[bet],
                 now.wagers[bet] - before.wagers[bet], kZero};
    row.net = now.wins[bet] - before.wins[bet] - Size(now.losses[bet] - before.losses[bet]);
    if (row.won + row.lost == 0) continue;
    result.net += row.net;
    result.wagered += row.wagered;
    result.bets.push_back(row);
  }
}

}  // namespace

TrialResult ScriptTrial::Run(std::int64_t rolls, TrialProgress& progress, bool counted) {
  TrialResult result;
  ScriptWatch watch;
  watch.profile = true;
  Game& game = *parts_->game;
  TrialHost& host = parts_->host;
  const auto start = std::chrono::steady_clock::now();
  if (!InitialiseScripts(game)) {
    result.problem = host.said;
    return result;
  }
  if (counted) WatchScripts(game, &watch);
  host.before = Throws(game.stats);
  host.target = rolls;
  host.every = std::max<std::int64_t>(1, rolls / static_cast<std::int64_t>(kMostPoints));
  host.progress = &progress;
  host.result = &result;
  const Before before = FiguresOf(game, parts_->seat);
  result.bankrolls.push_back(game.table.BankrollCurrent[parts_->seat]);
  ToggleAutoRoll(game);
  host.progress = nullptr;
  if (counted) WatchScripts(game, nullptr);
  result.lines = std::move(watch.lines[parts_->seat]);
  result.rolls = Throws(game.stats) - host.before;
  result.stopped = progress.stop;
  result.stopReason = game.table.StopReason;
  result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  if (result.rolls == 0) result.problem = result.stopReason.empty() ? host.said : result.stopReason;
  TellBets(before, FiguresOf(game, parts_->seat), result);
  result.errors = game.autobet.Scripts[parts_->seat].Errors;
  return result;
}

namespace {

constexpr int kWorkStack = kCheckStacks - 1;

bool RunLine(Game& game, SeatId seat, const std::string& line) {
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  if (!CompileAutobets(seat, {line}, SurroundingsOf(game), script, diagnostic)) return false;
  SetScript(game, seat, {line}, "");
  CompileActiveScripts(game);
  if (!game.autobet.ScriptsCompiled) return false;
  RunAutoBet(game);
  return game.autobet.Scripts[seat].Errors.empty();
}

// Written to the last CheckStack of the copy, which is set back for the next one.
std::string ValueOf(Game& game, SeatId seat, const std::string& expression) {
  const BetId bet = kFirstCheckStack + kWorkStack;
  const Currency amount = game.table.BetAmount(seat, bet);
  const std::string name = game.table.seats[seat].CheckStackName[kWorkStack];
  const std::string stack = std::to_string(kWorkStack) + " = (" + expression + ")";
  std::string value;
  if (RunLine(game, seat, "cs" + stack)) {
    value = PlainMoney(game.table.BetAmount(seat, bet));
  } else if (RunLine(game, seat, "csn" + stack)) {
    value = "\"" + game.table.seats[seat].CheckStackName[kWorkStack] + "\"";
  }
  game.table.seats[seat].CheckStackName[kWorkStack] = name;
  RunLine(game, seat, "cs" + std::to_string(kWorkStack) + " = " + PlainMoney(amount));
  return value;
}

}  // namespace

std::vector<std::string> PresentValues(const Game& game, SeatId seat,
                                       const std::vector<std::string>& expressions) {
  std::vector<std::string> values(expressions.size());
  if (expressions.empty() || !IsOccupied(game.table, seat)) return values;
  TrialHost host;
  const std::unique_ptr<Game> copy = CopyApart(game, host, {});
  for (SeatId other = 0; other < kSeatRows; ++other) copy->autobet.ScriptActive[other] = false;
  SetScriptActive(*copy, seat, true);
  for (std::size_t n = 0; n < expressions.size(); ++n) {
    // Nothing but an expression: no second statement, no comment that swallows the bracket.
    if (expressions[n].find_first_of(":'") == std::string::npos)
      values[n] = ValueOf(*copy, seat, expressions[n]);
  }
  return values;
}

namespace {

// Where a function that begins at a byte ends, its brackets included.
int EndOfCall(const std::string& line, int at, int end) {
  int depth = 0;
  for (; at < end; ++at) {
    if (line[static_cast<std::size_t>(at)] == '(') ++depth;
    if (line[static_cast<std::size_t>(at)] == ')' && --depth == 0) return at + 1;
  }
  return end;
}

std::string TextOf(const ScriptWord& word, const std::string& line) {
  return Lowered(
      line.substr(static_cast<std::size_t>(word.begin), static_cast<std::size_t>(word.end - word.begin)));
}

bool Belongs(const std::string& line, const ScriptWord& behind) {
  return behind.kind == ScriptWordKind::kPlayer || behind.kind == ScriptWordKind::kModifier ||
         TextOf(behind, line).starts_with("player");
}

// From behind "if" to "then".
bool FindCondition(const std::vector<ScriptWord>& words, const std::string& line, int& begin, int& end) {
  bool found = false;
  for (const ScriptWord& word : words) {
    const std::string text = TextOf(word, line);
    if (word.kind == ScriptWordKind::kKeyword && !found && (text == "if" || text == "else if")) {
      found = true;
      begin = word.end;
      end = static_cast<int>(line.size());
    } else if (found && (text == "then" || word.kind == ScriptWordKind::kComment)) {
      end = word.begin;
      break;
    }
  }
  return found;
}

}  // namespace

std::string ConditionValues(const Game& game, SeatId seat, const std::string& line) {
  const std::vector<ScriptWord> words = ScriptWords({line}, SurroundingsOf(game));
  int at = 0, end = 0;
  if (!FindCondition(words, line, at, end)) return {};
  std::vector<std::string> operands;
  for (std::size_t n = 0; n < words.size(); ++n) {
    const ScriptWord& word = words[n];
    if (word.begin < at || word.begin >= end) continue;
    const bool call =
        word.kind == ScriptWordKind::kFunction && line[static_cast<std::size_t>(word.end)] == '(';
    if (!call && word.kind != ScriptWordKind::kVariable && word.kind != ScriptWordKind::kBet) continue;
    at = call ? EndOfCall(line, word.begin, end) : word.end;
    // Whose it is, and of which rolls, stands behind.
    for (; n + 1 < words.size() && Belongs(line, words[n + 1]) && words[n + 1].begin < end; ++n)
      at = std::max(at, words[n + 1].end);
    const std::string operand(Trimmed(
        line.substr(static_cast<std::size_t>(word.begin), static_cast<std::size_t>(at - word.begin))));
    if (std::find(operands.begin(), operands.end(), operand) == operands.end()) operands.push_back(operand);
  }
  const std::vector<std::string> values = PresentValues(game, seat, operands);
  std::string text;
  for (std::size_t n = 0; n < operands.size(); ++n)
    if (!values[n].empty()) text += (text.empty() ? "" : ", ") + operands[n] + " " + values[n];
  return text;
}

}  // namespace tessaryn
