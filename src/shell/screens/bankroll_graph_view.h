// The drawing area of the bankroll graph: a pointer that tells roll and bankroll, reference lines that can be
// dragged, and the keys for both.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "shell/screens/bankroll_graph_picture.h"

namespace tessaryn {

// picGraph. Shows a page; what the user wants is told to its owner.
class GraphView : public QWidget {
  Q_OBJECT

 public:
  explicit GraphView(QWidget* parent = nullptr);
  void SetPage(GraphPage page, const GraphColours& colours);
  const GraphPage& Page() const { return page_; }
  // The point at the pointer, 1 to the page's count; 0 without one.
  // "Roll 312:  535  +35"; empty without a pointer.
  QString PointerText() const;
  GraphFrame Frame() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void referenceMoved(int which, int cell);  // which 1 or 2, cell 0 to 525
  void shifted(int steps);
  void unitStepped(int steps);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PointAt(int cell);
  void PaintPointer(QPainter& painter) const;
  int ReferenceAt(double x) const;
  bool WalkKey(int key, Qt::KeyboardModifiers modifiers);

  GraphPage page_;
  GraphColours colours_;
  QPixmap drawn_;      // the page
  bool stale_ = true;  // it must be drawn anew
  int pointed_ = 0;
  int dragged_ = 0;  // the reference line, 1 or 2
  int wheel_ = 0;    // eighths of degrees that haven't become a step yet
};

}  // namespace tessaryn
