// What moves on the felt by itself while everything else goes on: the puck, and the checks that a roll won
// and lost. The dice are thrown by TableWidget, which waits for them.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <vector>

#include "shell/table/roll_story.h"
#include "shell/table/table_scene.h"

class QTimer;
class QWidget;

namespace tessaryn {

struct TableLayout;

inline constexpr int kPuckMilliseconds = 200;
inline constexpr int kChecksMilliseconds = 250;

// The way of what each change pays or takes: from the bank to the bet, or back. A table full of bets shows
// the first of them.
std::vector<MovingChecks> ChecksOnTheirWay(const Game& game, const TableLayout& layout,
                                           const std::vector<BetChange>& changes);

// Writes the moving parts of a scene, and has the table painted, until they lie still. Nothing waits for it.
class TableMotion : public QObject {
 public:
  // Both outlive it.
  TableMotion(TableScene& scene, QWidget& table);
  // From where it lay for a point, 0 none, to where the state has it.
  void MovePuck(int from);
  void MoveChecks(std::vector<MovingChecks> checks);
  // All lies where the state has it.
  void Stop();

 private:
  void Begin();
  void Step();

  TableScene& scene_;
  QWidget& table_;
  QTimer* frames_;
  QElapsedTimer clock_;
  qint64 puckSince_ = 0;
  qint64 checksSince_ = 0;
};

}  // namespace tessaryn
