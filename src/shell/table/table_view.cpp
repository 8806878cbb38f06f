#include "shell/table/table_view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaryn {

namespace {

// The table's corners: centres of arcs, and their radii, whose outermost points bound the drawn table.
struct Corner {
  double x;
  double y;
  double radius;
};
constexpr Corner kCorners[] = {{169, 169, 169},  {192, 344, 192}, {1055, 344, 192},
                               {1078, 169, 169}, {448, -23, 0},   {799, -23, 0}};

void SetCoefficients(TableView& view) {
  const double angle = view.TableAngle * std::numbers::pi / 180;
  view.TableCosX = view.TableCosY = static_cast<float>(std::cos(angle) * view.Scale());
  view.TableSinX = view.TableSinY = static_cast<float>(std::sin(angle) * view.Scale());
}

QPointF Centre(const TableView& view) { return {view.Window.width() / 2.0, view.Window.height() / 2.0}; }

// The offset with which a table point falls on a screen point.
void Pin(TableView& view, QPointF table, QPointF screen) {
  const QPointF now = view.ToScreen(table);
  view.TableOffsetX += static_cast<int>(std::lround(screen.x() - now.x()));
  view.TableOffsetY += static_cast<int>(std::lround(screen.y() - now.y()));
}

// An offset change brought within bounds: a table larger than the window may move until its edge meets the
// window's, a smaller one until it would leave.
int Bounded(double low, double high, int size, int change) {
  const double most = high - low > size ? -low : size - high;
  const double least = high - low > size ? size - high : -low;
  return static_cast<int>(std::lround(std::clamp<double>(change, std::min(least, 0.0), std::max(most, 0.0))));
}

int FittingHeight(const TableView& view) {
  return static_cast<int>((view.Window.height() - view.MarginTop - view.MarginBottom) / kTableRatio);
}

int FittingWidth(const TableView& view) { return view.Window.width(); }

int ZoomByMode(const TableView& view, int mode, int direction) {
  switch (mode) {
    case 1:
      return FittingHeight(view);
    case 2:
      return FittingWidth(view);
    case 3:
      return direction > 0 ? kMaximumZoom : kMinimumZoom;
    default:
      return view.TableZoom + direction * kZoomStep;
  }
}

}  // namespace

QTransform TableView::Transform() const {
  return {TableCosX, -TableSinY, TableSinX, TableCosY, double(TableOffsetX), double(TableOffsetY)};
}

QPointF TableView::ToScreen(QPointF table) const { return Transform().map(table); }

QPointF TableView::ToTable(QPointF screen) const { return Transform().inverted().map(screen); }

int KeyMode(Qt::KeyboardModifiers keys) {
  return ((keys & Qt::ShiftModifier) != 0 ? 1 : 0) + ((keys & Qt::ControlModifier) != 0 ? 2 : 0);
}

void SetTableRotation(TableView& view, int degrees) {
  const QPointF middle = view.ToTable(Centre(view));
  view.TableAngle = ((view.TableAngle + degrees) % 360 + 360) % 360;
  SetCoefficients(view);
  Pin(view, middle, Centre(view));
}

void ZoomTo(TableView& view, int zoom, QPointF fixedPoint) {
  const QPointF fixed = view.ToTable(fixedPoint);
  view.TableZoom = std::clamp(zoom, kMinimumZoom, kMaximumZoom);
  SetCoefficients(view);
  Pin(view, fixed, fixedPoint);
}

void ZoomIn(TableView& view, int mode) { ZoomTo(view, ZoomByMode(view, mode, 1), Centre(view)); }

void ZoomOut(TableView& view, int mode) { ZoomTo(view, ZoomByMode(view, mode, -1), Centre(view)); }

void ShiftTable(TableView& view, int dx, int dy) {
  const QRectF reach = TableExtremes(view);
  view.TableOffsetX += Bounded(reach.left(), reach.right(), view.Window.width(), dx);
  view.TableOffsetY += Bounded(reach.top(), reach.bottom(), view.Window.height(), dy);
}

void MoveTable(TableView& view, int dx, int dy, int mode) {
  const int step = mode == 0 ? kMoveStep : 2 * kMaximumZoom;
  ShiftTable(view, dx * step, dy * step);
}

void CenterTable(TableView& view) {
  const QPointF off = Centre(view) - TableExtremes(view).center();
  view.TableOffsetX += static_cast<int>(std::lround(off.x()));
  view.TableOffsetY += static_cast<int>(std::lround(off.y()));
}

namespace {

// The middle of what reaches so far comes to a point of the screen.
void PutMiddle(TableView& view, const QRectF& reach, QPointF middle) {
  view.TableOffsetX += static_cast<int>(std::lround(middle.x() - reach.center().x()));
  view.TableOffsetY += static_cast<int>(std::lround(middle.y() - reach.center().y()));
}

void TakeZoom(TableView& view, double zoom) {
  view.TableZoom = std::clamp(static_cast<int>(zoom), kMinimumZoom, kMaximumZoom);
  SetCoefficients(view);
}

// Upright: as wide as the window, or as high as leaves the plates their room, which hang on the lower rail.
void FitUpright(TableView& view) {
  const double width = view.Window.width();
  const double height = view.Window.height();
  double scale = std::min(width / kTableFrame.width(), (height - kBelowTable) / kTableFrame.height());
  scale = std::min(scale, (height - view.MarginBottom) / (kFeltBottom - kTableFrame.top()));
  TakeZoom(view, scale * kTableUnits);
  const QRectF reach = FrameExtremes(view);
  const double below =
      std::max<double>(kBelowTable, view.MarginBottom - (kTableFrame.bottom() - kFeltBottom) * view.Scale());
  const double spare = std::max(0.0, height - reach.height() - below);
  PutMiddle(view, reach, QPointF(width / 2, spare / 2 + reach.height() / 2));
}

}  // namespace

void FitTable(TableView& view) {
  SetCoefficients(view);
  if (view.TableAngle == 0) return FitUpright(view);
  TakeZoom(view, kMaximumZoom);
  const QRectF reach = FrameExtremes(view);
  const double height = view.Window.height() - view.MarginTop - view.MarginBottom;
  TakeZoom(view, kMaximumZoom * std::min(view.Window.width() / reach.width(), height / reach.height()));
  PutMiddle(view, FrameExtremes(view), QPointF(view.Window.width() / 2.0, view.MarginTop + height / 2));
}

void ResizeView(TableView& view, QSize window) {
  const QPointF middle = view.ToTable(Centre(view));
  view.Window = window;
  Pin(view, middle, Centre(view));
}

bool SaveView(TableView& view, int number) {
  if (number < 0 || number >= kSavedViews) return false;
  view.SavedViews[number] = {view.TableZoom, view.TableAngle, view.TableOffsetX, view.TableOffsetY};
  return true;
}

bool RestoreView(TableView& view, int number) {
  if (number < 0 || number >= kSavedViews || view.SavedViews[number].TableZoom < kMinimumZoom) return false;
  const SavedView& saved = view.SavedViews[number];
  view.TableZoom = std::min(saved.TableZoom, kMaximumZoom);
  view.TableAngle = (saved.TableAngle % 360 + 360) % 360;
  view.TableOffsetX = saved.TableOffsetX;
  view.TableOffsetY = saved.TableOffsetY;
  SetCoefficients(view);
  ShiftTable(view, 0, 0);
  return true;
}

namespace {

QRectF Reach(const TableView& view, double rail) {
  QRectF reach;
  for (const Corner& corner : kCorners) {
    const QPointF centre = view.ToScreen({corner.x, corner.y});
    const double radius = (corner.radius + rail) * view.Scale();
    reach |=
        QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius).adjusted(0, 0, 0.001, 0.001);
  }
  return reach;
}

}  // namespace

QRectF TableExtremes(const TableView& view) { return Reach(view, 0); }

// The round corners reach less far than those of the frame when the table is turned.
QRectF FrameExtremes(const TableView& view) {
  return Reach(view, -kTableFrame.left()) & view.Transform().mapRect(kTableFrame);
}

}  // namespace tessaryn
