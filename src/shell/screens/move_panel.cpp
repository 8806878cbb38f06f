#include "shell/screens/move_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QToolButton>

#include "shell/table/table_view.h"

namespace tessaryn {

namespace {

constexpr int kIconSize = 26;

// A shape in a square of side 2 round the origin, in the colour of the buttons' text.
QIcon DrawnIcon(const QWidget& panel, const QPainterPath& strokes, double turn) {
  const double ratio = panel.devicePixelRatioF();
  QPixmap picture(static_cast<int>(kIconSize * ratio), static_cast<int>(kIconSize * ratio));
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(kIconSize / 2.0, kIconSize / 2.0);
  painter.rotate(turn);
  painter.scale(kIconSize / 2.6, kIconSize / 2.6);
  painter.setPen(
      QPen(panel.palette().color(QPalette::ButtonText), 0.22, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(strokes);
  return QIcon(picture);
}

QPainterPath Arrow() {
  QPainterPath path;
  path.moveTo(0, 0.8);
  path.lineTo(0, -0.8);
  path.moveTo(-0.55, -0.25);
  path.lineTo(0, -0.8);
  path.lineTo(0.55, -0.25);
  return path;
}

QPainterPath Glass(bool plus) {
  QPainterPath path;
  path.addEllipse(QPointF(-0.2, -0.2), 0.65, 0.65);
  path.moveTo(0.3, 0.3);
  path.lineTo(0.9, 0.9);
  path.moveTo(-0.5, -0.2);
  path.lineTo(0.1, -0.2);
  if (plus) {
    path.moveTo(-0.2, -0.5);
    path.lineTo(-0.2, 0.1);
  }
  return path;
}

QPainterPath Turning(bool clockwise) {
  const double side = clockwise ? 1 : -1;
  QPainterPath path;
  path.arcMoveTo(QRectF(-0.8, -0.8, 1.6, 1.6), clockwise ? 200 : -20);
  path.arcTo(QRectF(-0.8, -0.8, 1.6, 1.6), clockwise ? 200 : -20, clockwise ? -220 : 220);
  const QPointF end = path.currentPosition();
  path.moveTo(end + QPointF(-0.45 * side, -0.35));
  path.lineTo(end);
  path.lineTo(end + QPointF(0.25 * side, -0.55));
  return path;
}

QPainterPath Centre() {
  QPainterPath path;
  path.addEllipse(QPointF(0, 0), 0.45, 0.45);
  for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
    path.moveTo(way * 0.45);
    path.lineTo(way * 0.9);
  }
  return path;
}

int KeysHeld() { return KeyMode(QGuiApplication::keyboardModifiers()); }

}  // namespace

MovePanel::MovePanel(QWidget* parent) : ToolWindow("frmMove", parent) {
  setWindowTitle(tr("Move Table"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(8, 8, 8, 8);
  grid->setSpacing(4);
  const QString border = tr("With Shift or Ctrl: to the window's border");
  const QString turn = tr("By 30 degrees; Shift 90, Ctrl 45, both 180");
  struct Way {
    const char* name;
    const char* text;
    int row, column, dx, dy;
    double turn;
  };
  constexpr Way kWays[] = {{"cmdMoveUp", QT_TR_NOOP("Move up"), 0, 1, 0, -1, 0},
                           {"cmdMoveLeft", QT_TR_NOOP("Move left"), 1, 0, -1, 0, -90},
                           {"cmdMoveRight", QT_TR_NOOP("Move right"), 1, 2, 1, 0, 90},
                           {"cmdMoveDown", QT_TR_NOOP("Move down"), 2, 1, 0, 1, 180}};
  for (const Way& way : kWays) {
    QToolButton* button = Add(*grid, way.row, way.column, way.name, tr(way.text), border, Arrow(), way.turn);
    const int dx = way.dx;
    const int dy = way.dy;
    connect(button, &QToolButton::clicked, this, [this, dx, dy] { emit move(dx, dy, KeysHeld()); });
  }
  QToolButton* centre =
      Add(*grid, 1, 1, "cmdCenter", tr("Center"), tr("The table into the middle of the window"), Centre());
  connect(centre, &QToolButton::clicked, this, &MovePanel::center);
  for (const bool clockwise : {false, true}) {
    QToolButton* button =
        Add(*grid, 0, clockwise ? 2 : 0, clockwise ? "cmdRotateCW" : "cmdRotateCCW",
            clockwise ? tr("Turn clockwise") : tr("Turn counterclockwise"), turn, Turning(clockwise));
    connect(button, &QToolButton::clicked, this, [this, clockwise] { emit rotate(clockwise, KeysHeld()); });
  }
  for (const bool in : {false, true}) {
    QToolButton* button =
        Add(*grid, 2, in ? 2 : 0, in ? "cmdZoomIn" : "cmdZoomOut", in ? tr("Zoom in") : tr("Zoom out"),
            tr("Shift: to the window's height; Ctrl: to its width; both: to the limit"), Glass(in));
    connect(button, &QToolButton::clicked, this, [this, in] { emit zoom(in, KeysHeld()); });
  }
  DrawIcons();
  setFixedSize(sizeHint());
}

void MovePanel::DrawIcons() {
  for (const Icon& icon : icons_) icon.button->setIcon(DrawnIcon(*this, icon.strokes, icon.turn));
}

void MovePanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DrawIcons();
}

QToolButton* MovePanel::Add(QGridLayout& grid, int row, int column, const char* name, const QString& text,
                            const QString& hint, const QPainterPath& icon, double turn) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setAccessibleName(text);
  button->setToolTip(text + "\n" + hint);
  button->setIconSize(QSize(kIconSize, kIconSize));
  button->setAutoRepeat(true);
  button->setAutoRepeatDelay(400);
  grid.addWidget(button, row, column);
  icons_.push_back({button, icon, turn});
  return button;
}

}  // namespace tessaryn
