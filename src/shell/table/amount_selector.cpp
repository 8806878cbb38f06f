#include "shell/table/amount_selector.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>

#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"
#include "state/game.h"

namespace tessaryn {

AmountSelector::AmountSelector(const Game& game, QWidget* parent)
    : QWidget(parent), game_(game), typed_(new MoneyEdit(this)) {
  setObjectName("picAmt");
  setAccessibleName(tr("Bet amount"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (int n = 1; n <= 5; ++n) {
    checks_[n] = new QToolButton(this);
    checks_[n]->setObjectName(QString("picCheck%1").arg(n));
    checks_[n]->setCheckable(true);
    checks_[n]->setAutoRaise(true);
    checks_[n]->setFocusPolicy(Qt::TabFocus);
    connect(checks_[n], &QToolButton::clicked, this, [this, n] { SetAmount(game_.settings.CheckValue[n]); });
    row->addWidget(checks_[n]);
  }
  typed_->setObjectName("txtAmt");
  typed_->SetKeys(4, false);
  typed_->setFixedWidth(typed_->fontMetrics().horizontalAdvance("9,999,999.00") + 12);
  typed_->setAccessibleName(tr("Amount that a click bets"));
  typed_->setToolTip(tr("The amount that a click bets"));
  connect(typed_, &QLineEdit::editingFinished, this, [this] { TakeTyped(); });
  row->addWidget(typed_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  RefreshChecks();
}

void AmountSelector::SetMeasures(const Measures& measures) {
  checkSize_ = measures.check;
  typed_->setFixedHeight(measures.compact ? 26 : 32);
  layout()->setSpacing(measures.compact ? 2 : 4);
  RefreshChecks();
}

void AmountSelector::RefreshChecks() {
  for (int n = 1; n <= 5; ++n) {
    checks_[n]->setIconSize(QSize(checkSize_, checkSize_));
    checks_[n]->setFixedSize(checkSize_ + 6, checkSize_ + 6);
    const QString value = TableAmountText(game_, game_.settings.CheckValue[n]);
    checks_[n]->setIcon(CheckPicture(n,
                                     CheckText(n, game_.settings.CheckValue, game_.settings.UseCentsSymbol),
                                     checkSize_, devicePixelRatioF()));
    checks_[n]->setAccessibleName(tr("Bet %1 a click").arg(value));
    checks_[n]->setToolTip(tr("Bet %1 a click").arg(value));
  }
  Show();
}

void AmountSelector::Show() {
  for (int n = 1; n <= 5; ++n) checks_[n]->setChecked(game_.settings.CheckValue[n] == amount_);
  typed_->SetValue(amount_);
}

void AmountSelector::SetAmount(Currency amount) {
  if (amount > kZero && amount <= kBankrollLimit && amount != amount_) {
    amount_ = amount;
    emit amountChanged();
  }
  Show();
}

void AmountSelector::TakeTyped() { SetAmount(typed_->Value()); }

// By one betting unit, down to one.
void AmountSelector::Step(int direction) {
  const Currency unit = game_.settings.Unit();
  SetAmount(direction > 0 ? amount_ + unit : std::max(amount_ - unit, unit));
}

void AmountSelector::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      return Step(1);
    case Qt::Key_Down:
    case Qt::Key_Left:
      return Step(-1);
    default:
      QWidget::keyPressEvent(event);
  }
}

void AmountSelector::wheelEvent(QWheelEvent* event) {
  Step(event->angleDelta().y() > 0 ? 1 : -1);
  event->accept();
}

void AmountSelector::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) RefreshChecks();
  QWidget::changeEvent(event);
}

}  // namespace tessaryn
