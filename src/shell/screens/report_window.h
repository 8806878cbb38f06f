// The six reports on the screen: selectors above, the report's table below, for the two of rolls a picture
// between. They show the report and compute nothing.
#pragma once

#include <QList>
#include <functional>
#include <utility>
#include <vector>

#include "shell/screens/report_selection.h"
#include "shell/screens/report_view.h"
#include "shell/screens/tool_window.h"

class QBoxLayout;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace tessaryn {

class ReportChartView;
struct Game;

// What one of them has; a row each in report_window.cpp.
struct ReportScreen;

class ReportWindow : public ToolWindow {
 public:
  // number: of a report's window.
  ReportWindow(Game& game, int number, QWidget* parent);

  // What is selected is common to the reports: called when it changed, so that all that are open show it.
  std::function<void()> selected;

  void Refresh() override;
  QList<QStringList> Rows() const override;
  QStringList PrintHeadings() const override;
  bool HasPicture() const override { return chart_ != nullptr; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QComboBox* AddCombo(QHBoxLayout& row, const char* name, const QString& what);
  void AddSelectors(QHBoxLayout& row);
  void WrapSelectors();
  void AddPlayers(QHBoxLayout& row);
  void AddBets(QHBoxLayout& row);
  void AddToggle(QHBoxLayout& row);
  void AddOptions(QHBoxLayout& row);
  QAction* AddOption(QMenu& menu, const QString& name, const QString& caption, std::function<bool()> isOn,
                     std::function<void(bool)> set);
  void AddBetOptions(QMenu& menu);
  void AddRollOptions(QMenu& menu);
  void AddColours(QMenu& menu, TotalsPart part, const QString& name, const QString& caption);
  void AddLabels(QVBoxLayout& column);
  void AddBody(QVBoxLayout& column);
  void AddGaps(QVBoxLayout& column);
  void Selected();

  void ShowSelectors(const ReportSelection& selection);
  void ListPlayers();
  QString SelectedWords(const ReportSelection& selection) const;
  void ShowLabels(const ReportSelection& selection);
  void ShowTables();
  void ShowGaps();
  void ShowChart(const ReportSelection& selection);

  struct Option {
    QAction* action;
    std::function<bool()> isOn;
  };

  Game& game_;
  const ReportScreen& screen_;
  const ReportKind& kind_;
  ReportModel::Report report_;
  QHBoxLayout* selectorRows_[2] = {};
  QList<QWidget*> selectors_;
  bool wrapped_ = false;  // what has no room in the first row stands in the second
  QComboBox* hand_ = nullptr;
  QComboBox* player_ = nullptr;
  QList<std::pair<QString, int>> listed_;  // in player_
  QComboBox* item_ = nullptr;
  QPushButton* toggle_ = nullptr;
  std::vector<Option> options_;
  QLabel* players_ = nullptr;
  QLabel* names_ = nullptr;
  QLabel* explain_ = nullptr;
  QBoxLayout* upper_ = nullptr;  // figures and picture of the frequencies
  ReportChartView* chart_ = nullptr;
  ReportView* table_ = nullptr;
  QLabel* gaps_ = nullptr;
  ReportView* grid_ = nullptr;
  int twoStrips_ = 0;  // the width that two strips need, as far as it is known
};

}  // namespace tessaryn
