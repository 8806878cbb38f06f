// The cells of percentage dice as a sheet: the 36 combinations by die 1 and die 2, the faces at their edges,
// the totals beside them. Arrows walk it, typing enters a value, L locks.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>

#include "dice/probability_edit.h"

namespace tessaryn {

inline constexpr int kSheetRows = 11;
inline constexpr int kSheetColumns = 9;

// The cell at a place of the sheet, {0, 0} where there is none; and the place of a cell.
ProbabilityCell CellOfSheet(int row, int column);
struct SheetPlace {
  int row = -1;
  int column = -1;
};
SheetPlace PlaceInSheet(ProbabilityCell cell);
// "Die 1 shows 3 and die 2 shows 4".
QString ProbabilityCellName(ProbabilityCell cell);

class ProbabilityModel : public QAbstractTableModel {
 public:
  ProbabilityModel(const PercentageDice& dice, QObject* parent);
  // Enters what was typed into a cell.
  std::function<void(ProbabilityCell, const QString&)> enter;
  // The values or the way in which they are shown have changed.
  void ShowAll();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  const PercentageDice& dice_;
};

class ProbabilityTable : public QTableView {
  Q_OBJECT

 public:
  ProbabilityTable(ProbabilityModel& model, QWidget* parent);
  // Asked before a cell is opened for typing.
  std::function<bool()> mayEdit;
  void Select(ProbabilityCell cell);
  ProbabilityCell Selected() const;
  // As wide as the longest text needs.
  void FitColumns();

 signals:
  void selected();
  void lockPressed();

 protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  // Letters walk nowhere.
  void keyboardSearch(const QString&) override {}
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};

}  // namespace tessaryn
