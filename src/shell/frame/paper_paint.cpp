#include "shell/frame/paper_paint.h"

#include <QBrush>
#include <QGradient>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tessaryn {
namespace {

QColor Grey(const QColor& colour) {
  const int grey = qGray(colour.rgb());
  return QColor(grey, grey, grey, colour.alpha());
}

QImage Grey(QImage image) {
  image = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int grey = qGray(line[x]);
      line[x] = qRgba(grey, grey, grey, qAlpha(line[x]));
    }
  }
  return image;
}

QBrush Grey(const QBrush& brush) {
  QBrush grey = brush;
  if (brush.gradient() != nullptr) {
    QGradient gradient = *brush.gradient();
    QGradientStops stops = gradient.stops();
    for (QGradientStop& stop : stops) stop.second = Grey(stop.second);
    gradient.setStops(stops);
    grey = QBrush(gradient);
    grey.setTransform(brush.transform());
  } else if (brush.style() == Qt::TexturePattern) {
    grey.setTextureImage(Grey(brush.textureImage()));
  } else {
    grey.setColor(Grey(brush.color()));
  }
  return grey;
}

// Readers of PDF fill a shade that should let something through.
QBrush Tint(const QBrush& brush) {
  if (brush.gradient() == nullptr || brush.isOpaque()) return brush;
  const QGradientStops stops = brush.gradient()->stops();
  float parts[4] = {};
  for (const QGradientStop& stop : stops) {
    const float got[4] = {stop.second.redF(), stop.second.greenF(), stop.second.blueF(),
                          stop.second.alphaF()};
    for (int n = 0; n < 4; ++n) parts[n] += got[n] / static_cast<float>(stops.size());
  }
  return QColor::fromRgbF(parts[0], parts[1], parts[2], parts[3]);
}

// Hands everything on to the painter beneath, at the place and scale that it had.
class PaperEngine : public QPaintEngine {
 public:
  PaperEngine(QPainter& to, bool grey)
      : QPaintEngine(AllFeatures), to_(to), base_(to.transform()), grey_(grey) {}
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }

  void updateState(const QPaintEngineState& now) override {
    const DirtyFlags dirty = now.state();
    if (dirty & DirtyTransform) to_.setTransform(now.transform() * base_);
    if (dirty & DirtyPen) {
      QPen pen = now.pen();
      pen.setBrush(Inked(pen.brush()));
      to_.setPen(pen);
    }
    if (dirty & DirtyBrush) to_.setBrush(Inked(now.brush()));
    if (dirty & DirtyBrushOrigin) to_.setBrushOrigin(now.brushOrigin());
    if (dirty & DirtyBackground) to_.setBackground(Inked(now.backgroundBrush()));
    if (dirty & DirtyBackgroundMode) to_.setBackgroundMode(now.backgroundMode());
    if (dirty & DirtyFont) to_.setFont(now.font());
    if (dirty & DirtyOpacity) to_.setOpacity(now.opacity());
    if (dirty & DirtyCompositionMode) to_.setCompositionMode(now.compositionMode());
    if (dirty & DirtyHints) {
      to_.setRenderHints(to_.renderHints(), false);
      to_.setRenderHints(now.renderHints());
    }
    if (dirty & DirtyClipRegion) to_.setClipRegion(now.clipRegion(), now.clipOperation());
    if (dirty & DirtyClipPath) to_.setClipPath(now.clipPath(), now.clipOperation());
    if (dirty & DirtyClipEnabled) to_.setClipping(now.isClipEnabled());
  }

  void drawPath(const QPainterPath& path) override { to_.drawPath(path); }
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    if (mode == PolylineMode)
      to_.drawPolyline(points, count);
    else
      to_.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
  }
  void drawPixmap(const QRectF& area, const QPixmap& pixmap, const QRectF& part) override {
    to_.drawImage(area, Inked(pixmap.toImage()), part);
  }
  void drawImage(const QRectF& area, const QImage& image, const QRectF& part,
                 Qt::ImageConversionFlags) override {
    to_.drawImage(area, Inked(image), part);
  }
  void drawTiledPixmap(const QRectF& area, const QPixmap& pixmap, const QPointF& from) override {
    to_.drawTiledPixmap(area, QPixmap::fromImage(Inked(pixmap.toImage())), from);
  }
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QFont before = to_.font();
    to_.setFont(item.font());
    to_.drawText(at, item.text());
    to_.setFont(before);
  }

 private:
  QBrush Inked(const QBrush& brush) const { return grey_ ? Grey(Tint(brush)) : Tint(brush); }
  QImage Inked(const QImage& image) const { return grey_ ? Grey(image) : image; }

  QPainter& to_;
  const QTransform base_;
  const bool grey_;
};

// As large, and with as fine a grain, as what is painted on in truth.
class PaperDevice : public QPaintDevice {
 public:
  PaperDevice(QPainter& to, bool grey) : real_(*to.device()), engine_(to, grey) {}
  QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  int metric(PaintDeviceMetric what) const override {
    switch (what) {
      case PdmWidth:
        return real_.width();
      case PdmHeight:
        return real_.height();
      case PdmWidthMM:
        return real_.widthMM();
      case PdmHeightMM:
        return real_.heightMM();
      case PdmNumColors:
        return real_.colorCount();
      case PdmDepth:
        return real_.depth();
      case PdmDpiX:
        return real_.logicalDpiX();
      case PdmDpiY:
        return real_.logicalDpiY();
      case PdmPhysicalDpiX:
        return real_.physicalDpiX();
      case PdmPhysicalDpiY:
        return real_.physicalDpiY();
      case PdmDevicePixelRatio:
        return static_cast<int>(real_.devicePixelRatio());
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(real_.devicePixelRatioF() * devicePixelRatioFScale());
      default:
        return 0;
    }
  }

 private:
  const QPaintDevice& real_;
  mutable PaperEngine engine_;
};

}  // namespace

void PaintForPaper(QPainter& painter, bool grey, const std::function<void(QPainter&)>& paint) {
  painter.save();
  PaperDevice device(painter, grey);
  QPainter paper(&device);
  paint(paper);
  paper.end();
  painter.restore();
}

}  // namespace tessaryn
