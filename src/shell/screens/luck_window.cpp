#include "shell/screens/luck_window.h"

#include <QHideEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "play/session_luck.h"
#include "shell/screens/figures_table.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

constexpr int kSpace = 8;

FigureCell Dollars(double value) { return {DollarFigure(value), value}; }
FigureCell Plain(double value) { return {FigureText(value), value}; }
FigureCell Count(std::int64_t count) { return {ShownCount(count), static_cast<double>(count)}; }

// What was decided in the session.
double WageredBy(const Game& game, SeatId seat) {
  Currency sum;
  for (BetId bet = 1; bet <= kBets; ++bet)
    sum += BetStat(game.stats, kWagerStats, kCurrentSession, seat, bet, kStatTotal);
  return sum.IsError() ? 0 : sum.ToDouble();
}

FigureRow RowOf(const Game& game, SeatId seat) {
  const SessionLuckFigures figures = SessionLuckOf(game, seat);
  const double wagered = WageredBy(game, seat);
  // What is given away in percent of what was decided, where all of it was counted.
  const bool priced = wagered > 0 && figures.missed == 0;
  const double price = priced ? -100 * figures.report.expected / wagered : 0;
  return {seat,
          false,
          {{FromCore(game.table.seats[seat].SeatName), static_cast<double>(seat)},
           Dollars(figures.report.expected),
           Dollars(figures.report.actual),
           Dollars(figures.report.luck),
           Dollars(figures.report.standardDeviation),
           Plain(figures.report.deviations),
           Dollars(wagered),
           {priced ? FigureText(price) : QStringLiteral("---"), price},
           Count(figures.counted),
           Count(figures.missed)}};
}

}  // namespace

LuckWindow::LuckWindow(Game& game, QWidget* parent) : ToolWindow("frmLuck", parent), game_(game) {
  column_ = new QVBoxLayout(this);
  column_->setContentsMargins(kSpace, kSpace, kSpace, kSpace);
  column_->setSpacing(kSpace);
  tells_ = new QLabel(this);
  tells_->setObjectName("lblLuck");
  tells_->setWordWrap(true);
  tells_->setTextFormat(Qt::PlainText);
  column_->addWidget(tells_);
  Build();
  resize(860, 260);
}

LuckWindow::~LuckWindow() { Watch(false); }

void LuckWindow::Build() {
  setWindowTitle(tr("Luck"));
  tells_->setText(
      tr("Expected: what the bets made cost or bring on average, under the rules and dice in force. Luck is "
         "what "
         "the dice gave beyond it. Price: what was given away, in percent of what was decided."));
  delete table_;
  table_ = new FiguresTable(
      "lstLuck", tr("Luck of the players"),
      {tr("Player"), tr("Expected"), tr("Came"), tr("Luck"), tr("Std. deviation"), tr("Luck in std. dev."),
       tr("Decided"), tr("Price %"), tr("Rolls"), tr("Not counted")},
      this);
  table_->setToolTip(
      tr("Rolls with bets up that were counted, and rolls that were not: those of a Turbo-Roll are counted "
         "while "
         "this window is open."));
  column_->insertWidget(0, table_, 1);
}

void LuckWindow::Watch(bool wanted) {
  if (wanted == watches_) return;
  watches_ = wanted;
  WatchLuckOfTurboRolls(game_, wanted);
}

void LuckWindow::Refresh() {
  const NumbersOfFiles untilShown;
  std::vector<FigureRow> rows;
  for (SeatId seat = 1; seat <= kSeats; ++seat)
    if (IsOccupied(game_.table, seat)) rows.push_back(RowOf(game_, seat));
  table_->SetRows(std::move(rows));
}

QList<QStringList> LuckWindow::Rows() const { return table_->Rows(); }

void LuckWindow::showEvent(QShowEvent* event) {
  WatchLuck(game_);
  Watch(true);
  ToolWindow::showEvent(event);
}

void LuckWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) Watch(false);
  ToolWindow::hideEvent(event);
}

void LuckWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    Build();
    Refresh();
  }
  ToolWindow::changeEvent(event);
}

}  // namespace tessaryn
