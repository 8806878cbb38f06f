// The tip beside the pointer, and the words of bets in the user's language.
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>
#include <span>

#include "play/bet_facts.h"

class QTimer;

namespace tessaryn {

struct Game;
struct TableCommands;
class TableWidget;

inline constexpr int kTipMilliseconds = 600;  // that the pointer rests before the tip comes

// A line of words in the user's language, money as the table writes it.
QString Told(const Game& game, const FactText& text);
// The words that lines may be told with, as the translators see them.
std::span<const char* const> TranslatedFactWords();
// Who has checks on the bet: "Ann 12, Bo 6"; of one player alone only where that isn't the selected one.
QString WhoBets(const Game& game, BetId bet);
// A player's session, as the plate at the rail tells it: what was expected, what came, and the luck.
QString SeatTip(const Game& game, SeatId seat);

// Shows the tip once the pointer rests on the table, and takes it away when it is elsewhere or a button or
// key is pressed.
class BetTip : public QObject {
 public:
  BetTip(TableWidget& table, Game& game, const TableCommands& commands);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PointAt(QPoint point, QPoint screen);
  void Hide();
  void Show();

  TableWidget& table_;
  Game& game_;
  const TableCommands& commands_;
  QTimer* timer_;
  QPoint screen_;  // where the pointer is
  BetId bet_ = 0;
  SeatId seat_ = 0;
  bool shown_ = false;
};

}  // namespace tessaryn
