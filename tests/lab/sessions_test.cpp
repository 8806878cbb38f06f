// Sessions of the laboratory: as good as played on a new table, and distributed as a plain dynamic program
// says.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>

#include "lab/dice_streams.h"
#include "lab/laboratory.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

// Not a constant: the folders are known only once the program has begun.
std::string ProgramFolder() { return std::string(kBinFolder) + "/"; }

Experiment Scripted(const std::vector<std::string>& script, std::int64_t sessions, std::int64_t rolls) {
  Experiment experiment;
  experiment.sessions = sessions;
  experiment.rolls = rolls;
  experiment.systems.resize(1);
  experiment.systems[0].name = "test.bet";
  experiment.systems[0].lines = script;
  return experiment;
}

LabState Played(const Experiment& experiment, int threads = 2) {
  LabState state = BeginLab(experiment, false, false);
  LabRun run;
  run.threads = threads;
  run.applicationFolder = ProgramFolder();
  EXPECT_EQ(RunLab(state, run), "");
  SettleState(state);
  return state;
}

// Touches all that a script can: bets of every family, odds, CheckStacks and their names, errors, the ATM.
const std::vector<std::string> kBusyScript = {
    "if passline = 0 and comeout roll then bet 10 on passline endif",
    "if point is established then bet 10 on come : bet 20 on passlineodds endif",
    "bet 12 on place6 : bet 20 on buy4 : bet 41 on lay10 : bet 5 on field : bet 2 on hard8",
    "bet 3 on fire : bet 1 on allsmall : bet 5 on 7point7 : bet 4 on horn",
    "cs1 = cs1 + 1 : cs(20 + cs1 - 10 * int(cs1 / 10)) = bankroll : csn2 = \"n\" & cs1",
    "if rnd < .1 then atm withdraw 5 endif",
    "if cs1 > 30 then cs3 = 1 / (cs1 - cs1) endif",
    "if bankroll < 300 then csn5 = \"low\" : remove field endif"};

TEST(LabSession, OnAUsedTableIsTheOneOnANewTable) {
  Experiment experiment = Scripted(kBusyScript, 100, 70);
  experiment.endWithHand = true;
  experiment.settings = {{"AutoTakeOdds", 0, "1"}};
  LabHost host;
  LabProblem problem;
  const auto fresh = BuildTable(experiment, experiment.systems[0], host, ProgramFolder(), problem);
  ASSERT_FALSE(problem.Found()) << problem.text;
  const auto used = OpenLabTable(*fresh, nullptr);
  const auto untouched = OpenLabTable(*fresh, nullptr);
  std::mt19937 random(1);
  for (int i = 0; i < 12; ++i) {
    const std::int64_t session = static_cast<std::int64_t>(random() % 1'000);
    const auto once = OpenLabTable(*fresh, nullptr);
    SessionResult first;
    SessionResult second;
    Record records[2];
    ASSERT_TRUE(PlaySession(*once, experiment, session, first, &records[0]));
    ASSERT_TRUE(PlaySession(*used, experiment, session, second, &records[1]));
    EXPECT_EQ(FirstDifference(*once->game, *used->game), "") << "session " << session;
    EXPECT_EQ(FirstDifference(first, second), "");
    EXPECT_EQ(records[0], records[1]);
    EXPECT_GT(first.rolls, 10);
    ResetLabTable(*used);
    used->game->autobet.Program = {};
    untouched->game->autobet.Program = {};
    used->game->autobet.ScriptsCompiled = untouched->game->autobet.ScriptsCompiled = false;
    used->game->table.AutoRollActive = used->game->table.TurboRollActive = false;
    const std::string difference = FirstDifference(*untouched->game, *used->game);
    EXPECT_EQ(difference, "") << "behind session " << session;
  }
}

TEST(LabSession, HasDiceOfItsOwnAndTheSameForEverySystem) {
  Generators generators;
  generators.GeneratorIndex = kGeneratorMersenne;
  std::map<std::vector<std::uint32_t>, std::uint64_t> seen;
  for (std::uint64_t session = 0; session < 20'000; ++session) {
    SetDiceStream(generators, 7, session);
    const auto* words = generators.Mersenne.State;
    EXPECT_TRUE(seen.emplace(std::vector<std::uint32_t>(words + 2, words + 4), session).second);
  }
}

// --- Against a dynamic program, in whole dollars.

struct Line {
  int point = 0;
  int net = 0;
  int stake = 0;
  auto operator<=>(const Line&) const = default;
};

struct Rules {
  int bankroll;
  int rolls;
  int goal;
  int limit;
};

struct Distribution {
  std::map<int, double> nets;
  double ruined = 0;
  double goal = 0;
  double limit = 0;
  double length = 0;
};

// advance: what a roll's total makes of a state.
Distribution Figured(const Rules& rules, Line start, const std::function<Line(Line, int)>& advance) {
  Distribution result;
  std::map<Line, double> playing = {{start, 1.0}};
  for (int roll = 1; roll <= rules.rolls && !playing.empty(); ++roll) {
    std::map<Line, double> next;
    for (const auto& [state, share] : playing) {
      result.length += share;
      for (int total = 2; total <= 12; ++total) {
        const double part = share * (6 - std::abs(7 - total)) / 36;
        const Line then = advance(state, total);
        const bool ruined = rules.bankroll + then.net < 1;
        const bool goal = rules.goal > 0 && then.net >= rules.goal;
        const bool limit = rules.limit > 0 && then.net <= -rules.limit;
        result.ruined += ruined ? part : 0;
        result.goal += goal ? part : 0;
        result.limit += limit ? part : 0;
        if (ruined || goal || limit || roll == rules.rolls)
          result.nets[then.net] += part;
        else
          next[then] += part;
      }
    }
    playing = std::move(next);
  }
  return result;
}

Line PassLine(Line at, int total) {
  if (at.point == 0) {
    if (total == 7 || total == 11)
      at.net += at.stake;
    else if (total == 2 || total == 3 || total == 12)
      at.net -= at.stake;
    else
      at.point = total;
  } else if (total == at.point || total == 7) {
    at.net += total == 7 ? -at.stake : at.stake;
    at.point = 0;
  }
  return at;
}

// Twelve is barred.
Line DontPass(Line at, int total) {
  if (at.point == 0 && total == 12) return at;
  const int before = at.net;
  at = PassLine(at, total);
  at.net = 2 * before - at.net;
  return at;
}

Line Field(Line at, int total) {
  at.net += total == 2 || total == 12 ? 2 * at.stake : total >= 5 && total <= 8 ? -at.stake : at.stake;
  return at;
}

struct Case {
  const char* name;
  std::vector<std::string> script;
  Rules rules;
  Line start;
  std::function<Line(Line, int)> advance;
  bool lineBet;
};

std::int64_t SessionsToPlay() {
#ifdef NDEBUG
  return test::LengthOf("TESSARYN_LAB_SESSIONS", 100'000, 1'000);
#else
  return 1'000;  // each roll is checked through
#endif
}

void ExpectShare(const char* name, std::int64_t count, std::int64_t of, double exact) {
  const double error = std::sqrt(exact * (1 - exact) / static_cast<double>(of));
  EXPECT_NEAR(static_cast<double>(count) / static_cast<double>(of), exact, 4 * error + 1e-12) << name;
}

double Below(const std::map<int, double>& nets, int bound) {
  double sum = 0;
  for (const auto& [net, share] : nets) sum += net <= bound ? share : 0;
  return sum;
}

void ExpectDistributed(const Case& one, const SystemSums& sums, const Distribution& exact) {
  const std::int64_t n = sums.sessions;
  ExpectShare("ruined", sums.ruined, n, exact.ruined);
  ExpectShare("goal", sums.goal, n, exact.goal);
  ExpectShare("limit", sums.limit, n, exact.limit);
  ExpectShare("lost", sums.lost, n, Below(exact.nets, -1));
  ExpectShare("won", sums.won, n, 1 - Below(exact.nets, 0));
  double mean = 0;
  for (const auto& [net, share] : exact.nets) mean += net * share;
  const MeanFigure net = FigureMean(sums.net, n, Currency::kPerDollar);
  const MeanFigure adjusted =
      FigureMean(sums.adjusted, n, static_cast<double>(sums.luckUnit) * Currency::kPerDollar);
  const auto half = [](const MeanFigure& figure) { return (figure.ci95.high - figure.ci95.low) / 2; };
  EXPECT_NEAR(net.mean, mean, 2.1 * half(net));
  EXPECT_NEAR(adjusted.mean, mean, 2.1 * half(adjusted) + 1e-9);
  EXPECT_LT(half(adjusted), half(net));
  if (one.rules.goal == 0 && one.lineBet) {
    EXPECT_LT(20 * half(adjusted), half(net));
  }
  EXPECT_NEAR(static_cast<double>(sums.rolls) / static_cast<double>(n), exact.length, 0.1 * exact.length);
  // The quantile is one of the exact distribution too, but for chance.
  for (const int percent : {10, 50, 90}) {
    const int at = static_cast<int>(Quantile(sums.nets, percent) / Currency::kPerDollar);
    const double slack = 4 * std::sqrt(0.25 / static_cast<double>(n));
    EXPECT_GE(Below(exact.nets, at), percent / 100.0 - slack) << percent;
    EXPECT_LE(Below(exact.nets, at - 1), percent / 100.0 + slack) << percent;
  }
}

TEST(LabSession, IsDistributedAsTheDynamicProgramSays) {
  const std::vector<std::string> kMartingale = {
      "if cs1 = 0 then cs1 = 5 : cs2 = bankroll endif", "if bankroll > cs2 then cs1 = 5 endif",
      "if bankroll < cs2 then cs1 = 2 * cs1 endif", "cs2 = bankroll", "bet cs1 on seven"};
  const auto doubled = [](int bankroll) {
    return [bankroll](Line at, int total) {
      const int bet = std::min(at.stake, bankroll + at.net);
      at.net += total == 7 ? 4 * bet : -bet;
      at.stake = total == 7 ? 5 : 2 * at.stake;
      return at;
    };
  };
  const auto martingale = doubled(100);
  const auto richer = doubled(300);
  const Case cases[] = {
      {"Pass Line",
       {"if passline = 0 then bet 10 on passline endif"},
       {500, 40, 0, 0},
       {0, 0, 10},
       PassLine,
       true},
      {"Pass Line with ends",
       {"if passline = 0 then bet 10 on passline endif"},
       {100, 60, 30, 40},
       {0, 0, 10},
       PassLine,
       true},
      {"Don't Pass with ends",
       {"if dontpass = 0 then bet 10 on dontpass endif"},
       {100, 60, 50, 30},
       {0, 0, 10},
       DontPass,
       true},
      {"Field to ruin", {"if field = 0 then bet 5 on field endif"}, {20, 60, 50, 0}, {0, 0, 5}, Field, false},
      {"Martingale", kMartingale, {100, 12, 0, 0}, {0, 0, 5}, martingale, false},
      {"Martingale with ends", kMartingale, {300, 40, 60, 200}, {0, 0, 5}, richer, false}};
  for (const Case& one : cases) {
    SCOPED_TRACE(one.name);
    Experiment experiment = Scripted(one.script, SessionsToPlay(), one.rules.rolls);
    experiment.bankroll = Currency::Dollars(one.rules.bankroll);
    experiment.winGoal = Currency::Dollars(one.rules.goal);
    experiment.lossLimit = Currency::Dollars(one.rules.limit);
    if (!one.lineBet) experiment.settings = {{"ShooterBetRule", 0, "0"}};
    const LabState state = Played(experiment);
    ExpectDistributed(one, state.systems[0], Figured(one.rules, one.start, one.advance));
  }
}

// 95 times in 100, of experiments that differ in their dice alone: means, with and without luck, and shares.
TEST(LabSession, BoundsHoldTheTruthAsOftenAsTheySay) {
  const int experiments = std::getenv("TESSARYN_LAB_PROOFS") != nullptr ? 1'000 : 100;
  const Rules rules{100, 60, 30, 40};
  const Distribution exact = Figured(rules, {0, 0, 10}, PassLine);
  double mean = 0;
  for (const auto& [net, share] : exact.nets) mean += net * share;
  Experiment experiment = Scripted({"if passline = 0 then bet 10 on passline endif"}, 400, rules.rolls);
  experiment.bankroll = Currency::Dollars(rules.bankroll);
  experiment.winGoal = Currency::Dollars(rules.goal);
  experiment.lossLimit = Currency::Dollars(rules.limit);
  LabHost host;
  LabProblem problem;
  const auto fresh = BuildTable(experiment, experiment.systems[0], host, ProgramFolder(), problem);
  const auto table = OpenLabTable(*fresh, nullptr);
  int held[5] = {};
  for (experiment.seed = 1; experiment.seed <= static_cast<std::uint64_t>(experiments); ++experiment.seed) {
    SystemSums sums;
    for (std::int64_t session = 0; session < experiment.sessions; ++session) {
      SessionResult result;
      ASSERT_TRUE(PlaySession(*table, experiment, session, result, nullptr));
      AddSession(sums, result);
    }
    const std::int64_t n = sums.sessions;
    const double unit = static_cast<double>(sums.luckUnit) * Currency::kPerDollar;
    const auto holds = [](Bounds bounds, double truth) {
      return bounds.low <= truth && truth <= bounds.high;
    };
    held[0] += holds(FigureMean(sums.net, n, Currency::kPerDollar).ci95, mean);
    held[1] += holds(FigureMean(sums.adjusted, n, unit).ci95, mean);
    held[2] += holds(FigureShare(sums.goal, n).ci95, exact.goal);
    held[3] += holds(FigureShare(sums.limit, n).ci95, exact.limit);
    held[4] += holds(FigureShare(sums.won, n).ci95, 1 - Below(exact.nets, 0));
  }
  for (const int times : held) {
    EXPECT_NEAR(times, 0.95 * experiments, 4 * std::sqrt(0.95 * 0.05 * experiments));
  }
}

// A hand played to its end costs the edge on what was decided, whatever stood at the end.
TEST(LabSession, EndsWithTheHandAtTheEdge) {
  Experiment experiment = Scripted({"if passline = 0 then bet 10 on passline endif"}, SessionsToPlay(), 30);
  experiment.endWithHand = true;
  const LabState state = Played(experiment);
  const SystemSums& sums = state.systems[0];
  const double unit = static_cast<double>(sums.luckUnit) * Currency::kPerDollar;
  const MeanFigure adjusted = FigureMean(sums.adjusted, sums.sessions, unit);
  const double handle =
      static_cast<double>(sums.handle) / Currency::kPerDollar / static_cast<double>(sums.sessions);
  EXPECT_NEAR(adjusted.mean, -handle * 7 / 495, 0.02);
  EXPECT_GT(Quantile(sums.lengths, 99), 30);
  EXPECT_EQ(Quantile(sums.lengths, 1), 30);
}

TEST(LabSession, ThatCantGoOnTellsWhy) {
  const struct {
    std::vector<std::string> script;
    std::int64_t SystemSums::*share;
  } cases[] = {{{"cs1 = 1"}, &SystemSums::unrolled},
               {{"if passline = 0 then bet 10 on passline endif",
                 "if dice total = 7 then stop autoroll/turboroll endif"},
                &SystemSums::stopped}};
  for (const auto& one : cases) {
    const LabState state = Played(Scripted(one.script, 50, 300));
    EXPECT_GE(state.systems[0].*one.share, 48) << one.script[0];
  }
  LabState state =
      BeginLab(Scripted({"bet 5 on passline", "do", "cs1 = cs1 + 1", "loop"}, 10, 20), false, false);
  LabRun run;
  run.applicationFolder = ProgramFolder();
  const std::string error = RunLab(state, run);
  EXPECT_NE(error.find("test.bet, line "), std::string::npos) << error;
  EXPECT_EQ(SessionsDone(state), 0);
}

}  // namespace
}  // namespace tessaryn::test
