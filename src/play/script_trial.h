// A script tried beside the table: on a copy of it, for so many rolls, and what single words of it are worth
// now.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "autobet/run/script_watch.h"
#include "base/money.h"
#include "state/script_types.h"

namespace tessaryn {

struct Game;
struct ScriptErrorKind;

// Told and asked by another thread while a trial runs.
struct TrialProgress {
  std::atomic<std::int64_t> rolls = 0;
  std::atomic<bool> stop = false;
};

// What the seat's bets of one kind came to in the trial alone.
struct TrialBet {
  BetId bet = 0;
  std::int64_t won = 0;
  std::int64_t lost = 0;
  Currency wagered;
  Currency net;
};

struct TrialResult {
  std::string problem;  // why nothing was rolled; empty when something was
  std::int64_t rolls = 0;
  double seconds = 0;
  std::string stopReason;  // empty: all rolls were made, or it was stopped
  bool stopped = false;
  Currency net;  // won less lost
  Currency wagered;
  std::vector<TrialBet> bets;       // those that were decided
  std::vector<Currency> bankrolls;  // what the player has, bets included, at even distances; the start first
  std::vector<ScriptErrorKind> errors;
  std::vector<LineProfile> lines;  // of the script, by line; 0 unused. Empty if they weren't counted.
};

// A trial that has been made ready. The table that it was made from is not touched by it.
class ScriptTrial {
 public:
  // Of the lines as the script of an occupied seat, active; other scripts are as they are at the table. seed
  // 0: the copy's dice go on as the table's would; else they begin at it. Whoever shoots needs no bet for it,
  // so that players who only stand there don't end the trial.
  ScriptTrial(const Game& game, SeatId seat, const std::vector<std::string>& lines, std::uint32_t seed);
  ~ScriptTrial();
  ScriptTrial(const ScriptTrial&) = delete;
  ScriptTrial& operator=(const ScriptTrial&) = delete;

  // In any one thread, once. Returns when all is rolled, something ends the run, or progress asks to stop.
  // counted: the script's lines are counted and timed, which takes time itself.
  TrialResult Run(std::int64_t rolls, TrialProgress& progress, bool counted = false);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

// What expressions of the language are worth to a seat as the table stands, as texts; empty for one that
// can't be told. The table is not touched.
std::vector<std::string> PresentValues(const Game& game, SeatId seat,
                                       const std::vector<std::string>& expressions);

// What the variables and functions in the condition of a line are worth now: "passline 0, max(cs1, cs2) 12".
// Empty for a line without a condition.
std::string ConditionValues(const Game& game, SeatId seat, const std::string& line);

}  // namespace tessaryn
