// What each of the 93 bets is worth with fair dice and the original payoffs, worked out exactly from the
// rules by counting the 36 rolls and following the few bets that last: nothing here reads the engine.
//
// All figures are in dollars per decision, a decision being a bet that was won or lost under its own number
// (a push is none; a Come bet that moves is decided under the number to which it moved). The stake is one at
// which every payoff comes out in whole dollars with a $1 unit; vig is charged up front.
#pragma once

#include <array>
#include <map>
#include <vector>

namespace tessaryn::edges {

struct Outcome {
  double weight;  // relative
  double net;     // dollars
};

struct BetEdge {
  int stake;        // dollars
  double mean;      // net per decision
  double variance;  // of the net of one decision
};

inline int Ways(int total) { return total <= 7 ? total - 1 : 13 - total; }

inline BetEdge Summarise(int stake, const std::vector<Outcome>& outcomes) {
  double weight = 0;
  double sum = 0;
  double squares = 0;
  for (const Outcome& outcome : outcomes) {
    if (outcome.net == 0) continue;
    weight += outcome.weight;
    sum += outcome.weight * outcome.net;
    squares += outcome.weight * outcome.net * outcome.net;
  }
  const double mean = sum / weight;
  return {stake, mean, squares / weight - mean * mean};
}

inline constexpr std::array<int, 6> kPoints{4, 5, 6, 8, 9, 10};
// The chance that a point is made before a 7.
inline double Made(int point) { return Ways(point) / (Ways(point) + 6.0); }

// Decided by the box number against the 7.
inline BetEdge NumberBet(int stake, int number, double onNumber, double onSeven) {
  return Summarise(stake, {{double(Ways(number)), onNumber}, {6, onSeven}});
}

// Lays, Buys, Place bets, and what has moved to a number, by family of six.
inline BetEdge BoxBet(int bet) {
  const int at = (bet - 1) % 6;
  const int number = kPoints[at];
  const int near = at < 3 ? at : 5 - at;  // 0 for 4 and 10, 1 for 5 and 9, 2 for 6 and 8
  switch ((bet - 1) / 6) {
    case 0: {  // Lay: stakes that win $20, vig $1 either way
      const int stake = std::array{40, 30, 24}[near];
      return NumberBet(stake, number, -stake - 1, 20 - 1);
    }
    case 1:
      return NumberBet(10, number, -10, 10);  // Don't Come
    case 2:
      return NumberBet(30, number, -30, std::array{15, 20, 25}[near]);
    case 3:
      return NumberBet(10, number, 10, -10);  // Come
    case 4:
      return NumberBet(10, number, std::array{20, 15, 12}[near], -10);
    case 5: {  // Place
      const int stake = near == 2 ? 6 : 5;
      return NumberBet(stake, number, std::array{9, 7, 7}[near], -stake);
    }
    default:
      return NumberBet(20, number, std::array{40, 30, 24}[near] - 1, -20 - 1);  // Buy
  }
}

// The Pass Line (take) or the Don't Pass, bar 12, to its end.
inline BetEdge LineBet(bool take) {
  double won = Ways(7) + Ways(11);
  double lost = Ways(2) + Ways(3) + (take ? Ways(12) : 0);
  for (int point : kPoints) {
    won += Ways(point) * Made(point);
    lost += Ways(point) * (1 - Made(point));
  }
  return Summarise(10, {{won, take ? 10.0 : -10.0}, {lost, take ? -10.0 : 10.0}});
}

// Odds on whatever point comes.
inline BetEdge LineOdds(bool take) {
  const int stake = take ? 10 : 30;
  std::vector<Outcome> outcomes;
  for (int i = 0; i < 6; ++i) {
    const int near = i < 3 ? i : 5 - i;
    const double ways = Ways(kPoints[i]);
    const double made = Made(kPoints[i]);
    outcomes.push_back({ways * made, take ? std::array{20., 15., 12.}[near] : -30});
    outcomes.push_back({ways * (1 - made), take ? -10 : std::array{15., 20., 25.}[near]});
  }
  return Summarise(stake, outcomes);
}

// A bet that the roll's total decides. net: by total, 0 for nothing.
inline BetEdge TotalBet(int stake, const std::map<int, double>& net, double otherwise) {
  std::vector<Outcome> outcomes;
  for (int total = 2; total <= 12; ++total)
    outcomes.push_back({double(Ways(total)), net.count(total) ? net.at(total) : otherwise});
  return Summarise(stake, outcomes);
}

// Hit in some of the 36 rolls, missed in others.
inline BetEdge HitOrMiss(int hits, int misses, double pays) {
  return Summarise(1, {{double(hits), pays}, {double(misses), -1}});
}

// The chance that all of the wanted totals (bit n for n) come before a 7.
inline double AllBeforeSeven(unsigned wanted) {
  std::vector<double> chance(wanted + 1, 0.0);  // by the set of totals that have come
  chance[wanted] = 1;
  for (unsigned rolled = wanted; rolled-- > 0;) {
    if ((rolled & ~wanted) != 0) continue;
    double sum = 0;
    int open = Ways(7);
    for (int n = 2; n <= 12; ++n) {
      if (((wanted & ~rolled) >> n & 1) == 0) continue;
      sum += Ways(n) * chance[rolled | 1u << n];
      open += Ways(n);
    }
    chance[rolled] = sum / open;
  }
  return chance[0];
}

inline BetEdge MarkBet(unsigned wanted, double pays) {
  const double chance = AllBeforeSeven(wanted);
  return Summarise(1, {{chance, pays}, {1 - chance, -1}});
}

// The chance that a point, once set, is made.
inline double AnyPointMade() {
  double sum = 0;
  for (int point : kPoints) sum += Ways(point) / 24.0 * Made(point);
  return sum;
}

// A count that goes on with a chance, paid at its end by the table; the last row for all that is beyond.
inline BetEdge CountBet(double goesOn, const std::vector<double>& paid) {
  std::vector<Outcome> outcomes;
  double reached = 1;
  for (std::size_t count = 0; count + 1 < paid.size(); ++count) {
    outcomes.push_back({reached * (1 - goesOn), paid[count]});
    reached *= goesOn;
  }
  outcomes.push_back({reached, paid.back()});
  return Summarise(1, outcomes);
}

// Different points made before the seven-out.
inline void FollowFire(unsigned made, int count, double chance, const std::array<double, 7>& paid,
                       std::vector<Outcome>& outcomes) {
  double stays = 0;  // the hand goes on with the same points made
  for (int i = 0; i < 6; ++i)
    if (made >> i & 1) stays += Ways(kPoints[i]) / 24.0 * Made(kPoints[i]);
  double ends = 0;
  for (int i = 0; i < 6; ++i) {
    const double set = Ways(kPoints[i]) / 24.0;
    ends += set * (1 - Made(kPoints[i]));
    if (!(made >> i & 1))
      FollowFire(made | 1u << i, count + 1, chance * set * Made(kPoints[i]) / (1 - stays), paid, outcomes);
  }
  outcomes.push_back({chance * ends / (1 - stays), paid[count]});
}

inline BetEdge FireBet() {
  std::vector<Outcome> outcomes;
  FollowFire(0, 0, 1, {-1, -1, -1, -1, 24, 249, 999}, outcomes);
  return Summarise(1, outcomes);
}

// Requires 1 <= bet <= 93.
inline BetEdge EdgeOf(int bet) {
  if (bet <= 42) return BoxBet(bet);
  if (bet >= 67 && bet <= 83) {
    const bool pair = bet == 71 || bet == 76 || bet == 80 || bet == 83;
    return pair ? HitOrMiss(1, 35, 30) : HitOrMiss(2, 34, 15);
  }
  switch (bet) {
    case 43:
      return LineBet(true);
    case 44:
      return LineOdds(true);
    case 45:
      return Summarise(10, {{6 + 2, 10}, {1 + 2 + 1, -10}});
    case 46:
      return LineBet(false);
    case 47:
      return LineOdds(false);
    case 48:
      return Summarise(10, {{1 + 2, 10}, {6 + 2, -10}});
    case 49:
      return TotalBet(1, {{2, 2}, {3, 1}, {4, 1}, {9, 1}, {10, 1}, {11, 1}, {12, 2}}, -1);
    case 50:
      return NumberBet(1, 6, 1, -1);
    case 51:
      return NumberBet(1, 8, 1, -1);
    case 52:
    case 55:
      return HitOrMiss(1, 6 + 2, 7);
    case 53:
    case 54:
      return HitOrMiss(1, 6 + 4, 9);
    case 56:
    case 60:
      return HitOrMiss(1, 35, 30);
    case 57:
    case 59:
      return HitOrMiss(2, 34, 15);
    case 58:
      return HitOrMiss(6, 30, 4);
    case 61:
      return HitOrMiss(4, 32, 7);
    case 62:
      return TotalBet(2, {{2, 7 - 1}, {3, 7 - 1}, {12, 7 - 1}, {11, 15 - 1}}, -2);
    case 63:
      return TotalBet(4, {{2, 30 - 3}, {3, 15 - 3}, {11, 15 - 3}, {12, 30 - 3}}, -4);
    case 64:
      return TotalBet(5, {{2, 30 - 4}, {3, 15 - 4}, {7, 4 - 4}, {11, 15 - 4}, {12, 30 - 4}}, -5);
    case 65:
    case 66:
      return HitOrMiss(15, 21, 1);
    case 84:
      return MarkBet(124, 34);
    case 85:
      return MarkBet(7936, 34);
    case 86:
      return MarkBet(124 | 7936, 175);
    case 87: {
      const double chance = (30. * 30 * 30 * 30) / (36. * 36 * 36 * 36);
      return Summarise(1, {{chance, 1}, {1 - chance, -1}});
    }
    case 88:
      return Summarise(1, {{24. / 36 * 6 / 36, 7}, {1 - 24. / 36 * 6 / 36, -1}});
    case 89:
      return Summarise(1, {{6. / 36, 2}, {24. / 36 * 6 / 36, 3}, {6. / 36 + 24. / 36 * 30 / 36, -1}});
    case 90:
      return Summarise(1, {{14, 1}, {2, 2}, {20, -1}});
    case 91:
      return CountBet(AnyPointMade(), {-1, -1, -1, 5, 9, 19, 29, 49, 99, 199, 299});
    // Craps on the come-out neither count nor end the hand.
    case 92:
      return CountBet((8 + 24 * AnyPointMade()) / 32, {-1, -1, -1, 1, 2, 3, 6, 10, 20, 30, 40, 100});
    default:
      return FireBet();
  }
}

}  // namespace tessaryn::edges
