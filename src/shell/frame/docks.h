// Tool windows at the table's sides: each may stand in a dock, beside or in tabs with others, and is a window
// of its own otherwise.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPoint>
#include <optional>
#include <string>

class QLabel;
class QMenu;
class QToolButton;

namespace tessaryn {

struct Desk;
class ToolWindow;

// The smallest room that a docked window is given; it scrolls in less than it needs.
inline constexpr QSize kLeastDock(170, 110);

// The table and what stands round it. A part of the main window, whose controls and lines go under all of it.
class DockArea : public QMainWindow {
 public:
  DockArea(QWidget* table, QWidget* parent);
};

// A tool window at a side, with its title, the menu and the buttons to float and close it.
class ToolDock : public QDockWidget {
  Q_OBJECT

 public:
  // Takes the window in; requires that it is hidden.
  ToolDock(int number, ToolWindow& window, QWidget* parent);
  int Number() const { return number_; }
  // Gives the window back, hidden, as one of the parent's.
  ToolWindow* Release(QWidget* parent);
  // Not closed, and not behind another tab.
  bool IsInFront() const { return inFront_; }
  void SetMenu(QMenu* menu);

 signals:
  // The user wants it to be a window of its own, here or where it was last.
  void floatWanted(std::optional<QPoint> corner);
  void cameInFront();
  void wentBehind();
  // The keyboard is done with it.
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildTitle();
  void Floated();

  const int number_;
  ToolWindow& window_;
  const Qt::WindowFlags flags_;  // as a window
  QLabel* title_ = nullptr;
  QToolButton* menu_ = nullptr;
  bool inFront_ = false;
};

// The underlined letters of a window's buttons, which are not to be mistaken for the table's in a dock; to be
// called again when captions have changed.
void SetAccessKeys(ToolWindow& window, bool act);

// Its dock; null while it is a window of its own or hasn't been made.
ToolDock* DockOf(const Desk& desk, int number);

}  // namespace tessaryn
