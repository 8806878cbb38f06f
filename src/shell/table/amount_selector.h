// How much a click bets: the five checks and a typed amount.
#pragma once

#include <QWidget>

#include "base/money.h"
#include "shell/table/appearance.h"

class QButtonGroup;
class QToolButton;

namespace tessaryn {

struct Game;
class MoneyEdit;

class AmountSelector : public QWidget {
  Q_OBJECT

 public:
  explicit AmountSelector(const Game& game, QWidget* parent = nullptr);
  // The amount that a click adds.
  Currency Amount() const { return amount_; }
  void SetAmount(Currency amount);
  // The checks' values changed.
  void RefreshChecks();
  void SetMeasures(const Measures& measures);

 signals:
  void amountChanged();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Step(int direction);
  void TakeTyped();
  void Show();

  const Game& game_;
  Currency amount_ = Currency::Dollars(5);
  int checkSize_ = 30;
  QToolButton* checks_[6] = {};
  MoneyEdit* typed_;
};

}  // namespace tessaryn
