#include "shell/table/turbo_panel.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kSlack = 4;         // pixels that a label may want beside its text
constexpr int kNameColumns = 20;  // of a name as it is shown
const QColor kWon(150, 232, 160);
const QColor kLost(255, 172, 160);

QString WholeNumber(double value) { return ShownNumber(value, 0); }

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
  QPalette colours(QColor(26, 104, 72), QColor(10, 64, 42));  // the button too is of felt
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
    colours.setColor(role, QColor(240, 234, 214));
  setPalette(colours);
  auto* column = new QVBoxLayout(this);
  column->addStretch(2);
  auto* caption = new QLabel(tr("Turbo-Roll Active"), this);
  caption->setObjectName("lblTurboRoll");
  caption_ = caption;
  caption->setAlignment(Qt::AlignCenter);
  column->addWidget(caption);
  column->addSpacing(14);
  auto* middle = new QHBoxLayout;
  auto* grid = grid_ = new QGridLayout;
  grid->setHorizontalSpacing(24);
  middle->addStretch();
  middle->addLayout(grid);
  middle->addStretch();
  column->addLayout(middle);
  rolls_ = AddFigure(*grid, 0, tr("Rolls"), "lblRolls");
  rate_ = AddFigure(*grid, 1, tr("Rolls a second"), "lblRate");
  time_ = AddFigure(*grid, 2, tr("Time"), "lblTime");
  grid->setRowMinimumHeight(3, 10);
  for (int row = 0; row < kSeats; ++row) {
    bankrolls_[row] = AddFigure(*grid, 4 + row, {}, "lblBankroll");
    names_[row] = qobject_cast<QLabel*>(grid->itemAtPosition(4 + row, 0)->widget());
    names_[row]->setTextFormat(Qt::PlainText);
    changes_[row] = new QLabel(this);
    changes_[row]->setObjectName("lblChange");
    changes_[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figures_.append(changes_[row]);
    grid->addWidget(changes_[row], 4 + row, 2);
  }
  column->addSpacing(14);
  stop_->setObjectName("cmdStop");
  stop_->setMinimumWidth(140);
  column->addWidget(stop_, 0, Qt::AlignHCenter);
  column->addStretch(3);
  connect(stop_, &QPushButton::clicked, this, &TurboPanel::stopPressed);
  TakeLetters(false);
}

QLabel* TurboPanel::AddFigure(QGridLayout& grid, int row, const QString& caption, const char* name) {
  auto* label = new QLabel(caption, this);
  auto* figure = new QLabel(this);
  figure->setObjectName(name);
  figures_.append(figure);
  captions_.append(label);
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(label, row, 0);
  grid.addWidget(figure, row, 1);
  return figure;
}

// Figures of one width, in a column wide enough for the largest, so that nothing jumps.
void TurboPanel::TakeLetters(bool small) {
  QFont large = font();
  large.setPointSize(small ? 14 : 30);
  caption_->setFont(large);
  QFont digits = font();
  digits.setPointSizeF(digits.pointSizeF() * (small ? 0.9 : 1.25));
  digits.setStyleHint(QFont::Monospace);
  digits.setFamily("monospace");
  for (QLabel* label : captions_ + figures_) label->setFont(digits);
  const QFontMetrics metrics(digits);
  for (QLabel* figure : figures_)
    figure->setMinimumWidth(
        metrics.horizontalAdvance(figure->objectName() == "lblChange" ? "-19,999,998.00" : "-9,999,999.00") +
        kSlack);
  grid_->setVerticalSpacing(small ? 0 : 3);
  layout()->setContentsMargins(9, small ? 2 : 9, 9, small ? 2 : 9);
  layout()->invalidate();
}

// In a small window all of it shows in smaller letters.
void TurboPanel::FitLetters() {
  TakeLetters(false);
  if (layout()->minimumSize().height() > height()) TakeLetters(true);
}

void TurboPanel::resizeEvent(QResizeEvent*) { FitLetters(); }

void TurboPanel::Begin(const Game& game) {
  clock_.start();
  firstRoll_ = Throws(game.stats);
  cents_ = false;
  const int nameWidth = names_[0]->fontMetrics().averageCharWidth() * kNameColumns;
  for (int row = 0; row < kSeats; ++row) {
    const bool here = row < game.table.OccupiedSeats;
    seats_[row] = here ? game.table.Seated[row] : 0;
    firstBankroll_[seats_[row]] = game.table.BankrollCurrent[seats_[row]];
    names_[row]->setText(names_[row]->fontMetrics().elidedText(
        FromCore(game.table.seats[seats_[row]].SeatName), Qt::ElideRight, nameWidth));
    for (QLabel* label : {names_[row], bankrolls_[row], changes_[row]}) label->setVisible(here);
  }
  FitLetters();
  Refresh(game);
  layout()->activate();
}

QString TurboPanel::Amount(Currency value) const {
  return cents_ && value.IsWhole() ? ShownNumber(value.ToDouble(), 2) : MoneyText(value);
}

void TurboPanel::Refresh(const Game& game) {
  const qint64 elapsed = clock_.elapsed();
  const double rolls = static_cast<double>(Throws(game.stats) - firstRoll_);
  rolls_->setText(WholeNumber(rolls));
  rate_->setText(WholeNumber(elapsed > 0 ? rolls * 1000 / static_cast<double>(elapsed) : 0));
  time_->setText(ClockText(elapsed));
  for (const SeatId seat : seats_)
    cents_ = cents_ ||
             (seat > 0 && !(game.table.BankrollCurrent[seat].IsWhole() && firstBankroll_[seat].IsWhole()));
  for (int row = 0; row < kSeats && seats_[row] > 0; ++row) {
    const Currency bankroll = game.table.BankrollCurrent[seats_[row]];
    const Currency change = bankroll - firstBankroll_[seats_[row]];
    bankrolls_[row]->setText(Amount(bankroll));
    changes_[row]->setText((change > kZero ? "+" : "") + Amount(change));
    const QColor ink = change == kZero ? palette().color(QPalette::WindowText)
                       : change > kZero ? kWon
                                        : kLost;
    QPalette colours = changes_[row]->palette();
    if (colours.color(QPalette::WindowText) == ink) continue;
    colours.setColor(QPalette::WindowText, ink);
    changes_[row]->setPalette(colours);
  }
}

// Figures that change have it painted below them many times a second.
void TurboPanel::paintEvent(QPaintEvent* event) {
  const double ratio = devicePixelRatioF();
  if (light_.size() != size() * ratio) {
    light_ = QPixmap(size() * ratio);
    light_.setDevicePixelRatio(ratio);
    QRadialGradient light(rect().center(), std::max(width(), height()) * 0.7);
    light.setColorAt(0, QColor(14, 88, 58));
    light.setColorAt(1, QColor(6, 40, 28));
    QPainter(&light_).fillRect(rect(), light);
  }
  QPainter painter(this);
  for (const QRect& part : event->region())
    painter.drawPixmap(part.topLeft(), light_,
                       QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio).toRect());
}

void TurboPanel::keyPressEvent(QKeyEvent* event) {
  // The key that started the run may still be down.
  if (event->isAutoRepeat()) return;
  if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Space || event->key() == Qt::Key_Return)
    emit stopPressed();
  else
    QWidget::keyPressEvent(event);
}

}  // namespace tessaryn
