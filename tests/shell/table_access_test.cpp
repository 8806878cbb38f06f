// The table for hands and eyes of other kinds: screen readers, fingers, tips that wait, strong contrast.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QPointingDevice>
#include <QToolTip>
#include <cstring>
#include <set>

#include "base/bet_catalogue.h"
#include "play/bet_facts.h"
#include "play/session_luck.h"
#include "screens_support.h"
#include "shell/frame/main_window.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/luck_window.h"
#include "shell/table/bet_tips.h"
#include "shell/table/contrast.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_accessible.h"

namespace tessaryn {
namespace {

using test::ScreenTable;

struct AccessTable : ScreenTable {
  MainWindow window{*game, host};

  AccessTable() {
    QAccessible::setActive(true);
    window.Table().animate = false;
    window.resize(1280, 800);
    window.show();
    Join(2, "Bo");
    Join(3, "Ann");
    for (SeatState& seat : State().seats) seat.handling.WinHandling = seat.handling.LoseHandling = 1;
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  QAccessibleInterface& Seen() { return *QAccessible::queryAccessibleInterface(&window.Table()); }
  QAccessibleInterface* Part(const QString& name) {
    for (int n = 0; n < Seen().childCount(); ++n)
      if (QAccessibleInterface* const part = Seen().child(n); part->text(QAccessible::Name) == name)
        return part;
    ADD_FAILURE() << "nothing is called " << name.toStdString();
    return &Seen();
  }
  void Do(const QString& name, const QString& action) {
    Part(name)->actionInterface()->doAction(action);
    QCoreApplication::processEvents();
  }
};

std::vector<std::pair<QAccessible::Event, QString>>& Heard() {
  static std::vector<std::pair<QAccessible::Event, QString>> heard;
  return heard;
}
void Hear(QAccessibleEvent* event) {
  QAccessibleInterface* const who = event->accessibleInterface();
  if (who != nullptr)
    Heard().emplace_back(event->type(), who->text(QAccessible::Name) + ": " + who->text(QAccessible::Value));
}

TEST(TableAccess, EveryPartHasNameRoleValueAndAction) {
  AccessTable table;
  table.Bet(3, kPassLine, "10");
  table.Bet(2, kField, "5");
  std::set<QString> names;
  std::set<int> bets;
  for (int n = 0; n < table.Seen().childCount(); ++n) {
    QAccessibleInterface* const part = table.Seen().child(n);
    ASSERT_TRUE(part != nullptr && part->isValid()) << n;
    EXPECT_EQ(table.Seen().indexOfChild(part), n);
    if (part->object() != nullptr) continue;
    const QString name = part->text(QAccessible::Name);
    EXPECT_TRUE(!name.isEmpty() && names.insert(name).second)
        << name.toStdString() << " is no name of its own";
    if (part->role() != QAccessible::Button) continue;
    EXPECT_NE(part->actionInterface(), nullptr) << name.toStdString();
    EXPECT_TRUE(table.window.Table().rect().intersects(
        part->rect().translated(-table.window.Table().mapToGlobal(QPoint()))))
        << name.toStdString();
    if (!part->state().focusable) continue;
    EXPECT_FALSE(part->text(QAccessible::Value).isEmpty()) << name.toStdString();
    bets.insert(BetByName(ToCore(name.section(", ", 0, 0))));
  }
  // Come odds and the Don't side share the areas of their flat bets.
  EXPECT_GT(bets.size(), 70u);
  EXPECT_EQ(table.Part("Checks of Ann on Pass Line")->text(QAccessible::Value), "10");
  EXPECT_EQ(table.Part("Checks of Bo on Field")->actionInterface(), nullptr);
}

TEST(TableAccess, PlaysByActionsAndSaysWhatCameOfIt) {
  AccessTable table;
  table.game->settings.ShooterBetRule = 0;
  table.Do("Field, left end", QAccessibleActionInterface::pressAction());
  EXPECT_EQ(table.State().BetAmount(3, kField), table.window.Commands().ClickAmount);
  table.Do("Checks of Ann on Field", "take down");
  EXPECT_EQ(table.State().BetAmount(3, kField), kZero);
  table.Do("Seat 2, Bo", QAccessibleActionInterface::pressAction());
  EXPECT_EQ(table.State().SelectedSeat, 2);
  table.Do("Field, right end", QAccessibleActionInterface::setFocusAction());
  ASSERT_NE(table.Seen().focusChild(), nullptr);
  EXPECT_EQ(table.Seen().focusChild()->text(QAccessible::Name), "Field, right end");
  table.Bet(2, kField, "10");
  Heard().clear();
  QAccessible::installUpdateHandler(Hear);
  table.Roll(4, 2);
  QCoreApplication::processEvents();
  QAccessible::installUpdateHandler(nullptr);
  const QString told = "Roll 1: 6 (4-2), the point is 6. Bo lost 10";
  EXPECT_EQ(table.Part("Last roll")->text(QAccessible::Value), told);
  int alerts = 0;
  for (const auto& [type, text] : Heard())
    if (type == QAccessible::Alert) {
      ++alerts;
      EXPECT_EQ(text, "Last roll: " + told);
    }
  // Without a reader, as on the offscreen platform, Qt hands nothing on.
  EXPECT_EQ(alerts, QAccessible::isActive() ? 1 : 0);
}

// What a reader may work.
const std::set<QAccessible::Role> kWorked{
    QAccessible::Button,   QAccessible::ButtonMenu,   QAccessible::CheckBox, QAccessible::RadioButton,
    QAccessible::ComboBox, QAccessible::EditableText, QAccessible::SpinBox,  QAccessible::Slider,
    QAccessible::PageTab,  QAccessible::Table,        QAccessible::Tree,     QAccessible::List,
    QAccessible::MenuItem};

void ExpectTold(QAccessibleInterface* seen, const QString& where, int depth = 0) {
  if (seen == nullptr || !seen->isValid() || depth > 14) return;
  const QAccessible::State state = seen->state();
  const auto* widget = qobject_cast<QWidget*>(seen->object());
  const bool part =
      widget != nullptr && widget->parent() != nullptr &&
      (widget->objectName().startsWith("qt_") || widget->parent()->inherits("QAbstractSpinBox") ||
       widget->parent()->inherits("QComboBox"));
  const QString path = where + " / " + (seen->object() != nullptr ? seen->object()->objectName() : QString());
  const bool focus = widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0;
  if (!state.invisible && !part && (kWorked.count(seen->role()) > 0 || focus)) {
    EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty())
        << path.toStdString() << " has no name, role " << seen->role();
    EXPECT_FALSE(seen->role() == QAccessible::NoRole) << path.toStdString();
  }
  // Of a long list only the frame.
  const int children = std::min(seen->childCount(), 120);
  for (int n = 0; n < children; ++n) ExpectTold(seen->child(n), path, depth + 1);
}

TEST(TableAccess, EveryScreenIsToldByNameAndRole) {
  AccessTable table;
  table.game->settings.ShooterBetRule = 0;
  table.Bet(3, kPassLine, "10");
  table.Roll(3, 3);
  Desk& desk = table.window.TheDesk();
  for (const ToolRow& row : desk.toolRows) {
    ShowTool(desk, row.number, true);
    QCoreApplication::processEvents();
    QWidget* const tool = desk.tools[static_cast<std::size_t>(row.number)];
    ASSERT_NE(tool, nullptr) << row.number;
    ExpectTold(QAccessible::queryAccessibleInterface(tool), tool->objectName());
    ShowTool(desk, row.number, false);
  }
  ExpectTold(QAccessible::queryAccessibleInterface(&table.window), "frmCrapTable");
}

// --- Fingers.

struct FingerTable : AccessTable {
  QPointingDevice* device = QTest::createTouchDevice();
  TableWidget& felt = window.Table();

  void Tap(QPoint at) {
    QTest::touchEvent(&felt, device).press(0, at, &felt);
    QTest::touchEvent(&felt, device).release(0, at, &felt);
    QCoreApplication::processEvents();
  }
};

TEST(TableTouch, ATapBetsALongPressBringsTheMenuAndTwoFingersZoom) {
  FingerTable table;
  const QPoint field = table.felt.PointOfBet(3, kField);
  ASSERT_EQ(table.felt.BetAt(field), kField);
  table.Tap(field);
  const Currency once = table.State().BetAmount(3, kField);
  EXPECT_EQ(once, table.window.Commands().ClickAmount);
  QTest::touchEvent(&table.felt, table.device).press(0, field, &table.felt);
  QTest::qWait(750);
  auto* menu = table.felt.findChild<QMenu*>("mnuTouch");
  ASSERT_NE(menu, nullptr);
  test::QtWarnings().removeAll(
      "This plugin does not support grabbing the keyboard");  // says the offscreen one
  QTest::touchEvent(&table.felt, table.device).release(0, field, &table.felt);
  EXPECT_EQ(table.State().BetAmount(3, kField), once) << "the long press is no tap";
  menu->findChild<QAction*>("mnuTouchRemove")->trigger();
  menu->close();
  EXPECT_EQ(table.State().BetAmount(3, kField), kZero);
  const int zoom = table.felt.view.TableZoom;
  const QPoint middle = table.felt.rect().center();
  const auto fingers = [&](int apart, bool first) {
    const QPoint way(apart / 2, 0);
    auto touch = QTest::touchEvent(&table.felt, table.device);
    if (first)
      touch.press(0, middle - way, &table.felt).press(1, middle + way, &table.felt);
    else
      touch.move(0, middle - way, &table.felt).move(1, middle + way, &table.felt);
  };
  fingers(200, true);
  fingers(300, false);
  QTest::touchEvent(&table.felt, table.device)
      .release(0, middle, &table.felt)
      .release(1, middle, &table.felt);
  EXPECT_NEAR(table.felt.view.TableZoom, zoom * 1.5, 2);
  EXPECT_EQ(table.State().BetAmount(3, kField), kZero);
}

TEST(TableTouch, ADraggedStackMoves) {
  FingerTable table;
  table.Bet(3, kPlace4, "10");
  const QPoint to = table.felt.PointOfBet(3, kPlace4 + 1);
  // From the stack, and from where there is none.
  for (const QPoint from : {table.felt.PointOfStack(3, kPlace4), table.felt.PointOfBet(3, kField)}) {
    QTest::touchEvent(&table.felt, table.device).press(0, from, &table.felt);
    for (int step = 1; step <= 4; ++step)
      QTest::touchEvent(&table.felt, table.device).move(0, from + (to - from) * step / 4, &table.felt);
    QTest::touchEvent(&table.felt, table.device).release(0, to, &table.felt);
    QCoreApplication::processEvents();
    EXPECT_EQ(table.State().BetAmount(3, kPlace4), kZero);
    EXPECT_EQ(table.State().BetAmount(3, kPlace4 + 1), Currency::Dollars(10));
    EXPECT_EQ(table.State().BetAmount(3, kField), kZero);
  }
}

// --- Tips.

TEST(BetTip, ComesWhenThePointerRestsAndTellsByItsLevel) {
  AccessTable table;
  table.Bet(2, kField, "6");
  table.Bet(3, kField, "12");
  TableWidget& felt = table.window.Table();
  const QPoint field = felt.PointOfBet(3, kField) + QPoint(0, 4);
  ASSERT_EQ(felt.BetAt(field), kField);
  const char* const told[] = {"", "Bo 6, Ann 12", "Field", "Field: 12\nBo 6, Ann 12"};
  for (int level = 0; level <= 4; ++level) {
    table.game->settings.InfoTipLevel = level;
    QTest::mouseMove(&felt, QPoint(3, 3));
    QTest::mouseMove(&felt, field);
    QTest::qWait(kTipMilliseconds / 2);
    EXPECT_FALSE(QToolTip::isVisible()) << level;
    QTest::qWait(kTipMilliseconds);
    EXPECT_EQ(QToolTip::isVisible(), level > 0) << level;
    const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
    if (level < 4)
      EXPECT_EQ(text, told[level]);
    else
      for (const char* line :
           {"Field: one-roll bet", "Wins on: 2, 3, 4, 9, 10, 11, 12", "Loses on: any other roll",
            "Next roll: wins 16, loses 20 in 36", "House edge: 5.56%", "Click: bets ", "Bo 6, Ann 12"})
        EXPECT_TRUE(text.contains(line)) << line << " in\n" << text.toStdString();
    QToolTip::hideText();
    QTest::qWait(400);
  }
  EXPECT_TRUE(table.window.findChild<QLabel*>("lblPointer") == nullptr ||
              table.window.findChild<QLabel*>("lblPointer")->text().startsWith("Field: 12, pays"));
}

TEST(BetTip, EveryLineOfWordsIsThereForTheTranslators) {
  for (const char* pattern : FactPatterns()) {
    const bool words = std::strpbrk(pattern, "abcdefghijklmnopqrstuvwxyz") != nullptr;
    const auto known = TranslatedFactWords();
    const bool there = std::any_of(known.begin(), known.end(),
                                   [&](const char* text) { return std::strcmp(text, pattern) == 0; });
    EXPECT_TRUE(!words || there) << pattern;
  }
}

TEST(LuckWindow, TellsEachSessionAndCountsTurboRollsWhileItIsOpen) {
  AccessTable table;
  table.game->settings.ShooterBetRule = 0;
  Desk& desk = table.window.TheDesk();
  ShowTool(desk, kLuckWindow, true);
  table.Bet(3, kField, "18");
  table.Roll(1, 1);
  auto& luck = static_cast<LuckWindow&>(*desk.tools[kLuckWindow]);
  luck.Refresh();
  const QList<QStringList> rows = luck.Rows();
  ASSERT_EQ(rows.size(), 3);
  EXPECT_EQ(rows[2][0], "Ann");
  EXPECT_EQ(rows[2][1], "-$1");
  EXPECT_EQ(rows[2][2], "$36");
  EXPECT_EQ(rows[2][3], "$37");
  EXPECT_TRUE(SeatTip(*table.game, 3).contains("Luck: 37")) << SeatTip(*table.game, 3).toStdString();
  EXPECT_EQ(WatchedLuck(*table.game)->turboWatchers, 1);
  SavePicture(luck, "luck-light");
  ShowTool(desk, kLuckWindow, false);
  EXPECT_EQ(WatchedLuck(*table.game)->turboWatchers, 0);
}

TEST(Contrast, FollowsTheDesktop) {
  QPalette strong(Qt::black);
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
    strong.setColor(role, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    strong.setColor(role, Qt::white);
  EXPECT_TRUE(IsHighContrast(strong));
  EXPECT_FALSE(IsHighContrast(test::DarkPalette()));
  EXPECT_FALSE(IsHighContrast(QPalette()));
  AccessTable table;
  TableWidget& felt = table.window.Table();
  felt.setPalette(strong);
  const TableColors& colors = felt.colors;
  for (const QColor& ink : {colors.Line, colors.Letter, colors.Accent, colors.Soft})
    EXPECT_GE(ContrastOf(ink.rgb(), colors.Felt.rgb()), 10);
  EXPECT_GE(ContrastOf(colors.Pips.rgb(), colors.Dice.rgb()), 10);
  SavePicture(felt, "table-high-contrast");
}

}  // namespace
}  // namespace tessaryn
