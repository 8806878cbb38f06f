// frmSteps: a script carried out statement by statement, and what it has done so far.
#pragma once

#include <QWidget>
#include <deque>
#include <functional>

#include "state/auto_bet_state.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace tessaryn {

struct Game;

class WorkshopSteps : public QWidget {
  Q_OBJECT
 public:
  WorkshopSteps(Game& game, QWidget* parent);

  // One statement was carried out; source is its line.
  void ShowStep(const ScriptStep& step, const std::string& source, const std::string& values);
  // Which buttons can be pressed.
  void Refresh();
  // "Auto-Bet Steps (Ann)"
  QString Title() const;
  void Next();
  void GoOn();
  void Stop();

 signals:
  void lineChosen(SeatId seat, int line);
  void changed();

 private:
  Game& game_;
  QLabel* status_;
  QLabel* line_;
  QCheckBox* step_;
  QPushButton* next_;
  QPushButton* goOn_;
  QPushButton* stop_;
  QListWidget* list_;
  SeatId seat_ = 0;
};

}  // namespace tessaryn
