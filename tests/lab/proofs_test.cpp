// Luck and price against what is exact: all dice that can fall, and the edge of every bet.
// TESSARYN_LAB_PROOFS=1 plays all at full length.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "base/bet_catalogue.h"
#include "lab/session.h"
#include "rules/advantage.h"
#include "state/bet_families.h"
#include "stats/statistics.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

bool AtFullLength() { return std::getenv("TESSARYN_LAB_PROOFS") != nullptr; }

// A system's table and what it plays.
struct ProofTable {
  Experiment experiment;
  LabHost host;
  std::unique_ptr<Game> fresh;
  std::unique_ptr<LabTable> table;
  SessionResult result;

  ProofTable(const Experiment& asked, TwisterStream::NextBlockFunction dice = nullptr) : experiment(asked) {
    LabProblem problem;
    fresh = BuildTable(experiment, experiment.systems[0], host, std::string(kBinFolder) + "/", problem);
    if (problem.Found()) ADD_FAILURE() << problem.text;
    if (problem.Found()) return;
    if (dice != nullptr) fresh->generators.Mersenne.NextBlock = dice;
    table = OpenLabTable(*fresh, nullptr);
  }
  const SessionResult& Session(std::int64_t number) {
    EXPECT_TRUE(PlaySession(*table, experiment, number, result, nullptr));
    return result;
  }
};

bool IsDont(int bet) {
  const FamilyId family = FamilyOf(bet);
  return family == FamilyId::kDontComeNumber || family == FamilyId::kDontComeOdds ||
         family == FamilyId::kDontPass || family == FamilyId::kDontPassOdds || family == FamilyId::kDontCome;
}

// The bet with all that it needs to be made: what it rides on, and a point. Amounts that are paid without
// rounding, vig too.
std::vector<StandingBet> WithItsBase(int bet) {
  const FamilyId family = FamilyOf(bet);
  const int dollars = family == FamilyId::kFire ? 5 : family == FamilyId::kLay ? 240 : 60;
  const Currency amount = Currency::Dollars(dollars);
  std::vector<StandingBet> bets = {{bet, amount}};
  const bool line = family == FamilyId::kComeNumber || family == FamilyId::kComeOdds ||
                    family == FamilyId::kPassLineOdds || family == FamilyId::kCome;
  const auto add = [&](int base) {
    if (base != bet) bets.push_back({base, amount});
  };
  if (IsDont(bet)) add(kDontPass), add(kDontCome);
  if (line) add(kPassLine), add(kCome);
  return bets;
}

Experiment ProofOf(int bet, std::int64_t rolls) {
  Experiment experiment;
  experiment.bankroll = Currency::Dollars(100'000);
  experiment.rolls = rolls;
  experiment.generator = 1;
  experiment.systems = {StandingBetSystem(BetName(bet), WithItsBase(bet))};
  experiment.settings = {{"ShooterBetRule", 0, "0"}, {"MaxPropBetPayoff", 0, "100000"}};
  return experiment;
}

// --- All dice that can fall.

constexpr int kToldRolls = 3;
int toldOutcomes[kToldRolls];

// Words that the twister's scaling makes the told faces of; ones behind them.
void ToldBlock(std::uint32_t*, std::uint32_t* out) {
  std::fill_n(out, kTwisterWords, 0u);
  for (int roll = 0; roll < kToldRolls; ++roll) {
    const DicePair dice = kOutcomeDice[static_cast<std::size_t>(toldOutcomes[roll])];
    out[2 * roll] = static_cast<std::uint32_t>(dice.low - 1) * 715'827'883u;
    out[2 * roll + 1] = static_cast<std::uint32_t>(dice.high - 1) * 715'827'883u;
  }
}

struct End {
  const char* name;
  void (*set)(Experiment&);
};
const End kEnds[] = {
    {"rolls", [](Experiment&) {}},
    {"hands", [](Experiment& experiment) { experiment.hands = 1; }},
    {"goal", [](Experiment& experiment) { experiment.winGoal = Currency::Dollars(50); }},
    {"limit", [](Experiment& experiment) { experiment.lossLimit = Currency::Dollars(50); }},
    {"hours",
     [](Experiment& experiment) {
       experiment.hours = Currency::FromDouble(0.02);
       experiment.settings.push_back({"SimRollRate", 0, "100"});
     }},
    {"ruin", [](Experiment& experiment) { experiment.bankroll = Currency::Dollars(185); }},
    {"stop",
     [](Experiment& experiment) {
       experiment.systems[0].lines.push_back("if dice total = 8 then stop autoroll/turboroll endif");
     }},
};

// Over three rolls in all their 46,656 ways: net less luck has net's own mean to the last part, where luck's
// sum is nothing at all.
TEST(LabProofs, LuckComesToNothingForEveryBetAndEveryEnd) {
  for (int bet = 1; bet <= kBets; ++bet)
    for (std::size_t end = 0; end < std::size(kEnds); ++end) {
      if (!AtFullLength() && end != static_cast<std::size_t>(bet) % std::size(kEnds)) continue;
      SCOPED_TRACE(std::string(BetName(bet)) + " until " + kEnds[end].name);
      Experiment experiment = ProofOf(bet, kToldRolls);
      kEnds[end].set(experiment);
      ProofTable played(experiment, ToldBlock);
      WideInt luck = 0;
      std::int64_t lucky = 0;
      for (int all = 0; all < kOutcomes * kOutcomes * kOutcomes; ++all) {
        int ways = 1;
        for (int roll = 0, rest = all; roll < kToldRolls; ++roll, rest /= kOutcomes) {
          toldOutcomes[roll] = rest % kOutcomes;
          const DicePair dice = kOutcomeDice[static_cast<std::size_t>(toldOutcomes[roll])];
          ways *= dice.low == dice.high ? 1 : 2;
        }
        const SessionResult& result = played.Session(0);
        luck += ways * result.luck;
        lucky += result.luck != 0;
      }
      EXPECT_TRUE(luck == 0) << static_cast<double>(luck);
      EXPECT_GT(lucky, 0);
    }
}

// --- The edge.

// By the dollar decided, as it is counted: a Come bet's number is a bet of its own, and a seven, which pushes
// the World, no decision.
double EdgeOf(const Game& game, int bet) {
  if (bet == kCome) return FigureAdvantage(game, kPassComeOutRow).evPerDecision;
  if (bet == kDontCome) return FigureAdvantage(game, kDontComeOutRow).evPerDecision;
  return FigureAdvantage(game, bet).evPerDecision * (bet == kWorld ? 1.2 : 1.0);
}

// Net less luck, less what the analysis gives for the bets decided: of mean 0, where hands are played out.
TEST(LabProofs, TheMeanIsTheEdgeTimesTheHandleForEveryBet) {
  const std::int64_t sessions = AtFullLength() ? 20'000 : 1'000;
  for (int bet = 1; bet <= kBets; ++bet)
    for (const bool byHands : {false, true}) {
      SCOPED_TRACE(std::string(BetName(bet)) + (byHands ? " by hands" : " by rolls"));
      Experiment experiment = ProofOf(bet, byHands ? 0 : 40);
      experiment.hands = byHands ? 4 : 0;
      experiment.endWithHand = !byHands;
      // At an end by rolls these may stand, worth more or less than their face.
      if (!byHands && (FamilyRowOf(bet).decidedBy == DecidedBy::kHand || IsDont(bet))) continue;
      ProofTable played(experiment);
      double edge[kBets + 1];
      for (int each = 1; each <= kBets; ++each) edge[each] = EdgeOf(*played.fresh, each);
      double sum = 0;
      double squares = 0;
      Currency handle;
      for (std::int64_t session = 0; session < sessions; ++session) {
        const SessionResult& result = played.Session(session);
        double above = result.net.ToDouble() -
                       static_cast<double>(result.luck) / static_cast<double>(result.luckUnit) / 10'000;
        for (int each = 1; each <= kBets; ++each) {
          const Currency decided =
              BetStat(played.table->game->stats, kWagerStats, kCurrentSession, 1, each, kStatTotal);
          if (decided == kZero) continue;
          above -= edge[each] * decided.ToDouble();
          handle += decided;
        }
        sum += above;
        squares += above * above;
      }
      const auto n = static_cast<double>(sessions);
      const double error = std::sqrt(std::max(squares / n - sum / n * sum / n, 0.0) / n);
      EXPECT_NEAR(sum / n, 0, 4.5 * error + 1e-6 * handle.ToDouble() / n);
      EXPECT_GT(handle, kZero);
    }
}

// Each come-out costs its 7 in 495, and each leads to one decision.
TEST(LabProofs, TheLineCostsItsEdgeToTheLastPart) {
  Experiment experiment = ProofOf(kPassLine, 50);
  experiment.endWithHand = true;
  ProofTable played(experiment);
  for (std::int64_t session = 0; session < 500; ++session) {
    const SessionResult& result = played.Session(session);
    EXPECT_TRUE(result.price * 495 == WideInt{7} * result.handle.raw * result.luckUnit) << session;
    EXPECT_TRUE(WideInt{result.net.raw} * result.luckUnit - result.luck == -result.price) << session;
  }
}

}  // namespace
}  // namespace tessaryn::test
