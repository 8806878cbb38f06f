#include "rules/settlement_order.h"

#include <algorithm>
#include <array>

#include "state/bet_families.h"

namespace tessaryn {
namespace {

using F = FamilyId;
using W = StepWhen;

constexpr std::uint32_t Totals(std::initializer_list<int> totals) {
  std::uint32_t bits = 0;
  for (const int total : totals) bits |= 1u << total;
  return bits;
}
constexpr std::uint32_t kCrapsTotals = Totals({2, 3, 12});
constexpr std::uint32_t kBoxTotals = Totals({4, 5, 6, 8, 9, 10});

// --- The order of a dealer, family by family. A family stands on the totals named here; without any on
// those that its bets' rows tell. Its bets follow in the order of their numbers.
struct FamilySteps {
  FamilyId family;
  std::uint32_t totals = 0;
  StepWhen when = W::kAlways;
  FamilyId odds = F::kNone;  // settled right behind each bet
};

constexpr FamilySteps kLosers[] = {
    {F::kPassLine, kCrapsTotals, W::kComeOut},
    {F::kPassLine, Totals({7}), W::kPointOn, F::kPassLineOdds},
    {F::kDontPass, Totals({7, 11}), W::kComeOut},
    {F::kComeNumber, Totals({7}), W::kAlways, F::kComeOdds},
    {F::kCome, kCrapsTotals},
    {F::kDontCome, Totals({7, 11})},
    {F::kBig, Totals({7})},
    {F::kDontComeNumber, 0, W::kAlways, F::kDontComeOdds},
    {F::kLay},
    {F::kHardway, 0, W::kNoPair},
    {F::kHardway, Totals({7})},
    {F::kPlace, Totals({7})},
    {F::kBuy, Totals({7})},
};

// The moves of Come and Don't Come bets follow them.
constexpr FamilySteps kWinners[] = {
    {F::kCome, Totals({7}), W::kPointOn},
    {F::kDontPass, Totals({7}), W::kPointOn, F::kDontPassOdds},
    {F::kDontPass, Totals({2}), W::kBar12ComeOut},
    {F::kDontPass, Totals({3}), W::kComeOut},
    {F::kDontPass, Totals({12}), W::kBar2ComeOut},
    {F::kPassLine, Totals({7, 11}), W::kComeOut},
    {F::kDontComeNumber, Totals({7}), W::kAlways, F::kDontComeOdds},
    {F::kLay, Totals({7})},
    {F::kComeNumber, 0, W::kAlways, F::kComeOdds},
    {F::kPlace},
    {F::kBuy},
    {F::kBig},
    {F::kMidway},
    {F::kHardway, 0, W::kPair},
    {F::kProposition},
    {F::kCAndE},
    {F::kCome, Totals({11})},
    {F::kHorn},
    {F::kDontCome, Totals({2}), W::kBar12},
    {F::kDontCome, Totals({3})},
    {F::kDontCome, Totals({12}), W::kBar2},
};

// The bets on one roll that are decided by its total, in their order.
constexpr FamilyId kOneRollFamilies[] = {F::kField, F::kMidway, F::kProposition,
                                         F::kCAndE, F::kHorn,   F::kOverUnder};
// Those that are decided either way as the losers are: the Field by its own table.
constexpr bool IsDecidedAtOnce(FamilyId family) { return family == F::kField || family == F::kOverUnder; }

// As the point is made.
constexpr SettleStep kPointMadeL[] = {{kDontPass, -1}, {kDontPassOdds, -2}};
constexpr SettleStep kPointMadeW[] = {{kPassLine, 1}, {kPassLineOdds, 2}};

// --- The steps that come of it.

template <std::size_t kMost>
struct StepList {
  std::array<SettleStep, kMost> steps{};
  std::size_t count = 0;

  constexpr void Add(BetId bet, int code, StepWhen when = W::kAlways, BetId oddsBet = 0) {
    steps[count++] = {static_cast<std::uint8_t>(bet), static_cast<std::int8_t>(code), when,
                      static_cast<std::uint8_t>(oddsBet)};
  }
  constexpr SettleSteps Steps() const { return std::span<const SettleStep>(steps.data(), count); }
};

constexpr bool WinsOnTotal(BetId bet, int total) {
  return (FactsOf(bet).wins & roll_items::TotalMask(total)) != 0;
}

constexpr bool StandsOn(const FamilySteps& row, BetId bet, int total) {
  if (row.totals != 0) return (row.totals >> total & 1) != 0;
  return FactsOf(bet).number == total || WinsOnTotal(bet, total);
}

using TotalList = StepList<32>;

template <std::size_t kRows>
constexpr std::array<TotalList, 13> ListsOf(const FamilySteps (&rows)[kRows], int code) {
  std::array<TotalList, 13> lists{};
  for (int total = 2; total <= 12; ++total)
    for (const FamilySteps& row : rows)
      BetsOf(row.family).ForEach([&](BetId bet) {
        if (!StandsOn(row, bet, total)) return;
        lists[total].Add(bet, code, row.when, row.odds == F::kNone ? kNoBet : OddsBetOf(bet));
      });
  return lists;
}
constexpr auto kLoserLists = ListsOf(kLosers, -1);
constexpr auto kWinnerLists = ListsOf(kWinners, 1);

constexpr auto kOneRollLists = [] {
  std::array<TotalList, 13> lists{};
  for (int total = 2; total <= 12; ++total)
    for (const FamilyId family : kOneRollFamilies)
      BetsOf(family).ForEach([&](BetId bet) {
        const bool wins = family == F::kField || WinsOnTotal(bet, total);
        if (!wins || IsDecidedAtOnce(family)) lists[total].Add(bet, wins ? 1 : -1);
      });
  return lists;
}();

// The hops in the order in which they are taken: by the total of the first dice that win, then by their
// smaller face.
constexpr auto kHopOrder = [] {
  constexpr int kHops = BetsOf(F::kHop).Size();
  const auto rank = [](BetId bet) {
    for (int total = 2; total <= 12; ++total)
      for (int low = 1; low <= 6; ++low)
        if (total >= 2 * low && total - low <= 6 &&
            (FactsOf(bet).wins & CombinationBit(low, total - low)) != 0)
          return std::array{total, low, bet.value};
    return std::array{0, 0, bet.value};
  };
  std::array<BetId, kHops> bets{};
  int at = 0;
  BetsOf(F::kHop).ForEach([&](BetId bet) { bets[at++] = bet; });
  std::ranges::sort(bets, {}, rank);
  return bets;
}();

constexpr auto HopLists(bool winners) {
  std::array<StepList<kHopOrder.size()>, 36> lists{};
  for (int pair = 0; pair < 36; ++pair)
    for (const BetId bet : kHopOrder)
      if (((FactsOf(bet).wins >> pair & 1) != 0) == winners) lists[pair].Add(bet, winners ? 1 : -1);
  return lists;
}
constexpr auto kHopLoserLists = HopLists(false);
constexpr auto kHopWinnerLists = HopLists(true);

template <typename List, std::size_t kCount>
constexpr std::array<SettleSteps, kCount> StepsOf(const std::array<List, kCount>& lists) {
  std::array<SettleSteps, kCount> steps{};
  for (std::size_t at = 0; at < kCount; ++at) steps[at] = lists[at].Steps();
  return steps;
}

}  // namespace

constexpr SettleSteps kPointMadeLosers{kPointMadeL};
constexpr SettleSteps kPointMadeWinners{kPointMadeW};
constexpr std::array<SettleSteps, 13> kLosersByTotal = StepsOf(kLoserLists);
constexpr std::array<SettleSteps, 13> kWinnersByTotal = StepsOf(kWinnerLists);
constexpr std::array<SettleSteps, 13> kOneRollSteps = StepsOf(kOneRollLists);
constexpr std::array<SettleSteps, 36> kHopLosers = StepsOf(kHopLoserLists);
constexpr std::array<SettleSteps, 36> kHopWinners = StepsOf(kHopWinnerLists);

namespace {

template <std::size_t kCount>
constexpr BetSet BetsIn(const std::array<SettleSteps, kCount>& lists) {
  BetSet bets;
  for (const SettleSteps& steps : lists) bets = bets | steps.bets;
  return bets;
}
constexpr BetSet kDecidedByHand =
    BetsWhere([](const FamilyRow& row) { return row.decidedBy == DecidedBy::kHand; });
static_assert((kPointMadeLosers.bets | BetsIn(kLosersByTotal) | BetsIn(kOneRollSteps) | BetsIn(kHopLosers) |
               kDecidedByHand) == kAllTableBets,
              "a bet that no roll takes");
static_assert((kPointMadeWinners.bets | BetsIn(kWinnersByTotal) | BetsIn(kOneRollSteps) |
               BetsIn(kHopWinners) | kDecidedByHand) == kAllTableBets,
              "a bet that no roll pays");

}  // namespace

}  // namespace tessaryn
