#include "cli/play_session.h"

#include <unistd.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "base/bet_catalogue.h"
#include "base/messages.h"
#include "cli/refusals.h"
#include "cli/report_command.h"
#include "cli/script_commands.h"
#include "cli/table_setup.h"
#include "dice/generators.h"
#include "dice/percentage_dice.h"
#include "dice/roll_file.h"
#include "play/auto_roll.h"
#include "play/bet_history.h"
#include "play/game_file.h"
#include "play/house_presets.h"
#include "play/players.h"
#include "play/repeat_bets.h"
#include "play/script_session.h"
#include "play/session_luck.h"
#include "play/setting_table.h"
#include "rules/bankroll.h"
#include "rules/bet_rules.h"
#include "rules/seed_rng.h"
#include "rules/session.h"
#include "rules/shooter.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"

namespace tessaryn::cli {

std::vector<std::string> SplitWords(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false;
  bool any = false;
  for (const char c : line) {
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if ((c == ' ' || c == '\t') && !quoted) {
      if (any || !word.empty()) words.push_back(word);
      word.clear();
      any = false;
    } else {
      word += c;
    }
  }
  if (any || !word.empty()) words.push_back(word);
  return words;
}

bool PlayHost::MayConfirm(const MessageBox& box) const {
  return confirmNext && box.MsgId != Msg::kAskAbandon;
}

void PlayHost::TellStep(Game&, const ScriptStep& shown) {
  Json object{{"seat", shown.seat}, {"line", shown.line}, {"text", shown.text}};
  if (shown.error != 0) object["error"] = shown.error;
  const Json line{{"step", object}};
  std::printf("%s\n", line.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
}

void PipeHost::ShowMessage(Game&, MessageBox& box) {
  const Json message{{"message", {{"title", box.MsgTitle}, {"text", box.MsgText}}}};
  std::printf("%s\n", message.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
  std::fflush(stdout);
  const bool question = (box.MsgFlags & (kMsgYes | kMsgNo | kMsgCancel | kMsgInput)) != 0;
  if (question && answers.Answer(box)) return;
  SafeAnswer(box);
  if (question && MayConfirm(box)) box.MsgResult = kResultYes;
}

SettleAnswer PipeHost::AskSettlement(Game& game, const SettleQuestion& question) {
  SettleAnswer answer;
  answer.choice = answers.TakeChoice();
  if (answer.choice == 0) return answer;
  const std::string text = game.table.seats[question.seat].SeatName + ": " + BetName(question.bet) + " $" +
                           FormatMoney(game.table.BetAmount(question.seat, question.bet)) +
                           (question.won ? " wins $" : " loses $") + FormatMoney(Abs(question.net));
  const Json message{{"message", {{"title", question.won ? "WINNER" : "LOSER"}, {"text", text}}}};
  std::printf("%s\n", message.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
  return answer;
}

namespace {

using Words = std::vector<std::string>;

// What a command works on. Errors are thrown no further than Do: a handler returns them as text.
struct Call {
  Game& game;
  PlayHost& host;
  BetHistory& history;
  const Words& words;  // words[0] is the command
  Json answer = Json::object();
  std::string error;
  bool ended = false;

  bool Bad(const std::string& what) {
    error = what;
    return false;
  }
};

bool ReadInt(const std::string& text, int& value) {
  const char* last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data(), last, value);
  return fault == std::errc() && end == last;
}

bool SeatNumber(Call& call, std::size_t at, SeatId& seat) {
  if (at >= call.words.size()) return call.Bad("a seat 1 to 8 is missing");
  if (!ReadInt(call.words[at], seat.value) || seat < 1 || seat > kSeats)
    return call.Bad(NoSeat(call.words[at]));
  return true;
}

bool Player(Call& call, std::size_t at, SeatId& seat) {
  if (!SeatNumber(call, at, seat)) return false;
  if (!IsOccupied(call.game.table, seat)) return call.Bad(NobodyAtSeat(std::to_string(seat)));
  return true;
}

bool Amount(Call& call, std::size_t at, Currency& amount) {
  if (at >= call.words.size()) return call.Bad("an amount is missing");
  if (!TryParseMoney(call.words[at], amount)) return call.Bad(NoAmount(call.words[at]));
  return true;
}

std::string Joined(const Words& words, std::size_t first, std::size_t last) {
  std::string text;
  for (std::size_t i = first; i < last; ++i) text += (text.empty() ? "" : " ") + words[i];
  return text;
}

// The bet that the words first to last name; up to 93, or CheckStacks as well.
bool BetNumber(Call& call, std::size_t first, std::size_t last, bool stacks, BetId& bet) {
  if (first >= last) return call.Bad("a bet is missing");
  const std::string name = Joined(call.words, first, last);
  bet = BetByName(name);
  if (bet == 0 || (!stacks && !IsTableBet(bet)))
    return call.Bad("\"" + name + "\" is no bet; bets are 1 to " + std::to_string(kBets) +
                    ", or names such as passline or place6");
  return true;
}

bool WantWords(Call& call, std::size_t least, std::size_t most, const char* usage) {
  if (call.words.size() >= least && call.words.size() <= most) return true;
  return call.Bad(std::string("expected: ") + usage);
}

bool Join(Call& call) {
  SeatId seat = 0;
  Currency bankroll;
  if (!WantWords(call, 4, 99, "join SEAT NAME BANKROLL") || !SeatNumber(call, 1, seat) ||
      !Amount(call, call.words.size() - 1, bankroll))
    return false;
  const std::string name = Joined(call.words, 2, call.words.size() - 1);
  return JoinPlayer(call.game, seat, name, bankroll, call.error);
}

bool Leave(Call& call) {
  SeatId seat = 0;
  if (!WantWords(call, 2, 2, "leave SEAT") || !Player(call, 1, seat)) return false;
  const SeatId selected = call.game.table.SelectedSeat;
  call.game.table.SelectedSeat = seat;
  call.host.confirmNext = true;
  const bool left = RemovePlayer(call.game);
  call.host.confirmNext = false;
  if (selected != seat && IsOccupied(call.game.table, selected)) call.game.table.SelectedSeat = selected;
  if (!left) call.error = "the player stays; queue \"answer yes\" to abandon contract bets";
  return left;
}

bool Rename(Call& call) {
  SeatId seat = 0;
  if (!WantWords(call, 3, 99, "rename SEAT NAME") || !Player(call, 1, seat)) return false;
  return RenameTo(call.game, seat, Joined(call.words, 2, call.words.size()), call.error);
}

bool Move(Call& call) {
  SeatId from;
  SeatId to;
  if (!WantWords(call, 3, 3, "move SEAT SEAT") || !Player(call, 1, from) || !SeatNumber(call, 2, to))
    return false;
  return MovePlayer(call.game, from, to, call.error);
}

bool Select(Call& call) {
  SeatId seat = 0;
  if (!WantWords(call, 2, 2, "select SEAT") || !Player(call, 1, seat)) return false;
  SelectSeat(call.game, seat);
  return true;
}

bool MakeBet(Call& call) {
  SeatId seat = 0;
  BetId bet = 0;
  Currency amount;
  if (!WantWords(call, 4, 99, "bet SEAT BET AMOUNT") || !Player(call, 1, seat) ||
      !BetNumber(call, 2, call.words.size() - 1, true, bet) || !Amount(call, call.words.size() - 1, amount))
    return false;
  call.answer["change"] = MoneyJson(PlaceBet(call.game, seat, bet, amount));
  call.answer["amount"] = MoneyJson(call.game.table.BetAmount(seat, bet));
  return true;
}

bool Remove(Call& call) {
  SeatId seat = 0;
  BetId bet = 0;
  if (!WantWords(call, 3, 99, "remove SEAT BET") || !Player(call, 1, seat) ||
      !BetNumber(call, 2, call.words.size(), true, bet))
    return false;
  call.answer["change"] = MoneyJson(RemoveBet(call.game, seat, bet));
  call.answer["amount"] = MoneyJson(call.game.table.BetAmount(seat, bet));
  return true;
}

bool Undo(Call& call) {
  if (!WantWords(call, 1, 1, "undo")) return false;
  return UndoBets(call.game, call.history) || call.Bad("no bet has been changed since the last roll");
}

bool Redo(Call& call) {
  if (!WantWords(call, 1, 1, "redo")) return false;
  return RedoBets(call.game, call.history) || call.Bad("nothing was taken back");
}

bool Repeat(Call& call) {
  SeatId seat = call.game.table.SelectedSeat;
  if (!WantWords(call, 1, 2, "repeat [SEAT]")) return false;
  if (call.words.size() == 2 && !Player(call, 1, seat)) return false;
  if (BetsToRepeat(call.game, seat).Empty()) return call.Bad("every bet of the last roll is up");
  call.answer["bets"] = RepeatBets(call.game, seat);
  return true;
}

bool CallOnOff(Call& call) {
  SeatId seat = 0;
  BetId bet = 0;
  if (!WantWords(call, 4, 99, "call SEAT on|off BET") || !Player(call, 1, seat)) return false;
  const std::string& word = call.words[2];
  if (word != "on" && word != "off") return call.Bad(NeitherOnNorOff(word));
  if (call.words[3] == "all") {
    CallAllBets(call.game, seat, word == "on");
    return true;
  }
  if (!BetNumber(call, 3, call.words.size(), false, bet)) return false;
  if (!CallBet(call.game, seat, bet, word == "on"))
    return call.Bad("the " + BetName(bet) + " bet can't be called ON or OFF");
  call.answer["working"] = BetWorkingOf(call.game, seat, bet);
  return true;
}

bool Buy(Call& call) {
  SeatId seat = 0;
  BetId bet = 0;
  if (!WantWords(call, 3, 99, "buy SEAT BET") || !Player(call, 1, seat) ||
      !BetNumber(call, 2, call.words.size(), false, bet))
    return false;
  if (!BuyPlaceBet(call.game, seat, bet)) return call.Bad("You may only buy Place bets.");
  return true;
}

void AnswerWithRoll(Call& call, std::int64_t throwsBefore) {
  const Game& game = call.game;
  call.answer["rolls"] = SessionRolls(game.stats);
  call.answer["rolled"] = Throws(game.stats) - throwsBefore;
  call.answer["die1"] = game.table.Die1;
  call.answer["die2"] = game.table.Die2;
  call.answer["total"] = game.table.RollTotal;
  call.answer["point"] = game.table.Point;
  if (!game.table.StopReason.empty()) call.answer["stopReason"] = game.table.StopReason;
}

bool Roll(Call& call) {
  TableState& table = call.game.table;
  if (call.words.size() != 1 && !WantWords(call, 3, 3, "roll, or roll DIE1 DIE2")) return false;
  if (call.words.size() == 3) {
    int faces[2] = {0, 0};
    for (int i = 0; i < 2; ++i)
      if (!ReadInt(call.words[1 + i], faces[i]) || faces[i] < 1 || faces[i] > 6)
        return call.Bad("\"" + call.words[1 + i] + "\" is no face of a die; faces are 1 to 6");
    table.ManualDie1 = faces[0];
    table.ManualDie2 = faces[1];
    table.ManualRollPending = true;
  }
  const std::int64_t before = Throws(call.game.stats);
  RollDice(call.game);
  table.ManualRollPending = false;
  AnswerWithRoll(call, before);
  if (Throws(call.game.stats) == before)
    return call.Bad(table.StopReason.empty() ? kNothingRolled : table.StopReason);
  return true;
}

bool Turbo(Call& call) {
  Currency rolls;
  if (!WantWords(call, 2, 2, "turbo ROLLS") || !Amount(call, 1, rolls)) return false;
  if (!rolls.IsWhole() || rolls < Currency::Dollars(1) || rolls > Currency::Dollars(kMaxRolls))
    return call.Bad("\"" + call.words[1] + "\" is no number of rolls; 1 to 2,000,000,000");
  const std::int64_t before = Throws(call.game.stats);
  call.host.rollTarget = before + rolls.raw / Currency::kPerDollar;
  const int throttle = call.game.settings.RollThrottle;
  if (throttle == kThrottleAutoRoll) call.game.settings.RollThrottle = 0;
  const auto start = std::chrono::steady_clock::now();
  ToggleAutoRoll(call.game);
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  call.game.settings.RollThrottle = throttle;
  call.host.rollTarget = 0;
  AnswerWithRoll(call, before);
  call.answer["seconds"] = seconds;
  call.answer["rollsPerSecond"] =
      seconds > 0 ? static_cast<double>(Throws(call.game.stats) - before) / seconds : 0.0;
  return true;
}

bool Pass(Call& call) {
  if (!WantWords(call, 1, 1, "pass")) return false;
  PassDice(call.game, kPassByUser);
  call.answer["shooter"] = call.game.table.ShooterSeat;
  return true;
}

bool Rng(Call& call) {
  int number = 0;
  if (!WantWords(call, 2, 2, "rng 1-8")) return false;
  if (!ReadInt(call.words[1], number) || !SelectGenerator(call.game, number))
    return call.Bad(MessageText<Msg::kNoSuchGenerator>());
  call.answer["rng"] = call.game.generators.GeneratorIndex + 1;
  return true;
}

bool Seed(Call& call) {
  Currency seed;
  if (!WantWords(call, 2, 2, "seed NUMBER") || !Amount(call, 1, seed)) return false;
  bool accepted = seed >= Currency::Dollars(1) && seed.IsWhole();
  if (accepted) SeedRng(call.game, accepted, seed);
  if (!accepted) return call.Bad(NoSeed("seed " + call.words[1], SeedLimit(call.game.generators)));
  return true;
}

bool Atm(Call& call) {
  SeatId seat = 0;
  Currency amount;
  if (!WantWords(call, 4, 4, "atm SEAT deposit|withdraw AMOUNT") || !Player(call, 1, seat) ||
      !Amount(call, 3, amount))
    return false;
  const std::string& word = call.words[2];
  if (word != "deposit" && word != "withdraw")
    return call.Bad("\"" + word + "\" is neither deposit nor withdraw");
  if (amount < kZero) return call.Bad("the amount must not be negative");
  if (!call.game.settings.AtmEnabled) return call.Bad("the ATM is out of service");
  call.answer["allowed"] = MoneyJson(AtmTransaction(call.game, seat, word == "deposit", amount));
  call.answer["bankroll"] = MoneyJson(call.game.table.BankrollCurrent[seat]);
  return true;
}

bool Set(Call& call) {
  if (!WantWords(call, 3, 99, "set NAME VALUE, or set NAME@SEAT VALUE")) return false;
  SettingChange change;
  if (!ParseSettingName(call.words[1], change.name, change.seat))
    return call.Bad(NoSettingName(call.words[1]));
  change.value = Joined(call.words, 2, call.words.size());
  return SetSettings(call.game, {change}, call.error);
}

bool UseHouse(Call& call) {
  if (call.words.size() < 2) {
    Json& houses = call.answer["houses"] = Json::array();
    for (const HousePreset& house : HousePresets())
      houses.push_back({{"key", house.key}, {"name", house.name}, {"tells", house.tells}});
    return true;
  }
  const std::string name = Joined(call.words, 1, call.words.size());
  const HousePreset* house = FindHousePreset(name);
  if (house == nullptr) return call.Bad("there is no house \"" + name + "\"; there are " + HouseKeys());
  return SetSettings(call.game, HouseRules(*house), call.error);
}

bool Get(Call& call) {
  if (!WantWords(call, 2, 2, "get NAME, or get NAME@SEAT")) return false;
  std::string name;
  SeatId seat = 0;
  if (!ParseSettingName(call.words[1], name, seat)) return call.Bad(NoSettingName(call.words[1]));
  std::string value;
  if (!GetSetting(call.game, name, seat, value, call.error)) return false;
  call.answer["name"] = call.words[1];
  Currency number;
  if (TryParseMoney(value, number))
    call.answer["value"] = MoneyJson(number);
  else
    call.answer["value"] = value;
  return true;
}

bool StartSession(Call& call) {
  bool keepSessions = false;
  bool keepStacks = false;
  bool keepLogs = false;
  bool keepScripts = true;
  int choice = kCloseRollFile;
  for (std::size_t i = 1; i < call.words.size(); ++i) {
    const std::string& word = call.words[i];
    if (word == "keepprev")
      keepSessions = true;
    else if (word == "keepstacks")
      keepStacks = true;
    else if (word == "keeplogs")
      keepLogs = true;
    else if (word == "closescripts")
      keepScripts = false;
    else if (word == "closefile")
      choice = kCloseRollFile;
    else if (word == "rewind")
      choice = kRewindRollFile;
    else if (word == "continue")
      choice = kContinueRollFile;
    else
      return call.Bad(
          "\"" + word +
          "\": expected keepprev, keepstacks, keeplogs, closescripts, closefile, rewind or continue");
  }
  // Before the session starts, whose heading names the scripts that are active.
  if (!keepScripts) CloseScripts(call.game);
  NewSession(call.game, keepSessions, keepStacks, keepLogs, choice);
  // The scripts that stay are initialised, as they are whenever a session is new.
  if (call.game.autobet.ScriptActive[0]) InitialiseScripts(call.game);
  return true;
}

bool LoadProbabilities(Call& call) {
  if (!WantWords(call, 2, 99, "probabilities FILE, or probabilities off")) return false;
  PercentageDice& dice = call.game.percentage;
  if (call.words.size() == 2 && call.words[1] == "off") return ActivatePercentageDice(dice, false);
  const std::string path = Joined(call.words, 1, call.words.size());
  if (!OpenProbabilityFile(dice, path, "", call.error)) return false;
  return ActivatePercentageDice(dice, true) || call.Bad(MessageText<Msg::kNothingToRoll>());
}

bool UseRollFile(Call& call) {
  RollFile& file = call.game.rollFile;
  if (call.words.size() == 2 && call.words[1] == "off") {
    const std::string problem = IsRollFileOpen(file) ? CloseRollFile(file) : "";
    return problem.empty() || call.Bad(problem);
  }
  if (!WantWords(call, 3, 99, "rollfile FILE play|record|off, or rollfile off")) return false;
  const std::string& mode = call.words.back();
  if (mode != "play" && mode != "record" && mode != "off")
    return call.Bad("\"" + mode + "\" is neither play, record nor off");
  const std::string path = Joined(call.words, 1, call.words.size() - 1);
  if (mode == "play" && access(path.c_str(), R_OK) != 0)
    return call.Bad(MessageText<Msg::kNamedFileNotFound>(With<"path">(path)));
  std::string problem = OpenRollFile(file, path);
  const int state = mode == "play" ? kRecorderPlayback : mode == "record" ? kRecorderRecord : kRecorderOff;
  if (problem.empty()) problem = SetRecorderState(file, state);
  if (!problem.empty()) return call.Bad(problem);
  if (mode == "play") LogPlayback(call.game);
  call.answer["rolls"] = RollFileLength(file);
  return true;
}

bool SetStack(Call& call) {
  SeatId seat = 0;
  int stack = 0;
  Currency value;
  if (!WantWords(call, 4, 4, "stack SEAT N VALUE") || !Player(call, 1, seat) || !Amount(call, 3, value))
    return false;
  if (!ReadInt(call.words[2], stack) || stack < 0 || stack >= kCheckStacks)
    return call.Bad("\"" + call.words[2] + "\" is no CheckStack; CheckStacks are 0 to 99");
  const BetId bet = kFirstCheckStack + stack;
  ChangeBet(call.game, seat, bet, value - call.game.table.BetAmount(seat, bet));
  call.answer["value"] = MoneyJson(call.game.table.BetAmount(seat, bet));
  return true;
}

bool Plot(Call& call) {
  SeatId seat = 0;
  if (!WantWords(call, 2, 2, "plot SEAT") || !Player(call, 1, seat)) return false;
  const Game& game = call.game;
  Json points = Json::array();
  for (int cell = 1; cell <= game.graph.PlotCount; ++cell)
    points.push_back({{"roll", MoneyJson(BankrollPlot(game, 0, cell))},
                      {"bankroll", MoneyJson(BankrollPlot(game, seat, cell))},
                      {"average", MoneyJson(BankrollAverage(game, seat, cell))}});
  const PlotExtremes extremes = ExtremesOf(game, seat);
  call.answer["high"] = MoneyJson(extremes.PlotHigh);
  call.answer["low"] = MoneyJson(extremes.PlotLow);
  call.answer["points"] = points;
  return true;
}

bool Answer(Call& call) {
  if (!WantWords(call, 2, 999, "answer yes|no|ok|cancel|VALUE ...")) return false;
  for (std::size_t i = 1; i < call.words.size(); ++i) call.host.answers.Add(call.words[i]);
  call.answer["queued"] = call.host.answers.Size();
  return true;
}

bool State(Call& call) {
  call.answer.update(StateJson(call.game));
  return true;
}

bool SaveIt(Call& call) {
  if (!WantWords(call, 2, 99, "save FILE")) return false;
  const std::string path = Joined(call.words, 1, call.words.size());
  if (!SaveGame(call.game, path, call.error)) return false;
  call.answer["file"] = path;
  return true;
}

bool OpenIt(Call& call) {
  if (!WantWords(call, 2, 99, "open FILE")) return false;
  const std::string path = Joined(call.words, 1, call.words.size());
  if (!OpenGame(call.game, path)) return call.Bad(path + ": the game can't be opened");
  call.answer["caption"] = GameCaption(call.game);
  return true;
}

bool Stats(Call& call) {
  SeatId seat = 0;
  ScopeId scope = 0;
  BetId bet = 0;
  if (!WantWords(call, 3, 99, "stats SEAT SCOPE [BET]")) return false;
  if (!ReadInt(call.words[1], seat.value) || seat < 0 || seat > kSeats)
    return call.Bad("\"" + call.words[1] + "\" is no seat; 0 is the table, players are 1 to 8");
  if (!ReadInt(call.words[2], scope.value) || scope < 0 || scope >= kScopes)
    return call.Bad(NoScope(call.words[2]));
  if (call.words.size() > 3 && !BetNumber(call, 3, call.words.size(), false, bet)) return false;
  call.answer.update(StatsJson(call.game, seat, scope, bet));
  return true;
}

bool Report(Call& call) {
  ReportTable report;
  if (!ReportOf(call.game, call.words, report, call.error)) return false;
  call.answer.update(ReportJson(report));
  return true;
}

Json LuckJson(const Game& game, SeatId seat) {
  const auto rounded = [](double value) { return std::round(value * 1e8) / 1e8 + 0.0; };
  const SessionLuckFigures figures = SessionLuckOf(game, seat);
  const LuckReport& report = figures.report;
  return {{"seat", seat},
          {"name", game.table.seats[seat].SeatName},
          {"expected", rounded(report.expected)},
          {"actual", rounded(report.actual)},
          {"luck", rounded(report.luck)},
          {"stdDev", rounded(report.standardDeviation)},
          {"sigmas", rounded(report.deviations)},
          {"shifted", rounded(figures.shifted)},
          {"rolls", figures.counted},
          {"missed", figures.missed}};
}

// Who asks wants the rolls of the runs to come counted too, which takes its time.
bool Luck(Call& call) {
  if (const SessionLuck* const luck = WatchedLuck(call.game); luck != nullptr && luck->turboWatchers == 0)
    WatchLuckOfTurboRolls(call.game, true);
  if (call.words.size() == 1) {
    Json& seats = call.answer["seats"] = Json::array();
    for (SeatId seat = 1; seat <= kSeats; ++seat)
      if (IsOccupied(call.game.table, seat)) seats.push_back(LuckJson(call.game, seat));
    return true;
  }
  SeatId seat = 0;
  if (!WantWords(call, 2, 2, "luck, or luck SEAT") || !Player(call, 1, seat)) return false;
  call.answer.update(LuckJson(call.game, seat));
  return true;
}

bool Facts(Call& call) {
  BetId bet = 0;
  if (!WantWords(call, 2, 99, "facts BET") || !BetNumber(call, 1, call.words.size(), false, bet))
    return false;
  call.answer.update(FactsJson(call.game, bet));
  return true;
}

bool Help(Call& call) {
  Json commands = Json::array();
  for (const PlayCommandInfo& info : PlayCommands())
    commands.push_back({{"command", std::string(info.name) + " " + info.arguments}, {"does", info.help}});
  call.answer["commands"] = commands;
  return true;
}

bool Quit(Call& call) {
  call.ended = true;
  return true;
}

struct Handler {
  PlayCommandInfo info;
  bool (*run)(Call&);
  bool bets = false;  // what it changes can be taken back
};

constexpr Handler kHandlers[] = {
    {{"join", "SEAT NAME BANKROLL", "a player joins"}, Join},
    {{"leave", "SEAT", "a player leaves"}, Leave},
    {{"rename", "SEAT NAME", "gives a player another name"}, Rename},
    {{"move", "SEAT SEAT", "moves a player to an open seat"}, Move},
    {{"select", "SEAT", "selects the player whose bets are shown"}, Select},
    {{"bet", "SEAT BET AMOUNT", "adds to a bet, or with a negative amount takes it down"}, MakeBet, true},
    {{"remove", "SEAT BET", "takes a bet down"}, Remove, true},
    {{"call", "SEAT on|off BET", "calls a bet ON or OFF; BET may be all"}, CallOnOff, true},
    {{"buy", "SEAT BET", "turns a Place bet into a Buy bet"}, Buy, true},
    {{"undo", "", "takes back the last change of bets since the roll"}, Undo},
    {{"redo", "", "makes again what was taken back"}, Redo},
    {{"repeat", "[SEAT]", "bets again what was up before the last roll; without a seat the selected one"},
     Repeat,
     true},
    {{"roll", "[DIE1 DIE2]", "one roll, or these faces"}, Roll},
    {{"turbo", "ROLLS", "so many rolls at full speed"}, Turbo},
    {{"pass", "", "passes the dice"}, Pass},
    {{"rng", "1-8", "selects a generator"}, Rng},
    {{"seed", "NUMBER", "seeds the generator"}, Seed},
    {{"atm", "SEAT deposit|withdraw AMOUNT", "moves money from or to a bankroll"}, Atm},
    {{"set", "NAME[@SEAT] VALUE", "changes a setting"}, Set},
    {{"house", "[NAME]", "the rules of a ready house; without a name the houses there are"}, UseHouse},
    {{"get", "NAME[@SEAT]", "reads a setting or a value of the table"}, Get},
    {{"newsession", "[keepprev] [keepstacks] [keeplogs] [closescripts] [closefile|rewind|continue]",
      "starts a new session"},
     StartSession},
    {{"probabilities", "FILE|off", "percentage dice from a file, or none"}, LoadProbabilities},
    {{"rollfile", "FILE play|record|off", "a dice roll file; rollfile off closes it"}, UseRollFile},
    {{"stack", "SEAT N VALUE", "sets a CheckStack 0 to 99"}, SetStack, true},
    {{"save", "FILE", "writes the game to a file"}, SaveIt},
    {{"open", "FILE", "opens a game in place of the table"}, OpenIt},
    {{"plot", "SEAT", "the bankroll graph's points"}, Plot},
    {{"answer", "yes|no|ok|cancel|VALUE ...", "answers the next questions in advance"}, Answer},
    {{"state", "", "the table"}, State},
    {{"stats", "SEAT SCOPE [BET]", "the statistics of a seat (0 the table) and scope (0 to 4)"}, Stats},
    {{"report", kReportArguments, "summary, hands, bet-results, bet-trends, roll-totals or roll-frequencies"},
     Report},
    {{"luck", "[SEAT]",
      "what sessions were expected to bring, what they did, and the difference; rolls of turbo count from "
      "the first luck on"},
     Luck},
    {{"facts", "BET", "what a bet wins and loses on, pays and costs, as the table stands"}, Facts},
    {{"help", "", "the commands"}, Help},
    {{"quit", "", "ends"}, Quit},
};

}  // namespace

const std::vector<PlayCommandInfo>& PlayCommands() {
  static const std::vector<PlayCommandInfo> infos = [] {
    std::vector<PlayCommandInfo> list;
    for (const Handler& handler : kHandlers) list.push_back(handler.info);
    for (const ScriptCommand& command : ScriptCommands()) list.push_back(command.info);
    return list;
  }();
  return infos;
}

PlaySession::PlaySession(Game& game, PlayHost& host) : game_(game), host_(host) {
  game.autobet.StepsHold = false;
  WatchLuck(game);
  host.step = [&host](Game& running, const ScriptStep& shown) { host.TellStep(running, shown); };
}

Json PlaySession::Do(const std::string& line) {
  const Words words = SplitWords(line);
  if (words.empty()) return {{"ok", false}, {"error", "no command"}};
  for (const Handler& handler : kHandlers) {
    if (words[0] != handler.info.name) continue;
    Call call{game_, host_, history_, words, Json::object(), "", false};
    const BetsKept before = handler.bets ? KeepBets(game_) : BetsKept{};
    const bool done = handler.run(call);
    if (handler.bets) NoteBetStep(history_, game_, before);
    ended_ = call.ended;
    FlushEventsLog(game_);
    if (!done) return {{"ok", false}, {"error", words[0] + ": " + call.error}};
    Json answer{{"ok", true}};
    answer.update(call.answer);
    return answer;
  }
  if (Json answer; DoScriptCommand(game_, host_, words, answer)) return answer;
  return {{"ok", false}, {"error", "unknown command \"" + words[0] + "\"; help lists them"}};
}

}  // namespace tessaryn::cli
