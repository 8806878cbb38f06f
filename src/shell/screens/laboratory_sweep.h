// Sweeps on the laboratory's screen: two as a map, one as a curve with its bounds.
#pragma once

#include <QPainter>

#include "shell/screens/laboratory_look.h"

namespace tessaryn {

// Heading and legend included. Requires sessions.
void PaintSweep(QPainter& painter, const QRectF& area, const LabFigures& figures, const LabLook& look);
// The system whose cell or point lies there; -1 for none.
int SweepSystemAt(const QPointF& place, const QRectF& area, const LabFigures& figures, const LabLook& look);
// What the system came to, in a line.
QString SweepText(const LabFigures& figures, std::size_t system);

}  // namespace tessaryn
