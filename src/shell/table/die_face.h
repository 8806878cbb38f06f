// A die's face as a picture of its own, for lists and headings.
#pragma once

#include <QPainter>
#include <QPixmap>

#include "shell/table/pictures.h"

namespace tessaryn {

// side: in units of the screen, of which each is ratio points.
inline QPixmap DieFace(int pips, const QColor& body, int side, double ratio) {
  QPixmap picture(QSize(side, side) * ratio);
  picture.fill(Qt::transparent);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(side / 2.0, side / 2.0);
  painter.scale(side - 1, side - 1);
  PaintDie(painter, pips, body, Qt::white);
  return picture;
}

}  // namespace tessaryn
