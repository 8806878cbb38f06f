// The laboratory's pictures: results of sessions, bankrolls and ruin on the way, how sessions end, and sweeps
// as maps and curves. A is filled, B outlined.
#pragma once

#include <QPainter>
#include <QWidget>
#include <memory>

#include "shell/screens/laboratory_look.h"

namespace tessaryn {

// The same on screen, on paper and in files.
void PaintLab(QPainter& painter, const QRectF& area, const LabFigures& figures, const LabLook& look);
// What lies under a place of the picture: "30 to 45: A 90 sessions (1.8%), B 184 (3.7%)"; mostly empty.
QString LabTextAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look);
// The system whose cell of a map lies there; -1 for none.
int LabSystemAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look);

class LabPictureView : public QWidget {
  Q_OBJECT

 public:
  LabPictureView(LabPicture picture, const char* name, QWidget* parent);
  // The palette decides whether it is dark.
  void Show(std::shared_ptr<const LabFigures> figures, const LabLook& look);
  QSize sizeHint() const override { return {480, 300}; }
  QSize minimumSizeHint() const override { return {300, 190}; }

 signals:
  void Pointed(const QString& text);
  void Chosen(int system);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  LabLook LookNow() const;

  std::shared_ptr<const LabFigures> figures_ = std::make_shared<LabFigures>();
  LabLook look_;
};

}  // namespace tessaryn
