// One session of a system: a fresh table, its own dice, played until an end.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/record_file.h"
#include "lab/experiment.h"
#include "rules/luck.h"

namespace tessaryn {

inline constexpr int kFanMarks = 20;  // the bankroll is looked at so often on the way to the last roll
inline constexpr std::int64_t kMostStatements = 10'000'000;  // of a script between two rolls

enum SessionMark : std::uint8_t {
  kMarkRuined = 1,
  kMarkGoal = 2,
  kMarkLimit = 4,
  kMarkStopped = 8,
};

struct SessionResult {
  Currency net;          // without what came from the ATM
  Currency handle;       // decided, pushes not counted
  Currency maxDrawdown;  // the greatest fall from an earlier high, the start included
  Currency highest;      // net at the highest point, 0 at least
  // Rolls in a row that lost; rolls that decided nothing, or came out even, don't end it.
  std::int64_t losingStreak = 0;
  std::int64_t rolls = 0;
  std::int64_t hands = 0;     // seven-outs
  WideInt luck = 0;           // what the dice brought beyond their mean, in 1 / luckUnit of $0.0001
  WideInt price = 0;          // what the bets were expected to cost as they rode, likewise
  std::int64_t luckUnit = 1;  // the same for all sessions of a system
  std::uint8_t marks = 0;     // what it met at some roll's end: SessionMark
};
TESSARYN_FIELDS(SessionResult, net, handle, maxDrawdown, highest, losingStreak, rolls, hands, luck, price,
                luckUnit, marks)

// What the laboratory's tables ask of the outside: nobody is there, and no clock goes.
struct LabHost : Host {
  const std::atomic<bool>* stop = nullptr;  // set: the work in hand is given up
  std::int64_t statements = 0;              // of the script's run in hand, about
  bool endless = false;                     // the script was stopped, since it would not end
  int endlessLine = 0;

  void ShowMessage(Game& game, MessageBox& box) override;
  bool Yield(Game& game) override;
  bool YieldByClock(Game& game) override;
  std::uint32_t TickMilliseconds() override { return 1'000'000; }
  std::string DateText() override { return "2000-01-01"; }
  std::string TimeText() override { return "12:00:00"; }
  double SecondsSinceMidnight() override { return 43'200; }
  double DateTimeNumber() override { return 36'526.5; }
  void ShowStep(Game& game, const ScriptStep& shown) override;
};

// The bets and CheckStacks that a session has touched.
struct TouchedBets {
  BetSet bets;
  BetSet stacks;
};

// The table that a worker plays a system's sessions on, one after the other.
struct LabTable {
  LabHost host;
  std::unique_ptr<Game> game;
  const Game* fresh = nullptr;  // the table before its first session; outlives this one
  TouchedBets touched;
  LuckMeter luck;
  // Of the last session.
  Currency fan[kFanMarks];  // net at the marks; what came of it, behind its end
  std::string stopReason;
};

// fresh outlives the table.
std::unique_ptr<LabTable> OpenLabTable(const Game& fresh, const std::atomic<bool>* stop);
// Back to what it was before the first session: only what a session changes is looked at.
void ResetLabTable(LabTable& table);
// Plays session k. record: as the Sessions Log has it; may be null. False when it was given up, or when the
// script would not end: then host.endless.
bool PlaySession(LabTable& table, const Experiment& experiment, std::int64_t session, SessionResult& result,
                 Record* record);

}  // namespace tessaryn
