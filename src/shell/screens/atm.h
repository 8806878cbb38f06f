// The ATM: money into the game and out of it.
#pragma once

#include <QDialog>

#include "base/table_types.h"

class QCheckBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace tessaryn {

class MoneyEdit;
struct Game;

// frmAtm. Requires an occupied seat, which stays so while the screen is open.
class AtmScreen : public QDialog {
  Q_OBJECT
 public:
  AtmScreen(Game& game, SeatId seat, QWidget* parent);

 private:
  void AddHeader();
  void AddBody();
  void AddAmount(QFormLayout& form);
  QLabel* AddFigure(QFormLayout& form, const char* name, const QString& caption);
  void AddButtons();
  void Transact(bool deposit);
  void AllowNegative(bool allow);
  // Shows the seat's money as it is.
  void Refresh();

  Game& game_;
  SeatId seat_;
  QLabel* bankroll_ = nullptr;
  QLabel* onTable_ = nullptr;
  QLabel* rail_ = nullptr;
  QLabel* total_ = nullptr;
  MoneyEdit* amount_ = nullptr;
  QCheckBox* negative_ = nullptr;
};

}  // namespace tessaryn
