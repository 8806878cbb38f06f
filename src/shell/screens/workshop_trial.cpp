#include "shell/screens/workshop_trial.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QProgressBar>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "base/bet_catalogue.h"
#include "shell/table/appearance.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kMostRolls = 100'000'000;
constexpr int kLookEvery = 50;  // milliseconds
constexpr std::uint32_t kMostSeed = 1'000'000;

QString PercentText(Currency net, Currency wagered) {
  if (wagered == kZero) return {};
  return ShownNumber(100 * net.ToDouble() / wagered.ToDouble(), 2) + "%";
}

}  // namespace

TrialCurve::TrialCurve(QWidget* parent) : QWidget(parent) {
  setMinimumHeight(56);
  setObjectName("picTrial");
}

void TrialCurve::Show(std::vector<Currency> now, std::vector<Currency> before) {
  now_ = std::move(now);
  before_ = std::move(before);
  update();
}

void TrialCurve::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (now_.size() < 2) return;
  double low = now_[0].ToDouble();
  double high = low;
  for (const auto* curve : {&now_, &before_}) {
    for (const Currency point : *curve) {
      low = std::min(low, point.ToDouble());
      high = std::max(high, point.ToDouble());
    }
  }
  if (high <= low) high = low + 1;
  const QRectF area = QRectF(rect()).adjusted(1, 3, -1, -3);
  const auto y = [&](Currency value) {
    return area.bottom() - (value.ToDouble() - low) / (high - low) * area.height();
  };
  const auto path = [&](const std::vector<Currency>& curve) {
    QPainterPath line;
    for (std::size_t n = 0; n < curve.size(); ++n) {
      const double x =
          area.left() + area.width() * static_cast<double>(n) / static_cast<double>(curve.size() - 1);
      n == 0 ? line.moveTo(x, y(curve[n])) : line.lineTo(x, y(curve[n]));
    }
    return line;
  };
  QColor quiet = palette().color(QPalette::WindowText);
  quiet.setAlpha(110);
  painter.setPen(QPen(quiet, 1, Qt::DashLine));
  painter.drawLine(QPointF(area.left(), y(now_[0])), QPointF(area.right(), y(now_[0])));
  if (before_.size() >= 2) {
    painter.setPen(QPen(quiet, 1, Qt::DotLine));
    painter.drawPath(path(before_));
  }
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  painter.setPen(QPen(dark ? QColor(80, 190, 140) : QColor(11, 107, 74), 1.6));
  painter.drawPath(path(now_));
}

WorkshopTrial::WorkshopTrial(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 8, 8, 8);
  column->addWidget(new QLabel("<b>" + tr("Try it") + "</b>", this));
  BuildStart(*column);
  BuildResult(*column);
  timer_ = new QTimer(this);
  timer_->setInterval(kLookEvery);
  connect(timer_, &QTimer::timeout, this, [this] {
    progress_->setValue(static_cast<int>(state_->rolls));
    if (done_) End();
  });
  connect(start_, &QPushButton::clicked, this, &WorkshopTrial::Toggle);
}

void WorkshopTrial::BuildStart(QBoxLayout& column) {
  auto* row = new QHBoxLayout;
  rolls_ = new QSpinBox(this);
  rolls_->setObjectName("spnTrialRolls");
  rolls_->setAccessibleName(tr("Rolls"));
  rolls_->findChild<QLineEdit*>()->setAccessibleName(tr("Rolls"));
  rolls_->setRange(1, kMostRolls);
  rolls_->setValue(10'000);
  rolls_->setGroupSeparatorShown(true);
  rolls_->setSuffix(" " + tr("rolls"));
  start_ = new QPushButton(tr("Tr&y it"), this);
  start_->setObjectName("cmdTryIt");
  start_->setPalette(PrimaryButton());
  row->addWidget(rolls_, 1);
  row->addWidget(start_);
  column.addLayout(row);
  same_ = new QCheckBox(tr("Same &dice again"), this);
  same_->setObjectName("chkSameDice");
  column.addWidget(same_);
  progress_ = new QProgressBar(this);
  progress_->setObjectName("prgTrial");
  progress_->setAccessibleName(tr("Progress"));
  progress_->hide();
  column.addWidget(progress_);
}

void WorkshopTrial::BuildResult(QBoxLayout& column) {
  net_ = new QLabel(this);
  net_->setObjectName("lblTrialNet");
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  net_->setFont(large);
  facts_ = new QLabel(tr("The script runs on a copy of the table; the game stays as it is."), this);
  facts_->setObjectName("lblTrial");
  compared_ = new QLabel(this);
  compared_->setObjectName("lblTrialBefore");
  for (QLabel* label : {net_, facts_, compared_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(label != net_);
    column.addWidget(label);
  }
  net_->hide();
  compared_->hide();
  column.addWidget(curve_ = new TrialCurve(this), 1);
  bets_ = new QTableWidget(0, 5, this);
  bets_->setObjectName("tblTrial");
  bets_->setAccessibleName(tr("Bets of the trial"));
  bets_->setHorizontalHeaderLabels({tr("Bet"), tr("Won"), tr("Lost"), tr("Net"), tr("Net %")});
  bets_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  bets_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  bets_->verticalHeader()->hide();
  bets_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  bets_->setShowGrid(false);
  bets_->setTabKeyNavigation(false);
  bets_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  bets_->setSelectionBehavior(QAbstractItemView::SelectRows);
  column.addWidget(bets_, 2);
  column.addStretch();
  curve_->hide();
  bets_->hide();
}

void WorkshopTrial::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) start_->setPalette(PrimaryButton());
  QWidget::changeEvent(event);
}

WorkshopTrial::~WorkshopTrial() {
  if (!thread_.joinable()) return;
  state_->stop = true;
  thread_.join();
}

void WorkshopTrial::Toggle() {
  if (IsOn()) {
    state_->stop = true;
    return;
  }
  SeatId seat = 0;
  std::vector<std::string> lines;
  if (!take || !take(seat, lines)) return;
  if (seed_ == 0 || !same_->isChecked()) seed_ = 1 + QRandomGenerator::global()->bounded(kMostSeed);
  trial_ = std::make_unique<ScriptTrial>(game_, seat, lines, seed_);
  state_ = std::make_unique<TrialProgress>();
  done_ = false;
  progress_->setRange(0, rolls_->value());
  progress_->setValue(0);
  progress_->show();
  start_->setText(tr("Sto&p"));
  thread_ = std::thread([this, rolls = rolls_->value(), with = counted] {
    coming_ = trial_->Run(rolls, *state_, with);
    done_ = true;
  });
  timer_->start();
}

void WorkshopTrial::End() {
  thread_.join();
  timer_->stop();
  trial_.reset();
  progress_->hide();
  start_->setText(tr("Tr&y it"));
  before_ = std::move(now_);
  now_ = std::move(coming_);
  coming_ = {};
  Tell();
  emit ended();
}

void WorkshopTrial::Tell() {
  net_->setVisible(now_.problem.empty());
  net_->setText((now_.net > kZero ? "+" : "") + MoneyText(now_.net));
  QStringList facts;
  if (now_.problem.empty()) {
    if (now_.wagered != kZero)
      facts << tr("%1 of %2 bet").arg(PercentText(now_.net, now_.wagered), MoneyText(now_.wagered));
    facts << tr("%1 rolls in %2 s", nullptr, PluralOf(now_.rolls))
                 .arg(ShownCount(now_.rolls), ShownNumber(now_.seconds, 2));
    if (now_.stopped) facts << tr("stopped");
    if (!now_.stopReason.empty()) facts << FromCore(now_.stopReason);
    for (const ScriptErrorKind& error : now_.errors)
      facts << tr("%1 (line %2, %3 times)", nullptr, PluralOf(error.count))
                   .arg(FromCore(error.text))
                   .arg(error.line)
                   .arg(ShownCount(error.count));
  } else {
    facts << FromCore(now_.problem);
  }
  facts_->setText(facts.join("\n"));
  const bool compares = before_.rolls > 0 && now_.problem.empty();
  compared_->setVisible(compares);
  if (compares)
    compared_->setText(tr("Run before: %1, %2 rolls", nullptr, PluralOf(before_.rolls))
                           .arg(MoneyText(before_.net), ShownCount(before_.rolls)));
  curve_->setVisible(now_.bankrolls.size() > 1);
  bets_->setVisible(!now_.bets.empty());
  curve_->Show(now_.bankrolls, before_.bankrolls);
  bets_->setRowCount(static_cast<int>(now_.bets.size()));
  for (int row = 0; row < bets_->rowCount(); ++row) {
    const TrialBet& bet = now_.bets[static_cast<std::size_t>(row)];
    const QString texts[] = {FromCore(BetName(bet.bet)), ShownCount(bet.won), ShownCount(bet.lost),
                             MoneyText(bet.net), PercentText(bet.net, bet.wagered)};
    for (int column = 0; column < 5; ++column) {
      auto* item = new QTableWidgetItem(texts[column]);
      if (column > 0) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      bets_->setItem(row, column, item);
    }
  }
}

}  // namespace tessaryn
