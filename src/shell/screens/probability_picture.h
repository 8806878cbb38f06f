// How percentage dice differ from fair ones, as a picture: the 36 combinations as a map, and the totals.
#pragma once

#include <QRectF>
#include <QWidget>

class QPainter;

namespace tessaryn {

struct PercentageDice;

// dark: for a dark window; paper is light.
void PaintProbabilityPicture(QPainter& painter, const QRectF& area, const PercentageDice& dice, bool dark);

class ProbabilityPicture : public QWidget {
 public:
  ProbabilityPicture(const PercentageDice& dice, QWidget* parent);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PercentageDice& dice_;
};

}  // namespace tessaryn
