// The laboratory's pictures: results of sessions, bankrolls on the way, and how sessions end. A is filled, B
// outlined.
#pragma once

#include <QPainter>
#include <QWidget>

#include "shell/screens/laboratory_figures.h"

namespace tessaryn {

enum class LabPicture { kResults, kWay, kEnds };

struct LabLook {
  LabPicture picture = LabPicture::kResults;
  std::size_t a = 0;
  std::size_t b = 0;  // the same as a: none
  bool dark = false;
};

QColor LabColour(bool second, bool dark);

// The same on screen, on paper and in files.
void PaintLab(QPainter& painter, const QRectF& area, const LabFigures& figures, const LabLook& look);
// What lies under a place of the picture: "30 to 45: A 90 sessions (1.8%), B 184 (3.7%)"; mostly empty.
QString LabTextAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look);

class LabPictureView : public QWidget {
  Q_OBJECT

 public:
  LabPictureView(LabPicture picture, const char* name, QWidget* parent);
  void Show(const LabFigures& figures, std::size_t a, std::size_t b);
  QSize sizeHint() const override { return {480, 300}; }
  QSize minimumSizeHint() const override { return {300, 190}; }

 signals:
  void Pointed(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  LabLook LookNow() const;

  LabFigures figures_;
  LabLook look_;
};

}  // namespace tessaryn
