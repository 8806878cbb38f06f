#include "rules/luck_plan.h"

#include "rules/luck_values.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// Whether the money depends on the faces, not on the code alone.
constexpr bool PaysByDice(BetId bet) {
  const FamilyId family = FamilyOf(bet);
  return family == FamilyId::kField || family == FamilyId::kMidway || family == FamilyId::kCAndE ||
         family == FamilyId::kHorn;
}

// What a decision brings, figured once for each code where that is all it goes by.
class Nets {
 public:
  explicit Nets(const RidingBet& riding) : riding_(riding), byDice_(PaysByDice(riding.bet)) {}

  std::int64_t Of(int code, int outcome) {
    if (code == 0 || byDice_) return code == 0 ? 0 : NetOf(riding_, code, outcome);
    const auto at = static_cast<std::size_t>(code + 2);
    if (!known_[at]) {
      known_[at] = true;
      nets_[at] = NetOf(riding_, code, outcome);
    }
    return nets_[at];
  }

 private:
  const RidingBet& riding_;
  bool byDice_;
  std::array<bool, 5> known_{};
  std::array<std::int64_t, 5> nets_{};
};

// What every outcome brings, in kValueUnit: money and change of value.
using Changes = std::array<WideInt, kOutcomes>;

void AddBet(LuckPlan& plan, Changes& changes, const RidingBet& riding, const RolledLayouts& rolled,
            bool works) {
  const StandingValues standing = StandingValuesOf(riding, rolled);
  Nets nets(riding);
  plan.before += standing.before;
  for (int outcome = 0; outcome < kOutcomes; ++outcome) {
    const int code = works ? DecidingCode(riding, rolled[outcome], outcome) : 0;
    const std::int64_t net = nets.Of(code, outcome);
    const std::int64_t after = net == 0 ? standing.after[outcome] : 0;
    plan.outcomes[static_cast<std::size_t>(outcome)].after += after;
    changes[outcome] += WideInt{net} * kValueUnit + after - standing.before;
  }
}

void CompareWithMean(LuckPlan& plan, const Changes& changes, const LuckDice& dice) {
  plan.unit = dice.whole * kValueUnit;
  plan.expected = 0;
  for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome)
    plan.expected += dice.weight[outcome] * changes[outcome];
  const double inDollars = 1.0 / (static_cast<double>(dice.whole) * kValueUnit * Currency::kPerDollar);
  double squares = 0;
  for (std::size_t outcome = 0; outcome < kOutcomes; ++outcome) {
    plan.outcomes[outcome].luck = dice.whole * changes[outcome] - plan.expected;
    const double luck = static_cast<double>(plan.outcomes[outcome].luck) * inDollars;
    squares += static_cast<double>(dice.weight[outcome]) * luck * luck;
  }
  plan.variance = squares / static_cast<double>(dice.whole);
}

}  // namespace

void MakeLuckPlan(LuckPlan& plan, const Game& game, SeatId seat, const LuckLayout& layout,
                  const LuckDice& dice, const LuckChances& chances) {
  const BetSet working = game.table.seats[seat].BetWorking.Working();
  const RolledLayouts rolled = LayoutsAfter(layout);
  Changes changes{};
  plan.before = 0;
  plan.outcomes.fill({});
  game.table.seats[seat].SeatBets.ForEach([&](BetId bet) {
    const Currency vig = HasVig(bet) ? VigHeld(game, seat, bet) : kZero;
    const RidingBet riding{game, dice, chances, layout, bet, game.table.BetAmount(seat, bet), vig};
    AddBet(plan, changes, riding, rolled, working.Has(bet));
  });
  CompareWithMean(plan, changes, dice);
}

}  // namespace tessaryn
