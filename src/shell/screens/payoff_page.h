// The Payoffs tab: what every bet pays, and the tables of the bets that pay by dice, marks or points.
#pragma once

#include <QTableView>

#include "shell/screens/figures_table.h"
#include "state/payoff_tables.h"

class QMenu;

namespace tessaryn {

class SettingEditor;
struct Game;
struct SettingControl;
class PayoffModel;
class PayoffTable;

class PayoffPage : public QWidget, public PageRows {
  Q_OBJECT
 public:
  PayoffPage(Game& game, SettingEditor& editor, QWidget* parent);
  void Refresh();
  // Every payoff of every table.
  QList<QStringList> Rows() const override;

 private:
  void AddButtons(QLayout& line);
  void ListPresets(QMenu& menu);
  void Change(int row, const PayoffRecord& record);
  SettingControl& ControlFor(const std::string& setting, const QString& caption);
  // What was typed for these rows and is not taken yet is given up; of all tables with -1.
  void GiveUp(int table);
  void SetField(int preset);
  void RestoreDefaults();

  Game& game_;
  SettingEditor& editor_;
  QComboBox* tables_;
  PayoffTable* view_;
  PayoffModel* model_;
  QMenu* presets_ = nullptr;
};

// What a row of a table of payoffs is paid for: "6 (3.3)", "2 points made"; of the first table, by bet.
QString PayoffRowCaption(int table, int row);

// The cells of a payoff: what it pays, "to" or "for", and for how much. Typing goes through them: Enter or
// Tab goes on to the next one, t and f write the word between the numbers.
class PayoffTable : public QTableView {
  Q_OBJECT
 public:
  explicit PayoffTable(QWidget* parent);
  // A cell that is being typed is left, and its value taken.
  void LeaveCell();

 signals:
  // The word of the current row is to be "to", or "for".
  void WordTyped(bool to);
  void WordFlipped();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  friend class PayoffDelegate;
  void Step(int columns);
  void TypeWord(bool to);
};

}  // namespace tessaryn
