// frmBankroll: a player's bankroll roll by roll, with its average, reference lines and scale; what there is
// to watch in a Turbo-Roll.
#pragma once

#include <functional>
#include <vector>

#include "shell/screens/bankroll_graph_picture.h"
#include "shell/screens/tool_window.h"

class QAction;
class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QMenu;
class QPushButton;
class QSlider;

namespace tessaryn {

class GraphView;

class BankrollGraphScreen : public ToolWindow {
  Q_OBJECT

 public:
  BankrollGraphScreen(Game& game, QWidget* parent);
  // Takes the amount of an open bet entry before a run begins. False when that gave a message. May be empty.
  std::function<bool()> commitEntry;
  // Prints the window's picture at once, without a question. False when it can't, which has been told. May be
  // empty: then nothing is printed.
  std::function<bool()> printNow;

  QSize minimumSizeHint() const override;
  void Refresh() override;
  QStringList PrintHeadings() const override;
  bool HasPicture() const override { return true; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;
  // In units of a screen; a sheet of several graphs has the shape of a page.
  QSizeF PictureSize() const;

  // A page has been filled: with automatic printing it goes to the printer, as soon as there are enough for a
  // sheet of paper.
  void PageFilled();
  // The sheet that was begun goes to the printer. To be called before the program ends.
  void FinishPrinting();
  int WaitingGraphs() const { return static_cast<int>(waiting_.size()); }
  GraphView& View() { return *view_; }

 protected:
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Figure {
    QLabel* caption = nullptr;
    QLabel* value = nullptr;
  };
  struct Entry {
    QAction* action;
    std::function<bool()> ticked;
  };

  void AddHeader(QBoxLayout& column);
  Figure AddFigure(QBoxLayout& row, const char* name, const QString& caption);
  void AddFigures(QBoxLayout& column);
  void AddReferences(QBoxLayout& column);
  QSlider* AddReference(QGridLayout& grid, int which);
  void AddScale(QBoxLayout& column);
  void AddRun(QBoxLayout& column);
  // --- The menu.
  QAction* AddEntry(QMenu& menu, const QString& name, const QString& text, std::function<void()> act,
                    std::function<bool()> ticked = {});
  void AddChoices(QMenu& menu, const QString& name, const QString& title, const QStringList& texts,
                  std::function<int()> chosen, std::function<void(int)> choose);
  void BuildMenu();
  void AddPrinting();
  void AddModes();
  void AddDisplay();
  void AddLooks();
  void AddRunSettings();
  void ShowTicks();
  // --- What is shown.
  void ShowPlayers();
  void ShowFigures(const GraphPage& page);
  void ShowReferences();
  void ShowRun();
  void ShowGain();
  void MeetSeat();
  // --- What the user does.
  void MoveReference(int which, int cell);
  void DisplayReferences();
  void SetColour(int part);
  void ToggleRun();
  bool MayAct();
  void SetAutoPrint(bool on);
  void EndAutoPrint();
  bool IsPutAway() const;
  void PrintSheet();

  Game& game_;
  GraphView* view_ = nullptr;
  QMenu* menu_ = nullptr;
  std::vector<Entry> entries_;
  QComboBox* player_ = nullptr;
  QLabel *high_ = nullptr, *current_ = nullptr, *low_ = nullptr, *gain_ = nullptr;
  Figure average_;
  QWidget* references_ = nullptr;
  QSlider* referenceSliders_[2] = {};
  QLabel* referenceBankrolls_[2] = {};
  QLabel *rollsDif_ = nullptr, *bankrollDif_ = nullptr;
  QLabel *rolls_ = nullptr, *rate_ = nullptr, *hours_ = nullptr;
  QSlider* throttle_ = nullptr;
  QLabel* speed_ = nullptr;
  QPushButton* run_ = nullptr;
  QLayout* scaleRow_ = nullptr;
  QLayout* runRow_ = nullptr;
  bool autoPrint_ = false;
  bool printing_ = false;           // the picture is the sheet that waits
  std::vector<GraphPage> waiting_;  // for a full sheet of paper
};

}  // namespace tessaryn
