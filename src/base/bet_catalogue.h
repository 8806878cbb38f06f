// The bets by their fixed numbers: a row for each, with its name, its word, its family and what it rides on.
// What holds for a family stands in state/bet_families.h.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/roll_items.h"
#include "base/table_types.h"

namespace tessaryn {

// Bets that the table treats alike.
enum class FamilyId : std::uint8_t {
  kNone,
  kLay,
  kDontComeNumber,
  kDontComeOdds,
  kComeNumber,
  kComeOdds,
  kPlace,
  kBuy,
  kPassLine,
  kPassLineOdds,
  kCome,
  kDontPass,
  kDontPassOdds,
  kDontCome,
  kField,
  kBig,
  kHardway,
  kProposition,
  kCAndE,
  kHorn,
  kOverUnder,
  kHop,
  kMarks,
  kFourRolls,
  kPoint7,
  kSevenPoint7,
  kMidway,
  kSharpShooter,
  kRideTheLine,
  kFire,
};
inline constexpr int kFamilyCount = static_cast<int>(FamilyId::kFire) + 1;

// Pairs of faces as a set: bit CombinationIndex.
using PairSet = std::uint64_t;

// Requires its bet's number, so that a row out of its place doesn't compile.
struct BetFacts {
  BetId bet = 0;
  const char* name = "";        // as messages and logs write it
  const char* scriptName = "";  // as the betting language writes it
  FamilyId family = FamilyId::kNone;
  int number = 0;    // the total that it rides on
  BetId flat = 0;    // of odds: the bet that they ride behind
  PairSet wins = 0;  // of a bet on one roll: the dice that pay it; the Field's own table tells
  std::array<std::uint8_t, 5> parts{};  // cut into equal shares, these bets
};

namespace bet_rows {

using F = FamilyId;

constexpr PairSet On(std::initializer_list<int> totals) {
  PairSet pairs = 0;
  for (const int total : totals) pairs |= roll_items::TotalMask(total);
  return pairs;
}
constexpr PairSet Faces(int die1, int die2) {
  return CombinationBit(die1, die2) | CombinationBit(die2, die1);
}

inline constexpr BetFacts kRows[] = {
    {},
    {kLay4, "Lay 4", "lay4", F::kLay, 4},
    {kLay4 + 1, "Lay 5", "lay5", F::kLay, 5},
    {kLay4 + 2, "Lay 6", "lay6", F::kLay, 6},
    {kLay4 + 3, "Lay 8", "lay8", F::kLay, 8},
    {kLay4 + 4, "Lay 9", "lay9", F::kLay, 9},
    {kLay4 + 5, "Lay 10", "lay10", F::kLay, 10},
    {kDontCome4, "Don't Come 4", "dontcome4", F::kDontComeNumber, 4},
    {kDontCome4 + 1, "Don't Come 5", "dontcome5", F::kDontComeNumber, 5},
    {kDontCome4 + 2, "Don't Come 6", "dontcome6", F::kDontComeNumber, 6},
    {kDontCome4 + 3, "Don't Come 8", "dontcome8", F::kDontComeNumber, 8},
    {kDontCome4 + 4, "Don't Come 9", "dontcome9", F::kDontComeNumber, 9},
    {kDontCome4 + 5, "Don't Come 10", "dontcome10", F::kDontComeNumber, 10},
    {kDontComeOdds4, "Don't Come 4 Odds", "dontcomeodds4", F::kDontComeOdds, 4, kDontCome4},
    {kDontComeOdds4 + 1, "Don't Come 5 Odds", "dontcomeodds5", F::kDontComeOdds, 5, kDontCome4 + 1},
    {kDontComeOdds4 + 2, "Don't Come 6 Odds", "dontcomeodds6", F::kDontComeOdds, 6, kDontCome4 + 2},
    {kDontComeOdds4 + 3, "Don't Come 8 Odds", "dontcomeodds8", F::kDontComeOdds, 8, kDontCome4 + 3},
    {kDontComeOdds4 + 4, "Don't Come 9 Odds", "dontcomeodds9", F::kDontComeOdds, 9, kDontCome4 + 4},
    {kDontComeOdds4 + 5, "Don't Come 10 Odds", "dontcomeodds10", F::kDontComeOdds, 10, kDontCome4 + 5},
    {kCome4, "Come 4", "come4", F::kComeNumber, 4},
    {kCome4 + 1, "Come 5", "come5", F::kComeNumber, 5},
    {kCome4 + 2, "Come 6", "come6", F::kComeNumber, 6},
    {kCome4 + 3, "Come 8", "come8", F::kComeNumber, 8},
    {kCome4 + 4, "Come 9", "come9", F::kComeNumber, 9},
    {kCome4 + 5, "Come 10", "come10", F::kComeNumber, 10},
    {kComeOdds4, "Come 4 Odds", "comeodds4", F::kComeOdds, 4, kCome4},
    {kComeOdds4 + 1, "Come 5 Odds", "comeodds5", F::kComeOdds, 5, kCome4 + 1},
    {kComeOdds4 + 2, "Come 6 Odds", "comeodds6", F::kComeOdds, 6, kCome4 + 2},
    {kComeOdds4 + 3, "Come 8 Odds", "comeodds8", F::kComeOdds, 8, kCome4 + 3},
    {kComeOdds4 + 4, "Come 9 Odds", "comeodds9", F::kComeOdds, 9, kCome4 + 4},
    {kComeOdds4 + 5, "Come 10 Odds", "comeodds10", F::kComeOdds, 10, kCome4 + 5},
    {kPlace4, "Place 4", "place4", F::kPlace, 4},
    {kPlace4 + 1, "Place 5", "place5", F::kPlace, 5},
    {kPlace4 + 2, "Place 6", "place6", F::kPlace, 6},
    {kPlace4 + 3, "Place 8", "place8", F::kPlace, 8},
    {kPlace4 + 4, "Place 9", "place9", F::kPlace, 9},
    {kPlace4 + 5, "Place 10", "place10", F::kPlace, 10},
    {kBuy4, "Buy 4", "buy4", F::kBuy, 4},
    {kBuy4 + 1, "Buy 5", "buy5", F::kBuy, 5},
    {kBuy4 + 2, "Buy 6", "buy6", F::kBuy, 6},
    {kBuy4 + 3, "Buy 8", "buy8", F::kBuy, 8},
    {kBuy4 + 4, "Buy 9", "buy9", F::kBuy, 9},
    {kBuy4 + 5, "Buy 10", "buy10", F::kBuy, 10},
    {kPassLine, "Pass Line", "passline", F::kPassLine},
    {kPassLineOdds, "Pass Line Odds", "passlineodds", F::kPassLineOdds, 0, kPassLine},
    {kCome, "Come", "come", F::kCome},
    {kDontPass, "Don't Pass", "dontpass", F::kDontPass},
    {kDontPassOdds, "Don't Pass Odds", "dontpassodds", F::kDontPassOdds, 0, kDontPass},
    {kDontCome, "Don't Come", "dontcome", F::kDontCome},
    {kField, "Field", "field", F::kField},
    {kBig6, "Big 6", "big6", F::kBig, 6},
    {kBig8, "Big 8", "big8", F::kBig, 8},
    {kHard4, "Hard 4", "hard4", F::kHardway, 4},
    {kHard6, "Hard 6", "hard6", F::kHardway, 6},
    {kHard8, "Hard 8", "hard8", F::kHardway, 8},
    {kHard10, "Hard 10", "hard10", F::kHardway, 10},
    {kTwo, "Two", "two", F::kProposition, 0, 0, On({2})},
    {kThree, "Three", "three", F::kProposition, 0, 0, On({3})},
    {kSeven, "Seven", "seven", F::kProposition, 0, 0, On({7})},
    {kEleven, "Eleven", "eleven", F::kProposition, 0, 0, On({11})},
    {kTwelve, "Twelve", "twelve", F::kProposition, 0, 0, On({12})},
    {kCraps, "Craps", "craps", F::kProposition, 0, 0, On({2, 3, 12})},
    {kCAndE, "C and E", "cande", F::kCAndE, 0, 0, On({2, 3, 11, 12}), {kCraps, kEleven}},
    {kHorn, "Horn", "horn", F::kHorn, 0, 0, On({2, 3, 11, 12}), {kTwo, kThree, kEleven, kTwelve}},
    {kWorld,
     "World",
     "world",
     F::kHorn,
     0,
     0,
     On({2, 3, 7, 11, 12}),
     {kTwo, kThree, kSeven, kEleven, kTwelve}},
    {kOver7, "Over 7", "over7", F::kOverUnder, 0, 0, On({8, 9, 10, 11, 12})},
    {kUnder7, "Under 7", "under7", F::kOverUnder, 0, 0, On({2, 3, 4, 5, 6})},
    {kHop13, "Hop 13", "hop13", F::kHop, 0, 0, Faces(1, 3)},
    {kHop14, "Hop 14", "hop14", F::kHop, 0, 0, Faces(1, 4)},
    {kHop15, "Hop 15", "hop15", F::kHop, 0, 0, Faces(1, 5)},
    {kHop16, "Hop 16", "hop16", F::kHop, 0, 0, Faces(1, 6)},
    {kHop22, "Hop 22", "hop22", F::kHop, 0, 0, Faces(2, 2)},
    {kHop23, "Hop 23", "hop23", F::kHop, 0, 0, Faces(2, 3)},
    {kHop24, "Hop 24", "hop24", F::kHop, 0, 0, Faces(2, 4)},
    {kHop25, "Hop 25", "hop25", F::kHop, 0, 0, Faces(2, 5)},
    {kHop26, "Hop 26", "hop26", F::kHop, 0, 0, Faces(2, 6)},
    {kHop33, "Hop 33", "hop33", F::kHop, 0, 0, Faces(3, 3)},
    {kHop34, "Hop 34", "hop34", F::kHop, 0, 0, Faces(3, 4)},
    {kHop35, "Hop 35", "hop35", F::kHop, 0, 0, Faces(3, 5)},
    {kHop36, "Hop 36", "hop36", F::kHop, 0, 0, Faces(3, 6)},
    {kHop44, "Hop 44", "hop44", F::kHop, 0, 0, Faces(4, 4)},
    {kHop45, "Hop 45", "hop45", F::kHop, 0, 0, Faces(4, 5)},
    {kHop46, "Hop 46", "hop46", F::kHop, 0, 0, Faces(4, 6)},
    {kHop55, "Hop 55", "hop55", F::kHop, 0, 0, Faces(5, 5)},
    {kAllSmall, "All Small", "allsmall", F::kMarks},
    {kAllTall, "All Tall", "alltall", F::kMarks},
    {kMakeAll, "Make All", "makeall", F::kMarks},
    {kFourRolls, "4 Rolls No 7", "4rollsno7", F::kFourRolls},
    {kPoint7, "Point 7", "point7", F::kPoint7},
    {kSevenPoint7, "7 Point 7", "7point7", F::kSevenPoint7},
    {kMidway, "Midway", "midway", F::kMidway, 0, 0, On({6, 7, 8})},
    {kSharpShooter, "Sharp Shooter", "sharpshooter", F::kSharpShooter},
    {kRideTheLine, "Ride The Line", "ridetheline", F::kRideTheLine},
    {kFire, "Fire", "fire", F::kFire},
};

static_assert(std::size(kRows) == kBets + 1, "a bet without its row, or a row without its bet");
static_assert(
    [] {
      for (BetId bet = 1; bet <= kBets; ++bet)
        if (kRows[bet].bet != bet || kRows[bet].family == F::kNone) return false;
      return true;
    }(),
    "a bet's row stands in its place and names its family");

// By flat bet.
inline constexpr auto kOdds = [] {
  std::array<std::uint8_t, kBets + 1> odds{};
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (kRows[bet].flat != 0) odds[kRows[bet].flat] = static_cast<std::uint8_t>(bet);
  return odds;
}();
inline constexpr auto kShares = [] {
  std::array<std::uint8_t, kBets + 1> shares{};
  for (BetId bet = 1; bet <= kBets; ++bet) {
    for (const int part : kRows[bet].parts)
      if (part != 0) ++shares[bet];
    if (shares[bet] == 0) shares[bet] = 1;
  }
  return shares;
}();

inline constexpr auto kFamilyOf = [] {
  std::array<FamilyId, kBets + 1> families{};
  for (BetId bet = 1; bet <= kBets; ++bet) families[bet] = kRows[bet].family;
  return families;
}();

struct Span {
  int first = 0;
  int last = -1;
};
constexpr Span SpanOf(FamilyId family) {
  Span span;
  for (BetId bet = kBets; bet >= 1; --bet) {
    if (kRows[bet].family != family) continue;
    if (span.last < 0) span.last = bet;
    span.first = bet;
  }
  return span;
}

}  // namespace bet_rows

// The facts of bet 1 to 93; those of any other number are empty.
constexpr const BetFacts& FactsOf(BetId bet) { return bet_rows::kRows[IsTableBet(bet) ? bet : kNoBet]; }
constexpr FamilyId FamilyOf(BetId bet) {
  return IsTableBet(bet) ? bet_rows::kFamilyOf[bet] : FamilyId::kNone;
}

// The bets of a family.
constexpr BetSet BetsOf(FamilyId family) {
  BetSet set;
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (bet_rows::kRows[bet].family == family) set.Add(bet);
  return set;
}

// Whether a number is a bet of the family; any number may be asked about.
template <FamilyId kFamily>
constexpr bool IsOf(BetId bet) {
  constexpr bet_rows::Span kSpan = bet_rows::SpanOf(kFamily);
  static_assert(BetsOf(kFamily) == BetRange(kSpan.first, kSpan.last), "a family's numbers follow each other");
  return bet >= kSpan.first && bet <= kSpan.last;
}
constexpr bool IsLay(BetId bet) { return IsOf<FamilyId::kLay>(bet); }
constexpr bool IsDontComeNumber(BetId bet) { return IsOf<FamilyId::kDontComeNumber>(bet); }
constexpr bool IsDontComeOdds(BetId bet) { return IsOf<FamilyId::kDontComeOdds>(bet); }
constexpr bool IsComeNumber(BetId bet) { return IsOf<FamilyId::kComeNumber>(bet); }
constexpr bool IsComeOdds(BetId bet) { return IsOf<FamilyId::kComeOdds>(bet); }
constexpr bool IsPlace(BetId bet) { return IsOf<FamilyId::kPlace>(bet); }
constexpr bool IsBuy(BetId bet) { return IsOf<FamilyId::kBuy>(bet); }
constexpr bool HasVig(BetId bet) { return IsLay(bet) || IsBuy(bet); }

// The flat bet that an odds bet rides behind, and the odds behind a flat bet; 0 for none.
constexpr BetId FlatBetOf(BetId oddsBet) { return FactsOf(oddsBet).flat; }
constexpr bool IsOdds(BetId bet) { return FlatBetOf(bet) != 0; }
constexpr BetId OddsBetOf(BetId flatBet) {
  return IsTableBet(flatBet) ? BetId(bet_rows::kOdds[flatBet]) : kNoBet;
}

// The bet of a family of six on a box number.
constexpr BetId BetOn(BetId firstBet, int number) { return firstBet + BoxPosition(number); }

// Into how many equal shares the bet is cut; one of them wins.
constexpr int SharesOf(BetId bet) { return IsTableBet(bet) ? bet_rows::kShares[bet] : 1; }
// The bet as which a share of a cut bet is paid; 0 when no share wins.
constexpr BetId WinningPart(BetId bet, int die1, int die2) {
  for (const BetId part : FactsOf(bet).parts)
    if ((FactsOf(part).wins & CombinationBit(die1, die2)) != 0) return part;
  return 0;
}

// The bet's name; "CheckStack #n" for bets 100 up; empty for a number that names nothing.
std::string BetName(BetId bet);
// Bet by number or by its name in the betting language, case and blanks ignored; also "cs5" and
// "checkstack 5". 0 for neither.
BetId BetByName(std::string_view text);
// The hop bet on just two faces 1 to 6, in either order; 0 for none.
BetId HopBet(int die1, int die2);

}  // namespace tessaryn
