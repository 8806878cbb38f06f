// The configuration, worked by mouse and keys: each control against `set`, the leaving check, the search,
// houses, and what the looks change on the table.
#include "shell/screens/configuration.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTableWidget>
#include <filesystem>

#include "play/house_presets.h"
#include "play/settings_file.h"
#include "shell/frame/screen_manners.h"
#include "shell/screens/configuration_rows.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens_support.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_commands.h"
#include "shell/table/table_widget.h"

namespace tessaryn {
namespace {

using namespace test;

struct Configured : ScreenTable {
  QStringList heard;
  std::unique_ptr<ConfigurationScreen> screen;

  Configured() {
    Join(2, "Ann");
    Join(5, "Bo");
    screen = std::make_unique<ConfigurationScreen>(*game,
                                                   SoundShelf{{"01.stk"},
                                                              {"hard.dce", "soft.dce"},
                                                              {"a.chp", "b.chp", "c.chp", "d.chp", "e.chp"},
                                                              {"Chips.win", "bell.win"},
                                                              [this](const QString& file) { heard += file; }},
                                                   nullptr);
    screen->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(screen.get()));
  }
  void ShowTabOf(const QString& control) {
    for (QWidget* at = &Find<QWidget>(*screen, control); at != nullptr; at = at->parentWidget())
      if (at->objectName().startsWith("pic") && screen->ShowTab(at->objectName())) break;
    QApplication::processEvents();
  }
  void Type(const QString& control, const char* text) {
    ShowTabOf(control);
    TypeInto(*screen, control, text);
    QTest::keyClick(&Find<QWidget>(*screen, control), Qt::Key_Return);
  }
  void Press(const QString& control) {
    ShowTabOf(control);
    Click(*screen, control);
  }
  void Choose(const QString& control, int index) {
    ShowTabOf(control);
    auto& box = Find<QComboBox>(*screen, control);
    box.setFocus();
    while (box.currentIndex() != index)
      QTest::keyClick(&box, box.currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
  }
  std::string Rules() { return SettingsText(*game); }
  // Closes it; what it says meanwhile.
  Msg Leave() {
    game->box = {};
    host.answers.Ok();
    Click(*screen, "cmdClose");
    host.answers = {};
    return game->box.MsgId;
  }
};

// By every control its setting becomes what `set` makes of the same value, and nothing else changes.
TEST(Configuration, EachControlDoesWhatSetDoes) {
  Configured window;
  ScreenTable plain;
  plain.Join(2, "Ann");
  plain.Join(5, "Bo");
  for (const int seat : {2, 5})
    plain.State().seats[seat].SessionsLogName = window.State().seats[seat].SessionsLogName;
  const auto work = [&](const QString& name, const char* setting, ControlKind kind) -> std::string {
    std::string now;
    std::string error;
    const auto* control = window.screen->Editor().ControlOf(setting);
    now = window.screen->Editor().ValueOf(*control);
    switch (kind) {
      case ControlKind::kFlag:
        window.Press(name);
        return now == "on" ? "off" : "on";
      case ControlKind::kNumber: {
        const Currency number = ParseMoney(now);
        const std::string text = setting == std::string("CheckValue.1") ? "0.5" : PlainMoney(number + number);
        window.Type(name, text.c_str());
        return text;
      }
      case ControlKind::kPercent:
        window.Type(name, "4.25");
        return "4.25%";
      case ControlKind::kChoice: {
        const int other = (std::atoi(now.c_str()) + 1) % 3;
        window.Choose(name, other);
        return std::to_string(other);
      }
      case ControlKind::kMask:
        window.Press(name + "1");
        window.Press(name + "4");
        return "29";
      case ControlKind::kRadio:
        break;
    }
    return "";
  };
  const auto check = [&](const char* setting, bool ofPlayer, const std::string& value) {
    std::string error;
    ASSERT_TRUE(SetSetting(*plain.game, setting, ofPlayer ? 5 : 0, value, error)) << error;
    EXPECT_EQ(FirstDifference(window.game->settings, plain.game->settings), "") << setting;
    EXPECT_EQ(FirstDifference(window.State(), plain.State()), "") << setting;
    EXPECT_EQ(window.Rules(), SettingsText(*plain.game)) << setting;
  };
  struct Radio {
    const char* button;
    const char* setting;
    const char* value;
  };
  constexpr Radio kRadios[] = {
      {"optBarDont1", "BarNumber", "2"},        {"optBuyVig0", "BuyVigUpFront", "off"},
      {"optLayVig0", "LayVigUpFront", "off"},   {"optBankrollInitType2", "BankrollInitType", "2"},
      {"optFontSize2", "ScreenFontSize", "13"}, {"optDiceAction1", "DiceAction", "1"},
      {"optBaseComps1", "CompBase", "1"}};
  int radios = 0;
  for (const ControlRow& row : ControlRows()) {
    std::string value = work(row.name, row.setting, row.kind);
    for (const Radio& radio : kRadios) {
      if (radio.setting != std::string(row.setting)) continue;
      window.Press(radio.button);
      value = radio.value;
      ++radios;
    }
    check(row.setting, row.ofPlayer, value);
  }
  EXPECT_EQ(radios, static_cast<int>(std::size(kRadios)));
  struct Sound {
    const char* list;
    const char* setting;
    int set;
  };
  for (const Sound& sound : {Sound{"cmbStickPerson", "StickPerson", 0}, Sound{"cmbDiceSound", "DiceSound", 3},
                             Sound{"cmbCheckSound", "CheckSound", 5}, Sound{"cmbWinSound", "WinSound", 0}}) {
    window.State();
    window.game->settings.DisableAllSound = plain.game->settings.DisableAllSound = false;
    window.screen->Refresh();
    window.Choose(sound.list, sound.set);
    check(sound.setting, false, std::to_string(sound.set));
  }
  window.Press("cmdTryCheckSound");
  EXPECT_EQ(window.heard, QStringList{"e.chp"});
  window.Choose("cmbRollsPerTime", 5);
  window.Type("txtRollsPerHour", "20");
  check("SimRollRate", false, "180");
  window.Choose("cmbRollsPerTime", 2);
  EXPECT_EQ(Find<QLineEdit>(*window.screen, "txtRollsPerHour").text(), "0.05");
}

TEST(Configuration, TheLeavingCheckTellsWhatIsWrongAndShowsItsTab) {
  struct Case {
    const char* control;
    const char* bad;
    Msg told;
    const char* tab;
    const char* good;
  };
  const Case cases[] = {{"txtDenomination1", "0", Msg::kChecksNotPositive, "picLayout", "1"},
                        {"txtDenomination3", "5", Msg::kChecksNotAscending, "picLayout", "25"},
                        {"txtDenomination2", "5.5", Msg::kChecksNotDivisible, "picLayout", "5"},
                        {"txtMinPlacardBet", "0.5", Msg::kMinimumTooLow, "picBets", "5"},
                        {"txtMinPlacardBet", "2.5", Msg::kMinimumNotMultiple, "picBets", "5"},
                        {"txtMinPlacardPropBet", "1.1", Msg::kMinimumNotMultiple, "picBets", "1"},
                        {"txtMaxPlacardBet", "4", Msg::kMaximumTooLow, "picBets", "1000"},
                        {"txtMaxFireBet", "0", Msg::kMaxFireBetTooLow, "picLayout", "5"},
                        {"txtMaxOddsBet", "10000000", Msg::kSettingRefused, "picBets", "3000"},
                        {"txtRollsPerHour", "36000001", Msg::kRollRateTooHigh, "picMisc", "120"},
                        {"txtRollsPerHour", "0", Msg::kRollRateTooLow, "picMisc", "60"}};
  Configured window;
  window.Type("txtMinPlacardBet", "5");
  for (const Case& each : cases) {
    const std::string before = window.Rules();
    window.Type(each.control, each.bad);
    EXPECT_EQ(window.Rules(), before) << each.control << ": what doesn't hold isn't taken";
    EXPECT_TRUE(Find<QLabel>(*window.screen, "lblWaiting").text().startsWith("Not taken yet"));
    // A rate that can't be is told as its tab is left; the others as the screen is.
    window.host.answers.Ok();
    const bool left = window.screen->ShowTab("picSound");
    EXPECT_EQ(left, std::string(each.tab) != "picMisc");
    window.host.answers = {};
    EXPECT_EQ(window.Leave(), each.told) << each.control << " " << each.bad;
    EXPECT_TRUE(window.screen->isVisible());
    EXPECT_EQ(window.screen->Tab(), each.tab) << each.control;
    EXPECT_TRUE(Find<QWidget>(*window.screen, each.control).isVisible());
    window.Type(each.control, each.good);
    EXPECT_EQ(Find<QLabel>(*window.screen, "lblWaiting").text(), "");
    EXPECT_EQ(window.Leave(), Msg{}) << each.control;
    EXPECT_FALSE(window.screen->isVisible());
    window.screen->show();
  }
  // The told words of one of them, with the unit of the view.
  window.Choose("cmbRollsPerTime", 1);
  window.Type("txtRollsPerHour", "600001");
  window.Leave();
  EXPECT_EQ(window.game->box.MsgText, "The maximum simulated Rolls / min rate is 600,000.");
  // A Fire bet that isn't offered may be 0.
  window.Type("txtRollsPerHour", "2");
  window.Press("chkUseFireBet");
  window.Type("txtMaxFireBet", "0");
  EXPECT_EQ(window.game->settings.MaxFireBet, kZero);
  EXPECT_EQ(window.Leave(), Msg{});
}

// Checks of quite other values are typed one by one: they are taken together as soon as they hold.
TEST(Configuration, WhatHoldsOnlyTogetherIsTakenTogether) {
  Configured window;
  const char* const values[] = {"10", "50", "200", "1000", "5000"};
  for (int n = 0; n < 4; ++n) window.Type(QString("txtDenomination%1").arg(n + 1), values[n]);
  EXPECT_EQ(window.game->settings.Unit(), Currency::Dollars(1)) << "the minimum bet is no multiple of 10 yet";
  window.Type("txtDenomination5", values[4]);
  window.Type("txtMinPlacardBet", "20");
  EXPECT_EQ(window.game->settings.Unit(), Currency::Dollars(1));
  window.Type("txtMinPlacardPropBet", "10");
  EXPECT_EQ(window.game->settings.CheckValue[5], Currency::Dollars(5000));
  EXPECT_EQ(window.game->settings.MinBetMain, Currency::Dollars(20));
  window.host.answers.Yes();
  window.Press("mnuRestoreDefaultDenoms");
  EXPECT_EQ(window.game->settings.Unit(), Currency::Dollars(1));
}

TEST(Configuration, ANoKeepsABetFamilyAndItsBox) {
  Configured window;
  window.State().SelectedSeat = 2;
  window.Bet(2, kPassLine, "10");
  window.Bet(2, kMidway, "5");
  for (const int answer : {kResultNo, kResultYes}) {
    answer == kResultYes ? window.host.answers.Yes() : window.host.answers.No();
    window.Press("chkUseMidwayBet");
    EXPECT_EQ(window.game->box.MsgId, Msg::kAskRemoveMidway);
    const bool kept = answer == kResultNo;
    EXPECT_EQ(window.game->settings.UseMidway, kept);
    EXPECT_EQ(Find<QCheckBox>(*window.screen, "chkUseMidwayBet").isChecked(), kept);
    EXPECT_EQ(window.State().BetAmount(2, kMidway) > kZero, kept);
  }
  // Somebody else changes a setting: the control follows.
  std::string error;
  ASSERT_TRUE(SetSetting(*window.game, "UseMidway", 0, "on", error));
  window.screen->Refresh();
  EXPECT_TRUE(Find<QCheckBox>(*window.screen, "chkUseMidwayBet").isChecked());
  // A debt keeps its permission.
  window.State().seats[5].AllowNegativeBankroll = true;
  window.State().BankrollCurrent[5] = Currency::Dollars(-50);
  window.screen->Refresh();
  window.host.answers.Ok();
  window.Press("chkAllowNegBankroll");
  EXPECT_TRUE(window.State().seats[5].AllowNegativeBankroll);
  EXPECT_NE(window.game->box.MsgText.find("Before you can un-check this box, Bo must have"),
            std::string::npos);
  EXPECT_TRUE(Find<QCheckBox>(*window.screen, "chkAllowNegBankroll").isChecked());
  window.State().BankrollCurrent[5] = Currency::Dollars(1000);
}

TEST(Configuration, TheHouseStandardIsOfferedOnceAsTheScreenIsLeft) {
  Configured window;
  window.ShowTabOf("lstWorkOnComeOut");
  auto& list = Find<QListWidget>(*window.screen, "lstWorkOnComeOut");
  const BetSet before = window.State().seats[0].BetDefaultWorking;
  const auto flip = [&](int bet) {
    list.scrollToItem(list.item(bet - 1));
    const QPoint at = list.visualItemRect(list.item(bet - 1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
  };
  flip(kPlace4);
  flip(kHard8);
  EXPECT_NE(window.State().seats[0].BetDefaultWorking.Has(kHard8), before.Has(kHard8));
  EXPECT_TRUE(list.item(kHard8 - 1)->text().endsWith(before.Has(kHard8) ? " - No" : " - Yes"));
  window.game->box = {};
  window.host.answers.Yes();  // some of them
  window.host.answers.No();   // Ann
  window.host.answers.Yes();  // Bo
  Click(*window.screen, "cmdClose");
  EXPECT_FALSE(window.screen->isVisible());
  EXPECT_TRUE(window.State().seats[5].BetDefaultWorking == window.State().seats[0].BetDefaultWorking);
  EXPECT_TRUE(window.State().seats[2].BetDefaultWorking == before) << "Ann keeps hers";
  window.screen->show();
  window.ShowTabOf("cmdWorkingDefault");
  Click(*window.screen, "cmdWorkingSelectAll");
  Click(*window.screen, "cmdWorkingDefault");
  EXPECT_TRUE(window.State().seats[0].BetDefaultWorking == before);
}

TEST(Configuration, TheSearchFindsTabsAndControlsAndEnterGoesThere) {
  Configured window;
  auto& search = Find<QLineEdit>(*window.screen, "txtSearch");
  auto& list = Find<QListWidget>(*window.screen, "lstTabs");
  const int tabs = list.count();
  search.setFocus();
  QTest::keyClicks(&search, "vig");
  QStringList found;
  for (int n = 0; n < list.count(); ++n) found += list.item(n)->text().trimmed();
  ASSERT_TRUE(found.contains("Buy bets: Vig") && found.contains("Lay bets: Vig"))
      << found.join('|').toStdString();
  EXPECT_GE(found.size(), 8);
  while (list.currentItem()->text().trimmed() != "Lay bets: Vig") QTest::keyClick(&search, Qt::Key_Down);
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(window.screen->Tab(), "picBets");
  EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(*window.screen, "txtLayVigPct"));
  search.setFocus();
  search.clear();
  QTest::keyClicks(&search, "MaxFire");  // as `set` calls it
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &Find<QWidget>(*window.screen, "txtMaxFireBet"));
  search.setFocus();
  QTest::keyClick(&search, Qt::Key_Escape);
  EXPECT_EQ(list.count(), tabs);
  QTest::keyClicks(&search, "color");
  EXPECT_EQ(list.item(0)->text(), "Colors");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(window.screen->Tab(), "picColors");
}

TEST(Configuration, AHouseIsUsedSavedLoadedAndCompared) {
  Configured window;
  ScreenTable plain;
  window.screen->ShowTab("picHouse");
  auto& houses = Find<QListWidget>(*window.screen, "lstHouses");
  auto& differences = Find<QTableWidget>(*window.screen, "grdDifferences");
  EXPECT_EQ(differences.rowCount(), 0) << "the first house is the table's";
  EXPECT_FALSE(Find<QPushButton>(*window.screen, "cmdUseHouse").isEnabled());
  houses.setFocus();
  QTest::keyClick(&houses, Qt::Key_Down);
  EXPECT_EQ(houses.currentItem()->text(), "3-4-5x odds, $10 table");
  EXPECT_GT(differences.rowCount(), 4);
  Click(*window.screen, "cmdUseHouse");
  std::string error;
  ASSERT_TRUE(SetSettings(*plain.game, HouseRules(*FindHousePreset("345x-10")), error)) << error;
  EXPECT_EQ(window.Rules(), SettingsText(*plain.game));
  EXPECT_EQ(differences.rowCount(), 0);
  window.Type("txtOddsAllowed68", "7");
  const std::string own = window.Rules();
  window.screen->ShowTab("picHouse");
  const std::string path = HousesFolder(*window.game) + "Mine.txt";
  QueuedFileNames().push_back(path);
  Click(*window.screen, "cmdSaveHouse");
  EXPECT_EQ(KeptHouses(*window.game), std::vector<std::string>{"Mine"});
  ASSERT_EQ(ApplySettingsFile(*plain.game, path), "");
  EXPECT_EQ(SettingsText(*plain.game), own) << "as `--settings` reads it";
  houses.setCurrentRow(0);
  Click(*window.screen, "cmdUseHouse");
  EXPECT_NE(window.Rules(), own);
  houses.setCurrentRow(houses.count() - 1);
  EXPECT_EQ(houses.currentItem()->text(), "Mine");
  EXPECT_GT(differences.rowCount(), 4);
  Click(*window.screen, "cmdUseHouse");
  EXPECT_EQ(window.Rules(), own);
  // A damaged file is told, and changes nothing.
  const std::string bad = window.folder.filePath("bad.txt").toStdString();
  ASSERT_TRUE(std::filesystem::copy_file(path, bad));
  std::FILE* file = std::fopen(bad.c_str(), "a");
  std::fputs("MaxBet = many\n", file);
  std::fclose(file);
  QueuedFileNames().push_back(bad);
  window.host.answers.Ok();
  Click(*window.screen, "cmdOpenHouse");
  EXPECT_NE(window.game->box.MsgText.find("bad.txt, line "), std::string::npos) << window.game->box.MsgText;
  EXPECT_EQ(window.Rules(), own);
}

// --- What the settings do on the table.

QColor ColorAt(TableWidget& widget, QPointF table) {
  return widget.grab().toImage().pixelColor(
      (widget.view.ToScreen(table) * widget.devicePixelRatioF()).toPoint());
}

// A place of the felt where nothing stands, near its middle.
QPointF BareFelt(const TableLayout& layout) {
  for (int y = 16; y < 520; y += 4)
    for (int x = 300; x < 940; x += 4) {
      const QRectF room(x - 5, y - 5, 10, 10);
      const bool bare =
          std::none_of(layout.Areas.begin(), layout.Areas.end(),
                       [&room](const TableArea& area) { return area.Outline.intersects(room); }) &&
          std::none_of(layout.Headings.begin(), layout.Headings.end(),
                       [&room](const TableHeading& heading) { return heading.Box.intersects(room); });
      if (bare && FeltOutline().contains(room)) return room.center();
    }
  ADD_FAILURE() << "no bare felt";
  return {};
}

TEST(Configuration, ColorsAreSeenOnTheTableAtOnce) {
  Configured window;
  TableCommands commands;
  TableWidget table(*window.game, commands);
  table.resize(1000, 600);
  window.host.changed = [&](Game&, Change) { table.RebuildLayout(); };
  window.Bet(2, kPassLine, "5");
  table.scene.showDice = false;
  const QPointF bareFelt = BareFelt(table.Layout());
  const QColor felt = ColorAt(table, bareFelt);
  EXPECT_GT(felt.green(), felt.blue());
  window.Choose("cmbCloth", 1);
  EXPECT_GT(ColorAt(table, bareFelt).blue(), ColorAt(table, bareFelt).green());
  auto& texture = Find<QSlider>(*window.screen, "hsbTexture");
  const QImage plain = table.grab().toImage();
  texture.setFocus();
  QTest::keyClick(&texture, Qt::Key_PageUp);
  EXPECT_EQ(window.game->screen.looks.Texture, 10);
  EXPECT_NE(table.grab().toImage(), plain);
  // The small check of the bet.
  const auto check = [&] {
    return table.grab(QRect(table.PointOfBet(2, kPassLine) - QPoint(8, 8), QSize(16, 16))).toImage();
  };
  const QImage red = check();
  // The palette shows its colour on the table while it is open, and takes it back when it is given up.
  for (const bool taken : {false, true}) {
    WhenOpen("frmColorPal", [taken](QDialog& box) {
      box.setProperty("currentColor", QColor(20, 200, 220));
      QTest::keyClick(&box, taken ? Qt::Key_Return : Qt::Key_Escape);
    });
    window.Press("cmdColorCheck2");
    EXPECT_EQ(check() == red, !taken);
  }
  EXPECT_EQ(window.game->screen.looks.Checks[2], 0x14C8DCu);
  SavePicture(table, "looks-blue");
  Click(*window.screen, "cmdFirstLooks");
  EXPECT_EQ(ColorAt(table, bareFelt), felt);
  EXPECT_EQ(FirstDifference(window.game->screen.looks, Looks()), "");
  window.host.changed = nullptr;
}

TEST(Configuration, StacksAreChangedForTheFewestOrLieAsTheyWereBet) {
  const Settings settings;
  BetPiles piles;
  const auto pile = [&](int dollars) {
    return piles.PileOf(1, kField, Currency::Dollars(dollars), settings.CheckValue);
  };
  EXPECT_EQ(pile(5), CheckPile({2}));
  EXPECT_EQ(pile(10), CheckPile({2, 2}));
  EXPECT_EQ(pile(11), CheckPile({2, 2, 1}));
  EXPECT_EQ(pile(36), CheckPile({2, 2, 1, 3}));
  EXPECT_EQ(pile(11), CheckPile({2, 2, 1})) << "what was added last comes off first";
  EXPECT_EQ(pile(9), CheckPile({2, 1, 1, 1, 1})) << "a check that must be changed";
  EXPECT_EQ(pile(0), CheckPile());
  EXPECT_EQ(pile(25), CheckPile({3})) << "a new bet";
  pile(50);
  piles.ForgetOthers();
  piles.ForgetOthers();  // it came down meanwhile
  EXPECT_EQ(pile(100), CheckPile({4}));
  // Whatever comes, a pile is worth its bet.
  std::srand(5);
  for (int n = 0; n < 3000; ++n) {
    const int amount = std::rand() % 900;
    std::int64_t worth = 0;
    for (const int check : pile(amount)) worth += settings.CheckValue[check].raw;
    ASSERT_EQ(worth, Currency::Dollars(amount).raw);
  }
}

TEST(Configuration, CentsFontsAndThePointer) {
  ScreenTable table;
  table.Join(1, "Ann");
  Settings& settings = table.game->settings;
  EXPECT_EQ(TableAmountText(*table.game, ParseMoney("0.25")), QStringLiteral("25\u00a2"));
  EXPECT_EQ(TableAmountText(*table.game, ParseMoney("1.25")), "1.25");
  settings.CheckValue[1] = ParseMoney("0.50");
  EXPECT_EQ(CheckText(1, settings.CheckValue, true), QStringLiteral("50\u00a2"));
  EXPECT_EQ(CheckText(1, settings.CheckValue, false), "0.50");
  settings.UseCentsSymbol = false;
  EXPECT_EQ(TableAmountText(*table.game, ParseMoney("0.25")), MoneyText(ParseMoney("0.25")));
  settings.CheckValue[1] = Currency::Dollars(1);
  const double usual = QApplication::font().pointSizeF();
  TakeFontSize(13);
  EXPECT_NEAR(QApplication::font().pointSizeF(), usual * 13 / 11, 0.01);
  TakeFontSize(11);
  EXPECT_NEAR(QApplication::font().pointSizeF(), usual, 0.01);
  // The pointer, over a window of the program, goes to the default button and back.
  QWidget window;
  window.setGeometry(0, 0, 500, 400);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const PointerSnap snap(*table.game, &window);
  for (const bool on : {true, false}) {
    settings.SnapMouse = on;
    QCursor::setPos(30, 40);
    QDialog box(&window);
    auto* button = new QPushButton("OK", &box);
    button->setGeometry(60, 70, 80, 30);
    button->setDefault(true);
    box.resize(200, 120);
    box.show();
    QTest::qWait(50);
    EXPECT_EQ(QCursor::pos() == button->mapToGlobal(button->rect().center()), on);
    box.hide();
    EXPECT_EQ(QCursor::pos(), QPoint(30, 40));
  }
}

TEST(Configuration, EveryTabIsNamedFitsAndIsSeen) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    Configured window;
    ExpectNamed(*window.screen);
    EXPECT_TRUE(QRect(0, 0, 1024, 560).contains(QRect(QPoint(), window.screen->minimumSizeHint())));
    for (const QStringList& row : window.screen->Rows().mid(1)) EXPECT_FALSE(row.last().isEmpty());
    for (const QSize size : {window.screen->size(), QSize(700, 480)}) {
      window.screen->resize(size);
      auto& list = Find<QListWidget>(*window.screen, "lstTabs");
      for (int tab = 0; tab < list.count(); ++tab) {
        list.setFocus();
        list.setCurrentRow(tab);
        QApplication::processEvents();
        // What is wider than its page is scrolled to, not cut.
        for (auto* area : window.screen->findChildren<QScrollArea*>()) {
          if (!area->isVisible()) continue;
          EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << window.screen->Tab().toStdString();
          EXPECT_GE(area->widget()->width(), area->widget()->minimumSizeHint().width());
        }
        if (size.width() > 700 || !dark)
          SavePicture(*window.screen, QString("configuration-%1-%2%3")
                                          .arg(size.width())
                                          .arg(window.screen->Tab(), dark ? "-dark" : ""));
      }
    }
    QApplication::setPalette(before);
  }
}

}  // namespace
}  // namespace tessaryn
