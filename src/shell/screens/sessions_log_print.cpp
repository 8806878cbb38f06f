// The sessions on paper and in files.
#include <QComboBox>
#include <algorithm>

#include "base/messages.h"
#include "shell/screens/core_words.h"
#include "shell/screens/sessions_log_histogram.h"
#include "shell/screens/sessions_log_rows.h"
#include "shell/screens/sessions_log_screen.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

struct FigureRows : RowSource {
  qint64 Count() const override { return rows.size(); }
  QStringList Row(qint64 n) const override { return rows[n]; }
  QList<QStringList> rows;
};

// The sessions that take part, block by block; asked for one behind the other it reads the log once.
struct DataRows : RowSource {
  DataRows(const std::string& path, const SessionsStatistics& of, const QStringList& head)
      : statistics(of), heading(head) {
    if (!OpenSessionsFile(file, path, SessionsAccess::kRead).empty() ||
        !CountSessions(file, sessions).empty())
      sessions = 0;
  }
  qint64 Count() const override { return statistics.Included + 1; }
  QStringList Row(qint64 n) const override {
    if (n <= 0) return heading;
    if (n < first) {  // back to the beginning
      first = 1;
      next = 1;
      texts.clear();
    }
    while (n >= first + texts.size() && next <= sessions) ReadBlock();
    return n - first < texts.size() ? texts[n - first] : QStringList{};
  }
  void ReadBlock() const {
    constexpr std::int64_t kBlock = 2'048;
    std::vector<Record> records;
    const std::int64_t count = std::min(kBlock, sessions - next + 1);
    first += texts.size();
    texts.clear();
    if (!ReadSessions(file, next, static_cast<std::size_t>(count), records).empty()) {
      next = sessions + 1;
      return;
    }
    for (const Record& record : records) {
      const Currency value = SessionValue(record, statistics.Query.Measure);
      const bool included = TakesPart(statistics.Query, record);
      if (included)
        texts.append(SessionsRows::Texts(
            {next, SessionValue(record, kSessionRolls), value, included, DeviationsOf(statistics, value)}));
      ++next;
    }
  }

  SessionsStatistics statistics;
  QStringList heading;
  SessionsLogFile file;
  std::int64_t sessions = 0;
  mutable qint64 first = 1;  // the row of texts' first
  mutable std::int64_t next = 1;
  mutable QList<QStringList> texts;
};

}  // namespace

std::unique_ptr<RowSource> SessionsLogScreen::TakeRows() const {
  const SessionsStatistics& s = result_->statistics;
  if (game_.sessions.SessionsDisplayMode == 1)
    return std::make_unique<DataRows>(result_->path, s, rows_->Headings());
  auto figures = std::make_unique<FigureRows>();
  QList<QStringList>& rows = figures->rows;
  rows.append({tr("Statistic"), stat_->currentText()});
  for (int label = 0; label < kStatisticLabels; ++label)
    rows.append({statNames_[label]->text(), FigureInHabit(QString::fromStdString(StatisticText(s, label)))});
  const Currency fixed[] = {s.Net, s.Handle, s.AdvantagePercent};
  const QString names[] = {tr("Net $"), tr("Handle $"), tr("Advantage %")};
  for (int i = 0; i < 3; ++i)
    rows.append(
        {names[i], s.Included == 0 ? QString() : InHabit(QString::fromStdString(SessionsNumber(fixed[i])))});
  const std::int64_t counts[] = {s.Won, s.BrokeEven, s.Lost, s.Total};
  const QString classes[] = {tr("Won"), tr("Broke-even"), tr("Lost"), tr("Total")};
  for (int i = 0; i < 4; ++i)
    rows.append({classes[i],
                 tr("%1 (%2)").arg(MoneyText(Currency::Dollars(counts[i])),
                                   FigureInHabit(QString::fromStdString(ShareText(counts[i], s.Total))))});
  return figures;
}

QStringList SessionsLogScreen::PrintHeadings() const {
  QStringList lines{tr("Tessaryn Sessions Log"), tr("Player:  %1").arg(player_->currentText()),
                    tr("Log:  %1").arg(FromCore(result_->path)), stat_->currentText()};
  if (breakPoint_->isVisibleTo(this)) lines.append(breakPoint_->text());
  if (game_.sessions.Outliers != OutlierRule::kNone)
    lines.append(tr("Values from %1 to %2").arg(values_[0]->text(), values_[1]->text()));
  return lines;
}

bool SessionsLogScreen::HasPicture() const { return game_.sessions.SessionsDisplayMode != 1; }

void SessionsLogScreen::PaintPicture(QPainter& painter, const QRectF& area) const {
  QPalette paper(QColor(Qt::white), QColor(Qt::white));
  for (const auto role : {QPalette::WindowText, QPalette::Text}) paper.setColor(role, QColor(0x1B1F23));
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Mid, QColor(0x87929B));
  HistogramLook look;
  look.BarColumns = kBarColumns[std::clamp(game_.sessions.GraphBarWidth, 0, 3)];
  look.Curve = curve_->isChecked();
  PaintSessionsHistogram(painter, area, result_->statistics, look, paper);
}

QString SessionsLogScreen::PrintTitle() const {
  return game_.sessions.SessionsDisplayMode == 1 ? tr("Print Sessions Log Raw Data")
                                                 : tr("Print Sessions Log");
}

QStringList SessionsLogScreen::PrintFacts(int pages) const {
  if (game_.sessions.SessionsDisplayMode != 1) return {};
  return {tr("Number of sessions: %1").arg(MoneyText(Currency::Dollars(result_->statistics.Included))),
          tr("Number of pages: %1").arg(MoneyText(Currency::Dollars(pages)))};
}

bool SessionsLogScreen::ReadyToPrint() {
  if (result_->statistics.Included > 0) return true;
  Tell(PrintTitle(), MessageText<Msg::kNoSessionsToPrint>());
  return false;
}

}  // namespace tessaryn
