// The pictures of the two reports of rolls: actual against probable, and the gaps between two comings of an
// outcome. One painter for screen, file and paper.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QWidget>
#include <vector>

#include "play/report_table.h"

class QPainter;

namespace tessaryn {

struct ChartBar {
  QString label;         // two lines at most
  QString count;         // below the label where there is room
  double actual = 0;     // percent, or times
  double probable = -1;  // percent; below 0 none is shown
  bool marked = false;   // further off than two standard errors

  friend bool operator==(const ChartBar&, const ChartBar&) = default;
};

struct ReportChart {
  QString axis;  // "PERCENT"
  QString below;
  QString actual;  // the names of the series; without a second one there is no legend
  QString probable;
  std::vector<ChartBar> bars;

  friend bool operator==(const ReportChart&, const ReportChart&) = default;
};

// Of a report of roll totals, and of one of roll frequencies.
ReportChart TotalsChart(const ReportTable& report, bool hideProbable, bool skewed);
ReportChart GapsChart(const ReportTable& report);

struct ChartLook {
  QColor background;
  QColor bars;
  QFont font;
};
// Letters, lines and bars can be told from any background.
void PaintReportChart(QPainter& painter, const QRectF& area, const ReportChart& chart, const ChartLook& look);

class ReportChartView : public QWidget {
 public:
  ReportChartView(const QString& what, QWidget* parent);

  // An invalid colour is the desktop's.
  void Show(ReportChart chart, const QColor& background, const QColor& bars);
  const ReportChart& Chart() const { return chart_; }
  // The look on paper: on white, unless a colour was chosen.
  ChartLook LookOnPaper() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  ChartLook LookOnScreen() const;

  ReportChart chart_;
  QColor background_;
  QColor bars_;
};

}  // namespace tessaryn
