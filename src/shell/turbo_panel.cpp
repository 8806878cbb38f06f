#include "shell/turbo_panel.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/game.h"
#include "shell/screen_tools.h"

namespace tessaryn {

namespace {

QString WholeNumber(double value) { return QLocale(QLocale::English).toString(value, 'f', 0); }

QString ClockText(qint64 milliseconds) {
  const qint64 seconds = milliseconds / 1000;
  return QString("%1:%2:%3.%4")
      .arg(seconds / 3600)
      .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
      .arg(seconds % 60, 2, 10, QLatin1Char('0'))
      .arg(milliseconds / 100 % 10);
}

}  // namespace

TurboPanel::TurboPanel(QWidget* parent) : QWidget(parent), stop_(new QPushButton(tr("&Stop"), this)) {
  setObjectName("picTurboRoll");
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, QColor(240, 234, 214));
  setPalette(colours);
  auto* column = new QVBoxLayout(this);
  column->addStretch(2);
  auto* caption = new QLabel(tr("Turbo-Roll Active"), this);
  caption->setObjectName("lblTurboRoll");
  QFont large = font();
  large.setPointSize(30);
  caption->setFont(large);
  caption->setAlignment(Qt::AlignCenter);
  column->addWidget(caption);
  column->addSpacing(14);
  auto* middle = new QHBoxLayout;
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(3);
  middle->addStretch();
  middle->addLayout(grid);
  middle->addStretch();
  column->addLayout(middle);
  rolls_ = AddFigure(*grid, 0, tr("Rolls"), "lblRolls");
  rate_ = AddFigure(*grid, 1, tr("Rolls a second"), "lblRate");
  time_ = AddFigure(*grid, 2, tr("Time"), "lblTime");
  grid->setRowMinimumHeight(3, 10);
  for (int seat = 1; seat <= kSeats; ++seat) {
    bankrolls_[seat] = AddFigure(*grid, 3 + seat, {}, "lblBankroll");
    names_[seat] = qobject_cast<QLabel*>(grid->itemAtPosition(3 + seat, 0)->widget());
    changes_[seat] = new QLabel(this);
    changes_[seat]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    changes_[seat]->setFont(bankrolls_[seat]->font());
    changes_[seat]->setMinimumWidth(bankrolls_[seat]->minimumWidth());
    grid->addWidget(changes_[seat], 3 + seat, 2);
  }
  column->addSpacing(14);
  stop_->setObjectName("cmdStop");
  stop_->setMinimumWidth(140);
  column->addWidget(stop_, 0, Qt::AlignHCenter);
  column->addStretch(3);
  connect(stop_, &QPushButton::clicked, this, &TurboPanel::stopPressed);
}

QLabel* TurboPanel::AddFigure(QGridLayout& grid, int row, const QString& caption, const char* name) {
  auto* label = new QLabel(caption, this);
  auto* figure = new QLabel(this);
  figure->setObjectName(name);
  // Figures of one width, in a column wide enough for the largest, so that nothing jumps.
  QFont digits = font();
  digits.setPointSizeF(digits.pointSizeF() * 1.25);
  digits.setStyleHint(QFont::Monospace);
  digits.setFamily("monospace");
  figure->setFont(digits);
  label->setFont(digits);
  figure->setMinimumWidth(figure->fontMetrics().horizontalAdvance("-9,999,999.00"));
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(label, row, 0);
  grid.addWidget(figure, row, 1);
  return figure;
}

void TurboPanel::Begin(const Game& game) {
  clock_.start();
  firstRoll_ = SessionRolls(game.stats);
  for (int seat = 1; seat <= kSeats; ++seat) {
    firstBankroll_[seat] = game.table.BankrollCurrent[seat];
    const bool here = IsOccupied(game.table, seat);
    names_[seat]->setText(here ? FromCore(game.table.SeatName[seat]) : QString());
    for (QLabel* label : {names_[seat], bankrolls_[seat], changes_[seat]}) label->setVisible(here);
  }
  Refresh(game);
}

void TurboPanel::Refresh(const Game& game) {
  const qint64 elapsed = clock_.elapsed();
  const double rolls = static_cast<double>(SessionRolls(game.stats) - firstRoll_);
  rolls_->setText(WholeNumber(rolls));
  rate_->setText(WholeNumber(elapsed > 0 ? rolls * 1000 / static_cast<double>(elapsed) : 0));
  time_->setText(ClockText(elapsed));
  for (int seat = 1; seat <= kSeats; ++seat) {
    if (!IsOccupied(game.table, seat)) continue;
    const Currency change = game.table.BankrollCurrent[seat] - firstBankroll_[seat];
    bankrolls_[seat]->setText(MoneyText(game.table.BankrollCurrent[seat]));
    changes_[seat]->setText((change > kZero ? "+" : "") + MoneyText(change));
  }
}

void TurboPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QRadialGradient light(rect().center(), std::max(width(), height()) * 0.7);
  light.setColorAt(0, QColor(14, 88, 58));
  light.setColorAt(1, QColor(6, 40, 28));
  painter.fillRect(rect(), light);
}

void TurboPanel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Space || event->key() == Qt::Key_Return)
    emit stopPressed();
  else
    QWidget::keyPressEvent(event);
}

}  // namespace tessaryn
