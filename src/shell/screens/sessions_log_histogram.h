// The sessions' values as columns, with the mean, the normal curve of the same mean and deviation, and what
// lies under the pointer.
#pragma once

#include <QWidget>

#include "stats/sessions_statistics.h"

namespace tessaryn {

struct HistogramLook {
  int BarColumns = 1;  // of the 525 in a bar
  bool Curve = true;
  int Pointer = -1;  // the column pointed at; -1 none
};

// The same on screen, on paper and in files.
void PaintSessionsHistogram(QPainter& painter, const QRectF& area, const SessionsStatistics& statistics,
                            const HistogramLook& look, const QPalette& colours);

// How many sessions a bar would hold if they were spread normally.
double NormalSessions(const SessionsStatistics& statistics, int first, int columns);
// "-120 to -100: 14 sessions, 12.5% at or below"; empty without sessions.
QString HistogramText(const SessionsStatistics& statistics, int column, int barColumns);

class SessionsHistogram : public QWidget {
  Q_OBJECT

 public:
  explicit SessionsHistogram(QWidget* parent);
  void Show(const SessionsStatistics& statistics, int barColumns, bool curve);
  // -1 none.
  void Point(int column);
  int Pointer() const { return look_.Pointer; }
  // Where a column stands.
  QPoint PlaceOf(int column) const;

 signals:
  void Pointed(int column);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  SessionsStatistics statistics_;
  HistogramLook look_;
};

}  // namespace tessaryn
