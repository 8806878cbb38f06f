#include "cli/table_json.h"

#include <cmath>

#include "base/bet_catalogue.h"
#include "dice/roll_file.h"
#include "play/bet_facts.h"
#include "rules/bet_rules.h"
#include "stats/statistics.h"

namespace tessaryn::cli {

Json MoneyJson(Currency value) {
  if (value.IsError()) return nullptr;
  if (value.IsWhole()) return value.raw / Currency::kPerDollar;
  return value.ToDouble();
}

Json BetsUpJson(const Game& game, SeatId seat) {
  Json bets = Json::object();
  game.table.seats[seat].SeatBets.ForEach(
      [&](BetId bet) { bets[std::to_string(bet)] = MoneyJson(game.table.BetAmount(seat, bet)); });
  return bets;
}

namespace {

Json SeatJson(const Game& game, SeatId seat) {
  const TableState& table = game.table;
  Json bets = Json::object();
  table.seats[seat].SeatBets.ForEach([&](BetId bet) {
    bets[std::to_string(bet)] = {{"amount", MoneyJson(table.BetAmount(seat, bet))},
                                 {"working", BetWorkingOf(game, seat, bet)},
                                 {"committed", MoneyJson(table.BetCommitted(seat, bet))}};
  });
  Json stacks = Json::object();
  for (int stack = 0; stack < kCheckStacks; ++stack)
    if (const Currency value = table.BetAmount(seat, kFirstCheckStack + stack); value != kZero)
      stacks[std::to_string(stack)] = MoneyJson(value);
  return {{"seat", seat},
          {"name", table.seats[seat].SeatName},
          {"bankroll", MoneyJson(table.BankrollCurrent[seat])},
          {"onTable", MoneyJson(table.seats[seat].OnTableAmount)},
          {"rail", MoneyJson(table.BankrollCurrent[seat] - table.seats[seat].OnTableAmount)},
          {"bets", bets},
          {"checkstacks", stacks}};
}

Json KindsJson(const Statistics& stats, StatTable table, ScopeId scope, SeatId seat, BetId bet) {
  constexpr const char* kNames[] = {"count", "total", "high", "low", "lastRoll", "lastAmount"};
  Json kinds;
  for (int kind = kStatCount; kind <= kStatLastAmount; ++kind)
    kinds[kNames[kind - 1]] = MoneyJson(BetStat(stats, table, scope, seat, bet, static_cast<StatKind>(kind)));
  return kinds;
}

Json BetStatsJson(const Statistics& stats, SeatId seat, ScopeId scope, BetId onlyBet) {
  Json bets = Json::object();
  for (BetId bet = 1; bet <= kBets; ++bet) {
    const bool any = BetStat(stats, kWagerStats, scope, seat, bet, kStatCount) != kZero;
    if (onlyBet != 0 ? bet != onlyBet : !any) continue;
    bets[std::to_string(bet)] = {{"name", BetName(bet)},
                                 {"wagers", KindsJson(stats, kWagerStats, scope, seat, bet)},
                                 {"wins", KindsJson(stats, kWinStats, scope, seat, bet)},
                                 {"losses", KindsJson(stats, kLossStats, scope, seat, bet)}};
  }
  return bets;
}

Json RollItemsJson(const Statistics& stats, SeatId seat, ScopeId scope) {
  Json items = Json::object();
  for (int item = 0; item < kRollItems; ++item)
    if (item == 0 || !RollItemName(item).empty())
      items[std::to_string(item)] = RollCount(stats, scope, seat, item);
  return items;
}

Json NumbersJson(const Statistics& stats, int slot) {
  Json numbers = Json::object();
  for (int number = 2; number <= 12; ++number)
    numbers[std::to_string(number)] = {{"comeoutRolls", stats.NumberCounts[slot][number][kComeoutRolls]},
                                       {"passes", stats.NumberCounts[slot][number][kPasses]},
                                       {"misses", stats.NumberCounts[slot][number][kMisses]}};
  return numbers;
}

std::int64_t SumNumbers(const Statistics& stats, int slot, NumberKind kind) {
  std::int64_t sum = 0;
  for (int number = 2; number <= 12; ++number) sum += stats.NumberCounts[slot][number][kind];
  return sum;
}

Currency SumBets(const Statistics& stats, StatTable table, SeatId seat, StatKind kind) {
  Currency sum;
  for (BetId bet = 1; bet <= kBets; ++bet) sum += BetStat(stats, table, kAllSessions, seat, bet, kind);
  return sum;
}

}  // namespace

Json StateJson(const Game& game) {
  const TableState& table = game.table;
  Json state{{"point", table.Point},
             {"die1", table.Die1},
             {"die2", table.Die2},
             {"rolls", SessionRolls(game.stats)},
             {"shooter", table.ShooterSeat},
             {"handSeat", table.HandSeat},
             {"selected", table.SelectedSeat},
             {"stopReason", table.StopReason}};
  constexpr const char* kRecorderStates[] = {"off", "record", "playback"};
  const RollFile& file = game.rollFile;
  state["recorder"] = {{"state", kRecorderStates[file.RecorderState]},
                       {"file", file.RollFileName},
                       {"next", file.RollFileCursor},
                       {"rolls", RollFileLength(file)}};
  Json seats = Json::array();
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat)) seats.push_back(SeatJson(game, seat));
  state["seats"] = seats;
  return state;
}

Json StatsJson(const Game& game, SeatId seat, ScopeId scope, BetId bet) {
  const Statistics& stats = game.stats;
  const int slot = Slot(scope, seat);
  return {{"seat", seat},
          {"scope", scope},
          {"bets", BetStatsJson(stats, seat, scope, bet)},
          {"rolls", RollItemsJson(stats, seat, scope)},
          {"numbers", NumbersJson(stats, slot)},
          {"hands",
           {{"handCount", stats.HandCount[slot]},
            {"playerRolls", PlayerRolls(stats, scope, seat)},
            {"mostRollsInHand", stats.MostRollsInHand[slot]},
            {"mostComeoutRollsInHand", stats.MostComeoutRollsInHand[slot]},
            {"mostPassesInHand", stats.MostPassesInHand[slot]},
            {"mostMissesInHand", stats.MostMissesInHand[slot]}}},
          {"bankroll",
           {{"beginning", MoneyJson(stats.BankrollBeginning[slot])},
            {"current", MoneyJson(BankrollOf(game, scope, seat))},
            {"high", MoneyJson(stats.BankrollHigh[slot])},
            {"low", MoneyJson(stats.BankrollLow[slot])},
            {"atm", MoneyJson(stats.AtmTotal[slot])}}}};
}

Json RunJson(const Game& game, const RunFigures& figures) {
  const Statistics& stats = game.stats;
  // A script may have begun sessions: the run is all of them.
  const int table = Slot(kAllSessions, 0);
  Json totals = Json::object();
  for (int total = 2; total <= 12; ++total)
    totals[std::to_string(total)] = RollCount(stats, kAllSessions, 0, total);
  Json seats = Json::array();
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    seats.push_back({{"seat", seat},
                     {"name", game.table.seats[seat].SeatName},
                     {"bankrollStart", MoneyJson(figures.bankrollStart[seat])},
                     {"bankroll", MoneyJson(game.table.BankrollCurrent[seat])},
                     {"onTable", MoneyJson(game.table.seats[seat].OnTableAmount)},
                     {"betsWon", MoneyJson(SumBets(stats, kWinStats, seat, kStatCount))},
                     {"betsLost", MoneyJson(SumBets(stats, kLossStats, seat, kStatCount))},
                     {"wagered", MoneyJson(SumBets(stats, kWagerStats, seat, kStatTotal))},
                     {"won", MoneyJson(SumBets(stats, kWinStats, seat, kStatTotal))},
                     {"lost", MoneyJson(SumBets(stats, kLossStats, seat, kStatTotal))},
                     {"bets", BetsUpJson(game, seat)}});
  }
  return {
      {"rolls", figures.rolls},
      {"seconds", figures.seconds},
      {"rollsPerSecond", figures.seconds > 0 ? static_cast<double>(figures.rolls) / figures.seconds : 0.0},
      {"stopReason", figures.stopReason},
      {"table",
       {{"point", game.table.Point},
        {"hands", stats.HandCount[table]},
        {"comeoutRolls", SumNumbers(stats, table, kComeoutRolls)},
        {"passes", SumNumbers(stats, table, kPasses)},
        {"misses", SumNumbers(stats, table, kMisses)},
        {"totals", totals}}},
      {"seats", seats}};
}

Json FactsJson(Game& game, BetId bet) {
  const BetTerms terms = BetTermsOf(game, game.table.SelectedSeat, bet);
  const auto rounded = [](double value) { return std::round(value * 1e6) / 1e6 + 0.0; };
  Json lines = Json::array();
  for (const FactText& line : TipFacts(terms)) lines.push_back(InEnglish(line));
  return {{"bet", bet},
          {"name", BetName(bet)},
          {"text", InEnglish(PointerFacts(terms, true), ", ")},
          {"lines", lines},
          {"amount", MoneyJson(terms.amount)},
          {"pays", InEnglish(terms.pays)},
          {"winIn36", rounded(terms.chances.win)},
          {"loseIn36", rounded(terms.chances.lose)},
          {"working", terms.working},
          {"edge", rounded(terms.edge)},
          {"rollsToDecide", rounded(terms.rollsToDecide)},
          {"vig", MoneyJson(terms.vigAmount)},
          {"minimum", MoneyJson(terms.minimum)},
          {"room", MoneyJson(terms.room)},
          {"refusal", terms.refusal}};
}

}  // namespace tessaryn::cli
