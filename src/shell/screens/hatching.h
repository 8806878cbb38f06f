// Bars that are told from others without colour.
#pragma once

#include <QPainter>

namespace tessaryn {

// Lines across a bar. Not a brush with a pattern: not every program that shows drawings knows those.
inline void PaintHatching(QPainter& painter, const QRectF& bar, const QColor& colour) {
  painter.save();
  painter.setClipRect(bar, Qt::IntersectClip);
  // Diagonals are even as they are, and drawn many times as fast.
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(colour, 0.8));
  constexpr double kApart = 5;
  QList<QLineF> lines;
  for (double x = bar.left() - bar.height(); x < bar.right(); x += kApart)
    lines.append({x, bar.bottom(), x + bar.height(), bar.top()});
  painter.drawLines(lines);
  painter.restore();
}

}  // namespace tessaryn
