#include "play/players.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "autobet/language/normaliser.h"
#include "base/letters.h"
#include "base/record_file.h"
#include "play/session_luck.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "rules/shooter.h"
#include "state/game.h"
#include "state/seat_parts.h"
#include "state/show_message.h"
#include "stats/bankroll_graph.h"
#include "stats/events_log.h"
#include "stats/sessions_log.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// The list of occupied seats, after a name came or went.
void ListSeated(TableState& table) {
  table.OccupiedSeats = 0;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (!table.seats[seat].SeatName.empty())
      table.Seated[table.OccupiedSeats++] = static_cast<std::uint8_t>(seat);
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

}  // namespace

namespace {

// What has translations is told in the language of the game, as in boxes.
template <Msg kId, typename... Arguments>
std::string Told(const Game& game, const Arguments&... arguments) {
  static_assert(FillsAllHoles<kId, Arguments...>(), "the arguments are not those of the message");
  return MessageTextIn(game.settings.Language, kId, ArgumentsOf(arguments...));
}

}  // namespace

std::string NameProblem(const Game& game, const std::string& name, SeatId ownSeat) {
  if (const std::string problem = TextProblem(name); !problem.empty())
    return MessageText<Msg::kNameUnfit>(With<"reason">(problem));
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (seat != ownSeat && SameLetters(game.table.seats[seat].SeatName, name))
      return Told<Msg::kNameTaken>(game, With<"name">(name));
  switch (CheckPlayerName(name)) {
    case ScriptNameProblem::kNumeric:
      return Told<Msg::kNameNumeric>(game);
    case ScriptNameProblem::kReservedWord:
      return MessageText<Msg::kNameReserved>(With<"name">(name));
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
  part([&game](SeatId seat) -> auto& { return game.sessions.Files.Tally[seat]; });
}

}  // namespace

void ClearSeat(Game& game, SeatId seat) {
  TableState& table = game.table;
  for (BetId bet = 1; bet < kBetRows; ++bet) SetBetAmount(game, seat, bet, kZero);
  ForEachPartOfASeat(game, [seat](auto at) { Reset(at(seat)); });
  ListSeated(table);
  SeatState& own = table.seats[seat];
  own.BetDefaultWorking = table.seats[0].BetDefaultWorking;
  own.BetWorking.byDefault = table.Point != 0 ? kAllTableBets : own.BetDefaultWorking;
  own.BetWorkingBeforeRoll = own.BetWorking;
  for (ScopeId scope = 0; scope < kScopes; ++scope)
    game.stats.RollsNotSeen[Slot(scope, seat)] = game.stats.RollTotals[Slot(scope, 0)];
  game.autobet.SessionAhead |= static_cast<std::uint16_t>(1u << seat);
  ClearSeatLuck(game, seat);
}

bool JoinPlayer(Game& game, SeatId seat, const std::string& givenName, Currency bankroll,
                std::string& error) {
  TableState& table = game.table;
  const std::string name = Trimmed(givenName);
  if (seat < 1 || seat > kSeats) {
    error = MessageText<Msg::kNoSuchSeat>(With<"seat">(seat));
  } else if (IsOccupied(table, seat)) {
    error = MessageText<Msg::kSeatTaken>(With<"seat">(seat), With<"player">(table.seats[seat].SeatName));
  } else if (name.empty()) {
    error = MessageText<Msg::kNameMissing>();
  } else if (bankroll.IsError() || bankroll > kBankrollLimit) {
    error = Told<Msg::kBankrollTooHigh>(game, With<"limit">(kBankrollLimit));
  } else if (bankroll < -kBankrollLimit) {
    error = Told<Msg::kBankrollTooLow>(game, With<"limit">(kBankrollLimit));
  } else {
    error = NameProblem(game, name, 0);
  }
  if (!error.empty()) return false;
  ClearSeat(game, seat);
  table.seats[seat].SeatName = name;
  ListSeated(table);
  StartBankroll(game, seat, bankroll);
  table.seats[seat].BankrollInitAmount = bankroll;
  table.seats[seat].SessionsLogName = DefaultSessionsLogName(game, name);
  if (table.ShooterSeat == 0) {
    table.ShooterSeat = seat;
    if (HandRolls(game.stats) == 0) table.HandSeat = seat;
  }
  if (table.SelectedSeat == 0) table.SelectedSeat = seat;
  game.autobet.ScriptsCompiled = false;
  LogJoined(game, seat);
  game.host->Changed(game, Change::kPlayers);
  if (table.OccupiedSeats == 1 && table.Point == 0) game.host->PlaySound(game, Sound::kComeOut);
  RequireConsistency(game);
  return true;
}

namespace {

// Repeats the question for a name until that is fit or the user gives up. preset: the player's name until
// now.
bool AskName(Game& game, Msg question, const std::string& preset, SeatId ownSeat, std::string& name) {
  std::string problem;
  for (name = preset;;) {
    game.box.MsgEntry = name;
    if (ShowMessage(game, question, {{"problem", problem}, {"player", preset}}) != kResultOk) return false;
    name = Trimmed(game.box.MsgEntry);
    if (name.empty()) return false;
    problem = NameProblem(game, name, ownSeat);
    if (problem.empty()) return true;
  }
}
static_assert(NeedOnly({Msg::kAskPlayerName, Msg::kAskNewName}, {"problem", "player"}));

}  // namespace

bool AddPlayer(Game& game, SeatId seat) {
  if (seat < 1 || seat > kSeats || IsOccupied(game.table, seat)) return false;
  if (!Confirms<Msg::kAskAddPlayer>(game)) return false;
  std::string name;
  if (!AskName(game, Msg::kAskPlayerName, "", 0, name)) return false;
  for (std::string problem;;) {
    game.box.MsgValue1 = game.settings.StartBank;
    if (ShowMessage<Msg::kAskBuyIn>(game, With<"player">(name), With<"problem">(problem)) != kResultOk)
      return false;
    problem.clear();
    if (JoinPlayer(game, seat, name, game.box.MsgValue1, problem)) return true;
  }
}

namespace {

struct Abandoned {
  bool passLine = false;
  int comeBets = 0;
  Currency total;
};

Abandoned ContractMoney(const TableState& table, SeatId seat) {
  Abandoned abandoned;
  const auto riding = [&](BetId bet) {
    return table.BetAmount(seat, bet) > kZero && table.BetCommitted(seat, bet) > kZero;
  };
  for (BetId bet = kCome4; bet < kCome4 + 6; ++bet)
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

bool MayRemove(Game& game, const std::string& name, const Abandoned& abandoned) {
  if (abandoned.total == kZero) return Confirms<Msg::kAskRemovePlayer>(game, With<"player">(name));
  return Confirms<Msg::kAskAbandon>(game, With<"player">(name), With<"passline">(abandoned.passLine),
                                    With<"come">(abandoned.comeBets), With<"total">(abandoned.total));
}

void LogLeaving(Game& game, SeatId seat, Currency abandoned) {
  const TableState& table = game.table;
  const Currency cashed = table.BankrollCurrent[seat] - abandoned;
  const Currency result = cashed - game.stats.BankrollSessionStart[seat];
  WriteLogLine<Msg::kLogCashedOut>(game, With<"player">(table.seats[seat].SeatName), With<"bankroll">(cashed),
                                   With<"result">(Abs(result)), With<"won">(result > kZero),
                                   With<"abandoned">(abandoned));
}

void RecomputeMasterScriptFlag(AutoBet& autobet) {
  autobet.ScriptActive[0] =
      std::any_of(autobet.ScriptActive + 1, autobet.ScriptActive + kSeatRows, [](bool on) { return on; });
}

}  // namespace

bool RemovePlayer(Game& game) {
  const SeatId seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return false;
  const Abandoned abandoned = ContractMoney(game.table, seat);
  if (!MayRemove(game, game.table.seats[seat].SeatName, abandoned)) return false;
  LeaveTable(game, seat);
  return true;
}

void LeaveTable(Game& game, SeatId seat) {
  TableState& table = game.table;
  if (!IsOccupied(table, seat)) return;
  LogLeaving(game, seat, ContractMoney(table, seat).total);
  AppendSessionRecord(game, seat);
  ClearSeat(game, seat);
  RecomputeMasterScriptFlag(game.autobet);
  game.autobet.ScriptsCompiled = false;
  const bool handRolled = HandRolls(game.stats) > 0;
  if (table.ShooterSeat == seat) PassDice(game, kPassShooterLeft);
  if (table.HandSeat == seat && handRolled) table.HandSeat = 0;
  if (table.PreviousHandSeat == seat) table.PreviousHandSeat = 0;
  if (game.sessions.SessionsSeat == seat) game.sessions.SessionsSeat = 0;
  if (table.SelectedSeat == seat) table.SelectedSeat = NextOccupied(table, seat);
  game.host->Changed(game, Change::kPlayers);
  if (table.OccupiedSeats == 1 && table.Point == 0) game.host->PlaySound(game, Sound::kComeOut);
  RequireConsistency(game);
  TellSessionsLogFault(game);
}

bool RenameTo(Game& game, SeatId seat, const std::string& givenName, std::string& error) {
  TableState& table = game.table;
  const std::string name = Trimmed(givenName);
  if (!IsOccupied(table, seat))
    error = MessageText<Msg::kSeatOpen>(With<"seat">(seat));
  else
    error = name.empty() ? MessageText<Msg::kNameMissing>() : NameProblem(game, name, seat);
  if (!error.empty()) return false;
  const std::string old = table.seats[seat].SeatName;
  WriteLogLine<Msg::kLogRenamed>(game, With<"player">(old), With<"name">(name));
  table.seats[seat].SeatName = name;
  game.autobet.ScriptsCompiled = false;
  game.host->Changed(game, Change::kPlayers);
  return true;
}

bool RenamePlayer(Game& game) {
  const SeatId seat = game.table.SelectedSeat;
  if (!IsOccupied(game.table, seat)) return false;
  const std::string old = game.table.seats[seat].SeatName;
  std::string name;
  if (!AskName(game, Msg::kAskNewName, old, seat, name)) return false;
  std::string error;
  if (!RenameTo(game, seat, name, error)) return false;
  if (SameLetters(old, name)) return true;
  if (!Confirms<Msg::kAskRenameSessionsLog>(game, With<"player">(name))) return true;
  const std::string problem = RenameSessionsLog(game, seat, DefaultSessionsLogName(game, name));
  if (!problem.empty()) ShowMessage<Msg::kSessionsLogNotRenamed>(game, With<"problem">(problem));
  return true;
}

namespace {

void SwapSeats(Game& game, int a, int b) {
  TableState& table = game.table;
  const auto swap = [a, b](auto at) { std::swap(at(a), at(b)); };
  ForEachPartOfASeat(game, swap);
  ForEachSeatPart(game.graph, swap);
  ForEachSeatMask(game, [a, b](auto& mask) { SwapBits(mask, a, b); });
  SwapSeatLuck(game, a, b);
  ListSeated(table);
  // Both seats' copies may be out of date now.
  table.SeatsSinceBefore |= 1u << a | 1u << b;
  table.SeatsSinceAfter |= 1u << a | 1u << b;
  // Who has each bet up is kept by place in the pay order.
  for (std::uint8_t& seats : table.SeatsUp) seats = 0;
  for (int place = 0; place < kSeats; ++place)
    table.seats[kPayOrder[place]].SeatBets.ForEach(
        [&](BetId bet) { table.SeatsUp[bet] |= static_cast<std::uint8_t>(1u << place); });
  BankrollPlotChanged(game);
}

}  // namespace

bool MovePlayer(Game& game, SeatId fromSeat, SeatId toSeat, std::string& error) {
  TableState& table = game.table;
  if (!IsOccupied(table, fromSeat)) {
    error = MessageText<Msg::kSeatOpen>(With<"seat">(fromSeat));
  } else if (toSeat < 1 || toSeat > kSeats) {
    error = MessageText<Msg::kNoSuchSeat>(With<"seat">(toSeat));
  } else if (IsOccupied(table, toSeat)) {
    error = MessageText<Msg::kSeatTaken>(With<"seat">(toSeat), With<"player">(table.seats[toSeat].SeatName));
  }
  if (!error.empty()) return false;
  SwapSeats(game, fromSeat, toSeat);
  for (SeatId* seat : {&table.ShooterSeat, &table.HandSeat, &table.PreviousHandSeat, &table.SelectedSeat})
    if (*seat == fromSeat) *seat = toSeat;
  game.autobet.ScriptsCompiled = false;
  LogPlayerMoved(game, toSeat);
  game.host->Changed(game, Change::kPlayers);
  RequireConsistency(game);
  return true;
}

void SelectSeat(Game& game, SeatId seat) {
  if (!IsOccupied(game.table, seat)) return;
  game.table.SelectedSeat = seat;
  game.host->Changed(game, Change::kPlayers);
}

}  // namespace tessaryn
