#include "play/players.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <utility>

#include "autobet/language/normaliser.h"
#include "base/record_file.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/shooter.h"
#include "state/game.h"
#include "state/seat_parts.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// The list of occupied seats, after a name came or went.
void ListSeated(TableState& table) {
  table.OccupiedSeats = 0;
  for (int seat = 1; seat <= kSeats; ++seat)
    if (!table.seats[seat].SeatName.empty())
      table.Seated[table.OccupiedSeats++] = static_cast<std::uint8_t>(seat);
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

}  // namespace

std::string NameProblem(const Game& game, const std::string& name, int ownSeat) {
  if (const std::string problem = TextProblem(name); !problem.empty())
    return "That can't be a player's name: " + problem + ".";
  for (int seat = 1; seat <= kSeats; ++seat)
    if (seat != ownSeat && Lower(game.table.seats[seat].SeatName) == Lower(name))
      return "There's already a player named " + name + ".";
  switch (CheckPlayerName(name)) {
    case ScriptNameProblem::kNumeric:
      return "A player's name can't be all numeric because it can't be used in auto-betting.";
    case ScriptNameProblem::kReservedWord:
      return name +
             " contains a word, phrase, or symbol used in auto-betting and therefore can't be used as a "
             "player's name.";
    default:
      return "";
  }
}

namespace {

// The sets of seats, a bit each.
template <typename Visit>
void ForEachSeatMask(Game& game, Visit&& visit) {
  visit(game.stats.HandSlotsUsed);
  visit(game.stats.LastHandSlotsUsed);
  visit(game.autobet.SessionAhead);
  visit(game.autobet.BeginningNewSession);
}

template <typename T>
void Reset(T& value) {
  if constexpr (std::is_array_v<T>) {
    for (auto& element : value) Reset(element);
  } else {
    value = T{};
  }
}

template <typename T>
void SwapBits(T& mask, int a, int b) {
  if (((mask >> a ^ mask >> b) & 1u) != 0) mask ^= static_cast<T>(1u << a | 1u << b);
}

template <typename Part>
void ForEachPartOfASeat(Game& game, Part&& part) {
  ForEachSeatPart(game.table, part);
  ForEachSeatPart(game.stats, part);
  ForEachSeatPart(game.autobet, part);
  ForEachSeatPart(game.events, part);
}

}  // namespace

void ClearSeat(Game& game, int seat) {
  TableState& table = game.table;
  for (int bet = 1; bet < kBetRows; ++bet) SetBetAmount(game, seat, bet, kZero);
  ForEachPartOfASeat(game, [seat](auto at) { Reset(at(seat)); });
  ListSeated(table);
  SeatState& own = table.seats[seat];
  own.BetDefaultWorking = table.seats[0].BetDefaultWorking;
  own.BetWorking.byDefault = table.Point != 0 ? kAllTableBets : own.BetDefaultWorking;
  own.BetWorkingBeforeRoll = own.BetWorking;
  for (int scope = 0; scope < kScopes; ++scope)
    game.stats.RollsNotSeen[Slot(scope, seat)] = game.stats.RollTotals[Slot(scope, 0)];
  game.autobet.SessionAhead |= static_cast<std::uint16_t>(1u << seat);
}

bool JoinPlayer(Game& game, int seat, const std::string& givenName, Currency bankroll, std::string& error) {
  TableState& table = game.table;
  const std::string name = Trimmed(givenName);
  if (seat < 1 || seat > kSeats) {
    error = "There is no seat " + std::to_string(seat) + "; seats are 1 to 8.";
  } else if (IsOccupied(table, seat)) {
    error = "Seat " + std::to_string(seat) + " is taken by " + table.seats[seat].SeatName + ".";
  } else if (name.empty()) {
    error = "A player needs a name.";
  } else if (bankroll.IsError() || bankroll > kBankrollLimit) {
    error = "The maximum player bankroll is $9,999,999";
  } else if (bankroll < -kBankrollLimit) {
    error = "The minimum player bankroll is -$9,999,999";
  } else {
    error = NameProblem(game, name, 0);
  }
  if (!error.empty()) return false;
  ClearSeat(game, seat);
  table.seats[seat].SeatName = name;
  ListSeated(table);
  StartBankroll(game, seat, bankroll);
  table.seats[seat].BankrollInitAmount = bankroll;
  table.seats[seat].SessionsLogName = game.dataFolder + Lower(name) + ".slg";
  if (table.ShooterSeat == 0) {
    table.ShooterSeat = seat;
    if (HandRolls(game.stats) == 0) table.HandSeat = seat;
  }
  if (table.SelectedSeat == 0) table.SelectedSeat = seat;
  game.autobet.ScriptsCompiled = false;
  WriteEventsLogLine(
      game, "    " + name + " joined the game at " + StickPosition(seat) + " with $" + PlainMoney(bankroll));
  game.host->Changed(game, Change::kPlayers);
  if (table.OccupiedSeats == 1 && table.Point == 0) game.host->PlaySound(game, Sound::kComeOut);
  RequireConsistency(game);
  return true;
}

namespace {

// A question with one input box. False when given up.
bool AskText(Game& game, const std::string& title, const std::string& text, const std::string& preset,
             std::string& answer) {
  game.box.MsgEntry = preset;
  if (ShowMessage(game, title, text, kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgQuestion) !=
      kResultOk)
    return false;
  answer = Trimmed(game.box.MsgEntry);
  return !answer.empty();
}

// Repeats the question until the name is fit or the user gives up.
bool AskName(Game& game, const std::string& title, const std::string& prompt, const std::string& preset,
             int ownSeat, std::string& name) {
  std::string text = prompt;
  std::string entry = preset;
  for (;;) {
    if (!AskText(game, title, text, entry, name)) return false;
    const std::string problem = NameProblem(game, name, ownSeat);
    if (problem.empty()) return true;
    entry = name;
    text = problem + "\r\r" + prompt;
  }
}

}  // namespace

bool AddPlayer(Game& game, int seat) {
  if (seat < 1 || seat > kSeats || IsOccupied(game.table, seat)) return false;
  if (ShowMessage(game, kAddPlayerTitle, "Would you like to add a player here?",
                  kMsgYes | kMsgNo | kMsgQuestion) != kResultYes)
    return false;
  std::string name;
  if (!AskName(game, kAddPlayerTitle, "What's the new player's name?", "", 0, name)) return false;
  const std::string prompt = "How much would " + name + " like to buy-in for?";
  std::string text = prompt;
  for (;;) {
    game.box.MsgValue1 = game.settings.StartBank;
    if (ShowMessage(game, kAddPlayerTitle, text, kMsgOk | kMsgCancel | kMsgInput | kMsgQuestion) != kResultOk)
      return false;
    const Currency bankroll = game.box.MsgValue1;
    std::string error;
    if (JoinPlayer(game, seat, name, bankroll, error)) return true;
    text = error + "\r\r" + prompt;
  }
}

namespace {

struct Abandoned {
  bool passLine = false;
  int comeBets = 0;
  Currency total;
};

Abandoned ContractMoney(const TableState& table, int seat) {
  Abandoned abandoned;
  const auto riding = [&](int bet) {
    return table.BetAmount(seat, bet) > kZero && table.BetCommitted(seat, bet) > kZero;
  };
  for (int bet = kCome4; bet < kCome4 + 6; ++bet)
    if (riding(bet)) {
      ++abandoned.comeBets;
      abandoned.total += table.BetAmount(seat, bet);
    }
  if (table.Point != 0 && riding(kPassLine)) {
    abandoned.passLine = true;
    abandoned.total += table.BetAmount(seat, kPassLine);
  }
  return abandoned;
}

std::string RemoveQuestion(const std::string& name, const Abandoned& abandoned) {
  std::string text = "Would you like to remove " + name + "?";
  if (abandoned.total == kZero) return text;
  text += "\r\r" + name + " still has ";
  if (abandoned.passLine) text += "an active Pass Line bet ";
  if (abandoned.passLine && abandoned.comeBets > 0) text += "and ";
  if (abandoned.comeBets == 1) text += "an active Come bet ";
  if (abandoned.comeBets > 1) text += std::to_string(abandoned.comeBets) + " active Come bets ";
  return text + "\r\rthat can't be removed and will be abandoned.\r\rTotal to be abandoned: $" +
         FormatMoney(abandoned.total);
}

void LogLeaving(Game& game, int seat, Currency total) {
  const TableState& table = game.table;
  const Currency cashed = table.BankrollCurrent[seat] - total;
  const Currency result = cashed - game.stats.BankrollSessionStart[seat];
  std::string line = "    " + table.seats[seat].SeatName + " cashed out with $" + PlainMoney(cashed) + " (";
  if (result == kZero)
    line += "broke even";
  else
    line += "$" + PlainMoney(Abs(result)) + (result > kZero ? " win" : " loss");
  line += total > kZero ? " after $" + PlainMoney(total) + " abandoned)" : ")";
  WriteEventsLogLine(game, line);
}

void RecomputeMasterScriptFlag(AutoBet& autobet) {
  autobet.ScriptActive[0] =
      std::any_of(autobet.ScriptActive + 1, autobet.ScriptActive + kSeatRows, [](bool on) { return on; });
}

}  // namespace

bool RemovePlayer(Game& game) {
  const int seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return false;
  const Abandoned abandoned = ContractMoney(game.table, seat);
  if (ShowMessage(game, "Remove Player", RemoveQuestion(game.table.seats[seat].SeatName, abandoned),
                  kMsgYes | kMsgNo | kMsgQuestion) != kResultYes)
    return false;
  LeaveTable(game, seat);
  return true;
}

void LeaveTable(Game& game, int seat) {
  TableState& table = game.table;
  if (!IsOccupied(table, seat)) return;
  LogLeaving(game, seat, ContractMoney(table, seat).total);
  ClearSeat(game, seat);
  RecomputeMasterScriptFlag(game.autobet);
  game.autobet.ScriptsCompiled = false;
  const bool handRolled = HandRolls(game.stats) > 0;
  if (table.ShooterSeat == seat) PassDice(game, kPassShooterLeft);
  if (table.HandSeat == seat && handRolled) table.HandSeat = 0;
  if (table.PreviousHandSeat == seat) table.PreviousHandSeat = 0;
  if (table.SelectedSeat == seat) table.SelectedSeat = NextOccupied(table, seat);
  game.host->Changed(game, Change::kPlayers);
  if (table.OccupiedSeats == 1 && table.Point == 0) game.host->PlaySound(game, Sound::kComeOut);
  RequireConsistency(game);
}

bool RenameTo(Game& game, int seat, const std::string& givenName, std::string& error) {
  TableState& table = game.table;
  const std::string name = Trimmed(givenName);
  if (!IsOccupied(table, seat))
    error = "There is no player at seat " + std::to_string(seat) + ".";
  else
    error = name.empty() ? "A player needs a name." : NameProblem(game, name, seat);
  if (!error.empty()) return false;
  const std::string old = table.seats[seat].SeatName;
  WriteEventsLogLine(game, "    " + old + "'s name changed to " + name);
  table.seats[seat].SeatName = name;
  game.autobet.ScriptsCompiled = false;
  game.host->Changed(game, Change::kPlayers);
  return true;
}

bool RenamePlayer(Game& game) {
  const int seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return false;
  const std::string old = game.table.seats[seat].SeatName;
  std::string name;
  if (!AskName(game, "Rename Player", "Enter a new name for " + old + ".", old, seat, name)) return false;
  std::string error;
  if (!RenameTo(game, seat, name, error)) return false;
  if (Lower(old) == Lower(name)) return true;
  if (ShowMessage(game, "Rename Sessions Log",
                  "Would you also like to change " + name + "'s sessions log filename?",
                  kMsgYes | kMsgNo | kMsgQuestion) == kResultYes)
    game.table.seats[seat].SessionsLogName = game.dataFolder + Lower(name) + ".slg";
  return true;
}

namespace {

void SwapSeats(Game& game, int a, int b) {
  TableState& table = game.table;
  const auto swap = [a, b](auto at) { std::swap(at(a), at(b)); };
  ForEachPartOfASeat(game, swap);
  ForEachSeatPart(game.graph, swap);
  ForEachSeatMask(game, [a, b](auto& mask) { SwapBits(mask, a, b); });
  ListSeated(table);
  // Both seats' copies may be out of date now.
  table.SeatsSinceBefore |= 1u << a | 1u << b;
  table.SeatsSinceAfter |= 1u << a | 1u << b;
  // Who has each bet up is kept by place in the pay order.
  for (std::uint8_t& seats : table.SeatsUp) seats = 0;
  for (int place = 0; place < kSeats; ++place)
    table.seats[kPayOrder[place]].SeatBets.ForEach(
        [&](int bet) { table.SeatsUp[bet] |= static_cast<std::uint8_t>(1u << place); });
  BankrollPlotChanged(game);
}

}  // namespace

bool MovePlayer(Game& game, int fromSeat, int toSeat, std::string& error) {
  TableState& table = game.table;
  if (!IsOccupied(table, fromSeat)) {
    error = "There is no player at seat " + std::to_string(fromSeat) + ".";
  } else if (toSeat < 1 || toSeat > kSeats) {
    error = "There is no seat " + std::to_string(toSeat) + "; seats are 1 to 8.";
  } else if (IsOccupied(table, toSeat)) {
    error = "Seat " + std::to_string(toSeat) + " is taken by " + table.seats[toSeat].SeatName + ".";
  }
  if (!error.empty()) return false;
  SwapSeats(game, fromSeat, toSeat);
  for (int* seat : {&table.ShooterSeat, &table.HandSeat, &table.PreviousHandSeat, &table.SelectedSeat})
    if (*seat == fromSeat) *seat = toSeat;
  game.autobet.ScriptsCompiled = false;
  WriteEventsLogLine(game, "    " + table.seats[toSeat].SeatName + " moved to " + StickPosition(toSeat));
  game.host->Changed(game, Change::kPlayers);
  RequireConsistency(game);
  return true;
}

void SelectSeat(Game& game, int seat) {
  if (!IsOccupied(game.table, seat)) return;
  game.table.SelectedSeat = seat;
  game.host->Changed(game, Change::kPlayers);
}

}  // namespace tessaryn
