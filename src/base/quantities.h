// Numbers that must not be taken for each other. Each is a struct of one word, so that the compiler refuses a
// seat where a bet is asked for, or seconds where dollars are.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <type_traits>

#include "base/money.h"

namespace tessaryn {

// A count of ten-thousandths, as money is, of something else than dollars.
template <typename Unit>
struct Quantity {
  std::int64_t raw = 0;  // ten-thousandths

  static constexpr Quantity FromRaw(std::int64_t value) { return Quantity{value}; }
  // Of a plain number, and back to it: for what reads, writes and figures with any number alike.
  static constexpr Quantity Of(Currency number) { return Quantity{number.raw}; }
  constexpr Currency Number() const { return Currency::FromRaw(raw); }
  static constexpr Quantity Whole(std::int64_t count) { return Of(Currency::Dollars(count)); }

  constexpr double ToDouble() const { return Number().ToDouble(); }
  constexpr bool IsWhole() const { return Number().IsWhole(); }
  friend constexpr bool operator==(Quantity, Quantity) = default;
  friend constexpr auto operator<=>(Quantity, Quantity) = default;
};

using Seconds = Quantity<struct SecondsUnit>;
using RollRate = Quantity<struct RollRateUnit>;  // rolls per hour
using Percent = Quantity<struct PercentUnit>;    // 100 is the whole
using Fraction = Quantity<struct FractionUnit>;  // 1 is the whole
using Multiple = Quantity<struct MultipleUnit>;  // so many times an amount

inline Currency Multiply(Fraction part, Currency amount) { return Multiply(part.Number(), amount); }
inline Currency Multiply(Multiple times, Currency amount) { return Multiply(times.Number(), amount); }
inline Percent ToPercent(Fraction part) {
  return Percent::Of(Multiply(part.Number(), Currency::Dollars(100)));
}
inline Fraction ToFraction(Percent percent) {
  return Fraction::Of(Divide(percent.Number(), Currency::Dollars(100)));
}

// What a number may be, both ends included.
template <typename T>
struct Limits {
  T least;
  T most;
  // Not an aggregate: a plain number is no T.
  constexpr Limits(T from, T to) : least(from), most(to) {}
  constexpr bool Hold(T value) const { return value >= least && value <= most; }
  constexpr T Clamp(T value) const { return value < least ? least : value > most ? most : value; }
};

// What the names of an enum number, if they do: they then are ids of that kind and of no other.
template <typename Names>
struct IdKind {
  using Kind = void;
};
template <typename Names, typename Kind>
inline constexpr bool kNamesOthers =
    !std::is_void_v<typename IdKind<Names>::Kind> && !std::same_as<typename IdKind<Names>::Kind, Kind>;

// The number of one of several: a seat, a bet, a roll. It comes from a plain number and serves as one, so
// that tables are reached by it; but it never turns into a number of another kind, nor is it compared with
// one.
template <typename Kind, typename Number = int>
struct Id {
  Number value = 0;

  constexpr Id() = default;
  constexpr Id(Number number) : value(number) {}
  template <typename Names, std::enable_if_t<kNamesOthers<Names, Kind>, int> = 0>
  Id(Names) = delete;
  constexpr operator Number() const { return value; }
  constexpr Id& operator++() {
    ++value;
    return *this;
  }
  constexpr Id& operator--() {
    --value;
    return *this;
  }
};

template <typename T>
inline constexpr bool kIsId = false;
template <typename Kind, typename Number>
inline constexpr bool kIsId<Id<Kind, Number>> = true;

template <typename KindA, typename NumberA, typename KindB, typename NumberB>
requires(!std::same_as<KindA, KindB>) void operator==(Id<KindA, NumberA>, Id<KindB, NumberB>) = delete;
template <typename KindA, typename NumberA, typename KindB, typename NumberB>
requires(!std::same_as<KindA, KindB>) void operator<=>(Id<KindA, NumberA>, Id<KindB, NumberB>) = delete;

}  // namespace tessaryn
