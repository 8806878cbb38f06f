// How the totals of a part of a dice roll file are distributed, against those of fair dice.
#pragma once

#include <QRectF>
#include <QWidget>

#include "dice/roll_edit.h"

class QPainter;

namespace tessaryn {

// What is painted, and where it is from: "All 1,200 rolls".
struct RollChart {
  RollTotals totals;
  QString heading;
  bool counting = false;  // not all is counted yet
};

void PaintRollChart(QPainter& painter, const QRectF& area, const RollChart& chart, bool dark);
// Whether a count differs from fair dice by more than two standard errors: 1 above, -1 below, else 0.
int FarFromFair(const RollTotals& totals, int total);

class RollChartView : public QWidget {
  Q_OBJECT

 public:
  explicit RollChartView(QWidget* parent);
  void Show(const RollChart& chart);
  const RollChart& Chart() const { return chart_; }
  QSize sizeHint() const override { return {260, 150}; }
  QSize minimumSizeHint() const override { return {220, 120}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  RollChart chart_;
};

}  // namespace tessaryn
