// The fixed order in which a roll decides the bets, as data. It is the order in which a dealer takes and
// pays: all losers, then all winners. Each step is one pass over the seats.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/table_types.h"

namespace tessaryn {

// On which rolls of its total a step stands.
enum class StepWhen : std::uint8_t {
  kAlways,
  kComeOut,
  kPointOn,
  kPair,
  kNoPair,
  kBar12,
  kBar12ComeOut,
  kBar2,
  kBar2ComeOut,
};

// What steps ask of a roll.
struct RollFacts {
  bool comeOut;
  bool pair;
  int barNumber;  // 12 or 2
};

// Whether a step that stands on such rolls stands on this one.
constexpr bool Holds(StepWhen when, const RollFacts& roll) {
  switch (when) {
    case StepWhen::kAlways:
      return true;
    case StepWhen::kComeOut:
      return roll.comeOut;
    case StepWhen::kPointOn:
      return !roll.comeOut;
    case StepWhen::kPair:
      return roll.pair;
    case StepWhen::kNoPair:
      return !roll.pair;
    case StepWhen::kBar12:
      return roll.barNumber == 12;
    case StepWhen::kBar12ComeOut:
      return roll.barNumber == 12 && roll.comeOut;
    case StepWhen::kBar2:
      return roll.barNumber == 2;
    case StepWhen::kBar2ComeOut:
      return roll.barNumber == 2 && roll.comeOut;
  }
  return false;
}

struct SettleStep {
  std::uint8_t bet;
  std::int8_t code;  // of the bet; its odds take -2 or 2
  StepWhen when = StepWhen::kAlways;
  std::uint8_t oddsBet = 0;  // settled seat by seat right behind the bet
};

// Steps and the bets in them, so that a list without a bet that is up costs one test.
struct SettleSteps {
  std::span<const SettleStep> steps;
  BetSet bets;

  constexpr SettleSteps() = default;
  constexpr SettleSteps(std::span<const SettleStep> list) : steps(list) {  // NOLINT: a list is its steps
    for (const SettleStep& step : list) {
      bets.Add(step.bet);
      if (step.oddsBet != 0) bets.Add(step.oddsBet);
    }
  }
};

// Don't Pass as the point is made; Pass Line as the point is made.
extern const SettleSteps kPointMadeLosers;
extern const SettleSteps kPointMadeWinners;
// By total 2 to 12.
extern const std::array<SettleSteps, 13> kLosersByTotal;
extern const std::array<SettleSteps, 13> kWinnersByTotal;
// The Field, whose table tells a win from a loss, the one-roll propositions that lose on the total, and
// Over and Under, which are decided here either way.
extern const std::array<SettleSteps, 13> kOneRollSteps;
// By pair of faces (CombinationIndex): the hop bets that it loses, and that it pays, behind the other
// winners.
extern const std::array<SettleSteps, 36> kHopLosers;
extern const std::array<SettleSteps, 36> kHopWinners;

}  // namespace tessaryn
