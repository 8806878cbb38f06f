#include "shell/frame/page_painter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFontMetricsF>
#include <QImage>
#include <QLocale>
#include <QPaintEngine>
#include <QPainter>
#include <QPrinter>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "shell/frame/paper_paint.h"

namespace tessaryn {
namespace {

constexpr double kTableSize = 9;    // points
constexpr double kLeastSize = 6.5;  // that a wide table is made small to; then its cells wrap
constexpr double kHeadingSize = 9;
constexpr double kTitleSize = 14;
constexpr double kFootSize = 8;
constexpr double kGap = 14;  // between two columns, in units
constexpr double kSpace = 12;
constexpr double kLeastColumn = 48;    // of cells that wrap
constexpr double kLeastPicture = 160;  // height
constexpr qint64 kRowsAtATime = 4096;
constexpr qint64 kMeasuredWhole = 5'000;  // rows; of longer tables the longest texts are measured alone

QFont Letters(double points, bool bold = false) {
  QFont font;
  font.setPointSizeF(points);
  font.setBold(bold);
  // What is as wide on paper as it was measured.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QFontMetricsF Metrics(const QFont& font) { return QFontMetricsF(font); }

bool IsFigure(const QString& text) {
  const bool any = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
  return (any || text == "---") && std::all_of(text.begin(), text.end(), [](QChar c) {
           return c.isDigit() || QStringView(u" .,+-$%<>()*/:\u00a2\u2212").contains(c);
         });
}

constexpr QTextOption::WrapMode kWrapping = QTextOption::WrapAtWordBoundaryOrAnywhere;

int Lines(const QString& text, const QFont& font, double width) {
  QTextLayout layout(text, font);
  QTextOption how;
  how.setWrapMode(kWrapping);
  layout.setTextOption(how);
  layout.beginLayout();
  while (true) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width);
  }
  layout.endLayout();
  return layout.lineCount();
}

double Total(const std::vector<double>& widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

// The columns' largest width, so that together they take no more than there is.
double Cap(std::vector<double> widths, double room) {
  std::sort(widths.begin(), widths.end());
  for (std::size_t n = 0; n < widths.size(); ++n) {
    const double each = room / static_cast<double>(widths.size() - n);
    if (widths[n] > each) return each;
    room -= widths[n];
  }
  return widths.empty() ? 0 : widths.back();
}

}  // namespace

PrintJob JobOf(const ToolWindow& window) {
  PrintJob job;
  job.title = window.windowTitle();
  job.headings = window.PrintHeadings();
  if (job.headings.isEmpty()) job.headings = {job.title};
  job.date = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
  job.rows = window.TakeRows();
  if (!window.HasPicture()) return job;
  job.pictureSize = window.PictureSize();
  job.picture = [&window](QPainter& painter, const QRectF& area) { window.PaintPicture(painter, area); };
  return job;
}

PagePainter::PagePainter(const PrintJob& job, const QPrinter& printer)
    : job_(job), gap_(kGap), size_(kTableSize) {
  grey_ = printer.colorMode() == QPrinter::GrayScale;
  page_ = QRectF(QPointF(), printer.pageRect(QPrinter::DevicePixel).size());
  foot_ = Metrics(Letters(kFootSize)).height() + kSpace;
  page_.setHeight(std::max(page_.height() - foot_, 1.0));
  headings_ = Metrics(Letters(kTitleSize, true)).height() + kSpace +
              Metrics(Letters(kHeadingSize)).height() * static_cast<double>(job_.headings.size() - 1);
  MeasureColumns();
  FitColumns();
  MeasureHead();
  Paginate();
}

QFont PagePainter::RowFont(bool head) const { return Letters(size_, head); }

bool PagePainter::GoesOn(qint64 row) {
  if (row % kRowsAtATime == kRowsAtATime - 1 && job_.goesOn && !job_.goesOn()) givenUp_ = true;
  return !givenUp_;
}

// Widths at the largest letters.
void PagePainter::MeasureColumns() {
  const qint64 count = job_.rows->Count();
  const QFontMetricsF plain = Metrics(RowFont(false));
  const QFontMetricsF bold = Metrics(RowFont(true));
  std::vector<qsizetype> longest;
  std::vector<int> figures;
  std::vector<int> texts;
  for (qint64 n = 0; n < count && GoesOn(n); ++n) {
    const QStringList row = job_.rows->Row(n);
    const auto cells = static_cast<std::size_t>(row.size());
    if (cells > columns_.size() && (cells > 1 || count == 1 || columns_.empty())) {
      columns_.resize(cells);
      longest.resize(cells);
      figures.resize(cells);
      texts.resize(cells);
    }
    if (GoesAcross(row)) continue;
    for (std::size_t c = 0; c < cells; ++c) {
      const QString& text = row[static_cast<qsizetype>(c)];
      if (n > 0 && !text.isEmpty()) ++(IsFigure(text) ? figures : texts)[c];
      if (n > kMeasuredWhole && text.size() + 1 < longest[c]) continue;
      longest[c] = std::max(longest[c], text.size());
      columns_[c].width = std::max(columns_[c].width, (n == 0 ? bold : plain).horizontalAdvance(text));
    }
  }
  for (std::size_t c = 0; c < columns_.size(); ++c) columns_[c].figures = figures[c] > texts[c];
}

// A table that is too wide gets smaller letters, then cells of several lines, and what is wider still goes on
// the page as small as it takes.
void PagePainter::FitColumns() {
  line_ = Metrics(RowFont(false)).height() + 3;
  if (columns_.empty()) return;
  const auto gaps = static_cast<double>(columns_.size() - 1);
  std::vector<double> widths;
  for (const Column& column : columns_) widths.push_back(column.width + 2);
  const double room = page_.width() - kGap * gaps;
  if (Total(widths) > room) {
    double share = std::max(room / Total(widths), kLeastSize / kTableSize);
    for (double& width : widths) width *= share;
    wraps_ = Total(widths) > room;
    const double cap = std::max(Cap(widths, room), kLeastColumn);
    for (double& width : widths) width = std::min(width, cap);
    if (const double all = Total(widths) + kGap * gaps; all > page_.width() + 1) {
      const double less = page_.width() / all;
      share *= less;
      gap_ *= less;
      for (double& width : widths) width *= less;
    }
    size_ = kTableSize * share;
    line_ = Metrics(RowFont(false)).height() + 3;
  }
  for (std::size_t c = 0; c < columns_.size(); ++c) columns_[c].width = widths[c];
}

double PagePainter::CellWidth(const QStringList& row, qsizetype column) const {
  return GoesAcross(row) ? page_.width() : columns_[static_cast<std::size_t>(column)].width;
}

double PagePainter::RowHeight(const QStringList& row, bool head) const {
  if (!wraps_ && !GoesAcross(row)) return line_;
  const QFont font = RowFont(head || GoesAcross(row));
  int lines = 1;
  for (qsizetype c = 0; c < row.size(); ++c) lines = std::max(lines, Lines(row[c], font, CellWidth(row, c)));
  return std::min(line_ + (lines - 1) * Metrics(font).lineSpacing(), page_.height() / 2);
}

void PagePainter::MeasureHead() {
  head_ = job_.rows->Count() > 0 ? RowHeight(job_.rows->Row(0), true) + 4 : 0;
}

QRectF PagePainter::PictureArea(double top) const {
  const QSizeF natural = job_.pictureSize;
  if (!job_.picture || natural.isEmpty()) return {0, top, 0, 0};
  const double rest = std::max(page_.height() - top, kLeastPicture);
  QSizeF size(page_.width(), page_.width() * natural.height() / natural.width());
  // With a table behind it, there is room for that too.
  const double most = job_.rows->Count() > 0 ? std::min(rest, page_.height() * 0.6) : rest;
  if (size.height() > most) size = QSizeF(size.width() * most / size.height(), most);
  return {QPointF((page_.width() - size.width()) / 2, top), size};
}

// The first row is the columns' heads, which each page begins with.
void PagePainter::Paginate() {
  const qint64 count = job_.rows->Count();
  const double picture = PictureArea(headings_).height();
  double top = headings_ + (picture > 0 ? picture + kSpace : 0) + head_;
  starts_ = {1};
  for (qint64 n = 1; n < count && GoesOn(n); ++n) {
    const double height = wraps_ || columns_.size() > 1 ? RowHeight(job_.rows->Row(n)) : line_;
    if (top + height > page_.height() && (n > starts_.back() || starts_.size() == 1)) {
      starts_.push_back(n);
      top = head_;
    }
    top += height;
  }
}

void PagePainter::PaintHeadings(QPainter& painter) const {
  double top = 0;
  double size = kTitleSize;
  for (const QString& text : job_.headings) {
    painter.setFont(Letters(size, size == kTitleSize));
    const double height = QFontMetricsF(painter.font()).height();
    painter.drawText(QRectF(0, top, page_.width(), height), Qt::AlignLeft | Qt::AlignVCenter, text);
    top += height;
    size = kHeadingSize;
  }
}

void PagePainter::PaintRow(QPainter& painter, const QStringList& row, double top, bool head) const {
  const bool across = GoesAcross(row);
  painter.setFont(RowFont(head || across));
  const double height = RowHeight(row, head);
  double left = 0;
  for (qsizetype c = 0; c < row.size(); ++c) {
    const Column& column = columns_[static_cast<std::size_t>(c)];
    QTextOption how(column.figures && !across ? Qt::AlignRight : Qt::AlignLeft);
    how.setWrapMode(wraps_ || across ? kWrapping : QTextOption::NoWrap);
    painter.drawText(QRectF(left, top, CellWidth(row, c), height), row[c], how);
    left += column.width + gap_;
  }
  if (!head) return;
  painter.setPen(QPen(QColor(90, 90, 90), 1));
  painter.drawLine(QPointF(0, top + head_ - 3), QPointF(page_.width(), top + head_ - 3));
  painter.setPen(Qt::black);
}

void PagePainter::PaintFoot(QPainter& painter, int page) const {
  painter.setFont(Letters(kFootSize));
  const QRectF foot(0, page_.height(), page_.width(), foot_);
  painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, job_.date);
  if (page > 0) painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, job_.headings.front());
  painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                   QCoreApplication::translate("Printing", "Page %1 of %2").arg(page + 1).arg(Pages()));
}

// Its letters are sized for a screen.
void PagePainter::PaintPicture(QPainter& painter, const QRectF& area) const {
  const QRectF natural(QPointF(), job_.pictureSize);
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(area.width() / natural.width(), area.width() / natural.width());
  PaintForPaper(painter, grey_, [&](QPainter& paper) { job_.picture(paper, natural); });
  painter.restore();
}

void PagePainter::Paint(QPainter& painter, int page) const {
  painter.setPen(Qt::black);
  double top = 0;
  if (page == 0) {
    PaintHeadings(painter);
    top = headings_;
    if (const QRectF area = PictureArea(top); area.height() > 0) {
      PaintPicture(painter, area);
      top = area.bottom() + kSpace;
    }
  }
  const auto at = static_cast<std::size_t>(page);
  const qint64 end = at + 1 < starts_.size() ? starts_[at + 1] : job_.rows->Count();
  if (starts_[at] < end || job_.rows->Count() == 1) {
    PaintRow(painter, job_.rows->Row(0), top, true);
    top += head_;
  }
  for (qint64 n = starts_[at]; n < end; ++n) {
    const QStringList row = job_.rows->Row(n);
    PaintRow(painter, row, top, false);
    top += RowHeight(row);
  }
  PaintFoot(painter, page);
}

bool WantsLandscape(const PrintJob& job, const QPrinter& printer) {
  const QSizeF room = printer.pageRect(QPrinter::DevicePixel).size();
  if (room.width() > room.height()) return true;
  if (job.rows->Count() == 0) return job.picture && job.pictureSize.width() > job.pictureSize.height();
  const QFontMetricsF plain = Metrics(Letters(kTableSize));
  const QFontMetricsF bold = Metrics(Letters(kTableSize, true));
  double widest = 0;
  for (qint64 n = 0; n < std::min(job.rows->Count(), kMeasuredWhole); ++n) {
    double width = -kGap;
    for (const QString& text : job.rows->Row(n))
      width += (n == 0 ? bold : plain).horizontalAdvance(text) + kGap;
    if (job.rows->Row(n).size() > 1) widest = std::max(widest, width);
  }
  return widest > room.width();
}

}  // namespace tessaryn
