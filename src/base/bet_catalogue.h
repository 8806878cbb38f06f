// The 93 bets by their fixed numbers: names, families and the few facts that never change.
#pragma once

#include <string>
#include <string_view>

#include "base/table_types.h"

namespace tessaryn {

struct BetFacts {
  const char* name;        // as messages and logs write it
  const char* scriptName;  // as the betting language writes it
  bool worksOnComeOut;     // house standard: whether BetDefaultWorking is 1
  bool callable;           // a player may call it ON or OFF
};

// The special propositions, which a table may be without (SmallTallEnabled): for clicks, scripts and counts.
inline constexpr int kFirstSpecialProp = kAllSmall;
inline constexpr int kLastSpecialProp = kSevenPoint7;
inline constexpr BetSet kSpecialProps = BetRange(kFirstSpecialProp, kLastSpecialProp);
constexpr bool IsSpecialProp(int bet) { return bet >= kFirstSpecialProp && bet <= kLastSpecialProp; }

// The facts of bet 1 to 93; those of bet 0 are empty.
const BetFacts& FactsOf(int bet);
// The bet's name; "CheckStack #n" for bets 100 up; empty for a number that names nothing.
std::string BetName(int bet);
// Bet by number or by its name in the betting language, case and blanks ignored; also "cs5" and
// "checkstack 5". 0 for neither.
int BetByName(std::string_view text);
// The bets whose house standard is to work on the come-out.
const BetSet& HouseWorkingBets();
// The bets that a player may call ON or OFF.
const BetSet& CallableBets();
// The hop bet of two faces 1 to 6 in either order; the pairs among 67 to 83 included.
int HopBet(int die1, int die2);

}  // namespace tessaryn
