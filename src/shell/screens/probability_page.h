// The editor of percentage dice: a page of the configuration screen, and a tool window of its own.
#pragma once

#include <QWidget>
#include <functional>

#include "dice/probability_edit.h"
#include "shell/screens/tool_window.h"

class QAction;
class QBoxLayout;
class QButtonGroup;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessaryn {

struct Game;
class ProbabilityModel;
class ProbabilityPicture;
class ProbabilityTable;

class ProbabilityPage : public QWidget {
  Q_OBJECT

 public:
  ProbabilityPage(Game& game, QWidget* parent);
  // Brings everything to the state, which scripts and game files change too. Cheap when nothing changed.
  void Refresh();
  // Another language is spoken.
  void Retranslate() { ShowDice(); }

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddCommands(QBoxLayout& column);
  void AddFileLine(QBoxLayout& column);
  void AddSheet(QBoxLayout& column);
  void AddDisplay(QBoxLayout& column);
  QAction* AddCommand(const char* name, const QString& text, void (ProbabilityPage::*act)());

  bool MayEdit();
  // Runs a change of the dice that can be taken back; note is shown when it comes to nothing.
  void Change(const std::function<bool()>& change, const QString& note);
  void ShowDice();
  void ShowSelected();
  void Enter(ProbabilityCell cell, const QString& text);
  void ToggleLock();
  void SetDisplay(int mode);
  void SetRollsOutOf();
  void ToggleActive();

  // False when the user gives up.
  bool SaveFirst();
  bool SaveAs(const std::string& path);
  void New();
  void Open();
  void Save();
  void SaveUnder();
  void Axes();
  void Undo();
  void Redo();

  Game& game_;
  ProbabilityEdits edits_;
  PercentageDice shown_;  // as it was when it was last shown
  QBoxLayout* sheetRow_;  // the sheet and its picture
  ProbabilityModel* model_;
  ProbabilityTable* table_;
  ProbabilityPicture* picture_;
  QLabel* kind_;
  QLabel* file_;
  QLabel* note_;
  QButtonGroup* display_;
  QLineEdit* outOf_;
  QPushButton* active_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
};

class PercentageDiceWindow : public ToolWindow {
  Q_OBJECT

 public:
  PercentageDiceWindow(Game& game, QWidget* parent);
  void Refresh() override;
  QList<QStringList> Rows() const override;
  QStringList PrintHeadings() const override;
  bool HasPicture() const override { return true; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;

 protected:
  void Retranslate() override;

 private:
  Game& game_;
  ProbabilityPage* page_;
};

}  // namespace tessaryn
