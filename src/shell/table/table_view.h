// How the table lies in the window: rotation, zoom and shift, and the one transform that everything drawn and
// everything clicked goes through.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>
#include <array>

#include "state/screen_state.h"

namespace tessaryn {

inline constexpr int kMinimumZoom = kLeastZoom;
inline constexpr int kMaximumZoom = kMostZoom;
inline constexpr double kTableUnits = 1248;    // the whole table's width in table units
inline constexpr double kTableRatio = 0.4487;  // height to width of the whole table
inline constexpr int kZoomStep = 100;
inline constexpr int kMoveStep = 50;
inline constexpr int kSavedViews = kKeptViews;

using SavedView = KeptView;

// Everything in screen units (device-independent pixels) but the angle. Written by the functions below.
struct TableView {
  int TableAngle = 0;    // whole degrees, 0 to 359
  int TableZoom = 1248;  // the width of the whole table; 500 to 5000
  int TableOffsetX = 0;  // where the table's origin falls
  int TableOffsetY = 0;
  float TableSinX = 0;  // screen x = x * TableCosX + y * TableSinX + TableOffsetX
  float TableCosX = 1;
  float TableSinY = 0;  // screen y = y * TableCosY - x * TableSinY + TableOffsetY
  float TableCosY = 1;
  QSize Window;  // of the widget that shows the table
  // Room that plates take at the upper and the lower edge of the window, where no felt may lie: a table that
  // stands whole and upright needs less of it, since they stand on its rail.
  int MarginTop = 0;
  int MarginBottom = 0;
  std::array<SavedView, kSavedViews> SavedViews;

  // From table units to the screen.
  QTransform Transform() const;
  QPointF ToScreen(QPointF table) const;
  QPointF ToTable(QPointF screen) const;
  double Scale() const { return TableZoom / kTableUnits; }
};

// The keys held: 0 none, 1 Shift, 2 Ctrl, 3 both.
int KeyMode(Qt::KeyboardModifiers keys);

// Adds to the angle; the table point at the window's centre stays there.
void SetTableRotation(TableView& view, int degrees);
// By 100, to the size that fits the window's height (mode 1) or width (2), or to the limit (3); the table
// point at the window's centre stays there.
void ZoomIn(TableView& view, int mode);
void ZoomOut(TableView& view, int mode);
// To a zoom brought within its limits, with the table point under a screen point staying there.
void ZoomTo(TableView& view, int zoom, QPointF fixedPoint);
// By 50 units a click, or with a mode above 0 to the border; the table can't leave the window. dx and dy are
// -1, 0 or 1.
void MoveTable(TableView& view, int dx, int dy, int mode);
// By any distance, bounded in the same way.
void ShiftTable(TableView& view, int dx, int dy);
void CenterTable(TableView& view);
// The drawn table, rail and all, in table units.
inline constexpr QRectF kTableFrame(-38, -20, 1323, 594);
// The lower edge of the felt in it.
inline constexpr double kFeltBottom = 530;
// Below a table that stands upright, for the plates.
inline constexpr int kBelowTable = 18;

// The largest zoom that shows the whole table at its angle, centred.
void FitTable(TableView& view);
// The window has another size: the table point at its centre stays there.
void ResizeView(TableView& view, QSize window);

// False, with nothing changed, for a number out of range, or an empty view.
bool SaveView(TableView& view, int number);
bool RestoreView(TableView& view, int number);

// How far the drawn table reaches on the screen, by the told corners; and with all of its rail.
QRectF TableExtremes(const TableView& view);
QRectF FrameExtremes(const TableView& view);

}  // namespace tessaryn
