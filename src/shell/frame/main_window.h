// frmCrapTable: the window that shows the table, and its menu.
#pragma once

#include <QMainWindow>
#include <map>
#include <string>
#include <vector>

#include "shell/frame/desk.h"
#include "shell/table/table_widget.h"

class QLabel;
class QMenu;

namespace tessaryn {

class AmountSelector;
struct CommandRow;
class RunControls;
class TurboPanel;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // game and host outlive the window.
  MainWindow(Game& game, ShellHost& host);
  ~MainWindow() override;

  TableWidget& Table() { return *table_; }
  TableCommands& Commands() { return desk_.commands; }
  // Menu entry by its name ("mnuRollDice"); null for none.
  QAction* Command(const char* name) const;

  // The window's place and the chosen check as the last session left them.
  void RestoreWindow();
  // As closing it, but without questions: what can't be written is told on standard error.
  void CloseUnasked();
  void SaveWindow() const;
  // The box for a data folder that can't be written; the end then writes nothing into it.
  void TellIfNothingIsKept();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenu();
  QAction* AddSubmenu(QMenu& menu, const CommandRow& command);
  void BuildBody();
  void ConnectTable();
  void ConnectHost();
  void Retranslate();
  void RunCommand(const CommandRow& command);
  // Enables and captions everything as the state has it; at once, or with the next events.
  void RefreshCommands();
  void RefreshSoon();
  void OnChanged(Change change);
  void ShowFallenDice();
  // Everything as the state has it, at once.
  void ShowState();
  void OnRunChanged();
  bool MayBet();
  void OnBetClicked(int bet, bool alt);
  void OnBetMoved(int from, int to);
  void OnSeatClicked(int seat);
  void ShowPointer(int bet);
  void ShowTableStatus();
  bool HotKeyPressed(QKeyEvent* event);
  // Writes what is kept; what went wrong, as a text.
  std::string Finish();

  Game& game_;
  ShellHost& host_;
  Desk desk_;
  TableWidget* table_ = nullptr;
  AmountSelector* amounts_ = nullptr;
  RunControls* controls_ = nullptr;
  TurboPanel* turbo_ = nullptr;
  QLabel* pointer_ = nullptr;  // what the pointer is over
  QLabel* status_ = nullptr;   // rolls, point, shooter
  std::map<std::string, QAction*> actions_;
  std::vector<QMenu*> menus_;
  bool refreshPending_ = false;
  bool closing_ = false;
};

}  // namespace tessaryn
