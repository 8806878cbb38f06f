#include "rules/bet_results.h"

#include "dice/percentage_dice.h"
#include "state/game.h"

namespace tessaryn {

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

double Ratio(const PayoffRecord& record) { return record.PayTo.ToDouble() / record.PayPer.ToDouble(); }

double Case::Pays(BetId bet) const { return Ratio(game.payoffs.PayoffTable[bet]); }

namespace {

// --- Bets that stay up until their number or the seven.

double AgainstSeven(int total, int number, double onNumber, double onSeven) {
  return total == number ? onNumber : total == 7 ? onSeven : 0;
}

// The win of a bet with vig, for a unit laid out: the bet alone, or bet and vig when it is up front.
double WinAfterVig(double ratio, double vig, bool upFront) {
  if (!upFront) return ratio - vig;
  const double bet = 1 / (1 + vig);
  return bet * ratio - (1 - bet);
}

double LayWin(const Case& c, BetId bet) {
  const Settings& settings = c.game.settings;
  const double ratio = c.Pays(bet);
  const double vig = ratio > 0 ? settings.LayVigRate.ToDouble() * ratio : 0;
  return WinAfterVig(ratio, vig, settings.LayVigUpFront);
}

double BuyWin(const Case& c, BetId bet) {
  const Settings& settings = c.game.settings;
  const double ratio = c.Pays(bet);
  const double vig = ratio > 0 ? settings.BuyVigRate.ToDouble() : 0;
  return WinAfterVig(ratio, vig, settings.BuyVigUpFront);
}

double NumberResult(const Case& c, BetId bet, int total) {
  const int number = FactsOf(bet).number;
  if (total != number && total != 7) return 0;
  if (IsLay(bet)) return AgainstSeven(total, number, -1, LayWin(c, bet));
  if (IsBuy(bet)) return AgainstSeven(total, number, BuyWin(c, bet), -1);
  return FamilyRowOf(bet).decidedBy == DecidedBy::kSeven ? AgainstSeven(total, number, -1, c.Pays(bet))
                                                         : AgainstSeven(total, number, c.Pays(bet), -1);
}

double PairResult(const Case& c, BetId bet, int die1, int die2) {
  return AgainstSeven(die1 + die2, FactsOf(bet).number, die1 == die2 ? c.Pays(bet) : -1, -1);
}

// --- Bets on one roll: a result for each pair of faces.

double FieldResult(const Case& c, int die1, int die2) {
  return Ratio(c.game.payoffs.FieldPayoffs[FieldRow(die1, die2)]);
}
double MidwayResult(const Case& c, int die1, int die2) {
  const int row = MidwayRow(die1, die2);
  return row == 0 ? -1 : Ratio(c.game.payoffs.MidwayPayoffs[row]);
}
// One share wins by the record of its own bet, the others lose.
double SharedResult(const Case& c, BetId bet, int die1, int die2) {
  const double shares = SharesOf(bet);
  return (c.Pays(WinningPart(bet, die1, die2)) - (shares - 1)) / shares;
}
double OneRollResult(const Case& c, BetId bet, int die1, int die2) {
  if (bet == kField) return FieldResult(c, die1, die2);
  if (bet == kMidway) return MidwayResult(c, die1, die2);
  if ((FactsOf(bet).wins & CombinationBit(die1, die2)) == 0) return -1;
  return SharesOf(bet) > 1 ? SharedResult(c, bet, die1, die2) : c.Pays(bet);
}

}  // namespace

double ResultOnRoll(const Case& c, BetId bet, int die1, int die2) {
  switch (FamilyRowOf(bet).decidedBy) {
    case DecidedBy::kOneRoll:
      return OneRollResult(c, bet, die1, die2);
    case DecidedBy::kPair:
      return PairResult(c, bet, die1, die2);
    default:
      return NumberResult(c, bet, die1 + die2);
  }
}

namespace {

double ComeOutResult(const Case& c, bool pass, int total) {
  const bool natural = total == 7 || total == 11;
  const bool craps = total == 2 || total == 3 || total == 12;
  if (natural) return pass ? c.Pays(kCome) : -1;
  if (!craps) return 0;
  if (pass) return -1;
  return total == c.game.settings.BarNumber ? 0 : c.Pays(kDontCome);
}

double PointResult(const Case& c, bool pass, int point, int total, int passBets, int dontBets) {
  const int place = BoxPosition(point);
  return pass ? AgainstSeven(total, point, c.Pays(passBets + place), -1)
              : AgainstSeven(total, point, -1, c.Pays(dontBets + place));
}

}  // namespace

double LineResult(const Case& c, bool pass, int point, int total) {
  return point == 0 ? ComeOutResult(c, pass, total) : PointResult(c, pass, point, total, kCome4, kDontCome4);
}

double LineOddsResult(const Case& c, bool pass, int point, int total) {
  return point == 0 ? 0 : PointResult(c, pass, point, total, kComeOdds4, kDontComeOdds4);
}

}  // namespace tessaryn
