#include "shell/screens/roll_files_list.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "dice/roll_file.h"
#include "shell/table/die_face.h"
#include "shell/table/number_habit.h"

namespace tessaryn {

const RollHighlight kRollHighlightKinds[kRollHighlights] = {
    {"mnuHighlightNothing", QT_TRANSLATE_NOOP("tessaryn::RollList", "&Nothing"), nullptr},
    {"mnuHighlightSevens", QT_TRANSLATE_NOOP("tessaryn::RollList", "&Sevens"),
     [](int a, int b) { return a + b == 7; }},
    {"mnuHighlightCraps", QT_TRANSLATE_NOOP("tessaryn::RollList", "&Craps: 2, 3 and 12"),
     [](int a, int b) { return a + b < 4 || a + b == 12; }},
    {"mnuHighlightPoints", QT_TRANSLATE_NOOP("tessaryn::RollList", "&Point numbers"),
     [](int a, int b) { return a + b != 7 && a + b > 3 && a + b < 11; }},
    {"mnuHighlightSixEight", QT_TRANSLATE_NOOP("tessaryn::RollList", "Si&x and eight"),
     [](int a, int b) { return a + b == 6 || a + b == 8; }},
    {"mnuHighlightPairs", QT_TRANSLATE_NOOP("tessaryn::RollList", "P&airs"),
     [](int a, int b) { return a == b; }}};

namespace {

constexpr int kMarker = 14;  // for the arrow of the next roll
constexpr int kPad = 4;
constexpr int kColumnGap = 10;
constexpr int kWheelRolls = 3;
constexpr int kWheelStep = 120;

}  // namespace

RollList::RollList(RollFile& file, QWidget* parent) : QAbstractScrollArea(parent), file_(file) {
  setObjectName("picDiceRolls");
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  verticalScrollBar()->setObjectName("vsbDiceRolls");
  verticalScrollBar()->setAccessibleName(tr("First roll shown"));
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  Measure();
  Tell();
}

QSize RollList::sizeHint() const { return {3 * columnWidth_ + 24, 16 * rowHeight_}; }
QSize RollList::minimumSizeHint() const { return {columnWidth_ + 20, 4 * rowHeight_}; }

std::int64_t RollList::Length() const { return RollFileLength(file_); }
std::int64_t RollList::Top() const { return verticalScrollBar()->value() + std::int64_t{1}; }

// Rows, columns and the bar, from the room and the longest number.
void RollList::Measure() {
  QFont own = font();
  if (fontSize_ > 0) own.setPointSize(fontSize_);
  const QFontMetrics metrics(own);
  rowHeight_ = metrics.height() + 4;
  numberWidth_ = metrics.horizontalAdvance(ShownCount(Length() + 1));
  numberWidth_ = std::max(numberWidth_, metrics.horizontalAdvance("99,999"));
  const int face = rowHeight_ - 4;
  columnWidth_ = kMarker + numberWidth_ + 2 * face + metrics.horizontalAdvance("12") + 4 * kPad + kColumnGap;
  const qreal ratio = devicePixelRatioF();
  if (faces_[0].size() != QSize(face, face) * ratio)
    for (int die = 0; die < 2; ++die)
      for (int pips = 1; pips <= 6; ++pips)
        faces_[static_cast<std::size_t>(die * 6 + pips - 1)] =
            DieFace(pips, die == 0 ? kDiceRed : kDiceBlue, face, ratio);
  rows_ = std::max(1, viewport()->height() / rowHeight_);
  columns_ = std::max(1, viewport()->width() / columnWidth_);
  QScrollBar* bar = verticalScrollBar();
  // The file's end takes a place too: there the next roll is added.
  const std::int64_t hidden = Length() + 1 - std::int64_t{rows_} * columns_;
  bar->setRange(0, static_cast<int>(std::max<std::int64_t>(hidden, 0)));
  bar->setPageStep(rows_ * columns_);
  bar->setSingleStep(1);
}

void RollList::Refresh(bool follow) {
  Measure();
  if (follow) Show(file_.RollFileCursor);
  Tell();
  viewport()->update();
}

void RollList::SetHighlight(int kind) {
  highlight_ = kind;
  viewport()->update();
}

void RollList::SetFontSize(int points) {
  fontSize_ = points;
  Refresh(true);
}

QRect RollList::CellOf(RollNumber roll) const {
  const std::int64_t place = roll - Top();
  if (place < 0 || place >= std::int64_t{rows_} * columns_) return {};
  const auto column = static_cast<int>(place / rows_);
  const auto row = static_cast<int>(place % rows_);
  return {column * columnWidth_, row * rowHeight_, columnWidth_ - kColumnGap, rowHeight_};
}

std::int64_t RollList::RollAt(QPoint point) const {
  if (!IsRollFileOpen(file_)) return 0;
  const int column = std::clamp(point.x() / columnWidth_, 0, columns_ - 1);
  const int row = std::clamp(point.y() / rowHeight_, 0, rows_ - 1);
  return std::min(Top() + std::int64_t{column} * rows_ + row, Length() + 1);
}

void RollList::Show(RollNumber roll) {
  QScrollBar* bar = verticalScrollBar();
  const std::int64_t page = std::int64_t{rows_} * columns_;
  if (roll < Top()) bar->setValue(static_cast<int>(roll - 1));
  if (roll >= Top() + page) bar->setValue(static_cast<int>(roll - page));
}

// --- Painting.

void RollList::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  QFont own = font();
  if (fontSize_ > 0) own.setPointSize(fontSize_);
  painter.setFont(own);
  if (!IsRollFileOpen(file_)) {
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("No dice roll file is open.\nFile, New or Open begins."));
    return;
  }
  std::vector<unsigned char> rolls;
  if (!ReadRolls(file_, static_cast<std::int32_t>(Top()), rows_ * columns_, rolls).empty()) rolls.clear();
  for (std::size_t n = 0; n < rolls.size(); ++n) {
    const RollNumber roll = Top() + static_cast<std::int64_t>(n);
    PaintRoll(painter, CellOf(roll), roll, rolls[n]);
  }
  const QRect end = CellOf(Length() + 1);
  if (!end.isEmpty()) PaintEnd(painter, end);
  const QRect next = CellOf(file_.RollFileCursor);
  if (!next.isEmpty()) PaintMarker(painter, next);
}

void RollList::PaintRoll(QPainter& painter, const QRect& cell, RollNumber roll, unsigned char byte) const {
  const int die1 = RollByteDie1(byte);
  const int die2 = RollByteDie2(byte);
  const bool good = CheckRollValue(byte);
  const RollSelection selection = SelectedRolls(file_);
  const bool selected = selection.Count > 1 && roll >= selection.First &&
                        roll < selection.First + std::int64_t{selection.Count};
  const auto marks = kRollHighlightKinds[highlight_].marks;
  const bool marked = good && marks != nullptr && marks(die1, die2);
  if (selected) painter.fillRect(cell, palette().color(QPalette::Highlight));
  const QPalette::ColorRole role = selected ? QPalette::HighlightedText : QPalette::Text;
  const QRect inside = cell.adjusted(kMarker, 0, 0, 0);
  painter.setPen(selected ? palette().color(role) : palette().color(QPalette::PlaceholderText));
  painter.drawText(QRect(inside.left(), cell.top(), numberWidth_, cell.height()),
                   Qt::AlignRight | Qt::AlignVCenter, ShownCount(roll));
  const int face = rowHeight_ - 4;
  int left = inside.left() + numberWidth_ + 2 * kPad;
  painter.setPen(palette().color(role));
  if (!good) {
    painter.drawText(QRect(left, cell.top(), cell.right() - left, cell.height()), Qt::AlignVCenter, "? ?");
    return;
  }
  painter.drawPixmap(left, cell.top() + 2, faces_[static_cast<std::size_t>(die1 - 1)]);
  painter.drawPixmap(left + face + 2, cell.top() + 2, faces_[static_cast<std::size_t>(5 + die2)]);
  left += 2 * face + kPad;
  const QRect total(left, cell.top(), cell.right() + 1 - left, cell.height());
  if (marked) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(role));
    painter.setBrush(selected ? QBrush(Qt::NoBrush) : QBrush(QColor(255, 215, 94)));
    painter.drawRoundedRect(QRectF(total).adjusted(0.5, 1.5, -0.5, -1.5), 5, 5);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    if (!selected) painter.setPen(Qt::black);
  }
  QFont bold = painter.font();
  bold.setBold(marked);
  painter.setFont(bold);
  painter.drawText(total, Qt::AlignCenter, QString::number(die1 + die2));
  bold.setBold(false);
  painter.setFont(bold);
}

void RollList::PaintEnd(QPainter& painter, const QRect& cell) const {
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(cell.adjusted(kMarker, 0, 0, 0), Qt::AlignRight | Qt::AlignVCenter, tr("end of file"));
}

// An arrow at the next roll, and the face that has been typed.
void RollList::PaintMarker(QPainter& painter, const QRect& cell) const {
  painter.setRenderHint(QPainter::Antialiasing);
  const bool selected = SelectedRolls(file_).Count > 1;
  const QColor colour = palette().color(selected     ? QPalette::HighlightedText
                                        : hasFocus() ? QPalette::Highlight
                                                     : QPalette::Text);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  const double middle = cell.top() + cell.height() / 2.0;
  const QPointF arrow[3] = {
      {cell.left() + 3.0, middle - 5}, {cell.left() + 11.0, middle}, {cell.left() + 3.0, middle + 5}};
  painter.drawPolygon(arrow, 3);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, hasFocus() ? 2 : 1));
  painter.drawRoundedRect(QRectF(cell).adjusted(kMarker, 1, -1, -1), 3, 3);
  if (typed_ == 0) return;
  const QRect box = cell.adjusted(kMarker + numberWidth_ + kPad, 2, -2, -2);
  painter.fillRect(box, palette().color(QPalette::Base));
  painter.drawPixmap(box.left() + kPad, cell.top() + 2, faces_[static_cast<std::size_t>(typed_ - 1)]);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(box.adjusted(rowHeight_ + kPad, 0, 0, 0), Qt::AlignVCenter, "_");
}

// --- Mouse and keys.

void RollList::GoTo(RollNumber roll, bool extend) {
  if (!IsRollFileOpen(file_)) return;
  typed_ = 0;
  roll = std::clamp<std::int64_t>(roll, 1, Length() + 1);
  if (extend)
    file_.RollFileSelectEnd = static_cast<std::int32_t>(roll);
  else
    SetRollFileCursor(file_, roll);
  Show(roll);
  Tell();
  viewport()->update();
  emit moved();
}

void RollList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  if (const RollNumber roll = RollAt(event->position().toPoint()); roll > 0)
    GoTo(roll, (event->modifiers() & Qt::ShiftModifier) != 0);
}

void RollList::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) == 0) return;
  const QPoint point = event->position().toPoint();
  RollNumber roll = RollAt(point);
  if (roll <= 0) return;
  // Beyond the edge it scrolls.
  if (point.y() < 0) roll = Top() - 1;
  if (point.y() > viewport()->height() || point.x() > viewport()->width())
    roll = Top() + std::int64_t{rows_} * columns_;
  GoTo(roll, true);
}

void RollList::wheelEvent(QWheelEvent* event) {
  const int steps = event->angleDelta().y();
  verticalScrollBar()->setValue(verticalScrollBar()->value() - steps * kWheelRolls / kWheelStep);
  event->accept();
}

bool RollList::Walk(const QKeyEvent& event) {
  const bool extend = (event.modifiers() & Qt::ShiftModifier) != 0;
  const std::int64_t from = extend ? file_.RollFileSelectEnd : file_.RollFileCursor;
  const std::int64_t page = std::int64_t{rows_} * columns_;
  const struct {
    int key;
    std::int64_t to;
  } steps[] = {{Qt::Key_Up, from - 1},
               {Qt::Key_Down, from + 1},
               {Qt::Key_Left, from - rows_},
               {Qt::Key_Right, from + rows_},
               {Qt::Key_PageUp, from - page},
               {Qt::Key_PageDown, from + page},
               {Qt::Key_Home, 1},
               {Qt::Key_End, Length() + 1}};
  for (const auto& step : steps)
    if (event.key() == step.key) {
      GoTo(step.to, extend);
      return true;
    }
  return false;
}

// Two faces make a roll. What it has no use for is the table's.
void RollList::keyPressEvent(QKeyEvent* event) {
  const auto other = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  if (other != Qt::NoModifier && other != Qt::ControlModifier) return event->ignore();
  if (Walk(*event)) return;
  const int face = event->key() - Qt::Key_0;
  if (other == Qt::NoModifier && face >= 1 && face <= 6) {
    const int first = typed_;
    typed_ = first == 0 ? face : 0;
    if (first != 0) emit typed(first, face);
    viewport()->update();
    return;
  }
  const bool rubs = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Escape;
  if (rubs && typed_ != 0) {
    typed_ = 0;
    viewport()->update();
    return;
  }
  event->ignore();
}

void RollList::resizeEvent(QResizeEvent*) { Refresh(false); }

void RollList::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Refresh(false);
}

void RollList::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}
void RollList::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

// What a screen reader says of it.
void RollList::Tell() {
  QString text = tr("No dice roll file is open");
  if (IsRollFileOpen(file_)) {
    const RollSelection selection = SelectedRolls(file_);
    text = tr("Dice rolls, next roll %1 of %2").arg(file_.RollFileCursor).arg(Length());
    if (selection.Count > 1)
      text = tr("%1, rolls %2 to %3 selected")
                 .arg(text)
                 .arg(selection.First)
                 .arg(selection.First + selection.Count - 1);
  }
  if (text != accessibleName()) setAccessibleName(text);
}

}  // namespace tessaryn
