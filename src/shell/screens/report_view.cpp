#include "shell/screens/report_view.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <limits>
#include <utility>

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
constexpr int kTextMargin = 3;     // as the style has it
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
// them. The style's way of drawing a cell takes several times as long, and a run shows hundreds of them ten
// times a second: it draws those that the user is at.
class CellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const ReportModel::Look look = static_cast<const ReportModel*>(index.model())->LookOf(index);
    QStyleOptionViewItem cell = option;
    look.label ? cell.rect.setLeft(cell.rect.left() + look.indent)
               : cell.rect.setRight(cell.rect.right() - kEdge);
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const bool plain = !selected && (option.state & QStyle::State_HasFocus) == 0;
    if (!plain) QStyledItemDelegate::paint(painter, cell, index);
    const Letters& letters = LettersOf(option.font, look.bold, look.italic);
    const int width = letters.metrics.horizontalAdvance(look.text);
    painter->setPen(look.ink.isValid() && !selected
                        ? look.ink
                        : cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(letters.font);
    if (plain && !look.text.isEmpty()) PaintText(*painter, cell.rect, look, letters.metrics, width);
    if (look.sign == 0 && !look.mark) return;
    painter->save();
    const QRect before(cell.rect.right() - width - 2 * kEdge - SignWidth(letters.metrics), cell.rect.top(),
                       SignWidth(letters.metrics) - kEdge, cell.rect.height());
    if (look.mark) painter->drawText(before, Qt::AlignCenter, QStringLiteral("*"));
    if (look.sign != 0) PaintTriangle(*painter, before, look.sign > 0);
    painter->restore();
  }

 private:
  struct Letters {
    QFont font;
    QFontMetrics metrics{font};
  };

  // Where the style has it.
  static void PaintText(QPainter& painter, const QRect& cell, const ReportModel::Look& look,
                        const QFontMetrics& metrics, int width) {
    const QRect room = cell.adjusted(kTextMargin, 0, -kTextMargin, 0);
    const bool fits = width <= room.width();
    const QString text = fits ? look.text : metrics.elidedText(look.text, Qt::ElideRight, room.width());
    const int left = look.label || !fits ? room.left() : room.right() + 1 - width;
    painter.drawText(left, room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent(), text);
  }

  const Letters& LettersOf(const QFont& plain, bool bold, bool italic) const {
    if (letters_.empty() || letters_[0].font != plain) {
      letters_.clear();
      for (int style = 0; style < 4; ++style) {
        QFont font = plain;
        if ((style & 1) != 0) font.setBold(true);
        if ((style & 2) != 0) font.setItalic(true);
        letters_.push_back({font});
      }
    }
    return letters_[static_cast<std::size_t>((bold ? 1 : 0) + (italic ? 2 : 0))];
  }

  mutable std::vector<Letters> letters_;
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
  const Report former = std::exchange(report_, std::move(report));
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
  const bool same = former != nullptr && lines == lines_ && columns == columns_;
  if (!same) beginResetModel();
  strips_.swap(strips);
  columns_ = std::move(columns);
  lines_ = lines;
  same ? TellChanges(*former, strips) : endResetModel();
}

// Each by itself, so that the rest isn't drawn anew; a screen reader is told of all of them at once.
void ReportModel::TellChanges(const ReportTable& former, const std::vector<Strip>& strips) {
  if (QAccessible::isActive() && lines_ > 0) {
    emit dataChanged(index(0, 0), index(lines_ - 1, columnCount() - 1));
    return;
  }
  for (int column = 0; column < columnCount(); ++column) {
    const Column& at = columns_[static_cast<std::size_t>(column)];
    const Strip& before = strips[static_cast<std::size_t>(at.strip)];
    const Strip& now = strips_[static_cast<std::size_t>(at.strip)];
    for (std::size_t line = 0; line < std::max(before.size(), now.size()); ++line) {
      const bool both = line < before.size() && line < now.size();
      if (both && LooksAlike(former, before[line], *report_, now[line], at.cell)) continue;
      const QModelIndex changed = index(static_cast<int>(line), column);
      emit dataChanged(changed, changed);
    }
  }
}

bool ReportModel::LooksAlike(const ReportTable& a, const Line& ofA, const ReportTable& b, const Line& ofB,
                             int cell) {
  if (ofA.heading != ofB.heading) return false;
  const ReportRow& left = a.rows[ofA.row];
  const ReportRow& right = b.rows[ofB.row];
  if (cell < 0) return left.block == right.block && left.label == right.label;
  const ReportCell* const before = CellOf(left, cell);
  const ReportCell* const now = CellOf(right, cell);
  if (before == nullptr || now == nullptr) return before == now;
  return before->text == now->text && before->tone == now->tone && before->marked == now->marked &&
         before->balance == now->balance;
}

// Null where the row has none in that column.
const ReportCell* ReportModel::CellOf(const ReportRow& row, int column) {
  const auto at = static_cast<std::size_t>(column - row.column);  // far beyond them for a column before
  return at < row.cells.size() ? &row.cells[at] : nullptr;
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
  const auto before = [this](const Line& a, const Line& b) {
    if (sortColumn_ == 0) return report_->rows[a.row].label < report_->rows[b.row].label;
    const ReportCell* left = CellOf(report_->rows[a.row], sortColumn_ - 1);
    const ReportCell* right = CellOf(report_->rows[b.row], sortColumn_ - 1);
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

bool ReportModel::SetFigureFont(bool bold, bool italic) {
  const bool other = bold != bold_ || italic != italic_;
  bold_ = bold;
  italic_ = italic;
  return other;
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
  const int cell = columns_[static_cast<std::size_t>(column)].cell;
  return cell < 0 ? nullptr : CellOf(report_->rows[at->row], cell);
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
    const ReportCell* at = cell < 0 ? nullptr : CellOf(row, cell);
    if (line.heading || (cell >= 0 && at == nullptr)) continue;
    const std::string& text = cell < 0 ? row.label : at->text;
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

ReportModel::Look ReportModel::LookOf(const QModelIndex& index) const {
  Look look;
  look.label = IsLabelColumn(index.column());
  const Line* line = LineAt(index.row(), index.column());
  if (line == nullptr) return look;
  const ReportRow& row = report_->rows[line->row];
  look.bold = line->heading || (!look.label && bold_);
  look.italic = !line->heading && !look.label && italic_;
  if (look.label) {
    const bool inBlock = part_.headings && !line->heading && !row.block.empty();
    look.indent = (StripOf(index.column()) > 0 ? kStripGap : 0) + (inBlock ? kBlockIndent : 0);
    look.text = ReportText(*report_, line->heading ? row.block : row.label);
  }
  if (const ReportCell* cell = CellAt(index.row(), index.column()); cell != nullptr) {
    look.text = FromCore(cell->text);
    look.ink = ToneColour(cell->tone, background_);
    look.sign = !cell->balance || cell->tone == Tone::kPlain ? 0 : cell->tone == Tone::kGain ? 1 : -1;
    look.mark = cell->marked;
  }
  return look;
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(Qt::AlignVCenter |
                            (IsLabelColumn(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
  const ReportCell* cell = CellAt(index.row(), index.column());
  const Look look = LookOf(index);
  switch (role) {
    case Qt::FontRole: {
      QFont font;
      font.setBold(look.bold);
      font.setItalic(look.italic);
      return look.bold || look.italic ? font : QVariant();
    }
    case Qt::DisplayRole:
      return look.text.isNull() ? QVariant() : look.text;
    case Qt::AccessibleTextRole:
      return cell != nullptr ? AccessibleText(*cell) : QVariant();
    case Qt::ToolTipRole:
      return look.mark ? AccessibleText(*cell) : QVariant();
    case Qt::ForegroundRole:
      return look.ink.isValid() ? look.ink : QVariant();
    case kSignRole:
      return look.sign;
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

void ReportView::SetFigureFont(bool bold, bool italic) {
  if (model_.SetFigureFont(bold, italic)) viewport()->update();
}

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
// Where there is too little, the columns stand closer together.
void ReportView::SetWidths() {
  const int strips = std::max(1, model_.Strips());
  const int room = viewport()->width() - WantedWidth();
  const int left = strips > 2 ? 0 : std::clamp(room / strips, 0, kMostExtra);
  const int figures = std::max(1, model_.columnCount() - strips);
  const int closer = std::clamp((figures - 1 - room) / figures, 0, kCellGap - kEdge);
  for (int column = 0; column < static_cast<int>(wanted_.size()); ++column)
    setColumnWidth(
        column, wanted_[static_cast<std::size_t>(column)] + (model_.IsLabelColumn(column) ? left : -closer));
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
  if (event->type() == QEvent::LanguageChange) viewport()->update();
  if (event->type() != QEvent::FontChange) return;
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
  wanted_.clear();
  Measure();
}

}  // namespace tessaryn
