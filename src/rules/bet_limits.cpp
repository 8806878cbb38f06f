#include "rules/bet_limits.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {
namespace {

__extension__ typedef __int128 Wide;  // products of two amounts

Currency WholeUnits(const Game& game, Currency amount) {
  const Currency whole = RoundDownToUnit(amount, game.settings.Unit());
  if (whole.IsError() || whole > kBankrollLimit) return RoundDownToUnit(kBankrollLimit, game.settings.Unit());
  return std::max(whole, kZero);
}

// The amount whose win is limit. A record that can't win limits nothing.
Currency AmountThatWins(const Game& game, Currency limit, const PayoffRecord& record) {
  if (record.PayTo <= kZero) return game.settings.MaxBet;
  return Divide(Multiply(limit, record.PayPer), record.PayTo);
}

// The same, figured anew only when the limit, the betting unit or the payoff is another.
[[gnu::always_inline]] inline const KeptMaximum& KeptAmount(const Game& game, std::size_t place,
                                                            Currency limit, const PayoffRecord& record) {
  KeptMaximum& kept = game.maximums.of[place];
  const Currency unit = game.settings.Unit();
  // A record that can't win asks for another limit.
  if (record.PayTo <= kZero) limit = game.settings.MaxBet;
  const std::int64_t differs = (kept.limit.raw ^ limit.raw) | (kept.unit.raw ^ unit.raw) |
                               (kept.payTo.raw ^ record.PayTo.raw) | (kept.payPer.raw ^ record.PayPer.raw);
  if (differs != 0) {
    const Currency amount = AmountThatWins(game, limit, record);
    kept = {limit, unit, record.PayTo, record.PayPer, amount, WholeUnits(game, amount)};
  }
  return kept;
}

inline const KeptMaximum& KeptProposition(const Game& game, BetId bet) {
  return KeptAmount(game, static_cast<std::size_t>(bet), game.settings.MaxPropBetPayoff,
                    game.payoffs.PayoffTable[bet]);
}

// Where the amounts of a table's rows are kept: behind those of the bets.
constexpr std::size_t KeptPlaceOf(PayoffTableId table) {
  constexpr std::size_t kFirst = kBets + 1;
  switch (table) {
    case PayoffTableId::kSharpShooter:
      return kFirst + kSevenPointSevenRows;
    case PayoffTableId::kRideTheLine:
      return kFirst + kSevenPointSevenRows + kSharpShooterRows;
    default:
      return kFirst;
  }
}

Currency SmallestAmount(const Game& game, std::size_t place, std::span<const PayoffRecord> rows) {
  Currency smallest = kBankrollLimit;
  for (const PayoffRecord& record : rows) {
    if (record.PayTo > kZero)
      smallest = std::min(smallest, KeptAmount(game, place, game.settings.MaxPropBetPayoff, record).amount);
    ++place;
  }
  return smallest;
}

Currency MaxSharedBet(const Game& game, BetId bet) {
  Currency smallest = kBankrollLimit;
  for (const BetId part : FactsOf(bet).parts)
    if (part != 0) smallest = std::min(smallest, KeptProposition(game, part).amount);
  return Multiply(smallest, Currency::Dollars(SharesOf(bet)));
}

Multiple OddsMultiple(const Game& game, BetId bet) {
  const int own = FactsOf(bet).number;
  const Settings& settings = game.settings;
  switch (own != 0 ? own : game.table.Point) {
    case 6:
    case 8:
      return settings.OddsAllowed68;
    case 5:
    case 9:
      return settings.OddsAllowed59;
    default:
      return settings.OddsAllowed410;
  }
}

// What the five methods work on, in dollars.
struct OddsCase {
  Multiple multiple;  // M
  Currency flat;      // F
  Currency base;      // M times F
  Currency limit;     // (M + 1) times F
  Currency payTo;
  Currency payPer;
};

Currency MinorPush(const OddsCase& odds, Currency unit) {
  const Currency step = Multiply(unit, odds.payPer);
  if (step <= kZero) return odds.base;
  Currency result = Multiply(WholePart(Divide(odds.base, step)), step);
  if (result < odds.base && result + step < odds.limit) result += step;
  return result == kZero ? odds.base : result;
}

// A wide division is a call: most tables' products fit a narrow one.
bool IsWideMultiple(Wide product, Wide divisor) {
  constexpr Wide kNarrow = std::numeric_limits<std::int64_t>::max();
  if (product >= 0 && product <= kNarrow && divisor > 0 && divisor <= kNarrow)
    return static_cast<std::uint64_t>(product) % static_cast<std::uint64_t>(divisor) == 0;
  return product % divisor == 0;
}

// The smallest amount from base upwards, in steps of a dollar, that pays a whole number of the check. Gives
// up at stop.
Currency PaysWholeChecks(const OddsCase& odds, Currency check, Currency stop) {
  const Wide divisor = static_cast<Wide>(odds.payPer.raw) * check.raw;
  for (Currency amount = odds.base; amount < stop; amount += Currency::Dollars(1))
    if (IsWideMultiple(static_cast<Wide>(amount.raw) * odds.payTo.raw, divisor)) return amount;
  return odds.base;
}

Currency ColorPush(const OddsCase& odds, const Currency* checks) {
  // The flat bets whose multiples each check is good for, whatever the table's checks are.
  constexpr std::int64_t kFlatMultiple[6] = {0, 0, 0, 5, 25, 100};
  if (odds.payTo <= kZero || odds.payPer <= kZero) return odds.base;
  for (int n = 5; n >= 2; --n) {
    if (odds.flat < checks[n]) continue;
    const bool flatFits = n == 2 || IsMultiple(odds.flat, Currency::Dollars(kFlatMultiple[n]));
    if (!flatFits) continue;
    const Currency amount = PaysWholeChecks(odds, checks[n], odds.limit);
    if (amount > odds.base && amount < odds.limit) return amount;
  }
  if (odds.flat < checks[1]) return odds.base;
  return PaysWholeChecks(odds, checks[1], odds.base + Currency::Dollars(10'000));
}

// c brought to a multiple of q; 0 when c / q is a half or less.
std::int64_t OddsChipCount(std::int64_t c, std::int64_t q) {
  if (2 * c <= q) return 0;
  return (c + q - 1) / q * q;
}

Currency SingleOdds(const OddsCase& odds, const Currency* checks, bool multiplyFirst) {
  const Currency whole = multiplyFirst ? odds.base : odds.flat;
  const std::int64_t multiple = std::max<std::int64_t>(1, WholePart(odds.payPer).raw / Currency::kPerDollar);
  Currency result = odds.base;
  for (int n = 1; n <= 5; ++n) {
    const std::int64_t checksHeld = whole.raw / checks[n].raw;
    const std::int64_t count = OddsChipCount(checksHeld, multiple);
    Currency amount = Multiply(Currency::Dollars(count), checks[n]);
    if (!multiplyFirst) amount = Multiply(odds.multiple, amount);
    if (!amount.IsError() && amount > result) result = amount;
  }
  return result;
}

// Method 0 chooses by the multiple.
int OddsMethod(int method, Multiple multiple) {
  if (method != 0) return method;
  if (!multiple.IsWhole()) return 1;
  if (multiple == Multiple::Whole(1)) return 4;
  if (multiple == Multiple::Whole(3)) return 5;
  return 3;
}

// The most odds on a flat amount, by OddsCalcMethod. payTo, payPer: the odds bet's payoff.
Currency MaxOddsFor(const Game& game, BetId bet, Currency flatAmount, Currency payTo, Currency payPer) {
  const Settings& settings = game.settings;
  OddsCase odds;
  odds.multiple = OddsMultiple(game, bet);
  odds.flat = flatAmount;
  odds.base = Multiply(odds.multiple, flatAmount);
  odds.limit = Multiply(odds.multiple.Number() + Currency::Dollars(1), flatAmount);
  odds.payTo = payTo;
  odds.payPer = payPer;
  if (odds.base.IsError() || odds.limit.IsError()) return WholeUnits(game, settings.MaxOddsBet);
  Currency most = odds.base;
  switch (OddsMethod(settings.OddsCalcMethod, odds.multiple)) {
    case 2:
      most = MinorPush(odds, settings.Unit());
      break;
    case 3:
      most = ColorPush(odds, settings.CheckValue);
      break;
    case 4:
      most = SingleOdds(odds, settings.CheckValue, true);
      break;
    case 5:
      most = SingleOdds(odds, settings.CheckValue, false);
      break;
    default:
      break;
  }
  const Currency ceiling = RoundDownToUnit(settings.MaxOddsBet, settings.Unit());
  return RoundDownToUnit(std::min(most, ceiling), settings.Unit());
}

Currency MaxOddsOnFlat(const Game& game, SeatId seat, BetId bet, bool laying) {
  const PayoffRecord& record = PayoffOf(game, bet);
  const Currency flat = game.table.BetAmount(seat, FlatBetOf(bet));
  if (!laying || record.PayTo <= kZero) return MaxOddsFor(game, bet, flat, record.PayTo, record.PayPer);
  // Who lays is measured by what can be won: that is the stake of the method, and what is laid its payoff.
  const Currency mostWon = MaxOddsFor(game, bet, flat, record.PayPer, record.PayTo);
  return Divide(Multiply(mostWon, record.PayPer), record.PayTo);
}

Currency RoundVig(const Game& game, Currency vig, int rounding) {
  const Currency unit = game.settings.Unit();
  const Currency down = RoundDownToUnit(vig, unit);
  if (down.IsError() || down == vig || rounding == 1) return down;
  if (rounding == 2) return down + unit;
  return vig.raw - down.raw >= unit.raw - (vig.raw - down.raw) ? down + unit : down;
}

Currency BuyVigFor(const Game& game, Currency amount) {
  return RoundVig(game, Multiply(game.settings.BuyVigRate, amount), game.settings.BuyVigRound);
}

Currency LayVigFor(const Game& game, BetId bet, Currency amount) {
  const PayoffRecord& record = game.payoffs.PayoffTable[bet];
  if (record.PayTo <= kZero) return kZero;
  const Currency win = Divide(Multiply(amount, record.PayTo), record.PayPer);
  return RoundVig(game, Multiply(game.settings.LayVigRate, win), game.settings.LayVigRound);
}

}  // namespace

// What of the families' rows is asked of every bet on every roll, by bet.
constexpr BetSet kMainBets =
    BetsWhere([](const FamilyRow& row) { return row.minimum == &Settings::MinBetMain; });
constexpr BetSet kWinOfPropBets =
    BetsWhere([](const FamilyRow& row) { return row.maximum == Maximum::kWinOfProp; });
static_assert(kMainBets == Without(kAllTableBets, BetsWhere([](const FamilyRow& row) {
                                     return row.minimum == &Settings::MinBetProp;
                                   })));

Currency MinBetFor(const Game& game, BetId bet) {
  return kMainBets.Has(bet) ? game.settings.MinBetMain : game.settings.MinBetProp;
}

Currency MaxBetFor(const Game& game, SeatId seat, BetId bet) {
  const Settings& settings = game.settings;
  if (kWinOfPropBets.Has(bet)) return KeptProposition(game, bet).whole;
  const FamilyRow& family = FamilyRowOf(bet);
  switch (family.maximum) {
    case Maximum::kWinOfTable:
      return KeptAmount(game, static_cast<std::size_t>(bet), settings.MaxBet, game.payoffs.PayoffTable[bet])
          .whole;
    case Maximum::kWinOfParts:
      return WholeUnits(game, MaxSharedBet(game, bet));
    case Maximum::kWinOfRows:
      return WholeUnits(game, SmallestAmount(game, KeptPlaceOf(family.payoffs), PayoffRowsOf(game, bet)));
    case Maximum::kOddsTaken:
      return WholeUnits(game, MaxOddsOnFlat(game, seat, bet, false));
    case Maximum::kOddsLaid:
      return WholeUnits(game, MaxOddsOnFlat(game, seat, bet, true));
    case Maximum::kFire:
      return WholeUnits(game, settings.MaxFireBet);
    default:
      return WholeUnits(game, settings.MaxBet);
  }
}

Currency VigFor(const Game& game, BetId bet, Currency amount) {
  if (amount <= kZero) return kZero;
  if (IsLay(bet)) return LayVigFor(game, bet, amount);
  if (IsBuy(bet)) return BuyVigFor(game, amount);
  return kZero;
}

Currency ProperOddsAmount(const Game& game, SeatId seat, BetId bet, Currency change) {
  const Handling& handling = game.table.seats[seat].handling;
  const Settings& settings = game.settings;
  const Currency amount = game.table.BetAmount(seat, bet);
  const Currency wanted = amount + change;
  const Currency betUnit = PayoffOf(game, bet).BetUnit;
  if (wanted <= kZero || betUnit <= kZero) return change;
  // The colour correction pays in the largest check of which the bet holds a whole multiple's worth.
  Currency size = betUnit;
  if (handling.ProperOddsMode == 2)
    for (int n = 5; n >= 2; --n) {
      const Currency larger = Multiply(betUnit, Divide(settings.CheckValue[n], settings.Unit()));
      if (!larger.IsError() && larger <= wanted) {
        size = larger;
        break;
      }
    }
  if (IsMultiple(wanted, size)) return change;
  const Currency lower = Currency::FromRaw(wanted.raw / size.raw * size.raw);
  const Currency higher = lower + size;
  const int bias = handling.*FamilyRowOf(bet).bias;
  const bool up = bias == 0 ? change > kZero : bias == 1;
  Currency proper = up ? higher : lower;
  const Currency most = MaxBetFor(game, seat, bet);
  if (proper > most) proper = lower;
  return proper - amount;
}

}  // namespace tessaryn
