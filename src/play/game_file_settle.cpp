// What a game file may bring to a table: nothing in it is trusted.
#include <algorithm>
#include <limits>

#include "dice/generators.h"
#include "base/letters.h"
#include "play/game_file_fields.h"
#include "play/game_file_records.h"
#include "play/setting_table.h"
#include "rules/consistency.h"
#include "state/game.h"

namespace tessaryn {
namespace {

std::string SettlePlayers(Game& game) {
  TableState& table = game.table;
  const int told = table.OccupiedSeats;
  table.OccupiedSeats = 0;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    const std::string& name = table.seats[seat].SeatName;
    if (name.empty()) continue;
    if (!TextProblem(name).empty()) return "the name of seat " + std::to_string(seat);
    for (SeatId other = 1; other < seat; ++other)
      if (SameLetters(table.seats[other].SeatName, name)) return "two players named " + name;
    table.Seated[table.OccupiedSeats++] = static_cast<std::uint8_t>(seat);
  }
  for (int i = table.OccupiedSeats; i < kSeats; ++i) table.Seated[i] = 0;
  table.seats[0].SeatName = "House";
  return told == table.OccupiedSeats ? "" : "the count of players";
}

std::string SettleRoll(Game& game) {
  TableState& table = game.table;
  table.RollTotal = table.Die1 + table.Die2;
  for (const int point : {table.Point, table.PointBeforeRoll, table.PointTwoRollsAgo, table.LastPoint})
    if (point != 0 && !IsBoxNumber(point)) return "a point of " + std::to_string(point);
  return "";
}

// The sets of what is up, as SetBetAmount keeps them.
std::string SettleBets(Game& game) {
  TableState& table = game.table;
  table.AnyBets.Clear();
  std::fill(std::begin(table.SeatsUp), std::end(table.SeatsUp), std::uint8_t{0});
  for (SeatId seat = 0; seat < kSeatRows; ++seat) table.seats[seat].SeatBets.Clear();
  for (int place = 0; place < kSeats; ++place) {
    const SeatId seat = kPayOrder[static_cast<std::size_t>(place)];
    for (BetId bet = 0; bet < kBetRows; ++bet) {
      const Currency amount = table.BetAmount(seat, bet);
      if (IsCheckStack(bet) && (amount > kStackLimit || amount < -kStackLimit)) return "a CheckStack";
      if (!IsTableBet(bet) && !IsCheckStack(bet) && amount != kZero) return "a bet that is none";
      if (!IsTableBet(bet) || amount <= kZero) continue;
      table.seats[seat].SeatBets.Add(bet);
      table.AnyBets.Add(bet);
      table.SeatsUp[bet] |= static_cast<std::uint8_t>(1u << place);
    }
  }
  return "";
}

std::string SettleSettings(Game& game) {
  // An unknown level of info tips is told to be none, where a limit would give the nearest.
  int& tips = game.settings.InfoTipLevel;
  if (tips < 0 || tips > 4) tips = 0;
  ClampSettings(game);
  ReplaceMissingGenerator(game.generators);
  return "";
}

// What is counted of bets is added up unlooked at in a roll, so it must fit.
bool CountsFit(const BetStats (&scopes)[kScopes]) {
  for (int table = 0; table < kStatTables; ++table) {
    std::int64_t counts = 0;
    std::int64_t totals = 0;
    for (const BetStats& stats : scopes) {
      const Currency(&kinds)[6] = stats.kinds[table];
      for (const Currency kind : kinds)
        if (kind < kZero || kind > Currency::Dollars(900'000'000'000'000)) return false;
      if (kinds[kStatLastRoll - 1] > Currency::Dollars(1'000'000'000'000)) return false;
      if (__builtin_add_overflow(counts, kinds[kStatCount - 1].raw, &counts) ||
          __builtin_add_overflow(totals, kinds[kStatTotal - 1].raw, &totals))
        return false;
    }
    if (counts > Currency::Dollars(900'000'000'000'000).raw) return false;
  }
  return true;
}

std::string SettleStatistics(Game& game) {
  const Statistics& stats = game.stats;
  for (const auto& seats : stats.Bets)
    for (const auto& scopes : seats)
      if (!CountsFit(scopes)) return "statistics of bets";
  for (int item = 0; item < kRollItems; ++item)
    if (stats.ItemLastRoll[item] > SessionRolls(stats)) return "the last roll of a number";
  const BankrollGraph& graph = game.graph;
  if (graph.PlotCount > graph.PlotPoints || graph.Next != graph.PlotPoints % kPlotRows)
    return "the bankroll graph";
  return "";
}

std::string SettleScripts(Game& game) {
  AutoBet& autobet = game.autobet;
  autobet.ScriptActive[0] = false;
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    SeatScript& script = autobet.Scripts[seat];
    if (script.ScriptNesting.size() != script.ScriptLines.size()) script.ScriptNesting.clear();
    if (!IsOccupied(game.table, seat)) autobet.ScriptActive[seat] = false;
    autobet.ScriptActive[0] = autobet.ScriptActive[0] || autobet.ScriptActive[seat];
  }
  if (!(game.percentage.ProbRollsOutOf > 0)) game.percentage.ProbRollsOutOf = 36;
  return "";
}

std::string SettleScreens(Game& game) {
  ScreenState& screen = game.screen;
  for (KeptView& view : screen.SavedViews)
    if (view.TableZoom < kLeastZoom) view = {};
  // Without a window nobody notes the rolls: it is then of a time before.
  if (screen.DiceHistoryThrows != Throws(game.stats)) screen.DiceHistory.clear();
  const auto isFace = [](int die) { return die >= 1 && die <= 6; };
  for (const KeptRoll& roll : screen.DiceHistory) {
    const bool point = roll.PointBefore == 0 || IsBoxNumber(roll.PointBefore);
    const bool shooter = roll.ShooterSeat >= 0 && roll.ShooterSeat <= kSeats;
    if (!isFace(roll.Die1) || !isFace(roll.Die2) || !point || !shooter) return "the dice history";
  }
  return "";
}

}  // namespace

std::string SettleOpenedGame(Game& game) {
  if (std::string path = FieldOutOfRange(game); !path.empty()) return path;
  constexpr std::string (*kSteps[])(Game&) = {SettlePlayers,    SettleRoll,    SettleBets,   SettleSettings,
                                              SettleStatistics, SettleScripts, SettleScreens};
  for (const auto step : kSteps)
    if (std::string problem = step(game); !problem.empty()) return problem;
  return CheckConsistency(game);
}

}  // namespace tessaryn
