// What the tests of the dialogs share: a table behind the window's own host, pictures of a dialog, and hands
// that work a dialog while it is open.
#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QPalette>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <memory>
#include <string>

#include "play/auto_roll.h"
#include "play/players.h"
#include "play/start_up.h"
#include "rules/bet_rules.h"
#include "rules/consistency.h"
#include "shell/frame/shell_host.h"
#include "shell/shell_table.h"
#include "state/game.h"
#include "support/places.h"

namespace tessaryn::test {

// What Qt complained about since the last look; a screen must give it no reason.
inline QStringList& QtWarnings() {
  static QStringList warnings;
  return warnings;
}

struct ScreenTable {
  QTemporaryDir folder;
  ShellHost host;
  QTimer watchdog;
  std::unique_ptr<Game> game;

  ScreenTable() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
      // The offscreen platform says of itself that it has no window manager to tell sizes and order to.
      const bool platform = text.contains("propagateSizeHints") || text.contains("does not support raise");
      if (type != QtDebugMsg && type != QtInfoMsg && !platform) QtWarnings().append(text);
    });
    game = StartGame(host, test::kBinFolder, folder.path().toStdString());
    // A dialog that nobody works would keep the test for ever.
    QObject::connect(&watchdog, &QTimer::timeout, qApp, [] {
      for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || !widget->isModal()) continue;
        ADD_FAILURE() << "nobody answered " << widget->objectName().toStdString();
        widget->close();
      }
    });
    watchdog.start(8000);
  }
  ~ScreenTable() {
    EXPECT_EQ(CheckConsistency(*game), "");
    EXPECT_TRUE(QtWarnings().isEmpty()) << QtWarnings().join("\n").toStdString();
    QtWarnings().clear();
    qInstallMessageHandler(nullptr);
  }
  ScreenTable(const ScreenTable&) = delete;
  ScreenTable& operator=(const ScreenTable&) = delete;

  TableState& State() { return game->table; }
  void Join(int seat, const std::string& name, const char* bankroll = "1000") {
    std::string error;
    EXPECT_TRUE(JoinPlayer(*game, seat, name, ParseMoney(bankroll), error)) << error;
    SelectSeat(*game, seat);
  }
  void Bet(int seat, int bet, const char* amount) { PlaceBet(*game, seat, bet, ParseMoney(amount)); }
  void Roll(int die1, int die2) {
    State().ManualDie1 = die1;
    State().ManualDie2 = die2;
    State().ManualRollPending = true;
    RollDice(*game);
  }
};

// The visible dialog of the name; null without one.
inline QDialog* OpenDialog(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && widget->objectName() == name) return qobject_cast<QDialog*>(widget);
  return nullptr;
}

// Works the next dialog of the name as soon as it is open and has the keyboard. The dialog must be opened
// within ten seconds.
inline void WhenOpen(const char* name, std::function<void(QDialog&)> work, int tries = 5000) {
  QTimer::singleShot(2, qApp, [name, work = std::move(work), tries] {
    QDialog* dialog = OpenDialog(name);
    if (dialog != nullptr && QTest::qWaitForWindowActive(dialog, 2000)) return work(*dialog);
    ASSERT_GT(tries, 0) << "no " << name << " was opened";
    WhenOpen(name, work, tries - 1);
  });
}

template <typename Widget>
Widget& Find(QWidget& screen, const QString& name) {
  auto* found = screen.findChild<Widget*>(name);
  EXPECT_NE(found, nullptr) << name.toStdString();
  if (found == nullptr) std::abort();
  return *found;
}

inline void Click(QWidget& screen, const QString& name) {
  auto& widget = Find<QWidget>(screen, name);
  // A radio button and a check box take the click at their mark.
  QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
}

// An access key, through the window as the platform sends it. Its button is pressed for a tenth of a second.
inline void AccessKey(QWidget& screen, Qt::Key key) {
  QTest::keyClick(screen.windowHandle(), key, Qt::AltModifier);
  QTest::qWait(130);
}

// Clears an entry box and types the text, key by key.
inline void TypeInto(QWidget& screen, const QString& name, const char* text) {
  auto& box = Find<QWidget>(screen, name);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_Delete);
  QTest::keyClicks(&box, text);
}

// Every control can be found by name and says to a screen reader what it is for.
inline void ExpectNamed(QWidget& screen) {
  for (QWidget* widget : screen.findChildren<QWidget*>()) {
    const QString kind = widget->metaObject()->className();
    const bool popup = kind.startsWith("QComboBox") && kind != "QComboBox";
    if (widget->focusPolicy() == Qt::NoFocus || popup) continue;
    EXPECT_FALSE(widget->objectName().isEmpty()) << kind.toStdString();
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
    EXPECT_FALSE(reader == nullptr || reader->text(QAccessible::Name).isEmpty())
        << widget->objectName().toStdString();
  }
}

inline QPalette DarkPalette() {
  const QColor text(232, 232, 232);
  QPalette dark(QColor(58, 58, 62), QColor(45, 45, 48));  // with the shades of edges that go with them
  dark.setColor(QPalette::Base, QColor(30, 30, 32));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(role, text);
    dark.setColor(QPalette::Disabled, role, QColor(130, 130, 134));
  }
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  dark.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 80, 84));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

// The names of the controls as Tab walks them, from the one named.
inline QStringList TabWalk(QWidget& screen, const QString& from) {
  QStringList names;
  QWidget* const first = &Find<QWidget>(screen, from);
  QWidget* at = first;
  do {
    if ((at->focusPolicy() & Qt::TabFocus) != 0 && at->isVisible()) names.append(at->objectName());
    at = at->nextInFocusChain();
  } while (at != first);
  return names;
}

// Writes a picture of the dialog, on a light and on a dark desktop, into the folder that TESSARYN_PICTURES
// names. make gives a new dialog.
inline void TakePictures(const QString& name, const std::function<std::unique_ptr<QDialog>()>& make) {
  if (qEnvironmentVariableIsEmpty("TESSARYN_PICTURES")) return;
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    if (dark) QApplication::setPalette(DarkPalette());
    const std::unique_ptr<QDialog> dialog = make();
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    SavePicture(*dialog, name + (dark ? "-dark" : "-light"));
  }
  QApplication::setPalette(before);
}

}  // namespace tessaryn::test
