#include "rules/luck.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numeric>

#include "state/game.h"
#include "state/vig.h"

namespace tessaryn {
namespace {

constexpr std::size_t kPlans = 256;  // a power of two

// --- What plans are made from.

LuckRules RulesOf(const Settings& settings) {
  return {settings.Unit(), settings.BarNumber, settings.SmallTallEnabled, settings.LayVigUpFront,
          settings.BuyVigUpFront};
}

void ForgetPlans(LuckMeter& meter) {
  for (LuckPlan& plan : meter.plans) plan.made = false;
}

std::int64_t UnitOf(const LuckDice& dice) { return dice.whole * kValueUnit; }

// Sums go on in a unit that both the old and the new dice go into.
void ChangeUnit(LuckMeter& meter, std::int64_t other) {
  const std::int64_t unit = std::lcm(meter.unit, other);
  const std::int64_t factor = unit / meter.unit;
  for (SeatLuck& seat : meter.seats)
    for (WideInt* sum : {&seat.luck, &seat.expected, &seat.shifted}) *sum *= factor;
  meter.unit = unit;
}

void FollowRules(LuckMeter& meter, const Game& game) {
  if (meter.plans.empty()) {
    meter.plans.resize(kPlans + kSeatRows);
    meter.payoffs = game.payoffs;
    meter.dice = LuckDiceOf(game.percentage);
  }
  if (!StillTheDice(meter.dice, game.percentage)) {
    meter.dice = LuckDiceOf(game.percentage);
    meter.chancesKnown = false;
    ForgetPlans(meter);
  }
  if (const LuckRules rules = RulesOf(game.settings); !(rules == meter.rules)) {
    meter.rules = rules;
    ForgetPlans(meter);
  }
}

// The rows of the tables by which a bet may be paid, as bytes of them: its own, and those that stand for
// others.
struct Records {
  std::size_t at = 0;
  std::size_t bytes = 0;
};
constexpr std::size_t kRow = sizeof(PayoffRecord);
constexpr Records Rows(int first, int last) { return {first * kRow, (last - first + 1) * kRow}; }

constexpr Records OtherRecordsOf(int bet) {
  switch (FamilyOf(bet)) {
    case FamilyId::kPassLine:
    case FamilyId::kCome:
      return Rows(kCome4, kCome4 + 5);
    case FamilyId::kDontPass:
    case FamilyId::kDontCome:
      return Rows(kDontCome4, kDontCome4 + 5);
    case FamilyId::kPassLineOdds:
      return Rows(kComeOdds4, kComeOdds4 + 5);
    case FamilyId::kDontPassOdds:
      return Rows(kDontComeOdds4, kDontComeOdds4 + 5);
    case FamilyId::kCAndE:
    case FamilyId::kHorn:
      return Rows(kTwo, kCraps);
    case FamilyId::kField:
      return {offsetof(PayoffTables, FieldPayoffs), sizeof(PayoffTables::FieldPayoffs)};
    case FamilyId::kSevenPoint7:
      return {offsetof(PayoffTables, SevenPointSevenPayoffs), sizeof(PayoffTables::SevenPointSevenPayoffs)};
    case FamilyId::kMidway:
      return {offsetof(PayoffTables, MidwayPayoffs), sizeof(PayoffTables::MidwayPayoffs)};
    case FamilyId::kSharpShooter:
      return {offsetof(PayoffTables, SharpShooterPayoffs), sizeof(PayoffTables::SharpShooterPayoffs)};
    case FamilyId::kRideTheLine:
      return {offsetof(PayoffTables, RideTheLinePayoffs), sizeof(PayoffTables::RideTheLinePayoffs)};
    case FamilyId::kFire:
      return {offsetof(PayoffTables, FirePayoffs), sizeof(PayoffTables::FirePayoffs)};
    default:
      return {};
  }
}
constexpr auto kOtherRecords = [] {
  std::array<Records, kBets + 1> records{};
  for (int bet = 1; bet <= kBets; ++bet) records[bet] = OtherRecordsOf(bet);
  return records;
}();

// On the line the waiting bet's row counts, not the bet's own.
constexpr int OwnRow(int bet) { return bet == kPassLine ? kCome : bet == kDontPass ? kDontCome : bet; }

bool PaysAsBefore(const PayoffTables& kept, const PayoffTables& now, int bet) {
  const Records other = kOtherRecords[bet];
  const int row = OwnRow(bet);
  return kept.PayoffTable[row] == now.PayoffTable[row] &&
         std::memcmp(reinterpret_cast<const char*>(&kept) + other.at,
                     reinterpret_cast<const char*>(&now) + other.at, other.bytes) == 0;
}

// --- The plan for what a seat rides with.

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 29;
}

// Notes what the seat rides with; returns its hash. Payoffs that changed are taken over on the way.
std::uint64_t NoteRide(LuckMeter& meter, const Game& game, int seat) {
  const SeatState& state = game.table.seats[seat];
  LuckRide& ride = meter.ride;
  ride.layout = LuckLayoutOf(game, state.SeatBets);
  ride.bets = state.SeatBets;
  ride.working = state.BetWorking.Working() & state.SeatBets;
  ride.figures = 0;
  const LuckLayout& layout = ride.layout;
  std::uint64_t hash =
      Mixed(ride.bets.words[0], ride.bets.words[1] ^ static_cast<std::uint64_t>(layout.point) << 56);
  hash = Mixed(hash, ride.working.words[0] ^ ride.working.words[1] << 7);
  hash = Mixed(hash, layout.marks ^ static_cast<std::uint64_t>(layout.fireMarks) << 16 ^
                         static_cast<std::uint64_t>(layout.fourRolls + 8 * layout.pointBefore) << 24 ^
                         static_cast<std::uint64_t>(layout.sharpShooter) << 36 ^
                         static_cast<std::uint64_t>(layout.rideTheLine) << 48);
  const auto add = [&](Currency figure) {
    if (ride.figures < LuckRide::kFigures) ride.figure[ride.figures] = figure.raw;
    ++ride.figures;
    hash = Mixed(hash, static_cast<std::uint64_t>(figure.raw));
  };
  bool payoffsStand = true;
  ride.bets.ForEach([&](int bet) {
    add(game.table.BetAmount(seat, bet));
    if (HasVig(bet)) add(VigHeld(game, seat, bet));
    payoffsStand = payoffsStand && PaysAsBefore(meter.payoffs, game.payoffs, bet);
  });
  if (!payoffsStand) {
    meter.payoffs = game.payoffs;
    ForgetPlans(meter);
  }
  return hash;
}

bool SameRide(const LuckRide& a, const LuckRide& b) {
  return a.bets == b.bets && a.working == b.working && a.layout == b.layout && a.figures == b.figures &&
         std::equal(a.figure.begin(), a.figure.begin() + a.figures, b.figure.begin());
}

// Its place in plans.
std::size_t PlanFor(LuckMeter& meter, const Game& game, int seat) {
  const std::uint64_t hash = NoteRide(meter, game, seat);
  const bool fits = meter.ride.Fits();
  std::size_t place = hash & (kPlans - 1);
  if (LuckPlan& plan = meter.plans[place]; fits && plan.made && SameRide(plan.ride, meter.ride)) {
    plan.rides = meter.roll;
    return place;
  }
  // A place that another seat rides with on this roll is taken.
  if (!fits || meter.plans[place].rides == meter.roll) place = kPlans + static_cast<std::size_t>(seat);
  LuckPlan& plan = meter.plans[place];
  if (!meter.chancesKnown && meter.ride.bets.Meets(kHandBets)) {
    meter.chances = LuckChancesOf(meter.dice);
    meter.chancesKnown = true;
  }
  MakeLuckPlan(plan, game, seat, meter.ride.layout, meter.dice, meter.chances);
  plan.made = fits;
  plan.rides = meter.roll;
  plan.ride = meter.ride;
  return place;
}

// What the values have become between rolls.
void Shift(LuckMeter& meter, int seat, std::int64_t value) {
  SeatLuck& luck = meter.seats[seat];
  luck.shifted += WideInt{value - luck.value} * (meter.unit / kValueUnit);
  luck.value = value;
}

}  // namespace

std::int64_t LuckUnit(const Game& game) { return UnitOf(LuckDiceOf(game.percentage)); }

void LuckBeginSession(LuckMeter& meter, const Game& game) {
  FollowRules(meter, game);
  meter.unit = UnitOf(meter.dice);
  for (int seat = 0; seat < kSeatRows; ++seat) {
    meter.seats[seat] = {};
    if (seat == kHouse.value || game.table.seats[seat].SeatBets.Empty()) continue;
    ++meter.roll;
    meter.seats[seat].value = meter.plans[PlanFor(meter, game, seat)].before;
  }
  meter.ridingSeats = 0;
  meter.throwsBefore = -1;
}

void LuckBeforeRoll(LuckMeter& meter, const Game& game) {
  if (meter.unit == 0) LuckBeginSession(meter, game);
  FollowRules(meter, game);
  if (meter.unit % UnitOf(meter.dice) != 0) ChangeUnit(meter, UnitOf(meter.dice));
  ++meter.roll;
  meter.ridingSeats = 0;
  meter.throwsBefore = Throws(game.stats);
  const TableState& table = game.table;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const int seat = table.Seated[i];
    const bool any = !table.seats[seat].SeatBets.Empty();
    if (any) {
      meter.riding[seat] = PlanFor(meter, game, seat);
      meter.ridingSeats |= 1u << seat;
    }
    const std::int64_t value = any ? meter.plans[meter.riding[seat]].before : 0;
    if (value != meter.seats[seat].value) Shift(meter, seat, value);
  }
}

void LuckAfterRoll(LuckMeter& meter, const Game& game) {
  const bool thrown = meter.throwsBefore >= 0 && Throws(game.stats) != meter.throwsBefore;
  meter.throwsBefore = -1;
  if (!thrown) return;
  const std::size_t outcome = kOutcomeOf[CombinationIndex(game.table.Die1, game.table.Die2)];
  for (std::uint32_t seats = meter.ridingSeats; seats != 0; seats &= seats - 1) {
    const int seat = std::countr_zero(seats);
    const LuckPlan& plan = meter.plans[meter.riding[seat]];
    SeatLuck& luck = meter.seats[seat];
    const std::int64_t factor =
        meter.unit == plan.whole * kValueUnit ? 1 : meter.unit / (plan.whole * kValueUnit);
    luck.luck += plan.luck[outcome] * factor;
    luck.expected += plan.expected * factor;
    luck.variance += plan.variance;
    luck.value = plan.after[outcome];
    ++luck.rolls;
  }
}

LuckReport LuckOf(const LuckMeter& meter, int seat) {
  const SeatLuck& luck = meter.seats[seat];
  const double perDollar = static_cast<double>(meter.unit) * Currency::kPerDollar;
  const auto dollars = [&](WideInt sum) { return perDollar > 0 ? static_cast<double>(sum) / perDollar : 0; };
  LuckReport report;
  report.expected = dollars(luck.expected + luck.shifted);
  report.actual = dollars(luck.expected + luck.shifted + luck.luck);
  report.luck = dollars(luck.luck);
  report.standardDeviation = std::sqrt(luck.variance);
  if (report.standardDeviation > 0) report.deviations = report.luck / report.standardDeviation;
  return report;
}

}  // namespace tessaryn
