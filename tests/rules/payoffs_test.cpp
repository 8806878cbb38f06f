#include "rules/payoffs.h"

#include <gtest/gtest.h>

#include <numeric>

#include "base/messages.h"
#include "state/game.h"

namespace tessaryn {
namespace {

// The mean of one Field roll in 36ths of the bet, as a fraction with all denominators' common multiple.
double FieldMean(const PayoffTables& payoffs) {
  double sum = 0;
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      const PayoffRecord& record = payoffs.FieldPayoffs[FieldRow(die1, die2)];
      sum += record.PayTo.ToDouble() / record.PayPer.ToDouble();
    }
  return sum / 36;
}

TEST(PayoffsPresets, EachFieldPresetIsWorthWhatItsBetIs) {
  // The mean result of a decided bet times how often one roll decides it, where the bet takes several rolls;
  // of a line bet the mean of the whole bet.
  const struct {
    const char* name;
    double mean;
  } presets[] = {
      {"Field", -2.0 / 36},
      {"Pass", -7.0 / 495},
      {"DontPass", -27.0 / 1980},
      // sevens win at once; a point of 2 or 12 loses 5 of 7 on the whole
      {"Crapless", (6.0 - 2 * 1 * 5.0 / 7 - 2 * 2 * 1.0 / 2 - 2 * 3 / 3.0 - 2 * 4 / 5.0 - 2 * 5 / 11.0) / 36},
      {"Place6", (5 * 7.0 / 6 - 6) / 36},
      {"PlaceLose8", (6 * 4.0 / 5 - 5) / 36},
      {"Buy10", (3 * 39.0 / 21 - 6) / 36},
      {"Lay4", (6 * 19.0 / 40 - 3) / 36},
      {"Hard8", (9.0 - 10) / 36},
      // One share wins 30 or 15, three lose.
      {"Horn", (2 * (30 - 3) / 4.0 + 4 * (15 - 3) / 4.0 - 30) / 36},
      {"World", (2 * (30 - 4) / 5.0 + 4 * (15 - 4) / 5.0 + 0 - 24) / 36},
      {"Hop13", (2 * 15.0 - 34) / 36},
      {"Midway", (4 + 2 + 6 + 4 + 2 - 20.0) / 36},
  };
  ASSERT_EQ(std::size(presets), static_cast<std::size_t>(kFieldPresets));
  for (int id = 0; id < kFieldPresets; ++id) {
    PayoffTables payoffs;
    ResetPayoffs(payoffs, Currency::Dollars(1));
    ASSERT_EQ(FieldPresetByName(presets[id].name), id) << presets[id].name;
    SetFieldPreset(payoffs, id, Currency::Dollars(1));
    EXPECT_NEAR(FieldMean(payoffs), presets[id].mean, 1e-12) << presets[id].name;
    EXPECT_FALSE(CheckPayoffs(payoffs, {}).Found()) << presets[id].name;
  }
}

TEST(PayoffsPresets, EveryPairOfFacesHasItsRowAndTheRowsAreWhatTheirCaptionsSay) {
  int counts[kFieldRows + 1] = {};
  for (int die1 = 1; die1 <= 6; ++die1)
    for (int die2 = 1; die2 <= 6; ++die2) {
      const int row = FieldRow(die1, die2);
      ASSERT_GE(row, 1);
      ASSERT_LE(row, kFieldRows);
      ++counts[row];
      const std::string caption = FieldRowCaption(row);
      EXPECT_EQ(caption.substr(0, caption.find(' ')), std::to_string(die1 + die2));
      EXPECT_NE(caption.find("(" + std::to_string(die1) + "." + std::to_string(die2) + ")"),
                std::string::npos)
          << caption;
    }
  EXPECT_EQ(std::accumulate(std::begin(counts), std::end(counts), 0), 36);
}

TEST(Payoffs, TextsComeBackAsTheyWentOut) {
  for (const char* text : {"7 to 5", "27 for 4", "-1 to 1", "0 for 5", "39.5 to 21"}) {
    PayoffRecord record;
    ASSERT_TRUE(ParsePayoff(text, record)) << text;
    EXPECT_EQ(PayoffText(record), text);
  }
  PayoffRecord slash;
  ASSERT_TRUE(ParsePayoff("7:6", slash));
  EXPECT_EQ(PayoffText(slash), "7 to 6");
  ASSERT_TRUE(ParsePayoff("7 TO 6", slash));
  for (const char* text :
       {"", "7", "to", "7 to", " to 6", "7 to 0", "7 to -1", "a to b", "7 to 6 to 5", "7 upon 6"}) {
    PayoffRecord record = slash;
    EXPECT_FALSE(ParsePayoff(text, record)) << text;
    EXPECT_EQ(record, slash) << text;
  }
}

// --- The rules that keep the tables valid.

struct Damage {
  int table;
  int row;  // 0: all rows
  int payTo;
  Msg message;
  const char* bet;
};

TEST(PayoffsCheck, EachRuleHasItsMessageInItsOrder) {
  const Damage damages[] = {
      {0, 45, 0, Msg::kPayoffNotPositive, "Passline/Come (c.o.)"},
      {0, 19, 0, Msg::kPayoffNotPositive, "Pass/Come 4"},
      {0, 24, -1, Msg::kPayoffNotPositive, "Pass/Come 10"},
      {0, 48, 0, Msg::kPayoffNotPositive, "Don't Pass/Come (c.o.)"},
      {0, 7, 0, Msg::kPayoffNotPositive, "DP/DC 4"},
      {2, 1, 0, Msg::kPayoffsNotPositive, "SevenPoint7"},
      {3, 5, 0, Msg::kPayoffsNotPositive, "Midway"},
      {4, 3, -2, Msg::kPayoffLosesMore, "Sharpshooter"},
      {4, 0, -1, Msg::kNoPayoffWins, "Sharpshooter"},
      {5, 12, -2, Msg::kPayoffLosesMore, "Ride The Line"},
      {5, 0, -1, Msg::kNoPayoffWins, "Ride The Line"},
      {6, 1, -2, Msg::kPayoffLosesMore, "Fire"},
      {6, 0, -1, Msg::kNoPayoffWins, "Fire"},
      {1, 21, -2, Msg::kFieldLosesMore, "Field"},
      {1, 0, -1, Msg::kNoFieldPayoffWins, "Field"},
  };
  const auto apply = [](PayoffTables& payoffs, const Damage& damage) {
    const int last = damage.row == 0 ? PayoffTableFacts(damage.table).lastRow : damage.row;
    for (int row = damage.row == 0 ? 1 : damage.row; row <= last; ++row) {
      PayoffRow(payoffs, damage.table, row).PayTo = Currency::Dollars(damage.payTo);
      PayoffRow(payoffs, damage.table, row).PayPer = Currency::Dollars(1);
    }
  };
  PayoffTables all;
  ResetPayoffs(all, Currency::Dollars(1));
  EXPECT_FALSE(CheckPayoffs(all, {}).Found());
  for (auto damage = std::rbegin(damages); damage != std::rend(damages); ++damage) {
    PayoffTables payoffs;
    ResetPayoffs(payoffs, Currency::Dollars(1));
    apply(payoffs, *damage);
    const auto same = [damage](const ConfigurationProblem& problem) {
      return problem.message == damage->message &&
             problem.arguments == std::vector<MessageArgument>{{"bet", damage->bet}};
    };
    EXPECT_TRUE(same(CheckPayoffs(payoffs, {}))) << CheckPayoffs(payoffs, {}).Text();
    // With everything damaged that comes later, the earlier rule still speaks first.
    apply(all, *damage);
    EXPECT_TRUE(same(CheckPayoffs(all, {}))) << CheckPayoffs(all, {}).Text();
  }
}

TEST(PayoffsCheck, ATableThatIsNotOfferedIsNotLookedAt) {
  PayoffTables payoffs;
  ResetPayoffs(payoffs, Currency::Dollars(1));
  for (const int table : {2, 3, 6})
    for (int row = 1; row <= PayoffTableFacts(table).lastRow; ++row)
      PayoffRow(payoffs, table, row).PayTo = kZero;
  EXPECT_FALSE(CheckPayoffs(payoffs, {false, false, false}).Found());
  EXPECT_TRUE(CheckPayoffs(payoffs, {true, false, false}).Found());
  EXPECT_TRUE(CheckPayoffs(payoffs, {false, true, false}).Found());
  EXPECT_TRUE(CheckPayoffs(payoffs, {false, false, true}).Found());
}

}  // namespace
}  // namespace tessaryn
