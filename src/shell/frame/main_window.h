// frmCrapTable: the window that shows the table, and its menu.
#pragma once

#include <QMainWindow>
#include <map>
#include <string>
#include <vector>

#include "shell/frame/desk.h"
#include "shell/frame/settle_roll.h"
#include "shell/table/preferences.h"
#include "shell/table/table_stage.h"
#include "shell/table/table_widget.h"

class QLabel;
class QMenu;

namespace tessaryn {

class AmountSelector;
class BetButtons;
class Board;
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
  TableStage& Stage() { return *stage_; }
  // What its commands work on.
  Desk& TheDesk() { return desk_; }
  TableCommands& Commands() { return desk_.commands; }
  // Menu entry by its name ("mnuRollDice"); null for none.
  QAction* Command(const char* name) const;

  // The game that the program was started with, or else the last one, with the windows where they were; to be
  // called before the window is shown. Its questions come first.
  void OpenAtStart(const std::string& argument);
  // Until that has returned nothing is lost when the program is ended at once.
  bool IsStarting() const { return starting_; }
  // What the program was started with if that is no game but another of its files. Once the window is shown.
  void OpenBesideGame(const std::string& argument);
  // A roll or a command hasn't ended yet.
  bool IsUnderWay() const;
  // It was closed while something was under way, and closes of itself once that has ended.
  bool ClosesLater() const { return closesLater_; }
  // As closing it, but without questions: what can't be written is told on standard error.
  void CloseUnasked();
  // The desktop's session ends. False refuses that. mayAsk: whether the desktop lets the user be asked.
  bool KeepForSessionEnd(bool mayAsk);
  // The box for a data folder that can't be written; the end then writes nothing into it.
  void TellIfNothingIsKept();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenu();
  QAction* AddSubmenu(QMenu& menu, const CommandRow& command);
  void BuildBody();
  void BuildBar(QWidget* body);
  // What the size of the window makes of its parts.
  void TakeMeasures();
  void FitBar();
  // The user's wishes, as they are kept.
  void TakePreferences();
  void EndGuide();
  void ShowBoard(bool settled);
  void TakeNote(const MessageBox& box);
  // The area of a click that a box is about to refuse, edged for a moment.
  void ShowRefusal();
  void OpenPlateMenu(SeatId seat, QPoint where);
  void ConnectTable();
  void ConnectHost();
  void Retranslate();
  // The language that the game is set to.
  void Speak();
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
  void OnBetClicked(BetId bet, bool alt);
  void OnBetMoved(int from, int to);
  void OnSeatClicked(SeatId seat);
  void ShowPointer(BetId bet);
  void ShowTableStatus();
  bool HotKeyPressed(QKeyEvent* event);
  bool AmountKeyPressed(QKeyEvent* event);
  void ShowCaption();
  // Everything as the game has it that was just opened.
  void ShowGame();
  void StartAutosaves();
  // Writes the autosave if it is due and something has changed. Requires that the table is between two rolls.
  void Autosave();

  Game& game_;
  ShellHost& host_;
  Desk desk_;
  TableStage* stage_ = nullptr;
  TableWidget* table_ = nullptr;
  QWidget* bar_ = nullptr;
  BetButtons* betButtons_ = nullptr;
  Measures measures_;
  Preferences preferences_;
  BetId clickedBet_ = 0;            // while a click on it is carried out
  std::int64_t settledThrows_ = 0;  // of the table when no roll was being settled
  std::int64_t badgesOf_ = 0;       // throws of the table when badges were last shown
  AmountSelector* amounts_ = nullptr;
  RunControls* controls_ = nullptr;
  TurboPanel* turbo_ = nullptr;
  QLabel* pointer_ = nullptr;  // what the pointer is over
  QLabel* status_ = nullptr;   // rolls, point, shooter
  std::map<std::string, QAction*> actions_;
  std::vector<QMenu*> menus_;
  SettleRoll settling_{desk_};
  bool refreshPending_ = false;
  int working_ = 0;              // commands that haven't returned
  bool screenPending_ = false;   // the view and the tool windows wait until the window is shown
  bool runEndedUnseen_ = false;  // while the window was minimised
  bool changed_ = false;         // since the last autosave
  bool autosaveDue_ = false;
  bool starting_ = false;
  bool asking_ = false;  // the questions of the end
  bool agreed_ = false;  // they have been answered, and nothing has changed since
  bool closing_ = false;
  bool closesLater_ = false;
};

}  // namespace tessaryn
