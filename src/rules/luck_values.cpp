#include "rules/luck_values.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "rules/settlement_order.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// --- Which bets a roll decides.

// The codes of the bets that the fixed order of settlement decides, by what they go by.
struct CodeTable {
  std::int8_t of[2][7][kOutcomes][kBets + 1] = {};  // with a bar of 2, of 12; come-out and six points
};

void AddSteps(std::int8_t (&codes)[kBets + 1], const SettleSteps& steps, const RollFacts& roll) {
  for (const SettleStep& step : steps.steps) {
    if (!Holds(step.when, roll)) continue;
    codes[step.bet] = step.code;
    if (step.oddsBet != 0)
      codes[step.oddsBet] = static_cast<std::int8_t>(step.code < 0 ? kOddsLose : kOddsWin);
  }
}

CodeTable MakeCodeTable() {
  CodeTable table;
  for (int bar = 0; bar < 2; ++bar)
    for (int place = 0; place < 7; ++place)
      for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome) {
        const DicePair dice = kOutcomeDice[outcome];
        const int total = dice.Total();
        const std::size_t pair = CombinationIndex(dice.low, dice.high);
        const RollFacts roll{place == 0, dice.low == dice.high, bar == 0 ? 2 : 12};
        auto& codes = table.of[bar][place][outcome];
        if (place != 0 && total == kBoxNumbers[place - 1]) {
          AddSteps(codes, kPointMadeLosers, roll);
          AddSteps(codes, kPointMadeWinners, roll);
        }
        for (const SettleSteps* steps : {&kLosersByTotal[total], &kOneRollSteps[total], &kHopLosers[pair],
                                         &kWinnersByTotal[total], &kHopWinners[pair]})
          AddSteps(codes, *steps, roll);
      }
  return table;
}

int MarksCode(const RolledLayout& rolled, BetId bet) {
  if (AllMarked(rolled.marks, kAllMarks)) return kFlatWins;
  const bool wins = (bet == kAllSmall && AllMarked(rolled.marks, kSmallMarks)) ||
                    (bet == kAllTall && AllMarked(rolled.marks, kTallMarks));
  return wins ? kFlatWins : 0;
}

// The roll right behind the one that set the point.
bool FollowsComeOut(const LuckLayout& layout) { return layout.point != 0 && layout.pointBefore == 0; }

int Point7Code(const LuckLayout& layout, const RolledLayout& rolled, int total) {
  if (layout.point == 0) return rolled.after.point == 0 ? kFlatLoses : 0;
  if (!FollowsComeOut(layout)) return 0;
  return total == 7 ? kFlatWins : kFlatLoses;
}

int SevenPoint7Code(const LuckLayout& layout, const RolledLayout& rolled, int total) {
  if (layout.point == 0) return total == 7 ? kFlatWins : rolled.after.point == 0 ? kFlatLoses : 0;
  if (!FollowsComeOut(layout)) return 0;
  return total == 7 ? kOddsWin : kFlatLoses;
}

int HandCode(const RidingBet& riding, const RolledLayout& rolled, int total) {
  const LuckLayout& layout = riding.layout;
  const FamilyRow& row = FamilyRowOf(riding.bet);
  if (row.felt == Felt::kSpecials && row.offered == &Settings::SmallTallEnabled && !layout.specials) return 0;
  switch (row.family) {
    case FamilyId::kMarks:
      return total == 7 ? kFlatLoses : MarksCode(rolled, riding.bet);
    case FamilyId::kFourRolls:
      return total == 7 ? kFlatLoses : rolled.fourRolls == 4 ? kFlatWins : 0;
    case FamilyId::kPoint7:
      return Point7Code(layout, rolled, total);
    case FamilyId::kSevenPoint7:
      return SevenPoint7Code(layout, rolled, total);
    default:
      return total == 7 && layout.point != 0 ? kFlatWins : 0;
  }
}

// --- What stays up.

std::int64_t Rounded(WideInt numerator, std::int64_t denominator) {
  const WideInt half = denominator / 2;
  return static_cast<std::int64_t>((numerator < 0 ? numerator - half : numerator + half) / denominator);
}
std::int64_t InValueUnit(double raw) {
  constexpr double kMost = 4e18;
  return std::llround(std::clamp(raw * kValueUnit, -kMost, kMost));
}

std::int64_t NetOn(const RidingBet& riding, BetId bet, int code, const DecidedRoll& roll) {
  const Game& game = riding.game;
  const PayoffRecord& record = RecordOf(game.payoffs, roll, bet, code);
  const Currency gross = GrossPayoff(game, bet, code, riding.amount, record, riding.vig);
  const Currency net = RoundDownToUnit(gross, game.settings.Unit());
  return net.IsError() ? 0 : net.raw;
}

DecidedRoll RollOf(const RidingBet& riding, int outcome) {
  const LuckLayout& layout = riding.layout;
  const DicePair dice = kOutcomeDice[outcome];
  return {dice.low, dice.high, layout.point, layout.sharpShooter, layout.rideTheLine, layout.fireCount};
}

// A contract on a number, or its opposite: it stands until the number or the seven.
std::int64_t ContractValue(const RidingBet& riding, int number, bool pass) {
  const BetId bet = BetOn(pass ? kCome4 : kDontCome4, number);
  const std::int64_t made = riding.dice.total[number];
  const std::int64_t seven = riding.dice.total[7];
  if (made + seven == 0) return 0;
  const WideInt win = NetOn(riding, bet, kFlatWins, {.point = number});
  const WideInt lose = NetOn(riding, bet, kFlatLoses, {.point = number});
  const WideInt sum = pass ? win * made + lose * seven : win * seven + lose * made;
  return Rounded(sum * kValueUnit, made + seven);
}

// Pass Line and Don't Pass take the table's point, Come and Don't Come the number just rolled.
StandingValues LineValues(const RidingBet& riding, const RolledLayouts& rolled) {
  const bool pass = riding.bet == kPassLine || riding.bet == kCome;
  const bool onLine = riding.bet == kPassLine || riding.bet == kDontPass;
  const int point = onLine ? riding.layout.point : 0;
  std::array<std::int64_t, 6> values{};
  for (int i = 0; i < 6; ++i)
    if (point == 0 || point == kBoxNumbers[i]) values[i] = ContractValue(riding, kBoxNumbers[i], pass);
  StandingValues standing;
  if (point != 0) standing.before = values[BoxPosition(point)];
  for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome) {
    const int total = kOutcomeDice[outcome].Total();
    const int number = onLine ? rolled[outcome].after.point : IsBoxNumber(total) ? total : 0;
    if (number != 0) standing.after[outcome] = values[BoxPosition(number)];
  }
  return standing;
}

StandingValues NumberValues(const RidingBet& riding) {
  StandingValues standing;
  standing.before = ContractValue(riding, FactsOf(riding.bet).number, IsComeNumber(riding.bet));
  standing.after.fill(standing.before);
  return standing;
}

template <typename ValueOf>
StandingValues ByLayout(const RidingBet& riding, const RolledLayouts& rolled, ValueOf valueOf) {
  StandingValues standing;
  standing.before = InValueUnit(valueOf(riding.layout));
  for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome)
    standing.after[outcome] = InValueUnit(valueOf(rolled[outcome].after));
  return standing;
}

// A bet that in the end wins one amount, or loses another, and has not begun where the chance is below 0.
template <typename ChanceOf>
StandingValues OneWin(const RidingBet& riding, const RolledLayouts& rolled, int winCode, ChanceOf chanceOf) {
  if (!riding.layout.specials) return {};
  const auto win = static_cast<double>(NetOn(riding, riding.bet, winCode, RollOf(riding, 0)));
  const auto lose = static_cast<double>(NetOn(riding, riding.bet, kFlatLoses, RollOf(riding, 0)));
  return ByLayout(riding, rolled, [&](const LuckLayout& layout) {
    const double chance = chanceOf(layout);
    return chance < 0 ? 0 : chance * win + (1 - chance) * lose;
  });
}

constexpr double kNotBegun = -1;

std::size_t SmallMarked(const LuckLayout& layout) { return layout.marks >> 2 & 31; }
std::size_t TallMarked(const LuckLayout& layout) { return layout.marks >> 8 & 31; }

StandingValues MarksValues(const RidingBet& riding, const RolledLayouts& rolled) {
  const LuckChances& chances = riding.chances;
  return OneWin(riding, rolled, kFlatWins, [&](const LuckLayout& layout) {
    const std::size_t small = SmallMarked(layout);
    const std::size_t tall = TallMarked(layout);
    if (riding.bet == kAllSmall) return small == 0 ? kNotBegun : chances.small[small];
    if (riding.bet == kAllTall) return tall == 0 ? kNotBegun : chances.tall[tall];
    return small + tall == 0 ? kNotBegun : chances.all[small | tall << 5];
  });
}

StandingValues FourRollsValues(const RidingBet& riding, const RolledLayouts& rolled) {
  return OneWin(riding, rolled, kFlatWins, [&](const LuckLayout& layout) {
    return layout.fourRolls == 0 ? kNotBegun : std::pow(1 - riding.chances.seven, 4 - layout.fourRolls);
  });
}

StandingValues PointValues(const RidingBet& riding, const RolledLayouts& rolled) {
  const int code = riding.bet == kSevenPoint7 ? kOddsWin : kFlatWins;
  return OneWin(riding, rolled, code, [&](const LuckLayout& layout) {
    return FollowsComeOut(layout) ? riding.chances.seven : kNotBegun;
  });
}

// A bet on a hand goes by what it has counted: points made, or a set of them.
struct HandWorth {
  std::array<double, 64> sevenOut{};  // by the count: what the hand brings if it ends now
  std::array<double, 64> comeOut{};   // ... what it is worth on a come-out
  std::size_t last = 0;               // the highest count
};

std::size_t CountWithPoint(const HandWorth& worth, BetId bet, std::size_t count, std::size_t point) {
  return bet == kFire ? count | std::size_t{1} << point : std::min(count + 1, worth.last);
}

DecidedRoll HandEnd(BetId bet, std::size_t count) {
  const int made = static_cast<int>(count);
  if (bet == kFire) return {.fireCount = std::popcount(count)};
  return bet == kSharpShooter ? DecidedRoll{.sharpShooterCount = made}
                              : DecidedRoll{.rideTheLineCount = made};
}

// Backwards from the highest count, where the hand leads nowhere new.
HandWorth HandWorthOf(const RidingBet& riding) {
  const LuckChances& chances = riding.chances;
  const bool naturals = riding.bet == kRideTheLine;
  HandWorth worth;
  worth.last = riding.bet == kFire           ? 63
               : riding.bet == kSharpShooter ? kSharpShooterRows - 1
                                             : kRideTheLineRows - 1;
  const double natural = naturals ? chances.natural : 0;
  for (std::size_t count = worth.last + 1; count-- > 0;) {
    worth.sevenOut[count] =
        static_cast<double>(NetOn(riding, riding.bet, kFlatWins, HandEnd(riding.bet, count)));
    double stays = count == worth.last ? natural : 0;
    double sum = count == worth.last ? 0 : natural * worth.comeOut[std::min(count + 1, worth.last)];
    for (std::size_t i = 0; i < 6; ++i) {
      const std::size_t next = CountWithPoint(worth, riding.bet, count, i);
      const double made = chances.set[i] * chances.made[i];
      sum += (chances.set[i] - made) * worth.sevenOut[count];
      if (next == count)
        stays += made;
      else
        sum += made * worth.comeOut[next];
    }
    const double leaves = chances.anySet + natural - stays;
    worth.comeOut[count] = leaves > 1e-12 ? sum / leaves : 0;
  }
  return worth;
}

std::size_t HandCount(BetId bet, const LuckLayout& layout) {
  if (bet == kFire) return layout.fireMarks & 63;
  return static_cast<std::size_t>(bet == kSharpShooter ? layout.sharpShooter : layout.rideTheLine);
}

StandingValues HandValues(const RidingBet& riding, const RolledLayouts& rolled) {
  const LuckChances& chances = riding.chances;
  // Hands that can't end are never decided.
  if (chances.anySet <= 0 || chances.seven <= 0) return {};
  const HandWorth worth = HandWorthOf(riding);
  return ByLayout(riding, rolled, [&](const LuckLayout& layout) {
    const std::size_t count = std::min(HandCount(riding.bet, layout), worth.last);
    if (layout.point == 0) return count == 0 ? 0 : worth.comeOut[count];
    const auto point = static_cast<std::size_t>(BoxPosition(layout.point));
    const double made = chances.made[point];
    return made * worth.comeOut[CountWithPoint(worth, riding.bet, count, point)] +
           (1 - made) * worth.sevenOut[count];
  });
}

}  // namespace

int DecidingCode(const RidingBet& riding, const RolledLayout& rolled, int outcome) {
  static const CodeTable kCodes = MakeCodeTable();
  if (FamilyRowOf(riding.bet).decidedBy == DecidedBy::kHand)
    return HandCode(riding, rolled, kOutcomeDice[outcome].Total());
  const int point = riding.layout.point;
  const int place = point == 0 ? 0 : BoxPosition(point) + 1;
  return kCodes.of[riding.game.settings.BarNumber == 12 ? 1 : 0][place][outcome][riding.bet];
}

std::int64_t NetOf(const RidingBet& riding, int code, int outcome) {
  return NetOn(riding, riding.bet, code, RollOf(riding, outcome));
}

StandingValues StandingValuesOf(const RidingBet& riding, const RolledLayouts& rolled) {
  switch (FamilyOf(riding.bet)) {
    case FamilyId::kPassLine:
    case FamilyId::kDontPass:
    case FamilyId::kCome:
    case FamilyId::kDontCome:
      return LineValues(riding, rolled);
    case FamilyId::kComeNumber:
    case FamilyId::kDontComeNumber:
      return NumberValues(riding);
    case FamilyId::kMarks:
      return MarksValues(riding, rolled);
    case FamilyId::kFourRolls:
      return FourRollsValues(riding, rolled);
    case FamilyId::kPoint7:
    case FamilyId::kSevenPoint7:
      return PointValues(riding, rolled);
    case FamilyId::kSharpShooter:
    case FamilyId::kRideTheLine:
    case FamilyId::kFire:
      return HandValues(riding, rolled);
    default:
      return {};
  }
}

}  // namespace tessaryn
