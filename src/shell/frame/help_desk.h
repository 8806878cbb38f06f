// The help at the table: F1 everywhere, and the commands of the Help menu.
#pragma once

#include <QObject>
#include <span>

#include "shell/screens/help_pages.h"
#include "state/screen_state.h"

class QWidget;

namespace tessaryn {

struct Desk;
class ToolWindow;
class HelpWindow;

// The number of its tool window; the last one that a game file has room for.
inline constexpr int kHelpWindow = kToolWindows - 1;

// Which page tells of what has a name: a screen, or a part of one.
struct HelpRow {
  const char* screen;
  const char* page;
  const char* anchor = "";
};
std::span<const HelpRow> HelpRows();

// The place in the help that tells of a widget: its own, or that of what it stands in. In the editor of
// scripts the word at the cursor.
HelpPlace HelpFor(const QWidget* widget);

// In the help's window; over a box that waits for its answer, in one that goes with the box.
HelpWindow& OpenHelp(Desk& desk, const HelpPlace& place);
// That of the widget with the keyboard.
void HelpHere(Desk& desk);

ToolWindow* MakeHelpWindow(Desk& desk);

// F1 in the boxes, where no menu hears it.
class HelpKey : public QObject {
 public:
  explicit HelpKey(Desk& desk);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  Desk& desk_;
};

}  // namespace tessaryn
