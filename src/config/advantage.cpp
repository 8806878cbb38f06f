#include "config/advantage.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <span>

#include "engine/bet_catalogue.h"
#include "engine/game.h"

namespace tessaryn {
namespace {

// --- The dice.

// Chances of the combinations and the totals. They need not add to 1: cells of percentage dice are rounded.
struct Chances {
  double pair[7][7] = {};
  double total[13] = {};
};

Chances FairChances() {
  Chances dice;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) dice.pair[die1][die2] = 1.0 / 36;
  for (int total = 2; total <= 12; ++total) dice.total[total] = (6 - std::abs(total - 7)) / 36.0;
  return dice;
}

Chances MatrixChances(const PercentageDice& percentage) {
  constexpr double kWhole = kProbabilityWhole;
  const ProbabilityPlane& cells = percentage.ProbMatrix[1];
  Chances dice;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2)
      dice.pair[die1][die2] = cells[ProbabilityRow(die1, die2)][ProbabilityColumn(die1, die2)] / kWhole;
  for (int total = 2; total <= 12; ++total) dice.total[total] = cells[kTotalRow][total - 1] / kWhole;
  return dice;
}

double SumOfPairs(const Chances& dice) {
  double sum = 0;
  for (const auto& row : dice.pair)
    for (const double p : row) sum += p;
  return sum;
}

// The combinations brought to a sum of 1, and totals made of them: chains of rolls need chances that are
// complete. Requires that a combination can come.
Chances BroughtToOne(const Chances& dice) {
  const double sum = SumOfPairs(dice);
  Chances whole;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      whole.pair[die1][die2] = dice.pair[die1][die2] / sum;
      whole.total[die1 + die2] += whole.pair[die1][die2];
    }
  return whole;
}

// --- Results gathered up. Every family comes down to these sums: what a decision pays, and how many rolls
// it takes.

struct Sums {
  double decided = 0;  // weight of the decisions
  double ev = 0;       // weight * result
  double square = 0;   // weight * result * result
  double rolls = 0;    // rolls that this weight of decisions takes

  void Add(double weight, double result) {
    decided += weight;
    ev += weight * result;
    square += weight * result * result;
  }
};

double Rounded(double value, double scale) {
  const double rounded = std::round(value * scale) / scale;
  return rounded == 0 ? 0 : rounded;  // no minus zero
}

double StandardDeviation(double square, double mean) {
  return std::sqrt(std::max(0.0, square - mean * mean));
}

Advantage FromSums(const Sums& sums, bool includeZeroOutcomes) {
  if (!(sums.decided > 0) || !(sums.rolls > 0) || !std::isfinite(sums.rolls)) return {};
  const double perRoll = sums.ev / sums.rolls;
  const double stdevPerRoll = StandardDeviation(sums.square / sums.rolls, perRoll);
  double perDecision = sums.ev / sums.decided;
  double stdevPerDecision = StandardDeviation(sums.square / sums.decided, perDecision);
  double rolls = sums.rolls / sums.decided;
  if (includeZeroOutcomes) {
    perDecision = perRoll;
    stdevPerDecision = stdevPerRoll;
    rolls = 1;
  }
  constexpr double kSix = 1e6;
  return {Rounded(perRoll, kSix), Rounded(perDecision, kSix), Rounded(rolls, 100),
          Rounded(stdevPerRoll, kSix), Rounded(stdevPerDecision, kSix)};
}

double RatioOf(const PayoffRecord& record) { return record.PayTo.ToDouble() / record.PayPer.ToDouble(); }

// What a figure is worked out from.
struct Question {
  const Game& game;
  const Chances& dice;
  int bet;

  double Ratio(int row) const { return RatioOf(game.payoffs.PayoffTable[row]); }
};

// --- Bets on a number against the seven.

struct WinLose {
  double win;
  double lose;
};

// With vig up front the unit is bet and vig together: a share f of it is the bet.
WinLose WithVig(const Question& q, double rate, bool upFront, double ratio) {
  if (q.game.payoffs.PayoffTable[q.bet].PayTo <= kZero) return {ratio, -1};
  const double vig = IsLay(q.bet) ? rate * ratio : rate;
  if (!upFront) return {ratio - vig, -1};
  const double f = 1 / (1 + vig);
  return {f * ratio - (1 - f), -1};
}

WinLose ResultsOf(const Question& q) {
  const Settings& settings = q.game.settings;
  const double ratio = q.Ratio(q.bet);
  if (IsLay(q.bet)) return WithVig(q, settings.LayVigRate.ToDouble(), settings.LayVigUpFront, ratio);
  if (IsBuy(q.bet)) return WithVig(q, settings.BuyVigRate.ToDouble(), settings.BuyVigUpFront, ratio);
  return {ratio, -1};
}

int NumberOf(int bet) {
  if (bet == kBig6 || bet == kBig8) return bet == kBig6 ? 6 : 8;
  return kBoxNumbers[static_cast<std::size_t>((bet - 1) % 6)];
}

Sums NumberBet(const Question& q) {
  const WinLose result = ResultsOf(q);
  const bool winsOnSeven = IsLay(q.bet) || IsDontComeNumber(q.bet) || IsDontComeOdds(q.bet);
  const double number = q.dice.total[NumberOf(q.bet)];
  const double seven = q.dice.total[7];
  Sums sums;
  sums.Add(number, winsOnSeven ? result.lose : result.win);
  sums.Add(seven, winsOnSeven ? result.win : result.lose);
  sums.rolls = 1;
  return sums;
}

Sums HardBet(const Question& q) {
  const int face = q.bet - kHard4 + 2;
  Sums sums;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      const int total = die1 + die2;
      if (total != 7 && total != 2 * face) continue;
      sums.Add(q.dice.pair[die1][die2], die1 == face && die2 == face ? q.Ratio(q.bet) : -1);
    }
  sums.rolls = 1;
  return sums;
}

// --- The line: a come-out roll, and a point that is made or missed.

struct LineBet {
  bool right;      // Pass and Come
  int comeOutRow;  // what a come-out decision pays
  int pointRow;    // what the point 4 pays; the others follow
};

bool WinsComeOut(const Question& q, bool right, int total) {
  if (right) return total == 7 || total == 11;
  return (total == 2 || total == 3 || total == 12) && total != q.game.settings.BarNumber;
}

Sums Line(const Question& q, const LineBet& line) {
  const double seven = q.dice.total[7];
  Sums sums;
  for (int total = 2; total <= 12; ++total) {
    const double chance = q.dice.total[total];
    if (chance <= 0) continue;
    sums.rolls += chance;
    if (!IsBoxNumber(total)) {
      if (!line.right && total == q.game.settings.BarNumber) continue;
      sums.Add(chance, WinsComeOut(q, line.right, total) ? q.Ratio(line.comeOutRow) : -1);
      continue;
    }
    const double ends = chance + seven;
    const double wins = (line.right ? chance : seven) / ends;
    sums.rolls += chance / ends;
    sums.Add(chance * wins, q.Ratio(line.pointRow + BoxPosition(total)));
    sums.Add(chance * (1 - wins), -1);
  }
  return sums;
}

// Pass and Don't Pass odds: the points as often as they are set.
Sums LineOdds(const Question& q, bool right) {
  const double seven = q.dice.total[7];
  Sums sums;
  for (const int point : kBoxNumbers) {
    const double chance = q.dice.total[point];
    if (chance <= 0) continue;
    const double ends = chance + seven;
    const double wins = (right ? chance : seven) / ends;
    sums.rolls += chance / ends;
    sums.Add(chance * wins, q.Ratio((right ? kComeOdds4 : kDontComeOdds4) + BoxPosition(point)));
    sums.Add(chance * (1 - wins), -1);
  }
  return sums;
}

// --- One-roll bets.

// One share of the bet wins by the row, the others lose.
double ShareResult(const Question& q, int row, int shares) { return (q.Ratio(row) + 1 - shares) / shares; }

double HornResult(const Question& q, int total, int shares) {
  switch (total) {
    case 2:
      return ShareResult(q, kTwo, shares);
    case 3:
      return ShareResult(q, kThree, shares);
    case 11:
      return ShareResult(q, kEleven, shares);
    case 12:
      return ShareResult(q, kTwelve, shares);
    default:
      return total == 7 && shares == 5 ? ShareResult(q, kSeven, shares) : -1;
  }
}

double CAndEResult(const Question& q, int total) {
  if (total == 11) return ShareResult(q, kEleven, 2);
  return total <= 3 || total == 12 ? ShareResult(q, kCraps, 2) : -1;
}

// The totals that win bets 56 to 61, 65 and 66, bit n for n.
std::uint32_t WinningTotals(int bet) {
  switch (bet) {
    case kTwo:
      return 1u << 2;
    case kThree:
      return 1u << 3;
    case kSeven:
      return 1u << 7;
    case kEleven:
      return 1u << 11;
    case kTwelve:
      return 1u << 12;
    case kCraps:
      return 1u << 2 | 1u << 3 | 1u << 12;
    case kOver7:
      return 0x1f00;
    default:
      return 0x7c;  // Under 7
  }
}

double OneRollResult(const Question& q, int die1, int die2) {
  const int total = die1 + die2;
  const PayoffTables& payoffs = q.game.payoffs;
  if (q.bet == kField) return RatioOf(payoffs.FieldPayoffs[FieldRow(die1, die2)]);
  if (q.bet == kMidway) {
    const int row = MidwayRow(die1, die2);
    return row == 0 ? -1 : RatioOf(payoffs.MidwayPayoffs[row]);
  }
  if (q.bet == kCAndE) return CAndEResult(q, total);
  if (q.bet == kHorn || q.bet == kWorld) return HornResult(q, total, q.bet == kHorn ? 4 : 5);
  if (q.bet >= kHop13 && q.bet <= kHop55) return HopBet(die1, die2) == q.bet ? q.Ratio(q.bet) : -1;
  return (WinningTotals(q.bet) >> total & 1) != 0 ? q.Ratio(q.bet) : -1;
}

Sums OneRollBet(const Question& q) {
  Sums sums;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) sums.Add(q.dice.pair[die1][die2], OneRollResult(q, die1, die2));
  if (sums.decided > 0) sums.decided = sums.rolls = 1;
  return sums;
}

// --- Chains of rolls. Here the dice are brought to a sum of 1.

// A resolution that wins with some chance and takes so many rolls.
Sums WinOrLose(double win, double ratio, double rolls) {
  Sums sums;
  sums.Add(win, ratio);
  sums.Add(1 - win, -1);
  sums.rolls = rolls;
  return sums;
}

// All of the numbers before a seven. State: the set of those that are marked.
Sums AllOf(const Question& q, std::span<const int> numbers) {
  struct State {
    double win;
    double rolls;
  };
  std::vector<State> states(std::size_t{1} << numbers.size());
  states.back() = {1, 0};
  for (std::size_t set = states.size() - 1; set-- > 0;) {
    double moves = q.dice.total[7];
    double win = 0;
    double rolls = 1;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const double chance = q.dice.total[numbers[i]];
      if ((set >> i & 1) != 0 || chance <= 0) continue;
      const State& next = states[set | std::size_t{1} << i];
      moves += chance;
      win += chance * next.win;
      rolls += chance * next.rolls;
    }
    // No way on: the bet is never decided, and takes forever.
    states[set] = moves > 0 ? State{win / moves, rolls / moves} : State{0, HUGE_VAL};
  }
  return WinOrLose(states.front().win, q.Ratio(q.bet), states.front().rolls);
}

Sums FourRolls(const Question& q) {
  const double go = 1 - q.dice.total[7];
  return WinOrLose(std::pow(go, 4), q.Ratio(q.bet), 1 + go + go * go + go * go * go);
}

double PointChance(const Question& q) {
  double points = 0;
  for (const int number : kBoxNumbers) points += q.dice.total[number];
  return points;
}

// A point, and the seven right behind it.
Sums PointSeven(const Question& q) {
  const double point = PointChance(q);
  return WinOrLose(point * q.dice.total[7], q.Ratio(q.bet), 1 + point);
}

// The same, and a seven on the come-out wins as well.
Sums SevenPointSeven(const Question& q) {
  const PayoffRecord* rows = q.game.payoffs.SevenPointSevenPayoffs;
  const double point = PointChance(q);
  const double seven = q.dice.total[7];
  Sums sums;
  sums.Add(seven, RatioOf(rows[1]));
  sums.Add(point * seven, RatioOf(rows[2]));
  sums.Add(1 - seven - point * seven, -1);
  sums.rolls = 1 + point;
  return sums;
}

// A hand as a chain of come-outs, each with what it leads to.
struct Hand {
  double made[6] = {};  // a point that is set and made
  double natural = 0;
  double sevenOut = 0;
  double rolls = 0;  // of one come-out with what follows

  double PointMade() const {
    double sum = 0;
    for (const double p : made) sum += p;
    return sum;
  }
};

Hand HandOf(const Chances& dice) {
  Hand hand;
  const double seven = dice.total[7];
  hand.natural = seven + dice.total[11];
  hand.rolls = 1;
  for (const int point : kBoxNumbers) {
    const double chance = dice.total[point];
    if (chance <= 0) continue;
    const double ends = chance + seven;
    hand.made[BoxPosition(point)] = chance * chance / ends;
    hand.sevenOut += chance * seven / ends;
    hand.rolls += chance / ends;
  }
  return hand;
}

// Pays a hand by how often it won: the chance of so many wins falls by the same share each time, and the
// last row stands for all beyond it.
Sums CountedHand(const Hand& hand, double win, const PayoffRecord* rows, int rowCount) {
  Sums sums;
  if (hand.sevenOut <= 0) return sums;
  const double again = win / (win + hand.sevenOut);
  double reached = 1;
  for (int row = 1; row <= rowCount; ++row) {
    const double here = row == rowCount ? reached : reached * (1 - again);
    sums.Add(here, RatioOf(rows[row]));
    reached *= again;
  }
  sums.rolls = hand.rolls / hand.sevenOut;
  return sums;
}

// By the different points made. State: the set of them.
Sums FireHand(const Hand& hand, const PayoffRecord* rows) {
  Sums sums;
  if (hand.sevenOut <= 0) return sums;
  double reached[64] = {1};
  for (unsigned set = 0; set < 64; ++set) {
    double moves = hand.sevenOut;
    for (unsigned i = 0; i < 6; ++i)
      if ((set >> i & 1) == 0) moves += hand.made[i];
    sums.Add(reached[set] * hand.sevenOut / moves, RatioOf(rows[std::popcount(set)]));
    for (unsigned i = 0; i < 6; ++i)
      if ((set >> i & 1) == 0) reached[set | 1u << i] += reached[set] * hand.made[i] / moves;
  }
  sums.rolls = hand.rolls / hand.sevenOut;
  return sums;
}

Sums HandBet(const Question& q) {
  const Hand hand = HandOf(q.dice);
  const PayoffTables& payoffs = q.game.payoffs;
  if (q.bet == kFire) return FireHand(hand, payoffs.FirePayoffs);
  if (q.bet == kSharpShooter)
    return CountedHand(hand, hand.PointMade(), payoffs.SharpShooterPayoffs, kSharpShooterRows);
  return CountedHand(hand, hand.natural + hand.PointMade(), payoffs.RideTheLinePayoffs, kRideTheLineRows);
}

Sums SpecialBet(const Question& q) {
  static constexpr int kNumbers[] = {2, 3, 4, 5, 6, 8, 9, 10, 11, 12};
  constexpr std::span<const int> kAll(kNumbers);
  switch (q.bet) {
    case kAllSmall:
      return AllOf(q, kAll.first(5));
    case kAllTall:
      return AllOf(q, kAll.last(5));
    case kMakeAll:
      return AllOf(q, kAll);
    case kFourRolls:
      return FourRolls(q);
    case kPoint7:
      return PointSeven(q);
    case kSevenPoint7:
      return SevenPointSeven(q);
    default:
      return HandBet(q);
  }
}

bool IsChainBet(int bet) { return (bet >= kAllSmall && bet <= kSevenPoint7) || bet >= kSharpShooter; }

Sums SumsOf(const Question& q) {
  if (SumOfPairs(q.dice) <= 0) return {};
  if (IsChainBet(q.bet)) return SpecialBet({q.game, BroughtToOne(q.dice), q.bet});
  switch (q.bet) {
    case kPassLine:
    case kCome:
      return Line(q, {true, kCome, kCome4});
    case kDontPass:
    case kDontCome:
      return Line(q, {false, kDontCome, kDontCome4});
    case kPassLineOdds:
    case kDontPassOdds:
      return LineOdds(q, q.bet == kPassLineOdds);
    default:
      break;
  }
  if (q.bet < kPassLine || q.bet == kBig6 || q.bet == kBig8) return NumberBet(q);
  return q.bet >= kHard4 && q.bet <= kHard10 ? HardBet(q) : OneRollBet(q);
}

}  // namespace

Advantage FigureAdvantage(const Game& game, int bet, bool usePercentageDice) {
  if (!IsTableBet(bet)) return {};
  const Chances dice = usePercentageDice ? MatrixChances(game.percentage) : FairChances();
  return FromSums(SumsOf({game, dice, bet}), game.settings.IncludeZeroOutcomes);
}

Advantage FigureAdvantage(const Game& game, int bet) {
  return FigureAdvantage(game, bet, game.percentage.PercentageDiceActive);
}

const std::vector<AdvantageRow>& AdvantageRows() {
  static const std::vector<AdvantageRow> rows = [] {
    std::vector<AdvantageRow> list;
    struct Group {
      int first;
      const char* before;
      const char* after;
    };
    for (const Group& group : {Group{kCome4, "Pass/Come ", ""}, Group{kComeOdds4, "Pass/Come ", " Odds"},
                               Group{kDontCome4, "DP/DC ", ""}, Group{kDontComeOdds4, "DP/DC ", " Odds"}})
      for (const int number : kBoxNumbers)
        list.push_back(
            {group.first + BoxPosition(number), group.before + std::to_string(number) + group.after});
    list.insert(list.end(), {{kPassLine, "Passline/Come"},
                             {kPassLineOdds, "Passline/Come Odds"},
                             {kDontPass, "Don't Pass/Come"},
                             {kDontPassOdds, "Don't Pass/Come Odds"},
                             {kCome, "Passline/Come (c.o.)"},
                             {kDontCome, "Don't Pass/Come (c.o.)"}});
    BetSet listed;
    for (const AdvantageRow& row : list) listed.Add(row.bet);
    for (int bet = 1; bet <= kBets; ++bet)
      if (!listed.Has(bet)) list.push_back({bet, BetName(bet)});
    return list;
  }();
  return rows;
}

double EvPerHour(const Game& game, const Advantage& advantage, Currency amount) {
  return advantage.evPerRoll * game.settings.SimRollRate.ToDouble() * amount.ToDouble();
}

std::string TimePerDecisionText(const Game& game, const Advantage& advantage) {
  const double tenths =
      std::round(advantage.rollsPerDecision / game.settings.SimRollRate.ToDouble() * 36'000);
  const double minutes = std::floor(tenths / 600);
  char text[64];
  std::snprintf(text, sizeof text, "%02.0f:%04.1f", minutes, (tenths - minutes * 600) / 10);
  return text;
}

std::string AdvantageNumberText(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f", Rounded(value, 100));
  return text;
}

}  // namespace tessaryn
