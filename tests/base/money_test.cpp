#include "base/money.h"

#include <gtest/gtest.h>

#include <random>
#include <type_traits>

#include "base/table_types.h"

namespace tessaryn {
namespace {

TEST(Money, TextFormsFollowTheFormats) {
  struct Row {
    std::int64_t raw;
    const char* formatted;
    const char* plain;
  };
  for (const Row& row : {Row{12345670000, "1,234,567", "1234567"}, Row{-25000, "-2.50", "-2.5"},
                         Row{1250, ".125", "0.125"}, Row{0, "0", "0"}, Row{-10000000, "-1,000", "-1000"},
                         Row{10001, "1.0001", "1.0001"}, Row{1234500, "123.45", "123.45"}}) {
    EXPECT_EQ(FormatMoney(Currency{row.raw}), row.formatted);
    EXPECT_EQ(PlainMoney(Currency{row.raw}), row.plain);
  }
}

TEST(Money, EveryAmountSurvivesItsTextForms) {
  std::mt19937_64 random(20240601);
  for (int i = 0; i < 100000; ++i) {
    const Currency value{static_cast<std::int64_t>(random()) >> (random() % 62)};
    if (value.IsError()) continue;
    Currency back;
    ASSERT_TRUE(TryParseMoney(FormatMoney(value), back)) << FormatMoney(value);
    ASSERT_EQ(back, value);
    ASSERT_TRUE(TryParseMoney(PlainMoney(value), back));
    ASSERT_EQ(back, value);
  }
}

TEST(Money, TextThatIsNoAmountIsToldFromZero) {
  for (const char* text : {"", " ", "abc", "1.2.3", "--1", "$", "99999999999999999999", "1e5", "12abc"}) {
    Currency value{7};
    EXPECT_FALSE(TryParseMoney(text, value)) << text;
    EXPECT_EQ(value.raw, 7);
    EXPECT_EQ(ParseMoney(text), kZero) << text;
  }
  EXPECT_EQ(ParseMoney(" $1,250.5 ").raw, 12505000);
  EXPECT_EQ(ParseMoney("0.00005").raw, 0);  // a half goes to the even digit
  EXPECT_EQ(ParseMoney("0.00015").raw, 2);
  EXPECT_EQ(ParseMoney("0.000051").raw, 1);
}

TEST(Money, ArithmeticIsCheckedAndRoundsAsTold) {
  const Currency most{std::numeric_limits<std::int64_t>::max()};
  EXPECT_TRUE((most + Currency{1}).IsError());
  EXPECT_TRUE((-most - Currency{2}).IsError());
  EXPECT_TRUE((Currency::Error() + Currency{1}).IsError());
  EXPECT_TRUE(Multiply(most, most).IsError());
  EXPECT_TRUE(Divide(most, kZero).IsError());
  EXPECT_EQ(Currency::FromDouble(0.03125).raw, 312);
  EXPECT_EQ(Currency::FromDouble(0.09375).raw, 938);
  EXPECT_EQ(WholePart(Currency{-1}), Currency::Dollars(-1));
  EXPECT_EQ(RoundDownToUnit(Currency{58333}, Currency::Dollars(1)), Currency::Dollars(5));
  EXPECT_EQ(RoundDownToUnit(Currency{-5500}, Currency::Dollars(1)), Currency::Dollars(-1));
  EXPECT_EQ(RoundDownToUnit(Currency{58333}, Currency{2500}).raw, 57500);
}

TEST(Money, AmountKeysStopAtTheLimits) {
  EXPECT_TRUE(FilterAmountKey("", '-', 2, true));
  EXPECT_FALSE(FilterAmountKey("", '-', 2, false));
  EXPECT_FALSE(FilterAmountKey("1", '-', 2, true));
  EXPECT_TRUE(FilterAmountKey("12", '.', 2, true));
  EXPECT_FALSE(FilterAmountKey("1.2", '.', 2, true));
  EXPECT_FALSE(FilterAmountKey("1.25", '5', 2, true));
  EXPECT_TRUE(FilterAmountKey("123456789012", '3', 2, true));
  EXPECT_FALSE(FilterAmountKey("1234567890123", '4', 2, true));
  EXPECT_FALSE(FilterAmountKey("1", 'x', 2, true));
  EXPECT_TRUE(FilterAmountKey("1.25", '\b', 2, true));
}

// Mixing these up doesn't compile.
template <typename A, typename B>
concept Comparable = requires(A a, B b) {
  a == b;
};
static_assert(Comparable<SeatId, SeatId> && Comparable<BetId, Bet> && !Comparable<SeatId, BetId>);
static_assert(!std::is_convertible_v<SeatId, RollNumber> && !std::is_convertible_v<BetId, SeatId>);
static_assert(!std::is_convertible_v<Bet, SeatId> && !std::is_convertible_v<Scope, BetId>);
static_assert(!std::is_convertible_v<Currency, Seconds> && !std::is_convertible_v<Percent, Fraction>);
static_assert(!std::is_constructible_v<Limits<Seconds>, int, int>);
static_assert(sizeof(SeatId) == sizeof(int) && sizeof(Seconds) == sizeof(Currency));

}  // namespace
}  // namespace tessaryn
