#include "rules/settlement_order.h"

#include <array>

namespace tessaryn {
namespace {

constexpr auto kAlways = StepWhen::kAlways;

// --- Losers by total.
constexpr SettleStep kPointMadeL[] = {{kDontPass, -1}, {kDontPassOdds, -2}};
constexpr SettleStep kCrapsL[] = {{kPassLine, -1, StepWhen::kComeOut}, {kCome, -1}};
constexpr SettleStep kL4[] = {{7, -1, kAlways, 13}, {1, -1}, {kHard4, -1, StepWhen::kNoPair}};
constexpr SettleStep kL5[] = {{8, -1, kAlways, 14}, {2, -1}};
constexpr SettleStep kL6[] = {{9, -1, kAlways, 15}, {3, -1}, {kHard6, -1, StepWhen::kNoPair}};
constexpr SettleStep kL7[] = {
    {kPassLine, -1, StepWhen::kPointOn, kPassLineOdds},
    {kDontPass, -1, StepWhen::kComeOut},
    {19, -1, kAlways, 25},
    {20, -1, kAlways, 26},
    {21, -1, kAlways, 27},
    {22, -1, kAlways, 28},
    {23, -1, kAlways, 29},
    {24, -1, kAlways, 30},
    {kDontCome, -1},
    {kBig6, -1},
    {kBig8, -1},
    {kHard4, -1},
    {kHard6, -1},
    {kHard8, -1},
    {kHard10, -1},
    {31, -1},
    {32, -1},
    {33, -1},
    {34, -1},
    {35, -1},
    {36, -1},
    {37, -1},
    {38, -1},
    {39, -1},
    {40, -1},
    {41, -1},
    {42, -1},
};
constexpr SettleStep kL8[] = {{10, -1, kAlways, 16}, {4, -1}, {kHard8, -1, StepWhen::kNoPair}};
constexpr SettleStep kL9[] = {{11, -1, kAlways, 17}, {5, -1}};
constexpr SettleStep kL10[] = {{12, -1, kAlways, 18}, {6, -1}, {kHard10, -1, StepWhen::kNoPair}};
constexpr SettleStep kL11[] = {{kDontPass, -1, StepWhen::kComeOut}, {kDontCome, -1}};

// --- Winners by total. The moves of Come and Don't Come bets follow them.
constexpr SettleStep kPointMadeW[] = {{kPassLine, 1}, {kPassLineOdds, 2}};
constexpr SettleStep kW2[] = {
    {kDontPass, 1, StepWhen::kBar12ComeOut}, {kTwo, 1}, {kCraps, 1}, {kCAndE, 1}, {kHorn, 1}, {kWorld, 1},
    {kDontCome, 1, StepWhen::kBar12}};
constexpr SettleStep kW3[] = {{kDontPass, 1, StepWhen::kComeOut},
                              {kThree, 1},
                              {kCraps, 1},
                              {kCAndE, 1},
                              {kHorn, 1},
                              {kWorld, 1},
                              {kDontCome, 1}};
constexpr SettleStep kW4[] = {
    {19, 1, kAlways, 25},      {31, 1}, {37, 1}, {kHard4, 1, StepWhen::kPair}, {71, 1, StepWhen::kPair},
    {67, 1, StepWhen::kNoPair}};
constexpr SettleStep kW5[] = {
    {20, 1, kAlways, 26}, {32, 1}, {38, 1}, {68, 1, StepWhen::kFace1}, {72, 1, StepWhen::kNotFace1}};
constexpr SettleStep kW6[] = {{21, 1, kAlways, 27},
                              {33, 1},
                              {39, 1},
                              {kBig6, 1},
                              {kMidway, 1},
                              {kHard6, 1, StepWhen::kPair},
                              {76, 1, StepWhen::kPair},
                              {69, 1, StepWhen::kFace1},
                              {73, 1, StepWhen::kFace2}};
constexpr SettleStep kW7[] = {
    {kCome, 1, StepWhen::kPointOn},
    {kDontPass, 1, StepWhen::kPointOn, kDontPassOdds},
    {kPassLine, 1, StepWhen::kComeOut},
    {7, 1, kAlways, 13},
    {8, 1, kAlways, 14},
    {9, 1, kAlways, 15},
    {10, 1, kAlways, 16},
    {11, 1, kAlways, 17},
    {12, 1, kAlways, 18},
    {1, 1},
    {2, 1},
    {3, 1},
    {4, 1},
    {5, 1},
    {6, 1},
    {kMidway, 1},
    {kSeven, 1},
    {kWorld, 1},
    {70, 1, StepWhen::kFace1},
    {74, 1, StepWhen::kFace2},
    {77, 1, StepWhen::kFace3},
};
constexpr SettleStep kW8[] = {{22, 1, kAlways, 28},
                              {34, 1},
                              {40, 1},
                              {kBig8, 1},
                              {kMidway, 1},
                              {kHard8, 1, StepWhen::kPair},
                              {80, 1, StepWhen::kPair},
                              {75, 1, StepWhen::kFace2},
                              {78, 1, StepWhen::kFace3}};
constexpr SettleStep kW9[] = {
    {23, 1, kAlways, 29}, {35, 1}, {41, 1}, {79, 1, StepWhen::kFace3}, {81, 1, StepWhen::kNotFace3}};
constexpr SettleStep kW10[] = {
    {24, 1, kAlways, 30},    {36, 1}, {42, 1}, {82, 1, StepWhen::kNoPair}, {kHard10, 1, StepWhen::kPair},
    {83, 1, StepWhen::kPair}};
constexpr SettleStep kW11[] = {
    {kPassLine, 1, StepWhen::kComeOut}, {kEleven, 1}, {kCAndE, 1}, {kCome, 1}, {kHorn, 1}, {kWorld, 1}};
constexpr SettleStep kW12[] = {
    {kDontPass, 1, StepWhen::kBar2ComeOut}, {kTwelve, 1}, {kCraps, 1}, {kCAndE, 1}, {kHorn, 1}, {kWorld, 1},
    {kDontCome, 1, StepWhen::kBar2}};

// --- The propositions, in their order: on which totals each does not lose.
struct OneRollBet {
  std::uint8_t bet;
  std::uint32_t survives;  // bit n: not decided as a loss by the total n
};
constexpr std::uint32_t Totals(std::initializer_list<int> totals) {
  std::uint32_t bits = 0;
  for (const int total : totals) bits |= 1u << total;
  return bits;
}
constexpr OneRollBet kOneRollBets[] = {
    {kMidway, Totals({6, 7, 8})},    {kTwo, Totals({2})},
    {kThree, Totals({3})},           {kSeven, Totals({7})},
    {kEleven, Totals({11})},         {kTwelve, Totals({12})},
    {kCraps, Totals({2, 3, 12})},    {kCAndE, Totals({2, 3, 11, 12})},
    {kHorn, Totals({2, 3, 11, 12})}, {kWorld, Totals({2, 3, 7, 11, 12})},
};

struct OneRollList {
  std::array<SettleStep, 13> steps{};
  std::size_t count = 0;
};

constexpr OneRollList OneRollListOf(int total) {
  OneRollList list;
  list.steps[list.count++] = {kField, 1};
  for (const OneRollBet& bet : kOneRollBets)
    if ((bet.survives >> total & 1) == 0) list.steps[list.count++] = {bet.bet, -1};
  list.steps[list.count++] = {kOver7, static_cast<std::int8_t>(total > 7 ? 1 : -1)};
  list.steps[list.count++] = {kUnder7, static_cast<std::int8_t>(total < 7 ? 1 : -1)};
  return list;
}
constexpr auto kOneRollLists = [] {
  std::array<OneRollList, 13> lists{};
  for (int total = 2; total <= 12; ++total) lists[total] = OneRollListOf(total);
  return lists;
}();

// The hops in the order in which they are taken, with their faces.
struct Hop {
  std::uint8_t bet;
  int low;
  int high;
};
constexpr Hop kHops[] = {{67, 1, 3}, {71, 2, 2}, {68, 1, 4}, {72, 2, 3}, {69, 1, 5}, {73, 2, 4},
                         {76, 3, 3}, {70, 1, 6}, {74, 2, 5}, {77, 3, 4}, {75, 2, 6}, {78, 3, 5},
                         {80, 4, 4}, {79, 3, 6}, {81, 4, 5}, {82, 4, 6}, {83, 5, 5}};

struct HopList {
  std::array<SettleStep, 17> steps{};
  std::size_t count = 0;
};
constexpr auto kHopLists = [] {
  std::array<HopList, 36> lists{};
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      HopList& list = lists[(die1 - 1) * 6 + die2 - 1];
      const int low = die1 < die2 ? die1 : die2;
      const int high = die1 < die2 ? die2 : die1;
      for (const Hop& hop : kHops)
        if (hop.low != low || hop.high != high) list.steps[list.count++] = {hop.bet, -1};
    }
  return lists;
}();

constexpr SettleSteps OneRoll(std::size_t total) {
  return std::span<const SettleStep>(kOneRollLists[total].steps.data(), kOneRollLists[total].count);
}
constexpr SettleSteps Hops(std::size_t pair) {
  return std::span<const SettleStep>(kHopLists[pair].steps.data(), kHopLists[pair].count);
}

}  // namespace

constexpr SettleSteps kPointMadeLosers{kPointMadeL};
constexpr SettleSteps kPointMadeWinners{kPointMadeW};
constexpr SettleSteps kLosersByTotal[13] = {{},    {},    {kCrapsL}, {kCrapsL}, {kL4},  {kL5},    {kL6},
                                            {kL7}, {kL8}, {kL9},     {kL10},    {kL11}, {kCrapsL}};
constexpr SettleSteps kWinnersByTotal[13] = {{},    {},    {kW2}, {kW3},  {kW4},  {kW5}, {kW6},
                                             {kW7}, {kW8}, {kW9}, {kW10}, {kW11}, {kW12}};
constexpr SettleSteps kOneRollSteps[13] = {{},          {},          OneRoll(2), OneRoll(3), OneRoll(4),
                                           OneRoll(5),  OneRoll(6),  OneRoll(7), OneRoll(8), OneRoll(9),
                                           OneRoll(10), OneRoll(11), OneRoll(12)};
constexpr SettleSteps kHopLosers[36] = {
    Hops(0),  Hops(1),  Hops(2),  Hops(3),  Hops(4),  Hops(5),  Hops(6),  Hops(7),  Hops(8),
    Hops(9),  Hops(10), Hops(11), Hops(12), Hops(13), Hops(14), Hops(15), Hops(16), Hops(17),
    Hops(18), Hops(19), Hops(20), Hops(21), Hops(22), Hops(23), Hops(24), Hops(25), Hops(26),
    Hops(27), Hops(28), Hops(29), Hops(30), Hops(31), Hops(32), Hops(33), Hops(34), Hops(35)};

}  // namespace tessaryn
