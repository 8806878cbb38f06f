// Everything that is counted. Tables are indexed by slot (scope * 9 + seat), seat 0 being the table as a
// whole. Nothing is computed from a history of rolls: there is none.
#pragma once

#include <cstdint>
#include <string>

#include "state/statistics_state.h"

namespace tessaryn {

struct Game;

// --- Reading. Every table by its slot, whatever the storage.
std::int64_t RollCount(const Statistics& stats, ScopeId scope, SeatId seat, int item);
std::int64_t PlayerRolls(const Statistics& stats, ScopeId scope, SeatId seat);
Currency BetStat(const Statistics& stats, StatTable table, ScopeId scope, SeatId seat, BetId bet,
                 StatKind kind);
std::int64_t RollsSinceLast(const Statistics& stats, int item);
// The bankroll by slot; the running scopes read the seat's own.
Currency BankrollOf(const Game& game, ScopeId scope, SeatId seat);
// The latest roll as the StatLastRoll of a scope counts: rolls since last are taken from here.
RollNumber LatestRoll(const Statistics& stats, ScopeId scope);
// Turns a StatLastRoll of a scope into rolls since then; -1 for never.
std::int64_t RollsSince(const Statistics& stats, ScopeId scope, Currency statLastRoll);
// The text of a roll item as selectors list it; empty for items that are never counted.
std::string RollItemName(int item);
// Kinds 1 to 6 of the bets first to last, added up (extremes too) into bet row 0 of the seat's current hand.
void SumBetStats(Statistics& stats, SeatId seat, ScopeId scope, BetId firstBet, BetId lastBet, bool clearRow);
// The note about the hand's shooter that summaries show; empty when there is nothing to tell.
std::string LastHandNote(const Game& game, ScopeId scope);
// Simulated hours of a scope for a seat.
double SimulatedHours(const Game& game, ScopeId scope, SeatId seat);

// --- Writing.
// One resolved bet. A net of 0 is no decision. Returns false, with nothing changed, if a sum would overflow.
bool UpdateBetStats(Game& game, SeatId seat, BetId bet, Currency wagered, Currency net);
// The dice of a roll, before the point moves: rolls, items, gaps and the opening of a hand.
void CountRoll(Game& game);
// A come-out roll, a pass or a miss under a number.
void CountLine(Game& game, NumberKind kind, int number);
// Bankroll extremes and sums as a roll closes.
void CloseRollStatistics(Game& game);
void EndHandStatistics(Game& game);
// The rotation of a new session: session slots become last session; hand and session start at zero.
void StartSessionStatistics(Game& game);
// Everything of all sessions to zero; the last session and the last hand stay.
void ClearPreviousSessions(Game& game);
// A seat's bankroll as a start: beginning and extremes of the running scopes.
void StartBankroll(Game& game, SeatId seat, Currency amount);

}  // namespace tessaryn
