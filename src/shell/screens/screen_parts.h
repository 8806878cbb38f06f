// Parts that several screens show: the coloured head of a dialog, and the operator, amount and unit boxes
// behind "Same Bet" and "Bet".
#pragma once

#include <QColor>
#include <QFrame>
#include <QPixmap>
#include <QString>

#include "state/settings.h"

class QComboBox;
class QLabel;

namespace tessaryn {

class MoneyEdit;

// "$1,234.50", "-$20".
QString DollarText(Currency value);

// The head of a dialog: who and what it is about, over a colour that says so at a glance, the same on light
// and dark desktops.
class HeaderBand : public QFrame {
 public:
  HeaderBand(const QColor& colour, const QPixmap& picture, QWidget* parent);
  // Labels of the band, from above: the title (lblTitle) in large letters, then plain ones. Returned to be
  // filled and named.
  QLabel* AddTitle(const QString& text);
  QLabel* AddLine(const QString& objectName, const QString& text);

 private:
  QLabel* AddLabel(const QString& text, double size, bool bold);

  QWidget* texts_;
};

inline const QColor kBandGreen(14, 92, 52);
inline const QColor kBandRed(140, 28, 34);
inline const QColor kBandGrey(70, 80, 92);

// What one adjust slot of a seat says.
struct Adjustment {
  int kind = 0;    // as Handling::AdjustKind
  Currency value;  // 0 to kMostAdjustment
  int unit = 0;    // as Handling::AdjustUnit

  friend bool operator==(const Adjustment&, const Adjustment&) = default;
};
inline constexpr Currency kMostAdjustment = Currency::FromRaw(99'999'999'999);

// The adjust slots 4 to 7; those of an amount to bet have no operator.
inline constexpr int kSlotWinSame = 4;
inline constexpr int kSlotLoseSame = 5;
inline constexpr int kSlotWinBet = 6;
inline constexpr int kSlotLoseBet = 7;

// cmdMathOperator, txtModifyAmount and cmdUnits of one slot; their object names end with its number.
class AdjustEdit : public QWidget {
  Q_OBJECT
 public:
  // what: the choice that it belongs to, for screen readers.
  AdjustEdit(int slot, const Settings& settings, const QString& what, QWidget* parent);
  void SetValue(const Adjustment& value);
  const Adjustment& Value() const { return value_; }

 signals:
  // The user changed it.
  void Edited();

 private:
  void AddOperator(int slot, const QString& what);
  void AddAmount(int slot, const QString& what);
  void AddUnits(int slot, const QString& what);
  void ListUnits();
  void AmountTyped();

  QComboBox* operator_ = nullptr;  // none where an amount is bet
  MoneyEdit* amount_ = nullptr;
  QComboBox* units_ = nullptr;
  Currency checks_[6];
  Adjustment value_;
};

}  // namespace tessaryn
