#include "shell/screens/sessions_log_rows.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {
constexpr int kBarSteps = 30'000;
constexpr int kMargin = 8;
constexpr double kColumnEnds[] = {0.16, 0.34, 0.62, 0.76, 1.0};  // shares of the width
constexpr int kColumns = 5;
}  // namespace

SessionsRows::SessionsRows(QWidget* parent) : RowView(kBarSteps, parent) {
  setObjectName("picRaw");
  setAccessibleName(tr("Sessions"));
  verticalScrollBar()->setObjectName("vsbRaw");
  verticalScrollBar()->setAccessibleName(tr("Session at the top"));
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void SessionsRows::Show(qint64 sessions, const QString& measure, bool known) {
  measure_ = measure;
  known_ = known;
  SetRows(sessions);
}

void SessionsRows::SetFound(qint64 session) {
  found_ = session;
  viewport()->update();
}

int SessionsRows::HeadHeight() const { return RowHeight() + 4; }

QStringList SessionsRows::Headings() const {
  return {tr("Session #"), tr("# Rolls"), measure_, tr("Include"), tr("Standard Deviations")};
}

QStringList SessionsRows::Texts(const SessionsRow& row, bool known) {
  return {MoneyText(Currency::Dollars(row.Number)),
          InHabit(QString::fromStdString(SessionsNumber(row.Rolls))),
          InHabit(QString::fromStdString(SessionsNumber(row.Outcome))),
          row.Included ? QStringLiteral("\u2713") : QString(),
          known ? ShownNumber(row.Deviations, 3) : QStringLiteral("---")};
}

void SessionsRows::PaintTexts(QPainter& painter, const QRect& line, const QStringList& texts) const {
  int left = line.left();
  for (int column = 0; column < kColumns; ++column) {
    const int right = line.left() + static_cast<int>(line.width() * kColumnEnds[column]);
    const QRect cell(left + kMargin / 2, line.top(), right - left - kMargin, line.height());
    const int align = column == 3 ? Qt::AlignHCenter : Qt::AlignRight;
    painter.drawText(cell, align | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(texts[column], Qt::ElideRight, cell.width()));
    left = right;
  }
}

void SessionsRows::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const QRect head(0, 0, viewport()->width(), HeadHeight());
  painter.fillRect(head, palette().alternateBase());
  QFont bold = font();
  bold.setBold(true);
  painter.setPen(palette().color(QPalette::Text));
  painter.setFont(bold);
  PaintTexts(painter, head, Headings());
  painter.setFont(font());
  QRect line(0, head.height(), head.width(), RowHeight());
  const std::vector<SessionsRow> rows = read ? read(TopRow(), RowsShown() + 1) : std::vector<SessionsRow>();
  const QString top = rows.empty() ? QString() : Texts(rows.front(), known_).join(", ");
  if (top != accessibleDescription()) setAccessibleDescription(top);
  for (const SessionsRow& row : rows) {
    const bool found = row.Number == found_;
    if (found) painter.fillRect(line, palette().highlight());
    // What takes no part stands back, and has no mark.
    painter.setPen(palette().color(found          ? QPalette::HighlightedText
                                   : row.Included ? QPalette::Text
                                                  : QPalette::PlaceholderText));
    PaintTexts(painter, line, Texts(row, known_));
    line.translate(0, line.height());
  }
  if (!rows.empty()) return;
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter, tr("No sessions"));
}

}  // namespace tessaryn
