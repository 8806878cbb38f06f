#include "shell/screens/atm.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "play/players.h"
#include "play/setting_table.h"
#include "rules/bankroll.h"
#include "shell/screens_support.h"
#include "support/said.h"

namespace tessaryn::test {
namespace {

class AtmTest : public testing::Test {
 protected:
  AtmTest() {
    table.Join(3, "Alice", "500");
    table.Bet(3, kPassLine, "20");
  }
  void Open() {
    screen = std::make_unique<AtmScreen>(*table.game, 3, nullptr);
    screen->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  QString Figure(const char* name) { return Find<QLabel>(*screen, name).text(); }
  // Clicks what opens a box, answers it with its first button, and returns what the box said.
  test::ShownBox BoxAfter(const QString& control) {
    std::string text;
    WhenOpen("frmMsg", [&](QDialog& box) {
      text = Find<QLabel>(box, "lblMsg").text().toStdString();
      Click(box, "cmdButton0");
    });
    Click(*screen, control);
    std::string told = table.game->box.MsgText;
    std::replace(told.begin(), told.end(), '\r', '\n');
    EXPECT_EQ(text, told);
    return test::ShownBox(table.game->box);
  }

  ScreenTable table;
  std::unique_ptr<AtmScreen> screen;
};

TEST_F(AtmTest, MoneyGoesInAndOutAndTheFiguresFollow) {
  Open();
  EXPECT_EQ(Find<QLineEdit>(*screen, "txtAddSub").text(), "500");
  QTest::keyClick(screen.get(), Qt::Key_Return);  // Withdraw is the default
  EXPECT_EQ(Figure("lblBankroll"), "$1,000");
  EXPECT_EQ(Figure("lblOnTable"), "$20");
  EXPECT_EQ(Figure("lblRail"), "$980");
  EXPECT_EQ(Figure("lblAtmTotal"), "$500");
  TypeInto(*screen, "txtAddSub", "30.5");
  AccessKey(*screen, Qt::Key_D);
  EXPECT_EQ(table.State().BankrollCurrent[3], ParseMoney("969.50"));
  EXPECT_EQ(Figure("lblBankroll"), "$969.50");
  EXPECT_EQ(Figure("lblAtmTotal"), "$469.50");
  ExpectNamed(*screen);
  QTest::keyClick(screen.get(), Qt::Key_Escape);
  EXPECT_FALSE(screen->isVisible());
}

TEST_F(AtmTest, WhatTheCoreCutsIsToldAndShown) {
  table.game->settings.MessageMask = 0;  // this screen tells whatever the notes are set to
  Open();
  TypeInto(*screen, "txtAddSub", "490");
  EXPECT_TRUE(Says(BoxAfter("cmdDeposit"), Msg::kDepositBelowWagers,
                   {{"allowed", Currency::Dollars(480)}, {"elsewhere", false}}));
  EXPECT_EQ(Figure("lblRail"), "$0");
  TypeInto(*screen, "txtAddSub", "9999999");
  EXPECT_TRUE(Says(BoxAfter("cmdWithdraw"), Msg::kWithdrawalAboveLimit, {{"limit", kBankrollLimit}}));
  EXPECT_EQ(Figure("lblBankroll"), "$9,999,999");
}

TEST_F(AtmTest, ABankrollBelowZeroKeepsTheBoxChecked) {
  Open();
  auto& box = Find<QCheckBox>(*screen, "chkAllowNegBankroll");
  EXPECT_FALSE(box.isChecked());
  AccessKey(*screen, Qt::Key_N);
  EXPECT_TRUE(table.State().seats[3].AllowNegativeBankroll);
  TypeInto(*screen, "txtAddSub", "800");
  Click(*screen, "cmdDeposit");
  EXPECT_EQ(Figure("lblBankroll"), "-$300");
  EXPECT_TRUE(Says(BoxAfter("chkAllowNegBankroll"), Msg::kAllowNegativeRefused,
                   {{"problem", MessageText<Msg::kBankrollIsNegative>(With<"player">("Alice"))}}));
  EXPECT_TRUE(box.isChecked());
  EXPECT_TRUE(table.State().seats[3].AllowNegativeBankroll);
  Click(*screen, "cmdWithdraw");
  Click(*screen, "chkAllowNegBankroll");
  EXPECT_FALSE(box.isChecked());
  EXPECT_FALSE(table.State().seats[3].AllowNegativeBankroll);
}

TEST_F(AtmTest, ASwitchedOffAtmMovesNothing) {
  table.game->settings.AtmEnabled = false;
  Open();
  Click(*screen, "cmdWithdraw");
  Click(*screen, "cmdDeposit");
  EXPECT_FALSE(Find<QLineEdit>(*screen, "txtAddSub").isEnabled());
  EXPECT_EQ(Figure("lblBankroll"), "$500");
  EXPECT_EQ(Figure("lblNote"), "The ATM is switched off in the configuration.");
  QTest::keyClick(screen.get(), Qt::Key_Return);
  EXPECT_FALSE(screen->isVisible());
}

TEST_F(AtmTest, ALongNameIsCutNotTheScreen) {
  const std::string name(90, 'W');
  std::string error;
  ASSERT_TRUE(RenameTo(*table.game, 3, name, error)) << error;
  Open();
  EXPECT_LE(screen->width(), 600);
  EXPECT_EQ(Find<QLabel>(*screen, "lblPlayer").toolTip().toStdString(), name);
}

TEST_F(AtmTest, Pictures) {
  TakePictures("atm", [&] { return std::make_unique<AtmScreen>(*table.game, 3, nullptr); });
  table.game->settings.AtmEnabled = false;
  TakePictures("atm-off", [&] { return std::make_unique<AtmScreen>(*table.game, 3, nullptr); });
}

}  // namespace
}  // namespace tessaryn::test
