// The players' plates round the table: name, money, bets and result of each, at places that nothing moves.
#pragma once

#include <QRectF>
#include <QWidget>
#include <array>

#include "base/table_types.h"
#include "shell/table/appearance.h"
#include "shell/table/table_view.h"

namespace tessaryn {

struct Game;

enum class ScriptSign { kNone, kActive, kError };

// What a plate says.
struct PlateText {
  QString name;
  bool selected = false;
  bool shooter = false;
  ScriptSign script = ScriptSign::kNone;
  QString rail;  // figures
  QString bankroll;
  QString betsCaption;  // "1 Bet:", "3 Bets:"
  QString bets;
  QString resultCaption;  // "Won:", "Lost:", "Even:"
  QString result;
  int sign = 0;  // of the result

  friend bool operator==(const PlateText&, const PlateText&) = default;
};
PlateText PlateTextOf(const Game& game, SeatId seat);
// The lines of a player's money as one: "Rail: 463.00", "Bankroll: 535.00", ...
QStringList MoneyLines(const Game& game, SeatId seat);

// Where the plates of all seats stand, whoever is there. Index by seat.
using PlatePlaces = std::array<QRect, kSeatRows>;
// stage: what board and table fill together. table: the table's place in it. view: how it is shown there.
// fitted: the table is shown whole and upright, so that the lower plates may stand on its rail.
PlatePlaces PlacePlates(QSize stage, const QRect& table, const TableView& view, const Measures& measures,
                        bool fitted);
// The size they have there: the largest that leaves the places of the CheckStacks free.
QSize PlateSize(QSize stage, const Measures& measures);
// Room that the plates need above and below a table that is turned, enlarged or moved, so that they never
// stand on its felt; of a table shown whole the part that hangs below it.
int RoomAbove(const Measures& measures, QSize stage);
int RoomBelow(const Measures& measures, QSize stage);

inline constexpr int kPlateTip = 6;

class Plate : public QWidget {
  Q_OBJECT

 public:
  Plate(SeatId seat, QWidget* parent);
  SeatId Seat() const { return seat_; }
  // textHeight in screen units; pointer: where the player's place is, from the plate's left edge, for the tip
  // above the plate that points to it, which is then kPlateTip higher; below 0 without one. After a resize.
  void SetLook(double textHeight, int pointer);
  void Show(const PlateText& text);
  const PlateText& Text() const { return text_; }
  // Whether every figure has the room that it needs.
  bool FiguresFit() const;

 signals:
  void chosen(SeatId seat);
  void menuWanted(SeatId seat, QPoint where);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Tell();
  QFont TextFont(bool bold) const;
  QFont HeadFont() const;
  double Padding() const;
  bool IsNarrow() const;
  QString BankrollCaption() const;
  QString ResultText() const;
  double HeadWidth() const;
  void PaintHead(QPainter& painter, const QRectF& line) const;
  double PaintResult(QPainter& painter, const QRectF& line) const;
  void PaintName(QPainter& painter, const QRectF& room) const;
  void FitLetters();

  const SeatId seat_;
  PlateText text_;
  double textHeight_ = 11.5;
  int pointer_ = -1;
  int stretch_ = 100;      // of the letters, in percent
  int headStretch_ = 100;  // of those of name and result
  bool briefResult_ = false;
};

}  // namespace tessaryn
