#include "shell/screens/pick_list.h"

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tessaryn {
namespace {

constexpr int kMostRows = 12;
constexpr int kRowHeight = 24;
constexpr int kMarkRoom = 32;  // of the mark before a text
constexpr int kLeastLetters = 20;

QPushButton* AddButton(QHBoxLayout& row, const QString& name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  row.addWidget(button);
  return button;
}

}  // namespace

PickList::PickList(const char* listName, const QString& caption, const QString& what, QWidget* parent)
    : QPushButton(caption, parent), popup_(new QFrame(this, Qt::Popup)), list_(new QListWidget(popup_)) {
  setAccessibleDescription(what);
  popup_->setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(popup_);
  column->setContentsMargins(8, 8, 8, 8);
  list_->setObjectName(listName);
  list_->setAccessibleName(what);
  list_->setSelectionMode(QAbstractItemView::MultiSelection);
  list_->setUniformItemSizes(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  column->addWidget(list_);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  const QString name(listName);
  connect(AddButton(*row, name + "All", QCoreApplication::translate("PickList", "Select &All"), popup_),
          &QPushButton::clicked, list_, &QListWidget::selectAll);
  connect(AddButton(*row, name + "None", QCoreApplication::translate("PickList", "Select &None"), popup_),
          &QPushButton::clicked, list_, &QListWidget::clearSelection);
  row->addStretch();
  connect(list_, &QListWidget::itemSelectionChanged, this, &PickList::TakePicks);
  connect(this, &QPushButton::clicked, this, &PickList::Open);
}

// It looks like any button that opens something.
void PickList::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  option->features |= QStyleOptionButton::HasMenu;
}

void PickList::Fill() {
  filling_ = true;
  list_->clear();
  for (const auto& [text, number] : entries()) {
    auto* item = new QListWidgetItem(text, list_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setData(Qt::UserRole, number);
    item->setSizeHint(
        {fontMetrics().horizontalAdvance(text) + kMarkRoom, std::max(kRowHeight, fontMetrics().height())});
    item->setSelected(isPicked(number));
  }
  filling_ = false;
  ShowPicks();
  list_->setCurrentRow(0, QItemSelectionModel::NoUpdate);
  const int rows = std::clamp(list_->count(), 3, kMostRows);
  list_->setFixedHeight(rows * std::max(list_->sizeHintForRow(0), fontMetrics().height()) +
                        2 * list_->frameWidth());
  list_->setMinimumWidth(
      std::max(list_->sizeHintForColumn(0), kLeastLetters * fontMetrics().averageCharWidth()) +
      list_->verticalScrollBar()->sizeHint().width() + 2 * list_->frameWidth());
}

void PickList::Open() {
  Fill();
  popup_->adjustSize();
  const QRect room = screen()->availableGeometry();
  QPoint corner = mapToGlobal(QPoint(0, height()));
  corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - popup_->width())));
  corner.setY(std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - popup_->height())));
  popup_->move(corner);
  popup_->show();
  list_->setFocus();
}

// A mark beside each, so that what is picked is not told by colour alone.
void PickList::ShowPicks() {
  for (int row = 0; row < list_->count(); ++row) {
    QListWidgetItem* item = list_->item(row);
    item->setCheckState(item->isSelected() ? Qt::Checked : Qt::Unchecked);
  }
}

void PickList::TakePicks() {
  if (filling_) return;
  ShowPicks();
  std::vector<int> numbers;
  for (int row = 0; row < list_->count(); ++row)
    if (list_->item(row)->isSelected()) numbers.push_back(list_->item(row)->data(Qt::UserRole).toInt());
  picked(numbers);
}

}  // namespace tessaryn
