// frmDiceRollFiles: the rolls of the open dice roll file, what edits them, and the recorder.
#pragma once

#include <QBasicTimer>
#include <functional>

#include "dice/roll_edit.h"
#include "shell/screens/tool_window.h"

class QAction;
class QBoxLayout;
class QButtonGroup;
class QKeySequence;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace tessaryn {

struct Game;
class RollChartView;
class RollList;

class RollFilesWindow : public ToolWindow {
  Q_OBJECT

 public:
  RollFilesWindow(Game& game, QWidget* parent);
  // Prints the window's rows; empty: printing is not offered.
  std::function<void()> print;

  void Refresh() override;
  // The selected rolls in the output format, a row each; all of them when no more than one is selected.
  std::unique_ptr<RowSource> TakeRows() const override;
  QStringList PrintHeadings() const override;
  // The title of the boxes about printing, what is told before it, and whether there is anything to print; if
  // not, it has been told.
  QString PrintTitle() const override;
  QStringList PrintFacts(int pages) const override;
  bool ReadyToPrint() override;
  bool HasPicture() const override { return true; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;

  struct Command;

 protected:
  void Retranslate() override;
  void timerEvent(QTimerEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static const Command kCommands[];

  void AddMenus(QBoxLayout& column);
  void AddHighlights(QMenu& menu);
  void AddFontSizes(QMenu& menu);
  void AddHead(QBoxLayout& column);
  QWidget* MakeSide();
  void AddPad(QBoxLayout& column);
  void AddModes(QBoxLayout& column);
  void AddFormat(QBoxLayout& column);
  void AddRecorder(QBoxLayout& column);
  bool CommandKey(const QKeyEvent& key);

  // False, and told, when nothing may be changed now or no file is open. title of the box.
  bool MayEdit(const char* title);
  void Edit(const char* title, RollPlace place, const std::function<std::string()>& edit);
  void ShowCommands();
  void ShowKept();
  void ShowRecorder();
  void Count();
  void ShowCount(bool all);

  void Enter(int die1, int die2);
  void EnterRandom();
  void NewOpen();
  void CloseFile();
  void CopyToRollFile();
  void CopyToTextFile();
  void PasteFromRollFile();
  void PasteFromTextFile();
  void Print();
  void Undo();
  void Redo();
  void Cut();
  void Copy();
  void Paste();
  void Delete();
  void SelectAll();
  void SetRecorder(int state);
  void SetNextRoll();
  void SetFormat();

  Game& game_;
  RollEdits edits_;
  RollCounts counts_;
  QBasicTimer counting_;
  std::int32_t shownCursor_ = 0;
  std::int32_t shownEnd_ = 0;
  RollFileMark shown_;  // of the file as it was last shown
  QMenuBar* menus_ = nullptr;
  RollList* list_ = nullptr;
  RollChartView* chart_ = nullptr;
  QLabel* name_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* sample_ = nullptr;
  QLineEdit* next_ = nullptr;
  QLineEdit* format_ = nullptr;
  QButtonGroup* recorder_ = nullptr;
  QButtonGroup* mode_ = nullptr;
};

}  // namespace tessaryn
