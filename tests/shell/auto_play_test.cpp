#include "shell/screens/auto_play.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <random>

#include "play/setting_table.h"
#include "rules/handling.h"
#include "shell/screens_support.h"

namespace tessaryn::test {
namespace {

class AutoPlayTest : public testing::Test {
 protected:
  void SetUp() override {
    table.Join(2, "Bob");
    table.Join(5, "Alice");
    Open();
  }
  void Open() {
    screen = std::make_unique<AutoPlayScreen>(*table.game, nullptr);
    screen->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  Handling& Of(int seat) { return table.State().seats[seat].handling; }
  std::string Setting(const std::string& name, int seat) {
    std::string value;
    std::string error;
    EXPECT_TRUE(GetSetting(*table.game, name, seat, value, error)) << error;
    return value;
  }
  // Chooses an entry with the keyboard, as a user without a mouse does.
  void Pick(const QString& name, int index) {
    auto& box = Find<QComboBox>(*screen, name);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int n = 0; n < index; ++n) QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.currentIndex(), index) << name.toStdString();
  }

  ScreenTable table;
  std::unique_ptr<AutoPlayScreen> screen;
};

TEST_F(AutoPlayTest, EveryRadioButtonSetsItsOwnChoice) {
  struct Group {
    const char* name;
    int Handling::*field;
    int choices;
  };
  for (const Group& group : {Group{"optHandleWinningBets", &Handling::WinHandling, 8},
                             Group{"optHandleLosingBets", &Handling::LoseHandling, 8},
                             Group{"optAutoAdjustBetAmounts", &Handling::ProperOddsMode, 3}}) {
    for (int choice = group.choices - 1; choice >= 0; --choice) {
      Click(*screen, QString("%1%2").arg(group.name).arg(choice));
      EXPECT_EQ(Of(5).*group.field, choice) << group.name;
    }
    // The arrows walk the group too.
    auto& first = Find<QRadioButton>(*screen, QString("%1%2").arg(group.name).arg(0));
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Down);
    EXPECT_EQ(Of(5).*group.field, 1) << group.name;
    EXPECT_EQ(Of(2).*group.field, 0) << group.name << " of another player";
  }
}

TEST_F(AutoPlayTest, BiasesAndChecksReachTheirOwnFields) {
  const std::pair<const char*, int Handling::*> biases[] = {{"cmbPlaceBias", &Handling::PlaceBias},
                                                            {"cmbDoBias", &Handling::DoBias},
                                                            {"cmbDontBias", &Handling::DontBias},
                                                            {"cmbLayBias", &Handling::LayBias}};
  int value = 0;
  for (const auto& [name, field] : biases) {
    value = value % 2 + 1;
    Pick(name, value);
    EXPECT_EQ(Of(5).*field, value) << name;
  }
  const std::pair<const char*, bool Handling::*> flags[] = {
      {"chkAutoTakeFullOdds", &Handling::AutoTakeOdds},
      {"chkAutoLayFullOdds", &Handling::AutoLayOdds},
      {"chkAutoDownPlaceBets", &Handling::AutoDownPlace},
      {"chkAutoPassDice", &Handling::AutoPassDice}};
  for (const auto& [name, field] : flags) {
    Click(*screen, name);
    EXPECT_TRUE(Of(5).*field) << name;
    for (const auto& [other, otherField] : flags) EXPECT_EQ(Of(5).*otherField, other == name) << other;
    Click(*screen, name);
    EXPECT_FALSE(Of(5).*field) << name;
  }
}

TEST_F(AutoPlayTest, SlotsKeepWhatIsTypedUpToTheirLimit) {
  for (const int slot : {4, 5, 6, 7}) {
    const QString n = QString::number(slot);
    TypeInto(*screen, "txtModifyAmount" + n, "12.5");
    EXPECT_EQ(Of(5).AdjustValue[slot], ParseMoney("12.5")) << slot;
    TypeInto(*screen, "txtModifyAmount" + n, "99999999");
    EXPECT_EQ(Of(5).AdjustValue[slot], ParseMoney("9,999,999.9999")) << slot;
    TypeInto(*screen, "txtModifyAmount" + n, "1.x-2");
    EXPECT_EQ(Of(5).AdjustValue[slot], ParseMoney("1.2")) << slot;
    if (slot < 6) {
      for (const int kind : {1, 0}) {
        Pick("cmdMathOperator" + n, kind);
        EXPECT_EQ(Of(5).AdjustKind[slot], kind);
      }
    }
    Pick("cmdUnits" + n, slot < 6 ? 3 : 2);  // without percent in the list of an amount to bet
    EXPECT_EQ(Of(5).AdjustUnit[slot], 3) << slot;
    EXPECT_EQ(Of(2).AdjustUnit[slot], 0) << slot;
  }
  // A factor has no checks to count in, but their unit is there again for the next sum.
  Pick("cmdMathOperator4", 3);
  EXPECT_EQ(Find<QComboBox>(*screen, "cmdUnits4").count(), 2);
  EXPECT_EQ(Of(5).AdjustUnit[4], 3);
  Pick("cmdMathOperator4", 0);
  EXPECT_EQ(Find<QComboBox>(*screen, "cmdUnits4").currentText(), "$5 units");
}

TEST_F(AutoPlayTest, EveryBetOfTheListSwitchesItself) {
  auto& list = Find<QListWidget>(*screen, "lstWorkOnComeOut");
  ASSERT_EQ(list.count(), kBets);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  for (int bet = 1; bet <= kBets; ++bet) {
    const BetSet before = table.State().seats[5].BetDefaultWorking;
    QTest::keyClick(&list, Qt::Key_Space);
    BetSet after = before;
    after.Set(bet, !before.Has(bet));
    EXPECT_EQ(table.State().seats[5].BetDefaultWorking, after) << bet;
    QTest::keyClick(&list, Qt::Key_Down);
  }
  Click(*screen, "cmdSelectAll");
  EXPECT_EQ(table.State().seats[5].BetDefaultWorking, kAllTableBets);
  EXPECT_NE(table.State().seats[2].BetDefaultWorking, kAllTableBets);
  for (int row = 0; row < list.count(); ++row) EXPECT_EQ(list.item(row)->checkState(), Qt::Checked);
}

// Switching between players shows each one's own settings and changes none.
TEST_F(AutoPlayTest, AnotherPlayerIsShownWithoutBeingChanged) {
  std::mt19937 random(20240229);
  const auto any = [&](int most) { return std::to_string(random() % static_cast<unsigned>(most + 1)); };
  for (const int seat : {2, 5}) {
    std::string error;
    for (const auto& [name, most] : {std::pair{"WinHandling", 7},
                                     {"LoseHandling", 7},
                                     {"ProperOddsMode", 2},
                                     {"PlaceBias", 2},
                                     {"DoBias", 2},
                                     {"DontBias", 2},
                                     {"LayBias", 2},
                                     {"AutoTakeOdds", 1},
                                     {"AutoLayOdds", 1},
                                     {"AutoDownPlace", 1},
                                     {"AutoPassDice", 1},
                                     {"AdjustKind.4", 3},
                                     {"AdjustKind.5", 3},
                                     {"AdjustUnit.4", 6},
                                     {"AdjustUnit.5", 6},
                                     {"AdjustUnit.6", 6},
                                     {"AdjustUnit.7", 6},
                                     {"AdjustValue.4", 99},
                                     {"AdjustValue.6", 99},
                                     {"BetDefaultWorking.44", 1},
                                     {"BetDefaultWorking.1", 1}})
      ASSERT_TRUE(SetSetting(*table.game, name, seat, any(most), error)) << name << error;
  }
  const auto all = [&](int seat) {
    std::string text;
    for (const SettingName& name : AllSettings())
      if (name.bySeat) text += name.name + "=" + Setting(name.name, seat) + "\n";
    return text;
  };
  const std::string before = all(2) + all(5);
  for (const int seat : {2, 5, 2}) {
    Pick("cmbPlayer", seat == 2 ? 0 : 1);
    EXPECT_TRUE(
        Find<QRadioButton>(*screen, QString("optHandleWinningBets%1").arg(Of(seat).WinHandling)).isChecked());
    EXPECT_TRUE(
        Find<QRadioButton>(*screen, QString("optHandleLosingBets%1").arg(Of(seat).LoseHandling)).isChecked());
    EXPECT_EQ(Find<QComboBox>(*screen, "cmbLayBias").currentIndex(), Of(seat).LayBias);
    EXPECT_EQ(Find<QCheckBox>(*screen, "chkAutoPassDice").isChecked(), Of(seat).AutoPassDice);
    EXPECT_EQ(ParseMoney(Find<QLineEdit>(*screen, "txtModifyAmount4").text().toStdString()),
              Of(seat).AdjustValue[4]);
    EXPECT_EQ(Find<QListWidget>(*screen, "lstWorkOnComeOut").item(43)->checkState() == Qt::Checked,
              table.State().seats[seat].BetDefaultWorking.Has(44));
  }
  EXPECT_EQ(all(2) + all(5), before);
  EXPECT_EQ(table.State().SelectedSeat, 5);
}

TEST_F(AutoPlayTest, FitsTheSmallestScreenAndNamesItsControls) {
  // With the widest that can stand in it: a long name and large checks.
  table.Join(8, std::string(90, 'W'));
  for (int n = 2; n <= 5; ++n) table.game->settings.CheckValue[n] = Currency::Dollars(9'999'990 + n);
  Open();
  // 1024 by 600, less a window's frame and title.
  EXPECT_LE(screen->sizeHint().width(), 1008);
  EXPECT_LE(screen->sizeHint().height(), 550);
  ExpectNamed(*screen);
  QTest::keyClick(screen.get(), Qt::Key_Escape);
  EXPECT_FALSE(screen->isVisible());
}

TEST(AutoPlayEmpty, NobodyAtTheTableChangesNothing) {
  ScreenTable table;
  AutoPlayScreen screen(*table.game, nullptr);
  screen.show();
  const BetSet house = table.State().seats[0].BetDefaultWorking;
  Click(screen, "optHandleWinningBets3");
  Click(screen, "cmdSelectAll");
  EXPECT_EQ(table.State().seats[0].handling.WinHandling, 0);
  EXPECT_EQ(table.State().seats[0].BetDefaultWorking, house);
}

TEST_F(AutoPlayTest, Pictures) {
  std::string error;
  for (const auto& [name, value] : {std::pair{"WinHandling", "6"},
                                    {"LoseHandling", "2"},
                                    {"AdjustValue.4", "9999999.9999"},
                                    {"AdjustUnit.4", "6"},
                                    {"AdjustValue.5", "2"},
                                    {"AdjustKind.5", "3"},
                                    {"AdjustValue.6", "30"},
                                    {"AdjustUnit.6", "3"},
                                    {"AutoTakeOdds", "on"},
                                    {"ProperOddsMode", "1"}})
    ASSERT_TRUE(SetSetting(*table.game, name, 5, value, error)) << error;
  screen.reset();
  TakePictures("auto-play", [&] { return std::make_unique<AutoPlayScreen>(*table.game, nullptr); });
}

}  // namespace
}  // namespace tessaryn::test
