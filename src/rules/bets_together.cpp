#include "rules/bets_together.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "rules/advantage.h"
#include "rules/bet_results.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// What the dice alone do not tell: the point, and the number of the Come and Don't Come bets; 0 for none.
struct LineState {
  int point = 0;
  int come = 0;
  bool operator==(const LineState&) const = default;
};

bool ComeIsUp(LineState state) { return state.point != 0 || state.come != 0; }

int NextPoint(int point, int total) {
  if (point == 0) return std::ranges::find(kBoxNumbers, total) != kBoxNumbers.end() ? total : 0;
  return total == point || total == 7 ? 0 : point;
}

LineState Next(LineState state, int total) {
  return {NextPoint(state.point, total), ComeIsUp(state) ? NextPoint(state.come, total) : 0};
}

bool IsUp(BetId bet, LineState state) {
  if (IsLineOdds(bet)) return state.point != 0;
  return (bet != kCome && bet != kDontCome) || ComeIsUp(state);
}

double ResultIn(const Case& c, BetId bet, LineState state, int die1, int die2) {
  const int total = die1 + die2;
  if (!IsUp(bet, state)) return 0;
  if (IsLineOdds(bet)) return LineOddsResult(c, bet == kPassLineOdds, state.point, total);
  if (bet == kPassLine || bet == kDontPass) return LineResult(c, bet == kPassLine, state.point, total);
  if (IsLineFamily(bet)) return LineResult(c, bet == kCome, state.come, total);
  return ResultOnRoll(c, bet, die1, die2);
}

// The states that the dice lead to, and what a roll is worth in each. A state is known by its place.
class LineChain {
 public:
  LineChain(const Case& c, const BetAmounts& amounts) : case_(c) {
    const bool line =
        std::ranges::any_of(amounts, [](const auto& entry) { return IsLineFamily(entry.first); });
    states_.push_back({});
    for (std::size_t at = 0; at < states_.size(); ++at) AddState(at, line, amounts);
  }

  std::size_t Size() const { return states_.size(); }
  LineState State(std::size_t at) const { return states_[at]; }

  // The mean per roll of what a roll in each state is worth, and what being in a state is worth beyond it
  // in all the rolls to come: value + mean = worth + the mean of the next value. False where the states have
  // no common mean.
  bool Solve(const std::vector<double>& worth, double& mean, std::vector<double>& values) const;

  std::vector<double> Results() const {
    std::vector<double> worth(Size());
    for (std::size_t at = 0; at < Size(); ++at)
      ForEachRoll([&](double p, int pair) { worth[at] += p * results_[at][pair]; });
    return worth;
  }
  // The squares by which the results of a roll, with all that they mean for later ones, miss the mean.
  std::vector<double> Squares(double mean, const std::vector<double>& values) const {
    std::vector<double> worth(Size());
    for (std::size_t at = 0; at < Size(); ++at)
      ForEachRoll([&](double p, int pair) {
        const double off = results_[at][pair] + values[next_[at][pair]] - values[at] - mean;
        worth[at] += p * off * off;
      });
    return worth;
  }

 private:
  template <typename Visit>
  void ForEachRoll(Visit visit) const {
    for (int pair = 0; pair < kDicePairs; ++pair)
      if (const double p = case_.odds.cell[pair / 6 + 1][pair % 6 + 1]; p > 0) visit(p, pair);
  }

  std::size_t PlaceOf(LineState state) {
    const auto found = std::ranges::find(states_, state);
    const auto place = static_cast<std::size_t>(found - states_.begin());
    if (found == states_.end()) states_.push_back(state);
    return place;
  }

  void AddState(std::size_t at, bool line, const BetAmounts& amounts) {
    const LineState state = states_[at];
    results_.push_back({});
    next_.push_back({});
    ForEachRoll([&](double, int pair) {
      const int die1 = pair / 6 + 1;
      const int die2 = pair % 6 + 1;
      for (const auto& [bet, amount] : amounts)
        results_[at][pair] += amount * ResultIn(case_, bet, state, die1, die2);
      next_[at][pair] = line ? PlaceOf(Next(state, die1 + die2)) : at;
    });
  }

  const Case& case_;
  std::vector<LineState> states_;
  std::vector<std::array<double, kDicePairs>> results_;
  std::vector<std::array<std::size_t, kDicePairs>> next_;
};

// Rows of coefficients with the right side behind them. False without a single solution.
bool SolveRows(std::vector<std::vector<double>>& rows) {
  const std::size_t count = rows.size();
  for (std::size_t column = 0; column < count; ++column) {
    std::size_t pivot = column;
    for (std::size_t row = column + 1; row < count; ++row)
      if (std::abs(rows[row][column]) > std::abs(rows[pivot][column])) pivot = row;
    if (std::abs(rows[pivot][column]) < 1e-12) return false;
    std::swap(rows[column], rows[pivot]);
    for (std::size_t row = 0; row < count; ++row) {
      if (row == column) continue;
      const double factor = rows[row][column] / rows[column][column];
      for (std::size_t i = column; i <= count; ++i) rows[row][i] -= factor * rows[column][i];
    }
  }
  for (std::size_t row = 0; row < count; ++row) rows[row][count] /= rows[row][row];
  return true;
}

bool LineChain::Solve(const std::vector<double>& worth, double& mean, std::vector<double>& values) const {
  // The value of the first state is 0: its column is the mean's.
  std::vector<std::vector<double>> rows(Size(), std::vector<double>(Size() + 1));
  for (std::size_t at = 0; at < Size(); ++at) {
    rows[at][at] += 1;
    ForEachRoll([&](double p, int pair) { rows[at][next_[at][pair]] -= p; });
    rows[at][0] = 1;
    rows[at][Size()] = worth[at];
  }
  if (!SolveRows(rows)) return false;
  values.resize(Size());
  for (std::size_t at = 0; at < Size(); ++at) values[at] = rows[at][Size()];
  mean = std::exchange(values[0], 0.0);
  return true;
}

// In what part of the rolls a bet is up.
double ShareUp(const LineChain& chain, BetId bet) {
  std::vector<double> up(chain.Size());
  for (std::size_t at = 0; at < chain.Size(); ++at) up[at] = IsUp(bet, chain.State(at)) ? 1 : 0;
  double share = 1;
  std::vector<double> values;
  return chain.Solve(up, share, values) ? share : 1;
}

bool WaitsForPoint(BetId bet) { return IsLineFamily(bet) && bet != kPassLine && bet != kDontPass; }

}  // namespace

BetsTogether FigureBetsTogether(const Game& game, const BetAmounts& amounts) {
  const double rolls = game.settings.SimRollRate.ToDouble();
  BetsTogether set;
  if (amounts.size() == 1) {
    const auto& [bet, amount] = *amounts.begin();
    const Advantage figures = FigureAdvantage(game, bet);
    set.evPerHour = figures.evPerRoll * amount * rolls;
    set.stdevPerHour = figures.stdevPerRoll * amount * std::sqrt(rolls);
    return set;
  }
  const DiceOdds odds = Normalised(OddsInForce(game, game.percentage.PercentageDiceActive));
  BetAmounts chained = amounts;
  std::erase_if(chained, [](const auto& entry) { return IsLongBet(entry.first); });
  const Case c{game, odds};
  const LineChain chain(c, chained);
  for (const auto& [bet, amount] : amounts) {
    const double share = WaitsForPoint(bet) ? ShareUp(chain, bet) : 1;
    set.evPerHour += FigureAdvantage(game, bet).evPerRoll * amount * rolls * share;
    set.waitsForPoint = set.waitsForPoint || WaitsForPoint(bet);
    if (IsLongBet(bet)) set.unknownBet = bet;
  }
  double mean = 0;
  double variance = 0;
  std::vector<double> values;
  if (set.unknownBet != 0) return set;
  if (!chain.Solve(chain.Results(), mean, values) ||
      !chain.Solve(chain.Squares(mean, values), variance, values)) {
    set.unknownBet = amounts.rbegin()->first;
    return set;
  }
  set.stdevPerHour = std::sqrt(std::max(0.0, variance) * rolls);
  return set;
}

}  // namespace tessaryn
