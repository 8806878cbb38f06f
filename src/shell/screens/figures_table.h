// A table of figures, sorted by any column: a click on a heading sorts, a third one brings back the table's
// own order. With it the choice of the player that figures are about, and how figures are written.
#pragma once

#include <QComboBox>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <vector>

namespace tessaryn {

struct TableState;

// Pages that have a table of their own for printing and export, its heading first.
class PageRows {
 public:
  virtual ~PageRows() = default;
  virtual QList<QStringList> Rows() const = 0;
};

struct FigureCell {
  QString text;
  double value = 0;  // by which it is sorted; the first column is sorted by its text

  friend bool operator==(const FigureCell&, const FigureCell&) = default;
};

struct FigureRow {
  int id = 0;
  bool marked = false;  // stays when only these are shown
  std::vector<FigureCell> cells;

  friend bool operator==(const FigureRow&, const FigureRow&) = default;
};

class FiguresModel;

class FiguresTable : public QTableView {
  Q_OBJECT
 public:
  FiguresTable(const char* name, const QString& tells, const QStringList& headings, QWidget* parent);

  // All rows in the table's own order; each has a cell for every heading. Only what differs is shown anew.
  void SetRows(std::vector<FigureRow> rows);
  void ShowMarkedOnly(bool only);
  // As they are shown, sorted, the headings first; columns that are hidden too.
  QList<QStringList> Rows() const;
  // The ids of the rows that are selected.
  std::vector<int> Selected() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sorted;
  // Columns as wide as what stands in them; while rolls come in they only grow.
  void FitColumns(bool mayShrink);
  void FitNames();

  FiguresModel* model_;
  Sorted* sorted_;
  int names_ = 0;  // the width that the first column asks for
};

// The same by keyboard: which column sorts. Choosing it again turns the order round.
class SortChoice : public QComboBox {
  Q_OBJECT
 public:
  SortChoice(const char* name, FiguresTable& table, QWidget* parent);
};

// The players at the table.
class PlayerChoice : public QComboBox {
  Q_OBJECT
 public:
  PlayerChoice(const char* name, QWidget* parent);
  // A player who has left gives way to the one that is selected at the table.
  void Refresh(const TableState& table);
  // 0 if there are none.
  SeatId Seat() const { return currentIndex() < 0 ? 0 : currentData().toInt(); }

 private:
  QStringList names_;
};

// "-1.41"; what rounds to nothing is "0.00".
QString FigureText(double value);
// The same of dollars, with a sign and separators: "-$1,234.50".
QString DollarFigure(double dollars);
// "01:41.3", minutes and seconds.
QString MinutesText(double hours);

}  // namespace tessaryn
