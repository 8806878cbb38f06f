#include "shell/screens/check_stacks_list.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "rules/check_stacks.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kDecimals = 4;

// The entry box over a cell.
class StackDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex& index) const override {
    QLineEdit* box = nullptr;
    if (index.column() == kStackValue) {
      auto* money = new MoneyEdit(parent);
      money->SetKeys(kDecimals, true);
      box = money;
    } else {
      box = new QLineEdit(parent);
    }
    box->setObjectName("txtCheckStack");
    box->setFrame(false);
    box->setAccessibleName(
        index.column() == kStackValue
            ? QCoreApplication::translate("tessaryn::CheckStackView", "Value of CheckStack %1")
                  .arg(index.row())
            : QCoreApplication::translate("tessaryn::CheckStackView", "Name of CheckStack %1")
                  .arg(index.row()));
    return box;
  }
};

constexpr QKeySequence::StandardKey kCommandKeys[] = {QKeySequence::Cut,   QKeySequence::Copy,
                                                      QKeySequence::Paste, QKeySequence::Delete,
                                                      QKeySequence::Undo,  QKeySequence::Redo};
constexpr void (CheckStackView::*kCommandSignals[])() = {
    &CheckStackView::cutPressed,    &CheckStackView::copyPressed, &CheckStackView::pastePressed,
    &CheckStackView::deletePressed, &CheckStackView::undoPressed, &CheckStackView::redoPressed};

// By kCommandKeys; -1 for another key.
int CommandOf(const QKeyEvent& event) {
  for (int n = 0; n < 6; ++n)
    if (event.matches(kCommandKeys[n])) return n;
  // Both ways to do it again, whatever the desktop has.
  return event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_Y ? 5 : -1;
}

}  // namespace

// --- The model.

CheckStackList::CheckStackList(Game& game, QObject* parent) : QAbstractTableModel(parent), game_(game) {}

void CheckStackList::SetSeat(SeatId seat) {
  if (seat == seat_) return;
  beginResetModel();
  seat_ = seat;
  for (int stack = 0; stack < kCheckStacks; ++stack) told_[static_cast<std::size_t>(stack)] = CellOf(stack);
  endResetModel();
}

int CheckStackList::PlaceOnTable(int stack) const {
  const auto& visible = game_.table.seats[seat_].VisibleStacks;
  const auto* found = std::find(std::begin(visible), std::end(visible), stack);
  return found == std::end(visible) ? 0 : static_cast<int>(found - std::begin(visible)) + 1;
}

CheckStackList::Cell CheckStackList::CellOf(int stack) const {
  return {CheckStackNameOf(game_, seat_, stack), CheckStackValue(game_, seat_, stack), PlaceOnTable(stack)};
}

void CheckStackList::Follow() {
  for (int stack = 0; stack < rowCount(); ++stack) {
    const Cell now = CellOf(stack);
    Cell& told = told_[static_cast<std::size_t>(stack)];
    if (now == told) continue;
    const bool placed = now.place != told.place;
    told = now;
    emit dataChanged(index(stack, kStackName), index(stack, kStackValue));
    if (placed) emit headerDataChanged(Qt::Vertical, stack, stack);
  }
}

void CheckStackList::ShowAnew() {
  if (rowCount() > 0) emit dataChanged(index(0, kStackName), index(rowCount() - 1, kStackValue));
}

QString CheckStackList::CellText(int stack, int column) const {
  if (column == kStackName) return FromCore(CheckStackNameOf(game_, seat_, stack));
  return InHabit(FromCore(PlainMoney(CheckStackValue(game_, seat_, stack))));
}

int CheckStackList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || seat_ == 0 ? 0 : kCheckStacks;
}

int CheckStackList::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 2; }

QVariant CheckStackList::data(const QModelIndex& index, int role) const {
  const int stack = index.row();
  const bool value = index.column() == kStackValue;
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignVCenter | (value ? Qt::AlignRight : Qt::AlignLeft));
  if (role == Qt::EditRole) return CellText(stack, index.column());
  if (role == Qt::AccessibleTextRole && value)
    return InHabit(FromCore(CheckStackValueText(game_, seat_, stack, true)));
  if (role != Qt::DisplayRole) return {};
  const bool zero = game_.screen.CheckStacks.DisplayZero;
  return value ? InHabit(FromCore(CheckStackValueText(game_, seat_, stack, zero)))
               : CellText(stack, kStackName);
}

bool CheckStackList::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || value.toString() == CellText(index.row(), index.column())) return false;
  emit entered(index.row(), index.column(), value.toString());
  return true;
}

QVariant CheckStackList::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal) {
    if (role == Qt::TextAlignmentRole)
      return static_cast<int>(Qt::AlignVCenter | (section == kStackValue ? Qt::AlignRight : Qt::AlignLeft));
    if (role != Qt::DisplayRole) return {};
    return section == kStackName ? tr("Name") : tr("Value");
  }
  const int place = PlaceOnTable(section);
  if (role == Qt::DisplayRole)
    return place == 0 ? QString::number(section) : QString(QChar(0x25CF)) + " " + QString::number(section);
  if (role == Qt::ToolTipRole && place != 0) return tr("Place %1 at the rail").arg(place);
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignVCenter | Qt::AlignRight);
  return {};
}

Qt::ItemFlags CheckStackList::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

// --- The view.

CheckStackView::CheckStackView(QWidget* parent) : QTableView(parent) {
  setObjectName("picCheckStacks");
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::AnyKeyPressed);
  setItemDelegate(new StackDelegate(this));
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

bool CheckStackView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool wanted = trigger == AllEditTriggers || (trigger & editTriggers()) != 0;
  if (wanted && index.isValid() && state() != EditingState && mayEdit && !mayEdit()) return false;
  return QTableView::edit(index, trigger, event);
}

bool CheckStackView::RunKey(const QKeyEvent& event) {
  const int command = CommandOf(event);
  if (command < 0) return false;
  emit(this->*kCommandSignals[command])();
  return true;
}

// The keys of a cell are those of the list alone, whatever else has them.
bool CheckStackView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && CommandOf(*static_cast<QKeyEvent*>(event)) >= 0) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void CheckStackView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && state() != EditingState && currentIndex().isValid()) {
    edit(currentIndex(), AllEditTriggers, event);
    return;
  }
  if (!RunKey(*event)) QTableView::keyPressEvent(event);
}

}  // namespace tessaryn
