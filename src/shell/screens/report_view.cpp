#include "shell/screens/report_view.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <limits>

#include "shell/screens/report_selection.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

constexpr int kBrightFrom = 170;  // of 255
constexpr int kCellGap = 12;      // between two columns
constexpr int kStripGap = 24;
constexpr int kBlockIndent = 12;
constexpr int kMostExtra = 120;  // between a label and its figures, of the room that is left
constexpr int kRowGap = 4;
constexpr int kLeastTarget = 24;  // of what is clicked
constexpr int kEdge = 4;
constexpr double kSignSize = 0.6;  // of the letters' height

int SignWidth(const QFontMetrics& metrics) { return static_cast<int>(metrics.ascent() * kSignSize) + kEdge; }

void PaintTriangle(QPainter& painter, const QRectF& room, bool up) {
  const double half = room.width() / 2;
  const QPointF middle = room.center();
  const double tip = up ? -half * 0.9 : half * 0.9;
  const QPointF corners[] = {middle + QPointF(0, tip), middle + QPointF(-half * 0.9, -tip * 0.8),
                             middle + QPointF(half * 0.9, -tip * 0.8)};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(painter.pen().color());
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(corners, 3);
}

// Gains and losses have a triangle before the figure, what is marked an asterisk: no colour is needed to tell
// them.
class CellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem cell = option;
    if (const QVariant indent = index.data(ReportModel::kIndentRole); indent.isValid())
      cell.rect.setLeft(cell.rect.left() + indent.toInt());
    else
      cell.rect.setRight(cell.rect.right() - kEdge);
    QStyledItemDelegate::paint(painter, cell, index);
    const int sign = index.data(ReportModel::kSignRole).toInt();
    const bool mark = index.data(ReportModel::kMarkRole).toBool();
    if (sign == 0 && !mark) return;
    initStyleOption(&cell, index);
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const QFontMetrics metrics(cell.font);
    const QRect before(
        cell.rect.right() - metrics.horizontalAdvance(cell.text) - 2 * kEdge - SignWidth(metrics),
        cell.rect.top(), SignWidth(metrics) - kEdge, cell.rect.height());
    painter->save();
    painter->setPen(cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(cell.font);
    if (mark) painter->drawText(before, Qt::AlignCenter, QStringLiteral("*"));
    if (sign != 0) PaintTriangle(*painter, before, sign > 0);
    painter->restore();
  }
};

// Names over a line, as on paper.
class FlatHeader : public QHeaderView {
 public:
  explicit FlatHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QHeaderView::paintEvent(event);
    QPainter painter(viewport());
    PaintGround(painter, viewport()->rect().adjusted(std::max(0, length() - offset()), 0, 0, 0));
  }
  void paintSection(QPainter* painter, const QRect& rect, int section) const override {
    painter->save();
    PaintGround(*painter, rect);
    QFont strong = font();
    strong.setBold(true);
    painter->setFont(strong);
    painter->setPen(palette().color(QPalette::Text));
    const QString text = model()->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    const QRect room = rect.adjusted(kEdge, 0, -2 * kEdge, 0);
    painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter, text);
    if (isSortIndicatorShown() && sortIndicatorSection() == section) {
      const QFontMetrics metrics(strong);
      const int width = SignWidth(metrics) - kEdge;
      const int left = std::max(rect.left(), room.right() - metrics.horizontalAdvance(text) - width - kEdge);
      PaintTriangle(*painter, QRect(left, rect.top(), width, rect.height()),
                    sortIndicatorOrder() == Qt::AscendingOrder);
    }
    painter->restore();
  }

 private:
  void PaintGround(QPainter& painter, const QRect& rect) const {
    if (rect.isEmpty()) return;
    painter.fillRect(rect, palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
  }
};

}  // namespace

bool IsBright(const QColor& background) {
  return (background.red() * 299 + background.green() * 587 + background.blue() * 114) / 1000 >= kBrightFrom;
}

QColor ToneColour(Tone tone, const QColor& background) {
  const bool bright = IsBright(background);
  if (tone == Tone::kGain) return bright ? QColor(0x0A7A43) : QColor(0x7BE0A3);
  if (tone == Tone::kLoss) return bright ? QColor(0xB3261E) : QColor(0xFF9C8F);
  return {};
}

// --- The model.

void ReportModel::Show(Report report, const ReportPart& part) {
  report_ = std::move(report);
  part_ = part;
  part_.last = std::min(part_.last, report_->rows.size());
  std::vector<Strip> strips;
  std::vector<Column> columns;
  std::vector<std::size_t> starts = part_.strips;
  starts.insert(starts.begin(), part_.first);
  int lines = 0;
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const std::size_t last = i + 1 < starts.size() ? starts[i + 1] : part_.last;
    strips.push_back(LinesOf(starts[i], last));
    AddColumns(starts[i], last, static_cast<int>(i), columns);
    lines = std::max(lines, static_cast<int>(strips.back().size()));
  }
  SortLines(strips);
  const bool same = lines == lines_ && columns == columns_;
  if (!same) beginResetModel();
  strips_ = std::move(strips);
  columns_ = std::move(columns);
  lines_ = lines;
  if (!same) return endResetModel();
  if (lines_ > 0) emit dataChanged(index(0, 0), index(lines_ - 1, columnCount() - 1));
}

ReportModel::Strip ReportModel::LinesOf(std::size_t first, std::size_t last) const {
  Strip lines;
  std::string block;
  for (std::size_t row = first; row < last; ++row) {
    const std::string& of = report_->rows[row].block;
    if (part_.headings && of != block && !of.empty()) lines.push_back({row, true});
    block = of;
    lines.push_back({row, false});
  }
  return lines;
}

// The labels, and the columns that any of the rows has a cell in.
void ReportModel::AddColumns(std::size_t first, std::size_t last, int strip,
                             std::vector<Column>& columns) const {
  int least = std::numeric_limits<int>::max();
  int end = 0;
  for (std::size_t row = first; row < last; ++row) {
    least = std::min(least, report_->rows[row].column);
    end = std::max(end, report_->rows[row].column + static_cast<int>(report_->rows[row].cells.size()));
  }
  if (first >= last) {
    least = 0;
    end = static_cast<int>(report_->columns.size());
  }
  columns.push_back({strip, -1});
  for (int cell = least; cell < end; ++cell) columns.push_back({strip, cell});
}

void ReportModel::SortLines(std::vector<Strip>& strips) const {
  if (sortColumn_ < 0 || strips.size() != 1) return;
  const auto cellOf = [this](const Line& line) -> const ReportCell* {
    const ReportRow& row = report_->rows[line.row];
    const auto at = static_cast<std::size_t>(sortColumn_ - 1 - row.column);
    return sortColumn_ > 0 && at < row.cells.size() ? &row.cells[at] : nullptr;
  };
  const auto before = [&](const Line& a, const Line& b) {
    if (sortColumn_ == 0) return report_->rows[a.row].label < report_->rows[b.row].label;
    const ReportCell* left = cellOf(a);
    const ReportCell* right = cellOf(b);
    return (left == nullptr ? 0 : left->value) < (right == nullptr ? 0 : right->value);
  };
  std::stable_sort(strips[0].begin(), strips[0].end(), [&](const Line& a, const Line& b) {
    return sortOrder_ == Qt::AscendingOrder ? before(a, b) : before(b, a);
  });
}

void ReportModel::sort(int column, Qt::SortOrder order) {
  sortColumn_ = column;
  sortOrder_ = order;
  if (report_ != nullptr) Show(report_, part_);
}

void ReportModel::SetColours(const QColor& background) { background_ = background; }

void ReportModel::SetFigureFont(bool bold, bool italic) {
  bold_ = bold;
  italic_ = italic;
}

bool ReportModel::IsLabelColumn(int column) const {
  return columns_[static_cast<std::size_t>(column)].cell < 0;
}

int ReportModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : lines_; }

int ReportModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

const ReportModel::Line* ReportModel::LineAt(int line, int column) const {
  const Strip& strip = strips_[static_cast<std::size_t>(StripOf(column))];
  return static_cast<std::size_t>(line) < strip.size() ? &strip[static_cast<std::size_t>(line)] : nullptr;
}

const ReportCell* ReportModel::CellAt(int line, int column) const {
  const Line* at = LineAt(line, column);
  if (at == nullptr || at->heading) return nullptr;
  const ReportRow& row = report_->rows[at->row];
  const int cell = columns_[static_cast<std::size_t>(column)].cell - row.column;
  return cell >= 0 && static_cast<std::size_t>(cell) < row.cells.size()
             ? &row.cells[static_cast<std::size_t>(cell)]
             : nullptr;
}

bool ReportModel::IsHeading(int line, int column) const {
  const Line* at = LineAt(line, column);
  return at != nullptr && at->heading;
}

QString ReportModel::LongestText(int column) const {
  const int cell = columns_[static_cast<std::size_t>(column)].cell;
  const std::string* longest = nullptr;
  for (const Line& line : strips_[static_cast<std::size_t>(StripOf(column))]) {
    const ReportRow& row = report_->rows[line.row];
    const auto at = static_cast<std::size_t>(cell - row.column);  // far beyond them for a column before
    if (line.heading || (cell >= 0 && at >= row.cells.size())) continue;
    const std::string& text = cell < 0 ? row.label : row.cells[at].text;
    if (longest == nullptr || text.size() > longest->size()) longest = &text;
  }
  return longest == nullptr ? QString() : cell < 0 ? ReportText(*report_, *longest) : FromCore(*longest);
}

bool ReportModel::HasSigns(int column) const {
  const Strip& strip = strips_[static_cast<std::size_t>(StripOf(column))];
  for (int line = 0; line < static_cast<int>(strip.size()); ++line)
    if (const ReportCell* cell = CellAt(line, column); cell != nullptr && (cell->balance || cell->marked))
      return true;
  return false;
}

QVariant ReportModel::AccessibleText(const ReportCell& cell) const {
  const QString text = FromCore(cell.text);
  if (cell.marked)
    return QCoreApplication::translate("Reports", "%1, more than two standard errors off").arg(text);
  return text;
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const bool label = IsLabelColumn(index.column());
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignVCenter | (label ? Qt::AlignLeft : Qt::AlignRight));
  const Line* line = LineAt(index.row(), index.column());
  if (line == nullptr) return {};
  if (role == Qt::FontRole && (line->heading || (!label && (bold_ || italic_)))) {
    QFont font;
    font.setBold(line->heading || bold_);
    font.setItalic(!line->heading && italic_);
    return font;
  }
  const ReportRow& row = report_->rows[line->row];
  if (label && role == kIndentRole) {
    const bool inBlock = part_.headings && !line->heading && !row.block.empty();
    return (StripOf(index.column()) > 0 ? kStripGap : 0) + (inBlock ? kBlockIndent : 0);
  }
  if (label)
    return role == Qt::DisplayRole ? QVariant(ReportText(*report_, line->heading ? row.block : row.label))
                                   : QVariant();
  const ReportCell* cell = CellAt(index.row(), index.column());
  if (cell == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return FromCore(cell->text);
    case Qt::AccessibleTextRole:
      return AccessibleText(*cell);
    case Qt::ToolTipRole:
      return cell->marked ? AccessibleText(*cell) : QVariant();
    case Qt::ForegroundRole:
      return cell->tone == Tone::kPlain ? QVariant() : ToneColour(cell->tone, background_);
    case kSignRole:
      return !cell->balance || cell->tone == Tone::kPlain ? 0 : cell->tone == Tone::kGain ? 1 : -1;
    case kMarkRole:
      return cell->marked;
    default:
      return {};
  }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount()) return {};
  const bool label = IsLabelColumn(section);
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignVCenter | (label ? Qt::AlignLeft : Qt::AlignRight));
  const Column& column = columns_[static_cast<std::size_t>(section)];
  // What stands beside the first strip from its first column on is not of that column.
  if (role != Qt::DisplayRole || label || (column.strip > 0 && column.cell == 0)) return {};
  return ReportText(*report_, report_->columns[static_cast<std::size_t>(column.cell)]);
}

// --- The view.

ReportView::ReportView(const char* name, const QString& what, QWidget* parent) : QTableView(parent) {
  setObjectName(name);
  setAccessibleName(what);
  setModel(&model_);
  setItemDelegate(new CellPainter(this));
  setShowGrid(false);
  setFrameShape(QFrame::NoFrame);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
  setHorizontalHeader(new FlatHeader(this));
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumHeight(kLeastTarget);
  verticalScrollBar()->setObjectName(QString(name) + "Vertical");
  horizontalScrollBar()->setObjectName(QString(name) + "Horizontal");
  horizontalScrollBar()->setAccessibleName(what);
  verticalScrollBar()->setAccessibleName(what);
  model_.SetColours(palette().color(QPalette::Base));
}

void ReportView::SetSortable(bool on) {
  if (on == isSortingEnabled()) return;
  horizontalHeader()->setSortIndicatorClearable(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(on);
  horizontalHeader()->setSectionsClickable(on);
  horizontalHeader()->setSortIndicatorShown(on);
  const QString how =
      QCoreApplication::translate("Reports", "A click on a heading, or Enter, sorts by the column");
  horizontalHeader()->setToolTip(on ? how : QString());
  setAccessibleDescription(on ? how : QString());
  if (!on) model_.sort(-1, Qt::AscendingOrder);
}

void ReportView::SetFigureFont(bool bold, bool italic) { model_.SetFigureFont(bold, italic); }

void ReportView::Show(const ReportModel::Report& report, const ReportPart& part) {
  const int lines = model_.rowCount();
  const int columns = model_.columnCount();
  model_.Show(report, part);
  const bool named = part.headings && report->columns.size() > 1;
  if (horizontalHeader()->isVisibleTo(this) != named) horizontalHeader()->setVisible(named);
  if (columns != model_.columnCount()) wanted_.clear();
  if (columns != model_.columnCount() || lines != model_.rowCount()) SpanHeadings();
  Measure();
}

// A heading of a block stands over the strip's columns.
void ReportView::SpanHeadings() {
  clearSpans();
  for (int column = 0; column < model_.columnCount(); ++column) {
    if (!model_.IsLabelColumn(column)) continue;
    int wide = 1;
    while (column + wide < model_.columnCount() && !model_.IsLabelColumn(column + wide)) ++wide;
    for (int line = 0; line < model_.rowCount() && wide > 1; ++line)
      if (model_.IsHeading(line, column)) setSpan(line, column, 1, wide);
  }
}

void ReportView::Measure() {
  const std::vector<int> old = wanted_;
  QFont strong = font();
  strong.setBold(true);
  const QFontMetrics metrics(strong);
  wanted_.resize(static_cast<std::size_t>(model_.columnCount()));
  for (int column = 0; column < model_.columnCount(); ++column) {
    const bool label = model_.IsLabelColumn(column);
    const int before = column == 0 ? kBlockIndent
                       : label     ? kStripGap + kBlockIndent
                                   : kCellGap + (model_.HasSigns(column) ? SignWidth(metrics) : 0);
    const int gap = before + 2 * kEdge;
    int text = metrics.horizontalAdvance(model_.LongestText(column));
    if (horizontalHeader()->isVisibleTo(this))
      text = std::max(text, metrics.horizontalAdvance(
                                model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    int& width = wanted_[static_cast<std::size_t>(column)];
    width = std::max(width, text + gap);
  }
  if (old != wanted_) SetWidths();
}

// Of the room that is left the labels get some, unless there are so many strips that it would part them.
void ReportView::SetWidths() {
  const int strips = std::max(1, model_.Strips());
  const int left = strips > 2 ? 0 : std::clamp((viewport()->width() - WantedWidth()) / strips, 0, kMostExtra);
  for (int column = 0; column < static_cast<int>(wanted_.size()); ++column)
    setColumnWidth(column,
                   wanted_[static_cast<std::size_t>(column)] + (model_.IsLabelColumn(column) ? left : 0));
}

int ReportView::WantedWidth() const {
  int sum = 0;
  for (const int width : wanted_) sum += width;
  return sum;
}

int ReportView::WantedHeight() const {
  return model_.rowCount() * verticalHeader()->defaultSectionSize() +
         (horizontalHeader()->isVisibleTo(this) ? horizontalHeader()->height() : 0);
}

// Keys that walk the cells are the view's own; the table's plain keys go on to it.
void ReportView::keyPressEvent(QKeyEvent* event) {
  const bool letter = !event->text().isEmpty() && event->text()[0].isPrint() &&
                      (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && isSortingEnabled() && currentIndex().isValid()) return SortByCurrent();
  const bool functionKey = event->key() >= Qt::Key_F1 && event->key() <= Qt::Key_F35;
  if (letter || functionKey) return event->ignore();
  QTableView::keyPressEvent(event);
}

void ReportView::SortByCurrent() {
  QHeaderView& header = *horizontalHeader();
  const int column = currentIndex().column();
  if (header.sortIndicatorSection() != column)
    header.setSortIndicator(column, Qt::AscendingOrder);
  else if (header.sortIndicatorOrder() == Qt::AscendingOrder)
    header.setSortIndicator(column, Qt::DescendingOrder);
  else
    header.setSortIndicator(-1, Qt::AscendingOrder);
}

void ReportView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) SetWidths();
}

void ReportView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) model_.SetColours(palette().color(QPalette::Base));
  if (event->type() != QEvent::FontChange) return;
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
  wanted_.clear();
  Measure();
}

}  // namespace tessaryn
