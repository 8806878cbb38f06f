#include "config/advantage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <span>

#include "engine/bet_catalogue.h"
#include "engine/game.h"

namespace tessaryn {
namespace {

// The dice as probabilities, by faces and by total.
struct DiceOdds {
  double cell[7][7] = {};
  double total[13] = {};
};

DiceOdds OddsInForce(const Game& game, bool percentageDice) {
  DiceOdds odds;
  const ProbabilityPlane& values = game.percentage.ProbMatrix[1];
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      const int row = ProbabilityRow(die1, die2);
      const int column = ProbabilityColumn(die1, die2);
      const double p = percentageDice ? values[row][column] / 100'000.0 : 1.0 / 36.0;
      odds.cell[die1][die2] = p;
      odds.total[die1 + die2] += p;
    }
  return odds;
}

// Brought to a sum of 1: a chain of rolls must end somewhere.
DiceOdds Normalised(const DiceOdds& odds) {
  double sum = 0;
  for (const double p : odds.total) sum += p;
  DiceOdds result = odds;
  if (sum <= 0) return result;
  for (auto& row : result.cell)
    for (double& p : row) p /= sum;
  for (double& p : result.total) p /= sum;
  return result;
}

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

double Ratio(const PayoffRecord& record) { return record.PayTo.ToDouble() / record.PayPer.ToDouble(); }

struct Case {
  const Game& game;
  const DiceOdds& odds;

  double Pays(int bet) const { return Ratio(game.payoffs.PayoffTable[bet]); }
  double Total(int total) const { return odds.total[total]; }
};

// --- Bets that stay up until their number or the seven.

Outcome AgainstSeven(const Case& c, int number, double onNumber, double onSeven) {
  Results results;
  results.Add(c.Total(number), onNumber);
  results.Add(c.Total(7), onSeven);
  return results.Decision(1);
}

// The win of a bet with vig, for a unit laid out: the bet alone, or bet and vig when it is up front.
double WinAfterVig(double ratio, double vig, bool upFront) {
  if (!upFront) return ratio - vig;
  const double bet = 1 / (1 + vig);
  return bet * ratio - (1 - bet);
}

Outcome Lay(const Case& c, int bet) {
  const Settings& settings = c.game.settings;
  const double ratio = c.Pays(bet);
  const double vig = ratio > 0 ? settings.LayVigRate.ToDouble() * ratio : 0;
  return AgainstSeven(c, kBoxNumbers[bet - kLay4], -1, WinAfterVig(ratio, vig, settings.LayVigUpFront));
}

Outcome Buy(const Case& c, int bet) {
  const Settings& settings = c.game.settings;
  const double ratio = c.Pays(bet);
  const double vig = ratio > 0 ? settings.BuyVigRate.ToDouble() : 0;
  return AgainstSeven(c, kBoxNumbers[bet - kBuy4], WinAfterVig(ratio, vig, settings.BuyVigUpFront), -1);
}

Outcome Hardway(const Case& c, int bet) {
  const int face = bet - kHard4 + 2;
  const double hard = c.odds.cell[face][face];
  Results results;
  results.Add(hard, c.Pays(bet));
  results.Add(c.Total(2 * face) - hard + c.Total(7), -1);
  return results.Decision(1);
}

// --- Bets on one roll: a result for each pair of faces.

double FieldResult(const Case& c, int, int die1, int die2) {
  return Ratio(c.game.payoffs.FieldPayoffs[FieldRow(die1, die2)]);
}
double MidwayResult(const Case& c, int, int die1, int die2) {
  const int row = MidwayRow(die1, die2);
  return row == 0 ? -1 : Ratio(c.game.payoffs.MidwayPayoffs[row]);
}
double TotalResult(const Case& c, int bet, int die1, int die2) {
  constexpr int kTotals[] = {2, 3, 7, 11, 12};
  return die1 + die2 == kTotals[bet - kTwo] ? c.Pays(bet) : -1;
}
double CrapsResult(const Case& c, int bet, int die1, int die2) {
  const int total = die1 + die2;
  return total == 2 || total == 3 || total == 12 ? c.Pays(bet) : -1;
}
double OverUnderResult(const Case& c, int bet, int die1, int die2) {
  const int total = die1 + die2;
  return (bet == kOver7 ? total > 7 : total < 7) ? c.Pays(bet) : -1;
}
double HopResult(const Case& c, int bet, int die1, int die2) {
  return HopBet(die1, die2) == bet ? c.Pays(bet) : -1;
}
// One share wins by the record of its own bet, the others lose.
double SharedResult(const Case& c, int bet, int die1, int die2) {
  int part = 0;
  switch (die1 + die2) {
    case 2:
      part = bet == kCAndE ? kCraps : kTwo;
      break;
    case 3:
      part = bet == kCAndE ? kCraps : kThree;
      break;
    case 7:
      part = bet == kWorld ? kSeven : 0;
      break;
    case 11:
      part = kEleven;
      break;
    case 12:
      part = bet == kCAndE ? kCraps : kTwelve;
      break;
    default:
      break;
  }
  if (part == 0) return -1;
  const double shares = bet == kCAndE ? 2 : bet == kHorn ? 4 : 5;
  return (c.Pays(part) - (shares - 1)) / shares;
}

using CellResult = double (*)(const Case&, int bet, int die1, int die2);

Outcome OneRoll(const Case& c, int bet, CellResult result) {
  Results results;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) results.Add(c.odds.cell[die1][die2], result(c, bet, die1, die2));
  Outcome outcome = results.Decision(1);
  // Whatever the cells add up to, every roll decides.
  if (outcome.rolls > 0) outcome = {results.sum, results.squares, 1};
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

void AddPassComeOut(const Case& c, Results& results) {
  results.Add(c.Total(7) + c.Total(11), c.Pays(kCome));
  results.Add(c.Total(2) + c.Total(3) + c.Total(12), -1);
}

void AddDontComeOut(const Case& c, Results& results) {
  for (const int craps : {2, 3, 12})
    if (craps != c.game.settings.BarNumber) results.Add(c.Total(craps), c.Pays(kDontCome));
  results.Add(c.Total(7) + c.Total(11), -1);
}

// From the come-out to the decision. A barred number decides nothing.
Outcome Line(const Case& c, bool pass) {
  Results results;
  pass ? AddPassComeOut(c, results) : AddDontComeOut(c, results);
  double rolls = 1;
  for (int i = 0; i < 6; ++i) {
    const int number = kBoxNumbers[i];
    const double set = c.Total(number);
    const double made = ChanceBeforeSeven(c.odds, number);
    rolls += set * RollsToDecide(c.odds, number);
    results.Add(set * made, pass ? c.Pays(kCome4 + i) : -1);
    results.Add(set * (1 - made), pass ? -1 : c.Pays(kDontCome4 + i));
  }
  return results.Decision(rolls);
}

// Odds on the points as they are set.
Outcome LineOdds(const Case& c, bool pass) {
  Results results;
  double rolls = 0;
  for (int i = 0; i < 6; ++i) {
    const int number = kBoxNumbers[i];
    const double set = c.Total(number);
    const double made = ChanceBeforeSeven(c.odds, number);
    rolls += set * RollsToDecide(c.odds, number);
    results.Add(set * made, pass ? c.Pays(kComeOdds4 + i) : -1);
    results.Add(set * (1 - made), pass ? -1 : c.Pays(kDontComeOdds4 + i));
  }
  return results.Decision(rolls);
}

// --- Marks and counts.

// All of the numbers before a seven: over the sets of numbers marked, from all of them backwards.
Outcome AllMarked(const Case& c, int bet, std::span<const int> numbers) {
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

Outcome SpecialOutcome(const Case& c, int bet) {
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

Outcome ComeOutOutcome(const Case& c, int row) {
  Results results;
  row == kPassComeOutRow ? AddPassComeOut(c, results) : AddDontComeOut(c, results);
  return results.Decision(1);
}

Outcome NumberOutcome(const Case& c, int bet) {
  const int number = kBoxNumbers[(bet - 1) % 6];
  if (IsLay(bet)) return Lay(c, bet);
  if (IsBuy(bet)) return Buy(c, bet);
  if (IsDontComeNumber(bet) || IsDontComeOdds(bet)) return AgainstSeven(c, number, -1, c.Pays(bet));
  return AgainstSeven(c, number, c.Pays(bet), -1);
}

Outcome LayoutOutcome(const Case& c, int bet) {
  switch (bet) {
    case kPassLine:
    case kCome:
      return Line(c, true);
    case kDontPass:
    case kDontCome:
      return Line(c, false);
    case kPassLineOdds:
      return LineOdds(c, true);
    case kDontPassOdds:
      return LineOdds(c, false);
    case kField:
      return OneRoll(c, bet, FieldResult);
    case kBig6:
      return AgainstSeven(c, 6, c.Pays(bet), -1);
    case kBig8:
      return AgainstSeven(c, 8, c.Pays(bet), -1);
    case kCraps:
      return OneRoll(c, bet, CrapsResult);
    case kOver7:
    case kUnder7:
      return OneRoll(c, bet, OverUnderResult);
    case kMidway:
      return OneRoll(c, bet, MidwayResult);
    default:
      break;
  }
  if (bet >= kHard4 && bet <= kHard10) return Hardway(c, bet);
  if (bet >= kTwo && bet <= kTwelve) return OneRoll(c, bet, TotalResult);
  if (bet >= kCAndE && bet <= kWorld) return OneRoll(c, bet, SharedResult);
  return OneRoll(c, bet, HopResult);
}

bool IsSpecial(int bet) { return bet >= kAllSmall && bet <= kFire && bet != kMidway; }

Outcome OutcomeOf(const Game& game, const DiceOdds& odds, int bet) {
  if (bet == kPassComeOutRow || bet == kDontComeOutRow) return ComeOutOutcome({game, odds}, bet);
  if (!IsTableBet(bet)) return {};
  if (IsSpecial(bet)) {
    const DiceOdds normalised = Normalised(odds);
    return SpecialOutcome({game, normalised}, bet);
  }
  return bet < kPassLine ? NumberOutcome({game, odds}, bet) : LayoutOutcome({game, odds}, bet);
}

double Rounded(double value, double places) {
  const double scaled = std::round(value * places) / places;
  return scaled == 0 ? 0 : scaled;  // no minus zero
}

Advantage Figures(const Game& game, const DiceOdds& odds, int bet) {
  const Outcome outcome = OutcomeOf(game, odds, bet);
  Advantage result;
  if (!(outcome.rolls > 0)) return result;
  const double perRoll = outcome.mean / outcome.rolls;
  const double squarePerRoll = outcome.square / outcome.rolls;
  double perDecision = outcome.mean;
  double rolls = outcome.rolls;
  double variance = outcome.square - outcome.mean * outcome.mean;
  if (game.settings.IncludeZeroOutcomes) {
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
  int firstBet;
  const char* prefix;
  const char* suffix;
};
constexpr RowFamily kRowFamilies[] = {{kCome4, "Pass/Come ", ""},
                                      {kComeOdds4, "Pass/Come ", " Odds"},
                                      {kDontCome4, "DP/DC ", ""},
                                      {kDontComeOdds4, "DP/DC ", " Odds"}};

struct NamedRow {
  int bet;
  const char* caption;
};
constexpr NamedRow kLineRows[] = {{kPassLine, "Passline/Come"},
                                  {kPassLineOdds, "Passline/Come Odds"},
                                  {kDontPass, "Don't Pass/Come"},
                                  {kDontPassOdds, "Don't Pass/Come Odds"},
                                  {kPassComeOutRow, "Passline/Come (c.o.)"},
                                  {kDontComeOutRow, "Don't Pass/Come (c.o.)"}};

}  // namespace

Advantage FigureAdvantage(const Game& game, int bet) {
  return FigureAdvantage(game, bet, game.percentage.PercentageDiceActive);
}

Advantage FigureAdvantage(const Game& game, int bet, bool usePercentageDice) {
  return Figures(game, OddsInForce(game, usePercentageDice), bet);
}

double EvPerHour(const Game& game, const Advantage& advantage, Currency amount) {
  return advantage.evPerRoll * game.settings.SimRollRate.ToDouble() * amount.ToDouble();
}

std::string TimePerDecisionText(const Game& game, const Advantage& advantage) {
  const double tenths = std::round(advantage.rollsPerDecision / game.settings.SimRollRate.ToDouble() * 36'000);
  const double minutes = std::floor(tenths / 600);
  char text[64];
  std::snprintf(text, sizeof text, "%02.0f:%04.1f", minutes, (tenths - minutes * 600) / 10);
  return text;
}

std::vector<AdvantageRow> AdvantageTable(const Game& game) {
  const DiceOdds odds = OddsInForce(game, game.percentage.PercentageDiceActive);
  std::vector<AdvantageRow> rows;
  const auto add = [&](int bet, const std::string& caption) {
    rows.push_back({bet, caption, Figures(game, odds, bet)});
  };
  for (const RowFamily& family : kRowFamilies)
    for (int i = 0; i < 6; ++i)
      add(family.firstBet + i, family.prefix + std::to_string(kBoxNumbers[i]) + family.suffix);
  for (const NamedRow& row : kLineRows) add(row.bet, row.caption);
  for (int bet = 1; bet <= kBets; ++bet) {
    const bool listed = (bet >= kDontCome4 && bet < kPlace4) || (bet >= kPassLine && bet <= kDontCome);
    if (!listed) add(bet, BetName(bet));
  }
  return rows;
}

}  // namespace tessaryn
