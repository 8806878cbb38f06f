// What is added up over sessions, exactly: whole numbers, so that sums are the same in any order, and counts
// of every value that occurred, so that quantiles are exact. And what is read from the sums.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lab/experiment.h"
#include "lab/session.h"
#include "rules/luck.h"
#include "state/auto_bet_state.h"

namespace tessaryn {

inline constexpr double kDollar = Currency::kPerDollar;  // in raw money

using Int128 = WideInt;

// --- Sums.

struct CountedValue {
  std::int64_t amount = 0;
  std::int64_t count = 0;
};
TESSARYN_FIELDS(CountedValue, amount, count)

// How often each value occurred. What comes in waits a little, since putting it in its place costs a walk.
struct ValueCounts {
  std::vector<CountedValue> rows;  // ascending, each value once
  std::vector<CountedValue>
      waiting;              // each at a place by its hash, or the next free one; a count of 0 is free
  std::int64_t places = 0;  // taken in waiting
};
TESSARYN_FIELDS(ValueCounts, rows, waiting, places)
void CountValue(ValueCounts& counts, std::int64_t amount);
// Nothing waits any more.
void SettleCounts(ValueCounts& counts);
void AddCounts(ValueCounts& counts, const ValueCounts& other);

// Squares of what is told in small parts of a cent, over many sessions, pass 128 bits.
__extension__ typedef unsigned __int128 Word128;
struct ExactSum {
  Int128 sum = 0;
  Word128 squares = 0;
  std::int64_t carried = 0;  // how often squares came round
};
TESSARYN_FIELDS(ExactSum, sum, squares, carried)

// One system's sessions. Money in ten-thousandths.
struct SystemSums {
  std::int64_t sessions = 0;
  std::int64_t rolls = 0;
  std::int64_t won = 0;
  std::int64_t brokeEven = 0;
  std::int64_t lost = 0;
  std::int64_t ruined = 0;
  std::int64_t goal = 0;
  std::int64_t limit = 0;
  std::int64_t stopped = 0;
  std::int64_t unrolled = 0;  // ended without a roll
  ExactSum net;
  std::int64_t luckUnit = 0;  // parts of $0.0001 in which luck is told; 0 before the first session
  ExactSum adjusted;          // net less luck, in 1 / luckUnit of $0.0001
  Int128 handle = 0;
  Int128 price = 0;  // as luck is told
  Int128 drawdown = 0;
  ValueCounts nets;
  ValueCounts drawdowns;
  ValueCounts lengths;                  // rolls
  std::int64_t streak = 0;              // of the longest losing streaks
  ValueCounts streaks;                  // the longest of each session, in rolls
  ValueCounts ruins;                    // the rolls that the ruined lasted
  ValueCounts fan[kFanMarks];           // nets on the way
  std::vector<ScriptErrorKind> errors;  // of the script, as they first came up
  bool acted = false;                   // the script did something, once at least
  std::string stopReason;               // of the first that was stopped
};
TESSARYN_FIELDS(SystemSums, sessions, rolls, won, brokeEven, lost, ruined, goal, limit, stopped, unrolled,
                net, luckUnit, adjusted, handle, price, drawdown, nets, drawdowns, lengths, streak, streaks,
                ruins, fan, errors, acted, stopReason)

// Errors of a session, or of a shard, behind those that are known.
void AddScriptErrors(std::vector<ScriptErrorKind>& errors, const std::vector<ScriptErrorKind>& more);
void AddSession(SystemSums& sums, const SessionResult& result);
// Those of later sessions.
void AddSums(SystemSums& sums, const SystemSums& later);
void AddSquared(ExactSum& sum, Int128 amount);  // below 2^64 either way
void AddExact(ExactSum& sum, const ExactSum& other);

// --- What is read from them.

struct Bounds {
  double low = 0;
  double high = 0;
};
struct MeanFigure {
  double mean = 0;
  double stdDev = 0;
  Bounds ci95;
};
// unit: what one of the sum is, 10,000 for money in dollars. 0 throughout without sessions.
MeanFigure FigureMean(const ExactSum& sum, std::int64_t count, double unit);
struct ShareFigure {
  double p = 0;
  Bounds ci95;
};
// By Wilson, at 1.96.
ShareFigure FigureShare(std::int64_t count, std::int64_t of);

inline constexpr int kQuantilePercents[] = {1, 5, 10, 25, 50, 75, 90, 95, 99};
// The smallest value with a share of percent at or below it. Requires settled counts; 0 without any.
std::int64_t Quantile(const ValueCounts& counts, int percent);

struct Bin {
  std::int64_t low = 0;  // low <= value < high
  std::int64_t high = 0;
  std::int64_t count = 0;
};
// At most sixty bins of one width over all values.
std::vector<Bin> Histogram(const ValueCounts& counts);

}  // namespace tessaryn
