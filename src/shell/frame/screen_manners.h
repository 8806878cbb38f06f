// What holds for all screens of the program at once: the size of their letters, the pointer that goes to a
// box's default button, and choices that can be read whole.
#pragma once

#include <QObject>
#include <QPoint>

class QDialog;

namespace tessaryn {

struct Game;

// ScreenFontSize: 11 is the desktop's own size, and others as much smaller and larger. Of all windows.
void TakeFontSize(int points);

// With SnapMouse on, the pointer goes to the default button of each box that comes up, and back when that
// goes, unless it was moved meanwhile. Only where the pointer was in a window of the program.
class PointerSnap : public QObject {
 public:
  PointerSnap(Game& game, QObject* parent);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Snap(QDialog& box);

  Game& game_;
  QObject* box_ = nullptr;  // that the pointer went to
  QPoint from_;
  QPoint to_;
};

// A list of choices opens as wide as its longest, and a box that is too narrow for its choice tells it as a
// tip.
class WholeChoices : public QObject {
 public:
  explicit WholeChoices(QObject* parent);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace tessaryn
