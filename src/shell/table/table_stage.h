// The board, the table below it, and the players' plates over both.
#pragma once

#include <QWidget>
#include <array>

#include "base/table_types.h"
#include "shell/table/appearance.h"
#include "shell/table/plates.h"

namespace tessaryn {

class Badges;
class Board;
struct Game;
class RollHistory;
struct TableCommands;
class TableWidget;

class TableStage : public QWidget {
  Q_OBJECT

 public:
  TableStage(Game& game, TableCommands& commands, const RollHistory& history, QWidget* parent);

  TableWidget& Table() { return *table_; }
  Board& TheBoard() { return *board_; }
  const Plate& PlateOf(SeatId seat) const { return *plates_[seat]; }
  // What is over the felt and nothing else: the place of what covers it in a run.
  QRect FeltRoom() const;

  void SetMeasures(const Measures& measures);
  // As the state has it; see Board.
  void Refresh(bool settled);
  // What the last roll won and lost beside the bets, for a moment.
  void ShowBadges();

 signals:
  void seatChosen(SeatId seat);
  void plateMenuWanted(SeatId seat, QPoint where);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Place();
  void PlaceThePlates();
  void ShiftOpenMarks(const PlatePlaces& places, bool fitted);

  Game& game_;
  Measures measures_;
  Board* board_;
  TableWidget* table_;
  Badges* badges_;
  std::array<Plate*, kSeatRows> plates_{};
};

}  // namespace tessaryn
