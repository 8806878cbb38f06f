// Pictures that are kept from one repaint to the next.
#pragma once

#include <QPainter>
#include <QPixmapCache>
#include <cmath>

namespace tessaryn {

// What costs more to draw than to keep is drawn once for a key, its size and the screen, and copied from then
// on. box in screen units; paint draws into it. What is too large to keep is drawn each time.
template <class Paint>
void DrawKept(QPainter& painter, const QString& key, const QRectF& box, Paint paint) {
  constexpr double kMostPixels = 300'000;
  const double ratio = painter.device()->devicePixelRatioF();
  const QSize pixels(static_cast<int>(std::ceil(box.width() * ratio)) + 1,
                     static_cast<int>(std::ceil(box.height() * ratio)) + 1);
  if (static_cast<double>(pixels.width()) * pixels.height() > kMostPixels) return paint(painter);
  const QString whole = QStringLiteral("%1|%2|%3x%4").arg(key).arg(ratio).arg(box.width()).arg(box.height());
  QPixmap picture;
  if (!QPixmapCache::find(whole, &picture)) {
    picture = QPixmap(pixels);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter inner(&picture);
    inner.setRenderHint(QPainter::Antialiasing);
    inner.translate(-box.topLeft());
    paint(inner);
    inner.end();
    QPixmapCache::insert(whole, picture);
  }
  painter.drawPixmap(box.topLeft().toPoint(), picture);
}

}  // namespace tessaryn
