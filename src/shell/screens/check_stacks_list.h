// The CheckStacks of a player as a list: a model that reads the game row by row, and a view with a cell's
// keys.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <array>
#include <functional>
#include <string>

#include "base/table_types.h"

namespace tessaryn {

struct Game;

enum CheckStackColumn : int { kStackName = 0, kStackValue = 1 };

class CheckStackList : public QAbstractTableModel {
  Q_OBJECT

 public:
  CheckStackList(Game& game, QObject* parent);
  // 0 to 8; the list of seat 0 is empty.
  void SetSeat(SeatId seat);
  SeatId Seat() const { return seat_; }
  // Tells the view which cells differ from what it was told last.
  void Follow();
  // Everything is shown anew, as after a change of how it is shown.
  void ShowAnew();
  // What a cell holds, as it is copied and edited.
  QString CellText(int stack, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  // A cell was edited.
  void entered(int stack, int column, const QString& text);

 private:
  struct Cell {
    std::string name;
    Currency value;
    int place = 0;
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  Cell CellOf(int stack) const;
  // The stack's place on the table, 1 to 4; 0 when it isn't shown there.
  int PlaceOnTable(int stack) const;

  Game& game_;
  SeatId seat_ = 0;
  std::array<Cell, kCheckStacks> told_;
};

// picCheckStacks. txtCheckStack lies over the cell that is edited.
class CheckStackView : public QTableView {
  Q_OBJECT

 public:
  explicit CheckStackView(QWidget* parent);
  // Asked before an edit begins. Empty: always.
  std::function<bool()> mayEdit;

 signals:
  void cutPressed();
  void copyPressed();
  void pastePressed();
  void deletePressed();
  void undoPressed();
  void redoPressed();

 protected:
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool RunKey(const QKeyEvent& event);
};

}  // namespace tessaryn
