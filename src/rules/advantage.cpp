#include "rules/advantage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "base/bet_catalogue.h"
#include "rules/bet_results.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// How a decision of a bet comes out: the mean of the result, of its square, and the rolls it takes.
struct Outcome {
  double mean = 0;
  double square = 0;
  double rolls = 0;  // 0: never decided
};

// Collects results with their probabilities, all of one decision.
struct Results {
  double probability = 0;
  double sum = 0;
  double squares = 0;

  // A push decides nothing, as at the table.
  void Add(double p, double result) {
    if (result == 0) return;
    probability += p;
    sum += p * result;
    squares += p * result * result;
  }
  // Of a decision; rolls are those of one trial, which decides with the probability added up.
  Outcome Decision(double rollsOfTrial) const {
    if (probability <= 0) return {};
    return {sum / probability, squares / probability, rollsOfTrial / probability};
  }
};

// --- Bets that stand by themselves.

Outcome StandingOutcome(const Case& c, BetId bet) {
  Results results;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      results.Add(c.odds.cell[die1][die2], ResultOnRoll(c, bet, die1, die2));
  Outcome outcome = results.Decision(1);
  // Whatever the cells add up to, every roll decides.
  if (outcome.rolls > 0 && IsOneRollBet(bet)) outcome = {results.sum, results.squares, 1};
  return outcome;
}

// --- The line.

double ChanceBeforeSeven(const DiceOdds& odds, int number) {
  const double both = odds.total[number] + odds.total[7];
  return both > 0 ? odds.total[number] / both : 0;
}
double RollsToDecide(const DiceOdds& odds, int number) {
  const double both = odds.total[number] + odds.total[7];
  return both > 0 ? 1 / both : 0;
}

// The come-out roll alone. A barred number decides nothing.
void AddComeOut(const Case& c, bool pass, Results& results) {
  for (int total = 2; total <= 12; ++total) results.Add(c.Total(total), LineResult(c, pass, 0, total));
}

// The points as they are set, each to its decision. Returns the rolls that they take.
double AddPoints(const Case& c, bool pass, LineResultOf result, Results& results) {
  double rolls = 0;
  for (const int number : kBoxNumbers) {
    const double set = c.Total(number);
    const double made = ChanceBeforeSeven(c.odds, number);
    rolls += set * RollsToDecide(c.odds, number);
    results.Add(set * made, result(c, pass, number, number));
    results.Add(set * (1 - made), result(c, pass, number, 7));
  }
  return rolls;
}

// From the come-out to the decision.
Outcome Line(const Case& c, bool pass) {
  Results results;
  AddComeOut(c, pass, results);
  const double rolls = 1 + AddPoints(c, pass, LineResult, results);
  return results.Decision(rolls);
}

Outcome LineOdds(const Case& c, bool pass) {
  Results results;
  const double rolls = AddPoints(c, pass, LineOddsResult, results);
  return results.Decision(rolls);
}

// --- Marks and counts.

// All of the numbers before a seven: over the sets of numbers marked, from all of them backwards.
Outcome AllMarked(const Case& c, BetId bet, std::span<const int> numbers) {
  struct State {
    double win = 0;
    double rolls = 0;
  };
  std::array<State, 1024> states{};
  const int all = (1 << numbers.size()) - 1;
  states[all] = {1, 0};
  for (int marked = all - 1; marked >= 0; --marked) {
    double change = c.Total(7);
    double win = 0;
    double rolls = 1;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      if ((marked >> i & 1) != 0) continue;
      const double p = c.Total(numbers[i]);
      if (p <= 0) continue;
      const State& next = states[marked | 1 << i];
      change += p;
      win += p * next.win;
      rolls += p * next.rolls;
    }
    // With neither a seven nor a missing number on the dice the bet stands for ever.
    states[marked] =
        change > 0 ? State{win / change, rolls / change} : State{0, std::numeric_limits<double>::infinity()};
  }
  Results results;
  results.Add(states[0].win, c.Pays(bet));
  results.Add(1 - states[0].win, -1);
  return std::isfinite(states[0].rolls) ? results.Decision(states[0].rolls) : Outcome{};
}

Outcome FourRollsNoSeven(const Case& c) {
  const double no = 1 - c.Total(7);
  Results results;
  results.Add(std::pow(no, 4), c.Pays(kFourRolls));
  results.Add(1 - std::pow(no, 4), -1);
  return results.Decision(1 + no + no * no + no * no * no);
}

double PointChance(const DiceOdds& odds) {
  double chance = 0;
  for (const int number : kBoxNumbers) chance += odds.total[number];
  return chance;
}

Outcome PointSeven(const Case& c) {
  const double set = PointChance(c.odds);
  const double win = set * c.Total(7);
  Results results;
  results.Add(win, c.Pays(kPoint7));
  results.Add(1 - win, -1);
  return results.Decision(1 + set);
}

Outcome SevenPointSeven(const Case& c) {
  const PayoffRecord* rows = c.game.payoffs.SevenPointSevenPayoffs;
  const double set = PointChance(c.odds);
  const double first = c.Total(7);
  const double second = set * c.Total(7);
  Results results;
  results.Add(first, Ratio(rows[1]));
  results.Add(second, Ratio(rows[2]));
  results.Add(1 - first - second, -1);
  return results.Decision(1 + set);
}

// --- Bets on a hand.

struct Hand {
  double share[6] = {};  // of the points that are set
  double made[6] = {};   // the chance of each before a seven
  double pointMade = 0;  // of any point
  double set = 0;        // the chance that a come-out sets one
  double rolls = 0;      // of a hand; 0: hands don't end
};

Hand HandOf(const Case& c) {
  Hand hand;
  hand.set = PointChance(c.odds);
  if (hand.set <= 0 || c.Total(7) <= 0) return hand;
  double cycle = 1 / hand.set;
  for (int i = 0; i < 6; ++i) {
    hand.share[i] = c.Total(kBoxNumbers[i]) / hand.set;
    hand.made[i] = ChanceBeforeSeven(c.odds, kBoxNumbers[i]);
    hand.pointMade += hand.share[i] * hand.made[i];
    cycle += hand.share[i] * RollsToDecide(c.odds, kBoxNumbers[i]);
  }
  hand.rolls = cycle / (1 - hand.pointMade);
  return hand;
}

// A count that ends with the chance end at every step, paid by the row of count + 1, the last row for more.
Outcome CountedHand(const Hand& hand, double end, std::span<const PayoffRecord> rows) {
  if (hand.rolls <= 0) return {};
  Results results;
  double reached = 1;
  for (std::size_t row = 1; row < rows.size(); ++row) {
    const bool last = row + 1 == rows.size();
    results.Add(reached * (last ? 1 : end), Ratio(rows[row]));
    reached *= 1 - end;
  }
  return results.Decision(hand.rolls);
}

Outcome SharpShooter(const Case& c) {
  const Hand hand = HandOf(c);
  return CountedHand(hand, 1 - hand.pointMade, c.game.payoffs.SharpShooterPayoffs);
}

Outcome RideTheLine(const Case& c) {
  const Hand hand = HandOf(c);
  const double natural = c.Total(7) + c.Total(11);
  const double end = hand.set > 0 ? hand.set / (hand.set + natural) * (1 - hand.pointMade) : 0;
  return CountedHand(hand, end, c.game.payoffs.RideTheLinePayoffs);
}

// Over the sets of different points made.
Outcome Fire(const Case& c) {
  const Hand hand = HandOf(c);
  if (hand.rolls <= 0) return {};
  std::array<double, 64> reached{};
  reached[0] = 1;
  Results results;
  for (int points = 0; points < 64; ++points) {
    double again = 0;
    for (int i = 0; i < 6; ++i)
      if ((points >> i & 1) != 0) again += hand.share[i] * hand.made[i];
    // Making an old point again only lengthens the stay.
    const double stay = reached[points] / (1 - again);
    for (int i = 0; i < 6; ++i)
      if ((points >> i & 1) == 0) reached[points | 1 << i] += stay * hand.share[i] * hand.made[i];
    results.Add(stay * (1 - hand.pointMade),
                Ratio(c.game.payoffs.FirePayoffs[std::popcount(static_cast<unsigned>(points))]));
  }
  return results.Decision(hand.rolls);
}

// --- Which of these a bet is.

constexpr int kSmall[] = {2, 3, 4, 5, 6};
constexpr int kTall[] = {8, 9, 10, 11, 12};
constexpr int kEvery[] = {2, 3, 4, 5, 6, 8, 9, 10, 11, 12};

Outcome SpecialOutcome(const Case& c, BetId bet) {
  switch (bet) {
    case kAllSmall:
      return AllMarked(c, bet, kSmall);
    case kAllTall:
      return AllMarked(c, bet, kTall);
    case kMakeAll:
      return AllMarked(c, bet, kEvery);
    case kFourRolls:
      return FourRollsNoSeven(c);
    case kPoint7:
      return PointSeven(c);
    case kSevenPoint7:
      return SevenPointSeven(c);
    case kSharpShooter:
      return SharpShooter(c);
    case kRideTheLine:
      return RideTheLine(c);
    default:
      return Fire(c);
  }
}

Outcome ComeOutOutcome(const Case& c, bool pass) {
  Results results;
  AddComeOut(c, pass, results);
  return results.Decision(1);
}

Outcome TableOutcome(const Case& c, BetId bet) {
  if (IsLineOdds(bet)) return LineOdds(c, bet == kPassLineOdds);
  if (IsLineFamily(bet)) return Line(c, bet == kPassLine || bet == kCome);
  return StandingOutcome(c, bet);
}

Outcome OutcomeOf(const Game& game, const DiceOdds& odds, BetId bet) {
  const bool passComeOut = bet == kPassComeOutRow;
  if (passComeOut || bet == kDontComeOutRow) return ComeOutOutcome({game, odds}, passComeOut);
  if (!IsTableBet(bet)) return {};
  if (!IsLongBet(bet)) return TableOutcome({game, odds}, bet);
  const DiceOdds normalised = Normalised(odds);
  return SpecialOutcome({game, normalised}, bet);
}

double Rounded(double value, double places) {
  const double scaled = std::round(value * places) / places;
  return scaled == 0 ? 0 : scaled;  // no minus zero
}

Advantage Figures(const Game& game, const DiceOdds& odds, BetId bet, bool includeZeroOutcomes) {
  const Outcome outcome = OutcomeOf(game, odds, bet);
  Advantage result;
  if (!(outcome.rolls > 0)) return result;
  const double perRoll = outcome.mean / outcome.rolls;
  const double squarePerRoll = outcome.square / outcome.rolls;
  double perDecision = outcome.mean;
  double rolls = outcome.rolls;
  double variance = outcome.square - outcome.mean * outcome.mean;
  if (includeZeroOutcomes) {
    // Every roll counts as a decision; the deviation is still that of the rolls that decide.
    perDecision = perRoll;
    rolls = 1;
    variance = squarePerRoll - 2 * perRoll * perRoll + perRoll * perRoll / outcome.rolls;
  }
  constexpr double kSix = 1e6;
  result.evPerRoll = Rounded(perRoll, kSix);
  result.evPerDecision = Rounded(perDecision, kSix);
  result.rollsPerDecision = Rounded(rolls, 100);
  result.stdevPerRoll = Rounded(std::sqrt(std::max(0.0, squarePerRoll - perRoll * perRoll)), kSix);
  result.stdevPerDecision = Rounded(std::sqrt(std::max(0.0, variance)), kSix);
  return result;
}

struct RowFamily {
  BetId firstBet;
  const char* prefix;
  const char* suffix;
};
constexpr RowFamily kRowFamilies[] = {{kCome4, "Pass/Come ", ""},
                                      {kComeOdds4, "Pass/Come ", " Odds"},
                                      {kDontCome4, "DP/DC ", ""},
                                      {kDontComeOdds4, "DP/DC ", " Odds"}};

struct NamedRow {
  BetId bet;
  const char* caption;
};
constexpr NamedRow kLineRows[] = {{kPassLine, "Passline/Come"},
                                  {kPassLineOdds, "Passline/Come Odds"},
                                  {kDontPass, "Don't Pass/Come"},
                                  {kDontPassOdds, "Don't Pass/Come Odds"},
                                  {kPassComeOutRow, "Passline/Come (c.o.)"},
                                  {kDontComeOutRow, "Don't Pass/Come (c.o.)"}};

}  // namespace

Advantage FigureAdvantage(const Game& game, BetId bet) {
  return FigureAdvantage(game, bet, game.percentage.PercentageDiceActive);
}

Advantage FigureAdvantage(const Game& game, BetId bet, bool usePercentageDice) {
  return FigureAdvantage(game, bet, usePercentageDice, game.settings.IncludeZeroOutcomes);
}

Advantage FigureAdvantage(const Game& game, BetId bet, bool usePercentageDice, bool includeZeroOutcomes) {
  return Figures(game, OddsInForce(game, usePercentageDice), bet, includeZeroOutcomes);
}

std::vector<AdvantageRow> AdvantageTable(const Game& game) {
  const DiceOdds odds = OddsInForce(game, game.percentage.PercentageDiceActive);
  std::vector<AdvantageRow> rows;
  const auto add = [&](BetId bet, const std::string& caption) {
    rows.push_back({bet, caption, Figures(game, odds, bet, game.settings.IncludeZeroOutcomes)});
  };
  for (const RowFamily& family : kRowFamilies)
    for (int i = 0; i < 6; ++i)
      add(family.firstBet + i, family.prefix + std::to_string(kBoxNumbers[i]) + family.suffix);
  for (const NamedRow& row : kLineRows) add(row.bet, row.caption);
  for (BetId bet = 1; bet <= kBets; ++bet) {
    const bool listed = (bet >= kDontCome4 && bet < kPlace4) || (bet >= kPassLine && bet <= kDontCome);
    if (!listed) add(bet, BetName(bet));
  }
  return rows;
}

}  // namespace tessaryn
