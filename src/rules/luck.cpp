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
constexpr int kStandsNowhere = -1;
constexpr SeatId kFirstSeat = 1;
constexpr std::uint32_t kOnlyTheFirst = 1u << 1;  // of the riding seats

// --- What plans are made from.

LuckRules RulesOf(const Settings& settings) {
  return {settings.Unit(), settings.BarNumber, settings.SmallTallEnabled, settings.LayVigUpFront,
          settings.BuyVigUpFront};
}

void ForgetPlans(LuckMeter& meter) {
  for (LuckPlan& plan : meter.plans) plan.made = plan.byPoint = false;
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

void FollowDice(LuckMeter& meter, const Game& game) {
  meter.dice = LuckDiceOf(game.percentage);
  meter.glances = meter.rulesStand && !meter.dice.percentage;
  meter.chancesKnown = false;
  ForgetPlans(meter);
  if (meter.unit != 0 && meter.unit % UnitOf(meter.dice) != 0) ChangeUnit(meter, UnitOf(meter.dice));
}

void FollowRules(LuckMeter& meter, const Game& game) {
  if (meter.plans.empty()) [[unlikely]] {
    meter.plans.resize(kPlans + kSeatRows);
    meter.payoffs = game.payoffs;
    FollowDice(meter, game);
  }
  if (!StillTheDice(meter.dice, game.percentage)) FollowDice(meter, game);
  if (meter.rulesStand) return;
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

constexpr Records OtherRecordsOf(BetId bet) {
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
  for (BetId bet = 1; bet <= kBets; ++bet) records[bet] = OtherRecordsOf(bet);
  return records;
}();

// The first bet on a number whose row a bet on the line is paid by while a point is on.
constexpr int LineRowsOf(BetId bet) {
  switch (bet) {
    case kPassLine:
      return kCome4;
    case kPassLineOdds:
      return kComeOdds4;
    case kDontPass:
      return kDontCome4;
    case kDontPassOdds:
      return kDontComeOdds4;
    default:
      return 0;
  }
}

bool PaysAsBefore(const PayoffTables& kept, const PayoffTables& now, BetId bet, int point) {
  const int line = LineRowsOf(bet);
  if (line != 0 && point != 0) {
    const int row = BetOn(line, point);
    return kept.PayoffTable[row] == now.PayoffTable[row];
  }
  // On the line the waiting bet's row counts, not the bet's own.
  const int row = bet == kPassLine ? kCome : bet == kDontPass ? kDontCome : bet;
  const Records other = kOtherRecords[bet];
  return kept.PayoffTable[row] == now.PayoffTable[row] &&
         (other.bytes == 0 || std::memcmp(reinterpret_cast<const char*>(&kept) + other.at,
                                          reinterpret_cast<const char*>(&now) + other.at, other.bytes) == 0);
}

// --- The plan for what a seat rides with.

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value) {
  hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 29;
}

BetSet WorkingBets(const SeatState& state) { return state.BetWorking.Working() & state.SeatBets; }

// Calls visit(figure) for amounts and vigs in the order of a ride.
template <typename Visit>
void ForEachFigure(const Game& game, SeatId seat, Visit visit) {
  const BetSet& bets = game.table.seats[seat].SeatBets;
  bets.ForEach([&](BetId bet) { visit(game.table.BetAmount(seat, bet).raw); });
  if (bets.Meets(kVigBets))
    (bets & kVigBets).ForEach([&](BetId bet) { visit(VigHeld(game, seat, bet).raw); });
}

std::uint64_t HashOf(const Game& game, SeatId seat, const LuckLayout* layout) {
  const SeatState& state = game.table.seats[seat];
  const BetSet working = WorkingBets(state);
  std::uint64_t hash = Mixed(state.SeatBets.words[0] ^ static_cast<std::uint64_t>(game.table.Point) << 60,
                             state.SeatBets.words[1] ^ working.words[0] << 13 ^ working.words[1] << 32);
  if (layout != nullptr)
    hash = Mixed(hash, layout->marks ^ static_cast<std::uint64_t>(layout->fireMarks) << 16 ^
                           static_cast<std::uint64_t>(layout->fourRolls) << 24 ^
                           static_cast<std::uint64_t>(layout->pointBefore) << 32 ^
                           static_cast<std::uint64_t>(layout->sharpShooter) << 40 ^
                           static_cast<std::uint64_t>(layout->rideTheLine) << 50);
  ForEachFigure(game, seat,
                [&](std::int64_t figure) { hash = Mixed(hash, static_cast<std::uint64_t>(figure)); });
  return hash;
}

// Whether the plan was made for what the seat rides with. layout: none where only the point counts.
inline bool IsFor(const LuckPlan& plan, const Game& game, SeatId seat, const LuckLayout* layout) {
  const SeatState& state = game.table.seats[seat];
  const LuckRide& ride = plan.ride;
  if (!plan.made || !(ride.bets == state.SeatBets) || ride.layout.point != game.table.Point ||
      !(ride.working == WorkingBets(state)) || (layout != nullptr && !(ride.layout == *layout)))
    return false;
  std::int64_t other = 0;
  std::size_t at = 0;
  ForEachFigure(game, seat, [&](std::int64_t figure) { other |= ride.figure[at++] ^ figure; });
  return other == 0;
}

LuckRide RideOf(const Game& game, SeatId seat) {
  const SeatState& state = game.table.seats[seat];
  LuckRide ride;
  ride.layout = LuckLayoutOf(game, state.SeatBets);
  ride.bets = state.SeatBets;
  ride.working = WorkingBets(state);
  ForEachFigure(game, seat, [&](std::int64_t figure) {
    if (ride.figures < LuckRide::kFigures) ride.figure[ride.figures] = figure;
    ++ride.figures;
  });
  return ride;
}

// Payoffs that have changed are taken over.
void FollowPayoffs(LuckMeter& meter, const Game& game, SeatId seat) {
  bool stand = true;
  game.table.seats[seat].SeatBets.ForEach(
      [&](BetId bet) { stand = stand && PaysAsBefore(meter.payoffs, game.payoffs, bet, game.table.Point); });
  if (stand) return;
  meter.payoffs = game.payoffs;
  ForgetPlans(meter);
}

// Makes the plan at its place, or at the seat's own where that one is ridden with on this roll already.
std::size_t MakePlanFor(LuckMeter& meter, const Game& game, SeatId seat, std::size_t place) {
  const LuckRide ride = RideOf(game, seat);
  if (!ride.Fits() || meter.plans[place].rides == meter.roll) place = kPlans + static_cast<std::size_t>(seat);
  if (meter.plans[place].counted) LuckSumUp(meter);
  if (!meter.chancesKnown && ride.bets.Meets(kHandBets)) {
    meter.chances = LuckChancesOf(meter.dice);
    meter.chancesKnown = true;
  }
  LuckPlan& plan = meter.plans[place];
  plan.ride = ride;
  plan.point = ride.layout.point;
  plan.made = ride.Fits();
  plan.byPoint = plan.made && !ride.bets.Meets(kHandBets | kVigBets);
  MakeLuckPlan(plan, game, seat, ride.layout, meter.dice, meter.chances);
  return place;
}

// Whether the plan of the last roll with this point is right, where rules stand: the common case, at a
// glance.
inline bool StillRides(const LuckPlan& plan, const TableState& table, SeatId seat) {
  const SeatState& state = table.seats[seat];
  const LuckRide& ride = plan.ride;
  const BetSet working = WorkingBets(state);
  if (!plan.byPoint || plan.point != table.Point ||
      ((ride.bets.words[0] ^ state.SeatBets.words[0]) | (ride.bets.words[1] ^ state.SeatBets.words[1]) |
       (ride.working.words[0] ^ working.words[0]) | (ride.working.words[1] ^ working.words[1])) != 0)
    return false;
  const std::int64_t* figure = ride.figure.data();
  for (int word = 0; word < 2; ++word)
    for (std::uint64_t rest = ride.bets.words[word]; rest != 0; rest &= rest - 1)
      if (table.BetAmount(seat, word * 64 + std::countr_zero(rest)).raw != *figure++) return false;
  return true;
}

// Its place in plans.
std::size_t PlanFor(LuckMeter& meter, const Game& game, SeatId seat) {
  if (!meter.rulesStand) FollowPayoffs(meter, game, seat);
  LuckLayout layout;
  const BetSet& bets = game.table.seats[seat].SeatBets;
  const bool byPoint = !bets.Meets(kHandBets);
  if (!byPoint) layout = LuckLayoutOf(game, bets);
  const LuckLayout* const key = byPoint ? nullptr : &layout;
  // Mostly a seat rides with what it rode with when this point was last on.
  std::uint16_t& last = meter.lastRide[seat][game.table.Point];
  if (!IsFor(meter.plans[last], game, seat, key)) {
    last = static_cast<std::uint16_t>(HashOf(game, seat, key) & (kPlans - 1));
    if (!IsFor(meter.plans[last], game, seat, key))
      last = static_cast<std::uint16_t>(MakePlanFor(meter, game, seat, last));
  }
  meter.plans[last].rides = meter.roll;
  return last;
}

// What the values have become between rolls.
void Shift(LuckMeter& meter, SeatId seat, std::int64_t value) {
  SeatLuck& luck = meter.seats[seat];
  luck.shifted += WideInt{value - luck.value} * (meter.unit / kValueUnit);
  luck.value = value;
}

// Of the bets as they stand, whatever was before.
void TakeValues(LuckMeter& meter, const Game& game) {
  for (SeatId seat = 1; seat <= kSeats; ++seat) {
    meter.seats[seat].value = 0;
    if (game.table.seats[seat].SeatBets.Empty()) continue;
    ++meter.roll;
    meter.seats[seat].value = meter.plans[PlanFor(meter, game, seat)].before;
  }
  meter.ridingSeats = 0;
  meter.throwsBefore = -1;
  meter.standsAt = kStandsNowhere;
}

}  // namespace

std::int64_t LuckUnit(const Game& game) { return UnitOf(LuckDiceOf(game.percentage)); }

void LuckBeginSession(LuckMeter& meter, const Game& game, LuckRulesMay may) {
  meter.rulesStand = false;
  FollowRules(meter, game);
  if (may == LuckRulesMay::kStand && std::memcmp(&meter.payoffs, &game.payoffs, sizeof meter.payoffs) != 0) {
    meter.payoffs = game.payoffs;
    ForgetPlans(meter);
  }
  meter.rulesStand = may == LuckRulesMay::kStand;
  meter.glances = meter.rulesStand && !meter.dice.percentage;
  LuckSumUp(meter);
  meter.unit = UnitOf(meter.dice);
  for (SeatLuck& seat : meter.seats) seat = {};
  TakeValues(meter, game);
}

void LuckResume(LuckMeter& meter, const Game& game) {
  FollowRules(meter, game);
  TakeValues(meter, game);
}

namespace {

// From now on rolls that ride with the plan are counted by their outcomes.
void CountBy(LuckMeter& meter, std::uint16_t place) {
  if (!meter.plans[place].counted) meter.counted.push_back(place);
  meter.plans[place].counted = true;
}

// Finds what every seat rides with.
[[gnu::noinline]] void RideAnew(LuckMeter& meter, const Game& game) {
  if (!meter.glances || game.percentage.PercentageDiceActive) {
    if (meter.unit == 0) LuckBeginSession(meter, game);
    FollowRules(meter, game);
  }
  ++meter.roll;
  meter.ridingSeats = 0;
  const TableState& table = game.table;
  bool byPoint = meter.glances;
  for (int i = 0; i < table.OccupiedSeats; ++i) {
    const SeatId seat = table.Seated[i];
    std::int64_t value = 0;
    if (!table.seats[seat].SeatBets.Empty()) {
      LuckPlan* plan = &meter.plans[meter.lastRide[seat][table.Point]];
      if (meter.rulesStand && StillRides(*plan, table, seat))
        plan->rides = meter.roll;
      else
        plan = &meter.plans[PlanFor(meter, game, seat)];
      value = plan->before;
      byPoint = byPoint && plan->byPoint;
      meter.riding[seat] = plan;
      meter.ridingSeats |= 1u << seat;
    }
    if (value != meter.seats[seat].value) Shift(meter, seat, value);
  }
  meter.standsAt = byPoint ? table.Point : kStandsNowhere;
  meter.counts = byPoint && table.OccupiedSeats == 1 && meter.ridingSeats == kOnlyTheFirst;
  if (meter.counts) CountBy(meter, meter.lastRide[kFirstSeat][table.Point]);
}

// What more there is to it where the meter goes by smaller parts than the plan.
[[gnu::noinline]] void AddInSmallerParts(SeatLuck& luck, const LuckPlan& plan, std::size_t outcome,
                                         std::int64_t parts) {
  luck.luck += plan.outcomes[outcome].luck * (parts - 1);
  luck.expected += plan.expected * (parts - 1);
}

inline void AddRoll(LuckMeter& meter, SeatId seat, std::size_t outcome) {
  const LuckPlan& plan = *meter.riding[seat];
  SeatLuck& luck = meter.seats[seat];
  luck.luck += plan.outcomes[outcome].luck;
  luck.expected += plan.expected;
  luck.variance += plan.variance;
  luck.value = plan.outcomes[outcome].after;
  ++luck.rolls;
  if (meter.unit != plan.unit) [[unlikely]]
    AddInSmallerParts(luck, plan, outcome, meter.unit / plan.unit);
}

// A few plans come again and again: how often each outcome came is summed up at the end.
inline void AddRollAlone(LuckMeter& meter, std::size_t outcome) {
  if (!meter.counts) return AddRoll(meter, kFirstSeat, outcome);
  LuckOutcome& fell = meter.riding[kFirstSeat]->outcomes[outcome];
  ++fell.times;
  meter.seats[kFirstSeat].value = fell.after;
}

// Where nobody but seat 1 is at the table, mostly it rides with what it rode with when this point was last
// on.
inline bool RidesAlone(LuckMeter& meter, const Game& game) {
  const TableState& table = game.table;
  if (!meter.glances || table.OccupiedSeats != 1) return false;
  LuckPlan& plan = meter.plans[meter.lastRide[kFirstSeat][table.Point]];
  if (!plan.counted || !StillRides(plan, table, kFirstSeat) || plan.before != meter.seats[kFirstSeat].value)
    return false;
  meter.riding[kFirstSeat] = &plan;
  meter.ridingSeats = kOnlyTheFirst;
  meter.counts = true;
  meter.standsAt = table.Point;
  return true;
}

[[gnu::noinline]] void AddRollOfSeats(LuckMeter& meter, std::size_t outcome) {
  for (std::uint32_t seats = meter.ridingSeats; seats != 0; seats &= seats - 1)
    AddRoll(meter, std::countr_zero(seats), outcome);
}

}  // namespace

void LuckBeforeRoll(LuckMeter& meter, const Game& game) {
  const TableState& table = game.table;
  meter.throwsBefore = Throws(game.stats);
  // Mostly the last roll has left all as it was: no bet has been touched since, and no call.
  if (meter.standsAt == table.Point && table.SeatsSinceBefore == 0 && !table.CallsTouched &&
      !game.percentage.PercentageDiceActive)
    return;
  if (game.percentage.PercentageDiceActive || !RidesAlone(meter, game)) RideAnew(meter, game);
}

void LuckAfterRoll(LuckMeter& meter, const Game& game) {
  const bool thrown = meter.throwsBefore >= 0 && Throws(game.stats) != meter.throwsBefore;
  meter.throwsBefore = -1;
  if (thrown) LuckAfterThrow(meter, game);
}

void LuckAfterThrow(LuckMeter& meter, const Game& game) {
  const std::size_t outcome = kOutcomeOf[CombinationIndex(game.table.Die1, game.table.Die2)];
  if (meter.ridingSeats == kOnlyTheFirst) [[likely]]
    AddRollAlone(meter, outcome);
  else
    AddRollOfSeats(meter, outcome);
}

void LuckSumUp(LuckMeter& meter) {
  SeatLuck& luck = meter.seats[kFirstSeat];
  for (const std::uint16_t place : meter.counted) {
    LuckPlan& plan = meter.plans[place];
    const std::int64_t parts = meter.unit / plan.unit;
    std::int64_t rolls = 0;
    for (LuckOutcome& outcome : plan.outcomes) {
      if (outcome.times == 0) continue;
      luck.luck += outcome.luck * (outcome.times * parts);
      rolls += outcome.times;
      outcome.times = 0;
    }
    luck.expected += plan.expected * (rolls * parts);
    luck.variance += plan.variance * static_cast<double>(rolls);
    luck.rolls += rolls;
    plan.counted = false;
  }
  meter.counted.clear();
  meter.counts = false;
  meter.standsAt = kStandsNowhere;
}

LuckReport LuckOf(const LuckMeter& meter, SeatId seat) {
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
