#include "shell/screens/probability_table.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "shell/table/die_face.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

constexpr int kFaces = 6;
constexpr int kFaceColumn = 6;  // die 1's faces
constexpr int kFaceRow = 6;     // die 2's faces
constexpr int kTotalLabels = 7;
constexpr int kTotalColumn = 8;
constexpr int kLeastColumn = 58;
constexpr int kRowHeight = 25;
constexpr int kLockWidth = 12;
const QColor kLockedColour(255, 245, 140);

QString Words(const char* text) { return QCoreApplication::translate("ProbabilityTable", text); }

bool IsCell(ProbabilityCell cell) {
  return KindOfProbabilityCell(cell.row, cell.column) != ProbabilityCellKind::kNone;
}

constexpr int kFaceSide = 16;
constexpr double kFaceRatio = 2;

// A small padlock, so that a locked cell is told without its colour.
void PaintLock(QPainter& painter, const QStyleOptionViewItem& option) {
  const QRect& cell = option.rect;
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  const QColor colour = selected ? option.palette.color(QPalette::HighlightedText) : QColor(70, 60, 0);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF at(cell.left() + 4, cell.center().y() - 4);
  painter.setPen(QPen(colour, 1.3));
  painter.drawArc(QRectF(at.x() + 1.5, at.y(), 5, 7), 0, 180 * 16);
  painter.fillRect(QRectF(at.x(), at.y() + 3.5, 8, 5.5), colour);
  painter.restore();
}

class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Only cells look like cells; the rest of the sheet is the page's ground.
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool cell = (index.flags() & Qt::ItemIsEnabled) != 0;
    painter->fillRect(option.rect, cell ? option.palette.base() : option.palette.window());
    QStyledItemDelegate::paint(painter, option, index);
    if (!cell) return;
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawRect(option.rect.adjusted(-1, -1, 0, 0));
    if (index.data(Qt::UserRole).toBool()) PaintLock(*painter, option);
  }
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
    auto* box = new QLineEdit(parent);
    box->setObjectName("txtProbability");
    box->setAccessibleName(Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Probability")));
    box->setAlignment(Qt::AlignRight);
    box->setFrame(false);
    return box;
  }
  // A text that was not touched is no entry: it is rounded.
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    const auto* box = static_cast<QLineEdit*>(editor);
    if (box->text() != index.data(Qt::EditRole).toString()) model->setData(index, box->text(), Qt::EditRole);
  }
};

QVariant HeaderText(int section, bool across) {
  if (section < kFaces) return QString::number(section + 1);
  if (across)
    return section == kFaceColumn    ? Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 1"))
           : section == kTotalColumn ? Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Totals"))
                                     : "";
  return section == kFaceRow ? Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 2")) : QString();
}

}  // namespace

ProbabilityCell CellOfSheet(int row, int column) {
  if (row < 0 || row >= kSheetRows || column < 0) return {};
  if (column == kTotalColumn) return {kTotalRow, row + 1};
  if (column == kFaceColumn && row < kFaces) return {row + 2, kDie1Column};
  if (column < kFaces && row == kFaceRow) return {column + 2, kDie2Column};
  if (column < kFaces && row < kFaces)
    return {ProbabilityRow(row + 1, column + 1), ProbabilityColumn(row + 1, column + 1)};
  return {};
}

SheetPlace PlaceInSheet(ProbabilityCell cell) {
  switch (KindOfProbabilityCell(cell.row, cell.column)) {
    case ProbabilityCellKind::kTotal:
      return {cell.column - 1, kTotalColumn};
    case ProbabilityCellKind::kFace1:
      return {cell.row - 2, kFaceColumn};
    case ProbabilityCellKind::kFace2:
      return {kFaceRow, cell.row - 2};
    case ProbabilityCellKind::kCombination:
      return {ProbabilityDie1(cell.row, cell.column) - 1, ProbabilityDie2(cell.row, cell.column) - 1};
    default:
      return {};
  }
}

QString ProbabilityCellName(ProbabilityCell cell) {
  switch (KindOfProbabilityCell(cell.row, cell.column)) {
    case ProbabilityCellKind::kTotal:
      return Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Total %1")).arg(cell.column + 1);
    case ProbabilityCellKind::kFace1:
      return Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 1 shows %1")).arg(cell.row - 1);
    case ProbabilityCellKind::kFace2:
      return Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 2 shows %1")).arg(cell.row - 1);
    case ProbabilityCellKind::kCombination:
      return Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 1 shows %1 and die 2 shows %2"))
          .arg(ProbabilityDie1(cell.row, cell.column))
          .arg(ProbabilityDie2(cell.row, cell.column));
    default:
      return {};
  }
}

// --- The model.

ProbabilityModel::ProbabilityModel(const PercentageDice& dice, QObject* parent)
    : QAbstractTableModel(parent), dice_(dice) {}

void ProbabilityModel::ShowAll() { emit dataChanged(index(0, 0), index(kSheetRows - 1, kSheetColumns - 1)); }

int ProbabilityModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kSheetRows; }
int ProbabilityModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kSheetColumns;
}

QVariant ProbabilityModel::data(const QModelIndex& index, int role) const {
  const ProbabilityCell cell = CellOfSheet(index.row(), index.column());
  if (!IsCell(cell)) {
    if (index.column() != kTotalLabels) return {};
    if (role == Qt::DisplayRole) return QString::number(index.row() + 2);
    if (role == Qt::ForegroundRole) return QGuiApplication::palette().windowText();
    return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
  }
  const bool locked = IsProbabilityLocked(dice_, cell.row, cell.column);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return FromCore(ProbabilityCellText(dice_, cell.row, cell.column));
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
      return locked ? QVariant(kLockedColour) : QVariant();
    case Qt::ForegroundRole:
      return locked ? QVariant(QColor(Qt::black)) : QVariant();
    case Qt::UserRole:
      return locked;
    case Qt::AccessibleTextRole:
      return (locked ? Words(QT_TRANSLATE_NOOP("ProbabilityTable", "%1: %2, locked"))
                     : QStringLiteral("%1: %2"))
          .arg(ProbabilityCellName(cell), FromCore(ProbabilityCellText(dice_, cell.row, cell.column)));
    default:
      return {};
  }
}

QVariant ProbabilityModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool across = orientation == Qt::Horizontal;
  if (role == Qt::DisplayRole) return HeaderText(section, across);
  if (role == Qt::DecorationRole && section < kFaces)
    return DieFace(section + 1, across ? kDiceBlue : kDiceRed, kFaceSide, kFaceRatio);
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignCenter);
  if (role == Qt::AccessibleTextRole && section < kFaces)
    return (across ? Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 2 shows %1"))
                   : Words(QT_TRANSLATE_NOOP("ProbabilityTable", "Die 1 shows %1")))
        .arg(section + 1);
  return {};
}

// A locked cell takes no typing.
Qt::ItemFlags ProbabilityModel::flags(const QModelIndex& index) const {
  const ProbabilityCell cell = CellOfSheet(index.row(), index.column());
  if (!IsCell(cell)) return Qt::NoItemFlags;
  const Qt::ItemFlags taken = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return IsProbabilityLocked(dice_, cell.row, cell.column) ? taken : taken | Qt::ItemIsEditable;
}

bool ProbabilityModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !enter) return false;
  enter(CellOfSheet(index.row(), index.column()), value.toString());
  return true;
}

// --- The view.

ProbabilityTable::ProbabilityTable(ProbabilityModel& model, QWidget* parent) : QTableView(parent) {
  setObjectName("grdProbability");
  setAccessibleName(tr("Probabilities of the dice"));
  setModel(&model);
  setItemDelegate(new CellDelegate(this));
  setSelectionMode(SingleSelection);
  setEditTriggers(AnyKeyPressed | DoubleClicked | EditKeyPressed);
  setCornerButtonEnabled(false);
  setShowGrid(false);
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Window);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->setObjectName(header == horizontalHeader() ? "hdrDie2" : "hdrDie1");
    header->setSectionsClickable(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setHighlightSections(true);
    header->setMinimumSectionSize(16);
  }
  verticalHeader()->setDefaultSectionSize(std::max(kRowHeight, fontMetrics().height() + 6));
  FitColumns();
}

void ProbabilityTable::FitColumns() {
  int widest = kLeastColumn;
  for (int row = 0; row < kSheetRows; ++row)
    for (int column = 0; column < kSheetColumns; ++column) {
      const QModelIndex index = model()->index(row, column);
      if (!(index.flags() & Qt::ItemIsEnabled)) continue;
      widest = std::max(widest, fontMetrics().horizontalAdvance(index.data().toString()) + kLockWidth + 12);
    }
  for (int column = 0; column < kSheetColumns; ++column)
    setColumnWidth(column, column == kTotalLabels ? fontMetrics().horizontalAdvance("12") + 16 : widest);
  const int frame = 2 * frameWidth();
  setMinimumWidth(std::min(400, verticalHeader()->sizeHint().width() + horizontalHeader()->length() + frame));
  setMinimumHeight(horizontalHeader()->sizeHint().height() + verticalHeader()->length() / 2 + frame);
  setMaximumWidth(verticalHeader()->sizeHint().width() + horizontalHeader()->length() + frame + 2 +
                  verticalScrollBar()->sizeHint().width());
  setMaximumHeight(horizontalHeader()->sizeHint().height() + verticalHeader()->length() + frame + 2);
}

void ProbabilityTable::Select(ProbabilityCell cell) {
  const SheetPlace place = PlaceInSheet(cell);
  if (place.row >= 0) setCurrentIndex(model()->index(place.row, place.column));
}

ProbabilityCell ProbabilityTable::Selected() const {
  return CellOfSheet(currentIndex().row(), currentIndex().column());
}

bool ProbabilityTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool asked = (editTriggers() & trigger) != 0 && (index.flags() & Qt::ItemIsEditable) != 0;
  if (asked && mayEdit && !mayEdit()) return false;
  return QTableView::edit(index, trigger, event);
}

// Only what a number can begin with opens a cell; other letters may be the table's.
void ProbabilityTable::keyPressEvent(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  if (plain && event->key() == Qt::Key_L) return emit lockPressed();
  const QString text = event->text();
  const bool letter = plain && text.size() == 1 && text[0].isPrint();
  if (letter && !text[0].isDigit() && !QString("+-.,").contains(text[0])) return event->ignore();
  QTableView::keyPressEvent(event);
}

// Enter goes on below, as in any sheet.
void ProbabilityTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  if (hint != QAbstractItemDelegate::SubmitModelCache) return;
  const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
  if ((below.flags() & Qt::ItemIsEnabled) != 0) setCurrentIndex(below);
}

void ProbabilityTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  emit selected();
}

}  // namespace tessaryn
