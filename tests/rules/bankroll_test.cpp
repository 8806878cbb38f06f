#include "rules/bankroll.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

struct AtmCase {
  const char* bankroll = "500";
  const char* bet = "0";  // on the Pass Line
  bool negativeAllowed = false;
  bool deposit = true;
  const char* amount;
  const char* allowed;
  bool fromConfiguration = false;
  Msg said = Msg::kNone;
};

TEST(Bankroll, TheAtmMovesWhatIsAllowedAndSaysWhyNotMore) {
  const AtmCase cases[] = {
      {.amount = "500", .allowed = "500"},
      {.amount = "501", .allowed = "500", .said = Msg::kDepositNegative},
      {.amount = "1000", .allowed = "500", .fromConfiguration = true, .said = Msg::kDepositNegative},
      {.bet = "40", .amount = "461", .allowed = "460", .said = Msg::kDepositBelowWagers},
      {.bankroll = "40", .bet = "40", .amount = "10", .allowed = "0", .said = Msg::kDepositBelowWagers},
      {.negativeAllowed = true, .amount = "10000499", .allowed = "10000499"},
      {.negativeAllowed = true, .amount = "10000500", .allowed = "10000499", .said = Msg::kDepositBelowLimit},
      {.deposit = false, .amount = "9999499", .allowed = "9999499"},
      {.deposit = false, .amount = "9999499.5", .allowed = "9999499", .said = Msg::kWithdrawalAboveLimit},
      {.deposit = false, .amount = "0", .allowed = "0"},
  };
  for (const AtmCase& c : cases) {
    SCOPED_TRACE(std::string(c.bankroll) + (c.deposit ? " deposit " : " withdraw ") + c.amount);
    TestTable table;
    table.Join(1, "Ann", c.bankroll);
    table.Bet(1, kPassLine, c.bet);
    table.State().seats[1].AllowNegativeBankroll = c.negativeAllowed;
    table.host.boxes.clear();
    const Currency before = table.State().BankrollCurrent[1];
    EXPECT_EQ(AtmTransaction(*table.game, 1, c.deposit, Money(c.amount), c.fromConfiguration),
              Money(c.allowed));
    const Currency moved = table.State().BankrollCurrent[1] - before;
    EXPECT_EQ(moved, c.deposit ? -Money(c.allowed) : Money(c.allowed));
    for (const int scope : {kCurrentHand, kCurrentSession, kAllSessions})
      EXPECT_EQ(table.game->stats.AtmTotal[Slot(scope, 1)], moved);
    EXPECT_TRUE(table.host.Said(c.said));
    if (c.said != Msg::kNone) {
      EXPECT_TRUE(table.host.Said(c.said, {{"requested", Money(c.amount)},
                                           {"allowed", Money(c.allowed)},
                                           {"elsewhere", !c.fromConfiguration}}));
    }
    table.Check("the ATM");
  }
}

TEST(Bankroll, TheAtmIsQuietWhereNobodyReadsAndClosedWhereItIsOff) {
  TestTable table;
  table.Join(1, "Ann", "100");
  table.game->settings.MessageMask = ~1 & 31;
  EXPECT_EQ(AtmTransaction(*table.game, 1, true, Money("200")), Money("100"));
  EXPECT_TRUE(table.host.boxes.empty());
  AtmTransaction(*table.game, 1, true, Money("200"), true);
  EXPECT_EQ(table.host.boxes.size(), 1u) << "the configuration screen always tells";
  table.Set("AtmEnabled", "off");
  EXPECT_EQ(AtmTransaction(*table.game, 1, false, Money("200")), kZero);
  EXPECT_EQ(table.State().BankrollCurrent[1], kZero);
}

TEST(Bankroll, ASetBankrollIsABeginningAndStaysWithinTheLimit) {
  TestTable table;
  table.Join(1, "Ann", "100");
  SetBankroll(*table.game, 1, Money("20000000"));
  EXPECT_EQ(table.State().BankrollCurrent[1], kBankrollLimit);
  EXPECT_EQ(table.game->stats.BankrollSessionStart[1], kBankrollLimit);
  EXPECT_EQ(table.game->stats.BankrollLow[Slot(kCurrentSession, 1)], kBankrollLimit);
  SetBankroll(*table.game, 1, Money("-20000000"));
  EXPECT_EQ(table.State().BankrollCurrent[1], -kBankrollLimit);
}

}  // namespace
}  // namespace tessaryn
