// frmCheckStacks: the named number cells of a player, to be read and edited, and which four of them stand on
// the table.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "rules/check_stacks.h"
#include "shell/screens/tool_window.h"

class QAction;
class QBoxLayout;
class QComboBox;
class QFrame;
class QLabel;
class QMenu;
class QSpinBox;

namespace tessaryn {

class CheckStackList;
class CheckStackView;

class CheckStacksScreen : public ToolWindow {
  Q_OBJECT

 public:
  CheckStacksScreen(Game& game, QWidget* parent);

  void Refresh() override;
  // All of them; once after ReadyToPrint those that are to be printed.
  QList<QStringList> Rows() const override;
  QStringList PrintHeadings() const override;
  // Asks which ones to print. False when that is given up.
  bool ReadyToPrint() override;
  CheckStackView& View() { return *view_; }

 private:
  struct Cell {
    std::string name;
    Currency value;
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  struct CellChange {
    int stack;
    Cell before;
    Cell after;
  };
  // What one command did, to be undone.
  struct Step {
    SeatId seat;
    std::string player;
    std::vector<CellChange> changes;
  };
  struct Shown {
    QLabel* caption;
    QLabel* value;
  };

  void AddHeader(QBoxLayout& column);
  void AddVisible(QBoxLayout& column);
  void AddSetStacks(QBoxLayout& column);
  void AddList(QBoxLayout& column);
  QAction* AddEntry(QMenu& menu, const char* name, const QString& text, std::function<void()> act);
  void BuildMenu();
  void AddFontSizes();
  void ShowPlayers();
  void ShowVisible();
  void ShowMenu();
  void ShowFont();
  SeatId Seat() const;
  // --- What the user does.
  bool MayEdit();
  std::vector<Cell> CellsOf(SeatId seat) const;
  // Does what may change the cells of the seat, and keeps how to undo it.
  void Edit(const std::function<void()>& work);
  void TakeStep(std::vector<Step>& from, std::vector<Step>& to, bool back);
  void Enter(int stack, int column, const QString& text);
  void SetCell(int stack, int column, const QString& text);
  void Copy();
  void Paste();
  void Empty();
  void DeleteAll(StackDeletion what);
  void OpenSetStacks();
  void CloseSetStacks();
  void AcceptSetStacks();

  Game& game_;
  CheckStackList* list_ = nullptr;
  CheckStackView* view_ = nullptr;
  QMenu* menu_ = nullptr;
  QComboBox* player_ = nullptr;
  Shown visible_[kVisibleStacks] = {};
  QFrame* setStacks_ = nullptr;
  QSpinBox* numbers_[kVisibleStacks] = {};
  std::vector<Step> done_;
  std::vector<Step> undone_;
  struct Range {
    int first = 0;
    int last = kCheckStacks - 1;
  };
  mutable Range toPrint_;  // of the next rows
};

}  // namespace tessaryn
