// The vocabulary of the table: seats, bets, scopes and the tables indexed by them. Read this first.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "base/money.h"
#include "base/quantities.h"

namespace tessaryn {

// Seats. 0 is the table as a whole ("House"), 1 to 8 the players.
inline constexpr int kSeats = 8;
inline constexpr int kSeatRows = kSeats + 1;
using SeatId = Id<struct SeatKind>;
using BetId = Id<struct BetKind>;
using ScopeId = Id<struct ScopeKind>;
using RollNumber = Id<struct RollKind, std::int64_t>;  // from 1 on; 0 before the first
static_assert(!std::is_convertible_v<SeatId, BetId> && !std::is_convertible_v<BetId, SeatId> &&
              !std::is_convertible_v<ScopeId, SeatId> && !std::is_convertible_v<RollNumber, SeatId> &&
              !std::is_convertible_v<RollNumber, BetId>);
static_assert(std::is_trivially_copyable_v<SeatId> && sizeof(SeatId) == sizeof(int));
inline constexpr SeatId kHouse{};
inline constexpr SeatId kNobody{};
// The order in which the table pays: around the table from both ends.
inline constexpr std::array<SeatId, kSeats> kPayOrder{1, 8, 2, 7, 3, 6, 4, 5};

// Bets. 1 to 93 are the bets of the table; CheckStack n, 0 to 99, is bet 100 + n; the rest names nothing.
inline constexpr BetId kNoBet{};
inline constexpr int kBets = 93;
inline constexpr int kFirstCheckStack = 100;
inline constexpr int kCheckStacks = 100;
inline constexpr int kBetRows = 201;
constexpr bool IsTableBet(BetId bet) { return bet >= 1 && bet <= kBets; }
constexpr bool IsCheckStack(BetId bet) {
  return bet >= kFirstCheckStack && bet < kFirstCheckStack + kCheckStacks;
}

// Named bets and the first of each family of six, one for each box number.
enum Bet : int {
  kLay4 = 1,
  kDontCome4 = 7,
  kDontComeOdds4 = 13,
  kCome4 = 19,
  kComeOdds4 = 25,
  kPlace4 = 31,
  kBuy4 = 37,
  kPassLine = 43,
  kPassLineOdds = 44,
  kCome = 45,
  kDontPass = 46,
  kDontPassOdds = 47,
  kDontCome = 48,
  kField = 49,
  kBig6 = 50,
  kBig8 = 51,
  kHard4 = 52,
  kHard6 = 53,
  kHard8 = 54,
  kHard10 = 55,
  kTwo = 56,
  kThree = 57,
  kSeven = 58,
  kEleven = 59,
  kTwelve = 60,
  kCraps = 61,
  kCAndE = 62,
  kHorn = 63,
  kWorld = 64,
  kOver7 = 65,
  kUnder7 = 66,
  kHop13 = 67,
  kHop14,
  kHop15,
  kHop16,
  kHop22,
  kHop23,
  kHop24,
  kHop25,
  kHop26,
  kHop33,
  kHop34,
  kHop35,
  kHop36,
  kHop44,
  kHop45,
  kHop46,
  kHop55,
  kAllSmall = 84,
  kAllTall = 85,
  kMakeAll = 86,
  kFourRolls = 87,
  kPoint7 = 88,
  kSevenPoint7 = 89,
  kMidway = 90,
  kSharpShooter = 91,
  kRideTheLine = 92,
  kFire = 93,
};
template <>
struct IdKind<Bet> {
  using Kind = BetKind;
};
static_assert(std::is_convertible_v<Bet, BetId> && !std::is_convertible_v<Bet, SeatId>);

// The six box numbers, in the order of every family of six bets.
inline constexpr std::array<int, 6> kBoxNumbers{4, 5, 6, 8, 9, 10};
// Position 0 to 5 of a box number. Requires one of the six.
constexpr int BoxPosition(int number) { return number - 4 - number / 7; }
constexpr bool IsBoxNumber(int number) { return number >= 4 && number <= 10 && number != 7; }

// Scopes of the statistics; a slot is scope * 9 + seat.
enum Scope : int { kCurrentHand = 0, kLastHand = 1, kCurrentSession = 2, kLastSession = 3, kAllSessions = 4 };
template <>
struct IdKind<Scope> {
  using Kind = ScopeKind;
};
inline constexpr int kScopes = 5;
inline constexpr int kSlots = kScopes * kSeatRows;
constexpr int Slot(ScopeId scope, SeatId seat) { return scope * kSeatRows + seat; }

// A value for every seat and bet, with the seat as the fast index.
template <typename T, int kRows = kBetRows>
struct SeatBetTable {
  T cells[kRows][kSeatRows] = {};
  T& operator()(SeatId seat, BetId bet) { return cells[bet][seat]; }
  const T& operator()(SeatId seat, BetId bet) const { return cells[bet][seat]; }
  friend bool operator==(const SeatBetTable&, const SeatBetTable&) = default;
};

// A set of small numbers below 128: the bets 1 to 93, or the CheckStacks 0 to 99.
struct BetSet {
  std::uint64_t words[2] = {0, 0};

  constexpr bool Has(BetId bet) const { return (words[bet >> 6] >> (bet & 63) & 1) != 0; }
  constexpr void Add(BetId bet) { words[bet >> 6] |= std::uint64_t{1} << (bet & 63); }
  constexpr void Remove(BetId bet) { words[bet >> 6] &= ~(std::uint64_t{1} << (bet & 63)); }
  constexpr void Set(BetId bet, bool in) { in ? Add(bet) : Remove(bet); }
  constexpr void Clear() { words[0] = words[1] = 0; }
  // Few bets are up at once, and without the machine's own instruction counting bits is a call.
  constexpr int Size() const {
    int size = 0;
    for (std::uint64_t word : words)
      for (; word != 0; word &= word - 1) ++size;
    return size;
  }
  constexpr bool Empty() const { return (words[0] | words[1]) == 0; }
  constexpr bool Meets(const BetSet& other) const {
    return ((words[0] & other.words[0]) | (words[1] & other.words[1])) != 0;
  }
  friend constexpr BetSet operator&(BetSet a, BetSet b) {
    return {{a.words[0] & b.words[0], a.words[1] & b.words[1]}};
  }
  friend constexpr BetSet operator|(BetSet a, BetSet b) {
    return {{a.words[0] | b.words[0], a.words[1] | b.words[1]}};
  }
  friend constexpr BetSet Without(BetSet a, BetSet b) {
    return {{a.words[0] & ~b.words[0], a.words[1] & ~b.words[1]}};
  }
  friend constexpr bool operator==(const BetSet&, const BetSet&) = default;
  // Calls visit(bet) for each, ascending. The set itself may change on the way.
  template <typename Visit>
  constexpr void ForEach(Visit&& visit) const {
    for (int w = 0; w < 2; ++w)
      for (std::uint64_t rest = words[w]; rest != 0; rest &= rest - 1)
        visit(BetId(w * 64 + std::countr_zero(rest)));
  }
};

// The bets first to last as a set.
constexpr BetSet BetRange(BetId first, BetId last) {
  BetSet set;
  for (BetId bet = first; bet <= last; ++bet) set.Add(bet);
  return set;
}
inline constexpr BetSet kAllTableBets = BetRange(1, kBets);

// What a bankroll, and a CheckStack, may hold either way.
inline constexpr Currency kBankrollLimit = Currency::Dollars(9'999'999);
inline constexpr Currency kStackLimit = Currency::FromRaw(99'999'999'999);
// The session's limit of rolls.
inline constexpr std::int64_t kMaxRolls = 2'000'000'000;

}  // namespace tessaryn
