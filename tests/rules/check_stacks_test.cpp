#include "rules/check_stacks.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

TEST(CheckStacksTest, ValuesStayWithinWhatAStackHolds) {
  TestTable table;
  table.Join(3, "Ann");
  const std::pair<const char*, const char*> cases[] = {{"12.3456", "12.3456"},
                                                       {"-7", "-7"},
                                                       {"9999999.9999", "9999999.9999"},
                                                       {"10000000", "9999999.9999"},
                                                       {"-99999999999", "-9999999.9999"},
                                                       {"0", "0"}};
  for (const auto& [asked, kept] : cases)
    EXPECT_EQ(SetCheckStackValue(*table.game, 3, 99, Money(asked)), Money(kept)) << asked;
  EXPECT_EQ(CheckStackValueText(*table.game, 3, 99, false), "");
  EXPECT_EQ(CheckStackValueText(*table.game, 3, 99, true), "0");
  EXPECT_EQ(SetCheckStackValue(*table.game, 3, 100, Money("5")), kZero);
  EXPECT_EQ(SetCheckStackValue(*table.game, 9, 0, Money("5")), kZero);
  EXPECT_EQ(CheckStackNameOf(*table.game, 3, -1), "");
  table.Check("stacks");
}

TEST(CheckStacksTest, FourDifferentStacksAreVisible) {
  TestTable table;
  table.Join(3, "Ann");
  ASSERT_TRUE(SetVisibleStacks(*table.game, 3, {0, 99, 5, 6}));
  EXPECT_FALSE(SetVisibleStacks(*table.game, 3, {1, 2, 3, 1}));
  EXPECT_TRUE(table.host.Said(Msg::kStacksNotDifferent));
  EXPECT_FALSE(SetVisibleStacks(*table.game, 3, {1, 2, 3, 100}));
  EXPECT_FALSE(SetVisibleStacks(*table.game, 3, {-1, 2, 3, 4}));
  const int kept[] = {0, 99, 5, 6};
  EXPECT_TRUE(std::equal(kept, kept + 4, table.State().seats[3].VisibleStacks));
}

TEST(CheckStacksTest, DeletionsAskAndTakeWhatTheyName) {
  struct Case {
    StackDeletion what;
    Msg question;
    bool value;
    bool name;
  };
  for (const Case& c : {Case{StackDeletion::kAll, Msg::kAskDeleteStacks, false, false},
                        Case{StackDeletion::kValues, Msg::kAskDeleteStackValues, false, true},
                        Case{StackDeletion::kNames, Msg::kAskDeleteStackNames, true, false}})
    for (const bool yes : {false, true}) {
      TestTable table;
      table.Join(3, "Ann");
      table.Join(4, "Bob");
      for (const int seat : {3, 4}) {
        SetCheckStackValue(*table.game, seat, 50, Money("8"));
        SetCheckStackName(*table.game, seat, 50, "eight");
      }
      table.host.answers = {yes ? "yes" : "no"};
      EXPECT_EQ(DeleteCheckStacks(*table.game, 3, c.what), yes);
      EXPECT_TRUE(table.host.Said(c.question, {{"player", "Ann"}}));
      EXPECT_EQ(CheckStackValue(*table.game, 3, 50) != kZero, c.value || !yes);
      EXPECT_EQ(!CheckStackNameOf(*table.game, 3, 50).empty(), c.name || !yes);
      EXPECT_EQ(CheckStackValue(*table.game, 4, 50), Money("8"));
      EXPECT_EQ(CheckStackNameOf(*table.game, 4, 50), "eight");
      table.Check("deletion");
    }
}

}  // namespace
}  // namespace tessaryn
