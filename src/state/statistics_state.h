// Everything that is counted. Tables are indexed by slot (scope * 9 + seat), seat 0 being the table as a
// whole. Nothing is computed from a history of rolls: there is none.
#pragma once

#include <cstdint>

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

enum StatKind : int {
  kStatCount = 1,  // bets resolved, won or lost
  kStatTotal = 2,
  kStatHigh = 3,
  kStatLow = 4,       // never 0 once there is one
  kStatLastRoll = 5,  // session roll number; in the all-sessions slot that of all sessions
  kStatLastAmount = 6,
};
enum StatTable : int { kWagerStats = 0, kWinStats = 1, kLossStats = 2 };
inline constexpr int kStatTables = 3;

// Roll items: 0 rolls, 2 to 89 outcomes and groups of outcomes, 1 and 90 never counted.
inline constexpr int kRollItems = 91;
inline constexpr int kGapCells = 201;
inline constexpr int kDicePairs = 36;
// The pair of two faces as an index 0 to 35.
constexpr int PairIndex(int die1, int die2) { return (die1 - 1) * 6 + die2 - 1; }

// The six kinds of one bet in the wagers, wins and losses of one slot.
struct BetStats {
  Currency kinds[kStatTables][6];  // kind - 1
};
TESSARYN_FIELDS(BetStats, kinds)

enum NumberKind : int { kComeoutRolls = 0, kPasses = 1, kMisses = 2 };

struct Statistics {
  // The running scopes lie within each other, so a resolved bet is counted in the current hand alone: the
  // current session here is what was before this hand, all sessions what was before this session. BetStat
  // puts them together.
  BetStats Bets[101][kSeatRows][kScopes];
  // Which bets 1 to 93 have entries in the current-hand and last-hand scopes.
  BetSet HandBets[kSeatRows];
  BetSet LastHandBets[kSeatRows];

  // Roll items are counted by exact pair of faces and summed when read: item counts are unions of pairs.
  // Like the bets, rolls are counted in the current hand alone.
  std::int32_t PairCounts[kSlots][kDicePairs] = {};
  std::int32_t RollTotals[kSlots] = {};  // item 0
  // Of all sessions before this one, whatever is kept of them: no new session sets it back.
  std::int64_t ThrowsBeforeSession = 0;
  // A gap is counted when it ends: the session roll that an item last came on, 0 never.
  std::int32_t ItemLastRoll[kRollItems] = {};
  std::int32_t RollGapCounts[kRollItems][kGapCells] = {};

  std::int32_t NumberCounts[kSlots][13][3] = {};  // by number 2 to 12 and NumberKind
  std::int32_t HandCount[kSlots] = {};
  std::int32_t MostRollsInHand[kSlots] = {};
  std::int32_t MostComeoutRollsInHand[kSlots] = {};
  std::int32_t MostPassesInHand[kSlots] = {};
  std::int32_t MostMissesInHand[kSlots] = {};
  // PlayerRolls is the table's roll count of the scope less what was rolled before the player joined.
  std::int32_t RollsNotSeen[kSlots] = {};
  std::int32_t HandComeoutRolls = 0;
  std::int32_t HandPasses = 0;
  std::int32_t HandMisses = 0;
  std::uint16_t HandSlotsUsed = 0;  // seats with rolls in the current-hand scope
  std::uint16_t LastHandSlotsUsed = 0;

  Currency BankrollBeginning[kSlots];
  Currency BankrollHigh[kSlots];
  Currency BankrollLow[kSlots];
  Currency BankrollClosing[kSlots];     // of the last-hand and last-session scopes
  Currency AtmTotal[kSlots];            // drawn from the ATM, less what was deposited
  Currency BankrollRollSum[kSeatRows];  // sum of the closing bankroll over the session's rolls
  Currency BankrollSessionStart[kSeatRows];
  Currency ComeTravelTotals[kSlots][6];
};
TESSARYN_FIELDS(Statistics, Bets, HandBets, LastHandBets, PairCounts, RollTotals, ThrowsBeforeSession,
                ItemLastRoll, RollGapCounts, NumberCounts, HandCount, MostRollsInHand, MostComeoutRollsInHand,
                MostPassesInHand, MostMissesInHand, RollsNotSeen, HandComeoutRolls, HandPasses, HandMisses,
                HandSlotsUsed, LastHandSlotsUsed, BankrollBeginning, BankrollHigh, BankrollLow,
                BankrollClosing, AtmTotal, BankrollRollSum, BankrollSessionStart, ComeTravelTotals)

// Session rolls so far, and rolls of all sessions.
inline std::int64_t SessionRolls(const Statistics& stats) {
  return stats.RollTotals[Slot(kCurrentSession, 0)];
}
// How often the dice were thrown at this table: what a run of so many rolls counts, since a script may begin
// a session in the middle of it.
inline std::int64_t Throws(const Statistics& stats) {
  return stats.ThrowsBeforeSession + SessionRolls(stats);
}
inline std::int64_t HandRolls(const Statistics& stats) { return stats.RollTotals[Slot(kCurrentHand, 0)]; }

}  // namespace tessaryn
