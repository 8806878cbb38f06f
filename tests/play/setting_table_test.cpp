#include "play/setting_table.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "rules/bet_limits.h"
#include "rules/bet_rules.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

using test::Money;
using test::TestTable;

std::string Read(const Game& game, const std::string& name, int seat = 0) {
  std::string value;
  std::string error;
  EXPECT_TRUE(GetSetting(game, name, seat, value, error)) << name << ": " << error;
  return value;
}

// Every value of the table as text, by name; what a refused change must leave as it was.
std::vector<std::string> Everything(const Game& game) {
  std::vector<std::string> values;
  for (const SettingName& setting : AllSettings())
    for (int seat = 0; seat <= (setting.bySeat ? 2 : 0); ++seat)
      values.push_back(setting.name + "@" + std::to_string(seat) + "=" + Read(game, setting.name, seat));
  return values;
}

struct TwoPlayers : TestTable {
  TwoPlayers() {
    Join(1, "Ann");
    Join(2, "Bob");
  }
};

TEST(SettingTable, EveryNameTakesItsOwnValueBackAndChangesNothing) {
  TwoPlayers table;
  const std::vector<std::string> before = Everything(*table.game);
  for (const SettingName& setting : AllSettings())
    for (int seat = setting.bySeat ? 1 : 0; seat <= (setting.bySeat ? 2 : 0); ++seat) {
      std::string error;
      EXPECT_TRUE(SetSetting(*table.game, setting.name, seat, Read(*table.game, setting.name, seat), error))
          << setting.name << ": " << error;
    }
  EXPECT_EQ(Everything(*table.game), before);
  EXPECT_TRUE(table.host.boxes.empty()) << table.host.LastText();
}

TEST(SettingTable, EveryValueThatIsSetIsReadAgain) {
  // Another value that each setting can take: flags turn, numbers move by one where their limits let them.
  TwoPlayers table;
  table.Set("MaxBet", "5000");
  for (const SettingName& setting : AllSettings()) {
    const int seat = setting.bySeat ? 1 : 0;
    const std::string old = Read(*table.game, setting.name, seat);
    std::vector<std::string> others{
        old == "on" ? "off" : "on", "1", "2", "3", "11", "12", "0.03", "4 to 3", "0", "Crapless"};
    if (old.find(" to ") != std::string::npos) others = {"4 to 3", "5 to 2"};
    if (setting.name.rfind("CheckValue", 0) == 0) continue;  // below, together
    bool changed = false;
    for (const std::string& other : others) {
      std::string error;
      if (other == old || !SetSetting(*table.game, setting.name, seat, other, error)) continue;
      changed = true;
      EXPECT_EQ(Read(*table.game, setting.name, seat), other);
      if (setting.bySeat) {
        EXPECT_EQ(Read(*table.game, setting.name, 2), old) << setting.name << " is Ann's alone";
      }
      ASSERT_TRUE(SetSetting(*table.game, setting.name, seat, old, error)) << setting.name << ": " << error;
      break;
    }
    EXPECT_TRUE(changed) << setting.name << " was " << old;
  }
}

TEST(SettingTable, BadValuesAreNamedAndChangeNothing) {
  struct Case {
    const char* name;
    int seat;
    const char* value;
    const char* error;  // what it holds
  };
  const Case cases[] = {
      {"NoSuch", 0, "1", "There is no setting named \"NoSuch\"."},
      {"MaxBet", 0, "abc", "MaxBet: \"abc\" is no number."},
      {"MaxBet", 0, "", "MaxBet: \"\" is no number."},
      {"MaxBet", 0, "-1", "MaxBet must be from 0 to 9,999,999."},
      {"MaxBet", 0, "10000000", "MaxBet must be from 0 to 9,999,999."},
      {"MaxBet", 0, "0.5", "The maximum bet must be greater than or equal to the minimum bet."},
      {"MaxBet", 1, "100", "MaxBet is the table's, not a seat's."},
      {"OddsCalcMethod", 0, "6", "OddsCalcMethod must be from 0 to 5."},
      {"OddsCalcMethod", 0, "1.5", "OddsCalcMethod must be a whole number."},
      {"BarNumber", 0, "3", "BarNumber must be 12 or 2."},
      {"BarNumber", 0, "13", "BarNumber must be from 2 to 12."},
      {"AllowPutBets", 0, "maybe", "AllowPutBets: \"maybe\" is neither on nor off."},
      {"SimRollRate", 0, "0", "SimRollRate"},
      {"SimRollRate", 0, "36000001", "36,000,000"},
      {"MinBetMain", 0, "0.5", "The minimum bet cannot be less than the smallest check denomination of $1"},
      {"MinBetMain", 0, "2.5",
       "The minimum bet must be some multiple of the smallest check denomination, such as $1, $2, $3,  etc."},
      {"MinBetProp", 0, "2.5",
       "The minimum prop bet must be some multiple of the smallest check denomination, such as $1, $2, $3,  "
       "etc."},
      {"CheckValue.1", 0, "0", "Check values must be greater than zero."},
      {"CheckValue.2", 0, "1",
       "Checks must be listed in ascending order with the smallest valued check in the leftmost position."},
      {"CheckValue.2", 0, "2.5", "All checks must be wholly divisible by the smallest check."},
      {"CheckValue.6", 0, "1000", "There is no setting named \"CheckValue.6\"."},
      {"CheckValue", 0, "1000", "There is no setting named \"CheckValue\"."},
      {"MaxFireBet", 0, "0", "The max Fire bet must be greater than zero."},
      {"PayoffTable.31", 0, "9 to 0", "PayoffTable.31"},
      {"PayoffTable.31", 0, "nine to five",
       "PayoffTable.31: \"nine to five\" is no payoff such as \"7 to 5\"."},
      {"PayoffTable.94", 0, "1 to 1", "There is no setting named"},
      {"PayoffTable.45", 0, "0 to 1", "The payoff on Passline/Come (c.o.) must be a positive amount."},
      {"PayoffTable.12", 0, "-1 to 1", "The payoff on DP/DC 10 must be a positive amount."},
      {"FieldPreset", 0, "nothing", "FieldPreset: there is no preset \"nothing\"; there are Field, Pass,"},
      {"WinHandling", 1, "8", "WinHandling must be from 0 to 7."},
      {"WinHandling", 3, "1", "There is no player at seat 3."},
      {"WinHandling", 9, "1", "There is no seat 9; seats are 1 to 8."},
      {"WinHandling", -1, "1", "There is no seat -1; seats are 1 to 8."},
      {"AdjustKind.3", 1, "1", "There is no setting named"},
      {"AdjustUnit.4", 1, "7", "AdjustUnit.4 must be from 0 to 6."},
      {"Point", 0, "4", "Point can only be read."},
      {"BankrollCurrent", 1, "4", "BankrollCurrent can only be read."},
      {"BuyVigRate", 0, "1.5", "BuyVigRate"},
      {"BuyVigRate", 0, "101%", "BuyVigRate"},
      {"BuyVigRate", 0, "%", "BuyVigRate"},
      {"GeneratorIndex", 0, "8", "GeneratorIndex must be from 0 to 7."},
  };
  TwoPlayers table;
  const std::vector<std::string> before = Everything(*table.game);
  for (const Case& c : cases) {
    std::string error;
    EXPECT_FALSE(SetSetting(*table.game, c.name, c.seat, c.value, error)) << c.name << " " << c.value;
    EXPECT_NE(error.find(c.error), std::string::npos) << c.name << " " << c.value << ": " << error;
    EXPECT_EQ(Everything(*table.game), before) << c.name << " " << c.value;
    table.Check(c.name);
  }
}

TEST(SettingTable, ValuesReadTheirForms) {
  TwoPlayers table;
  table.Set("buyvigrate", "4%");
  EXPECT_EQ(Read(*table.game, "BuyVigRate"), "0.04");
  table.Set("MaxBet", "$2,500");
  EXPECT_EQ(Read(*table.game, "MaxBet"), "2500");
  table.Set("AllowPutBets", "No");
  EXPECT_EQ(Read(*table.game, "AllowPutBets"), "off");
  table.Set("PayoffTable.31", "27 for 4");
  EXPECT_EQ(Read(*table.game, "PayoffTable.31"), "27 for 4");
  table.Set("AutoStopInterval", "12.9");
  EXPECT_EQ(Read(*table.game, "AutoStopInterval"), "12");
  table.Set("WinHandling", "3");
  EXPECT_EQ(Read(*table.game, "WinHandling", 1), "3") << "without a seat it is everybody's";
  EXPECT_EQ(Read(*table.game, "WinHandling", 2), "3");
  table.Set("WinHandling", "5", 2);
  EXPECT_EQ(Read(*table.game, "WinHandling", 1), "3");
}

TEST(SettingTable, TheFieldAndItsPresetGoTogether) {
  TestTable table;
  const auto field = [&table] { return Read(*table.game, "FieldPreset"); };
  table.Set("FieldPreset", "hop13");
  EXPECT_EQ(field(), "Hop13");
  EXPECT_EQ(Read(*table.game, "FieldPayoffs.3"), "15 to 1");
  table.Set("FieldPayoffs.3", "14 to 1");
  EXPECT_EQ(field(), "Own");
  table.Set("FieldPreset", "own");
  EXPECT_EQ(Read(*table.game, "FieldPayoffs.3"), "14 to 1");
  table.Set("FieldPayoffs.3", "15 to 1");
  EXPECT_EQ(field(), "Hop13");
  std::string error;
  EXPECT_FALSE(SetSettings(*table.game, {{"FieldPreset", 0, "World"}, {"MaxBet", 0, "x"}}, error));
  EXPECT_EQ(field(), "Hop13");
  EXPECT_EQ(Read(*table.game, "FieldPayoffs.3"), "15 to 1");
}

TEST(SettingTable, ChecksChangeTogether) {
  TwoPlayers table;
  std::string error;
  EXPECT_FALSE(SetSetting(*table.game, "CheckValue.1", 0, "5", error));
  const std::vector<SettingChange> changes{{"CheckValue.5", 0, "10000"}, {"CheckValue.1", 0, "5"},
                                           {"CheckValue.2", 0, "25"},    {"CheckValue.3", 0, "100"},
                                           {"CheckValue.4", 0, "1000"},  {"MinBetMain", 0, "5"},
                                           {"MinBetProp", 0, "5"}};
  EXPECT_TRUE(SetSettings(*table.game, changes, error)) << error;
  EXPECT_EQ(table.game->payoffs.PayoffTable[kPlace4 + 2].BetUnit, Money("30"));
  const std::vector<std::string> before = Everything(*table.game);
  EXPECT_FALSE(
      SetSettings(*table.game, {{"MaxBet", 0, "77"}, {"WinHandling", 1, "4"}, {"BarNumber", 0, "4"}}, error));
  EXPECT_EQ(Everything(*table.game), before) << "one bad value takes the others back";
}

// --- Values that came past the table.

TEST(SettingTableClamp, BringsBackWhatIsOutsideAndNamesIt) {
  TwoPlayers table;
  Game& game = *table.game;
  EXPECT_EQ(ClampSettings(game), std::vector<std::string>{})
      << "a table on its defaults is within its limits";
  Settings& settings = game.settings;
  settings.MaxBet = Currency::Error();
  settings.ScreenFontSize = 99;
  settings.InfoTipLevel = -7;
  settings.BarNumber = 3;
  settings.AutoRollDelay = Seconds::Whole(-1);
  settings.BuyVigRate = Fraction::Whole(5);
  settings.CheckValue[2] = kZero;
  settings.CompBetFlags.Add(120);
  game.table.seats[2].handling.WinHandling = 8;
  game.table.seats[1].handling.AdjustUnit[7] = -1;
  game.payoffs.PayoffTable[kPlace4].PayPer = kZero;
  game.generators.GeneratorIndex = 8;
  const std::vector<std::string> names{"MaxBet",       "BarNumber",      "BuyVigRate",     "AutoRollDelay",
                                       "InfoTipLevel", "ScreenFontSize", "GeneratorIndex", "WinHandling@2",
                                       "CheckValue.2", "PayoffTable.31", "CompBetFlags.1", "AdjustUnit.7@1"};
  EXPECT_EQ(ClampSettings(game), names);
  EXPECT_EQ(settings.ScreenFontSize, 13);
  EXPECT_EQ(settings.InfoTipLevel, 0);
  EXPECT_EQ(Read(game, "PayoffTable.31"), "9 to 5");
  EXPECT_EQ(Read(game, "CheckValue.2"), "5");
  EXPECT_EQ(ClampSettings(game), std::vector<std::string>{});
}

TEST(SettingTableClamp, WhateverTheNumbersAreTheTableIsWhole) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937_64 random(seed);
    TwoPlayers table;
    Game& game = *table.game;
    const auto any = [&random] {
      constexpr std::int64_t kNumbers[] = {0,
                                           1,
                                           -1,
                                           50'000,
                                           70'000,
                                           std::numeric_limits<std::int64_t>::min(),
                                           std::numeric_limits<std::int64_t>::max()};
      return random() % 8 == 0 ? static_cast<std::int64_t>(random())
                               : kNumbers[random() % std::size(kNumbers)];
    };
    ForEachField(game.settings, [&]<typename T>(const char*, T& value) {
      if constexpr (std::is_same_v<T, int>) value = static_cast<int>(any());
      if constexpr (std::is_same_v<T, std::int64_t>) value = any();
      if constexpr (requires { value.raw; }) value.raw = any();
    });
    for (Currency& check : game.settings.CheckValue) check.raw = any();
    for (PayoffRecord& record : game.payoffs.PayoffTable)
      record.PayTo.raw = any(), record.PayPer.raw = any(), record.ForFlag.raw = any();
    ClampSettings(game);
    EXPECT_EQ(ClampSettings(game), std::vector<std::string>{});
    // What holds together is taken back as it is.
    for (const SettingName& setting : AllSettings()) {
      std::string error;
      const std::string value = Read(game, setting.name, setting.bySeat ? 1 : 0);
      EXPECT_TRUE(SetSetting(game, setting.name, setting.bySeat ? 1 : 0, value, error))
          << setting.name << error;
    }
    for (int bet = 1; bet <= kBets; ++bet) table.Bet(1, bet, "10");
    table.Roll(3, 3);
    table.Check("clamped");
  }
}

// Money and bets that a refused change must leave alone, and that no setting changes unasked.
std::vector<Currency> Moneys(const TableState& state, bool bets) {
  std::vector<Currency> values;
  for (int seat = 1; seat <= kSeats; ++seat) {
    values.push_back(state.BankrollCurrent[seat]);
    if (!bets) continue;
    values.push_back(state.seats[seat].OnTableAmount);
    for (int bet = 1; bet < kBetRows; ++bet) values.push_back(state.BetAmount(seat, bet));
    for (int i = 0; i < 6; ++i) {
      values.push_back(state.seats[seat].LayVigHeld[i]);
      values.push_back(state.seats[seat].BuyVigHeld[i]);
    }
  }
  return values;
}

TEST(SettingTableRandom, RulesThatChangeInTheMiddleOfPlayKeepTheTableTogether) {
  const std::vector<SettingName> names = AllSettings();
  const char* values[] = {"on", "off", "0",    "1",  "2",      "5",       "12", "0.5",
                          "20", "100", "3000", "8%", "7 to 5", "-1 to 1", "x",  "0 to 1"};
  for (unsigned seed = 1; seed <= 4; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    TwoPlayers table;
    table.game->settings.MessageMask = 0;
    int refused = 0;
    int changed = 0;
    for (int step = 0; step < 300 && !testing::Test::HasFailure(); ++step) {
      for (int bet = 0; bet < 4; ++bet)
        table.Bet(1 + static_cast<int>(random() % 2), 1 + static_cast<int>(random() % kBets),
                  std::to_string(random() % 60).c_str());
      if (random() % 3 != 0)
        table.Roll(1 + static_cast<int>(random() % 6), 1 + static_cast<int>(random() % 6));
      std::vector<SettingChange> changes;
      for (unsigned i = 0; i <= random() % 3; ++i) {
        const SettingName& setting = names[random() % 96 < 70 ? random() % 60 : random() % names.size()];
        changes.push_back({setting.name, setting.bySeat ? 1 + static_cast<int>(random() % 2) : 0,
                           values[random() % std::size(values)]});
      }
      table.host.answers.clear();
      for (int i = 0; i < 4; ++i) table.host.answers.push_back(random() % 2 == 0 ? "yes" : "no");
      const std::vector<std::string> before = Everything(*table.game);
      const std::vector<Currency> moneys = Moneys(table.State(), true);
      const std::vector<Currency> bankrolls = Moneys(table.State(), false);
      std::string error;
      const bool done = SetSettings(*table.game, changes, error);
      table.Check(changes[0].name.c_str());
      EXPECT_EQ(Moneys(table.State(), false), bankrolls) << "a setting is not a payment";
      if (done) {
        ++changed;
        continue;
      }
      ++refused;
      EXPECT_FALSE(error.empty());
      EXPECT_EQ(Everything(*table.game), before) << error;
      EXPECT_EQ(Moneys(table.State(), true), moneys) << error;
    }
    EXPECT_GT(refused, 20);
    EXPECT_GT(changed, 20);
  }
}

// --- Families.

struct FamilyCase {
  const char* name;
  std::vector<int> bets;
  Msg question;
  const char* told;  // what is up
};

const FamilyCase kFamilies[] = {
    {"UseBig68", {kBig6, kBig8}, Msg::kAskRemoveBig68, "Big 6, Big 8"},
    {"UseFire", {kFire}, Msg::kAskRemoveFire, "Fire"},
    {"UseMidway", {kMidway}, Msg::kAskRemoveMidway, "Midway"},
    {"SmallTallEnabled", {kAllSmall, kPoint7}, Msg::kAskRemoveSpecials, "All Small, Point 7"},
};

TEST(SettingTableFamilies, GoOffWithTheirBetsOnlyAfterAYes) {
  for (const FamilyCase& family : kFamilies)
    for (const bool yes : {false, true}) {
      SCOPED_TRACE(std::string(family.name) + (yes ? " yes" : " no"));
      TwoPlayers table;
      for (const int bet : family.bets) table.Bet(2, bet, "5");
      table.Bet(2, kField, "5");
      table.host.answers = {yes ? "yes" : "no"};
      std::string error;
      EXPECT_EQ(SetSetting(*table.game, family.name, 0, "off", error), yes);
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(family.question, {{"bets", family.told}}));
      for (const int bet : family.bets) EXPECT_EQ(table.State().BetAmount(2, bet), Money(yes ? "0" : "5"));
      EXPECT_EQ(table.State().BetAmount(2, kField), Money("5"));
      EXPECT_EQ(table.State().BankrollCurrent[2], Money("1000"));
      EXPECT_EQ(Read(*table.game, family.name), yes ? "off" : "on");
      EXPECT_EQ(error.empty(), yes);
      table.Check("the family");
    }
}

TEST(SettingTableFamilies, OneNoKeepsTheBetsOfTheOthersToo) {
  TwoPlayers table;
  table.Bet(1, kBig6, "5");
  table.Bet(1, kMidway, "5");
  table.host.answers = {"yes", "no"};
  std::string error;
  EXPECT_FALSE(SetSettings(*table.game, {{"UseBig68", 0, "off"}, {"UseMidway", 0, "off"}}, error));
  EXPECT_EQ(Read(*table.game, "UseBig68"), "on");
  EXPECT_EQ(table.State().BetAmount(1, kBig6), Money("5"));
  EXPECT_EQ(table.State().BetAmount(1, kMidway), Money("5"));
  table.Check("two families");
}

TEST(SettingTableFamilies, ASevenPointSevenThatRidesKeepsItsFamily) {
  TestTable table;
  table.Set("ShooterBetRule", "0");
  table.Join(1, "Ann");
  table.Bet(1, kSevenPoint7, "5");
  table.Roll(2, 2);
  std::string error;
  table.host.answers = {"yes"};
  EXPECT_FALSE(SetSetting(*table.game, "SmallTallEnabled", 0, "off", error));
  EXPECT_TRUE(table.host.Said(Msg::kSpecialsAreContract));
  EXPECT_EQ(table.State().BetAmount(1, kSevenPoint7), Money("5"));
  EXPECT_EQ(Read(*table.game, "SmallTallEnabled"), "on");
}

TEST(SettingTableFamilies, SpecialBetsThatComeBackFindNoMarksAndNoCount) {
  for (const bool up : {false, true}) {
    SCOPED_TRACE(up ? "with bets up" : "with the bets taken down before");
    TestTable table;
    table.Set("ShooterBetRule", "0");
    table.Join(1, "Ann");
    for (const int bet : {kMakeAll, kFourRolls}) table.Bet(1, bet, "5");
    table.Roll(2, 2);
    if (!up)
      for (const int bet : {kMakeAll, kFourRolls}) table.Bet(1, bet, "-5");
    table.host.answers = {"yes"};
    table.Set("SmallTallEnabled", "off");
    table.Set("SmallTallEnabled", "on");
    for (const int bet : {kAllSmall, kMakeAll, kFourRolls})
      EXPECT_EQ(table.Bet(1, bet, "10"), Money("10")) << bet;
  }
}

// --- Vig.

TEST(SettingTableVig, AChargeThatCannotBePaidIsRefused) {
  struct Case {
    int players;
    int bet;
    const char* amount;
    const char* name;
    Msg refusal;
  };
  for (const Case& c : {Case{1, kBuy4, "100", "BuyVigUpFront", Msg::kBuyVigNotCovered},
                        Case{2, kBuy4, "100", "BuyVigUpFront", Msg::kBuyVigNotCovered},
                        Case{1, kLay4, "100", "LayVigUpFront", Msg::kLayVigNotCovered}}) {
    for (const bool negative : {false, true}) {
      TestTable table;
      table.Set(c.name, "off");
      table.Join(1, "Ann", "100");
      if (c.players == 2) table.Join(2, "Bob");
      table.Bet(1, c.bet, c.amount);
      table.State().seats[1].AllowNegativeBankroll = negative;
      table.host.boxes.clear();
      std::string error;
      EXPECT_EQ(SetSetting(*table.game, c.name, 0, "on", error), negative);
      EXPECT_EQ(Read(*table.game, c.name), negative ? "on" : "off");
      EXPECT_EQ(table.State().seats[1].OnTableAmount, Money(!negative      ? "100"
                                                            : IsLay(c.bet) ? "103"
                                                                           : "105"));
      table.Check("the vig");
      if (negative) continue;
      ASSERT_EQ(table.host.boxes.size(), 1u);
      EXPECT_TRUE(table.host.Said(c.refusal, {{"alone", c.players == 1}}));
    }
  }
}

TEST(SettingTableVig, RatesAndRoundingTakeEffectOnBetsThatAreUp) {
  TestTable table;
  table.Join(1, "Ann");
  table.Bet(1, kBuy4, "50");
  EXPECT_EQ(table.State().seats[1].BuyVigHeld[0], Money("3"));
  table.Set("BuyVigRound", "1");
  EXPECT_EQ(table.State().seats[1].BuyVigHeld[0], Money("2"));
  table.Set("BuyVigRate", "10%");
  EXPECT_EQ(table.State().seats[1].BuyVigHeld[0], Money("5"));
  EXPECT_EQ(table.State().seats[1].OnTableAmount, Money("55"));
  table.Set("BuyVigUpFront", "off");
  EXPECT_EQ(table.State().seats[1].OnTableAmount, Money("50"));
}

TEST(SettingTable, ANegativeBankrollKeepsItsPermission) {
  TestTable table;
  table.Join(1, "Ann", "-20");
  table.Set("AllowNegativeBankroll", "on", 1);
  std::string error;
  EXPECT_FALSE(SetSetting(*table.game, "AllowNegativeBankroll", 1, "off", error));
  EXPECT_EQ(error, MessageText<Msg::kBankrollIsNegative>(With<"player">("Ann")));
  EXPECT_EQ(Read(*table.game, "AllowNegativeBankroll", 1), "on");
}

TEST(SettingTable, ANewHouseStandardIsOfferedToEachPlayer) {
  TwoPlayers table;
  table.host.answers = {"yes", "no", "yes"};
  table.Set("BetDefaultWorking.31", "on");
  ASSERT_EQ(table.host.boxes.size(), 3u);
  EXPECT_TRUE(Says(table.host.boxes[0], Msg::kAskMatchHouse));
  EXPECT_TRUE(Says(table.host.boxes[1], Msg::kAskMatchHouseOf, {{"player", "Ann"}}));
  EXPECT_EQ(Read(*table.game, "BetDefaultWorking.31", 1), "off");
  EXPECT_EQ(Read(*table.game, "BetDefaultWorking.31", 2), "on");
  table.Join(3, "Cid");
  EXPECT_EQ(BetWorkingOf(*table.game, 3, kPlace4), 1) << "a new player takes the house standard";
}

}  // namespace
}  // namespace tessaryn
