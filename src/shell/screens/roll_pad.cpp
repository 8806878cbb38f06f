#include "shell/screens/roll_pad.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>

#include "play/auto_roll.h"
#include "shell/screens/core_words.h"
#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/run_controls.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr const char* kPadCaptions[kRollPadLayouts] = {
    QT_TRANSLATE_NOOP("Core", "&11 basic numbers"), QT_TRANSLATE_NOOP("Core", "&36 combos (triangle)"),
    QT_TRANSLATE_NOOP("Core", "3&6 combos (box)"), QT_TRANSLATE_NOOP("Core", "&Individual dice faces")};

constexpr int kFrame = 7;  // the felt round the cells, in pixels
// A cell of each layout, in pixels: about as wide as the buttons under the grid.
constexpr QSize kCellSizes[kRollPadLayouts] = {{44, 48}, {46, 34}, {62, 38}, {56, 56}};

const QColor kFelt(9, 62, 40);
const QColor kCell(16, 96, 62);
const QColor kHover(34, 136, 92);
const QColor kChosen(196, 152, 40);
const QColor kLine(226, 214, 176, 130);
const QColor kFocus(255, 224, 84);
const QColor kText(250, 246, 232);
const QColor kSevenText(255, 158, 146);

// The dice of a cell that always asks for the same; open dice are 0.
PadRoll FixedCell(int layout, int row, int column) {
  Generators unused;
  if (layout == kPadTotals) return {};
  return PadCellRoll(layout, row, column, unused);
}

void PaintFace(QPainter& painter, QPointF centre, double side, int face, const QColor& body) {
  painter.save();
  painter.translate(centre);
  painter.scale(side, side);
  PaintDie(painter, face, body, Qt::white);
  painter.restore();
}

}  // namespace

// --- The grid.

PadGrid::PadGrid(QWidget* parent) : QWidget(parent) {
  setObjectName("picRYON");
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  SetPadLayout(kPadTotals);
}

void PadGrid::SetPadLayout(int layout) {
  layout_ = layout;
  chosen_ = {};
  hover_ = {};
  focus_ = layout == kPadTriangle ? PadCell{0, 5} : PadCell{0, 0};
  if (!IsCell(focus_.Row, focus_.Column)) Walk(1, 0);
  setFixedSize(sizeHint());
  TellFocus();
  update();
}

void PadGrid::SetChosen(PadRoll chosen) {
  chosen_ = chosen;
  update();
}

QSize PadGrid::sizeHint() const {
  const RollPadGrid grid = GridOf(layout_);
  const QSize cell = kCellSizes[layout_];
  return {grid.Columns * cell.width() + 2 * kFrame, grid.Rows * cell.height() + 2 * kFrame};
}

QRectF PadGrid::CellBox(int row, int column) const {
  const QSizeF cell = kCellSizes[layout_];
  return {QPointF(kFrame + column * cell.width(), kFrame + row * cell.height()), cell};
}

// The felt round the cells belongs to none.
PadCell PadGrid::CellAt(QPointF point) const {
  const QPoint inside = point.toPoint() - QPoint(kFrame, kFrame);
  return PadCellAt(layout_, inside.x(), inside.y(), width() - 2 * kFrame, height() - 2 * kFrame);
}

QPoint PadGrid::MiddleOfCell(int row, int column) const { return CellBox(row, column).center().toPoint(); }

bool PadGrid::IsCell(int row, int column) const {
  const RollPadGrid grid = GridOf(layout_);
  if (row < 0 || column < 0 || row >= grid.Rows || column >= grid.Columns) return false;
  if (layout_ == kPadTotals) return true;
  const PadRoll roll = FixedCell(layout_, row, column);
  return roll.Die1 != 0 || roll.Die2 != 0;
}

void PadGrid::PaintCell(QPainter& painter, int row, int column) const {
  const QRectF box = CellBox(row, column).adjusted(2, 2, -2, -2);
  const bool hover = hover_.Row == row && hover_.Column == column;
  const bool focus = hasFocus() && focus_.Row == row && focus_.Column == column;
  const PadRoll roll = FixedCell(layout_, row, column);
  const bool chosen = layout_ == kPadFaces && ((row == 0 && roll.Die1 != 0 && roll.Die1 == chosen_.Die1) ||
                                               (row == 1 && roll.Die2 != 0 && roll.Die2 == chosen_.Die2));
  painter.setPen(QPen(focus ? kFocus : kLine, focus ? 2.4 : 1));
  painter.setBrush(chosen ? kChosen : hover ? kHover : kCell);
  painter.drawRoundedRect(box, 5, 5);
  if (layout_ == kPadTotals) {
    QFont large = font();
    large.setBold(true);
    large.setPixelSize(21);
    painter.setFont(large);
    painter.setPen(column + 2 == 7 ? kSevenText : kText);
    painter.drawText(box, Qt::AlignCenter, QString::number(column + 2));
    return;
  }
  const bool both = roll.IsComplete();
  const double side = both ? std::min(box.height() * 0.72, box.width() * 0.44) : box.height() * 0.8;
  const QPointF apart(both ? side * 0.56 : 0, 0);
  if (roll.Die1 != 0) PaintFace(painter, box.center() - apart, side, roll.Die1, kDiceRed);
  if (roll.Die2 != 0) PaintFace(painter, box.center() + apart, side, roll.Die2, kDiceBlue);
}

void PadGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kFelt);
  painter.drawRoundedRect(rect(), 9, 9);
  const RollPadGrid grid = GridOf(layout_);
  for (int row = 0; row < grid.Rows; ++row)
    for (int column = 0; column < grid.Columns; ++column)
      if (IsCell(row, column)) PaintCell(painter, row, column);
}

// The other buttons are the pad's.
void PadGrid::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const PadCell cell = CellAt(event->position());
  if (!IsCell(cell.Row, cell.Column)) return;
  focus_ = cell;
  TellFocus();
  update();
  emit pressed(cell.Row, cell.Column);
}

void PadGrid::mouseMoveEvent(QMouseEvent* event) {
  const PadCell cell = CellAt(event->position());
  if (cell.Row == hover_.Row && cell.Column == hover_.Column) return;
  hover_ = cell;
  update();
}

void PadGrid::leaveEvent(QEvent*) {
  hover_ = {};
  update();
}

// To the next cell in a direction, past places that are none.
void PadGrid::Walk(int rows, int columns) {
  PadCell next = focus_;
  const RollPadGrid grid = GridOf(layout_);
  do {
    next.Row += rows;
    next.Column += columns;
    if (next.Row < 0 || next.Column < 0 || next.Row >= grid.Rows || next.Column >= grid.Columns) return;
  } while (!IsCell(next.Row, next.Column));
  focus_ = next;
  TellFocus();
  update();
}

void PadGrid::TellFocus() {
  const PadRoll roll = FixedCell(layout_, focus_.Row, focus_.Column);
  if (layout_ == kPadTotals)
    setAccessibleName(tr("Roll a %1").arg(focus_.Column + 2));
  else if (roll.IsComplete())
    setAccessibleName(tr("Roll %1 and %2").arg(roll.Die1).arg(roll.Die2));
  else
    setAccessibleName(roll.Die1 != 0 ? tr("First die %1").arg(roll.Die1)
                                     : tr("Second die %1").arg(roll.Die2));
}

void PadGrid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Walk(0, -1);
    case Qt::Key_Right:
      return Walk(0, 1);
    case Qt::Key_Up:
      return Walk(-1, 0);
    case Qt::Key_Down:
      return Walk(1, 0);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      // A key that is held down is one press.
      if (!event->isAutoRepeat()) emit pressed(focus_.Row, focus_.Column);
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

// --- The pad.

RollPad::RollPad(Game& game, QWidget* parent)
    : ToolWindow("frmRYON", parent),
      game_(game),
      grid_(new PadGrid(this)),
      counter_(new QLabel(this)),
      random_(new QPushButton(tr("&Random Roll"), this)),
      run_(new QPushButton(this)),
      throttle_(new QSlider(Qt::Horizontal, this)),
      speed_(new QLabel(this)) {
  setWindowTitle(tr("Roll Your Own Numbers"));
  counter_->setObjectName("lblRollCounter");
  random_->setObjectName("cmdRandomRoll");
  run_->setObjectName("cmdTurboRoll");
  throttle_->setObjectName("hsbThrottle");
  throttle_->setRange(0, kThrottleAutoRoll);
  throttle_->setPageStep(1);
  throttle_->setMinimumWidth(90);
  throttle_->setAccessibleName(tr("Speed of a run"));
  speed_->setObjectName("lblThrottle");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addWidget(grid_, 0, Qt::AlignHCenter);
  auto* buttons = new QHBoxLayout;
  for (QWidget* part :
       {static_cast<QWidget*>(counter_), static_cast<QWidget*>(random_), static_cast<QWidget*>(run_)})
    buttons->addWidget(part);
  column->addLayout(buttons);
  auto* speeds = new QHBoxLayout;
  speeds->addWidget(throttle_, 1);
  speeds->addWidget(speed_);
  column->addLayout(speeds);
  connect(grid_, &PadGrid::pressed, this, &RollPad::Pressed);
  connect(random_, &QPushButton::clicked, this, &RollPad::RandomRoll);
  connect(run_, &QPushButton::clicked, this, &RollPad::ToggleRun);
  connect(throttle_, &QSlider::valueChanged, this, [this](int position) {
    SetThrottle(game_, position);
    Refresh();
  });
  Refresh();
}

void RollPad::Refresh() {
  const QSignalBlocker quiet(throttle_);
  throttle_->setValue(game_.settings.RollThrottle);
  speed_->setText(ThrottleText(game_.settings.RollThrottle));
  // The window's own button has the access letter; it works from here too.
  run_->setText(RunCaption(game_).remove('&'));
  run_->setEnabled(game_.table.AutoRollActive || !game_.table.RollInProgress);
  random_->setEnabled(!game_.table.RollInProgress || game_.table.AutoRollActive);
  counter_->setText(tr("Roll %1").arg(ShownCount(SessionRolls(game_.stats))));
}

// A run or a script is asked to stop, and the press goes no further; so it does while a roll is under way,
// and when the amount being keyed in gave a message.
bool RollPad::MayAct() {
  if (!AskBeforeCommand(game_) || game_.table.RollInProgress) return false;
  return !commitEntry || commitEntry();
}

void RollPad::Pressed(int row, int column) {
  if (!MayAct()) return;
  PadRoll roll = PadCellRoll(grid_->PadLayout(), row, column, game_.generators);
  if (grid_->PadLayout() == kPadFaces) {
    roll = chosen_ = JoinFaces(chosen_, roll);
    grid_->SetChosen(chosen_);
  }
  if (!roll.IsComplete()) return;
  chosen_ = {};
  grid_->SetChosen(chosen_);
  game_.table.ManualDie1 = roll.Die1;
  game_.table.ManualDie2 = roll.Die2;
  game_.table.ManualRollPending = true;
  RollDice(game_);
  // Dice that were not rolled, as when a line bet was wanting, are no other roll's.
  game_.table.ManualRollPending = false;
  Refresh();
}

void RollPad::RandomRoll() {
  if (!MayAct()) return;
  RollDice(game_);
  Refresh();
}

void RollPad::ToggleRun() {
  if (!game_.table.AutoRollActive && commitEntry && !commitEntry()) return;
  ToggleAutoRoll(game_);
  Refresh();
}

void RollPad::SetPadLayout(int layout) {
  chosen_ = {};
  grid_->SetPadLayout(layout);
  QWidget::layout()->activate();
}

// --- The menu.

void RollPad::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) ShowMenu(event->globalPosition().toPoint());
}

// By the keyboard; the mouse has shown it at the press.
void RollPad::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() != QContextMenuEvent::Mouse) ShowMenu(grid_->mapToGlobal(grid_->rect().center()));
}

// Doesn't wait for the choice, so that an Auto-Roll goes on behind the menu.
void RollPad::ShowMenu(QPoint globalPoint) {
  auto* menu = new QMenu(this);
  menu->setObjectName("mnuRYON");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  AddLayouts(*menu);
  menu->addSeparator();
  AddParts(*menu);
  menu->addSeparator();
  AddSettings(*menu);
  menu->addSeparator();
  QAction* hiding = menu->addAction(tr("&Hide"), this, &QWidget::hide);
  hiding->setObjectName("mnuHide");
  menu->popup(globalPoint);
}

void RollPad::AddLayouts(QMenu& menu) {
  auto* layouts = new QActionGroup(&menu);
  QMenu* display = menu.addMenu(tr("&Display"));
  display->menuAction()->setObjectName("mnuRYONDisplay");
  for (int layout = 0; layout < kRollPadLayouts; ++layout) {
    QAction* action = display->addAction(CoreWords(kPadCaptions[layout]));
    action->setObjectName(QString("mnuRYONDisplay%1").arg(layout));
    action->setCheckable(true);
    action->setChecked(layout == grid_->PadLayout());
    layouts->addAction(action);
    connect(action, &QAction::triggered, this, [this, layout] { SetPadLayout(layout); });
  }
}

// What can be shown and hidden.
void RollPad::AddParts(QMenu& menu) {
  const struct {
    const char* name;
    QString text;
    QWidget* part;
  } parts[] = {{"mnuRollCounter", tr("Roll &counter"), counter_},
               {"mnuTurboRollButton", tr("&Turbo-Roll button"), run_},
               {"mnuRandomButton", tr("&Random button"), random_}};
  for (const auto& row : parts) {
    QAction* action = menu.addAction(row.text);
    action->setObjectName(row.name);
    action->setCheckable(true);
    action->setChecked(!row.part->isHidden());
    connect(action, &QAction::toggled, row.part, &QWidget::setVisible);
  }
}

// Each asks first while something runs, as the same commands of the window do.
void RollPad::AddSettings(QMenu& menu) {
  const struct {
    const char* name;
    QString text;
    void (*ask)(Game&);
  } settings[] = {{"mnuSetAutoRollTimeDelay", tr("Set Auto-Roll t&ime delay ..."), SetAutoRollDelay},
                  {"mnuSetAutoStop", tr("Set Auto-&Stop ..."), SetAutoStop}};
  for (const auto& row : settings) {
    QAction* action = menu.addAction(row.text);
    action->setObjectName(row.name);
    const auto ask = row.ask;
    connect(action, &QAction::triggered, this, [this, ask] {
      if (MayAct()) ask(game_);
    });
  }
}

}  // namespace tessaryn
