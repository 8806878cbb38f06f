// picDiceRolls: the rolls of the open dice roll file, in as many columns as there is room for. Only what is
// seen is read, so that a file may be of any length.
#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>
#include <array>
#include <functional>
#include <vector>

#include "state/roll_file_state.h"

namespace tessaryn {

// What is marked in the list.
struct RollHighlight {
  const char* name;  // of its menu entry
  const char* caption;
  bool (*marks)(int die1, int die2);  // null: nothing
};
inline constexpr int kRollHighlights = 6;
extern const RollHighlight kRollHighlightKinds[kRollHighlights];

class RollList : public QAbstractScrollArea {
  Q_OBJECT

 public:
  RollList(RollFile& file, QWidget* parent);
  // Brings it to the file. follow: where the next roll is has to be seen.
  void Refresh(bool follow);
  void SetHighlight(int kind);
  int Highlight() const { return highlight_; }
  void SetFontSize(int points);
  int FontSize() const { return fontSize_; }
  // The first face of a roll that is being typed; 0 none.
  int TypedDie() const { return typed_; }
  // The roll at a point of the view, 0 where there is none; one behind the last is the file's end.
  std::int64_t RollAt(QPoint point) const;
  QRect CellOf(RollNumber roll) const;  // empty when it isn't shown
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void moved();  // cursor or selection, by the user
  void typed(int die1, int die2);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Measure();
  std::int64_t Length() const;
  std::int64_t Top() const;  // the first roll that is shown
  void Show(RollNumber roll);
  void GoTo(RollNumber roll, bool extend);
  bool Walk(const QKeyEvent& event);
  void PaintRoll(QPainter& painter, const QRect& cell, RollNumber roll, unsigned char byte) const;
  void PaintEnd(QPainter& painter, const QRect& cell) const;
  void PaintMarker(QPainter& painter, const QRect& cell) const;
  void Tell();

  RollFile& file_;
  int highlight_ = 0;
  int fontSize_ = 0;  // points; 0: the screen's own
  int typed_ = 0;
  int rows_ = 1;
  int columns_ = 1;
  int rowHeight_ = 20;
  int columnWidth_ = 100;
  int numberWidth_ = 40;
  std::array<QPixmap, 12> faces_;  // die 1, then die 2
};

}  // namespace tessaryn
