#include "shell/screens/events_log_view.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace tessaryn {

namespace {

constexpr int kBarSteps = 1'000'000;
constexpr int kMargin = 8;
constexpr int kMostLetters = 2'000;  // of a line that are drawn
constexpr std::int64_t kSlice = 1 << 20;

QString Shown(const LogRow& row) {
  QString text = QString::fromUtf8(
      row.Text.data(), static_cast<qsizetype>(std::min<std::size_t>(row.Text.size(), 4 * kMostLetters)));
  text.truncate(kMostLetters);
  for (QChar& c : text)
    if (c.category() == QChar::Other_Control) c = ' ';
  return text;
}

bool IsRoll(const QString& text) { return text.startsWith(" Roll #"); }
bool IsRule(const QString& text) { return text.startsWith("----") || text.startsWith("===="); }

}  // namespace

EventsLogView::EventsLogView(QWidget* parent) : RowView(kBarSteps, parent) {
  setObjectName("picEventsLog");
  setAccessibleName(tr("Lines of the Events Log"));
  verticalScrollBar()->setObjectName("vsbEventsLog");
  verticalScrollBar()->setAccessibleName(tr("Line at the top"));
  horizontalScrollBar()->setObjectName("hsbEventsLog");
  horizontalScrollBar()->setAccessibleName(tr("Blanks to the left"));
}

std::string EventsLogView::Open(const std::string& path, const std::string& reference,
                                const LogFilter& filter) {
  std::string error = OpenLogIndex(index_, path, reference, filter);
  place_ = {};
  widest_ = 0;
  SetRows(LogRows(index_));
  Moved();
  return error;
}

void EventsLogView::Close() {
  if (index_.Path.empty()) return;
  CloseLogIndex(index_);
  index_.Path.clear();
  place_ = {};
  SetRows(0);
  Moved();
}

bool EventsLogView::Look() {
  const std::int64_t size = index_.Size;
  if (!LookAgain(index_)) return false;
  if (index_.Size != size) SetRows(LogRows(index_));
  return true;
}

bool EventsLogView::ReadOn(int milliseconds) {
  const bool emptyPage = LogRows(index_) < RowsShown();
  QElapsedTimer clock;
  clock.start();
  bool more = !IsLogIndexComplete(index_);
  while (more && clock.elapsed() < milliseconds) more = StepLogIndex(index_, kSlice);
  if (!more || place_.Begin < index_.Scanned) {
    // What was about right is known now.
    if (!place_.Exact) place_ = PlaceOfLogByte(index_, place_.Begin);
  }
  if (emptyPage && index_.Filter.IsOn() && !more) place_ = PlaceOfLogRow(index_, place_.Row);
  SetRows(LogRows(index_));
  return more;
}

LogPlace EventsLogView::EndPlace() const {
  if (index_.Size == 0 || LogRows(index_) == 0) return {};
  const LogPlace last = index_.Filter.IsOn() || IsLogIndexComplete(index_)
                            ? PlaceOfLogRow(index_, LogRows(index_))
                            : PlaceOfLogByte(index_, index_.Size - 1);
  return MoveInLog(index_, last, 1 - RowsShown());
}

bool EventsLogView::IsAtEnd() const { return place_.Begin >= EndPlace().Begin; }

void EventsLogView::Moved() {
  PlaceBar();
  const QStringList lines = ShownLines();
  setAccessibleDescription(lines.isEmpty() ? QString() : lines.first().trimmed());
  viewport()->update();
}

void EventsLogView::ShowOnTop(const LogPlace& place) {
  place_ = place;
  Moved();
}

void EventsLogView::ShowRow(qint64 row) {
  place_ = PlaceOfLogRow(index_, row);
  if (const LogPlace end = EndPlace(); place_.Begin > end.Begin) place_ = end;
  Moved();
}

void EventsLogView::MoveBy(qint64 rows) {
  const LogPlace end = EndPlace();
  // A roll that was put on top may stand lower than the last page.
  if (rows > 0 && place_.Begin >= end.Begin) return;
  place_ = MoveInLog(index_, place_, rows);
  if (rows > 0 && place_.Begin > end.Begin) place_ = end;
  Moved();
}

void EventsLogView::ShowEnd() { ShowOnTop(EndPlace()); }

void EventsLogView::SetMarked(const QString& text) {
  marked_ = text;
  viewport()->update();
}

QStringList EventsLogView::ShownLines() const {
  QStringList lines;
  for (const LogRow& row : ReadLogRows(index_, place_, RowsShown() + 1)) lines.append(Shown(row));
  return lines;
}

void EventsLogView::PaintLine(QPainter& painter, const QRect& line, const QString& text, int left) const {
  QFont font = painter.font();
  const QFont plain = font;
  if (IsRoll(text)) {
    painter.fillRect(line, palette().alternateBase());
    font.setBold(true);
    painter.setFont(font);
  }
  const QFontMetrics metrics = painter.fontMetrics();
  const int x = line.left() + kMargin - left;
  const int base = line.top() + (line.height() + metrics.ascent() - metrics.descent()) / 2;
  if (!marked_.isEmpty())
    for (qsizetype at = 0; (at = text.indexOf(marked_, at, Qt::CaseInsensitive)) >= 0; at += marked_.size()) {
      const int from = x + metrics.horizontalAdvance(text.left(at));
      const int to = x + metrics.horizontalAdvance(text.left(at + marked_.size()));
      QColor mark = palette().color(QPalette::Highlight);
      mark.setAlpha(90);
      painter.fillRect(QRect(from, line.top(), to - from, line.height()), mark);
    }
  painter.setPen(palette().color(IsRule(text) ? QPalette::PlaceholderText : QPalette::Text));
  painter.drawText(x, base, text);
  painter.setFont(plain);
}

void EventsLogView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const int blank = fontMetrics().horizontalAdvance(' ');
  const int left = horizontalScrollBar()->value() * blank;
  const QStringList lines = ShownLines();
  int y = 0;
  for (const QString& text : lines) {
    PaintLine(painter, QRect(0, y, viewport()->width(), RowHeight()), text, left);
    widest_ =
        std::max(widest_, fontMetrics().horizontalAdvance(text) * 11 / 10 + 2 * kMargin);  // bold is wider
    y += RowHeight();
  }
  if (lines.isEmpty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     index_.Filter.IsOn() && index_.Text >= 0 ? tr("No such lines") : tr("The log is empty"));
  }
  horizontalScrollBar()->setRange(0, std::max(0, (widest_ - viewport()->width() + blank - 1) / blank));
  horizontalScrollBar()->setPageStep(std::max(1, viewport()->width() / blank));
}

}  // namespace tessaryn
