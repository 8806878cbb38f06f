// An experiment: systems, tables, ends and dice. It holds all that its results hang on, scripts' text
// included, so that a file of it can be gone on with anywhere.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/fields.h"
#include "play/script_session.h"
#include "play/setting_table.h"
#include "state/game.h"

namespace tessaryn {

// The value that a CheckStack starts at.
struct StackStart {
  int stack = 0;  // 0 to 99
  Currency amount;
};
TESSARYN_FIELDS(StackStart, stack, amount)

struct LabSetting {
  std::string name;
  SeatId seat = 0;
  std::string text;  // its value
};
TESSARYN_FIELDS(LabSetting, name, seat, text)

// A system: a script, where its CheckStacks start, and settings of its own.
struct LabSystem {
  std::string name;                // the script's file name, or the text of the standing bets
  std::vector<std::string> lines;  // the script
  bool standingBets = false;       // written for standing bets: what is refused is nobody's fault
  std::vector<StackStart> stacks;
  std::vector<LabSetting> settings;
};
TESSARYN_FIELDS(LabSystem, name, lines, standingBets, stacks, settings)

inline constexpr SeatId kLabSeat = 1;  // where every system plays
inline constexpr std::int64_t kMostLabSessions = 1'000'000'000;
inline constexpr std::size_t kMostSystems = 1'000;
inline constexpr int kMostShards = 100'000;

struct Experiment {
  std::uint64_t seed = 1;
  std::int64_t sessions = 10'000;  // the most, where precision ends it
  Currency bankroll = Currency::Dollars(500);
  // The ends; 0 for none. Every one that is given counts.
  std::int64_t rolls = 500;
  std::int64_t hands = 0;  // seven-outs
  Currency hours;          // of play, by the roll rate
  Currency winGoal;
  Currency lossLimit;
  bool endWithHand = false;  // ends fall when no contract bet is up
  Currency precision;        // half the width of the bounds that is enough; 0: all sessions are played
  int generator = 0;         // 1 to 8; 0 the start-up generator
  std::vector<LabSetting> settings;
  bool percentageDice = false;
  ProbabilityCells probabilities{};  // of percentage dice
  std::vector<LabSystem> systems;
  // Which part of the sessions is played: the shard-th of shards, from 1.
  int shard = 1;
  int shards = 1;
};
TESSARYN_FIELDS(Experiment, seed, sessions, bankroll, rolls, hands, hours, winGoal, lossLimit, endWithHand,
                precision, generator, settings, percentageDice, probabilities, systems, shard, shards)

// The sessions of a shard: first < k <= last.
struct SessionRange {
  std::int64_t first = 0;
  std::int64_t last = 0;
};
SessionRange SessionsOf(const Experiment& experiment);

// "field.bet", or "field.bet [CheckStack 1=5, OddsCalcMethod=2]".
std::string LabelOf(const LabSystem& system);

// A standing bet: put up again before each roll when it is down.
struct StandingBet {
  BetId bet = 0;
  Currency amount;
};
LabSystem StandingBetSystem(const std::string& name, const std::vector<StandingBet>& bets);

// What is wrong with a system's table.
struct LabProblem {
  std::string text;    // empty: nothing
  ScriptCheck script;  // failed: its span tells where
  bool Found() const { return !text.empty(); }
};

// The table on which a system's sessions are played, before the first: its player seated, its script active
// and nothing rolled. Writes no file. host outlives it. Null with the problem when the experiment can't be
// played.
std::unique_ptr<Game> BuildTable(const Experiment& experiment, const LabSystem& system, Host& host,
                                 const std::string& applicationFolder, LabProblem& problem);

}  // namespace tessaryn
