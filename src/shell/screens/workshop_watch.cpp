#include "shell/screens/workshop_watch.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include "play/script_trial.h"
#include "rules/check_stacks.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "shell/table/spoken_texts.h"
#include "state/game.h"

namespace tessaryn {
namespace {

enum Column { kName, kValue, kBefore };

// Of "cs12" its 12; -1 for what is no CheckStack.
int StackOf(const QString& expression) {
  bool good = false;
  const QString name = expression.trimmed().toLower();
  const int stack = name.startsWith("cs") ? name.mid(2).toInt(&good) : -1;
  return good && stack >= 0 && stack < kCheckStacks ? stack : -1;
}

}  // namespace

WorkshopWatch::WorkshopWatch(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  auto* title = new QLabel("<b>" + tr("Watch") + "</b>", this);
  column->addWidget(title);
  list_ = new QTableWidget(0, 3, this);
  list_->setObjectName("tblWatch");
  list_->setAccessibleName(tr("Watch"));
  list_->setHorizontalHeaderLabels({tr("Name"), tr("Value"), tr("Before")});
  list_->horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
  list_->horizontalHeader()->setMinimumSectionSize(56);
  list_->horizontalHeader()->setSectionResizeMode(kValue, QHeaderView::ResizeToContents);
  list_->horizontalHeader()->setSectionResizeMode(kBefore, QHeaderView::ResizeToContents);
  list_->verticalHeader()->hide();
  list_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  list_->setShowGrid(false);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setTabKeyNavigation(false);
  column->addWidget(list_, 1);
  entry_ = new QLineEdit(this);
  entry_->setObjectName("txtWatch");
  entry_->setAccessibleName(tr("Add a name"));
  entry_->setPlaceholderText(tr("Add a name"));
  entry_->setMaxLength(200);
  column->addWidget(entry_);
  connect(entry_, &QLineEdit::returnPressed, this, [this] {
    Add(entry_->text());
    entry_->clear();
  });
  connect(list_, &QTableWidget::cellChanged, this, &WorkshopWatch::Changed);
  auto* remove = new QShortcut(QKeySequence::Delete, list_, nullptr, nullptr, Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, [this] { list_->removeRow(list_->currentRow()); });
  for (const char* name : {"bankroll", "point", "cs1", "cs2"}) Add(name);
}

void WorkshopWatch::SetSeat(SeatId seat) {
  if (seat_ == seat) return;
  seat_ = seat;
  LookUp();
}

void WorkshopWatch::Add(const QString& expression) {
  if (expression.trimmed().isEmpty()) return;
  filling_ = true;
  const int row = list_->rowCount();
  list_->insertRow(row);
  auto* name = new QTableWidgetItem(expression.trimmed());
  name->setData(kNobodysWord, true);
  list_->setItem(row, kName, name);
  for (const Column column : {kValue, kBefore}) {
    auto* item = new QTableWidgetItem;
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (column == kBefore || StackOf(expression) < 0) item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    list_->setItem(row, column, item);
  }
  filling_ = false;
  LookUp();
}

void WorkshopWatch::Refresh() {
  // In a run at full speed nobody can read them.
  if (game_.table.TurboRollActive) return;
  if (Throws(game_.stats) == rolls_) {
    if (game_.table.seats[seat_].OnTableAmount.raw != money_) LookUp();
    return;
  }
  filling_ = true;
  for (int row = 0; row < list_->rowCount(); ++row)
    list_->item(row, kBefore)->setText(list_->item(row, kValue)->text());
  filling_ = false;
  LookUp();
}

void WorkshopWatch::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  LookUp();
}

void WorkshopWatch::LookUp() {
  rolls_ = Throws(game_.stats);
  money_ = game_.table.seats[seat_].OnTableAmount.raw;
  if (!isVisible() || seat_ == 0) return;
  std::vector<std::string> names;
  for (int row = 0; row < list_->rowCount(); ++row)
    names.push_back(list_->item(row, kName)->text().toStdString());
  const std::vector<std::string> values = PresentValues(game_, seat_, names);
  filling_ = true;
  for (int row = 0; row < list_->rowCount(); ++row)
    list_->item(row, kValue)
        ->setText(values[static_cast<std::size_t>(row)].empty()
                      ? QString::fromUtf8("\u2013")
                      : FromCore(values[static_cast<std::size_t>(row)]));
  filling_ = false;
}

// A CheckStack takes the value that is typed; another name is looked up.
void WorkshopWatch::Changed(int row, int column) {
  if (filling_) return;
  const QString name = list_->item(row, kName)->text();
  Currency value;
  const NumbersOfFiles asInScripts;
  if (column == kValue && StackOf(name) >= 0 && ReadNumber(list_->item(row, kValue)->text(), value))
    SetCheckStackValue(game_, seat_, StackOf(name), value);
  if (column == kName && name.trimmed().isEmpty()) return list_->removeRow(row);
  LookUp();
}

}  // namespace tessaryn
