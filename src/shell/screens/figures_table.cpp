#include "shell/screens/figures_table.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QHeaderView>
#include <algorithm>
#include <cmath>

#include "base/money.h"
#include "shell/screens/screen_parts.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/table_state.h"

namespace tessaryn {
namespace {

constexpr int kValueRole = Qt::UserRole;
constexpr int kMarkedRole = Qt::UserRole + 1;
constexpr int kIdRole = Qt::UserRole + 2;
constexpr int kLeastName = 12;  // characters
constexpr int kLeastColumn = 40;
constexpr int kColumnMargins = 12;
constexpr int kSortArrow = 16;

}  // namespace

class FiguresModel : public QAbstractTableModel {
 public:
  FiguresModel(QStringList headings, QObject* parent)
      : QAbstractTableModel(parent), headings_(std::move(headings)) {}

  int rowCount(const QModelIndex& above = {}) const override {
    return above.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex& above = {}) const override {
    return above.isValid() ? 0 : static_cast<int>(headings_.size());
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return headings_[section];
    if (role == Qt::TextAlignmentRole) return static_cast<int>(AlignmentOf(section));
    return {};
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const FigureRow& row = rows_[static_cast<std::size_t>(index.row())];
    const FigureCell& cell = row.cells[static_cast<std::size_t>(index.column())];
    switch (role) {
      case Qt::DisplayRole:
        return index.column() == 0 ? cell.text : FigureInHabit(cell.text);
      case Qt::TextAlignmentRole:
        return static_cast<int>(AlignmentOf(index.column()));
      case kValueRole:
        return cell.value;
      case kMarkedRole:
        return row.marked;
      case kIdRole:
        return row.id;
      default:
        return {};
    }
  }

  // Whether anything differs.
  bool SetRows(std::vector<FigureRow> rows) {
    if (rows.size() != rows_.size()) {
      beginResetModel();
      rows_ = std::move(rows);
      endResetModel();
      return true;
    }
    int first = -1;
    int last = -1;
    for (std::size_t n = 0; n < rows.size(); ++n) {
      if (rows[n] == rows_[n]) continue;
      if (first < 0) first = static_cast<int>(n);
      last = static_cast<int>(n);
    }
    if (first < 0) return false;
    rows_ = std::move(rows);
    emit dataChanged(index(first, 0), index(last, columnCount() - 1));
    return true;
  }

 private:
  static Qt::Alignment AlignmentOf(int column) {
    return (column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
  }

  QStringList headings_;
  std::vector<FigureRow> rows_;
};

class FiguresTable::Sorted : public QSortFilterProxyModel {
 public:
  explicit Sorted(QObject* parent) : QSortFilterProxyModel(parent) { collator_.setNumericMode(true); }

  void ShowMarkedOnly(bool only) {
    if (only == markedOnly_) return;
    markedOnly_ = only;
    invalidateFilter();
  }

 protected:
  bool lessThan(const QModelIndex& a, const QModelIndex& b) const override {
    if (a.column() == 0) return collator_.compare(a.data().toString(), b.data().toString()) < 0;
    return a.data(kValueRole).toDouble() < b.data(kValueRole).toDouble();
  }
  bool filterAcceptsRow(int row, const QModelIndex&) const override {
    return !markedOnly_ || sourceModel()->index(row, 0).data(kMarkedRole).toBool();
  }

 private:
  QCollator collator_;
  bool markedOnly_ = false;
};

FiguresTable::FiguresTable(const char* name, const QString& tells, const QStringList& headings,
                           QWidget* parent)
    : QTableView(parent), model_(new FiguresModel(headings, this)), sorted_(new Sorted(this)) {
  setObjectName(name);
  setAccessibleName(tells);
  sorted_->setSourceModel(model_);
  setModel(sorted_);
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  QHeaderView* header = horizontalHeader();
  header->setHighlightSections(false);
  header->setMinimumSectionSize(kLeastColumn);
  header->setSortIndicatorClearable(true);
  header->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  setMinimumHeight(fontMetrics().lineSpacing() * 6);
  connect(header, &QHeaderView::sortIndicatorChanged, this, [this] { FitColumns(true); });
}

void FiguresTable::SetRows(std::vector<FigureRow> rows) {
  const bool first = model_->rowCount() == 0;
  if (model_->SetRows(std::move(rows))) FitColumns(first);
}

void FiguresTable::FitColumns(bool mayShrink) {
  QHeaderView* header = horizontalHeader();
  for (int column = 0; column < model_->columnCount(); ++column) {
    const int arrow = header->sortIndicatorSection() == column ? kSortArrow : 0;
    const QString heading = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    int width = header->fontMetrics().horizontalAdvance(heading) + arrow;
    for (int row = 0; row < model_->rowCount(); ++row)
      width = std::max(width, fontMetrics().horizontalAdvance(model_->index(row, column).data().toString()));
    width = std::max(width + kColumnMargins, kLeastColumn);
    if (header->isSectionHidden(column)) continue;
    if (column == 0) names_ = mayShrink ? width : std::max(width, names_);
    if (mayShrink || width > header->sectionSize(column)) header->resizeSection(column, width);
  }
  FitNames();
}

// Names give way where that alone brings the last figures into view.
void FiguresTable::FitNames() {
  QHeaderView* header = horizontalHeader();
  const int room = viewport()->width() - (header->length() - header->sectionSize(0));
  const int least = fontMetrics().averageCharWidth() * kLeastName;
  const int width = room >= names_ || room < least ? names_ : room;
  if (names_ > 0 && width != header->sectionSize(0)) header->resizeSection(0, width);
}

void FiguresTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitNames();
}

void FiguresTable::ShowMarkedOnly(bool only) { sorted_->ShowMarkedOnly(only); }

QList<QStringList> FiguresTable::Rows() const {
  QList<QStringList> rows(1);
  for (int column = 0; column < sorted_->columnCount(); ++column)
    rows[0] += sorted_->headerData(column, Qt::Horizontal).toString();
  for (int row = 0; row < sorted_->rowCount(); ++row) {
    QStringList texts;
    for (int column = 0; column < sorted_->columnCount(); ++column)
      texts += sorted_->index(row, column).data().toString();
    rows += texts;
  }
  return rows;
}

std::vector<int> FiguresTable::Selected() const {
  std::vector<int> ids;
  for (const QModelIndex& row : selectionModel()->selectedRows()) ids.push_back(row.data(kIdRole).toInt());
  return ids;
}

SortChoice::SortChoice(const char* name, FiguresTable& table, QWidget* parent) : QComboBox(parent) {
  setObjectName(name);
  setAccessibleName(tr("Sort by"));
  addItem(tr("Table order"));
  for (int column = 0; column < table.model()->columnCount(); ++column)
    addItem(table.model()->headerData(column, Qt::Horizontal).toString());
  QHeaderView* header = table.horizontalHeader();
  connect(this, &QComboBox::activated, &table, [header](int choice) {
    const bool again = choice > 0 && header->sortIndicatorSection() == choice - 1 &&
                       header->sortIndicatorOrder() == Qt::AscendingOrder;
    header->setSortIndicator(choice - 1, again ? Qt::DescendingOrder : Qt::AscendingOrder);
  });
  connect(header, &QHeaderView::sortIndicatorChanged, this,
          [this](int column) { setCurrentIndex(column + 1); });
}

PlayerChoice::PlayerChoice(const char* name, QWidget* parent) : QComboBox(parent) {
  setObjectName(name);
  setAccessibleName(tr("Player"));
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(10);
}

void PlayerChoice::Refresh(const TableState& table) {
  QStringList names;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    names += IsOccupied(table, seat) ? FromCore(table.seats[seat].SeatName) : QString();
  if (names == names_) return;
  const SeatId before = Seat();
  const QSignalBlocker quiet(this);
  names_ = names;
  clear();
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(table, seat)) addItem(names[seat - 1], seat.value);
  const int at = findData(before.value);
  setCurrentIndex(at >= 0 ? at : std::max(0, findData(table.SelectedSeat.value)));
  setEnabled(count() > 0);
}

QString FigureText(double value) {
  const QString text = QString::number(value, 'f', 2);
  return text == QLatin1String("-0.00") ? QStringLiteral("0.00") : text;
}

QString DollarFigure(double dollars) {
  return DollarText(Currency::FromDouble(std::round(dollars * 100) / 100));
}

QString MinutesText(double hours) {
  const auto tenths = static_cast<long long>(std::llround(std::min(hours * 36'000, 1e15)));
  return QStringLiteral("%1:%2.%3")
      .arg(tenths / 600, 2, 10, QLatin1Char('0'))
      .arg(tenths / 10 % 60, 2, 10, QLatin1Char('0'))
      .arg(tenths % 10);
}

}  // namespace tessaryn
