// frmCrapTable: the window that shows the table, and its menu.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <string>
#include <vector>

#include "play/hot_keys.h"
#include "shell/frame/shell_host.h"
#include "shell/table/table_widget.h"

class QLabel;
class QSettings;

namespace tessaryn {

class AmountSelector;
class MovePanel;
class RollPad;
class RunControls;
class TurboPanel;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // game and host outlive the window.
  MainWindow(Game& game, ShellHost& host);
  ~MainWindow() override;

  TableWidget& Table() { return *table_; }
  TableCommands& Commands() { return commands_; }
  // Menu entry by its name ("mnuRollDice"); null for none.
  QAction* Command(const char* name) const;

  // The window's place and the chosen check as the last session left them.
  void RestoreWindow();
  // As closing it, but without questions: what can't be written is told on standard error.
  void CloseUnasked();
  void SaveWindow() const;
  // The box for a data folder that can't be written; the end then writes nothing into it.
  void TellIfNothingIsKept();

  // --- What the menu's entries do; public for the table of them.
  void NewGame();
  void ToggleSound();
  void AddAPlayer();
  void RenameSelected();
  void MoveSelected();
  void RemoveSelected();
  void OpenAtm();
  void OpenAutoPlay();
  void OpenPadWindow();
  void OpenMoveWindow();
  void OpenAbout();
  void ShowKeys();
  void Roll();
  void Pass();
  void ToggleRun();
  void SetDelay();
  void SetStop();
  void KeyInAmounts();
  void BuyNext();
  void CallNextOn();
  void CallNextOff();
  void RemoveNext();
  void MoveNext();
  void CallAllOn();
  void CallAllOff();
  void RemoveAll();
  void TakeFull();
  void LayFull();
  void ShowAmounts();
  void Flash();
  void ShowPropositions();
  void ZoomInView();
  void ZoomOutView();
  void RotateView();
  void WholeView();
  void LeftEndView();
  void RightEndView();
  void OpenScriptFile();
  void ActivateSelected();
  void InitialiseAll();
  void StopScripts();
  void ChooseHotKey();
  void OpenProbabilities();
  void UsePercentageDice();
  void PlayRollFile();
  void RecordRollFile();
  void CloseRollFileNow();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct CommandFacts;
  static const CommandFacts kCommands[];

  void BuildMenu();
  void BuildViewMenus();
  void BuildBody();
  void ConnectTable();
  void ConnectHost();
  void Retranslate();
  void RunCommand(const CommandFacts& facts);
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
  void ArmAction(int action);
  void LookAt(QRectF tableArea);
  void NewView(const char* preset);
  bool HotKeyPressed(QKeyEvent* event);
  // The questions of the end, in their order. False keeps the program running.
  bool MayClose();
  bool SaveScriptsFirst();
  bool SaveProbabilitiesFirst();
  // The problem is a text.
  std::string WriteFinalFiles();

  // --- When a command can act.
  bool Free() const;  // no roll is under way, or one of a run, which can be asked to stop
  bool HasPlayer() const;
  bool HasBets() const;
  bool HasCallableBet() const;
  bool HasOpenPlace() const;
  bool CanMove() const;
  bool CanPass() const;
  bool CanAtm() const;
  bool CanTakeOdds() const;
  bool CanLayOdds() const;
  bool Always() const { return true; }
  bool HasScript() const;
  bool ScriptsRun() const;
  bool AnyScript() const;
  bool HasProbabilities() const;
  bool RollFileOpen() const;
  bool CanToggle() const;

  Game& game_;
  ShellHost& host_;
  TableCommands commands_;
  TableWidget* table_ = nullptr;
  AmountSelector* amounts_ = nullptr;
  RunControls* controls_ = nullptr;
  TurboPanel* turbo_ = nullptr;
  QPointer<RollPad> pad_;
  QPointer<MovePanel> mover_;
  QLabel* pointer_ = nullptr;  // what the pointer is over
  QLabel* status_ = nullptr;   // rolls, point, shooter
  std::map<std::string, QAction*> actions_;
  std::vector<QMenu*> menus_;
  std::vector<QAction*> saveViews_;
  std::vector<QAction*> restoreViews_;
  std::vector<HotKey> hotKeys_;
  SavedView beforePropositions_;
  int movingSeat_ = 0;  // the player who waits for a new place; 0 none
  bool refreshPending_ = false;
  bool closing_ = false;
  bool keeps_ = true;  // the data folder can be written
};

}  // namespace tessaryn
