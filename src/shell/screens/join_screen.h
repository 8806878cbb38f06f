// Joining the table: the three questions of a new player in one box.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tessaryn {

struct Game;
class MoneyEdit;

// frmJoin. Whether a player should be added here, the name, and the buy-in; what refuses one of them stands
// in the box until it is put right.
class JoinScreen : public QDialog {
  Q_OBJECT
 public:
  JoinScreen(Game& game, SeatId seat, QWidget* parent);

 private:
  QLabel* AddText(const char* name, const QString& text);
  void ShowQuestion();
  void Join();

  Game& game_;
  SeatId seat_;
  QLabel* buyIn_ = nullptr;    // asks the player by name
  QLabel* problem_ = nullptr;  // why not
  QLineEdit* name_ = nullptr;
  MoneyEdit* bankroll_ = nullptr;
  QPushButton* join_ = nullptr;
};

// Shows the box over the window. False when nobody joined.
bool AskJoin(Game& game, SeatId seat, QWidget* parent);

}  // namespace tessaryn
