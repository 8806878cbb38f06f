// What words of the language are worth to a player now, and what they were before the last roll.
#pragma once

#include <QWidget>
#include <functional>

class QLineEdit;
class QTableWidget;

namespace tessaryn {

struct Game;

class WorkshopWatch : public QWidget {
  Q_OBJECT
 public:
  WorkshopWatch(Game& game, QWidget* parent);

  void SetSeat(SeatId seat);
  void Add(const QString& expression);
  // Looks the values up again if the table has moved on.
  void Refresh();
  void LookUp();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Changed(int row, int column);

  Game& game_;
  QTableWidget* list_;
  QLineEdit* entry_;
  SeatId seat_ = 0;
  qint64 rolls_ = -1;
  qint64 money_ = 0;  // what the player had when the values were looked up
  bool filling_ = false;
};

}  // namespace tessaryn
