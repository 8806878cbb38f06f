// frmAutoBet: where a script is written, checked, stepped through and tried.
#pragma once

#include <QThreadPool>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "autobet/run/script_watch.h"
#include "base/table_types.h"
#include "play/script_session.h"
#include "shell/screens/tool_window.h"
#include "state/auto_bet_state.h"

class QAction;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QMenu;
class QMenuBar;
class QsciPrinter;
class QTabWidget;
class QTimer;
class QTreeWidget;

namespace tessaryn {

class FindReplaceScreen;
class WorkshopEditor;
class WorkshopSteps;
class WorkshopTrial;
class WorkshopWatch;
struct Game;

// The text shown is a copy of the player's script. It goes to the player behind each pause in typing, as long
// as nothing runs, and ahead of each command that needs it.
class WorkshopWindow : public ToolWindow {
  Q_OBJECT
 public:
  WorkshopWindow(Game& game, QWidget* parent);
  ~WorkshopWindow() override;

  QSize minimumSizeHint() const override { return {260, 130}; }
  void Refresh() override;
  QList<QStringList> Rows() const override;
  QStringList PrintHeadings() const override;

  // A statement was carried out; stays on it where there is a break-point.
  void ShowStep(const ScriptStep& step);
  // The text goes to the player.
  void Store();
  void ShowSeat(SeatId seat);
  SeatId Seat() const { return seat_; }
  // Opens a file for the player shown, who is asked first about a script that isn't saved.
  void OpenPath(const std::string& path);
  WorkshopEditor& Editor() { return *editor_; }

  // On paper, in the colours of the words if the house prints in colours.
  bool PrintOn(QsciPrinter& printer);
  // What checks the script of a seat.
  std::function<ScriptCheck(Game&, SeatId)> checkScript;

  // A script has become active, or has run.
  std::function<void()> changed;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Command;
  static const Command kCommands[];

  void BuildMenu();
  void BuildPanes();
  QLayout* Foot();
  void ConnectParts();
  void BuildBar(QBoxLayout& column);
  void BuildTabs();
  QWidget* ProblemsTab();
  QWidget* WordsTab();
  QWidget* LoggedTab();
  const Command* CommandOf(const QKeyEvent& event) const;
  void Do(const Command& command);
  QAction* Find(const char* name) const;

  // --- The script of the player shown.
  void Load();
  bool MayLeaveScript();
  void NewScript();
  void OpenFile();
  void TakeFile(const std::string& path);
  bool Save();
  bool SaveAs();
  void PasteFromFile();
  void PasteLines(const std::vector<std::string>& lines);
  void CopyToFile();
  void CopyToSeat(SeatId seat);
  void FillCopyTo(QMenu& menu);
  void FillPasteFrom(QMenu& menu);
  void FillRecent(QMenu& menu);
  void FillSamples(QMenu& menu);
  void PrintScript();
  void ListPlayers();
  void ListWords(std::size_t list);

  // --- Checks.
  void TextChanged();
  void CheckSoon();
  void CheckInBackground();
  void TakeCheck(const ScriptCheck& check);
  void Check();
  void Fix();
  void GoToProblem();

  // --- Running.
  void Activate(bool on);
  void ActivateAll();
  void RunOnce();
  void Step();
  void StopScripts();
  void RunToCursor();
  void ToggleBreak();
  void WantSteps();
  void WantCounts();
  void ShowCounts();
  void StepsChanged();
  void TryIt();
  void Permissions();
  void FindText();
  void ReplaceText();
  void OfferWords();
  void ShowTip();
  void Numbers();
  void Lists();
  void Indent();

  // --- Bets made by hand.
  void InsertLogged();
  void SaveLogged();
  void ClearLogged();
  void ShowStatus();
  bool IsFree() const;

  Game& game_;
  WorkshopEditor* editor_;
  QMenuBar* bar_;
  QWidget* commands_;
  QComboBox* player_;
  QCheckBox* active_;
  QTabWidget* tabs_;
  QListWidget* problems_;
  WorkshopSteps* steps_;
  WorkshopWatch* watch_;
  WorkshopTrial* trial_;
  FindReplaceScreen* find_;
  QTreeWidget* words_;
  QWidget* wordsTab_ = nullptr;
  QListWidget* logged_;
  QCheckBox* logging_;
  QComboBox* condition_;
  QLabel* place_;
  QLabel* fileLabel_;
  QLabel* permissions_;
  QTimer* pause_;
  QThreadPool checks_;
  SeatId seat_ = 0;                  // 0: nobody is at the table
  std::vector<std::string> stored_;  // the lines as the player has them
  std::string storedFile_;
  quint64 edition_ = 0;  // of the text; a check of an older one says nothing
  bool loading_ = false;
  bool wantsSteps_ = false;
  int runTo_ = 0;  // the line that the run goes on to; 0 none
  ScriptDiagnostic fault_;
  ScriptWatch counted_;  // of the table's runs, while counts are wanted
  bool wantsCounts_ = false;
  std::int64_t shownCount_ = 0;
  struct Place {
    int line = 0;
    int column = 0;
    int top = 0;
    std::set<int> breaks;
  };
  Place places_[kSeatRows];
};

}  // namespace tessaryn
