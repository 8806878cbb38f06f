// Rotation, zoom and shift of the table.
#include "shell/table/table_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tessaryn {
namespace {

TableView Fitted(int width = 1200, int height = 700) {
  TableView view;
  view.Window = QSize(width, height);
  FitTable(view);
  return view;
}

double Apart(QPointF a, QPointF b) { return std::hypot(a.x() - b.x(), a.y() - b.y()); }

TEST(TableView, PointsFollowTheFourCoefficients) {
  TableView view = Fitted();
  SetTableRotation(view, 33);
  for (const QPointF point : {QPointF(0, 0), QPointF(1248, 0), QPointF(300, 410)}) {
    const double x = point.x() * view.TableCosX + point.y() * view.TableSinX + view.TableOffsetX;
    const double y = point.y() * view.TableCosY - point.x() * view.TableSinY + view.TableOffsetY;
    EXPECT_LT(Apart(view.ToScreen(point), {x, y}), 0.01);
    EXPECT_LT(Apart(view.ToTable(view.ToScreen(point)), point), 0.01);
  }
}

TEST(TableView, AFullTurnInAnyStepsEndsWhereItBegan) {
  for (const int step : {30, -30, 45, 90, -180, 120, 1}) {
    TableView view = Fitted();
    const QPointF middle = view.ToTable({600, 350});
    for (int turned = 0; turned != 360 * (step > 0 ? 1 : -1); turned += step) SetTableRotation(view, step);
    EXPECT_EQ(view.TableAngle, 0) << step;
    // Offsets are whole pixels, so each turn may lose half of one.
    EXPECT_LT(Apart(view.ToTable({600, 350}), middle), std::abs(360 / step)) << step;
  }
}

TEST(TableView, TheMiddleOfTheWindowStaysThroughZoomAndTurn) {
  TableView view = Fitted();
  ShiftTable(view, 140, -60);
  const QPointF middle = view.ToTable({600, 350});
  for (int n = 0; n < 6; ++n) {
    ZoomIn(view, 0);
    SetTableRotation(view, 30);
  }
  for (int n = 0; n < 6; ++n) {
    ZoomOut(view, 0);
    SetTableRotation(view, -30);
  }
  EXPECT_LT(Apart(view.ToTable({600, 350}), middle), 16);
  EXPECT_EQ(view.TableAngle, 0);
}

TEST(TableView, ZoomKeepsItsLimitsAndModes) {
  TableView view = Fitted();
  ZoomIn(view, 3);
  EXPECT_EQ(view.TableZoom, 5000);
  ZoomIn(view, 0);
  EXPECT_EQ(view.TableZoom, 5000);
  ZoomOut(view, 3);
  EXPECT_EQ(view.TableZoom, 500);
  ZoomOut(view, 0);
  EXPECT_EQ(view.TableZoom, 500);
  ZoomIn(view, 0);
  EXPECT_EQ(view.TableZoom, 600);
  ZoomIn(view, 1);
  EXPECT_EQ(view.TableZoom, static_cast<int>(700 / 0.4487));
  ZoomOut(view, 2);
  EXPECT_EQ(view.TableZoom, 1200);
}

TEST(TableView, TheTableNeverLeavesTheWindow) {
  std::mt19937 random(11);
  TableView view = Fitted();
  for (int n = 0; n < 3000; ++n) {
    const int what = static_cast<int>(random() % 6);
    const int sign = random() % 2 == 0 ? 1 : -1;
    if (what == 0) SetTableRotation(view, 15 * sign);
    if (what == 1) ZoomTo(view, 500 + static_cast<int>(random() % 3000), {600, 350});
    if (what <= 1) CenterTable(view);
    if (what == 2) MoveTable(view, sign, 0, static_cast<int>(random() % 4));
    if (what == 3) MoveTable(view, 0, sign, static_cast<int>(random() % 4));
    if (what == 4)
      ShiftTable(view, static_cast<int>(random() % 4000) * sign, -static_cast<int>(random() % 4000) * sign);
    const QRectF reach = TableExtremes(view);
    const QRectF window(0, 0, 1200, 700);
    // Smaller than the window it is wholly inside; larger it leaves no gap.
    const auto holds = [](double low, double high, double size) {
      return high - low <= size ? low >= -1.6 && high <= size + 1.6 : low <= 1.6 && high >= size - 1.6;
    };
    ASSERT_TRUE(holds(reach.left(), reach.right(), window.width()))
        << n << " " << reach.left() << " " << reach.right();
    ASSERT_TRUE(holds(reach.top(), reach.bottom(), window.height())) << n;
  }
}

TEST(TableView, SavedViewsReturnAndEmptyOnesChangeNothing) {
  TableView view = Fitted();
  SetTableRotation(view, 30);
  ZoomTo(view, 1500, {600, 350});
  ShiftTable(view, 20, 10);
  EXPECT_TRUE(SaveView(view, 9));
  const SavedView saved = view.SavedViews[9];
  EXPECT_FALSE(RestoreView(view, 0)) << "empty";
  EXPECT_FALSE(RestoreView(view, 10));
  EXPECT_FALSE(SaveView(view, -1));
  EXPECT_EQ(view.TableZoom, 1500);
  FitTable(view);
  SetTableRotation(view, 200);
  EXPECT_TRUE(RestoreView(view, 9));
  EXPECT_EQ(view.TableAngle, 30);
  EXPECT_EQ(view.TableZoom, saved.TableZoom);
  EXPECT_EQ(view.TableOffsetX, saved.TableOffsetX);
  EXPECT_EQ(view.TableOffsetY, saved.TableOffsetY);
}

TEST(TableView, FittingShowsTheWholeTableAtEveryAngleAndSize) {
  for (const QSize size : {QSize(1024, 500), QSize(700, 900), QSize(3840, 2000), QSize(1280, 690)})
    for (int angle = 0; angle < 360; angle += 15) {
      TableView view;
      view.Window = size;
      SetTableRotation(view, angle);
      FitTable(view);
      if (view.TableZoom == kMinimumZoom) continue;  // no smaller
      const QRectF reach = TableExtremes(view);
      EXPECT_GE(reach.left(), -2) << angle;
      EXPECT_GE(reach.top(), -2) << angle;
      EXPECT_LE(reach.right(), size.width() + 2) << angle;
      EXPECT_LE(reach.bottom(), size.height() + 2) << angle;
    }
}

}  // namespace
}  // namespace tessaryn
