// The families of bets: a row for each, with all that holds for every bet of it. What is a bet's own stands
// in its row of the bet catalogue.
#pragma once

#include "base/bet_catalogue.h"
#include "state/payoff_tables.h"
#include "state/settings.h"
#include "state/table_state.h"

namespace tessaryn {

// What decides a bet.
enum class DecidedBy : std::uint8_t {
  kNumber,   // its number wins, a seven loses
  kSeven,    // a seven wins, its number loses
  kLine,     // the come-out or the point, on the line or of its own
  kPair,     // its number as a pair wins, otherwise or a seven loses
  kOneRoll,  // every roll
  kHand,     // marks, counts and points: more than the point and the roll
};

// What the most is that a bet may be.
enum class Maximum : std::uint8_t {
  kTable,       // MaxBet
  kWinOfTable,  // what wins MaxBet
  kWinOfProp,   // what wins MaxPropBetPayoff
  kWinOfParts,  // likewise of each of its shares
  kWinOfRows,   // likewise of each row of its own table
  kOddsTaken,   // by the flat bet, as the house gives odds
  kOddsLaid,    // likewise, measured by what can be won
  kFire,        // MaxFireBet
};

// When a bet that has ridden a roll can't come down.
enum class Contract : std::uint8_t { kNever, kWithPoint, kAlways };

// Where on the felt the family has its areas.
enum class Felt : std::uint8_t { kNumbers, kLine, kMiddle, kSpecials };

struct FamilyRow {
  FamilyId family;
  DecidedBy decidedBy;
  Felt felt;
  Maximum maximum = Maximum::kTable;
  Contract contract = Contract::kNever;
  bool worksOnComeOut = true;  // house standard: whether BetDefaultWorking is 1
  bool callable = false;       // a player may call it ON or OFF
  Currency Settings::*minimum = &Settings::MinBetProp;
  int Handling::*bias = &Handling::DoBias;        // how amounts are corrected
  bool Settings::*offered = nullptr;              // without it the table may not have the family off
  bool Settings::*vigUpFront = nullptr;           // with it the bet has vig
  bool Handling::*automaticOdds = nullptr;        // of a flat bet: whether its odds follow it
  int TableState::*count = nullptr;               // what is counted for it in the hand, for its dialog
  PayoffTableId payoffs = PayoffTableId::kByBet;  // where its payoffs stand
};

namespace bet_families {

using F = FamilyId;
using D = DecidedBy;
using M = Maximum;

inline constexpr auto kMain = &Settings::MinBetMain;
inline constexpr auto kSpecial = &Settings::SmallTallEnabled;

inline constexpr FamilyRow kRows[] = {
    {.family = F::kNone, .decidedBy = D::kOneRoll, .felt = Felt::kMiddle, .worksOnComeOut = false},
    {.family = F::kLay,
     .decidedBy = D::kSeven,
     .felt = Felt::kNumbers,
     .maximum = M::kWinOfTable,
     .callable = true,
     .minimum = kMain,
     .bias = &Handling::LayBias,
     .vigUpFront = &Settings::LayVigUpFront},
    {.family = F::kDontComeNumber,
     .decidedBy = D::kSeven,
     .felt = Felt::kNumbers,
     .minimum = kMain,
     .bias = &Handling::DontBias,
     .automaticOdds = &Handling::AutoLayOdds},
    {.family = F::kDontComeOdds,
     .decidedBy = D::kSeven,
     .felt = Felt::kNumbers,
     .maximum = M::kOddsLaid,
     .callable = true,
     .minimum = kMain,
     .bias = &Handling::DontBias},
    {.family = F::kComeNumber,
     .decidedBy = D::kNumber,
     .felt = Felt::kNumbers,
     .contract = Contract::kAlways,
     .minimum = kMain,
     .automaticOdds = &Handling::AutoTakeOdds},
    {.family = F::kComeOdds,
     .decidedBy = D::kNumber,
     .felt = Felt::kNumbers,
     .maximum = M::kOddsTaken,
     .worksOnComeOut = false,
     .callable = true,
     .minimum = kMain},
    {.family = F::kPlace,
     .decidedBy = D::kNumber,
     .felt = Felt::kNumbers,
     .worksOnComeOut = false,
     .callable = true,
     .minimum = kMain,
     .bias = &Handling::PlaceBias},
    {.family = F::kBuy,
     .decidedBy = D::kNumber,
     .felt = Felt::kNumbers,
     .worksOnComeOut = false,
     .callable = true,
     .minimum = kMain,
     .bias = &Handling::PlaceBias,
     .vigUpFront = &Settings::BuyVigUpFront},
    {.family = F::kPassLine,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .contract = Contract::kWithPoint,
     .minimum = kMain,
     .automaticOdds = &Handling::AutoTakeOdds},
    {.family = F::kPassLineOdds,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .maximum = M::kOddsTaken,
     .worksOnComeOut = false,
     .callable = true,
     .minimum = kMain},
    {.family = F::kCome,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .worksOnComeOut = false,
     .minimum = kMain},
    {.family = F::kDontPass,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .minimum = kMain,
     .bias = &Handling::DontBias,
     .automaticOdds = &Handling::AutoLayOdds},
    {.family = F::kDontPassOdds,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .maximum = M::kOddsLaid,
     .worksOnComeOut = false,
     .callable = true,
     .minimum = kMain,
     .bias = &Handling::DontBias},
    {.family = F::kDontCome,
     .decidedBy = D::kLine,
     .felt = Felt::kLine,
     .worksOnComeOut = false,
     .minimum = kMain,
     .bias = &Handling::DontBias},
    {.family = F::kField,
     .decidedBy = D::kOneRoll,
     .felt = Felt::kLine,
     .callable = true,
     .minimum = kMain,
     .payoffs = PayoffTableId::kField},
    {.family = F::kBig,
     .decidedBy = D::kNumber,
     .felt = Felt::kLine,
     .callable = true,
     .minimum = kMain,
     .offered = &Settings::UseBig68},
    {.family = F::kHardway,
     .decidedBy = D::kPair,
     .felt = Felt::kMiddle,
     .maximum = M::kWinOfProp,
     .callable = true},
    {.family = F::kProposition,
     .decidedBy = D::kOneRoll,
     .felt = Felt::kMiddle,
     .maximum = M::kWinOfProp,
     .callable = true},
    {.family = F::kCAndE,
     .decidedBy = D::kOneRoll,
     .felt = Felt::kMiddle,
     .maximum = M::kWinOfParts,
     .callable = true},
    {.family = F::kHorn, .decidedBy = D::kOneRoll, .felt = Felt::kMiddle, .maximum = M::kWinOfParts},
    {.family = F::kOverUnder, .decidedBy = D::kOneRoll, .felt = Felt::kMiddle, .maximum = M::kWinOfProp},
    {.family = F::kHop, .decidedBy = D::kOneRoll, .felt = Felt::kMiddle, .maximum = M::kWinOfProp},
    {.family = F::kMarks,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfProp,
     .offered = kSpecial},
    {.family = F::kFourRolls,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfProp,
     .offered = kSpecial},
    {.family = F::kPoint7,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfProp,
     .offered = kSpecial},
    {.family = F::kSevenPoint7,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfRows,
     .contract = Contract::kWithPoint,
     .offered = kSpecial,
     .payoffs = PayoffTableId::kSevenPointSeven},
    {.family = F::kMidway,
     .decidedBy = D::kOneRoll,
     .felt = Felt::kSpecials,
     .callable = true,
     .offered = &Settings::UseMidway,
     .payoffs = PayoffTableId::kMidway},
    {.family = F::kSharpShooter,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfRows,
     .count = &TableState::SharpShooterCount,
     .payoffs = PayoffTableId::kSharpShooter},
    {.family = F::kRideTheLine,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kWinOfRows,
     .count = &TableState::RideTheLineCount,
     .payoffs = PayoffTableId::kRideTheLine},
    {.family = F::kFire,
     .decidedBy = D::kHand,
     .felt = Felt::kSpecials,
     .maximum = M::kFire,
     .offered = &Settings::UseFire,
     .count = &TableState::FireCount,
     .payoffs = PayoffTableId::kFire},
};
static_assert(std::size(kRows) == kFamilyCount, "a family without its row");
static_assert(
    [] {
      for (int n = 0; n < kFamilyCount; ++n)
        if (static_cast<int>(kRows[n].family) != n) return false;
      return true;
    }(),
    "a family's row stands in its place");

}  // namespace bet_families

constexpr const FamilyRow& RowOfFamily(FamilyId family) {
  return bet_families::kRows[static_cast<std::size_t>(family)];
}
// The row of a bet's family. Of no bet that of no family, whose bets nothing is known of.
constexpr const FamilyRow& FamilyRowOf(BetId bet) { return RowOfFamily(FamilyOf(bet)); }

// The bets of all families for which the condition holds.
template <typename Condition>
constexpr BetSet BetsWhere(Condition condition) {
  BetSet set;
  for (BetId bet = 1; bet <= kBets; ++bet)
    if (condition(FamilyRowOf(bet))) set.Add(bet);
  return set;
}

// The bets whose house standard is to work on the come-out.
inline constexpr BetSet kHouseWorkingBets =
    BetsWhere([](const FamilyRow& row) { return row.worksOnComeOut; });
// The bets that a player may call ON or OFF.
inline constexpr BetSet kCallableBets = BetsWhere([](const FamilyRow& row) { return row.callable; });
// The bets that a table is without while the flag is off.
constexpr BetSet BetsOfferedBy(bool Settings::*flag) {
  return BetsWhere([flag](const FamilyRow& row) { return row.offered == flag; });
}
inline constexpr BetSet kSpecialProps = BetsOfferedBy(&Settings::SmallTallEnabled);
inline constexpr BetSet kSwitchableBets =
    BetsWhere([](const FamilyRow& row) { return row.offered != nullptr; });
inline constexpr BetSet kVigBets = BetsWhere([](const FamilyRow& row) { return row.vigUpFront != nullptr; });

// Whether the table, as configured, takes the bet at all.
inline bool BetOffered(const Settings& settings, BetId bet) {
  const FamilyRow& row = FamilyRowOf(bet);
  return row.offered == nullptr ? row.family != FamilyId::kNone : settings.*row.offered;
}
// Whether what has ridden on the bet can't come down now.
inline bool UnderContract(const TableState& table, BetId bet) {
  const Contract contract = FamilyRowOf(bet).contract;
  return contract == Contract::kAlways || (contract == Contract::kWithPoint && table.Point != 0);
}

}  // namespace tessaryn
